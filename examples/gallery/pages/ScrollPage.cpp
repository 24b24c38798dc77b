#include "pages/ScrollPage.h"

#include "pages/ForcedState.h"
#include "pages/PageSupport.h"

#include <nvo/Label.h>
#include <nvo/ScrollArea.h>
#include <nvo/ScrollAreaWithButton.h>
#include <nvo/ScrollBar.h>
#include <nvo/ScrollButton.h>

#include <QFrame>
#include <QGridLayout>
#include <QMetaEnum>
#include <QTimer>
#include <QVBoxLayout>

#include <array>

namespace {

using BarStyle = NVO::ScrollBar::ScrollBarStyle;

constexpr int barLength = 170;
constexpr int buttonWidth = 110;
constexpr int cellPadding = 8;
constexpr QSize areaSize(210, 170);
constexpr std::array<ForcedState::State, 4> states{ForcedState::Normal, ForcedState::Hover,
                                                   ForcedState::Pressed, ForcedState::Disabled};

/** A style of the arrow buttons as the page shows it. */
struct Look
{
    NVO::ScrollButtonStyle style;
    const char *name;
    const char *use;
    bool onDark;
};

constexpr std::array<Look, 3> looks{{
    {NVO::ScrollButtonStyle::Dark, "Dark", "Auf hellem Grund", false},
    {NVO::ScrollButtonStyle::Error, "Error", "Über fehlerhaften Angaben", false},
    {NVO::ScrollButtonStyle::Light, "Light", "Auf dunklem Grund", true},
}};

NVO::ScrollBar *makeBar(BarStyle style, Qt::Orientation orientation, bool enabled)
{
    auto *bar = new NVO::ScrollBar(orientation, nullptr);
    bar->setScrollBarStyle(style);
    bar->setRange(0, 100);
    bar->setPageStep(50);
    bar->setValue(30);
    bar->setEnabled(enabled);
    if (orientation == Qt::Vertical)
        bar->setFixedHeight(barLength);
    else
        bar->setFixedWidth(barLength);
    return bar;
}

/** Both directions, alive and disabled. */
QFrame *makeBars(BarStyle style)
{
    const bool onDark = style == NVO::ScrollBar::Navigation;
    QFrame *ground = makeGround(onDark ? Ground::Dark : Ground::Outline);
    auto *grid = new QGridLayout(ground);
    grid->setContentsMargins(12, 12, 12, 12);
    grid->setSpacing(12);
    grid->addWidget(makeLabel(QString::fromLatin1(QMetaEnum::fromType<BarStyle>().valueToKey(style)),
                              NVO::Font::DEFAULT, onDark ? LabelRole::OnDark : LabelRole::Name),
                    0, 2);
    for (const bool enabled : {true, false}) {
        const int place = enabled ? 0 : 1;
        grid->addWidget(makeBar(style, Qt::Vertical, enabled), 0, place, 4, 1, Qt::AlignTop);
        grid->addWidget(makeBar(style, Qt::Horizontal, enabled), place + 1, 2);
    }
    grid->setRowStretch(3, 1);
    return ground;
}

NVO::ScrollButton *makeArrow(NVO::ScrollButtonStyle style, NVO::Direction direction)
{
    auto *button = new NVO::ScrollButton;
    button->setStyle(style);
    button->setDirection(direction);
    button->setFixedWidth(buttonWidth);
    return button;
}

/** Bookings, one below the other. */
QWidget *makeRows(LabelRole role)
{
    auto *rows = new QWidget;
    auto *column = new QVBoxLayout(rows);
    column->setContentsMargins(12, 8, 12, 8);
    column->setSpacing(8);
    for (int number = 1; number <= 16; ++number)
        column->addWidget(
            makeLabel(QStringLiteral("Rechnung 2026-%1").arg(400 + number), NVO::Font::DEFAULT, role));
    return rows;
}

/** Lets the ground of the page show through an area that is there to be put on any. */
void makeClear(QScrollArea *area)
{
    area->setFixedSize(areaSize);
    area->viewport()->setAutoFillBackground(false);
    area->widget()->setAutoFillBackground(false);
}

NVO::ScrollAreaWithButton *makeArrowArea(NVO::ScrollButtonStyle style, LabelRole role)
{
    auto *area = new NVO::ScrollAreaWithButton;
    area->setFrameStyle(0);
    area->setWidgetResizable(true);
    area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->topScrollButton()->setStyle(style);
    area->bottomScrollButton()->setStyle(style);
    area->setWidget(makeRows(role));
    makeClear(area);
    area->setButtonMargins(0, -1); // the right edge of the arrows goes under that of the area
    // Both arrows show in the middle, which is known once the rows are laid out.
    QScrollBar *bar = area->verticalScrollBar();
    QTimer::singleShot(0, bar, [bar] { bar->setValue(bar->maximum() / 2); });
    return area;
}

QVBoxLayout *framed(QWidget *widget, Ground ground, const QString &caption)
{
    QFrame *frame = makeGround(ground);
    auto *inner = new QVBoxLayout(frame);
    inner->setContentsMargins(1, 1, 1, 1);
    inner->addWidget(widget);
    return withCaption(frame, caption);
}

} // namespace

