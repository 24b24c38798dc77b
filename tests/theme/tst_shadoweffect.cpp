#include "Guards.h"
#include "TestCase.h"
#include "theme/ShadowEffect.h"

#include <nvo/GraphicsEffect.h>

#include <QBackingStore>
#include <QGraphicsRectItem>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QLabel>
#include <QRandomGenerator>
#include <QtTest>

using namespace NVO;

namespace {

constexpr QImage::Format format = QImage::Format_ARGB32_Premultiplied;

const qreal ratios[] = {1, 1.5, 2};

const ShadowParameters parameterSets[] = {
    {3, 3, 12, true, 20},  {1, 2, 13, true, 4},   {4, 4, 3, false, 14},   {5, 2, 15, true, 30},
    {2, 5, 15, false, 60}, {3, 3, 1, true, 20},   {3, 3, 2, true, 20},    {3, 3, 4, true, 20},
    {3, 3, 8, true, 20},   {3, 3, 0, true, 20},   {3, 2, 1, false, 20},   {2, 3, 2, false, 20},
    {3, 3, 12, false, 20}, {0, 3, 15, true, 20},  {3, 0, 15, true, 20},   {0, 0, 15, true, 20},
    {3, 3, 15, true, 0},   {3, 3, 15, true, 150}, {3, 3, 15, false, 220}, {-2, 3, 15, true, 20},
    {3, 3, 15, true, -40}, {36, 1, 9, true, 90},
};
const ShadowParameters &classic = parameterSets[0];
const ShadowParameters &modern = parameterSets[1];
const ShadowParameters &sunken = parameterSets[2];

/**
 * The shadow in \a source, or that of \a rect on an image as large, pixel by pixel. The rectangle casts that
 * of its pixels, but its diagonals are as long in all directions and end one step earlier.
 */
QImage slowShadow(const ShadowParameters &p, qreal r, const QImage &source, const QRect *rect = nullptr)
{
    const auto reach = [&](bool on, int side, int extent) { return on && p.sides & side ? extent * r : 0; };
    const int dxMin = qFloor(-reach(true, p.outer ? ShadowRight : ShadowLeft, p.extentX));
    const int dyMin = qFloor(-reach(true, p.outer ? ShadowBottom : ShadowTop, p.extentY));
    const int dxMax = qCeil(reach(p.outer, ShadowLeft, p.extentX));
    const int dyMax = qCeil(reach(p.outer, ShadowTop, p.extentY));
    const int longest = std::max({-dxMin, dxMax + 1, -dyMin, dyMax + 1}) - 1;
    const int peak = 255 * p.percent / 100;

    const QImage alphas = source.convertToFormat(QImage::Format_Alpha8);
    QImage shadow(source.size(), format);
    shadow.fill(Qt::transparent);
    const auto found = [&](int x, int y, bool opaque) {
        return alphas.valid(x, y)
               && (rect ? rect->contains(x, y) : alphas.constScanLine(y)[x] >= 128) == opaque;
    };
    for (int i = 0; i < source.width() * source.height() && (p.outer || !rect); ++i) {
        const int x = i % source.width();
        const int y = i / source.width();
        int nearest = INT_MAX;
        bool diagonal = !p.outer;
        for (int dy = dyMin; dy <= dyMax && found(x, y, !p.outer); ++dy) {
            for (int dx = dxMin; dx <= dxMax; ++dx) {
                if (found(x + dx, y + dy, p.outer)) {
                    nearest = qMin(nearest, dx * dx + dy * dy);
                    diagonal |= !rect && qAbs(dx) == qAbs(dy);
                }
            }
        }
        for (int k = -longest; rect && nearest < INT_MAX && k <= longest; ++k)
            diagonal |= (k < 0 ? dxMin < 0 : dxMax > 0)
                        && ((dyMin < 0 && found(x + k, y - qAbs(k), true))
                            || (dyMax > 0 && found(x + k, y + qAbs(k), true)));
        if (nearest == INT_MAX || !diagonal)
            continue;
        const int alpha = qRound(peak - (std::sqrt(nearest) - 1) * peak / (r * qMax(p.extentX, p.extentY)));
        if (alpha >= 1 && alpha <= 255)
            reinterpret_cast<QRgb *>(shadow.scanLine(y))[x] = qRgba(0, 0, 0, alpha);
    }
    return shadow;
}

QRect castingRect(const QSize &widget, const QRect &part, const QSize &image, qreal r)
{
    const auto scaled = [r](int length) { return qRound(length * r); };
    const QSize whole(scaled(widget.width()), scaled(widget.height()));
    const QRect rect(scaled(part.x()), scaled(part.y()), scaled(part.width()), scaled(part.height()));
    const QPoint offset((image.width() - whole.width()) / 2, (image.height() - whole.height()) / 2);
    return (part.isNull() ? QRect(QPoint(), whole) : rect).translated(offset) & QRect(QPoint(), image);
}

/** The same effect as the one under test, without any haste. */
struct SlowEffect : GraphicsEffect
{
    SlowEffect(const ShadowParameters &parameters, int sourceShape)
        : p(parameters)
        , shape(sourceShape)
    {}

