#include <nvo/Css.h>
#include <nvo/Font.h>
#include <nvo/Palette.h>

#include <benchmark/benchmark.h>

#include <QMetaEnum>
#include <QRandomGenerator>
#include <QSettings>

#include <private/qcssparser_p.h>

#include <array>
#include <cstring>

using NVO::Css;
using NVO::Font;
using NVO::Palette;

namespace {

constexpr int sheetCount = 50;
constexpr int tokenCount = 120;
constexpr int tokensPerSheet = 150;
constexpr int sheetSize = 6000;

QString token(int index)
{
    return QStringLiteral("COLOR_%1_ELEMENT_STATE_%2").arg(QChar('A' + index % 26)).arg(index);
}

/** Sheets as they are written: rules with states, a token at every second or third declaration. */
QStringList sheets()
{
    static const QStringList properties{"border: 1px solid ",
                                        "color: ", "background-color: ", "selection-color: "};
    QRandomGenerator random(1);
    QStringList result;
    for (int i = 0; i < sheetCount; ++i) {
        QString sheet;
        for (int used = 0; used < tokensPerSheet; ++used) {
            if (used % 5 == 0)
                sheet += QStringLiteral("W%1[style=\"B\"]:hover {\n").arg(i);
            sheet += properties[random.bounded(4)] + token(random.bounded(tokenCount)) + ";\n";
            if (used % 5 == 4)
                sheet += "}\n";
        }
        while (sheet.size() < sheetSize)
            sheet += "W { padding: 2px 10px; }\n";
        result.append(sheet);
    }
    return result;
}

void usePaletteOfTokens()
{
    QHash<QString, QColor> colors;
    for (int i = 0; i < tokenCount; ++i)
        colors.insert(token(i), QColor::fromRgb(QRgb(i * 1299721)));
    Css::instance().reset();
    Palette::instance().setNamedColors(colors);
}

bool isWordCharacter(QChar character)
{
    return character.isLetterOrNumber() || character == QLatin1Char('_');
}

QString replacedInPlace(QString text, const QHash<QString, QString> &words)
{
    for (int position = 0;;) {
        while (position < text.size() && !isWordCharacter(text[position]))
            ++position;
        const int start = position;
        while (position < text.size() && isWordCharacter(text[position]))
            ++position;
        if (position >= text.size())
            return text;
        const auto value = words.constFind(text.mid(start, position - start));
        if (value != words.constEnd()) {
            text.replace(start, position - start, *value);
            position = start;
        }
    }
}

QHash<QString, QString> rgbaWords()
{
    QHash<QString, QString> words;
    const auto insert = [&words](const QString &name, const QColor &color) {
        words.insert(name, QStringLiteral("rgba(%1,%2,%3,%4)")
                               .arg(color.red())
                               .arg(color.green())
                               .arg(color.blue())
                               .arg(color.alpha()));
    };
    const QStringList names = QColor::colorNames();
    for (const QString &name : names)
        insert(name, QColor(name));
    const auto &colors = Palette::instance().namedColors();
    for (auto color = colors.cbegin(); color != colors.cend(); ++color)
        insert(color.key(), *color);
    return words;
}

void replaceOurs(benchmark::State &state)
{
    usePaletteOfTokens();
    const QStringList texts = sheets();
    for (auto _ : state) {
        for (const QString &text : texts)
            benchmark::DoNotOptimize(Css::instance().replaceCss(text));
    }
    Css::instance().reset();
}

/** The least that any replacing must do: find the words, and copy the text. */
void replaceFloor(benchmark::State &state)
{
    const QStringList texts = sheets();
    std::array<bool, 128> word{};
    for (ushort c = 0; c < word.size(); ++c)
        word[c] = isWordCharacter(QChar(c));
    const auto isWord = [&word](QChar c) {
        return c.unicode() < word.size() ? word[c.unicode()] : c.isLetterOrNumber();
    };
    for (auto _ : state) {
        for (const QString &text : texts) {
            const QChar *const end = text.constData() + text.size();
            int words = 0;
            for (const QChar *at = text.constData(); at != end;) {
                while (at != end && !isWord(*at))
                    ++at;
                const QChar *start = at;
                while (at != end && isWord(*at))
                    ++at;
                words += start != at;
            }
            benchmark::DoNotOptimize(words);
            QString copy(text.size(), Qt::Uninitialized);
            std::memcpy(copy.data(), text.constData(), std::size_t(text.size()) * sizeof(QChar));
            benchmark::DoNotOptimize(copy);
        }
    }
}

/** The three passes one after the other, each in place. */
void replaceInPlace(benchmark::State &state)
{
    usePaletteOfTokens();
    const QStringList texts = sheets();
    const QHash<QString, QString> colors = rgbaWords();
    const Font &font = Font::instance();
    for (auto _ : state) {
        for (const QString &text : texts) {
            QString result = replacedInPlace(text, colors);
            result = replacedInPlace(result, {{"NORMAL", font.normal()},
                                              {"BOLD", font.bold()},
                                              {"SEMIBOLD", font.semibold()},
                                              {"SEMILIGHT", font.semilight()},
                                              {"LIGHT", font.light()}});
            result.remove(QStringLiteral("[os=\"windows\"]"));
            benchmark::DoNotOptimize(result);
        }
    }
    Css::instance().reset();
}

void cachedOurs(benchmark::State &state)
{
    for (auto _ : state) {
        for (int element = 0; element < sheetCount; ++element)
            benchmark::DoNotOptimize(Css::instance().css(NVO::Element(element)));
    }
}

void cachedArray(benchmark::State &state)
{
    std::array<QString, sheetCount> texts;
    for (int element = 0; element < sheetCount; ++element)
        texts[std::size_t(element)] = QStringLiteral("sheet %1").arg(element);
    for (auto _ : state) {
        for (std::size_t element = 0; element < sheetCount; ++element) {
            QString text = texts[element];
            benchmark::DoNotOptimize(text);
        }
    }
}

void importsOurs(benchmark::State &state)
{
    const QString text = sheets().first();
    for (auto _ : state)
        benchmark::DoNotOptimize(Css::imports(text));
}

void importsParser(benchmark::State &state)
{
    const QString text = sheets().first();
    for (auto _ : state) {
        QCss::Parser parser(text);
        QCss::StyleSheet sheet;
        benchmark::DoNotOptimize(parser.parse(&sheet, Qt::CaseSensitive));
    }
}

void fontOurs(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(Font::instance().scaledFontSizeByElement(NVO::ElementButton, QString()));
}

void fontTwoSettings(benchmark::State &state)
{
    for (auto _ : state) {
        QSettings elements(QStringLiteral(":/FontSizes"), QSettings::IniFormat);
        elements.beginGroup(QStringLiteral("Element"));
        const QString step = elements.value(QStringLiteral("Button")).toString();
        QSettings sizes(QStringLiteral(":/Font"), QSettings::IniFormat);
        sizes.beginGroup(QStringLiteral("Size"));
        benchmark::DoNotOptimize(sizes.value(step).toInt());
    }
}

BENCHMARK(replaceOurs)->Name("css/replace/ours");
BENCHMARK(replaceFloor)->Name("css/replace/floor");
BENCHMARK(replaceInPlace)->Name("css/replace/in_place");
BENCHMARK(cachedOurs)->Name("css/cached/ours");
BENCHMARK(cachedArray)->Name("css/cached/array");
BENCHMARK(importsOurs)->Name("css/imports/ours");
BENCHMARK(importsParser)->Name("css/imports/parser");
BENCHMARK(fontOurs)->Name("font/scaled_size/ours");
BENCHMARK(fontTwoSettings)->Name("font/scaled_size/two_settings");

} // namespace
