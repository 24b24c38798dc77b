#include "TestCase.h"

#include <nvo/Action.h>
#include <nvo/Ribbon.h>
#include <nvo/RibbonGroup.h>
#include <nvo/RibbonTab.h>

#include <QtTest>
#include <QtWidgets>

using namespace NVO;

namespace {

/** A line edit above a ribbon that has an open group of one control and a collapsed one of three. */
struct Window : QWidget
{
    Window()
    {
        auto *layout = new QVBoxLayout(this);
        layout->addWidget(edit);
        layout->addWidget(ribbon);
        RibbonTab *tab = ribbon->addTab(action("Start"));
        lone = tab->addGroup(action("Erste"))->addAction(action("Neu"));
        group = tab->addGroup(action("Zweite"));
        for (const char *text : {"Rechnung erfassen", "Rechnung stornieren", "Rechnung ausdrucken"})
            group->addAction(action(text));
        button = group->findChild<QPushButton *>("RibbonGroupButton");
        resize(minimumSizeHint());
        setWindowFlag(Qt::FramelessWindowHint); // no frame that moves the window when it comes
        move(300, 300);
    }
    Action *action(const QString &text)
    {
        auto *made = new Action(text, this);
        made->setControlType(Action::CommandButton);
        made->setMacroIndexkey(text.left(1));
        return made;
    }

    /** A click and a key as the window gets them: an open popup, which has grabbed both, sees them first. */
    void click(const QWidget *target) const
    {
        QTest::mouseClick(windowHandle(), Qt::LeftButton, {}, target->mapTo(this, target->rect().center()));
    }
    void press(Qt::Key key) const { QTest::keyClick(windowHandle(), key); }

    /** The popup as soon as it is on the screen and has the focus; null if it does not come. */
    QPointer<RibbonGroup> popup() const
    {
        const QPointer<RibbonGroup> popup = group->findChild<RibbonGroup *>();
        const auto holdsFocus = [&] { return popup && popup->isAncestorOf(QApplication::focusWidget()); };
        const bool ready = popup && QTest::qWaitForWindowExposed(popup) && QTest::qWaitFor(holdsFocus);
        return ready && QApplication::activePopupWidget() == popup ? popup : nullptr;
    }
    QPointer<RibbonGroup> openPopup() const
    {
        click(button);
        return popup();
    }
    bool isOpen() const { return button->property("style") == "open"; }

    QWidget *edit = new QLineEdit;
    Ribbon *ribbon = new Ribbon(nullptr, this);
    QWidget *lone;
    RibbonGroup *group;
    QWidget *button;
};

} // namespace

class TestRibbonWindow : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    /** Each test has a window that the window system has activated, with the focus in the line edit. */
    void init()
    {
        m_window.reset(new Window);
        m_window->show();
        m_window->edit->setFocus();
        QVERIFY(QTest::qWaitForWindowActive(m_window.data()));
        QTRY_VERIFY(m_window->edit->hasFocus());
        QVERIFY(m_window->button->isVisible());
    }
    void cleanup() { m_window.reset(); }

    void clickOpensPopup()
    {
        for (const QWidget *pointed : {m_window->button, m_window->lone}) {
            QCursor::setPos(pointed->mapToGlobal(pointed->rect().center()));
            const QPointer<RibbonGroup> popup = m_window->openPopup();
            QVERIFY(popup && m_window->isOpen());
            QCOMPARE(popup->pos(), m_window->button->mapToGlobal(QPoint(0, m_window->group->height())));
            QCOMPARE(QApplication::focusWidget(), popup->visibleWidgets().first());
            m_window->press(Qt::Key_Down);
            QCOMPARE(QApplication::focusWidget(), popup->visibleWidgets()[1]);
            popup->close();
            QTRY_VERIFY(!popup);
        }
    }

    void clickOutsideClosesPopup()
    {
        // The button is outside, too, and does not open the popup again.
        for (const QWidget *target : {m_window->button, m_window->lone, m_window->edit}) {
            const QPointer<RibbonGroup> popup = m_window->openPopup();
            QVERIFY(popup);
            m_window->click(target);
            QTRY_VERIFY2(!popup, target->metaObject()->className());
            QVERIFY(!m_window->popup() && !m_window->isOpen());
            m_window->click(m_window->edit); // the mouse is the window's again
            QTRY_VERIFY(m_window->edit->hasFocus());
        }
    }

    void keyOpensPopupWithKeytips()
    {
        QVERIFY(m_window->ribbon->toggleKeyfocus());
        QVERIFY(!m_window->ribbon->selectControlByKey("R", true, false));
        const QPointer<RibbonGroup> popup = m_window->popup();
        QVERIFY(popup && popup->areControlKeytipsVisible());
        m_window->press(Qt::Key_Escape);
        QTRY_VERIFY(!popup && m_window->ribbon->tabBar()->hasFocus());
    }

    void walkReturnsFocus()
    {
        m_window->ribbon->toggleKeyfocus();
        for (const QWidget *next : {m_window->lone, m_window->button}) {
            m_window->press(next == m_window->lone ? Qt::Key_Down : Qt::Key_Right);
            QCOMPARE(QApplication::focusWidget(), next);
        }
        m_window->press(Qt::Key_Space);
        const QPointer<RibbonGroup> popup = m_window->popup();
        QVERIFY(popup);
        m_window->press(Qt::Key_Escape);
        QTRY_VERIFY(!popup && m_window->button->hasFocus() && !m_window->isOpen());
        m_window->ribbon->slotTriggerAction();
        QVERIFY(m_window->edit->hasFocus());
        QCOMPARE(m_window->ribbon->tabBar()->property("style"), QVariant("default"));
    }

    void otherWindowEndsKeytips()
    {
        QVERIFY(m_window->ribbon->toggleKeyfocus());
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        QVERIFY(!m_window->ribbon->areKeytipsVisible());
    }

    void groupDeletedUnderItsPopup()
    {
        QVERIFY(m_window->openPopup());
        delete m_window->group;
        QVERIFY(!QApplication::activePopupWidget());
        m_window->click(m_window->edit);
        QTRY_VERIFY(m_window->edit->hasFocus());
        m_window->press(Qt::Key_X);
        QCOMPARE(m_window->edit->property("text"), QVariant("x"));
    }

    void popupStaysOnScreen()
    {
        const QRect screen = m_window->screen()->availableGeometry();
        m_window->move(screen.right() - m_window->width() + 1, 300);
        QTRY_COMPARE(m_window->geometry().right(), screen.right());
        const QPointer<RibbonGroup> popup = m_window->openPopup();
        QVERIFY(popup && m_window->button->mapToGlobal(QPoint(popup->width(), 0)).x() > screen.right());
        QTRY_COMPARE(popup->geometry().right(), screen.right() - 1);
    }

private:
    QScopedPointer<Window> m_window;
};

QTEST_MAIN(TestRibbonWindow)
#include "tst_ribbonwindow.moc"
