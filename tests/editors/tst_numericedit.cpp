#include "Guards.h"
#include "TestCase.h"
#include "TestResources.h"

#include "editors/NumericText.h"

#include <nvo/GraphicsEffect.h>
#include <nvo/NumericEdit.h>

#include <QAccessible>
#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QWheelEvent>
#include <QtTest>

#include <functional>
#include <iterator>
#include <limits>

using NVO::NumericEdit;

namespace {

constexpr int million = 1000000;
const QString suffix = QStringLiteral(" €");

QLocale german()
{
    return {QLocale::German, QLocale::Germany};
}

QString withCursor(const NumericEdit &field)
{
    const QLineEdit *edit = field.findChild<QLineEdit *>();
    return edit->text().insert(edit->cursorPosition(), '|');
}

/** A field and the means to edit it. */
struct Field : public NumericEdit
{
    explicit Field(const QLocale &locale = german(), Flags flags = AllowNegativ, int decimals = 2)
    {
        show();
        activateWindow();
        setFocus();
        if (!QTest::qWaitForWindowActive(this))
            qWarning("no focus");
        setLocale(locale);
        setRange(million, decimals, QStringLiteral("€"), flags);
    }

    using NumericEdit::lineEdit;

    void set(QString text) // with "|" for the cursor
    {
        const int cursor = text.indexOf('|');
        lineEdit()->setText(text.remove('|'));
        lineEdit()->setCursorPosition(cursor);
    }

    /** Types \a keys, "<" for Backspace and ">" for Delete. */
    void type(const QString &keys)
    {
        for (const QChar key : keys) {
            if (key == '<' || key == '>')
                QTest::keyClick(this, key == '<' ? Qt::Key_Backspace : Qt::Key_Delete);
            else
                QTest::keyClick(this, key.toLatin1());
        }
    }

    void paste(const QString &text)
    {
        QGuiApplication::clipboard()->setText(text);
        QTest::keyClick(this, Qt::Key_V, Qt::ControlModifier);
    }

    void compose(const QString &text)
    {
        QInputMethodEvent event;
        event.setCommitString(text);
        QCoreApplication::sendEvent(this, &event);
    }

