#pragma once

#include <QApplication>

/** What every program that shows the gallery's window sets: high DPI, one style on every desktop, German. */
class GalleryApplication : public QApplication
{
    Q_OBJECT

public:
    /** As QApplication. */
    GalleryApplication(int &argc, char **argv);
};
