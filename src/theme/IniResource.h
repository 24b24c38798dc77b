#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QVariantMap>

namespace NVO {

/**
 * An INI resource, as QSettings reads it.
 *
 * It is parsed when it is first asked for and again whenever its bytes have changed. QSettings alone would
 * not do: it takes a file of the same size and time for unchanged, as two themes are that were built
 * reproducibly and differ in colour values only.
 */
class IniResource
{
public:
    explicit IniResource(const QString &path);

    /** The values of a section by key, as they are now; empty for what is missing. */
    QVariantMap section(const QString &name);

private:
    QString m_path;
    QByteArray m_source;
    QHash<QString, QVariantMap> m_sections;
};

} // namespace NVO
