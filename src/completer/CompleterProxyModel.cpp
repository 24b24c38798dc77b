#include "completer/CompleterProxyModel.h"

#include "completer/CompleterMatch.h"
#include "completer/CompleterTreeItem.h"

#include <nvo/CompleterSourceModel.h>

namespace NVO {

namespace {

bool areSorted(int leftType, int rightType)
{
    return leftType == rightType
           && (leftType == CompleterDataRow::Data || leftType == CompleterDataRow::DataRemovable);
}

} // namespace

CompleterProxyModel::CompleterProxyModel(QObject *parent)
    : QSortFilterProxyModel(parent)
{}

void CompleterProxyModel::setFilterText(const QString &text)
{
    m_filterText = text;
    m_foldedFilter = text;
    foldInPlace(m_foldedFilter);
    m_isFoldable = !hasSurrogates(text);
}

void CompleterProxyModel::setSourceModel(QAbstractItemModel *source)
{
    m_suggestions = qobject_cast<CompleterSourceModel *>(source);
    m_tree.reset();
    QSortFilterProxyModel::setSourceModel(source);
}

bool CompleterProxyModel::filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const
{
    if (m_filterText.isEmpty())
        return true;
    return plainTextsTell() ? acceptsPlainTexts(sourceRow, sourceParent)
                            : acceptsMarkedTexts(sourceRow, sourceParent);
}

bool CompleterProxyModel::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    if (isSuggestion(left) && isSuggestion(right)) {
        const CompleterOrder &order = orderOf(left);
        if (order.isOf(right)) {
            const CompleterOrder::Place &leftPlace = order.place(left.row());
            const CompleterOrder::Place &rightPlace = order.place(right.row());
            if (!areSorted(leftPlace.type, rightPlace.type))
                return false;
            if (leftPlace.rank >= 0 && rightPlace.rank >= 0)
                return leftPlace.rank < rightPlace.rank;
        }
    }
    return areSorted(left.data(Qt::UserRole).toInt(), right.data(Qt::UserRole).toInt())
           && QString::localeAwareCompare(left.data().toString(), right.data().toString()) < 0;
}

bool CompleterProxyModel::isSuggestion(const QModelIndex &sourceIndex) const
{
    return sourceIndex.isValid() && sourceIndex.model() == m_suggestions;
}

/**
 * Whether plain texts tell what marked ones would. If the text that is marked is the one that is filtered by,
 * a row with a mark holds that text within the tags, and a row without one has no tags that could add to the
 * text or break it up. Characters beyond the basic plane are left to Qt's own comparison.
 */
bool CompleterProxyModel::plainTextsTell() const
{
    return m_suggestions && m_isFoldable
           && (m_suggestions->m_matchingText == m_filterText || m_suggestions->m_matchingText.isEmpty());
}

bool CompleterProxyModel::acceptsPlainTexts(int sourceRow, const QModelIndex &sourceParent) const
{
    keepUpWithRows();
    if (!m_texts)
        m_texts.emplace(*m_suggestions->m_rootItem, m_suggestions->columnCount());
    if (sourceParent.isValid())
        return m_texts->rowContains(sourceParent.row(), sourceRow, m_foldedFilter);
    return m_texts->rowContains(-1, sourceRow, m_foldedFilter)
           || m_texts->childrenContain(sourceRow, m_foldedFilter);
}

bool CompleterProxyModel::acceptsMarkedTexts(int sourceRow, const QModelIndex &sourceParent) const
{
    if (rowText(sourceRow, sourceParent).contains(m_filterText, Qt::CaseInsensitive))
        return true;
    const QModelIndex caption = sourceModel()->index(sourceRow, 0, sourceParent);
    QString childText;
    for (int row = 0; row < sourceModel()->rowCount(caption); ++row)
        childText += rowText(row, caption);
    return childText.contains(m_filterText, Qt::CaseInsensitive);
}

/** The texts of all columns, with a blank after each. */
QString CompleterProxyModel::rowText(int sourceRow, const QModelIndex &sourceParent) const
{
    QString text;
    for (int column = 0; column < sourceModel()->columnCount(); ++column)
        text += sourceModel()->index(sourceRow, column, sourceParent).data().toString() + QLatin1Char(' ');
    return text;
}

/** The order of the item's siblings by the column, ranked for the key typed. */
const CompleterOrder &CompleterProxyModel::orderOf(const QModelIndex &sourceIndex) const
{
    keepUpWithRows();
    const unsigned key = m_suggestions->m_key;
    if (m_latestOrder && m_latestOrder->key == key && m_latestOrder->order.isOf(sourceIndex))
        return m_latestOrder->order;

    const auto &item = *static_cast<const CompleterTreeItem *>(sourceIndex.internalPointer());
    auto place = m_orders.find(item.parent());
    if (place != m_orders.end() && !place->second.order.isOf(sourceIndex)) {
        m_orders.erase(place);
        place = m_orders.end();
    }
    if (place == m_orders.end()) {
        Ranked ranked{CompleterOrder(*item.parent(), sourceIndex.column()), std::nullopt};
        place = m_orders.emplace(item.parent(), std::move(ranked)).first;
    }
    Ranked &ranked = place->second;
    if (ranked.key != key) {
        ranked.key = key;
        ranked.order.rank(
            [this, parent = sourceIndex.parent()](int row) { return filterAcceptsRow(row, parent); },
            [this](const CompleterTreeItem &sibling, int column) {
                return m_suggestions->markedText(sibling, column);
            },
            m_suggestions->m_matchingText.size());
    }
    m_latestOrder = &ranked;
    return ranked.order;
}

/** Forgets what it knows about rows that have changed since. */
void CompleterProxyModel::keepUpWithRows() const
{
    if (m_tree == m_suggestions->m_tree)
        return;
    m_tree = m_suggestions->m_tree;
    m_texts.reset();
    m_orders.clear();
    m_latestOrder = nullptr;
}

} // namespace NVO
