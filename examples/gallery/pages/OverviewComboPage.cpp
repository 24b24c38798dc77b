#include "pages/OverviewComboPage.h"

#include "CommandIcons.h"
#include "pages/ForcedState.h"
#include "pages/PageSupport.h"

#include <nvo/Label.h>
#include <nvo/OverviewComboBox.h>

#include <QAbstractItemView>
#include <QGridLayout>
#include <QStandardItemModel>
#include <QVBoxLayout>

#include <array>

namespace {

constexpr int boxWidth = 510;
constexpr int listBorder = 1;
constexpr int picturedRows = 5; // at most
constexpr std::array<ForcedState::State, 4> states{ForcedState::Normal, ForcedState::Hover,
                                                   ForcedState::Focus, ForcedState::Disabled};

NVO::OverviewComboBox *makeBox()
{
    auto *box = new NVO::OverviewComboBox;
    box->setFixedWidth(boxWidth);
    return box;
}

void addClients(NVO::OverviewComboBox *box)
{
    const QIcon icon = commandIcon(CommandIcon::Bank);
    box->addItem(
        icon, QStringLiteral("<b>Muster GmbH</b>"), QStringLiteral("Wirtschaftsjahr 2026, SKR 03"),
        QStringLiteral(
            "D:\\Mandanten\\Muster GmbH\\Wirtschaftsjahr 2026\\Rechnungswesen\\Bestand\\Finanzbuchführung"));
    box->addItem(icon, QStringLiteral("<b>Bäckerei Sonnenschein</b>"),
                 QStringLiteral("Wirtschaftsjahr 2025/26, abweichend"),
                 QStringLiteral("D:\\Mandanten\\Sonnenschein\\2025"));
    box->addItem(
        icon, QStringLiteral("<b>Tischlerei Eiche &amp; Söhne</b>"),
        QStringLiteral("Wirtschaftsjahr 2026, <i>noch nicht eröffnet</i>"),
        QStringLiteral(
            "\\\\server\\daten\\Kanzlei\\Mandanten\\Eiche und Söhne OHG\\2026\\Bestand\\Rechnungswesen"));
    box->addActionItem(QStringLiteral("<b>Anderen Mandanten öffnen …</b>"));
    box->addActionItem(QStringLiteral("<b>Mandanten anlegen …</b>"));
}

void addTargets(NVO::OverviewComboBox *box)
{
    box->addItem(commandIcon(CommandIcon::Save), QStringLiteral("<b>Eigener Rechner</b>"),
                 QStringLiteral("Schnell, ohne Sicherung"), QString());
    box->addItem(commandIcon(CommandIcon::Export), QStringLiteral("<b>Rechenzentrum</b>"),
                 QStringLiteral("Jede Nacht gesichert"), QString());
    box->addItem(commandIcon(CommandIcon::Lock), QStringLiteral("<b>Archiv</b>"),
                 QStringLiteral("Nur mit Berechtigung"), QString());
    auto *model = qobject_cast<QStandardItemModel *>(box->model());
    model->item(2)->setEnabled(false);
}

void addTaxes(NVO::OverviewComboBox *box)
{
    const QIcon icon = commandIcon(CommandIcon::Totals);
    box->addItem(icon, QStringLiteral("Umsatzsteuer-Voranmeldung"), QString(), QString());
    box->addItem(icon, QStringLiteral("Zusammenfassende Meldung"), QString(), QString());
    box->addActionItem(QStringLiteral("Weitere Meldungen …"));
}

void addYears(NVO::OverviewComboBox *box)
{
    for (int year = 2026; year > 2006; --year)
        box->addItem(commandIcon(CommandIcon::Journal), QStringLiteral("<b>Journal %1</b>").arg(year),
                     QStringLiteral("%L1 Buchungen").arg((year * 7919) % 90000),
                     QStringLiteral("D:\\Mandanten\\Muster GmbH\\%1\\Journal").arg(year));
}

using Fill = void (*)(NVO::OverviewComboBox *);

/** A box with its list open, where the second row is under the mouse. */
QVBoxLayout *makeOpenPicture(Fill fill)
{
    NVO::OverviewComboBox *box = makeBox();
    fill(box);
    box->ensurePolished();
    QAbstractItemView *list = box->view();
    int height = 0;
    for (int row = 0; row < qMin(box->count(), picturedRows); ++row)
        height += list->sizeHintForRow(row);
    QWidget *frame = list->parentWidget();
    frame->setFixedSize(boxWidth, height + 2 * listBorder);
    list->setCurrentIndex(box->model()->index(1, 0));
    return makeOpenBox(box, frame);
}

} // namespace

OverviewComboPage::OverviewComboPage()
{
    addStates();
    addOpenLists();
    addTrial();
}

void OverviewComboPage::addStates()
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(4);
    grid->setRowMinimumHeight(2, 8); // between the two pairs of a caption and its box
    for (int i = 0; i < int(states.size()); ++i) {
        const ForcedState::State state = states.at(std::size_t(i));
        NVO::OverviewComboBox *box = makeBox();
        addClients(box);
        ForcedState::apply(box, state);
        const int row = i / 2 * 3;
        grid->addWidget(makeCaption(ForcedState::title(state)), row, i % 2);
        grid->addWidget(box, row + 1, i % 2);
    }
    grid->setColumnStretch(2, 1);
    addSection(QStringLiteral("Zustände"),
               QStringLiteral("Das geschlossene Feld zeigt den aktuellen Eintrag so, wie er in der Liste "
                              "steht. Das erste lässt sich bedienen."))
        ->addLayout(grid);
}

void OverviewComboPage::addOpenLists()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(24);
    row->addLayout(makeOpenPicture(addClients));
    row->addLayout(makeOpenPicture(addYears));
    row->addStretch();
    auto *shortLists = new QHBoxLayout;
    shortLists->setSpacing(24);
    shortLists->addLayout(makeOpenPicture(addTargets));
    shortLists->addLayout(makeOpenPicture(addTaxes));
    shortLists->addStretch();
    QVBoxLayout *card =
        addSection(QStringLiteral("Aufgeklappte Listen"),
                   QStringLiteral("Abbildungen: Pfade werden in der Mitte gekürzt; Zeilen ohne Symbol führen "
                                  "einen Befehl aus; ein Eintrag ist gesperrt."));
    card->addLayout(row);
    card->addSpacing(12);
    card->addLayout(shortLists);
}

void OverviewComboPage::addTrial()
{
    NVO::OverviewComboBox *box = makeBox();
    addClients(box);
    NVO::Label *answer = makeLabel(QStringLiteral("Noch kein Befehl gewählt"));
    connect(box, &NVO::OverviewComboBox::actionTriggered, answer, [box, answer](int index) {
        answer->setText(
            QStringLiteral("Gewählt: %1").arg(box->itemData(index, Qt::AccessibleTextRole).toString()));
    });
    auto *row = new QHBoxLayout;
    row->setSpacing(24);
    row->addWidget(box);
    row->addWidget(answer);
    row->addStretch();
    addSection(
        QStringLiteral("Zum Ausprobieren"),
        QStringLiteral("Ein Befehl wird ausgeführt und nie zum aktuellen Eintrag; Tastatur und Mausrad "
                       "gehen an Befehlen und gesperrten Einträgen vorbei."))
        ->addLayout(row);
}
