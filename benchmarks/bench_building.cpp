#include "CpuClock.h"
#include "PlainTwin.h"

#include <nvo/NvoSdkGui.h>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QGridLayout>
#include <QMap>
#include <QPixmapCache>
#include <QResource>

#include <memory>

namespace {

constexpr int columnCount = 40;
constexpr int rowCount = 50;

QWidget *makeButton(QWidget *parent)
{
    auto *button = new NVO::Button(parent);
    button->setText(QStringLiteral("Speichern"));
    return button;
}

QWidget *makeLabel(QWidget *parent)
{
    return new NVO::Label(QStringLiteral("Rechnungsdatum"), parent);
}

QWidget *makeField(QWidget *parent)
{
    auto *field = new NVO::LineEdit(parent);
    field->setText(QStringLiteral("Meier & Söhne"));
    return field;
}

QWidget *makeCheckBox(QWidget *parent)
{
    return new NVO::CheckBox(QStringLiteral("Offene Posten"), parent);
}

QWidget *makeTile(QWidget *parent)
{
    auto *tile = new NVO::OverviewButton(parent);
    tile->setTitle(QStringLiteral("Rechnungswesen"));
    tile->setDescription(QStringLiteral("Konten und Auswertungen"));
    return tile;
}

QWidget *makeToggle(QWidget *parent)
{
    return new NVO::PixmapToggle(parent);
}

QWidget *makeComboBox(QWidget *parent)
{
    auto *combo = new NVO::ComboBox(parent);
    combo->addItem(QStringLiteral("Überweisung"));
    return combo;
}

QWidget *makeGroupBox(QWidget *parent)
{
    auto *box = new NVO::GroupBox(parent);
    box->setTitle(QStringLiteral("Bank"));
    return box;
}

using Make = QWidget *(*)(QWidget *);
constexpr Make makers[] = {makeButton, makeLabel,  makeField,    makeCheckBox,
                           makeTile,   makeToggle, makeComboBox, makeGroupBox};
constexpr int classCount = int(std::size(makers));

template <typename MakeOne>
std::unique_ptr<QWidget> shownWindow(MakeOne make)
{
    auto window = std::make_unique<QWidget>();
    auto *grid = new QGridLayout(window.get());
    grid->setSpacing(0);
    for (int i = 0; i < columnCount * rowCount; ++i)
        grid->addWidget(make(i, window.get()), i / columnCount, i % columnCount);
    window->show();
    QApplication::processEvents();
    return window;
}

/** The application has another theme as long as the result lives. */
class OtherTheme
{
public:
    OtherTheme()
    {
        QResource::registerResource(file);
        QPixmapCache::clear();
        NVO::Product::instance().variant = 1;
    }
    ~OtherTheme()
    {
        QResource::unregisterResource(file);
        QPixmapCache::clear();
        NVO::Product::instance().variant = 0;
        NVO::Css::instance().reset();
    }
    OtherTheme(const OtherTheme &) = delete;
    OtherTheme &operator=(const OtherTheme &) = delete;

private:
    const QString file = QStringLiteral(NVO_THEME_DIR "/nvo-modern.rcc");
};

/** Where no shadow is wanted the widget has none, so that it does what a widget of Qt does. */
QWidget *made(Make make, QWidget *parent)
{
    QWidget *widget = make(parent);
    if (!NVO::Product::instance().effectsEnabled)
        widget->setGraphicsEffect(nullptr);
    return widget;
}

QWidget *ours(int index, QWidget *parent, int only)
{
    return made(makers[only < 0 ? index % classCount : only], parent);
}

std::vector<PlainTwin> makeTwins()
{
    NVO::Css::instance().reset();
    std::vector<PlainTwin> twins;
    for (const Make make : makers) {
        QWidget window;
        const QWidget *widget = made(make, &window);
        window.show();
        twins.emplace_back(widget);
    }
    return twins;
}

QWidget *plain(int index, QWidget *parent, int only)
{
    static QMap<bool, std::vector<PlainTwin>> kept;
    std::vector<PlainTwin> &twins = kept[NVO::Product::instance().effectsEnabled];
    if (twins.empty())
        twins = makeTwins();
    return twins[std::size_t(only < 0 ? index % classCount : only)].build(parent);
}

/** The processor time from the change of the theme to the window that is painted. */
template <typename MakeOne>
void build(benchmark::State &state, MakeOne make, int only, bool shadows)
{
    const OtherTheme theme;
    NVO::Product::instance().effectsEnabled = shadows;
    make(0, std::make_unique<QWidget>().get(), only); // the twin is no part of it
    for (auto _ : state) {
        const double start = cpuSeconds();
        if (make == ours)
            NVO::Css::instance().reset();
        auto window = shownWindow([&](int index, QWidget *parent) { return make(index, parent, only); });
        state.SetIterationTime(cpuSeconds() - start);
        window.reset();
    }
    NVO::Product::instance().effectsEnabled = true;
}

void registerBenchmarks(const char *name, int only, bool shadows = false)
{
    for (const auto &side : {std::make_pair("ours", ours), std::make_pair("plain", plain)}) {
        benchmark::RegisterBenchmark((std::string("building/") + name + '/' + side.first).c_str(),
                                     build<decltype(&ours)>, side.second, only, shadows)
            ->Unit(benchmark::kMillisecond)
            ->UseManualTime()
            ->Iterations(1);
    }
}

const bool registered = [] {
    registerBenchmarks("mix", -1);
    registerBenchmarks("shadows", -1, true);
    int only = 0;
    for (const char *name :
         {"button", "label", "field", "check_box", "tile", "toggle", "combo_box", "group_box"})
        registerBenchmarks(name, only++);
    return true;
}();

} // namespace
