#pragma once

#include "PictureLibrary.h"
#include "Theme.h"

#include <QObject>
#include <QString>

#include <memory>

class MainWindow;

/** Keeps the one window of the application and builds it anew when the theme changes. */
class Gallery : public QObject
{
    Q_OBJECT

public:
    explicit Gallery(const QString &themeDirectory);
    ~Gallery() override;

    /** Shows page \a page in \a theme; false, with error(), if the theme cannot be loaded. */
    bool open(const Theme &theme, const QString &page);

    void setFontDelta(int delta);

    /** The window of the last open(). */
    MainWindow *window() const { return m_window.get(); }

    /** One line; empty if all went well. */
    QString error() const { return m_error; }

private:
    void switchTheme(const QString &key);

    ThemeLoader m_loader;
    PictureLibrary m_pictures;
    std::unique_ptr<MainWindow> m_window;
    QString m_error;
};
