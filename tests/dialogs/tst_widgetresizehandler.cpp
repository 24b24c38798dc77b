#include "EventCounter.h"
#include "Mouse.h"
#include "TestCase.h"

#include "dialogs/OverrideCursor.h"
#include "dialogs/ResizeGeometry.h"
#include "dialogs/WidgetResizeHandler.h"

#include <QtTest>
#include <QtWidgets>

#include <functional>
#include <random>

using namespace ResizeGeometry;

namespace {

/** Where a window is taken, by the side in each direction: -1 is left or top, 1 is right or bottom. */
struct Grip
{
    MousePosition position;
    int x;
    int y;
};

int heightFor(int width)
{
    return 30000 / std::max(1, width);
}

/** The first of those that a point is at counts. */
const QVector<Grip> grips{{MousePosition::TopLeft, -1, -1},   {MousePosition::BottomRight, 1, 1},
                          {MousePosition::BottomLeft, -1, 1}, {MousePosition::TopRight, 1, -1},
                          {MousePosition::Top, 0, -1},        {MousePosition::Bottom, 0, 1},
                          {MousePosition::Left, -1, 0},       {MousePosition::Right, 1, 0}};

MousePosition expectedPosition(const QPoint &pos, const QSize &size, const Margins &margins)
{
    const QPoint rest(size.width() - pos.x(), size.height() - pos.y());
    if (std::min({pos.x(), pos.y(), rest.x(), rest.y()}) < margins.outer)
        return MousePosition::Nowhere;
    const auto isAt = [&](int side, int before, int after) {
        return side == 0 || (side < 0 ? before : after) <= margins.range;
    };
    for (const Grip &grip : grips) {
        if (isAt(grip.x, pos.x(), rest.x()) && isAt(grip.y, pos.y(), rest.y()))
            return grip.position;
    }
    return MousePosition::Center;
}

/** Each direction by itself: the length, then the side from which it is counted. */
QRect expectedGeometry(const Grip &grip, const QRect &start, const QRect &current, const QPoint &delta,
                       const SizeLimits &limits)
{
    const auto length = [](int wanted, int least, int most) {
        return std::min(std::max(wanted, least), most);
    };
    QSize size(length(start.width() + grip.x * delta.x(), limits.minimum.width(), limits.maximum.width()),
               length(start.height() + grip.y * delta.y(), limits.minimum.height(), limits.maximum.height()));
    if (limits.heightForWidth)
        size.setHeight(std::max(size.height(), heightFor(size.width())));
    if (grip.x >= 0 && grip.y >= 0)
        return {start.topLeft(), size};
    return {QPoint(grip.x > 0 ? current.x() : current.x() + current.width() - size.width(),
                   grip.y > 0 ? current.y() : current.y() + current.height() - size.height()),
            size};
}

Qt::CursorShape expectedShape(const Grip &grip)
{
    if (grip.x == 0 || grip.y == 0)
        return grip.x == 0 ? Qt::SizeVerCursor : Qt::SizeHorCursor;
    return grip.x == grip.y ? Qt::SizeFDiagCursor : Qt::SizeBDiagCursor;
}

/** The shape of the override cursor; the arrow if there is none. */
Qt::CursorShape shownCursor()
{
    const QCursor *cursor = QGuiApplication::overrideCursor();
    return cursor ? cursor->shape() : Qt::ArrowCursor;
}

/** Tells which objects it filters, and plays a window system that goes on with drags if told to. */
struct Handler : WidgetResizeHandler
{
    using WidgetResizeHandler::WidgetResizeHandler;

    bool eventFilter(QObject *object, QEvent *event) override
    {
        asked = object;
        return WidgetResizeHandler::eventFilter(object, event);
    }
    bool isPlacedBySystem() const override { return system || WidgetResizeHandler::isPlacedBySystem(); }
    bool startSystemDrag(MousePosition position) override
    {
        handedOver.append(position);
        return !unable;
    }
    bool filters(QObject *object)
    {
        QEvent event(QEvent::User);
        QCoreApplication::sendEvent(object, &event);
        return std::exchange(asked, nullptr) == object;
    }
    /** An event that Qt would not bring to \a object just now. */
    void tell(QObject *object, QEvent::Type type, const QPoint &pos = {}, Qt::MouseButtons buttons = {})
    {
        QMouseEvent mouse(type, pos, pos, Qt::LeftButton, buttons, {});
        QEnterEvent enter({}, {}, pos);
        eventFilter(object, type == QEvent::Enter ? static_cast<QEvent *>(&enter) : &mouse);
    }

