#include "Guards.h"
#include "TestCase.h"
#include "theme/ShadowEffect.h"

#include <nvo/GraphicsEffect.h>

#include <QGraphicsRectItem>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QRandomGenerator>
#include <QtTest>

using namespace NVO;

namespace {

const qreal ratios[] = {1, 1.5, 2};

const ShadowParameters parameterSets[] = {
    {3, 3, 12, true, 20},  {1, 2, 13, true, 4},   {4, 4, 3, false, 14}, // those in use
    {5, 2, 15, true, 30},  {2, 5, 15, false, 60}, {3, 3, 1, true, 20},   {3, 3, 2, true, 20},
    {3, 3, 4, true, 20},   {3, 3, 8, true, 20},   {3, 3, 0, true, 20},   {3, 2, 1, false, 20},
    {2, 3, 2, false, 20},  {3, 3, 12, false, 20}, {0, 3, 15, true, 20},  {3, 0, 15, true, 20},
    {0, 0, 15, true, 20},  {3, 3, 15, true, 0},   {3, 3, 15, true, 150}, {3, 3, 15, false, 220},
    {-2, 3, 15, true, 20}, {3, 3, 15, true, -40}, {36, 1, 9, true, 90},
};

/** Shadows as the rules have them, pixel by pixel. */
struct Reference
{
    Reference(const ShadowParameters &p, qreal r)
        : outer(p.outer)
        , sides(p.sides)
        , peak(255 * p.percent / 100)
        , fallOff(r * qMax(p.extentX, p.extentY))
    {
        if (sides & (outer ? ShadowRight : ShadowLeft))
            dxMin = qFloor(-p.extentX * r);
        if (outer && (sides & ShadowLeft))
            dxMax = qCeil(p.extentX * r);
        if (sides & (outer ? ShadowBottom : ShadowTop))
            dyMin = qFloor(-p.extentY * r);
        if (outer && (sides & ShadowTop))
            dyMax = qCeil(p.extentY * r);
    }

    QRgb pixel(double d) const
    {
        const int a = qRound(peak - (d - 1) * peak / fallOff);
        return a >= 1 && a <= 255 ? static_cast<QRgb>(a) << 24 : 0;
    }

    QImage ofPixels(const QImage &source) const
    {
        QImage shadow(source.size(), QImage::Format_ARGB32_Premultiplied);
        shadow.fill(Qt::transparent);
        const auto opaque = [&source](int x, int y) {
            return qAlpha(reinterpret_cast<const QRgb *>(source.constScanLine(y))[x]) >= 128;
        };
        for (int y = 0; y < source.height(); ++y) {
            for (int x = 0; x < source.width(); ++x) {
                if (opaque(x, y) == outer)
                    continue;
                int nearest = INT_MAX;
                bool diagonal = !outer;
                for (int dy = dyMin; dy <= dyMax; ++dy) {
                    for (int dx = dxMin; dx <= dxMax; ++dx) {
                        if (!source.valid(x + dx, y + dy) || opaque(x + dx, y + dy) != outer)
                            continue;
                        nearest = qMin(nearest, dx * dx + dy * dy);
                        diagonal |= qAbs(dx) == qAbs(dy);
                    }
                }
                if (nearest < INT_MAX && diagonal)
                    reinterpret_cast<QRgb *>(shadow.scanLine(y))[x] = pixel(std::sqrt(double(nearest)));
            }
        }
        return shadow;
    }

    QImage ofRect(const QRect &rect, const QSize &size) const
    {
        QImage shadow(size, QImage::Format_ARGB32_Premultiplied);
        shadow.fill(Qt::transparent);
        for (int y = 0; outer && y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x) {
                const bool inStrip =
                    (sides & ShadowLeft && x < rect.left()) || (sides & ShadowRight && x > rect.right())
                    || (sides & ShadowTop && y < rect.top()) || (sides & ShadowBottom && y > rect.bottom());
                const double d = inStrip && !rect.contains(x, y) ? distance(rect, x, y) : 5000;
                if (d < 5000 && hitsDiagonally(rect, x, y))
                    reinterpret_cast<QRgb *>(shadow.scanLine(y))[x] = pixel(d);
            }
        }
        return shadow;
    }

