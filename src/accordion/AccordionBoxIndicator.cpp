#include <nvo/AccordionBoxIndicator.h>

#include "theme/StyleSupport.h"

#include <QMouseEvent>

namespace NVO {

AccordionBoxIndicator::AccordionBoxIndicator(QWidget *parent)
    : QFrame(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Minimum);
    initStyleSheet();
}

void AccordionBoxIndicator::setColoredBoxState(State state)
{
    if (m_boxState == state)
        return;
    m_boxState = state;
    initStyleSheet();
}

void AccordionBoxIndicator::mousePressEvent(QMouseEvent *event)
{
    event->accept();
    Q_EMIT pressed();
}

void AccordionBoxIndicator::initStyleSheet()
{
    if (m_boxState == Normal)
        setProperty("style", QStringLiteral("Normal"));
    else if (m_boxState == Highlight)
        setProperty("style", QStringLiteral("Highlight"));
    StyleSupport::applySheet(this, ElementAccordionBoxIndicator);
}

} // namespace NVO
