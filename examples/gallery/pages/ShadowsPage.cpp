#include "pages/ShadowsPage.h"

#include "pages/Magnifier.h"
#include "pages/PageSupport.h"

#include <nvo/GraphicsEffect.h>
#include <nvo/Label.h>
#include <nvo/Product.h>
#include <nvo/ShadowSimple.h>

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QScopedValueRollback>
#include <QVBoxLayout>
#include <QVariant>

#include <functional>

namespace {

constexpr QSize groundSize(120, 92); // grounds grow in width
constexpr QSize plateSize(84, 52);
constexpr QSize circleSize(56, 56);
constexpr int overlayColumns = 6;
constexpr int overlayWidth = 8;
constexpr double overlayStart = 0.35;
constexpr double overlayEnd = 0.0;
constexpr int dropOffset = 6;

using Effects = NVO::GraphicsEffect *(*)();

QFrame *makePlate(const char *shape, QSize size)
{
    auto *plate = new QFrame;
    plate->setProperty("sample", QLatin1String(shape));
    plate->setFixedSize(size);
    return plate;
}

QLabel *makePicture()
{
    auto *picture = new QLabel;
    picture->setPixmap(themeImage(QStringLiteral("information")));
    picture->setFixedSize(picture->sizeHint());
    return picture;
}

NVO::Label *makeText()
{
    return makeLabel(QStringLiteral("<b>Saldo</b>"), NVO::Font::HEADLINEMEDIUM);
}

QFrame *makeShadowGround(QWidget *content)
{
    QFrame *ground = makeGround(Ground::Window);
    ground->setMinimumSize(groundSize);
    ground->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    auto *layout = new QVBoxLayout(ground);
    layout->addWidget(content, 0, Qt::AlignCenter);
    return ground;
}

} // namespace

ShadowsPage::ShadowsPage()
{
    addEffects(QStringLiteral("Schatten der klassischen Darstellung"),
               QStringLiteral("Ein kräftiger Schatten nach rechts unten, drei Pixel weit."), 0);
    addEffects(QStringLiteral("Schatten der modernen Darstellung"),
               QStringLiteral("Ein Hauch von Schatten, zwei Pixel weit, nach links, rechts und unten."), 1);
    addOverlays();
}

void ShadowsPage::addEffects(const QString &title, const QString &description, int variant)
{
    // The effects of both variants side by side: each keeps what it found when it was made.
    const QScopedValueRollback<int> rollback(NVO::Product::instance().variant, variant);

    struct Sample
    {
        QWidget *widget;
        Effects effect;
        QString caption;
        bool on;
    };
    const QVector<Sample> samples{
        {makePlate("rectangle", plateSize), NVO::createDefaultShadowEffectRect, QStringLiteral("Rechteck"),
         true},
        {makePlate("rounded", plateSize), NVO::createDefaultShadowEffectPixels, QStringLiteral("Abgerundet"),
         true},
        {makePlate("circle", circleSize), NVO::createDefaultShadowEffectPixels, QStringLiteral("Kreis"),
         true},
        {makePicture(), NVO::createDefaultShadowEffectPixels, QStringLiteral("Bild"), true},
        {makeText(), NVO::createDefaultShadowEffectPixels, QStringLiteral("Text"), true},
        {makePlate("rounded", plateSize), NVO::createDefaultShadowEffectPixels,
         QStringLiteral("Ausgeschaltet"), false},
    };

    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(4);
    for (int column = 0; column < samples.size(); ++column) {
        const Sample &sample = samples.at(column);
        NVO::GraphicsEffect *effect = sample.effect();
        effect->setEnabled(sample.on);
        sample.widget->setGraphicsEffect(effect);

        QFrame *ground = makeShadowGround(sample.widget);
        grid->setColumnStretch(column, 1);
        grid->addWidget(makeCaption(sample.caption), 0, column);
        grid->addWidget(ground, 1, column);
        grid->addWidget(new Magnifier(sample.widget), 2, column);
    }
    QVBoxLayout *section = addSection(title, description);
    section->addLayout(grid);
    section->addWidget(makeCaption(QStringLiteral("Darunter die rechte untere Ecke, achtfach vergrößert.")));
}

void ShadowsPage::addOverlays()
{
    struct Flag
    {
        NVO::ShadowSide side;
        NVO::ShadowMode mode;
    };
    struct Sample
    {
        QString caption;
        QVector<Flag> flags;
        int dropOffset = 0;
        bool enabled = true;
    };
    constexpr auto left = NVO::ShadowLeft;
    constexpr auto top = NVO::ShadowTop;
    constexpr auto right = NVO::ShadowRight;
    constexpr auto bottom = NVO::ShadowBottom;
    constexpr auto inner = NVO::ShadowInner;
    constexpr auto outer = NVO::ShadowOuter;
    const QVector<Flag> allInner{{left, inner}, {top, inner}, {right, inner}, {bottom, inner}};
    const QVector<Flag> allOuter{{left, outer}, {top, outer}, {right, outer}, {bottom, outer}};
    const QVector<Sample> samples{
        {QStringLiteral("Innen links"), {{left, inner}}},
        {QStringLiteral("Innen oben"), {{top, inner}}},
        {QStringLiteral("Innen rechts"), {{right, inner}}},
        {QStringLiteral("Innen unten"), {{bottom, inner}}},
        {QStringLiteral("Innen über Eck"), {{left, inner}, {top, inner}}},
        {QStringLiteral("Innen rundum"), allInner},
        {QStringLiteral("Außen links"), {{left, outer}}},
        {QStringLiteral("Außen oben"), {{top, outer}}},
        {QStringLiteral("Außen rechts"), {{right, outer}}},
        {QStringLiteral("Außen unten"), {{bottom, outer}}},
        {QStringLiteral("Außen über Eck"), {{right, outer}, {bottom, outer}}},
        {QStringLiteral("Außen rundum"), allOuter},
        {QStringLiteral("Innen und außen"), allInner + allOuter},
        {QStringLiteral("Schlagschatten"), {}, dropOffset},
        {QStringLiteral("Ausgeschaltet"), allOuter, 0, false},
    };

    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(4);
    for (int column = 0; column < overlayColumns; ++column)
        grid->setColumnStretch(column, 1);
    for (int index = 0; index < samples.size(); ++index) {
        const Sample &sample = samples.at(index);
        QFrame *plate = makePlate("rectangle", plateSize);
        QFrame *ground = makeShadowGround(plate);
        auto *shadow = new NVO::ShadowSimple(plate, ground, overlayWidth, overlayStart, overlayEnd);
        for (const Flag &flag : sample.flags)
            shadow->useShadow(flag.side, flag.mode, true);
        if (sample.dropOffset > 0)
            shadow->useDropShadow(sample.dropOffset);
        shadow->setShadowEnabled(sample.enabled);

        const int row = index / overlayColumns * 3;
        grid->addWidget(makeCaption(sample.caption), row, index % overlayColumns);
        grid->addWidget(ground, row + 1, index % overlayColumns);
        grid->setRowMinimumHeight(row + 2, 4);
    }
    addSection(QStringLiteral("Schatten über großen Flächen"),
               QStringLiteral(
                   "Linien entlang der Kanten, nach innen oder außen, je Seite schaltbar. Sie liegen über "
                   "den Nachbarn, der Schlagschatten liegt darunter."))
        ->addLayout(grid);
}
