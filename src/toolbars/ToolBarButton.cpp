#include <nvo/ToolBarButton.h>

#include "theme/StyleSupport.h"
#include "toolbars/AccessibleToolBarButton.h"

#include <nvo/Font.h>
#include <nvo/Palette.h>

#include <QColor>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

namespace NVO {

namespace {

constexpr int boxTop = 5;
constexpr int boxHeight = 24;
constexpr int boxWidth = 42;
constexpr int boxWidthWithArrow = 48;
constexpr int boxRadius = 5;
constexpr int shadowOffset = 2;
constexpr int shadowAlpha = 192;
constexpr int margins = 10; // of both sides
constexpr int firstBaseline = 34;
constexpr qreal disabledOpacity = 0.4;
constexpr int focusWidth = 2;

constexpr int iconExtent = 16;
constexpr int iconTop = 9;
constexpr int iconShiftWithArrow = 6;
constexpr QRect arrowRect(15, 15, 9, 5); // from where the icon would be without an arrow

constexpr int badgeTop = 1;
constexpr int badgeFontSize = 9;
constexpr int badgeSmallest = 16;
constexpr int badgePadding = 4; // of both sides
constexpr int badgeRadius = 8;
constexpr int badgeOverhang = 5;
constexpr int semiboldWeight = 500 / 8; // as Qt reads the weight of a sheet

QLinearGradient gradient(int top, int bottom, const QColor &first, const QColor &last)
{
    QLinearGradient gradient(0, top, 0, bottom);
    gradient.setColorAt(0, first);
    gradient.setColorAt(1, last);
    return gradient;
}

/** Fades from the top of \a place to its bottom. */
void paintShadow(QPainter &painter, const QRect &place, int radius)
{
    painter.setPen(Qt::transparent);
    painter.setBrush(
        gradient(place.y(), place.y() + place.height(), QColor(0, 0, 0, shadowAlpha), QColor(0, 0, 0, 0)));
    painter.drawRoundedRect(place, radius, radius);
}

/** The families of the house's semibold declarations. */
QStringList semiboldFamilies()
{
    QString list = Font::instance().semibold().section(QLatin1Char(';'), 0, 0).section(QLatin1Char(':'), 1);
    return list.remove(QLatin1Char('\'')).split(QLatin1Char(','));
}

QFont badgeFont()
{
    static const QStringList families = semiboldFamilies();
    QFont font;
    font.setFamilies(families);
    font.setWeight(semiboldWeight);
    if (const int size = StyleSupport::scaled(badgeFontSize); size > 0)
        font.setPixelSize(size);
    return font;
}

} // namespace

struct ToolBarButton::DefaultValues
{
    QColor textColor;
    QColor borderColor;
    QColor gradientTopColor;
    QColor gradientBottomColor;
    QColor pressedColor;
    QColor badgeTextColor;
    QColor badgeBorderColor;
};

const ToolBarButton::DefaultValues &ToolBarButton::getValues()
{
    const auto color = [](const char *token) {
        return Palette::instance().namedColor(QString::fromLatin1(token));
    };
    static const DefaultValues values{
        color("BASECOLOR_DARK_GRAY"),    color("BASECOLOR_SILVER"),      QColor(Qt::white),
        color("BASECOLOR_LIGHT_SILVER"), color("BASECOLOR_ALTO_SILVER"), color("BASECOLOR_ORANGE"),
        color("BASECOLOR_DOVE_GRAY")};
    return values;
}

ToolBarButton::ToolBarButton(QWidget *p_parent)
    : QToolButton(p_parent)
{
    AccessibleToolBarButton::install();
    initStyleSheet();
}

void ToolBarButton::setBadge(const QString &p_text)
{
    if (m_badge == p_text)
        return;
    m_badge = p_text;
    update();
    if (QAccessible::isActive()) {
        QAccessibleEvent change(this, QAccessible::DescriptionChanged);
        QAccessible::updateAccessibility(&change);
    }
}

void ToolBarButton::setCounter(int p_count)
{
    setBadge(p_count == -1 ? QString() : QString::number(p_count));
}

QSize ToolBarButton::sizeHint() const
{
    const QStringList lines = textStringList();
    const QFontMetrics metrics(font());
    int width = boxRect().width();
    for (const QString &line : lines)
        width = qMax(width, metrics.horizontalAdvance(line));
    return {width + margins, boxTop + boxHeight + lines.size() * metrics.height() + margins};
}

QSize ToolBarButton::minimumSizeHint() const
{
    return sizeHint();
}

bool ToolBarButton::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::ApplicationFontChange:
        initStyleSheet();
        return true;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
        return (isEnabled() && mouseEvent(static_cast<QMouseEvent *>(event))) || QToolButton::event(event);
    default:
        return QToolButton::event(event);
    }
}

