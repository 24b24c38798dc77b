#pragma once

#include <QString>
#include <QTemporaryDir>

/**
 * The pictures that the ribbon addresses as "nvo://LIBRARY/PIXMAP/NAME": drawn in the colours of the theme
 * and served from a folder of their own, which is the search path "nvo".
 */
class PictureLibrary
{
public:
    static QString name() { return QStringLiteral("lib"); }
    static QString overviewPicture() { return QStringLiteral("jahresverlauf"); }

    PictureLibrary();

    /** Draws the pictures anew for the current theme; false if they cannot be written. */
    bool draw() const;

private:
    QTemporaryDir m_directory;
};
