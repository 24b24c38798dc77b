// Times our paths beside what a user would pick instead, in one run, and prints the ratios of the medians.
//
// A benchmark is called "<group>/<case>/ours" or "<group>/<case>/<peer>". Where it has a counter "bytes",
// that is compared in place of the time.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QResource>

#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace {

constexpr double none = 0; // where a ratio is only of interest

/** What a ratio of ours over a peer may be at most. */
struct Goal
{
    const char *name;
    const char *peer;
    double atMost;
};

constexpr Goal goals[] = {
    {"css/replace", "floor", 4},
    {"css/replace", "in_place", 0.2},
    {"css/cached", "array", 4},
    {"css/imports", "parser", 0.1},
    {"font/scaled_size", "two_settings", 0.4},
    {"effects/pixels/100x25", "floor", 2.5},
    {"effects/pixels/400x120", "floor", 2.8},
    {"effects/pixels/1200x800", "floor", 2.3},
    {"effects/pixels/400x120", "drop_shadow", 0.12},
    {"effects/pixels/1200x800", "drop_shadow", 0.12},
    {"effects/rect/100x25", "floor", 1.5},
    {"effects/rect/400x120", "floor", 1.4},
    {"effects/rect/1200x800", "floor", 1.25},
    {"effects/sunken/100x25", "floor", 2.7},
    {"effects/sunken/400x120", "floor", 3.6},
    {"effects/sunken/1200x800", "floor", 2.7},
    {"building/mix", "plain", 1.1},
    {"building/shadows", "plain", none},
    {"building/button", "plain", none},
    {"building/label", "plain", none},
    {"building/field", "plain", none},
    {"building/check_box", "plain", none},
    {"building/tile", "plain", none},
    {"building/toggle", "plain", none},
    {"building/combo_box", "plain", none},
    {"building/group_box", "plain", none},
    {"button/thousand", "push_button", 0.75},
    {"button/memory", "push_button", 1.05},
    {"accordion/frame/20_rows", "maximum_height", 1},
    {"accordion/frame/200_rows", "maximum_height", 0.8},
    {"completer/models/mean/100000", "unsorted", none},
    {"completer/models/worst/100000", "unsorted", none},
    {"completer/popup/mean/10000", "q_completer", 0.8},
    {"completer/popup/worst/10000", "q_completer", 0.7},
    {"completer/popup/mean/100000", "q_completer", 0.9},
    {"completer/popup/worst/100000", "q_completer", 0.7},
    {"dateedit/focus", "line_edit", 1.2},
    {"dateedit/focus_empty", "line_edit", 1.5},
    {"dialogs/message_box", "q_message_box", 1.3},
    {"dialogs/hover", "no_shadow", 1.4},
    {"editors/key_masked", "q_line_edit", 1.2},
    {"editors/key_shadow", "no_shadow", none},
    {"numeric_edit/key", "q_double_spin_box", 1.3},
    {"gallery/open", "plain", 1.2},
    {"list/step/10000", "floor", 1.2},
    {"list/step/100000", "floor", 1.2},
    {"list/step/1000000", "floor", 1.2},
    {"list/bare/10000", "floor", 1.3},
    {"list/bare/100000", "floor", 1.3},
    {"list/bare/1000000", "floor", 1.3},
    {"list/step/1000000", "keeping", none},
    {"list/bare/1000000", "keeping", none},
    {"list/top", "thousand", 1.25},
    {"list/bottom", "thousand", 1.25},
    {"list/first_paint", "floor", 1.5},
    {"list/memory", "floor", 1.3},
    {"overview/tiles", "frames", 1.1},
    {"overview_combo/open", "asked_again", 0.3},
    {"overview_combo/size_hint", "asked_again", 0.1},
    {"overview_combo/paint", "asked_again", 1.3},
    {"ribbon/resize", "asked_anew", 0.2},
    {"ribbon/resize", "tool_bars", none},
    {"ribbon/resize_painted", "tool_bars", none},
    {"ribbon/first_paint", "plain_kept", 1.2},
    {"ribbon/memory", "plain_kept", 1.2},
    {"ribbon/change_text", "resize_step", 1},
    {"ribbon/change_enabled", "resize_step", 1},
    {"ribbon/change_visible", "resize_step", 1},
    {"startup/buttons", "push_buttons", 1.05},
    {"startup/memory", "push_buttons", 1.15},
    {"toolbar/resize/30", "by_hand", 1.2},
    {"toolbar/resize/18", "by_hand", 1.2},
    {"toolbar/badge", "alone", 1.2},
    {"tabs/notify", "set_tab_text", 0.8},
    {"tabs/notify", "replaced", 0.3},
    {"tabs/select", "sheet_again", 0.5},
    {"tabs/select", "q_tab_bar", none},
    {"tabs/build", "q_tab_bar", none},
};

class RatioReporter : public benchmark::ConsoleReporter
{
public:
    RatioReporter()
        : ConsoleReporter(OO_Tabular)
    {}

    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            if (run.aggregate_name != "median")
                continue;
            const auto bytes = run.counters.find("bytes");
            m_medians[run.run_name.function_name] =
                bytes == run.counters.end() ? run.GetAdjustedRealTime() : double(bytes->second);
        }
        ConsoleReporter::ReportRuns(runs);
    }

    void Finalize() override
    {
        std::printf("\n%-28s %-14s %8s %8s\n", "ours", "over", "ratio", "at most");
        for (const Goal &goal : goals) {
            const auto ours = m_medians.find(std::string(goal.name) + "/ours");
            const auto peer = m_medians.find(std::string(goal.name) + "/" + goal.peer);
            if (ours == m_medians.end() || peer == m_medians.end())
                continue;
            const double ratio = ours->second / peer->second;
            std::printf("%-28s %-14s %8.3f", goal.name, goal.peer, ratio);
            if (goal.atMost > none)
                std::printf(" %8.2f%s", goal.atMost, ratio > goal.atMost ? "  missed" : "");
            std::printf("\n");
        }
    }

private:
    std::map<std::string, double> m_medians;
};

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    if (!QResource::registerResource(QStringLiteral(NVO_THEME_DIR "/nvo-classic.rcc")))
        qFatal("the classic theme is not there");

    // The turns of all benchmarks are shuffled, so that a slow second of the machine hits no side alone.
    std::vector<char *> arguments(argv, argv + argc);
    std::string defaults[] = {"--benchmark_repetitions=11", "--benchmark_enable_random_interleaving=true",
                              "--benchmark_report_aggregates_only=true", "--benchmark_min_time=0.05"};
    for (std::string &option : defaults)
        arguments.insert(arguments.begin() + 1, option.data());
    int count = int(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 2;
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
