#pragma once

#include "theme/ShadowRenderer.h"

#include <nvo/GraphicsEffect.h>

#include <QGuiApplication>
#include <QPainter>

namespace NVO {

/** What casts the shadow of a ShadowEffect. */
enum ShadowSource {
    ShadowOfPixels = 0, ///< The opaque pixels of the source.
    ShadowOfWidget = 1, ///< The widget's rectangle.
    ShadowOfPart = 2    ///< GraphicsEffect::partialRect().
};

/**
 * A shadow around (\a outer) or inside of what \a sourceShape names, that falls off linearly.
 *
 * It reaches \a extentX and \a extentY device-independent pixels far, on the ShadowSides in \a sides, and
 * begins at the edge with \a percent of full black. A shape other than the pixels has outer shadows only:
 * with an inner one the source is drawn alone.
 *
 * The one thing an effect keeps is the shadow it drew last.
 */
template <int extentX, int extentY, int sides, int outer, int percent, int sourceShape>
class ShadowEffect : public GraphicsEffect
{
public:
    using GraphicsEffect::GraphicsEffect;

    QRectF boundingRectFor(const QRectF &rect) const override
    {
        return rect.adjusted(-extentX, -extentY, extentX, extentY);
    }

protected:
    void draw(QPainter *painter) override
    {
        QPoint offset;
        const QPixmap source = sourcePixmap(Qt::DeviceCoordinates, &offset, PadToEffectiveBoundingRect);
        if (source.isNull())
            return;
        const QTransform transform = painter->worldTransform();
        painter->setWorldTransform(QTransform());
        painter->drawPixmap(offset, source);
        if (enabled())
            shadow(source).draw(painter, offset, source.devicePixelRatio());
        painter->setWorldTransform(transform);
    }

private:
    SparseImage &shadow(const QPixmap &source)
    {
        const qreal ratio = qGuiApp->devicePixelRatio();
        if constexpr (sourceShape == ShadowOfPixels)
            return m_renderer.shadowOfPixels(source.toImage(), ratio);
        // This is the widget's size, and that of the item where there is no widget.
        const QSizeF size = sourceBoundingRect().size();
        const QRect part = sourceShape == ShadowOfPart ? partialRect() : QRect();
        const QRect rect = ShadowRenderer::castingRect(size, part, source.size(), ratio);
        return m_renderer.shadowOfRect(rect, source.size(), ratio);
    }

    ShadowRenderer m_renderer{{extentX, extentY, sides, outer != ShadowInner, percent}};
};

} // namespace NVO
