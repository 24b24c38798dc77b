#include "TestCase.h"

#include <nvo/DateEdit.h>
#include <nvo/PeriodEdit.h>

#include <QAccessible>
#include <QVBoxLayout>
#include <QtTest>

#include <algorithm>

using NVO::BaseDateEdit;
using NVO::DateEdit;
using NVO::PeriodEdit;

namespace {

constexpr Qt::Key stepKeys[] = {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown};
constexpr int stepDeltas[] = {1, -1, 10, -10};

struct Parts : BaseDateEdit
{
    using BaseDateEdit::maskPartFor;
    using BaseDateEdit::placeholderPartFor;
    using BaseDateEdit::stringFor;
    using BaseDateEdit::validatePart;
};

BaseDateEdit::Flags flagsOf(int flags)
{
    return BaseDateEdit::Flags(QFlag(flags));
}

/** 2 for a date, which \a date becomes, 1 for what can become one, 0 for the rest. */
int judgedPart(const QString &text, int flags, int fixedYear, QDate *date)
{
    QStringList parts = QString(text).remove('_').split(flags & 8 ? '/' : '.');
    int numbers[] = {1, 1, fixedYear > 0 ? fixedYear : 2000};
    const int maxima[] = {39, 19, 2999};
    bool missing = false;
    for (int i = 0; i < 3; ++i) {
        if (flags & (1 << i))
            continue;
        if (parts.isEmpty())
            return 0;
        const QString part = parts.takeFirst();
        if (std::any_of(part.begin(), part.end(), [](QChar c) { return !c.isDigit(); }) || part.size() > 9
            || part.toInt() > maxima[i])
            return 0;
        missing |= part.isEmpty();
        if (!part.isEmpty())
            numbers[i] = part.toInt();
    }
    if (fixedYear > 0 && numbers[2] != fixedYear)
        return 0;
    const QDate named(numbers[2], numbers[1], numbers[0]);
    if (missing || !named.isValid())
        return 1;
    *date = named;
    return 2;
}

/** The same for all that \a field would show. */
int judged(const QString &text, const BaseDateEdit &field)
{
    const QStringList halves = text.split(" - ");
    if (halves.size() != (qobject_cast<const PeriodEdit *>(&field) ? 2 : 1))
        return 0;
    int state = 2;
    QDate before;
    for (const QString &half : halves) {
        QDate date;
        state = qMin(state, judgedPart(half, int(field.flags()), field.fixedYear(), &date));
        if (before > date)
            return 0;
        before = date;
    }
    return state;
}

/** What stepping makes of \a text: of the number, with the blanks around it, at the cursor or else before. */
QString steppedByHand(const QString &text, int cursor, int delta)
{
    static const QRegularExpression ending("_*([0-9]*)$");
    static const QRegularExpression beginning("^([0-9]+)_*");
    const int last = cursor == text.size() ? cursor - 1 : cursor;
    for (int at = last; at >= qMax(0, last - 1); --at) {
        const auto head = ending.match(text.left(at));
        const auto tail = beginning.match(text.mid(at));
        if (!tail.hasMatch())
            continue;
        const QString number = QString::number((head.captured(1) + tail.captured(1)).toInt() + delta);
        return text.left(head.capturedStart())
               + number.rightJustified(head.capturedLength() + tail.capturedLength(), '0')
               + text.mid(at + tail.capturedLength());
    }
    return {};
}

/** A window with both fields and one more that has the focus. */
struct Form : QWidget
{
    Form()
    {
        auto *layout = new QVBoxLayout(this);
        for (QWidget *widget : QList<QWidget *>{&other, &date, &period})
            layout->addWidget(widget);
        other.setFocus();
        show();
        QApplication::setActiveWindow(this);
    }

    void tabAround()
    {
        for (int i = 0; i < 3; ++i)
            QTest::keyClick(focusWidget(), Qt::Key_Tab);
    }

    QList<QDate> dates() const { return {date.date(), period.startDate(), period.endDate()}; }

    QLineEdit other;
    DateEdit date;
    PeriodEdit period;
    const QList<BaseDateEdit *> fields{&date, &period};
};

bool takesKey(QWidget *widget, QEvent::Type type, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    QKeyEvent event(type, key, modifiers);
    QApplication::sendEvent(widget, &event);
    return event.isAccepted();
}

/** The mask belongs to the focus or a date, else the placeholder is there. No empty field is undescribed. */
void checkFace(const BaseDateEdit &field)
{
    const bool complete = judged(field.text(), field) == 2;
    QCOMPARE(field.inputMask().isEmpty(), !complete && !field.hasFocus());
    QCOMPARE(field.placeholderText().isEmpty(), !field.inputMask().isEmpty());
    QVERIFY(complete || !field.accessibleDescription().isEmpty());
}

QString description(QWidget *widget)
{
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Description);
}

} // namespace

