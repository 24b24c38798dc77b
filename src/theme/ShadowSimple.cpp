#include <nvo/ShadowSimple.h>

#include <QGraphicsBlurEffect>
#include <QPainter>
#include <QTimerEvent>

#include <utility>

namespace NVO {

namespace {

constexpr int hiddenCheckInterval = 50; // milliseconds
constexpr int dropShadowAlpha = 100;

void setFlag(int &flags, int flag, bool on)
{
    flags = on ? flags | flag : flags & ~flag;
}

} // namespace

ShadowSimple::ShadowSimple(QWidget *target, QWidget *parent, int width, double startOpacity,
                           double endOpacity)
    : QWidget(parent)
    , m_host(parent)
    , m_target(target)
    , m_width(qMax(width, 0))
    , m_startOpacity(startOpacity)
    , m_endOpacity(endOpacity)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    if (!m_host)
        return; // this would be a window
    // Without its size and a show a sibling might cover the overlay, and the paint that puts it in its place
    // would never come.
    coverHost();
    show();
    setAttribute(Qt::WA_WState_Visible);
}

void ShadowSimple::useShadow(ShadowSide side, ShadowMode mode, bool on)
{
    setFlag(mode == ShadowOuter ? m_outerSides : m_innerSides, side, on);
}

void ShadowSimple::useDropShadow(int offset)
{
    m_dropOffset = offset;
    m_blurEffect = new QGraphicsBlurEffect;
    setGraphicsEffect(m_blurEffect);
}

void ShadowSimple::setShadowEnabled(bool enabled)
{
    m_shadowEnabled = enabled;
    update();
}

void ShadowSimple::showEvent(QShowEvent *event)
{
    coverHost();
    raiseTest(m_dropOffset != 0);
    QWidget::showEvent(event);
}

void ShadowSimple::paintEvent(QPaintEvent *)
{
    if (!m_host || !m_target)
        return;
    bool dirty = true;
    const bool shows = m_shadowEnabled && targetShows();
    if (m_shadowEnabled && !shows)
        startHiddenCheckTimer();
    else
        stopHiddenCheckTimer();
    if (shows) {
        coverHost();
        paintShadow(dirty);
    }
    if (dirty && m_lastRect.isValid()) {
        update(m_lastRect);
        m_lastRect = QRect();
    }
}

void ShadowSimple::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_hiddenCheckTimerId) {
        QWidget::timerEvent(event);
        return;
    }
    if (!m_host || !m_target)
        stopHiddenCheckTimer();
    else if (targetShows())
        update();
}

/** Whether the target shows on the host, of which it must be a part. */
bool ShadowSimple::targetShows() const
{
    return (m_target == m_host || m_host->isAncestorOf(m_target)) && m_target->isVisibleTo(m_host);
}

void ShadowSimple::coverHost()
{
    if (m_host)
        setGeometry(QRect(QPoint(0, 0), m_host->size()));
}

void ShadowSimple::paintShadow(bool &dirty)
{
    const QRect rect(m_target->mapTo(m_host, QPoint(0, 0)), m_target->size());
    QPainter painter(this);
    if (m_dropOffset == 0) {
        dropBlurEffect();
        raiseTest(false);
        paintBorderShadow(painter, rect, dirty);
    } else {
        lowerTest();
        paintDropShadow(painter, rect, dirty);
    }
}

void ShadowSimple::paintBorderShadow(QPainter &painter, const QRect &rect, bool &dirty)
{
    for (int i = -m_width; i < m_width; ++i) {
        const int sides = i < 0 ? m_outerSides : m_innerSides;
        if (!sides)
            continue;
        paintBorderLines(painter, rect, i, sides);
        if (dirty) {
            dirty = false;
            updateArea(rect.adjusted(i, i, -i, -i));
        }
    }
}

/**
 * Draws the lines that lie \a i pixels inside of \a rect. Two sides that meet form a mitre, a lone side
 * tapers off by a third of a pixel a line.
 */
