#include "overview/SeparatorLine.h"

#include <nvo/OverviewButtonBase.h>
#include <nvo/Palette.h>

#include <QPainter>

#include <algorithm>
#include <utility>

namespace NVO {

namespace {

constexpr int lineWidth = 1;

QColor color(const char *token)
{
    return Palette::instance().namedColor(QString::fromLatin1(token));
}

} // namespace

SeparatorLine::SeparatorLine(std::vector<OverviewButtonBase *> buttons, QWidget *parent)
    : QWidget(parent)
{
    watch(std::move(buttons));
    applyOrientation();
}

void SeparatorLine::setButtons(std::vector<OverviewButtonBase *> buttons)
{
    for (OverviewButtonBase *button : m_buttons)
        button->disconnect(this);
    watch(std::move(buttons));
    refresh();
}

void SeparatorLine::watch(std::vector<OverviewButtonBase *> buttons)
{
    m_buttons = std::move(buttons);
    forget(nullptr);
    for (OverviewButtonBase *button : m_buttons) {
        connect(button, &OverviewButtonBase::styleStateChanged, this, &SeparatorLine::refresh);
        connect(button, &QObject::destroyed, this, [this, button] {
            forget(button);
            refresh();
        });
    }
}

void SeparatorLine::forget(const OverviewButtonBase *button)
{
    m_buttons.erase(std::remove(m_buttons.begin(), m_buttons.end(), button), m_buttons.end());
}

void SeparatorLine::refresh()
{
    const bool highlighted = std::any_of(m_buttons.begin(), m_buttons.end(),
                                         [](auto *button) { return button->hasFocus() || button->isDown(); });
    if (m_highlighted == highlighted)
        return;
    m_highlighted = highlighted;
    update();
}

void SeparatorLine::setBorderStyle(BorderStyle style)
{
    if (m_borderStyle == style)
        return;
    m_borderStyle = style;
    update();
}

void SeparatorLine::setEdgeStyle(EdgeStyle style)
{
    m_edgeStyle = style;
}

void SeparatorLine::setOrientation(Orientation orientation)
{
    if (m_orientation == orientation)
        return;
    m_orientation = orientation;
    applyOrientation();
}

void SeparatorLine::applyOrientation()
{
    const bool isWide = m_orientation == Horizontal;
    const bool isHigh = m_orientation == Vertical;
    setMinimumSize(isWide ? 0 : lineWidth, isHigh ? 0 : lineWidth);
    setMaximumSize(isWide ? QWIDGETSIZE_MAX : lineWidth, isHigh ? QWIDGETSIZE_MAX : lineWidth);
}

void SeparatorLine::setBackgroundOnly(bool on)
{
    if (m_backgroundOnly == on)
        return;
    m_backgroundOnly = on;
    update();
}

SeparatorLine::EdgeStyles SeparatorLine::seenEdges() const
{
    if (m_orientation != Horizontal || layoutDirection() != Qt::RightToLeft)
        return m_edgeStyle;
    EdgeStyles edges = None;
    edges.setFlag(TopOrLeft, m_edgeStyle & BottomOrRight);
    edges.setFlag(BottomOrRight, m_edgeStyle & TopOrLeft);
    return edges;
}

void SeparatorLine::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (m_backgroundOnly) {
        painter.fillRect(rect(), color("COLOR_BIG_BUTTON_BACKGROUND"));
        return;
    }
    if (m_highlighted) {
        painter.fillRect(rect(), color("COLOR_BIG_BUTTON_BORDER_FOCUS"));
        return;
    }
    const QColor frame = color("COLOR_BIG_BUTTON_BORDER");
    painter.fillRect(rect(), m_borderStyle == Outer ? frame : color("COLOR_BIG_BUTTON_BORDER_DISABLED"));
    const EdgeStyles edges = seenEdges();
    if (edges.testFlag(TopOrLeft))
        painter.fillRect(0, 0, lineWidth, lineWidth, frame);
    if (edges.testFlag(BottomOrRight))
        painter.fillRect(width() - lineWidth, height() - lineWidth, lineWidth, lineWidth, frame);
}

} // namespace NVO
