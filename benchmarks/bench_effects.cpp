// What a repaint of a widget costs with one of our shadows, beside the least that any effect costs and Qt's
// own drop shadow.

#include "theme/ShadowEffect.h"

#include <nvo/GraphicsEffect.h>
#include <nvo/Product.h>

#include <QGraphicsDropShadowEffect>
#include <QPainter>
#include <QWidget>

#include <benchmark/benchmark.h>

#include <functional>
#include <string>
#include <utility>

namespace {

using EffectMaker = std::function<QGraphicsEffect *()>;

constexpr int margin = 8;
constexpr qreal peerBlurRadius = 3;

/** A rounded rectangle with a text; one that is restless has another shape each time. */
class Card : public QWidget
{
public:
    Card(QWidget *parent, bool restless)
        : QWidget(parent)
        , m_restless(restless)
    {}

protected:
    void paintEvent(QPaintEvent *) override
    {
        constexpr int radius = 4;
        if (m_restless)
            m_inset = 1 - m_inset;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::white);
        painter.drawRoundedRect(rect().adjusted(m_inset, m_inset, -m_inset, -m_inset), radius, radius);
        painter.setPen(Qt::black);
        painter.drawText(rect(), Qt::AlignCenter, QStringLiteral("Rechnung erfassen"));
    }

private:
    bool m_restless;
    int m_inset = 0;
};

/** Draws its source once, with as much room around it as the effect that it is compared to. */
class FloorEffect : public QGraphicsEffect
{
public:
    explicit FloorEffect(const QSize &room)
        : m_room(room)
    {}

    QRectF boundingRectFor(const QRectF &rect) const override
    {
        return rect.adjusted(-m_room.width(), -m_room.height(), m_room.width(), m_room.height());
    }

protected:
    void draw(QPainter *painter) override
    {
        QPoint offset;
        const QPixmap pixmap = sourcePixmap(Qt::DeviceCoordinates, &offset, PadToEffectiveBoundingRect);
        const QTransform transform = painter->worldTransform();
        painter->setWorldTransform(QTransform());
        painter->drawPixmap(offset, pixmap);
        painter->setWorldTransform(transform);
    }

private:
    QSize m_room;
};

QGraphicsEffect *dropShadow()
{
    auto *effect = new QGraphicsDropShadowEffect;
    effect->setBlurRadius(peerBlurRadius);
    effect->setOffset(peerBlurRadius);
    return effect;
}

EffectMaker inVariant(int variant, NVO::GraphicsEffect *(*make)())
{
    return [variant, make] {
        const int before = std::exchange(NVO::Product::instance().variant, variant);
        NVO::GraphicsEffect *effect = make();
        NVO::Product::instance().variant = before;
        return effect;
    };
}

void repaint(benchmark::State &state, const QSize &size, bool restless, const EffectMaker &makeEffect)
{
    QWidget host;
    host.resize(size + QSize(2 * margin, 2 * margin));
    Card card(&host, restless);
    card.setGeometry(QRect(QPoint(margin, margin), size));
    card.setGraphicsEffect(makeEffect());
    QImage image(host.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::lightGray);
    for (auto _ : state)
        host.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
}

void add(const std::string &name, const QSize &size, bool restless, const EffectMaker &makeEffect)
{
    benchmark::RegisterBenchmark(name.c_str(), repaint, size, restless, makeEffect)
        ->Unit(benchmark::kMicrosecond);
}

bool registerAll()
{
    struct Case
    {
        std::string name;
        EffectMaker make;
        QSize room;
        bool restless;
    };
    const Case cases[] = {
        {"pixels", inVariant(0, NVO::createDefaultShadowEffectPixels), {3, 3}, false},
        {"pixels_reshaped", inVariant(0, NVO::createDefaultShadowEffectPixels), {3, 3}, true},
        {"pixels_modern", inVariant(1, NVO::createDefaultShadowEffectPixels), {1, 2}, false},
        {"rect", inVariant(0, NVO::createDefaultShadowEffectRect), {3, 3}, false},
        {"rect_modern", inVariant(1, NVO::createDefaultShadowEffectRect), {1, 2}, false},
        {"sunken", [] { return new NVO::ShadowEffect<4, 4, 3, 0, 14, 0>; }, {4, 4}, false},
        {"sunken_reshaped", [] { return new NVO::ShadowEffect<4, 4, 3, 0, 14, 0>; }, {4, 4}, true},
    };
    for (const Case &c : cases) {
        for (const QSize size : {QSize(100, 25), QSize(400, 120), QSize(1200, 800)}) {
            const std::string group = "effects/" + c.name + '/' + std::to_string(size.width()) + 'x'
                                      + std::to_string(size.height()) + '/';
            add(group + "ours", size, c.restless, c.make);
            add(group + "floor", size, c.restless, [room = c.room] { return new FloorEffect(room); });
            add(group + "drop_shadow", size, c.restless, dropShadow);
        }
    }
    return true;
}

const bool registered = registerAll();

} // namespace
