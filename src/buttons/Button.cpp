#include <nvo/Button.h>

#include "theme/StyleSupport.h"

#include <nvo/GraphicsEffect.h>
#include <nvo/Icon.h>
#include <nvo/Pixmap.h>
#include <nvo/Product.h>

#include <QEvent>
#include <QPointer>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QTextOption>

#include <algorithm>

namespace NVO {

namespace {

constexpr int textMinimumWidth = 100; // of Normal and Primary
constexpr QSize breadcrumbSize(16, 16);
constexpr QSize macCloseSize(14, 14);
constexpr int edgeMargin = 10;     // from the icon of Right and Left to the edge
constexpr int edgeAndSpacing = 18; // the same plus what is between icon and text
constexpr int textInset = 20;      // what Left leaves of the width besides the icon
constexpr int backstageSpacing = 10;

QIcon::Mode iconMode(const QAbstractButton &button)
{
    if (!button.isEnabled())
        return QIcon::Disabled;
    if (button.isDown())
        return QIcon::Selected;
    return button.underMouse() ? QIcon::Active : QIcon::Normal;
}

} // namespace

Button::Button(QWidget *parent)
    : QPushButton(parent)
{
    setCursor(Qt::PointingHandCursor);
    setGraphicsEffect(createDefaultShadowEffectRect());
    initStyleSheet();
}

void Button::setButtonStyle(ButtonStyle style)
{
    if (m_buttonStyle == style)
        return;
    m_buttonStyle = style;
    initStyleSheet();
}

void Button::setShadowEnabled(bool enabled)
{
    m_shadowEnabled = enabled;
    updateGraphicsEffect();
}

QSize Button::sizeHint() const
{
    return houseSize(QPushButton::sizeHint());
}

QSize Button::minimumSizeHint() const
{
    return houseSize(QPushButton::minimumSizeHint());
}

QSize Button::houseSize(QSize size) const
{
    switch (m_buttonStyle) {
    case Breadcrumb:
        return breadcrumbSize;
    case MacClose:
        return macCloseSize;
    case Normal:
    case Primary:
        return size.expandedTo(QSize(textMinimumWidth, 0));
    default:
        return size;
    }
}

bool Button::event(QEvent *event)
{
    if (event->type() == QEvent::ApplicationFontChange) {
        initStyleSheet();
        return true;
    }
    return QPushButton::event(event);
}

void Button::mousePressEvent(QMouseEvent *event)
{
    const QPointer<Button> alive(this);
    QPushButton::mousePressEvent(event);
    if (alive)
        updateGraphicsEffect();
}

void Button::mouseReleaseEvent(QMouseEvent *event)
{
    const QPointer<Button> alive(this);
    QPushButton::mouseReleaseEvent(event);
    if (alive)
        updateGraphicsEffect();
}

void Button::paintEvent(QPaintEvent *event)
{
    switch (m_buttonStyle) {
    case Right:
    case Left:
    case Backstage:
        paintIconAndText();
        break;
    case Menu:
        paintMenuEntry();
        break;
    case Breadcrumb:
    case MacClose:
        paintIconOnly();
        break;
    default:
        QPushButton::paintEvent(event);
    }
}

void Button::paintIconAndText()
{
    QStyleOptionButton option;
    initStyleOption(&option);
    QStylePainter painter(this);
    painter.drawPrimitive(QStyle::PE_Widget, option);

    const int iconWidth = iconSize().width();
    const int iconHeight = iconSize().height();
    const int iconTop = (height() - iconHeight) / 2;
    const int textHeight = fontMetrics().height();
    const int textTop = (height() - textHeight) / 2;
    const QPixmap pixmap = icon().pixmap(iconWidth, iconHeight, QIcon::Normal, QIcon::Off);

    switch (m_buttonStyle) {
    case Right:
        painter.drawText(QRect(0, 0, width() - edgeAndSpacing - iconWidth, height()),
                         int(Qt::AlignCenter | Qt::AlignRight), text());
        painter.drawPixmap(QRect(width() - edgeMargin - iconWidth, iconTop, iconWidth, iconHeight), pixmap);
        break;
    case Left:
        painter.drawPixmap(QRect(edgeMargin, iconTop, iconWidth, iconHeight), pixmap);
        painter.drawText(
            QRect(iconWidth + edgeAndSpacing, textTop, width() - textInset - iconWidth, height()),
            Qt::AlignLeft, text());
        break;
    default: {
        const int textWidth = fontMetrics().horizontalAdvance(text());
        const int left = (width() - (textWidth + backstageSpacing + iconWidth)) / 2;
        painter.drawPixmap(QRect(left, iconTop, iconWidth, iconHeight), pixmap);
        // The text may be a part of a pixel wider than its rectangle, and must not lose its last word then.
        QTextOption unwrapped;
        unwrapped.setWrapMode(QTextOption::NoWrap);
        painter.drawText(QRect(left + backstageSpacing + iconWidth, textTop, textWidth, textHeight), text(),
                         unwrapped);
    }
    }
}

void Button::paintMenuEntry()
{
    QStyleOptionButton option;
    initStyleOption(&option);
    if (underMouse())
        option.state |= QStyle::State_HasFocus;
    QStylePainter(this).drawControl(QStyle::CE_PushButton, option);
}

void Button::paintIconOnly()
{
    QPainter painter(this);
    painter.drawPixmap(0, 0, icon().pixmap(sizeHint(), iconMode(*this), QIcon::Off));
}

void Button::initStyleSheet()
{
    QString fontVariant;
    switch (m_buttonStyle) {
    case Close:
    case FlyoutClose:
        setIcon(StyleSupport::fileIcon(QStringLiteral(":/close")));
        break;
    case CloseDark:
    case FlyoutCloseDark:
        setIcon(StyleSupport::fileIcon(QStringLiteral(":/close_hell")));
        break;
    case MacClose:
        setIcon(Icon(Pixmap(QStringLiteral(":/macclose"))));
        break;
    case Backstage:
        fontVariant = QStringLiteral("HIGHLIGHT");
        break;
    default:
        break;
    }

    StyleSupport::applyStyle(this, ElementButton, StyleSupport::enumKey(m_buttonStyle), fontVariant);

    setFocusPolicy(m_buttonStyle == Menu ? Qt::NoFocus : Qt::StrongFocus);

    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Fixed, QSizePolicy::DefaultType);
    if (m_buttonStyle == Menu) {
        policy.setHorizontalPolicy(QSizePolicy::Minimum);
    } else if (m_buttonStyle == Breadcrumb || m_buttonStyle == MacClose) {
        policy.setHorizontalPolicy(QSizePolicy::Fixed);
        setMouseTracking(true);
    }
    setSizePolicy(policy);

    updateGraphicsEffect();
}

void Button::updateGraphicsEffect()
{
    const bool wide = m_buttonStyle == Normal || m_buttonStyle == Primary;
    const bool directed = m_buttonStyle == Left || m_buttonStyle == Right;
    const bool show =
        m_shadowEnabled && !isDown() && (wide || (directed && Product::instance().variant == 0));
    if (auto *effect = qobject_cast<GraphicsEffect *>(graphicsEffect()))
        effect->setEnabled(show);
}

} // namespace NVO
