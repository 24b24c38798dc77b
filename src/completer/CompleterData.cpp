#include <nvo/CompleterData.h>

#include <algorithm>

namespace NVO {

void CompleterDataRow::addColumn(const QString &text, const QVariant &value)
{
    m_columns.append({text, value});
}

int CompleterDataRow::columnCount() const
{
    return m_columns.size();
}

QPair<QString, QVariant> CompleterDataRow::columnData(int column) const
{
    return m_columns.value(column);
}

void CompleterDataRow::setType(Type type)
{
    m_type = type;
}

CompleterDataRow::Type CompleterDataRow::type() const
{
    return m_type;
}

void CompleterData::addRow(const CompleterDataRow &row)
{
    m_rows.append(row);
}

void CompleterData::removeRow(int row)
{
    if (row >= 0 && row < m_rows.size())
        m_rows.removeAt(row);
}

int CompleterData::rowCount() const
{
    return m_rows.size();
}

QList<CompleterDataRow> CompleterData::rowData() const
{
    return m_rows;
}

int CompleterData::columnCount() const
{
    int count = 0;
    for (const CompleterDataRow &row : m_rows)
        count = std::max(count, row.columnCount());
    return count;
}

void CompleterData::setHeaders(const QStringList &headers)
{
    m_headers = headers;
}

const QStringList &CompleterData::headers() const
{
    return m_headers;
}

void CompleterData::setTitle(const QString &title)
{
    m_title = title;
}

const QString &CompleterData::title() const
{
    return m_title;
}

} // namespace NVO
