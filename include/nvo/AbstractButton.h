#pragma once

#include <nvo/Export.h>

#include <QColor>
#include <QCursor>
#include <QPushButton>
#include <QString>

class QPainter;

namespace NVO {

/**
 * The base of the flat buttons that look like text: IconButton, Link and DialogButton.
 *
 * The style sheet paints ground and border. Icon, text, underline and menu indicator are drawn here, in
 * colours that change while the mouse is over the button, while it is held down and while the button has the
 * focus. The colours of these states are set, or read out of the button's own sheet by
 * resolveStateProperties(). Without a colour for a state, and always while the button is disabled, the text
 * has the colour that the sheet gives to the normal or the disabled button. So a `color` in a rule for
 * `:hover`, `:pressed` or `:focus` does not show by itself.
 *
 * The text is on one line and drawn as it is: an ampersand is an ampersand, though Qt makes the letter behind
 * it a shortcut all the same. The icon stands directly in front
 * of the text and the menu indicator directly behind it, whatever the alignment; from right to left
 * everything is mirrored. The underline is drawn for a font with underline (`text-decoration: underline` in
 * the sheet) and in each state that has an underline colour.
 *
 * The size hint is that of text, icon and indicator: padding and border of the sheet are left out. The button
 * has Qt::StrongFocus and the cursor Qt::PointingHandCursor; a cursor that somebody else sets is lost with
 * the next press.
 */
class NVO_EXPORT AbstractButton : public QPushButton
{
    Q_OBJECT
    Q_PROPERTY(QColor focusColor READ focusColor WRITE setFocusColor)
    Q_PROPERTY(QColor focusUnderlineColor READ focusUnderlineColor WRITE setFocusUnderlineColor)
    Q_PROPERTY(QColor hoverColor READ hoverColor WRITE setHoverColor)
    Q_PROPERTY(QColor hoverUnderlineColor READ hoverUnderlineColor WRITE setHoverUnderlineColor)
    Q_PROPERTY(QColor pressedColor READ pressedColor WRITE setPressedColor)
    Q_PROPERTY(QColor pressedUnderlineColor READ pressedUnderlineColor WRITE setPressedUnderlineColor)
    Q_PROPERTY(QCursor hoverCursor READ hoverCursor WRITE setHoverCursor)
    Q_PROPERTY(QCursor pressedCursor READ pressedCursor WRITE setPressedCursor)
    Q_PROPERTY(QString menuIndicatorIcon READ menuIndicatorIcon WRITE setMenuIndicatorIcon)
    Q_PROPERTY(Qt::Alignment textAlignment READ textAlignment WRITE setTextAlignment)

public:
    explicit AbstractButton(QWidget *parent = nullptr);

    /** \name Colours of the states
     * All invalid at first. Press goes before hover and hover before focus; an invalid colour leaves the
     * text or the underline as the state below it would show it. The setters do not repaint. */
    ///@{
    QColor focusColor() const { return m_focusColor; }
    void setFocusColor(const QColor &color);

    QColor focusUnderlineColor() const { return m_focusUnderlineColor; }
    void setFocusUnderlineColor(const QColor &color);

    QColor hoverColor() const { return m_hoverColor; }
    void setHoverColor(const QColor &color);

    QColor hoverUnderlineColor() const { return m_hoverUnderlineColor; }
    void setHoverUnderlineColor(const QColor &color);

    QColor pressedColor() const { return m_pressedColor; }
    void setPressedColor(const QColor &color);

    QColor pressedUnderlineColor() const { return m_pressedUnderlineColor; }
    void setPressedUnderlineColor(const QColor &color);
    ///@}

    /** \name Cursors of the states
     * Shown while the mouse is over the button or the left mouse button is held. Qt::ArrowCursor means
     * none: the cursor is left alone then. A cursor of the same shape as the present one is not stored. */
    ///@{
    QCursor hoverCursor() const { return m_hoverCursor; }
    void setHoverCursor(const QCursor &cursor);

    QCursor pressedCursor() const { return m_pressedCursor; }
    void setPressedCursor(const QCursor &cursor);
    ///@}

    /**
     * The file name of the menu indicator, a strip of four images of 9 x 5 pixels as NVO::Icon takes it,
     * loaded as NVO::Pixmap does. It shows on a button with a menu. Empty at first: none; a name without an
     * image shows nothing. The setter does not repaint.
     */
    QString menuIndicatorIcon() const { return m_menuIndicatorIcon; }
    void setMenuIndicatorIcon(const QString &fileName);

    /** Where the text stands in what the icon and the menu indicator leave free; Qt::AlignCenter at first. */
    Qt::Alignment textAlignment() const { return m_textAlignment; }
    void setTextAlignment(Qt::Alignment alignment);

    /**
     * Reads the state colours and the menu indicator out of styleSheet().
     *
     * It takes the rules that end in a type name (whichever it is), and have an attribute selector that
     * gives "style" the value of the button's dynamic property, for example
     *
     *     NVO--Link[style="Dark"]:hover { color: rgb(0, 80, 160); text-decoration-color: rgb(0, 80, 160); }
     *     NVO--Link[style="Dark"]::menu-indicator { image: url(:/menuarrow); }
     *
     * with `:focus`, `:hover`, `:pressed` or `::menu-indicator`. Of several rules the last one wins. Colours
     * are `rgb(r, g, b)` or `rgba(r, g, b, a)` with whole numbers of 0 to 255, alpha included: what Css makes
     * of tokens and colour names. Any other value makes the colour invalid. What the sheet says nothing of
     * keeps its value, and a sheet that cannot be parsed changes nothing. Subclasses call this whenever they
     * have set the property "style" and the sheet; it does not repaint.
     */
    void resolveStateProperties();

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void changeEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private Q_SLOTS:
    void slotPressed();

private:
    bool hasMenuIndicator() const;
    bool showsFocus() const;
    bool showsHover() const;
    bool showsPressed() const;
    bool showsUnderline() const;
    QColor stateColor(const QColor &focus, const QColor &hover, const QColor &pressed) const;
    QIcon::Mode iconMode() const;
    QRect textArea() const;
    QRect paintText(QPainter *painter, const QRect &area) const;
    void paintUnderline(QPainter *painter, const QRect &text) const;
    void paintIcon(QPainter *painter, const QRect &text) const;
    void paintMenuIndicator(QPainter *painter, const QRect &text) const;
    void paintBeside(QPainter *painter, const QPixmap &pixmap, const QRect &text, bool before,
                     qreal gap) const;
    void beginPress();
    void endPress();

    bool m_hovered = false;
    bool m_pressed = false;
    QColor m_focusColor;
    QColor m_focusUnderlineColor;
    QColor m_hoverColor;
    QColor m_hoverUnderlineColor;
    QColor m_pressedColor;
    QColor m_pressedUnderlineColor;
    QCursor m_hoverCursor = Qt::PointingHandCursor;
    QCursor m_savedCursor;
    QCursor m_pressedCursor = Qt::PointingHandCursor;
    QString m_menuIndicatorIcon;
    Qt::Alignment m_textAlignment = Qt::AlignCenter;
};

} // namespace NVO
