#include "SlowPositions.h"
#include "TestCase.h"

#include "containers/ItemPositions.h"

#include <QRandomGenerator>
#include <QtTest>

using NVO::ItemPositions;

class TestItemPositions : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void agreesWithLoops_data()
    {
        QTest::addColumn<int>("lowestHeight");
        QTest::addColumn<int>("highestHeight");
        QTest::addColumn<int>("lowestSpacing");
        QTest::newRow("usual") << 20 << 90 << 0;
        QTest::newRow("overlapping") << 20 << 90 << -15;
        QTest::newRow("empty items") << 0 << 2 << 0;
        QTest::newRow("falling") << -40 << 60 << -20;
        QTest::newRow("huge") << 100000000 << 2000000000 << 0;
    }

    void agreesWithLoops()
    {
        QFETCH(int, lowestHeight);
        QFETCH(int, highestHeight);
        QFETCH(int, lowestSpacing);
        QRandomGenerator random(4711);
        for (int round = 0; round < 40; ++round) {
            ItemPositions ours;
            SlowPositions slow;
            const auto index = [&] { return random.bounded(slow.count() + 4) - 2; };
            const auto pixel = [&] {
                const qint64 top = slow.count() ? slow.at(random.bounded(slow.count())).y : 0;
                return top + random.bounded(-2, 3) * (random.bounded(3) ? 1 : highestHeight / 2);
            };
            for (int step = 0; step < 250; ++step) {
                const int choice = random.bounded(100);
                if (choice < 6) {
                    const int count = random.bounded(20) ? random.bounded(round % 4 ? 400 : 1400) : 0;
                    ours.resize(count ? count : -3);
                    slow.resize(count);
                } else if (choice < 8) {
                    slow.spacing = random.bounded(lowestSpacing, 20);
                    ours.setSpacing(slow.spacing);
                    slow.forget();
                } else if (choice < 10) {
                    slow.margin = random.bounded(60);
                    ours.setMarginTopBottom(slow.margin);
                    slow.forget();
                } else if (choice < 40) {
                    // Often several beside each other, as when a screen of items is shown.
                    const int first = index();
                    for (int i = first; i < first + random.bounded(1, 12); ++i) {
                        const int height = random.bounded(lowestHeight, highestHeight);
                        ours.setHeight(i, height);
                        slow.setHeight(i, height);
                        QCOMPARE(ours.top(i), slow.top(i));
                    }
                } else if (choice < 60) {
                    const int asked = index();
                    QCOMPARE(ours.top(asked), slow.top(asked));
                } else if (choice < 80) {
                    const qint64 asked = pixel();
                    QCOMPARE(ours.firstVisible(asked), slow.firstVisible(asked));
                } else {
                    const qint64 asked = pixel();
                    QCOMPARE(ours.firstBelow(asked), slow.firstBelow(asked));
                }
                QCOMPARE(ours.count(), slow.count());
                QCOMPARE(ours.averageHeight(), slow.average);
                QCOMPARE(ours.totalHeight(), slow.total());
            }
            for (int i = 0; i < slow.count(); ++i) {
                QCOMPARE(ours.height(i), slow.height(i));
                QCOMPARE(ours.top(i), slow.top(i));
            }
        }
    }

    /** Loops over all items would take minutes. */
    void jumpsAreCheap()
    {
        constexpr int count = 1000000;
        ItemPositions positions;
        positions.resize(count);
        for (int i = 0; i < 20000; ++i) {
            positions.setHeight(i % 1000, 20 + i % 70);
            const qint64 end = positions.top(count - 1);
            QCOMPARE(positions.firstBelow(end - 1), count - 1);
        }
    }
};

QTEST_MAIN(TestItemPositions)
#include "tst_itempositions.moc"
