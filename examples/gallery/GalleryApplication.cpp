#include "GalleryApplication.h"

#include <QLocale>

namespace {

/** Has to come before the application is made. */
int &prepared(int &argc)
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    // The sheets build on one style, so that the application looks alike on every desktop.
    QApplication::setStyle(QStringLiteral("Fusion"));
    return argc;
}

} // namespace

GalleryApplication::GalleryApplication(int &argc, char **argv)
    : QApplication(prepared(argc), argv)
{
    // Amounts and calendars are German, whatever the desktop speaks.
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    setApplicationName(QStringLiteral("nvo_gallery"));
    setApplicationDisplayName(QStringLiteral("NvoSdkGui Galerie"));
}
