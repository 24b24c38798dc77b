#include "pages/AccordionPage.h"

#include "pages/ForcedState.h"
#include "pages/PageSupport.h"

#include <nvo/AccordionIndicator.h>
#include <nvo/AccordionSimpleHeader.h>
#include <nvo/Label.h>

#include <QApplication>
#include <QEvent>
#include <QGridLayout>
#include <QMetaEnum>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace {

using NVO::Accordion;
using NVO::AccordionPart;
using NVO::AccordionState;

/** A part as the page shows it. */
struct Entry
{
    QString title;
    QString amount;
    QStringList rows; // "caption|value"
};

const QVector<Entry> &entries()
{
    static const QVector<Entry> entries{
        {QStringLiteral("Einnahmen"),
         QStringLiteral("48.210,00 €"),
         {QStringLiteral("Warenverkauf 19 %|41.650,00 €"), QStringLiteral("Dienstleistungen|6.560,00 €")}},
        {QStringLiteral("Betriebsausgaben"),
         QStringLiteral("17.934,50 €"),
         {QStringLiteral("Miete und Nebenkosten|9.600,00 €"), QStringLiteral("Fahrzeugkosten|5.112,20 €"),
          QStringLiteral("Bürobedarf|3.222,30 €")}},
        {QStringLiteral("Abschreibungen"),
         QStringLiteral("4.120,00 €"),
         {QStringLiteral("Betriebs- und Geschäftsausstattung|4.120,00 €")}},
    };
    return entries;
}

QWidget *makeRows(const QStringList &rows)
{
    auto *content = new QWidget;
    auto *grid = new QGridLayout(content);
    grid->setContentsMargins(32, 8, 12, 10);
    grid->setVerticalSpacing(4);
    grid->setColumnStretch(0, 1);
    for (int row = 0; row < rows.size(); ++row) {
        grid->addWidget(makeLabel(rows[row].section('|', 0, 0)), row, 0, Qt::AlignLeft);
        grid->addWidget(makeLabel(rows[row].section('|', 1)), row, 1, Qt::AlignRight);
    }
    return content;
}

NVO::AccordionSimpleHeader *makeHeader(AccordionPart *part, const QString &title, const QString &right)
{
    auto *header = new NVO::AccordionSimpleHeader(part, nullptr);
    header->setLeftText(title);
    header->setRightText(right);
    part->setHeader(header);
    return header;
}

AccordionPart *addPart(Accordion *accordion, const Entry &entry)
{
    auto *part = new AccordionPart(nullptr);
    makeHeader(part, entry.title, entry.amount);
    part->setContent(makeRows(entry.rows));
    accordion->addAccordionPart(part);
    return part;
}

NVO::AccordionSimpleHeader *headerOf(const AccordionPart *part)
{
    return part->findChild<NVO::AccordionSimpleHeader *>();
}

QPushButton *buttonOf(const AccordionPart *part)
{
    return part->findChild<QPushButton *>(QString(), Qt::FindDirectChildrenOnly);
}

/** An accordion whose first part is open; the second is marked. */
Accordion *makeAccordion(Accordion::AccordionStyle style)
{
    auto *accordion = new Accordion(nullptr);
    accordion->setAccordionStyle(style);
    for (const Entry &entry : entries()) {
        AccordionPart *part = addPart(accordion, entry);
        const bool marked = &entry == &entries().at(1);
        NVO::AccordionSimpleHeader *header = headerOf(part);
        header->setLeftTextHighlight(marked);
        header->setColorIndicatorHighlight(marked);
        header->setColorIndicatorVisible(style != Accordion::Inline && style != Accordion::Infocenter);
        header->setIndicatorSize(style == Accordion::Backstage ? NVO::AccordionIndicator::Big
                                                               : NVO::AccordionIndicator::Small);
        QObject::connect(header, &NVO::AccordionSimpleHeader::coloredIndicatorPressed, header, [header] {
            header->setColorIndicatorHighlight(!header->colorIndicatorHightlight());
            header->setLeftTextHighlight(header->colorIndicatorHightlight());
        });
    }
    accordion->setFirstPartState(AccordionState::Expanded);
    return accordion;
}

/** Holds a part where its animation would be with \a hidden percent still to go. */
void holdAt(AccordionPart *part, double hidden)
{
    part->setState(AccordionState::Expanded);
    part->findChild<QScrollArea *>(QString(), Qt::FindDirectChildrenOnly)
        ->setProperty("hiddenPercent", hidden);
    part->findChild<NVO::AccordionIndicator *>()->setAnimationPercent(hidden);
}

