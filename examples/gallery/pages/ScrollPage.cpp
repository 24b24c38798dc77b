#include "pages/ScrollPage.h"

#include "pages/ForcedState.h"
#include "pages/PageSupport.h"

#include <nvo/Label.h>
#include <nvo/ScrollArea.h>
#include <nvo/ScrollAreaWithButton.h>
#include <nvo/ScrollBar.h>
#include <nvo/ScrollButton.h>

#include <QApplication>
#include <QFrame>
#include <QGridLayout>
#include <QMetaEnum>
#include <QMouseEvent>
#include <QTimer>
#include <QVBoxLayout>
#include <QVector>

#include <array>
#include <functional>

namespace {

using BarStyle = NVO::ScrollBar::ScrollBarStyle;

constexpr int barLength = 120;
constexpr int barHeight = 56;
constexpr int buttonWidth = 120;
constexpr int cellPadding = 8;
constexpr QSize areaSize(210, 170);
constexpr std::array<ForcedState::State, 4> states{ForcedState::Normal, ForcedState::Hover,
                                                   ForcedState::Pressed, ForcedState::Disabled};

/** A style as the page shows it: one line with a cell for each state. */
struct Look
{
    QString name;
    QString use;
    bool onDark;
    std::function<QWidget *(ForcedState::State)> makeCell;
};

QGridLayout *makeMatrix(const QVector<Look> &looks)
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
        caption->addWidget(
            makeLabel(look.name, NVO::Font::DEFAULT, look.onDark ? LabelRole::OnDark : LabelRole::Name));
        caption->addWidget(makeLabel(look.use, NVO::Font::SMALL,
                                     look.onDark ? LabelRole::CaptionOnDark : LabelRole::Caption));
        caption->addStretch();
        grid->addLayout(caption, row, 0);
        for (int column = 0; column < int(states.size()); ++column) {
            auto *cell = new QVBoxLayout;
            cell->setContentsMargins(0, cellPadding, 0, cellPadding);
            cell->addWidget(look.makeCell(states.at(std::size_t(column))), 0, Qt::AlignHCenter);
            grid->addLayout(cell, row, column + 1);
        }
    }
    return grid;
}

