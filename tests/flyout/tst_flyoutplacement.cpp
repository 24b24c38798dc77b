#include "TestCase.h"

#include "flyout/FlyoutPlacement.h"

#include <QRandomGenerator>
#include <QtTest>

#include <array>
#include <set>
#include <vector>

using NVO::Flyout;
namespace Placement = NVO::FlyoutPlacement;
using Placement::Box;
using Placement::Position;

namespace {

/**
 * The search done the slow way, in the words of a user: a box is made for an edge and a place on it, drawn in
 * pixel by pixel, walked onto the screen pixel by pixel, and then looked at: does its pointer still touch?
 */
class Oracle
{
public:
    enum Edge { Top, Bottom, Left, Right };
    enum Place { Start, Middle, End };
    struct Result
    {
        Position position;
        QRect rect;
        QPoint offset;
    };

    Oracle(const QRect &target, const Box &box, const QRect &available)
        : m_target(target)
        , m_box(box)
        , m_left(available.left() + 15)
        , m_top(available.top() + 15)
        , m_right(available.left() + available.width() - 16)
        , m_bottom(available.top() + available.height() - 16)
    {}

    Result search(Edge edge, Place place) const
    {
        static const Edge edges[4][4] = {{Top, Bottom, Left, Right},
                                         {Bottom, Top, Left, Right},
                                         {Left, Right, Top, Bottom},
                                         {Right, Left, Top, Bottom}};
        static const Place places[3][3] = {{Start, Middle, End}, {Middle, Start, End}, {End, Middle, Start}};
        for (const Edge e : edges[edge]) {
            for (const Place p : places[place]) {
                const int length = e == Top || e == Bottom ? m_box.size.width() : m_box.size.height();
                if (p != Middle && length < 86)
                    continue;
                Result result;
                if (points(e, p, &result))
                    return result;
            }
        }
        return centred();
    }

    Result centred() const
    {
        QRect rect(QPoint(), m_box.size);
        rect.moveCenter(m_target.center());
        drawIn(&rect);
        const QPoint before = rect.topLeft();
        walk(&rect);
        return {Flyout::CenterCenter, rect, rect.topLeft() - before};
    }

private:
    bool points(Edge edge, Place place, Result *result) const
    {
        const bool level = edge == Top || edge == Bottom;
        const int w = m_box.size.width();
        const int h = m_box.size.height();
        const int length = level ? w : h;
        const int centre = level ? m_target.center().x() : m_target.center().y();
        const int along = centre - (place == Start ? 43 : place == Middle ? length / 2 : length - 43);
        QRect rect;
        switch (edge) {
        case Top:
            rect = QRect(along, m_target.y() + m_target.height() + 12, w, h);
            break;
        case Bottom:
            rect = QRect(along, m_target.y() - h - 13, w, h);
            break;
        case Left:
            rect = QRect(m_target.x() + m_target.width() + 12, along, w, h);
            break;
        case Right:
            rect = QRect(m_target.x() - w - 13, along, w, h);
            break;
        }
        drawInFarEdge(edge, &rect);
        drawIn(&rect);
        const QRect there = rect;
        walk(&rect);
        const int mask[] = {0x10, 0x20, 0x40, 0x80};
        const int bit[] = {4, 2, 1};
        *result = {Position(QFlag(mask[edge] | bit[place])), rect, rect.topLeft() - there.topLeft()};

        // The edge must not have left the target, and the pointer must lie on its straight part.
        if (level ? rect.y() != there.y() : rect.x() != there.x())
            return false;
        const int edgeLength = level ? rect.width() : rect.height();
        const int pushed = level ? there.x() - rect.x() : there.y() - rect.y();
        if (place == Middle)
            return pushed == 0;
        const int fromStart = (place == Start ? 43 : edgeLength - 43) + pushed;
        return place == Start ? fromStart >= 43 && fromStart < edgeLength - 43
                              : fromStart > 43 && fromStart <= edgeLength - 43;
    }

    QSize room() const
    {
        return m_box.preferred.height() <= 500 ? QSize(0, 0) : m_box.preferred - m_box.smallest;
    }

    void drawInFarEdge(Edge edge, QRect *rect) const
    {
        QRect smaller = *rect;
        const int most = edge == Top || edge == Bottom ? room().height() : room().width();
        for (int lost = 1; lost < most; ++lost) {
            if (edge == Top      ? smaller.bottom() <= m_bottom
                : edge == Bottom ? smaller.top() >= m_top
                : edge == Left   ? smaller.right() <= m_right
                                 : smaller.left() >= m_left)
                break;
            smaller.adjust(edge == Right, edge == Bottom, -(edge == Left), -(edge == Top));
        }
        const bool inside = edge == Top      ? smaller.bottom() <= m_bottom
                            : edge == Bottom ? smaller.top() >= m_top
                            : edge == Left   ? smaller.right() <= m_right
                                             : smaller.left() >= m_left;
        if (inside)
            *rect = smaller;
    }

