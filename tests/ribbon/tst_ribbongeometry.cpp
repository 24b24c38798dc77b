#include "TestCase.h"

#include "ribbon/RibbonGeometry.h"

#include <QRandomGenerator>
#include <QtTest>

#include <algorithm>
#include <array>

using NVO::RibbonControl;
namespace Geometry = NVO::RibbonGeometry;
using Mode = RibbonControl::SizeMode;

namespace {

using Asked = QVector<QPair<int, int>>; // control and mode

/** The controls of a group and their size in each mode. */
struct Group
{
    QVector<Geometry::Control> controls;
    QVector<std::array<QSize, 3>> sizes;

    /** Tells the sizes and writes down what it was asked. */
    Geometry::SizeOf sizeOf(Asked &asked) const
    {
        return [this, &asked](int control, Mode mode) {
            asked.append({control, mode});
            return sizes[control][mode];
        };
    }
};

Group randomGroup(QRandomGenerator &random, int count)
{
    Group group;
    const int kind = random.bounded(4); // 0: nothing fixed, 1: many fixed to Small, else mixed
    for (int i = 0; i < count; ++i) {
        const int fix = kind == 0 ? 0 : kind == 1 ? qMin(random.bounded(4), 1) : random.bounded(3);
        group.controls.append({Mode(1 + random.bounded(2)), Mode(fix)});
        const auto size = [&random] { return QSize(random.bounded(150), random.bounded(70)); };
        group.sizes.append({QSize(), size(), size()});
    }
    return group;
}

/** The columns of a group, worked out on plain lists as the rules are told, step by step. */
class Oracle
{
public:
    explicit Oracle(const Group &group)
        : m_group(group)
        , m_sizeOf(group.sizeOf(asked))
    {}

    Mode modeOf(const Geometry::Column &column, int columns) const
    {
        const Geometry::Control first = m_group.controls[column.controls[0]];
        if (first.fixMode == RibbonControl::Auto && first.mode == RibbonControl::Large)
            return RibbonControl::Large;
        if (column.controls.size() == 1 && first.fixMode == RibbonControl::Large)
            return RibbonControl::Large;
        if (column.controls.size() == 1 && first.fixMode == RibbonControl::Small && columns == 1)
            return RibbonControl::Large;
        return RibbonControl::Small;
    }

    QSize calculate(const Geometry::Columns &columns)
    {
        if (columns.isEmpty())
            return QSize();
        int width = 5 * (columns.size() - 1);
        int highest = -1;
        for (const Geometry::Column &column : columns) {
            int columnWidth = -1;
            int height = -1 + (column.controls.size() - 1) * column.spacing;
            for (const int control : column.controls) {
                const QSize size = m_sizeOf(control, modeOf(column, columns.size()));
                columnWidth = qMax(columnWidth, size.width());
                height += size.height();
            }
            width += columnWidth;
            highest = qMax(highest, height);
        }
        return QSize(width, highest);
    }

    Geometry::Columns compact() const
    {
        Geometry::Columns result;
        QVector<int> pending;
        for (int i = 0; i < m_group.controls.size(); ++i) {
            pending << i;
            if (pending.size() == 3 || fix(i) == RibbonControl::Large)
                result.append({std::exchange(pending, {}), 2});
        }
        if (!pending.isEmpty())
            result.append({pending, 2});
        return result;
    }

    Geometry::Columns forWidth(int available, int spacing)
    {
        Geometry::Columns columns;
        for (int i = 0; i < m_group.controls.size(); ++i)
            columns.append({{i}, spacing});
        QSize needed = calculate(columns);
        if (!needed.isValid())
            return columns;
        int i = 0;
        while (i < columns.size() - 1) {
            QVector<int> &own = columns[i].controls;
            if (own.size() < 3 && fix(own[0]) == RibbonControl::Small
                && fix(columns[i + 1].controls[0]) == RibbonControl::Small) {
                own << columns[i + 1].controls[0];
                columns[i].spacing = 2;
                columns.removeAt(i + 1);
            } else {
                ++i;
            }
        }
        for (i = 0; needed.width() > available; ++i, needed = calculate(columns)) {
            for (int times = 0; times < 2; ++times) {
                if (i >= columns.size() - 1)
                    return columns;
                const QVector<int> &own = columns[i].controls;
                if (own.size() == 3 || (own.size() == 1 && fix(own[0]) == RibbonControl::Large))
                    break;
                moveInto(columns, i);
            }
        }
        if (i < columns.size() - 1 && columns[i].controls.size() == 1
            && m_group.controls[columns[i].controls[0]].mode == RibbonControl::Small)
            moveInto(columns, i);
        return columns;
    }

