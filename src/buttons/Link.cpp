#include <nvo/Link.h>

#include "theme/StyleSupport.h"

#include <QEvent>

namespace NVO {

Link::Link(QWidget *parent)
    : AbstractButton(parent)
{
    initStyleSheet();
}

void Link::setLinkStyle(LinkStyle style)
{
    if (m_linkStyle == style)
        return;
    m_linkStyle = style;
    initStyleSheet();
}

bool Link::event(QEvent *event)
{
    if (event->type() == QEvent::ApplicationFontChange) {
        initStyleSheet();
        return true;
    }
    return QPushButton::event(event);
}

void Link::initStyleSheet()
{
    StyleSupport::applyStyle(this, ElementLink, StyleSupport::enumKey(m_linkStyle));
    resolveStateProperties();
}

} // namespace NVO
