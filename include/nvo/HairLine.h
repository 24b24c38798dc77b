#pragma once

#include <nvo/Export.h>

#include <QColor>
#include <QWidget>

namespace NVO {

/**
 * A solid line between the parts of a dialog or a page. It is as thick as its weight says and takes any
 * length; it has no sheet, its colour is set. At first it is 2 pixels thick and has the colour of the token
 * COLOR_DEKOLINE at that time. The object name is "HairLine".
 */
class NVO_EXPORT HairLine : public QWidget
{
public:
    explicit HairLine(Qt::Orientation orientation = Qt::Horizontal, QWidget *parent = nullptr);

    /** The thickness in pixels. A weight below 0 takes no room, one that is too large as much as Qt allows.
     */
    int weight() const { return m_weight; }
    void setWeight(int weight);

    Qt::Orientation orientation() const { return m_orientation; }
    void setOrientation(Qt::Orientation orientation);

    /** The colour; an invalid one paints as QPainter does, black. */
    QColor color() const { return m_color; }
    void setColor(const QColor &color);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void reinit();

    int m_weight = 2;
    Qt::Orientation m_orientation;
    QColor m_color;
};

} // namespace NVO
