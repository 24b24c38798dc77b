#pragma once

#include <nvo/Export.h>

#include <QGraphicsEffect>
#include <QRect>

class QGraphicsEffectPrivate;

namespace NVO {

/** The sides of a widget or shape on which a shadow lies; a set of sides is the sum of their values. */
enum ShadowSide { ShadowLeft = 1, ShadowTop = 2, ShadowRight = 4, ShadowBottom = 8 };

/** Whether a shadow falls into the shape, which then looks sunken, or out of it, which then looks raised. */
enum ShadowMode { ShadowInner = 0, ShadowOuter = 1 };

/**
 * The base of the shadows of the library: a graphics effect with a switch of its own.
 *
 * The switch is not that of QGraphicsEffect. An effect that is switched off here stays installed and goes
 * on drawing its source, without a shadow; QGraphicsEffect::isEnabled() is left as it is.
 */
class NVO_EXPORT GraphicsEffect : public QGraphicsEffect
{
    Q_OBJECT

public:
    GraphicsEffect();
    explicit GraphicsEffect(QObject *parent);

    /** Whether the shadow shows; true at first. */
    bool enabled() const { return m_enabled; }

    /**
     * Switches the shadow on or off and has the source drawn again if that is a change.
     *
     * While Product::effectsEnabled is false the switch goes off whatever \a enabled is, and nothing is
     * drawn again for it.
     */
    void setEnabled(bool enabled);

    /** The part of the widget that casts the shadow, in widget coordinates; null for the whole widget. */
    QRect partialRect() const { return m_partialRect; }

    /**
     * Lets only \a rect cast the shadow, in effects that look at it, and has the source drawn again.
     *
     * The null rectangle stands for the whole widget. What lies outside of the effect's bounds is cut off;
     * a rectangle that lies outside altogether casts no shadow.
     */
    void setPartialRect(const QRect &rect);

protected:
    explicit GraphicsEffect(QGraphicsEffectPrivate &d);
    GraphicsEffect(QGraphicsEffectPrivate &d, QObject *parent);

private:
    bool m_enabled = true;
    QRect m_partialRect;
};

/**
 * A new drop shadow that follows the opaque pixels of a widget of any shape, in the look of
 * Product::variant at this moment.
 *
 * It has no parent: QWidget::setGraphicsEffect() takes it over.
 */
NVO_EXPORT GraphicsEffect *createDefaultShadowEffectPixels();

/**
 * A new drop shadow for a rectangular widget, which never looks at pixels and so suits large ones, in the
 * look of Product::variant at this moment.
 *
 * It has no parent: QWidget::setGraphicsEffect() takes it over.
 */
NVO_EXPORT GraphicsEffect *createDefaultShadowEffectRect();

} // namespace NVO
