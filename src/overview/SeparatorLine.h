#pragma once

#include <QWidget>

#include <vector>

namespace NVO {

class OverviewButtonBase;

/**
 * The line between the sections of a tile of several buttons, 1 pixel wide. It lights up while one of the
 * buttons that it watches has the focus or is held down. Its ends can be given the colour of the frame
 * around the tile, which they are a part of.
 */
class SeparatorLine : public QWidget
{
    Q_OBJECT

public:
    /** A pale line within the tile, or one as dark as the frame. */
    enum BorderStyle : int { Inner = 0, Outer = 1 };
    Q_ENUM(BorderStyle)

    /** Corner is the single pixel where lines cross. */
    enum Orientation : int { Horizontal = 0, Vertical = 1, Corner = 2 };
    Q_ENUM(Orientation)

    /** The ends that belong to the frame. The left end of a line is the right one in right-to-left. */
    enum EdgeStyle : int { None = 0, TopOrLeft = 1, BottomOrRight = 2, Both = 3 };
    Q_DECLARE_FLAGS(EdgeStyles, EdgeStyle)
    Q_FLAG(EdgeStyle)

    /** Watches \a buttons, of which none has to live as long as the line; null is passed over. */
    SeparatorLine(std::vector<OverviewButtonBase *> buttons, QWidget *parent);

    /** Watches \a buttons in place of the ones before. */
    void setButtons(std::vector<OverviewButtonBase *> buttons);

    /** Outer at first. */
    void setBorderStyle(BorderStyle style);
    /** Both at first. The next paint shows the change. */
    void setEdgeStyle(EdgeStyle style);
    /** Horizontal at first. Fixes the width of the line. */
    void setOrientation(Orientation orientation);
    /** Makes the line look like the ground of the tile, also while a button has the focus. */
    void setBackgroundOnly(bool on);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void watch(std::vector<OverviewButtonBase *> buttons);
    void forget(const OverviewButtonBase *button);
    void applyOrientation();
    void refresh();
    EdgeStyles seenEdges() const;

    std::vector<OverviewButtonBase *> m_buttons;
    bool m_highlighted = false;
    BorderStyle m_borderStyle = Outer;
    EdgeStyle m_edgeStyle = Both;
    Orientation m_orientation = Horizontal;
    bool m_backgroundOnly = false;
};

} // namespace NVO