    const QObject *asked = nullptr;
    bool system = false;
    bool unable = false;
    QVector<MousePosition> handedOver;
};

/** A title bar with a label above a plain widget and a button. */
struct Window : EventCounter<QWidget>
{
    Window()
    {
        setWindowFlags(Qt::FramelessWindowHint);
        setMinimumSize(100, 80);
        setMaximumWidth(420);
        titleBar->setObjectName("frameTitleBar");
        titleBar->setGeometry(0, 0, 300, 40);
        label->setGeometry(20, 10, 100, 20);
        content->setGeometry(0, 40, 300, 100);
        button->setGeometry(20, 150, 100, 30);
        setGeometry(90, 60, 300, 200); // on the screen at ratio 2, too
        show();
    }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override { return heightFor(width); }

    /** A point of the band of 6 pixels at \a grip, on the screen. */
    QPoint at(const Grip &grip = grips.last(), int inset = 3) const
    {
        const auto coordinate = [inset](int side, int length) {
            return side == 0 ? length / 2 : side < 0 ? inset : length - 1 - inset;
        };
        return mapToGlobal({coordinate(grip.x, width()), coordinate(grip.y, height())});
    }
    static QPoint on(const QWidget *widget) { return widget->mapToGlobal(widget->rect().center()); }

    QPointer<Handler> handler = new Handler(this);
    QFrame *titleBar = new QFrame(this);
    QLabel *label = new QLabel(titleBar);
    EventCounter<QWidget> *content = new EventCounter<QWidget>(this);
    EventCounter<QPushButton> *button = new EventCounter<QPushButton>(this);
};

using Deed = std::function<void(Window *)>;

} // namespace

Q_DECLARE_METATYPE(Deed)

