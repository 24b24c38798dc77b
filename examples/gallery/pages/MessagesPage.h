#pragma once

#include "pages/Page.h"

namespace NVO {
class Label;
}

/** Message boxes and selection boxes, and a question that can be switched off. */
class MessagesPage : public Page
{
    Q_OBJECT

public:
    static QString key() { return QStringLiteral("messages"); }
    static QString title() { return QStringLiteral("Meldungen"); }

    MessagesPage();

private:
    void addIcons();
    void addTexts();
    void addSelection();
    void addFlow();
    void deleteInvoice();

    NVO::Label *m_outcome = nullptr;
    int m_nextInvoice = 417;
};
