// What a long list costs beside one that knows all heights beforehand and does nothing but show them.

#include <nvo/RecyclingList.h>
#include <nvo/RecyclingListAdapter.h>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QScrollBar>
#include <QWidget>

#include <algorithm>
#include <malloc.h>
#include <memory>
#include <vector>

namespace {

constexpr int spacing = 10;
constexpr int margin = 50;
constexpr int step = 99;
constexpr int stepsOneWay = 20;
constexpr QSize windowSize(600, 700);

int heightOf(int position)
{
    return 30 + position * 37 % 50;
}

bool isTotal(int position)
{
    return position % 5 == 4;
}

/** An item of two texts, or nothing but a widget. */
class Source : public RecyclingListAdapter
{
public:
    Source(int items, bool bare)
        : m_items(items)
        , m_bare(bare)
    {}

    int count() override { return m_items; }

    QWidget *widget(int position, QWidget *recycled, QWidget *parent) override
    {
        const QString kind = isTotal(position) ? QStringLiteral("Summe") : QStringLiteral("Buchung");
        if (!recycled || recycled->property("style") != kind) {
            delete recycled;
            recycled = make(kind, parent);
        }
        if (!m_bare) {
            const auto labels = recycled->findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
            labels[0]->setText(QStringLiteral("Rechnung %1").arg(position));
            labels[1]->setText(QStringLiteral("%1,00 €").arg(position % 1000));
        }
        recycled->resize(recycled->width(), heightOf(position));
        return recycled;
    }

private:
    QWidget *make(const QString &kind, QWidget *parent) const
    {
        auto *item = new QWidget(parent);
        item->setProperty("style", kind);
        if (m_bare)
            return item;
        auto *row = new QHBoxLayout(item);
        row->addWidget(new QLabel(item), 1);
        row->addWidget(new QLabel(item));
        return item;
    }

    int m_items;
    bool m_bare;
};

/**
 * The floor: all tops are known, the first visible item is searched for by halves. Once that is another one
 * all items are asked for again, as our list has to; a list that keeps the widget of an item as long as that
 * is visible would ask for less, and is there to see how much.
 */
class KnownList : public QWidget
{
public:
    explicit KnownList(bool keepsWidgets = false)
        : m_area(new QWidget(this))
        , m_bar(new QScrollBar(this))
        , m_keepsWidgets(keepsWidgets)
    {
        auto *layout = new QHBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(0);
        layout->addWidget(m_area, 1);
        layout->addWidget(m_bar);
        connect(m_bar, &QScrollBar::valueChanged, this, &KnownList::showItems);
    }

    void setAdapter(RecyclingListAdapter *source)
    {
        m_source = source;
        m_tops.resize(std::size_t(source->count()) + 1);
        qint64 top = margin;
        for (int i = 0; i < source->count(); ++i) {
            m_tops[std::size_t(i)] = top;
            top += heightOf(i) + spacing;
        }
        m_tops.back() = top;
        showItems();
    }

protected:
    void resizeEvent(QResizeEvent *) override { showItems(); }

private:
    struct Shown
    {
        int position;
        bool isTotal;
        QWidget *widget;
    };

    void showItems()
    {
        if (!m_source)
            return;
        m_bar->setRange(0, int(m_tops.back() - spacing + margin - m_area->height()));
        m_bar->setSingleStep(step);
        m_bar->setPageStep(400);
        const qint64 value = m_bar->value();
        const auto first = std::upper_bound(m_tops.begin(), m_tops.end(), value);
        const int from = std::max(int(first - m_tops.begin()) - 1, 0);
        int to = from;
        while (to < m_source->count() && m_tops[std::size_t(to)] < value + m_area->height())
            ++to;

        std::vector<Shown> next;
        for (int position = from; position < to; ++position)
            next.push_back({position, isTotal(position), nullptr});
        const bool keeps = m_keepsWidgets || (!m_shown.empty() && m_shown.front().position == from);
        for (const Shown &old : m_shown) {
            if (keeps && old.position >= from && old.position < to)
                next[std::size_t(old.position - from)].widget = old.widget;
            else
                m_spares.push_back(old);
        }
        for (Shown &item : next) {
            if (!item.widget) {
                const auto spare = std::find_if(m_spares.begin(), m_spares.end(), [&](const Shown &other) {
                    return other.isTotal == item.isTotal;
                });
                QWidget *recycled = spare == m_spares.end() ? nullptr : spare->widget;
                if (recycled)
                    m_spares.erase(spare);
                item.widget = m_source->widget(item.position, recycled, m_area);
            }
            item.widget->setGeometry(0, int(m_tops[std::size_t(item.position)] - value), m_area->width(),
                                     heightOf(item.position));
            item.widget->show();
            item.widget->update();
        }
        for (const Shown &spare : m_spares)
            spare.widget->hide();
        m_shown = std::move(next);
    }