    QRectF boundingRectFor(const QRectF &rect) const override
    {
        return rect.adjusted(-p.extentX, -p.extentY, p.extentX, p.extentY);
    }

    void draw(QPainter *painter) override
    {
        ++draws;
        QPoint offset;
        const QPixmap pixmap = sourcePixmap(Qt::DeviceCoordinates, &offset, PadToEffectiveBoundingRect);
        const qreal r = qGuiApp->devicePixelRatio();
        const QRect part = shape == ShadowOfPart ? partialRect() : QRect();
        const QRect rect = castingRect(sourceBoundingRect().size().toSize(), part, pixmap.size(), r);
        QImage shadow = slowShadow(p, r, pixmap.toImage(), shape == ShadowOfPixels ? nullptr : &rect);
        shadow.setDevicePixelRatio(pixmap.devicePixelRatio());
        const QTransform transform = painter->worldTransform();
        painter->setWorldTransform(QTransform());
        painter->drawPixmap(offset, pixmap);
        painter->drawImage(offset, shadow);
        painter->setWorldTransform(transform);
    }

    const ShadowParameters p;
    const int shape;
    int draws = 0;
};

template <typename Effect>
GraphicsEffect *create()
{
    return new Effect;
}

QImage randomImage(QRandomGenerator &random, const QSize &size, int kind)
{
    QImage image(size, format);
    const QPoint dot(random.bounded(size.width()), random.bounded(size.height()));
    const QRect block = image.rect().adjusted(random.bounded(4), 3, -random.bounded(4), -random.bounded(8));
    for (int i = 0; i < size.width() * size.height(); ++i) {
        const QPoint p(i % size.width(), i / size.width());
        const int noise = random.bounded(256);
        const bool inBlock = block.contains(p) && p != dot;
        const int alphas[] = {0, 255, p == dot ? 128 : 0, noise, noise < 6 ? 128 : 127, inBlock ? 255 : 0};
        image.setPixelColor(p, QColor(90, 160, 250, alphas[kind]));
    }
    return image;
}

/** A picture of a widget with \a effect; \a zoom is done by the view that the painter has. */
QImage rendered(QGraphicsEffect *effect, const QRect &geometry, qreal ratio, int zoom)
{
    QRandomGenerator random(17);
    QWidget host;
    QLabel label(&host);
    label.setGeometry(geometry);
    label.setPixmap(QPixmap::fromImage(randomImage(random, {70, 24}, 5)));
    label.setGraphicsEffect(effect);
    QImage image(QSize(120, 60) * ratio, format);
    image.setDevicePixelRatio(ratio);
    image.fill(QColor(240, 230, 220));
    QPainter painter(&image);
    painter.setWindow(painter.window().adjusted(0, 0, zoom, zoom));
    host.render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

void compareRendered(GraphicsEffect *(*createEffect)(), const ShadowParameters &parameters, int shape,
                     const QRect &part = QRect())
{
    for (const qreal ratio : ratios) {
        for (const QRect &geometry : {QRect(7, 5, 63, 40), QRect(-9, -3, 140, 50)}) {
            for (const int zoom : {0, 40}) {
                GraphicsEffect *effect = createEffect();
                auto *slow = new SlowEffect(parameters, shape);
                QVERIFY(!effect->parent() && effect->enabled() && effect->partialRect().isNull());
                QCOMPARE(effect->boundingRectFor(geometry), slow->boundingRectFor(geometry));
                effect->setPartialRect(part);
                slow->setPartialRect(part);
                QCOMPARE(rendered(effect, geometry, ratio, zoom), rendered(slow, geometry, ratio, zoom));
            }
        }
    }
}

} // namespace

class TestShadowEffect : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void likeTheSlowShadow();
    void renderedLikeTheSlowEffect();
    void repaintedOnScreen();
    void graphicsItemsAndSwitching();
};

