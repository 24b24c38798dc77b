#include "ribbon/RibbonGroupButton.h"

#include "theme/StyleSupport.h"

#include <QAccessible>
#include <QFocusEvent>
#include <QFontMetrics>
#include <QPainter>
#include <QStyleOption>

namespace NVO {

namespace {

constexpr QSize iconPlace(32, 32);
constexpr int iconTop = 4;
constexpr int textTop = 38;
constexpr int iconHeightWithGap = 34;
constexpr int horizontalMargins = 8;
constexpr int verticalMargins = 11; // the chevron included
constexpr int widestLine = 80;      // a longer text is split
constexpr int chevronReach = 3;
constexpr int chevronBottom = 4;
constexpr int chevronPen = 2;

} // namespace

RibbonGroupButton::RibbonGroupButton(QWidget *p_parent)
    : QPushButton(p_parent)
{
    setIconSize(iconPlace);
    initStyleSheet(false);
}

bool RibbonGroupButton::isOpen() const
{
    return property("style") == QStringLiteral("open");
}

void RibbonGroupButton::setOpen(bool p_open)
{
    if (p_open == isOpen())
        return;
    initStyleSheet(p_open);
    QAccessible::State changed;
    changed.expanded = true;
    changed.collapsed = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

QSize RibbonGroupButton::minimumSizeHint() const
{
    const bool hasIcon = !icon().isNull();
    if (m_kept.size.isEmpty() || m_kept.text != text() || m_kept.font != font() || m_kept.hasIcon != hasIcon)
        m_kept = {text(), font(), hasIcon, computedSize()};
    return m_kept.size;
}

QSize RibbonGroupButton::computedSize() const
{
    QSize size = icon().isNull() ? QSize(0, 0) : QSize(iconPlace.width(), iconHeightWithGap);
    if (!text().isEmpty()) {
        const QFontMetrics metrics = fontMetrics();
        const QStringList lines = textLines();
        for (const QString &line : lines)
            size.setWidth(qMax(size.width(), metrics.horizontalAdvance(line)));
        size.rheight() += lines.count() * metrics.height();
    }
    return size + QSize(horizontalMargins, verticalMargins);
}

bool RibbonGroupButton::event(QEvent *event)
{
    if (event->type() == QEvent::ApplicationFontChange) {
        initStyleSheet(isOpen());
        return true;
    }
    return QPushButton::event(event);
}

void RibbonGroupButton::focusInEvent(QFocusEvent *event)
{
    Q_EMIT signalFocusInOutEvent(event, true);
    QPushButton::focusInEvent(event);
}

void RibbonGroupButton::focusOutEvent(QFocusEvent *event)
{
    Q_EMIT signalFocusInOutEvent(event, false);
    QPushButton::focusOutEvent(event);
}

void RibbonGroupButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QStyleOption option;
    option.init(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);

    if (!icon().isNull()) {
        const QIcon::Mode mode = isEnabled() ? QIcon::Normal : QIcon::Disabled;
        painter.drawPixmap((width() - iconPlace.width()) / 2, iconTop,
                           StyleSupport::iconPixmap(icon(), iconPlace, this, mode));
    }
    if (!text().isEmpty()) {
        const QFontMetrics metrics = fontMetrics();
        int baseline = textTop + metrics.ascent();
        const QStringList lines = textLines();
        for (const QString &line : lines) {
            painter.drawText((width() - metrics.horizontalAdvance(line)) / 2, baseline, line);
            baseline += metrics.height();
        }
    }
    paintChevron(painter);
}

void RibbonGroupButton::paintChevron(QPainter &painter) const
{
    painter.setPen(QPen(Qt::darkGray, chevronPen));
    const QPoint tip(rect().center().x(), rect().bottom() - chevronBottom);
    painter.drawLine(tip - QPoint(chevronReach, chevronReach), tip);
    painter.drawLine(tip, tip + QPoint(chevronReach, -chevronReach));
}

/** The text on one line, or on two that are broken at a blank behind the middle. */
QStringList RibbonGroupButton::textLines() const
{
    const QString whole = text();
    const int half = whole.length() / 2;
    const int blank = whole.indexOf(QLatin1Char(' '), half);
    const bool split = fontMetrics().horizontalAdvance(whole) > widestLine && half > 0 && blank >= 0
                       && blank < whole.length() - 1;
    return split ? QStringList{whole.left(blank), whole.mid(blank + 1)} : QStringList{whole};
}

void RibbonGroupButton::initStyleSheet(bool open)
{
    StyleSupport::applyStyle(this, ElementRibbonGroupButton,
                             open ? QStringLiteral("open") : QStringLiteral("default"));
}

} // namespace NVO
