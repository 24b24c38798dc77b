#pragma once

#include <nvo/Export.h>

#include <QScrollBar>

namespace NVO {

/**
 * A scroll bar in the house look.
 *
 * The sheet of ElementScrollBar selects on the dynamic property "style", the key of the style.
 */
class NVO_EXPORT ScrollBar : public QScrollBar
{
    Q_OBJECT
    Q_PROPERTY(ScrollBarStyle scrollBarStyle READ scrollBarStyle WRITE setScrollBarStyle)
    Q_PROPERTY(bool transient READ isTransient WRITE setTransient)

public:
    enum ScrollBarStyle : int {
        Dialog = 0,    ///< Beside the contents of a dialog or a page.
        DropDown = 1,  ///< Narrow, inside a flyout or an open list.
        Navigation = 2 ///< On the dark ground of a navigation.
    };
    Q_ENUM(ScrollBarStyle)

    /** A vertical bar. */
    explicit ScrollBar(QWidget *parent = nullptr);
    ScrollBar(Qt::Orientation orientation, QWidget *parent);

    ScrollBarStyle scrollBarStyle() const { return m_style; }

    /** Changes the look. A value that has no key is kept, but the look stays. */
    void setScrollBarStyle(ScrollBarStyle style);

    /**
     * Whether the bar shows nothing while there is nothing to scroll, that is while minimum and maximum are
     * the same. It keeps its place then.
     */
    bool isTransient() const { return m_transient; }
    void setTransient(bool transient);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void initStyleSheet();

    ScrollBarStyle m_style = Dialog;
    bool m_transient = false;
};

} // namespace NVO
