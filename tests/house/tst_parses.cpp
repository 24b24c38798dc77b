#include "Guards.h"
#include "TestCase.h"

#include <nvo/NvoSdkGui.h>

#include <QAbstractEventDispatcher>
#include <QHBoxLayout>
#include <QResource>
#include <QtTest>

#include <private/qcssparser_p.h>

#include <dlfcn.h>

#include <functional>

namespace {

QHash<QString, int> parses;

} // namespace

/** Stands before Qt's own, so that every sheet that is parsed in this program is counted by its text. */
void QCss::Parser::init(const QString &css, bool file)
{
    using Init = void (*)(QCss::Parser *, const QString &, bool);
    static const auto next = reinterpret_cast<Init>(dlsym(RTLD_NEXT, "_ZN4QCss6Parser4initERK7QStringb"));
    // What begins so is Qt's second try with a sheet that has no selector.
    if (!css.startsWith(QLatin1String("* {")))
        ++parses[css];
    next(this, css, file);
}

namespace {

using namespace NVO;
using Make = std::function<QWidget *(QWidget *parent)>;

/** Counts what is sent to a widget and its descendants. */
class EventWatch : public QObject
{
public:
    explicit EventWatch(const QWidget *top)
        : m_top(top)
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject *object, QEvent *event) override
    {
        const auto *widget = qobject_cast<QWidget *>(object);
        if (widget && (widget == m_top || m_top->isAncestorOf(widget)))
            seen << QStringLiteral("%1 to %2").arg(event->type()).arg(object->metaObject()->className());
        return false;
    }

    QStringList seen;

private:
    const QWidget *m_top;
};

template <typename Type>
QWidget *plain(QWidget *parent)
{
    return new Type(parent);
}

template <typename Type>
QWidget *titled(QWidget *parent)
{
    auto *tile = new Type(parent);
    tile->setTitle(QStringLiteral("Rechnungswesen"));
    return tile;
}

Action *command(const QString &text, QObject *parent, Action::CommandType type = Action::CommandButton)
{
    auto *action = new Action(QIcon(QStringLiteral(":/information")), text, parent);
    action->setValueName(text);
    action->setControlType(type);
    return action;
}

template <typename Type>
QWidget *mirror(QWidget *parent)
{
    return new Type(command(QStringLiteral("Neu"), parent), parent);
}

QWidget *ribbonGroup(QWidget *parent)
{
    auto *group = new RibbonGroup(command(QStringLiteral("Gruppe"), parent), false, parent);
    group->addAction(command(QStringLiteral("Neu"), group));
    group->addAction(command(QStringLiteral("Prüfen"), group, Action::CommandCheckBox));
    return group;
}

QWidget *ribbon(QWidget *parent)
{
    auto *ribbon = new Ribbon(command(QStringLiteral("Datei"), parent), parent);
    for (const char *name : {"Start", "Auswertung"}) {
        RibbonTab *tab = ribbon->addTab(command(QString::fromLatin1(name), ribbon));
        RibbonGroup *group = tab->addGroup(command(QStringLiteral("Gruppe"), ribbon));
        group->addAction(command(QStringLiteral("Neu"), ribbon));
        group->addAction(command(QStringLiteral("Prüfen"), ribbon, Action::CommandCheckBox));
    }
    return ribbon;
}

QWidget *accordion(QWidget *parent)
{
    auto *accordion = new Accordion(parent);
    accordion->addAccordionPart(new AccordionPart(accordion));
    return accordion;
}

QWidget *accordionHeader(QWidget *parent)
{
    return new AccordionSimpleHeader(new AccordionPart(parent), parent);
}

QWidget *infoBox(QWidget *parent)
{
    auto *box = new InfoBox(parent);
    box->setInfoBoxStyle(InfoBox::Error);
    box->setHtmlText(QStringLiteral("Die Bankverbindung fehlt."));
    return box;
}

QWidget *expandingTile(QWidget *parent)
{
    auto *tile = new ExpandingOverviewButton(parent);
    tile->setTitle(QStringLiteral("Konto"));
    tile->setPaths({{QStringLiteral("Stamm"), {1, {QStringLiteral("A"), QStringLiteral("B")}}},
                    {QStringLiteral("Saldo"), {2, {QStringLiteral("C")}}}});
    return tile;
}

template <typename Type>
QWidget *tabBar(QWidget *parent)
{
    auto *bar = new Type(parent);
    for (const char *name : {"Eins", "Zwei"})
        bar->addTab(QString::fromLatin1(name));
    return bar;
}

QWidget *comboBox(QWidget *parent)
{
    auto *combo = new ComboBox(parent);
    combo->addItem(QStringLiteral("Bar"));
    return combo;
}