void TestShadowEffect::likeTheSlowShadow()
{
    QRandomGenerator random(15);
    for (const ShadowParameters &parameters : parameterSets) {
        ShadowRenderer ofPixels(parameters);
        ShadowRenderer ofRect(parameters);
        for (int i = 0; i < 90; ++i) {
            const qreal ratio = ratios[i / 30];
            const int kind = i % 6;
            // The last is high enough for pieces of their own beside the top and the bottom.
            const QSize size = QVector<QSize>{{1, 1}, {63, 9}, {64, 7}, {65, 28}, {131, 30}}[i / 6 % 5];
            const QImage source = randomImage(random, size, kind);
            // Another format is a matter of the platform.
            const QImage given = kind == 4 ? source.convertToFormat(QImage::Format_RGBA64) : source;
            QCOMPARE(ofPixels.shadowOfPixels(given, ratio).whole(), slowShadow(parameters, ratio, source));

            const QSize widget(random.bounded(size.width()), random.bounded(size.height()));
            const QRect anywhere(random.bounded(-20, 40), random.bounded(-20, 30), random.bounded(-6, 40),
                                 random.bounded(-6, 30));
            const QRect part = kind % 3 ? anywhere : QRect();
            const QRect rect = castingRect(widget, part, size, ratio);
            QCOMPARE(ShadowRenderer::castingRect(widget, part, size, ratio), rect);
            QCOMPARE(ofRect.shadowOfRect(rect, size, ratio).whole(),
                     slowShadow(parameters, ratio, source, &rect));
        }
    }
    const QRect farAway(INT_MAX / 2, INT_MAX / 2, INT_MAX / 2, 1);
    QCOMPARE(ShadowRenderer::castingRect(QSize(20, 10), farAway, QSize(26, 16), 2), QRect());

    // The shadow is kept, also when other pixels of the same shape come, but not for another ratio.
    ShadowRenderer renderer(classic);
    QImage source(40, 30, format);
    QVector<qint64> kept;
    for (const Qt::GlobalColor color : {Qt::white, Qt::red}) {
        source.fill(color);
        kept << renderer.shadowOfPixels(source, 1).whole().cacheKey();
    }
    for (const int ratio : {1, 1, 2})
        kept << renderer.shadowOfRect({3, 3, 20, 20}, source.size(), ratio).whole().cacheKey();
    QVERIFY(kept[0] == kept[1] && kept[2] == kept[3] && kept[3] != kept[4]);
}

void TestShadowEffect::renderedLikeTheSlowEffect()
{
    for (const int variant : {0, 1, 2}) {
        const auto guard = withVariant(variant);
        compareRendered(createDefaultShadowEffectPixels, variant == 1 ? modern : classic, ShadowOfPixels);
        compareRendered(createDefaultShadowEffectRect, variant == 1 ? modern : classic, ShadowOfWidget,
                        {5, 6, 9, 9});
    }
    compareRendered(create<ShadowEffect<4, 4, 3, 0, 14, 0>>, sunken, ShadowOfPixels);
    compareRendered(create<ShadowEffect<1, 2, 13, 1, 4, 2>>, modern, ShadowOfPart);
    compareRendered(create<ShadowEffect<1, 2, 13, 1, 4, 2>>, modern, ShadowOfPart, {5, 6, 30, 10});
    compareRendered(create<ShadowEffect<3, 3, 12, 1, 20, 2>>, classic, ShadowOfPart, {-9, 6, 30, 100});
    compareRendered(create<ShadowEffect<4, 4, 3, 0, 14, 1>>, sunken, ShadowOfWidget);
}

