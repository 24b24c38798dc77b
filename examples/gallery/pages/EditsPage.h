#pragma once

#include "pages/Page.h"

/** The entry fields in all looks, states and forms, and the caps-lock notice. */
class EditsPage : public Page
{
    Q_OBJECT

public:
    static QString key() { return QStringLiteral("eingabefelder"); }
    static QString title() { return QStringLiteral("Eingabefelder"); }

    EditsPage();

private:
    void addFamily();
    void addStates();
    void addDateForms();
    void addNumberForms();
    void addMasks();
    void addPassword();
};
