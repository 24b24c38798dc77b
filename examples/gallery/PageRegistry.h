#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

class Page;

/** What the frame knows of a page. */
struct PageEntry
{
    QString key;       ///< Stable, ASCII: for the command line and for file names.
    QString title;     ///< As the user reads it.
    Page *(*create)(); ///< Makes the page; the caller owns it.
};

/** All pages in the order of the list. They are named in CMakeLists.txt. */
const QVector<PageEntry> &pageEntries();
QStringList pageKeys();
