#include <nvo/ScrollArea.h>

#include <nvo/ScrollBar.h>

#include <QGuiApplication>
#include <QScreen>

namespace NVO {

namespace {

constexpr int extraHeight = 4;
constexpr int flyoutMaximumHeight = 300;
constexpr int screenTolerance = 40; // what a hint may exceed the screen by, and what is left free if it does
constexpr int rightSpace = 20;

/** Asked by the name of the class, so that scrolling needs no flyout. */
bool isInsideFlyout(const QObject *object)
{
    for (const QObject *around = object->parent(); around; around = around->parent()) {
        if (around->inherits("NVO::Flyout"))
            return true;
    }
    return false;
}

int heightForScreen(int height, int available)
{
    return height > available + screenTolerance ? available - screenTolerance : height;
}

ScrollBar *makeBar(Qt::Orientation orientation, QWidget *parent)
{
    auto *bar = new ScrollBar(orientation, parent);
    bar->setScrollBarStyle(ScrollBar::DropDown);
    return bar;
}

} // namespace

ScrollArea::ScrollArea(QWidget *parent)
    : QScrollArea(parent)
    , m_insideFlyout(isInsideFlyout(this))
{
    setWidgetResizable(true);
    // Made where they will stand: another parent would make Qt parse their sheets again.
    setHorizontalScrollBar(makeBar(Qt::Horizontal, horizontalScrollBar()->parentWidget()));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBar(makeBar(Qt::Vertical, verticalScrollBar()->parentWidget()));
    setFrameStyle(0);
}

void ScrollArea::ignoreRightAutoContent(bool ignore)
{
    m_ignoreRightContent = ignore;
}

QSize ScrollArea::sizeHint() const
{
    if (!widget())
        return {0, 0};
    QSize size = widget()->sizeHint();
    if (widget()->hasHeightForWidth())
        size.setHeight(widget()->heightForWidth(size.width()));
    size.rheight() += extraHeight;
    return size;
}

QSize ScrollArea::minimumSizeHint() const
{
    QSize size = sizeHint();
    if (m_insideFlyout)
        size.setHeight(qMin(size.height(), flyoutMaximumHeight));
    else if (const QScreen *screen = QGuiApplication::primaryScreen())
        size.setHeight(heightForScreen(size.height(), screen->availableGeometry().height()));
    return size;
}

void ScrollArea::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    if (m_ignoreRightContent || !widget())
        return;
    QMargins margins = widget()->contentsMargins();
    const bool barNeedsRoom = margins.right() > rightSpace || widget()->height() > height();
    margins.setRight(barNeedsRoom ? qMax(0, rightSpace - verticalScrollBar()->width()) : rightSpace);
    widget()->setContentsMargins(margins);
}

} // namespace NVO
