#include "TestCase.h"

#include "containers/HalvedLayout.h"

#include <nvo/FlowLayout.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QProxyStyle>
#include <QRandomGenerator>
#include <QtTest>

using NVO::FlowLayout;
using NVO::HalvedLayout;

namespace {

/** Wishes what it is told. */
struct Box : public QWidget
{
    explicit Box(const QSize &wish, QWidget *parent = nullptr)
        : QWidget(parent)
        , hint(wish)
    {}
    QSize sizeHint() const override { return hint; }
    QSize minimumSizeHint() const override { return minimum; }
    bool hasHeightForWidth() const override { return area > 0; }
    int heightForWidth(int width) const override { return area / qMax(width, 1); }

    QSize hint;
    QSize minimum{0, 0};
    int area = 0;
};

struct SpacingStyle : public QProxyStyle
{
    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override
    {
        return metric == PM_LayoutHorizontalSpacing ? 13
               : metric == PM_LayoutVerticalSpacing ? 17
                                                    : QProxyStyle::pixelMetric(metric, option, widget);
    }
    int layoutSpacing(QSizePolicy::ControlType, QSizePolicy::ControlType, Qt::Orientation orientation,
                      const QStyleOption *, const QWidget *) const override
    {
        return orientation == Qt::Horizontal ? 21 : 23;
    }
};

/** Rows as a reader would make them: as many as fit beside each other, at least one. */
QVector<QRect> rows(const QVector<QSize> &sizes, const QRect &area, int spaceX, int spaceY, int *height)
{
    QVector<QRect> places;
    int y = area.y();
    for (int first = 0; first < sizes.size();) {
        int x = area.x();
        int rowHeight = 0;
        int i = first;
        for (; i < sizes.size(); ++i) {
            // The pixel at the right edge stays free.
            if (rowHeight > 0 && x + sizes[i].width() >= area.x() + area.width())
                break;
            places.append(QRect(QPoint(x, y), sizes[i]));
            x += sizes[i].width() + spaceX;
            rowHeight = qMax(rowHeight, sizes[i].height());
        }
        y += rowHeight + (i < sizes.size() ? spaceY : 0);
        first = i;
    }
    *height = y - area.y();
    return places;
}

} // namespace

