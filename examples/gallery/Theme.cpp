#include "Theme.h"

#include <nvo/Css.h>
#include <nvo/Font.h>
#include <nvo/Palette.h>
#include <nvo/Product.h>

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QFont>
#include <QPixmapCache>
#include <QResource>

#include <algorithm>

namespace {

/** Where the theme files are as seen from the executable, installed and in the build tree. */
QString directoryBesideExecutable()
{
    const QDir binaries(QApplication::applicationDirPath());
    const QString installed = binaries.filePath(QStringLiteral("../share/NvoSdkGui/themes"));
    return QFileInfo::exists(installed) ? installed : binaries.filePath(QStringLiteral("../share"));
}

/** The families of the normal face, the preferred one first. */
QStringList normalFamilies()
{
    const QString declarations = NVO::Font::instance().normal();
    const QString property = QStringLiteral("font-family:");
    const int start = declarations.indexOf(property) + property.size();
    QString list = declarations.mid(start, declarations.indexOf(QLatin1Char(';'), start) - start);
    list.remove(QLatin1Char('\''));
    return list.split(QLatin1Char(','));
}

void applyApplicationFont()
{
    QFont font;
    font.setFamilies(normalFamilies());
    const int size = NVO::Font::instance().fontSize(NVO::Font::DEFAULT) + NVO::Css::instance().fontDelta();
    font.setPixelSize(std::max(size, 1));
    QApplication::setFont(font);
}

} // namespace

const QVector<Theme> &themes()
{
    static const QVector<Theme> themes{{QStringLiteral("classic"), QStringLiteral("Klassisch"), 0},
                                       {QStringLiteral("modern"), QStringLiteral("Modern"), 1}};
    return themes;
}

QStringList themeKeys()
{
    QStringList keys;
    for (const Theme &theme : themes())
        keys.append(theme.key);
    return keys;
}

std::optional<Theme> themeByKey(const QString &key)
{
    for (const Theme &theme : themes()) {
        if (theme.key == key)
            return theme;
    }
    return std::nullopt;
}

ThemeLoader::ThemeLoader(const QString &directory)
    : m_directory(directory.isEmpty() ? directoryBesideExecutable() : directory)
{}

QString ThemeLoader::fileName(const Theme &theme) const
{
    return QDir::cleanPath(QDir(m_directory).absoluteFilePath(QStringLiteral("nvo-%1.rcc").arg(theme.key)));
}

bool ThemeLoader::load(const Theme &theme)
{
    const QString file = fileName(theme);
    if (file == m_loaded)
        return true;
    if (!QResource::registerResource(file))
        return false;
    if (!m_loaded.isEmpty())
        QResource::unregisterResource(m_loaded);
    m_loaded = file;

    NVO::Product::instance().variant = theme.variant;
    QPixmapCache::clear();
    NVO::Css::instance().reset();
    QApplication::setPalette(NVO::Palette::instance().palette());
    applyApplicationFont();
    return true;
}

void applyFontDelta(int delta)
{
    NVO::Css::instance().setFontDelta(delta);
    applyApplicationFont();
}
