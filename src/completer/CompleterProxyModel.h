#pragma once

#include "completer/CompleterOrder.h"
#include "completer/CompleterTexts.h"

#include <QPointer>
#include <QSortFilterProxyModel>

#include <optional>
#include <unordered_map>

namespace NVO {

class CompleterSourceModel;

/**
 * Filters and sorts the suggestions. A row stays if its texts contain the filter text, a caption also if
 * those of its entries do. Entries of one type are sorted below their caption by the texts that are shown,
 * bold tags included; captions, and entries of different types, keep their order.
 *
 * Any model with two levels will do as the source; a CompleterSourceModel that marks the text that is
 * filtered by is searched and sorted without its marked texts being looked into each time.
 */
class CompleterProxyModel : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit CompleterProxyModel(QObject *parent);

    /** Takes effect when the source model is next reset; case does not matter. */
    void setFilterText(const QString &text);

    void setSourceModel(QAbstractItemModel *source) override;

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;
    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;

private:
    bool isSuggestion(const QModelIndex &sourceIndex) const;
    bool plainTextsTell() const;
    bool acceptsPlainTexts(int sourceRow, const QModelIndex &sourceParent) const;
    bool acceptsMarkedTexts(int sourceRow, const QModelIndex &sourceParent) const;
    QString rowText(int sourceRow, const QModelIndex &sourceParent) const;
    const CompleterOrder &orderOf(const QModelIndex &sourceIndex) const;
    void keepUpWithRows() const;

    /** An order with the key typed for which it was ranked. */
    struct Ranked
    {
        CompleterOrder order;
        std::optional<unsigned> key;
    };

    QString m_filterText;
    QString m_foldedFilter;
    bool m_isFoldable = true;
    QPointer<CompleterSourceModel> m_suggestions; // the source, if it is one

    // What is known of the rows, until they change; filtering and sorting fill it.
    mutable std::optional<unsigned> m_tree;
    mutable std::optional<CompleterTexts> m_texts;
    mutable std::unordered_map<const CompleterTreeItem *, Ranked> m_orders;
    mutable const Ranked *m_latestOrder = nullptr;
};

} // namespace NVO
