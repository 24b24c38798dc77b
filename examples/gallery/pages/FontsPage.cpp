#include "pages/FontsPage.h"

#include "pages/PageSupport.h"

#include <nvo/Button.h>
#include <nvo/Css.h>
#include <nvo/Font.h>
#include <nvo/Label.h>

#include <QEvent>
#include <QGridLayout>
#include <QMetaEnum>
#include <QSettings>
#include <QVBoxLayout>

namespace {

struct Step
{
    NVO::Font::FontSize size;
    const char *sample;
    const char *use; ///< Beside the elements of the library.
};

const QVector<Step> &steps()
{
    static const QVector<Step> steps{
        {NVO::Font::SMALL, "Zuletzt geändert am 17. April 2026", "Angaben am Rand"},
        {NVO::Font::DEFAULT, "Buchung erfassen und Beleg ablegen", "alle übrigen Elemente"},
        {NVO::Font::HIGHLIGHT, "Rechnung 2026-0417 an Weber GmbH", "Hervorgehobenes"},
        {NVO::Font::HEADLINECONTENT, "Offene Posten zum Stichtag", "Überschriften im Inhalt"},
        {NVO::Font::HEADLINESMALL, "Umsatzsteuer-Voranmeldung", "Abschnitte einer Seite"},
        {NVO::Font::HEADLINEMEDIUM, "Jahresabschluss 2025", "Seitentitel"},
        {NVO::Font::HEADLINEBIG, "Summen und Salden", "Begrüßung und Startseite"},
        {NVO::Font::LARGE, "12.480,50 €", "Kennzahlen"},
    };
    return steps;
}

QString keyOf(NVO::Font::FontSize size)
{
    return QString::fromLatin1(QMetaEnum::fromType<NVO::Font::FontSize>().valueToKey(size));
}

/** The elements whose text has this step, as the table of the theme says. */
QStringList elementsOf(const QString &step)
{
    QSettings table(QStringLiteral(":/FontSizes"), QSettings::IniFormat);
    table.beginGroup(QStringLiteral("Element"));
    QStringList elements;
    const QStringList keys = table.childKeys();
    for (const QString &element : keys) {
        if (table.value(element).toString() == step)
            elements.append(element);
    }
    return elements;
}

/** \a sample with a line below that explains it. */
QLayout *makeSample(NVO::Label *sample, const QString &explanation)
{
    NVO::Label *text = makeCaption(explanation);
    text->setWordWrap(true);
    auto *layout = new QVBoxLayout;
    layout->setSpacing(2);
    layout->addWidget(sample);
    layout->addWidget(text);
    return layout;
}

void addStyle(QGridLayout *grid, const QString &name, const QString &declarations)
{
    const int row = grid->rowCount();
    const QString sample =
        QStringLiteral("<span style=\"%1\">Beleg 4711 – Bürobedarf, 119,00 € brutto</span>");
    grid->addWidget(makeLabel(name, NVO::Font::DEFAULT, LabelRole::Name), row, 0, Qt::AlignTop);
    grid->addLayout(makeSample(makeLabel(sample.arg(declarations), NVO::Font::HEADLINECONTENT), declarations),
                    row, 1);
}

} // namespace

FontsPage::FontsPage()
{
    addScale();
    addStyles();
    addDelta();
}

void FontsPage::addScale()
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(12);
    grid->setColumnStretch(1, 1);
    for (const Step &step : steps()) {
        const QString key = keyOf(step.size);
        const int pixels = NVO::Font::instance().fontSize(step.size);
        const QStringList uses = elementsOf(key) << QString::fromUtf8(step.use);
        auto *name = new QVBoxLayout;
        name->setSpacing(2);
        name->addWidget(makeLabel(key, NVO::Font::DEFAULT, LabelRole::Name));
        name->addWidget(makeCaption(QStringLiteral("%1 px").arg(pixels)));
        name->addStretch();
        const int row = grid->rowCount();
        grid->addLayout(name, row, 0);
        grid->addLayout(
            makeSample(makeLabel(QString::fromUtf8(step.sample), step.size), uses.join(QStringLiteral(", "))),
            row, 1);
    }
    addSection(QStringLiteral("Schriftgrößen"),
               QStringLiteral("Acht Stufen, in Pixeln, und die Elemente, deren Text die Stufe hat."))
        ->addLayout(grid);
}

void FontsPage::addStyles()
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(12);
    grid->setColumnStretch(1, 1);
    const NVO::Font &font = NVO::Font::instance();
    addStyle(grid, QStringLiteral("Normal"), font.normal());
    addStyle(grid, QStringLiteral("Fett"), font.bold());
    addStyle(grid, QStringLiteral("Halbfett"), font.semibold());
    addStyle(grid, QStringLiteral("Halbleicht"), font.semilight());
    addStyle(grid, QStringLiteral("Leicht"), font.light());
    addStyle(grid, QStringLiteral("Kursiv"), font.italic());
    addSection(QStringLiteral("Schriftschnitte"),
               QStringLiteral("Sechs Schnitte. Fehlt die bevorzugte Schrift, so gilt die nächste der Liste."))
        ->addLayout(grid);
}

void FontsPage::addDelta()
{
    QVBoxLayout *section = addSection(
        QStringLiteral("Zuschlag"),
        QStringLiteral("Der Regler oben rechts vergrößert oder verkleinert alle Texte um dieselbe Zahl "
                       "von Pixeln. Alles auf dieser Seite folgt ihm."));
    m_delta = makeLabel(QString());
    section->addWidget(m_delta);

    auto *samples = new QHBoxLayout;
    samples->setSpacing(16);
    auto *button = new NVO::Button;
    button->setText(QStringLiteral("Buchung erfassen"));
    samples->addWidget(button);
    samples->addWidget(makeLabel(QStringLiteral("Rechnung <b>2026-0417</b>"), NVO::Font::HEADLINESMALL));
    samples->addWidget(makeCaption(QStringLiteral("fällig am 1. Mai 2026")));
    samples->addStretch();
    section->addLayout(samples);
    showDelta();
}

void FontsPage::showDelta()
{
    const int delta = NVO::Css::instance().fontDelta();
    const int base = NVO::Font::instance().fontSizeByElement(NVO::ElementButton, QString());
    m_delta->setText(QStringLiteral("Schaltfläche: %1 px Grundgröße %2 %3 px Zuschlag = <b>%4 px</b>")
                         .arg(base)
                         .arg(delta < 0 ? QChar(0x2212) : QLatin1Char('+'))
                         .arg(qAbs(delta))
                         .arg(NVO::Font::instance().scaledFontSizeByElement(NVO::ElementButton, QString())));
}

bool FontsPage::event(QEvent *event)
{
    if (event->type() == QEvent::ApplicationFontChange)
        showDelta();
    return Page::event(event);
}
