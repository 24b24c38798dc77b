// A monkey at the gallery: random events on every page. Nothing may crash, hang, leak or warn.
//
//     tst_monkey [--seed N] [--events N] [--first N] [--last N]
//
// Every event is printed before it comes, and follows from the seed and its number. A chapter of events
// begins with a new window on the next page: with --first and --last it runs alone.

#include "Gallery.h"
#include "GalleryApplication.h"
#include "MainWindow.h"
#include "PageRegistry.h"
#include "TestCase.h"
#include "pages/Page.h"

#include <nvo/Product.h>

#include <QAccessible>
#include <QAction>
#include <QCommandLineParser>
#include <QDialog>
#include <QEventLoop>
#include <QRandomGenerator>
#include <QScrollArea>
#include <QTimer>
#include <QToolBar>
#include <QWindow>
#include <QtTest>

#include <array>
#include <sys/time.h>

namespace {

constexpr int chapterLength = 200;
constexpr int deepest = 4;   // loops inside each other: a dialog that opens a menu, ...
constexpr int patience = 30; // seconds of work for one event
const QString letters = QStringLiteral("abdefgijkmnoqrstuxz ADGKMNOQSTX 0123456789 .,-+/%€äß\u05d0\u0301\n");
const std::vector<Qt::KeyboardModifier> modifiers{Qt::NoModifier,    Qt::NoModifier,      Qt::NoModifier,
                                                  Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier};

/** Ends the program after so many seconds of its own work, however busy the machine is; 0 stops the clock. */
void setClock(int seconds)
{
    const itimerval clock{{0, 0}, {seconds, 0}};
    setitimer(ITIMER_PROF, &clock, nullptr);
}

template <typename Object>
Object *noted(Object *object)
{
    fprintf(stderr, " %s(%s)", object->metaObject()->className(), qPrintable(object->objectName()));
    return object;
}

} // namespace

class tst_Monkey : public TestCase
{
    Q_OBJECT

public:
    tst_Monkey(int seed, int first, int last)
        : m_seed(seed)
        , m_first(first)
        , m_last(last)
    {
        m_timer.setSingleShot(true);
        connect(&m_timer, &QTimer::timeout, this, &tst_Monkey::step);
    }

private Q_SLOTS:
    void chapters()
    {
        for (int chapter = m_first / chapterLength; chapter <= m_last / chapterLength; ++chapter)
            runChapter(chapter);
    }

private:
    struct Maker
    {
        const char *name;
        int weight;
        void (*make)(tst_Monkey &);
        bool takesAway = false; ///< ends what another event may still be on its way through
    };
    static const std::vector<Maker> makers;

    void runChapter(int chapter)
    {
        seedWith(-1 - chapter);
        m_event = std::max(chapter * chapterLength, m_first);
        m_end = std::min((chapter + 1) * chapterLength - 1, m_last);
        m_gallery = std::make_unique<Gallery>(QStringLiteral(NVO_THEME_DIR));
        const QStringList pages = pageKeys();
        QVERIFY(m_gallery->open(any(themes()), pages.at((m_seed + chapter) % pages.size())));
        window()->activateWindow();
        m_timer.start(0);
        m_loop.exec();

        release();
        m_gallery->setFontDelta(0);
        QApplication::setLayoutDirection(Qt::LeftToRight);
        NVO::Product::instance().effectsEnabled = true;
        m_gallery.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(QApplication::topLevelWidgets(), QWidgetList());
    }

    /** Comes from any loop: the one of the chapter or one that an event has opened, as exec() does. */
    void step()
    {
        if (m_depth == 0 && m_event > m_end) {
            m_loop.quit();
            return;
        }
        ++m_depth;
        m_timer.start(0); // anew, or it would be silent in loops that are opened in here
        setClock(patience);
        if (m_depth > 1 && (m_event > m_end || m_depth > deepest || oneOf(6)))
            leaveLoop();
        else
            makeEvent();
        setClock(0);
        --m_depth;
    }

