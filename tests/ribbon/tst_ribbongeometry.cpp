#include "TestCase.h"

#include "ribbon/RibbonGeometry.h"

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
        const bool alone = column.controls.size() == 1;
        const bool opens = (first.fixMode == RibbonControl::Auto && first.mode == RibbonControl::Large)
                           || (first.fixMode == RibbonControl::Large && alone)
                           || (first.fixMode == RibbonControl::Small && alone && columns == 1);
        return opens ? RibbonControl::Large : RibbonControl::Small;
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
        bool full = true;
        for (int i = 0; i < m_group.controls.size(); ++i) {
            if (full)
                result.append(Geometry::Column());
            result.last().controls << i;
            full = result.last().controls.size() == 3 || fix(i) == RibbonControl::Large;
        }
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
        QVector<int> &next = columns[i + 1].controls;
        do
            columns[i].controls << next.takeFirst();
        while (columns[i].controls.size() < 3 && !next.isEmpty());
        if (next.isEmpty())
            columns.removeAt(i + 1);
    }

    const Group &m_group;
    Geometry::SizeOf m_sizeOf;
};

bool areSame(const Geometry::Columns &left, const Geometry::Columns &right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(), [](const auto &a, const auto &b) {
        return a.controls == b.controls && a.spacing == b.spacing;
    });
}

} // namespace

class TestRibbonGeometry : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void columns()
    {
        QRandomGenerator random(52);
        for (int run = 0; run < 4000; ++run) {
            // One width of a run stands in for all up to the next, but each run begins somewhere else.
            const int step = run < 52 ? 1 : 200;
            const Group group = randomGroup(random, run % 13);
            Oracle oracle(group);
            Asked asked;
            const Geometry::SizeOf sizeOf = group.sizeOf(asked);
            const Geometry::Columns compact = Geometry::compactColumns(group.controls);
            QVERIFY2(areSame(compact, oracle.compact()), qPrintable(QString("group %1").arg(run)));
            QCOMPARE(Geometry::sizeOfColumns(group.controls, compact, sizeOf), oracle.calculate(compact));
            for (int width = 1 + random.bounded(step); width <= 1600; width += step) {
                const int spacing = width % 2 ? 2 : 7;
                const auto columns = Geometry::columnsForWidth(group.controls, width, spacing, sizeOf);
                QVERIFY2(areSame(columns, oracle.forWidth(width, spacing)),
                         qPrintable(QString("group %1 in %2 pixels").arg(run).arg(width)));
                for (const Geometry::Column &column : columns)
                    QCOMPARE(Geometry::columnMode(group.controls, column, columns.size() == 1),
                             oracle.modeOf(column, columns.size()));
                // Sizes may change with each question: none is left out or kept.
                QVERIFY(std::exchange(asked, {}) == std::exchange(oracle.asked, {}));
            }
        }
    }
};

QTEST_APPLESS_MAIN(TestRibbonGeometry)
#include "tst_ribbongeometry.moc"
