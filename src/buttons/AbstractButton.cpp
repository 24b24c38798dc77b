#include <nvo/AbstractButton.h>

#include "buttons/AccessibleButton.h"
#include "theme/SheetStates.h"
#include "theme/StyleSupport.h"

#include <nvo/Icon.h>
#include <nvo/Pixmap.h>

#include <QEvent>
#include <QFontMetrics>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QStyle>
#include <QStyleOptionButton>
#include <QVariant>

#include <optional>

namespace NVO {

namespace {

constexpr double iconSpacing = 5.0; // between icon and text
constexpr double menuSpacing = 5.0; // between text and menu indicator
constexpr QSize menuIndicatorSize(9, 5);
constexpr int menuIndicatorGap = 5; // what the text area leaves beside it

void setShape(QCursor *stored, const QCursor &cursor)
{
    if (stored->shape() != cursor.shape())
        *stored = cursor;
}

template <typename Value>
void takeOver(const std::optional<Value> &read, Value *stored)
{
    if (read)
        *stored = *read;
}

/** What an icon takes of the width in front of the text. */
int iconExtent(const QSize &iconSize)
{
    return int(iconSize.width() + iconSpacing);
}

} // namespace

AbstractButton::AbstractButton(QWidget *parent)
    : QPushButton(parent)
{
    AccessibleButton::install();
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    connect(this, &QPushButton::pressed, this, &AbstractButton::slotPressed);
}

void AbstractButton::setFocusColor(const QColor &color)
{
    m_focusColor = color;
}

void AbstractButton::setFocusUnderlineColor(const QColor &color)
{
    m_focusUnderlineColor = color;
}

void AbstractButton::setHoverColor(const QColor &color)
{
    m_hoverColor = color;
}

void AbstractButton::setHoverUnderlineColor(const QColor &color)
{
    m_hoverUnderlineColor = color;
}

void AbstractButton::setPressedColor(const QColor &color)
{
    m_pressedColor = color;
}

void AbstractButton::setPressedUnderlineColor(const QColor &color)
{
    m_pressedUnderlineColor = color;
}

void AbstractButton::setHoverCursor(const QCursor &cursor)
{
    setShape(&m_hoverCursor, cursor);
}

void AbstractButton::setPressedCursor(const QCursor &cursor)
{
    setShape(&m_pressedCursor, cursor);
}

void AbstractButton::setMenuIndicatorIcon(const QString &fileName)
{
    m_menuIndicatorIcon = fileName;
}

void AbstractButton::setTextAlignment(Qt::Alignment alignment)
{
    if (m_textAlignment == alignment)
        return;
    m_textAlignment = alignment;
    update();
}

void AbstractButton::resolveStateProperties()
{
    const SheetStates states = SheetStates::read(styleSheet(), property("style").toString());
    takeOver(states.focus.text, &m_focusColor);
    takeOver(states.focus.underline, &m_focusUnderlineColor);
    takeOver(states.hover.text, &m_hoverColor);
    takeOver(states.hover.underline, &m_hoverUnderlineColor);
    takeOver(states.pressed.text, &m_pressedColor);
    takeOver(states.pressed.underline, &m_pressedUnderlineColor);
    takeOver(states.menuIndicator, &m_menuIndicatorIcon);
}

QSize AbstractButton::sizeHint() const
{
    ensurePolished();
    const QFontMetrics metrics = fontMetrics();
    QSize size(metrics.horizontalAdvance(text()), metrics.height());
    if (!icon().isNull()) {
        const QSize actual = icon().actualSize(iconSize(), QIcon::Normal, QIcon::Off);
        size.rwidth() += iconExtent(actual);
        size.setHeight(qMax(size.height(), actual.height()));
    }
    if (hasMenuIndicator()) {
        size.rwidth() += int(menuSpacing);
        const QList<QSize> sizes =
            Icon(QPixmap(m_menuIndicatorIcon)).availableSizes(QIcon::Normal, QIcon::Off);
        if (!sizes.isEmpty()) {
            size.rwidth() += sizes.first().width();
            size.setHeight(qMax(size.height(), sizes.first().height()));
        }
    }
    return size;
}

bool AbstractButton::hasMenuIndicator() const
{
    return menu() && !m_menuIndicatorIcon.isEmpty();
}

void AbstractButton::paintEvent(QPaintEvent *)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    QPainter painter(this);
    painter.setLayoutDirection(layoutDirection());
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);

    const QColor textColor = stateColor(m_focusColor, m_hoverColor, m_pressedColor);
    if (textColor.isValid())
        painter.setPen(textColor);
    if (font().underline()) {
        QFont plain = font();
        plain.setUnderline(false);
        painter.setFont(plain);
    }
    const QRect text = paintText(&painter, textArea());

    const QColor underlineColor =
        stateColor(m_focusUnderlineColor, m_hoverUnderlineColor, m_pressedUnderlineColor);
    if (underlineColor.isValid())
        painter.setPen(underlineColor);
    if (showsUnderline())
        paintUnderline(&painter, text);

    if (!icon().isNull())
        paintIcon(&painter, text);
    if (hasMenuIndicator())
        paintMenuIndicator(&painter, text);
}

bool AbstractButton::showsFocus() const
{
    return hasFocus() && !m_hovered && !m_pressed;
}

bool AbstractButton::showsHover() const
{
    return m_hovered && underMouse() && isEnabled();
}