/** Whether that was all there is to do. Slots of the button may have been its end. */
bool ToolBarButton::mouseEvent(QMouseEvent *event)
{
    const bool inside = boxRect().contains(event->pos());
    if (event->button() == Qt::LeftButton) {
        if (event->type() == QEvent::MouseButtonRelease) {
            if (!inside)
                setDown(false); // so that the release ends the press and clicks nothing
            QAbstractButton::mouseReleaseEvent(event); // NOLINT(bugprone-parent-virtual-call)
        } else if (inside && event->type() != QEvent::MouseMove) {
            QAbstractButton::mousePressEvent(event); // NOLINT(bugprone-parent-virtual-call)
        }
        event->accept();
        return true;
    }
    if (event->type() == QEvent::MouseMove && !inside) {
        setDown(false);
        return true;
    }
    return false;
}

void ToolBarButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled())
        painter.setOpacity(disabledOpacity);
    paintBox(painter);
    paintFocus(painter);
    paintArrow(painter);
    paintIcon(painter);
    paintBadge(painter);
    paintText(painter);
}

void ToolBarButton::paintBox(QPainter &painter) const
{
    const DefaultValues &values = getValues();
    const QRect box = boxRect();
    if (isDown() || isChecked()) {
        painter.setBrush(values.pressedColor);
    } else {
        paintShadow(painter, box.translated(0, shadowOffset), boxRadius);
        painter.setBrush(
            gradient(boxTop, boxTop + boxHeight, values.gradientTopColor, values.gradientBottomColor));
    }
    painter.setPen(values.borderColor);
    painter.drawRoundedRect(box, boxRadius, boxRadius);
}

/** Who works with the mouse sees no ring. */
void ToolBarButton::paintFocus(QPainter &painter) const
{
    if (!hasFocus() || !window()->testAttribute(Qt::WA_KeyboardFocusChange))
        return;
    painter.setPen(QPen(palette().color(QPalette::Highlight), focusWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(boxRect(), boxRadius, boxRadius);
}

void ToolBarButton::paintArrow(QPainter &painter) const
{
    if (arrowType() == Qt::NoArrow)
        return;
    const QRect place = visualRect(arrowRect.translated((width() - iconExtent) / 2, 0));
    const QPoint tip(place.center().x(), place.bottom());
    painter.setPen(getValues().textColor);
    painter.drawLine(place.topLeft(), tip);
    painter.drawLine(tip, place.topRight());
}

void ToolBarButton::paintIcon(QPainter &painter) const
{
    if (icon().isNull())
        return;
    const int shift = arrowType() == Qt::NoArrow ? 0 : iconShiftWithArrow;
    const QRect place =
        visualRect(QRect((width() - iconExtent) / 2 - shift, iconTop, iconExtent, iconExtent));
    painter.drawPixmap(place, StyleSupport::iconPixmap(icon(), place.size(), this, QIcon::Normal));
}

void ToolBarButton::paintBadge(QPainter &painter) const
{
    if (m_badge.isEmpty())
        return;
    const QFont font = badgeFont();
    const QFontMetrics metrics(font);
    const int textWidth = metrics.horizontalAdvance(m_badge);
    const QSize size(qMax(textWidth + badgePadding, badgeSmallest),
                     qMax(metrics.height() + badgePadding, badgeSmallest));
    const QRect box = boxRect();
    const int left = box.x() + box.width() + badgeOverhang - size.width();
    const QRect place = visualRect(QRect(QPoint(left, badgeTop), size));

    paintShadow(painter, place.translated(0, shadowOffset), badgeRadius);
    painter.setBrush(Qt::white);
    painter.setPen(getValues().badgeBorderColor);
    painter.drawRoundedRect(place, badgeRadius, badgeRadius);

    painter.setFont(font);
    painter.setPen(getValues().badgeTextColor);
    painter.drawText(place.x() + ((place.width() - textWidth) >> 1),
                     (metrics.ascent() + place.height()) / 2 + 1, m_badge);
}

void ToolBarButton::paintText(QPainter &painter) const
{
    const QFontMetrics metrics(font());
    painter.setFont(font());
    painter.setPen(getValues().textColor);
    int baseline = metrics.ascent() + firstBaseline;
    const QStringList lines = textStringList();
    for (const QString &line : lines) {
        painter.drawText((width() - metrics.horizontalAdvance(line)) / 2, baseline, line);
        baseline += metrics.height();
    }
}

void ToolBarButton::initStyleSheet()
{
    StyleSupport::applyStyle(this, ElementToolBarButton);
}

QStringList ToolBarButton::textStringList() const
{
    return text().replace(QLatin1String("<br>"), QLatin1String("\n")).split(QLatin1Char('\n'));
}

QRect ToolBarButton::boxRect() const
{
    const int boxed = arrowType() == Qt::NoArrow ? boxWidth : boxWidthWithArrow;
    return {(width() - boxed) >> 1, boxTop, boxed, boxHeight};
}

/** \a place as it is from left to right, on its side. */
QRect ToolBarButton::visualRect(const QRect &place) const
{
    return QStyle::visualRect(layoutDirection(), rect(), place);
}

} // namespace NVO
