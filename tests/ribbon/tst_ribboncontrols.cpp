#include "SignalRecorder.h"
#include "TestCase.h"
#include "TestResources.h"

#include "ribbon/RibbonGroupButton.h"

#include <nvo/Action.h>
#include <nvo/Label.h>
#include <nvo/Ribbon.h>
#include <nvo/RibbonButton.h>
#include <nvo/RibbonCheckBox.h>
#include <nvo/RibbonGroup.h>
#include <nvo/RibbonGroupObject.h>
#include <nvo/RibbonLabel.h>

#include <QtTest>

using namespace NVO;

namespace {

QIcon someIcon()
{
    return QIcon(QPixmap(64, 64));
}

int widest(const QStringList &lines, const QFontMetrics &metrics)
{
    int width = 0;
    for (const QString &line : lines)
        width = qMax(width, metrics.horizontalAdvance(line));
    return width;
}

class TestedRibbon : public Ribbon
{
public:
    TestedRibbon()
        : Ribbon(nullptr, nullptr)
    {}
    QString replaceMacroText(const QString &text) const override
    {
        return QString(text).replace("%ICON%", "haus");
    }
    QString getPictureDllName() const override { return "bilder%2"; }
};

} // namespace

class TestRibbonControls : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void buttonSizes()
    {
        for (const QString text :
             {"", "Neu", "Rechnung<br>erfassen", "a<br><br>Lange Zeile", "<br>", "& Co"}) {
            Action action(text);
            RibbonButton button(&action, nullptr);
            for (const bool icon : {false, true}) {
                const int pixels = icon ? 30 : 13; // a change of the font, and the one of the theme
                action.setIcon(icon ? someIcon() : QIcon());
                QFont font = button.font();
                font.setPixelSize(pixels);
                if (icon)
                    button.setFont(font);
                QCOMPARE(button.font().pixelSize(), pixels);
                const QFontMetrics metrics(font);
                const QStringList lines = text.split("<br>");
                const int oneLine = metrics.horizontalAdvance(lines.join(' '));
                const int gap = icon && !text.isEmpty() ? 2 : 0;
                const int textHeight = text.isEmpty() ? 0 : metrics.height();
                const QSize large(8 + qMax(icon ? 32 : 0, widest(lines, metrics)),
                                  8 + (icon ? 32 : 0) + textHeight * lines.size() + gap);
                const QSize small(4 + (icon ? 16 : 0) + oneLine + gap, 4 + qMax(icon ? 16 : 0, textHeight));
                for (const bool minimum : {false, true}) {
                    QCOMPARE(button.sizeFromMode(RibbonControl::Large, minimum), large);
                    QCOMPARE(button.sizeFromMode(RibbonControl::Small, minimum), small);
                    QCOMPARE(button.sizeFromMode(RibbonControl::Auto, minimum), QSize(4, 4));
                }
                button.setSizeMode(RibbonControl::Large, false);
                QCOMPARE(button.sizeHint(), large);
                button.setSizeMode(RibbonControl::Small, false);
                QCOMPARE(button.minimumSizeHint(), small);
            }
        }
    }

    void actionDeletedBySlot()
    {
        auto *action = new Action("Wechsel");
        action->setCheckable(true);
        RibbonButton button(action, nullptr);
        SignalRecorder changes;
        changes.record(&button, &RibbonButton::visibleChange, "change");
        connect(&button, &QAbstractButton::toggled, [action] { delete action; });
        action->setChecked(true);
        QVERIFY(!button.action() && button.isChecked());
        QCOMPARE(changes.take(), QStringList("change"));
    }

    void followTheAction()
    {
        QWidget parent;
        Action action("Zwei<br>Zeilen");
        action.setCheckable(true);
        auto *button = new RibbonButton(&action, &parent);
        auto *box = new RibbonCheckBox(&action, &parent);
        auto *label = new RibbonLabel(&action, &parent);
        QCOMPARE(QStringList({button->text(), box->text(), label->text()}),
                 QStringList({"Zwei\nZeilen", "ZweiZeilen", "Zwei<br>Zeilen"}));
        QCOMPARE(label->toolTip(), Ribbon::createTooltip(&action, label));
        QCOMPARE(box->font().pixelSize(), 19);

        SignalRecorder recorder;
        recorder.record(button, &RibbonButton::visibleChange, "button");
        recorder.record(box, &RibbonCheckBox::visibleChange, "box");
        recorder.record(label, &RibbonLabel::visibleChange, "label");
        const QList<std::function<void()>> changes{
            [&] { action.setText("Neu"); },      [&] { action.setEnabled(false); },
            [&] { action.setVisible(false); },   [&] { action.setIcon(someIcon()); },
            [&] { action.setChecked(true); },    [&] { action.setToolTip("Hilfe"); },
            [&] { action.setCheckable(false); }, [&] { action.setVisible(true); },
            [&] { action.setEnabled(true); },    [&] { action.setCheckable(true); }};
        for (const auto &change : changes) {
            change();
            QCOMPARE(recorder.take(), QStringList({"button", "box", "label"}));
            for (const QWidget *control : QList<QWidget *>{button, box, label}) {
                QCOMPARE(control->isHidden(), !action.isVisible());
                QCOMPARE(control->isEnabled(), action.isEnabled());
                QCOMPARE(control->toolTip(), Ribbon::createTooltip(&action, nullptr));
            }
            QCOMPARE(button->isCheckable(), action.isCheckable());
            QCOMPARE(button->isChecked(), action.isChecked());
            QCOMPARE(button->icon().isNull(), action.icon().isNull());
            QVERIFY(!box->isChecked());
            QCOMPARE(button->text() + box->text() + label->text(), QString("NeuNeuNeu"));
        }
        // A click toggles the widget, never the action.
        const bool wasChecked = action.isChecked();
        const QSignalSpy triggered(&action, &QAction::triggered);
        button->click();
        box->click();
        QCOMPARE(triggered.count(), 2);
        QCOMPARE(triggered[0][0].toBool(), !wasChecked);
        QVERIFY(recorder.take().isEmpty() && action.isChecked() == wasChecked);
        QCOMPARE(button->isChecked(), !wasChecked);
        action.setText("Zurück");
        QCOMPARE(button->isChecked(), wasChecked);
        QVERIFY(box->isChecked());
    }

    void groupButtonLines()
    {
        QMap<QString, QStringList> texts{
            {"Rechnungen und Angebote", {"Rechnungen und", "Angebote"}},
            {"Rechnungen undAngebotedieser", {"Rechnungen undAngebotedieser"}}, // blank before the middle
            {"Auftragsbestätigungen ", {"Auftragsbestätigungen "}},             // blank at the end
            {"Auftrags bestaet", {"Auftrags", "bestaet"}},                      // blank just at the middle
            {"", {}}};
        RibbonGroupButton button;
        const QFontMetrics metrics = button.fontMetrics();
        for (QString text = "i i"; text.size() < 60; text = 'i' + text + 'i')
            texts[text] = metrics.horizontalAdvance(text) > 80 ? text.split(' ') : QStringList(text);
        for (auto text = texts.cbegin(); text != texts.cend(); ++text) {
            button.setText(text.key());
            button.setIcon(QIcon());
            const int width = widest(text.value(), metrics);
            const int height = text.value().size() * metrics.height();
            QCOMPARE(button.minimumSizeHint(), QSize(width + 8, height + 11));
            button.setIcon(someIcon());
            QCOMPARE(button.minimumSizeHint(), QSize(qMax(32, width) + 8, 34 + height + 11));
        }
        button.setOpen(true);
        button.ensurePolished();
        QCOMPARE(button.palette().color(QPalette::ButtonText), QColor(1, 2, 3));
    }

    void picture()
    {
        TestedRibbon ribbon;
        QWidget outside;
        const QList<QStringList> rows{{"", ""},
                                      {"%ICON%_%1", "nvo://bilder%2/PIXMAP/haus_%1"},
                                      {":/%ICON%.PnG", ":/haus.PnG"},
                                      {"%1", "nvo:///PIXMAP/%1"}};
        for (const QStringList &row : rows) {
            Action action;
            action.setMacroIconname("anders.png");
            action.setEnabled(false);
            RibbonGroupObject object(&action, row[0] == "%1" ? &outside : &ribbon);
            const auto *label = object.findChild<Label *>("ribbonGroupPixmapLabel");
            QVERIFY(!object.isEnabled());
            action.setMacroIconname(row[0]);
            action.setEnabled(true);
            QVERIFY(object.isEnabled());
            QCOMPARE(label->isHidden(), row[0].isEmpty());
            QCOMPARE(label->contentsMargins(), QMargins(row[0].isEmpty() ? 0 : 6, 0, 0, 0));
            if (!row[0].isEmpty())
                QCOMPARE(label->text(), "<img src=\"" + row[1] + "\" height=\"80\">");
        }
    }

    void types()
    {
        Action groupAction("Gruppe");
        RibbonGroup group(&groupAction, false, nullptr);
        RibbonGroupObject object(&groupAction, nullptr);
        const QMap<int, QByteArray> classes{
            {1, "NVO::RibbonButton"}, {3, "NVO::RibbonCheckBox"}, {4, "NVO::RibbonLabel"}};
        Action action("x");
        action.setValueName("Mein_Befehl");
        for (const int type : {0, 2, 5, -1, 1, 3, 4}) {
            action.setControlType(Action::CommandType(type));
            for (const char *place : {"RibbonGroup", "RibbonGroupObject"}) {
                if (!classes.contains(type))
                    QTest::ignoreMessage(QtDebugMsg, QByteArray(place) + "::addAction unknown type: "
                                                         + QByteArray::number(type));
            }
            for (const QWidget *control : {group.addAction(&action), object.addAction(&action)}) {
                QCOMPARE(QByteArray(control ? control->metaObject()->className() : ""), classes.value(type));
                const bool plain = type == 4 && object.isAncestorOf(control);
                if (control)
                    QCOMPARE(control->cursor().shape(), plain ? Qt::ArrowCursor : Qt::PointingHandCursor);
            }
        }
        QCOMPARE(object.getControl("MEIN_befehl").second->action(), &action);
        QCOMPARE(group.getControl("mein_BEFEHL").first, group.visibleWidgets().first());
        QVERIFY(!object.getControl("Mein").first && !group.getControl("").second);
    }

    void tooltip()
    {
        // Text, help, shortcut, and the two rows of the table
        const QList<QStringList> rows{{"Neu", "", "", "Neu", "Neu"},
                                      {"A<br>B\nC", "<i>H</i>", "", "A B C", "<i>H</i>"},
                                      {"Plus+M", "H", "Ctrl+Shift+N", "Plus +M (Ctrl+Shift+N)", "H"},
                                      {"+A +B", "H", "", "+A +B", "H"},
                                      {"", "H", "F5", " (F5)", "H"}};
        for (const QStringList &row : rows) {
            Action action(row[0]);
            action.setToolTip(row[1]);
            action.setShortcut(QKeySequence(row[2]));
            action.setValueName("name");
            QCOMPARE(Ribbon::createTooltip(&action, nullptr),
                     "<table><tr><td style=\"white-space: nowrap\"><b>" + row[3]
                         + "</b></td></tr><tr><td style=\"padding-top: 4px;\">" + row[4]
                         + "</td></tr></table>");
        }
    }

private:
    const TestResources m_theme{QMap<QString, QByteArray>{
        {"Font", "[Size]\nDEFAULT=13\nHIGHLIGHT=19\n"},
        {"FontSizes",
         "[Element]\nRibbonButton=DEFAULT\nRibbonCheckBox=HIGHLIGHT\nRibbonGroupButton=DEFAULT\n"},
        {"RibbonButton", "* { border: none; }"},
        {"RibbonGroupButton", "QPushButton[style=\"open\"] { color: #010203; }"}}};
};

QTEST_MAIN(TestRibbonControls)
#include "tst_ribboncontrols.moc"