    void makeEvent()
    {
        std::vector<const Maker *> lots;
        for (const Maker &maker : makers)
            lots.insert(lots.end(), std::size_t(maker.weight), &maker);
        seedWith(m_event);
        const Maker &maker = *any(lots);
        fprintf(stderr, "\nseed %d event %d depth %d: %s", m_seed, m_event++, m_depth, maker.name);
        window()->show();
        // Qt itself does not survive the death of what an event is still on its way through.
        if (m_depth == 1 || !maker.takesAway)
            maker.make(*this);
    }

    void leaveLoop()
    {
        if (QWidget *popup = QApplication::activePopupWidget()) {
            popup->close();
        } else if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget())) {
            dialog->reject();
        } else if (m_depth > 1) { // a text is being dragged
            release();
            key(Qt::Key_Escape, QString(), Qt::NoModifier);
        }
    }

    void seedWith(int number)
    {
        const std::array<quint32, 2> seeds{quint32(m_seed), quint32(number)};
        m_random = QRandomGenerator(seeds.data(), 2);
    }
    int below(int bound) { return m_random.bounded(std::max(bound, 1)); }
    bool oneOf(int count) { return below(count) == 0; }
    template <typename List>
    typename List::value_type any(const List &list)
    {
        return list.begin() == list.end() ? typename List::value_type()
                                          : list.begin()[below(int(list.size()))];
    }
    template <typename Child>
    Child *anyChild(const QObject *parent)
    {
        return parent ? any(parent->findChildren<Child *>()) : nullptr;
    }
    QPoint anyPoint(QSize size) { return {below(size.width()), below(size.height())}; }
    Qt::MouseButton anyButton() { return oneOf(6) ? Qt::RightButton : Qt::LeftButton; }
    int anyKey() { return Qt::Key_Escape + below(Qt::Key_F12 - Qt::Key_Escape); }

    MainWindow *window() const { return m_gallery->window(); }

    /** What a user can reach. */
    QWidget *frontWindow() const
    {
        QWidget *popup = QApplication::activePopupWidget();
        QWidget *front = popup ? popup : QApplication::activeModalWidget();
        return front ? front : window();
    }

    Page *page() const
    {
        const auto pages = window()->findChildren<Page *>();
        const auto shown =
            std::find_if(pages.begin(), pages.end(), [](Page *page) { return page->isVisible(); });
        return shown == pages.end() ? nullptr : *shown;
    }

    /** Mostly on the page, or in the window before it, and something to operate rather than a label. */
    QWidget *anyWidget()
    {
        QWidget *front = frontWindow();
        QWidget *parent = front == window() && page() && !oneOf(4) ? page() : front;
        auto *widget = anyChild<QWidget>(parent);
        for (int i = 0; i < 2 && widget && widget->focusPolicy() == Qt::NoFocus; ++i)
            widget = anyChild<QWidget>(parent);
        return noted(widget ? widget : front);
    }

    /** What the page has put on itself: what a widget consists of is its own affair. */
    QWidget *anyPart()
    {
        auto *part = anyChild<QWidget>(page());
        while (part && part->parent() != page() && part->parent()->parent() != page())
            part = part->parentWidget();
        return part;
    }

    /** Of a tool bar: those that a field has made for itself are its own affair, too. */
    QAction *anyAction()
    {
        const auto *bar = anyChild<QToolBar>(page());
        return bar ? any(bar->actions()) : nullptr;
    }

    void move()
    {
        QWidget *widget = anyWidget();
        for (QWidget *view = widget; view && widget->visibleRegion().isEmpty(); view = view->parentWidget()) {
            if (auto *area = qobject_cast<QScrollArea *>(view))
                area->ensureWidgetVisible(widget);
        }
        m_pos = widget->mapToGlobal(anyPoint(widget->size()));
        if (m_button == Qt::NoButton)
            m_window = widget->window()->windowHandle();
        m_time += QTest::mouseDoubleClickInterval;
        mouse(QEvent::MouseMove);
    }

    /** As the window system sends it; a button that is held holds the window, too. */
    void mouse(QEvent::Type type, Qt::MouseButton button = Qt::NoButton)
    {
        if (type != QEvent::MouseMove)
            m_button = type == QEvent::MouseButtonPress ? button : Qt::NoButton;
        if (m_window)
            qt_handleMouseEvent(m_window, m_window->mapFromGlobal(m_pos), m_pos, m_button, button, type,
                                any(modifiers), ++m_time);
    }

    void click(int times)
    {
        move();
        for (const Qt::MouseButton button = anyButton(); times > 0; --times) {
            mouse(QEvent::MouseButtonPress, button);
            release();
        }
    }

    void release()
    {
        if (m_button != Qt::NoButton)
            mouse(QEvent::MouseButtonRelease, m_button);
    }

    void drag()
    {
        move();
        mouse(QEvent::MouseButtonPress, Qt::LeftButton);
        for (int i = 0; i < 4; ++i) {
            m_pos += anyPoint({61, 61}) - QPoint(30, 30);
            mouse(QEvent::MouseMove);
        }
        release();
    }

    void wheel()
    {
        move();
        if (!m_window)
            return;
        QWheelEvent event(m_window->mapFromGlobal(m_pos), m_pos, QPoint(),
                          anyPoint({480, 480}) - QPoint(240, 240), m_button, any(modifiers),
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(m_window, &event);
    }

    void key(int key, const QString &text, Qt::KeyboardModifiers modifier)
    {
        QWindow *focused = QGuiApplication::focusWindow();
        const QPointer<QWindow> receiver = focused ? focused : window()->windowHandle();
        qt_handleKeyEvent(receiver, QEvent::KeyPress, key, modifier, text);
        if (receiver)
            qt_handleKeyEvent(receiver, QEvent::KeyRelease, key, modifier, text);
    }

    void type()
    {
        for (int i = below(8); i >= 0; --i) {
            const QChar letter = any(letters);
            key(letter.toUpper().unicode(), letter, Qt::NoModifier);
        }
    }

    void compose()
    {
        QInputMethodEvent event(any(letters), {});
        event.setCommitString(any(letters), -below(3), below(3));
        if (QWidget *focused = QApplication::focusWidget())
            QCoreApplication::sendEvent(focused, &event);
    }

    /** A tool tip, and what a screen reader asks for and does. */
    void assist()
    {
        QWidget *widget = anyWidget();
        const QPoint pos = anyPoint(widget->size());
        QHelpEvent event(QEvent::ToolTip, pos, widget->mapToGlobal(pos));
        QCoreApplication::sendEvent(widget, &event);
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(widget);
        if (interface && interface->childCount() > 0 && oneOf(2))
            interface = interface->child(below(interface->childCount()));
        if (!interface || !interface->isValid())
            return;
        for (const QAccessible::Text text : {QAccessible::Name, QAccessible::Description, QAccessible::Value})
            interface->text(text);
        interface->childAt(interface->rect().x(), interface->rect().y());
        if (QAccessibleActionInterface *action = interface->actionInterface())
            action->doAction(action->actionNames().value(below(4)));
        else if (QAccessibleValueInterface *value = interface->valueInterface())
            value->setCurrentValue(below(200) - 50);
    }

    /** The page keeps plain pointers to what it has made, so it must not hear of anything any more. */
    void remove(QObject *part)
    {
        if (!part)
            return;
        Page *deaf = page();
        for (QObject *sender : deaf->findChildren<QObject *>()) {
            disconnect(sender, nullptr, deaf, nullptr);
            sender->removeEventFilter(deaf);
        }
        deaf->installEventFilter(this);
        noted(part)->deleteLater();
    }

    bool eventFilter(QObject *, QEvent *event) override { return event->type() != QEvent::DeferredDelete; }

    const int m_seed;
    const int m_first;
    const int m_last;
    QRandomGenerator m_random;
    std::unique_ptr<Gallery> m_gallery;
    QTimer m_timer;
    QEventLoop m_loop;
    int m_event = 0;
    int m_end = 0;              ///< the last event of the chapter
    int m_depth = 0;            ///< steps inside each other, through loops that events have opened
    QPointer<QWindow> m_window; ///< where the mouse is
    QPoint m_pos;
    Qt::MouseButton m_button = Qt::NoButton;
    int m_time = 0;
};

