#include "EventCounter.h"
#include "TestCase.h"
#include "TestResources.h"

#include <nvo/Button.h>
#include <nvo/Css.h>
#include <nvo/Flyout.h>
#include <nvo/GraphicsEffect.h>

#include <QAccessible>
#include <QLayout>
#include <QPushButton>
#include <QRandomGenerator>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QtTest>

#include <memory>
#include <optional>

using NVO::Flyout;

namespace {

const QColor fill(0, 255, 0);
const QColor border(255, 0, 0);

struct Content : QWidget
{
    explicit Content(const QSize &size)
        : m_size(size)
    {}
    QSize sizeHint() const override { return m_size; }
    QSize minimumSizeHint() const override { return m_size; }
    void change(const QSize &size)
    {
        m_size = size;
        updateGeometry();
    }

private:
    QSize m_size;
};

/** A frameless window with one small widget in it. */
struct Window : QWidget
{
    explicit Window(const QPoint &pos)
        : QWidget(nullptr, Qt::FramelessWindowHint)
    {
        setGeometry(QRect(pos, QSize(60, 40)));
        target->setGeometry(10, 10, 41, 21);
        show();
    }
    QWidget *target = new QWidget(this);
};

QWidget *inner(const Flyout &flyout)
{
    return flyout.findChild<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
}

QRect globalRect(const QWidget &widget)
{
    return {widget.mapToGlobal(QPoint()), widget.size()};
}

QRect screenRect()
{
    return QGuiApplication::primaryScreen()->availableGeometry();
}

void settle()
{
    for (int i = 0; i < 5; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

} // namespace

class TestFlyout : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_theme.emplace(QMap<QString, QByteArray>{
            {"Flyout", "*[style=\"Normal\"] { color: #ff0000; background: #00ff00; }\n"
                       "*[style=\"Error\"] { color: #0000ff; background: #ffff00; }"},
            {"close", TestResources::png(16, 16, {0xff111111})}});
        NVO::Css::instance().reset();
    }
    void cleanup() { m_theme.reset(); }

    void picture()
    {
        // The box is filled and bordered in the colours of the sheet, its pointer ends at the target, and
        // what lies around it is transparent.
        Window window(screenRect().center() - QPoint(30, 20));
        const QRect target = globalRect(*window.target);
        for (const int edge : {0x10, 0x20, 0x40, 0x80, 0}) {
            for (const int place : edge ? QVector<int>{4, 2, 1} : QVector<int>{0}) {
                Flyout flyout(window.target, Flyout::Sticky, nullptr);
                flyout.setContent(new Content({72, 72}));
                qobject_cast<NVO::GraphicsEffect *>(inner(flyout)->graphicsEffect())->setEnabled(false);
                flyout.setPointerPosition(Flyout::PointerPositions(QFlag(edge | place)));
                flyout.show();
                settle();
                QCOMPARE(int(flyout.effectivePointerPosition()), edge | place);
                QCOMPARE(flyout.pointerOffset(), QPoint());
                QCOMPARE(inner(flyout)->size(), QSize(72 + 56, 72 + 56));
                QCOMPARE(flyout.size(), inner(flyout)->size() + QSize(10, 10));
                const QRect box = inner(flyout)->contentsRect();
                const qreal ratio = flyout.devicePixelRatioF();
                const QImage image = flyout.grab().toImage();
                const auto color = [&](QPoint at) {
                    return image.pixelColor((QPointF(at) * ratio).toPoint());
                };

                QCOMPARE(color(box.center()), fill);
                QCOMPARE(color(box.topLeft() + QPoint(5, 0)), border);
                QCOMPARE(color(box.bottomRight() - QPoint(0, 5)), border);
                QCOMPARE(color(box.topLeft() - QPoint(1, 1)).alpha(), 0);
                QCOMPARE(color(box.bottomRight() + QPoint(2, 2)).alpha(), 0);
                const int fromStart = place == 4 ? 43 : place == 2 ? 51 : 102 - 43;
                for (const int e : {0x10, 0x20, 0x40, 0x80}) {
                    const bool level = e & 0x30;
                    const QPoint out = level ? QPoint(0, e == 0x10 ? -1 : 1) : QPoint(e == 0x40 ? -1 : 1, 0);
                    const QPoint along = level ? QPoint(1, 0) : QPoint(0, 1);
                    const QPoint corner = e & 0x50 ? box.topLeft()
                                          : level  ? box.bottomLeft()
                                                   : box.topRight();
                    const QPoint base = corner + along * fromStart;
                    const bool here = e == edge;
                    QCOMPARE(color(base + out * 8), here ? fill : QColor(Qt::transparent));
                    QCOMPARE(color(base + out * 12).alpha() > 0, here);
                    QCOMPARE(color(base + out * 8 + along * 8).alpha(), 0);
                    QCOMPARE(color(base + out * 8 - along * 8).alpha(), 0);
                    // Beside the near edges the tip itself is on the target's edge; the box is 10 larger than
                    // what was placed, which the far edges show.
                    const QPoint tip = flyout.mapToGlobal(base + out * 13);
                    if (here && e & 0x50 && place == 4)
                        QVERIFY(target.contains(tip));
                }
            }
        }

        Flyout flyout(window.target, Flyout::Sticky, nullptr);
        flyout.setContent(new Content({80, 80}));
        flyout.setFlyoutStyle(Flyout::Error);
        QCOMPARE(flyout.property("style").toString(), QString("Error"));
        flyout.show();
        const QPoint middle = inner(flyout)->contentsRect().center() * flyout.devicePixelRatioF();
        QCOMPARE(flyout.grab().toImage().pixelColor(middle), QColor(255, 255, 0));
        flyout.setFlyoutStyle(Flyout::Normal);
        QCOMPARE(flyout.grab().toImage().pixelColor(middle), fill);

        // A pushed box keeps its pointer on the target.
        Window atEdge({screenRect().right() - 90, 100});
        flyout.setTargetWidget(atEdge.target);
        flyout.setContent(new Content({200, 60}));
        flyout.show();
        settle();
        QCOMPARE(flyout.effectivePointerPosition(), Flyout::PointerPositions(Flyout::TopLeft));
        QVERIFY(flyout.pointerOffset().x() < -10);
        const QRect at = globalRect(*atEdge.target);
        const QPoint tip = flyout.mapFromGlobal(QPoint(at.center().x(), at.bottom() + 5));
        QCOMPARE(flyout.grab().toImage().pixelColor(tip * flyout.devicePixelRatioF()), fill);
    }

