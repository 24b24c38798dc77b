#pragma once

#include "pages/Page.h"

namespace NVO {
class ToolBarButton;
}

/** Tool bars: groups of large buttons with badges, and texts that go by the room. */
class ToolBarsPage : public Page
{
    Q_OBJECT

public:
    static QString key() { return QStringLiteral("werkzeugleisten"); }
    static QString title() { return QStringLiteral("Werkzeugleisten"); }

    ToolBarsPage();

protected:
    void showEvent(QShowEvent *event) override;

private:
    void addApplication();
    void addCounting(QLayout *section, NVO::ToolBarButton *inbox);
    void addStates();
    void addWidths();
};
