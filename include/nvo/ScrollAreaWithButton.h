#pragma once

#include <nvo/Export.h>

#include <QPointer>
#include <QScrollArea>

namespace NVO {

class ScrollButton;

/**
 * A scroll area with an arrow button floating over its upper and its lower edge. Each shows only while
 * there is something to scroll to on its side, and scrolls by 35 pixels.
 *
 * The bars are those of QScrollArea; style and policy of the vertical one are up to the caller. A child that
 * gets the focus with Tab while it lies under a button is scrolled by one step.
 */
class NVO_EXPORT ScrollAreaWithButton : public QScrollArea
{
    Q_OBJECT

public:
    explicit ScrollAreaWithButton(QWidget *parent = nullptr);

    /** The buttons belong to the area. Null if somebody has deleted it. */
    ScrollButton *topScrollButton() const;
    ScrollButton *bottomScrollButton() const;

    /** Keeps \a left and \a right pixels free beside both buttons; 0 at first. */
    void setButtonMargins(int left, int right);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    bool viewportEvent(QEvent *event) override;

private Q_SLOTS:
    void updateArrows();
    void scrollDown();
    void scrollUp();

private:
    void followVerticalBar();
    void reposition(ScrollButton *button);

    int m_leftMargin = 0;
    int m_rightMargin = 0;
    QPointer<ScrollButton> m_topButton;
    QPointer<ScrollButton> m_bottomButton;
    QPointer<QScrollBar> m_followedBar;
};

} // namespace NVO
