#include "EventCounter.h"
#include "TestCase.h"
#include "TestResources.h"

#include <nvo/Button.h>
#include <nvo/Flyout.h>
#include <nvo/GraphicsEffect.h>

#include <QtTest>
#include <QtWidgets>
#include <qpa/qplatformscreen.h>
#include <qpa/qwindowsysteminterface.h>

using NVO::Flyout;

namespace {

struct Content : QWidget
{
    explicit Content(int width, int height = 60)
        : hint(width, height)
    {}
    QSize sizeHint() const override { return hint; }
    QSize hint;
};

QWidget *child(QWidget *parent, const QRect &geometry)
{
    auto *widget = new QWidget(parent, parent ? Qt::Widget : Qt::FramelessWindowHint);
    widget->setGeometry(geometry);
    widget->show();
    return widget;
}

/** A window with one small widget in it. */
struct Window : QWidget
{
    explicit Window(const QPoint &pos)
        : QWidget(nullptr, Qt::FramelessWindowHint)
    {
        setGeometry({pos, QSize(60, 40)});
        show();
    }
    QWidget *target = child(this, {10, 10, 41, 21});
};

struct OtherScreen : QPlatformScreen
{
    QRect geometry() const override { return {800, 300, 1000, 400}; }
    int depth() const override { return 32; }
    QImage::Format format() const override { return QImage::Format_RGB32; }
};

QRect primaryScreen()
{
    return QGuiApplication::primaryScreen()->availableGeometry();
}

} // namespace

