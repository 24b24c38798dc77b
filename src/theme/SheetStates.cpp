#include "theme/SheetStates.h"

#include <QCache>
#include <QPair>
#include <QStringList>
#include <QVector>

#include <private/qcssparser_p.h>

#include <algorithm>

namespace NVO {

namespace {

constexpr int cachedLooks = 32;

/** The rules that end in a type name, in the order of the sheet; each has one selector. */
QVector<QCss::StyleRule> rulesWithTypeName(const QString &sheet)
{
    QCss::Parser parser(sheet);
    QCss::StyleSheet parsed;
    if (!parser.parse(&parsed, Qt::CaseSensitive))
        return {};
    QVector<QCss::StyleRule> rules;
    rules.reserve(parsed.nameIndex.size());
    for (const QCss::StyleRule &rule : qAsConst(parsed.nameIndex))
        rules.append(rule);
    std::sort(rules.begin(), rules.end(), [](const QCss::StyleRule &left, const QCss::StyleRule &right) {
        return left.order < right.order;
    });
    return rules;
}

bool asksForStyle(const QCss::BasicSelector &selector, const QString &style)
{
    return std::any_of(selector.attributeSelectors.begin(), selector.attributeSelectors.end(),
                       [&style](const QCss::AttributeSelector &attribute) {
                           return attribute.name == QLatin1String("style") && attribute.value == style;
                       });
}

bool matches(const QCss::Selector &selector, const QString &style)
{
    return std::any_of(selector.basicSelectors.begin(), selector.basicSelectors.end(),
                       [&style](const QCss::BasicSelector &basic) { return asksForStyle(basic, style); });
}

/** Whether \a selector holds in the state, or for the subcontrol, called \a name. */
bool mentions(const QCss::Selector &selector, QLatin1String name)
{
    for (const QCss::BasicSelector &basic : selector.basicSelectors) {
        for (const QCss::Pseudo &pseudo : basic.pseudos) {
            if (!pseudo.negated && pseudo.name == name)
                return true;
        }
    }
    return false;
}

/** The colour of `rgb(r, g, b)` and `rgba(r, g, b, a)`, alpha of 0 to 255 too; invalid for all else. */
QColor colorFromFunction(const QCss::Value &value)
{
    const QStringList call = value.variant.toStringList(); // name and arguments
    if (call.size() != 2)
        return QColor();
    const bool hasAlpha = call.at(0) == QLatin1String("rgba");
    if (!hasAlpha && call.at(0) != QLatin1String("rgb"))
        return QColor();
    const QStringList arguments = call.at(1).split(QLatin1Char(','));
    if (arguments.size() != (hasAlpha ? 4 : 3))
        return QColor();

    QVector<int> numbers;
    for (const QString &argument : arguments) {
        bool isNumber = false;
        const int number = argument.trimmed().toInt(&isNumber);
        if (!isNumber)
            return QColor();
        numbers.append(number);
    }
    // Invalid too if a number is out of range
    return {numbers.at(0), numbers.at(1), numbers.at(2), hasAlpha ? numbers.at(3) : 255};
}

void readColors(const QCss::StyleRule &rule, SheetStates::Colors *colors)
{
    for (const QCss::Declaration &declaration : rule.declarations) {
        for (const QCss::Value &value : qAsConst(declaration.d->values)) {
            if (declaration.d->property == QLatin1String("color"))
                colors->text = colorFromFunction(value);
            else if (declaration.d->property == QLatin1String("text-decoration-color"))
                colors->underline = colorFromFunction(value);
        }
    }
}

void readImage(const QCss::StyleRule &rule, std::optional<QString> *image)
{
    for (const QCss::Declaration &declaration : rule.declarations) {
        if (declaration.d->property != QLatin1String("image"))
            continue;
        for (const QCss::Value &value : qAsConst(declaration.d->values))
            *image = value.toString();
    }
}

SheetStates parse(const QString &sheet, const QString &style)
{
    SheetStates states;
    const QVector<QCss::StyleRule> rules = rulesWithTypeName(sheet);
    for (const QCss::StyleRule &rule : rules) {
        const QCss::Selector &selector = rule.selectors.at(0);
        if (!matches(selector, style))
            continue;
        if (mentions(selector, QLatin1String("focus")))
            readColors(rule, &states.focus);
        if (mentions(selector, QLatin1String("hover")))
            readColors(rule, &states.hover);
        if (mentions(selector, QLatin1String("pressed")))
            readColors(rule, &states.pressed);
        if (mentions(selector, QLatin1String("menu-indicator")))
            readImage(rule, &states.menuIndicator);
    }
    return states;
}

} // namespace

SheetStates SheetStates::read(const QString &sheet, const QString &style)
{
    // A page has many buttons of few looks, and parsing costs more than making one.
    static QCache<QPair<QString, QString>, SheetStates> cache(cachedLooks);
    const QPair<QString, QString> key(sheet, style);
    if (const SheetStates *known = cache.object(key))
        return *known;
    SheetStates states = parse(sheet, style);
    cache.insert(key, new SheetStates(states));
    return states;
}

} // namespace NVO
