#include "Guards.h"
#include "TestCase.h"
#include "house/House.h"

#include "completer/CompleterProxyModel.h"
#include "containers/HalvedLayout.h"
#include "dialogs/WidgetResizeHandler.h"
#include "overview/SeparatorLine.h"

#include <QtTest>

#include <algorithm>
#include <functional>

using namespace House;

namespace {

/** Two objects that know each other; what neither of them owns belongs to the window or the owner. */
struct Couple
{
    QObject *one;
    QObject *other;
};

struct Row
{
    const char *name;
    Couple (*make)(QWidget *window);
};

template <typename Class>
Class *part(QObject *of, const char *name = nullptr)
{
    return of->findChild<Class *>(QString::fromLatin1(name));
}

/** A ribbon with a page, a group and a control of \a type. */
struct Strip
{
    explicit Strip(QWidget *window, Action::CommandType type = Action::CommandButton)
        : ribbon(new Ribbon(fileAction, window))
    {
        ribbon->resize(600, 120);
        tab = ribbon->addTab(tabAction);
        group = tab->addGroup(groupAction);
        controlAction->setControlType(type);
        control = group->addAction(controlAction);
        ribbon->addTab(action(QStringLiteral("Zweite")))->addGroup(action())->addAction(action());
    }

    Action *fileAction = action(QStringLiteral("Datei"));
    Action *tabAction = action(QStringLiteral("Erste"));
    Action *groupAction = action(QStringLiteral("Gruppe"));
    Action *controlAction = action(QStringLiteral("Buchen"));
    Ribbon *ribbon;
    RibbonTab *tab;
    RibbonGroup *group;
    QWidget *control;
};

Couple ribbonPopup(QWidget *window)
{
    auto *group = new RibbonGroup(action(), false, window);
    for (int i = 0; i < 4; ++i)
        group->addAction(action());
    group->setSizeMode(RibbonControl::Small, true);
    window->show();
    group->triggeredAction();
    return {group, part<RibbonGroup>(group)};
}

struct Column
{
    explicit Column(QWidget *window)
        : accordion(new Accordion(window))
    {
        accordion->resize(300, 200);
        for (AccordionPart *&each : parts) {
            each = new AccordionPart;
            each->setHeader(header = new AccordionSimpleHeader(each));
            each->setContent(content = new QPushButton(QStringLiteral("Inhalt")));
            accordion->addAccordionPart(each);
        }
        accordion->setStateAnimated(parts[1], AccordionState::Expanded);
    }

