#include "TestCase.h"
#include "TestResources.h"

#include <nvo/Css.h>
#include <nvo/DialogButton.h>
#include <nvo/Icon.h>

#include <QHBoxLayout>
#include <QMetaEnum>
#include <QPainter>
#include <QRandomGenerator>
#include <QtTest>

#include <optional>

using NVO::DialogButton;

namespace {

struct Row
{
    const char *key;
    unsigned value;
    const char *text;
    const char *shortcut;
    char role; ///< Accept, reject, yes, no, destructive, aPply, acTion
};

const Row table[] = {
    {"NoButton", 0, "", "", 'a'},
    {"Ok", 0x1, "OK", "O", 'a'},
    {"Cancel", 0x2, "Abbrechen", "A", 'r'},
    {"Retry", 0x4, "Wiederholen", "W", 'a'},
    {"Yes", 0x8, "Ja", "J", 'y'},
    {"No", 0x10, "Nein", "N", 'n'},
    {"Ignore", 0x20, "Ignorieren", "I", 'a'},
    {"Close", 0x40, "Schlie\u00dfen", "S", 'r'},
    {"Save", 0x100, "Speichern", "", 'a'},
    {"NoSave", 0x200, "Nicht speichern", "", 'd'},
    {"Replace", 0x400, "Ersetzen", "E", 'a'},
    {"Apply", 0x800, "\u00dcbernehmen", "\u00dc", 'p'},
    {"Calculate", 0x1000, "Berechnen", "B", 'a'},
    {"SetBookmark", 0x2000, "Lesezeichen setzen", "L", 'a'},
    {"DeleteBookmark", 0x4000, "Lesezeichen entfernen", "", 'd'},
    {"GoToMapping", 0x8000, "Weiter zur Zuordnung", "", 'a'},
    {"SurveyNow", 0x10000, "Ja, gerne", "", 'a'},
    {"SurveyLater", 0x20000, "Sp\u00e4ter", "", 'r'},
    {"SurveyNo", 0x40000, "Nein", "", 'r'},
    {"SurveyJa", 0x80000, "Ja!", "", 'a'},
    {"SurveyNotReally", 0x100000, "Nicht wirklich", "", 'r'},
    {"Print", 0x200000, "Drucken", "", 't'},
    {"Next", 0x400000, "Weiter", "", 'p'},
    {"AbgabeComplete", 0x800000, "Abgabe abschlie\u00dfen", "", 'a'},
    {"Accept", 0x1000000, "Akzeptieren", "", 'a'},
    {"UserDefined", 0x40000000, "", "", 't'},
};

QDialogButtonBox::ButtonRole roleOf(char letter)
{
    static const QMap<char, QDialogButtonBox::ButtonRole> roles{
        {'a', QDialogButtonBox::AcceptRole}, {'r', QDialogButtonBox::RejectRole},
        {'y', QDialogButtonBox::YesRole},    {'n', QDialogButtonBox::NoRole},
        {'p', QDialogButtonBox::ApplyRole},  {'d', QDialogButtonBox::DestructiveRole},
        {'t', QDialogButtonBox::ActionRole}};
    return roles.value(letter);
}

void sendEvent(QObject *object, QEvent::Type type)
{
    QEvent event(type);
    QCoreApplication::sendEvent(object, &event);
}

} // namespace

