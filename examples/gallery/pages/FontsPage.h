#pragma once

#include "pages/Page.h"

namespace NVO {
class Label;
}

/** The type scale, the font styles and what the font delta does. */
class FontsPage : public Page
{
    Q_OBJECT

public:
    static QString key() { return QStringLiteral("schriften"); }
    static QString title() { return QStringLiteral("Schriften"); }

    FontsPage();

protected:
    bool event(QEvent *event) override;

private:
    void addScale();
    void addStyles();
    void addDelta();
    void showDelta();

    NVO::Label *m_delta = nullptr;
};
