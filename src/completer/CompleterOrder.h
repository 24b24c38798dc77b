#pragma once

#include <QModelIndex>
#include <QString>

#include <functional>
#include <vector>

namespace NVO {

class CompleterTreeItem;

/**
 * The order of the entries below one parent by the texts of one column.
 *
 * Texts are compared as QString::localeAwareCompare does, which is slow. So the order of the unmarked texts
 * is found once. Texts with their marks in the same places are nearly always in the same order as without
 * them; then a key costs a comparison for each text, and a few more to merge those marked in other places.
 */
class CompleterOrder
{
public:
    /** \a parent must outlive this; rows must not come or go below it. */
    CompleterOrder(const CompleterTreeItem &parent, int column);

    /** Whether the cell is in the column, and its item below the parent. */
    bool isOf(const QModelIndex &index) const;

    using Passes = std::function<bool(int row)>;
    using MarkedText = std::function<QString(const CompleterTreeItem &item, int column)>;
    /** Ranks the rows that pass by their marked texts, with \a length letters in each mark. */
    void rank(const Passes &passes, const MarkedText &markedText, int length);

    struct Place
    {
        int type = 0;
        int rank = -1; // the same for equal texts; less than 0 if the row did not pass, or is no entry
    };
    const Place &place(int row) const { return m_places.at(size_t(row)); }

private:
    bool isLess(int left, int right) const;
    std::vector<std::vector<int>> runs(const Passes &passes, const MarkedText &markedText, int length);
    std::vector<int> merged(std::vector<std::vector<int>> runs) const;

    const CompleterTreeItem &m_parent;
    int m_column;
    std::vector<int> m_plainOrder; // of the entries
    std::vector<QString> m_texts;  // that are compared, by row
    std::vector<Place> m_places;   // by row
};

} // namespace NVO
