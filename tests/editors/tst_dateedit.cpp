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

bool isDay(int year, int month, int day)
{
    const int lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool leap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
    return year > 0 && month >= 1 && month <= 12 && day >= 1
           && day <= lengths[month - 1] + (leap && month == 2 ? 1 : 0);
}

/** 2 for a date, which \a date becomes, 1 for what can become one, 0 for the rest. */
int judgedPart(QString text, int flags, int fixedYear, QDate *date)
{
    QStringList parts = text.remove('_').split(flags & 8 ? '/' : '.');
    int numbers[] = {1, 1, fixedYear > 0 ? fixedYear : 2000};
    const int maxima[] = {39, 19, 2999};
    bool missing = false;
    for (int i = 0; i < 3; ++i) {
        if (flags & (1 << i))
            continue;
        if (parts.isEmpty())
            return 0;
        const QString part = parts.takeFirst();
        const bool digits = std::all_of(part.begin(), part.end(), [](QChar c) { return c.isDigit(); });
        if (!digits || part.size() > 9 || part.toInt() > maxima[i])
            return 0;
        missing |= part.isEmpty();
        if (!part.isEmpty())
            numbers[i] = part.toInt();
    }
    if (fixedYear > 0 && numbers[2] != fixedYear)
        return 0;
    if (missing || !isDay(numbers[2], numbers[1], numbers[0]))
        return 1;
    *date = QDate(numbers[2], numbers[1], numbers[0]);
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

/** What stepping makes of \a text, found by looking at all its numbers. */
QString steppedByHand(const QString &text, int cursor, int delta)
{
    const int last = cursor == text.size() ? cursor - 1 : cursor;
    for (const int at : {last, last - 1}) {
        auto numbers = QRegularExpression("[0-9]+").globalMatch(text);
        while (numbers.hasNext()) {
            const auto match = numbers.next();
            if (at < match.capturedStart() || at >= match.capturedEnd())
                continue;
            QString before = text.left(match.capturedStart());
            QString after = text.mid(match.capturedEnd());
            QString number = QString::number(match.captured().toInt() + delta);
            int width = match.capturedLength();
            for (; before.endsWith('_'); ++width)
                before.chop(1);
            for (; after.startsWith('_'); ++width)
                after.remove(0, 1);
            while (number.size() < width)
                number.prepend('0');
            return before + number + after;
        }
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

    QLineEdit other;
    DateEdit date;
    PeriodEdit period;
    const QList<BaseDateEdit *> fields{&date, &period};
};

bool takesKey(QWidget *widget, QEvent::Type type, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QKeyEvent event(type, key, modifiers);
    QApplication::sendEvent(widget, &event);
    return event.isAccepted();
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
    // clang-format off
    void forms_data()
    {
        QTest::addColumn<int>("flags");
        QTest::addColumn<int>("year");
        QTest::addColumn<QString>("mask");
        QTest::addColumn<QString>("placeholder");
        QTest::addColumn<QString>("text");
        QTest::newRow("all") << 0 << -1 << "09.09.9999" << "dd.mm.jjjj" << "05.03.0987";
        QTest::newRow("slash") << 8 << 0 << "09/09/9999" << "dd/mm/jjjj" << "05/03/0987";
        QTest::newRow("day and month") << 4 << 2019 << "09.09." << "dd.mm." << "05.03.";
        QTest::newRow("month and year") << 9 << -1 << "09/9999" << "mm/jjjj" << "03/0987";
        QTest::newRow("2019") << 1 << 2019 << "09.2\\01\\9" << "mm.2019" << "03.0987";
        QTest::newRow("1990") << 3 << 1990 << "1\\9\\9\\0" << "1990" << "0987";
    }

    // clang-format on
    void forms()
    {
        QFETCH(int, flags);
        QFETCH(int, year);
        QTEST(Parts::maskPartFor(flagsOf(flags), year), "mask");
        QTEST(Parts::placeholderPartFor(flagsOf(flags), year), "placeholder");
        QTEST(Parts::stringFor(QDate(987, 3, 5), flagsOf(flags)), "text");
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
        for (int flags = 0; flags < 16; ++flags) {
            QStringList texts{"", "05", "05.03", "05/03", "05.03.2019.x"};
            QStringList heads{""};
            for (int i = 0; i < 3; ++i) {
                const QStringList &parts = i == 0 ? days : i == 1 ? months : years;
                QStringList longer;
                for (const QString &head : qAsConst(heads)) {
                    for (const QString &part : parts)
                        longer += head + part + (i < 2 ? QString(flags & 8 ? '/' : '.') : QString());
                }
                if (!(flags & (1 << i)))
                    heads = longer;
            }
            for (const QString &text : texts + heads) {
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

    void stepKeysAtEveryPlace()
    {
        Form form;
        for (int run = 0; run < 4; ++run) {
            BaseDateEdit *field = form.fields[run % 2];
            field->setFixedYear(run < 2 ? -1 : 1999);
            field->setFocus();
            for (QString text : {"09.09.2019", "31.12.1999", "3.1.29", "..0005", "05..", "1.19.2999"}) {
                text += field == &form.period ? " - 01.12.1999" : "";
                field->setText(text);
                for (int place = 4 * field->displayText().size() + 3; place >= 0; --place) {
                    field->setText(text);
                    field->setCursorPosition(place / 4); // Qt keeps it off the separators
                    const int cursor = field->cursorPosition();
                    const QString before = field->displayText();
                    const QString after = steppedByHand(before, cursor, stepDeltas[place % 4]);
                    const bool taken = !after.isNull() && judged(after, *field) > 0;
                    QTest::keyClick(field, stepKeys[place % 4], Qt::KeypadModifier);
                    QCOMPARE(field->text(), QString(taken ? after : before).remove('_'));
                    QCOMPARE(field->cursorPosition(), cursor);
                }
            }
        }
        form.date.setFixedYear(-1);
        form.date.setFlags(BaseDateEdit::Year);
        form.date.setInputMask("");
        form.date.setText("99999999999");
        QTest::keyClick(&form.date, Qt::Key_Up);
        QCOMPARE(form.date.text(), "99999999999");
    }

    void swallowedStepKeys()
    {
        DateEdit field;
        field.setDate(QDate(2019, 3, 5));
        for (const Qt::Key key : stepKeys) {
            for (const auto modifier : {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier})
                QVERIFY(takesKey(&field, QEvent::KeyPress, key, modifier));
            field.setReadOnly(true);
            QVERIFY(takesKey(&field, QEvent::KeyPress, key, Qt::NoModifier));
            QVERIFY(takesKey(&field, QEvent::KeyRelease, key, Qt::NoModifier));
            field.setReadOnly(false);
            QCOMPARE(field.text(), "05.03.2019");
        }
        QVERIFY(!takesKey(&field, QEvent::KeyRelease, Qt::Key_A, Qt::NoModifier));
    }

    // The keys of a field, but for the stepping ones, go to a plain line edit with its mask as well.
    void typing()
    {
        const QList<int> keys{Qt::Key_Left,   Qt::Key_Right,     Qt::Key_Home,  Qt::Key_End,   Qt::Key_A,
                              Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Space, Qt::Key_Period};
        QRandomGenerator random(1990);
        for (int run = 0; run < 150; ++run) {
            Form form;
            BaseDateEdit &field = *form.fields[run % 2];
            field.setFixedYear(run % 3 ? -1 : 1990);
            field.setFocus();
            QLineEdit plain;
            const QString mask = field.inputMask();
            plain.setInputMask(mask);
            for (int step = 0; step < 60; ++step) {
                const int kind = int(random.bounded(20));
                if (kind == 0) {
                    // Away and back: a date stays as it was typed, everything else goes.
                    const bool kept = judged(plain.text(), field) == 2;
                    form.other.setFocus();
                    QCOMPARE(field.displayText(), kept ? plain.displayText() : QString());
                    QCOMPARE(field.inputMask(), kept ? mask : QString());
                    QCOMPARE(field.placeholderText().isEmpty(), kept);
                    field.setFocus();
                    QVERIFY(field.placeholderText().isEmpty());
                    if (!kept)
                        plain.clear();
                    plain.home(false);
                } else if (kind == 1) {
                    const int i = int(random.bounded(4));
                    const int cursor = plain.cursorPosition();
                    QString after = steppedByHand(plain.displayText(), cursor, stepDeltas[i]);
                    if (judged(after, field) > 0) {
                        plain.setText(after.remove('_'));
                        plain.setCursorPosition(cursor);
                    }
                    QTest::keyClick(&field, stepKeys[i]);
                } else {
                    const auto key = Qt::Key(kind < 8 ? keys[int(random.bounded(keys.size()))]
                                                      : Qt::Key_0 + int(random.bounded(kind < 14 ? 3 : 10)));
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
        for (int run = 0; run < 16 * 7 * 3; ++run) {
            const int flags = run % 16;
            const int fixed = QVector<int>{-1, 2009, 1990, 1000, 987, 19, 5}[run / 16 % 7];
            const int way = 1 + run / 16 / 7;
            if ((flags & 7) == 7 || (way == 1 && flags))
                continue; // shows nothing, or takes away what is already typed
            Form form;
            const auto setForm = [&form, flags, fixed] {
                for (BaseDateEdit *field : form.fields) {
                    field->setFlags(flagsOf(flags));
                    field->setFixedYear(fixed);
                }
            };
            if (way != 1)
                setForm();
            if (way == 3) {
                // Parts as short as they can be; the separators jump.
                const QString separator = flags & 8 ? "/" : ".";
                const QString typed = (flags & 1 ? "" : "3" + separator) + (flags & 2 ? "" : "2" + separator)
                                      + (flags & 4 || fixed > 0 ? "" : "17");
                form.date.setFocus();
                QTest::keyClicks(&form.date, typed);
                form.period.setFocus();
                QTest::keyClicks(&form.period, typed + ' ' + typed);
            } else {
                const int year = fixed > 0 ? fixed : 17;
                for (int times = 0; times < way; ++times) {
                    form.tabAround(); // the second time there are masks
                    form.date.setDate(QDate(year, 12, 28));
                    form.period.setDate(QDate(year, 2, 3), QDate(year, 12, 28));
                }
            }
            if (way == 1)
                setForm();
            const QList<QDate> dates{form.date.date(), form.period.startDate(), form.period.endDate()};
            QVERIFY(dates[0].isValid() && dates[1].isValid() && dates[2].isValid());
            form.other.setFocus();
            form.tabAround();
            const QStringList texts{form.date.displayText(), form.period.displayText()};
            form.tabAround();
            form.tabAround();
            QCOMPARE(QStringList({form.date.displayText(), form.period.displayText()}), texts);
            QCOMPARE(QList<QDate>({form.date.date(), form.period.startDate(), form.period.endDate()}), dates);
        }
    }

    void setDate()
    {
        DateEdit date;
        date.setDate(QDate(2019, 3, 5)); // without a mask as long as nobody looks
        QCOMPARE(date.text() + date.inputMask(), "05.03.2019");
        date.setFixedYear(2019);
        QCOMPARE(date.inputMask(), "09.09.2\\01\\9;_");
        date.setDate(QDate(2018, 3, 5));
        QCOMPARE(date.date(), QDate(2019, 3, 5));
        date.setFixedYear(2020);
        QCOMPARE(date.text() + date.placeholderText(), "dd.mm.2020");
        date.setDate(QDate(2020, 2, 29));
        date.setDate(QDate());
        QCOMPARE(date.text(), "");

        PeriodEdit period;
        period.setDate(QDate(2019, 3, 5), QDate(2020, 1, 1));
        QCOMPARE(period.text(), "05.03.2019 - 01.01.2020");
        period.setFixedYear(2020); // the start is outside
        QCOMPARE(period.text(), "");
        period.setDate(QDate(2020, 3, 5), QDate(2020, 3, 5));
        period.setDate(QDate(2020, 3, 5), QDate(2021, 1, 1));
        QCOMPARE(period.endDate(), QDate(2020, 3, 5));
        period.setDate(QDate(2020, 3, 5), QDate());
        QCOMPARE(period.text(), "");
    }

    void settersInAnyOrder()
    {
        QRandomGenerator random(4711);
        Form form;
        for (int step = 0; step < 6000; ++step) {
            BaseDateEdit *field = form.fields[int(random.bounded(2))];
            const QDate day = QDate(2018, 12, 30).addDays(random.bounded(4));
            switch (random.bounded(8)) {
            case 0:
                form.date.setDate(day);
                form.period.setDate(day, day.addDays(1));
                break;
            case 1:
            case 2:
                field->setFlags(flagsOf(int(random.bounded(16))));
                // What stays is a date in its new form; an empty field describes that.
                QVERIFY(judged(field->text(), *field) == 2 || !field->accessibleDescription().isEmpty());
                break;
            case 3:
                field->setFixedYear(random.bounded(2) ? 2019 : -1);
                break;
            case 4:
                field->setReadOnly(!field->isReadOnly());
                break;
            case 5:
                field->setEnabled(!field->isEnabled());
                break;
            case 6:
                field->setFocus();
                QTest::keyClick(field, stepKeys[random.bounded(4)]);
                break;
            default:
                form.other.setFocus();
            }
        }
    }

    // A menu, another window or a change of style leaves a date with its selection and undo.
    void focusInPassing()
    {
        for (const auto reason : {Qt::PopupFocusReason, Qt::ActiveWindowFocusReason}) {
            Form form;
            form.date.setFocus();
            QTest::keyClicks(&form.date, "5.3.2019");
            form.date.setSelection(3, 2);
            for (const QEvent::Type type : {QEvent::FocusOut, QEvent::FocusIn}) {
                QFocusEvent event(type, reason);
                QApplication::sendEvent(&form.date, &event);
                form.date.setLineEditStyle(NVO::BaseEdit::LineEditStyle(type % 2));
                QCOMPARE(form.date.displayText(), "5_.3_.2019");
                QCOMPARE(form.date.selectedText(), "3_");
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
        form.other.setFocus();
        form.date.setDate(QDate(2019, 3, 5));
        QCOMPARE(form.date.text(), "");
        QCOMPARE(form.date.placeholderText(), "dd.mm.jjjj");
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
        QCOMPARE(form.period.displayText(), "__.__.____ - __.__.____");
        QCOMPARE(form.period.placeholderText(), "");
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
        QCOMPARE(QAccessible::queryAccessibleInterface(&form.date)->role(), QAccessible::EditableText);
        QCOMPARE(description(&form.period), "mm/jjjj - mm/jjjj");
        for (BaseDateEdit *field : form.fields) {
            const QString empty = description(field);
            field->setFocus();
            QCOMPARE(description(field), empty);
            QTest::keyClick(field, Qt::Key_1);
            QCOMPARE(description(field), "");
            form.other.setFocus();
            QCOMPARE(description(field), empty);
            field->setAccessibleDescription("Fällig am");
            field->setFocus();
            field->setFlags({});
            QCOMPARE(description(field), "Fällig am");
        }
    }
};

QTEST_MAIN(TestDateEdit)
#include "tst_dateedit.moc"
