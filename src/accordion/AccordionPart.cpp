#include <nvo/AccordionPart.h>

#include "accordion/AccordionContent.h"
#include "accordion/AccordionHeader.h"
#include "accordion/AccordionSeparatorLine.h"
#include "theme/StyleSupport.h"

#include <QAccessible>
#include <QVBoxLayout>

namespace NVO {

namespace {

void tellAssistiveTechnology(AccordionHeader *header)
{
    QAccessible::State changed;
    changed.expanded = true;
    changed.collapsed = true;
    QAccessibleStateChangeEvent event(header, changed);
    QAccessible::updateAccessibility(&event);
}

} // namespace

AccordionPart::AccordionPart(QWidget *parent)
    : QWidget(parent)
    , m_header(new AccordionHeader(this))
    , m_content(new AccordionContent(this))
    , m_topLine(new AccordionSeparatorLine(AccordionSeparatorLine::AboveHeader, this))
    , m_bottomLine(new AccordionSeparatorLine(AccordionSeparatorLine::BelowHeader, this))
{
    setAttribute(Qt::WA_LayoutUsesWidgetRect);
    setAttribute(Qt::WA_StyledBackground); // so that the sheet can frame header and content as one
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    for (QWidget *widget : {static_cast<QWidget *>(m_topLine), static_cast<QWidget *>(m_header),
                            static_cast<QWidget *>(m_bottomLine), static_cast<QWidget *>(m_content)})
        layout->addWidget(widget);

    connect(m_header, &AccordionHeader::clicked, this, &AccordionPart::stateChangeRequest);
    connect(m_header, &AccordionHeader::styleStateChanged, this, &AccordionPart::styleStateChanged);
    connect(m_content, &AccordionContent::stateChanged, m_header,
            [this] { tellAssistiveTechnology(m_header); });
    connect(m_content, &AccordionContent::stateChanged, this, &AccordionPart::stateChanged);
    connect(m_content, &AccordionContent::animationStateChanged, this, &AccordionPart::animationStateChanged);
    connect(m_content, &AccordionContent::animationStarted, this, &AccordionPart::animationStarted);
    connect(m_content, &AccordionContent::stateChangedWithoutAnimation, this,
            &AccordionPart::stateChangedWithoutAnimation);
    connect(m_content, &AccordionContent::animationFinished, this, &AccordionPart::animationFinished);

    m_topLine->setPartBelow(this);
    m_bottomLine->setPartAbove(this);
}

/** A part that is a window loses the focus while it is only a QWidget any more. */
AccordionPart::~AccordionPart()
{
    disconnect(m_header, nullptr, this, nullptr);
    disconnect(m_content, nullptr, this, nullptr);
}

void AccordionPart::setHeader(QWidget *widget)
{
    m_header->setHeader(widget);
}

void AccordionPart::setContent(QWidget *widget)
{
    m_content->setContent(widget);
}

void AccordionPart::setHeaderMargin(int horizontal, int vertical)
{
    m_header->layout()->setContentsMargins(horizontal, vertical, horizontal, vertical);
}

void AccordionPart::setSharedBorder(bool shared)
{
    m_sharedBorder = shared;
    m_topLine->setVisibleByBorder(shared);
    m_bottomLine->setVisibleByBorder(shared);
}

void AccordionPart::setShadowEnabled(bool enabled)
{
    m_content->setShadowEnabled(enabled);
}

void AccordionPart::setNextPart(AccordionPart *part)
{
    if (part != this)
        m_bottomLine->setPartBelow(part);
}

void AccordionPart::setPreviousPart(AccordionPart *part)
{
    if (part != this)
        m_topLine->setPartAbove(part);
}

void AccordionPart::setLastAccordionPart(bool last)
{
    const QString name = last ? QStringLiteral("last") : QString();
    if (m_content->objectName() == name)
        return;
    m_content->setObjectName(name);
    StyleSupport::repolish(m_content);
}

void AccordionPart::setState(AccordionState state)
{
    m_content->setState(state);
}

void AccordionPart::setStateAnimated(AccordionState state)
{
    m_content->animateTo(state, 1);
}

void AccordionPart::animateExpand(int speed)
{
    m_content->animateTo(AccordionState::Expanded, speed);
}

void AccordionPart::animateHide(int speed)
{
    m_content->animateTo(AccordionState::Hidden, speed);
}

void AccordionPart::animateToggle(int speed)
{
    if (state() == AccordionState::Expanded)
        animateHide(speed);
    else
        animateExpand(speed);
}

AccordionState AccordionPart::state() const
{
    return m_content->state();
}

AnimatedAccordionState AccordionPart::animationState() const
{
    return m_content->animationState();
}

QFlags<AccordionHeaderStyleState> AccordionPart::styleState() const
{
    return m_header->styleState();
}

} // namespace NVO
