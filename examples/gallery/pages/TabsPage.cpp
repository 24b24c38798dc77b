#include "pages/TabsPage.h"

#include "pages/ForcedState.h"
#include "pages/PageSupport.h"

#include <nvo/Button.h>
#include <nvo/Label.h>
#include <nvo/LineEdit.h>
#include <nvo/SegmentedControl.h>
#include <nvo/TabBar.h>

#include <QCoreApplication>
#include <QFormLayout>
#include <QGridLayout>
#include <QHoverEvent>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <array>

namespace {

constexpr int narrowBar = 300;
constexpr int fieldWidth = 340;
constexpr std::array<ForcedState::State, 4> states{ForcedState::Normal, ForcedState::Hover,
                                                   ForcedState::Focus, ForcedState::Disabled};

using Fields = QVector<QPair<QString, QString>>;

/** A part of the record: a form, filled in. */
QWidget *makeForm(const Fields &fields)
{
    auto *form = new QWidget;
    auto *layout = new QFormLayout(form);
    layout->setContentsMargins(4, 8, 4, 4);
    layout->setHorizontalSpacing(16);
    layout->setVerticalSpacing(8);
    for (const auto &[name, value] : fields) {
        auto *field = new NVO::LineEdit;
        field->setText(value);
        field->setFixedWidth(fieldWidth);
        NVO::Label *label = makeLabel(name);
        label->setBuddy(field);
        layout->addRow(label, field);
    }
    return form;
}

template <typename Bar>
Bar *makeBar(const QStringList &titles)
{
    auto *bar = new Bar;
    for (const QString &title : titles)
        bar->addTab(title);
    return bar;
}

QStringList folders()
{
    return {QStringLiteral("Posteingang"), QStringLiteral("Offen"), QStringLiteral("Wiedervorlage"),
            QStringLiteral("Erledigt")};
}

NVO::SegmentedControl *makeFolders()
{
    auto *bar = makeBar<NVO::SegmentedControl>(folders());
    bar->setNotification(0, QStringLiteral("12"));
    bar->setNotification(1, QStringLiteral("3"));
    return bar;
}

/** Lets the mouse stand in the middle of a bar. */
class HeldHover : public QObject
{
public:
    explicit HeldHover(QTabBar *bar)
        : QObject(bar)
    {
        bar->installEventFilter(this);
        bar->setAttribute(Qt::WA_TransparentForMouseEvents);
        bar->setFocusPolicy(Qt::NoFocus);
    }

    /** The tabs have their places when they are painted; a hover that came before looks at old ones. */
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const QRect rect = static_cast<QWidget *>(watched)->rect();
        if (event->type() != QEvent::Paint || rect == m_rect)
            return false;
        m_rect = rect;
        for (const QEvent::Type type : {QEvent::HoverLeave, QEvent::HoverEnter}) {
            QHoverEvent hover(type, rect.center(), rect.center());
            QCoreApplication::sendEvent(watched, &hover);
        }
        return false;
    }

private:
    QRect m_rect;
};

NVO::Button *makeButton(const QString &text)
{
    auto *button = new NVO::Button;
    button->setText(text);
    return button;
}

} // namespace

TabsPage::TabsPage()
{
    addClientRecord();
    addInbox();
    addStates();
    addWidths();
    addDirections();
}

void TabsPage::addClientRecord()
{
    const QVector<QPair<QString, Fields>> parts{
        {QStringLiteral("Stammdaten"),
         {{QStringLiteral("Name"), QStringLiteral("Papier Lang e. K.")},
          {QStringLiteral("Mandantennummer"), QStringLiteral("70012")},
          {QStringLiteral("Steuernummer"), QStringLiteral("143/815/08151")}}},
        {QStringLiteral("Adressen"),
         {{QStringLiteral("Straße"), QStringLiteral("Am Alten Hafen 7")},
          {QStringLiteral("Ort"), QStringLiteral("28195 Bremen")},
          {QStringLiteral("Land"), QStringLiteral("Deutschland")}}},
        {QStringLiteral("Bankverbindungen"),
         {{QStringLiteral("IBAN"), QStringLiteral("DE02 1203 0000 0000 2020 51")},
          {QStringLiteral("Kontoinhaber"), QStringLiteral("Papier Lang e. K.")},
          {QStringLiteral("Mandatsreferenz"), QStringLiteral("LANG-2026-04")}}},
        {QStringLiteral("Ansprechpartner"),
         {{QStringLiteral("Name"), QStringLiteral("Greta Lang")},
          {QStringLiteral("Telefon"), QStringLiteral("0421 55 30 17")},
          {QStringLiteral("E-Mail"), QStringLiteral("lang@papier-lang.example")}}},
        {QStringLiteral("Verträge"), {}},
    };
    auto *bar = new NVO::TabBar;
    auto *pages = new QStackedWidget;
    for (const auto &[title, fields] : parts) {
        bar->addTab(title);
        pages->addWidget(makeForm(fields));
    }
    bar->setTabEnabled(bar->count() - 1, false);
    bar->setTabToolTip(bar->count() - 1, QStringLiteral("Für diesen Mandanten gibt es keine Verträge."));
    connect(bar, &NVO::TabBar::currentChanged, pages, &QStackedWidget::setCurrentIndex);
    QVBoxLayout *section =
        addSection(QStringLiteral("Mandant 70012"),
                   QStringLiteral("Eine Reiterleiste über die ganze Breite wechselt den Inhalt darunter. Mit "
                                  "der Tastatur: Tabulator, dann die Pfeiltasten."));
    section->addWidget(bar);
    section->addWidget(pages);
}

