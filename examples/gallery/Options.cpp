#include "Options.h"

#include "PageRegistry.h"

#include <QCommandLineParser>

namespace {

QString allowed(const QStringList &keys)
{
    return keys.join(QStringLiteral(", "));
}

} // namespace

Options Options::parse(const QStringList &arguments, QString *error)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Shows the widgets of NvoSdkGui in its sample themes."));
    const QCommandLineOption themeOption(QStringLiteral("theme"), QStringLiteral("Theme: classic or modern."),
                                         QStringLiteral("name"));
    const QCommandLineOption pageOption(
        QStringLiteral("page"), QStringLiteral("Page to open; see --list-pages."), QStringLiteral("name"));
    const QCommandLineOption screenshotsOption(
        QStringLiteral("screenshots"),
        QStringLiteral("Render every page of every theme (or those chosen) to PNG files in <dir> and quit."),
        QStringLiteral("dir"));
    const QCommandLineOption fontDeltaOption(QStringLiteral("font-delta"),
                                             QStringLiteral("Pixels added to every font size, %1 to %2.")
                                                 .arg(minimumFontDelta)
                                                 .arg(maximumFontDelta),
                                             QStringLiteral("n"), QStringLiteral("0"));
    const QCommandLineOption themeDirOption(QStringLiteral("theme-dir"),
                                            QStringLiteral("Folder of the theme files (*.rcc)."),
                                            QStringLiteral("dir"));
    const QCommandLineOption listPagesOption(QStringLiteral("list-pages"),
                                             QStringLiteral("Print the names of the pages and quit."));
    parser.addOptions(
        {themeOption, pageOption, screenshotsOption, fontDeltaOption, themeDirOption, listPagesOption});
    const QCommandLineOption helpOption = parser.addHelpOption();

    Options options;
    if (!parser.parse(arguments)) {
        *error = parser.errorText();
        return options;
    }
    if (parser.isSet(helpOption))
        parser.showHelp();
    if (!parser.positionalArguments().isEmpty()) {
        *error = QStringLiteral("unexpected argument '%1'").arg(parser.positionalArguments().constFirst());
        return options;
    }

    if (parser.isSet(themeOption)) {
        options.theme = themeByKey(parser.value(themeOption));
        if (!options.theme) {
            *error = QStringLiteral("unknown theme '%1' (%2)")
                         .arg(parser.value(themeOption), allowed(themeKeys()));
            return options;
        }
    }
    options.page = parser.value(pageOption);
    if (parser.isSet(pageOption) && !pageKeys().contains(options.page)) {
        *error = QStringLiteral("unknown page '%1' (%2)").arg(options.page, allowed(pageKeys()));
        return options;
    }
    bool isNumber = false;
    options.fontDelta = parser.value(fontDeltaOption).toInt(&isNumber);
    if (!isNumber || options.fontDelta < minimumFontDelta || options.fontDelta > maximumFontDelta) {
        *error = QStringLiteral("--font-delta must be a number from %1 to %2")
                     .arg(minimumFontDelta)
                     .arg(maximumFontDelta);
        return options;
    }
    options.screenshotDirectory = parser.value(screenshotsOption);
    if (parser.isSet(screenshotsOption) && options.screenshotDirectory.isEmpty()) {
        *error = QStringLiteral("--screenshots needs a folder");
        return options;
    }
    options.themeDirectory = parser.value(themeDirOption);
    options.listPages = parser.isSet(listPagesOption);
    return options;
}
