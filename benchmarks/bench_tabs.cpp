// What a changed notification and a change of the current tab cost, beside a QTabBar whose texts carry the
// notifications and one that gets its sheet again at each change.

#include <nvo/Css.h>
#include <nvo/SegmentedControl.h>
#include <nvo/TabBar.h>

#include <benchmark/benchmark.h>

#include <QApplication>

#include <memory>

namespace {

constexpr int tabs = 8;

const QStringList &numbers()
{
    static const QStringList texts = [] {
        QStringList all;
        for (int i = 0; i < 100; ++i)
            all.append(QString::number(100 + i));
        return all;
    }();
    return texts;
}

QString title(int index)
{
    return QStringLiteral("Ordner %1").arg(index);
}

/** A tab bar as applications have it, with the sheet of the segments. */
class PlainBar : public QTabBar
{
public:
    PlainBar()
    {
        setStyleSheet(sheet());
        setUsesScrollButtons(false);
        setDocumentMode(true);
    }

    void setNotification(int index, const QString &text)
    {
        setTabText(index, title(index) + QLatin1String("  ") + text);
    }

    static QString sheet()
    {
        return NVO::Css::instance()
            .css(NVO::ElementSegmentedControl)
            .replace(QLatin1String("NVO--SegmentedControl"), QLatin1String("QTabBar"));
    }
};

/** Puts the button on its tab anew at each change, which lays out and paints all tabs. */
class ReplacingControl : public NVO::SegmentedControl
{
public:
    void setNotification(int index, const QString &text)
    {
        NVO::SegmentedControl::setNotification(index, text);
        QWidget *button = tabButton(index, RightSide);
        setTabButton(index, RightSide, nullptr);
        setTabButton(index, RightSide, button);
    }
};

/** Parses its sheet again at each change of the current tab. */
class ReparsingControl : public NVO::SegmentedControl
{
public:
    ReparsingControl()
    {
        connect(this, &QTabBar::currentChanged, this, [this] { setStyleSheet(styleSheet()); });
    }
};

template <typename Bar>
std::unique_ptr<Bar> makeBar()
{
    auto bar = std::make_unique<Bar>();
    for (int i = 0; i < tabs; ++i)
        bar->addTab(title(i));
    bar->resize(1200, 30);
    bar->show();
    for (int i = 0; i < tabs; ++i)
        bar->setNotification(i, numbers().first());
    QApplication::processEvents();
    return bar;
}

/** Until it is on screen. */
template <typename Bar>
void notify(benchmark::State &state)
{
    const auto bar = makeBar<Bar>();
    int number = 0;
    for (auto _ : state) {
        bar->setNotification(3, numbers()[++number % numbers().size()]);
        QApplication::processEvents();
    }
}

template <typename Bar>
void select(benchmark::State &state)
{
    const auto bar = makeBar<Bar>();
    for (auto _ : state) {
        bar->setCurrentIndex((bar->currentIndex() + 1) % tabs);
        QApplication::processEvents();
    }
}

template <typename Bar>
void build(benchmark::State &state)
{
    for (auto _ : state)
        makeBar<Bar>();
}

BENCHMARK(notify<NVO::SegmentedControl>)->Name("tabs/notify/ours")->Unit(benchmark::kMicrosecond);
BENCHMARK(notify<ReplacingControl>)->Name("tabs/notify/replaced")->Unit(benchmark::kMicrosecond);
BENCHMARK(notify<PlainBar>)->Name("tabs/notify/set_tab_text")->Unit(benchmark::kMicrosecond);
BENCHMARK(select<NVO::SegmentedControl>)->Name("tabs/select/ours")->Unit(benchmark::kMicrosecond);
BENCHMARK(select<ReparsingControl>)->Name("tabs/select/sheet_again")->Unit(benchmark::kMicrosecond);
BENCHMARK(select<PlainBar>)->Name("tabs/select/q_tab_bar")->Unit(benchmark::kMicrosecond);
BENCHMARK(build<NVO::SegmentedControl>)->Name("tabs/build/ours")->Unit(benchmark::kMicrosecond);
BENCHMARK(build<PlainBar>)->Name("tabs/build/q_tab_bar")->Unit(benchmark::kMicrosecond);

} // namespace
