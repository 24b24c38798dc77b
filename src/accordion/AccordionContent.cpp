#include "accordion/AccordionContent.h"

#include "accordion/AccordionSlot.h"

#include <nvo/ShadowSimple.h>

#include <QEvent>
#include <QPropertyAnimation>
#include <QVBoxLayout>

#include <array>
#include <cmath>

namespace NVO {

namespace {

constexpr int fullTime = 200; // milliseconds from closed to open at speed 1
constexpr double leastStep = 0.1;
constexpr int shadowWidth = 2;
constexpr double shadowStartOpacity = 0.1;
constexpr double shadowEndOpacity = 0.03;

/** The machine: where a change to a state leads. */
struct Target
{
    AnimatedAccordionState onTheWay;
    AnimatedAccordionState arrived;
    double hiddenPercent;
};

// In the order of AccordionState.
constexpr std::array<Target, 2> targets{{
    {AnimatedAccordionState::Expanding, AnimatedAccordionState::Expanded, 0.0},
    {AnimatedAccordionState::Hiding, AnimatedAccordionState::Hidden, 100.0},
}};

const Target &targetOf(AccordionState state)
{
    return targets[state == AccordionState::Expanded ? 0 : 1];
}

} // namespace

AccordionContent::AccordionContent(AccordionPart *part)
    : QScrollArea(part)
    , m_viewportWidget(new QWidget)
    , m_animation(new QPropertyAnimation(this, "hiddenPercent", this))
    , m_shadow(new ShadowSimple(m_viewportWidget, part, shadowWidth, shadowStartOpacity, shadowEndOpacity))
{
    m_viewportWidget->setObjectName(QStringLiteral("viewport"));
    auto *layout = new QVBoxLayout(m_viewportWidget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);

    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameStyle(QFrame::Plain);
    setWidgetResizable(false);
    setWidget(m_viewportWidget);
    m_viewportWidget->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
    setAttribute(Qt::WA_LayoutUsesWidgetRect);
    // A scroll area would take all the room there is as soon as it shows, and nothing would slide.
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    setFocusPolicy(Qt::NoFocus);

    m_shadow->useShadow(ShadowTop, ShadowInner, true);
    connect(m_animation, &QPropertyAnimation::finished, this, &AccordionContent::finish);
    hide();
}

void AccordionContent::setContent(QWidget *widget)
{
    AccordionSlot::exchange(m_contentWidget, widget, m_viewportWidget);
}

void AccordionContent::setShadowEnabled(bool enabled)
{
    m_shadow->setShadowEnabled(enabled);
    m_shadow->setVisible(enabled); // an empty overlay is painted in each frame too
}

/**
 * Emits one signal after the other, as long as this lives and no slot has changed the state again. Returns
 * whether it came to the end.
 */
template <typename... Emissions>
bool AccordionContent::announce(Emissions... emissions)
{
    const QPointer<AccordionContent> alive(this);
    const quint32 change = m_changes;
    return ((emissions(), alive && change == m_changes) && ...);
}

void AccordionContent::setState(AccordionState target)
{
    if (m_state == target)
        return;
    m_state = target;
    m_animationState = targetOf(target).arrived;
    ++m_changes;
    m_animation->stop();
    announce([this] { hidePercent(targetOf(m_state).hiddenPercent); },
             [this] { Q_EMIT stateChanged(m_state); },
             [this] { Q_EMIT stateChangedWithoutAnimation(m_state); },
             [this] { Q_EMIT animationStateChanged(m_animationState); });
}

void AccordionContent::animateTo(AccordionState target, int speed)
{
    if (m_state == target)
        return;
    const double to = targetOf(target).hiddenPercent;
    double from = targetOf(m_state).hiddenPercent;
    int baseTime = fullTime;
    if (m_animation->state() == QAbstractAnimation::Running) {
        from = m_animation->currentValue().toDouble();
        baseTime = int(qAbs(to - from) / 100 * fullTime);
    }
    const int time = speed > 0 ? baseTime / speed : 0;

    m_state = target;
    m_animationState = targetOf(target).onTheWay;
    ++m_changes;
    startAnimation(from, to, time);
    const bool complete =
        announce([=] { Q_EMIT stateChanged(target); }, [=] { Q_EMIT animationStarted(from, to, time); },
                 [=] { Q_EMIT animationStateChanged(targetOf(target).onTheWay); });
    if (complete && time == 0)
        finish();
}

/** An animation of length 0 is not started: it would end before its beginning is told. */
void AccordionContent::startAnimation(double from, double to, int time)
{
    m_animation->stop();
    m_animation->setDuration(time);
    m_animation->setStartValue(from);
    m_animation->setEndValue(to);
    if (time > 0)
        m_animation->start();
}

void AccordionContent::finish()
{
    m_animationState = targetOf(m_state).arrived;
    // The last step may have been too small to count.
    announce([this] { hidePercent(targetOf(m_state).hiddenPercent); }, [this] { Q_EMIT animationFinished(); },
             [this] { Q_EMIT animationStateChanged(m_animationState); });
}

void AccordionContent::setHiddenPercent(double percent)
{
    if (qAbs(percent - m_hiddenPercent) >= leastStep)
        hidePercent(percent);
}

void AccordionContent::hidePercent(double percent)
{
    if (percent == m_hiddenPercent)
        return;
    m_hiddenPercent = percent;
    setVisible(qAbs(percent - 100.0) > leastStep);
    for (QWidget *widget = this; widget; widget = widget->parentWidget())
        widget->updateGeometry();
}

QSize AccordionContent::visibleSize(QSize size) const
{
    size += QSize(2 * frameWidth(), 2 * frameWidth());
    return {size.width(), int(size.height() * (100.0 - m_hiddenPercent) / 100.0)};
}

QSize AccordionContent::sizeHint() const
{
    return visibleSize(m_viewportWidget->sizeHint());
}

QSize AccordionContent::minimumSizeHint() const
{
    return visibleSize(m_viewportWidget->minimumSizeHint());
}

bool AccordionContent::hasHeightForWidth() const
{
    return m_viewportWidget->hasHeightForWidth();
}

int AccordionContent::heightForWidth(int width) const
{
    const int full = m_viewportWidget->heightForWidth(width - frameWidth());
    return 2 * frameWidth() - int(std::trunc((m_hiddenPercent - 100.0) * full / 100.0));
}

bool AccordionContent::event(QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest) {
        updateGeometry();
        fitViewportWidget(); // this may keep its own size
    }
    return QScrollArea::event(event);
}

void AccordionContent::resizeEvent(QResizeEvent *event)
{
    fitViewportWidget();
    QScrollArea::resizeEvent(event);
}

void AccordionContent::fitViewportWidget()
{
    const int width = size().width() - 2 * frameWidth();
    const int height = m_viewportWidget->hasHeightForWidth() ? m_viewportWidget->heightForWidth(width)
                                                             : m_viewportWidget->sizeHint().height();
    m_viewportWidget->resize(width, height);
}

} // namespace NVO