bool AbstractButton::showsPressed() const
{
    return m_pressed && underMouse();
}

bool AbstractButton::showsUnderline() const
{
    return font().underline() || (hasFocus() && m_focusUnderlineColor.isValid())
           || (showsHover() && m_hoverUnderlineColor.isValid())
           || (showsPressed() && m_pressedUnderlineColor.isValid());
}

/** The valid colour of the strongest state that shows; invalid if there is none. */
QColor AbstractButton::stateColor(const QColor &focus, const QColor &hover, const QColor &pressed) const
{
    if (showsPressed() && pressed.isValid())
        return pressed;
    if (showsHover())
        return hover; // a button that is hovered never shows its focus
    return showsFocus() ? focus : QColor();
}

QIcon::Mode AbstractButton::iconMode() const
{
    if (!isEnabled())
        return QIcon::Disabled;
    if (m_pressed)
        return QIcon::Selected;
    return m_hovered ? QIcon::Active : QIcon::Normal;
}

/** What icon and menu indicator leave of the button. */
QRect AbstractButton::textArea() const
{
    QRect area = rect();
    if (!icon().isNull())
        area.setLeft(area.left() + iconExtent(icon().actualSize(iconSize(), QIcon::Normal, QIcon::Off)));
    if (hasMenuIndicator())
        area.setWidth(area.width() - menuIndicatorSize.width() - menuIndicatorGap);
    return QStyle::visualRect(layoutDirection(), rect(), area);
}

/** Paints the text, if there is one; returns where it stands. */
QRect AbstractButton::paintText(QPainter *painter, const QRect &area) const
{
    if (text().isEmpty())
        return area;
    QRect place = area;
    if (!icon().isNull())
        isRightToLeft() ? place.setRight(place.right() - 1) : place.setLeft(place.left() + 1);
    QRect bounds;
    painter->drawText(place, int(m_textAlignment), text(), &bounds);
    return bounds;
}

void AbstractButton::paintUnderline(QPainter *painter, const QRect &text) const
{
    const QFontMetrics metrics = fontMetrics();
    const qreal y = text.y() + metrics.ascent() + metrics.underlinePos() + 1.0;
    painter->drawLine(QPointF(text.x() + 0.5, y), QPointF(text.x() + text.width() - 0.5, y));
}

void AbstractButton::paintIcon(QPainter *painter, const QRect &text) const
{
    const QPixmap pixmap = StyleSupport::iconPixmap(icon(), iconSize(), this, iconMode());
    paintBeside(painter, pixmap, text, true, iconSpacing);
}

void AbstractButton::paintMenuIndicator(QPainter *painter, const QRect &text) const
{
    const Icon indicator{Pixmap(m_menuIndicatorIcon)};
    const QPixmap pixmap = StyleSupport::iconPixmap(indicator, menuIndicatorSize, this, iconMode());
    paintBeside(painter, pixmap, text, false, menuSpacing);
}

/** Paints \a pixmap where the reader finds it before or behind \a text. */
void AbstractButton::paintBeside(QPainter *painter, const QPixmap &pixmap, const QRect &text, bool before,
                                 qreal gap) const
{
    if (pixmap.isNull())
        return;
    const QSizeF size = QSizeF(pixmap.size()) / pixmap.devicePixelRatio();
    const qreal left =
        before != isRightToLeft() ? text.x() - size.width() - gap : text.x() + text.width() + gap;
    painter->drawPixmap(QPointF(left, (height() - size.height()) * 0.5), pixmap);
}

void AbstractButton::enterEvent(QEvent *event)
{
    QPushButton::enterEvent(event);
    m_hovered = true;
    if (StyleSupport::isSet(m_hoverCursor)) {
        m_savedCursor = cursor();
        setCursor(m_hoverCursor);
    }
}

void AbstractButton::leaveEvent(QEvent *event)
{
    m_hovered = false;
    if (StyleSupport::isSet(m_hoverCursor))
        setCursor(m_savedCursor);
    QPushButton::leaveEvent(event);
}

void AbstractButton::mousePressEvent(QMouseEvent *event)
{
    const bool begins = event->button() == Qt::LeftButton && event->buttons().testFlag(Qt::LeftButton);
    if (begins)
        beginPress();
    const QPointer<AbstractButton> alive(this);
    QAbstractButton::mousePressEvent(event);
    // A menu or a dialog that was opened has got the release.
    if (begins && alive && !isDown())
        endPress();
}

void AbstractButton::mouseReleaseEvent(QMouseEvent *event)
{
    endPress();
    QAbstractButton::mouseReleaseEvent(event);
}

void AbstractButton::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        endPress(); // no release will come
    QPushButton::changeEvent(event);
}

void AbstractButton::hideEvent(QHideEvent *event)
{
    endPress(); // no release will come
    QPushButton::hideEvent(event);
}

void AbstractButton::beginPress()
{
    m_pressed = true;
    if (StyleSupport::isSet(m_pressedCursor)) {
        m_savedCursor = cursor();
        setCursor(m_pressedCursor);
    }
}

void AbstractButton::endPress()
{
    if (!m_pressed)
        return;
    m_pressed = false;
    if (StyleSupport::isSet(m_pressedCursor))
        setCursor(m_savedCursor);
}

void AbstractButton::slotPressed()
{
    // While a menu is open no leave event comes.
    if (menu())
        m_hovered = false;
}

} // namespace NVO
