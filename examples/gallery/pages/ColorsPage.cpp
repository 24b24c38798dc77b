#include "pages/ColorsPage.h"

#include "pages/PageSupport.h"

#include <nvo/Css.h>
#include <nvo/Label.h>
#include <nvo/Palette.h>

#include <QFrame>
#include <QGridLayout>
#include <QSettings>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int columns = 3;
constexpr QSize swatchSize(44, 36);
constexpr QSize gradientSize(96, 36);

/** Tokens that belong together, by how they begin. */
struct Group
{
    const char *title;
    const char *description;
    QStringList beginnings;
    bool byLightness = false;
};

const QVector<Group> &groups()
{
    static const QVector<Group> groups{
        {"Grundfarben",
         "Die neutrale Skala, von der hellsten bis zur dunkelsten Stufe.",
         {"BASECOLOR_"},
         true},
        {"Akzent", "Die Leitfarbe in allen Stufen.", {"BASECOLOR_ACCENT"}, true},
        {"Signalfarben",
         "Fehler, Warnung, Erfolg und Hinweis, jeweils vom blassen Grund bis zur kräftigen Schrift.",
         {"BASECOLOR_RUBY", "BASECOLOR_AMBER", "BASECOLOR_LEAF", "BASECOLOR_AZURE", "BASECOLOR_ORANGE"}},
        {"Flächen",
         "Worauf alles andere steht.",
         {"COLOR_WINDOW", "COLOR_SURFACE", "COLOR_TITLEBAR", "COLOR_STATUSBAR"}},
        {"Text", "Schrift auf hellem, dunklem und farbigem Grund.", {"COLOR_TEXT"}},
        {"Linien und Fokus",
         "Trennlinien, Rahmen und der Tastaturfokus.",
         {"COLOR_DEKOLINE", "COLOR_BORDER", "COLOR_FOCUS"}},
        {"Zustände",
         "Überfahren, gedrückt, gewählt, deaktiviert.",
         {"COLOR_HOVER", "COLOR_PRESSED", "COLOR_CHECKED", "COLOR_DISABLED", "COLOR_QUIET",
          "COLOR_SELECTION"}},
        {"Schaltflächen",
         "Rahmen und Schrift der Schaltflächen und der farbige Grund.",
         {"COLOR_ACCENT", "COLOR_BUTTON"}},
        {"Felder", "Eingabefelder in allen Zuständen.", {"COLOR_FIELD"}},
        {"Verweise", "Verweise auf hellem und dunklem Grund.", {"COLOR_LINK"}},
        {"Meldungen",
         "Was ein Feld, ein Hinweis oder eine Meldung ausdrückt.",
         {"COLOR_ERROR", "COLOR_WARNING", "COLOR_SUCCESS", "COLOR_INFO"}},
        {"Kacheln", "Die großen Schaltflächen der Übersichtsseiten.", {"COLOR_BIG_BUTTON"}},
        {"Vorschlagslisten und Kurzhinweise",
         "Was über der Seite aufgeht.",
         {"COLOR_COMPLETER", "COLOR_TOOLTIP"}},
        {"Menüband und Tastenhinweise",
         "Das Menüband mit seinen Reitern.",
         {"COLOR_RIBBON", "COLOR_TAB", "COLOR_KEYTIP", "COLOR_TOOLBAR"}},
        {"Flyouts, Listen und Bildlauf",
         "Zeigende Hinweise, Zeilen von Listen und Bildlaufleisten.",
         {"COLOR_FLYOUT", "COLOR_DIALOG", "COLOR_ROW", "COLOR_SCROLLBAR"}},
        {"Verläufe", "Ein Verlauf steht in den Formatvorlagen wie eine Farbe.", {"GRADIENT_"}},
    };
    return groups;
}

QStringList allTokens()
{
    QStringList tokens =
        NVO::Palette::instance().namedColors().keys() + NVO::Palette::instance().namedGradients().keys();
    tokens.sort();
    tokens.removeDuplicates();
    return tokens;
}

bool isToken(const QString &word)
{
    const NVO::Palette &palette = NVO::Palette::instance();
    return palette.namedColors().contains(word) || palette.namedGradients().contains(word);
}

/** How much of \a token the group names: 0 if the token does not belong to it. */
int fit(const Group &group, const QString &token)
{
    int longest = 0;
    for (const QString &beginning : group.beginnings) {
        if (token.startsWith(beginning))
            longest = std::max(longest, beginning.size());
    }
    return longest;
}

/** The place in groups() of the group that fits best; -1 if none does. */
int groupOf(const QString &token)
{
    int best = -1;
    int bestFit = 0;
    for (int index = 0; index < groups().size(); ++index) {
        const int length = fit(groups().at(index), token);
        if (length > bestFit) {
            best = index;
            bestFit = length;
        }
    }
    return best;
}

