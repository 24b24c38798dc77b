#include <nvo/AccordionIndicator.h>

#include "theme/StyleSupport.h"

#include <nvo/Pixmap.h>

#include <QPainter>
#include <QPropertyAnimation>
#include <QTransform>

namespace NVO {

namespace {

constexpr int side = 16;
constexpr double centre = side / 2.0;
constexpr double leastStep = 0.00001;
constexpr double closedAngle = -90; // degrees

} // namespace

AccordionIndicator::AccordionIndicator(AccordionPart *part, QWidget *parent)
    : QWidget(parent)
    , m_animation(new QPropertyAnimation(this, "animationPercent", this))
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setIndicatorSize(Small);
    if (!part)
        return;
    stateChangedWithoutAnimaton(part->state());
    connect(part, &AccordionPart::animationStarted, this, &AccordionIndicator::accordionAnimationStarted);
    connect(part, &AccordionPart::stateChangedWithoutAnimation, this,
            &AccordionIndicator::stateChangedWithoutAnimaton);
}

void AccordionIndicator::setAnimationPercent(double percent)
{
    if (qAbs(percent - m_animationPercent) < leastStep)
        return;
    m_animationPercent = percent;
    update();
}

void AccordionIndicator::setIndicatorSize(IndicatorSize size)
{
    m_pixmap = Pixmap(size == Small ? QStringLiteral(":/accordionindicator")
                                    : QStringLiteral(":/accordionindicator_big"));
    update();
}

QSize AccordionIndicator::sizeHint() const
{
    return {side, side};
}

void AccordionIndicator::accordionAnimationStarted(double start, double end, int time)
{
    m_animation->stop();
    m_animation->setStartValue(start);
    m_animation->setEndValue(end);
    m_animation->setDuration(qMax(time, 0));
    m_animation->start();
}

void AccordionIndicator::stateChangedWithoutAnimaton(AccordionState state)
{
    m_animation->stop();
    m_animationPercent = state == AccordionState::Hidden ? 100.0 : 0.0;
    update();
}

void AccordionIndicator::paintEvent(QPaintEvent *)
{
    const double angle = isRightToLeft() ? -closedAngle : closedAngle;
    QTransform turn;
    turn.translate(centre, centre);
    turn.rotate(m_animationPercent * angle / 100.0);
    turn.translate(-centre, -centre);

    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setTransform(turn);
    painter.drawPixmap(QRect(0, 0, side, side),
                       isEnabled() ? m_pixmap
                                   : StyleSupport::iconPixmap(m_pixmap, {side, side}, this, QIcon::Disabled));
}

} // namespace NVO
