#include "Guards.h"
#include "TestCase.h"
#include "TestResources.h"

#include <nvo/GraphicsEffect.h>
#include <nvo/NumericEdit.h>

#include <QAccessible>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QRandomGenerator>
#include <QWheelEvent>
#include <QtTest>

#include <functional>
#include <iterator>
#include <limits>

using NVO::NumericEdit;

namespace {

constexpr int million = 1000000;
constexpr int largest = std::numeric_limits<int>::max();
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
const QString suffix = QStringLiteral(" €");

QLocale german()
{
    return {QLocale::German, QLocale::Germany};
}

/** A field and the means to edit it. It never has the focus by itself. */
template <typename Base>
struct Driven : public Base
{
    explicit Driven(const QLocale &locale = german(), NumericEdit::Flags flags = NumericEdit::AllowNegativ,
                    int decimals = 2)
    {
        this->setFocusPolicy(Qt::NoFocus);
        this->setLocale(locale);
        this->setRange(million, decimals, QStringLiteral("€"), flags);
        this->show();
        this->connect(this, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
                      [this](double value) { heard << value; });
    }

    using Base::lineEdit;

    QString withCursor() const { return this->text().insert(lineEdit()->cursorPosition(), '|'); }

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
            if (key == '>')
                QTest::keyClick(this, Qt::Key_Delete);
            else
                QTest::keyClick(this, key == '<' ? '\b' : key.toLatin1());
        }
    }

    void focus(bool in, Qt::FocusReason reason = Qt::OtherFocusReason)
    {
        QFocusEvent event(in ? QEvent::FocusIn : QEvent::FocusOut, reason);
        QCoreApplication::sendEvent(this, &event);
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
        QWheelEvent event({1, 1}, this->mapToGlobal({1, 1}), {}, {0, 120 * steps}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(this, &event);
    }

    QString state() const
    {
        return withCursor() + ", " + lineEdit()->selectedText() + ", "
               + QString::number(this->value(), 'g', 17);
    }

    QVector<double> heard;
};

using Field = Driven<NumericEdit>;

/** The behaviour told step by step and without any care for speed, for fields with decimals. */
struct Steps : public QDoubleSpinBox
{
    Steps() { setGroupSeparatorShown(true); }

    void setRange(int maximum, int decimals, const QString &unit, NumericEdit::Flags flags)
    {
        setMaximum(maximum);
        setMinimum(flags & NumericEdit::AllowNegativ ? -maximum : 0);
        setDecimals(decimals);
        setSuffix(' ' + unit);
    }

    QValidator::State validate(QString &input, int &pos) const override
    {
        const QChar point = locale().decimalPoint();
        const QChar group = locale().groupSeparator();
        QString number = input;
        if (number.startsWith(prefix()))
            number.remove(0, prefix().size());
        if (number.endsWith(suffix()))
            number.chop(suffix().size());
        number = number.trimmed();
        int d = number.indexOf(point);
        if (d < 0)
            input = prefix() + number + point + "00" + suffix();
        else if (number.size() != d + 3)
            input = prefix() + (number + "00").left(d + 3) + suffix();

        const auto start = [&] {
            static const QRegularExpression sign(QString::fromUtf8("^[-+−]"));
            return prefix().size() + input.mid(prefix().size()).contains(sign);
        };
        if (input.mid(start(), 1) == group) {
            input.remove(start(), 1);
            pos -= pos > start();
        }
        const QValidator::State state = QDoubleSpinBox::validate(input, pos);
        d = input.indexOf(point, prefix().size());
        for (int i = d - 1; i >= start(); --i) {
            if (input[i] == ' ' && group.isSpace())
                input[i] = group;
            if ((d - i) % 4 == 0 && input[i] != group) {
                input.insert(i + 1, group);
                ++d;
                pos += i + 1 < pos;
            } else if ((d - i) % 4 != 0 && input[i] == group) {
                input.remove(i, 1);
                --d;
                pos -= i < pos;
            }
        }
        return state;
    }

    bool isSeparator(int i) const
    {
        const bool inNumber = i >= prefix().size() && i < text().size() - suffix().size();
        return inNumber && (text()[i] == locale().decimalPoint() || text()[i] == locale().groupSeparator());
    }