    void drawIn(QRect *rect) const
    {
        for (int lost = 0; lost < room().height() && rect->height() > m_bottom - m_top + 1; ++lost)
            rect->setHeight(rect->height() - 1);
        for (int lost = 0; lost < room().width() && rect->width() > m_right - m_left + 1; ++lost)
            rect->setWidth(rect->width() - 1);
    }

    void walk(QRect *rect) const
    {
        while (rect->right() > m_right)
            rect->translate(-1, 0);
        while (rect->left() < m_left)
            rect->translate(1, 0);
        while (rect->bottom() > m_bottom)
            rect->translate(0, -1);
        while (rect->top() < m_top)
            rect->translate(0, 1);
    }

    QRect m_target;
    Box m_box;
    int m_left, m_top, m_right, m_bottom;
};

const Position positions[] = {Flyout::TopLeft,    Flyout::TopMiddle,    Flyout::TopRight,
                              Flyout::BottomLeft, Flyout::BottomMiddle, Flyout::BottomRight,
                              Flyout::LeftTop,    Flyout::LeftMiddle,   Flyout::LeftBottom,
                              Flyout::RightTop,   Flyout::RightMiddle,  Flyout::RightBottom};

constexpr QRect screen(0, 0, 1000, 700);

Box fixedBox(int width, int height)
{
    return {QSize(width, height), QSize(width + 26, height + 26), QSize(width + 26, height + 26)};
}

QByteArray text(const QRect &target, const Box &box, const QRect &available)
{
    QString out;
    QDebug(&out) << target << box.size << box.preferred << box.smallest << available;
    return out.toUtf8();
}

} // namespace

