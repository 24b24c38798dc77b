#include "completer/CompleterTexts.h"

#include "completer/CompleterMatch.h"
#include "completer/CompleterTreeItem.h"

#include <algorithm>

namespace NVO {

CompleterTexts::CompleterTexts(const CompleterTreeItem &root, int columns)
    : m_columns(columns)
{
    m_groups.reserve(size_t(root.childCount()) + 1);
    m_groups.push_back(group(root));
    for (int row = 0; row < root.childCount(); ++row)
        m_groups.push_back(group(*root.child(row)));
}

bool CompleterTexts::rowContains(int caption, int row, const QString &foldedFilter)
{
    Group &siblings = m_groups.at(size_t(caption + 1));
    look(siblings, foldedFilter);
    return siblings.isFound.at(size_t(row));
}

bool CompleterTexts::childrenContain(int caption, const QString &foldedFilter)
{
    Group &children = m_groups.at(size_t(caption + 1));
    look(children, foldedFilter);
    return children.isFoundAnywhere;
}

CompleterTexts::Group CompleterTexts::group(const CompleterTreeItem &parent) const
{
    Group group;
    group.ends.reserve(size_t(parent.childCount()));
    for (int row = 0; row < parent.childCount(); ++row) {
        for (int column = 0; column < m_columns; ++column) {
            group.text += parent.child(row)->text(column);
            group.text += QLatin1Char(' ');
        }
        group.ends.push_back(group.text.size());
    }
    foldInPlace(group.text);
    group.isFound.assign(group.ends.size(), true);
    group.isFoundAnywhere = parent.childCount() > 0;
    return group;
}

void CompleterTexts::look(Group &group, const QString &filter)
{
    if (group.filter == filter)
        return;
    const bool isNarrower = filter.contains(group.filter);
    group.filter = filter;
    if (isNarrower && !group.isFoundAnywhere)
        return;

    group.isFoundAnywhere = false;
    int begin = 0;
    for (size_t row = 0; row < group.ends.size(); ++row) {
        const QStringView text = QStringView(group.text).mid(begin, group.ends[row] - begin);
        begin = group.ends[row];
        if (isNarrower && !group.isFound[row])
            continue;
        group.isFound[row] = text.contains(filter);
        group.isFoundAnywhere = group.isFoundAnywhere || group.isFound[row];
    }
    // Only a filter with a blank can begin in one row and end in another.
    if (!group.isFoundAnywhere && filter.contains(QLatin1Char(' ')))
        group.isFoundAnywhere = group.text.contains(filter);
}

} // namespace NVO