QWidget *overviewCombo(QWidget *parent)
{
    auto *combo = new OverviewComboBox(parent);
    combo->addItem(QIcon(), QStringLiteral("Konto"), QStringLiteral("Giro"), QStringLiteral("A"));
    return combo;
}

QWidget *toolBar(QWidget *parent)
{
    auto *bar = new ToolBar(parent);
    for (const char *name : {"Neu", "Kopieren"})
        bar->addAction(command(QString::fromLatin1(name), bar));
    return bar;
}

QWidget *dialog(QWidget *parent)
{
    auto *dialog = new Dialog(parent, ElementDialog, DialogButton::Ok | DialogButton::Cancel,
                              DialogButton::Ok, Dialog::NoFlag);
    dialog->setWindowTitle(QStringLiteral("Zahlung"));
    dialog->setContent(new QWidget);
    return dialog;
}

QWidget *messageBox(QWidget *parent)
{
    return new MessageBox(QMessageBox::Question, QStringLiteral("Storno"), QStringLiteral("Stornieren?"),
                          DialogButton::Yes | DialogButton::No, DialogButton::Yes, parent);
}

QWidget *selectionBox(QWidget *parent)
{
    return new SelectionMessageBoxBase(parent, QStringLiteral("Konto"), QStringLiteral("Welches?"), QString(),
                                       DialogButton::Ok, QString());
}

QWidget *flyout(QWidget *parent)
{
    auto *flyout = new Flyout(parent, Flyout::FlyoutFlags(), parent);
    flyout->setContent(new Label(QStringLiteral("Hinweis")));
    return flyout;
}

/** A widget whose style is set before it is shown. */
template <typename Type, typename Style>
Make styled(void (Type::*set)(Style), Style style)
{
    return [=](QWidget *parent) {
        auto *widget = new Type(parent);
        (widget->*set)(style);
        return widget;
    };
}

const QVector<QPair<const char *, Make>> &makers()
{
    static const QVector<QPair<const char *, Make>> makers{
        {"AbstractButton", plain<AbstractButton>},
        {"Accordion", accordion},
        {"AccordionSimpleHeader", accordionHeader},
        {"AccordionBoxIndicator", plain<AccordionBoxIndicator>},
        {"BottomSideButton", titled<BottomSideButton>},
        {"Button", plain<Button>},
        {"Button, primary", styled(&Button::setButtonStyle, Button::Primary)},
        {"CheckBox", plain<CheckBox>},
        {"ComboBox", comboBox},
        {"DateEdit", plain<DateEdit>},
        {"Dialog", dialog},
        {"DialogButton", [](QWidget *parent) { return new DialogButton(Icon(), DialogButton::Ok, parent); }},
        {"ExpandingOverviewButton", expandingTile},
        {"ExtraSearchResultButton", plain<ExtraSearchResultButton>},
        {"Flyout", flyout},
        {"GroupBox", plain<GroupBox>},
        {"HairLine", [](QWidget *parent) { return new HairLine(Qt::Horizontal, parent); }},
        {"IconButton", plain<IconButton>},
        {"InfoBox", infoBox},
        {"Label", plain<Label>},
        {"LineEdit", plain<LineEdit>},
        {"LineEditWithButton", plain<LineEditWithButton>},
        {"Link", plain<Link>},
        {"Link, light", styled(&Link::setLinkStyle, Link::Light)},
        {"MessageBox", messageBox},
        {"NumericEdit", plain<NumericEdit>},
        {"OverviewButton", titled<OverviewButton>},
        {"OverviewButton3Children", titled<OverviewButton3Children>},
        {"OverviewButtonWithWidget", titled<OverviewButtonWithWidget>},
        {"OverviewComboBox", overviewCombo},
        {"PeriodEdit", plain<PeriodEdit>},
        {"PixmapToggle", plain<PixmapToggle>},
        {"RadioToggle", plain<RadioToggle>},
        {"Ribbon", ribbon},
        {"RibbonButton", mirror<RibbonButton>},
        {"RibbonCheckBox", mirror<RibbonCheckBox>},
        {"RibbonGroup", ribbonGroup},
        {"RibbonGroupObject", mirror<RibbonGroupObject>},
        {"RibbonLabel", mirror<RibbonLabel>},
        {"ScrollArea", plain<ScrollArea>},
        {"ScrollAreaWithButton", plain<ScrollAreaWithButton>},
        {"ScrollBar", plain<ScrollBar>},
        {"ScrollButton", plain<ScrollButton>},
        {"SegmentedControl", tabBar<SegmentedControl>},
        {"SelectionMessageBoxBase", selectionBox},
        {"Separator", plain<Separator>},
        {"TabBar", tabBar<TabBar>},
        {"TimeEdit", plain<TimeEdit>},
        {"ToolBar", toolBar},
        {"ToolBarButton", plain<ToolBarButton>},
        {"ToolBarHiddenButton", plain<ToolBarHiddenButton>},
        {"ToolBarGroup", [](QWidget *parent) { return new ToolBarGroup(nullptr, parent); }},
        {"ToolBarWidget", plain<ToolBarWidget>},
        {"ZoomSlider", plain<ZoomSlider>},
        {"RecyclingList", plain<RecyclingList>},
    };
    return makers;
}

