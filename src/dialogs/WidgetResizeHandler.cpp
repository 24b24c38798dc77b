#include "dialogs/WidgetResizeHandler.h"

#include "dialogs/SmartSize.h"

#include <QApplication>
#include <QChildEvent>
#include <QEnterEvent>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

WidgetResizeHandler::WidgetResizeHandler(QWidget *parent)
    : QObject(parent)
    , m_widget(parent)
{
    if (parent)
        watch(parent);
}

void WidgetResizeHandler::setActive(int what, bool on)
{
    if (what & Move)
        m_moveEnabled = on;
    if (what & Resize)
        m_resizeEnabled = on;
    if (!m_resizeEnabled)
        setCursor(MousePosition::Nowhere);
}

bool WidgetResizeHandler::isActive(int what) const
{
    return ((what & Move) && m_moveEnabled) || ((what & Resize) && m_resizeEnabled);
}

void WidgetResizeHandler::setMargins(int outerMargin, int range)
{
    m_margins = {outerMargin, range};
}

bool WidgetResizeHandler::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::ChildAdded || event->type() == QEvent::ChildRemoved) {
        // A child that is nearly destroyed still has the mark of a widget, but is none any more.
        if (auto *child = dynamic_cast<QWidget *>(static_cast<QChildEvent *>(event)->child()))
            event->type() == QEvent::ChildAdded ? watch(child) : unwatch(child);
        return false;
    }
    if (!m_widget) {
        m_cursor.clear();
        return false;
    }
    if (object == m_widget)
        loseMouse(event);
    if (!isActive(Move | Resize))
        return false;

    auto *source = qobject_cast<QWidget *>(object);
    if (source && source->window() != m_widget->window())
        return false;
    switch (event->type()) {
    case QEvent::Leave:
        leave(object);
        return false;
    case QEvent::Enter: {
        // Widgets are also sent enter events that know no position.
        const auto *entered = dynamic_cast<QEnterEvent *>(event);
        enter(entered ? entered->globalPos() : QCursor::pos());
        return false;
    }
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
        return handleMouse(source, static_cast<QMouseEvent *>(event));
    default:
        return false;
    }
}

bool WidgetResizeHandler::isPlacedBySystem() const
{
    return m_widget->isWindow() && platformPlacesWindows(QGuiApplication::platformName());
}

bool WidgetResizeHandler::startSystemDrag(MousePosition position)
{
    QWindow *window = m_widget->windowHandle();
    if (!window)
        return false;
    return position == MousePosition::Center ? window->startSystemMove()
                                             : window->startSystemResize(ResizeGeometry::edges(position));
}

void WidgetResizeHandler::watch(QWidget *widget)
{
    widget->installEventFilter(this);
    widget->setMouseTracking(true);
    for (QObject *child : widget->children()) {
        if (auto *childWidget = qobject_cast<QWidget *>(child))
            watch(childWidget);
    }
}

void WidgetResizeHandler::unwatch(QWidget *widget)
{
    widget->removeEventFilter(this);
    for (QObject *child : widget->children()) {
        if (auto *childWidget = qobject_cast<QWidget *>(child))
            unwatch(childWidget);
    }
}

MousePosition WidgetResizeHandler::hitTest(const QPoint &globalPos) const
{
    const MousePosition position =
        ResizeGeometry::positionAt(m_widget->mapFromGlobal(globalPos), m_widget->size(), m_margins);
    if (position != MousePosition::Nowhere && (m_widget->isMinimized() || !m_resizeEnabled))
        return MousePosition::Center;
    return position;
}

/** Whether the window was hidden; events of the mouse may still come to it then. */
bool WidgetResizeHandler::isHidden() const
{
    const QWindow *window = m_widget->window()->windowHandle();
    return window && !window->isVisible();
}

/** Whether another window lies over \a globalPos. */
bool WidgetResizeHandler::isCovered(const QPoint &globalPos) const
{
    const QWindow *window = m_widget->window()->windowHandle();
    return window && QGuiApplication::topLevelAt(globalPos) != window;
}

void WidgetResizeHandler::setCursor(MousePosition position)
{
    const bool isGrip = position != MousePosition::Nowhere && position != MousePosition::Center;
    if (!isGrip || isHidden())
        m_cursor.clear();
    else
        m_cursor.show(ResizeGeometry::cursorShape(position));
}

