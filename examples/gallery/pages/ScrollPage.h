#pragma once

#include "pages/Page.h"

/** Scroll bars, scroll areas and the arrow buttons that float over them. */
class ScrollPage : public Page
{
    Q_OBJECT

public:
    static QString key() { return QStringLiteral("scroll"); }
    static QString title() { return QStringLiteral("Rollen"); }

    ScrollPage();

private:
    void addBars();
    void addButtons();
    void addAreas();
};