/** Where Qt itself asks for a look between constructor and show, and why that is not avoided. */
const QHash<QByteArray, const char *> &askedByQt()
{
    static const QHash<QByteArray, const char *> reasons{
        {"ComboBox", "the list that holds the delegate asks the box"},
        {"OverviewComboBox", "the list that holds the delegate asks the box"},
        {"ExpandingOverviewButton", "rows are moved into the part that unfolds"},
        {"LineEditWithButton", "the labels of the popup ask it"},
        {"Ribbon", "a frame asks the sheet above it as it is made, and its labels ask its own"}};
    return reasons;
}

QList<QAbstractEventDispatcher::TimerInfo> timers(QWidget *widget)
{
    return QAbstractEventDispatcher::instance()->registeredTimers(widget);
}

QList<QWidget *> withDescendants(QWidget *widget)
{
    return QList<QWidget *>{widget} + widget->findChildren<QWidget *>();
}

/** What has been parsed more often than widgets of \a top wear it. */
QByteArray parsedAgain(QWidget *top)
{
    QHash<QString, int> worn;
    for (const QWidget *widget : withDescendants(top))
        ++worn[widget->styleSheet()];
    QByteArrayList again;
    for (auto sheet = parses.cbegin(); sheet != parses.cend(); ++sheet) {
        if (sheet.value() > worn.value(sheet.key()))
            again << QByteArray::number(sheet.value()) + " for " + QByteArray::number(worn[sheet.key()])
                         + " widgets: " + sheet.key().simplified().left(120).toUtf8();
    }
    return again.join('\n');
}

} // namespace

/** What Qt does with the sheets of our widgets from their constructors to the first show, and what they cost
 * if they are never shown. */
class TestParses : public TestCase
{
    Q_OBJECT

public:
    TestParses()
    {
        QResource::registerResource(QStringLiteral(NVO_THEME_DIR "/nvo-modern.rcc"));
        Css::instance().reset();
        // What is read once for the whole program is not counted.
        for (const auto &maker : makers()) {
            QWidget window;
            maker.second(&window)->show();
            window.show();
        }
    }

private Q_SLOTS:
    void shown_data() { makerRows(); }
    void shown()
    {
        QFETCH(int, maker);
        QWidget window;
        window.setFocusPolicy(Qt::StrongFocus); // or the widget gets the focus and looks different at once
        window.setFocus();
        parses.clear();
        QWidget *widget = makers()[maker].second(&window);
        window.show();
        widget->show();
        QCoreApplication::processEvents();
        const QByteArray again = parsedAgain(&window);
        if (const char *reason = askedByQt().value(makers()[maker].first))
            QEXPECT_FAIL("", reason, Continue);
        QVERIFY2(again.isEmpty(), again);
    }

    void neverShown_data() { makerRows(); }
    void neverShown()
    {
        QFETCH(int, maker);
        QWidget window;
        window.show(); // which makes Qt polish all that it holds, hidden or not
        QWidget page(&window);
        parses.clear();
        QWidget *widget = makers()[maker].second(&page);
        QTest::qWait(1);
        const QByteArray again = parsedAgain(&window);
        if (const char *reason = askedByQt().value(makers()[maker].first))
            QEXPECT_FAIL("", reason, Continue);
        QVERIFY2(again.isEmpty(), again);

        for (QWidget *part : withDescendants(widget)) {
            // What ends of itself may.
            QTRY_VERIFY2(timers(part).isEmpty(), part->metaObject()->className());
        }
        const EventWatch watch(widget);
        for (int frame = 0; frame < 5; ++frame) {
            window.resize(300 + frame, 200);
            window.repaint();
            QCoreApplication::processEvents();
        }
        QCOMPARE(watch.seen, QStringList());
    }

private:
    static void makerRows()
    {
        QTest::addColumn<int>("maker");
        for (int i = 0; i < makers().size(); ++i)
            QTest::newRow(makers()[i].first) << i;
    }
};

QTEST_MAIN(TestParses)
#include "tst_parses.moc"