    Asked asked;

private:
    Mode fix(int control) const { return m_group.controls[control].fixMode; }

    /** The first control of the next column moves, then the others while there is room for them. */
    static void moveInto(Geometry::Columns &columns, int i)
    {
        Geometry::Column next = columns.takeAt(i + 1);
        columns[i].controls << next.controls.takeFirst();
        while (columns[i].controls.size() < 3 && !next.controls.isEmpty())
            columns[i].controls << next.controls.takeFirst();
        if (!next.controls.isEmpty())
            columns.insert(i + 1, next);
    }

    const Group &m_group;
    Geometry::SizeOf m_sizeOf;
};

QString textOf(const Geometry::Columns &columns)
{
    QString text;
    for (const Geometry::Column &column : columns) {
        for (const int control : column.controls)
            text += QString::number(control) + ' ';
        text += QStringLiteral("(%1) | ").arg(column.spacing);
    }
    return text;
}

/** Every control once, in order, at most three in a column and none empty. */
bool isSound(const Geometry::Columns &columns, int count)
{
    int next = 0;
    for (const Geometry::Column &column : columns) {
        if (column.controls.isEmpty() || column.controls.size() > 3)
            return false;
        for (const int control : column.controls) {
            if (control != next++)
                return false;
        }
    }
    return next == count;
}

/** The groups of a page: their smallest size, and the widths that they can open to, the widest first. */
struct Page
{
    QVector<Geometry::Group> groups;
    QVector<QSize> smallest;
    QVector<QVector<int>> open;

    QSize openSize(int group, int available) const
    {
        const QVector<int> &widths = open[group];
        const auto fits =
            std::find_if(widths.begin(), widths.end(), [=](int width) { return width <= available; });
        return QSize(fits == widths.end() ? widths.last() : *fits, 20);
    }

    /** The sum of the sizes of what counts, but for one group. */
    QSize sum(const QVector<Geometry::Place> &places, int spacing, int without = -1) const
    {
        if (places.size() == (without < 0 ? 0 : 1))
            return QSize();
        QSize total(0, 0);
        int gap = 0;
        for (int i = 0; i < places.size(); ++i) {
            if (i == without || !groups[i].counted)
                continue;
            total = QSize(total.width() + gap + places[i].size.width(),
                          qMax(total.height(), places[i].size.height()));
            gap = spacing;
        }
        return total;
    }

    QVector<Geometry::Place> arranged(const QSize &area, int spacing) const
    {
        QVector<Geometry::Place> places(groups.size());
        for (int i = 0; i < groups.size(); ++i) {
            const Mode fix = groups[i].fixMode;
            if (groups[i].shown)
                places[i] = {fix == RibbonControl::Auto ? RibbonControl::Small : fix, smallest[i]};
        }
        QSize total = sum(places, spacing);
        for (int i = 0; i < groups.size() && total.width() < area.width(); ++i) {
            if (groups[i].counted && !groups[i].isControl)
                places[i].size = QSize(7, 7);
            if (!groups[i].counted || !groups[i].isControl)
                continue;
            const Geometry::Place saved = places[i];
            if (groups[i].fixMode == RibbonControl::Auto)
                places[i].mode = RibbonControl::Large;
            const int available = area.width() - sum(places, spacing, i).width();
            places[i].size = places[i].mode == RibbonControl::Large ? openSize(i, available) : smallest[i];
            total = sum(places, spacing);
            if (total.width() > area.width()) {
                places[i] = saved;
                break;
            }
        }
        return places;
    }

    Geometry::GroupSizes sizes() const
    {
        return {[this](int group, Mode) { return smallest[group]; }, [](int) { return QSize(7, 7); },
                [this](int group, Mode mode, const QSize &available) {
                    return mode == RibbonControl::Large ? openSize(group, available.width())
                                                        : smallest[group];
                }};
    }
};

Page randomPage(QRandomGenerator &random, bool plain)
{
    Page page;
    const int count = plain ? 1 + random.bounded(6) : random.bounded(8);
    for (int i = 0; i < count; ++i) {
        Geometry::Group group;
        if (!plain) {
            group.shown = random.bounded(5) > 0;
            group.counted = group.shown ? random.bounded(8) > 0 : random.bounded(8) == 0;
            group.isControl = random.bounded(5) > 0;
            group.fixMode = Mode(qMax(random.bounded(6) - 3, 0));
        }
        const int smallest = 10 + random.bounded(60);
        QVector<int> open{smallest + 1 + random.bounded(150)};
        while (!plain && open.size() < 3)
            open << open.last() - random.bounded(30);
        page.groups << group;
        page.smallest << QSize(smallest, random.bounded(90));
        page.open << open;
    }
    return page;
}

} // namespace