/** Holds the handle of \a bar. */
void press(NVO::ScrollBar *bar)
{
    bar->resize(bar->sizeHint().expandedTo(bar->minimumSize()));
    const QPointF centre = QRectF(bar->rect()).center();
    QMouseEvent event(QEvent::MouseButtonPress, centre, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(bar, &event);
}

NVO::ScrollBar *makeBar(BarStyle style, Qt::Orientation orientation, ForcedState::State state)
{
    auto *bar = new NVO::ScrollBar(orientation, nullptr);
    bar->setScrollBarStyle(style);
    bar->setRange(0, 100);
    bar->setPageStep(60);
    bar->setValue(50);
    if (orientation == Qt::Vertical)
        bar->setFixedHeight(barHeight);
    else
        bar->setFixedWidth(barLength);
    ForcedState::apply(bar, state);
    if (state == ForcedState::Pressed)
        press(bar);
    return bar;
}

QWidget *makeBars(BarStyle style, ForcedState::State state)
{
    auto *pair = new QWidget;
    auto *row = new QHBoxLayout(pair);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(12);
    row->addWidget(makeBar(style, Qt::Vertical, state));
    row->addWidget(makeBar(style, Qt::Horizontal, state), 0, Qt::AlignVCenter);
    return pair;
}

/** The upper and the lower arrow as they close off an area: its frame is their edge at the left and below. */
QWidget *makeArrows(NVO::ScrollButtonStyle style, ForcedState::State state)
{
    const bool onDark = style == NVO::ScrollButtonStyle::Light;
    QFrame *area = makeGround(onDark ? Ground::Dark : Ground::Outline);
    area->setFixedSize(buttonWidth, 72);
    for (const NVO::Direction direction : {NVO::Up, NVO::Down}) {
        auto *button = new NVO::ScrollButton(area);
        button->setStyle(style);
        button->setDirection(direction);
        button->setFixedWidth(buttonWidth - 1);
        button->move(1, direction == NVO::Up ? 0 : area->height() - 1 - button->height());
        ForcedState::apply(button, state);
    }
    return area;
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
    area->resize(areaSize);
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

/** A frame around \a area, whose upper edge is that of an arrow that lies \a top pixels below it. */
QVBoxLayout *framed(QScrollArea *area, Ground ground, int top, const QString &caption)
{
    QFrame *frame = makeGround(ground);
    frame->setFixedSize(areaSize + QSize(2, 1 + top));
    area->setParent(frame);
    area->move(1, top);
    area->setAccessibleName(QStringLiteral("Rollbereich ") + caption);
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
    const auto look = [](BarStyle style, const QString &use) {
        return Look{QString::fromLatin1(QMetaEnum::fromType<BarStyle>().valueToKey(style)), use,
                    style == NVO::ScrollBar::Navigation,
                    [style](ForcedState::State state) { return makeBars(style, state); }};
    };
    addSection(QStringLiteral("Bildlaufleisten"),
               QStringLiteral("Die der Spalte „Normal“ lassen sich bedienen."))
        ->addLayout(makeMatrix({look(NVO::ScrollBar::Dialog, QStringLiteral("In Dialogen und auf Seiten")),
                                look(NVO::ScrollBar::DropDown, QStringLiteral("In aufgeklappten Listen")),
                                look(NVO::ScrollBar::Navigation, QStringLiteral("Auf dunklem Grund"))}));
}

void ScrollPage::addButtons()
{
    const auto look = [](NVO::ScrollButtonStyle style, const QString &name, const QString &use) {
        return Look{name, use, style == NVO::ScrollButtonStyle::Light,
                    [style](ForcedState::State state) { return makeArrows(style, state); }};
    };
    addSection(QStringLiteral("Pfeile"),
               QStringLiteral("Sie schweben über dem Inhalt; gehalten rollen sie weiter."))
        ->addLayout(makeMatrix(
            {look(NVO::ScrollButtonStyle::Dark, QStringLiteral("Dark"), QStringLiteral("Auf hellem Grund")),
             look(NVO::ScrollButtonStyle::Error, QStringLiteral("Error"),
                  QStringLiteral("Über fehlerhaften Angaben")),
             look(NVO::ScrollButtonStyle::Light, QStringLiteral("Light"),
                  QStringLiteral("Auf dunklem Grund"))}));
}

void ScrollPage::addAreas()
{
    auto *plain = new NVO::ScrollArea;
    plain->setWidget(makeRows(LabelRole::Text));
    makeClear(plain);

    auto *row = new QHBoxLayout;
    row->setSpacing(16);
    using ArrowStyle = NVO::ScrollButtonStyle;
    row->addLayout(framed(plain, Ground::Outline, 1, QStringLiteral("mit Bildlaufleiste")));
    row->addLayout(framed(makeArrowArea(ArrowStyle::Dark, LabelRole::Text), Ground::Outline, 0,
                          QStringLiteral("mit Pfeilen")));
    row->addLayout(framed(makeArrowArea(ArrowStyle::Error, LabelRole::Error), Ground::Outline, 0,
                          QStringLiteral("mit Pfeilen, fehlerhaft")));
    row->addLayout(framed(makeArrowArea(ArrowStyle::Light, LabelRole::CaptionOnDark), Ground::Dark, 1,
                          QStringLiteral("mit Pfeilen auf dunklem Grund")));
    row->addStretch();
    addSection(QStringLiteral("Rollbereiche"),
               QStringLiteral("Mit dem Mausrad, mit Tabulator und mit den Pfeilen. Ein Pfeil zeigt sich nur, "
                              "solange es auf seiner Seite weitergeht."))
        ->addLayout(row);
}