class TestDateEdit : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void forms()
    {
        const QDate day(987, 3, 5);
        const struct
        {
            int flags;
            int year;
            QString mask, placeholder, text;
        } forms[] = {{0, -1, "09.09.9999", "dd.mm.jjjj", "05.03.0987"},
                     {8, 0, "09/09/9999", "dd/mm/jjjj", "05/03/0987"},
                     {4, 2019, "09.09.", "dd.mm.", "05.03."},
                     {9, -1, "09/9999", "mm/jjjj", "03/0987"},
                     {1, 2019, "09.2\\01\\9", "mm.2019", "03.0987"},
                     {3, 1990, "1\\9\\9\\0", "1990", "0987"}};
        for (const auto &form : forms) {
            QCOMPARE(Parts::maskPartFor(flagsOf(form.flags), form.year), form.mask);
            QCOMPARE(Parts::placeholderPartFor(flagsOf(form.flags), form.year), form.placeholder);
            QCOMPARE(Parts::stringFor(day, flagsOf(form.flags)), form.text);
        }
    }

    void outcomes()
    {
        const QStringList odd{"", "_", "x", "-1", "1x", "99999999999"};
        QStringList days = odd;
        for (int n = 0; n < 42; ++n)
            days << QString::number(n) << QString("0%1_").arg(n);
        const QStringList months = days.mid(0, odd.size() + 2 * 21);
        const QStringList years =
            odd + QStringList{"0", "4", "19__", "1900", "2000", "2019", "2020", "2999", "3000"};
        const QStringList parts[] = {days, months, years};
        for (int flags = 0; flags < 16; ++flags) {
            QStringList texts{""};
            for (int i = 0; i < 3; ++i) {
                QStringList longer;
                for (const QString &head : qAsConst(texts)) {
                    for (const QString &part : parts[i])
                        longer += head + part + (i < 2 ? QString(flags & 8 ? '/' : '.') : QString());
                }
                if (!(flags & (1 << i)))
                    texts = longer;
            }
            for (const QString &text : texts + QStringList{"", "05", "05.03", "05/03", "05.03.2019.x"}) {
                for (const int fixed : {-1, 0, 2019, 4, 3000}) {
                    QDate expected(1, 1, 1);
                    QDate date = expected;
                    const int state = judgedPart(text, flags, fixed, &expected);
                    if (Parts::validatePart(text, flagsOf(flags), fixed, &date) != state
                        || Parts::validatePart(text, flagsOf(flags), fixed, nullptr) != state
                        || date != expected)
                        QFAIL(qPrintable(QString("%1 (%2, %3)").arg(text).arg(flags).arg(fixed)));
                }
            }
        }
    }

    void swallowedStepKeys()
    {
        DateEdit field;
        field.setDate(QDate(2019, 3, 5));
        for (const Qt::Key key : stepKeys) {
            for (const auto modifier : {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier})
                QVERIFY(takesKey(&field, QEvent::KeyPress, key, modifier));
            field.setReadOnly(true);
            QVERIFY(takesKey(&field, QEvent::KeyPress, key) && takesKey(&field, QEvent::KeyRelease, key));
            field.setReadOnly(false);
            QCOMPARE(field.text(), "05.03.2019");
        }
        QVERIFY(!takesKey(&field, QEvent::KeyRelease, Qt::Key_A));
        field.setFlags(BaseDateEdit::Year);
        field.setInputMask("");
        field.setText("99999999999");
        QTest::keyClick(&field, Qt::Key_Up);
        QCOMPARE(field.text(), "99999999999");
    }

    // What is done to a field, but for the stepping keys, is done to a plain line edit with its mask as well.
    void anythingInAnyOrder()
    {
        const QList<Qt::Key> keys{Qt::Key_Left,   Qt::Key_Right,     Qt::Key_Home,  Qt::Key_End,   Qt::Key_A,
                                  Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Space, Qt::Key_Period};
        const QStringList texts{"09.09.2019", "31.12.1999", "3.1.29", "..0005", "05..", "1.19.2999"};
        const QList<int> forms{0, 0, 8, 1, 2, 3, 4, 5, 6, 9, 12};
        const QList<int> years{-1, -1, 1999, 2009, 987, 5};
        QRandomGenerator random(1990);
        for (int run = 0; run < 800; ++run) {
            Form form;
            BaseDateEdit &field = *form.fields[run % 2];
            QLineEdit plain;
            const auto changeForm = [&] {
                field.setFixedYear(0); // which no field here has
                field.setFlags(flagsOf(forms[int(random.bounded(forms.size()))]));
                checkFace(field);
                field.setFixedYear(years[int(random.bounded(years.size()))]);
                checkFace(field);
            };
            field.setFocus();
            changeForm();
            plain.setInputMask(field.inputMask());
            for (int step = 0; step < 80; ++step) {
                const int kind = int(random.bounded(27));
                if (kind == 0) {
                    // Away and back: a date stays as it was typed, everything else goes.
                    if (judged(plain.text(), field) != 2)
                        plain.clear();
                    if (random.bounded(2))
                        form.other.setFocus();
                    else
                        field.setDisabled(true);
                    checkFace(field);
                    QCOMPARE(field.displayText(), field.inputMask().isEmpty() ? "" : plain.displayText());
                    field.setDisabled(false);
                    field.setFocus();
                    checkFace(field);
                    plain.home(false);
                } else if (kind == 26) {
                    if (random.bounded(2))
                        form.other.setFocus();
                    changeForm();
                    break;
                } else if (kind == 1) {
                    field.setReadOnly(!field.isReadOnly());
                    plain.setReadOnly(field.isReadOnly());
                } else if (kind == 2) {
                    QString text = texts[int(random.bounded(texts.size()))];
                    text += &field == &form.period ? " - 01.12.2999" : "";
                    field.setText(text);
                    plain.setText(text);
                } else if (kind < 6) {
                    const int place = int(random.bounded(plain.displayText().size() + 1));
                    field.setCursorPosition(place);
                    plain.setCursorPosition(place);
                } else if (kind < 12) {
                    const int i = int(random.bounded(4));
                    const int cursor = plain.cursorPosition();
                    QString after = steppedByHand(plain.displayText(), cursor, stepDeltas[i]);
                    if (!plain.isReadOnly() && !after.isNull() && judged(after, field) > 0) {
                        plain.setText(after.remove('_'));
                        plain.setCursorPosition(cursor);
                    }
                    QTest::keyClick(&field, stepKeys[i], Qt::KeypadModifier);
                } else {
                    const auto key = kind < 16 ? keys[int(random.bounded(keys.size()))]
                                               : Qt::Key(Qt::Key_0 + int(random.bounded(kind < 21 ? 3 : 10)));
                    QTest::keyClick(&field, key);
                    QTest::keyClick(&plain, key);
                }
                QCOMPARE(field.displayText(), plain.displayText());
                QCOMPARE(field.cursorPosition(), plain.cursorPosition());
            }
        }
    }

    void datesSurviveTabbing()
    {
        for (int run = 0; run < 2 * 7 * 16; ++run) {
            const int flags = run % 16;
            const int fixed = QVector<int>{-1, 2009, 1990, 1000, 987, 19, 5}[run / 16 % 7];
            const bool masked = run / 16 / 7;
            if ((flags & 7) == 7 || (!masked && flags))
                continue; // shows nothing, or takes away what is already there
            Form form;
            const int year = fixed > 0 ? fixed : 17;
            for (const bool withForm : {masked, true}) {
                for (BaseDateEdit *field : form.fields) {
                    field->setFlags(flagsOf(withForm ? flags : 0));
                    field->setFixedYear(withForm ? fixed : -1);
                }
                if (!withForm || masked) {
                    form.tabAround(); // the second time there are masks
                    form.date.setDate(QDate(year, 12, 28));
                    form.period.setDate(QDate(year, 2, 3), QDate(year, 12, 28));
                }
            }
            const QList<QDate> dates = form.dates();
            QVERIFY(!dates.contains(QDate()));
            form.tabAround();
            const QStringList texts{form.date.displayText(), form.period.displayText()};
            form.tabAround();
            QCOMPARE(QStringList({form.date.displayText(), form.period.displayText()}), texts);
            QCOMPARE(form.dates(), dates);
        }
    }

    void setDate()
    {
        const auto day = [](int year) { return QDate(year, 3, 5); };
        DateEdit date;
        date.setDate(day(2019)); // without a mask as long as nobody looks
        QCOMPARE(date.text() + date.inputMask(), "05.03.2019");
        date.setFixedYear(2019);
        date.setDate(day(2018));
        QCOMPARE(date.text() + date.inputMask(), "05.03.201909.09.2\\01\\9;_");
        date.setFixedYear(2020);
        QCOMPARE(date.text() + date.placeholderText(), "dd.mm.2020");
        date.setDate(day(2020));
        date.setDate(QDate());
        QCOMPARE(date.text(), "");

        PeriodEdit period;
        period.setDate(day(2019), day(2020));
        QCOMPARE(period.text(), "05.03.2019 - 05.03.2020");
        period.setFixedYear(2020); // the start is outside
        QCOMPARE(period.text(), "");
        period.setDate(day(2020), day(2020));
        period.setDate(day(2020), day(2021));
        period.setDate(day(2019), day(2020));
        QCOMPARE(period.text(), "05.03.2020 - 05.03.2020");
        period.setDate(day(2020), QDate());
        QCOMPARE(period.text(), "");
    }

    // A half that is no date takes nothing from the other one.
    void halves()
    {
        PeriodEdit period;
        period.setText("05.03.2019 - .03.2019");
        QCOMPARE(period.startDate(), QDate(2019, 3, 5));
        QCOMPARE(period.endDate(), QDate());
        period.setText(".. - 05.03.2019");
        QCOMPARE(period.startDate(), QDate());
        QCOMPARE(period.endDate(), QDate(2019, 3, 5));
    }

    // A menu leaves a date with its selection, a visit elsewhere the date, and both leave the undo.
    void focusInPassing()
    {
        for (const auto reason : {Qt::PopupFocusReason, Qt::ActiveWindowFocusReason, Qt::TabFocusReason}) {
            Form form;
            form.date.setFocus();
            QTest::keyClicks(&form.date, "5.3.2019");
            form.date.setSelection(3, 2);
            for (const QEvent::Type type : {QEvent::FocusOut, QEvent::FocusIn}) {
                QFocusEvent event(type, reason);
                QApplication::sendEvent(&form.date, &event);
                form.date.setLineEditStyle(NVO::BaseEdit::LineEditStyle(type % 2));
                const bool menu = reason == Qt::PopupFocusReason;
                QCOMPARE(form.date.displayText(), "5_.3_.2019");
                QCOMPARE(form.date.selectedText(), menu ? "3_" : "");
                QCOMPARE(form.date.cursorPosition(), menu ? 5 : 0);
                QVERIFY(form.date.isUndoAvailable());
            }
        }
    }

    void slots()
    {
        // Clearing whatever comes ends, and leaves the field as an empty one.
        Form form;
        const auto clearing = connect(&form.date, &QLineEdit::textChanged, &form.date, &DateEdit::clear);
        form.date.setFocus();
        QTest::keyClicks(&form.date, "5");
        QCOMPARE(form.date.displayText(), "__.__.____");
        form.date.setCursorPosition(4);
        form.date.clear();
        QCOMPARE(form.date.cursorPosition(), 0);
        form.other.setFocus();
        form.date.setDate(QDate(2019, 3, 5));
        QCOMPARE(form.date.text() + form.date.placeholderText(), "dd.mm.jjjj");
        disconnect(clearing);

        // A date in answer to a cleared text is kept.
        form.date.setFocus();
        QTest::keyClicks(&form.date, "5");
        connect(&form.date, &QLineEdit::textChanged, this, [&form] {
            if (!form.date.date().isValid())
                form.date.setDate(QDate(2019, 3, 5));
        });
        form.other.setFocus();
        QCOMPARE(form.date.date(), QDate(2019, 3, 5));
        QCOMPARE(form.date.inputMask(), "09.09.9999;_");

        // The focus comes back while the field takes its other face.
        const auto staying =
            connect(&form.period, &QLineEdit::textChanged, this, [&form] { form.period.setFocus(); });
        form.period.setFocus();
        form.other.setFocus();
        QVERIFY(form.period.hasFocus());
        QCOMPARE(form.period.displayText() + form.period.placeholderText(), "__.__.____ - __.__.____");
        disconnect(staying);

        QPointer<DateEdit> dying = new DateEdit(&form);
        connect(dying, &QLineEdit::textChanged, dying, &QObject::deleteLater);
        dying->show();
        dying->setFocus();
        QTest::keyClick(dying, Qt::Key_Tab);
        QTRY_VERIFY(!dying);
    }

    void accessibility()
    {
        Form form;
        form.period.setFlags(BaseDateEdit::MonthYear);
        QCOMPARE(description(&form.period), "mm/jjjj - mm/jjjj");
        for (BaseDateEdit *field : form.fields) {
            const QString empty = description(field);
            field->setFocus();
            QCOMPARE(description(field), empty);
            QTest::keyClick(field, Qt::Key_1);
            QCOMPARE(description(field), "");
            form.other.setFocus();
            field->setAccessibleDescription("Fällig am");
            field->setFocus();
            field->setFlags({});
            QCOMPARE(description(field), "Fällig am");
        }
    }
};

QTEST_MAIN(TestDateEdit)
#include "tst_dateedit.moc"
