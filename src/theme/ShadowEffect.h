#pragma once

#include "theme/ShadowRenderer.h"

#include <nvo/GraphicsEffect.h>

#include <QBackingStore>
#include <QGuiApplication>
#include <QPainter>
#include <QWidget>

#include <private/qgraphicseffect_p.h>

#include <algorithm>

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
        // Qt walks over the whole window to give a picture of one widget in it.
        if (sourceShape == ShadowOfWidget || !enabled()) {
            const QWidget *widget = source()->widget();
            if (widget && isOnScreen(*widget, *painter) && !hasEffectInside(*widget)) {
                drawAround(*widget, painter);
                return;
            }
        }
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
    /** Whether a widget is painted for its window, where Qt says what part of it has to be painted again. */
    static bool isOnScreen(const QWidget &widget, const QPainter &painter)
    {
        QBackingStore *store = widget.backingStore();
        return store && store->paintDevice() == painter.device();
    }

    /** Whether something in a widget has an effect, which could not begin to paint while this one does. */
    static bool hasEffectInside(const QWidget &widget)
    {
        const QList<QWidget *> descendants = widget.findChildren<QWidget *>();
        return std::any_of(descendants.begin(), descendants.end(), [](const QWidget *descendant) {
            return descendant->graphicsEffect() && descendant->isVisible();
        });
    }

    /**
     * Draws the widget without a detour over a pixmap: only what has to be painted again is. The shadow comes
     * first, since it lies outside of the widget and painting that takes away the clip of the painter.
     */
    void drawAround(const QWidget &widget, QPainter *painter)
    {
        if (enabled() && !widget.rect().isEmpty()) {
            const QTransform transform = painter->worldTransform();
            const QRect bounds = boundingRectFor(transform.mapRect(QRectF(widget.rect()))).toAlignedRect();
            const qreal ratio = painter->device()->devicePixelRatioF();
            painter->setWorldTransform(QTransform());
            shadowOfRect(bounds.size() * ratio).draw(painter, bounds.topLeft(), ratio);
            painter->setWorldTransform(transform);
        }
        drawSource(painter);
    }

    /** The shadow of a picture of the source. */
    SparseImage &shadow(const QPixmap &source)
    {
        if constexpr (sourceShape == ShadowOfPixels)
            return m_renderer.shadowOfPixels(source.toImage(), qGuiApp->devicePixelRatio());
        return shadowOfRect(source.size());
    }

    /** The shadow of the rectangle in an image of \a imageSize. */
    SparseImage &shadowOfRect(const QSize &imageSize)
    {
        const qreal ratio = qGuiApp->devicePixelRatio();
        // This is the widget's size, and that of the item where there is no widget.
        const QSizeF size = sourceBoundingRect().size();
        const QRect part = sourceShape == ShadowOfPart ? partialRect() : QRect();
        const QRect rect = ShadowRenderer::castingRect(size, part, imageSize, ratio);
        return m_renderer.shadowOfRect(rect, imageSize, ratio);
    }

    ShadowRenderer m_renderer{{extentX, extentY, sides, outer != ShadowInner, percent}};
};

} // namespace NVO