void WidgetResizeHandler::enter(const QPoint &globalPos)
{
    const bool elsewhere = m_widget->isMaximized() || isCovered(globalPos);
    setCursor(elsewhere ? MousePosition::Nowhere : hitTest(globalPos));
}

/** The mouse has left a widget, perhaps for another one of the window. */
void WidgetResizeHandler::leave(const QObject *left)
{
    if (left == m_widget && isPlacedBySystem())
        setCursor(MousePosition::Nowhere); // where the mouse is now cannot be known
    else
        enter(QCursor::pos());
}

/** Gives the cursor back at events after which the mouse may be gone without a leave event. */
void WidgetResizeHandler::loseMouse(const QEvent *event)
{
    switch (event->type()) {
    case QEvent::Hide:
        m_buttonDown = false;
        Q_FALLTHROUGH();
    case QEvent::WindowBlocked:
    case QEvent::WindowDeactivate:
    case QEvent::WindowStateChange:
        setCursor(MousePosition::Nowhere);
        break;
    default:
        break;
    }
}

bool WidgetResizeHandler::handleMouse(QWidget *source, QMouseEvent *event)
{
    if (QApplication::activePopupWidget()) {
        if (event->type() == QEvent::MouseButtonRelease)
            m_buttonDown = false;
        return false;
    }
    if (m_widget->isMaximized())
        return false;
    if (event->type() == QEvent::MouseButtonPress)
        return press(source, event);
    if (event->type() == QEvent::MouseButtonRelease)
        return release(event);
    return move(source, event);
}

bool WidgetResizeHandler::press(const QWidget *source, QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return false;
    m_buttonDown = false; // a drag whose release went elsewhere
    const MousePosition position = hitTest(event->globalPos());
    setCursor(position);
    // A child may want the press. If none does, it comes up to the window.
    if (position == MousePosition::Nowhere
        || (position == MousePosition::Center && source && source != m_widget))
        return false;
    m_buttonDown = true;
    m_mode = position;
    m_pressGlobalPos = event->globalPos();
    m_startGeometry = m_widget->geometry();
    event->accept();
    return true;
}

bool WidgetResizeHandler::release(const QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || !m_buttonDown)
        return false;
    m_buttonDown = false;
    setCursor(hitTest(event->globalPos()));
    return true;
}

bool WidgetResizeHandler::move(QWidget *source, const QMouseEvent *event)
{
    if (!(event->buttons() & Qt::LeftButton)) {
        setCursor(hitTest(event->globalPos()));
        m_buttonDown = false;
        return false;
    }
    return m_buttonDown && (handOver(source) || drag(source, event->globalPos() - m_pressGlobalPos));
}

bool WidgetResizeHandler::drag(const QWidget *source, const QPoint &delta)
{
    const QRect current = m_widget->geometry();
    const QRect rect =
        m_mode == MousePosition::Center && m_moveEnabled
            ? m_startGeometry.translated(delta)
            : ResizeGeometry::resizedGeometry(m_mode, m_startGeometry, current, delta, sizeLimits());
    if (rect == current)
        return false;
    if (m_mode != MousePosition::Center)
        m_widget->setGeometry(rect);
    else if (isInTitleBar(source))
        m_widget->move(rect.topLeft());
    return true;
}

/** Whether the window system has taken over the drag, whose end nobody will tell. */
bool WidgetResizeHandler::handOver(const QWidget *source)
{
    if (m_mode == MousePosition::Center && !(m_moveEnabled && isInTitleBar(source)))
        return false;
    if (!isPlacedBySystem() || !startSystemDrag(m_mode))
        return false;
    m_buttonDown = false;
    setCursor(MousePosition::Nowhere);
    return true;
}

bool WidgetResizeHandler::isInTitleBar(const QWidget *source) const
{
    const QWidget *widget = source;
    while (widget && widget->objectName() != QLatin1String("frameTitleBar"))
        widget = widget->isWindow() ? nullptr : widget->parentWidget();
    return widget;
}

ResizeGeometry::SizeLimits WidgetResizeHandler::sizeLimits() const
{
    ResizeGeometry::SizeLimits limits{smartMinimumSize(m_widget), smartMaximumSize(m_widget), {}};
    if (m_widget->hasHeightForWidth())
        limits.heightForWidth = [this](int width) { return m_widget->heightForWidth(width); };
    return limits;
}

bool platformPlacesWindows(const QString &platformName)
{
    return platformName.startsWith(QLatin1String("wayland"));
}