ScrollPage::ScrollPage()
{
    addBars();
    addButtons();
    addAreas();
}

void ScrollPage::addBars()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(16);
    for (const BarStyle style :
         {NVO::ScrollBar::Dialog, NVO::ScrollBar::DropDown, NVO::ScrollBar::Navigation})
        row->addWidget(makeBars(style));
    row->addStretch();
    addSection(QStringLiteral("Bildlaufleisten"),
               QStringLiteral("Für Dialoge, für aufgeklappte Listen und für die Navigation auf dunklem "
                              "Grund; je eine zum Bedienen und eine deaktivierte."))
        ->addLayout(row);
}

void ScrollPage::addButtons()
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(0);
    for (int column = 0; column < int(states.size()); ++column)
        grid->addWidget(makeCaption(ForcedState::title(states.at(std::size_t(column)))), 0, column + 1,
                        Qt::AlignHCenter);
    for (const Look &look : looks) {
        const int row = grid->rowCount();
        if (look.onDark)
            grid->addWidget(makeGround(Ground::Dark), row, 0, 1, int(states.size()) + 1);
        auto *caption = new QVBoxLayout;
        caption->setContentsMargins(cellPadding, cellPadding, cellPadding, cellPadding);
        caption->setSpacing(1);
        caption->addWidget(makeLabel(QString::fromLatin1(look.name), NVO::Font::DEFAULT,
                                     look.onDark ? LabelRole::OnDark : LabelRole::Name));
        caption->addWidget(makeLabel(QString::fromUtf8(look.use), NVO::Font::SMALL,
                                     look.onDark ? LabelRole::CaptionOnDark : LabelRole::Caption));
        grid->addLayout(caption, row, 0);
        for (int column = 0; column < int(states.size()); ++column) {
            auto *pair = new QVBoxLayout;
            pair->setContentsMargins(0, cellPadding, cellPadding, cellPadding);
            pair->setSpacing(4);
            for (const NVO::Direction direction : {NVO::Up, NVO::Down}) {
                NVO::ScrollButton *button = makeArrow(look.style, direction);
                ForcedState::apply(button, states.at(std::size_t(column)));
                pair->addWidget(button, 0, Qt::AlignHCenter);
            }
            grid->addLayout(pair, row, column + 1);
        }
    }
    addSection(QStringLiteral("Pfeile"),
               QStringLiteral("Sie schweben über dem Inhalt; gehalten rollen sie weiter."))
        ->addLayout(grid);
}

void ScrollPage::addAreas()
{
    auto *plain = new NVO::ScrollArea;
    plain->setWidget(makeRows(LabelRole::Text));
    makeClear(plain);

    auto *row = new QHBoxLayout;
    row->setSpacing(16);
    row->addLayout(framed(plain, Ground::Outline, QStringLiteral("mit Bildlaufleiste")));
    row->addLayout(framed(makeArrowArea(NVO::ScrollButtonStyle::Dark, LabelRole::Text), Ground::Outline,
                          QStringLiteral("mit Pfeilen")));
    row->addLayout(framed(makeArrowArea(NVO::ScrollButtonStyle::Light, LabelRole::OnDark), Ground::Dark,
                          QStringLiteral("mit Pfeilen auf dunklem Grund")));
    row->addStretch();
    addSection(QStringLiteral("Rollbereiche"),
               QStringLiteral("Mit dem Mausrad, mit Tabulator und mit den Pfeilen. Ein Pfeil zeigt sich nur, "
                              "solange es auf seiner Seite weitergeht."))
        ->addLayout(row);
}