    void keyPressEvent(QKeyEvent *event) override
    {
        QLineEdit *edit = lineEdit();
        const int key = event->key();
        const bool selected = edit->hasSelectedText();
        if (!selected && key == Qt::Key_Backspace && isSeparator(edit->cursorPosition() - 1))
            edit->cursorBackward(false, 1);
        if (!selected && key == Qt::Key_Delete && isSeparator(edit->cursorPosition()))
            edit->cursorForward(false, 1);
        const bool isMinus = key == Qt::Key_Minus && !selected;
        if ((isMinus || key == Qt::Key_Plus) && !keyboardTracking())
            interpretText();
        const int cursor = edit->cursorPosition();
        if (isMinus) {
            const bool flips = value() > 0 && minimum() < 0;
            if (flips) {
                setValue(-value());
                edit->setCursorPosition(cursor + 1);
            }
            const QString before = text();
            const int kept = edit->cursorPosition();
            if (flips || value() < 0)
                QDoubleSpinBox::keyPressEvent(event);
            if (text() == before)
                edit->setCursorPosition(kept);
        } else if (key == Qt::Key_Plus) {
            if (value() < 0 && minimum() < 0) {
                setValue(-value());
                edit->setCursorPosition(cursor - 1);
            }
        } else if (key == Qt::Key_Period || key == Qt::Key_Comma) {
            const int point = text().indexOf(locale().decimalPoint(), prefix().size());
            if (point >= 0)
                edit->setCursorPosition(point + 1);
        } else {
            QDoubleSpinBox::keyPressEvent(event);
        }
    }
};

} // namespace

