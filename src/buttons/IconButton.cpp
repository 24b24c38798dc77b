#include <nvo/IconButton.h>

#include "theme/StyleSupport.h"

#include <QEvent>
#include <QVariant>

namespace NVO {

namespace {

/** What "style" is called; empty for a foreign value. */
QString styleText(IconButtonStyle style)
{
    switch (style) {
    case IconButtonStyle::Dark:
        return QStringLiteral("Dark");
    case IconButtonStyle::DarkSmall:
        return QStringLiteral("DarkSmall");
    case IconButtonStyle::Light:
        return QStringLiteral("Light");
    case IconButtonStyle::LightSmall:
        return QStringLiteral("LightSmall");
    }
    return QString();
}

bool isSmall(IconButtonStyle style)
{
    return style == IconButtonStyle::DarkSmall || style == IconButtonStyle::LightSmall;
}

} // namespace

IconButton::IconButton(QWidget *parent)
    : AbstractButton(parent)
{
    initStyleSheet();
}

void IconButton::setIconButtonStyle(IconButtonStyle style)
{
    if (m_iconButtonStyle == style)
        return;
    m_iconButtonStyle = style;
    initStyleSheet();
}

bool IconButton::event(QEvent *event)
{
    if (event->type() == QEvent::ApplicationFontChange) {
        initStyleSheet();
        return true;
    }
    return QPushButton::event(event);
}

void IconButton::initStyleSheet()
{
    const QString style = styleText(m_iconButtonStyle);
    const QString variant = isSmall(m_iconButtonStyle) ? QStringLiteral("SMALL") : QString();
    StyleSupport::applyStyle(this, ElementIconButton, style.isEmpty() ? property("style").toString() : style,
                             variant);
    resolveStateProperties();
}

} // namespace NVO
