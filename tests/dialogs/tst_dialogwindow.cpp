#include "Mouse.h"
#include "TestCase.h"

#include "dialogs/WidgetResizeHandler.h"

#include <QtTest>
#include <QtWidgets>

namespace {

/** A frameless dialog with a title bar and a field, handled as every window without a native frame is. */
struct Window : QDialog
{
    Window()
    {
        setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint | Qt::CustomizeWindowHint);
        setAttribute(Qt::WA_TransparentForMouseEvents); // as the dialogs of the library
        auto *layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        titleBar->setObjectName("frameTitleBar");
        titleBar->setFixedHeight(40);
        edit->setMinimumSize(150, 60);
        layout->addWidget(titleBar);
        layout->addWidget(edit, 1);
        setGeometry(300, 300, 320, 220);
    }
    QPoint onTitleBar() const { return titleBar->mapToGlobal(titleBar->rect().center()); }
    QPoint bottomRight() const { return mapToGlobal(rect().bottomRight() - QPoint(2, 2)); }
    QPoint topLeft() const { return mapToGlobal(QPoint(2, 2)); }

    QFrame *titleBar = new QFrame;
    QTextEdit *edit = new QTextEdit;
    WidgetResizeHandler *handler = new WidgetResizeHandler(this);
};

/** The geometry as the window manager has it. */
QRect managedGeometry(const QWidget &window)
{
    return window.windowHandle()->geometry();
}

} // namespace

class TestDialogWindow : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    /** Each test has a window that the window manager has activated, and the pointer away from it. */
    void init()
    {
        QCursor::setPos(5, 5);
        m_window.reset(new Window);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.data()));
        QTRY_VERIFY(!m_window->underMouse());
        QTRY_COMPARE(managedGeometry(*m_window), QRect(300, 300, 320, 220));
    }
    void cleanup()
    {
        m_window.reset();
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    void titleBarMovesTheWindow()
    {
        Mouse mouse(m_window.data());
        mouse.drag(m_window->onTitleBar(), {120, 90});
        QTRY_COMPARE(managedGeometry(*m_window), QRect(420, 390, 320, 220));
        QCOMPARE(m_window->geometry(), managedGeometry(*m_window));
        mouse.drag(m_window->edit->viewport()->mapToGlobal(QPoint(50, 50)), {40, 40});
        QTest::qWait(50);
        QCOMPARE(managedGeometry(*m_window), QRect(420, 390, 320, 220));
    }

    void edgesResizeTheWindow()
    {
        Mouse mouse(m_window.data());
        mouse.drag(m_window->bottomRight(), {60, 40});
        QTRY_COMPARE(managedGeometry(*m_window), QRect(300, 300, 380, 260));
        mouse.drag(m_window->topLeft(), {-50, 30});
        QTRY_COMPARE(managedGeometry(*m_window), QRect(250, 330, 430, 230));
    }

    void smallestSizeHolds()
    {
        const QSize least = m_window->minimumSizeHint();
        QVERIFY(least.width() >= 150 && least.height() >= 100);
        Mouse mouse(m_window.data());
        // The corner that is not dragged stays.
        mouse.drag(m_window->topLeft(), {500, 500});
        QTRY_COMPARE(managedGeometry(*m_window).size(), least);
        QTRY_COMPARE(managedGeometry(*m_window).bottomRight(), QPoint(619, 519));
        mouse.drag(m_window->bottomRight(), {-500, -500});
        QTest::qWait(50);
        QCOMPARE(managedGeometry(*m_window),
                 QRect(QPoint(620, 520) - QPoint(least.width(), least.height()), least));
    }

    void pointerLeavesNoCursorBehind_data()
    {
        QTest::addColumn<QString>("way");
        for (const char *way : {"in", "out", "hidden", "deleted", "blocked"})
            QTest::newRow(way) << way;
    }
    void pointerLeavesNoCursorBehind()
    {
        QFETCH(QString, way);
        QCursor::setPos(m_window->bottomRight());
        QTRY_VERIFY(QGuiApplication::overrideCursor());
        QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::SizeFDiagCursor);
        QDialog modal; // away from the pointer, which stays at the edge of the window
        modal.setGeometry(0, 0, 100, 100);
        modal.setModal(true);
        if (way == "in")
            QCursor::setPos(m_window->geometry().center());
        else if (way == "out")
            QCursor::setPos(5, 5);
        else if (way == "hidden")
            m_window->hide();
        else if (way == "deleted")
            m_window.reset();
        else
            modal.show();
        QTRY_VERIFY(!QGuiApplication::overrideCursor());
        QTest::qWait(50);
        QVERIFY(!QGuiApplication::overrideCursor());
    }

private:
    QScopedPointer<Window> m_window;
};

QTEST_MAIN(TestDialogWindow)
#include "tst_dialogwindow.moc"