void TabsPage::addInbox()
{
    NVO::SegmentedControl *bar = makeFolders();
    bar->addTab(QStringLiteral("Archiv"));
    bar->setTabEnabled(bar->count() - 1, false);

    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    NVO::Button *more = makeButton(QStringLiteral("Neuer Beleg"));
    NVO::Button *many = makeButton(QStringLiteral("Stapel einlesen"));
    NVO::Button *done = makeButton(QStringLiteral("Alle gelesen"));
    const auto count = [bar](int step) {
        const int index = bar->currentIndex();
        bar->setNotification(index, QString::number(bar->notification(index).toInt() + step));
    };
    connect(more, &NVO::Button::clicked, bar, [count] { count(1); });
    connect(many, &NVO::Button::clicked, bar, [count] { count(250); });
    connect(done, &NVO::Button::clicked, bar, [bar] {
        if (!bar->notification(bar->currentIndex()).isEmpty())
            bar->setNotification(bar->currentIndex(), QString());
    });
    for (NVO::Button *button : {more, many, done})
        row->addWidget(button);
    row->addStretch();

    NVO::Label *content = makeCaption(QString(), NVO::Font::DEFAULT);
    const auto follow = [content](int index) {
        content->setText(QStringLiteral("Ordner <b>%1</b>").arg(folders().value(index)));
    };
    connect(bar, &NVO::SegmentedControl::currentChanged, content, follow);
    follow(bar->currentIndex());

    QVBoxLayout *section = addSection(
        QStringLiteral("Belege"),
        QStringLiteral("Segmente zeigen neben ihrem Titel eine Meldung. Die Schaltflächen zählen im "
                       "gewählten Ordner hoch oder nehmen die Meldung weg."));
    section->addWidget(bar);
    section->addWidget(content);
    section->addLayout(row);
}

void TabsPage::addStates()
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(12);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(2, 1);
    for (const ForcedState::State state : states) {
        auto *tabs = makeBar<NVO::TabBar>(
            {QStringLiteral("Offen"), QStringLiteral("Gebucht"), QStringLiteral("Storniert")});
        NVO::SegmentedControl *segments = makeFolders();
        segments->removeTab(3);
        for (QTabBar *bar : {static_cast<QTabBar *>(tabs), static_cast<QTabBar *>(segments)}) {
            bar->setCurrentIndex(state == ForcedState::Hover ? 0 : 1); // the mouse is over the second
            if (state == ForcedState::Hover)
                new HeldHover(bar);
            else
                ForcedState::apply(bar, state);
        }
        const int row = grid->rowCount();
        grid->addWidget(makeLabel(ForcedState::title(state), NVO::Font::DEFAULT, LabelRole::Name), row, 0);
        grid->addWidget(tabs, row, 1, Qt::AlignTop);
        grid->addWidget(segments, row, 2, Qt::AlignTop);
    }
    addSection(QStringLiteral("Zustände"),
               QStringLiteral("Die obere Zeile lässt sich bedienen, die anderen halten einen Zustand fest."))
        ->addLayout(grid);
}

void TabsPage::addWidths()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(24);
    auto *narrow = makeBar<NVO::TabBar>({QStringLiteral("Umsatzsteuer-Voranmeldung"),
                                         QStringLiteral("Zusammenfassende Meldung"),
                                         QStringLiteral("Dauerfristverlängerung")});
    narrow->setFixedWidth(narrowBar);
    auto *segments =
        makeBar<NVO::SegmentedControl>({QStringLiteral("Lohnsteueranmeldung"), QStringLiteral("Fristen"),
                                        QStringLiteral("Beitragsnachweis")});
    segments->setNotification(1, QStringLiteral("99+"));
    segments->setFixedWidth(narrowBar);
    auto *single = makeBar<NVO::SegmentedControl>({QStringLiteral("Mahnungen")});
    single->setNotification(0, QStringLiteral("2"));
    row->addLayout(withCaption(narrow, QStringLiteral("Lange Titel")));
    row->addLayout(withCaption(segments, QStringLiteral("Lange Titel und eine Meldung")));
    row->addLayout(withCaption(single, QStringLiteral("Ein Segment")));
    row->addStretch();
    addSection(
        QStringLiteral("Wenig Platz"),
        QStringLiteral("Titel werden gekürzt. Ein Titel mit Meldung behält den Platz, den er braucht."))
        ->addLayout(row);
}

void TabsPage::addDirections()
{
    auto *tabs = makeBar<NVO::TabBar>(folders());
    NVO::SegmentedControl *segments = makeFolders();
    for (QTabBar *bar : {static_cast<QTabBar *>(tabs), static_cast<QTabBar *>(segments)})
        bar->setLayoutDirection(Qt::RightToLeft);
    QVBoxLayout *section = addSection(QStringLiteral("Von rechts nach links"),
                                      QStringLiteral("Für Schriften, die von rechts gelesen werden."));
    section->addWidget(tabs);
    section->addWidget(segments);
}
