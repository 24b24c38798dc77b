#pragma once

#include <nvo/Export.h>

#include <QCheckBox>
#include <QPointer>

namespace NVO {

/**
 * The check box. Its whole look, the size of the font included, comes from the sheet of ElementCheckBox,
 * which selects on three dynamic properties: "style" and "checkboxSize", the keys of the two enumerations,
 * and "extraBorder".
 */
class NVO_EXPORT CheckBox : public QCheckBox
{
    Q_OBJECT
    Q_PROPERTY(CheckBoxStyle checkBoxStyle READ checkBoxStyle WRITE setCheckBoxStyle)
    Q_PROPERTY(CheckBoxSize checkBoxSize READ checkBoxSize WRITE setCheckBoxSize)

public:
    enum class CheckBoxStyle : int {
        Normal = 0,
        Error = 1, ///< What is chosen cannot stay so.
        Info = 2,  ///< What is chosen deserves a look.
        VaSt = 3,  ///< What is chosen was filled in from data fetched elsewhere.
        White = 4  ///< For dark grounds.
    };
    Q_ENUM(CheckBoxStyle)

    enum class CheckBoxSize : int {
        Normal = 0,
        Small = 1,
        Flyout = 2 ///< In a flyout or another narrow place.
    };
    Q_ENUM(CheckBoxSize)

    explicit CheckBox(QWidget *parent = nullptr);
    explicit CheckBox(const QString &text, QWidget *parent = nullptr);

    CheckBoxStyle checkBoxStyle() const { return m_checkBoxStyle; }
    void setCheckBoxStyle(CheckBoxStyle style);

    CheckBoxSize checkBoxSize() const { return m_checkBoxSize; }
    void setCheckBoxSize(CheckBoxSize size);

    /**
     * Whether there is a frame around the text: a child with the object name "extraBorder" that the sheet
     * draws. It lies over the check box, so it should have no ground of its own; the mouse goes through it.
     */
    bool extraBorder() const { return m_extraBorder; }
    void setExtraBorder(bool extraBorder);

    /** Sets the text and lets the frame follow. Hides QAbstractButton::setText(): callers through one bypass
     * it. */
    void setText(const QString &text);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void initStyleSheet();
    void updateExtraBorderWidget();

    CheckBoxStyle m_checkBoxStyle = CheckBoxStyle::Normal;
    CheckBoxSize m_checkBoxSize = CheckBoxSize::Normal;
    bool m_extraBorder = false;
    QPointer<QWidget> m_extraBorderWidget;
};

} // namespace NVO
