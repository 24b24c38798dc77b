#pragma once

#include <QString>

#include <vector>

namespace NVO {

class CompleterTreeItem;

/**
 * The texts of a tree as a filter looks into them: a row's columns with a blank after each, folded once.
 *
 * Each group of siblings is one long text, and is looked into at once. If a filter contains the one before
 * it, rows that were out stay out without being looked at.
 */
class CompleterTexts
{
public:
    /** \a root must outlive this; rows must not come or go below it. \a columns counts the empty last one. */
    CompleterTexts(const CompleterTreeItem &root, int columns);

    /** Whether the row's own text contains \a foldedFilter; \a caption is the row of its parent, if not -1.
     */
    bool rowContains(int caption, int row, const QString &foldedFilter);

    /** Whether the texts of all the children of the top row \a caption, one after the other, contain it. */
    bool childrenContain(int caption, const QString &foldedFilter);

private:
    struct Group
    {
        QString text;
        std::vector<int> ends;     // of each row in the text
        std::vector<bool> isFound; // the filter, in the row
        QString filter;            // that was looked for; an empty one finds every row
        bool isFoundAnywhere = true;
    };

    Group group(const CompleterTreeItem &parent) const;
    static void look(Group &group, const QString &filter);

    int m_columns;
    std::vector<Group> m_groups; // that of the top rows, then one for each of those
};

} // namespace NVO