    void draggedFlyoutStaysFlipped()
    {
        Window window({200, screenRect().bottom() - 80});
        EventCounter<Flyout> flyout(window.target, Flyout::Sticky, nullptr);
        flyout.setContent(new Content({80, 80}));
        flyout.show();
        settle();
        const auto bottomLeft = Flyout::PointerPositions(Flyout::BottomLeft);
        const auto topLeft = Flyout::PointerPositions(Flyout::TopLeft);
        QCOMPARE(flyout.pointerPosition(), topLeft);
        QCOMPARE(flyout.effectivePointerPosition(), bottomLeft);

        for (int step = 1; step <= 10; ++step) { // to where the wanted position would fit again
            const QPoint before = flyout.pos();
            window.move(window.pos() + QPoint(3, -9));
            QCOMPARE(flyout.pos(), before + QPoint(3, -9));
            settle();
            QCOMPARE(flyout.effectivePointerPosition(), bottomLeft);
        }
        flyout.counts.clear();
        settle();
        QCOMPARE(flyout.counts[QEvent::UpdateRequest], 0); // at rest
        flyout.update();
        settle();
        QCOMPARE(flyout.effectivePointerPosition(), topLeft);
        QVERIFY(flyout.counts[QEvent::UpdateRequest] <= 2);

        static_cast<Content *>(flyout.content())->change({120, 60});
        settle();
        QCOMPARE(inner(flyout)->size(), QSize(120 + 56, 60 + 56));
        flyout.setPointerPosition(Flyout::RightMiddle);
        QCOMPARE(flyout.effectivePointerPosition(), Flyout::PointerPositions(Flyout::RightMiddle));
    }

    void targetsOfAllKinds()
    {
        Window window({300, 200});
        Flyout byPoint(nullptr, QPoint(200, 150), {}, nullptr);
        Flyout byRect(window.target, QRect(180, 140, 41, 21), Flyout::Sticky, nullptr);
        for (Flyout *flyout : {&byPoint, &byRect}) {
            flyout->setContent(new Content({80, 80}));
            flyout->setPointerPosition(Flyout::CenterCenter);
            flyout->show();
            settle();
            QRect box(0, 0, 100, 100);
            box.moveCenter({200, 150});
            QCOMPARE(flyout->pos(), box.topLeft() - QPoint(13, 13));
            flyout->hide();
        }
        Flyout none(nullptr, Flyout::Sticky, nullptr);
        none.setGeometry(33, 44, 100, 100);
        none.show();
        settle();
        QCOMPARE(none.geometry(), QRect(33, 44, 100, 100));
    }

