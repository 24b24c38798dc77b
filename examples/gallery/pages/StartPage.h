#pragma once

#include "pages/Page.h"

/** The start page of an application: tiles of all kinds, in all states. */
class StartPage : public Page
{
    Q_OBJECT

public:
    static QString key() { return QStringLiteral("startseite"); }
    static QString title() { return QStringLiteral("Startseite"); }

    StartPage();

    int pictureWidth() const override;

private:
    void addTiles();
    void addStates();
    void addSplitTiles();
    void addLastLines();
};
