#include "pages/VocabularyPage.h"

#include "pages/BookingParts.h"
#include "pages/ForcedState.h"
#include "pages/PageSupport.h"

#include <nvo/Label.h>

#include <QCheckBox>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>
#include <QVBoxLayout>
#include <QVariant>

#include <array>

namespace {

constexpr int sumMargin = 12; // as far in as the amounts of the rows
constexpr std::array<ForcedState::State, 5> states{
    ForcedState::Normal, ForcedState::Hover, ForcedState::Pressed, ForcedState::Focus, ForcedState::Disabled};

const QVector<BookingData> &incoming()
{
    static const QVector<BookingData> bookings{
        {"ER-0231", "4930 Bürobedarf", "70112 Papier Lang e. K.", "Kopierpapier, 20 Pakete", "VSt 19 %",
         11876, ""},
        {"ER-0232", "4240 Gas, Strom, Wasser", "70045 Stadtwerke Ulm", "Abschlag Mai", "VSt 19 %", 48600, ""},
        {"ER-0233", "4540 Kfz-Reparaturen", "70208 Autohaus Keller", "Inspektion UL-NV 204", "VSt 19 %",
         61285, ""},
        {"ER-0234", "4920 Telefon", "70019 Donaunetz GmbH", "Telefon und Internet", "VSt 19 %", 7990, ""}};
    return bookings;
}

const QVector<BookingData> &outgoing()
{
    static const QVector<BookingData> bookings{{"RE-0418", "10118 Bäckerei Sommer", "8400 Erlöse 19 % USt",
                                                "Wartung Kassensystem", "USt 19 %", 119000, ""},
                                               {"RE-0418", "10204 Praxis Dr. Vogt", "8400 Erlöse 19 % USt",
                                                "Schulung, zwei Tage", "USt 19 %", 214200,
                                                "Die Belegnummer RE-0418 gibt es schon."}};
    return bookings;
}

const QVector<BookingData> &cash()
{
    static const QVector<BookingData> bookings{
        {"KA-0077", "4660 Reisekosten", "1000 Kasse", "Parkgebühren Messe", "VSt 19 %", 1250, ""},
        {"KA-0078", "4910 Porto", "1000 Kasse", "Briefmarken", "ohne", 850, ""}};
    return bookings;
}

const BookingData &sample()
{
    return incoming().first();
}

QPushButton *makeButton(const QString &text, const QString &style = QStringLiteral("Normal"))
{
    auto *button = new QPushButton(text);
    dress(button, NVO::ElementPushButton, style);
    return button;
}

template <typename Toggle>
Toggle *makeToggle(const QString &text, bool checked = false)
{
    auto *toggle = new Toggle;
    toggle->setText(text);
    toggle->setCheckable(true);
    toggle->setChecked(checked);
    dress(toggle, NVO::ElementToggle, QStringLiteral("Normal"));
    return toggle;
}

QPushButton *makeStarter(const QString &text)
{
    auto *starter = new QPushButton(text);
    starter->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    dress(starter, NVO::ElementBookingStarter, QStringLiteral("Normal"));
    return starter;
}

QLabel *makeBadge(const QString &text, const QString &style)
{
    QLabel *badge = makeText(text, style, NVO::Font::SMALL);
    badge->setProperty("badge", true);
    badge->setStyleSheet(badge->styleSheet()); // the sheet looks at the property
    badge->setAlignment(Qt::AlignCenter);
    badge->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    return badge;
}

/** The names of the states above the columns of \a grid, which begin at column 1. */
void addStateTitles(QGridLayout *grid)
{
    for (int column = 0; column < int(states.size()); ++column) {
        grid->addWidget(makeCaption(ForcedState::title(states.at(std::size_t(column)))), 0, column + 1);
        grid->setColumnStretch(column + 1, 1);
    }
}

/** A row of what \a make makes, once in each state. */
template <typename Make>
void addStates(QGridLayout *grid, const QString &name, Make make)
{
    const int row = grid->rowCount();
    grid->addWidget(makeText(name, QStringLiteral("Name")), row, 0);
    for (int column = 0; column < int(states.size()); ++column) {
        const ForcedState::State state = states.at(std::size_t(column));
        QWidget *widget = make();
        if (state == ForcedState::Pressed && qobject_cast<QLineEdit *>(widget)) {
            delete widget;
            widget = makeCaption(QStringLiteral("–"));
        }
        ForcedState::apply(widget, state);
        const bool fills = widget->sizePolicy().horizontalPolicy() == QSizePolicy::Expanding;
        grid->addWidget(widget, row, column + 1, fills ? Qt::Alignment() : Qt::AlignLeft | Qt::AlignVCenter);
    }
}

void addRow(QGridLayout *rows, const QString &name, ForcedState::State state, bool selected,
            const QString &error = QString())
{
    BookingData booking = sample();
    booking.error = error;
    auto *row = new BookingRow(booking);
    row->setSelected(selected);
    ForcedState::apply(row, state);
    const int line = rows->rowCount();
    rows->addWidget(makeText(name, QStringLiteral("Name")), line, 0);
    rows->addWidget(row, line, 1);
}

QGridLayout *makeStateGrid()
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(10);
    addStateTitles(grid);
    return grid;
}

