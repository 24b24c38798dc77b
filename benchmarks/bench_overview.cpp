#include <nvo/Css.h>
#include <nvo/Font.h>
#include <nvo/Label.h>
#include <nvo/OverviewButton.h>
#include <nvo/Pixmap.h>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QFrame>
#include <QGridLayout>

#include <memory>
#include <vector>

namespace {

constexpr int tileCount = 200;

const QString title = QStringLiteral("Rechnungswesen");
const QString description = QStringLiteral("Buchungsstapel, Konten und Auswertungen");

QWidget *ours(QWidget *parent)
{
    auto *tile = new NVO::OverviewButton(parent);
    tile->setIcon(NVO::Pixmap(QStringLiteral(":/tile_accounting")));
    tile->setTitle(title);
    tile->setDescription(description);
    tile->setAccessory(NVO::Pixmap(QStringLiteral(":/arrow_right_dark_6x12")));
    return tile;
}

/** What the tile holds in a frame that does nothing, in the theme's own sheet, which takes it for the tile.
 */
QWidget *frame(QWidget *parent)
{
    static const QString sheet =
        NVO::Css::instance().css(NVO::ElementOverviewButton).replace("NVO--OverviewButton", "QFrame");
    auto *frame = new QFrame(parent);
    frame->setProperty("style", QStringLiteral("Normal"));
    frame->setStyleSheet(sheet);
    std::vector<NVO::Label *> labels;
    auto *grid = new QGridLayout(frame);
    grid->setSpacing(0);
    const auto addLabel = [&](int row, int column, int rows) {
        auto *label = new NVO::Label(frame);
        label->setTextInteractionFlags(Qt::NoTextInteraction);
        label->hide();
        grid->addWidget(label, row, column, rows, 1);
        labels.push_back(label);
        return label;
    };
    const auto addSpacer = [&](int row, int column, int rows) {
        auto *spacer = new QWidget(frame);
        spacer->setFixedWidth(10);
        spacer->hide();
        grid->addWidget(spacer, row, column, rows, 1);
        return spacer;
    };
    NVO::Label *iconLabel = addLabel(0, 0, 5);
    QWidget *iconSpacer = addSpacer(0, 1, 5);
    NVO::Label *titleLabel = addLabel(0, 2, 1);
    QWidget *titleSpacer = addSpacer(1, 2, 1);
    NVO::Label *descriptionLabel = addLabel(2, 2, 1);
    addSpacer(3, 2, 1);
    NVO::Label *noteLabel = addLabel(4, 2, 1);
    addSpacer(0, 3, 5);
    NVO::Label *hintLabel = addLabel(0, 4, 5);
    addSpacer(0, 5, 5);
    addLabel(0, 6, 5);
    QWidget *accessorySpacer = addSpacer(0, 7, 5);
    NVO::Label *accessoryLabel = addLabel(0, 8, 5);
    for (NVO::Label *label : {titleLabel, descriptionLabel, noteLabel, hintLabel})
        label->setWordWrap(true);
    for (NVO::Label *label : labels)
        label->setProperty("style", QStringLiteral("Normal"));
    titleLabel->setObjectName(QStringLiteral("titleLabel"));
    iconLabel->setObjectName(QStringLiteral("icon"));
    QFont font = titleLabel->font();
    font.setPixelSize(NVO::Font::instance().scaledFontSizeByElement(NVO::ElementOverviewButton, QString()));
    titleLabel->setFont(font);

    iconLabel->setPixmap(NVO::Pixmap(QStringLiteral(":/tile_accounting")));
    titleLabel->setText(title);
    descriptionLabel->setText(description);
    accessoryLabel->setPixmap(NVO::Pixmap(QStringLiteral(":/arrow_right_dark_6x12")));
    for (QWidget *widget :
         std::initializer_list<QWidget *>{iconLabel, iconSpacer, titleLabel, titleSpacer, descriptionLabel,
                                          accessorySpacer, accessoryLabel})
        widget->show();
    return frame;
}

/** From the first constructor to the window that is shown. */
template <typename Make>
void constructionToShown(benchmark::State &state, Make make)
{
    for (auto _ : state) {
        auto window = std::make_unique<QWidget>();
        auto *grid = new QGridLayout(window.get());
        window->resize(1600, 4000);
        for (int i = 0; i < tileCount; ++i)
            grid->addWidget(make(window.get()), i / 5, i % 5);
        window->show();
        state.PauseTiming();
        QApplication::processEvents();
        window.reset();
        state.ResumeTiming();
    }
}

BENCHMARK_CAPTURE(constructionToShown, ours, ours)
    ->Name("overview/tiles/ours")
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1);
BENCHMARK_CAPTURE(constructionToShown, frame, frame)
    ->Name("overview/tiles/frames")
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1);

} // namespace
