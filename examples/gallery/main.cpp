#include "Gallery.h"
#include "GalleryApplication.h"
#include "Options.h"
#include "PageRegistry.h"
#include "Screenshots.h"

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
    const GalleryApplication application(argc, argv);

    QString error;
    const Options options = Options::parse(QApplication::arguments(), &error);
    return error.isEmpty() ? run(options) : complain(error, badUsage);
}
