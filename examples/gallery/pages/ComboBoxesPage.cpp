#include "pages/ComboBoxesPage.h"

#include "pages/ForcedState.h"
#include "pages/PageSupport.h"

#include <nvo/CheckBox.h>
#include <nvo/ComboBox.h>
#include <nvo/Label.h>

#include <QAbstractItemView>
#include <QGridLayout>
#include <QMetaEnum>
#include <QStringListModel>
#include <QVBoxLayout>

#include <array>

namespace {

constexpr int listWidth = 300;
constexpr int listBorder = 1;
constexpr int journalRows = 100000;
constexpr std::array<ForcedState::State, 4> states{ForcedState::Normal, ForcedState::Hover,
                                                   ForcedState::Focus, ForcedState::Disabled};

using Style = NVO::ComboBox::ComboBoxStyle;

QString keyOf(Style style)
{
    return QString::fromLatin1(QMetaEnum::fromType<Style>().valueToKey(style));
}

NVO::ComboBox *makeBox(Style style = NVO::ComboBox::Normal)
{
    auto *box = new NVO::ComboBox;
    box->setComboBoxStyle(style);
    box->addItems({QStringLiteral("19 % Umsatzsteuer"), QStringLiteral("7 % Umsatzsteuer"),
                   QStringLiteral("0 % Photovoltaik"), QStringLiteral("Steuerfrei nach § 4 UStG"),
                   QStringLiteral("Innergemeinschaftliche Lieferung")});
    return box;
}

NVO::ComboBox *makeBigBox()
{
    auto *box = new NVO::ComboBox;
    box->setComboBoxSize(NVO::ComboBox::SizeBig);
    box->addItem(themeImage(QStringLiteral("information")), QStringLiteral("Zur Prüfung"));
    box->addItem(themeImage(QStringLiteral("question")), QStringLiteral("Rückfrage"));
    box->addItem(themeImage(QStringLiteral("warning")), QStringLiteral("Unvollständig"));
    return box;
}

NVO::ComboBox *makeReadOnly(NVO::ComboBox *box)
{
    box->setReadOnly(true);
    return box;
}

NVO::ComboBox *makeJournalBox(int count)
{
    QStringList journal;
    journal.reserve(count);
    for (int i = 1; i <= count; ++i)
        journal.append(QStringLiteral("Buchung %1").arg(i));
    auto *box = new NVO::ComboBox;
    box->setModel(new QStringListModel(journal, box));
    return box;
}

/** \a box as it looks with its list open, where \a rows of it are to be seen. */
QVBoxLayout *makeOpenPicture(NVO::ComboBox *box, int rowHeight, int rows)
{
    QAbstractItemView *list = box->view();
    list->setFixedSize(listWidth, rows * rowHeight + 2 * listBorder);
    list->setCurrentIndex(box->model()->index(1, 0));
    box->setFixedWidth(listWidth);
    return makeOpenBox(box, list);
}

} // namespace

ComboBoxesPage::ComboBoxesPage()
{
    addMatrix();
    addSizes();
    addOpenLists();
    addTrial();
}

void ComboBoxesPage::addMatrix()
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(12);
    for (int column = 0; column < int(states.size()); ++column) {
        grid->addWidget(makeCaption(ForcedState::title(states.at(std::size_t(column)))), 0, column + 1);
        grid->setColumnStretch(column + 1, 1);
    }
    grid->addWidget(makeCaption(QStringLiteral("Nur lesbar")), 0, int(states.size()) + 1);
    grid->setColumnStretch(int(states.size()) + 1, 1);
    for (const Style style : {NVO::ComboBox::Normal, NVO::ComboBox::Error, NVO::ComboBox::Info,
                              NVO::ComboBox::VaSt, NVO::ComboBox::NoBorder}) {
        const int row = grid->rowCount();
        grid->addWidget(makeLabel(keyOf(style), NVO::Font::DEFAULT, LabelRole::Name), row, 0);
        for (int column = 0; column < int(states.size()); ++column) {
            NVO::ComboBox *box = makeBox(style);
            ForcedState::apply(box, states.at(std::size_t(column)));
            grid->addWidget(box, row, column + 1);
        }
        grid->addWidget(makeReadOnly(makeBox(style)), row, int(states.size()) + 1);
    }
    addSection(QStringLiteral("Fünf Stile"),
               QStringLiteral("Die Felder der Spalte „Normal“ lassen sich bedienen; die anderen Spalten "
                              "zeigen einen festgehaltenen Zustand."))
        ->addLayout(grid);
}

void ComboBoxesPage::addSizes()
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(12);
    for (int column = 0; column < int(states.size()); ++column) {
        const ForcedState::State state = states.at(std::size_t(column));
        NVO::ComboBox *box = makeBigBox();
        ForcedState::apply(box, state);
        grid->addWidget(makeCaption(ForcedState::title(state)), 0, column);
        grid->addWidget(box, 1, column);
    }
    grid->addWidget(makeCaption(QStringLiteral("Nur lesbar")), 0, int(states.size()));
    grid->addWidget(makeReadOnly(makeBigBox()), 1, int(states.size()));
    addSection(QStringLiteral("Große Auswahl"),
               QStringLiteral("Mit Symbolen von 24 Pixeln, im Feld und in der Liste."))
        ->addLayout(grid);
}

void ComboBoxesPage::addOpenLists()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(24);
    row->addLayout(makeOpenPicture(makeBox(), 25, 5));
    row->addLayout(makeOpenPicture(makeJournalBox(20), 25, 7));
    row->addLayout(makeOpenPicture(makeBigBox(), 60, 3));
    row->addStretch();
    addSection(QStringLiteral("Aufgeklappte Listen"),
               QStringLiteral(
                   "Abbildungen: kurz, mit Bildlaufleiste und in der großen Ausführung; die Zeile unter der "
                   "Maus ist hervorgehoben."))
        ->addLayout(row);
}

void ComboBoxesPage::addTrial()
{
    NVO::ComboBox *box = makeJournalBox(journalRows);
    box->setMinimumWidth(listWidth);
    NVO::ComboBox *editable = makeBox();
    editable->setEditable(true);
    editable->setMinimumWidth(listWidth);
    auto *locked = new NVO::CheckBox(QStringLiteral("Nur lesbar"));
    for (NVO::ComboBox *each : {box, editable})
        connect(locked, &NVO::CheckBox::toggled, each, &NVO::ComboBox::setReadOnly);
    auto *row = new QHBoxLayout;
    row->setSpacing(16);
    row->addWidget(box);
    row->addWidget(editable);
    row->addWidget(locked);
    row->addStretch();
    addSection(QStringLiteral("Zum Ausprobieren"),
               QStringLiteral("Eine Liste mit 100.000 Zeilen, in der Buchstaben und Ziffern zur Zeile "
                              "springen, und eine, in die sich schreiben lässt."))
        ->addLayout(row);
}
