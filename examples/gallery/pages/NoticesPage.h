#pragma once

#include "pages/Page.h"

/** Info boxes, check boxes, and the lines between the parts of a page. */
class NoticesPage : public Page
{
    Q_OBJECT

public:
    static QString key() { return QStringLiteral("notices"); }
    static QString title() { return QStringLiteral("Hinweise"); }

    NoticesPage();

private:
    void addStyles();
    void addIconPlaces();
    void addLinks();
    void addWidths();
    void addCheckBoxStyles();
    void addCheckBoxSizes();
    void addBorders();
    void addLines();
    void addAlternatives();
};
