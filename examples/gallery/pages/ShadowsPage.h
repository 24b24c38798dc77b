#pragma once

#include "pages/Page.h"

/** The shadows that effects draw, and those of the overlay. */
class ShadowsPage : public Page
{
    Q_OBJECT

public:
    static QString key() { return QStringLiteral("schatten"); }
    static QString title() { return QStringLiteral("Schatten"); }

    ShadowsPage();

private:
    void addEffects(const QString &title, const QString &description, int variant);
    void addOverlays();
};
