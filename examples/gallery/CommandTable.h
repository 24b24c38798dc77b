#pragma once

#include "CommandIcons.h"

#include <nvo/Action.h>

#include <QString>
#include <QVector>

/** A tab of the ribbon. */
struct TabEntry
{
    QString name;
    QString key; ///< Of its keytip.
};

/** A command of the ribbon: one row of the menu definition. */
struct CommandEntry
{
    QString tab;
    QString group; ///< Groups come in the order in which they are first named.
    QString name;  ///< Unique.
    QString text;  ///< Lines of a large button are parted by "<br>".
    NVO::Action::CommandType type = NVO::Action::CommandButton;
    NVO::RibbonControl::SizeMode size = NVO::RibbonControl::Small;
    QString key; ///< Of its keytip; unique in the tab.
    CommandIcon icon = CommandIcon::None;
    QString page;     ///< The page of the gallery that it shows; mostly none.
    QString shortcut; ///< Mostly none.
    QString help;     ///< The tool tip.

    QString plainText() const;
};

/** \name Commands that do something in the gallery; the others only say that they have been chosen */
///@{
constexpr QLatin1String themeCommand("darstellung."); // followed by the key of the theme
constexpr QLatin1String largerCommand("schrift.groesser");
constexpr QLatin1String smallerCommand("schrift.kleiner");
constexpr QLatin1String resetFontCommand("schrift.normal");
constexpr QLatin1String contextOption("ansicht.kontext");
constexpr QLatin1String headerOption("ansicht.kopfzeile");
constexpr QLatin1String namesOption("ansicht.namen");
constexpr QLatin1String aboutCommand("hilfe.info");
constexpr QLatin1String contextTab("Kontext");
///@}

const QVector<TabEntry> &tabEntries();

/** All commands, those for the pages that the definition does not know included. */
const QVector<CommandEntry> &commandEntries();
