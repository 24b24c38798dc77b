#include "TestCase.h"

#include <nvo/ShadowSimple.h>

#include <QGraphicsBlurEffect>
#include <QPainter>
#include <QtTest>

using namespace NVO;

namespace {

constexpr int hiddenCheck = 50; // milliseconds between two looks at a hidden target

/** Counts the events of one type that an object gets, and adds up what they have painted. */
class EventCounter : public QObject
{
public:
    EventCounter(QObject *object, QEvent::Type type)
        : m_type(type)
    {
        object->installEventFilter(this);
    }

    int count = 0;
    QRegion region;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == m_type;
        if (event->type() == QEvent::Paint)
            region += static_cast<QPaintEvent *>(event)->region();
        return false;
    }

private:
    QEvent::Type m_type;
};

QImage painted(QWidget &overlay)
{
    QImage image(overlay.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    overlay.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

/** Lets all paints happen that are due, and those that they ask for. */
void settle()
{
    QTest::qWait(2 * hiddenCheck);
}

bool hasShadow(QWidget &host)
{
    QWidget plain;
    plain.resize(host.size());
    return host.grab().toImage() != plain.grab().toImage();
}

void useAll(ShadowSimple &shadow, ShadowMode mode)
{
    for (const ShadowSide side : {ShadowLeft, ShadowTop, ShadowRight, ShadowBottom})
        shadow.useShadow(side, mode, true);
}

/** A shown window with a target that paints nothing itself. */
struct Scene
{
    Scene()
    {
        host.resize(100, 80);
        target.setGeometry(30, 20, 40, 30);
    }

    void show()
    {
        host.show();
        QVERIFY(QTest::qWaitForWindowExposed(&host));
        settle();
    }

    QWidget host;
    QWidget target{&host};
};

} // namespace

class TestShadowSimple : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void lines();
    void opacityOutOfRange();
    void dropShadow();
    void backFromDropShadow();
    void followsTheTarget();
    void noticesAHiddenTarget();
    void switchedOff();
    void placeAmongSiblings();
    void shownHostAndCoveringSibling();
    void strangersAndTheDead();
};

void TestShadowSimple::lines()
{
    constexpr int width = 7;
    constexpr double start = 0.6;
    constexpr double end = 0.1;
    constexpr int allSides = 15;
    for (int combination = 0; combination < 256; ++combination) {
        const int inner = combination & allSides;
        const int outer = combination / (allSides + 1);
        Scene scene;
        ShadowSimple shadow(&scene.target, &scene.host, width, start, end);
        for (const ShadowSide side : {ShadowLeft, ShadowTop, ShadowRight, ShadowBottom}) {
            shadow.useShadow(side, ShadowInner, inner & side);
            shadow.useShadow(side, ShadowOuter, outer & side);
        }

        QImage expected(scene.host.size(), QImage::Format_ARGB32_Premultiplied);
        expected.fill(Qt::transparent);
        QPainter painter(&expected);
        const QRect target = scene.target.geometry();
        for (int i = -width; i < width; ++i) {
            const int sides = i < 0 ? outer : inner;
            const int third = i < 0 ? -(-i / 3) : i / 3;
            const QRect frame = target.marginsAdded(QMargins(-i, -i, -i, -i));
            const QColor color(0, 0, 0, qRound(255 * (start + (end - start) * qAbs(i) / width)));
            for (const int side : {ShadowLeft, ShadowRight}) {
                const int y1 = target.top() + (sides & ShadowTop ? i : third);
                const int y2 = target.bottom() - (sides & ShadowBottom ? i : third);
                if (sides & side)
                    painter.fillRect(side == ShadowLeft ? frame.left() : frame.right(), y1, 1, y2 - y1 + 1,
                                     color);
            }
            for (const int side : {ShadowTop, ShadowBottom}) {
                const int x1 = target.left() + (sides & ShadowLeft ? i + 1 : third);
                const int x2 = target.right() - (sides & ShadowRight ? i + 1 : third);
                if (sides & side)
                    painter.fillRect(x1, side == ShadowTop ? frame.top() : frame.bottom(), x2 - x1 + 1, 1,
                                     color);
            }
        }
        QCOMPARE(painted(shadow), expected);
    }
}

