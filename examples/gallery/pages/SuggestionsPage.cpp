#include "pages/SuggestionsPage.h"

#include "pages/ForcedState.h"
#include "pages/PageSupport.h"

#include <nvo/Label.h>
#include <nvo/LineEdit.h>
#include <nvo/LineEditWithButton.h>

#include <QApplication>
#include <QGridLayout>
#include <QHoverEvent>
#include <QLabel>
#include <QTreeView>
#include <QVBoxLayout>

#include <functional>
#include <memory>

namespace {

using Row = NVO::CompleterDataRow;

constexpr int fieldWidth = 320;
constexpr int stateWidth = 190;
constexpr int accountNames = 20000;

Row makeRow(Row::Type type, const QString &code, const QString &name = QString())
{
    Row row;
    row.setType(type);
    row.addColumn(code, QString());
    row.addColumn(name, QString());
    return row;
}

NVO::CompleterData makeUsers()
{
    NVO::CompleterData users;
    users.setTitle(QStringLiteral("Anmelden als"));
    users.setHeaders({QStringLiteral("Benutzer"), QStringLiteral("Name")});
    users.addRow(makeRow(Row::MainCaption, QStringLiteral("Zuletzt angemeldet")));
    users.addRow(makeRow(Row::DataRemovable, QStringLiteral("s.brandt"),
                         QStringLiteral("Sabine Brandt, Buchhaltung")));
    users.addRow(
        makeRow(Row::DataRemovable, QStringLiteral("m.hoffmann"), QStringLiteral("Markus Hoffmann, Lohn")));
    users.addRow(makeRow(Row::MainCaption, QStringLiteral("Weitere Benutzer")));
    users.addRow(makeRow(Row::SubCaption, QStringLiteral("Kanzlei")));
    users.addRow(makeRow(Row::Data, QStringLiteral("a.keller"), QStringLiteral("Andrea Keller, Leitung")));
    users.addRow(makeRow(Row::Data, QStringLiteral("j.mueller"), QStringLiteral("Jörg Müller & Vertretung")));
    users.addRow(
        makeRow(Row::Data, QStringLiteral("t.albrecht"), QStringLiteral("Thomas Albrecht, Steuern")));
    users.addRow(makeRow(Row::SubCaption, QStringLiteral("Außenstellen")));
    users.addRow(makeRow(Row::Data, QStringLiteral("b.sander"), QStringLiteral("Birgit Sander, Fürth")));
    users.addRow(makeRow(Row::Data, QStringLiteral("k.oezdemir"), QStringLiteral("Kemal Özdemir, Augsburg")));
    return users;
}

struct AccountClass
{
    const char *caption;
    QStringList kinds;
    QStringList details;
};

QVector<AccountClass> accountClasses()
{
    return {{"0 Anlagevermögen",
             {"Technische Anlagen", "Maschinen", "Fuhrpark", "Betriebsausstattung", "Büroeinrichtung",
              "Geringwertige Wirtschaftsgüter", "EDV-Software"},
             {"Zugang", "Abgang", "Abschreibung", "Umbuchung", "Anzahlung"}},
            {"1 Umlaufvermögen",
             {"Bank", "Kasse", "Forderungen aus Lieferungen", "Vorsteuer", "Durchlaufende Posten", "Festgeld",
              "Darlehen an Mitarbeiter"},
             {"Hauptkonto", "Verrechnung", "19 %", "7 %", "innergemeinschaftlich"}},
            {"3 Fremdkapital",
             {"Rückstellungen", "Verbindlichkeiten aus Lieferungen", "Lohnsteuer", "Umsatzsteuer",
              "Sozialversicherung", "Darlehen"},
             {"kurzfristig", "langfristig", "Vorjahr", "laufendes Jahr", "Abgrenzung"}},
            {"4 Betriebliche Erträge",
             {"Umsatzerlöse", "Erlöse aus Vermietung", "Provisionserlöse", "Erlösschmälerungen",
              "Steuerfreie Umsätze", "Sonstige Erträge"},
             {"19 % USt", "7 % USt", "EU-Ausland", "Drittland", "§ 13b UStG"}},
            {"6 Betriebliche Aufwendungen",
             {"Löhne und Gehälter", "Raumkosten", "Kfz-Kosten", "Werbekosten", "Reisekosten", "Bürobedarf",
              "Rechts- und Beratungskosten", "Versicherungen"},
             {"abziehbar", "nicht abziehbar", "Arbeitnehmer", "Unternehmer", "Fremdleistung"}}};
}

/** A chart of accounts as a firm with many cost centres has it. */
NVO::CompleterData makeAccounts(int count)
{
    NVO::CompleterData accounts;
    accounts.setTitle(QStringLiteral("Konten"));
    accounts.setHeaders({QStringLiteral("Konto"), QStringLiteral("Bezeichnung")});
    const QVector<AccountClass> classes = accountClasses();
    const int perClass = count / classes.size();
    for (const AccountClass &each : classes) {
        accounts.addRow(makeRow(Row::MainCaption, QString::fromUtf8(each.caption)));
        const int first = QString::fromUtf8(each.caption).leftRef(1).toInt() * 100000;
        for (int i = 0; i < perClass; ++i) {
            const QString name = QStringLiteral("%1 %2, Kostenstelle %3")
                                     .arg(each.kinds.at(i % each.kinds.size()),
                                          each.details.at(i / each.kinds.size() % each.details.size()))
                                     .arg(i / (each.kinds.size() * each.details.size()) + 100);
            accounts.addRow(
                makeRow(Row::Data, QStringLiteral("%1").arg(first + i * 10, 6, 10, QLatin1Char('0')), name));
        }
    }
    return accounts;
}

NVO::LineEditWithButton *makeField(const QString &placeholder)
{
    auto *field = new NVO::LineEditWithButton;
    field->setFixedWidth(fieldWidth);
    field->setAccessibleName(placeholder);
    field->findChild<NVO::LineEdit *>()->setPlaceholderText(placeholder);
    return field;
}

/** The popup of the field that \a make makes; a field has it from the start. */
QWidget *newPopup(const std::function<void()> &make)
{
    const QWidgetList before = QApplication::topLevelWidgets();
    make();
    const QWidgetList after = QApplication::topLevelWidgets();
    for (QWidget *window : after) {
        if (window->inherits("NVO::Completer") && !before.contains(window))
            return window;
    }
    return nullptr;
}

/** Lets the mouse be over the row of the list that starts with \a text. */
void hover(QTreeView *list, const QString &text)
{
    const QAbstractItemModel *model = list->model();
    const QModelIndex first = model->index(0, 0);
    const QModelIndexList found =
        model->match(first, Qt::DisplayRole, text, 1, Qt::MatchStartsWith | Qt::MatchRecursive);
    if (found.isEmpty())
        return;
    const QPoint centre = list->visualRect(found.first()).center();
    QHoverEvent event(QEvent::HoverMove, centre, QPoint(-1, -1));
    QApplication::sendEvent(list->viewport(), &event);
}

/** What a field of this page opens for \a typed. Neither comes to the screen. */
QPixmap popupPicture(const NVO::CompleterData &suggestions, const QString &typed, const QString &hovered)
{
    std::unique_ptr<NVO::LineEditWithButton> field;
    QWidget *popup = newPopup([&field] { field = std::make_unique<NVO::LineEditWithButton>(); });
    if (!popup)
        return QPixmap();
    field->setAttribute(Qt::WA_DontShowOnScreen);
    popup->setAttribute(Qt::WA_DontShowOnScreen);
    field->resize(fieldWidth, field->sizeHint().height());
    field->show();
    field->setDataForCompleter(suggestions);
    field->setUsername(typed);
    field->showCompleter();
    hover(popup->findChild<QTreeView *>(), hovered);
    return popup->grab();
}

/** Field and bulb as they look in \a state. */
NVO::LineEditWithButton *makeForced(ForcedState::State state, bool hasBulb)
{
    NVO::LineEditWithButton *field = makeField(QStringLiteral("Benutzer"));
    field->setFixedWidth(stateWidth);
    if (hasBulb)
        field->showButton();
    if (state == ForcedState::Disabled) {
        field->setEnabled(false);
        return field;
    }
    auto *lineEdit = field->findChild<NVO::LineEdit *>();
    if (state == ForcedState::Focus && hasBulb) {
        for (QWidget *part : {static_cast<QWidget *>(lineEdit), field->findChild<QWidget *>("button")})
            part->setProperty("style", QStringLiteral("focusIn"));
    }
    ForcedState::apply(lineEdit, state);
    if (hasBulb && state == ForcedState::Hover)
        ForcedState::apply(field->findChild<QWidget *>("button"), state);
    return field;
}

QVBoxLayout *withPopup(const NVO::CompleterData &suggestions, const QString &typed, const QString &hovered)
{
    NVO::LineEditWithButton *field = makeForced(ForcedState::Focus, true);
    field->setFixedWidth(fieldWidth);
    field->setUsername(typed);
    field->setAccessibleName(QStringLiteral("Benutzer"));
    auto *picture = new QLabel;
    picture->setPixmap(popupPicture(suggestions, typed, hovered));
    auto *column = new QVBoxLayout;
    column->setSpacing(0);
    column->addWidget(field, 0, Qt::AlignLeft);
    column->addWidget(picture, 0, Qt::AlignLeft);
    column->addStretch();
    return column;
}

} // namespace

