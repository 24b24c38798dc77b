#include "pages/LongListPage.h"

#include "pages/BookingAdapter.h"
#include "pages/PageSupport.h"

#include <nvo/Button.h>
#include <nvo/Label.h>
#include <nvo/RecyclingList.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QLocale>
#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>
#include <QVariant>

#include <algorithm>

namespace {

constexpr int entryCount = 1000000;
constexpr int firstShown = 417112;
constexpr int listHeight = 520;
constexpr int emptyListHeight = 130;
constexpr int listWidth = 760;

QString grouped(int number)
{
    return QLocale(QLocale::German).toString(number);
}

/** Without items only the placeholder is there, in the middle of the list. */
class EmptyList : public RecyclingList
{
protected:
    void nullWidget(bool empty, QWidget *widget) override { widget->setVisible(!empty); }
};

void styleList(RecyclingList *list)
{
    list->setProperty("gallery", QStringLiteral("list"));
    list->setFrameShape(QFrame::StyledPanel);
    list->setFocusPolicy(Qt::StrongFocus);
    list->setSpacing(6);
    list->setMarginTopBottom(10);
    list->setMarginRight(6);
}

NVO::Button *makeButton(const QString &text)
{
    auto *button = new NVO::Button;
    button->setText(text);
    return button;
}

} // namespace

LongListPage::LongListPage()
    : m_adapter(new BookingAdapter(entryCount))
    , m_list(new RecyclingList)
    , m_number(new QLineEdit)
    , m_visible(makeCaption(QString(), NVO::Font::DEFAULT))
    , m_alive(makeCaption(QString(), NVO::Font::DEFAULT))
{
    m_adapter->setParent(this);
    addJournal();
    addEmptyList();
}

void LongListPage::addJournal()
{
    styleList(m_list);
    m_list->setAccessibleName(QStringLiteral("Journal"));
    m_list->setMinimumSize(listWidth, listHeight);
    m_list->setAdapter(m_adapter);

    QVBoxLayout *section =
        addSection(QStringLiteral("Eine Million Buchungen"),
                   QStringLiteral("Einträge zweier Arten in verschiedenen Höhen. Nur für die sichtbaren gibt "
                                  "es Widgets, dazu höchstens zehn in Reserve."));
    section->addLayout(makeCommands());
    section->addWidget(m_list);
    auto *figures = new QHBoxLayout;
    figures->addWidget(m_visible);
    figures->addStretch();
    figures->addWidget(m_alive);
    section->addLayout(figures);

    connect(m_adapter, &BookingAdapter::aliveWidgetsChanged, this, &LongListPage::showFigures);
    connect(m_list->findChild<QScrollBar *>(), &QScrollBar::valueChanged, this, &LongListPage::showFigures);
    // Only then the list has its size.
    QTimer::singleShot(0, this, [this] { goTo(firstShown); });
}

QHBoxLayout *LongListPage::makeCommands()
{
    m_number->setObjectName(QStringLiteral("entryNumber"));
    m_number->setText(grouped(firstShown));
    m_number->setAccessibleName(QStringLiteral("Nummer des Eintrags"));
    m_number->setFixedWidth(120);
    NVO::Button *go = makeButton(QStringLiteral("Anzeigen"));
    NVO::Button *insert = makeButton(QStringLiteral("Davor einfügen"));
    NVO::Button *remove = makeButton(QStringLiteral("Löschen"));

    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(makeLabel(QStringLiteral("Eintrag Nr.")));
    for (QWidget *widget : QList<QWidget *>{m_number, go, insert, remove})
        row->addWidget(widget);
    row->addStretch();

    const auto show = [this] { goTo(chosenPosition()); };
    connect(m_number, &QLineEdit::returnPressed, this, show);
    connect(go, &NVO::Button::clicked, this, show);
    connect(insert, &NVO::Button::clicked, this, [this] {
        const int position = std::max(chosenPosition(), 0);
        m_adapter->insert(position);
        goTo(position);
    });
    connect(remove, &NVO::Button::clicked, this, [this] {
        const int position = chosenPosition();
        if (position >= 0)
            m_adapter->remove(position);
        goTo(chosenPosition());
    });
    return row;
}

/** That of the number in the field, or the nearest there is; -1 without entries. */
int LongListPage::chosenPosition() const
{
    const int number = m_number->text().remove(QLatin1Char('.')).toInt();
    return std::min(std::max(number, 1), m_adapter->count()) - 1;
}

void LongListPage::goTo(int position)
{
    m_number->setText(grouped(position + 1));
    m_list->slotEnsureVisible(position);
    showFigures();
}

void LongListPage::showFigures()
{
    const auto [first, last] = m_list->fullyVisiblePositions();
    m_visible->setText(QStringLiteral("Sichtbar: <b>%1</b> bis <b>%2</b> von %3")
                           .arg(grouped(first + 1), grouped(last + 1), grouped(m_adapter->count())));
    m_alive->setText(QStringLiteral("Lebende Widgets: <b>%1</b>").arg(grouped(m_adapter->aliveWidgets())));
}

void LongListPage::addEmptyList()
{
    auto *list = new EmptyList;
    styleList(list);
    list->setAccessibleName(QStringLiteral("Leeres Journal"));
    list->setMinimumHeight(emptyListHeight);
    auto *layout = new QVBoxLayout;
    layout->addStretch();
    layout->addWidget(makeLabel(QStringLiteral("Keine Buchungen"), NVO::Font::DEFAULT, LabelRole::Name), 0,
                      Qt::AlignHCenter);
    layout->addWidget(makeCaption(QStringLiteral("Im gewählten Zeitraum wurde nichts gebucht.")), 0,
                      Qt::AlignHCenter);
    layout->addStretch();
    list->setNothingWidgetLayout(layout);
    auto *nothing = new BookingAdapter(0);
    nothing->setParent(list);
    list->setAdapter(nothing);
    addSection(QStringLiteral("Leere Liste"),
               QStringLiteral("Ohne Einträge steht ein Hinweis an der Stelle der Liste."))
        ->addWidget(list);
}

/** The texts grow and shrink with the font, and with them the entries. */
bool LongListPage::event(QEvent *event)
{
    const bool result = Page::event(event);
    if (event->type() == QEvent::ApplicationFontChange)
        QTimer::singleShot(0, m_adapter, &RecyclingListAdapter::signalUpdateRecyclingListOrder);
    return result;
}
