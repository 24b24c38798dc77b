#pragma once

#include <QString>

class Gallery;
struct Options;

/**
 * Renders the pages and themes that \a options choose to PNG files and prints their paths. Returns one line
 * that says what went wrong, or nothing.
 */
QString takeScreenshots(Gallery &gallery, const Options &options);
