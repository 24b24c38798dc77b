#pragma once

#include <QPointer>
#include <QWidget>
#include <QWindow>
#include <QtTest>

/**
 * A mouse over a window, in the coordinates of the screen. The window gets the events as from the window
 * system, so that Qt itself finds the widget that a press holds and the parents that get what it leaves.
 */
class Mouse
{
public:
    explicit Mouse(const QWidget *window)
        : m_window(window->windowHandle())
    {}
    ~Mouse()
    {
        if (m_buttons)
            release();
    }
    Mouse(const Mouse &) = delete;
    Mouse &operator=(const Mouse &) = delete;

    void move(const QPoint &pos)
    {
        m_pos = pos;
        send(QEvent::MouseMove, Qt::NoButton);
    }
    void press(const QPoint &pos, Qt::MouseButton button = Qt::LeftButton)
    {
        move(pos);
        m_buttons = button;
        send(QEvent::MouseButtonPress, button);
    }
    void release()
    {
        const Qt::MouseButton button = std::exchange(m_buttons, Qt::NoButton);
        send(QEvent::MouseButtonRelease, button);
    }
    void drag(const QPoint &from, const QPoint &delta)
    {
        press(from);
        move(from + delta / 2);
        move(from + delta);
        release();
    }

private:
    void send(QEvent::Type type, Qt::MouseButton button)
    {
        static int time = 0;
        time += QTest::mouseDoubleClickInterval;
        const QPoint local = m_window ? m_window->mapFromGlobal(m_pos) : m_pos;
        qt_handleMouseEvent(m_window, local, m_pos, m_buttons, button, type, {}, time);
        QCoreApplication::processEvents();
    }

    QPointer<QWindow> m_window;
    QPoint m_pos;
    Qt::MouseButton m_buttons = Qt::NoButton;
};
