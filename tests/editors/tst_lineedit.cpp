#include "EventCounter.h"
#include "Guards.h"
#include "TestCase.h"
#include "TestResources.h"

#include <nvo/GraphicsEffect.h>
#include <nvo/LineEdit.h>
#include <nvo/TimeEdit.h>

#include <QtTest>

#include <algorithm>

using NVO::BaseEdit;
using NVO::LineEdit;

namespace {

constexpr auto alphabet = "aB1 9-.x0F";

/** Text, cursor and selection of a field; the cursor is at one end of the selection. */
struct State
{
    explicit State(const QLineEdit &field)
        : text(field.displayText())
        , cursor(field.cursorPosition())
        , anchor(!field.hasSelectedText()           ? cursor
                 : field.selectionStart() == cursor ? field.selectionEnd()
                                                    : field.selectionStart())
    {}

    QByteArray toBytes() const
    {
        return QStringLiteral("\"%1\" cursor %2 anchor %3").arg(text).arg(cursor).arg(anchor).toUtf8();
    }

    QString text;
    int cursor;
    int anchor;
};

/** Where the spaces of a mask are, as Qt sees it: in the empty field no sign that is blank is a space. */
QVector<bool> spacesOf(const QString &mask)
{
    QLineEdit field;
    field.setInputMask(mask.section(';', 0, 0) + ";~");
    QVector<bool> spaces;
    for (const QChar character : field.displayText())
        spaces.append(character == ' ');
    return spaces;
}

/** What the fence makes of the state of a field without one. */
State fenced(State state, const QVector<bool> &spaces)
{
    int reach = state.text.size();
    while (reach > 0 && state.text.at(reach - 1) == ' ')
        --reach;
    reach = int(std::find(spaces.begin() + qMin(reach, spaces.size()), spaces.end(), false) - spaces.begin());
    const int end = qMax(state.cursor, state.anchor);
    if (end > reach) {
        // A selection is cut at its end, and its cursor is there then.
        state.anchor = qMin(state.cursor, state.anchor);
        state.cursor = reach;
        if (end == state.anchor) // there was none
            state.anchor = reach;
    }
    return state;
}

QString randomMask(QRandomGenerator &random)
{
    static const QStringList parts{"A", "a", "9", "0",   "#",   "H",   "b",    "N", "X", " ",
                                   " ", "-", ".", "\\A", "\\ ", "\\9", "\\\\", ">", "<", "!"};
    QString mask;
    for (int i = random.bounded(1, 12); i > 0; --i)
        mask += parts.at(random.bounded(parts.size()));
    static const QStringList blanks{"", "", ";", "; ", ";_"};
    return mask + blanks.at(random.bounded(blanks.size()));
}

QString randomText(QRandomGenerator &random, int length)
{
    QString text;
    while (text.size() < length)
        text += QLatin1Char(alphabet[random.bounded(10)]);
    return text;
}

/** Does the same to each of \a fields: a key, the mouse or a setter. */
void act(QRandomGenerator &random, const QVector<QLineEdit *> &fields)
{
    static const QVector<Qt::Key> keys{Qt::Key_Home, Qt::Key_End,       Qt::Key_Left,  Qt::Key_Right,
                                       Qt::Key_End,  Qt::Key_Backspace, Qt::Key_Delete};
    const int kind = random.bounded(20);
    const Qt::Key key = keys.at(random.bounded(keys.size()));
    const auto modifiers = Qt::KeyboardModifiers(random.bounded(2) ? int(Qt::ShiftModifier) : 0)
                           | (random.bounded(4) ? Qt::NoModifier : Qt::ControlModifier);
    const QString text = randomText(random, kind == 0 ? 8 : 1);
    const QPoint at(random.bounded(200), 12);
    const int size = fields.first()->displayText().size();
    const int start = random.bounded(size + 1);
    const int length = random.bounded(-size, size + 1);
    for (QLineEdit *field : fields) {
        if (kind == 0) {
            field->setText(text);
        } else if (kind == 1) {
            field->setSelection(start, length);
        } else if (kind == 2) {
            field->setCursorPosition(start);
        } else if (kind == 3) {
            QTest::mouseClick(field, Qt::LeftButton, {}, at);
        } else if (kind == 4) {
            QTest::mouseDClick(field, Qt::LeftButton, {}, at);
        } else if (kind < 7) { // what was pressed before is dragged, from where the cursor came to stand
            QMouseEvent move(QEvent::MouseMove, at, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(field, &move);
        } else if (kind == 7) { // as an input method does
            QInputMethodEvent commit;
            commit.setCommitString(text);
            QCoreApplication::sendEvent(field, &commit);
        } else if (kind < 13) {
            QTest::keyClicks(field, text);
        } else {
            QTest::keyClick(field, key, modifiers);
        }
    }
}

} // namespace

class TestLineEdit : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { NVO::Css::instance().reset(); }

