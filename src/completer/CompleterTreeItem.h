#pragma once

#include <QList>
#include <QVariant>
#include <QVector>

namespace NVO {

/** A node of the tree that CompleterSourceModel makes of its rows. It owns its children. */
class CompleterTreeItem
{
public:
    /** Does not put the item among the children of \a parent; insertChild() does. */
    CompleterTreeItem(const QVector<QVariant> &data, CompleterTreeItem *parent);
    ~CompleterTreeItem();

    CompleterTreeItem(const CompleterTreeItem &) = delete;
    CompleterTreeItem &operator=(const CompleterTreeItem &) = delete;

    /** Null if out of range. */
    CompleterTreeItem *child(int number) const
    {
        return number >= 0 && number < m_childItems.size() ? m_childItems.at(number) : nullptr;
    }
    int childCount() const { return m_childItems.size(); }
    int columnCount() const { return m_itemData.size(); }

    /** The place among the parent's children; 0 for the root. */
    int childNumber() const { return m_number; }

    /** Invalid if out of range. */
    QVariant data(int column) const;
    bool setData(int column, const QVariant &value);

    /** data() as a text. */
    QString text(int column) const
    {
        return column >= 0 && column < m_itemData.size() ? m_itemData.at(column).toString() : QString();
    }

    /** Makes a child with \a columns empty values; false if \a position is not within 0 to childCount(). */
    bool insertChild(int position, int columns);

    /** Deletes children with all that is below them; they must exist. */
    void removeChildren(int position, int count);

    CompleterTreeItem *parent() const { return m_parentItem; }
    int type() const { return m_type; }
    void setType(int type) { m_type = type; }

    /** The texts as they are shown, with the key typed for which they were marked. */
    struct Marked
    {
        unsigned key = 0;
        QVector<QString> texts; // null until asked for
    };
    Marked &marked() const { return m_marked; }

private:
    void renumberFrom(int position);

    QList<CompleterTreeItem *> m_childItems;
    QVector<QVariant> m_itemData;
    int m_type = 3;
    int m_number = 0;
    CompleterTreeItem *m_parentItem;
    mutable Marked m_marked;
};

} // namespace NVO
