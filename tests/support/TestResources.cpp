#include "TestResources.h"

#include <QBuffer>
#include <QDataStream>
#include <QHash>
#include <QImage>
#include <QResource>

#include <algorithm>

namespace {

/** A binary resource collection of the first format with all \a files in the root directory. */
QByteArray resourceCollection(const QMap<QString, QByteArray> &files)
{
    QStringList names = files.keys();
    // The tree is sorted by the hash of the names.
    std::sort(names.begin(), names.end(),
              [](const QString &a, const QString &b) { return qt_hash(a) < qt_hash(b); });

    QByteArray collection;
    QByteArray tree;
    QByteArray data;
    QByteArray strings;
    QDataStream treeStream(&tree, QIODevice::WriteOnly);
    QDataStream dataStream(&data, QIODevice::WriteOnly);
    QDataStream stringStream(&strings, QIODevice::WriteOnly);

    // The root directory: no name, kind 2.
    treeStream << quint32(0) << quint16(2) << quint32(names.size()) << quint32(1);
    stringStream << quint16(0) << quint32(0);
    for (const QString &name : qAsConst(names)) {
        // A plain file (kind 0) for any country (0) and any language (1).
        treeStream << quint32(strings.size()) << quint16(0) << quint16(0) << quint16(1)
                   << quint32(data.size());
        stringStream << quint16(name.size()) << qt_hash(name);
        for (const QChar character : name)
            stringStream << character.unicode();
        dataStream << files.value(name);
    }

    constexpr int headerSize = 20;
    QDataStream stream(&collection, QIODevice::WriteOnly);
    stream.writeRawData("qres", 4);
    stream << quint32(1) << quint32(headerSize) << quint32(headerSize + tree.size() + strings.size())
           << quint32(headerSize + tree.size());
    return collection + tree + strings + data;
}

} // namespace

TestResources::TestResources(const QMap<QString, QByteArray> &files)
    : m_files(files)
{
    exchange();
}

TestResources::~TestResources()
{
    m_files.clear();
    exchange();
}

void TestResources::set(const QString &name, const QByteArray &content)
{
    m_files.insert(name, content);
    exchange();
}

QByteArray TestResources::png(int width, int height, const QList<quint32> &columns)
{
    QImage image(columns.size(), 1, QImage::Format_ARGB32);
    for (int x = 0; x < columns.size(); ++x)
        image.setPixel(x, 0, columns[x]);
    QBuffer buffer;
    image.scaled(width, height).save(&buffer, "PNG");
    return buffer.data();
}

void TestResources::exchange()
{
    if (!m_registered.isEmpty())
        QResource::unregisterResource(reinterpret_cast<const uchar *>(m_registered.constData()));
    m_registered = m_files.isEmpty() ? QByteArray() : resourceCollection(m_files);
    if (!m_registered.isEmpty())
        QResource::registerResource(reinterpret_cast<const uchar *>(m_registered.constData()));
}
