#pragma once

#include "Theme.h"

#include <QHash>
#include <QStringList>
#include <QWidget>

class GalleryRibbon;
class QFrame;
class QScrollArea;
class QStackedWidget;
class StatusBar;

namespace NVO {
class Label;
}

/** The frame: the ribbon, the title of the page, the page itself and the status bar with the zoom. */
class MainWindow : public QWidget
{
    Q_OBJECT

public:
    explicit MainWindow(const Theme &theme, QWidget *parent = nullptr);

    /** Shows a page by its key, the first one for an unknown key. No page shows before the first call. */
    void setCurrentPage(const QString &key);
    QString currentPage() const;

    /** Takes the size that shows the current page without scrolling, at least \a minimum. */
    void fitToPage(QSize minimum);

    /** Marks the theme that this window has been built with. */
    void showTheme();

    /** Goes on where the theme has been switched. */
    void focusTheme();

    /** The options of the ribbon that are switched on. */
    QStringList options() const;
    void setOptions(const QStringList &names);

Q_SIGNALS:
    void themeRequested(const QString &key);
    void fontDeltaRequested(int delta);

private:
    QFrame *makeHeader();
    void connectRibbon();
    void runCommand(const QString &name);
    void changeOption(const QString &name, bool on);
    void showAbout();
    void showPage(int index);
    QScrollArea *pageView(int index);

    Theme m_theme;
    GalleryRibbon *m_ribbon;
    QFrame *m_header = nullptr;
    QStackedWidget *m_pages;
    StatusBar *m_statusBar;
    NVO::Label *m_title = nullptr;
    int m_currentPage = -1;
    QHash<int, QScrollArea *> m_pageViews;
};