    double distance(const QRect &rect, int x, int y) const
    {
        double d = 5000;
        const auto inX = [this](int dx) { return dx >= dxMin && dx <= dxMax; };
        const auto inY = [this](int dy) { return dy >= dyMin && dy <= dyMax; };
        const int left = rect.left() - x;
        const int right = rect.right() - x;
        const int top = rect.top() - y;
        const int bottom = rect.bottom() - y;
        for (const int dy : {top, bottom}) {
            if (left <= 0 && right >= 0 && inY(dy))
                d = qMin(d, double(qAbs(dy)));
        }
        for (const int dx : {left, right}) {
            if (top <= 0 && bottom >= 0 && inX(dx))
                d = qMin(d, double(qAbs(dx)));
            for (const int dy : {top, bottom}) {
                if (inX(dx) && inY(dy))
                    d = qMin(d, std::sqrt(double(dx * dx + dy * dy)));
            }
        }
        return d;
    }

    bool hitsDiagonally(const QRect &rect, int x, int y) const
    {
        const int n = qMax(qMax(-dxMin, dxMax + 1), qMax(-dyMin, dyMax + 1));
        bool hit = false;
        for (int k = 1; k < n; ++k) {
            hit |= dxMin < 0 && dyMin < 0 && rect.contains(x - k, y - k);
            hit |= dxMin < 0 && dyMax >= 1 && rect.contains(x - k, y + k);
            hit |= dxMax >= 1 && dyMin < 0 && rect.contains(x + k, y - k);
            hit |= dxMax >= 1 && dyMax >= 1 && rect.contains(x + k, y + k);
        }
        return hit;
    }

    static QRect castingRect(const QSize &widget, const QRect &part, const QSize &image, qreal r)
    {
        const QSize w(qRound(widget.width() * r), qRound(widget.height() * r));
        QRect rect(QPoint(), w);
        if (!part.isNull())
            rect = QRect(qRound(part.x() * r), qRound(part.y() * r), qRound(part.width() * r),
                         qRound(part.height() * r));
        rect.translate((image.width() - w.width()) / 2, (image.height() - w.height()) / 2);
        return rect.intersected(QRect(QPoint(), image));
    }

    bool outer;
    int sides;
    int peak;
    double fallOff;
    int dxMin = 0;
    int dxMax = 0;
    int dyMin = 0;
    int dyMax = 0;
};

/** The same effect as the one under test, without any haste. */
class ReferenceEffect : public QGraphicsEffect
{
public:
    ReferenceEffect(const ShadowParameters &parameters, int shape, const QRect &part, QSize widget)
        : m_parameters(parameters)
        , m_shape(shape)
        , m_part(part)
        , m_widget(widget)
    {}

    QRectF boundingRectFor(const QRectF &rect) const override
    {
        return rect.adjusted(-m_parameters.extentX, -m_parameters.extentY, m_parameters.extentX,
                             m_parameters.extentY);
    }

protected:
    void draw(QPainter *painter) override
    {
        QPoint offset;
        const QPixmap pixmap = sourcePixmap(Qt::DeviceCoordinates, &offset, PadToEffectiveBoundingRect);
        const qreal r = qGuiApp->devicePixelRatio();
        const Reference reference(m_parameters, r);
        QImage shadow =
            m_shape == ShadowOfPixels
                ? reference.ofPixels(pixmap.toImage())
                : reference.ofRect(Reference::castingRect(m_widget, m_part, pixmap.size(), r), pixmap.size());
        shadow.setDevicePixelRatio(pixmap.devicePixelRatio());
        painter->save();
        painter->setWorldTransform(QTransform());
        painter->drawPixmap(offset, pixmap);
        painter->drawImage(offset, shadow);
        painter->restore();
    }

private:
    ShadowParameters m_parameters;
    int m_shape;
    QRect m_part;
    QSize m_widget;
};

/** A rounded widget with a hole. */
class Shape : public QWidget
{
public:
    using QWidget::QWidget;
    int paints = 0;

protected:
    void paintEvent(QPaintEvent *) override
    {
        ++paints;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setBrush(QColor(200, 220, 240));
        painter.drawRoundedRect(rect(), 6, 6);
        painter.setCompositionMode(QPainter::CompositionMode_Clear);
        painter.drawEllipse(rect().center(), 5, 4);
    }
};

