#include "Mouse.h"
#include "TestCase.h"

#include "dialogs/WidgetResizeHandler.h"

#include <nvo/Button.h>
#include <nvo/MessageBox.h>

#include <QtTest>
#include <QtWidgets>

using namespace NVO;

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

/** Waits for the focus: Qt takes a window for active as soon as the window is that it belongs to. */
bool hasFocus(const QWidget &window)
{
    return QTest::qWaitFor([&window] { return QApplication::activeWindow() == &window; });
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
        const QSize least = m_window->minimumSizeHint();
        Mouse mouse(m_window.data());
        mouse.drag(m_window->bottomRight(), {60, 40});
        QTRY_COMPARE(managedGeometry(*m_window), QRect(300, 300, 380, 260));
        mouse.drag(m_window->topLeft(), {-50, 30});
        QTRY_COMPARE(managedGeometry(*m_window), QRect(250, 330, 430, 230));
        // The smallest size holds, and the corner that is not dragged stays.
        mouse.drag(m_window->topLeft(), {500, 500});
        QTRY_COMPARE(managedGeometry(*m_window).size(), least);
        QTRY_COMPARE(managedGeometry(*m_window).bottomRight(), QPoint(679, 559));
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

    void keysEndTheDialog()
    {
        constexpr int stillOpen = -1;
        using B = DialogButton;
        const QMap<Qt::Key, B::ButtonType> keys{
            {Qt::Key_Escape, B::Cancel}, {Qt::Key_Return, B::Next}, {Qt::Key_O, B::Ok}};
        for (int i = 0; i < 2 * keys.size(); ++i) {
            const Qt::Key key = keys.keys().at(i / 2);
            const bool inField = i % 2, typed = inField && key == Qt::Key_O;
            Dialog dialog(m_window.data(), ElementDialog, B::Ok | B::Cancel | B::Next, B::Next,
                          Dialog::NoFlag);
            dialog.setContent(new QLineEdit);
            const B *focused = nullptr;
            QTimer::singleShot(0, &dialog, [&] {
                focused = hasFocus(dialog) ? qobject_cast<B *>(QApplication::focusWidget()) : nullptr;
                if (inField)
                    dialog.content()->setFocus();
                QTest::keyClick(dialog.windowHandle(), key);
                if (dialog.isVisible())
                    dialog.done(stillOpen);
            });
            QCOMPARE(dialog.exec(), typed ? stillOpen : int(key != Qt::Key_Escape));
            QVERIFY(focused && focused->buttonType() == B::Next);
            QCOMPARE(dialog.pressedButton(), typed ? B::NoButton : keys[key]);
        }
    }

    void mouseMovesAndResizesTheDialog()
    {
        for (const int shadow : {0, 10}) {
            Dialog dialog(m_window.data());
            dialog.findChild<QFrame *>("frameTitleBar")->setFixedHeight(60);
            dialog.setContent(new QLabel);
            auto *button = new Button; // with a shadow of its own
            button->setStyleSheet("background: #ff8000; border: none; min-height: 30px");
            dialog.setExtraActionBarWidget(button);
            dialog.setShadowEnabled(shadow > 0);
            QRect expected(500, 200, 340, 260);
            dialog.setGeometry(expected);
            dialog.show();
            const QPoint onButton = button->mapToGlobal(button->rect().center());
            QTRY_COMPARE(dialog.screen()->grabWindow(0).toImage().pixelColor(onButton), QColor("#ff8000"));
            Mouse mouse(&dialog);
            const auto drag = [&](const QPoint &from, const QPoint &delta) {
                mouse.drag(dialog.mapToGlobal(from), delta);
                QTest::qWait(150); // the window manager tells of each step on the way
            };
            const auto corner = [&](int away) { return dialog.rect().bottomRight() - QPoint(away, away); };
            drag(dialog.rect().center(), {40, 30});
            drag(corner(shadow + 2), {30, 20});
            QCOMPARE(managedGeometry(dialog), expected);
            drag({170, 30}, {60, 50});
            expected.translate(60, 50);
            QTRY_COMPARE(managedGeometry(dialog), expected);
            dialog.enableResize(true);
            drag(corner(shadow + 2), {30, 20});
            expected.setSize({370, 280});
            QTRY_COMPARE(managedGeometry(dialog), expected);
            drag(corner(shadow > 0 ? shadow - 2 : 20), {30, 20}); // on the shadow, or inside
            QCOMPARE(managedGeometry(dialog), expected);
        }
    }

    void messageBoxKeepsItsText()
    {
        for (const int words : {1, 40, 250}) {
            MessageBox box(QMessageBox::Question, "Titel", QString("Buchung ").repeated(words),
                           DialogButton::Yes, DialogButton::Yes, m_window.data());
            const auto *message = box.findChild<QLabel *>("mmessage");
            box.show();
            for (const char *text : {"", "Nicht mehr fragen", ""}) {
                box.setCheckbox(text, Qt::Checked);
                QTest::qWait(100);
                QCOMPARE(managedGeometry(box).size(), box.size());
                QVERIFY(message->height() >= message->heightForWidth(message->width()));
            }
        }
    }

private:
    QScopedPointer<Window> m_window;
};

QTEST_MAIN(TestDialogWindow)
#include "tst_dialogwindow.moc"
