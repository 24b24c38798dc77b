#pragma once

#include "Theme.h"

#include <QHash>
#include <QWidget>

class QButtonGroup;
class QHBoxLayout;
class QListWidget;
class QScrollArea;
class QSlider;
class QStackedWidget;

namespace NVO {
class Label;
}

/** The frame: the list of pages, a header with title, theme and font size, and the page itself. */
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

Q_SIGNALS:
    void themeRequested(const QString &key);
    void fontDeltaRequested(int delta);

private:
    QWidget *makeHeader();
    void addThemeSwitch(QHBoxLayout *layout);
    void addFontDelta(QHBoxLayout *layout);
    void fillPageList();
    void showPage(int index);
    QScrollArea *pageView(int index);

    Theme m_theme;
    QListWidget *m_pageList;
    QStackedWidget *m_pages;
    NVO::Label *m_title = nullptr;
    QButtonGroup *m_themeButtons = nullptr;
    QHash<int, QScrollArea *> m_pageViews;
};
