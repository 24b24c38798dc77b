#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

constexpr int minimumFontDelta = -2;
constexpr int maximumFontDelta = 6;

/** One of the sample themes. */
struct Theme
{
    QString key;   ///< As on the command line and in file names.
    QString title; ///< As the user reads it.
    int variant;   ///< The value of NVO::Product::variant that belongs to it.
};

const QVector<Theme> &themes();
QStringList themeKeys();
std::optional<Theme> themeByKey(const QString &key);

/** Exchanges the theme of the running application. Widgets have to be made anew afterwards. */
class ThemeLoader
{
public:
    /** \a directory holds the theme files; empty: where a build or an installation has put them. */
    explicit ThemeLoader(const QString &directory);

    /** Makes \a theme the current one; false, and nothing changed, if its file cannot be used. */
    bool load(const Theme &theme);

    QString fileName(const Theme &theme) const;

private:
    QString m_directory;
    QString m_loaded;
};

/** Sets the font delta of the library and lets the widgets of Qt itself follow. */
void applyFontDelta(int delta);
