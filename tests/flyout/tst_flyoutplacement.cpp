#include "TestCase.h"

#include "flyout/FlyoutPlacement.h"

#include <QRandomGenerator>
#include <QtTest>

#include <optional>
#include <set>

using NVO::Flyout;
using namespace NVO::FlyoutPlacement;

namespace {

QRect turned(const QRect &rect)
{
    return {rect.y(), rect.x(), rect.height(), rect.width()};
}

Position position(int edge, int place)
{
    return Position(QFlag(0x10 << edge | 4 >> place));
}

/**
 * The search in the words of a user: a box is made for an edge (top, bottom, left, right) and a place on it
 * (start, middle, end), drawn in pixel by pixel, brought onto the screen, and then looked at: does its
 * pointer still touch? The edges at the sides are those above and below in a world on its side.
 */
struct Oracle
{
    QRect target;
    QSize size, room;
    QRect screen;

    Placement search(int edge, int place) const
    {
        static const int places[3][3] = {{0, 1, 2}, {1, 0, 2}, {2, 1, 0}};
        const Oracle other{turned(target), size.transposed(), room.transposed(), turned(screen)};
        for (const int e : {edge, edge ^ 1, 2 - (edge & 2), 3 - (edge & 2)}) {
            for (const int p : places[place]) {
                const std::optional<Placement> found = e < 2 ? tried(e, p) : other.tried(e - 2, p);
                if (found && e < 2)
                    return {position(e, p), found->rect, found->offset};
                if (found)
                    return {position(e, p), turned(found->rect), {found->offset.y(), found->offset.x()}};
            }
        }
        return centred();
    }

    Placement centred() const
    {
        QRect rect(QPoint(), size);
        rect.moveCenter(target.center());
        return onScreen(rect);
    }

private:
    std::optional<Placement> tried(int edge, int place) const
    {
        const auto fromStart = [place](int width) {
            return place == 0 ? 43 : place == 1 ? width / 2 : width - 43;
        };
        const auto sticksOut = [this, edge](const QRect &rect) {
            return edge == 0 ? rect.bottom() > screen.bottom() : rect.top() < screen.top();
        };
        const int y = edge == 0 ? target.y() + target.height() + 12 : target.y() - size.height() - 13;
        const QRect whole(QPoint(target.center().x() - fromStart(size.width()), y), size);
        QRect drawn = whole;
        for (int lost = 1; lost < room.height() && sticksOut(drawn); ++lost)
            drawn.adjust(0, edge, 0, edge - 1);

        // The edge must not have left the target, and the pointer must lie on its straight part.
        const Placement found = onScreen(sticksOut(drawn) ? whole : drawn);
        const int width = found.rect.width();
        const int pointer = fromStart(width) - found.offset.x();
        const bool touches = place == 0   ? pointer >= 43 && pointer < width - 43
                             : place == 1 ? found.offset.x() == 0
                                          : pointer > 43 && pointer <= width - 43;
        if (found.offset.y() != 0 || !touches || (place != 1 && size.width() < 86))
            return {};
        return found;
    }

    Placement onScreen(QRect rect) const
    {
        rect.setHeight(qMin(rect.height(), qMax(rect.height() - room.height(), screen.height())));
        rect.setWidth(qMin(rect.width(), qMax(rect.width() - room.width(), screen.width())));
        const QPoint last(screen.x() + screen.width() - rect.width(),
                          screen.y() + screen.height() - rect.height());
        const QPoint at(qMax(screen.x(), qMin(rect.x(), last.x())),
                        qMax(screen.y(), qMin(rect.y(), last.y())));
        return {{}, QRect(at, rect.size()), at - rect.topLeft()};
    }
};

} // namespace

class TestFlyoutPlacement : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void generatedScenes()
    {
        QRandomGenerator random(20240611);
        const auto between = [&random](int low, int high) { return random.bounded(low, high + 1); };
        std::set<std::pair<int, int>> flips;
        for (int scene = 0; scene < 6000; ++scene) {
            const QRect available(between(-1500, 1500), between(-800, 800), between(150, 1900),
                                  between(120, 1200));
            const QRect target(between(available.left() - 60, available.right() + 30),
                               between(available.top() - 60, available.bottom() + 30),
                               between(1, scene % 5 ? 120 : 900), between(1, scene % 7 ? 40 : 700));
            Box box;
            box.size = scene % 3
                           ? QSize(between(2, 400), between(2, 300))
                           : QSize(between(60, 1200), scene % 2 ? between(400, 1300) : between(473, 476));
            box.preferred = box.size + QSize(26, between(0, 9) ? 26 : between(26, 300));
            const QSize loss = QSize(between(0, 300), between(0, 300)) * between(0, 1);
            box.smallest = (box.preferred - loss).expandedTo({1, 1});
            const QSize room = box.preferred.height() > 500 ? box.preferred - box.smallest : QSize(0, 0);
            const Oracle oracle{target, box.size, room, available.adjusted(15, 15, -15, -15)};
            for (int i = 0; i <= 12; ++i) {
                const Position wanted = i < 12 ? position(i / 3, i % 3) : Position();
                const Placement expected = i < 12 ? oracle.search(i / 3, i % 3) : oracle.centred();
                const Placement got = best(wanted, target, box, available);
                const QByteArray where = QByteArray::number(scene * 100 + i);
                QVERIFY2(got.position == expected.position && got.rect == expected.rect, where);
                QVERIFY2(got.offset == expected.offset, where);
                flips.insert({i, int(got.position)});
            }
        }
        QVERIFY(flips.size() > 120); // the scenes were worth their time
    }
};

QTEST_MAIN(TestFlyoutPlacement)
#include "tst_flyoutplacement.moc"
