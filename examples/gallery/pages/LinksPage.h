#pragma once

#include "pages/Page.h"

/** Links, icon buttons and the buttons of dialogs in all looks and states. */
class LinksPage : public Page
{
    Q_OBJECT

public:
    static QString key() { return QStringLiteral("links"); }
    static QString title() { return QStringLiteral("Links und Symbole"); }

    LinksPage();

private:
    void addLinks();
    void addIconButtons();
    void addMenus();
    void addAlignments();
    void addDialogButtons();
    void addTrial();
};