    QWidget *m_area;
    QScrollBar *m_bar;
    bool m_keepsWidgets;
    RecyclingListAdapter *m_source = nullptr;
    std::vector<qint64> m_tops;
    std::vector<Shown> m_shown;
    std::vector<Shown> m_spares;
};

struct KeepingList : public KnownList
{
    KeepingList()
        : KnownList(true)
    {}
};

template <typename List>
struct Window
{
    explicit Window(int items, bool bare)
        : source(items, bare)
        , list(std::make_unique<List>())
    {
        list->resize(windowSize);
        list->setAdapter(&source);
        list->show();
        QApplication::processEvents();
    }

    Source source;
    std::unique_ptr<List> list;
};

enum class Place { Top, Bottom };

/** The notches of a wheel, down and up again, each until it is on screen. */
template <typename List>
void scroll(benchmark::State &state, int items, bool bare, Place place)
{
    Window<List> window(items, bare);
    auto *bar = window.list->template findChild<QScrollBar *>();
    for (int i = 0; place == Place::Bottom && i < 20; ++i)
        bar->setValue(bar->maximum()); // as often as the estimate of the end gets better
    int count = 0;
    int delta = place == Place::Top ? step : -step;
    for (auto _ : state) {
        bar->setValue(bar->value() + delta);
        QApplication::processEvents();
        if (++count % stepsOneWay == 0)
            delta = -delta;
    }
}

template <typename List>
void firstPaint(benchmark::State &state)
{
    for (auto _ : state) {
        auto window = std::make_unique<Window<List>>(1000000, false);
        state.PauseTiming();
        window.reset();
        state.ResumeTiming();
    }
}

std::size_t usedBytes()
{
    const auto info = mallinfo2();
    return info.uordblks + info.hblkhd; // what lies in the heap, and large blocks beside it
}

template <typename List>
void memory(benchmark::State &state)
{
    double bytes = 0;
    for (auto _ : state) {
        const std::size_t before = usedBytes();
        const Window<List> window(1000000, false);
        bytes = double(usedBytes() - before);
    }
    state.counters["bytes"] = bytes;
}

using Run = void (*)(benchmark::State &, int, bool, Place);

void add(const std::string &name, Run run, int items, bool bare, Place place)
{
    benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State &state) {
        run(state, items, bare, place);
    })->Unit(benchmark::kMicrosecond);
}

const bool added = [] {
    constexpr Run ours = scroll<RecyclingList>;
    constexpr Run floor = scroll<KnownList>;
    constexpr Run keeping = scroll<KeepingList>;
    for (const int items : {10000, 100000, 1000000}) {
        for (const bool bare : {false, true}) {
            const std::string name = (bare ? "list/bare/" : "list/step/") + std::to_string(items);
            add(name + "/ours", ours, items, bare, Place::Bottom);
            add(name + "/floor", floor, items, bare, Place::Bottom);
            add(name + "/keeping", keeping, items, bare, Place::Bottom);
        }
    }
    for (const Place place : {Place::Top, Place::Bottom}) {
        const std::string name = place == Place::Top ? "list/top" : "list/bottom";
        add(name + "/ours", ours, 1000000, false, place);
        add(name + "/thousand", ours, 1000, false, place);
    }
    return true;
}();

BENCHMARK(firstPaint<RecyclingList>)->Name("list/first_paint/ours")->Unit(benchmark::kMillisecond);
BENCHMARK(firstPaint<KnownList>)->Name("list/first_paint/floor")->Unit(benchmark::kMillisecond);
BENCHMARK(memory<RecyclingList>)->Name("list/memory/ours")->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(memory<KnownList>)->Name("list/memory/floor")->Unit(benchmark::kMillisecond)->Iterations(1);

} // namespace
