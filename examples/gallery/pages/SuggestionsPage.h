#pragma once

#include "pages/Page.h"

/** Fields that suggest names, with a few and with very many. */
class SuggestionsPage : public Page
{
    Q_OBJECT

public:
    static QString key() { return QStringLiteral("suggestions"); }
    static QString title() { return QStringLiteral("Vorschläge"); }

    SuggestionsPage();

private:
    void addStates();
    void addOpenPopups();
    void addTrial();
};
