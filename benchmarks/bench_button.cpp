#include <nvo/Button.h>
#include <nvo/Css.h>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QFile>
#include <QPushButton>
#include <QResource>
#include <QWidget>

#include <malloc.h>

namespace {

constexpr int buttonCount = 1000;

/** What both sides get is the theme's own sheet; the peer stands in for our class in its selectors. */
QString sheetForPushButtons()
{
    return NVO::Css::instance().css(NVO::ElementButton).replace("NVO--Button", "QPushButton");
}

QPushButton *ours(QWidget *parent)
{
    return new NVO::Button(parent);
}

QPushButton *pushButton(QWidget *parent)
{
    static const QString sheet = sheetForPushButtons();
    auto *button = new QPushButton(parent);
    button->setProperty("style", QStringLiteral("Normal"));
    button->setStyleSheet(sheet);
    return button;
}

template <typename Make>
std::unique_ptr<QWidget> shownWindow(Make make)
{
    auto window = std::make_unique<QWidget>();
    window->resize(1000, 800);
    for (int i = 0; i < buttonCount; ++i)
        make(window.get())->setGeometry(i % 10 * 100, i / 10 * 8, 100, 25);
    window->show();
    return window;
}

template <typename Make>
void constructionToShown(benchmark::State &state, Make make)
{
    for (auto _ : state) {
        const auto window = shownWindow(make);
        state.PauseTiming();
        window->hide();
        QApplication::processEvents();
        const_cast<std::unique_ptr<QWidget> &>(window).reset();
        state.ResumeTiming();
    }
}

template <typename Make>
void memory(benchmark::State &state, Make make)
{
    double bytes = 0;
    for (auto _ : state) {
        const auto before = mallinfo2().uordblks;
        const auto window = shownWindow(make);
        bytes = double(mallinfo2().uordblks - before) / buttonCount;
    }
    state.counters["bytes"] = bytes;
}

BENCHMARK_CAPTURE(constructionToShown, ours, ours)
    ->Name("button/thousand/ours")
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1);
BENCHMARK_CAPTURE(constructionToShown, pushButton, pushButton)
    ->Name("button/thousand/push_button")
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1);
BENCHMARK_CAPTURE(memory, ours, ours)
    ->Name("button/memory/ours")
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1);
BENCHMARK_CAPTURE(memory, pushButton, pushButton)
    ->Name("button/memory/push_button")
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1);

} // namespace
