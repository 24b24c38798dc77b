#include "pages/FlowPage.h"

#include "pages/PageSupport.h"

#include <nvo/Button.h>
#include <nvo/FlowLayout.h>
#include <nvo/Label.h>

#include <QHBoxLayout>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>
#include <QVariant>

namespace {

constexpr int chipSpace = 8;
constexpr int splitHeight = 160; // for the rows of the narrowest filter
constexpr int narrowestFilter = 520;
constexpr int widths[] = {220, 320, 480};

QStringList chipTexts()
{
    return {QStringLiteral("Alle Konten"),    QStringLiteral("Bürobedarf"),
            QStringLiteral("Miete"),          QStringLiteral("Kraftfahrzeuge"),
            QStringLiteral("Reisekosten"),    QStringLiteral("Löhne und Gehälter"),
            QStringLiteral("Versicherungen"), QStringLiteral("Bank"),
            QStringLiteral("Erlöse 19 %"),    QStringLiteral("Erlöse 7 %"),
            QStringLiteral("Skonto"),         QStringLiteral("Geringwertige Wirtschaftsgüter")};
}

/** What can be switched on and off in a filter. */
QPushButton *makeChip(const QString &text, bool checked)
{
    auto *chip = new QPushButton(text);
    chip->setProperty("gallery", QStringLiteral("chip"));
    chip->setCheckable(true);
    chip->setChecked(checked);
    chip->setCursor(Qt::PointingHandCursor);
    return chip;
}

QFrame *makeChips(int count)
{
    QFrame *frame = makeGround(Ground::Outline);
    auto *flow = new NVO::FlowLayout(frame, cardPadding, chipSpace, chipSpace);
    const QStringList texts = chipTexts().mid(0, count);
    for (int i = 0; i < texts.size(); ++i)
        flow->addWidget(makeChip(texts.at(i), i == 1 || i == 4));
    return frame;
}

} // namespace

FlowPage::FlowPage()
{
    addSplit();
    addWidths();
    addDirections();
}

void FlowPage::addSplit()
{
    auto *splitter = new QSplitter;
    splitter->setChildrenCollapsible(false);
    QFrame *filter = makeChips(12);
    filter->setMinimumWidth(narrowestFilter);
    splitter->addWidget(filter);
    auto *rest = makeGround(Ground::Window);
    auto *column = new QVBoxLayout(rest);
    NVO::Label *text = makeCaption(
        QStringLiteral("Der Trenner lässt sich ziehen: Die Schlagwörter brechen um wie ein Text."));
    text->setWordWrap(true);
    column->addWidget(text);
    column->addStretch();
    rest->setMinimumWidth(160);
    splitter->addWidget(rest);
    splitter->setSizes({600, 300});
    // The splitter takes its own limits from its children.
    for (QWidget *side : QList<QWidget *>{filter, rest})
        side->setFixedHeight(splitHeight);
    addSection(QStringLiteral("Schlagwörter als Filter"),
               QStringLiteral("Jedes Schlagwort ist so breit wie sein Text; was in einer Zeile keinen Platz "
                              "hat, beginnt die nächste."))
        ->addWidget(splitter);
}

void FlowPage::addWidths()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(16);
    for (const int width : widths) {
        QFrame *chips = makeChips(9);
        chips->setFixedWidth(width);
        QVBoxLayout *column = withCaption(chips, QStringLiteral("%1 Pixel").arg(width));
        column->addStretch();
        row->addLayout(column);
    }
    row->addStretch();
    addSection(QStringLiteral("Schmal und breit"),
               QStringLiteral("Dieselben Schlagwörter in drei Breiten; die Höhe folgt der Breite."))
        ->addLayout(row);
}

void FlowPage::addDirections()
{
    auto *mixed = new QWidget;
    auto *flow = new NVO::FlowLayout(mixed, 0, chipSpace, chipSpace);
    for (const QString &text : {QStringLiteral("Buchung erfassen"), QStringLiteral("Beleg anhängen"),
                                QStringLiteral("Zahlung zuordnen"), QStringLiteral("Drucken")}) {
        auto *button = new NVO::Button;
        button->setText(text);
        flow->addWidget(button);
    }
    QFrame *mirrored = makeChips(12);
    mirrored->setLayoutDirection(Qt::RightToLeft);
    QVBoxLayout *section =
        addSection(QStringLiteral("Schaltflächen und die andere Richtung"),
                   QStringLiteral("Auch Schaltflächen fließen; von rechts nach links beginnen die Zeilen "
                                  "rechts."));
    section->addWidget(mixed);
    section->addWidget(mirrored);
}
