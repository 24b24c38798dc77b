#include <nvo/ScrollAreaWithButton.h>

#include <nvo/ScrollButton.h>

#include <QEvent>
#include <QScrollBar>

namespace NVO {

namespace {

constexpr int step = 35;
constexpr int largestMargin = QWIDGETSIZE_MAX / 4; // of a button, either way

/** The strip along the edge of \a contents in which a button of \a height lies. */
QRect strip(const QRect &contents, Direction direction, int height)
{
    const int rest = contents.height() - height;
    return direction == Up ? contents.adjusted(0, 0, 0, -rest) : contents.adjusted(0, rest, 0, 0);
}

QRect globalRect(const QWidget *widget)
{
    return {widget->mapToGlobal(QPoint(0, 0)), widget->size()};
}

bool covers(const QWidget *button, const QRect &rect)
{
    return button && button->isVisible() && globalRect(button).intersects(rect);
}

void showOrHide(QAbstractButton *button, bool show)
{
    if (!button)
        return;
    if (!show)
        button->setDown(false); // ends the repetition
    button->setVisible(show);
}

} // namespace

ScrollAreaWithButton::ScrollAreaWithButton(QWidget *parent)
    : QScrollArea(parent)
    , m_topButton(new ScrollButton(this))
    , m_bottomButton(new ScrollButton(this))
{
    m_topButton->setDirection(Up);
    connect(m_topButton, &ScrollButton::clicked, this, &ScrollAreaWithButton::scrollUp);
    m_bottomButton->setDirection(Down);
    connect(m_bottomButton, &ScrollButton::clicked, this, &ScrollAreaWithButton::scrollDown);
    updateArrows();
}

ScrollButton *ScrollAreaWithButton::topScrollButton() const
{
    return m_topButton;
}

ScrollButton *ScrollAreaWithButton::bottomScrollButton() const
{
    return m_bottomButton;
}

void ScrollAreaWithButton::setButtonMargins(int left, int right)
{
    left = qBound(-largestMargin, left, largestMargin);
    right = qBound(-largestMargin, right, largestMargin);
    if (m_leftMargin == left && m_rightMargin == right)
        return;
    m_leftMargin = left;
    m_rightMargin = right;
    reposition(m_topButton);
    reposition(m_bottomButton);
}

void ScrollAreaWithButton::reposition(ScrollButton *button)
{
    if (!button)
        return;
    const QRect rect = strip(contentsRect(), button->direction(), button->height())
                           .adjusted(m_leftMargin, 0, -m_rightMargin, 0);
    button->move(rect.topLeft());
    button->setFixedWidth(qMax(0, rect.width()));
    button->raise(); // a viewport may have come later
}

/** Callers may give the area another bar at any time, which nobody reports. */
void ScrollAreaWithButton::followVerticalBar()
{
    QScrollBar *bar = verticalScrollBar();
    if (m_followedBar == bar)
        return;
    m_followedBar = bar;
    connect(bar, &QScrollBar::valueChanged, this, &ScrollAreaWithButton::updateArrows);
    connect(bar, &QScrollBar::rangeChanged, this, &ScrollAreaWithButton::updateArrows);
}

void ScrollAreaWithButton::updateArrows()
{
    followVerticalBar();
    const QPointer<ScrollAreaWithButton> alive(this);
    const auto overflows = [this] { return widget() && contentsRect().height() < widget()->height(); };
    const QScrollBar *bar = verticalScrollBar();
    showOrHide(m_topButton, overflows() && bar->minimum() < bar->value());
    // A button that goes hands on its focus, and whoever gets that may scroll, or end the area.
    if (!alive)
        return;
    bar = verticalScrollBar();
    showOrHide(m_bottomButton, overflows() && bar->value() < bar->maximum());
}

void ScrollAreaWithButton::scrollDown()
{
    QScrollBar *bar = verticalScrollBar();
    if (bar->value() + step < bar->maximum()) {
        bar->setValue(bar->value() + step);
        return;
    }
    const QPointer<ScrollAreaWithButton> alive(this);
    if (m_bottomButton)
        m_bottomButton->clearFocus();
    if (alive)
        verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

void ScrollAreaWithButton::scrollUp()
{
    QScrollBar *bar = verticalScrollBar();
    if (bar->value() - step > bar->minimum()) {
        bar->setValue(bar->value() - step);
        return;
    }
    const QPointer<ScrollAreaWithButton> alive(this);
    if (m_topButton)
        m_topButton->clearFocus();
    if (alive)
        verticalScrollBar()->setValue(verticalScrollBar()->minimum());
}

void ScrollAreaWithButton::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    const QPointer<ScrollAreaWithButton> alive(this);
    updateArrows();
    if (!alive)
        return;
    reposition(m_topButton);
    reposition(m_bottomButton);
}

/** The first move of a bar that is not followed yet is heard of in this way alone. */
void ScrollAreaWithButton::scrollContentsBy(int dx, int dy)
{
    QScrollArea::scrollContentsBy(dx, dy);
    updateArrows();
}

/** A widget that comes changes neither range nor value if the one before was as tall. */
bool ScrollAreaWithButton::eventFilter(QObject *watched, QEvent *event)
{
    const QPointer<ScrollAreaWithButton> alive(this);
    const bool handled = QScrollArea::eventFilter(watched, event);
    const bool came = event->type() == QEvent::ShowToParent || event->type() == QEvent::Resize;
    if (alive && came && watched == widget())
        updateArrows();
    return handled;
}

/** A widget that goes leaves the bars as they are. */
bool ScrollAreaWithButton::viewportEvent(QEvent *event)
{
    const QPointer<ScrollAreaWithButton> alive(this);
    const bool handled = QScrollArea::viewportEvent(event);
    if (alive && event->type() == QEvent::ChildRemoved)
        updateArrows();
    return handled;
}

bool ScrollAreaWithButton::focusNextPrevChild(bool next)
{
    const QPointer<ScrollAreaWithButton> alive(this);
    if (!QScrollArea::focusNextPrevChild(next))
        return false;
    if (!alive || !focusWidget())
        return true;
    // Where it was before any step: one step up may bring it under the lower button, but not back.
    const QRect focus = globalRect(focusWidget());
    if (covers(m_topButton, focus))
        scrollUp();
    if (alive && covers(m_bottomButton, focus))
        scrollDown();
    return true;
}

} // namespace NVO
