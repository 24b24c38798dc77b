#pragma once

#include <nvo/Export.h>

#include <QAbstractButton>
#include <QColor>

namespace NVO {

/** Where a ScrollButton points to. */
enum Direction : int { Up = 0, Down = 1 };

/** The looks of ScrollButton. */
enum class ScrollButtonStyle : int {
    Dark = 0,  ///< A dark arrow on a light ground that lets the contents shine through.
    Light = 1, ///< A light arrow on a dark ground; mouse and press do not change it.
    Error = 2  ///< For contents in the colours of an error.
};

/**
 * The flat arrow button, 25 pixels high, that floats over the edge of a ScrollAreaWithButton. Held down, it
 * clicks again and again after 400 milliseconds.
 *
 * The sheet of ElementScrollButton selects on the dynamic property "style", the key of the style. Its
 * "background" is the ground of the button; the colours of the other states and of the edge are properties,
 * which it sets with "qproperty-hoverColor" and the like. The arrow is the image "scrollarrow_up" or
 * "scrollarrow_down", with "_hell" for a light one and "_error" for an error; without it only the ground
 * shows.
 *
 * Without an accessible name of its own the button is called by its direction towards assistive technology.
 */
class NVO_EXPORT ScrollButton : public QAbstractButton
{
    Q_OBJECT
    Q_PROPERTY(QColor hoverColor READ hoverColor WRITE setHoverColor)
    Q_PROPERTY(QColor pressedColor READ pressedColor WRITE setPressedColor)
    Q_PROPERTY(QColor borderColor READ borderColor WRITE setBorderColor)

public:
    explicit ScrollButton(QWidget *parent = nullptr);

    ScrollButtonStyle style() const { return m_style; }

    /** Changes the look. A value that is none of the keys leaves the property "style" as it is. */
    void setStyle(ScrollButtonStyle style);

    Direction direction() const { return m_direction; }

    /** Shows at the next repaint, which is up to the caller. Anything but Up counts as down. */
    void setDirection(Direction direction);

    /** \name Colours
     * Invalid until the sheet or the caller sets them. A change shows at the next repaint, which is up to
     * the caller. */
    ///@{
    QColor hoverColor() const { return m_hoverColor; }
    void setHoverColor(const QColor &color);
    QColor pressedColor() const { return m_pressedColor; }
    void setPressedColor(const QColor &color);
    /** Of the edge; with Qt::transparent the ground fills the button but for two pixels at the right. */
    QColor borderColor() const { return m_borderColor; }
    void setBorderColor(const QColor &color);
    ///@}

protected:
    void paintEvent(QPaintEvent *event) override;

    /** Scrolls the scroll area that the button is a child of; any other parent hears nothing of the wheel. */
    void wheelEvent(QWheelEvent *event) override;

private:
    void initStyleSheet();
    void paintGround(QPainter &painter, const QRect &rect);
    void paintArrow(QPainter &painter, const QRect &rect);

    Direction m_direction = Up;
    ScrollButtonStyle m_style = ScrollButtonStyle::Dark;
    QColor m_hoverColor;
    QColor m_pressedColor;
    QColor m_borderColor;
};

} // namespace NVO
