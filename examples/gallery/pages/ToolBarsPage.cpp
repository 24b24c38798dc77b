#include "pages/ToolBarsPage.h"

#include "CommandIcons.h"
#include "pages/ForcedState.h"
#include "pages/PageSupport.h"

#include <nvo/Button.h>
#include <nvo/Label.h>
#include <nvo/ToolBar.h>
#include <nvo/ToolBarButton.h>
#include <nvo/ToolBarGroup.h>
#include <nvo/ToolBarHiddenButton.h>
#include <nvo/ToolBarWidget.h>

#include <QGridLayout>
#include <QMenu>
#include <QShowEvent>
#include <QVBoxLayout>

#include <array>

namespace {

constexpr int unread = 12;
constexpr std::array<ForcedState::State, 5> states{
    ForcedState::Normal, ForcedState::Hover, ForcedState::Pressed, ForcedState::Focus, ForcedState::Disabled};

NVO::ToolBarButton *makeButton(const QString &text, const QIcon &icon, const QString &badge = QString())
{
    auto *button = new NVO::ToolBarButton;
    button->setText(text);
    button->setIcon(icon);
    button->setBadge(badge);
    return button;
}

NVO::ToolBarButton *makeButton(const QString &text, CommandIcon icon, const QString &badge = QString())
{
    return makeButton(text, commandIcon(icon), badge);
}

NVO::ToolBarButton *makeMenuButton(const QString &text, CommandIcon icon, const QStringList &entries)
{
    NVO::ToolBarButton *button = makeButton(text, icon);
    auto *menu = new QMenu(button);
    for (const QString &entry : entries)
        menu->addAction(entry);
    button->setMenu(menu);
    button->setPopupMode(QToolButton::InstantPopup);
    button->setArrowType(Qt::DownArrow);
    return button;
}

/** Boxes stand in one line, whatever the lines of text below them. */
Qt::Alignment alignmentOf(const QWidget *control)
{
    return qobject_cast<const NVO::ToolBarButton *>(control) ? Qt::AlignTop : Qt::AlignVCenter;
}

/** A large button takes the mouse in its box only, so a held one is pressed by hand. */
void hold(QAbstractButton *button, ForcedState::State state)
{
    if (state != ForcedState::Pressed || !qobject_cast<NVO::ToolBarButton *>(button)) {
        ForcedState::apply(button, state);
        return;
    }
    button->setAttribute(Qt::WA_TransparentForMouseEvents);
    button->setFocusPolicy(Qt::NoFocus);
    button->setDown(true);
}

void addGroup(NVO::ToolBarWidget *bar, const QString &name, const QList<QWidget *> &controls)
{
    NVO::ToolBarGroup *group = bar->addAction(new QAction(name, bar));
    group->setAccessibleName(name);
    for (QWidget *control : controls)
        static_cast<QHBoxLayout *>(group->layout())->addWidget(control, 0, alignmentOf(control));
    bar->addWidget(group);
}

NVO::ToolBarHiddenButton *makeHiddenButton()
{
    auto *button = new NVO::ToolBarHiddenButton;
    button->setText(QStringLiteral("»"));
    button->setToolTip(QStringLiteral("Weitere Befehle"));
    button->setAccessibleName(button->toolTip());
    auto *menu = new QMenu(button);
    for (const QString &entry :
         {QStringLiteral("Kassenbuch"), QStringLiteral("Anlagen"), QStringLiteral("Monat festschreiben …")})
        menu->addAction(entry);
    button->setMenu(menu);
    return button;
}

struct Command
{
    const char *text;
    CommandIcon icon;
};

constexpr std::array commands{Command{"Beleg erfassen", CommandIcon::New},
                              Command{"Beleg suchen", CommandIcon::Open},
                              Command{"Konten prüfen", CommandIcon::Balance},
                              Command{"Offene Posten", CommandIcon::OpenItems},
                              Command{"Zahlung buchen", CommandIcon::Bank},
                              Command{"Mahnung drucken", CommandIcon::Reminder},
                              Command{"Summen und Salden", CommandIcon::Totals},
                              Command{"Journal", CommandIcon::Journal},
                              Command{"Monat sperren", CommandIcon::Lock},
                              Command{"Kasse", CommandIcon::Cash},
                              Command{"Beleg drucken", CommandIcon::Print},
                              Command{"Anlage anhängen", CommandIcon::Attach},
                              Command{"Beleg scannen", CommandIcon::Scan},
                              Command{"Neue Gutschrift", CommandIcon::CreditNote},
                              Command{"BWA", CommandIcon::Chart},
                              Command{"Steuer prüfen", CommandIcon::Check},
                              Command{"Daten senden", CommandIcon::Export},
                              Command{"Liste leeren", CommandIcon::Remove},
                              Command{"Tasten", CommandIcon::Keyboard}};

/** A bar with the first commands; one is checked and one cannot be used now. */
NVO::ToolBar *makeCommandBar(int count, int width)
{
    auto *bar = new NVO::ToolBar;
    bar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    bar->setIconSize(QSize(16, 16));
    for (int i = 0; i < count; ++i) {
        const Command &command = commands.at(std::size_t(i));
        auto *action = new QAction(commandIcon(command.icon), QString::fromUtf8(command.text), bar);
        action->setCheckable(i == 3);
        action->setChecked(i == 3);
        action->setEnabled(i != 5);
        bar->addAction(action);
    }
    bar->setFixedWidth(width);
    return bar;
}

} // namespace

