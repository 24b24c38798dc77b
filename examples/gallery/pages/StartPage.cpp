#include "pages/StartPage.h"

#include "pages/ForcedState.h"
#include "pages/PageSupport.h"

#include <nvo/ExpandingOverviewButton.h>
#include <nvo/ExtraSearchResultButton.h>
#include <nvo/Label.h>
#include <nvo/OverviewButton.h>
#include <nvo/OverviewButton3Children.h>
#include <nvo/OverviewButtonWithWidget.h>
#include <nvo/Pixmap.h>

#include <QGridLayout>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace {

using NVO::OverviewButton;
using NVO::OverviewButton3Children;
using NVO::OverviewButtonWithWidget;

constexpr int gap = 16;
constexpr int narrowestColumn = 320;
constexpr int wholePageWidth = 1180;

constexpr std::array<ForcedState::State, 5> states{
    ForcedState::Normal, ForcedState::Hover, ForcedState::Pressed, ForcedState::Focus, ForcedState::Disabled};

/**
 * Columns of one width, as many as there is room for, and filled row by row. A tile takes one or more of them
 * and is as high as its row.
 */
class TileLayout : public QLayout
{
public:
    ~TileLayout() override
    {
        while (!m_items.isEmpty()) // a layout in it takes itself out when it dies
            delete m_items.takeLast().item;
    }
    void addTile(QWidget *tile, int columns = 1)
    {
        addWidget(tile);
        m_items.last().columns = columns;
    }
    void addTiles(QLayout *tiles)
    {
        addChildLayout(tiles);
        addItem(tiles);
    }
    void addItem(QLayoutItem *item) override { m_items.append({item, 1}); }
    int count() const override { return m_items.size(); }
    QLayoutItem *itemAt(int index) const override { return m_items.value(index).item; }
    QLayoutItem *takeAt(int index) override
    {
        return index >= 0 && index < m_items.size() ? m_items.takeAt(index).item : nullptr;
    }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override { return place(QRect(0, 0, width, 0), false); }
    QSize sizeHint() const override { return minimumSize(); }
    QSize minimumSize() const override { return {columnWidth(), 0}; }
    void setGeometry(const QRect &rect) override
    {
        QLayout::setGeometry(rect);
        place(rect, true);
    }

private:
    struct Item
    {
        QLayoutItem *item = nullptr;
        int columns = 1;
    };

    /** The least in which every tile has room. Split tiles ask for that of two halves and make do with less.
     */
    int columnWidth() const
    {
        int width = narrowestColumn;
        for (const Item &item : m_items) {
            if (!qobject_cast<OverviewButton3Children *>(item.item->widget()))
                width = std::max(width, item.item->minimumSize().width());
        }
        return width;
    }

    static int heightOf(const QLayoutItem &item, int width)
    {
        const int height = item.hasHeightForWidth() ? item.heightForWidth(width) : item.sizeHint().height();
        return std::max(height, item.minimumSize().height());
    }

    /** Where the items are in \a rect; returns how high they are together. */
    int place(const QRect &rect, bool apply) const
    {
        const int columns = std::max(1, (rect.width() + gap) / (columnWidth() + gap));
        const auto left = [&](int column) { return (rect.width() + gap) * column / columns; };
        int top = 0;
        for (int first = 0, next = 0; first < m_items.size(); first = next) {
            QVector<QRect> row;
            int height = 0;
            for (int column = 0; next < m_items.size(); ++next) {
                const int span = std::min(m_items[next].columns, columns);
                if (column + span > columns)
                    break;
                row.append({left(column), top, left(column + span) - gap - left(column), 0});
                height = std::max(height, heightOf(*m_items[next].item, row.last().width()));
                column += span;
            }
            for (int i = 0; apply && i < row.size(); ++i) {
                const QRect ltr(rect.topLeft() + row[i].topLeft(), QSize(row[i].width(), height));
                m_items[first + i].item->setGeometry(
                    QStyle::visualRect(parentWidget()->layoutDirection(), rect, ltr));
            }
            top += height + gap;
        }
        return std::max(0, top - gap);
    }

    QVector<Item> m_items;
};

NVO::Pixmap image(const char *name)
{
    return {QStringLiteral(":/") + QLatin1String(name)};
}