    void followsWhateverHappensToTheTarget()
    {
        // Random changes of a small world of widgets, with a model that knows only who lies in whom.
        QRandomGenerator random(77);
        for (int world = 0; world < 60; ++world) {
            QVector<QPointer<QWidget>> windows, panels;
            for (int i = 0; i < 3; ++i) {
                auto *window = new QWidget(nullptr, Qt::FramelessWindowHint);
                window->setGeometry(150 + 60 * i, 120, 200, 200);
                window->show();
                windows.append(window);
                for (int j = 0; j < 2; ++j) {
                    auto *panel = new QWidget(window);
                    panel->setGeometry(10, 10, 150, 150);
                    panel->show();
                    panels.append(panel);
                }
            }
            QPointer<QWidget> target = new QWidget(panels[0]);
            target->setGeometry(20, 20, 30, 20);
            target->show();
            const std::unique_ptr<Flyout> flyout(
                new Flyout(target, Flyout::Sticky, world % 2 ? windows[1].data() : nullptr));
            const QPointer<Flyout> alive(flyout.get());
            flyout->setContent(new Content({60, 60}));
            for (int step = 0; step < 40 && alive; ++step) {
                const QPointer<QWidget> panel = panels[random.bounded(panels.size())];
                const QPointer<QWidget> window = windows[random.bounded(windows.size())];
                switch (random.bounded(12)) {
                case 0:
                case 1:
                case 2:
                    if (panel && target) {
                        target->setParent(panel);
                        target->show();
                    }
                    break;
                case 3:
                case 4:
                case 5:
                    if (panel && window) {
                        panel->setParent(window);
                        panel->show();
                    }
                    break;
                case 6:
                    if (panel)
                        panel->setVisible(!panel->isVisible());
                    break;
                case 7:
                    if (window)
                        window->setVisible(!window->isVisible());
                    break;
                case 8:
                    if (step > 25 && window != windows[1])
                        delete window;
                    break;
                case 9:
                    if (step > 20)
                        delete panel;
                    break;
                case 10:
                    if (step > 20 && panel) {
                        delete target;
                        target = new QWidget(panel);
                        target->setGeometry(20, 20, 30, 20);
                        target->show();
                        flyout->setTargetWidget(target);
                    }
                    break;
                default:
                    flyout->setTargetWidget(nullptr);
                    flyout->setTargetWidget(target);
                }
                QCOMPARE(flyout->targetWidget(), target.data());
                if (!target || !target->isVisible()) {
                    QVERIFY(!flyout->isVisible());
                    continue;
                }
                flyout->show();
                const QPoint before = flyout->pos();
                for (QWidget *moving = target; moving; moving = moving->parentWidget()) {
                    moving->move(moving->pos() + QPoint(2, 1));
                    QVERIFY(flyout->isVisible());
                    moving->move(moving->pos() - QPoint(2, 1));
                    QCOMPARE(flyout->pos(), before);
                    moving->move(moving->pos() + QPoint(0, 1));
                    QCOMPARE(flyout->pos(), before + QPoint(0, 1));
                    moving->move(moving->pos() - QPoint(0, 1));
                }
                // Nobody else is listened to.
                for (const auto &other : panels + windows) {
                    if (other && !other->isAncestorOf(target) && other->isVisible()) {
                        other->hide();
                        QVERIFY(flyout->isVisible());
                        other->show();
                    }
                }
            }
            flyout->hide();
            qDeleteAll(QVector<QPointer<QWidget>>{windows[0], windows[2]});
            if (world % 2) { // the window that owns the flyout takes it along
                auto *owned = new Flyout(target, Flyout::Sticky, windows[1]);
                owned->show();
            }
            QWidget *last = windows[1];
            flyout->setParent(nullptr);
            delete last;
        }
    }

    void scrolledOutOfView()
    {
        QScrollArea area;
        area.setGeometry(200, 150, 200, 150);
        auto *page = new QWidget;
        page->resize(150, 2000);
        auto *target = new QWidget(page);
        target->setGeometry(20, 60, 40, 20);
        area.setWidget(page);
        area.show();
        Flyout flyout(target, Flyout::Sticky, nullptr);
        flyout.setContent(new Content({60, 60}));
        flyout.show();
        const QPoint before = flyout.pos();
        area.verticalScrollBar()->setValue(30);
        QVERIFY(flyout.isVisible());
        QCOMPARE(flyout.pos(), before - QPoint(0, 30));
        area.verticalScrollBar()->setValue(300);
        QVERIFY(!flyout.isVisible());
    }