void ShadowSimple::paintBorderLines(QPainter &painter, const QRect &rect, int i, int sides) const
{
    const bool left = sides & ShadowLeft;
    const bool top = sides & ShadowTop;
    const bool right = sides & ShadowRight;
    const bool bottom = sides & ShadowBottom;
    const int taper = i / 3;
    const int leftTop = left && top ? i : taper;
    const int rightTop = right && top ? i : taper;
    const int leftBottom = left && bottom ? i : taper;
    const int rightBottom = right && bottom ? i : taper;

    const double opacity = double(qAbs(i)) / m_width * (m_endOpacity - m_startOpacity) + m_startOpacity;
    const QColor color = QColor::fromRgbF(0, 0, 0, qBound(0.0, opacity, 1.0));
    painter.setPen(QPen(color, 1, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));

    // Where two sides meet, the corner pixel belongs to the vertical one.
    const QRect line = rect.adjusted(i, i, -i, -i);
    if (left)
        painter.drawLine(line.left(), rect.top() + leftTop, line.left(), rect.bottom() - leftBottom);
    if (right)
        painter.drawLine(line.right(), rect.top() + rightTop, line.right(), rect.bottom() - rightBottom);
    if (top)
        painter.drawLine(rect.left() + leftTop + (left ? 1 : 0), line.top(),
                         rect.right() - rightTop - (right ? 1 : 0), line.top());
    if (bottom)
        painter.drawLine(rect.left() + leftBottom + (left ? 1 : 0), line.bottom(),
                         rect.right() - rightBottom - (right ? 1 : 0), line.bottom());
}

void ShadowSimple::paintDropShadow(QPainter &painter, const QRect &rect, bool &dirty)
{
    const QRect shadow = rect.translated(m_dropOffset, m_dropOffset);
    painter.fillRect(shadow, QColor(0, 0, 0, dropShadowAlpha));
    updateArea(rect | shadow);
    dirty = false;
}

/** Has \a area painted, which the shadow takes up now, and the area that it took up before. */
void ShadowSimple::updateArea(const QRect &area)
{
    if (area == m_lastRect)
        return;
    update(area);
    if (m_lastRect.isValid())
        update(m_lastRect);
    m_lastRect = area;
}

/** Forgets the blur. It is in use by the paint that goes on, so it is taken off when that has ended. */
void ShadowSimple::dropBlurEffect()
{
    if (!m_blurEffect)
        return;
    const QPointer<QGraphicsBlurEffect> blurEffect = std::exchange(m_blurEffect, nullptr);
    QMetaObject::invokeMethod(
        this,
        [this, blurEffect] {
            if (graphicsEffect() == blurEffect)
                setGraphicsEffect(nullptr);
        },
        Qt::QueuedConnection);
}

/** Puts the overlay above its siblings, or below them; other overlays do not count. */
void ShadowSimple::raiseTest(bool lower)
{
    if (!m_host)
        return;
    const QObjectList &siblings = m_host->children();
    const int step = lower ? -1 : 1;
    const int own = siblings.indexOf(this);
    if (own < 0)
        return; // it lives elsewhere by now
    for (int i = own + step; i >= 0 && i < siblings.size(); i += step) {
        if (siblings[i]->isWidgetType() && !qobject_cast<ShadowSimple *>(siblings[i])) {
            lower ? this->lower() : raise();
            return;
        }
    }
}

void ShadowSimple::lowerTest()
{
    raiseTest(true);
}

void ShadowSimple::startHiddenCheckTimer()
{
    if (m_hiddenCheckTimerId == 0)
        m_hiddenCheckTimerId = startTimer(hiddenCheckInterval, Qt::CoarseTimer);
}

void ShadowSimple::stopHiddenCheckTimer()
{
    if (m_hiddenCheckTimerId == 0)
        return;
    killTimer(m_hiddenCheckTimerId);
    m_hiddenCheckTimerId = 0;
}

} // namespace NVO