class TestFlyout : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void picture_data()
    {
        QTest::addColumn<int>("position");
        QTest::addColumn<int>("fromEdge");
        for (int i = 0; i < 12; ++i)
            QTest::addRow("%d", i) << (0x10 << i / 3 | 4 >> i % 3) << 200;
        QTest::newRow("0") << 0 << 200;
        QTest::newRow("pushed") << 0x14 << 100;
    }
    void picture()
    {
        // Box and pointer are filled and bordered in the colours of the sheet; the rest is transparent.
        QFETCH(int, position);
        QFETCH(int, fromEdge);
        Window window({primaryScreen().width() - fromEdge - 30, primaryScreen().height() / 2 - 20});
        Flyout flyout(window.target, Flyout::Sticky, nullptr);
        flyout.setContent(new Content(112, 72));
        QGraphicsEffect *shadow = flyout.content()->parentWidget()->graphicsEffect();
        static_cast<NVO::GraphicsEffect *>(shadow)->setEnabled(false);
        flyout.setPointerPosition(Flyout::PointerPositions(QFlag(position)));
        flyout.show();
        QTest::qWait(10);
        QCOMPARE(int(flyout.effectivePointerPosition()), position);
        const int pushed = -flyout.pointerOffset().x();
        QCOMPARE(pushed > 0, fromEdge == 100);
        QCOMPARE(flyout.size(), QSize(178, 138));
        const QRect box(0, 0, 142, 102);
        const bool level = position & 0x30;
        const int length = level ? box.width() : box.height();
        const int fromStart = pushed + (position & 4 ? 43 : position & 2 ? length / 2 : length - 43);
        const QImage image = flyout.grab().toImage();
        for (int i = 0; i < 178 * 138; ++i) {
            // In the box; how far outwards from the edge, and with that sideways from the pointer's middle.
            const QPoint at(i % 178 - 13, i / 178 - 13);
            const int across = level ? at.y() : at.x();
            const int out = position & 0x50 ? -across : across - (level ? box.bottom() : box.right());
            const int away = out + qAbs((level ? at.x() : at.y()) - fromStart);
            const bool pointed = position && out >= 0;
            const bool corner = at.x() % box.right() == 0 && at.y() % box.bottom() == 0;
            const QColor color = image.pixelColor((at + QPoint(13, 13)) * flyout.devicePixelRatio());
            const QByteArray where = QByteArray::number(at.x()) + ' ' + QByteArray::number(at.y());
            if (box.adjusted(1, 1, -1, -1).contains(at) || (pointed && away < 11))
                QVERIFY2(color == QColor(0, 255, 0), where);
            else if (!corner && !(pointed && away <= 15)) // both are drawn soft
                QVERIFY2(box.contains(at) ? color == QColor(255, 0, 0) : color.alpha() == 0, where);
        }
        flyout.setFlyoutStyle(Flyout::Error);
        QCOMPARE(QAccessible::queryAccessibleInterface(&flyout)->role(), QAccessible::AlertMessage);
        QCOMPARE(flyout.grab().toImage().pixelColor(image.rect().center()), QColor(255, 255, 0));
    }

    void draggedFlyoutStaysFlipped()
    {
        Window window({primaryScreen().right() - 150, primaryScreen().bottom() - 80});
        EventCounter<Flyout> flyout(window.target, Flyout::Sticky, nullptr);
        auto *content = new EventCounter<Content>(200);
        flyout.setContent(content);
        flyout.show();
        QTest::qWait(10);
        flyout.counts.clear();
        for (int step = 0; step < 10; ++step) { // to where the wanted position would fit again
            QCOMPARE(int(flyout.effectivePointerPosition()), int(Flyout::BottomLeft));
            const QPoint before = flyout.pos();
            content->counts.clear();
            window.move(window.pos() + QPoint(step % 2, -9));
            QCOMPARE(flyout.pos(), before + QPoint(0, -9)); // along the edge of the screen
            QTest::qWait(10);
            QCOMPARE(content->counts[QEvent::Paint] > 0, step % 2 == 1); // when the pointer slides
        }
        flyout.update();
        QTest::qWait(10);
        QCOMPARE(int(flyout.effectivePointerPosition()), int(Flyout::TopLeft));
        QVERIFY(flyout.counts[QEvent::UpdateRequest] <= 7);
        content->hint = {120, 50};
        content->updateGeometry();
        QTest::qWait(10);
        QCOMPARE(flyout.size(), QSize(120 + 66, 50 + 66));
        flyout.setPointerPosition(Flyout::RightMiddle);
        QCOMPARE(int(flyout.effectivePointerPosition()), int(Flyout::RightMiddle));
        window.target->move(window.width(), 0);
        QVERIFY(!flyout.isVisible());
    }

    void targetsOfAllKinds()
    {
        Window window({300, 200});
        Flyout byPoint(nullptr, QPoint(200, 150), {}, nullptr);
        Flyout byRect(window.target, QRect(180, 140, 41, 21), Flyout::Sticky, nullptr);
        Flyout none(nullptr, {}, nullptr), itself(nullptr, {}, nullptr), inside(nullptr, {}, nullptr);
        itself.setTargetWidget(&itself);
        for (Flyout *flyout : {&byPoint, &byRect, &none, &itself, &inside}) {
            flyout->setContent(new Content(80, 80));
            flyout->setPointerPosition(Flyout::CenterCenter);
            inside.setTargetWidget(inside.content());
            flyout->move(3, 4);
            flyout->show();
            QTest::qWait(10);
            const bool placed = flyout == &byPoint || flyout == &byRect;
            QCOMPARE(flyout->pos(), placed ? QPoint(200 - 49 - 13, 150 - 49 - 13) : QPoint(3, 4));
            flyout->hide();
        }
        none.setTargetWidget(inside.content()); // each points at the other's content
        inside.setTargetWidget(none.content());
        none.show();
        inside.show();
        none.move(50, 50);
        QVERIFY(!none.windowHandle()->transientParent() != !inside.windowHandle()->transientParent());
    }

    void otherScreen()
    {
        auto *screen = new OtherScreen;
        QWindowSystemInterface::handleScreenAdded(screen);
        const QRect area = screen->screen()->availableGeometry();
        Window window(area.bottomRight() - QPoint(100, 60));
        Flyout flyout(window.target, Flyout::Sticky, nullptr);
        flyout.setContent(new Content(72, 72));
        const auto shownOn = [&flyout](const QRect &there) {
            flyout.show();
            return there.contains(flyout.geometry().adjusted(13, 13, -23, -23));
        };
        QVERIFY(shownOn(area));
        QCOMPARE(flyout.size(), QSize(138, 138));
        static_cast<Content *>(flyout.content())->hint = {72, 1000};
        flyout.show();
        QCOMPARE(flyout.geometry().bottom(), area.bottom());
        flyout.setContent(nullptr);
        window.hide();
        window.windowHandle()->setScreen(screen->screen());
        window.move(area.bottomRight()); // and so the target lies on no screen
        window.show();
        QVERIFY(shownOn(area));
        QWindowSystemInterface::handleScreenRemoved(screen);
        QVERIFY(shownOn(primaryScreen()));
    }

    void followsWhateverHappensToTheTarget()
    {
        // Random changes of a small world of widgets.
        QRandomGenerator random(77);
        for (int world = 0; world < 60; ++world) {
            QVector<QPointer<QWidget>> windows, panels;
            for (int i = 0; i < 6; ++i) {
                if (i < 3)
                    windows.append(child(nullptr, {150 + 60 * i, 120, 200, 200}));
                panels.append(child(windows[i % 3], {10, 10, 150, 150}));
            }
            QPointer<QWidget> target = child(panels[0], {20, 20, 30, 20});
            Flyout flyout(target, Flyout::Sticky, nullptr);
            flyout.setContent(new Content(60));
            for (int step = 0; step < 40; ++step) {
                const QPointer<QWidget> panel = panels[random.bounded(6)];
                const QPointer<QWidget> window = windows[random.bounded(3)];
                const int choice = random.bounded(8);
                QWidget *changed = choice < 2 ? target : choice < 5 ? panel : window;
                QWidget *parent = choice < 2 ? panel : window;
                if (choice < 4 && changed && parent) {
                    changed->setParent(parent);
                    changed->show();
                } else if (choice < 6 && changed) {
                    changed->setVisible(changed->isHidden());
                } else if (choice == 6 && step > 20) {
                    delete (step % 3 == 0 ? target : step % 3 == 1 ? panel : window);
                } else {
                    if (!target && panel)
                        target = child(panel, {20, 20, 30, 20});
                    flyout.setTargetWidget(nullptr);
                    flyout.setTargetWidget(target);
                }
                QCOMPARE(flyout.targetWidget(), target.data());
                if (!target || !target->isVisible()) {
                    QVERIFY(!flyout.isVisible());
                    continue;
                }
                flyout.show();
                for (QWidget *moving = target; moving; moving = moving->parentWidget()) {
                    const QPoint before = flyout.pos();
                    moving->move(moving->pos() + QPoint(0, 1));
                    QCOMPARE(flyout.pos(), before + QPoint(0, 1));
                    moving->move(moving->pos() - QPoint(0, 1));
                }
                for (const auto &other : panels + windows) { // nobody else is listened to
                    if (other && !other->isAncestorOf(target) && other->isVisible()) {
                        other->hide();
                        QVERIFY(flyout.isVisible());
                        other->show();
                    }
                }
            }
            qDeleteAll(windows);
            QVERIFY(!flyout.isVisible() && !flyout.targetWidget());
        }
    }

    void deaths()
    {
        Window window({300, 200}), other({100, 200});
        QPointer<Flyout> flyout;
        connect(window.target, &QObject::destroyed, this, [&] { flyout->setTargetWidget(other.target); });
        flyout = new Flyout(window.target, Flyout::CloseButton, nullptr);
        auto *cross = flyout->findChild<NVO::Button *>();
        connect(cross, &QAbstractButton::clicked, cross, [&] { delete flyout; });
        cross->click();
        QVERIFY(!flyout);
        flyout = new Flyout(window.target, {}, nullptr);
        QPointer<QPushButton> button = new QPushButton;
        flyout->setContent(button);
        connect(button, &QAbstractButton::clicked, flyout, [&] { flyout->setContent(new QWidget); });
        button->click();
        QVERIFY(!button && flyout->content());
        delete flyout->content();
        QWidget *kept = new QWidget;
        flyout->setContent(kept);
        kept->setParent(&window); // and so is the window's
        flyout->setContent(nullptr);
        flyout->setContent(flyout);
        QVERIFY(!flyout->content());
        flyout->setContent(kept);
        QCOMPARE(flyout->content(), kept);
        // A showing in which the target dies, whose own signal has found a new one.
        auto *deadly = new EventCounter<Content>(50);
        deadly->deadly = QEvent::Show;
        deadly->victim = window.target;
        flyout->setContent(deadly);
        flyout->setDeleteOnClose(true);
        flyout->show();
        QVERIFY(flyout->isVisible());
        delete other.target;
        QTest::qWait(10);
        QVERIFY(flyout && !flyout->isVisible());
        flyout->show();
        flyout->close();
        QTest::qWait(10);
        QVERIFY(!flyout);
    }

private:
    TestResources m_theme{{{"Flyout", "*[style=\"Normal\"] { color: #ff0000; background: #00ff00; }\n"
                                      "*[style=\"Error\"] { color: #0000ff; background: #ffff00; }"},
                           {"close", TestResources::png(16, 16, {0xff111111})}}};
};

QTEST_MAIN(TestFlyout)
#include "tst_flyout.moc"
