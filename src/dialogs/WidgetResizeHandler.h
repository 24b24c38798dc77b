#pragma once

#include "dialogs/OverrideCursor.h"
#include "dialogs/ResizeGeometry.h"

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QRect>

class QMouseEvent;
class QWidget;

/**
 * Makes a frameless window movable and resizable with the left mouse button.
 *
 * The handler watches the window and all widgets in it, those that come later too, and turns on their mouse
 * tracking. A press in the band along the edges resizes. A press that no child takes moves the window, if it
 * began in a widget named "frameTitleBar" or below one; elsewhere it swallows the drag. The cursors of the
 * edges are override cursors: one at a time, and none is left when the window loses the mouse, in whatever
 * way. While the window is maximized or a popup is open nothing moves.
 *
 * Where the window system does not let a window place itself, it is asked to go on with the drag.
 */
class WidgetResizeHandler : public QObject
{
    Q_OBJECT

public:
    /** What of setActive() and isActive(), as a bit set. */
    enum Action { Move = 1, Resize = 2 };

    /** Handles \a parent, which owns the handler. Without one it does nothing. */
    explicit WidgetResizeHandler(QWidget *parent);

    /** Turns the actions in \a what on or off; both are on at first. */
    void setActive(int what, bool on);
    /** Whether one of the actions in \a what is on. */
    bool isActive(int what) const;

    /**
     * The outer \a outerMargin pixels (0 at first) react to nothing, and from there to \a range pixels
     * (6 at first) from the edge a press resizes.
     */
    void setMargins(int outerMargin, int range);

    bool eventFilter(QObject *object, QEvent *event) override;

Q_SIGNALS:
    /** For the users of the handler; it does not emit the signal. */
    void activate();

protected:
    /** Whether the window system alone places windows, and tells nothing of a mouse that has left them. */
    virtual bool isPlacedBySystem() const;
    /** Lets the window system go on with a drag at \a position. False if it cannot. */
    virtual bool startSystemDrag(MousePosition position);

private:
    void watch(QWidget *widget);
    void unwatch(QWidget *widget);

    MousePosition hitTest(const QPoint &globalPos) const;
    bool isHidden() const;
    bool isCovered(const QPoint &globalPos) const;
    void setCursor(MousePosition position);
    void enter(const QPoint &globalPos);
    void leave(const QObject *left);
    void loseMouse(const QEvent *event);

    bool handleMouse(QWidget *source, QMouseEvent *event);
    bool press(const QWidget *source, QMouseEvent *event);
    bool release(const QMouseEvent *event);
    bool move(QWidget *source, const QMouseEvent *event);
    bool drag(const QWidget *source, const QPoint &delta);
    bool handOver(const QWidget *source);
    bool isInTitleBar(const QWidget *source) const;
    ResizeGeometry::SizeLimits sizeLimits() const;

    QPointer<QWidget> m_widget;
    QPoint m_pressGlobalPos;
    QRect m_startGeometry;
    MousePosition m_mode = MousePosition::Nowhere; ///< Where the running press started.
    ResizeGeometry::Margins m_margins;
    bool m_buttonDown = false;
    bool m_resizeEnabled = true;
    bool m_moveEnabled = true;
    OverrideCursor m_cursor;
};

/** Whether the windows of a platform plugin, by its name, cannot place themselves. */
bool platformPlacesWindows(const QString &platformName);
