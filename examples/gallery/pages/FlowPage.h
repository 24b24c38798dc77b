#pragma once

#include "pages/Page.h"

/** Items that flow in rows like the words of a text. */
class FlowPage : public Page
{
    Q_OBJECT

public:
    static QString key() { return QStringLiteral("flow"); }
    static QString title() { return QStringLiteral("Fluss"); }

    FlowPage();

private:
    void addSplit();
    void addWidths();
    void addDirections();
};
