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

void recordAll(SignalRecorder &log, const KeyEventFilter &filter)
{
    log.record(&filter, &KeyEventFilter::function3Pressed, "f3");
    log.record(&filter, &KeyEventFilter::searchKeyPressed, "search");
    log.record(&filter, &KeyEventFilter::returnPressed, "return");
    log.record(&filter, &KeyEventFilter::enterPressed, "enter");
    log.record(&filter, &KeyEventFilter::returnOrEnterPressed, "either");
    log.record(&filter, &KeyEventFilter::escapePressed, "escape");
    log.record(&filter, &KeyEventFilter::capsLockPressed, "caps");
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
        KeyEventFilter keyFilter;
        CapsLockEventFilter capsLockFilter;
        QVERIFY(!keyFilter.parent() && !capsLockFilter.parent());
        SignalRecorder log;
        recordAll(log, keyFilter);
        log.record(&capsLockFilter, &CapsLockEventFilter::capsLockPressed, "only caps");
        for (const int key :
             expected.keys() + QList<int>{Qt::Key_F2, Qt::Key_A, Qt::Key_Shift, Qt::Key_Tab}) {
            for (const auto modifier : {Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier}) {
                for (QObject *filter : QList<QObject *>{&keyFilter, &capsLockFilter}) {
                    Receiver receiver;
                    receiver.installEventFilter(filter);
                    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
                        QKeyEvent event(type, key, modifier);
                        QCoreApplication::sendEvent(&receiver, &event);
                    }
                    QStringList emitted = expected.value(key);
                    if (filter == &capsLockFilter)
                        emitted = key == Qt::Key_CapsLock ? QStringList("only caps") : QStringList();
                    QCOMPARE(log.take(), emitted);
                    QCOMPARE(receiver.presses, emitted.isEmpty() ? 1 : 0);
                    QCOMPARE(receiver.releases, 1);
                }
            }
        }
    }

    void deletedInItsOwnSignal()
    {
        QPointer<QLineEdit> field = new QLineEdit;
        QPointer<KeyEventFilter> filter = new KeyEventFilter;
        field->installEventFilter(filter);
        SignalRecorder log;
        recordAll(log, *filter);
        connect(filter, &KeyEventFilter::returnPressed, this, [&] {
            delete filter;
            delete field;
        });
        QKeyEvent event(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QCoreApplication::sendEvent(field, &event);
        QCOMPARE(log.take(), QStringList("return"));
    }

    void capsLockWithoutWindowSystem() { QVERIFY(!NVO::KeyState::isCapsLockActive()); }
};

QTEST_MAIN(TestKeyFilters)
#include "tst_keyfilters.moc"
