#pragma once

#include <nvo/Export.h>

#include <QComboBox>

namespace NVO {

class GraphicsEffect;

/**
 * The drop-down list, in five looks and two sizes.
 *
 * The look comes from the sheet of ElementComboBox, which selects on three dynamic properties: "style", the
 * key of the ComboBoxStyle, "bigSize" and "readOnly", both bool. The rows of the list are 25 pixels high, at
 * most 12 at a time; in the big size they are 60 pixels high with room for an icon of 24 pixels, at most 5.
 * The sheet should say "combobox-popup: 0", or Qt opens the list over the box and up to the height of the
 * screen.
 *
 * The box owns a shadow that shows unless the style is NoBorder or it is switched off. The list never shows
 * the scroll arrows of Qt, only its scroll bars. A view given with setView() comes with its own delegate and
 * its own bars.
 */
class NVO_EXPORT ComboBox : public QComboBox
{
    Q_OBJECT
    Q_PROPERTY(ComboBoxStyle comboBoxStyle READ comboBoxStyle WRITE setComboBoxStyle)

public:
    /** The looks. */
    enum ComboBoxStyle : int {
        Normal = 0,
        Error = 1,   ///< What is chosen cannot stay so.
        Info = 2,    ///< What is chosen deserves a look.
        VaSt = 3,    ///< What is chosen was filled in from data fetched elsewhere.
        NoBorder = 4 ///< Neither border nor shadow, for toolbars and headings.
    };
    Q_ENUM(ComboBoxStyle)

    enum ComboBoxSize : int {
        SizeNormal = 0, ///< Rows of 25 pixels.
        SizeBig = 1     ///< Rows of 60 pixels, with icons of 24 pixels.
    };

    explicit ComboBox(QWidget *parent = nullptr);

    ComboBoxStyle comboBoxStyle() const { return m_comboBoxStyle; }
    void setComboBoxStyle(ComboBoxStyle style);

    ComboBoxSize comboBoxSize() const { return m_comboBoxSize; }

    /**
     * Changes the size, and with it the icon size, the size adjust policy and the number of visible rows.
     * If Product::variant is 0 a new shadow of the kind that suits the size takes the place of the effect.
     */
    void setComboBoxSize(ComboBoxSize size);

    bool isReadOnly() const { return m_readOnly; }

    /** A box that can only be read is disabled and has no shadow; both come back with \a readOnly false. */
    void setReadOnly(bool readOnly);

    /** Whether the box may cast a shadow in the looks that have one; true at first. */
    void setShadowEnabled(bool enabled);

    void showPopup() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

public Q_SLOTS:
    /**
     * Called when rows of the model that the box was made with change. Does nothing: the list takes its
     * size each time it opens.
     */
    void adjustDropDown();

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    friend class ComboBoxDelegate;

    void initStyleSheet();
    void initPopupFrame();
    void installShadow(GraphicsEffect *effect);
    void updateShadow();
    int itemHeight() const;
    int leftIconMargin() const;
    int leftTextMargin() const;
    int rightTextMargin() const;

    ComboBoxStyle m_comboBoxStyle = Normal;
    ComboBoxSize m_comboBoxSize = SizeNormal;
    bool m_readOnly = false;
    bool m_shadowEnabled = true;
    int m_textMargin = 0; // what QItemDelegate leaves free beside a text by itself
};

} // namespace NVO