    void wheel(int steps)
    {
        QWheelEvent event({1, 1}, mapToGlobal({1, 1}), {}, {0, 120 * steps}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(this, &event);
    }

    void drop(const QString &text)
    {
        lineEdit()->setAcceptDrops(true);
        QMimeData dragged;
        dragged.setText(text);
        const QPoint left(1, height() / 2);
        QDragEnterEvent enter(left, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(lineEdit(), &enter);
        QDropEvent event(left, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(lineEdit(), &event);
    }
};

/** What the field should be after each key, told by its digits and not by the steps that get there. */
struct Model
{
    QLocale locale;
    bool negative; // allowed
    QString text = {};
    int cursor = 0;
    int selected = 0; // units before the cursor

    QString group() const { return locale.groupSeparator(); }
    int pointIndex() const { return text.indexOf(locale.decimalPoint()); }
    int numberEnd() const { return text.size() - suffix.size(); }
    bool isSeparator(int i) const { return text[i] == locale.groupSeparator() || i == pointIndex(); }
    bool isNegative() const { return text[0] == '-' || text[0] == locale.negativeSign(); }

    qint64 cents(QString number) const
    {
        QString digits;
        for (const QChar unit : number.remove(suffix)) {
            if (unit.isDigit())
                digits += QString::number(unit.digitValue());
        }
        return digits.toLongLong();
    }
    qint64 value() const { return (isNegative() ? -1 : 1) * cents(text); }

    /** What becomes of \a raw, the text without the unit right after an edit, with the cursor at \a at. */
    void become(const QString &raw, int at)
    {
        const int point = raw.indexOf(locale.decimalPoint());
        const QString whole = raw.left(point);
        const QString kept = point < 0 ? QString() : raw.mid(point + 1).left(2);
        const QString fraction = (kept.trimmed() + "00").left(2); // some separators are blanks
        const int signs = !whole.isEmpty() && (whole[0] == '-' || whole[0] == locale.negativeSign());
        QString digits = whole.mid(signs);
        const bool doubled = digits.contains(group() + group());
        digits.remove(group());
        static const QRegularExpression notDigit("\\D", QRegularExpression::UseUnicodePropertiesOption);
        const qint64 amount = cents(digits + fraction);
        if (doubled || (digits + fraction).contains(notDigit) || amount > million * 100
            || (signs && amount && !negative))
            return; // refused
        QString grouped;
        for (int i = 0; i < digits.size(); ++i)
            grouped += (i && (digits.size() - i) % 3 == 0 ? group() : QString()) + digits[i];
        text = whole.left(signs) + grouped + locale.decimalPoint() + fraction + suffix;
        selected = 0;
        if (point >= 0 && at > point) {
            cursor = at + pointIndex() - point + kept.trimmed().size() - kept.size();
        } else {
            int left = raw.left(at).remove(group()).size();
            for (cursor = 0; left > 0; ++cursor)
                left -= text[cursor] != locale.groupSeparator();
            const bool behindSeparator = at && raw[at - 1] == locale.groupSeparator();
            if (behindSeparator && cursor > signs && text[cursor] == locale.groupSeparator())
                ++cursor;
        }
        keepOutOfUnit();
    }

    void keepOutOfUnit()
    {
        if (cursor > numberEnd())
            cursor = text.size();
    }

    void insert(const QString &what)
    {
        const int start = cursor - selected;
        if (cursor <= numberEnd()) // behind the unit all is cut off again
            become(text.left(numberEnd()).replace(start, selected, what), start + what.size());
    }

    void blank() // may leave a hole in the fraction, in which a 0 takes the place
    {
        if (selected == 0 && cursor == pointIndex() + 2)
            text[cursor] = '0';
    }

    void remove(int at) { become(text.left(numberEnd()).remove(at, 1), at); }

    void backspace()
    {
        if (selected)
            return insert({});
        if (cursor > numberEnd()) {
            cursor = numberEnd();
            return;
        }
        if (cursor && isSeparator(cursor - 1))
            --cursor;
        if (cursor)
            remove(cursor - 1);
    }

    void del()
    {
        if (selected)
            return insert({});
        if (cursor < numberEnd() && isSeparator(cursor))
            ++cursor;
        if (cursor < numberEnd())
            remove(cursor);
    }

    void flip(int step)
    {
        const bool toNegative = !isNegative();
        text = (toNegative ? QString(locale.negativeSign()) : QString())
               + locale.toString(double(qAbs(value())) / 100, 'f', 2) + suffix;
        const int wanted = qMax(0, cursor + step);
        cursor = wanted <= text.size() ? wanted : qMin(cursor, numberEnd());
        selected = 0;
        keepOutOfUnit();
    }

    void minus()
    {
        if (selected)
            insert("-");
        else if (value() > 0 && negative)
            flip(+1);
    }

    void plus()
    {
        if (value() < 0 && negative)
            flip(-1);
    }
};

/** The described walk, for symbols of one unit, with every text accepted. */
void walk(QString &input, int &pos, const QString &prefix, const QString &unit)
{
    QString number = input;
    if (!prefix.isEmpty() && number.startsWith(prefix))
        number.remove(0, prefix.size());
    if (!unit.isEmpty() && number.endsWith(unit))
        number.chop(unit.size());
    number = number.trimmed();
    int d = number.indexOf(',');
    if (d < 0)
        input = prefix + number + ",00" + unit;
    else if (number.size() != d + 3)
        input = prefix + (number + "00").left(d + 3) + unit;
    if (input.mid(prefix.size(), 1) == ".") {
        input.remove(prefix.size(), 1);
        pos -= pos > prefix.size();
    }
    d = input.indexOf(',');
    for (int i = d - 1; i >= prefix.size() + (input.mid(prefix.size(), 1) == "-"); --i) {
        if ((d - i) % 4 == 0 && input[i] != '.') {
            input.insert(i + 1, '.');
            ++d;
            pos += i + 1 < pos;
        } else if ((d - i) % 4 != 0 && input[i] == '.') {
            input.remove(i, 1);
            --d;
            pos -= i < pos;
        }
    }
}

/** \a text with longer symbols. */
QString lengthened(QString text)
{
    return text.replace('.', "<g>").replace(',', "::").replace('-', "~-");
}

} // namespace

class TestNumericEdit : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void shapeOfAnyText()
    {
        QRandomGenerator random(12);
        NVO::NumericFormat format(german());
        NVO::NumericFormat longer = format;
        longer.groupSeparator = "<g>";
        longer.decimalPoint = "::";
        longer.negativeSign = "~-";
        const auto accept = [](QString &, int &) { return QValidator::Acceptable; };
        for (int round = 0; round < 50000; ++round) {
            format.prefix = longer.prefix = random.bounded(2) ? "ca" : "";
            format.suffix = longer.suffix = random.bounded(2) ? " €" : "";
            QString input = format.prefix;
            const int length = random.bounded(14);
            for (int i = 0; i < length; ++i)
                input += "1234567.,-x"[random.bounded(round % 2 ? 9 : 11)];
            static const QRegularExpression atStart("^(ca)?\\.?-\\.");
            if (input.contains(atStart))
                continue; // a case of its own below
            input += random.bounded(2) ? format.suffix : QString();
            const int pos = random.bounded(input.size() + 1);
            QString expected = input;
            int expectedPos = pos;
            walk(expected, expectedPos, format.prefix, format.suffix);
            QString text = input;
            int cursor = pos;
            NVO::validateNumericText(text, cursor, format, accept);
            QCOMPARE(text, expected);
            QCOMPARE(cursor, expectedPos);

            if (input.contains(QRegularExpression(",.*[.,-]|[^a]-")))
                continue; // a symbol in the fraction may be cut in two, and a sign elsewhere is no digit
            QString longText = lengthened(input);
            int longCursor = lengthened(input.left(pos)).size();
            NVO::validateNumericText(longText, longCursor, longer, accept);
            QCOMPARE(longText, lengthened(expected));
            if (expectedPos <= expected.indexOf(','))
                QCOMPARE(longCursor, lengthened(expected.left(expectedPos)).size());
        }
    }

    void typing_data()
    {
        QTest::addColumn<QStringList>("row"); // locale, before, keys, after
        const QList<QStringList> rows{{"de_DE", "| €", "1", "1|,00 €"},
                                      {"de_DE", "| €", "1234,5", "1.234,5|0 €"},
                                      {"de_DE", "|1.234,50 €", ">", "|234,50 €"},
                                      {"de_DE", "1|.234,50 €", "<", "|234,50 €"},
                                      {"de_DE", "-|1.234,50 €", ">", "-|234,50 €"},
                                      {"de_DE", "12,|34 €", "<", "1|,34 €"},
                                      {"de_DE", "12|,34 €", ">", "12,|40 €"},
                                      {"de_DE", "1|2,34 €", ",", "12,|34 €"},
                                      {"de_DE", "12,|34 €", "7", "12,7|3 €"},
                                      {"de_DE", "1|2,50 €", "-", "-1|2,50 €"},
                                      {"de_DE", "12,50| €", "-", "-12,50| €"},
                                      {"de_DE", "-12,50| €", "-", "-12,50| €"},
                                      {"de_DE", "-1|2,50 €", "+", "1|2,50 €"},
                                      {"de_DE", "|0,00 €", "-+", "|0,00 €"},
                                      {"de_DE", "|123,00 €", "-", "-|123,00 €"},
                                      {"de_DE", "1|2,50 €", " x", "1|2,50 €"},
                                      {"de_CH", "123|.00 €", "4", "1’234|.00 €"},
                                      {"sv_SE", "1|234,00 €", "-", "−1|\u00a0234,00 €"},
                                      {"fr_FR", "1\u202f234|,00 €", "5", "12\u202f345|,00 €"},
                                      {"en_US", "12|.00 €", ",5", "12.5|0 €"}};
        for (const QStringList &row : rows)
            QTest::addRow("%s %s", qPrintable(row[1]), qPrintable(row[2])) << row;
    }

    void typing()
    {
        QFETCH(QStringList, row);
        Field field{QLocale(row[0])};
        field.set(row[1]);
        field.type(row[2]);
        QCOMPARE(withCursor(field), row[3]);
        const QLocale locale(row[0]);
        QCOMPARE(field.value(), locale.toDouble(field.cleanText().remove(locale.groupSeparator())));
    }

    void keySequences_data()
    {
        QTest::addColumn<bool>("negative");
        for (const char *name : {"de_DE", "en_US", "fr_FR", "de_CH", "ar_EG", "sv_SE"}) {
            QTest::newRow(name) << true;
            QTest::addRow("%s from 0", name) << false;
        }
    }

    void keySequences()
    {
        QFETCH(bool, negative);
        const QLocale locale(QString(QTest::currentDataTag()).left(5));
        QRandomGenerator random(1702);
        Field field(locale, negative ? NumericEdit::AllowNegativ : NumericEdit::NoFlag);
        QLineEdit *edit = field.lineEdit();
        Model model{locale, negative};
        const QString point = locale.decimalPoint();
        const QStringList pasted{"7",     QString("1%1234").arg(locale.groupSeparator()) + point + "5",
                                 "12345", point + "9",
                                 "-5",    "x"};
        for (int round = 0; round < 4000; ++round) {
            if (round % 50 == 0) {
                field.setValue(0);
                field.setValue(random.bounded(2 * million) / 100.0);
            }
            edit->deselect(); // what a refused edit has left
            model.text = edit->text();
            model.cursor = edit->cursorPosition();
            if (random.bounded(4) == 0) {
                const int place = random.bounded(model.numberEnd() + 2);
                model.cursor = place > model.numberEnd() ? model.text.size() : place;
                edit->setCursorPosition(model.cursor);
            }
            model.selected = 0;
            if (random.bounded(8) == 0) {
                model.selected = random.bounded(model.numberEnd() + 1);
                const int start = random.bounded(model.numberEnd() + 1 - model.selected);
                model.cursor = start + model.selected;
                // A blank that groups is no longer one at the end of a number without a fraction.
                if (start && model.text[start - 1].isSpace() && model.cursor > model.pointIndex())
                    continue;
                edit->setSelection(start, model.selected);
            }
            const QString before = withCursor(field);
            const int kind = random.bounded(24);
            QString key = QString::number(random.bounded(10));
            if (kind < 12) {
                field.type(key);
                model.insert(key);
            } else if (kind < 14) {
                field.type(key = "<");
                model.backspace();
            } else if (kind < 16) {
                field.type(key = ">");
                model.del();
            } else if (kind == 16) {
                field.type(key = "-");
                model.minus();
            } else if (kind == 17) {
                field.type(key = "+");
                model.plus();
            } else if (kind == 18) {
                field.type(key = random.bounded(2) ? "," : ".");
                model.cursor = model.pointIndex() + 1;
            } else if (kind == 19 && model.selected == 0) {
                field.type(key = " ");
                model.blank();
            } else {
                key = pasted[random.bounded(pasted.size())];
                kind == 20 ? field.compose(key) : field.paste(key);
                model.insert(key);
            }
            if (kind == 20 && edit->cursorPosition() > model.numberEnd())
                edit->setCursorPosition(model.text.size()); // after composing Qt leaves it inside of the unit
            const QString expected = QString(model.text).insert(model.cursor, '|');
            const QByteArray where = QString("%1: %2 and %3").arg(round).arg(before, key).toUtf8();
            QVERIFY2(withCursor(field) == expected,
                     where + " gives " + withCursor(field).toUtf8() + " for " + expected.toUtf8());
            QVERIFY2(qRound64(field.value() * 100) == model.value(),
                     where + QByteArray::number(field.value(), 'f', 9));
        }
    }

    /** Whatever happens, the text keeps its shape and says what the value is. */
    void anyEvents_data() { keySequences_data(); }

    void anyEvents()
    {
        QFETCH(bool, negative);
        QRandomGenerator random(5);
        const QString name = QString(QTest::currentDataTag()).left(5);
        Field field(QLocale(name), negative ? NumericEdit::AllowNegativ : NumericEdit::NoFlag);
        const QStringList texts{"1234,5",   "1 234", "+1.234",   "-1'234.5",
                                "1234.5 €", "€",     "12345678", "\u22127"};
        const auto ctrl = Qt::ControlModifier;
        const std::function<void(const QString &)> events[] = {
            [&](const QString &text) { field.paste(text); },
            [&](const QString &text) { field.compose(text); },
            [&](const QString &text) { field.drop(text); },
            [&](const QString &) { QTest::keyClick(&field, Qt::Key_Z, ctrl); },
            [&](const QString &) { QTest::keyClick(&field, Qt::Key_Z, ctrl | Qt::ShiftModifier); },
            [&](const QString &) {
                QTest::keyClick(&field, random.bounded(2) ? Qt::Key_PageUp : Qt::Key_Down);
            },
            [&](const QString &) { field.wheel(random.bounded(-2, 3)); },
            [&](const QString &) { field.lineEdit()->selectAll(); },
            [&](const QString &) {
                field.setLineEditStyle(NumericEdit::NumericEditStyle(random.bounded(5)));
            },
            [&](const QString &) { field.setLocale(QLocale(random.bounded(2) ? "pl_PL" : name)); },
            [&](const QString &) { field.clearFocus(), field.setFocus(); },
            [&](const QString &) { field.type(QString("123456789<>,+- "[random.bounded(15)])); }};
        for (int round = 0; round < 2000; ++round) {
            events[random.bounded(int(std::size(events)))](texts[random.bounded(texts.size())]);
            const QLocale locale = field.locale();
            QString number = field.cleanText();
            const QString shape = QString("[+\u2212-]?(\\d{0,3}|\\d{1,3}(%1\\d{3})+)%2\\d\\d")
                                      .arg(QRegularExpression::escape(locale.groupSeparator()),
                                           QRegularExpression::escape(locale.decimalPoint()));
            const QRegularExpression wanted(QRegularExpression::anchoredPattern(shape),
                                            QRegularExpression::UseUnicodePropertiesOption);
            QVERIFY2(wanted.match(number).hasMatch(), number.toUtf8());
            QVERIFY(field.text().endsWith(suffix));
            QCOMPARE(field.value(), locale.toDouble(number.remove(locale.groupSeparator())));
        }
    }

    void withoutDecimals()
    {
        const QList<QStringList> rows{{"| €", "1234", "1.234| €"},    {"1.23|4 €", "5", "12.35|4 €"},
                                      {"12| €", ",50", "12 €|"},      {"1|.234 €", "<", "|234 €"},
                                      {"1.2|34 €", "-", "-1.2|34 €"}, {"|12 €", "x", "|12 €"}};
        Field field(german(), NumericEdit::AllowNegativ, 0);
        for (const QStringList &row : rows) {
            field.set(row[0]);
            field.type(row[1]);
            QCOMPARE(withCursor(field), row[2]);
        }
        field.selectAll();
        field.paste("1.234,99");
        QCOMPARE(field.text(), QString("1.234 €"));
        QCOMPARE(field.value(), 1234.0);
    }

    void leadingSeparators()
    {
        const Field field;
        for (const QString &sign : {QString(), QString("-"), QString("+"), QString(QChar(0x2212))}) {
            QString text = sign + ".234,5 €";
            int pos = sign.size() + 2;
            QCOMPARE(field.validate(text, pos), QValidator::Acceptable);
            QCOMPARE(text, sign + "234,50 €");
            QCOMPARE(pos, sign.size() + 1);
        }
    }

    void signKeysAndTheirReleases()
    {
        struct Parent : public QWidget
        {
            void keyPressEvent(QKeyEvent *) override { ++presses; }
            void keyReleaseEvent(QKeyEvent *) override { ++releases; }
            int presses = 0;
            int releases = 0;
        } parent;
        Field field(german(), NumericEdit::NoFlag);
        field.setParent(&parent);
        const auto releases = [&](const QString &keys) {
            parent.releases = 0;
            field.type(keys);
            return parent.releases;
        };
        field.setValue(12.5);
        QCOMPARE(releases("-+,."), 0);
        QCOMPARE(releases("1"), 1); // as from any spin box
        QTest::keyRelease(&field, Qt::Key_Minus);
        QCOMPARE(parent.releases, 2); // the one before was swallowed
        QCOMPARE(parent.presses, 0);
        field.setRange(million, 0, "€", NumericEdit::AllowNegativ);
        QCOMPARE(releases(",."), 2);
        QCOMPARE(releases("-"), 1);

        field.setReadOnly(true);
        field.setValue(-12);
        field.type("+,5<");
        QCOMPARE(field.text(), QString("-12 €"));
        field.setReadOnly(false);
        field.setRange(million, 2, "k,,", NumericEdit::AllowNegativ); // no separators, although they look it
        field.set("12,50 k,,|");
        field.type("<");
        QCOMPARE(withCursor(field), QString("12,50| k,,"));
        field.setKeyboardTracking(false);
        field.selectAll();
        field.type("345-");
        QCOMPARE(field.text(), QString("-345,00 k,,"));
    }

    void zeroSymbol()
    {
        Field field(german(), NumericEdit::ZeroSymbol);
        const auto focus = [&](QEvent::Type type, Qt::FocusReason reason) {
            QFocusEvent event(type, reason);
            QCoreApplication::sendEvent(&field, &event);
        };
        field.setValue(1234.56);
        QCOMPARE(field.text(), QString("1.234,56 €"));
        focus(QEvent::FocusOut, Qt::PopupFocusReason);
        QCOMPARE(field.value(), 1234.56); // the context menu is open
        focus(QEvent::FocusOut, Qt::OtherFocusReason);
        QCOMPARE(field.text(), QString::fromUtf8("1.235,–– €"));
        QCOMPARE(field.value(), 1235.0);
        QCOMPARE(field.decimals(), 0);
        focus(QEvent::FocusIn, Qt::OtherFocusReason);
        QCOMPARE(field.text(), QString("1.235,00 €"));
        field.clear();
        QCOMPARE(withCursor(field), QString("|,00 €"));
        focus(QEvent::FocusOut, Qt::OtherFocusReason);
        QCOMPARE(field.text(), QString::fromUtf8("0,–– €"));

        NumericEdit unfocused;
        unfocused.setLocale(german());
        unfocused.setRange(million, 2, "kg", NumericEdit::ZeroSymbol);
        unfocused.setValue(1.5);
        QCOMPARE(unfocused.text(), QString::fromUtf8("2,–– kg"));
        unfocused.setRange(million, 2, "t", NumericEdit::NoFlag);
        QCOMPARE(unfocused.text(), QString("2,00 t"));
    }

    void valuesOutOfReach()
    {
        constexpr int largest = std::numeric_limits<int>::max();
        Field field;
        field.setRange(largest, 2, "€", NumericEdit::AllowNegativ);
        field.selectAll();
        field.type("2147483647");
        QCOMPARE(withCursor(field), QString("2.147.483.647|,00 €"));
        field.type("-");
        QCOMPARE(field.value(), -double(largest));
        for (const double value :
             {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
              std::numeric_limits<double>::quiet_NaN(), 1e300}) {
            field.setValue(value);
            QCOMPARE(qAbs(field.value()), double(largest));
            QVERIFY(field.text().endsWith("2.147.483.647,00 €"));
        }
        field.setRange(std::numeric_limits<int>::min(), -1, QString(), NumericEdit::AllowNegativ);
        QCOMPARE(field.decimals(), 0);
    }

    void verdictOfAnotherLocale()
    {
        Field field(QLocale("fr_FR"));
        field.set("12|,00 €");
        field.selectAll();
        field.paste("1.234"); // means nothing there
        QCOMPARE(field.text(), QString("12,00 €"));
        field.setLocale(german());
        field.selectAll();
        field.paste("1.234");
        QCOMPARE(field.value(), 1234.0);
    }

    void pastedBlanks()
    {
        Field field(QLocale("fr_FR"));
        field.selectAll();
        field.paste("1 234 ,5"); // no number
        QCOMPARE(field.value(), 0.0);
        field.paste("12 345,5");
        QCOMPARE(withCursor(field), QString("12\u202f345,5|0 €"));
        QCOMPARE(field.value(), 12345.5);
    }

    void slotsThatInterfere()
    {
        Field field;
        connect(&field, &QDoubleSpinBox::textChanged, &field, [&] { field.clear(); });
        field.type("1");
        QCOMPARE(field.text(), QString(",00 €"));

        for (const auto flag : {NumericEdit::AllowNegativ, NumericEdit::ZeroSymbol}) {
            const QPointer<Field> doomed(new Field(german(), flag));
            doomed->setValue(1.5);
            connect(doomed, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
                    [=] { delete doomed; });
            if (flag == NumericEdit::AllowNegativ) {
                QKeyEvent press(QEvent::KeyPress, Qt::Key_Plus, Qt::NoModifier, "+");
                doomed->blockSignals(true);
                doomed->setValue(-1.5);
                doomed->blockSignals(false);
                QCoreApplication::sendEvent(doomed, &press);
            } else {
                QFocusEvent out(QEvent::FocusOut);
                QCoreApplication::sendEvent(doomed, &out);
            }
            QVERIFY(!doomed);
        }
    }

    void lookAndAccessibility()
    {
        const TestResources resources({{"NumericEdit", "[style=\"Due\"] { border: 3px solid #00ff00; }"}});
        NVO::Css::instance().reset();
        Field field;
        QVERIFY(qobject_cast<NVO::GraphicsEffect *>(field.graphicsEffect()));
        QVERIFY(!field.testAttribute(Qt::WA_MacShowFocusRect));
        QVERIFY(field.sizeHint().height() >= 25);
        QCOMPARE(field.property("style").toString(), QString("Normal"));
        field.set("12|,00 €");
        field.lineEdit()->setSelection(0, 1);
        field.setProperty("lineEditStyle", NumericEdit::Due);
        QCOMPARE(field.property("style").toString(), QString("Due"));
        QCOMPARE(field.lineEdit()->selectedText(), QString("1"));
        QVERIFY(field.hasFocus());
        QCOMPARE(field.grab().toImage().pixelColor(field.width() / 2, field.height() - 2), QColor(0, 255, 0));
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&field);
        QCOMPARE(interface->role(), QAccessible::SpinBox);

        const auto modern = withVariant(1);
        QVERIFY(!NumericEdit().graphicsEffect());
    }
};

QTEST_MAIN(TestNumericEdit)
#include "tst_numericedit.moc"
