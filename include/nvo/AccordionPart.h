#pragma once

#include <nvo/Export.h>

#include <QFlags>
#include <QMetaType>
#include <QWidget>

namespace NVO {

class AccordionContent;
class AccordionHeader;
class AccordionSeparatorLine;

/** What a part of an accordion is, or is on its way to. */
enum class AccordionState : int { Expanded = 0, Hidden = 1 };

/** What a part of an accordion shows, with the ways there. */
enum class AnimatedAccordionState : int { Expanded = 0, Hidden = 1, Expanding = 2, Hiding = 3 };

/** What the header of a part is to the keyboard and the mouse. */
enum AccordionHeaderStyleState : int { Focused = 1, Hovered = 2, Pressed = 4 };

/**
 * One part of an Accordion: a header that can be clicked, and a content below it that opens and closes by
 * sliding. A part starts closed, without header and content.
 *
 * The content always keeps its full height; what opens and closes is the area that shows it. Opening and
 * closing take 200 milliseconds divided by a speed. A turn in mid-way starts from where the content stands
 * and takes only the share of the time that the way back needs.
 *
 * A click on the header changes nothing by itself: it asks with stateChangeRequest(), which the Accordion
 * answers. A part that stands alone is opened by whoever hears that signal, for example with animateToggle().
 *
 * Signals of a change, in this order:
 *  - with animation: stateChanged(), animationStarted(), animationStateChanged() with Expanding or Hiding;
 *    at its end animationFinished(), animationStateChanged() with Expanded or Hidden;
 *  - without: stateChanged(), stateChangedWithoutAnimation(), animationStateChanged().
 *
 * An animation of length 0 sends all five at once. If a slot changes the state again, the signals of that
 * change take the place of those that were still to come. The part may be deleted inside any of its signals,
 * except that styleStateChanged() may come from a change of focus, which Qt does not end with a dead widget.
 */
class NVO_EXPORT AccordionPart : public QWidget
{
    Q_OBJECT

public:
    explicit AccordionPart(QWidget *parent = nullptr);
    ~AccordionPart() override;

    /**
     * Puts \a widget into the header, usually an AccordionSimpleHeader. The part owns it and deletes the one
     * before, unless that has moved to another parent. Null leaves the header empty; the widget that is there
     * already and one that holds this part are ignored.
     */
    void setHeader(QWidget *widget);

    /** Puts \a widget into the content, on the same terms. */
    void setContent(QWidget *widget);

    /** The pixels that the header leaves free at the left and right, and above and below its widget. */
    void setHeaderMargin(int horizontal, int vertical);

    /** Whether lines above and below the header part it from its neighbours; true at first. */
    void setSharedBorder(bool shared);

    /** Whether the header casts a shadow on the content; true at first. */
    void setShadowEnabled(bool enabled);

    /** \name The neighbours, for the lines between parts
     * An Accordion sets them. Null is none; the part itself is ignored. */
    ///@{
    void setNextPart(AccordionPart *part);
    void setPreviousPart(AccordionPart *part);
    ///@}

    /** Gives the content the object name "last", or none: the sheet closes the bottom of the last part. */
    void setLastAccordionPart(bool last);

    /** Opens or closes at once. A running animation stops. */
    void setState(AccordionState state);

    /** Opens or closes with an animation of speed 1. */
    void setStateAnimated(AccordionState state);

    /** \name Opening and closing with an animation
     * It takes 200 milliseconds divided by \a speed; 0 and less make it end at once. */
    ///@{
    void animateExpand(int speed);
    void animateHide(int speed);
    void animateToggle(int speed);
    ///@}

    AccordionState state() const;
    AnimatedAccordionState animationState() const;

    /** What the header is now; Pressed is looked at when focus or mouse come or go. */
    QFlags<AccordionHeaderStyleState> styleState() const;

Q_SIGNALS:
    /** The header was clicked, or pressed by the keyboard. */
    void stateChangeRequest();
    void stateChanged(NVO::AccordionState p_newState);
    void animationStateChanged(NVO::AnimatedAccordionState p_newState);
    void stateChangedWithoutAnimation(NVO::AccordionState p_newState);
    /**
     * The content starts to slide. 100 is closed, 0 is open; \a p_time is in milliseconds. The values run
     * evenly, so that what shall move with the content needs no more than these three.
     */
    void animationStarted(double p_start, double p_end, int p_time);
    void animationFinished();
    void styleStateChanged();

private:
    AccordionHeader *m_header;
    AccordionContent *m_content;
    AccordionSeparatorLine *m_topLine;
    AccordionSeparatorLine *m_bottomLine;
    bool m_sharedBorder = true;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(QFlags<AccordionHeaderStyleState>)

} // namespace NVO

Q_DECLARE_METATYPE(NVO::AccordionState)
Q_DECLARE_METATYPE(NVO::AnimatedAccordionState)
