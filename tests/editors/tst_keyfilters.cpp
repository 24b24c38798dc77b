#include "SignalRecorder.h"
#include "TestCase.h"

#include <nvo/CapsLockEventFilter.h>
#include <nvo/KeyEventFilter.h>
#include <nvo/KeyState.h>

#include <QLineEdit>
#include <QtTest>

using NVO::CapsLockEventFilter;
using NVO::KeyEventFilter;

namespace {

struct Receiver : QWidget
{
    void keyPressEvent(QKeyEvent *) override { ++presses; }
    void keyReleaseEvent(QKeyEvent *) override { ++releases; }
    int presses = 0;
    int releases = 0;
};

void recordAll(SignalRecorder &recorder, const KeyEventFilter &filter)
{
    recorder.record(&filter, &KeyEventFilter::function3Pressed, "f3");
    recorder.record(&filter, &KeyEventFilter::searchKeyPressed, "search");
    recorder.record(&filter, &KeyEventFilter::returnPressed, "return");
    recorder.record(&filter, &KeyEventFilter::enterPressed, "enter");
    recorder.record(&filter, &KeyEventFilter::returnOrEnterPressed, "either");
    recorder.record(&filter, &KeyEventFilter::escapePressed, "escape");
    recorder.record(&filter, &KeyEventFilter::capsLockPressed, "caps");
}

} // namespace

class TestKeyFilters : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void keys()
    {
        const QMap<int, QStringList> expected{{Qt::Key_Escape, {"escape"}},
                                              {Qt::Key_Return, {"return", "either", "search"}},
                                              {Qt::Key_Enter, {"enter", "either", "search"}},
                                              {Qt::Key_CapsLock, {"caps"}},
                                              {Qt::Key_F3, {"f3", "search"}}};
        const KeyEventFilter keyFilter;
        const CapsLockEventFilter capsLockFilter;
        QVERIFY(!keyFilter.parent() && !capsLockFilter.parent());
        SignalRecorder signalsOfKeys;
        SignalRecorder signalsOfCapsLock;
        recordAll(signalsOfKeys, keyFilter);
        signalsOfCapsLock.record(&capsLockFilter, &CapsLockEventFilter::capsLockPressed, "caps");
        for (const int key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter, Qt::Key_CapsLock, Qt::Key_F3,
                              Qt::Key_F2, Qt::Key_A, Qt::Key_Space, Qt::Key_Shift, Qt::Key_Tab}) {
            for (const auto modifier : {Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier}) {
                Receiver withKeys;
                Receiver withCapsLock;
                withKeys.installEventFilter(const_cast<KeyEventFilter *>(&keyFilter));
                withCapsLock.installEventFilter(const_cast<CapsLockEventFilter *>(&capsLockFilter));
                for (Receiver *receiver : {&withKeys, &withCapsLock}) {
                    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
                        QKeyEvent event(type, key, modifier);
                        QCoreApplication::sendEvent(receiver, &event);
                    }
                    QCOMPARE(receiver->releases, 1);
                }
                QCOMPARE(signalsOfKeys.take(), expected.value(key));
                QCOMPARE(withKeys.presses, expected.contains(key) ? 0 : 1);
                QCOMPARE(signalsOfCapsLock.take().size(), key == Qt::Key_CapsLock ? 1 : 0);
                QCOMPARE(withCapsLock.presses, key == Qt::Key_CapsLock ? 0 : 1);
            }
        }
    }

    void deletedInItsOwnSignal()
    {
        for (const bool withWidget : {false, true}) {
            QPointer<QLineEdit> field = new QLineEdit;
            QPointer<KeyEventFilter> filter = new KeyEventFilter;
            field->installEventFilter(filter);
            SignalRecorder log;
            recordAll(log, *filter);
            connect(filter, &KeyEventFilter::returnPressed, this, [&] {
                delete filter;
                if (withWidget)
                    delete field;
            });
            QKeyEvent event(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
            QCoreApplication::sendEvent(field, &event);
            QCOMPARE(log.take(), QStringList("return"));
            delete field;
        }
    }

    void capsLockWithoutWindowSystem() { QVERIFY(!NVO::KeyState::isCapsLockActive()); }
};

QTEST_MAIN(TestKeyFilters)
#include "tst_keyfilters.moc"
