#include "TestResources.h"

#include <QBuffer>
#include <QDataStream>
#include <QImage>
#include <QResource>

#include <algorithm>

namespace {

/** The hash by which the resource tree sorts its names. */
quint32 nameHash(const QString &name)
{
    quint32 hash = 0;
    for (const QChar character : name) {
        hash = (hash << 4) + character.unicode();
        hash ^= (hash & 0xf0000000U) >> 23;
        hash &= 0x0fffffffU;
    }
    return hash;
}

/** A binary resource collection of the first format with all \a files in the root directory. */
QByteArray resourceCollection(const QMap<QString, QByteArray> &files)
{
    QStringList names = files.keys();
    std::sort(names.begin(), names.end(),
              [](const QString &a, const QString &b) { return nameHash(a) < nameHash(b); });

    QByteArray tree;
    QByteArray data;
    QByteArray strings;
    QDataStream treeStream(&tree, QIODevice::WriteOnly);
    QDataStream dataStream(&data, QIODevice::WriteOnly);
    QDataStream stringStream(&strings, QIODevice::WriteOnly);

    constexpr quint16 directory = 2;
    treeStream << quint32(0) << directory << quint32(names.size()) << quint32(1);
    stringStream << quint16(0) << quint32(0);
    for (const QString &name : qAsConst(names)) {
        constexpr quint16 plainFile = 0;
        constexpr quint16 anyCountry = 0;
        constexpr quint16 anyLanguage = 1;
        treeStream << quint32(strings.size()) << plainFile << anyCountry << anyLanguage
                   << quint32(data.size());
        stringStream << quint16(name.size()) << nameHash(name);
        for (const QChar character : name)
            stringStream << character.unicode();
        dataStream << files.value(name);
    }

    constexpr int headerSize = 20;
    QByteArray collection;
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

void TestResources::remove(const QString &name)
{
    m_files.remove(name);
    exchange();
}

QByteArray TestResources::png(int width, int height, const QList<quint32> &columns)
{
    QImage image(width, height, QImage::Format_ARGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            image.setPixel(x, y, columns.at(x * columns.size() / width));
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, "PNG");
    return bytes;
}

void TestResources::exchange()
{
    if (!m_registered.isEmpty())
        QResource::unregisterResource(reinterpret_cast<const uchar *>(m_registered.constData()));
    m_registered = m_files.isEmpty() ? QByteArray() : resourceCollection(m_files);
    if (!m_registered.isEmpty())
        QResource::registerResource(reinterpret_cast<const uchar *>(m_registered.constData()));
}