using Monkey = tst_Monkey;
const std::vector<Monkey::Maker> Monkey::makers{
    {"move", 30, [](Monkey &m) { m.move(); }},
    {"press", 12, [](Monkey &m) { m.move(), m.mouse(QEvent::MouseButtonPress, m.anyButton()); }},
    {"release", 12, [](Monkey &m) { m.release(); }},
    {"click", 72, [](Monkey &m) { m.click(1); }},
    {"double click", 12, [](Monkey &m) { m.click(3); }},
    {"drag", 18, [](Monkey &m) { m.drag(); }},
    {"wheel", 18, [](Monkey &m) { m.wheel(); }},
    {"key", 72, [](Monkey &m) { m.key(m.anyKey(), QString(), m.any(modifiers)); }},
    {"type", 30, [](Monkey &m) { m.type(); }},
    {"compose", 6, [](Monkey &m) { m.compose(); }},
    {"focus", 18, [](Monkey &m) { m.anyWidget()->setFocus(Qt::FocusReason(m.below(8))); }},
    {"activate", 6, [](Monkey &m) { QApplication::setActiveWindow(m.oneOf(3) ? nullptr : m.frontWindow()); }},
    {"resize", 12, [](Monkey &m) { m.frontWindow()->resize(m.below(1500), m.below(1000)); }},
    {"show", 12, [](Monkey &m) { m.anyWidget()->setVisible(!m.oneOf(3)); }},
    {"enable", 12, [](Monkey &m) { m.anyWidget()->setEnabled(!m.oneOf(3)); }},
    {"assist", 18, [](Monkey &m) { m.assist(); }},
    {"wait", 12, [](Monkey &m) { QThread::msleep(ulong(m.below(40))); }},
    {"leave loop", 12, [](Monkey &m) { m.leaveLoop(); }},
    {"font delta", 1, [](Monkey &m) { m.m_gallery->setFontDelta(m.below(12) - 4); }},
    {"variant", 1, [](Monkey &m) { NVO::Product::instance().variant = m.below(2); }},
    {"effects", 1, [](Monkey &m) { NVO::Product::instance().effectsEnabled = m.oneOf(2); }},
    {"direction", 1, [](Monkey &m) { QApplication::setLayoutDirection(Qt::LayoutDirection(m.below(2))); }},
    {"page", 1, [](Monkey &m) { m.window()->setCurrentPage(m.any(pageKeys())); }},
    {"theme", 1, [](Monkey &m) { m.window()->themeRequested(m.any(themeKeys())); }, true},
    {"remove widget", 3, [](Monkey &m) { m.remove(m.anyPart()); }, true},
    {"remove action", 2, [](Monkey &m) { m.remove(m.anyAction()); }, true}};

int main(int argc, char **argv)
{
    qputenv("QTEST_FUNCTION_TIMEOUT", "2000000000"); // each event has its own
    qSetGlobalQHashSeed(0);
    GalleryApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);

    QCommandLineParser parser;
    for (const char *name : {"seed", "events", "first", "last"})
        parser.addOption({QLatin1String(name), QString(), QStringLiteral("N")});
    parser.process(application);
    const auto number = [&parser](const QString &name, int fallback) {
        return parser.isSet(name) ? parser.value(name).toInt() : fallback;
    };
    const int first = number(QStringLiteral("first"), 0);
    const int last = number(QStringLiteral("last"), first + number(QStringLiteral("events"), 2000) - 1);
    tst_Monkey test(number(QStringLiteral("seed"), 1), first, last);
    return QTest::qExec(&test, {QString(), QStringLiteral("-maxwarnings"), QStringLiteral("0")});
}

#include "tst_monkey.moc"