class TestWidgetResizeHandler : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_window = new Window;
        QVERIFY(QTest::qWaitForWindowActive(m_window));
        m_mouse.reset(new Mouse(m_window));
    }
    void cleanup()
    {
        delete m_window;
        m_mouse.reset();
        QVERIFY(!QGuiApplication::overrideCursor());
        QCursor::setPos(0, 0);
        QCoreApplication::processEvents();
    }

    void geometryOfRandomDrags()
    {
        std::mt19937 random(8);
        const auto pick = [&](int from, int to) {
            return std::uniform_int_distribution<int>(from, to)(random);
        };
        const auto size = [&](int least, int most) { return QSize(pick(least, most), pick(least, most)); };
        const auto point = [&](int least, int most) { return QPoint(pick(least, most), pick(least, most)); };
        for (int i = 0; i < 50000; ++i) {
            const Margins margins{pick(0, 10), pick(0, 16)};
            const QPoint pos = point(-3, 60);
            const QSize small = size(0, 56);
            QCOMPARE(positionAt(pos, small, margins), expectedPosition(pos, small, margins));

            const Grip grip = grips[pick(0, 7)];
            const QRect start(point(-50, 500), size(50, 400));
            const QRect current(point(-50, 500), size(50, 400));
            const QPoint delta = point(-500, 500);
            SizeLimits limits;
            if (pick(0, 3)) {
                limits.minimum = size(0, 200);
                limits.maximum = limits.minimum + size(0, 300);
            }
            if (pick(0, 1))
                limits.heightForWidth = heightFor;
            QCOMPARE(resizedGeometry(grip.position, start, current, delta, limits),
                     expectedGeometry(grip, start, current, delta, limits));
        }
    }

    void edgesResize()
    {
        Handler *handler = m_window->handler;
        const QRect before = m_window->geometry();
        const SizeLimits limits{m_window->minimumSize(), m_window->maximumSize(), heightFor};
        for (const Grip &grip : grips) {
            handler->setActive(WidgetResizeHandler::Resize, true);
            for (const int outer : {10, 0}) {
                handler->setMargins(outer, outer + 6);
                handler->setActive(WidgetResizeHandler::Move, outer == 0);
                const QPoint pos = m_window->at(grip, outer + 3);
                m_mouse->press(pos);
                QCOMPARE(shownCursor(), expectedShape(grip));
                // Out, in and far beyond the limits, always by the whole way from the press.
                for (const QPoint delta : {QPoint(21, 33), QPoint(-900, -900), QPoint(900, 900)}) {
                    const QRect current = m_window->geometry();
                    m_mouse->move(pos + delta);
                    QCOMPARE(m_window->geometry(), expectedGeometry(grip, before, current, delta, limits));
                }
                m_mouse->release();
                m_window->setGeometry(before);
                m_mouse->move(m_window->on(m_window->button));
                QCOMPARE(shownCursor(), Qt::ArrowCursor);
            }
            handler->setActive(WidgetResizeHandler::Resize, false);
            m_mouse->drag(m_window->at(grip), {30, 30});
            QCOMPARE(shownCursor(), Qt::ArrowCursor);
            QCOMPARE(m_window->size(), before.size());
            m_window->setGeometry(before);
        }
    }

    void dragsByTheTitleBarOnly()
    {
        const QRect before = m_window->geometry();
        const auto movedBy = [&](const QWidget *widget) {
            m_mouse->drag(m_window->on(widget), {40, -30});
            const QPoint by = m_window->pos() - before.topLeft();
            m_window->setGeometry(before);
            return by;
        };
        QCOMPARE(movedBy(m_window->titleBar), QPoint(40, -30));
        m_window->handler->setActive(WidgetResizeHandler::Resize, false);
        QCOMPARE(movedBy(m_window->label), QPoint(40, -30));
        m_window->handler->setActive(WidgetResizeHandler::Resize, true);

        // The press goes through the content, the moves do not reach it. A button keeps what it gets.
        QCOMPARE(movedBy(m_window->content) + movedBy(m_window->button), QPoint());
        QCOMPARE(m_window->content->counts[QEvent::MouseButtonPress], 1);
        QCOMPARE(m_window->content->counts[QEvent::MouseMove], 1); // on the way to the press
        QCOMPARE(m_window->content->counts[QEvent::MouseButtonRelease], 0);
        QCOMPARE(m_window->button->counts[QEvent::MouseMove], 3);
        QCOMPARE(m_window->button->counts[QEvent::MouseButtonRelease], 1);

        m_mouse->press(m_window->on(m_window->label), Qt::RightButton);
        m_mouse->release();
        QCOMPARE(m_window->counts[QEvent::MouseButtonPress], 1);
        m_window->handler->setActive(WidgetResizeHandler::Move, false);
        QCOMPARE(movedBy(m_window->label), QPoint());
        WidgetResizeHandler(nullptr).setActive(WidgetResizeHandler::Move, false);
    }

    void standsStill_data()
    {
        QTest::addColumn<Deed>("prepare");
        const auto row = [](const char *name, const Deed &prepare) { QTest::newRow(name) << prepare; };
        row("inactive", [](Window *window) { window->handler->setActive(3, false); });
        row("maximized", [](Window *window) { window->showMaximized(); });
        row("minimized", [](Window *window) { window->setWindowState(Qt::WindowMinimized); });
        row("popup", [](Window *window) { (new QWidget(window, Qt::Popup))->show(); });
        row("in a child window", [](Window *window) { window->titleBar->setWindowFlags(Qt::Tool); });
    }
    void standsStill()
    {
        QFETCH(Deed, prepare);
        prepare(m_window);
        const QRect before = m_window->geometry();
        QWidget *target = m_window->label->window();
        for (const QPoint &from : {m_window->at(), m_window->on(m_window->titleBar)}) {
            m_window->handler->tell(target, QEvent::MouseMove, from);
            m_window->handler->tell(target, QEvent::MouseButtonPress, from);
            m_window->handler->tell(target, QEvent::MouseMove, from + QPoint(20, 20), Qt::LeftButton);
            QCOMPARE(m_window->geometry(), before);
            QVERIFY(!QGuiApplication::overrideCursor());
        }
    }

    void lostReleaseEndsDrag()
    {
        const QPoint pos = m_window->on(m_window->titleBar);
        for (const bool underPopup : {true, false}) {
            m_mouse->press(pos);
            QWidget popup(nullptr, Qt::Popup);
            popup.setVisible(underPopup);
            const auto type = underPopup ? QEvent::MouseButtonRelease : QEvent::MouseButtonPress;
            m_window->handler->tell(m_window->label, type, pos);
            popup.hide();
            const QRect before = m_window->geometry();
            m_window->handler->tell(m_window->label, QEvent::MouseMove, pos + QPoint(25, 25), Qt::LeftButton);
            QCOMPARE(m_window->geometry(), before);
            m_mouse->release();
        }
    }

    void widgetsThatComeAndGo()
    {
        // Widgets wander between two windows, singly and in trees; each handler filters its window's alone.
        std::mt19937 random(5);
        Window other;
        QWidget nowhere;
        QVector<QPointer<QWidget>> widgets{m_window.data(), m_window->titleBar, &other, other.titleBar,
                                           &nowhere};
        const int fixed = widgets.size();
        const auto any = [&] { return widgets[int(random() % unsigned(widgets.size()))]; };
        for (int i = 0; i < 600; ++i) {
            QWidget *parent = any();
            QWidget *child = any();
            const unsigned deed = random() % 8;
            if (deed < 4)
                widgets.append(deed == 0 ? new QLineEdit(parent) : new QWidget(parent));
            else if (deed == 4 && widgets.indexOf(child) >= fixed)
                delete child;
            else if (!child->isWindow() && child != parent && !child->isAncestorOf(parent))
                child->setParent(parent);
            widgets.removeAll(nullptr);
            for (int k = fixed; k < widgets.size(); ++k) {
                const QWidget *root = widgets[k]->window();
                QCOMPARE(m_window->handler->filters(widgets[k]), root == m_window);
                QCOMPARE(other.handler->filters(widgets[k]), root == &other);
                QVERIFY(widgets[k]->hasMouseTracking() || root == &nowhere);
            }
        }
    }

    void cursorIsGivenBack_data()
    {
        QTest::addColumn<Deed>("leave");
        const auto row = [](const char *name, const Deed &leave) { QTest::newRow(name) << leave; };
        row("handler deleted", [](Window *window) { delete window->handler; });
        row("hidden", [](Window *window) {
            // What the mouse did before may still be told.
            const QPoint pos = window->at();
            window->hide();
            window->handler->tell(window, QEvent::Leave);
            window->handler->tell(window, QEvent::MouseMove, pos);
        });
        row("turned off", [](Window *window) { window->handler->setActive(3, false); });
        row("maximized", [](Window *window) {
            window->showMaximized();
            window->handler->tell(window, QEvent::Enter, window->at());
        });
        row("modal window", [](Window *) {
            QDialog dialog;
            dialog.setGeometry(0, 0, 50, 50);
            dialog.setModal(true);
            dialog.show();
            QVERIFY(shownCursor() != Qt::SizeHorCursor);
        });
        row("window on top", [](Window *window) {
            QWidget cover(window, Qt::ToolTip);
            cover.setGeometry(window->geometry());
            cover.show();
            window->handler->tell(window, QEvent::Leave);
            QVERIFY(shownCursor() != Qt::SizeHorCursor);
        });
        row("to the content", [](Window *window) {
            window->handler->tell(window->content, QEvent::Enter, Window::on(window->content));
        });
    }
    void cursorIsGivenBack()
    {
        QFETCH(Deed, leave);
        for (const int variant : {0, 1, 2, 3}) {
            const bool waiting = variant & 1;
            m_mouse->move(m_window->at());
            QCursor::setPos(m_window->at());
            QCoreApplication::processEvents();
            if (variant & 2)
                m_mouse->press(m_window->at());
            QCOMPARE(shownCursor(), Qt::SizeHorCursor);
            if (waiting) // somebody else has laid a cursor over ours
                QGuiApplication::setOverrideCursor(Qt::WaitCursor);
            leave(m_window);
            QCOMPARE(shownCursor(), waiting ? Qt::WaitCursor : Qt::ArrowCursor);
            if (waiting)
                QGuiApplication::restoreOverrideCursor();
            cleanup();
            init();
        }
    }

    void cursorsOfOthers()
    {
        // Others lay cursors on the stack and take the upper one, even ours, which is never over theirs.
        std::mt19937 random(3);
        const QVector<Qt::CursorShape> shapes{Qt::SizeHorCursor, Qt::SizeVerCursor, Qt::WaitCursor,
                                              Qt::BusyCursor};
        QVector<int> stack; // of places in shapes
        OverrideCursor own;
        for (int i = 0; i < 5000 || !stack.isEmpty(); ++i) {
            const int deed = i < 5000 ? int(random() % 7) : 6;
            if (deed >= 5 && !stack.isEmpty()) {
                QGuiApplication::restoreOverrideCursor();
                stack.removeLast();
            } else if (deed == 2 || deed == 3) {
                QGuiApplication::setOverrideCursor(shapes[deed]);
                stack.append(deed);
            } else {
                deed < 2 ? own.show(shapes[deed]) : own.clear();
                if (!stack.isEmpty() && stack.first() < 2)
                    stack.removeFirst();
                if (deed < 2 && stack.isEmpty())
                    stack.append(deed);
            }
            QCOMPARE(shownCursor(), stack.isEmpty() ? Qt::ArrowCursor : shapes[stack.last()]);
        }
    }

    void deletedByAChild()
    {
        for (const auto type : {QEvent::MouseMove, QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            m_window->button->victim = m_window;
            m_window->button->deadly = type;
            m_mouse->move(m_window->at());
            m_mouse->drag(m_window->on(m_window->button), {10, 10});
            QVERIFY(!m_window && !QGuiApplication::overrideCursor());
            init();
        }
    }

    void systemTakesOver()
    {
        Handler *handler = m_window->handler;
        handler->system = true;
        const QRect before = m_window->geometry();
        for (const Grip &grip : grips) {
            m_mouse->press(m_window->at(grip));
            QVERIFY(handler->handedOver.isEmpty() && QGuiApplication::overrideCursor());
            m_mouse->move(m_window->at(grip) + QPoint(20, 20));
            QVERIFY(!QGuiApplication::overrideCursor());
            m_mouse->move(m_window->at(grip) + QPoint(40, 40)); // a drag is handed over once
            QCOMPARE(std::exchange(handler->handedOver, {}), {grip.position});
            m_mouse->release();
            const Qt::Edges horizontal = grip.x < 0 ? Qt::LeftEdge : grip.x > 0 ? Qt::RightEdge : Qt::Edges();
            const Qt::Edges vertical = grip.y < 0 ? Qt::TopEdge : grip.y > 0 ? Qt::BottomEdge : Qt::Edges();
            QCOMPARE(edges(grip.position), horizontal | vertical);
        }
        for (const bool active : {true, false}) {
            handler->setActive(WidgetResizeHandler::Move, active);
            m_mouse->drag(m_window->on(m_window->content), {20, 20});
            m_mouse->drag(m_window->on(m_window->label), {20, 20});
        }
        QCOMPARE(handler->handedOver, {MousePosition::Center});
        QCOMPARE(m_window->geometry(), before);
        QVERIFY(platformPlacesWindows("wayland-egl") && !platformPlacesWindows("xcb"));

        // The position of a mouse that has left is the last one inside.
        QCursor::setPos(m_window->at());
        m_mouse->move(m_window->at());
        handler->tell(m_window->titleBar, QEvent::Leave);
        QVERIFY(QGuiApplication::overrideCursor());
        handler->tell(m_window, QEvent::Leave);
        QVERIFY(!QGuiApplication::overrideCursor());

        // What the window system cannot do the handler does.
        handler->unable = true;
        m_mouse->drag(m_window->at(), {20, 0});
        QCOMPARE(m_window->geometry(), before.adjusted(0, 0, 20, 0));
    }

private:
    QPointer<Window> m_window;
    QScopedPointer<Mouse> m_mouse;
};

QTEST_MAIN(TestWidgetResizeHandler)
#include "tst_widgetresizehandler.moc"
