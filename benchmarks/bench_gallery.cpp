#include "CpuClock.h"
#include "Gallery.h"
#include "MainWindow.h"
#include "PageRegistry.h"
#include "PlainTwin.h"

#include <nvo/Css.h>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QMainWindow>

#include <memory>

namespace {

/** The window of an application as a whole, with its ribbon, its first page and its status bar. */
void ours(benchmark::State &state)
{
    for (auto _ : state) {
        Gallery gallery(QStringLiteral(NVO_THEME_DIR));
        NVO::Css::instance().reset();
        const double start = cpuSeconds();
        gallery.open(themes().constFirst(), pageEntries().constFirst().key);
        QApplication::processEvents();
        state.SetIterationTime(cpuSeconds() - start);
        state.counters["widgets"] = PlainTwin(gallery.window()).count();
    }
}

const PlainTwin &twin()
{
    static const PlainTwin twin = [] {
        Gallery gallery(QStringLiteral(NVO_THEME_DIR));
        gallery.open(themes().constFirst(), pageEntries().constFirst().key);
        QApplication::processEvents();
        return PlainTwin(gallery.window());
    }();
    return twin;
}

void plain(benchmark::State &state)
{
    state.counters["widgets"] = twin().count();
    for (auto _ : state) {
        const double start = cpuSeconds();
        auto window = std::make_unique<QMainWindow>();
        window->resize(twin().size());
        window->setCentralWidget(twin().build(window.get()));
        window->show();
        QApplication::processEvents();
        state.SetIterationTime(cpuSeconds() - start);
    }
}

BENCHMARK(ours)->Name("gallery/open/ours")->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(2);
BENCHMARK(plain)->Name("gallery/open/plain")->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(2);

} // namespace
