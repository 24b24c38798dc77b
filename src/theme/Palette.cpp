#include <nvo/Palette.h>

#include "theme/IniResource.h"
#include "theme/StyleSupport.h"

#include <QDebug>
#include <QGuiApplication>
#include <QVariant>

#include <algorithm>
#include <array>
#include <utility>

namespace NVO {

namespace {

constexpr std::array<std::pair<const char *, QPalette::ColorGroup>, 3> colorGroups{{
    {"Active", QPalette::Active},
    {"Inactive", QPalette::Inactive},
    {"Disabled", QPalette::Disabled},
}};

constexpr std::array<QPalette::ColorRole, 19> colorRoles{
    QPalette::Window,
    QPalette::WindowText,
    QPalette::Base,
    QPalette::AlternateBase,
    QPalette::ToolTipBase,
    QPalette::ToolTipText,
    QPalette::Text,
    QPalette::Button,
    QPalette::ButtonText,
    QPalette::BrightText,
    QPalette::Light,
    QPalette::Midlight,
    QPalette::Dark,
    QPalette::Mid,
    QPalette::Shadow,
    QPalette::Highlight,
    QPalette::HighlightedText,
    QPalette::Link,
    QPalette::LinkVisited,
};

} // namespace

Palette &Palette::instance()
{
    static Palette palette;
    return palette;
}

Palette::Palette()
{
    init();
}

void Palette::init()
{
    m_namedColors.clear();
    m_namedGradients.clear();
    IniResource resource(QStringLiteral(":/Palette"));
    readNamed(resource.section(QStringLiteral("Named")));

    m_palette = qGuiApp ? QGuiApplication::palette() : QPalette();
    for (const auto &[section, group] : colorGroups)
        readRoles(resource.section(QString::fromLatin1(section)), group);
}

QColor Palette::namedColor(const QString &name) const
{
    return m_namedColors.value(name);
}

void Palette::setNamedColors(const QHash<QString, QColor> &colors)
{
    if (m_namedColors != colors)
        m_namedColors = colors;
}

void Palette::readNamed(const QVariantMap &values)
{
    QHash<QString, QString> missing;
    for (auto value = values.cbegin(); value != values.cend(); ++value) {
        const QString text = value->toString();
        if (!text.isEmpty() && hasOnlyUpperLetters(text)) {
            if (!resolve(value.key(), text))
                missing.insert(value.key(), text);
        } else {
            const QColor color = fromVariant(*value);
            if (color.isValid())
                m_namedColors.insert(value.key(), color);
            else
                m_namedGradients.insert(value.key(), text);
        }
    }

    while (!missing.isEmpty()) {
        const int before = missing.size();
        missing = reparseMissingColors(missing);
        if (missing.size() == before) {
            qDebug() << "NVO::Palette: reparseMissingColors couldn't replace" << missing;
            return;
        }
    }
}

void Palette::readRoles(const QVariantMap &values, QPalette::ColorGroup group)
{
    for (const QPalette::ColorRole role : colorRoles) {
        const QColor color = fromVariant(values.value(StyleSupport::enumKey(role)));
        if (color.isValid())
            m_palette.setColor(group, role, color);
    }
}

/** Gives \a token what \a name stands for; false if that is not known yet. */
bool Palette::resolve(const QString &token, const QString &name)
{
    const auto color = m_namedColors.constFind(name);
    if (color != m_namedColors.constEnd()) {
        m_namedColors.insert(token, QColor(*color));
        return true;
    }
    const auto gradient = m_namedGradients.constFind(name);
    if (gradient != m_namedGradients.constEnd()) {
        m_namedGradients.insert(token, QString(*gradient));
        return true;
    }
    return false;
}

QHash<QString, QString> Palette::reparseMissingColors(const QHash<QString, QString> &missing)
{
    QHash<QString, QString> stillMissing;
    for (auto entry = missing.cbegin(); entry != missing.cend(); ++entry) {
        if (!resolve(entry.key(), entry.value()))
            stillMissing.insert(entry.key(), entry.value());
    }
    return stillMissing;
}

bool Palette::hasOnlyUpperLetters(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar character) {
        return !character.isLower() && (character.isLetter() || character == QLatin1Char('_'));
    });
}

QColor Palette::fromVariant(const QVariant &value)
{
    const QVariantList list = value.toList();
    const auto channel = [&list](int index) { return list.at(index).toInt(); };
    switch (list.size()) {
    case 0:
        return QColor(value.toString());
    case 3:
        return QColor(channel(0), channel(1), channel(2));
    case 4:
        return QColor(channel(0), channel(1), channel(2), channel(3));
    default:
        return QColor();
    }
}

} // namespace NVO
