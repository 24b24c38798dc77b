#include "TestCase.h"

#include <nvo/Button.h>
#include <nvo/Flyout.h>

#include <QtTest>
#include <QtWidgets>

using NVO::Flyout;

namespace {

/** A framed window with a line edit and a button that a flyout points at. */
struct Window : QWidget
{
    Window()
    {
        edit->setGeometry(10, 10, 200, 30);
        target->setGeometry(150, 60, 60, 30);
        setGeometry(300, 200, 400, 120);
    }

    /** A click as the window gets it: a popup, which has grabbed the mouse, sees it first. */
    void clickEdit() const
    {
        QTest::mouseClick(windowHandle(), Qt::LeftButton, {}, edit->geometry().center());
    }

    QLineEdit *edit = new QLineEdit(this);
    QPushButton *target = new QPushButton(this);
};

bool isOnScreen(const Flyout &flyout)
{
    return flyout.isVisible() && flyout.windowHandle()->isExposed();
}

} // namespace

class TestFlyoutWindow : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_window.reset(new Window);
        m_window->show();
        m_window->edit->setFocus();
        QVERIFY(QTest::qWaitForWindowActive(m_window.data()));
        QTRY_VERIFY(m_window->edit->hasFocus());
    }
    void cleanup()
    {
        m_flyout.reset();
        m_window.reset();
    }

    void clickOutsideClosesPopup()
    {
        open({});
        QCOMPARE(QApplication::activePopupWidget(), m_flyout.data());
        const QRect box(QPoint(13, 13), m_flyout->size() - QSize(36, 36));
        for (const QPoint &inside : {box.topLeft(), box.bottomRight()}) {
            clickFlyout(inside);
            QVERIFY(isOnScreen(*m_flyout));
        }
        clickFlyout(box.bottomRight() + QPoint(1, 0)); // beside the box, but in the window
        QTRY_VERIFY(!isOnScreen(*m_flyout));

        m_flyout->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_flyout.data()));
        m_window->clickEdit();
        QTRY_VERIFY(!isOnScreen(*m_flyout));
        QVERIFY(!QApplication::activePopupWidget());
    }

    void popupAboveGoesFirst()
    {
        struct Stubborn : QWidget
        {
            using QWidget::QWidget;
            void closeEvent(QCloseEvent *event) override { event->ignore(); }
        } stubborn(nullptr, Qt::Popup);
        open({});
        stubborn.show();
        QTest::mousePress(m_flyout.data(), Qt::LeftButton, {}, {13, 13});
        QVERIFY(!stubborn.isVisible() && m_flyout->isVisible());
    }

    void crossOverModalDialog()
    {
        QDialog modal(m_window.data());
        modal.setModal(true);
        modal.show();
        QVERIFY(QTest::qWaitForWindowActive(&modal));
        for (const Flyout::FlyoutFlags flags : {Flyout::NoFlag, Flyout::Sticky}) {
            open(flags | Flyout::CloseButton);
            m_flyout->setTargetWidget(&modal);
            m_flyout->show();
            auto *accessible = QAccessible::queryAccessibleInterface(m_flyout.data());
            QCOMPARE(accessible->role(), flags ? QAccessible::ToolTip : QAccessible::Dialog);
            QCOMPARE(m_flyout->close(), !flags);
            QCOMPARE(m_flyout->isVisible(), bool(flags));
            m_flyout->show();
            QVERIFY(QTest::qWaitForWindowExposed(m_flyout.data()));
            const QWidget *cross = m_flyout->findChild<NVO::Button *>();
            QCOMPARE(cross->pos(), QPoint(m_flyout->width() - 33 - cross->width(), 23));
            clickFlyout(cross->geometry().center());
            QVERIFY(!m_flyout->isVisible());
            m_flyout->setLayoutDirection(Qt::RightToLeft);
            QCOMPARE(cross->pos(), QPoint(23, 23));
        }
    }

    void stickyStaysAndTakesNoFocus()
    {
        QTest::keyClick(m_window->windowHandle(), Qt::Key_A);
        open(Flyout::Sticky);
        m_window->clickEdit();
        clickFlyout({2, 2});
        QSignalSpy clicked(m_content, &QPushButton::clicked);
        clickFlyout(m_content->mapTo(m_flyout.data(), m_content->rect().center()));
        QCOMPARE(clicked.count(), 1);
        QTest::qWait(50); // in which another window would become the active one
        QVERIFY(isOnScreen(*m_flyout));
        QCOMPARE(QGuiApplication::focusWindow(), m_window->windowHandle());
        QVERIFY(m_window->edit->hasFocus());
        QTest::keyClick(m_window->windowHandle(), Qt::Key_B);
        QCOMPARE(m_window->edit->text(), QString("ab"));
    }

    void followsWindow()
    {
        open(Flyout::Sticky);
        const auto fromTarget = [this](const QPoint &pos) {
            return pos - m_window->target->mapToGlobal(QPoint());
        };
        const QPoint before = fromTarget(m_flyout->pos());
        QPoint from = m_flyout->pos();
        // The window asks its manager for a place, and hears from it where it came to stand.
        m_window->windowHandle()->setPosition(420, 260);
        QTRY_VERIFY(m_flyout->pos() != from);
        QTRY_COMPARE(fromTarget(m_flyout->windowHandle()->geometry().topLeft()), before);
        from = m_flyout->pos();
        m_window->showMaximized();
        QTRY_VERIFY(m_flyout->pos() != from);
        QTRY_COMPARE(fromTarget(m_flyout->windowHandle()->geometry().topLeft()), before);
        QVERIFY(isOnScreen(*m_flyout));
    }

    void goesWithWindow()
    {
        open(Flyout::Sticky);
        QCOMPARE(m_flyout->windowHandle()->transientParent(), m_window->windowHandle());
        m_window->showMinimized();
        QTRY_VERIFY(!isOnScreen(*m_flyout));
        m_window->showNormal();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.data()));
        m_flyout->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_flyout.data()));
        m_window->hide();
        QTRY_VERIFY(!isOnScreen(*m_flyout));
    }

private:
    void open(Flyout::FlyoutFlags flags)
    {
        m_flyout.reset(new Flyout(m_window->target, flags, nullptr));
        m_content = new QPushButton;
        m_content->setFixedSize(120, 60);
        m_flyout->setContent(m_content);
        m_flyout->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_flyout.data()));
    }
    void clickFlyout(const QPoint &pos) const
    {
        QTest::mouseClick(m_flyout->windowHandle(), Qt::LeftButton, {}, pos);
    }

    QScopedPointer<Window> m_window;
    QScopedPointer<Flyout> m_flyout;
    QPushButton *m_content = nullptr;
};

QTEST_MAIN(TestFlyoutWindow)
#include "tst_flyoutwindow.moc"
