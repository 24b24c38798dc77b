#pragma once

#include <nvo/AbstractButton.h>
#include <nvo/Export.h>

namespace NVO {

/** The looks of IconButton. */
enum class IconButtonStyle : int {
    Dark = 0,      ///< Dark, for a light ground.
    DarkSmall = 1, ///< The same in a small font.
    Light = 2,     ///< Light, for a dark ground.
    LightSmall = 3 ///< The same in a small font.
};

/**
 * An icon, with or without a text, that is a button.
 *
 * It is painted by the sheet of ElementIconButton, which selects on the dynamic property "style", the key of
 * the IconButtonStyle. Without a text and an accessible name of its own it is called by its tool tip towards
 * assistive technology.
 */
class NVO_EXPORT IconButton : public AbstractButton
{
    Q_OBJECT

public:
    explicit IconButton(QWidget *parent = nullptr);

    IconButtonStyle iconButtonStyle() const { return m_iconButtonStyle; }

    /** Changes the look. A value that is none of the keys leaves the property "style" as it is. */
    void setIconButtonStyle(IconButtonStyle style);

protected:
    bool event(QEvent *event) override;

private:
    void initStyleSheet();

    IconButtonStyle m_iconButtonStyle = IconButtonStyle::Dark;
};

} // namespace NVO