/** A dialog that stands in a page: title, content and buttons in one frame. */
QFrame *makeFrameDialog(const QString &title, const QString &style, QLayout *content, QLayout *buttons)
{
    auto *dialog = new QFrame;
    dialog->setObjectName(QStringLiteral("frameDialog"));
    dialog->setFrameShape(QFrame::StyledPanel);
    dialog->setAccessibleName(title);
    const auto part = [](const char *name, QLayout *layout) {
        auto *frame = new QFrame;
        frame->setObjectName(QLatin1String(name));
        frame->setFrameShape(QFrame::StyledPanel);
        layout->setContentsMargins(0, 0, 0, 0);
        frame->setLayout(layout);
        return frame;
    };
    auto *titleLine = new QHBoxLayout;
    auto *titleLabel = new QLabel(title);
    titleLabel->setObjectName(QStringLiteral("title"));
    keepFont(titleLabel, NVO::Font::HEADLINECONTENT);
    titleLine->addWidget(titleLabel);

    auto *parts = new QVBoxLayout(dialog);
    parts->setContentsMargins(0, 0, 0, 0);
    parts->setSpacing(0);
    parts->addWidget(part("frameTitleBar", titleLine));
    parts->addWidget(part("frameContent", content), 1);
    parts->addWidget(part("frameActionBar", buttons));
    dress(dialog, NVO::ElementFrameDialog, style);
    return dialog;
}

QHBoxLayout *makeButtonRow(const QString &yes, const QString &yesStyle, const QString &no)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    row->addStretch();
    row->addWidget(makeButton(yes, yesStyle));
    row->addWidget(makeButton(no));
    return row;
}

QLineEdit *makeField(const QString &name, const QString &text, const QString &style)
{
    auto *field = new QLineEdit(text);
    field->setAccessibleName(name);
    dress(field, NVO::ElementBookingTextItem, style);
    return field;
}

} // namespace

VocabularyPage::VocabularyPage()
{
    addDay();
    addBookingStates();
    addButtons();
    addToggles();
    addTexts();
    addDialogs();
}

void VocabularyPage::addDay()
{
    QVBoxLayout *day = addSection(
        QStringLiteral("Buchungen eines Tages"),
        QStringLiteral(
            "Eine Zeile wird mit der Maus oder mit der Leertaste gewählt, die Pfeile führen von Zeile "
            "zu Zeile. Alles hier sind Widgets von Qt mit Stilen des Themas."));
    addDayHead(day);
    day->addWidget(makeColumnTitles());
    addGroups(day);
    addStarter(day);
    addDaySum(day);
    updateSum();
}

void VocabularyPage::addDayHead(QVBoxLayout *day)
{
    auto *head = new QHBoxLayout;
    head->setSpacing(8);
    head->addWidget(makeText(QStringLiteral("Montag, 11. Mai 2026"), QStringLiteral("Title"),
                             NVO::Font::HEADLINECONTENT));
    head->addWidget(makeBadge(QStringLiteral("1 Fehler"), QStringLiteral("Error")));
    head->addStretch();

    for (const QString &text : {QStringLiteral("Alle"), QStringLiteral("Eingang"), QStringLiteral("Ausgang"),
                                QStringLiteral("Kasse")}) {
        const int number = m_filters.size();
        auto *filter = makeToggle<QPushButton>(text, number == 0);
        connect(filter, &QPushButton::clicked, this, [this, number] { showGroups(number); });
        m_filters.append(filter);
        head->addWidget(filter);
    }
    head->addSpacing(12);
    auto *output = makeButton(QStringLiteral("Ausgeben"));
    auto *menu = new QMenu(output);
    menu->addAction(QStringLiteral("Drucken"));
    menu->addAction(QStringLiteral("In eine Datei schreiben"));
    output->setMenu(menu);
    head->addWidget(output);
    head->addWidget(makeButton(QStringLiteral("Tag abschließen"), QStringLiteral("Primary")));
    day->addLayout(head);
}

