#pragma once

#include "pages/Page.h"

/** The push button in all looks and states. */
class ButtonsPage : public Page
{
    Q_OBJECT

public:
    static QString key() { return QStringLiteral("schaltflaechen"); }
    static QString title() { return QStringLiteral("Schaltflächen"); }

    ButtonsPage();

private:
    void addMatrix();
    void addTexts();
    void addShadows();
    void addChoices();
    void addTrial();
};
