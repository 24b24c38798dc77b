#pragma once

#include <nvo/AccordionPart.h>
#include <nvo/Export.h>

#include <QPixmap>
#include <QWidget>

class QPropertyAnimation;

namespace NVO {

/**
 * An arrow of 16 x 16 pixels that turns by 90 degrees while its part opens and closes, in step with the
 * content. Open it stands as in the image; closed it is turned to the side from which one reads.
 */
class NVO_EXPORT AccordionIndicator : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(double animationPercent READ animationPercent WRITE setAnimationPercent)

public:
    /** The image: ":/accordionindicator" or ":/accordionindicator_big", both drawn in 16 x 16 pixels. */
    enum IndicatorSize : int { Small = 0, Big = 1 };

    /** An arrow that follows \a part, which is not owned; without a part it stands closed. */
    explicit AccordionIndicator(AccordionPart *part, QWidget *parent = nullptr);

    /** How far the arrow is turned: 100 is a closed part, 0 an open one. */
    double animationPercent() const { return m_animationPercent; }
    void setAnimationPercent(double percent);

    /** Loads the image of \a size; Small at first. */
    void setIndicatorSize(IndicatorSize size);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void accordionAnimationStarted(double start, double end, int time);
    void stateChangedWithoutAnimaton(AccordionState state);

    QPixmap m_pixmap;
    QPropertyAnimation *m_animation;
    double m_animationPercent = 100.0;
};

} // namespace NVO
