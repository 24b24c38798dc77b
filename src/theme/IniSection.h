#pragma once

#include <QByteArray>
#include <QString>
#include <QVariantMap>

namespace NVO {

/**
 * One section of an INI resource, as QSettings reads it.
 *
 * The section is parsed when it is first asked for and again whenever the bytes of the resource have
 * changed. QSettings alone would not do: it takes a file of the same size and time for unchanged, as two
 * themes are that were built reproducibly and differ in colour values only.
 */
class IniSection
{
public:
    IniSection(const QString &resource, const QString &section);

    /** The values by key as they are now; empty for what is missing. */
    const QVariantMap &values();

private:
    QString m_resource;
    QString m_section;
    QByteArray m_source;
    QVariantMap m_values;
};

} // namespace NVO
