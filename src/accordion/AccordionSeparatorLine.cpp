#include "accordion/AccordionSeparatorLine.h"

#include <nvo/AccordionPart.h>
#include <nvo/Palette.h>
#include <nvo/Product.h>

#include <QPaintEvent>
#include <QPainter>

namespace NVO {

namespace {

constexpr int thickness = 1;

bool isActive(const AccordionPart *part)
{
    return part && (part->styleState() & (Focused | Pressed));
}

QColor lineColor(bool highlighted)
{
    QString token = QStringLiteral("BASECOLOR_SILVER_GRAY");
    if (highlighted)
        token = QStringLiteral("COLOR_BIG_BUTTON_BORDER_FOCUS");
    else if (Product::instance().variant != 0)
        token = QStringLiteral("COLOR_BIG_BUTTON_BORDER");
    return Palette::instance().namedColor(token);
}

} // namespace

AccordionSeparatorLine::AccordionSeparatorLine(Kind kind, QWidget *parent)
    : QWidget(parent)
    , m_kind(kind)
{
    setFixedHeight(thickness);
}

void AccordionSeparatorLine::setPartAbove(AccordionPart *part)
{
    setPart(m_partAbove, part);
}

void AccordionSeparatorLine::setPartBelow(AccordionPart *part)
{
    setPart(m_partBelow, part);
}

void AccordionSeparatorLine::setPart(QPointer<QObject> &place, AccordionPart *part)
{
    if (place == part)
        return;
    if (place)
        disconnect(place, nullptr, this, nullptr);
    place = part;
    if (part) {
        connect(part, &AccordionPart::styleStateChanged, this, &AccordionSeparatorLine::refresh);
        connect(part, &AccordionPart::animationStateChanged, this, &AccordionSeparatorLine::refresh);
        connect(part, &QObject::destroyed, this, &AccordionSeparatorLine::refresh);
    }
    refresh();
}

void AccordionSeparatorLine::setVisibleByBorder(bool visible)
{
    if (m_visibleByBorder == visible)
        return;
    m_visibleByBorder = visible;
    refresh();
}

void AccordionSeparatorLine::refresh()
{
    // A part that is being deleted is none any more, though the pointer still leads to what is left of it.
    const auto *partAbove = qobject_cast<AccordionPart *>(m_partAbove);
    const auto *partBelow = qobject_cast<AccordionPart *>(m_partBelow);
    const bool collapsedAbove =
        partBelow && partAbove && partAbove->animationState() == AnimatedAccordionState::Hidden;
    const bool shows = m_visibleByBorder && !(m_kind == BelowHeader && collapsedAbove);
    setVisible(shows);
    if (!shows)
        return;
    const bool above = isActive(partAbove);
    const bool below = isActive(partBelow);
    m_highlighted = m_kind == BelowHeader ? above : (collapsedAbove && above) || below;
    update();
}

void AccordionSeparatorLine::paintEvent(QPaintEvent *event)
{
    QPainter(this).fillRect(event->rect(), lineColor(m_highlighted));
}

} // namespace NVO
