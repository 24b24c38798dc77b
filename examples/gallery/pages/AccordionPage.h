#pragma once

#include "pages/Page.h"

#include <nvo/Accordion.h>

/** The accordion in its styles and states, on its way and within another one. */
class AccordionPage : public Page
{
    Q_OBJECT

public:
    static QString key() { return QStringLiteral("accordion"); }
    static QString title() { return QStringLiteral("Akkordeon"); }

    AccordionPage();

private:
    void addStyles();
    void addStates();
    void addHalfOpen();
    void addNested();
};