ToolBarsPage::ToolBarsPage()
{
    addApplication();
    addStates();
    addWidths();
}

/** The held focus is seen like one that the keyboard has moved. */
void ToolBarsPage::showEvent(QShowEvent *event)
{
    window()->setAttribute(Qt::WA_KeyboardFocusChange);
    Page::showEvent(event);
}

void ToolBarsPage::addApplication()
{
    auto *bar = new NVO::ToolBarWidget;
    bar->setMovable(false);
    NVO::ToolBarButton *inbox = makeButton(QStringLiteral("Posteingang"),
                                           themeImage(QStringLiteral("inbox_16")), QString::number(unread));
    NVO::ToolBarButton *filter = makeButton(QStringLiteral("Nur eigene<br>Mandanten"), CommandIcon::Check);
    filter->setCheckable(true);
    filter->setChecked(true);
    NVO::ToolBarButton *lock = makeButton(QStringLiteral("Monat fest-<br>schreiben"), CommandIcon::Lock);
    lock->setEnabled(false);
    addGroup(
        bar, QStringLiteral("Post"),
        {inbox,
         makeButton(QStringLiteral("Aufgaben"), themeImage(QStringLiteral("tasks_16")), QStringLiteral("3")),
         makeButton(QStringLiteral("Mahnungen"), CommandIcon::Reminder, QStringLiteral("27"))});
    addGroup(bar, QStringLiteral("Beleg"),
             {makeMenuButton(QStringLiteral("Neuer<br>Beleg"), CommandIcon::New,
                             {QStringLiteral("Ausgangsrechnung"), QStringLiteral("Gutschrift"),
                              QStringLiteral("Kassenbeleg")}),
              makeButton(QStringLiteral("Öffnen"), CommandIcon::Open),
              makeButton(QStringLiteral("Speichern"), CommandIcon::Save),
              makeButton(QStringLiteral("Drucken"), CommandIcon::Print)});
    addGroup(bar, QStringLiteral("Buchen"),
             {makeButton(QStringLiteral("Rechnung<br>erfassen"), CommandIcon::Invoice),
              makeMenuButton(QStringLiteral("Auswertung"), CommandIcon::Chart,
                             {QStringLiteral("BWA"), QStringLiteral("Summen und Salden")}),
              filter, lock});
    bar->addWidget(makeHiddenButton());

    QVBoxLayout *section = addSection(
        QStringLiteral("Leiste einer Anwendung"),
        QStringLiteral("Große Schaltflächen in Gruppen, mit Zählern und Menüs. Nur das Kästchen "
                       "reagiert auf die Maus; der letzte Knopf hält bereit, wofür kein Platz ist."));
    section->addWidget(bar);
    addCounting(section, inbox);
}

