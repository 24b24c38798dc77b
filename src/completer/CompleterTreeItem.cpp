#include "completer/CompleterTreeItem.h"

namespace NVO {

CompleterTreeItem::CompleterTreeItem(const QVector<QVariant> &data, CompleterTreeItem *parent)
    : m_itemData(data)
    , m_parentItem(parent)
{}

CompleterTreeItem::~CompleterTreeItem()
{
    qDeleteAll(m_childItems);
}

QVariant CompleterTreeItem::data(int column) const
{
    return m_itemData.value(column);
}

bool CompleterTreeItem::setData(int column, const QVariant &value)
{
    if (column < 0 || column >= m_itemData.size())
        return false;
    m_itemData[column] = value;
    return true;
}

bool CompleterTreeItem::insertChild(int position, int columns)
{
    if (position < 0 || position > m_childItems.size())
        return false;
    m_childItems.insert(position, new CompleterTreeItem(QVector<QVariant>(qMax(columns, 0)), this));
    renumberFrom(position);
    return true;
}

void CompleterTreeItem::removeChildren(int position, int count)
{
    const auto first = m_childItems.begin() + position;
    qDeleteAll(first, first + count);
    m_childItems.erase(first, first + count);
    renumberFrom(position);
}

void CompleterTreeItem::renumberFrom(int position)
{
    for (int number = position; number < m_childItems.size(); ++number)
        m_childItems.at(number)->m_number = number;
}

} // namespace NVO
