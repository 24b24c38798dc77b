#include "pages/LinksPage.h"

#include "pages/ForcedState.h"
#include "pages/PageSupport.h"

#include <nvo/DialogButton.h>
#include <nvo/Icon.h>
#include <nvo/IconButton.h>
#include <nvo/Label.h>
#include <nvo/Link.h>

#include <QFrame>
#include <QGridLayout>
#include <QIcon>
#include <QMenu>
#include <QPainter>
#include <QVBoxLayout>

#include <array>
#include <functional>
#include <memory>

namespace {

using NVO::DialogButton;
using NVO::IconButton;
using NVO::IconButtonStyle;
using NVO::Link;

constexpr int cellPadding = 10;
constexpr int framePadding = 4;
constexpr qreal disabledOpacity = 0.5;
constexpr std::array<ForcedState::State, 5> states{
    ForcedState::Normal, ForcedState::Hover, ForcedState::Pressed, ForcedState::Focus, ForcedState::Disabled};

/** A look as the page shows it, in all states. */
struct Look
{
    QString name;
    QString use;
    std::function<QWidget *()> make;
};

/** An image of the theme; style sheets cannot dim an icon, and a style does not dim a white one. */
QIcon makeIcon(const QString &image)
{
    const QPixmap pixmap = themeImage(image);
    QPixmap dimmed = pixmap;
    dimmed.fill(Qt::transparent);
    QPainter painter(&dimmed);
    painter.setOpacity(disabledOpacity);
    painter.drawPixmap(0, 0, pixmap);
    painter.end();
    QIcon icon(pixmap);
    icon.addPixmap(dimmed, QIcon::Disabled);
    return icon;
}

QMenu *makeMenu(QWidget *owner)
{
    auto *menu = new QMenu(owner);
    menu->addAction(QStringLiteral("100 %"));
    menu->addAction(QStringLiteral("125 %"));
    menu->addAction(QStringLiteral("150 %"));
    return menu;
}

Link *makeLink(Link::LinkStyle style, const QString &text, const QString &image = QString())
{
    auto *link = new Link;
    link->setLinkStyle(style);
    link->setText(text);
    if (!image.isEmpty())
        link->setIcon(makeIcon(image));
    return link;
}

IconButton *makeIconButton(IconButtonStyle style, const QString &text, const QString &image)
{
    auto *button = new IconButton;
    button->setIconButtonStyle(style);
    button->setText(text);
    button->setIcon(makeIcon(image));
    button->setToolTip(QStringLiteral("Hilfe zu dieser Seite"));
    return button;
}

DialogButton *makeDialogButton(DialogButton::ButtonType type, bool primary, bool dark)
{
    auto *button = new DialogButton(NVO::Icon(), type, nullptr);
    button->setProperty("buttonPrimary", primary);
    button->setProperty("buttonSecondary", !primary);
    button->setProperty("DarkBackground", dark);
    button->setAutoDefault(false);
    return button;
}

QLayout *makeLookCaption(const Look &look, bool onDark)
{
    auto *caption = new QVBoxLayout;
    caption->setContentsMargins(cellPadding, cellPadding, 0, cellPadding);
    caption->setSpacing(1);
    caption->addWidget(
        makeLabel(look.name, NVO::Font::DEFAULT, onDark ? LabelRole::OnDark : LabelRole::Name));
    caption->addWidget(
        makeLabel(look.use, NVO::Font::SMALL, onDark ? LabelRole::CaptionOnDark : LabelRole::Caption));
    return caption;
}

void addRows(QGridLayout *grid, const QVector<Look> &looks, bool onDark)
{
    const int first = grid->rowCount();
    for (const Look &look : looks) {
        const int row = grid->rowCount();
        grid->addLayout(makeLookCaption(look, onDark), row, 0);
        for (int column = 0; column < int(states.size()); ++column) {
            QWidget *widget = look.make();
            ForcedState::apply(widget, states.at(std::size_t(column)));
            grid->addWidget(widget, row, column + 1, Qt::AlignCenter);
        }
    }
    if (!onDark)
        return;
    QFrame *ground = makeGround(Ground::Dark);
    grid->addWidget(ground, first, 0, int(looks.size()), grid->columnCount());
    ground->lower();
}

/** The looks in the states side by side, those for a dark ground below. */
void addMatrix(QVBoxLayout *section, const QVector<Look> &light, const QVector<Look> &dark)
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(0);
    section->addLayout(grid);
    for (int column = 0; column < int(states.size()); ++column) {
        grid->addWidget(makeCaption(ForcedState::title(states.at(std::size_t(column)))), 0, column + 1,
                        Qt::AlignHCenter);
        grid->setColumnStretch(column + 1, 1);
    }
    addRows(grid, light, false);
    addRows(grid, dark, true);
}