SuggestionsPage::SuggestionsPage()
{
    addOpenPopups();
    addStates();
    addTrial();
}

void SuggestionsPage::addOpenPopups()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(32);
    row->addLayout(withPopup(makeUsers(), QString(), QStringLiteral("m.hoffmann")));
    row->addLayout(withPopup(makeAccounts(accountNames), QStringLiteral("steuer"), QStringLiteral("139790")));
    row->addStretch();
    addSection(QStringLiteral("Aufgeklappte Vorschläge"),
               QStringLiteral("Abbildungen: Benutzer, von denen sich die zuletzt angemeldeten entfernen "
                              "lassen, und Konten, in denen das Getippte hervorgehoben ist."))
        ->addLayout(row);
}

void SuggestionsPage::addStates()
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(12);
    int column = 0;
    for (const ForcedState::State state :
         {ForcedState::Normal, ForcedState::Hover, ForcedState::Focus, ForcedState::Disabled}) {
        grid->addWidget(makeCaption(ForcedState::title(state)), 0, column);
        grid->addWidget(makeForced(state, true), 1, column);
        grid->addWidget(makeForced(state, false), 2, column);
        ++column;
    }
    grid->setColumnStretch(column, 1);
    addSection(
        QStringLiteral("Mit und ohne Glühbirne"),
        QStringLiteral("Feld und Glühbirne stehen in einem Rahmen. Die Felder der Spalte „Normal“ lassen "
                       "sich bedienen; sie haben keine Vorschläge."))
        ->addLayout(grid);
}

