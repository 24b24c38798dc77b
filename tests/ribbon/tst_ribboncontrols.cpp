#include "SignalRecorder.h"
#include "TestCase.h"
#include "TestResources.h"

#include "ribbon/RibbonGroupButton.h"
#include "ribbon/RibbonSeperator.h"

#include <nvo/Action.h>
#include <nvo/Css.h>
#include <nvo/Label.h>
#include <nvo/Ribbon.h>
#include <nvo/RibbonButton.h>
#include <nvo/RibbonCheckBox.h>
#include <nvo/RibbonGroup.h>
#include <nvo/RibbonGroupObject.h>
#include <nvo/RibbonLabel.h>
#include <nvo/RibbonTab.h>

#include <QHBoxLayout>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

using namespace NVO;
using Mode = RibbonControl::SizeMode;

namespace {

QIcon redIcon()
{
    QPixmap pixmap(64, 64);
    pixmap.fill(Qt::red);
    return QIcon(pixmap);
}

/** The smallest rectangle that holds all red pixels. */
QRect redOf(QWidget &widget)
{
    const QImage image = widget.grab().toImage();
    QRect extent;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == QColor(Qt::red))
                extent |= QRect(x, y, 1, 1);
        }
    }
    return extent;
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
    bool isTestFlag() const override { return true; }
};

/** Records what it is told of its mode. */
class PlainControl : public RibbonControl
{
public:
    using RibbonControl::sizeFromMode;
    void updateLayout() override {}
    QSize sizeFromMode(Mode mode, bool minimum) const override { return QSize(mode, minimum); }
    void onSetSizeModeChanged(Mode oldMode) override { changes.append(oldMode); }
    QList<int> changes;
};

} // namespace

class TestRibbonControls : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void interface();
    void buttonSizes_data();
    void buttonSizes();
    void buttonIconPlace();
    void followTheAction();
    void checkBox();
    void separator();
    void groupButtonLines();
    void picture_data();
    void picture();
    void unknownTypes();
    void tooltip_data();
    void tooltip();
    void tooltipNamesTheValue();

private:
    std::unique_ptr<TestResources> m_theme;
};

void TestRibbonControls::init()
{
    m_theme = std::make_unique<TestResources>(QMap<QString, QByteArray>{
        {"Font", "[Size]\nDEFAULT=13\nHIGHLIGHT=19\n"},
        {"FontSizes",
         "[Element]\nRibbonButton=DEFAULT\nRibbonCheckBox=HIGHLIGHT\nRibbonGroupButton=DEFAULT\n"},
        {"RibbonButton", "* { border: none; }"},
        {"RibbonCheckBox", "* { color: blue; }"},
        {"RibbonLabel", "* { color: red; }"},
        {"RibbonGroupObject", "QFrame { border: none; }"},
        {"RibbonGroupButton", "QPushButton[style=\"open\"] { color: #010203; }"}});
    Css::instance().reset();
}

void TestRibbonControls::cleanup()
{
    m_theme.reset();
    Css::instance().reset();
}

void TestRibbonControls::interface()
{
    PlainControl control;
    QCOMPARE(control.fixSizeMode(), RibbonControl::Auto);
    QCOMPARE(control.sizeMode(), RibbonControl::Small);
    QVERIFY(control.controlVisible() && !control.action());
    QVERIFY(!control.setSizeMode(RibbonControl::Small, true));
    QVERIFY(control.setSizeMode(RibbonControl::Large, false));
    QCOMPARE(std::exchange(control.changes, {}), QList<int>{RibbonControl::Small});
    QCOMPARE(control.sizeFromMode(RibbonControl::Small, QSize(9, 9)), QSize(RibbonControl::Small, 1));
    QCOMPARE(control.sizeFromInternMode(false), QSize(RibbonControl::Large, 0));
    control.setFixSizeMode(RibbonControl::Small);
    QCOMPARE(control.sizeMode(), RibbonControl::Small);
    QVERIFY(control.setSizeMode(RibbonControl::Large, false));
    QCOMPARE(control.sizeMode(), RibbonControl::Small);
    QVERIFY(control.changes.isEmpty());
    QVERIFY(control.setSizeMode(RibbonControl::Large, true));
    control.setFixSizeMode(RibbonControl::Auto);
    QCOMPARE(control.sizeMode(), RibbonControl::Large);
}

