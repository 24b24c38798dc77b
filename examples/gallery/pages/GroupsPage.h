#pragma once

#include "pages/Page.h"

/** The group box in its styles, with legends and rows. */
class GroupsPage : public Page
{
    Q_OBJECT

public:
    static QString key() { return QStringLiteral("groups"); }
    static QString title() { return QStringLiteral("Gruppen"); }

    GroupsPage();

private:
    void addStyles();
    void addLegends();
    void addChoices();
    void addRows();
};
