#pragma once

#include <nvo/AccordionPart.h>

#include <QPointer>
#include <QScrollArea>

class QPropertyAnimation;

namespace NVO {

class ShadowSimple;

/**
 * The area of a part that opens and closes: a window of a changing height on a widget that always keeps its
 * full height. It also is the machine that decides on the state of the part.
 */
class AccordionContent : public QScrollArea
{
    Q_OBJECT
    Q_PROPERTY(double hiddenPercent READ hiddenPercent WRITE setHiddenPercent)

public:
    explicit AccordionContent(AccordionPart *part);

    /** Shows \a widget in place of the one before, which is deleted unless it has moved elsewhere. */
    void setContent(QWidget *widget);

    /** How much of the height is hidden: 0 is open, 100 is closed. */
    double hiddenPercent() const { return m_hiddenPercent; }
    void setHiddenPercent(double percent);

    AccordionState state() const { return m_state; }
    AnimatedAccordionState animationState() const { return m_animationState; }
    void setState(AccordionState target);
    void animateTo(AccordionState target, int speed);

    void setShadowEnabled(bool enabled);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;

Q_SIGNALS:
    void stateChanged(NVO::AccordionState p_newState);
    void animationStateChanged(NVO::AnimatedAccordionState p_newState);
    void animationStarted(double p_start, double p_end, int p_time);
    void stateChangedWithoutAnimation(NVO::AccordionState p_newState);
    void animationFinished();

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    template <typename... Emissions>
    bool announce(Emissions... emissions);
    void startAnimation(double from, double to, int time);
    void finish();
    void hidePercent(double percent);
    void fitViewportWidget();
    QSize visibleSize(QSize size) const;

    QWidget *m_viewportWidget;
    QPointer<QWidget> m_contentWidget;
    QPropertyAnimation *m_animation;
    double m_hiddenPercent = 100.0;
    AccordionState m_state = AccordionState::Hidden;
    AnimatedAccordionState m_animationState = AnimatedAccordionState::Hidden;
    ShadowSimple *m_shadow;
    quint32 m_changes = 0; // of the state, to notice those that a slot makes
};

} // namespace NVO
