#include "TestCase.h"

#include <nvo/CapsLockEventFilter.h>
#include <nvo/KeyState.h>

#include <QLineEdit>
#include <QProcess>
#include <QtTest>

using NVO::KeyState;

/** Caps lock as the X server has it, driven by keys that the server takes for real ones. */
class TestCapsLock : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        if (KeyState::isCapsLockActive())
            key("Caps_Lock");
    }

    void toggles()
    {
        cleanup();
        key("Num_Lock"); // the server handles keys in their order, so that this one has come when the next
                         // has
        key("Caps_Lock");
        QTRY_VERIFY(KeyState::isCapsLockActive()); // without a window of ours
        key("Caps_Lock");
        QTRY_VERIFY(!KeyState::isCapsLockActive());
        key("Num_Lock");

        QLineEdit field;
        NVO::CapsLockEventFilter filter;
        field.installEventFilter(&filter);
        QSignalSpy presses(&filter, &NVO::CapsLockEventFilter::capsLockPressed);
        field.show();
        QVERIFY(QTest::qWaitForWindowActive(&field));
        field.setFocus();
        QTRY_VERIFY(field.hasFocus());
        QString typed;
        for (int press = 1; press <= 4; ++press) {
            const bool on = press % 2;
            key("Caps_Lock");
            QTRY_COMPARE(KeyState::isCapsLockActive(), on);
            QTRY_COMPARE(presses.size(), press);
            key("a");
            typed += on ? 'A' : 'a';
            QTRY_COMPARE(field.text(), typed);
        }
    }

private:
    static void key(const char *name) { QCOMPARE(QProcess::execute("xdotool", {"key", name}), 0); }
};

QTEST_MAIN(TestCapsLock)
#include "tst_capslock.moc"