    void looks()
    {
        TestResources theme({{"LineEdit", "[style] { border: 3px solid red; }"
                                          "[style=\"Error\"] { border-color: blue; }"
                                          "[style=\"Due\"] { border-color: lime; }"}});
        NVO::Css::instance().reset();
        const auto flat = withVariant(1);
        const QStringList keys{"Normal", "Error", "Info", "VaSt", "Due"};
        const QColor edges[] = {Qt::red, Qt::blue, Qt::red, Qt::red, Qt::green};
        for (const bool shown : {false, true}) {
            EventCounter<LineEdit> field;
            field.setText("Konto 1200");
            field.setVisible(shown);
            if (shown) {
                QVERIFY(QTest::qWaitForWindowActive(&field));
                field.setFocus();
            }
            field.setSelection(6, -3);
            for (const int style : {1, 0, 4, 3, 2, 4, 1}) {
                field.setLineEditStyle(BaseEdit::LineEditStyle(style));
                const int changes = field.counts[QEvent::StyleChange];
                field.setLineEditStyle(BaseEdit::LineEditStyle(style));
                QCOMPARE(field.counts[QEvent::StyleChange], changes);
                QCOMPARE(field.property("style"), QVariant(keys[style]));
                QCOMPARE(field.grab().toImage().pixelColor(1, 12), edges[style]);
                QCOMPARE(field.hasFocus(), shown);
                QCOMPARE(State(field).toBytes(), QByteArray("\"Konto 1200\" cursor 3 anchor 6"));
            }
        }
    }

    void sizeHint()
    {
        for (const int fontSize : {5, 12, 80}) {
            QLineEdit plain;
            NVO::TimeEdit time;
            for (QLineEdit *field : {&plain, static_cast<QLineEdit *>(&time)}) {
                QFont font = field->font();
                font.setPixelSize(fontSize);
                field->setFont(font);
            }
            QCOMPARE(time.sizeHint(), plain.sizeHint().expandedTo(QSize(0, 25)));
        }
    }

    void shadow()
    {
        for (const int variant : {0, 1, 7}) {
            const auto guard = withVariant(variant);
            LineEdit field;
            field.setFrame(false);
            field.resize(100, 30);
            const QImage picture = field.grab().toImage();
            const auto light = [&picture](int x, int y) { return picture.pixelColor(x, y).lightness(); };
            // Sunken: dark along the left and the upper edge, inside.
            QCOMPARE(light(0, 15) < light(3, 15) && light(3, 15) < light(50, 15), variant == 0);
            QCOMPARE(light(50, 0) < light(50, 3), variant == 0);
            QCOMPARE(light(99, 15) + light(50, 29), 2 * light(50, 15));
        }
    }

    void passwordSignFromTheSheet()
    {
        TestResources theme({{"LineEdit", "QLineEdit { lineedit-password-character: 42 }"}});
        NVO::Css::instance().reset();
        LineEdit field;
        field.setEchoMode(QLineEdit::Password);
        field.setText("ab");
        field.show();
        QCOMPARE(field.displayText(), QString("**"));
    }

    void fence()
    {
        QRandomGenerator random(20260418);
        LineEdit field;
        QLineEdit plain;
        const QVector<QLineEdit *> both{&plain, &field};
        for (QLineEdit *each : both) {
            each->setFont(QFont("DejaVu Sans Mono", 9));
            each->resize(200, 25);
            each->show();
        }
        for (int round = 0; round < 250; ++round) {
            const QString mask = randomMask(random);
            const QVector<bool> spaces = spacesOf(mask);
            for (QLineEdit *each : both)
                each->clear();
            field.setInputMask(mask);
            plain.setInputMask(mask);
            plain.setCursorPosition(field.cursorPosition());
            for (int step = 0; step < 40; ++step) {
                act(random, both);
                const State expected = fenced(State(plain), spaces);
                QVERIFY2(State(field).toBytes() == expected.toBytes(),
                         mask.toUtf8() + ": " + State(field).toBytes() + ", not " + expected.toBytes());
                plain.setSelection(expected.anchor, expected.cursor - expected.anchor);
            }
        }
    }

    void maskAsProperty()
    {
        // The property is that of the field, not of QLineEdit; without a mask there is no fence.
        LineEdit field;
        for (const auto &[mask, end] : {qMakePair(QString("AA AA"), 3), qMakePair(QString(), 5)}) {
            QVERIFY(field.setProperty("inputMask", mask));
            field.setText("xy   ");
            QTest::keyClick(&field, Qt::Key_End);
            QCOMPARE(field.cursorPosition(), end);
        }
        // What it remembers of that mask does not hurt under another one.
        field.setInputMask(QString(30, ' '));
        field.QLineEdit::setInputMask("99 99");
        QTest::keyClicks(&field, "1");
        QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(State(field).toBytes(), QByteArray("\"1    \" cursor 5 anchor 0"));
    }

    void changedInItsOwnSignals()
    {
        QPointer<LineEdit> field = new LineEdit;
        field->setInputMask("99 99 99");
        // In a masked field each clear() says that the text has changed.
        bool clearing = false;
        const auto clear = [&] {
            if (!std::exchange(clearing, true)) {
                field->clear();
                clearing = false;
            }
        };
        connect(field, &QLineEdit::textChanged, field, clear);
        connect(field, &QLineEdit::selectionChanged, field, clear);
        connect(field, &QLineEdit::cursorPositionChanged, field, clear);
        field->show();
        QTest::keyClicks(field, "12345");
        QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
        field->setDisabled(true);
        field->setText("98");
        field->setSelection(0, 8);
        QCOMPARE(field->text().remove(' '), QString());
        QCOMPARE(field->cursorPosition(), 0);
        field->disconnect();
        connect(field, &QLineEdit::textChanged, field, &QObject::deleteLater);
        field->setText("1");
        QTRY_VERIFY(field.isNull());
    }
};

QTEST_MAIN(TestLineEdit)
#include "tst_lineedit.moc"