void SuggestionsPage::addTrial()
{
    NVO::LineEditWithButton *login = makeField(QStringLiteral("Benutzer"));
    login->setDataForCompleter(makeUsers());
    NVO::LineEditWithButton *search = makeField(QStringLiteral("Konto oder Bezeichnung"));
    search->setDataForCompleter(makeAccounts(accountNames));
    NVO::Label *chosen =
        makeLabel(QStringLiteral("Noch nichts gewählt."), NVO::Font::DEFAULT, LabelRole::Text);
    for (NVO::LineEditWithButton *field : {login, search}) {
        connect(field, &NVO::LineEditWithButton::suggestionChosen, chosen, [chosen](const QString &text) {
            chosen->setText(QStringLiteral("Gewählt: <b>%1</b>").arg(text.toHtmlEscaped()));
        });
    }
    auto *row = new QHBoxLayout;
    row->setSpacing(16);
    row->addLayout(withCaption(login, QStringLiteral("Anmelden")));
    row->addLayout(withCaption(search, QStringLiteral("20.000 Konten")));
    row->addWidget(chosen);
    row->addStretch();
    addSection(QStringLiteral("Zum Ausprobieren"),
               QStringLiteral("Tippen Sie „müller“ oder „steuer“, oder klicken Sie auf die Glühbirne."))
        ->addLayout(row);
}
