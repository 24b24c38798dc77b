#include "pages/ImagesPage.h"

#include "pages/PageSupport.h"

#include <nvo/Icon.h>
#include <nvo/Label.h>
#include <nvo/Pixmap.h>

#include <QApplication>
#include <QDir>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <array>

namespace {

constexpr int highestRatio = 4;

/** Images for the same purpose. */
struct Group
{
    const char *title;
    const char *description;
    QStringList names;
    int columns;
};

const QVector<Group> &groups()
{
    static const QVector<Group> groups{
        {"Meldungen",
         "Die Zeichen der Meldungsfenster. Jedes Bild gibt es für vier Auflösungen, von einfach bis "
         "vierfach.",
         {"information", "warning", "critical", "question"},
         2},
        {"Schließen und Hilfe",
         "Kreuze und Fragezeichen der Titelleisten, Flyouts und Fußleisten.",
         {"close", "close_hell", "hilfe_16", "hilfe_hell_16"},
         4},
        {"Umschalter",
         "Haken und Kreuz.",
         {"checkmark_16", "checkmark_hell_16", "close_16", "close_hell_16"},
         4},
        {"Pfeile",
         "Akkordeon, Pfade, Suchergebnisse und Rollschaltflächen.",
         {"accordionindicator", "accordionindicator_big", "pathlabel_arrow", "searchresult_right_arrow",
          "arrow_right_dark_6x12", "scrollarrow_up", "scrollarrow_up_hell", "scrollarrow_up_error",
          "scrollarrow_down", "scrollarrow_down_hell", "scrollarrow_down_error"},
         4},
        {"Eingabe und Zoom",
         "Leeren, Vorschläge und der Regler der Statusleiste.",
         {"clearDark", "clearWhite", "bulb", "sym_minus", "sym_plus", "aufhoehe_16", "aufbreite_16"},
         4},
    };
    return groups;
}

QStringList stripNames()
{
    return {QStringLiteral("macclose"), QStringLiteral("breadcrumb"), QStringLiteral("menuarrow"),
            QStringLiteral("menuarrow_hell")};
}

/** Images of the theme that have no place in the groups. */
QStringList otherNames()
{
    QStringList known = stripNames();
    for (const Group &group : groups())
        known += group.names;
    QStringList names;
    const QStringList files = QDir(QStringLiteral(":/")).entryList(QDir::Files, QDir::Name);
    for (const QString &file : files) {
        if (files.contains(file + QStringLiteral("@2x")) && !known.contains(file))
            names.append(file);
    }
    return names;
}

/** The image as it is in the resource, in its own pixels on the screen. */
QPixmap imageAt(const QString &name, int ratio)
{
    const QString path = QStringLiteral(":/") + name;
    QPixmap image = ratio == 1 ? QPixmap(path) : NVO::Pixmap(path + QStringLiteral("@%1x").arg(ratio));
    image.setDevicePixelRatio(qApp->devicePixelRatio());
    return image;
}

QVector<QPixmap> allRatios(const QString &name)
{
    QVector<QPixmap> images;
    for (int ratio = 1; ratio <= highestRatio; ++ratio)
        images.append(imageAt(name, ratio));
    return images;
}

/** One state of a strip in all ratios. */
QVector<QPixmap> allRatios(const QString &strip, QIcon::Mode mode)
{
    QVector<QPixmap> images;
    for (int ratio = 1; ratio <= highestRatio; ++ratio) {
        const QPixmap image = imageAt(strip, ratio);
        const QSize cell(image.width() / 4, image.height());
        images.append(NVO::Icon(image).pixmap(cell / qApp->devicePixelRatio(), mode));
    }
    return images;
}

QFrame *makeImageRow(const QVector<QPixmap> &images, Ground ground)
{
    QFrame *row = makeGround(ground);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->setSpacing(8);
    for (const QPixmap &image : images) {
        auto *label = new QLabel;
        label->setPixmap(image);
        layout->addWidget(label, 0, Qt::AlignBottom);
    }
    layout->addStretch();
    return row;
}

QLayout *makeImageCell(const QString &name)
{
    auto *cell = new QVBoxLayout;
    cell->setSpacing(4);
    cell->addWidget(makeLabel(name, NVO::Font::SMALL, LabelRole::Name));
    const QPixmap plain = QPixmap(QStringLiteral(":/") + name);
    if (plain.isNull()) {
        cell->addWidget(makeLabel(QStringLiteral("fehlt"), NVO::Font::SMALL, LabelRole::Error));
        return cell;
    }
    cell->addWidget(makeCaption(QStringLiteral("%1 × %2 px").arg(plain.width()).arg(plain.height())));
    const QVector<QPixmap> images = allRatios(name);
    cell->addWidget(makeImageRow(images, Ground::Card));
    cell->addWidget(makeImageRow(images, Ground::Dark));
    cell->addStretch();
    return cell;
}

} // namespace

ImagesPage::ImagesPage()
{
    for (const Group &group : groups())
        addImages(QString::fromUtf8(group.title), QString::fromUtf8(group.description), group.names,
                  group.columns);
    addStrips(stripNames());
    addImages(QStringLiteral("Weitere"),
              QStringLiteral("Bilder, die nur die Formatvorlagen des Themas verwenden."), otherNames(), 4);
}

void ImagesPage::addImages(const QString &title, const QString &description, const QStringList &names,
                           int columns)
{
    if (names.isEmpty())
        return;
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(16);
    for (int column = 0; column < columns; ++column)
        grid->setColumnStretch(column, 1);
    for (int index = 0; index < names.size(); ++index)
        grid->addLayout(makeImageCell(names.at(index)), index / columns, index % columns);
    addSection(title, description)->addLayout(grid);
}

void ImagesPage::addStrips(const QStringList &names)
{
    struct State
    {
        QIcon::Mode mode;
        QString title;
    };
    const std::array<State, 4> states{{{QIcon::Selected, QStringLiteral("Gedrückt")},
                                       {QIcon::Active, QStringLiteral("Überfahren")},
                                       {QIcon::Normal, QStringLiteral("Normal")},
                                       {QIcon::Disabled, QStringLiteral("Deaktiviert")}}};
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(4);
    for (const QString &name : names) {
        const int row = grid->rowCount();
        grid->addWidget(makeLabel(name, NVO::Font::SMALL, LabelRole::Name), row, 0, 1, 4);
        for (int column = 0; column < int(states.size()); ++column) {
            const State &state = states.at(std::size_t(column));
            const QVector<QPixmap> images = allRatios(name, state.mode);
            grid->setColumnStretch(column, 1);
            grid->addWidget(makeCaption(state.title), row + 1, column);
            grid->addWidget(makeImageRow(images, Ground::Card), row + 2, column);
            grid->addWidget(makeImageRow(images, Ground::Dark), row + 3, column);
        }
        grid->setRowMinimumHeight(row + 4, 12);
    }
    addSection(QStringLiteral("Bildstreifen"),
               QStringLiteral("Streifen aus vier Bildern, zerlegt in die vier Zustände einer Schaltfläche."))
        ->addLayout(grid);
}