void VocabularyPage::addGroups(QVBoxLayout *day)
{
    m_groups = {new BookingGroup(QStringLiteral("Eingangsrechnungen"), incoming()),
                new BookingGroup(QStringLiteral("Ausgangsrechnungen"), outgoing()),
                new BookingGroup(QStringLiteral("Kasse"), cash())};
    for (BookingGroup *group : qAsConst(m_groups)) {
        connect(group, &BookingGroup::chosen, this, &VocabularyPage::choose);
        day->addWidget(group);
    }
    m_groups.at(1)->setNote(QStringLiteral("eine ist zu prüfen"));
    m_groups.at(2)->setNote(QStringLiteral("festgeschrieben"));
    m_groups.at(2)->setEnabled(false);
    choose(m_groups.first()->findChildren<BookingRow *>().at(1));
}

void VocabularyPage::addStarter(QVBoxLayout *day)
{
    auto *entry = new BookingEntry({"ER-0235", "4930 Bürobedarf", "", "", "VSt 19 %", 0, ""});
    auto *starter = makeStarter(QStringLiteral("Neue Buchung am 11. Mai"));
    starter->setCheckable(true);
    starter->setChecked(true);
    auto *take = makeButton(QStringLiteral("Übernehmen"));
    auto *buttons = new QHBoxLayout;
    buttons->setContentsMargins(sumMargin, 0, sumMargin, 0);
    buttons->addStretch();
    buttons->addWidget(take);
    auto *body = new QWidget;
    auto *lines = new QVBoxLayout(body);
    lines->setContentsMargins(0, 0, 0, 0);
    lines->setSpacing(4);
    lines->addWidget(entry);
    lines->addLayout(buttons);
    day->addWidget(starter);
    day->addWidget(body);
    connect(starter, &QPushButton::toggled, body, &QWidget::setVisible);
    connect(take, &QPushButton::clicked, entry, &BookingEntry::accept);
    connect(entry, &BookingEntry::entered, this, [this](const BookingData &booking) {
        choose(m_groups.first()->add(booking));
        updateSum();
    });
}

void VocabularyPage::addDaySum(QVBoxLayout *day)
{
    auto *line = new QHBoxLayout;
    line->setContentsMargins(sumMargin, 0, sumMargin, 0);
    line->addWidget(makeText(QStringLiteral("Summe des Tages in €"), QStringLiteral("Caption")));
    line->addStretch();
    m_sum = makeText(QString(), QStringLiteral("Amount"), NVO::Font::HEADLINECONTENT);
    line->addWidget(m_sum);
    day->addLayout(line);
}

void VocabularyPage::showGroups(int filter)
{
    for (int other = 0; other < m_filters.size(); ++other)
        m_filters.at(other)->setChecked(other == filter);
    for (int group = 0; group < m_groups.size(); ++group)
        m_groups.at(group)->setVisible(filter == 0 || filter == group + 1);
}

void VocabularyPage::choose(BookingRow *row)
{
    if (m_chosen)
        m_chosen->setSelected(false);
    m_chosen = row;
    m_chosen->setSelected(true);
}

void VocabularyPage::updateSum()
{
    qint64 cents = 0;
    for (const BookingGroup *group : qAsConst(m_groups))
        cents += group->cents();
    m_sum->setText(amountText(cents));
}

void VocabularyPage::addBookingStates()
{
    auto *rows = new QGridLayout;
    rows->setHorizontalSpacing(12);
    rows->setVerticalSpacing(0);
    const QString error = QStringLiteral("Konto 4930 ist gesperrt.");
    addRow(rows, ForcedState::title(ForcedState::Normal), ForcedState::Normal, false);
    addRow(rows, ForcedState::title(ForcedState::Hover), ForcedState::Hover, false);
    addRow(rows, QStringLiteral("Gewählt"), ForcedState::Normal, true);
    addRow(rows, QStringLiteral("Fokus"), ForcedState::Focus, false);
    addRow(rows, QStringLiteral("Fehler"), ForcedState::Normal, false, error);
    addRow(rows, QStringLiteral("Fehler, überfahren"), ForcedState::Hover, false, error);
    addRow(rows, ForcedState::title(ForcedState::Disabled), ForcedState::Disabled, false);
    rows->setColumnStretch(1, 1);
    addSection(QStringLiteral("Zeilen"), QStringLiteral("Eine Buchung in allen Zuständen."))->addLayout(rows);

    QGridLayout *grid = makeStateGrid();
    addStates(grid, QStringLiteral("Beginn"), [] { return makeStarter(QStringLiteral("Neue Buchung")); });
    addStates(grid, QStringLiteral("Beginn, offen"), [] {
        QPushButton *starter = makeStarter(QStringLiteral("Neue Buchung"));
        starter->setCheckable(true);
        starter->setChecked(true);
        return starter;
    });
    for (const auto &style : {QStringLiteral("Normal"), QStringLiteral("VaSt"), QStringLiteral("Error")})
        addStates(grid, QStringLiteral("Feld, „%1“").arg(style), [style] {
            return makeField(QStringLiteral("Konto"), QStringLiteral("4930 Bürobedarf"), style);
        });
    addSection(QStringLiteral("Beginn und Felder einer Buchung"),
               QStringLiteral("Die Zeile, mit der eine Buchung beginnt, bleibt gewählt, solange die Felder "
                              "offen sind."))
        ->addLayout(grid);
}