void TestRibbonControls::buttonSizes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("icon");
    for (const char *text : {"", "Neu", "Rechnung<br>erfassen", "a<br><br>Lange Zeile", "<br>", "& Co"}) {
        QTest::addRow("'%s'", text) << text << false;
        QTest::addRow("icon and '%s'", text) << text << true;
    }
}

void TestRibbonControls::buttonSizes()
{
    QFETCH(QString, text);
    QFETCH(bool, icon);
    Action action(text);
    RibbonButton button(&action, nullptr);
    if (icon)
        action.setIcon(redIcon());
    for (const int pixels : {13, 30}) { // the one of the theme, and a change of it
        QFont font = button.font();
        if (pixels != 13) {
            font.setPixelSize(pixels);
            button.setFont(font);
        }
        QCOMPARE(button.font().pixelSize(), pixels);
        const QFontMetrics metrics(font);
        const QStringList lines = text.split("<br>");
        int widest = 0;
        for (const QString &line : lines)
            widest = qMax(widest, metrics.horizontalAdvance(line));
        const int oneLine = metrics.horizontalAdvance(lines.join(' '));
        const bool both = icon && !text.isEmpty();
        const int textHeight = text.isEmpty() ? 0 : metrics.height();
        const QSize large(8 + qMax(icon ? 32 : 0, widest),
                          8 + (icon ? 32 : 0) + textHeight * lines.size() + (both ? 2 : 0));
        const QSize small(4 + (icon ? 16 : 0) + oneLine + (both ? 2 : 0),
                          4 + qMax(icon ? 16 : 0, textHeight));
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

void TestRibbonControls::buttonIconPlace()
{
    Action action(redIcon(), "Text");
    RibbonButton button(&action, nullptr);
    button.resize(101, 60);
    QCOMPARE(redOf(button), QRect(2, (60 - 16) / 2, 16, 16));
    button.setSizeMode(RibbonControl::Large, false);
    QCOMPARE(redOf(button), QRect((101 - 32) / 2, 4, 32, 32));
    action.setEnabled(false);
    QVERIFY(redOf(button).isEmpty());
}

void TestRibbonControls::followTheAction()
{
    QWidget parent;
    Action action("Zwei<br>Zeilen");
    action.setCheckable(true);
    auto *button = new RibbonButton(&action, &parent);
    auto *box = new RibbonCheckBox(&action, &parent);
    auto *label = new RibbonLabel(&action, &parent);
    QCOMPARE(button->text(), QString("Zwei\nZeilen"));
    QCOMPARE(box->text(), QString("ZweiZeilen"));
    QCOMPARE(label->text(), QString("Zwei<br>Zeilen"));
    QCOMPARE(label->toolTip(), Ribbon::createTooltip(&action, label));
    QCOMPARE(button->styleSheet(), Css::instance().css(ElementRibbonButton));
    QCOMPARE(label->styleSheet(), Css::instance().css(ElementRibbonLabel));
    QCOMPARE(box->font().pixelSize(), 19);

    SignalRecorder recorder;
    recorder.record(button, &RibbonButton::visibleChange, "button");
    recorder.record(box, &RibbonCheckBox::visibleChange, "box");
    recorder.record(label, &RibbonLabel::visibleChange, "label");
    const QStringList all{"button", "box", "label"};
    const QList<std::function<void()>> changes{
        [&] { action.setText("Neu"); },      [&] { action.setEnabled(false); },
        [&] { action.setVisible(false); },   [&] { action.setIcon(redIcon()); },
        [&] { action.setChecked(true); },    [&] { action.setToolTip("Hilfe"); },
        [&] { action.setCheckable(false); }, [&] { action.setVisible(true); }};
    for (const auto &change : changes) {
        change();
        QCOMPARE(recorder.take(), all);
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
    action.setEnabled(true);
    action.setCheckable(true);
    recorder.take();
    // A click toggles the widget, never the action.
    const bool wasChecked = action.isChecked();
    const QSignalSpy triggered(&action, &QAction::triggered);
    button->click();
    box->click();
    QCOMPARE(triggered.count(), 2);
    QCOMPARE(triggered[0][0].toBool(), !wasChecked);
    QCOMPARE(recorder.take(), QStringList());
    QCOMPARE(action.isChecked(), wasChecked);
    QCOMPARE(button->isChecked(), !wasChecked);
    action.setText("Zurück");
    QCOMPARE(button->isChecked(), wasChecked);
    QVERIFY(box->isChecked());

    recorder.record(button, &RibbonButton::focusInOutEvent, "focus");
    recorder.take();
    parent.show();
    QVERIFY(QTest::qWaitForWindowActive(&parent));
    button->setFocus();
    box->setFocus();
    QCOMPARE(recorder.take().count("focus"), 2);
}

void TestRibbonControls::checkBox()
{
    Action action("Ein Text");
    RibbonCheckBox box(&action, nullptr);
    QCOMPARE(box.maximumHeight(), 20);
    QVERIFY(!box.setSizeMode(RibbonControl::Large, true) && !box.setSizeMode(RibbonControl::Large, false));
    QCOMPARE(box.sizeMode(), RibbonControl::Small);
    QCOMPARE(box.sizeFromMode(RibbonControl::Large, false), box.sizeHint());
    QCOMPARE(box.sizeFromMode(RibbonControl::Small, true), box.minimumSizeHint());
    QVERIFY(!box.elideEnabled());
    box.setElideEnable(true);
    QVERIFY(box.elideEnabled());
    RibbonLabel label(&action, nullptr);
    QCOMPARE(label.sizeFromMode(RibbonControl::Large, true), label.QLabel::sizeHint());
}

void TestRibbonControls::separator()
{
    Action shown("a");
    Action hidden("b");
    hidden.setVisible(false);
    QWidget page;
    auto *layout = new QHBoxLayout(&page);
    auto *group = new RibbonGroupObject(&shown, nullptr);
    auto *first = new RibbonSeperator(group, &page);
    layout->addWidget(first);
    auto *before = new QWidget;
    layout->addWidget(before);
    auto *second = new RibbonSeperator(group, &page);
    layout->addWidget(second);
    layout->addWidget(group);
    QVERIFY(!first->controlVisible());
    QVERIFY(second->controlVisible());
    before->hide();
    first->onVisibleChange(nullptr);
    second->onVisibleChange(nullptr);
    QVERIFY(second->isHidden() && !second->controlVisible());
    before->show();
    second->onVisibleChange(nullptr);
    QVERIFY(!second->isHidden());
    shown.setVisible(false);
    QVERIFY(!second->controlVisible());
    shown.setVisible(true);
    second->setContentsMargins(3, 5, 4, 6);
    QCOMPARE(second->sizeFromMode(RibbonControl::Auto, false), QSize(7, 72 - 11));
    QCOMPARE(second->objectName(), QString("RibbonSeperator"));
    delete group;
    QVERIFY(!second->controlVisible());
    RibbonGroupObject gone(&hidden, nullptr);
    QVERIFY(RibbonSeperator(&gone, nullptr).isHidden());
}

void TestRibbonControls::groupButtonLines()
{
    QMap<QString, QStringList> texts{
        {"Rechnungen und Angebote", {"Rechnungen und", "Angebote"}},
        {"Rechnungen undAngebotedieser", {"Rechnungen undAngebotedieser"}}, // blank before the middle
        {"Auftragsbestätigungen ", {"Auftragsbestätigungen "}},             // blank at the end
        {"Auftrags bestaet", {"Auftrags", "bestaet"}},                      // blank just at the middle
        {"WWWWWWWWWWWW", {"WWWWWWWWWWWW"}},
        {"", {}}};
    RibbonGroupButton button;
    const QFontMetrics metrics = button.fontMetrics();
    for (QString text = "i i"; text.size() < 60; text = 'i' + text + 'i')
        texts[text] = metrics.horizontalAdvance(text) > 80 ? text.split(' ') : QStringList(text);
    for (auto text = texts.cbegin(); text != texts.cend(); ++text) {
        button.setText(text.key());
        button.setIcon(QIcon());
        int widest = 0;
        for (const QString &line : text.value())
            widest = qMax(widest, metrics.horizontalAdvance(line));
        const int height = text.value().size() * metrics.height();
        QCOMPARE(button.minimumSizeHint(), QSize(widest + 8, height + 11));
        button.setIcon(redIcon());
        QCOMPARE(button.minimumSizeHint(), QSize(qMax(32, widest) + 8, 34 + height + 11));
    }
    button.resize(121, 100);
    QCOMPARE(redOf(button), QRect((121 - 32) / 2, 4, 32, 32));

    QVERIFY(!button.isOpen());
    button.setOpen(true);
    button.ensurePolished();
    QCOMPARE(button.palette().color(QPalette::ButtonText), QColor(1, 2, 3));
    QEvent fontChange(QEvent::ApplicationFontChange);
    QCoreApplication::sendEvent(&button, &fontChange);
    QVERIFY(button.isOpen());
}

void TestRibbonControls::picture_data()
{
    QTest::addColumn<bool>("inRibbon");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("source");
    QTest::newRow("none") << true << "" << QString();
    QTest::newRow("macro") << true << "%ICON%_gross"
                           << "nvo://bilder%2/PIXMAP/haus_gross";
    QTest::newRow("file") << true << ":/%ICON%.PnG"
                          << ":/haus.PnG";
    QTest::newRow("percent") << true << "%1"
                             << "nvo://bilder%2/PIXMAP/%1";
    QTest::newRow("no ribbon") << false << "%ICON%"
                               << "nvo:///PIXMAP/%ICON%";
}

void TestRibbonControls::picture()
{
    QFETCH(bool, inRibbon);
    QFETCH(QString, name);
    QFETCH(QString, source);
    TestedRibbon ribbon;
    Action action;
    action.setMacroIconname("anders.png");
    action.setEnabled(false);
    const std::unique_ptr<QWidget> outside(inRibbon ? nullptr : new QWidget);
    auto *object = new RibbonGroupObject(&action, inRibbon ? &ribbon : outside.get());
    auto *label = object->findChild<Label *>("ribbonGroupPixmapLabel");
    QVERIFY(!object->isEnabled());
    action.setMacroIconname(name);
    action.setEnabled(true);
    QVERIFY(object->isEnabled());
    QCOMPARE(label->isHidden(), source.isNull());
    QCOMPARE(label->contentsMargins(), QMargins(source.isNull() ? 0 : 6, 0, 0, 0));
    if (!source.isNull())
        QCOMPARE(label->text(), "<img src=\"" + source + "\" height=\"80\">");
    QCOMPARE(object->styleSheet(), Css::instance().css(ElementRibbonGroupObject));
    QCOMPARE(object->sizeFromMode(RibbonControl::Small, false), object->sizeHint());
}

void TestRibbonControls::unknownTypes()
{
    Action groupAction("Gruppe");
    RibbonGroup group(&groupAction, false, nullptr);
    RibbonGroupObject object(&groupAction, nullptr);
    QVERIFY(group.isHidden());
    for (const int type : {0, 2, 5, -1}) {
        Action action("x");
        action.setControlType(Action::CommandType(type));
        const QByteArray number = QByteArray::number(type);
        QTest::ignoreMessage(QtDebugMsg, "RibbonGroup::addAction unknown type: " + number);
        QVERIFY(!group.addAction(&action));
        QTest::ignoreMessage(QtDebugMsg, "RibbonGroupObject::addAction unknown type: " + number);
        QVERIFY(!object.addAction(&action));
    }
    Action action("x");
    action.setValueName("Mein_Befehl");
    for (const int type : {1, 3, 4}) {
        action.setControlType(Action::CommandType(type));
        QWidget *inGroup = group.addAction(&action);
        QWidget *inObject = object.addAction(&action);
        const char *name = type == 1   ? "NVO::RibbonButton"
                           : type == 3 ? "NVO::RibbonCheckBox"
                                       : "NVO::RibbonLabel";
        QCOMPARE(inGroup->metaObject()->className(), name);
        QCOMPARE(inObject->metaObject()->className(), name);
        QCOMPARE(inGroup->cursor().shape(), Qt::PointingHandCursor);
        QCOMPARE(inObject->cursor().shape(), type == 4 ? Qt::ArrowCursor : Qt::PointingHandCursor);
    }
    QCOMPARE(object.getControl("MEIN_befehl").second->action(), &action);
    QCOMPARE(group.getControl("mein_BEFEHL").first, group.visibleWidgets().first());
    QVERIFY(!object.getControl("Mein").first && !group.getControl("").second);
}

void TestRibbonControls::tooltip_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("help");
    QTest::addColumn<QString>("shortcut");
    QTest::addColumn<QString>("html");
    const QString title = "<tr><td style=\"white-space: nowrap\"><b>%1</b></td></tr>";
    const QString help = "<tr><td style=\"padding-top: 4px;\">%1</td></tr>";
    QTest::newRow("nothing") << ""
                             << ""
                             << ""
                             << "";
    QTest::newRow("text is help, too") << "Neu"
                                       << ""
                                       << "" << title.arg("Neu") + help.arg("Neu");
    QTest::newRow("breaks") << "A<br>B\nC"
                            << "H"
                            << "" << title.arg("A B C") + help.arg("H");
    QTest::newRow("help only") << ""
                               << "<i>H</i>"
                               << "" << help.arg("<i>H</i>");
    QTest::newRow("shortcut") << "Neu"
                              << "H"
                              << "Ctrl+N" << title.arg("Neu (Ctrl +N)") + help.arg("H");
    QTest::newRow("first plus only") << "Plus+Minus"
                                     << "H"
                                     << "Ctrl+Shift+N"
                                     << title.arg("Plus +Minus (Ctrl+Shift+N)") + help.arg("H");
    QTest::newRow("blank before plus") << "A +B"
                                       << "H"
                                       << "" << title.arg("A +B") + help.arg("H");
    QTest::newRow("plus at the start") << "+A+B"
                                       << "H"
                                       << "" << title.arg("+A+B") + help.arg("H");
    QTest::newRow("only a shortcut") << ""
                                     << "H"
                                     << "F5" << title.arg(" (F5)") + help.arg("H");
}

void TestRibbonControls::tooltip()
{
    QFETCH(QString, text);
    QFETCH(QString, help);
    QFETCH(QString, shortcut);
    Action action(text);
    action.setToolTip(help);
    action.setShortcut(QKeySequence(shortcut));
    action.setShortcutKey("unused");
    action.setValueName("name");
    QFETCH(QString, html);
    QCOMPARE(Ribbon::createTooltip(&action, nullptr), "<table>" + html + "</table>");
}

void TestRibbonControls::tooltipNamesTheValue()
{
    TestedRibbon ribbon;
    Action action;
    auto *page = ribbon.addTab(&action);
    const QString empty = "<table></table>";
    QCOMPARE(Ribbon::createTooltip(&action, page), empty);
    action.setValueName("wert");
    QCOMPARE(Ribbon::createTooltip(&action, nullptr), empty);
    QWidget outside;
    QCOMPARE(Ribbon::createTooltip(&action, &outside), empty);
    QCOMPARE(Ribbon::createTooltip(&action, page), QString("<table><tr><td><b>wert</b></td></tr></table>"));
    QCOMPARE(Ribbon::findRibbon(page), &ribbon);
    QVERIFY(!Ribbon::findRibbon(nullptr) && !Ribbon::findRibbon(&outside));
}

QTEST_MAIN(TestRibbonControls)
#include "tst_ribboncontrols.moc"
