#include "theme/IniResource.h"

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

bool namesSomething(const QString &key)
{
    return std::any_of(key.begin(), key.end(), [](QChar character) { return character != QLatin1Char('/'); });
}

QHash<QString, QVariantMap> sectionsOf(const QString &fileName)
{
    QHash<QString, QVariantMap> sections;
    QSettings settings(fileName, QSettings::IniFormat);
    const QStringList names = settings.childGroups();
    for (const QString &name : names) {
        settings.beginGroup(name);
        const QStringList keys = settings.allKeys();
        for (const QString &key : keys) {
            if (namesSomething(key)) // QSettings warns of other keys
                sections[name].insert(key, settings.value(key));
        }
        settings.endGroup();
    }
    return sections;
}

QHash<QString, QVariantMap> parse(const QString &path)
{
    QFile resource(path);
    QTemporaryFile copy; // a name that QSettings has not seen yet
    const bool copied = resource.open(QIODevice::ReadOnly) && copy.open()
                        && copy.write(resource.readAll()) >= 0 && copy.flush();
    return sectionsOf(copied ? copy.fileName() : path);
}

} // namespace

IniResource::IniResource(const QString &path)
    : m_path(path)
{}

QVariantMap IniResource::section(const QString &name)
{
    const QByteArray source = storedBytes(m_path);
    if (source != m_source) {
        m_source = QByteArray(source.constData(), source.size());
        m_sections = parse(m_path);
    }
    return m_sections.value(name);
}

} // namespace NVO
