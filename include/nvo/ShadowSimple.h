#pragma once

#include <nvo/Export.h>
#include <nvo/GraphicsEffect.h>

#include <QPointer>
#include <QRect>
#include <QWidget>

class QGraphicsBlurEffect;
class QPainter;

namespace NVO {

/**
 * An overlay that draws the shadow of one widget upon another: thin lines along the edges of its target,
 * or a blurred drop shadow below it. It suits areas that are too large for a graphics effect.
 *
 * The overlay is a child of its host and covers it; the mouse passes through. It keeps itself above its
 * siblings for lines and below them for a drop shadow, and notices when a hidden target is shown again.
 * All sides are off at first.
 *
 * The target is the host itself or lies somewhere below it. Without a host or a target, once one of them
 * has died, or while the target belongs elsewhere, nothing is painted.
 */
class NVO_EXPORT ShadowSimple : public QWidget
{
    Q_OBJECT

public:
    /**
     * Shades the edges of \a target on \a parent, the host, which owns the overlay.
     *
     * A side gets \a width lines of one pixel in each direction that is switched on (none if below 1). Their
     * opacity runs from \a startOpacity at the edge to \a endOpacity at the far end; what is beyond 0 to 1
     * counts as 0 or 1.
     */
    ShadowSimple(QWidget *target, QWidget *parent, int width, double startOpacity, double endOpacity);

    /** Switches the lines along \a side, inside or outside of the target, on or off. */
    void useShadow(ShadowSide side, ShadowMode mode, bool on);

    /**
     * Replaces the lines by a blurred drop shadow, moved to the right and down by \a offset pixels. With 0
     * the lines come back.
     */
    void useDropShadow(int offset);

    /** Shows or hides the shadow; it shows at first. */
    void setShadowEnabled(bool enabled);

protected:
    void showEvent(QShowEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    bool targetShows() const;
    void coverHost();
    void paintShadow(bool &dirty);
    void paintBorderShadow(QPainter &painter, const QRect &rect, bool &dirty);
    void paintBorderLines(QPainter &painter, const QRect &rect, int i, int sides) const;
    void paintDropShadow(QPainter &painter, const QRect &rect, bool &dirty);
    void updateArea(const QRect &area);
    void dropBlurEffect();
    void raiseTest(bool lower);
    void lowerTest();
    void startHiddenCheckTimer();
    void stopHiddenCheckTimer();

    int m_hiddenCheckTimerId = 0;
    QPointer<QWidget> m_host;
    QPointer<QWidget> m_target;
    QRect m_lastRect;
    int m_width;
    double m_startOpacity;
    double m_endOpacity;
    bool m_shadowEnabled = true;
    int m_dropOffset = 0;
    QPointer<QGraphicsBlurEffect> m_blurEffect;
    int m_innerSides = 0;
    int m_outerSides = 0;
};

} // namespace NVO
