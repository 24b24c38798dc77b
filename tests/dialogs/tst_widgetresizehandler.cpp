#include "EventCounter.h"
#include "Mouse.h"
#include "TestCase.h"

#include "dialogs/ResizeGeometry.h"
#include "dialogs/WidgetResizeHandler.h"

#include <QtTest>
#include <QtWidgets>

#include <functional>
#include <random>

using namespace ResizeGeometry;

namespace {

const QList<MousePosition> grips{
    MousePosition::TopLeft, MousePosition::BottomRight, MousePosition::BottomLeft, MousePosition::TopRight,
    MousePosition::Top,     MousePosition::Bottom,      MousePosition::Left,       MousePosition::Right};

bool onLeft(MousePosition grip)
{
    return grip == MousePosition::TopLeft || grip == MousePosition::BottomLeft || grip == MousePosition::Left;
}
bool onRight(MousePosition grip)
{
    return grip == MousePosition::TopRight || grip == MousePosition::BottomRight
           || grip == MousePosition::Right;
}
bool onTop(MousePosition grip)
{
    return grip == MousePosition::TopLeft || grip == MousePosition::TopRight || grip == MousePosition::Top;
}
bool onBottom(MousePosition grip)
{
    return grip == MousePosition::BottomLeft || grip == MousePosition::BottomRight
           || grip == MousePosition::Bottom;
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
        if (event->type() == QEvent::User)
            asked.insert(object);
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
        asked.clear();
        QEvent event(QEvent::User);
        QCoreApplication::sendEvent(object, &event);
        return asked.contains(object);
    }

    QSet<QObject *> asked;
    bool system = false;
    bool unable = false;
    QList<MousePosition> handedOver;
};

/** A title bar with a label above a plain widget and a button. */
struct Window : EventCounter<QWidget>
{
    Window()
        : handler(new Handler(this))
    {
        setWindowFlags(Qt::FramelessWindowHint);
        setMinimumSize(100, 80);
        titleBar->setObjectName("frameTitleBar");
        titleBar->setGeometry(0, 0, 300, 40);
        label->setGeometry(20, 10, 100, 20);
        content->setGeometry(0, 40, 300, 100);
        button->setGeometry(20, 150, 100, 30);
        setGeometry(90, 60, 300, 200); // on the screen at ratio 2, too
        show();
    }
    /** A point of the band of 6 pixels at \a grip, on the screen. */
    QPoint at(MousePosition grip, int inset = 3) const
    {
        const QRect inner = rect().adjusted(inset, inset, -inset, -inset);
        const QPoint middle = inner.center();
        return mapToGlobal({onLeft(grip)    ? inner.left()
                            : onRight(grip) ? inner.right()
                                            : middle.x(),
                            onTop(grip)      ? inner.top()
                            : onBottom(grip) ? inner.bottom()
                                             : middle.y()});
    }
    static QPoint on(const QWidget *widget) { return widget->mapToGlobal(widget->rect().center()); }

    QPointer<Handler> handler;
    QFrame *titleBar = new QFrame(this);
    QLabel *label = new QLabel(titleBar);
    EventCounter<QWidget> *content = new EventCounter<QWidget>(this);
    EventCounter<QPushButton> *button = new EventCounter<QPushButton>(this);
};

using Deed = std::function<void(Window *)>;

} // namespace