void sortByLightness(QStringList &tokens)
{
    const auto lightness = [](const QString &token) {
        return qGray(NVO::Palette::instance().namedColor(token).rgb());
    };
    std::stable_sort(tokens.begin(), tokens.end(), [&lightness](const QString &left, const QString &right) {
        return lightness(left) > lightness(right);
    });
}

/** "#1F65A8", with the opacity where there is one; "Verlauf" for a gradient. */
QString valueText(const QString &token)
{
    const QColor color = NVO::Palette::instance().namedColor(token);
    if (!color.isValid())
        return QStringLiteral("Verlauf");
    const QString rgb = color.name().toUpper();
    return color.alpha() == 255
               ? rgb
               : QStringLiteral("%1, %2 % deckend").arg(rgb).arg(qRound(color.alphaF() * 100));
}

/** The token that \a token is defined by, if it is. */
QString referenceText(const QSettings &palette, const QString &token)
{
    const QString definition = palette.value(QStringLiteral("Named/") + token).toString();
    return isToken(definition) ? QStringLiteral("= ") + definition : QString();
}

/** Lets a long name break behind its underscores. */
QString breakable(QString name)
{
    return name.replace(QLatin1Char('_'), QStringLiteral("_&#8203;"));
}

QFrame *makeColored(const QString &token, QSize size)
{
    auto *frame = new QFrame;
    frame->setObjectName(QStringLiteral("swatch"));
    frame->setFixedSize(size);
    const QString sheet = QStringLiteral(
        "#swatch { background: %1; border: 1px solid COLOR_BORDER_SOFT; border-radius: 3px; }");
    frame->setStyleSheet(NVO::Css::instance().replaceCss(sheet.arg(token)));
    return frame;
}

QFrame *makeSwatch(const QString &token)
{
    if (NVO::Palette::instance().namedGradients().contains(token))
        return makeColored(token, gradientSize);
    if (NVO::Palette::instance().namedColor(token).alpha() == 255)
        return makeColored(token, swatchSize);
    // What is translucent lies as a veil over dark ground.
    QFrame *ground = makeColored(QStringLiteral("COLOR_SURFACE_DARK"), swatchSize);
    QFrame *veil = makeColored(token, swatchSize / 2);
    veil->setParent(ground);
    veil->move(swatchSize.width() / 4, swatchSize.height() / 4);
    return ground;
}

QLayout *makeTokenCell(const QSettings &palette, const QString &token)
{
    NVO::Label *name = makeLabel(breakable(token), NVO::Font::SMALL, LabelRole::Name);
    QString value = valueText(token);
    const QString reference = referenceText(palette, token);
    if (!reference.isEmpty())
        value += QStringLiteral("<br>") + breakable(reference);
    NVO::Label *valueLabel = makeCaption(value);
    for (NVO::Label *label : {name, valueLabel}) {
        label->setWordWrap(true);
        label->setMinimumWidth(1);
    }

    auto *texts = new QVBoxLayout;
    texts->setSpacing(1);
    texts->addWidget(name);
    texts->addWidget(valueLabel);
    texts->addStretch();
    auto *cell = new QHBoxLayout;
    cell->setSpacing(10);
    cell->addWidget(makeSwatch(token), 0, Qt::AlignTop);
    cell->addLayout(texts, 1);
    return cell;
}

} // namespace

ColorsPage::ColorsPage()
{
    QHash<int, QStringList> tokensOf;
    const QStringList tokens = allTokens();
    for (const QString &token : tokens)
        tokensOf[groupOf(token)].append(token);
    for (int index = 0; index < groups().size(); ++index) {
        const Group &group = groups().at(index);
        if (group.byLightness)
            sortByLightness(tokensOf[index]);
        addTokens(QString::fromUtf8(group.title), QString::fromUtf8(group.description),
                  tokensOf.value(index));
    }
    addTokens(QStringLiteral("Weitere"), QStringLiteral("Was sonst noch in der Palette steht."),
              tokensOf.value(-1));
}

void ColorsPage::addTokens(const QString &title, const QString &description, const QStringList &tokens)
{
    if (tokens.isEmpty())
        return;
    const QSettings palette(QStringLiteral(":/Palette"), QSettings::IniFormat);
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(12);
    for (int column = 0; column < columns; ++column)
        grid->setColumnStretch(column, 1);
    for (int index = 0; index < tokens.size(); ++index)
        grid->addLayout(makeTokenCell(palette, tokens.at(index)), index / columns, index % columns);
    addSection(title, description)->addLayout(grid);
}
