#pragma once

#include "pages/Page.h"

/** The toggles in a form of settings, in all styles and states. */
class TogglesPage : public Page
{
    Q_OBJECT

public:
    static QString key() { return QStringLiteral("schalter"); }
    static QString title() { return QStringLiteral("Schalter"); }

    TogglesPage();

private:
    void addSettings();
    void addStyles();
    void addStates();
};
