#include "TestCase.h"

#include <nvo/ShadowSimple.h>

#include <QAbstractEventDispatcher>
#include <QGraphicsBlurEffect>
#include <QPainter>
#include <QScreen>
#include <QtTest>

using namespace NVO;

namespace {

constexpr int allSides = 15;

struct Overlay : ShadowSimple
{
    Overlay(QWidget *target, QWidget *host, int width = 4, double startOpacity = 1, double endOpacity = 1)
        : ShadowSimple(target, host, width, startOpacity, endOpacity)
    {
        use(allSides, ShadowOuter);
    }

    void use(int sides, ShadowMode mode)
    {
        for (const ShadowSide side : {ShadowLeft, ShadowTop, ShadowRight, ShadowBottom})
            useShadow(side, mode, sides & side);
    }

    /** What it paints itself. */
    QImage image()
    {
        QImage image(size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        render(&image, QPoint(), QRegion(), DrawChildren);
        return image;
    }

    int alphaAt(int x, int y) { return image().pixelColor(x, y).alpha(); }

    /** Gives each timer of it its turn at once, and returns how many there are. */
    int runTimers()
    {
        const auto timers = QAbstractEventDispatcher::instance()->registeredTimers(this);
        for (const auto &timer : timers)
            timerEvent(std::make_unique<QTimerEvent>(timer.timerId).get());
        return timers.size();
    }

    int paints = 0;

    void paintEvent(QPaintEvent *event) override
    {
        ++paints;
        ShadowSimple::paintEvent(event);
    }
};

/** A window with black lines around a target that paints nothing itself. */
struct Scene
{
    Scene()
    {
        host.resize(100, 80);
        panel.setGeometry(10, 5, 85, 70);
        target.setGeometry(20, 15, 40, 30);
    }

    /** Whether the paints that are due come to an end, and leave on the screen what a paint of all does. */
    bool settles()
    {
        host.show();
        const bool exposed = QTest::qWaitForWindowExposed(&host);
        for (int i = 0; i < 8; ++i) {
            shadow.paints = 0;
            QCoreApplication::processEvents();
        }
        return exposed && shadow.paints == 0 && onScreen() == host.grab().toImage();
    }

    QImage onScreen() { return host.screen()->grabWindow(host.winId()).toImage(); }
    bool settlesWithShadow() { return settles() && onScreen().pixelColor(29, 30) == Qt::black; }
    bool settlesWithout() { return settles() && onScreen().pixelColor(29, 30) != Qt::black; }

    QWidget host;
    QWidget panel{&host};
    QWidget target{&panel};
    Overlay shadow{&target, &host};
};

} // namespace

class TestShadowSimple : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void lines();
    void dropShadowAndBack();
    void followsTheTargetAndSwitch();
    void placeAmongSiblings();
    void strangersAndTheDead();
};

void TestShadowSimple::lines()
{
    constexpr int width = 7;
    Scene scene;
    const QRect target(30, 20, 40, 30);
    Overlay shadow(&scene.target, &scene.host, width, 0.6, 0.1);
    for (int combination = 0; combination < 256; ++combination) {
        shadow.use(combination % 16, ShadowInner);
        shadow.use(combination / 16, ShadowOuter);
        QImage expected(scene.host.size(), QImage::Format_ARGB32_Premultiplied);
        expected.fill(Qt::transparent);
        QPainter painter(&expected);
        for (int i = -width; i < width; ++i) {
            const int sides = i < 0 ? combination / 16 : combination % 16;
            const QColor color(0, 0, 0, qRound(255 * (0.6 - 0.5 * qAbs(i) / width)));
            // How much shorter a line is at an end where it meets another side, or none.
            const auto inset = [&](int side, int extra) { return sides & side ? i + extra : i / 3; };
            const QRect high = target.adjusted(i, inset(ShadowTop, 0), -i, -inset(ShadowBottom, 0));
            const QRect wide = target.adjusted(inset(ShadowLeft, 1), i, -inset(ShadowRight, 1), -i);
            const QRect bars[] = {{high.topLeft(), high.bottomLeft()},
                                  {wide.topLeft(), wide.topRight()},
                                  {high.topRight(), high.bottomRight()},
                                  {wide.bottomLeft(), wide.bottomRight()}};
            for (int bar = 0; bar < 4; ++bar) {
                if (sides & 1 << bar)
                    painter.fillRect(bars[bar], color);
            }
        }
        QCOMPARE(shadow.image(), expected);
    }
    QCOMPARE(Overlay(&scene.target, &scene.host, 2, 7, 7).alphaAt(28, 30), 255);
    QCOMPARE(Overlay(&scene.target, &scene.host, 2, qQNaN(), qQNaN()).alphaAt(28, 30), 0);
    QCOMPARE(Overlay(&scene.target, &scene.host, INT_MIN).alphaAt(28, 30), 0);
}