    Accordion *accordion;
    AccordionPart *parts[2];
    AccordionSimpleHeader *header;
    QWidget *content;
};

Flyout *flyout(QWidget *target, QWidget *window)
{
    auto *result =
        new Flyout(target, Flyout::FlyoutFlags(Flyout::AttachToTarget) | Flyout::CloseButton, window);
    result->setContent(new QPushButton(QStringLiteral("Inhalt")));
    window->show();
    result->show();
    return result;
}

Dialog *dialog(QWidget *window, QFlags<DialogButton::ButtonType> buttons = DialogButton::Ok)
{
    auto *result = new Dialog(window, ElementDialog, buttons, DialogButton::Ok, Dialog::NoFlag);
    result->setContent(new QPushButton(QStringLiteral("Inhalt")));
    return result;
}

template <typename Box>
Box *filled(Box *box)
{
    box->QComboBox::addItems({QStringLiteral("eins"), QStringLiteral("zwei")});
    return box;
}

Couple suggestionPopup(QWidget *window)
{
    auto *field = new LineEditWithButton(window);
    field->setDataForCompleter(suggestions());
    window->show();
    field->setUsername(QStringLiteral("M"));
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto popup = std::find_if(windows.begin(), windows.end(), [](const QWidget *each) {
        return each->isVisible() && each->inherits("NVO::Completer");
    });
    return {field, popup == windows.end() ? nullptr : *popup};
}

/** \a widget below a layout of the window, beside a button that stays. */
template <typename Class>
Class *placed(Class *widget, QWidget *window)
{
    if (!window->layout())
        (new QVBoxLayout(window))->addWidget(new QPushButton(QStringLiteral("Nachbar")));
    window->layout()->addWidget(widget);
    return widget;
}

template <typename Class>
Class *withMenu(QWidget *window)
{
    auto *button = new Class(window);
    auto *menu = new QMenu;
    menu->setParent(window, menu->windowFlags());
    menu->addAction(QStringLiteral("Eintrag"));
    button->setMenu(menu);
    return button;
}

template <typename Class>
Couple effectOf(QWidget *window)
{
    auto *widget = new Class(window);
    auto *effect = widget->graphicsEffect() ? widget->graphicsEffect() : createDefaultShadowEffectPixels();
    widget->setGraphicsEffect(effect);
    return {widget, effect};
}

const std::vector<Row> &rows()
{
    using W = QWidget;
    // clang-format off
    static const std::vector<Row> all{
        // Ribbon
        {"ribbon button, action", [](W *w) { const Strip s(w); return Couple{s.control, s.controlAction}; }},
        {"ribbon check box, action", [](W *w) { const Strip s(w, Action::CommandCheckBox); return Couple{s.control,
         s.controlAction}; }},
        {"ribbon label, action", [](W *w) { const Strip s(w, Action::CommandLabel); return Couple{s.control,
         s.controlAction}; }},
        {"ribbon group, action", [](W *w) { const Strip s(w); return Couple{s.group, s.groupAction}; }},
        {"ribbon group, action of its control", [](W *w) { const Strip s(w); return Couple{s.group, s.controlAction};
         }},
        {"ribbon group, control", [](W *w) { const Strip s(w); return Couple{s.group, s.control}; }},
        {"ribbon group, popup", ribbonPopup},
        {"ribbon group, control in its popup", [](W *w) { const Couple c = ribbonPopup(w); return Couple{c.one,
         static_cast<RibbonGroup *>(c.other)->visibleWidgets().value(1)}; }},
        {"ribbon tab, action", [](W *w) { const Strip s(w); return Couple{s.tab, s.tabAction}; }},
        {"ribbon tab, group", [](W *w) { const Strip s(w); return Couple{s.tab, s.group}; }},
        {"ribbon tab, group object", [](W *w) { const Strip s(w); return Couple{s.tab,
         s.tab->addGroupObject(action())}; }},
        {"ribbon tab, extra widget", [](W *w) { const Strip s(w); auto *extra = new
         QPushButton(QStringLiteral("Hilfe")); s.tab->addExtraWidget(extra); return Couple{s.tab, extra}; }},
        {"ribbon, tab", [](W *w) { const Strip s(w); return Couple{s.ribbon, s.tab}; }},
        {"ribbon, file action", [](W *w) { const Strip s(w); return Couple{s.ribbon, s.fileAction}; }},
        {"ribbon, file tab", [](W *w) { const Strip s(w); return Couple{s.ribbon, s.ribbon->addTab(s.fileAction)};
         }},
        {"ribbon, widget that had the focus", [](W *w) { const Strip s(w); auto *field = placed(new QLineEdit, w);
         w->show(); field->setFocus(); s.ribbon->toggleKeyfocus(); return Couple{s.ribbon, field}; }},
        {"group object, action", [](W *w) { auto *a = action(); return Couple{new RibbonGroupObject(a, w), a}; }},
        {"group object, control", [](W *w) { auto *o = new RibbonGroupObject(action(), w); return Couple{o,
         o->addAction(action())}; }},
        {"group layout, widget", [](W *w) { auto *layout = new RibbonGroupLayout(w); auto *widget = new
         RibbonButton(action(), w); layout->addWidget(widget); return Couple{layout, widget}; }},
        {"ribbon button, menu of its action", [](W *w) { const Strip s(w); auto *menu = new QMenu; menu->setParent(w,
         menu->windowFlags()); menu->addAction(QStringLiteral("Eintrag")); s.controlAction->setMenu(menu); return
         Couple{s.control, menu}; }},
        // Tool bars, tabs and zoom
        {"tool bar, action", [](W *w) { auto *b = new ToolBar(w); auto *a = action(); b->addAction(a); return
         Couple{b, a}; }},
        {"tool button, action", [](W *w) { auto *b = new ToolBarButton(w); auto *a = action();
         b->setDefaultAction(a); return Couple{b, a}; }},
        {"tool bar group, action", [](W *w) { auto *a = action(); return Couple{new ToolBarGroup(a, w), a}; }},
        {"tool bar widget, group", [](W *w) { auto *b = new ToolBarWidget(w); auto *g = b->addAction(action());
         b->addWidget(g); return Couple{b, g}; }},
        {"hidden button, menu", [](W *w) { auto *b = withMenu<ToolBarHiddenButton>(w); return Couple{b, b->menu()};
         }},
        {"segments, notification", [](W *w) { auto *control = new SegmentedControl(w);
         control->addTab(QStringLiteral("Offen")); control->addTab(QStringLiteral("Alle"));
         control->setNotification(1, QStringLiteral("3")); return Couple{control, control->tabButton(1,
         QTabBar::LeftSide) ? control->tabButton(1, QTabBar::LeftSide) : control->tabButton(1, QTabBar::RightSide)};
         }},
        {"zoom strip, menu", [](W *w) { auto *z = new ZoomSlider(w); return Couple{z, part<Link>(z)->menu()}; }},
        {"zoom strip, entry of its menu", [](W *w) { auto *z = new ZoomSlider(w); return Couple{z,
         part<Link>(z)->menu()->actions().last()}; }},
        // Flyout
        {"flyout, target", [](W *w) { auto *t = placed(new QPushButton, w); return Couple{flyout(t, w), t}; }},
        {"flyout, ancestor of its target", [](W *w) { auto *page = placed(new QWidget, w); return Couple{flyout(new
         QPushButton(page), w), page}; }},
        {"flyout without a parent, target", [](W *w) { auto *target = placed(new QPushButton, w); auto *result = new
         Flyout(target, Flyout::Sticky, nullptr); w->show(); result->show(); return Couple{result, target}; }},
        {"flyout, content", [](W *w) { auto *f = flyout(placed(new QPushButton, w), w); return Couple{f,
         f->content()}; }},
        {"flyout, close button", [](W *w) { auto *f = flyout(placed(new QPushButton, w), w); return Couple{f,
         part<Button>(f)}; }},
        // Accordion
        {"accordion, part", [](W *w) { const Column c(w); return Couple{c.accordion, c.parts[0]}; }},
        {"accordion, open part", [](W *w) { const Column c(w); return Couple{c.accordion, c.parts[1]}; }},
        {"part, next part", [](W *w) { const Column c(w); return Couple{c.parts[0], c.parts[1]}; }},
        {"part, header", [](W *w) { const Column c(w); return Couple{c.parts[1], c.header}; }},
        {"part, content", [](W *w) { const Column c(w); return Couple{c.parts[1], c.content}; }},
        {"part, indicator elsewhere", [](W *w) { const Column c(w); return Couple{c.parts[1], new
         AccordionIndicator(c.parts[1], w)}; }},
        {"part, header elsewhere", [](W *w) { const Column c(w); return Couple{c.parts[1], new
         AccordionSimpleHeader(c.parts[1], w)}; }},
        {"accordion header, left label", [](W *w) { const Column c(w); return Couple{c.header,
         c.header->leftLabel()}; }},
        {"accordion header, right label", [](W *w) { const Column c(w); return Couple{c.header,
         c.header->rightLabel()}; }},
        // Containers
        {"list, adapter", [](W *w) { auto *l = new RecyclingList(w); auto *a = new Adapter(owner.get());
         l->setAdapter(a); return Couple{l, a}; }},
        {"list, item", [](W *w) { auto *list = new RecyclingList(w); list->resize(300, 200); list->setAdapter(new
         Adapter(owner.get())); w->show(); QCoreApplication::processEvents(); return Couple{list,
         list->visibleWidget(2)}; }},
        {"flow layout, widget", [](W *w) { auto *l = new FlowLayout(w, 0, 4, 4); auto *b = new QPushButton;
         l->addWidget(b); return Couple{l, b}; }},
        {"halved layout, widget", [](W *w) { auto *l = new HalvedLayout(w); auto *b = new QPushButton;
         l->setWidgets(b, new QPushButton); return Couple{l, b}; }},
        {"group box, legend", [](W *w) { auto *g = new GroupBox(w); auto *l = new QLabel(g); g->setLegend(l); return
         Couple{g, l}; }},
        {"group box, field in a row", [](W *w) { auto *box = new GroupBox(w); auto *column = new QVBoxLayout(box);
         auto *row = new QHBoxLayout; column->addLayout(row); auto *field = new QLineEdit; row->addWidget(field);
         return Couple{box, field}; }},
        {"info box, additional widget", [](W *w) { auto *i = new InfoBox(w); auto *b = new QPushButton;
         i->setAdditionalWidget(b); return Couple{i, b}; }},
        {"scroll area, widget", [](W *w) { auto *a = new ScrollArea(w); auto *b = new QPushButton; a->setWidget(b);
         return Couple{a, b}; }},
        {"buttoned area, widget", [](W *w) { auto *a = new ScrollAreaWithButton(w); auto *b = new QPushButton;
         b->setMinimumHeight(900); a->setWidget(b); return Couple{a, b}; }},
        {"buttoned area, top button", [](W *w) { auto *a = new ScrollAreaWithButton(w); return Couple{a,
         a->topScrollButton()}; }},
        {"buttoned area, bottom button", [](W *w) { auto *a = new ScrollAreaWithButton(w); return Couple{a,
         a->bottomScrollButton()}; }},
        {"scroll button, area", [](W *w) { auto *a = placed(new QScrollArea, w); return Couple{new ScrollButton(a),
         a}; }},
        {"shadow, target", [](W *w) { auto *t = placed(new QPushButton, w); return Couple{new ShadowSimple(t, w, 3,
         0.5, 0), t}; }},
        {"shadow, host", [](W *w) { auto *h = placed(new QFrame, w); auto *s = new ShadowSimple(h, h, 3, 0.5, 0);
         s->useDropShadow(3); return Couple{s, h}; }},
        // Dialogs
        {"dialog, content", [](W *w) { auto *d = dialog(w); return Couple{d, d->content()}; }},
        {"dialog, button", [](W *w) { auto *d = dialog(w); return Couple{d, part<DialogButton>(d)}; }},
        {"dialog, parent", [](W *w) { auto *p = placed(new QWidget, w); return Couple{dialog(p), p}; }},
        {"dialog, extra widget", [](W *w) { auto *d = dialog(w); auto *e = new QCheckBox;
         d->setExtraActionBarWidget(e); return Couple{d, e}; }},
        {"dialog, resize handler", [](W *w) { auto *d = dialog(w); return Couple{d, part<WidgetResizeHandler>(d)};
         }},
        {"message box, button", [](W *w) { auto *box = new MessageBox(QMessageBox::Question, QStringLiteral("T"),
         QStringLiteral("Frage?"), DialogButton::ButtonTypes(DialogButton::Yes) | DialogButton::No,
         DialogButton::Yes, w); return Couple{box, part<DialogButton>(box)}; }},
        {"resize handler, widget", [](W *w) { auto *f = placed(new QFrame, w); return Couple{new
         WidgetResizeHandler(f), f}; }},
        // Editors
        {"field with button, popup", suggestionPopup},
        {"field, completer", [](W *w) { auto *f = new LineEdit(w); auto *c = new QCompleter({QStringLiteral("a")},
         w); f->setCompleter(c); return Couple{f, c}; }},
        {"field, key filter", [](W *w) { auto *f = new LineEdit(w); auto *k = new KeyEventFilter;
         f->installEventFilter(k); return Couple{f, k}; }},
        {"field, Caps Lock filter", [](W *w) { auto *f = new LineEdit(w); auto *k = new CapsLockEventFilter;
         f->installEventFilter(k); return Couple{f, k}; }},
        {"line edit, shadow", effectOf<LineEdit>},
        {"number, shadow", effectOf<NumericEdit>},
        {"combo box, shadow", effectOf<ComboBox>},
        {"button, shadow", effectOf<Button>},
        {"tile, shadow", effectOf<OverviewButton>},
        {"combo box, model", [](W *w) { auto *b = filled(new ComboBox(w)); auto *m = new
         QStringListModel({QStringLiteral("a")}, w); b->setModel(m); return Couple{b, m}; }},
        {"combo box, view", [](W *w) { auto *b = filled(new ComboBox(w)); auto *v = new QListView; b->setView(v);
         return Couple{b, v}; }},
        {"large combo box, model", [](W *w) { auto *b = filled(new OverviewComboBox(w)); auto *m = new
         QStringListModel({QStringLiteral("a")}, w); b->setModel(m); return Couple{b, m}; }},
        {"large combo box, delegate", [](W *w) { auto *b = filled(new OverviewComboBox(w)); return Couple{b,
         b->itemDelegate()}; }},
        {"suggestions, their filter", [](W *w) { auto *source = new CompleterSourceModel(suggestions(), w); auto
         *proxy = new CompleterProxyModel(w); proxy->setSourceModel(source); return Couple{proxy, source}; }},
        // Labels, buttons and tiles
        {"label, buddy", [](W *w) { auto *l = new Label(QStringLiteral("&Name"), w); auto *b = placed(new QLineEdit,
         w); l->setBuddy(b); return Couple{l, b}; }},
        {"link, menu", [](W *w) { auto *b = withMenu<Link>(w); return Couple{b, b->menu()}; }},
        {"button, menu", [](W *w) { auto *b = withMenu<Button>(w); return Couple{b, b->menu()}; }},
        {"icon button, button group", [](W *w) { auto *b = new IconButton(w); b->setCheckable(true); auto *g = new
         QButtonGroup(w); g->addButton(b); return Couple{b, g}; }},
        {"toggle, button group", [](W *w) { auto *b = new RadioToggle(w); auto *g = new QButtonGroup(w);
         g->addButton(b); return Couple{b, g}; }},
        {"toggle, action beside it", [](W *w) { auto *t = new PixmapToggle(w); auto *a = action();
         a->setCheckable(true); QObject::connect(t, &QCheckBox::toggled, a, &QAction::setChecked); return Couple{t,
         a}; }},
        {"separator line, tile", [](W *w) { auto *t = placed(new OverviewButton, w); return Couple{placed(new
         SeparatorLine({t}, w), w), t}; }},
        {"tile with widget, tile", [](W *w) { auto *t = new OverviewButtonWithWidget(w); return Couple{t,
         part<OverviewButton>(t)}; }},
        {"tile with widget, check box", [](W *w) { auto *t = new OverviewButtonWithWidget(w); return Couple{t,
         part<CheckBox>(t)}; }},
        {"expanding tile, target", [](W *w) { auto *t = new ExpandingOverviewButton(w); return Couple{t,
         t->setPaths({{QStringLiteral("a"), {}}, {QStringLiteral("b"), {}}})[0]}; }},
        {"shared action, parent", [](W *w) { auto *p = placed(new QWidget, w); return
         Couple{ActionFactory::instance().createAction(QStringLiteral("tod"), p), p}; }},
        {"action, window", [](W *w) { auto *p = placed(new QWidget, w); auto *a = action(); p->addAction(a); return
         Couple{a, p}; }},
    };
    // clang-format on
    return all;
}

bool killable = true; // whether a widget of Qt's own survives its death in what goes on

/** Knows which signals an object has sent, and lets another one die at the first of one of them. */
class Spy : public QObject
{
public:
    Spy(QObject *object, QString deadly, QObject *victim)
        : m_object(object->metaObject())
        , m_deadly(std::move(deadly))
        , m_victim(victim)
    {
        for (int i = QObject::staticMetaObject.methodCount(); i < m_object->methodCount(); ++i)
            if (m_object->method(i).methodType() == QMetaMethod::Signal)
                QMetaObject::connect(object, i, this, QObject::staticMetaObject.methodCount() + i);
    }
    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override
    {
        id = QObject::qt_metacall(call, id, arguments);
        if (id < 0 || call != QMetaObject::InvokeMetaMethod)
            return id;
        const QString name = QString::fromLatin1(m_object->method(id).methodSignature());
        seen.insert(name);
        if (name == m_deadly && m_victim)
            survives(id) ? delete m_victim : m_victim->deleteLater();
        return -1;
    }

