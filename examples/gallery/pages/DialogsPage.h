#pragma once

#include "pages/Page.h"

/** The house dialog: its parts, its rows of buttons, and dialogs to open. */
class DialogsPage : public Page
{
    Q_OBJECT

public:
    static QString key() { return QStringLiteral("dialogs"); }
    static QString title() { return QStringLiteral("Dialoge"); }

    DialogsPage();

private:
    void addParts();
    void addButtonSets();
    void addTrial();
};