/** What both kinds of tiles that have these texts say. */
template <typename Tile>
Tile *makeTile(const char *icon, const QString &title, const QString &description,
               const QString &note = QString())
{
    auto *tile = new Tile;
    tile->setIcon(image(icon));
    tile->setTitle(title);
    tile->setDescription(description);
    tile->setNote(note);
    return tile;
}

OverviewButton *makeAccounting()
{
    auto *tile = makeTile<OverviewButton>("tile_accounting", QStringLiteral("Rechnungswesen"),
                                          QStringLiteral("Buchungsstapel, Konten und Auswertungen"),
                                          QStringLiteral("Zuletzt: Stapel 04/2026"));
    tile->setHint(QStringLiteral("<b>12</b> offen"));
    tile->setStatus(image("warning_16"));
    tile->setAccessory(image("arrow_right_dark_6x12"));
    return tile;
}

OverviewButton *makePayroll()
{
    auto *tile = makeTile<OverviewButton>("tile_payroll", QStringLiteral("Lohn und Gehalt"),
                                          QStringLiteral("Abrechnung April für 37 Beschäftigte"),
                                          QStringLiteral("Übermittelt am 17. April"));
    tile->setHint(QStringLiteral("fertig"));
    tile->setStatus(image("success_16"));
    tile->setAccessory(image("arrow_right_dark_6x12"));
    return tile;
}

OverviewButton *makeReceipts()
{
    auto *tile = makeTile<OverviewButton>(
        "tile_receipts", QStringLiteral("Belege"),
        QStringLiteral("Eingang prüfen, Belege zuordnen und revisionssicher ablegen"));
    tile->setButtonLayout(OverviewButton::IconTopLeft);
    tile->setHeadlineStyle(OverviewButton::Big);
    tile->setHint(QStringLiteral("<b>48</b> neu"));
    return tile;
}

OverviewButton *makeBank()
{
    auto *tile = makeTile<OverviewButton>("tile_bank", QStringLiteral("Bank"),
                                          QStringLiteral("Kontoumsätze abrufen und Zahlungen freigeben"));
    tile->setOverviewButtonStyle(OverviewButton::Style::Light);
    tile->setAccessory(image("arrow_right_dark_6x12"));
    return tile;
}

OverviewButton *makeReports()
{
    auto *tile = makeTile<OverviewButton>("tile_accounting", QStringLiteral("Auswertungen"),
                                          QStringLiteral("BWA, Summen und Salden, offene Posten"));
    tile->setOverviewButtonStyle(OverviewButton::Style::Light);
    tile->setAccessory(image("arrow_right_dark_6x12"));
    return tile;
}

OverviewButton *makeInvoice()
{
    auto *tile =
        makeTile<OverviewButton>("tile_new_hell", QStringLiteral("Rechnung erfassen"),
                                 QStringLiteral("Neue Ausgangsrechnung mit den Vorgaben des Mandanten"),
                                 QStringLiteral("Zuletzt: RE-2026-0418"));
    tile->setOverviewButtonStyle(OverviewButton::Style::Primary);
    return tile;
}

OverviewButton *makeIconTile(const char *icon, const QString &title)
{
    auto *tile = new OverviewButton;
    tile->setIcon(image(icon));
    tile->setTitle(title);
    tile->setToolTip(title);
    tile->setButtonLayout(OverviewButton::IconOnly);
    return tile;
}

OverviewButtonWithWidget *makeTaxReturn()
{
    auto *tile =
        makeTile<OverviewButtonWithWidget>("tile_tax", QStringLiteral("Umsatzsteuer"),
                                           QStringLiteral("Voranmeldung April, fällig am 11. Mai 2026"));
    tile->setHint(QStringLiteral("<b>4.218,07 €</b>"));
    tile->setLastLineText(QStringLiteral("Dauerfristverlängerung"));
    return tile;
}

OverviewButtonWithWidget *makeClients()
{
    auto *tile = makeTile<OverviewButtonWithWidget>(
        "tile_clients", QStringLiteral("Mandanten"),
        QStringLiteral("Stammdaten, Ansprechpartner und Vollmachten pflegen"));
    tile->setAccessory(image("arrow_right_dark_6x12"));
    tile->setLastLineText(QStringLiteral("Stand: 17. April 2026, 9:41 Uhr"));
    tile->setLastLineMode(OverviewButtonWithWidget::LastLineText);
    return tile;
}