    QSet<QString> seen;

private:
    /** Whether the sender may die in this signal: in few of Qt's, and never while the focus moves. */
    bool survives(int signal) const
    {
        static const QRegularExpression focus(QStringLiteral("^(focusInOut|styleState|checkBoxToggled)"));
        static const QRegularExpression own(QStringLiteral("^(clicked|pressed|released|accepted|rejected)"));
        const QMetaObject *declaring = m_object;
        while (signal < declaring->methodOffset())
            declaring = declaring->superClass();
        const bool isQts = !QByteArray(declaring->className()).startsWith("NVO::");
        return killable && !qobject_cast<QMenu *>(m_victim)
               && (isQts ? m_deadly.contains(own) : !m_deadly.contains(focus));
    }

    const QMetaObject *m_object;
    QString m_deadly;
    QPointer<QObject> m_victim;
};

void deliver()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

/** What a user and an application do to a widget. */
void use(const QPointer<QWidget> &widget)
{
    const auto step = [&](const std::function<void()> &function, bool survivable = true) {
        const QScopedValueRollback<bool> guard(killable, survivable);
        if (widget)
            function();
        deliver();
    };
    QEvent enter(QEvent::Enter);
    QEvent leave(QEvent::Leave);
    QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    step([&] { QCoreApplication::sendEvent(widget, &enter); });
    step([&] { QCoreApplication::sendEvent(widget, &wheel); });
    step([&] { widget->setFocus(Qt::TabFocusReason); }, false);
    step([&] { QTest::mousePress(widget, Qt::LeftButton); });
    step([&] { QTest::mouseMove(widget, {2, 2}); });
    step([&] { QTest::mouseRelease(widget, Qt::LeftButton); });
    for (const Qt::Key key : {Qt::Key_1, Qt::Key_Down, Qt::Key_Space, Qt::Key_Return, Qt::Key_Tab})
        for (const QTest::KeyAction action : {QTest::Press, QTest::Release})
            step([&] { QTest::sendKeyEvent(action, widget, key, QString(QChar(key)), Qt::NoModifier); });
    step([&] { QCoreApplication::sendEvent(widget, &leave); });
    step([&] { widget->setEnabled(false); }, false);
    step([&] { widget->setEnabled(true); }, false);
    step([&] { widget->resize(widget->size() + QSize(20, 10)); }, false);
    step([&] { widget->updateGeometry(); });
}

/** Does \a steps to an object of a class, as long as it lives. */
template <typename Class>
void each(const QPointer<QObject> &object, std::initializer_list<void (*)(Class *)> steps)
{
    for (const auto &step : steps) {
        if (auto *target = qobject_cast<Class *>(object))
            step(target);
        deliver();
    }
}

/** What an application does to any object. */
void poke(const QPointer<QObject> &object)
{
    each<QAction>(object, {[](QAction *a) { a->setText(a->text() + QLatin1Char('!')); },
                           [](QAction *a) { a->setEnabled(false); }, [](QAction *a) { a->setVisible(false); },
                           [](QAction *a) { a->setVisible(true); }, [](QAction *a) { a->setEnabled(true); },
                           [](QAction *a) { a->trigger(); }});
    each<QAbstractItemModel>(object, {[](QAbstractItemModel *m) { m->insertRow(0); },
                                      [](QAbstractItemModel *m) { m->removeRow(0); }});
    each<RecyclingList>(object, {[](RecyclingList *l) { l->slotEnsureVisible(15); },
                                 [](RecyclingList *l) { l->slotUpdateAll(); }});
    each<RecyclingListAdapter>(object,
                               {[](RecyclingListAdapter *a) { Q_EMIT a->signalUpdateRecyclingListAll(); }});
    each<AccordionPart>(object, {[](AccordionPart *p) { p->animateToggle(100); },
                                 [](AccordionPart *p) { p->setState(AccordionState::Hidden); }});
    each<Ribbon>(object, {[](Ribbon *r) { r->showKeytips(); }, [](Ribbon *r) { r->setCurrentIndex(1); },
                          [](Ribbon *r) { r->toggleKeyfocus(); }, [](Ribbon *r) { r->setCurrentIndex(0); }});
    each<QAbstractScrollArea>(object, {[](QAbstractScrollArea *a) { a->verticalScrollBar()->setValue(10); }});
    each<QComboBox>(object,
                    {[](QComboBox *b) { b->showPopup(); }, [](QComboBox *b) { b->setCurrentIndex(1); },
                     [](QComboBox *b) { b->hidePopup(); }});
    each<ZoomSlider>(object, {[](ZoomSlider *z) { z->setValue(z->value() + 1); },
                              [](ZoomSlider *z) { z->setPageZoom(70); },
                              [](ZoomSlider *z) { z->setZoomLevels({20}); }});
    each<QAbstractButton>(object, {[](QAbstractButton *b) { b->click(); }});
    each<LineEditWithButton>(object, {[](LineEditWithButton *f) { f->setUsername(QStringLiteral("M")); },
                                      [](LineEditWithButton *f) { f->showCompleter(); }});
    each<Dialog>(object, {[](Dialog *d) { d->setButtonText(DialogButton::Ok, QStringLiteral("Gut")); },
                          [](Dialog *d) { d->setDefaultButton(DialogButton::Ok); }});
}

/** Both of the couple and all around them. */
void stir(QWidget *window, const QPointer<QObject> &one, const QPointer<QObject> &other)
{
    window->show();
    deliver();
    for (const QPointer<QObject> &object : {one, other}) {
        poke(object);
        deliver();
        if (auto *widget = qobject_cast<QWidget *>(object)) {
            widget->show();
            use(widget);
            const QList<QWidget *> children =
                object ? object->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)
                       : QList<QWidget *>();
            for (const QPointer<QWidget> &child : QList<QPointer<QWidget>>(children.begin(), children.end()))
                use(child);
        }
    }
    use(window);
    Css::instance().setFontDelta(Css::instance().fontDelta() ? 0 : 2);
    Css::instance().reset();
    QEvent style(QEvent::StyleChange);
    QCoreApplication::sendEvent(window, &style);
    for (const QPointer<QObject> &object : {one, other})
        poke(object);
    window->resize(500, 400);
    QTest::qWait(1);
    deliver();
}

} // namespace

