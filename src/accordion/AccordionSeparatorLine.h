#pragma once

#include <QPointer>
#include <QWidget>

namespace NVO {

class AccordionPart;

/**
 * The line above or below the header of a part, 1 pixel high. It lights up with the header that has the
 * focus. Between two headers, where the part above is closed, there is one line for both.
 */
class AccordionSeparatorLine : public QWidget
{
    Q_OBJECT

public:
    enum Kind : int { AboveHeader = 0, BelowHeader = 1 };

    AccordionSeparatorLine(Kind kind, QWidget *parent);

    void setPartAbove(AccordionPart *part);
    void setPartBelow(AccordionPart *part);
    void setVisibleByBorder(bool visible);
    bool isHighlighted() const { return m_highlighted; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void setPart(QPointer<QObject> &place, AccordionPart *part);
    void refresh();

    bool m_highlighted = false;
    bool m_visibleByBorder = true;
    Kind m_kind;
    QPointer<QObject> m_partAbove;
    QPointer<QObject> m_partBelow;
};

} // namespace NVO