OverviewButton3Children *makeClientTile(unsigned int count = OverviewButton3Children::numOfRightSideButtons)
{
    auto *tile = new OverviewButton3Children;
    tile->setIcon(image("tile_clients"));
    tile->setTitle(QStringLiteral("Bäckerei Sommer GmbH"));
    tile->setText(QStringLiteral(
        "Mandant 10412, Wirtschaftsjahr 2026. Der Buchungsstapel für April wartet auf die Freigabe."));
    tile->setRighSideTitle(0, QStringLiteral("Offene Posten"));
    tile->setRighSideText(0, QStringLiteral("3 fällig, 1.482,10 €"));
    tile->setRighSideTitle(1, QStringLiteral("Lohnabrechnung"));
    tile->setRighSideText(1, QStringLiteral("April ist abgerechnet"));
    tile->setRighSideTitle(2, QStringLiteral("Umsatzsteuer-Voranmeldung"));
    tile->setRighSideText(2, QStringLiteral("bis 11. Mai"));
    tile->setRightSideVisible(count);
    return tile;
}

/** Without buttons at the right it is a tile for a longer text. */
OverviewButton3Children *makeAnnualAccounts()
{
    auto *tile = new OverviewButton3Children;
    tile->setIcon(image("tile_accounting"));
    tile->setTitle(QStringLiteral("Jahresabschluss 2025"));
    tile->setText(QStringLiteral("Bilanz und Anhang sind aufgestellt. Offen "
                                 "ist die Freigabe durch den Mandanten."));
    tile->setRightSideVisible(0);
    return tile;
}

NVO::ExpandingOverviewButton *makeLastHit()
{
    auto *tile = new NVO::ExpandingOverviewButton(nullptr);
    tile->setIcon(image("tile_receipts"));
    tile->setTitle(QStringLiteral("Zuletzt gesucht: Papier Lang e. K."));
    tile->setText(QStringLiteral("Lieferant 70012, zwei Belege im April"));
    tile->setPaths(
        {{QStringLiteral("Eingangsrechnung ER-0231"),
          {1, {QStringLiteral("Rechnungswesen"), QStringLiteral("Kreditoren"), QStringLiteral("April")}}},
         {QStringLiteral("Offene Posten"),
          {2, {QStringLiteral("Rechnungswesen"), QStringLiteral("Kreditoren"), QStringLiteral("70012")}}}});
    return tile;
}

NVO::ExtraSearchResultButton *makeMoreHits()
{
    auto *button = new NVO::ExtraSearchResultButton(nullptr);
    button->setText(QStringLiteral("Alle 48 Treffer anzeigen"));
    return button;
}

/** The sections of a tile, in the order in which the keyboard reaches them. */
QList<NVO::OverviewButtonBase *> sectionsOf(QWidget *tile)
{
    return tile->findChildren<NVO::OverviewButtonBase *>();
}

QLayout *captioned(QWidget *widget, const QString &caption)
{
    auto *column = new QVBoxLayout;
    column->setSpacing(4);
    column->addWidget(widget);
    column->addWidget(makeCaption(caption));
    return column;
}

QGridLayout *addGrid(QVBoxLayout *section)
{
    auto *grid = new QGridLayout;
    grid->setSpacing(gap);
    section->addLayout(grid);
    return grid;
}

} // namespace

StartPage::StartPage()
{
    addTiles();
    addStates();
    addSplitTiles();
    addLastLines();
}

int StartPage::pictureWidth() const
{
    return wholePageWidth;
}

void StartPage::addTiles()
{
    auto *tiles = new TileLayout;
    addSection(QStringLiteral("Guten Morgen, Frau Sommer"),
               QStringLiteral("Die Kacheln füllen die Breite des Fensters. Tabulator und Leertaste bedienen "
                              "sie, in der geteilten Kachel auch die Pfeiltasten."))
        ->addLayout(tiles);
    tiles->addTile(makeInvoice());
    tiles->addTile(makeAccounting());
    tiles->addTile(makePayroll());
    tiles->addTile(makeClientTile(), 2);
    tiles->addTile(makeAnnualAccounts());
    tiles->addTile(makeReceipts());
    tiles->addTile(makeTaxReturn());
    tiles->addTile(makeClients());
    tiles->addTile(makeBank());
    tiles->addTile(makeReports());
    auto *icons = new QHBoxLayout;
    icons->setSpacing(gap);
    icons->addWidget(makeIconTile("question", QStringLiteral("Hilfe")), 0, Qt::AlignTop);
    icons->addWidget(makeIconTile("information", QStringLiteral("Neuigkeiten")), 0, Qt::AlignTop);
    icons->addWidget(makeIconTile("warning", QStringLiteral("Fristen")), 0, Qt::AlignTop);
    icons->addStretch(1);
    tiles->addTiles(icons);
    tiles->addTile(makeLastHit(), 2);
    auto *more = new QVBoxLayout;
    more->addWidget(makeMoreHits(), 0, Qt::AlignTop);
    tiles->addTiles(more);
}

