#pragma once

#include "pages/Page.h"

/** The drop-down list in all looks, sizes and states. */
class ComboBoxesPage : public Page
{
    Q_OBJECT

public:
    static QString key() { return QStringLiteral("comboboxes"); }
    static QString title() { return QStringLiteral("Auswahllisten"); }

    ComboBoxesPage();

private:
    void addMatrix();
    void addSizes();
    void addOpenLists();
    void addTrial();
};