class TestFlyoutPlacement : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void generatedScenes()
    {
        QRandomGenerator random(20240611);
        const auto between = [&random](int low, int high) { return random.bounded(low, high + 1); };
        std::set<int> found;
        std::set<std::pair<int, int>> flips;
        int shrunk = 0, pushed = 0;
        for (int scene = 0; scene < 6000; ++scene) {
            const QRect available(between(-1500, 1500), between(-800, 800), between(150, 1900),
                                  between(120, 1200));
            const QSize target(between(1, scene % 5 ? 120 : 900), between(1, scene % 7 ? 40 : 700));
            const QPoint at(between(available.left() - 60, available.right() + 30),
                            between(available.top() - 60, available.bottom() + 30));
            Box box;
            box.size = scene % 3 ? QSize(between(2, 400), between(2, 300))
                                 : QSize(between(60, 1200), between(400, 1300));
            box.preferred = box.size + QSize(26, between(0, 9) ? 26 : between(26, 300));
            const int loss = between(0, 2) * 150;
            box.smallest = (box.preferred - QSize(between(0, loss), between(0, loss))).expandedTo({1, 1});

            const Oracle oracle({at, target}, box, available);
            for (int i = 0; i < 12; ++i) {
                const Oracle::Result expected = oracle.search(Oracle::Edge(i / 3), Oracle::Place(i % 3));
                const Placement::Placement got = Placement::best(positions[i], {at, target}, box, available);
                const QByteArray where = text({at, target}, box, available);
                QVERIFY2(got.position == expected.position, where);
                QVERIFY2(got.rect == expected.rect, where);
                QVERIFY2(got.offset == expected.offset, where);
                found.insert(int(got.position));
                flips.insert({i, int(got.position)});
                shrunk += got.position && got.rect.size() != box.size;
                pushed += got.position && !got.offset.isNull();
            }
            const Oracle::Result centred = oracle.centred();
            const Placement::Placement got =
                Placement::best(Flyout::CenterCenter, {at, target}, box, available);
            QCOMPARE(int(got.position), 0);
            QCOMPARE(got.rect, centred.rect);
            QCOMPARE(got.offset, centred.offset);
        }
        // The scenes were worth their time.
        QCOMPARE(int(found.size()), 13);
        QVERIFY(flips.size() > 120);
        QVERIFY(shrunk > 500);
        QVERIFY(pushed > 2000);
    }

    void places_data()
    {
        QTest::addColumn<int>("wanted");
        QTest::addColumn<QRect>("target");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("position");
        QTest::addColumn<QPoint>("corner");
        QTest::addColumn<QPoint>("offset");

        const QRect middle(500, 300, 41, 21); // centre (520, 310), right 540, bottom 320
        const QSize size(200, 100);
        const auto row = [](const char *name, int wanted, QRect target, QSize box, int position,
                            QPoint corner, QPoint offset = {}) {
            QTest::newRow(name) << wanted << target << box << position << corner << offset;
        };
        row("top left", 0x14, middle, size, 0x14, {477, 333});
        row("top middle", 0x12, middle, size, 0x12, {420, 333});
        row("top right", 0x11, middle, size, 0x11, {363, 333});
        row("bottom left", 0x24, middle, size, 0x24, {477, 187});
        row("left top", 0x44, middle, size, 0x44, {553, 267});
        row("left bottom", 0x41, middle, size, 0x41, {553, 253});
        row("right middle", 0x82, middle, size, 0x82, {287, 260});
        row("centred", 0, middle, size, 0, {421, 261});
        row("flips up", 0x14, {500, 600, 41, 21}, size, 0x24, {477, 487});
        row("slides 1", 0x14, {809, 300, 41, 21}, size, 0x14, {785, 333}, {-1, 0});
        row("slides as far as it goes", 0x14, {921, 300, 41, 21}, size, 0x14, {785, 333}, {-113, 0});
        row("one too far", 0x14, {922, 300, 41, 21}, size, 0x11, {785, 333});
        row("the middle does not slide", 0x12, {866, 300, 41, 21}, size, 0x14, {785, 333}, {-58, 0});
        row("the middle fits", 0x12, {865, 300, 41, 21}, size, 0x12, {785, 333});
        row("too narrow for a corner", 0x14, middle, {85, 100}, 0x12, {478, 333});
        row("still without a straight part", 0x14, middle, {86, 100}, 0x12, {477, 333});
        row("wide enough", 0x14, middle, {87, 100}, 0x14, {477, 333});
        row("too low for a corner", 0x41, middle, {200, 85}, 0x42, {553, 268});
        row("no place at all", 0x14, {0, 0, 1000, 700}, size, 0, {400, 300});
        row("across", 0x14, {400, 0, 200, 700}, size, 0x44, {612, 306});
    }
    void places()
    {
        QFETCH(int, wanted);
        QFETCH(QRect, target);
        QFETCH(QSize, size);
        const Placement::Placement got =
            Placement::best(Position(QFlag(wanted)), target, fixedBox(size.width(), size.height()), screen);
        QTEST(int(got.position), "position");
        QTEST(got.rect.topLeft(), "corner");
        QTEST(got.offset, "offset");
        QCOMPARE(got.rect.size(), size);
    }

    void shrinking()
    {
        // The screen ends at 684, the box begins at 333 and so overflows by what it is higher than 352.
        const QRect target(500, 300, 41, 21);
        const auto shrunk = [&target](int preferred, int smallest, int height) {
            const Box box{QSize(200, height), QSize(226, preferred), QSize(226, smallest)};
            const auto placement = Placement::placeAt(Flyout::TopLeft, target, box, screen);
            return std::pair(placement.rect.height(), placement.offset.y());
        };
        QCOMPARE(shrunk(501, 352, 475), std::pair(352, 0));
        QCOMPARE(shrunk(500, 351, 474), std::pair(474, -122)); // such a height never shrinks
        QCOMPARE(shrunk(501, 377, 475), std::pair(352, 0));    // 123 over, 124 of room
        QCOMPARE(shrunk(501, 378, 475), std::pair(475, -123)); // all the room is not enough
        QCOMPARE(shrunk(900, 700, 874), std::pair(674, -318)); // higher than the screen
    }

    void window()
    {
        const QMargins margins(13, 13, 13, 13);
        QCOMPARE(Placement::windowAround({100, 200, 300, 100}, margins, screen), QRect(87, 187, 346, 146));
        // It ends with the screen, on whichever screen that is.
        QCOMPARE(Placement::windowAround({100, 590, 300, 100}, margins, screen), QRect(87, 577, 346, 123));
        QCOMPARE(Placement::windowAround({100, 1290, 300, 100}, margins, screen.translated(0, 700)),
                 QRect(87, 1277, 346, 123));
    }

    void foreignPositions()
    {
        // Whatever bits an application sets, there is an answer, and the box is on the screen.
        for (int bits = 0; bits < 0x200; ++bits) {
            const auto got =
                Placement::best(Position(QFlag(bits)), {500, 300, 41, 21}, fixedBox(200, 100), screen);
            QVERIFY2(screen.contains(got.rect), QByteArray::number(bits, 16));
        }
    }
};

QTEST_MAIN(TestFlyoutPlacement)
#include "tst_flyoutplacement.moc"