QVBoxLayout *captioned(const QString &caption, QWidget *widget)
{
    auto *column = new QVBoxLayout;
    column->setSpacing(4);
    column->addWidget(makeCaption(caption));
    column->addWidget(widget);
    column->addStretch();
    return column;
}

} // namespace

AccordionPage::AccordionPage()
{
    addStyles();
    addStates();
    addHalfOpen();
    addNested();
}

void AccordionPage::addStyles()
{
    const QMetaEnum styles = QMetaEnum::fromType<Accordion::AccordionStyle>();
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(20);
    for (int i = 0; i < styles.keyCount(); ++i)
        grid->addLayout(captioned(QString::fromLatin1(styles.key(i)),
                                  makeAccordion(Accordion::AccordionStyle(styles.value(i)))),
                        i / 2, i % 2);
    addSection(QStringLiteral("Acht Stile"),
               QStringLiteral("Ein Klick auf einen Kopf öffnet seinen Teil und schließt die anderen. Der "
                              "farbige Kasten hat einen eigenen Klick: er markiert den Teil."))
        ->addLayout(grid);
}

void AccordionPage::addStates()
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(20);
    int cell = 0;
    for (const auto style : {Accordion::Normal, Accordion::Inline, Accordion::Booking, Accordion::VaSt}) {
        auto *accordion = new Accordion(nullptr);
        accordion->setAccordionStyle(style);
        for (const auto state : {ForcedState::Normal, ForcedState::Hover, ForcedState::Pressed,
                                 ForcedState::Focus, ForcedState::Disabled}) {
            AccordionPart *part =
                addPart(accordion, {ForcedState::title(state), QStringLiteral("120,00 €"), {}});
            QPushButton *button = buttonOf(part);
            if (state == ForcedState::Disabled)
                part->setEnabled(false);
            else
                ForcedState::apply(button, state);
            // The lines ask for the focus when the header hears of it, or of the mouse.
            if (state == ForcedState::Focus) {
                const auto look = [button] {
                    QEvent leave(QEvent::Leave);
                    QApplication::sendEvent(button, &leave);
                };
                connect(qApp, &QApplication::focusChanged, button, look);
                look();
            }
        }
        grid->addWidget(accordion, cell / 2, cell % 2, Qt::AlignTop);
        ++cell;
    }
    addSection(
        QStringLiteral("Zustände"),
        QStringLiteral("Wo Teile sich eine Linie teilen, leuchtet sie mit dem Kopf, der den Fokus hat."))
        ->addLayout(grid);
}

void AccordionPage::addHalfOpen()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(24);
    for (const double hidden : {75.0, 50.0, 25.0}) {
        auto *accordion = new Accordion(nullptr);
        AccordionPart *part = addPart(accordion, entries().at(1));
        addPart(accordion, entries().at(2));
        holdAt(part, hidden);
        row->addLayout(captioned(QStringLiteral("zu %1 % offen").arg(100 - hidden), accordion));
    }
    addSection(QStringLiteral("Unterwegs"),
               QStringLiteral("Der Inhalt behält seine Höhe und gleitet unter der Kante hervor, der Pfeil "
                              "dreht sich mit ihm."))
        ->addLayout(row);
}

void AccordionPage::addNested()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(24);
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        auto *outer = new Accordion(nullptr);
        outer->setLayoutDirection(direction);
        auto *part = new AccordionPart(nullptr);
        makeHeader(part, QStringLiteral("Gewinnermittlung 2026"), QStringLiteral("26.155,50 €"));
        auto *content = new QWidget;
        auto *column = new QVBoxLayout(content);
        column->setContentsMargins(24, 6, 24, 8);
        column->addWidget(makeAccordion(Accordion::Inline));
        part->setContent(content);
        outer->addAccordionPart(part);
        addPart(outer, entries().at(2));
        outer->setFirstPartState(AccordionState::Expanded);
        row->addWidget(outer, 1, Qt::AlignTop);
    }
    addSection(QStringLiteral("Ineinander"),
               QStringLiteral("Ein Akkordeon im Inhalt eines anderen behält seinen eigenen Stil; rechts von "
                              "rechts nach links."))
        ->addLayout(row);
}