Q_DECLARE_METATYPE(MousePosition)
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

    void positionsOfAllPixels()
    {
        constexpr int far = 10000;
        for (const Margins margins : {Margins{0, 6}, Margins{10, 16}, Margins{0, 0}, Margins{8, 3}}) {
            for (const QSize size :
                 {QSize(60, 40), QSize(20, 50), QSize(50, 20), QSize(11, 9), QSize(0, 0)}) {
                // The first rectangle that holds the point tells; the corners of each are part of it.
                const int o = margins.outer;
                const int r = margins.range;
                const int w = size.width();
                const int h = size.height();
                const QList<QPair<QRect, MousePosition>> areas{
                    {{QPoint(-far, -far), QPoint(r, r)}, MousePosition::TopLeft},
                    {{QPoint(w - r, h - r), QPoint(far, far)}, MousePosition::BottomRight},
                    {{QPoint(-far, h - r), QPoint(r, far)}, MousePosition::BottomLeft},
                    {{QPoint(w - r, -far), QPoint(far, r)}, MousePosition::TopRight},
                    {{QPoint(-far, -far), QPoint(far, r)}, MousePosition::Top},
                    {{QPoint(-far, h - r), QPoint(far, far)}, MousePosition::Bottom},
                    {{QPoint(-far, -far), QPoint(r, far)}, MousePosition::Left},
                    {{QPoint(w - r, -far), QPoint(far, far)}, MousePosition::Right},
                    {{QPoint(0, 0), size}, MousePosition::Center}};
                for (int y = -3; y < h + 4; ++y) {
                    for (int x = -3; x < w + 4; ++x) {
                        MousePosition expected = MousePosition::Nowhere;
                        const QRect inner(QPoint(o, o), QPoint(w - o, h - o));
                        if (inner.isValid() && inner.contains(x, y)) {
                            expected = std::find_if(areas.begin(), areas.end(), [&](const auto &area) {
                                           return area.first.contains(x, y);
                                       })->second;
                        }
                        QCOMPARE(positionAt({x, y}, size, margins), expected);
                    }
                }
            }
        }
    }

    void geometriesOfRandomDrags()
    {
        std::mt19937 random(8);
        const auto pick = [&](int from, int to) {
            return std::uniform_int_distribution<int>(from, to)(random);
        };
        for (int i = 0; i < 20000; ++i) {
            const MousePosition grip = grips[pick(0, 7)];
            const QRect start(pick(-50, 500), pick(-50, 500), pick(50, 400), pick(50, 400));
            const QRect current(pick(-50, 500), pick(-50, 500), pick(50, 400), pick(50, 400));
            const QPoint delta(pick(-500, 500), pick(-500, 500));
            SizeLimits limits;
            if (pick(0, 3)) {
                limits.minimum = QSize(pick(0, 200), pick(0, 200));
                limits.maximum = limits.minimum + QSize(pick(0, 300), pick(0, 300));
            }
            if (pick(0, 1))
                limits.heightForWidth = [](int width) { return 20000 / std::max(1, width); };

            // Each direction by itself: the length, then the side from which it is counted.
            const auto length = [](int before, int by, int least, int most) {
                return std::min(std::max(before + by, least), most);
            };
            const int byX = onLeft(grip) ? -delta.x() : onRight(grip) ? delta.x() : 0;
            const int byY = onTop(grip) ? -delta.y() : onBottom(grip) ? delta.y() : 0;
            const int width = length(start.width(), byX, limits.minimum.width(), limits.maximum.width());
            int height = length(start.height(), byY, limits.minimum.height(), limits.maximum.height());
            if (limits.heightForWidth)
                height = std::max(height, 20000 / std::max(1, width));
            const bool counted = onLeft(grip) || onTop(grip); // from the window as it is now
            const bool fromRight = onLeft(grip) || grip == MousePosition::Top;
            const bool fromBottom = onTop(grip) || grip == MousePosition::Left;
            QPoint topLeft = counted ? current.topLeft() : start.topLeft();
            if (fromRight)
                topLeft.setX(current.x() + current.width() - width);
            if (fromBottom)
                topLeft.setY(current.y() + current.height() - height);
            QCOMPARE(resizedGeometry(grip, start, current, delta, limits),
                     QRect(topLeft, QSize(width, height)));
        }
    }

    void edgesResize_data()
    {
        QTest::addColumn<MousePosition>("grip");
        QTest::addColumn<Qt::CursorShape>("shape");
        const QList<Qt::CursorShape> shapes{Qt::SizeFDiagCursor, Qt::SizeFDiagCursor, Qt::SizeBDiagCursor,
                                            Qt::SizeBDiagCursor, Qt::SizeVerCursor,   Qt::SizeVerCursor,
                                            Qt::SizeHorCursor,   Qt::SizeHorCursor};
        for (int i = 0; i < grips.size(); ++i)
            QTest::addRow("%d", int(grips[i])) << grips[i] << shapes[i];
    }
    void edgesResize()
    {
        QFETCH(MousePosition, grip);
        QFETCH(Qt::CursorShape, shape);
        for (const int outer : {0, 10}) {
            m_window->handler->setMargins(outer, outer + 6);
            const QRect before = m_window->geometry();
            if (outer > 0) {
                m_mouse->drag(m_window->at(grip, outer - 2), {30, 30});
                QCOMPARE(m_window->geometry(), before);
                QCOMPARE(shownCursor(), Qt::ArrowCursor);
            }
            const QPoint pos = m_window->at(grip, outer + 3);
            m_mouse->move(m_window->on(m_window->button));
            QCOMPARE(shownCursor(), Qt::ArrowCursor);
            m_mouse->press(pos);
            QCOMPARE(shownCursor(), shape);

            // Out, in and far beyond the smallest size, always by the whole way from the press.
            for (const QPoint delta :
                 {QPoint(21, 33), QPoint(-17, -25), QPoint(-900, -900), QPoint(900, 900), QPoint(11, 13)}) {
                m_mouse->move(pos + delta);
                QRect expected = before;
                if (onLeft(grip))
                    expected.setLeft(std::min(before.left() + delta.x(), before.right() - 99));
                if (onRight(grip))
                    expected.setRight(std::max(before.right() + delta.x(), before.left() + 99));
                if (onTop(grip))
                    expected.setTop(std::min(before.top() + delta.y(), before.bottom() - 79));
                if (onBottom(grip))
                    expected.setBottom(std::max(before.bottom() + delta.y(), before.top() + 79));
                QCOMPARE(m_window->geometry(), expected);
            }
            m_mouse->release();
            const QRect after = m_window->geometry();
            m_mouse->move(pos + QPoint(100, 100));
            QCOMPARE(m_window->geometry(), after);
            m_window->setGeometry(before);
        }
        m_window->handler->setMargins(0, 6);
        m_mouse->move(m_window->at(grip));
        QCOMPARE(shownCursor(), shape);
        m_window->handler->setActive(WidgetResizeHandler::Resize, false);
        QCOMPARE(shownCursor(), Qt::ArrowCursor);
        m_mouse->move(m_window->at(grip, 2));
        QCOMPARE(shownCursor(), Qt::ArrowCursor);
        const QSize size = m_window->size();
        m_mouse->drag(m_window->at(grip), {30, 30});
        QCOMPARE(m_window->size(), size);
    }

    void limitsOfTheWindow()
    {
        auto *layout = new QVBoxLayout(m_window);
        layout->setSizeConstraint(QLayout::SetNoConstraint);
        auto *text = new QLabel(QString("Rechnung ").repeated(40));
        text->setWordWrap(true);
        layout->addWidget(text);
        m_window->setMinimumSize(0, 0);
        m_window->setMaximumWidth(420);
        m_window->resize(400, 200);
        const QPoint pos = m_window->at(MousePosition::Right);
        m_mouse->press(pos);
        for (const int by : {-100, -200, -250, 200}) {
            m_mouse->move(pos + QPoint(by, 0));
            QCOMPARE(m_window->width(), std::min(400 + by, 420));
            QCOMPARE(m_window->height(), std::max(200, m_window->heightForWidth(m_window->width())));
        }
    }

    void dragsByTheTitleBarOnly()
    {
        const QRect before = m_window->geometry();
        const auto movedBy = [&](const QPoint &from) {
            m_mouse->drag(from, {40, -30});
            const QPoint by = m_window->pos() - before.topLeft();
            m_window->setGeometry(before);
            return by;
        };
        QCOMPARE(movedBy(m_window->on(m_window->label)), QPoint(40, -30));
        QCOMPARE(movedBy(m_window->on(m_window->titleBar)), QPoint(40, -30));
        QCOMPARE(m_window->size(), before.size());

        // The press goes through the content, the moves do not reach it.
        QCOMPARE(movedBy(m_window->on(m_window->content)), QPoint());
        QCOMPARE(m_window->content->counts[QEvent::MouseButtonPress], 1);
        QCOMPARE(m_window->content->counts[QEvent::MouseMove], 1); // on the way to the press
        QCOMPARE(m_window->content->counts[QEvent::MouseButtonRelease], 0);

        // A button keeps what it gets.
        QCOMPARE(movedBy(m_window->on(m_window->button)), QPoint());
        QCOMPARE(m_window->button->counts[QEvent::MouseMove], 3);
        QCOMPARE(m_window->button->counts[QEvent::MouseButtonRelease], 1);

        m_mouse->press(m_window->on(m_window->label), Qt::RightButton);
        m_mouse->move(QPoint(300, 300));
        m_mouse->release();
        QCOMPARE(m_window->geometry(), before);

        m_window->handler->setActive(WidgetResizeHandler::Move, false);
        QCOMPARE(movedBy(m_window->on(m_window->label)), QPoint());
    }

    void standsStill_data()
    {
        QTest::addColumn<Deed>("prepare");
        const auto row = [](const char *name, const Deed &prepare) { QTest::newRow(name) << prepare; };
        row("inactive", [](Window *window) { window->handler->setActive(3, false); });
        row("maximized", [](Window *window) { window->showMaximized(); });
        row("popup", [](Window *window) {
            auto *popup = new QWidget(window, Qt::Popup);
            popup->setGeometry(0, 0, 10, 10);
            popup->show();
        });
    }
    void standsStill()
    {
        QFETCH(Deed, prepare);
        prepare(m_window);
        const QRect before = m_window->geometry();
        const QWidget *title = m_window->label;
        for (QWidget *target : QWidgetList{m_window, m_window->titleBar}) {
            for (const QPoint &from : {m_window->at(MousePosition::Right), Window::on(title)}) {
                for (const QPoint &to : {from, from + QPoint(20, 20)}) {
                    const auto type = to == from ? QEvent::MouseButtonPress : QEvent::MouseMove;
                    QMouseEvent event(type, to, to, Qt::LeftButton, Qt::LeftButton, {});
                    QVERIFY(!m_window->handler->eventFilter(target, &event));
                    QCOMPARE(m_window->geometry(), before);
                    QVERIFY(!QGuiApplication::overrideCursor());
                }
            }
        }
    }

    void childWindowHasItsOwnEdges()
    {
        auto *child = new QWidget(m_window, Qt::Tool);
        child->setGeometry(m_window->geometry());
        child->show();
        const QPoint pos = m_window->at(MousePosition::Right);
        QMouseEvent event(QEvent::MouseMove, child->mapFromGlobal(pos), pos, Qt::NoButton, {}, {});
        QCoreApplication::sendEvent(child, &event);
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    void minimizedHasNoEdges()
    {
        m_window->setWindowState(Qt::WindowMinimized);
        const QPoint pos = m_window->at(MousePosition::Right);
        QMouseEvent event(QEvent::MouseMove, pos, pos, Qt::NoButton, {}, {});
        QCoreApplication::sendEvent(m_window, &event);
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    void popupEndsDrag()
    {
        const QPoint pos = m_window->on(m_window->label);
        m_mouse->press(pos);
        m_mouse->move(pos + QPoint(5, 5));
        const QRect before = m_window->geometry();
        QWidget popup(nullptr, Qt::Popup);
        popup.show();
        QMouseEvent release(QEvent::MouseButtonRelease, pos, pos, Qt::LeftButton, {}, {});
        QVERIFY(!m_window->handler->eventFilter(m_window, &release));
        popup.hide();
        m_mouse->move(pos + QPoint(25, 25));
        QCOMPARE(m_window->geometry(), before);
    }

    void lostReleaseLeavesNoDrag()
    {
        // The handler sleeps when the button goes up; the next press is a child's.
        m_mouse->press(m_window->on(m_window->titleBar));
        m_window->handler->setActive(3, false);
        m_mouse->release();
        m_window->handler->setActive(3, true);
        const QRect before = m_window->geometry();
        auto *button = new QPushButton(m_window->titleBar);
        button->setGeometry(200, 10, 50, 20);
        button->show();
        const QPoint pos = m_window->on(button);
        const auto send = [&](QEvent::Type type, const QPoint &to) {
            QMouseEvent event(type, button->mapFromGlobal(to), to, Qt::LeftButton, Qt::LeftButton, {});
            QCoreApplication::sendEvent(button, &event);
        };
        send(QEvent::MouseButtonPress, pos);
        send(QEvent::MouseMove, pos + QPoint(20, 20));
        QCOMPARE(m_window->geometry(), before);
    }

    void widgetsThatComeAndGo()
    {
        // Widgets wander between two windows, singly and in trees; each handler filters its window's alone.
        std::mt19937 random(5);
        Window other;
        QVector<QPointer<QWidget>> widgets;
        for (QWidget *fixed : QWidgetList{m_window, m_window->titleBar, &other, other.titleBar})
            widgets.append(fixed);
        const auto any = [&] { return widgets[int(random() % unsigned(widgets.size()))]; };
        for (int i = 0; i < 600; ++i) {
            QWidget *parent = any();
            QWidget *child = any();
            const unsigned deed = random() % 8;
            if (deed < 3)
                widgets.append(new QWidget(parent));
            else if (deed == 3)
                widgets.append(new QLineEdit(parent));
            else if (deed == 4 && !child->isWindow() && child->objectName().isEmpty())
                delete child;
            else if (!child->isWindow() && child != parent && !child->isAncestorOf(parent))
                child->setParent(deed == 5 ? nullptr : parent);
            widgets.erase(std::remove(widgets.begin(), widgets.end(), nullptr), widgets.end());
            for (int k = 4; k < widgets.size(); ++k) {
                QWidget *root = widgets[k];
                while (root->parentWidget())
                    root = root->parentWidget();
                QCOMPARE(m_window->handler->filters(widgets[k]), root == m_window);
                QCOMPARE(other.handler->filters(widgets[k]), root == &other);
                QVERIFY(widgets[k]->hasMouseTracking() || (root != m_window && root != &other));
            }
        }
        for (const QPointer<QWidget> &widget : qAsConst(widgets)) {
            if (widget && widget != m_window && widget != &other && !widget->parent())
                delete widget;
        }
    }

    void activeBits()
    {
        WidgetResizeHandler *handler = m_window->handler;
        QVERIFY(handler->isActive(1) && handler->isActive(2) && handler->isActive(3));
        handler->setActive(1, false);
        QVERIFY(!handler->isActive(1) && handler->isActive(2) && handler->isActive(3));
        handler->setActive(2, false);
        QVERIFY(!handler->isActive(3));
        handler->setActive(4 | 1, true);
        QVERIFY(handler->isActive(1) && !handler->isActive(2) && !handler->isActive(4));
        WidgetResizeHandler orphan(nullptr);
        orphan.setActive(3, false);
        QEvent event(QEvent::Leave);
        QVERIFY(!orphan.eventFilter(nullptr, &event));
    }

    void cursorIsGivenBack_data()
    {
        QTest::addColumn<Deed>("leave");
        const auto row = [](const char *name, const Deed &leave) { QTest::newRow(name) << leave; };
        row("handler deleted", [](Window *window) { delete window->handler; });
        row("window deleted", [](Window *window) { delete window; });
        row("hidden", [](Window *window) {
            // What the mouse did before may still be told.
            const QPoint pos = window->at(MousePosition::Right);
            window->hide();
            QEvent leave(QEvent::Leave);
            QCoreApplication::sendEvent(window, &leave);
            QMouseEvent move(QEvent::MouseMove, window->mapFromGlobal(pos), pos, Qt::NoButton, {}, {});
            QCoreApplication::sendEvent(window, &move);
        });
        row("hidden asleep", [](Window *window) {
            window->handler->setActive(3, false);
            window->handler->setActive(3, true);
            window->hide();
        });
        row("closed", [](Window *window) { window->close(); });
        row("turned off", [](Window *window) { window->handler->setActive(3, false); });
        row("maximized", [](Window *window) {
            window->showMaximized();
            QEnterEvent enter(QPoint(), QPoint(), window->at(MousePosition::Right));
            QCoreApplication::sendEvent(window, &enter);
        });
        row("minimized", [](Window *window) { window->showMinimized(); });
        row("other window", [](Window *) {
            QWidget other;
            other.show();
            other.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&other));
        });
        row("modal window", [](Window *) {
            QDialog dialog;
            dialog.setGeometry(0, 0, 50, 50);
            dialog.setModal(true);
            dialog.show();
            QVERIFY(shownCursor() != Qt::SizeHorCursor);
        });
        row("window on top", [](Window *window) {
            QWidget cover(nullptr, Qt::ToolTip);
            cover.setGeometry(window->geometry());
            cover.show();
            QVERIFY(QTest::qWaitForWindowExposed(&cover));
            QEvent leave(QEvent::Leave);
            QCoreApplication::sendEvent(window, &leave);
            QVERIFY(shownCursor() != Qt::SizeHorCursor);
        });
        row("mouse left", [](Window *window) {
            QCursor::setPos(10, 10);
            QEvent leave(QEvent::Leave);
            QCoreApplication::sendEvent(window, &leave);
        });
        row("to the content", [](Window *window) {
            const QPoint pos = window->on(window->content);
            QEnterEvent enter(QPoint(), QPoint(), pos);
            QCoreApplication::sendEvent(window->content, &enter);
        });
    }
    void cursorIsGivenBack()
    {
        QFETCH(Deed, leave);
        for (const bool held : {false, true}) {
            for (const bool waiting : {false, true}) {
                const QPoint pos = m_window->at(MousePosition::Right);
                QCursor::setPos(pos);
                QCoreApplication::processEvents();
                m_mouse->move(pos);
                if (held)
                    m_mouse->press(pos);
                QCOMPARE(shownCursor(), Qt::SizeHorCursor);
                if (waiting) // somebody else has laid a cursor over ours
                    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
                leave(m_window);
                QCOMPARE(shownCursor(), waiting ? Qt::WaitCursor : Qt::ArrowCursor);
                if (waiting)
                    QGuiApplication::restoreOverrideCursor();
                QVERIFY(!QGuiApplication::overrideCursor());
                if (held)
                    m_mouse->release();
                cleanup();
                init();
            }
        }
    }

    void cursorsOfOthers()
    {
        const QPoint edge = m_window->at(MousePosition::Right);
        const QPoint corner = m_window->at(MousePosition::TopLeft);
        const QPoint inside = m_window->on(m_window->content);
        // One that was there before stays on top, and only the other restores it.
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        for (const QPoint &pos : {edge, corner, inside, edge}) {
            m_mouse->move(pos);
            QCOMPARE(shownCursor(), Qt::WaitCursor);
        }
        QGuiApplication::restoreOverrideCursor();
        QVERIFY(!QGuiApplication::overrideCursor());
        // Ours is one however often it changes.
        for (const QPoint &pos : {edge, corner, edge, edge, corner})
            m_mouse->move(pos);
        QGuiApplication::setOverrideCursor(Qt::BusyCursor);
        m_mouse->move(edge);
        QCOMPARE(shownCursor(), Qt::BusyCursor);
        QGuiApplication::restoreOverrideCursor();
        QVERIFY(!QGuiApplication::overrideCursor());
        // Somebody has emptied the stack: ours comes again, and nobody else's goes.
        m_mouse->move(edge);
        QGuiApplication::restoreOverrideCursor();
        m_mouse->move(edge + QPoint(1, 0));
        QCOMPARE(shownCursor(), Qt::SizeHorCursor);
        QGuiApplication::restoreOverrideCursor();
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        m_mouse->move(inside);
        QCOMPARE(shownCursor(), Qt::WaitCursor);
        QGuiApplication::restoreOverrideCursor();
    }

    void deletedByAChild_data()
    {
        QTest::addColumn<int>("deadly");
        QTest::newRow("move") << int(QEvent::MouseMove);
        QTest::newRow("press") << int(QEvent::MouseButtonPress);
        QTest::newRow("release") << int(QEvent::MouseButtonRelease);
    }
    void deletedByAChild()
    {
        QFETCH(int, deadly);
        m_window->button->victim = m_window;
        m_window->button->deadly = QEvent::Type(deadly);
        m_mouse->move(m_window->at(MousePosition::Right));
        m_mouse->drag(m_window->on(m_window->button), {10, 10});
        QVERIFY(!m_window && !QGuiApplication::overrideCursor());
    }

    void systemTakesOver()
    {
        m_window->handler->system = true;
        const QRect before = m_window->geometry();
        for (const MousePosition grip : grips) {
            m_mouse->press(m_window->at(grip));
            QVERIFY(m_window->handler->handedOver.isEmpty() && QGuiApplication::overrideCursor());
            m_mouse->move(m_window->at(grip) + QPoint(20, 20));
            QVERIFY(!QGuiApplication::overrideCursor());
            m_mouse->move(m_window->at(grip) + QPoint(40, 40)); // a drag is handed over once
            QCOMPARE(m_window->handler->handedOver, {grip});
            m_window->handler->handedOver.clear();
            m_mouse->release();
            QCOMPARE(int(edges(grip)), (onTop(grip) ? Qt::TopEdge : 0) | (onLeft(grip) ? Qt::LeftEdge : 0)
                                           | (onRight(grip) ? Qt::RightEdge : 0)
                                           | (onBottom(grip) ? Qt::BottomEdge : 0));
        }
        m_mouse->drag(m_window->on(m_window->content), {20, 20});
        QVERIFY(m_window->handler->handedOver.isEmpty());
        m_mouse->drag(m_window->on(m_window->label), {20, 20});
        QCOMPARE(m_window->handler->handedOver, {MousePosition::Center});
        m_window->handler->setActive(WidgetResizeHandler::Move, false);
        m_mouse->drag(m_window->on(m_window->label), {20, 20});
        QCOMPARE(m_window->handler->handedOver.size(), 1);
        QCOMPARE(m_window->geometry(), before);
        for (const char *own : {"xcb", "windows", "cocoa", "offscreen", ""})
            QVERIFY(!platformPlacesWindows(own));
        QVERIFY(platformPlacesWindows("wayland") && platformPlacesWindows("wayland-egl"));

        // The position of a mouse that has left is the last one inside.
        QCursor::setPos(m_window->at(MousePosition::Right));
        m_mouse->move(m_window->at(MousePosition::Right));
        QVERIFY(QGuiApplication::overrideCursor());
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(m_window->titleBar, &leave);
        QVERIFY(QGuiApplication::overrideCursor());
        QCoreApplication::sendEvent(m_window, &leave);
        QVERIFY(!QGuiApplication::overrideCursor());

        // What the window system cannot do the handler does.
        m_window->handler->unable = true;
        m_mouse->drag(m_window->at(MousePosition::Right), {20, 0});
        QCOMPARE(m_window->geometry(), before.adjusted(0, 0, 20, 0));
    }

private:
    QPointer<Window> m_window;
    QScopedPointer<Mouse> m_mouse;
};

QTEST_MAIN(TestWidgetResizeHandler)
#include "tst_widgetresizehandler.moc"