QImage randomImage(QRandomGenerator &random, const QSize &size, int kind)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(kind == 1 ? Qt::white : Qt::transparent);
    const auto set = [&](int x, int y, int alpha) {
        reinterpret_cast<QRgb *>(image.scanLine(y))[x] = qPremultiply(qRgba(90, 160, 250, alpha));
    };
    if (kind == 2)
        set(random.bounded(size.width()), random.bounded(size.height()), 128);
    for (int y = 0; kind >= 3 && kind <= 4 && y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            set(x, y, kind == 3 ? random.bounded(256) : random.bounded(40) ? 127 : 128);
    }
    if (kind >= 5) {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setBrush(Qt::white);
        const int inset = random.bounded(4);
        painter.drawRoundedRect(image.rect().adjusted(inset, 3, -inset, -random.bounded(8)), 7, 5);
        painter.setCompositionMode(QPainter::CompositionMode_Clear);
        painter.drawEllipse(image.rect().center(), 6, 3);
    }
    return image;
}

QRect randomRect(QRandomGenerator &random)
{
    return {random.bounded(-20, 40), random.bounded(-20, 30), random.bounded(-6, 40), random.bounded(-6, 30)};
}

QColor colorAt(const QPixmap &pixmap, const QPointF &position)
{
    const QPointF pixel = position * pixmap.devicePixelRatio();
    return pixmap.toImage().pixelColor(qFloor(pixel.x()), qFloor(pixel.y()));
}

/** A picture of a widget with \a effect; \a zoom is done by the view that the painter has. */
QImage rendered(QGraphicsEffect *effect, const QRect &geometry, qreal ratio, int zoom)
{
    QWidget host;
    host.resize(120, 60);
    Shape shape(&host);
    shape.setGeometry(geometry);
    shape.setGraphicsEffect(effect);
    QImage image(host.size() * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(QColor(240, 230, 220));
    QPainter painter(&image);
    painter.setWindow(painter.window().adjusted(0, 0, zoom, zoom));
    host.render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

template <int extentX, int extentY, int sides, int outer, int percent, int shape>
void compareRendered(const QRect &part = QRect(), int zoom = 0)
{
    for (const qreal ratio : ratios) {
        for (const QRect &geometry : {QRect(8, 10, 90, 25), QRect(7, 5, 63, 40), QRect(-9, -3, 140, 50)}) {
            auto *effect = new ShadowEffect<extentX, extentY, sides, outer, percent, shape>;
            effect->setPartialRect(part);
            const QImage image = rendered(effect, geometry, ratio, zoom);
            auto *reference = new ReferenceEffect({extentX, extentY, sides, outer == 1, percent}, shape, part,
                                                  geometry.size());
            QCOMPARE(image, rendered(reference, geometry, ratio, zoom));
        }
    }
}

} // namespace

class TestShadowEffect : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void pixels();
    void rectangles();
    void strength();
    void keptUntilSomethingChanges();
    void renderedLikeTheReference();
    void factories();
    void switchedOff();
    void effectsDisabled();
    void graphicsItems();
};

void TestShadowEffect::pixels()
{
    QRandomGenerator random(15);
    for (const ShadowParameters &parameters : parameterSets) {
        ShadowRenderer renderer(parameters);
        for (const qreal ratio : ratios) {
            const Reference reference(parameters, ratio);
            for (const QSize size : {QSize(1, 1), QSize(63, 9), QSize(64, 7), QSize(65, 8), QSize(131, 22)}) {
                for (int kind = 0; kind < 6; ++kind) {
                    const QImage source = randomImage(random, size, kind);
                    // Another format is a matter of the platform.
                    const QImage given = kind == 4 ? source.convertToFormat(QImage::Format_ARGB32) : source;
                    QCOMPARE(renderer.shadowOfPixels(given, ratio).whole(), reference.ofPixels(source));
                }
            }
        }
    }
    // High enough for pieces of their own beside the top and the bottom.
    const QImage high = randomImage(random, QSize(200, 150), 5);
    for (const ShadowParameters &parameters : {parameterSets[0], parameterSets[2]})
        QCOMPARE(ShadowRenderer(parameters).shadowOfPixels(high, 1).whole(),
                 Reference(parameters, 1).ofPixels(high));
}

