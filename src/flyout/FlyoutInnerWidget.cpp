#include "flyout/FlyoutInnerWidget.h"

#include "flyout/FlyoutPlacement.h"
#include "theme/StyleSupport.h"

#include <nvo/GraphicsEffect.h>

#include <QPainter>
#include <QPainterPath>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace NVO {

namespace {

using FlyoutPlacement::pointerLength;

constexpr int borderWidth = 1;
constexpr QSize contentSurplus(20, 20);
constexpr qreal pointerPenWidth = 1.1; // the slanted lines would look thinner than the border otherwise
constexpr QPointF pixelCentre(0.5, 0.5);

/** The pointer as three points of the outline, and the corner from which the outline comes to it last. */
struct Outline
{
    int firstCorner = 0; // clockwise from the top right
    bool hasPointer = false;
    QPointF base;
    QPointF tip; // from the base
};

Outline outlineFor(Flyout::PointerPositions position, const QRect &box, const QPoint &offset)
{
    const QPoint pointer(box.left() + Flyout::xMarginFrom(position, box.size(), -offset.x()),
                         box.top() + Flyout::yMarginFrom(position, box.size(), -offset.y()));
    if (position & Flyout::TopMask)
        return {0, true, QPointF(pointer.x(), box.top()), QPointF(0, -pointerLength)};
    if (position & Flyout::BottomMask)
        return {2, true, QPointF(pointer.x(), box.bottom()), QPointF(0, pointerLength)};
    if (position & Flyout::LeftMask)
        return {3, true, QPointF(box.left(), pointer.y()), QPointF(-pointerLength, 0)};
    if (position & Flyout::RightMask)
        return {1, true, QPointF(box.right(), pointer.y()), QPointF(pointerLength, 0)};
    return {};
}

} // namespace

FlyoutInnerWidget::FlyoutInnerWidget(Flyout *flyout)
    : QWidget(flyout)
    , m_flyout(flyout)
{
    setContentsMargins(pointerLength, pointerLength, pointerLength, pointerLength);
    setAttribute(Qt::WA_TranslucentBackground);
    setFocusPolicy(Qt::NoFocus);
    setGraphicsEffect(createDefaultShadowEffectPixels());
    (new QVBoxLayout(this))->setContentsMargins(borderWidth, borderWidth, borderWidth, borderWidth);
}

QSize FlyoutInnerWidget::marginSize() const
{
    const QMargins margins = contentsMargins();
    return {margins.left() + margins.right(), margins.top() + margins.bottom()};
}

QSize FlyoutInnerWidget::sizeHint() const
{
    QSize size = QWidget::sizeHint();
    QLayoutItem *first = layout() ? layout()->itemAt(0) : nullptr;
    if (first && first->widget()) {
        const QSize roomy = marginSize() + first->widget()->sizeHint() + contentSurplus;
        if (roomy.width() > size.width() && roomy.height() > size.height())
            size = roomy;
    }
    if (hasHeightForWidth())
        size.setHeight(std::max(size.height(), heightForWidth(size.width())));
    return size;
}

void FlyoutInnerWidget::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::black);
    painter.setBrush(Qt::white);
    if (StyleSupport::isStyleSheetStyled(m_flyout)) {
        m_flyout->ensurePolished();
        const QPalette colors = m_flyout->palette();
        painter.setPen(
            QPen(colors.brush(QPalette::Text), borderWidth, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
        painter.setBrush(colors.brush(QPalette::Window));
    }

    const QRect box = contentsRect();
    const std::array<QPointF, 4> corners{box.topRight() + pixelCentre, box.bottomRight() + pixelCentre,
                                         box.bottomLeft() + pixelCentre, box.topLeft() + pixelCentre};
    const Outline outline = outlineFor(m_flyout->effectivePointerPosition(), box, m_flyout->pointerOffset());
    const auto corner = [&](int index) { return corners[std::size_t(outline.firstCorner + index) % 4]; };

    QPainterPath path(corner(0));
    for (int i = 1; i < 4; ++i)
        path.lineTo(corner(i));
    if (outline.hasPointer) {
        const QPointF base = outline.base + pixelCentre;
        const QPointF along(outline.tip.y(), -outline.tip.x());
        QPainterPath pointer(base + along);
        pointer.lineTo(base + outline.tip);
        pointer.lineTo(base - along);
        path.connectPath(pointer);
        QPen pen = painter.pen();
        pen.setWidthF(pointerPenWidth);
        painter.strokePath(pointer, pen);
    }
    path.lineTo(corner(0));
    painter.drawPath(path);
}

} // namespace NVO
