#include "theme/IniSection.h"

#include <QFile>
#include <QResource>
#include <QSettings>
#include <QTemporaryFile>

#include <algorithm>

namespace NVO {

namespace {

/** The bytes of a resource where they lie, packed if the resource is; nothing is copied. */
QByteArray storedBytes(const QString &path)
{
    const QResource resource(path);
    return QByteArray::fromRawData(reinterpret_cast<const char *>(resource.data()), int(resource.size()));
}

QVariantMap sectionOf(const QString &fileName, const QString &section)
{
    QVariantMap values;
    QSettings settings(fileName, QSettings::IniFormat);
    settings.beginGroup(section);
    const QStringList keys = settings.allKeys();
    for (const QString &key : keys) {
        if (std::any_of(key.begin(), key.end(), [](QChar c) { return c != QLatin1Char('/'); }))
            values.insert(key, settings.value(key)); // which warns of keys that name nothing
    }
    return values;
}

QVariantMap parse(const QString &path, const QString &section)
{
    QFile resource(path);
    QTemporaryFile copy; // a name that QSettings has not seen yet
    const bool copied = resource.open(QIODevice::ReadOnly) && copy.open()
                        && copy.write(resource.readAll()) >= 0 && copy.flush();
    return sectionOf(copied ? copy.fileName() : path, section);
}

} // namespace

IniSection::IniSection(const QString &resource, const QString &section)
    : m_resource(resource)
    , m_section(section)
{}

const QVariantMap &IniSection::values()
{
    const QByteArray source = storedBytes(m_resource);
    if (source != m_source) {
        m_source = QByteArray(source.constData(), source.size());
        m_values = parse(m_resource, m_section);
    }
    return m_values;
}

} // namespace NVO
