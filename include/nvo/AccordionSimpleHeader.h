#pragma once

#include <nvo/AccordionIndicator.h>
#include <nvo/Export.h>

#include <QString>
#include <QWidget>

namespace NVO {

class AccordionBoxIndicator;
class Label;

/**
 * The ready-made header of an accordion's part, for AccordionPart::setHeader(): a coloured box, a turning
 * arrow, a text at the left and one at the right. Clicks go through to the header of the part, except those
 * on the box.
 *
 * The look comes from the sheet of ElementAccordion. It gives the gaps their widths by their object names:
 * "spacerBeforeIndicator" (shows if there is an arrow and no box), "spacerBetweenColorAndIndicator" (shows if
 * there are both), "spacerBetweenIndicatoAndText", "spacerBetweenTexts", "spacerAfterTexts".
 *
 * Assistive technology calls the header of the part by its left text.
 */
class NVO_EXPORT AccordionSimpleHeader : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString leftText READ leftText WRITE setLeftText)
    Q_PROPERTY(QString rightText READ rightText WRITE setRightText)
    Q_PROPERTY(bool leftTextHighlight READ leftTextHightLight WRITE setLeftTextHighlight)
    Q_PROPERTY(bool colorIndicatorVisible READ isColorIndicatorVisible WRITE setColorIndicatorVisible)
    Q_PROPERTY(bool colorIndicatorHighlight READ colorIndicatorHightlight WRITE setColorIndicatorHighlight)
    Q_PROPERTY(bool indicatorVisible READ isIndicatorVisible WRITE setIndicatorVisible)

public:
    /** A header whose arrow follows \a part, which is not owned and may be null. */
    explicit AccordionSimpleHeader(AccordionPart *part, QWidget *parent = nullptr);

    /** The text at the left, html; what was set, without the mark of a highlight. */
    void setLeftText(const QString &text);
    QString leftText() const { return m_leftTextValue; }

    /** The text at the right, html; as the label shows it. */
    void setRightText(const QString &text);
    QString rightText() const;

    /** \name The labels, owned by the header. */
    ///@{
    Label *leftLabel() const { return m_leftLabelWidget; }
    Label *rightLabel() const { return m_rightLabelWidget; }
    ///@}

    /** Whether the left text is bold; false at first. */
    void setLeftTextHighlight(bool highlight);
    bool leftTextHightLight() const { return m_leftTextHighlight; }

    /** Whether the coloured box is there; true at first. */
    void setColorIndicatorVisible(bool visible);
    bool isColorIndicatorVisible() const;

    /** Whether the coloured box stands out; false at first. */
    void setColorIndicatorHighlight(bool highlight);
    bool colorIndicatorHightlight() const;

    /** Whether the arrow is there; true at first. */
    void setIndicatorVisible(bool visible);
    bool isIndicatorVisible() const;

    void setIndicatorSize(AccordionIndicator::IndicatorSize size);

Q_SIGNALS:
    /** A mouse button went down on the coloured box. */
    void coloredIndicatorPressed();

protected:
    void changeEvent(QEvent *event) override;

private:
    void updateLeftLabel();
    void alignLeftText();
    void updateSpacerVisibility();

    QString m_leftTextValue;
    QWidget *m_spacerBeforeIndicator;
    QWidget *m_spacerBetweenColorAndIndicator;
    Label *m_leftLabelWidget;
    Label *m_rightLabelWidget;
    AccordionBoxIndicator *m_boxIndicator;
    AccordionIndicator *m_indicator;
    bool m_leftTextHighlight = false;
};

} // namespace NVO