QHBoxLayout *addRow(QVBoxLayout *section)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(24);
    section->addLayout(row);
    return row;
}

/** A row on a dark ground. */
QHBoxLayout *addDarkRow(QVBoxLayout *section)
{
    QFrame *ground = makeGround(Ground::Dark);
    auto *row = new QHBoxLayout(ground);
    row->setContentsMargins(cellPadding, cellPadding, cellPadding, cellPadding);
    row->setSpacing(24);
    section->addWidget(ground);
    return row;
}

/** \a button stretched over a frame that shows where it ends. */
QFrame *framed(NVO::AbstractButton *button)
{
    QFrame *frame = makeGround(Ground::Outline);
    auto *layout = new QVBoxLayout(frame);
    layout->setContentsMargins(framePadding, framePadding, framePadding, framePadding);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    layout->addWidget(button);
    return frame;
}

} // namespace

LinksPage::LinksPage()
{
    addLinks();
    addIconButtons();
    addMenus();
    addAlignments();
    addDialogButtons();
    addTrial();
}

void LinksPage::addLinks()
{
    const auto look = [](const char *name, const char *use, Link::LinkStyle style, const char *text) {
        return Look{QString::fromLatin1(name), QString::fromUtf8(use),
                    [style, text] { return makeLink(style, QString::fromUtf8(text)); }};
    };
    addMatrix(addSection(QStringLiteral("Links"),
                         QStringLiteral("Die Links der Spalte „Normal“ lassen sich bedienen; die anderen "
                                        "Spalten zeigen einen festgehaltenen Zustand.")),
              {look("Dark", "Auf einer Seite", Link::Dark, "Beleg anzeigen"),
               look("FlyoutDark", "Im Flyout, in Leisten", Link::FlyoutDark, "Konto wechseln"),
               look("LoginInput", "Am Feld der Anmeldung", Link::LoginInput, "Passwort vergessen?")},
              {look("Light", "Auf dunklem Grund", Link::Light, "Beleg anzeigen"),
               look("FlyoutLight", "Im dunklen Flyout", Link::FlyoutLight, "Konto wechseln"),
               look("Login", "Auf der Anmeldeseite", Link::Login, "Mandant wechseln")});
}

void LinksPage::addIconButtons()
{
    const auto look = [](const char *name, const char *use, IconButtonStyle style, const char *image,
                         const QString &text) {
        return Look{QString::fromLatin1(name), QString::fromUtf8(use),
                    [style, image, text] { return makeIconButton(style, text, QString::fromLatin1(image)); }};
    };
    const QString help = QStringLiteral("Hilfe");
    addMatrix(
        addSection(QStringLiteral("Symbolschaltflächen"),
                   QStringLiteral("Ohne Text nennt der Tooltip die Schaltfläche für Vorleseprogramme.")),
        {look("Dark", "Mit Text", IconButtonStyle::Dark, "hilfe_16", help),
         look("Dark", "Nur Symbol", IconButtonStyle::Dark, "hilfe_16", QString()),
         look("DarkSmall", "In kleiner Schrift", IconButtonStyle::DarkSmall, "hilfe_16", help)},
        {look("Light", "Auf dunklem Grund", IconButtonStyle::Light, "hilfe_hell_16", help),
         look("Light", "Nur Symbol", IconButtonStyle::Light, "hilfe_hell_16", QString()),
         look("LightSmall", "In kleiner Schrift", IconButtonStyle::LightSmall, "hilfe_hell_16", help)});
}

void LinksPage::addMenus()
{
    QVBoxLayout *section = addSection(
        QStringLiteral("Symbol und Menü"),
        QStringLiteral("Das Symbol steht vor dem Text, der Pfeil eines Menüs dahinter; beides ist frei."));
    for (const bool dark : {false, true}) {
        QHBoxLayout *row = dark ? addDarkRow(section) : addRow(section);
        const Link::LinkStyle page = dark ? Link::Light : Link::Dark;
        const Link::LinkStyle bar = dark ? Link::FlyoutLight : Link::FlyoutDark;
        const QString image = dark ? QStringLiteral("checkmark_hell_16") : QStringLiteral("checkmark_16");
        const QString help = dark ? QStringLiteral("hilfe_hell_16") : QStringLiteral("hilfe_16");
        row->addWidget(makeLink(page, QStringLiteral("Alle Belege")));
        row->addWidget(makeLink(page, QStringLiteral("Geprüfte Belege"), image));
        Link *zoom = makeLink(bar, QStringLiteral("100 %"));
        Link *filter = makeLink(page, QStringLiteral("Zeitraum"), image);
        IconButton *more = makeIconButton(dark ? IconButtonStyle::Light : IconButtonStyle::Dark,
                                          QStringLiteral("Weitere Hilfen"), help);
        for (NVO::AbstractButton *button :
             {static_cast<NVO::AbstractButton *>(zoom), static_cast<NVO::AbstractButton *>(filter),
              static_cast<NVO::AbstractButton *>(more)}) {
            button->setMenu(makeMenu(button));
            row->addWidget(button);
        }
        auto *locked = makeLink(page, QStringLiteral("Gesperrt"), image);
        locked->setMenu(makeMenu(locked));
        locked->setEnabled(false);
        row->addWidget(locked);
        row->addStretch();
    }
}

