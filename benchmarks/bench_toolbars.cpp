// What it costs to resize a tool bar across the width at which its texts break, and to change a badge.

#include <nvo/ToolBar.h>
#include <nvo/ToolBarButton.h>

#include <benchmark/benchmark.h>

#include <QAction>
#include <QApplication>
#include <QHBoxLayout>

#include <memory>

namespace {

constexpr int narrow = 1099;
constexpr int wide = 1100;
constexpr int barHeight = 60;
const QString oneLine = QStringLiteral("Offene Posten");
const QString twoLines = QStringLiteral("Offene\nPosten");

template <typename Bar>
std::unique_ptr<Bar> shownBar(int count)
{
    auto bar = std::make_unique<Bar>();
    bar->setToolButtonStyle(Qt::ToolButtonTextOnly);
    for (int i = 0; i < count; ++i)
        bar->addAction(new QAction(oneLine, bar.get()));
    bar->resize(narrow, barHeight);
    bar->show();
    QApplication::processEvents();
    return bar;
}

template <typename Bar, typename Fit>
void resize(benchmark::State &state, int count, Fit fit)
{
    const auto bar = shownBar<Bar>(count);
    const QList<QAction *> actions = bar->actions();
    bool isWide = false;
    for (auto _ : state) {
        isWide = !isWide;
        bar->resize(isWide ? wide : narrow, barHeight);
        fit(actions, isWide);
        QApplication::processEvents();
    }
    const bool broken = !isWide || count > 18;
    if (bar->actions().last()->text() != (broken ? twoLines : oneLine))
        state.SkipWithError("the texts are not what they should be");
}

void ours(benchmark::State &state, int count)
{
    resize<NVO::ToolBar>(state, count, [](const QList<QAction *> &, bool) {});
}

void byHand(benchmark::State &state, int count)
{
    resize<QToolBar>(state, count, [count](const QList<QAction *> &actions, bool isWide) {
        for (QAction *action : actions)
            action->setText(isWide && count <= 18 ? oneLine : twoLines);
    });
}

/** A badge is changed and painted, on a button alone or on one among many. */
void badge(benchmark::State &state, int count)
{
    QWidget bar;
    auto *row = new QHBoxLayout(&bar);
    const auto addButton = [row] {
        auto *button = new NVO::ToolBarButton;
        button->setText(oneLine);
        row->addWidget(button);
        return button;
    };
    NVO::ToolBarButton *button = addButton();
    for (int i = 1; i < count; ++i)
        addButton();
    bar.show();
    QApplication::processEvents();
    int number = 0;
    for (auto _ : state) {
        button->setCounter(++number % 100);
        QApplication::processEvents();
    }
}

BENCHMARK_CAPTURE(ours, 30, 30)->Name("toolbar/resize/30/ours")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(byHand, 30, 30)->Name("toolbar/resize/30/by_hand")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(ours, 18, 18)->Name("toolbar/resize/18/ours")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(byHand, 18, 18)->Name("toolbar/resize/18/by_hand")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(badge, 30, 30)->Name("toolbar/badge/ours")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(badge, 1, 1)->Name("toolbar/badge/alone")->Unit(benchmark::kMicrosecond);

} // namespace
