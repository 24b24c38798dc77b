#include "Gallery.h"
#include "Options.h"
#include "PageRegistry.h"
#include "Screenshots.h"

#include <QApplication>
#include <QLocale>
#include <QTextStream>

namespace {

constexpr int failed = 1;
constexpr int badUsage = 2;

int complain(const QString &message, int exitCode)
{
    QTextStream(stderr) << "nvo_gallery: " << message << '\n';
    return exitCode;
}

int listPages()
{
    QTextStream out(stdout);
    for (const PageEntry &page : pageEntries())
        out << page.key << '\n';
    return 0;
}

int run(const Options &options)
{
    if (options.listPages)
        return listPages();

    Gallery gallery(options.themeDirectory);
    gallery.setFontDelta(options.fontDelta);
    if (!options.screenshotDirectory.isEmpty()) {
        const QString error = takeScreenshots(gallery, options);
        return error.isEmpty() ? 0 : complain(error, failed);
    }

    const QString page = options.page.isEmpty() ? pageEntries().constFirst().key : options.page;
    const Theme &theme = options.theme ? *options.theme : themes().constFirst();
    if (!gallery.open(theme, page))
        return complain(gallery.error(), failed);
    return QApplication::exec();
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    // The sheets build on one style, so that the application looks alike on every desktop.
    QApplication::setStyle(QStringLiteral("Fusion"));
    const QApplication application(argc, argv);
    // Amounts and calendars are German, whatever the desktop speaks.
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    QApplication::setApplicationName(QStringLiteral("nvo_gallery"));
    QApplication::setApplicationDisplayName(QStringLiteral("NvoSdkGui Galerie"));

    QString error;
    const Options options = Options::parse(QApplication::arguments(), &error);
    return error.isEmpty() ? run(options) : complain(error, badUsage);
}
