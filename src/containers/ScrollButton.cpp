#include <nvo/ScrollButton.h>

#include "buttons/AccessibleButton.h"
#include "theme/StyleSupport.h"

#include <nvo/Pixmap.h>

#include <QCoreApplication>
#include <QPainter>
#include <QScrollArea>
#include <QWheelEvent>

namespace NVO {

namespace {

constexpr int buttonHeight = 25;
constexpr int repeatDelay = 400; // milliseconds
constexpr qreal veil = 0.8;      // how much of the ground hides the contents below

/** A scroll button has no text; it is read by what it does. */
class AccessibleScrollButton : public AccessibleButton
{
public:
    using AccessibleButton::AccessibleButton;

    QString text(QAccessible::Text type) const override
    {
        QString own = AccessibleButton::text(type);
        if (type != QAccessible::Name || !own.isEmpty())
            return own;
        return static_cast<ScrollButton *>(button())->direction() == Up
                   ? QStringLiteral("Nach oben scrollen")
                   : QStringLiteral("Nach unten scrollen");
    }
};

QAccessibleInterface *createInterface(const QString &className, QObject *object)
{
    auto *button = StyleSupport::exactly<ScrollButton>(className, object);
    return button ? new AccessibleScrollButton(button) : nullptr;
}

QString styleKey(ScrollButtonStyle style)
{
    switch (style) {
    case ScrollButtonStyle::Dark:
        return QStringLiteral("Dark");
    case ScrollButtonStyle::Light:
        return QStringLiteral("Light");
    case ScrollButtonStyle::Error:
        return QStringLiteral("Error");
    }
    return QString();
}

QString arrowName(Direction direction, ScrollButtonStyle style)
{
    QString name =
        direction == Up ? QStringLiteral(":/scrollarrow_up") : QStringLiteral(":/scrollarrow_down");
    switch (style) {
    case ScrollButtonStyle::Light:
        return name + QLatin1String("_hell");
    case ScrollButtonStyle::Error:
        return name + QLatin1String("_error");
    default:
        return name;
    }
}

/** The room of an arrow of \a size in the middle of \a ground, perhaps larger than that. */
QRect centred(const QSize &size, const QRect &ground)
{
    return {ground.x() + (ground.width() - size.width()) / 2,
            ground.y() + (ground.height() - size.height()) / 2, size.width(), size.height()};
}

} // namespace

ScrollButton::ScrollButton(QWidget *parent)
    : QAbstractButton(parent)
{
    QAccessible::installFactory(createInterface); // does nothing after the first time
    setAttribute(Qt::WA_Hover, true);
    setFixedHeight(buttonHeight);
    setAutoRepeat(true);
    setAutoRepeatDelay(repeatDelay);
    setCursor(Qt::PointingHandCursor);
    initStyleSheet();
}

void ScrollButton::initStyleSheet()
{
    const QString key = styleKey(m_style);
    if (!key.isEmpty())
        setProperty("style", key);
    StyleSupport::applySheet(this, ElementScrollButton);
}

void ScrollButton::setStyle(ScrollButtonStyle style)
{
    if (m_style == style)
        return;
    m_style = style;
    initStyleSheet();
    update();
}

void ScrollButton::setDirection(Direction direction)
{
    m_direction = direction;
}

void ScrollButton::setHoverColor(const QColor &color)
{
    m_hoverColor = color;
}

void ScrollButton::setPressedColor(const QColor &color)
{
    m_pressedColor = color;
}

void ScrollButton::setBorderColor(const QColor &color)
{
    m_borderColor = color;
}

void ScrollButton::paintEvent(QPaintEvent *)
{
    QRect rect = contentsRect().adjusted(0, 0, -2, 0);
    if (m_borderColor != Qt::transparent)
        rect = contentsRect().adjusted(-1, 0, -1, m_direction == Down ? 0 : -1);
    QPainter painter(this);
    paintGround(painter, rect);
    paintArrow(painter, rect);
}

void ScrollButton::paintGround(QPainter &painter, const QRect &rect)
{
    QBrush brush = palette().brush(backgroundRole());
    qreal opacity = 1.0;
    if (m_style != ScrollButtonStyle::Light) {
        if (isDown())
            brush = m_pressedColor;
        else if (isEnabled() && underMouse())
            brush = m_hoverColor;
        else
            opacity = veil;
    }
    painter.setPen(m_borderColor);
    painter.setBrush(brush);
    painter.setOpacity(opacity);
    painter.drawRect(rect);
    painter.setOpacity(1.0);
}

void ScrollButton::paintArrow(QPainter &painter, const QRect &rect)
{
    const Pixmap arrow(arrowName(m_direction, m_style));
    const QSize size(qRound(arrow.width() / arrow.devicePixelRatio()),
                     qRound(arrow.height() / arrow.devicePixelRatio()));
    painter.drawPixmap(centred(size, rect), arrow);
}

void ScrollButton::wheelEvent(QWheelEvent *event)
{
    event->accept();
    if (auto *area = qobject_cast<QScrollArea *>(parentWidget()))
        QCoreApplication::sendEvent(area->viewport(), event);
}

} // namespace NVO
