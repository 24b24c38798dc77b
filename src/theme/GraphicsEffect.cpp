#include <nvo/GraphicsEffect.h>

#include "theme/ShadowEffect.h"

#include <nvo/Product.h>

namespace NVO {

namespace {

// The two families of drop shadows: the classic one falls to the lower right, the modern one is a fine
// line on three sides.
constexpr int classicExtent = 3;
constexpr int classicSides = ShadowRight | ShadowBottom;
constexpr int classicPercent = 20;
constexpr int modernExtentX = 1;
constexpr int modernExtentY = 2;
constexpr int modernSides = ShadowLeft | ShadowRight | ShadowBottom;
constexpr int modernPercent = 4;

template <int sourceShape>
GraphicsEffect *createDefaultShadowEffect()
{
    if (Product::instance().variant == 1)
        return new ShadowEffect<modernExtentX, modernExtentY, modernSides, ShadowOuter, modernPercent,
                                sourceShape>;
    return new ShadowEffect<classicExtent, classicExtent, classicSides, ShadowOuter, classicPercent,
                            sourceShape>;
}

} // namespace

GraphicsEffect::GraphicsEffect() = default;

GraphicsEffect::GraphicsEffect(QObject *parent)
    : QGraphicsEffect(parent)
{}

GraphicsEffect::GraphicsEffect(QGraphicsEffectPrivate &d)
    : QGraphicsEffect(d)
{}

GraphicsEffect::GraphicsEffect(QGraphicsEffectPrivate &d, QObject *parent)
    : QGraphicsEffect(d, parent)
{}

void GraphicsEffect::setEnabled(bool enabled)
{
    if (!Product::instance().effectsEnabled) {
        m_enabled = false;
        return;
    }
    if (m_enabled == enabled)
        return;
    m_enabled = enabled;
    update();
}

void GraphicsEffect::setPartialRect(const QRect &rect)
{
    m_partialRect = rect;
    update();
}

GraphicsEffect *createDefaultShadowEffectPixels()
{
    return createDefaultShadowEffect<ShadowOfPixels>();
}

GraphicsEffect *createDefaultShadowEffectRect()
{
    return createDefaultShadowEffect<ShadowOfWidget>();
}

} // namespace NVO
