#pragma once

#include "pages/Page.h"

#include <QVector>

namespace NVO {
class Label;
}

/** The label: rich text, links, and texts that do not fit. */
class LabelsPage : public Page
{
    Q_OBJECT

public:
    static QString key() { return QStringLiteral("beschriftungen"); }
    static QString title() { return QStringLiteral("Beschriftungen"); }

    LabelsPage();

protected:
    bool event(QEvent *event) override;

private:
    struct LinesLabel
    {
        NVO::Label *label;
        int lines;
    };

    void fitHeights();
    void addRichText();
    void addLinks();
    void addOneLine();
    void addSeveralLines();
    void addLive();
    void addSizes();

    QVector<LinesLabel> m_severalLines;
};
