#pragma once

#include <nvo/Export.h>

#include <QFrame>

namespace NVO {

/**
 * The coloured box of an accordion's header. Its size and colours come from the sheet of
 * ElementAccordionBoxIndicator, which selects on the dynamic property "style": "Normal" or "Highlight".
 */
class NVO_EXPORT AccordionBoxIndicator : public QFrame
{
    Q_OBJECT

public:
    enum State : int { Normal = 0, Highlight = 1 };

    explicit AccordionBoxIndicator(QWidget *parent = nullptr);

    /** Changes the look. Other values are kept, and leave the look as it is. */
    void setColoredBoxState(State state);
    State coloredBoxIndicatorStyle() const { return m_boxState; }

Q_SIGNALS:
    /** A mouse button went down on the box; the header below does not hear of it. */
    void pressed();

protected:
    void mousePressEvent(QMouseEvent *event) override;

private:
    void initStyleSheet();

    State m_boxState = Normal;
};

} // namespace NVO
