#pragma once

#include <nvo/NvoSdkGui.h>

#include <QResource>
#include <QtWidgets>

#include <memory>
#include <vector>

/** What every test of the whole house works with: a theme, and one of everything. */
namespace House {

using namespace NVO;

/** The classic theme as long as it lives. */
class Theme
{
public:
    Theme()
    {
        QResource::registerResource(NVO_THEME_DIR "/nvo-classic.rcc");
        Css::instance().reset();
    }
    ~Theme() { QResource::unregisterResource(NVO_THEME_DIR "/nvo-classic.rcc"); }
    Theme(const Theme &) = delete;
    Theme &operator=(const Theme &) = delete;
};

/** Owns what a class needs and does not own: actions, adapters. */
inline std::unique_ptr<QObject> owner;

inline Action *action(const QString &text = QStringLiteral("&Kommando"))
{
    auto *result = new Action(text, owner.get());
    result->setControlType(Action::CommandButton);
    result->setValueName(text);
    return result;
}

class Adapter : public RecyclingListAdapter
{
public:
    explicit Adapter(QObject *parent) { setParent(parent); }
    QWidget *widget(int, QWidget *recycled, QWidget *parent) override
    {
        return recycled ? recycled : new QPushButton(QStringLiteral("Buchung"), parent);
    }
    int count() override { return 20; }
};

inline CompleterData suggestions()
{
    CompleterData data;
    for (const char *name : {"Meier", "Mayer", "Maier"}) {
        CompleterDataRow row;
        row.setType(CompleterDataRow::DataRemovable);
        row.addColumn(QString::fromLatin1(name), 1);
        data.addRow(row);
    }
    data.setHeaders({QStringLiteral("Name")});
    return data;
}

struct Factory
{
    const char *name;
    QObject *(*make)(QWidget *parent);
};

template <typename Class>
QObject *plain(QWidget *parent)
{
    return new Class(parent);
}

/** One of each exported class that can be made: a line a class. */
inline const std::vector<Factory> &factories()
{
    static const std::vector<Factory> all{
        {"Action", [](QWidget *parent) -> QObject * { return new Action(parent); }},
        {"GraphicsEffect",
         [](QWidget *parent) -> QObject * {
             GraphicsEffect *effect = createDefaultShadowEffectPixels();
             parent ? parent->setGraphicsEffect(effect) : effect->setParent(owner.get());
             return effect;
         }},
        {"CompleterSourceModel",
         [](QWidget *parent) -> QObject * { return new CompleterSourceModel(suggestions(), parent); }},
        {"FlowLayout", [](QWidget *parent) -> QObject * { return new FlowLayout(parent, 0, 4, 4); }},
        {"RibbonGroupLayout", plain<RibbonGroupLayout>},
        {"AbstractButton", plain<AbstractButton>},
        {"Button", plain<Button>},
        {"IconButton", plain<IconButton>},
        {"Link", plain<Link>},
        {"CheckBox", plain<CheckBox>},
        {"PixmapToggle", plain<PixmapToggle>},
        {"RadioToggle", plain<RadioToggle>},
        {"Label", plain<Label>},
        {"HairLine", [](QWidget *parent) -> QObject * { return new HairLine(Qt::Vertical, parent); }},
        {"Separator", plain<Separator>},
        {"Ribbon",
         [](QWidget *parent) -> QObject * {
             auto *ribbon = new Ribbon(action(), parent);
             ribbon->addTab(action())->addGroup(action())->addAction(action());
             return ribbon;
         }},
        {"RibbonTab", [](QWidget *parent) -> QObject * { return new RibbonTab(action(), parent); }},
        {"RibbonGroup",
         [](QWidget *parent) -> QObject * {
             auto *group = new RibbonGroup(action(), false, parent);
             group->addAction(action());
             return group;
         }},
        {"RibbonGroupObject",
         [](QWidget *parent) -> QObject * { return new RibbonGroupObject(action(), parent); }},
        {"RibbonButton", [](QWidget *parent) -> QObject * { return new RibbonButton(action(), parent); }},
        {"RibbonCheckBox", [](QWidget *parent) -> QObject * { return new RibbonCheckBox(action(), parent); }},
        {"RibbonLabel", [](QWidget *parent) -> QObject * { return new RibbonLabel(action(), parent); }},
        {"ToolBar", plain<ToolBar>},
        {"ToolBarButton", plain<ToolBarButton>},
        {"ToolBarGroup", [](QWidget *parent) -> QObject * { return new ToolBarGroup(action(), parent); }},
        {"ToolBarHiddenButton", plain<ToolBarHiddenButton>},
        {"ToolBarWidget", plain<ToolBarWidget>},
        {"TabBar", plain<TabBar>},
        {"SegmentedControl",
         [](QWidget *parent) -> QObject * {
             auto *control = new SegmentedControl(parent);
             control->addTab(QStringLiteral("Offen"));
             control->addTab(QStringLiteral("Erledigt"));
             return control;
         }},
        {"ZoomSlider", plain<ZoomSlider>},
        {"Dialog",
         [](QWidget *parent) -> QObject * {
             return new Dialog(parent, ElementDialog, Dialog::ButtonType::Ok | Dialog::ButtonType::Cancel,
                               Dialog::ButtonType::Ok, Dialog::NoFlag);
         }},
        {"DialogButton",
         [](QWidget *parent) -> QObject * { return new DialogButton(Icon(), DialogButton::Ok, parent); }},
        {"MessageBox",
         [](QWidget *parent) -> QObject * {
             return new MessageBox(QMessageBox::Information, QStringLiteral("Titel"), QStringLiteral("Text"),
                                   DialogButton::Ok, DialogButton::Ok, parent);
         }},
        {"SelectionMessageBoxBase",
         [](QWidget *parent) -> QObject * {
             return new SelectionMessageBoxBase(parent, QStringLiteral("Titel"), QStringLiteral("Frage"), {},
                                                DialogButton::Ok, QStringLiteral("Hilfe"));
         }},
        {"Flyout",
         [](QWidget *parent) -> QObject * { return new Flyout(parent, Flyout::CloseButton, parent); }},
        {"Accordion", plain<Accordion>},
        {"AccordionPart", plain<AccordionPart>},
        {"AccordionSimpleHeader",
         [](QWidget *parent) -> QObject * { return new AccordionSimpleHeader(nullptr, parent); }},
        {"AccordionIndicator",
         [](QWidget *parent) -> QObject * { return new AccordionIndicator(nullptr, parent); }},
        {"AccordionBoxIndicator", plain<AccordionBoxIndicator>},
        {"RecyclingList",
         [](QWidget *parent) -> QObject * {
             auto *list = new RecyclingList(parent);
             list->setAdapter(new Adapter(owner.get()));
             return list;
         }},
        {"GroupBox", plain<GroupBox>},
        {"InfoBox", plain<InfoBox>},
        {"ScrollArea", plain<ScrollArea>},
        {"ScrollAreaWithButton", plain<ScrollAreaWithButton>},
        {"ScrollBar", plain<ScrollBar>},
        {"ScrollButton", plain<ScrollButton>},
        {"ShadowSimple",
         [](QWidget *parent) -> QObject * { return new ShadowSimple(parent, parent, 3, 0.5, 0.0); }},
        {"LineEdit", plain<LineEdit>},
        {"NumericEdit", plain<NumericEdit>},
        {"DateEdit", plain<DateEdit>},
        {"PeriodEdit", plain<PeriodEdit>},
        {"TimeEdit", plain<TimeEdit>},
        {"ComboBox", plain<ComboBox>},
        {"LineEditWithButton",
         [](QWidget *parent) -> QObject * {
             auto *field = new LineEditWithButton(parent);
             field->setDataForCompleter(suggestions());
             return field;
         }},
        {"OverviewButtonBase", plain<OverviewButtonBase>},
        {"OverviewButton", plain<OverviewButton>},
        {"OverviewButton3Children", plain<OverviewButton3Children>},
        {"OverviewButtonWithWidget", plain<OverviewButtonWithWidget>},
        {"ExpandingOverviewButton", plain<ExpandingOverviewButton>},
        {"BottomSideButton", plain<BottomSideButton>},
        {"ExtraSearchResultButton", plain<ExtraSearchResultButton>},
        {"OverviewComboBox", plain<OverviewComboBox>},
    };
    return all;
}

} // namespace House