void LinksPage::addAlignments()
{
    auto *grid = new QGridLayout;
    grid->setSpacing(8);
    addSection(QStringLiteral("Ausrichtung"),
               QStringLiteral("Symbol und Pfeil bleiben am Text, auch von rechts nach links."))
        ->addLayout(grid);
    const std::array<Qt::Alignment, 3> alignments{Qt::AlignLeft | Qt::AlignVCenter, Qt::AlignCenter,
                                                  Qt::AlignRight | Qt::AlignVCenter};
    const QStringList names{QStringLiteral("am Anfang"), QStringLiteral("in der Mitte"),
                            QStringLiteral("am Ende")};
    for (int column = 0; column < int(alignments.size()); ++column) {
        grid->addWidget(makeCaption(names.at(column)), 0, column, Qt::AlignHCenter);
        grid->setColumnStretch(column, 1);
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            Link *link = makeLink(Link::Dark, QStringLiteral("Zeitraum"), QStringLiteral("checkmark_16"));
            link->setLayoutDirection(direction);
            link->setTextAlignment(alignments.at(std::size_t(column)));
            link->setMenu(makeMenu(link));
            grid->addWidget(framed(link), 1 + int(direction), column);
        }
    }
}

void LinksPage::addDialogButtons()
{
    const auto look = [](const char *name, const char *use, DialogButton::ButtonType type, bool primary,
                         bool dark) {
        return Look{QString::fromUtf8(name), QString::fromUtf8(use),
                    [type, primary, dark] { return makeDialogButton(type, primary, dark); }};
    };
    QVBoxLayout *section = addSection(
        QStringLiteral("Schaltflächen der Dialoge"),
        QStringLiteral("Mindestens 100 Pixel breit; der Dialog sagt, welche die wichtigste ist und "
                       "ob sie auf dunklem Grund steht."));
    addMatrix(section,
              {look("Primär", "Die Vorgabe des Dialogs", DialogButton::Save, true, false),
               look("Sekundär", "Alle anderen", DialogButton::Cancel, false, false)},
              {look("Primär", "Auf dunklem Grund", DialogButton::Save, true, true),
               look("Sekundär", "Auf dunklem Grund", DialogButton::Cancel, false, true)});

    for (const bool dark : {false, true}) {
        QHBoxLayout *row = dark ? addDarkRow(section) : addRow(section);
        row->setSpacing(12);
        row->addWidget(makeIconButton(dark ? IconButtonStyle::Light : IconButtonStyle::Dark,
                                      QStringLiteral("Hilfe"),
                                      dark ? QStringLiteral("hilfe_hell_16") : QStringLiteral("hilfe_16")));
        row->addStretch();
        for (const auto type : {DialogButton::Ok, DialogButton::DeleteBookmark, DialogButton::Cancel})
            row->addWidget(makeDialogButton(type, type == DialogButton::Ok, dark));
        DialogButton *proposal = makeDialogButton(DialogButton::Apply, false, dark);
        proposal->setDefault(true);
        row->addWidget(proposal);
    }
}

void LinksPage::addTrial()
{
    QHBoxLayout *row = addRow(addSection(QStringLiteral("Zum Ausprobieren"),
                                         QStringLiteral("Mit der Maus, mit Tabulator und Leertaste.")));
    Link *show = makeLink(Link::Dark, QStringLiteral("Nächsten Beleg anzeigen"));
    IconButton *lock =
        makeIconButton(IconButtonStyle::Dark, QStringLiteral("Sperren"), QStringLiteral("close_16"));
    lock->setToolTip(QStringLiteral("Sperrt den Link"));
    lock->setCheckable(true);
    NVO::Label *state = makeLabel(QStringLiteral("Noch kein Beleg angezeigt."));
    row->addWidget(show);
    row->addWidget(lock);
    row->addWidget(state, 1);

    const auto number = std::make_shared<int>(0);
    connect(show, &Link::clicked, state, [state, number] {
        ++*number;
        state->setText(QStringLiteral("Beleg <b>%1</b> wird angezeigt.").arg(*number));
    });
    connect(lock, &IconButton::toggled, show, &Link::setDisabled);
}
