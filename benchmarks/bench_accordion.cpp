// What one frame costs while a part of an accordion opens and another one closes.

#include <nvo/Accordion.h>
#include <nvo/AccordionSimpleHeader.h>
#include <nvo/Css.h>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include <functional>
#include <memory>

namespace {

constexpr int partCount = 5;
constexpr int frames = 12; // of an animation of 200 milliseconds

QWidget *makeRows(int count)
{
    auto *rows = new QFrame;
    auto *layout = new QVBoxLayout(rows);
    for (int i = 0; i < count; ++i)
        layout->addWidget(new QLabel(QStringLiteral("Zeile %1").arg(i)));
    return rows;
}

NVO::AccordionSimpleHeader *makeHeader(NVO::AccordionPart *part, int number)
{
    auto *header = new NVO::AccordionSimpleHeader(part, nullptr);
    header->setLeftText(QStringLiteral("Teil %1").arg(number));
    return header;
}

/** A column of parts, and how to show one of them to a share of 0 to 1. */
struct Column
{
    std::unique_ptr<QWidget> widget;
    std::function<void(int part, double share)> show;
};

Column ours(int rows)
{
    auto accordion = std::make_unique<NVO::Accordion>(nullptr);
    QVector<QScrollArea *> contents;
    QVector<NVO::AccordionIndicator *> arrows;
    for (int i = 0; i < partCount; ++i) {
        auto *part = new NVO::AccordionPart(nullptr);
        part->setHeader(makeHeader(part, i));
        part->setContent(makeRows(rows));
        accordion->addAccordionPart(part);
        contents << part->findChild<QScrollArea *>();
        arrows << part->findChild<NVO::AccordionIndicator *>();
    }
    return {std::move(accordion), [=](int part, double share) {
                contents[part]->setProperty("hiddenPercent", 100 - 100 * share);
                arrows[part]->setAnimationPercent(100 - 100 * share);
            }};
}

/** The same look, without the parts between column and contents. */
QString flatSheet()
{
    return NVO::Css::instance()
        .css(NVO::ElementAccordion)
        .replace(QLatin1String("> * > "), QLatin1String("> "))
        .replace(QLatin1String("NVO--AccordionHeader"), QLatin1String("QPushButton"))
        .replace(QLatin1String("NVO--AccordionContent"), QLatin1String("#content"));
}

/** The same headers above contents whose height is cut: they lay their rows out in what is left. */
Column maximumHeight(int rows)
{
    auto column = std::make_unique<QFrame>();
    column->setProperty("style", QStringLiteral("Normal"));
    column->setStyleSheet(flatSheet());
    auto *layout = new QVBoxLayout(column.get());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    QVector<QWidget *> contents;
    QVector<NVO::AccordionIndicator *> arrows;
    QVector<int> heights;
    for (int i = 0; i < partCount; ++i) {
        auto *button = new QPushButton;
        auto *inButton = new QHBoxLayout(button);
        inButton->setContentsMargins(1, 0, 1, 0);
        inButton->addWidget(makeHeader(nullptr, i));
        arrows << button->findChild<NVO::AccordionIndicator *>();
        layout->addWidget(button);
        contents << makeRows(rows);
        contents.last()->setObjectName(QStringLiteral("content"));
        heights << contents.last()->sizeHint().height();
        layout->addWidget(contents.last());
        contents.last()->hide();
    }
    return {std::move(column), [=](int part, double share) {
                contents[part]->setVisible(share > 0);
                contents[part]->setMaximumHeight(int(share * heights[part]));
                arrows[part]->setAnimationPercent(100 - 100 * share);
            }};
}

void frame(benchmark::State &state, Column (*make)(int), int rows)
{
    QScrollArea window;
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    const Column column = make(rows);
    column.show(0, 1);
    layout->addWidget(column.widget.get());
    layout->addStretch();
    window.setWidgetResizable(true);
    window.setWidget(page);
    window.resize(400, 600);
    window.show();
    QApplication::processEvents();
    int opening = 1;
    int step = 0;
    for (auto _ : state) {
        step = step % frames + 1;
        column.show((opening + partCount - 1) % partCount, 1 - double(step) / frames);
        column.show(opening, double(step) / frames);
        QApplication::processEvents();
        if (step == frames)
            opening = (opening + 1) % partCount;
    }
    column.widget->setParent(nullptr);
}

BENCHMARK_CAPTURE(frame, ours20, ours, 20)
    ->Name("accordion/frame/20_rows/ours")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(frame, peer20, maximumHeight, 20)
    ->Name("accordion/frame/20_rows/maximum_height")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(frame, ours200, ours, 200)
    ->Name("accordion/frame/200_rows/ours")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(frame, peer200, maximumHeight, 200)
    ->Name("accordion/frame/200_rows/maximum_height")
    ->Unit(benchmark::kMicrosecond);

} // namespace
