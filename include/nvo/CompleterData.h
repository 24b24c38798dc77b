#pragma once

#include <nvo/CompleterDataRow.h>

#include <QStringList>

namespace NVO {

/**
 * A list of suggestions: rows in the order in which they are shown, column headers and a title.
 *
 * A value that is cheap to copy. Rows of type Data and DataRemovable belong to the caption that last came
 * before them, if any.
 */
class NVO_EXPORT CompleterData
{
public:
    /** Appends \a row. */
    void addRow(const CompleterDataRow &row);

    /** Takes out the row at \a row, counted over rows of all types; ignored where there is none. */
    void removeRow(int row);

    int rowCount() const;
    QList<CompleterDataRow> rowData() const;

    /** The largest number of columns of any row; 0 without rows. */
    int columnCount() const;

    /** Headers of the columns: as many columns as there are headers are shown. */
    void setHeaders(const QStringList &headers);
    const QStringList &headers() const;

    /** The heading above the list, such as "Vorschläge". */
    void setTitle(const QString &title);
    const QString &title() const;

private:
    QList<CompleterDataRow> m_rows;
    QStringList m_headers;
    QString m_title;
};

} // namespace NVO
