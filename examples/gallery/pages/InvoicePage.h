#pragma once

#include "pages/Page.h"

class InvoiceForm;

namespace NVO {
class Label;
}

/** A form that checks its fields: an invoice, and the payment of it in a dialog. */
class InvoicePage : public Page
{
    Q_OBJECT

public:
    static QString key() { return QStringLiteral("rechnung"); }
    static QString title() { return QStringLiteral("Rechnung erfassen"); }

    InvoicePage();

private:
    void addForm();
    void addErrorPictures();
    void book();
    void pay();

    InvoiceForm *m_form = nullptr;
    NVO::Label *m_outcome = nullptr;
};
