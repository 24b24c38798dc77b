#include "overview/PathLabel.h"

#include "overview/PathText.h"
#include "overview/ResultEnd.h"
#include "theme/StyleSupport.h"

#include <QEvent>
#include <QIcon>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

namespace NVO {

namespace {

constexpr int arrowGap = 5; // before and behind an arrow

} // namespace

PathLabel::PathLabel(QWidget *parent)
    : QWidget(parent)
    , m_arrow(QStringLiteral(":/pathlabel_arrow"))
{
    StyleSupport::applyFontSize(this, ElementOverviewButton, QStringLiteral("SMALL"));
    setMinimumWidth(1); // a long path is cut and does not widen what is around it
}

void PathLabel::setPath(const Path &path)
{
    if (m_path == path)
        return;
    m_path = path;
    updateGeometry();
    update();
}

QSize PathLabel::arrowSize() const
{
    return m_arrow.size() / m_arrow.devicePixelRatio();
}

/** As a label would show it. */
QPixmap PathLabel::arrowImage() const
{
    const QPixmap arrow = ResultEnd::directed(m_arrow, layoutDirection());
    if (isEnabled() || arrow.isNull())
        return arrow;
    QStyleOption option;
    option.initFrom(this);
    return style()->generatedIconPixmap(QIcon::Disabled, arrow, &option);
}

int PathLabel::arrowSpace() const
{
    return arrowSize().width() + 2 * arrowGap;
}

QVector<PathText::Segment> PathLabel::segments() const
{
    const QFontMetrics metrics = fontMetrics();
    QVector<PathText::Segment> segments;
    segments.reserve(m_path.elements.size());
    for (const QString &element : m_path.elements) {
        const bool hasArrow = !segments.isEmpty();
        segments.append(
            {element, hasArrow, metrics.horizontalAdvance(element) + (hasArrow ? arrowSpace() : 0)});
    }
    return segments;
}

QSize PathLabel::minimumSizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    qint64 width = 0;
    if (m_elideMode == Qt::ElideNone) {
        for (const PathText::Segment &segment : segments())
            width += segment.width;
    } else {
        width = metrics.horizontalAdvance(PathText::ellipsis());
    }
    const QMargins margins = contentsMargins();
    const int height = qMax(arrowSize().height(), metrics.height());
    return {int(qMin(width + margins.left() + margins.right(), qint64(QWIDGETSIZE_MAX))),
            height + margins.top() + margins.bottom()};
}

QSize PathLabel::sizeHint() const
{
    return minimumSizeHint();
}

bool PathLabel::event(QEvent *event)
{
    if (event->type() == QEvent::ApplicationFontChange)
        StyleSupport::applyFontSize(this, ElementOverviewButton, QStringLiteral("SMALL"));
    return QWidget::event(event);
}

void PathLabel::paintEvent(QPaintEvent *)
{
    if (m_path.elements.isEmpty())
        return;
    const QFontMetrics metrics = fontMetrics();
    const QRect area = contentsRect();
    const int baseline = area.top() + (area.height() - metrics.height()) / 2 + metrics.ascent();
    const QSize arrow = arrowSize();
    const int arrowTop = area.top() + (area.height() - arrow.height()) / 2;
    const bool mirrored = isRightToLeft();
    const QPixmap arrowPixmap = arrowImage();

    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    // Where something of this width stands that begins at x.
    const auto place = [&](int x, int width) {
        return mirrored ? area.left() + area.right() + 1 - x - width : x;
    };
    int x = area.left();
    for (const PathText::Segment &segment :
         PathText::fitted(segments(), area.width(), m_elideMode,
                          metrics.horizontalAdvance(PathText::ellipsis()), arrowSpace())) {
        if (segment.hasArrow) {
            painter.drawPixmap(place(x + arrowGap, arrow.width()), arrowTop, arrowPixmap);
            x += arrowSpace();
        }
        const int width = segment.width - (segment.hasArrow ? arrowSpace() : 0);
        painter.drawText(place(x, width), baseline, segment.text);
        x += width;
    }
}

} // namespace NVO