    void closing()
    {
        Window window({300, 200});
        for (const bool sticky : {true, false}) {
            Flyout::FlyoutFlags flags = Flyout::CloseButton;
            flags.setFlag(Flyout::Sticky, sticky);
            Flyout flyout(window.target, flags, nullptr);
            flyout.setContent(new Content({80, 80}));
            auto *accessible = QAccessible::queryAccessibleInterface(&flyout);
            QCOMPARE(accessible->role(), sticky ? QAccessible::ToolTip : QAccessible::Dialog);
            flyout.setFlyoutStyle(Flyout::Error);
            QCOMPARE(accessible->role(), QAccessible::AlertMessage);
            QCOMPARE(flyout.windowType(), sticky ? Qt::ToolTip : Qt::Popup);
            const QRect box = QRect(13, 13, 110, 110);
            const auto pressed = [&flyout](const QPoint &at) {
                flyout.show();
                settle();
                QTest::mousePress(flyout.windowHandle(), Qt::LeftButton, {}, at);
                QTest::mouseRelease(flyout.windowHandle(), Qt::LeftButton, {}, at);
                return flyout.isVisible();
            };
            QVERIFY(pressed(box.topLeft()));
            QVERIFY(pressed(box.bottomRight()));
            QCOMPARE(pressed(box.topLeft() - QPoint(1, 0)), sticky);
            QCOMPARE(pressed(box.bottomRight() + QPoint(0, 1)), sticky);
            QCOMPARE(pressed({-50, 40}), sticky);

            flyout.show();
            QCOMPARE(flyout.close(), !sticky);
            QCOMPARE(flyout.isVisible(), sticky);
            auto *cross = flyout.findChild<NVO::Button *>();
            flyout.show();
            QCOMPARE(cross->geometry().topLeft(), QPoint(flyout.width() - 33 - cross->width(), 23));
            QVERIFY(!pressed(cross->geometry().center()));

            flyout.setLayoutDirection(Qt::RightToLeft);
            QCOMPARE(cross->geometry().topLeft(), QPoint(23, 23));
        }

        // A popup above goes first, even one that refuses to close.
        Flyout below(window.target, {}, nullptr);
        below.setContent(new Content({80, 80}));
        below.show();
        struct Stubborn : QWidget
        {
            Stubborn()
                : QWidget(nullptr, Qt::Popup)
            {}
            void closeEvent(QCloseEvent *event) override { event->ignore(); }
        } stubborn;
        stubborn.show();
        QMouseEvent press(QEvent::MouseButtonPress, {50, 50}, below.mapToGlobal({50, 50}), Qt::LeftButton,
                          Qt::LeftButton, {});
        QCoreApplication::sendEvent(&below, &press);
        QVERIFY(!stubborn.isVisible());
        QVERIFY(below.isVisible());
    }

    void deaths()
    {
        Window window({300, 200});
        QPointer<Flyout> flyout = new Flyout(window.target, Flyout::CloseButton, nullptr);
        QVERIFY(!flyout->deleteOnClose());
        flyout->setDeleteOnClose(true);
        flyout->show();
        flyout->hide();
        settle();
        QVERIFY(flyout);
        flyout->show();
        flyout->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!flyout);

        // Inside the signal of its own cross, and of its content.
        flyout = new Flyout(window.target, Flyout::CloseButton, nullptr);
        flyout->show();
        auto *cross = flyout->findChild<NVO::Button *>();
        connect(cross, &QAbstractButton::clicked, cross, [&] { delete flyout; });
        cross->click();
        QVERIFY(!flyout);
        flyout = new Flyout(window.target, {}, nullptr);
        QPointer<QPushButton> button = new QPushButton;
        flyout->setContent(button);
        connect(button, &QAbstractButton::clicked, flyout, [&] { flyout->setContent(new Content({9, 9})); });
        flyout->show();
        button->click();
        QVERIFY(!button);
        QVERIFY(flyout->content());
        delete flyout->content();
        QVERIFY(!flyout->content());
        settle();

        // What must not become content is left alone; a target inside the flyout is no reason to run away.
        flyout->setContent(flyout);
        QVERIFY(!flyout->content());
        auto *content = new Content({80, 80});
        flyout->setContent(content);
        flyout->setTargetWidget(content);
        flyout->show();
        settle();
        delete flyout;

        // A showing that ends in deletion.
        auto *deadly = new EventCounter<Content>(QSize(50, 50));
        flyout = new Flyout(window.target, {}, nullptr);
        flyout->setContent(deadly);
        deadly->deadly = QEvent::Show;
        deadly->victim = window.target;
        flyout->show();
        QVERIFY(!flyout->targetWidget());
        QVERIFY(!flyout->isVisible());
        delete flyout;
    }

private:
    std::optional<TestResources> m_theme;
};

QTEST_MAIN(TestFlyout)
#include "tst_flyout.moc"
