#pragma once

#include "pages/Page.h"

/** The large combo box in all states, open and with entries of all kinds. */
class OverviewComboPage : public Page
{
    Q_OBJECT

public:
    static QString key() { return QStringLiteral("overviewcombo"); }
    static QString title() { return QStringLiteral("Große Auswahl"); }

    OverviewComboPage();

private:
    void addStates();
    void addOpenLists();
    void addTrial();
};