void StartPage::addStates()
{
    QGridLayout *grid = addGrid(addSection(
        QStringLiteral("Drei Stile"),
        QStringLiteral(
            "Jeder Stil in jedem Zustand; teilweise deaktivierte Kacheln lassen sich anklicken.")));
    using Style = OverviewButton::Style;
    const std::array<QPair<Style, QString>, 3> styles{{{Style::Normal, QStringLiteral("Normal")},
                                                       {Style::Light, QStringLiteral("Light")},
                                                       {Style::Primary, QStringLiteral("Primary")}}};
    int column = 0;
    for (const auto &style : styles) {
        const auto make = [&](const QString &caption, int row) {
            const bool isDark = style.first == Style::Primary;
            auto *tile = makeTile<OverviewButton>(isDark ? "tile_new_hell" : "tile_tax", style.second,
                                                  QStringLiteral("Erklärungen und Bescheide"));
            tile->setOverviewButtonStyle(style.first);
            grid->addLayout(captioned(tile, caption), row, column);
            return tile;
        };
        int row = 0;
        for (const ForcedState::State state : states)
            ForcedState::apply(make(ForcedState::title(state), row++), state);
        make(QStringLiteral("Teilweise deaktiviert"), row)->setPartialDisabled(true);
        ++column;
    }
}

void StartPage::addSplitTiles()
{
    QVBoxLayout *section = addSection(
        QStringLiteral("Geteilte Kachel"),
        QStringLiteral(
            "Bis zu drei Schaltflächen rechts; die Linien leuchten mit dem Teil, der den Fokus hat."));
    QGridLayout *grid = addGrid(section);
    grid->addWidget(makeClientTile(2), 0, 0);
    grid->addWidget(makeClientTile(1), 0, 1);
    int place = 2;
    const auto add = [grid, &place](int part, ForcedState::State state) {
        OverviewButton3Children *tile = makeClientTile();
        ForcedState::apply(sectionsOf(tile).at(part), state);
        const QString where = part == 0 ? QStringLiteral("links") : QStringLiteral("rechts %1").arg(part);
        grid->addLayout(captioned(tile, ForcedState::title(state) + QStringLiteral(", ") + where), place / 2,
                        place % 2);
        ++place;
    };
    for (const int part : {0, 1, 2, 3})
        add(part, ForcedState::Focus);
    for (const ForcedState::State state : {ForcedState::Hover, ForcedState::Pressed}) {
        add(0, state);
        add(1, state);
    }
    grid->addWidget(makeClientTile(0), place / 2, 0);
    OverviewButton3Children *disabled = makeClientTile();
    disabled->setEnabled(false);
    grid->addWidget(disabled, place / 2, 1);
}

void StartPage::addLastLines()
{
    QGridLayout *grid =
        addGrid(addSection(QStringLiteral("Kachel mit letzter Zeile"),
                           QStringLiteral("Die Zeile folgt dem Zustand der Schaltfläche über ihr.")));
    const auto make = [grid](int column, int row, const QString &caption) {
        OverviewButtonWithWidget *tile = column == 1 ? makeClients() : makeTaxReturn();
        tile->setHint(QString());
        if (column == 2) {
            tile->setOverviewButtonStyle(OverviewButton::Style::Primary);
            tile->setIcon(image("tile_new_hell"));
        }
        grid->addLayout(captioned(tile, caption), row, column);
        return tile;
    };
    for (const int column : {0, 1, 2}) {
        int row = 0;
        for (const ForcedState::State state : states) {
            OverviewButtonWithWidget *tile = make(column, row++, ForcedState::title(state));
            if (state == ForcedState::Disabled)
                tile->setEnabled(false);
            else
                ForcedState::apply(sectionsOf(tile).first(), state);
        }
        make(column, row, QStringLiteral("Teilweise deaktiviert"))->setButtonEnabled(false);
    }
}
