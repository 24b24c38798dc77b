#pragma once

#include <QPixmap>
#include <QString>

class Gallery;
struct Options;
struct Theme;

/** The window that shows \a page in \a theme, in full; null, with Gallery::error(), if it cannot be opened.
 */
QPixmap takePicture(Gallery &gallery, const Theme &theme, const QString &page);

/**
 * Renders the pages and themes that \a options choose to PNG files and prints their paths. Returns one line
 * that says what went wrong, or nothing.
 */
QString takeScreenshots(Gallery &gallery, const Options &options);