class TestRibbonGeometry : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void columns_data();
    void columns();
    void groups();
    void exactNeed();
};

void TestRibbonGeometry::columns_data()
{
    QTest::addColumn<int>("groups");
    QTest::addColumn<int>("step");
    QTest::newRow("every width") << 52 << 1;
    QTest::newRow("many groups") << 4000 << 200;
}

void TestRibbonGeometry::columns()
{
    QFETCH(int, groups);
    QFETCH(int, step);
    QRandomGenerator random{quint32(groups)};
    for (int run = 0; run < groups; ++run) {
        const int count = run % 13;
        const Group group = randomGroup(random, count);
        Oracle oracle(group);
        Asked asked;
        const Geometry::SizeOf sizeOf = group.sizeOf(asked);
        const Geometry::Columns compact = Geometry::compactColumns(group.controls);
        QCOMPARE(textOf(compact), textOf(oracle.compact()));
        QVERIFY(isSound(compact, count));
        QCOMPARE(Geometry::sizeOfColumns(group.controls, compact, sizeOf), oracle.calculate(compact));
        // One width of a run stands in for all up to the next, but each run begins somewhere else.
        for (int width = 1 + random.bounded(step); width <= 1600; width += step) {
            const int spacing = width % 2 ? 2 : 7;
            const auto columns = Geometry::columnsForWidth(group.controls, width, spacing, sizeOf);
            const auto expected = oracle.forWidth(width, spacing);
            QVERIFY(isSound(columns, count));
            bool same = columns.size() == expected.size();
            for (int i = 0; same && i < columns.size(); ++i)
                same =
                    columns[i].controls == expected[i].controls && columns[i].spacing == expected[i].spacing;
            if (!same)
                QCOMPARE(textOf(columns), textOf(expected));
            for (const Geometry::Column &column : columns)
                QCOMPARE(Geometry::columnMode(group.controls, column, columns.size() == 1),
                         oracle.modeOf(column, columns.size()));
            // Sizes may change with each question: none is left out or kept.
            QVERIFY(asked == oracle.asked);
            asked.clear();
            oracle.asked.clear();
        }
    }
}

void TestRibbonGeometry::groups()
{
    QRandomGenerator random(2);
    for (int run = 0; run < 300; ++run) {
        const Page page = randomPage(random, false);
        for (int width = 1; width <= 1600; width += 1 + random.bounded(40)) {
            const auto places = Geometry::arrangeGroups(page.groups, QSize(width, 90), 2, page.sizes());
            const auto expected = page.arranged(QSize(width, 90), 2);
            QCOMPARE(places.size(), expected.size());
            bool closed = false;
            for (int i = 0; i < places.size(); ++i) {
                QCOMPARE(places[i].size, expected[i].size);
                QCOMPARE(places[i].mode, expected[i].mode);
                const Geometry::Group &group = page.groups[i];
                if (!group.counted || !group.isControl || group.fixMode != RibbonControl::Auto)
                    continue;
                QVERIFY(!closed || places[i].mode == RibbonControl::Small);
                closed = places[i].mode == RibbonControl::Small;
            }
        }
    }
}

void TestRibbonGeometry::exactNeed()
{
    QRandomGenerator random(3);
    for (int run = 0; run < 300; ++run) {
        const Page page = randomPage(random, true);
        int need = 2 * (page.groups.size() - 1);
        for (const QVector<int> &open : page.open)
            need += open.first();
        const auto lastMode = [&page](int width) {
            return Geometry::arrangeGroups(page.groups, QSize(width, 90), 2, page.sizes()).last().mode;
        };
        QCOMPARE(lastMode(need), RibbonControl::Large);
        QCOMPARE(lastMode(need - 1), RibbonControl::Small);
    }
}

QTEST_APPLESS_MAIN(TestRibbonGeometry)
#include "tst_ribbongeometry.moc"
