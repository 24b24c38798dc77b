#include "completer/CompleterOrder.h"

#include "completer/CompleterTreeItem.h"

#include <nvo/CompleterDataRow.h>

#include <algorithm>
#include <map>

namespace NVO {

namespace {

constexpr int tagLengths = 7; // of <b> and </b>

bool isEntry(int type)
{
    return type == CompleterDataRow::Data || type == CompleterDataRow::DataRemovable;
}

/** A number for the places of the marks; 0 without marks. Plain texts with tags of their own may confuse it.
 */
size_t markedPlaces(const QString &plain, const QString &marked, int length)
{
    size_t places = 0;
    if (plain.size() == marked.size())
        return places;
    for (int in = 0, out = 0; in < plain.size() && out < marked.size(); ++in, ++out) {
        if (plain.at(in) == marked.at(out))
            continue;
        places = places * 1000003 + size_t(in) + 1;
        in += length - 1;
        out += length - 1 + tagLengths;
    }
    return places;
}

} // namespace

CompleterOrder::CompleterOrder(const CompleterTreeItem &parent, int column)
    : m_parent(parent)
    , m_column(column)
    , m_texts(size_t(parent.childCount()))
    , m_places(size_t(parent.childCount()))
{
    for (int row = 0; row < parent.childCount(); ++row) {
        const CompleterTreeItem &item = *parent.child(row);
        m_places[size_t(row)].type = item.type();
        m_texts[size_t(row)] = item.text(column);
        if (isEntry(item.type()))
            m_plainOrder.push_back(row);
    }
    std::stable_sort(m_plainOrder.begin(), m_plainOrder.end(),
                     [this](int left, int right) { return isLess(left, right); });
}

bool CompleterOrder::isOf(const QModelIndex &index) const
{
    return index.column() == m_column && m_parent.child(index.row()) == index.internalPointer();
}

void CompleterOrder::rank(const Passes &passes, const MarkedText &markedText, int length)
{
    for (Place &place : m_places)
        place.rank = -1;
    int rank = 0;
    int previous = -1;
    for (const int row : merged(runs(passes, markedText, length))) {
        if (previous >= 0 && isLess(previous, row))
            ++rank;
        m_places[size_t(row)].rank = rank;
        previous = row;
    }
}

bool CompleterOrder::isLess(int left, int right) const
{
    return QString::localeAwareCompare(m_texts[size_t(left)], m_texts[size_t(right)]) < 0;
}

/** The rows that pass, those with their marks in the same places together, each run sorted. */
std::vector<std::vector<int>> CompleterOrder::runs(const Passes &passes, const MarkedText &markedText,
                                                   int length)
{
    std::map<size_t, std::vector<int>> byPlaces;
    for (const int row : m_plainOrder) {
        if (!passes(row))
            continue;
        const CompleterTreeItem &item = *m_parent.child(row);
        QString &text = m_texts[size_t(row)];
        text = markedText(item, m_column);
        byPlaces[markedPlaces(item.text(m_column), text, length)].push_back(row);
    }
    const auto less = [this](int left, int right) { return isLess(left, right); };
    std::vector<std::vector<int>> result;
    for (auto &[places, run] : byPlaces) {
        if (places != 0 && !std::is_sorted(run.begin(), run.end(), less))
            std::stable_sort(run.begin(), run.end(), less);
        result.push_back(std::move(run));
    }
    return result;
}

/** One sorted run of all; short ones are merged first, so that few texts are compared often. */
std::vector<int> CompleterOrder::merged(std::vector<std::vector<int>> runs) const
{
    const auto isLonger = [](const std::vector<int> &left, const std::vector<int> &right) {
        return left.size() > right.size();
    };
    std::sort(runs.begin(), runs.end(), isLonger);
    while (runs.size() > 1) {
        const std::vector<int> left = std::move(runs.back());
        runs.pop_back();
        const std::vector<int> right = std::move(runs.back());
        runs.pop_back();
        std::vector<int> both(left.size() + right.size());
        std::merge(left.begin(), left.end(), right.begin(), right.end(), both.begin(),
                   [this](int a, int b) { return isLess(a, b); });
        runs.insert(std::upper_bound(runs.begin(), runs.end(), both, isLonger), std::move(both));
    }
    return runs.empty() ? std::vector<int>() : std::move(runs.front());
}

} // namespace NVO
