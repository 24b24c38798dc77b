#pragma once

#include "pages/Page.h"

/** Tab bars, and segments with notifications. */
class TabsPage : public Page
{
    Q_OBJECT

public:
    static QString key() { return QStringLiteral("tabs"); }
    static QString title() { return QStringLiteral("Reiter"); }

    TabsPage();

private:
    void addClientRecord();
    void addInbox();
    void addStates();
    void addWidths();
    void addDirections();
};