/** In its window a rectangle is painted in parts, which join without a trace. */
void TestShadowEffect::repaintedOnScreen()
{
    QRandomGenerator random(19);
    QWidget window;
    window.setStyleSheet("background: rgb(240, 230, 220)");
    window.resize(160, 120);
    QFrame frame(&window);
    frame.setGeometry(20, 20, 100, 70);
    frame.setGraphicsEffect(new ShadowEffect<3, 3, 12, 1, 20, ShadowOfWidget>);
    QVector<QLabel *> labels;
    for (int i = 0; i < 4; ++i) {
        labels.append(new QLabel(QString::number(i), &frame));
        labels[i]->setGeometry(i * 25, i * 12, 60, 40); // they overlap, and the last is cut off
    }
    QLabel withEffect("x", &frame);
    withEffect.setGraphicsEffect(createDefaultShadowEffectRect());
    withEffect.setGeometry(30, 30, 30, 20);
    withEffect.hide();
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const auto picture = [&window] {
        const auto *shown = dynamic_cast<QImage *>(window.backingStore()->paintDevice());
        return shown->copy().convertToFormat(QImage::Format_RGB32);
    };
    for (int i = 0; i < 60; ++i) {
        // What goes through a picture is blurred anew at its edges with each part where pixels are not whole.
        withEffect.setVisible(i >= 30 && window.devicePixelRatioF() != 1.5);
        switch (random.bounded(4)) {
        case 0:
            labels[random.bounded(4)]->setText(QString::number(i));
            break;
        case 1:
            window.update(random.bounded(100), random.bounded(80), 40, 30);
            break;
        case 2:
            frame.move(random.bounded(-20, 80), random.bounded(-20, 60));
            break;
        default:
            static_cast<GraphicsEffect *>(frame.graphicsEffect())->setEnabled(random.bounded(3) > 0);
        }
        QCoreApplication::processEvents();
        const QImage parts = picture();
        window.update();
        QCoreApplication::processEvents();
        QCOMPARE(parts, picture());
        if (window.devicePixelRatioF() == 1) // elsewhere a picture may round the edges in another way
            QCOMPARE(parts, window.grab().toImage().convertToFormat(QImage::Format_RGB32));
    }
}

void TestShadowEffect::graphicsItemsAndSwitching()
{
    QGraphicsScene scene(0, 0, 100, 60);
    QGraphicsRectItem *item = scene.addRect(20, 20, 40, 20, Qt::NoPen, Qt::red);
    QGraphicsView view(&scene);
    const auto picture = [&](QGraphicsEffect *effect) {
        item->setGraphicsEffect(effect);
        return view.grab().toImage();
    };
    const QImage plain = picture(new SlowEffect({3, 3, 0, true, 0}, ShadowOfPixels));
    for (const auto each : {createDefaultShadowEffectPixels, createDefaultShadowEffectRect,
                            create<ShadowEffect<3, 3, 12, 1, 20, 2>>}) {
        GraphicsEffect *effect = each();
        QVERIFY(picture(effect) != plain);
        effect->setEnabled(false);
        QVERIFY(effect->isEnabled()); // Qt's own switch is another one
        QCOMPARE(picture(effect), plain);
    }

    auto *effect = new SlowEffect(classic, ShadowOfPixels);
    item->setGraphicsEffect(effect);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    const auto drawsAfter = [&](bool on, const QRect &part) {
        for (int i = 0; i < 10; ++i) {
            if (i == 5) {
                effect->draws = 0;
                part.isNull() ? effect->setEnabled(on) : effect->setPartialRect(part);
            }
            QCoreApplication::processEvents();
        }
        return effect->draws;
    };
    QCOMPARE(drawsAfter(true, QRect()), 0);
    QCOMPARE(drawsAfter(false, QRect()), 1);
    QCOMPARE(drawsAfter(true, QRect()), 1);
    QCOMPARE(drawsAfter(true, QRect(1, 2, 3, 4)), 1);
    {
        const auto guard = withEffects(false);
        QVERIFY(effect->enabled());
        QCOMPARE(drawsAfter(true, QRect()), 0);
    }
    QVERIFY(!effect->enabled());
    QCOMPARE(drawsAfter(true, QRect()), 1);
}

QTEST_MAIN(TestShadowEffect)
#include "tst_shadoweffect.moc"