void VocabularyPage::addButtons()
{
    QGridLayout *grid = makeStateGrid();
    const QString text = QStringLiteral("Prüfen");
    addStates(grid, QStringLiteral("Normal"), [text] { return makeButton(text); });
    addStates(grid, QStringLiteral("Vorgegeben"), [text] {
        QPushButton *button = makeButton(text);
        button->setDefault(true);
        return button;
    });
    addStates(grid, QStringLiteral("Gewählt"), [text] {
        QPushButton *button = makeButton(text);
        button->setCheckable(true);
        button->setChecked(true);
        return button;
    });
    addStates(grid, QStringLiteral("Flach"), [text] {
        QPushButton *button = makeButton(text);
        button->setFlat(true);
        return button;
    });
    addStates(grid, QStringLiteral("Mit Symbol"), [] {
        QPushButton *button = makeButton(QStringLiteral("Hilfe"));
        button->setIcon(themeImage(QStringLiteral("hilfe_16")));
        return button;
    });
    for (const auto &style : {QStringLiteral("Normal"), QStringLiteral("Primary")})
        addStates(grid, QStringLiteral("Menü, „%1“").arg(style), [style] {
            QPushButton *button = makeButton(QStringLiteral("Ausgeben"), style);
            button->setMenu(new QMenu(button));
            return button;
        });
    addStates(grid, QStringLiteral("„Primary“"),
              [text] { return makeButton(text, QStringLiteral("Primary")); });
    addStates(grid, QStringLiteral("„Error“"),
              [] { return makeButton(QStringLiteral("Stornieren"), QStringLiteral("Error")); });
    addSection(QStringLiteral("Schaltflächen"),
               QStringLiteral("Die Spalte „Normal“ lässt sich bedienen, die anderen zeigen einen "
                              "festgehaltenen Zustand."))
        ->addLayout(grid);
}

void VocabularyPage::addToggles()
{
    QGridLayout *grid = makeStateGrid();
    for (const bool on : {false, true}) {
        const QString state = on ? QStringLiteral("an") : QStringLiteral("aus");
        addStates(grid, QStringLiteral("Schalter, %1").arg(state),
                  [on] { return makeToggle<QCheckBox>(QStringLiteral("Nur offene"), on); });
        addStates(grid, QStringLiteral("Auswahl, %1").arg(state), [on] {
            auto *choice = makeToggle<QRadioButton>(QStringLiteral("Brutto"), on);
            choice->setAutoExclusive(false);
            return choice;
        });
        addStates(grid, QStringLiteral("Knopf, %1").arg(state),
                  [on] { return makeToggle<QPushButton>(QStringLiteral("Eingang"), on); });
    }
    addStates(grid, QStringLiteral("Schalter, „Error“"), [] {
        auto *toggle = makeToggle<QCheckBox>(QStringLiteral("Geprüft"));
        dress(toggle, NVO::ElementToggle, QStringLiteral("Error"));
        return toggle;
    });
    addSection(QStringLiteral("Schalter"),
               QStringLiteral("Ein Kästchen wird zum Schalter, eine Schaltfläche bleibt unten."))
        ->addLayout(grid);
}