void TestShadowSimple::dropShadowAndBack()
{
    Scene scene;
    Overlay &shadow = scene.shadow;
    shadow.useDropShadow(6);
    const QPointer<QGraphicsEffect> blur = shadow.graphicsEffect();
    QVERIFY(qobject_cast<QGraphicsBlurEffect *>(blur));
    blur->setEnabled(false); // to see what is blurred
    QVERIFY(scene.settles());
    scene.target.move(0, 25);
    QVERIFY(scene.settles());
    QImage expected(shadow.size(), QImage::Format_ARGB32_Premultiplied);
    expected.fill(Qt::transparent);
    QPainter(&expected).fillRect(16, 36, 40, 30, QColor(0, 0, 0, 100));
    QCOMPARE(shadow.image(), expected);

    scene.target.move(20, 15);
    shadow.useDropShadow(0); // installs another one, which the next paint finds useless
    QVERIFY(!blur && scene.settlesWithShadow() && !shadow.graphicsEffect());

    // A blur that is taken off after the paint must not take a newer one with it.
    shadow.useDropShadow(0);
    scene.host.grab();
    shadow.useDropShadow(4);
    QVERIFY(scene.settles() && shadow.graphicsEffect());
}

void TestShadowSimple::followsTheTargetAndSwitch()
{
    Scene scene;
    Overlay &shadow = scene.shadow;
    shadow.use(0, ShadowOuter);
    scene.host.show();
    QVERIFY(QTest::qWaitForWindowExposed(&scene.host));
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents();
    QCOMPARE(shadow.paints, 1); // without sides it asks for nothing
    shadow.use(allSides, ShadowOuter);
    shadow.update();
    QVERIFY(scene.settlesWithShadow());
    for (int round = 0; round < 2; ++round) {
        scene.target.setUpdatesEnabled(true);
        scene.target.hide();
        QVERIFY(scene.settlesWithout());
        scene.target.setUpdatesEnabled(false); // so that nothing else has the overlay painted
        scene.target.show();
        QCOMPARE(shadow.runTimers(), 1);
        QVERIFY(scene.settlesWithShadow());
    }
    shadow.setShadowEnabled(false);
    scene.target.hide();
    QVERIFY(scene.settlesWithout());
    QCOMPARE(shadow.runTimers(), 0); // nothing to wait for
    scene.target.show();
    QVERIFY(scene.settlesWithout());
    shadow.setShadowEnabled(true);
    QVERIFY(scene.settlesWithShadow());

    scene.target.setUpdatesEnabled(true);
    scene.target.setGeometry(40, 35, 40, 20);
    QVERIFY(scene.settlesWithout());
    scene.host.resize(140, 90);
    QVERIFY(scene.settles());
    QCOMPARE(shadow.geometry(), scene.host.rect());
}

void TestShadowSimple::placeAmongSiblings()
{
    Scene scene;
    // Nothing below an opaque widget is ever painted, so it must not lie on the overlay.
    QWidget cover(&scene.host);
    cover.setGeometry(scene.host.rect());
    cover.setAutoFillBackground(true);
    scene.shadow.resize(0, 0); // as under a host that has no size yet
    QVERIFY(scene.settlesWithShadow());

    Overlay drop(&scene.target, &scene.host);
    QVERIFY(drop.isVisible() && drop.testAttribute(Qt::WA_TransparentForMouseEvents));
    drop.useDropShadow(5);
    Overlay lines(&scene.target, &scene.host);
    QObject noWidget(&scene.host);
    QVERIFY(scene.settles());
    const QObjectList order{&drop, &scene.panel, &cover, &scene.shadow, &lines, &noWidget};
    QCOMPARE(scene.host.children(), order);
}

void TestShadowSimple::strangersAndTheDead()
{
    Scene scene;
    QVERIFY(scene.settles());
    QWidget stranger;
    stranger.show();
    for (QWidget *target : {&stranger, static_cast<QWidget *>(nullptr)})
        QCOMPARE(Overlay(target, &scene.host).alphaAt(29, 30), 0);
    QVERIFY(!Overlay(&scene.target, nullptr).isVisible());
    Overlay ofHost(&scene.host, &scene.host);
    ofHost.use(allSides, ShadowInner);
    QCOMPARE(ofHost.alphaAt(0, 40), 255);

    auto *mortal = new QWidget(&scene.host);
    mortal->hide();
    Overlay ofMortal(mortal, &scene.host);
    QVERIFY(scene.settles());
    delete mortal;
    for (const int timers : {1, 0})
        QCOMPARE(ofMortal.runTimers(), timers);

    QWidget elsewhere;
    auto *host = new QWidget;
    Overlay moved(new QWidget(host), host);
    moved.setParent(&elsewhere);
    QWidget sibling(&elsewhere);
    moved.image();
    QCOMPARE(elsewhere.children().last(), &sibling);
    delete host;
    moved.useDropShadow(3);
    moved.image();
    moved.show();
}

QTEST_MAIN(TestShadowSimple)
#include "tst_shadowsimple.moc"
