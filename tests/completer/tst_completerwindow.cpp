#include "CompleterField.h"
#include "TestCase.h"

#include <nvo/Dialog.h>
#include <nvo/Flyout.h>

#include <QtWidgets>

namespace {

bool isOnScreen(const QWidget *window)
{
    return window && window->isVisible() && window->windowHandle()->isExposed();
}

/** A framed window with a field that has suggestions, at a place of its own. */
template <typename Base>
struct WindowWith : Base
{
    WindowWith()
    {
        field->setDataForCompleter(makeNames());
        field->setGeometry(20, 30, 240, 25);
        this->setGeometry(300, 200, 400, 120);
    }

    CompleterField *field = new CompleterField(this);
};

void typeInWindow(const QWidget *window, char key)
{
    QTest::keyClick(window->windowHandle(), key);
    QTest::qWait(50); // in which another window would become the active one
}

} // namespace

class TestCompleterWindow : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_window.reset(new WindowWith<QWidget>);
        m_field = m_window->field;
        m_popup = m_field->popup;
        m_window->show();
        m_field->setFocus();
        QVERIFY(QTest::qWaitForWindowActive(m_window.data()));
        QTRY_VERIFY(m_field->edit->hasFocus());
    }
    void cleanup() { m_window.reset(); }

    void focusStaysWhileTyping()
    {
        for (const char key : {'e', 'r', 'x'}) {
            typeInWindow(m_window.data(), key);
            QTRY_VERIFY(isOnScreen(m_popup));
            QCOMPARE(QGuiApplication::focusWindow(), m_window->windowHandle());
            QVERIFY(m_field->edit->hasFocus());
            QCOMPARE(QApplication::activeWindow(), m_window.data());
        }
        QCOMPARE(m_field->text(), QString("erx"));
        clickPopup({5, 5}); // the title
        QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, {},
                          m_field->bulb->mapTo(m_window.data(), {9, 9}));
        QTRY_VERIFY(!isOnScreen(m_popup));
        QTest::keyClick(m_window->windowHandle(), Qt::Key_Backspace);
        QTRY_VERIFY(isOnScreen(m_popup));
        QVERIFY(m_field->edit->hasFocus());
        clickRow("kell");
        QCOMPARE(m_field->text(), QString("keller"));
        QTest::qWait(50);
        QVERIFY(m_field->edit->hasFocus() && !m_popup->isVisible());
    }

    void focusLossDoesNotClose()
    {
        open();
        QLineEdit other(m_window.data());
        other.show();
        other.setFocus();
        QWidget elsewhere;
        elsewhere.show();
        QVERIFY(QTest::qWaitForWindowActive(&elsewhere));
        QVERIFY(isOnScreen(m_popup));
    }

    void goesWithFieldAndWindow()
    {
        open();
        QCOMPARE(m_popup->windowHandle()->transientParent(), m_window->windowHandle());
        m_window->showMinimized();
        QTRY_VERIFY(!m_popup->isVisible());
        m_window->showNormal();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.data()));
        open();
        m_field->hide();
        QVERIFY(!m_popup->isVisible());
        m_field->show();
        open();
        m_window->hide();
        QVERIFY(!m_popup->isVisible());
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.data()));
        open();
        m_window.reset();
        QVERIFY(!m_popup);
    }

    void followsWindow()
    {
        open();
        const auto isBelow = [this] {
            return m_popup->windowHandle()->geometry().topLeft()
                   == m_field->edit->mapToGlobal({0, m_field->edit->height()});
        };
        QTRY_VERIFY(isBelow());
        const QPoint before = m_popup->pos();
        m_window->windowHandle()->setPosition(420, 260);
        QTRY_VERIFY(m_popup->pos() != before);
        QTRY_VERIFY(isBelow());
        m_field->setGeometry(60, 50, 300, 25);
        QTRY_VERIFY(isBelow());
        QVERIFY(isOnScreen(m_popup));
    }

    void modalDialog()
    {
        WindowWith<QDialog> dialog;
        dialog.setModal(true);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        m_field = dialog.field;
        m_popup = m_field->popup;
        m_field->setFocus();
        typeInWindow(&dialog, 'e');
        QTRY_VERIFY(isOnScreen(m_popup));
        QVERIFY(m_field->edit->hasFocus());
        clickRow("brandt", 2);
        QCOMPARE(m_field->list->dataRowCount(), 4);
        clickRow("kell");
        QCOMPARE(m_field->text(), QString("keller"));
        open();
        dialog.reject();
        QVERIFY(!m_popup->isVisible());
    }

    void stickyFlyout()
    {
        NVO::Flyout flyout(m_window.data(), QRect(), NVO::Flyout::Sticky, nullptr);
        auto *content = new QWidget;
        content->setFixedSize(260, 40);
        m_field = new CompleterField(content);
        m_field->setDataForCompleter(makeNames());
        m_field->setGeometry(0, 0, 250, 25);
        m_popup = m_field->popup;
        flyout.setContent(content);
        flyout.show();
        QVERIFY(QTest::qWaitForWindowExposed(&flyout));
        open();
        QCOMPARE(m_popup->windowHandle()->transientParent(), flyout.windowHandle());
        clickRow("kell");
        QCOMPARE(m_field->text(), QString("keller"));
        QVERIFY(flyout.isVisible());
        open();
        flyout.hide();
        QVERIFY(!m_popup->isVisible());
    }

private:
    void open()
    {
        m_field->setUsername({});
        m_field->setUsername("e");
        QTRY_VERIFY(isOnScreen(m_popup));
    }
    void clickPopup(const QPoint &pos) const
    {
        QTest::mouseClick(m_popup->windowHandle(), Qt::LeftButton, {}, pos);
    }
    void clickRow(const QString &text, int column = 0) const
    {
        const QRect cell = m_field->list->visualRect(m_field->cell(text, column));
        clickPopup(m_field->list->viewport()->mapTo(m_popup, cell.center()));
    }

    QScopedPointer<WindowWith<QWidget>> m_window;
    CompleterField *m_field = nullptr;
    QPointer<NVO::Completer> m_popup;
};

QTEST_MAIN(TestCompleterWindow)
#include "tst_completerwindow.moc"
