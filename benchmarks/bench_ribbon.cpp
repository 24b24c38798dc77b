// What a ribbon costs while its window is resized, at its first paint and when an action changes.

#include "RibbonContent.h"
#include "RibbonPeers.h"

#include <nvo/Action.h>
#include <nvo/RibbonControl.h>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QMap>
#include <QTabWidget>

#include <malloc.h>

#include <cstdlib>
#include <memory>
#include <string>
#include <utility>

namespace {

constexpr int widest = 1600;
constexpr int narrowest = 300;
constexpr int stepWidth = 10;
constexpr int stepsOneWay = (widest - narrowest) / stepWidth;
constexpr int usualWidth = 1000;

using MakeRibbon = QTabWidget *(*)(QWidget *parent);

/** A shown window with a ribbon. One that is not painted lets the cost of the layouts be seen alone. */
class Stage
{
public:
    Stage(MakeRibbon make, bool painted)
        : m_window(std::make_unique<QWidget>())
    {
        m_window->setUpdatesEnabled(painted);
        m_window->resize(widest, 400);
        m_ribbon = make(m_window.get());
        m_ribbon->resize(widest, m_ribbon->sizeHint().height());
        m_window->show();
        QApplication::processEvents();
    }

    void setWidth(int width)
    {
        m_ribbon->resize(width, m_ribbon->height());
        QApplication::processEvents();
    }

    /** Where the controls and groups that show stand, by their actions. */
    QMap<const NVO::Action *, QRect> places() const
    {
        QMap<const NVO::Action *, QRect> result;
        const QList<QWidget *> widgets = m_ribbon->findChildren<QWidget *>();
        for (const QWidget *widget : widgets) {
            const auto *control = dynamic_cast<const NVO::RibbonControl *>(widget);
            if (control && control->action() && widget->isVisible())
                result[control->action()] = QRect(widget->mapTo(m_ribbon, QPoint()), widget->size());
        }
        return result;
    }

private:
    std::unique_ptr<QWidget> m_window;
    QTabWidget *m_ribbon = nullptr;
};

/** The width at a step of the way from the widest to the narrowest and back. */
int widthAt(int step)
{
    return narrowest + stepWidth * std::abs(stepsOneWay - step % (2 * stepsOneWay));
}

/** Whether two ribbons look the same at every width. */
bool placesAgree(MakeRibbon one, MakeRibbon other)
{
    Stage stages[] = {{one, false}, {other, false}};
    for (int step = 0; step <= 2 * stepsOneWay; ++step) {
        for (Stage &stage : stages)
            stage.setWidth(widthAt(step));
        if (stages[0].places().isEmpty() || stages[0].places() != stages[1].places())
            return false;
    }
    return true;
}

void resizeStep(benchmark::State &state, MakeRibbon make, bool painted)
{
    Stage stage(make, painted);
    int step = 0;
    for (auto _ : state)
        stage.setWidth(widthAt(++step));
}

void resizeStepAskedAnew(benchmark::State &state)
{
    static const bool agree = placesAgree(RibbonPeers::ours, RibbonPeers::askedAnew);
    if (!agree)
        state.SkipWithError("not laid out like ours");
    else
        resizeStep(state, RibbonPeers::askedAnew, false);
}

void firstPaint(benchmark::State &state, MakeRibbon make)
{
    for (auto _ : state) {
        auto stage = std::make_unique<Stage>(make, true);
        state.PauseTiming();
        stage.reset();
        state.ResumeTiming();
    }
}

void memory(benchmark::State &state, MakeRibbon make)
{
    double bytes = 0;
    for (auto _ : state) {
        const auto before = mallinfo2().uordblks;
        const Stage stage(make, true);
        bytes = double(mallinfo2().uordblks - before);
    }
    state.counters["bytes"] = bytes;
}

/** What an application does to an action, and undoes the next time. */
using Change = void (*)(QAction *action, bool done);

void changeOfText(QAction *action, bool done)
{
    static const QString more = QStringLiteral(" neu");
    action->setText(done ? action->text() + more : action->text().chopped(more.size()));
}

void changeOfEnabled(QAction *action, bool done)
{
    action->setEnabled(!done);
}

void changeOfVisible(QAction *action, bool done)
{
    action->setVisible(!done);
}

void actionChange(benchmark::State &state, Change change)
{
    Stage stage(RibbonPeers::ours, false);
    stage.setWidth(usualWidth);
    QAction *action = ribbonContent().tabs.first().groups.first().commands.at(2);
    bool done = false;
    for (auto _ : state) {
        change(action, done = !done);
        QApplication::processEvents();
    }
    if (done)
        change(action, false);
}

/** One turn goes all the way and back, so that a step takes what the steps take on average. */
template <typename Function, typename... Arguments>
void addSteps(const char *name, Function function, Arguments... arguments)
{
    benchmark::RegisterBenchmark(name, function, arguments...)
        ->Unit(benchmark::kMicrosecond)
        ->Iterations(2 * stepsOneWay);
}

template <typename Function, typename... Arguments>
void addOnce(const char *name, Function function, Arguments... arguments)
{
    benchmark::RegisterBenchmark(name, function, arguments...)->Unit(benchmark::kMillisecond)->Iterations(1);
}

bool registerAll()
{
    using namespace RibbonPeers;
    addSteps("ribbon/resize/ours", resizeStep, ours, false);
    addSteps("ribbon/resize/asked_anew", resizeStepAskedAnew);
    addSteps("ribbon/resize/tool_bars", resizeStep, toolBars, false);
    addSteps("ribbon/resize_painted/ours", resizeStep, ours, true);
    addSteps("ribbon/resize_painted/tool_bars", resizeStep, toolBars, true);
    addOnce("ribbon/first_paint/ours", firstPaint, ours);
    addOnce("ribbon/first_paint/plain_kept", firstPaint, plainKept);
    addOnce("ribbon/memory/ours", memory, ours);
    addOnce("ribbon/memory/plain_kept", memory, plainKept);
    const std::pair<std::string, Change> changes[] = {
        {"text", changeOfText}, {"enabled", changeOfEnabled}, {"visible", changeOfVisible}};
    for (const auto &[name, change] : changes) {
        addSteps(("ribbon/change_" + name + "/ours").c_str(), actionChange, change);
        addSteps(("ribbon/change_" + name + "/resize_step").c_str(), resizeStep, ours, false);
    }
    return true;
}

const bool registered = registerAll();

} // namespace