/** Objects that know each other die in every order, and in each other's signals. */
class TestDeaths : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void couples_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<bool>("swapped");
        for (size_t i = 0; i < rows().size(); ++i)
            for (const bool swapped : {false, true})
                QTest::addRow("%s: the %s dies", rows()[i].name, swapped ? "second" : "first")
                    << int(i) << swapped;
    }

    void couples()
    {
        live(QString(), false); // first of all things
        QSet<QString> signalsSeen = live(QStringLiteral("none"), true);
        for (const QString &deadly : qAsConst(signalsSeen))
            live(deadly, true);
    }

private:
    /**
     * Lets one of the couple die before all else, or in the signal \a deadly of the other.
     * Returns the signals that the survivor has sent.
     */
    QSet<QString> live(const QString &deadly, bool inSignal)
    {
        QFETCH(int, row);
        QFETCH(bool, swapped);
        const FontDeltaGuard delta;
        QTimer closer; // menus run loops of their own
        connect(&closer, &QTimer::timeout, &closer, [] {
            if (QWidget *popup = QApplication::activePopupWidget())
                popup->close();
        });
        closer.start(0);
        owner = std::make_unique<QObject>();
        QWidget window;
        window.resize(640, 400);
        const Couple couple = rows()[size_t(row)].make(&window);
        const QPointer<QObject> victim = swapped ? couple.other : couple.one;
        const QPointer<QObject> survivor = swapped ? couple.one : couple.other;
        if (!victim || !survivor) {
            QTest::qFail("there is no couple", __FILE__, __LINE__);
            return {};
        }
        Spy spy(survivor, deadly, victim);
        if (!inSignal)
            delete victim;
        stir(&window, survivor, victim);
        delete victim;
        stir(&window, survivor, nullptr);
        delete survivor;
        return spy.seen;
    }

    const Theme m_theme;
};

QTEST_MAIN(TestDeaths)
#include "tst_deaths.moc"
