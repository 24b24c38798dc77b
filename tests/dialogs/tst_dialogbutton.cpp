#include "TestCase.h"
#include "TestResources.h"

#include <nvo/Css.h>
#include <nvo/DialogButton.h>
#include <nvo/Icon.h>

#include <QMetaEnum>
#include <QtTest>

#include <optional>

using NVO::DialogButton;

namespace {

// Key, value, text, shortcut and role (Accept, Reject, Yes, No, Destructive, aPply, acTion) of each type
const char *const table =
    "NoButton|0|||A;Ok|1|OK|O|A;Cancel|2|Abbrechen|A|R;Retry|4|Wiederholen|W|A;Yes|8|Ja|J|Y;"
    "No|10|Nein|N|N;Ignore|20|Ignorieren|I|A;Close|40|Schließen|S|R;Save|100|Speichern||A;"
    "NoSave|200|Nicht speichern||D;Replace|400|Ersetzen|E|A;Apply|800|Übernehmen|Ü|P;"
    "Calculate|1000|Berechnen|B|A;SetBookmark|2000|Lesezeichen setzen|L|A;"
    "DeleteBookmark|4000|Lesezeichen entfernen||D;GoToMapping|8000|Weiter zur Zuordnung||A;"
    "SurveyNow|10000|Ja, gerne||A;SurveyLater|20000|Später||R;SurveyNo|40000|Nein||R;"
    "SurveyJa|80000|Ja!||A;SurveyNotReally|100000|Nicht wirklich||R;Print|200000|Drucken||T;"
    "Next|400000|Weiter||P;AbgabeComplete|800000|Abgabe abschließen||A;Accept|1000000|Akzeptieren||A;"
    "UserDefined|40000000|||T";

const QMap<QString, QDialogButtonBox::ButtonRole> roles{
    {"A", QDialogButtonBox::AcceptRole}, {"R", QDialogButtonBox::RejectRole},
    {"Y", QDialogButtonBox::YesRole},    {"N", QDialogButtonBox::NoRole},
    {"P", QDialogButtonBox::ApplyRole},  {"D", QDialogButtonBox::DestructiveRole},
    {"T", QDialogButtonBox::ActionRole}};

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
        QStringList read; // in the order of the row of buttons
        QVector<uint> values{0x80, 0x2000000, 0x80000000, 0xffffffff};
        for (int index = 0; index < keys.keyCount(); ++index) {
            const int value = keys.value(index);
            values.append(uint(value));
            const auto properties = DialogButton::properties(DialogButton::ButtonType(value));
            read.append(QStringList{keys.key(index), QString::number(value, 16), properties.text,
                                    properties.shortcut.toString(), roles.key(properties.role)}
                            .join('|'));
            const DialogButton button(NVO::Icon(), DialogButton::ButtonType(value), nullptr);
            QCOMPARE(button.text(), properties.text);
            const QSize wanted = button.QPushButton::sizeHint().expandedTo(QSize(100, 0));
            QCOMPARE(button.sizeHint(), wanted);
            QCOMPARE(button.minimumSizeHint(), wanted);
        }
        QCOMPARE(read, QString(table).split(';'));

        // Any other value, and any two at once, mean nothing.
        for (const uint one : qAsConst(values)) {
            for (const uint two : qAsConst(values)) {
                const auto properties = DialogButton::properties(DialogButton::ButtonType(int(one | two)));
                if (!keys.valueToKey(int(one | two)))
                    QVERIFY(properties.text.isEmpty() && properties.shortcut.isEmpty()
                            && properties.role == QDialogButtonBox::AcceptRole);
            }
        }
    }

    void hoverCursor()
    {
        DialogButton button;
        button.setCursor(Qt::WaitCursor);
        for (const auto shape : {Qt::PointingHandCursor, Qt::CrossCursor, Qt::ArrowCursor}) {
            if (shape != Qt::PointingHandCursor) // as it is
                button.setHoverCursor(shape);
            sendEvent(&button, QEvent::Enter);
            QCOMPARE(button.cursor().shape(), shape == Qt::ArrowCursor ? Qt::WaitCursor : shape);
            sendEvent(&button, QEvent::Leave);
            QCOMPARE(button.cursor().shape(), Qt::WaitCursor);
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
        for (const auto &ground : {Qt::yellow, Qt::green, Qt::cyan, Qt::yellow}) {
            const QImage picture = button.grab().toImage();
            QCOMPARE(picture.pixelColor(1, 1), QColor(ground));
            QCOMPARE(picture.pixelColor(60, 15), QColor(Qt::blue));
            if (ground == Qt::yellow) {
                sendEvent(&button, QEvent::Enter);
                QTest::mouseMove(&button, QPoint(60, 15));
            } else if (ground == Qt::green) {
                QTest::mousePress(&button, Qt::LeftButton);
            } else {
                QTest::mouseRelease(&button, Qt::LeftButton);
                sendEvent(&button, QEvent::Leave);
            }
        }
    }

private:
    std::optional<TestResources> m_theme;
};

QTEST_MAIN(TestDialogButton)
#include "tst_dialogbutton.moc"