void TestShadowSimple::opacityOutOfRange()
{
    Scene scene;
    ShadowSimple tooDark(&scene.target, &scene.host, 2, 7, 7);
    ShadowSimple noNumber(&scene.target, &scene.host, 2, qQNaN(), qQNaN());
    ShadowSimple noLines(&scene.target, &scene.host, INT_MIN, 1, 1);
    for (ShadowSimple *shadow : {&tooDark, &noNumber, &noLines})
        useAll(*shadow, ShadowOuter);
    QCOMPARE(painted(tooDark).pixelColor(28, 30), QColor(Qt::black));
    QCOMPARE(painted(noNumber).pixelColor(28, 30).alpha(), 0);
    QCOMPARE(painted(noLines).pixelColor(28, 30).alpha(), 0);
}

void TestShadowSimple::dropShadow()
{
    Scene scene;
    ShadowSimple shadow(&scene.target, &scene.host, 3, 1, 0);
    useAll(shadow, ShadowOuter);
    shadow.useDropShadow(6);
    auto *blur = qobject_cast<QGraphicsBlurEffect *>(shadow.graphicsEffect());
    QVERIFY(blur);
    scene.show();
    QVERIFY(hasShadow(scene.host));
    EventCounter paints(&shadow, QEvent::Paint);
    settle();
    QCOMPARE(paints.count, 0);

    blur->setEnabled(false); // to see what is blurred
    const QImage image = painted(shadow);
    const QRect filled = scene.target.geometry().translated(6, 6);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            QCOMPARE(image.pixelColor(x, y).alpha(), filled.contains(x, y) ? 100 : 0);
    }
}

void TestShadowSimple::backFromDropShadow()
{
    Scene scene;
    ShadowSimple shadow(&scene.target, &scene.host, 3, 1, 0);
    useAll(shadow, ShadowOuter);
    shadow.useDropShadow(6);
    scene.show();
    const QPointer<QGraphicsEffect> first = shadow.graphicsEffect();
    shadow.useDropShadow(0); // installs another one, which the next paint finds useless
    QVERIFY(!first);
    settle();
    QVERIFY(!shadow.graphicsEffect());
    QCOMPARE(scene.host.grab().toImage().pixelColor(29, 30).alphaF(), 1.0);

    // A blur that is taken off after the paint must not take a newer one with it.
    shadow.useDropShadow(0);
    scene.host.grab();
    shadow.useDropShadow(4);
    settle();
    QVERIFY(shadow.graphicsEffect());
}

void TestShadowSimple::followsTheTarget()
{
    Scene scene;
    ShadowSimple shadow(&scene.target, &scene.host, 4, 1, 0.2);
    useAll(shadow, ShadowOuter);
    useAll(shadow, ShadowInner);
    scene.show();

    EventCounter paints(&shadow, QEvent::Paint);
    settle();
    QCOMPARE(paints.count, 0); // it does not keep itself busy
    scene.target.setGeometry(10, 30, 60, 20);
    settle();
    QVERIFY(paints.count > 0);
    paints.count = 0;
    settle();
    QCOMPARE(paints.count, 0);

    scene.host.resize(140, 90);
    settle();
    QCOMPARE(shadow.geometry(), scene.host.rect());

    auto *inner = new QWidget(&scene.host);
    inner->setGeometry(10, 10, 100, 70);
    inner->show();
    scene.target.setParent(inner);
    scene.target.setGeometry(30, 20, 40, 30);
    scene.target.show();
    settle();
    const QImage image = painted(shadow);
    QCOMPARE(image.pixelColor(40, 45), QColor(Qt::black)); // the innermost line of the inside
    QCOMPARE(image.pixelColor(60, 45).alpha(), 0);
}

void TestShadowSimple::noticesAHiddenTarget()
{
    Scene scene;
    ShadowSimple shadow(&scene.target, &scene.host, 4, 1, 1);
    useAll(shadow, ShadowOuter);
    scene.show();
    QVERIFY(hasShadow(scene.host));

    EventCounter timers(&shadow, QEvent::Timer);
    settle();
    QCOMPARE(timers.count, 0);
    EventCounter paints(&shadow, QEvent::Paint);
    scene.target.hide();
    QTRY_VERIFY(timers.count > 0);
    QCOMPARE(paints.region, QRegion(scene.target.geometry().adjusted(-4, -4, 4, 4))); // wiped off
    QVERIFY(!hasShadow(scene.host));
    scene.target.show();
    settle();
    QVERIFY(hasShadow(scene.host));
    timers.count = 0;
    settle();
    QCOMPARE(timers.count, 0);
}