void ToolBarsPage::addCounting(QLayout *section, NVO::ToolBarButton *inbox)
{
    auto *row = new QHBoxLayout;
    auto *arrive = new NVO::Button;
    arrive->setText(QStringLiteral("Nachricht empfangen"));
    auto *read = new NVO::Button;
    read->setText(QStringLiteral("Alle gelesen"));
    row->addWidget(arrive);
    row->addWidget(read);
    row->addStretch();
    static_cast<QVBoxLayout *>(section)->addLayout(row);
    connect(arrive, &NVO::Button::clicked, inbox, [inbox] { inbox->setCounter(inbox->badge().toInt() + 1); });
    connect(read, &NVO::Button::clicked, inbox, [inbox] { inbox->setCounter(-1); });
}

void ToolBarsPage::addStates()
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(12);
    const auto makeSamples = [] {
        NVO::ToolBarButton *checked = makeButton(QStringLiteral("gewählt"), CommandIcon::Check);
        checked->setCheckable(true);
        checked->setChecked(true);
        return QList<QAbstractButton *>{
            makeButton(QStringLiteral("Speichern"), CommandIcon::Save),
            makeMenuButton(QStringLiteral("Neuer<br>Beleg"), CommandIcon::New, {QStringLiteral("Rechnung")}),
            makeButton(QStringLiteral("Posteingang"), themeImage(QStringLiteral("inbox_16")),
                       QStringLiteral("12")),
            makeButton(QStringLiteral("Offene<br>Rechnungen"), CommandIcon::OpenItems, QStringLiteral("48")),
            checked,
            makeHiddenButton()};
    };
    for (int row = 0; row < int(states.size()); ++row) {
        const ForcedState::State state = states.at(std::size_t(row));
        grid->addWidget(makeCaption(ForcedState::title(state)), row, 0, Qt::AlignVCenter);
        const QList<QAbstractButton *> samples = makeSamples();
        for (int column = 0; column < samples.size(); ++column) {
            QAbstractButton *sample = samples.at(column);
            hold(sample, state);
            grid->addWidget(sample, row, column + 1, Qt::AlignHCenter | alignmentOf(sample));
            grid->setColumnStretch(column + 1, 1);
        }
    }
    addSection(
        QStringLiteral("Zustände"),
        QStringLiteral("Der Rahmen des Fokus erscheint, sobald ihn die Tastatur bewegt. Unter der Maus "
                       "bleibt eine große Schaltfläche, wie sie ist."))
        ->addLayout(grid);
}

void ToolBarsPage::addWidths()
{
    QVBoxLayout *section = addSection(
        QStringLiteral("Texte nach Platz"),
        QStringLiteral("Unter 1100 Pixeln, oder mit mehr als 18 Befehlen, bricht ein Text am letzten "
                       "Leerzeichen um."));
    section->addLayout(
        withCaption(makeCommandBar(8, 1100), QStringLiteral("8 Befehle, 1100 Pixel: eine Zeile")));
    section->addLayout(
        withCaption(makeCommandBar(8, 820), QStringLiteral("8 Befehle, 820 Pixel: zwei Zeilen")));
    section->addLayout(
        withCaption(makeCommandBar(8, 420), QStringLiteral("8 Befehle, 420 Pixel: der Rest im Menü")));
    section->addLayout(
        withCaption(makeCommandBar(19, 1400), QStringLiteral("19 Befehle, 1400 Pixel: zwei Zeilen")));
}
