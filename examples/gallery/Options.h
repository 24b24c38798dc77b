#pragma once

#include "Theme.h"

#include <QString>
#include <QStringList>

#include <optional>

/** What the command line asks for. */
struct Options
{
    QString themeDirectory;     ///< Empty: beside the executable.
    std::optional<Theme> theme; ///< None: the first one, or all of them for screenshots.
    QString page;               ///< A key of the page registry; empty: the first one, or all for screenshots.
    QString screenshotDirectory; ///< Empty: an interactive run.
    int fontDelta = 0;           ///< In pixels.
    bool listPages = false;

    /** Reads \a arguments; \a error becomes one line if they are wrong. Ends the program for --help. */
    static Options parse(const QStringList &arguments, QString *error);
};
