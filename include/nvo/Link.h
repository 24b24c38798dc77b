#pragma once

#include <nvo/AbstractButton.h>
#include <nvo/Export.h>

namespace NVO {

/**
 * A button that looks like a link in a text.
 *
 * It is painted by the sheet of ElementLink, which selects on the dynamic property "style", the key of the
 * LinkStyle. Dark styles are for light grounds, light styles for dark ones.
 */
class NVO_EXPORT Link : public AbstractButton
{
    Q_OBJECT
    Q_PROPERTY(LinkStyle linkStyle READ linkStyle WRITE setLinkStyle)

public:
    /** The looks. */
    enum LinkStyle : int {
        Dark = 0,        ///< On a page or in a dialog.
        Light = 1,       ///< The same on a dark ground.
        FlyoutDark = 2,  ///< In a flyout or a bar, where links stand close together.
        FlyoutLight = 3, ///< The same on a dark ground.
        Login = 4,       ///< On the ground of the login page.
        LoginInput = 5   ///< In or below an entry field of the login page.
    };
    Q_ENUM(LinkStyle)

    explicit Link(QWidget *parent = nullptr);

    LinkStyle linkStyle() const { return m_linkStyle; }
    void setLinkStyle(LinkStyle style);

protected:
    bool event(QEvent *event) override;

private:
    void initStyleSheet();

    LinkStyle m_linkStyle = Dark;
};

} // namespace NVO