void TestShadowEffect::rectangles()
{
    QRandomGenerator random(16);
    for (const ShadowParameters &parameters : parameterSets) {
        ShadowRenderer renderer(parameters);
        for (const qreal ratio : ratios) {
            const Reference reference(parameters, ratio);
            for (int i = 0; i < 40; ++i) {
                const QSize widget(random.bounded(40), random.bounded(30));
                const QSize image = widget + QSize(random.bounded(1, 14), random.bounded(1, 14));
                const QRect part = i % 3 ? randomRect(random) : QRect();
                const QRect rect = Reference::castingRect(widget, part, image, ratio);
                QCOMPARE(ShadowRenderer::castingRect(widget, part, image, ratio), rect);
                QCOMPARE(renderer.shadowOfRect(rect, image, ratio).whole(), reference.ofRect(rect, image));
            }
        }
    }
    const QRect farAway(INT_MAX / 2, INT_MAX / 2, INT_MAX / 2, 1);
    QCOMPARE(ShadowRenderer::castingRect(QSize(20, 10), farAway, QSize(26, 16), 2), QRect());
}

void TestShadowEffect::strength()
{
    const auto alphas = [](const ShadowParameters &parameters, qreal ratio, bool pixels, QPoint step) {
        QImage source(60, 60, QImage::Format_ARGB32_Premultiplied);
        source.fill(Qt::transparent);
        const QRect rect(20, 20, 20, 20);
        QPainter(&source).fillRect(rect, Qt::white);
        ShadowRenderer renderer(parameters);
        const QImage shadow = pixels ? renderer.shadowOfPixels(source, ratio).whole()
                                     : renderer.shadowOfRect(rect, source.size(), ratio).whole();
        QList<int> result;
        for (QPoint p = rect.center() + 11 * step; result.size() < 7; p += step)
            result.append(qAlpha(shadow.pixel(p)));
        return result;
    };
    const QPoint right(1, 0);
    const QPoint down(0, 1);
    const QPoint left(-1, 0);
    using Alphas = QList<int>;
    QCOMPARE(alphas(parameterSets[0], 1, true, right).mid(0, 4), Alphas({51, 34, 17, 0}));
    QCOMPARE(alphas(parameterSets[0], 1, false, right).mid(0, 4), Alphas({51, 34, 0, 0}));
    QCOMPARE(alphas(parameterSets[0], 2, true, right), Alphas({51, 43, 34, 26, 17, 9, 0}));
    QCOMPARE(alphas(parameterSets[1], 1, true, down).mid(0, 3), Alphas({10, 0, 0}));
    QCOMPARE(alphas(parameterSets[1], 1, false, down).mid(0, 3), Alphas({10, 0, 0}));
    QCOMPARE(alphas(parameterSets[0], 1, true, left).mid(1), Alphas({0, 0, 0, 0, 0, 0}));
}

void TestShadowEffect::keptUntilSomethingChanges()
{
    QRandomGenerator random(3);
    const QImage source = randomImage(random, QSize(100, 40), 5);
    QImage painted = source; // other pixels, the same shape
    QPainter(&painted).fillRect(10, 10, 20, 10, Qt::red);

    ShadowRenderer renderer(parameterSets[0]);
    const qint64 first = renderer.shadowOfPixels(source, 1).whole().cacheKey();
    QCOMPARE(renderer.shadowOfPixels(painted, 1).whole().cacheKey(), first);
    QVERIFY(renderer.shadowOfPixels(source, 2).whole().cacheKey() != first);

    const QRect rect(3, 3, 94, 34);
    const qint64 second = renderer.shadowOfRect(rect, source.size(), 2).whole().cacheKey();
    QCOMPARE(renderer.shadowOfRect(rect, source.size(), 2).whole().cacheKey(), second);
    QVERIFY(renderer.shadowOfRect(rect, source.size(), 1).whole().cacheKey() != second);
}

void TestShadowEffect::renderedLikeTheReference()
{
    compareRendered<3, 3, 12, 1, 20, 0>();
    compareRendered<3, 3, 12, 1, 20, 0>(QRect(), 40);
    compareRendered<1, 2, 13, 1, 4, 0>();
    compareRendered<4, 4, 3, 0, 14, 0>();
    compareRendered<3, 3, 12, 1, 20, 1>();
    compareRendered<1, 2, 13, 1, 4, 1>();
    compareRendered<1, 2, 13, 1, 4, 2>();
    compareRendered<1, 2, 13, 1, 4, 2>(QRect(5, 6, 30, 10));
    compareRendered<5, 4, 15, 1, 90, 2>(QRect(-9, 6, 30, 100));
    compareRendered<5, 4, 15, 0, 90, 1>();
}