void TestShadowSimple::switchedOff()
{
    Scene scene;
    ShadowSimple shadow(&scene.target, &scene.host, 4, 1, 1);
    EventCounter paints(&shadow, QEvent::Paint);
    scene.show();
    QCOMPARE(paints.count, 1); // without sides it asks for nothing
    QVERIFY(!hasShadow(scene.host));
    useAll(shadow, ShadowInner);
    QVERIFY(hasShadow(scene.host));
    shadow.setShadowEnabled(false);
    EventCounter timers(&shadow, QEvent::Timer);
    scene.target.hide();
    settle();
    QCOMPARE(timers.count, 0); // nothing to wait for
    scene.target.show();
    QVERIFY(!hasShadow(scene.host));
    shadow.setShadowEnabled(true);
    QVERIFY(hasShadow(scene.host));
}

void TestShadowSimple::placeAmongSiblings()
{
    Scene scene;
    ShadowSimple lines(&scene.target, &scene.host, 4, 1, 1);
    ShadowSimple drop(&scene.target, &scene.host, 4, 1, 1);
    ShadowSimple otherLines(&scene.target, &scene.host, 4, 1, 1);
    useAll(lines, ShadowOuter);
    useAll(otherLines, ShadowOuter);
    drop.useDropShadow(5);
    QWidget sibling(&scene.host);
    QObject noWidget(&scene.host);
    scene.show();
    QCOMPARE(scene.host.children(),
             QObjectList({&drop, &scene.target, &sibling, &noWidget, &lines, &otherLines}));
    EventCounter paints(&lines, QEvent::Paint);
    settle();
    QCOMPARE(paints.count, 0);
}

void TestShadowSimple::shownHostAndCoveringSibling()
{
    Scene scene;
    scene.show();
    ShadowSimple shadow(&scene.target, &scene.host, 4, 1, 1);
    useAll(shadow, ShadowOuter);
    QVERIFY(shadow.isVisible());
    QVERIFY(shadow.testAttribute(Qt::WA_WState_Visible));
    QVERIFY(shadow.testAttribute(Qt::WA_TransparentForMouseEvents));
    QCOMPARE(shadow.geometry(), scene.host.rect());
    settle();
    QVERIFY(hasShadow(scene.host));

    // Nothing below an opaque widget is ever painted, so it must not lie on the overlay.
    Scene covered;
    ShadowSimple below(&covered.target, &covered.host, 4, 1, 1);
    useAll(below, ShadowOuter);
    QWidget cover(&covered.host);
    cover.setGeometry(covered.host.rect());
    cover.setAttribute(Qt::WA_OpaquePaintEvent);
    EventCounter paints(&below, QEvent::Paint);
    covered.show();
    QVERIFY(paints.count > 0);
    QCOMPARE(covered.host.children().last(), &below);
}

void TestShadowSimple::strangersAndTheDead()
{
    Scene scene;
    scene.show();
    QWidget stranger;
    stranger.show();
    ShadowSimple ofStranger(&stranger, &scene.host, 4, 1, 1);
    ShadowSimple ofNobody(nullptr, &scene.host, 4, 1, 1);
    ShadowSimple ofHost(&scene.host, &scene.host, 4, 1, 1);
    ShadowSimple onNobody(&scene.target, nullptr, 4, 1, 1);
    for (ShadowSimple *shadow : {&ofStranger, &ofNobody, &onNobody}) {
        useAll(*shadow, ShadowOuter);
        QCOMPARE(painted(*shadow).pixelColor(29, 30).alpha(), 0);
    }
    QVERIFY(!onNobody.isVisible());
    useAll(ofHost, ShadowInner);
    QCOMPARE(painted(ofHost).pixelColor(0, 40), QColor(Qt::black));

    auto *target = new QWidget(&scene.host);
    target->setGeometry(10, 10, 30, 30);
    ShadowSimple ofMortal(target, &scene.host, 4, 1, 1);
    useAll(ofMortal, ShadowOuter);
    settle(); // the timer of the hidden target runs
    delete target;
    settle();
    QCOMPARE(painted(ofMortal).pixelColor(9, 20).alpha(), 0);

    QWidget elsewhere;
    auto *host = new QWidget;
    auto *child = new QWidget(host);
    ShadowSimple moved(child, host, 4, 1, 1);
    useAll(moved, ShadowOuter);
    moved.setParent(&elsewhere);
    painted(moved);
    moved.useDropShadow(3);
    painted(moved);
    delete host;
    painted(moved);
    moved.show();
}

QTEST_MAIN(TestShadowSimple)
#include "tst_shadowsimple.moc"
