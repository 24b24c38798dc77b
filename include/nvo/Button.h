#pragma once

#include <nvo/Export.h>

#include <QPushButton>

namespace NVO {

/**
 * The push button, in thirteen looks.
 *
 * Most looks are painted by the sheet of ElementButton, which selects on the dynamic property "style",
 * the key of the ButtonStyle. Right, Left and Backstage place icon and text by hand; Breadcrumb and
 * MacClose are bare icons of a fixed size.
 *
 * A button owns a shadow that shows with Normal and Primary (and with Left and Right if Product::variant
 * is 0) while it is not held down. An effect of another kind that replaces it is left alone.
 */
class NVO_EXPORT Button : public QPushButton
{
    Q_OBJECT
    Q_PROPERTY(ButtonStyle buttonStyle READ buttonStyle WRITE setButtonStyle)

public:
    /** The looks. */
    enum ButtonStyle : int {
        Normal = 0,          ///< At least 100 pixels wide.
        Primary = 1,         ///< The main choice among several; at least 100 pixels wide.
        Right = 2,           ///< Text, then the icon at the right edge.
        Left = 3,            ///< The icon at the left edge, then the text.
        Add = 4,             ///< Adds a row or an item.
        Breadcrumb = 5,      ///< An icon of 16 x 16 pixels.
        Close = 6,           ///< A closing cross on a light ground.
        CloseDark = 7,       ///< A closing cross on a dark ground.
        FlyoutClose = 8,     ///< The closing cross of a light flyout.
        FlyoutCloseDark = 9, ///< The closing cross of a dark flyout.
        MacClose = 10,       ///< A closing icon of 14 x 14 pixels with four states.
        Menu = 11,           ///< An entry of a menu: never has the focus, a hovered one looks as if.
        Backstage = 12       ///< Icon and text as one centred group in a larger font.
    };
    Q_ENUM(ButtonStyle)

    explicit Button(QWidget *parent = nullptr);

    ButtonStyle buttonStyle() const { return m_buttonStyle; }

    /** Changes the look. An icon that the old look brought along stays. */
    void setButtonStyle(ButtonStyle style);

    /** Whether the button may cast a shadow in the looks that have one; true at first. */
    void setShadowEnabled(bool enabled);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void initStyleSheet();
    void updateGraphicsEffect();
    QSize houseSize(QSize size) const;
    void paintIconOnly();
    void paintMenuEntry();
    void paintIconAndText();

    ButtonStyle m_buttonStyle = Normal;
    bool m_shadowEnabled = true;
};

} // namespace NVO