void VocabularyPage::addTexts()
{
    struct Role
    {
        const char *role;
        const char *text;
        NVO::Font::FontSize size;
    };
    const std::array<Role, 6> roles{
        {{"Title", "Montag, 11. Mai 2026", NVO::Font::HEADLINESMALL},
         {"Heading", "Eingangsrechnungen", NVO::Font::HEADLINECONTENT},
         {"Name", "Papier Lang e. K.", NVO::Font::DEFAULT},
         {"Text", "Kopierpapier, 20 Pakete, geliefert am 8. Mai", NVO::Font::DEFAULT},
         {"Caption", "Beleg liegt als Scan vor.", NVO::Font::DEFAULT},
         {"Hint", "Zuletzt geändert um 14:32 Uhr", NVO::Font::SMALL}}};
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(6);
    for (const Role &role : roles) {
        const int row = grid->rowCount();
        const QString name = QString::fromUtf8(role.role);
        grid->addWidget(makeCaption(name), row, 0);
        for (const bool enabled : {true, false}) {
            QLabel *text = makeText(QString::fromUtf8(role.text), name, role.size);
            text->setEnabled(enabled);
            grid->addWidget(text, row, enabled ? 1 : 2);
        }
    }
    const int row = grid->rowCount();
    QLabel *link = makeText(QStringLiteral("Zum <a href=\"beleg\">Beleg ER-0231</a> mit einer "
                                           "<a href=\"anlage\">Anlage</a>"));
    link->setTextInteractionFlags(Qt::TextBrowserInteraction);
    grid->addWidget(makeCaption(QStringLiteral("Verweis")), row, 0);
    grid->addWidget(link, row, 1);
    grid->setColumnStretch(3, 1);

    auto *badges = new QHBoxLayout;
    badges->setSpacing(8);
    const std::array<std::array<const char *, 2>, 5> signs{{{"Text", "offen"},
                                                            {"Info", "in Prüfung"},
                                                            {"Success", "gebucht"},
                                                            {"Warning", "fällig"},
                                                            {"Error", "abgewiesen"}}};
    for (const bool enabled : {true, false})
        for (const auto &sign : signs) {
            QLabel *badge = makeBadge(QString::fromUtf8(sign[1]), QString::fromUtf8(sign[0]));
            badge->setEnabled(enabled);
            badges->addWidget(badge);
        }
    badges->addStretch();

    QVBoxLayout *section =
        addSection(QStringLiteral("Texte"),
                   QStringLiteral("Rollen von Texten, rechts deaktiviert; darunter Zustände als "
                                  "kleine Schilder."));
    section->addLayout(grid);
    section->addLayout(badges);
}

void VocabularyPage::addDialogs()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(24);

    auto *form = new QGridLayout;
    form->setHorizontalSpacing(12);
    form->setVerticalSpacing(8);
    form->addWidget(makeText(QStringLiteral("Buchung")), 0, 0);
    form->addWidget(makeField(QStringLiteral("Buchung"), QStringLiteral("ER-0232 Stadtwerke Ulm"),
                              QStringLiteral("Normal")),
                    0, 1);
    form->addWidget(makeText(QStringLiteral("Kostenstelle")), 1, 0);
    form->addWidget(
        makeField(QStringLiteral("Kostenstelle"), QStringLiteral("210 Verwaltung"), QStringLiteral("Normal")),
        1, 1);
    form->addWidget(makeToggle<QCheckBox>(QStringLiteral("Für alle Buchungen dieses Kontos"), true), 2, 1);
    row->addWidget(makeFrameDialog(
        QStringLiteral("Kostenstelle zuordnen"), QStringLiteral("Normal"), form,
        makeButtonRow(QStringLiteral("Zuordnen"), QStringLiteral("Primary"), QStringLiteral("Abbrechen"))));

    const auto question = [](const QString &text) {
        auto *content = new QVBoxLayout;
        QLabel *label = makeText(text);
        label->setWordWrap(true);
        content->addWidget(label);
        content->addStretch();
        return content;
    };
    const QString doubled = QStringLiteral(
        "Die Belegnummer <b>RE-0418</b> gibt es schon. Die zweite Buchung wird mit einer Gegenbuchung "
        "zurückgenommen.");
    for (const bool enabled : {true, false}) {
        QFrame *dialog = makeFrameDialog(
            QStringLiteral("Buchung stornieren?"), QStringLiteral("Error"), question(doubled),
            makeButtonRow(QStringLiteral("Stornieren"), QStringLiteral("Error"), QStringLiteral("Behalten")));
        dialog->setEnabled(enabled);
        row->addWidget(dialog);
    }
    addSection(QStringLiteral("Dialog in der Seite"),
               QStringLiteral("Ein Rahmen mit Titel, Inhalt und Knöpfen, ohne ein Fenster zu sein; rechts "
                              "deaktiviert."))
        ->addLayout(row);
}