class TestContainerLayouts : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void flowRows()
    {
        QRandomGenerator random(3);
        for (int round = 0; round < 300; ++round) {
            const int margin = random.bounded(20);
            const QSize space(random.bounded(15), random.bounded(15));
            const bool mirrored = random.bounded(2);
            QWidget window;
            window.setLayoutDirection(mirrored ? Qt::RightToLeft : Qt::LeftToRight);
            auto *layout = new FlowLayout(&window, margin, space.width(), space.height());
            QVector<QSize> sizes;
            QSize largest(0, 0);
            for (int i = random.bounded(25); i > 0; --i) {
                sizes.append(QSize(random.bounded(1, 120), random.bounded(1, 50)));
                auto *box = new Box(sizes.last());
                box->minimum = sizes.last() / 2;
                largest = largest.expandedTo(box->minimum);
                layout->addWidget(box);
            }
            const int width = random.bounded(2 * margin + 1, 500);
            int height = 0;
            const QRect area(margin, margin, width - 2 * margin, 1000 - 2 * margin);
            const QVector<QRect> places = rows(sizes, area, space.width(), space.height(), &height);
            QCOMPARE(layout->heightForWidth(width), height + 2 * margin);
            QCOMPARE(layout->sizeHint(), largest + QSize(2 * margin, 2 * margin));

            layout->setGeometry(QRect(0, 0, width, 1000));
            for (int i = 0; i < sizes.size(); ++i) {
                QRect place = QStyle::visualRect(window.layoutDirection(), area, places[i]);
                place.setLeft(qMax(place.left(), 0)); // Qt keeps all items inside to the left
                QCOMPARE(layout->itemAt(i)->geometry(), place);
            }
        }
    }

    void flowSpacings()
    {
        SpacingStyle style;
        QWidget window;
        window.setStyle(&style);
        FlowLayout flow(&window, 0, -1, -1);
        QCOMPARE(QPoint(flow.horizontalSpacing(), flow.verticalSpacing()), QPoint(13, 17));

        QWidget other;
        QHBoxLayout outer(&other);
        outer.setSpacing(4);
        auto *inner = new FlowLayout;
        outer.addLayout(inner);
        QCOMPARE(QPoint(inner->horizontalSpacing(), inner->verticalSpacing()), QPoint(4, 4));

        FlowLayout alone(0);
        QCOMPARE(QPoint(alone.horizontalSpacing(), alone.verticalSpacing()), QPoint(-1, -1));
        QWidget host;
        Box first({10, 10}, &host), second({10, 10}, &host), third({10, 10}, &host);
        for (Box *box : {&first, &second, &third}) {
            box->setStyle(&style);
            alone.addItem(new QWidgetItem(box));
        }
        alone.setGeometry(QRect(0, 0, 45, 500));
        QCOMPARE(second.pos(), QPoint(31, 0));
        QCOMPARE(third.pos(), QPoint(0, 33));
    }

    void flowItems()
    {
        const QPointer<Box> kept = new Box({10, 10});
        {
            FlowLayout flow(7, 1, 1);
            QCOMPARE(flow.heightForWidth(100), 14);
            QVERIFY(flow.hasHeightForWidth() && !flow.expandingDirections());
            flow.addItem(nullptr);
            flow.addItem(new QWidgetItem(kept));
            flow.addItem(new QSpacerItem(5, 5));
            for (const int index : {-1, 2})
                QVERIFY(!flow.itemAt(index) && !flow.takeAt(index));
            delete flow.takeAt(0);
            QCOMPARE(flow.count(), 1);
            flow.setContentsMargins(1, 2, 3, 4);
            QCOMPARE(flow.heightForWidth(100), 11);
        }
        QVERIFY(kept);
        delete kept;

        QWidget window;
        auto *flow = new FlowLayout(&window, 0, 0, 0);
        auto *box = new Box({10, 10});
        flow->addWidget(box);
        delete box;
        QCOMPARE(flow->count(), 0);
    }

    void halves_data()
    {
        QTest::addColumn<int>("leftState"); // 0: none, 1: hidden, 2: visible
        QTest::addColumn<int>("rightState");
        for (int left = 0; left < 3; ++left) {
            for (int right = 0; right < 3; ++right)
                QTest::addRow("%d %d", left, right) << left << right;
        }
    }

    void halves()
    {
        QFETCH(int, leftState);
        QFETCH(int, rightState);
        QRandomGenerator random(9);
        for (int round = 0; round < 40; ++round) {
            const bool mirrored = round % 2;
            QWidget window;
            window.setLayoutDirection(mirrored ? Qt::RightToLeft : Qt::LeftToRight);
            auto *layout = new HalvedLayout(&window);
            const QMargins margins(random.bounded(9), random.bounded(9), random.bounded(9),
                                   random.bounded(9));
            layout->setContentsMargins(margins);
            layout->setSpacing(random.bounded(20));
            const auto make = [&](int state) -> Box * {
                if (state == 0)
                    return nullptr;
                auto *box = new Box(QSize(random.bounded(30, 200), random.bounded(10, 60)));
                box->minimum = QSize(random.bounded(30), random.bounded(10));
                box->setMaximumSize(random.bounded(60, 400), random.bounded(60, 90));
                box->area = random.bounded(2) * random.bounded(20000);
                box->setSizePolicy(random.bounded(2) ? QSizePolicy::Expanding : QSizePolicy::Preferred,
                                   QSizePolicy::Preferred);
                box->setVisible(state == 2);
                return box;
            };
            Box *left = make(leftState);
            Box *right = make(rightState);
            layout->setWidgets(left, right);
            QCOMPARE(layout->count(), (left ? 1 : 0) + (right ? 1 : 0));
            QCOMPARE(layout->hasHeightForWidth(), (left && left->area) || (right && right->area));

            QVector<Box *> visible;
            if (leftState == 2)
                visible.append(left);
            if (rightState == 2)
                visible.append(right);
            const int gap = visible.size() == 2 ? layout->spacing() : 0;
            QSize minimum(0, 0), maximum(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX), hint(0, 0);
            Qt::Orientations directions;
            const int width = random.bounded(60, 500);
            const int half = (width - margins.left() - margins.right() - gap) / 2;
            int height = 0;
            for (const Box *box : visible) {
                minimum = minimum.expandedTo(box->minimum);
                maximum = maximum.boundedTo(box->maximumSize());
                hint = hint.expandedTo(box->hint.boundedTo(box->maximumSize()));
                if (box->sizePolicy().horizontalPolicy() == QSizePolicy::Expanding)
                    directions |= Qt::Horizontal;
                height = qMax(height, box->area ? qMin(box->heightForWidth(half), box->maximumHeight())
                                                : box->hint.height());
            }
            const QSize around(gap + margins.left() + margins.right(), margins.top() + margins.bottom());
            const auto whole = [&](const QSize &size) {
                return QSize(2 * size.width(), size.height()) + around;
            };
            QCOMPARE(layout->minimumSize(), whole(minimum));
            QCOMPARE(layout->maximumSize(), whole(maximum));
            QCOMPARE(layout->sizeHint(), whole(hint).boundedTo(whole(maximum)));
            QCOMPARE(layout->expandingDirections(), directions);
            if (visible.size() == 2) {
                window.setContentsMargins(margins); // heights count with those of the widget
                QCOMPARE(layout->heightForWidth(width), height);
                QCOMPARE(layout->minimumHeightForWidth(width), height);
                window.setContentsMargins(0, 0, 0, 0);
            }

            for (Box *box : visible)
                box->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
            const int high = random.bounded(40, 100);
            layout->setGeometry(QRect(7, 9, width, high));
            const int inner = high - margins.top() - margins.bottom();
            for (Box *box : visible) {
                const bool alone = visible.size() == 1;
                const QRect place(margins.left() + (!alone && box == right ? half + gap : 0), margins.top(),
                                  alone ? width - margins.left() - margins.right() : half, inner);
                QCOMPARE(box->geometry(),
                         mirrored ? QStyle::visualRect(Qt::RightToLeft, QRect(0, 0, width, high), place)
                                  : place);
            }
        }
    }

    void halvedFollowsChanges()
    {
        QWidget window;
        auto *layout = new HalvedLayout(&window);
        auto *left = new Box({50, 20}), *right = new Box({80, 30});
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setWidgets(left, right);
        window.resize(201, 40);
        window.show();
        QCOMPARE(right->geometry(), QRect(100, 0, 100, 40)); // one pixel is left over
        left->hide();
        right->hint = QSize(300, 30);
        right->updateGeometry();
        QCoreApplication::processEvents();
        QCOMPARE(right->geometry(), QRect(0, 0, 201, 40));
        QCOMPARE(layout->sizeHint(), QSize(600, 30));
    }

    void halvedWidgets()
    {
        QWidget window;
        auto *layout = new HalvedLayout(&window);
        Box foreign({10, 10});
        QTest::ignoreMessage(QtWarningMsg, "HalvedLayout has no addItem");
        layout->addItem(nullptr);
        layout->setWidgets(&window, nullptr); // its own widget cannot be inside
        QCOMPARE(layout->count(), 0);

        QPointer<Box> one = new Box({50, 20});
        layout->setWidgets(nullptr, one);
        QCOMPARE(layout->itemAt(1)->widget(), one);
        QVERIFY(!layout->itemAt(0) && !layout->itemAt(2) && !layout->itemAt(-1) && !layout->takeAt(2));
        QTest::ignoreMessage(QtWarningMsg, "Can't add parent widget to layout");
        layout->setWidgets(&foreign, nullptr);
        QVERIFY(one && !foreign.parentWidget());

        // The right one dies alone, which Qt does not find behind an empty place.
        delete one;
        QCOMPARE(layout->count(), 0);
        layout->setSpacing(3);
        QCOMPARE(layout->sizeHint(), QSize(0, 0) + layout->minimumSize());
        window.resize(100, 50);
        layout->setGeometry(QRect(0, 0, 100, 50));
        QCOMPARE(layout->heightForWidth(40), 0);
        QVERIFY(!layout->hasHeightForWidth());

        // Widgets that have left for another parent are deleted, and the same one does not come twice.
        QPointer<Box> gone = new Box({50, 20}), twice = new Box({60, 20});
        layout->setWidgets(gone, nullptr);
        QWidget other;
        gone->setParent(&other);
        layout->setWidgets(twice, twice);
        QVERIFY(!gone);
        QCOMPARE(layout->count(), 1);
        QLayoutItem *item = layout->takeAt(0);
        QCOMPARE(item->widget(), twice);
        QCOMPARE(layout->count(), 1);
        delete item;
        layout->invalidate();
        QCOMPARE(layout->sizeHint().height(), layout->contentsMargins().top() * 2);
    }
};

QTEST_MAIN(TestContainerLayouts)
#include "tst_containerlayouts.moc"