class TestNumericEdit : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void typing()
    {
        const QList<QStringList> rows{// locale, before, keys, after
                                      {"de_DE", "| €", "1", "1|,00 €"},
                                      {"de_DE", "| €", "1234,5", "1.234,5|0 €"},
                                      {"de_DE", "|1.234,50 €", ">", "|234,50 €"},
                                      {"de_DE", "-|1.234,50 €", ">", "-|234,50 €"},
                                      {"de_DE", "12,|34 €", "<", "1|,34 €"},
                                      {"de_DE", "12|,34 €", ">", "12,|40 €"},
                                      {"de_DE", "1|2,34 €", ",", "12,|34 €"},
                                      {"de_DE", "12,|34 €", "7", "12,7|3 €"},
                                      {"de_DE", "1|2,50 €", "-", "-1|2,50 €"},
                                      {"de_DE", "12,50| €", "-", "-12,50| €"},
                                      {"de_DE", "-1|2,50 €", "+", "1|2,50 €"},
                                      {"de_DE", "|0,00 €", "-+", "|0,00 €"},
                                      {"sv_SE", "1|234,00 €", "-", "−1|\u00a0234,00 €"},
                                      {"en_US", "12|.00 €", ",5", "12.5|0 €"},
                                      {"de_DE, whole", "| €", "1234", "1.234| €"},
                                      {"de_DE, whole", "12| €", ",50", "12 €|"},
                                      {"de_DE, whole", "1|.234 €", "<", "|234 €"},
                                      {"de_DE, whole", "1.2|34 €", "-x", "-1.2|34 €"}};
        for (const QStringList &row : rows) {
            const bool whole = row[0].endsWith("whole");
            Field field(QLocale(row[0].left(5)), NumericEdit::AllowNegativ, whole ? 0 : 2);
            field.set(row[1]);
            field.type(row[2]);
            QCOMPARE(field.withCursor(), row[3]);
            field.selectAll();
            field.paste("1234" + QString(field.locale().decimalPoint()) + "99");
            QCOMPARE(field.value(), whole ? 1234 : 1234.99);
        }
    }

    void likeTheSteps_data()
    {
        QTest::addColumn<QLocale>("locale");
        for (const char *name : {"de_DE", "en_US", "fr_FR", "de_CH", "ar_EG", "sv_SE"})
            QTest::newRow(name) << QLocale(name);
    }

    /** Whatever happens, the field does what the steps do, and its text has its shape and says the value. */
    void likeTheSteps()
    {
        QFETCH(QLocale, locale);
        const QStringList units{"€", "", "kg", "%", "m2", "Std.", "k,,", "a,5", "-1"};
        const QStringList prefixes{"", "", "ca. ", "1,", "EUR"};
        const QStringList texts{"7",     "1.1234,25", "12345,", ",29",      "-5",   "x",      "",
                                "1..12", "-",         "-.12",   "+1.234,5", "+123", "-1 234", "1 234",
                                " 5 ",   " €",        "1,5 €",  "1,2,3",    "−7",   "0012",   "1234567",
                                "1e2",   "2 ,3",      "1.,1",   ",5 "};
        const QVector<double> values{0,  -0.0, 1.5,      -12.345,   0.005,   123456.789,
                                     12, 1e15, infinity, -infinity, million, notANumber};
        const QString keys("0123456789012345678901234567890123456789<<<>>>--++,. x");
        const QVector<Qt::Key> others{Qt::Key_Up,   Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown,
                                      Qt::Key_Home, Qt::Key_End,  Qt::Key_Left,   Qt::Key_Right,
                                      Qt::Key_A,    Qt::Key_Z,    Qt::Key_Z,      Qt::Key_Backspace};
        QRandomGenerator random(1702);
        const auto any = [&](const auto &list) { return list[random.bounded(list.size())]; };
        Field field(locale);
        Driven<Steps> steps(locale);
        for (int round = 0; round < 4000; ++round) {
            const size_t kind = random.bounded(36);
            const int top = any(QVector<int>{million, million, 999, 1, 0, largest});
            const int decimals = any(QVector<int>{2, 2, 2, 2, 1, 3});
            const auto flag = any(QVector<NumericEdit::Flag>{NumericEdit::NoFlag, NumericEdit::AllowNegativ});
            const int steppedBy = random.bounded(-2, 3);
            const int length = field.text().size();
            const int cursor = random.bounded(length + 1);
            const QString unit = any(units), prefix = any(prefixes), key = any(keys);
            const double value = any(values);
            const Qt::Key other = any(others);
            const Qt::KeyboardModifiers modifiers(
                any(QVector<int>{0, 0, Qt::ShiftModifier, Qt::ControlModifier}));
            QString text = any(texts);
            text.replace('.', '#').replace(',', locale.decimalPoint()).replace('#', locale.groupSeparator());
            const auto act = [&](auto &f) {
                const std::function<void()> events[] = {
                    [&] { f.setRange(top, decimals, unit, flag); },
                    [&] { f.setPrefix(prefix); },
                    [&] { f.setValue(value); },
                    [&] { f.wheel(steppedBy); },
                    [&] { f.setMaximum(f.maximum()), f.setLocale(flag ? locale : QLocale("pl_PL")); },
                    [&] { f.lineEdit()->setSelection(cursor, length - cursor); },
                    [&] { f.setKeyboardTracking(flag), f.interpretText(); },
                    [&] { f.selectAll(); },
                    [&] { f.compose(text); },
                    [&] { f.paste(text); },
                    [&] { QTest::keyClick(&f, other, modifiers); },
                    [&] { f.type(key); }};
                events[qMin(kind, std::size(events) - 1)]();
            };
            if (random.bounded(4) == 0) {
                field.lineEdit()->setCursorPosition(cursor);
                steps.lineEdit()->setCursorPosition(cursor);
            }
            const QString before = field.state();
            act(field);
            act(steps);
            const QString what =
                QString("%1: %2, %3, %4 on %5 gives ").arg(round).arg(kind).arg(text, key, before);
            QVERIFY2(field.state() == steps.state(),
                     (what + field.state() + ", not " + steps.state()).toUtf8());
            QCOMPARE(field.heard, steps.heard);

            QString mine = before.left(random.bounded(length + 1)) + text;
            QString theirs = mine;
            int myPos = random.bounded(mine.size() + 1), theirPos = myPos;
            QCOMPARE(field.validate(mine, myPos), steps.validate(theirs, theirPos));
            QCOMPARE(mine, theirs);
            QCOMPARE(myPos, theirPos);

            const QString group(field.locale().groupSeparator());
            const QString shape = QString("[-+−]?(\\d{0,3}|\\d{1,3}(%1\\d{3})+)%2\\d\\d")
                                      .arg(QRegularExpression::escape(group),
                                           QRegularExpression::escape(field.locale().decimalPoint()));
            const QRegularExpression wanted(QRegularExpression::anchoredPattern(shape),
                                            QRegularExpression::UseUnicodePropertiesOption);
            QString number = field.cleanText();
            QVERIFY2(field.decimals() != 2 || wanted.match(number).hasMatch(), (what + number).toUtf8());
            if (field.decimals() == 2 && field.keyboardTracking())
                QCOMPARE(field.value(), field.locale().toDouble(number.remove(group)));
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
    }

    void zeroSymbol()
    {
        Field field(german(), NumericEdit::ZeroSymbol);
        field.focus(true);
        field.setValue(1234.56);
        QCOMPARE(field.text(), QString("1.234,56 €"));
        field.focus(false, Qt::PopupFocusReason);
        QCOMPARE(field.value(), 1234.56); // the context menu is open
        field.focus(false);
        QCOMPARE(field.text(), QString::fromUtf8("1.235,–– €"));
        QCOMPARE(field.value(), 1235.0);
        QCOMPARE(field.decimals(), 0);
        field.focus(true);
        QCOMPARE(field.text(), QString("1.235,00 €"));
        field.clear();
        QCOMPARE(field.withCursor(), QString("|,00 €"));
        field.focus(false);
        QCOMPARE(field.text(), QString::fromUtf8("0,–– €"));

        field.setRange(million, 2, "kg", NumericEdit::ZeroSymbol);
        field.setValue(1.5);
        QCOMPARE(field.text(), QString::fromUtf8("2,–– kg"));
        field.setRange(million, 2, "t", NumericEdit::NoFlag);
        QCOMPARE(field.text(), QString("2,00 t"));
    }

    void valuesOutOfReach()
    {
        Field field;
        field.setRange(largest, 2, "€", NumericEdit::AllowNegativ);
        field.selectAll();
        field.type("2147483647-");
        QCOMPARE(field.withCursor(), QString("-2.147.483.647|,00 €"));
        QCOMPARE(field.value(), -double(largest));
        field.setRange(std::numeric_limits<int>::min(), -1, QString(), NumericEdit::AllowNegativ);
        QCOMPARE(field.decimals(), 0);
    }

    void verdictOfAnotherLocale()
    {
        Field field(QLocale("fr_FR"));
        field.selectAll();
        field.paste("1.234"); // means nothing there
        QCOMPARE(field.text(), QString("0,00 €"));
        field.setLocale(german());
        field.selectAll();
        field.paste("1.234");
        QCOMPARE(field.value(), 1234.0);
    }

    void slotsThatInterfere()
    {
        Field field;
        connect(&field, &QDoubleSpinBox::textChanged, &field, [&] { field.clear(); });
        field.type("1");
        QCOMPARE(field.text(), QString(",00 €"));

        for (const auto key : {Qt::Key_Plus, Qt::Key_Minus, Qt::Key_Tab}) {
            const QPointer<Field> doomed(
                new Field(german(), NumericEdit::AllowNegativ | NumericEdit::ZeroSymbol));
            doomed->focus(true);
            doomed->setValue(key == Qt::Key_Minus ? 1.5 : -1.5);
            connect(doomed, QOverload<double>::of(&Field::valueChanged), this, [=] { delete doomed; });
            QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
            if (key == Qt::Key_Tab)
                doomed->focus(false);
            else
                QCoreApplication::sendEvent(doomed, &press);
            QVERIFY(!doomed);
        }
    }

    void lookAndAccessibility()
    {
        const TestResources resources({{"NumericEdit", "[style=\"Due\"] { border: 3px solid #00ff00; }"
                                                       "[readOnly=\"true\"] { border-color: #ff0000; }"}});
        NVO::Css::instance().reset();
        Field field;
        field.activateWindow();
        field.setFocus();
        QVERIFY(QTest::qWaitForWindowActive(&field));
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
        const auto border = [&] {
            return field.grab().toImage().pixelColor(field.width() / 2, field.height() - 2);
        };
        QCOMPARE(border(), QColor(0, 255, 0));
        field.setReadOnly(true);
        QCOMPARE(border(), QColor(255, 0, 0));
        QCOMPARE(field.lineEdit()->selectedText(), QString("1"));
        field.setReadOnly(false);
        QCOMPARE(border(), QColor(0, 255, 0));
        QCOMPARE(QAccessible::queryAccessibleInterface(&field)->role(), QAccessible::SpinBox);
        const auto modern = withVariant(1);
        QVERIFY(!NumericEdit().graphicsEffect());
    }
};

QTEST_MAIN(TestNumericEdit)
#include "tst_numericedit.moc"
