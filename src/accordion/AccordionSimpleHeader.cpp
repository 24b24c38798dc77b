#include <nvo/AccordionSimpleHeader.h>

#include "theme/StyleSupport.h"

#include <nvo/AccordionBoxIndicator.h>
#include <nvo/Label.h>

#include <QEvent>
#include <QHBoxLayout>

namespace NVO {

namespace {

QWidget *makeSpacer(const QString &name, QWidget *parent)
{
    auto *spacer = new QWidget(parent);
    spacer->setObjectName(name);
    return spacer;
}

} // namespace

AccordionSimpleHeader::AccordionSimpleHeader(AccordionPart *part, QWidget *parent)
    : QWidget(parent)
    , m_spacerBeforeIndicator(makeSpacer(QStringLiteral("spacerBeforeIndicator"), this))
    , m_spacerBetweenColorAndIndicator(makeSpacer(QStringLiteral("spacerBetweenColorAndIndicator"), this))
    , m_leftLabelWidget(new Label(this))
    , m_rightLabelWidget(new Label(this))
{
    // Before the indicator, whose sheet Qt would parse again.
    StyleSupport::applySheet(this, ElementAccordion);
    m_boxIndicator = new AccordionBoxIndicator(this);
    m_indicator = new AccordionIndicator(part, this);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_spacerBeforeIndicator);
    layout->addWidget(m_boxIndicator);
    layout->addWidget(m_spacerBetweenColorAndIndicator);
    layout->addWidget(m_indicator);
    layout->addWidget(makeSpacer(QStringLiteral("spacerBetweenIndicatoAndText"), this));
    layout->addWidget(m_leftLabelWidget);
    layout->addWidget(makeSpacer(QStringLiteral("spacerBetweenTexts"), this));
    layout->addWidget(m_rightLabelWidget);
    layout->addWidget(makeSpacer(QStringLiteral("spacerAfterTexts"), this));

    m_spacerBeforeIndicator->hide();
    m_leftLabelWidget->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_leftLabelWidget->setTextInteractionFlags(Qt::NoTextInteraction);
    m_rightLabelWidget->setTextInteractionFlags(Qt::NoTextInteraction);
    connect(m_boxIndicator, &AccordionBoxIndicator::pressed, this,
            &AccordionSimpleHeader::coloredIndicatorPressed);
    alignLeftText();
}

void AccordionSimpleHeader::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LayoutDirectionChange)
        alignLeftText();
    QWidget::changeEvent(event);
}

/** Keeps the text beside the arrow; rich text would stand by the direction of its letters. */
void AccordionSimpleHeader::alignLeftText()
{
    const Qt::Alignment side = isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft;
    m_leftLabelWidget->setAlignment(side | Qt::AlignAbsolute | Qt::AlignVCenter);
}

void AccordionSimpleHeader::setLeftText(const QString &text)
{
    if (m_leftTextValue == text)
        return;
    m_leftTextValue = text;
    updateLeftLabel();
}

void AccordionSimpleHeader::setLeftTextHighlight(bool highlight)
{
    if (m_leftTextHighlight == highlight)
        return;
    m_leftTextHighlight = highlight;
    updateLeftLabel();
}

void AccordionSimpleHeader::updateLeftLabel()
{
    m_leftLabelWidget->setText(m_leftTextHighlight
                                   ? QLatin1String("<b>") + m_leftTextValue + QLatin1String("</b>")
                                   : m_leftTextValue);
}

void AccordionSimpleHeader::setRightText(const QString &text)
{
    m_rightLabelWidget->setText(text);
}

QString AccordionSimpleHeader::rightText() const
{
    return m_rightLabelWidget->text();
}

void AccordionSimpleHeader::setColorIndicatorVisible(bool visible)
{
    m_boxIndicator->setVisible(visible);
    updateSpacerVisibility();
}

bool AccordionSimpleHeader::isColorIndicatorVisible() const
{
    return m_boxIndicator->isVisibleTo(this);
}

void AccordionSimpleHeader::setColorIndicatorHighlight(bool highlight)
{
    m_boxIndicator->setColoredBoxState(highlight ? AccordionBoxIndicator::Highlight
                                                 : AccordionBoxIndicator::Normal);
}

bool AccordionSimpleHeader::colorIndicatorHightlight() const
{
    return m_boxIndicator->coloredBoxIndicatorStyle() == AccordionBoxIndicator::Highlight;
}

void AccordionSimpleHeader::setIndicatorVisible(bool visible)
{
    m_indicator->setVisible(visible);
    updateSpacerVisibility();
}

bool AccordionSimpleHeader::isIndicatorVisible() const
{
    return m_indicator->isVisibleTo(this);
}

void AccordionSimpleHeader::setIndicatorSize(AccordionIndicator::IndicatorSize size)
{
    m_indicator->setIndicatorSize(size);
}

void AccordionSimpleHeader::updateSpacerVisibility()
{
    const bool box = isColorIndicatorVisible();
    const bool arrow = isIndicatorVisible();
    m_spacerBeforeIndicator->setVisible(arrow && !box);
    m_spacerBetweenColorAndIndicator->setVisible(arrow && box);
}

} // namespace NVO