void TestShadowEffect::factories()
{
    for (const int variant : {0, 1, 2}) {
        const auto guard = withVariant(variant);
        const QScopedPointer<GraphicsEffect> pixels(createDefaultShadowEffectPixels());
        const QScopedPointer<GraphicsEffect> rect(createDefaultShadowEffectRect());
        const bool modern = variant == 1;
        QCOMPARE((dynamic_cast<ShadowEffect<1, 2, 13, 1, 4, 0> *>(pixels.data()) != nullptr), modern);
        QCOMPARE((dynamic_cast<ShadowEffect<3, 3, 12, 1, 20, 0> *>(pixels.data()) != nullptr), !modern);
        QCOMPARE((dynamic_cast<ShadowEffect<1, 2, 13, 1, 4, 1> *>(rect.data()) != nullptr), modern);
        QCOMPARE((dynamic_cast<ShadowEffect<3, 3, 12, 1, 20, 1> *>(rect.data()) != nullptr), !modern);
        QVERIFY(!pixels->parent() && pixels->enabled() && pixels->partialRect().isNull());
        QCOMPARE(pixels->boundingRectFor(QRectF(0, 0, 10, 10)),
                 modern ? QRectF(-1, -2, 12, 14) : QRectF(-3, -3, 16, 16));
    }
}

void TestShadowEffect::switchedOff()
{
    QWidget host;
    host.resize(100, 60);
    Shape shape(&host);
    shape.setGeometry(10, 10, 70, 30);
    const auto colorBelow = [&host] { return colorAt(host.grab(), QPointF(45, 41.5)); };
    const QColor background = colorBelow();

    auto *effect = createDefaultShadowEffectPixels();
    shape.setGraphicsEffect(effect);
    QCOMPARE(qobject_cast<GraphicsEffect *>(shape.graphicsEffect()), effect);
    QVERIFY(colorBelow() != background);
    effect->setEnabled(false);
    QVERIFY(effect->isEnabled()); // Qt's own switch is another one
    QCOMPARE(colorBelow(), background);

    host.show();
    QVERIFY(QTest::qWaitForWindowExposed(&host));
    const auto paintsAfter = [&shape](auto change) {
        QCoreApplication::processEvents();
        const int before = shape.paints;
        change();
        QCoreApplication::processEvents();
        return shape.paints - before;
    };
    QCOMPARE(paintsAfter([effect] { effect->setEnabled(false); }), 0);
    QCOMPARE(paintsAfter([effect] { effect->setEnabled(true); }), 1);
    QCOMPARE(paintsAfter([effect] { effect->setPartialRect(QRect(1, 2, 3, 4)); }), 1);
    QCOMPARE(effect->partialRect(), QRect(1, 2, 3, 4));
}

void TestShadowEffect::effectsDisabled()
{
    const QScopedPointer<GraphicsEffect> effect(createDefaultShadowEffectRect());
    {
        const auto guard = withEffects(false);
        QVERIFY(effect->enabled());
        effect->setEnabled(true);
        QVERIFY(!effect->enabled());
    }
    QVERIFY(!effect->enabled());
    effect->setEnabled(true);
    QVERIFY(effect->enabled());
}

void TestShadowEffect::graphicsItems()
{
    QGraphicsScene scene(0, 0, 100, 60);
    scene.setBackgroundBrush(Qt::white);
    QGraphicsRectItem *item = scene.addRect(20, 20, 40, 20, Qt::NoPen, Qt::red);
    QGraphicsView view(&scene);
    view.resize(120, 80);
    view.viewport()->grab(); // lays it out
    const QPointF belowItem = view.mapFromScene(50, 40) + QPointF(0, 1.5);
    GraphicsEffect *const effects[] = {createDefaultShadowEffectPixels(), createDefaultShadowEffectRect(),
                                       new ShadowEffect<3, 3, 12, 1, 20, 2>};
    for (GraphicsEffect *effect : effects) {
        item->setGraphicsEffect(effect);
        QVERIFY(colorAt(view.viewport()->grab(), belowItem) != QColor(Qt::white));
        effect->setEnabled(false);
        QCOMPARE(colorAt(view.viewport()->grab(), belowItem), QColor(Qt::white));
    }
}

QTEST_MAIN(TestShadowEffect)
#include "tst_shadoweffect.moc"
