#include <nvo/Css.h>
#include <nvo/Font.h>

#include <benchmark/benchmark.h>

#include <QProcess>
#include <QTemporaryFile>

namespace {

struct Cost
{
    double seconds;
    double bytes;
};

/** Runs a program to its first paint. */
Cost run(const char *program, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::SeparateChannels);
    process.start(QString::fromLocal8Bit(program), arguments);
    process.waitForFinished(-1);
    const QList<QByteArray> words = process.readAllStandardOutput().split(' ');
    if (process.exitCode() != 0 || words.size() != 2)
        qFatal("%s does not run", program);
    return {words[0].toDouble() * 1e-9, words[1].toDouble()};
}

Cost ours()
{
    return run(NVO_STARTUP_OURS, {QStringLiteral(NVO_THEME_DIR "/nvo-classic.rcc")});
}

Cost pushButtons()
{
    static QTemporaryFile sheet;
    if (!sheet.isOpen()) {
        sheet.open();
        sheet.write(NVO::Css::instance()
                        .css(NVO::ElementButton)
                        .replace(QLatin1String("NVO--Button"), QLatin1String("QPushButton"))
                        .toUtf8());
        sheet.flush();
    }
    const int size = NVO::Font::instance().scaledFontSizeByElement(NVO::ElementButton, QString());
    return run(NVO_STARTUP_PLAIN,
               {QStringLiteral(NVO_THEME_DIR "/nvo-classic.rcc"), sheet.fileName(), QString::number(size)});
}

void time(benchmark::State &state, Cost (*side)())
{
    for (auto _ : state)
        state.SetIterationTime(side().seconds);
}

void memory(benchmark::State &state, Cost (*side)())
{
    double bytes = 0;
    for (auto _ : state)
        bytes = side().bytes;
    state.counters["bytes"] = bytes;
}

BENCHMARK_CAPTURE(time, ours, ours)
    ->Name("startup/buttons/ours")
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(8);
BENCHMARK_CAPTURE(time, push_buttons, pushButtons)
    ->Name("startup/buttons/push_buttons")
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(8);
BENCHMARK_CAPTURE(memory, ours, ours)->Name("startup/memory/ours")->Iterations(1);
BENCHMARK_CAPTURE(memory, push_buttons, pushButtons)->Name("startup/memory/push_buttons")->Iterations(1);

} // namespace
