#pragma once

#include <nvo/Export.h>

#include <QScrollArea>

namespace NVO {

/**
 * A scroll area without a frame that has vertical and horizontal bars of the style ScrollBar::DropDown, of
 * which the horizontal one never shows, and resizes its widget.
 *
 * It wants to be as large as its widget. At least it is as high, too, as far as the screen allows, or up to
 * 300 pixels inside a Flyout. Whether it is inside one is found out once, at construction, from the
 * parents, so give it its parent then.
 *
 * To the right of the contents 20 pixels are kept free, in which the vertical bar can lie: at each resize
 * of the area the right contents margin of the widget is set so that margin and bar make up 20 pixels.
 */
class NVO_EXPORT ScrollArea : public QScrollArea
{
    Q_OBJECT

public:
    explicit ScrollArea(QWidget *parent = nullptr);

    /** Leaves the contents margins of the widget as they are from now on, if \a ignore is set. */
    void ignoreRightAutoContent(bool ignore);

    /** The size hint of the widget and a little height; 0 x 0 without a widget. */
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    bool m_insideFlyout;
    bool m_ignoreRightContent = false;
};

} // namespace NVO