class TestDialogButton : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_theme.emplace(QMap<QString, QByteArray>{
            {"DialogButton", "* { background: #ffff00; color: #000000; border: none; padding: 3px; }\n"
                             "*:hover { background: #00ff00; color: #ff0000; }\n"
                             "*:pressed { background: #00ffff; color: #ff0000; }\n"
                             "*[buttonPrimary=\"true\"] { color: #0000ff; }\n"},
        });
        NVO::Css::instance().reset();
    }

    void types()
    {
        const auto keys = QMetaEnum::fromType<DialogButton::ButtonType>();
        QVERIFY(keys.isFlag());
        QCOMPARE(QByteArray(keys.name()), QByteArray("ButtonType"));
        QCOMPARE(keys.keyCount(), int(std::size(table)));
        int index = 0;
        for (const Row &row : table) { // in the order of the row of buttons
            QCOMPARE(QByteArray(keys.key(index)), QByteArray(row.key));
            QCOMPARE(unsigned(keys.value(index++)), row.value);
            const auto type = DialogButton::ButtonType(row.value);
            const NVO::DialogButtonProperties properties = DialogButton::properties(type);
            QCOMPARE(properties.text, QString::fromUtf8(row.text));
            QCOMPARE(properties.shortcut, QKeySequence(QString::fromUtf8(row.shortcut)));
            QCOMPARE(properties.shortcut.isEmpty(), *row.shortcut == '\0');
            QCOMPARE(properties.role, roleOf(row.role));
            const DialogButton button(NVO::Icon(), type, nullptr);
            QCOMPARE(button.buttonType(), type);
            QCOMPARE(button.text(), properties.text);
            QVERIFY(button.icon().isNull());
        }
        QCOMPARE(DialogButton().buttonType(), DialogButton::NoButton);
    }

    void otherValues()
    {
        QSet<unsigned> known;
        for (const Row &row : table)
            known.insert(row.value);
        QRandomGenerator random(5);
        QVector<unsigned> others{0x80, 0x2000000, 0x80000000, 0xffffffff};
        for (unsigned one = 1; one < 0x80000000; one *= 2)
            for (unsigned two = one; two < 0x80000000; two *= 2)
                others.append(one | two);
        for (int round = 0; round < 1000; ++round)
            others.append(random.generate());
        for (const unsigned value : others) {
            if (known.contains(value))
                continue;
            const auto properties = DialogButton::properties(DialogButton::ButtonType(int(value)));
            QVERIFY(properties.text.isEmpty() && properties.shortcut.isEmpty());
            QCOMPARE(properties.role, QDialogButtonBox::AcceptRole);
        }
    }

    void sizes()
    {
        QWidget row;
        auto *layout = new QHBoxLayout(&row);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(0);
        for (const Row &each : table) {
            auto *button = new DialogButton(NVO::Icon(), DialogButton::ButtonType(each.value), &row);
            const QSize wanted = button->QPushButton::sizeHint().expandedTo(QSize(100, 0));
            QCOMPARE(button->sizeHint(), wanted);
            QCOMPARE(button->minimumSizeHint(), wanted);
            layout->addWidget(button);
        }
        row.resize(row.minimumSizeHint());
        row.show();
        const auto buttons = row.findChildren<DialogButton *>();
        for (const DialogButton *button : buttons)
            QVERIFY(button->width() >= 100);
    }

    void hoverCursor()
    {
        for (const auto shape : {Qt::PointingHandCursor, Qt::CrossCursor, Qt::ArrowCursor}) {
            DialogButton button;
            QCOMPARE(button.hoverCursor().shape(), Qt::PointingHandCursor);
            button.setCursor(Qt::WaitCursor);
            button.setHoverCursor(shape);
            QCOMPARE(button.hoverCursor().shape(), shape);
            QCOMPARE(button.cursor().shape(), Qt::WaitCursor);
            for (int time = 0; time < 2; ++time) {
                sendEvent(&button, QEvent::Enter);
                QCOMPARE(button.cursor().shape(), shape == Qt::ArrowCursor ? Qt::WaitCursor : shape);
                sendEvent(&button, QEvent::Leave);
                QCOMPARE(button.cursor().shape(), Qt::WaitCursor);
            }
        }
    }

    void states()
    {
        // The ground follows the state, the text does not.
        DialogButton button(NVO::Icon(), DialogButton::Ok, nullptr);
        button.setProperty("buttonPrimary", true);
        button.setText(QString(5, QChar(0x2588))); // blocks
        button.resize(120, 30);
        button.show();
        const auto look = [&button] {
            const QImage picture = button.grab().toImage();
            return qMakePair(picture.pixelColor(1, 1), picture.pixelColor(60, 15));
        };
        QCOMPARE(look(), qMakePair(QColor(Qt::yellow), QColor(Qt::blue)));
        sendEvent(&button, QEvent::Enter);
        QTest::mouseMove(&button, QPoint(60, 15));
        QCOMPARE(look(), qMakePair(QColor(Qt::green), QColor(Qt::blue)));
        QTest::mousePress(&button, Qt::LeftButton);
        QCOMPARE(look(), qMakePair(QColor(Qt::cyan), QColor(Qt::blue)));
        QTest::mouseRelease(&button, Qt::LeftButton);
        sendEvent(&button, QEvent::Leave);
        QCOMPARE(look(), qMakePair(QColor(Qt::yellow), QColor(Qt::blue)));
    }

private:
    std::optional<TestResources> m_theme;
};

QTEST_MAIN(TestDialogButton)
#include "tst_dialogbutton.moc"
