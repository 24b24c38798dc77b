#include <nvo/RibbonButton.h>

#include "ribbon/RibbonAccessible.h"
#include "ribbon/RibbonSupport.h"
#include "theme/StyleSupport.h"

#include <nvo/Action.h>
#include <nvo/Ribbon.h>

#include <QFocusEvent>
#include <QFontMetrics>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace NVO {

namespace {

constexpr QSize largeIcon(32, 32);
constexpr QSize smallIcon(16, 16);
constexpr int iconTextGap = 2;
constexpr int largeMargin = 4;
constexpr int smallMargin = 2;

int marginOf(RibbonControl::SizeMode mode)
{
    return mode == RibbonControl::Large ? largeMargin : smallMargin;
}

QSize iconSizeOf(RibbonControl::SizeMode mode)
{
    switch (mode) {
    case RibbonControl::Large:
        return largeIcon;
    case RibbonControl::Small:
        return smallIcon;
    default:
        return QSize(0, 0);
    }
}

} // namespace

RibbonButton::RibbonButton(Action *p_action, QWidget *p_parent)
    : QPushButton(p_parent)
    , m_action(p_action)
{
    if (p_action) {
        connect(this, &QAbstractButton::clicked, p_action, &QAction::triggered);
        connect(p_action, &QAction::changed, this, &RibbonButton::changedAction);
    }
    RibbonAccessible::install();
    initStyleSheet();
    setActionParams();
}

QSize RibbonButton::sizeHint() const
{
    return sizeFromMode(sizeMode(), true);
}

QSize RibbonButton::minimumSizeHint() const
{
    return sizeFromMode(sizeMode(), true);
}

void RibbonButton::updateLayout()
{
    updateGeometry();
}

QSize RibbonButton::sizeFromMode(SizeMode p_mode, bool) const
{
    const bool hasIcon = !icon().isNull();
    if (m_sizes.small.isEmpty() || m_sizes.text != text() || m_sizes.font != font()
        || m_sizes.hasIcon != hasIcon)
        m_sizes = {text(), font(), hasIcon, computedSize(Small), computedSize(Large)};
    switch (p_mode) {
    case Large:
        return m_sizes.large;
    case Small:
        return m_sizes.small;
    default:
        return computedSize(p_mode);
    }
}

QSize RibbonButton::computedSize(SizeMode p_mode) const
{
    QSize size = icon().isNull() ? QSize(0, 0) : iconSizeOf(p_mode);
    if (!text().isEmpty()) {
        const QStringList lines = textStringList(p_mode);
        const QFontMetrics metrics(font());
        int widest = 0;
        for (const QString &line : lines)
            widest = qMax(widest, metrics.horizontalAdvance(line));
        const int textHeight = lines.count() * metrics.height();
        const int gap = icon().isNull() ? 0 : iconTextGap;
        if (p_mode == Large)
            size = QSize(qMax(size.width(), widest), size.height() + textHeight + gap);
        else if (p_mode == Small)
            size = QSize(size.width() + widest + gap, qMax(size.height(), textHeight));
    }
    const int margins = 2 * marginOf(p_mode);
    return size + QSize(margins, margins);
}

void RibbonButton::onSetSizeModeChanged(SizeMode)
{
    updateGeometry();
}

Action *RibbonButton::action() const
{
    return m_action;
}

void RibbonButton::changedAction()
{
    if (setActionParams())
        Q_EMIT visibleChange(this);
}

bool RibbonButton::event(QEvent *event)
{
    if (event->type() == QEvent::ApplicationFontChange) {
        initStyleSheet();
        return true;
    }
    return QPushButton::event(event);
}

void RibbonButton::focusInEvent(QFocusEvent *event)
{
    const QPointer<RibbonButton> alive(this);
    Q_EMIT focusInOutEvent(event, true);
    if (alive)
        QPushButton::focusInEvent(event);
}

void RibbonButton::focusOutEvent(QFocusEvent *event)
{
    const QPointer<RibbonButton> alive(this);
    Q_EMIT focusInOutEvent(event, false);
    if (alive)
        QPushButton::focusOutEvent(event);
}

void RibbonButton::paintEvent(QPaintEvent *)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    QStylePainter painter(this);
    painter.drawPrimitive(QStyle::PE_Widget, option);

    const bool large = sizeMode() == Large;
    const bool hasIcon = !icon().isNull();
    QPoint start(marginOf(sizeMode()), marginOf(sizeMode()));
    if (hasIcon && large) {
        paintIcon(painter, QPoint((width() - largeIcon.width()) / 2, start.y()), largeIcon);
        start.ry() += largeIcon.height() + iconTextGap;
    } else if (hasIcon && sizeMode() == Small) {
        paintIcon(painter, QPoint(start.x(), (height() - smallIcon.height()) / 2), smallIcon);
        start.rx() += smallIcon.width() + iconTextGap;
    }

    const QStringList lines = textStringList(sizeMode());
    const int lineHeight = fontMetrics().height();
    if (!hasIcon)
        start.setY((height() - lineHeight) / 2);
    else if (sizeMode() == Small)
        start.setY((height() - lines.count() * lineHeight) / 2);

    if (large)
        paintTextLines(painter, lines, start.y());
    else
        painter.drawText(QRectF(QRect(start, rect().bottomRight())), lines.first(), m_textOption);
}

void RibbonButton::paintIcon(QPainter &painter, const QPoint &position, const QSize &size)
{
    const QIcon::Mode mode = isEnabled() ? QIcon::Normal : QIcon::Disabled;
    const QPixmap pixmap = StyleSupport::iconPixmap(icon(), size, this, mode);
    if (size == largeIcon)
        painter.drawPixmap(QRect(position, size), pixmap);
    else
        painter.drawPixmap(position, pixmap);
}

/** Paints lines of text in the middle, from \a top downwards. */
void RibbonButton::paintTextLines(QPainter &painter, const QStringList &lines, int top)
{
    const QFontMetrics metrics = fontMetrics();
    int baseline = top + metrics.ascent();
    for (const QString &line : lines) {
        painter.drawText((width() - metrics.horizontalAdvance(line)) / 2, baseline, line);
        baseline += metrics.height();
    }
}

QStringList RibbonButton::textStringList(SizeMode p_mode) const
{
    if (p_mode == Small)
        return {QString(text()).replace(QLatin1Char('\n'), QLatin1Char(' '))};
    return text().split(QLatin1Char('\n'));
}

void RibbonButton::initStyleSheet()
{
    StyleSupport::applyStyle(this, ElementRibbonButton);
}

/** Copies the state of the action; false if that was the end of the button. */
bool RibbonButton::setActionParams()
{
    return RibbonSupport::copyState(
        this, m_action, [this] { setVisible(controlVisible()); },
        [this] { setEnabled(m_action->isEnabled()); }, [this] { setCheckable(m_action->isCheckable()); },
        [this] { setChecked(m_action->isChecked()); },
        [this] {
            setText(m_action->text().replace(QLatin1String("<br>"), QLatin1String("\n")));
            if (icon().cacheKey() != m_action->icon().cacheKey())
                setIcon(m_action->icon());
            setToolTip(Ribbon::createTooltip(m_action, this));
        });
}

} // namespace NVO
