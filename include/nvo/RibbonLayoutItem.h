#pragma once

#include <nvo/RibbonControl.h>

#include <QSize>
#include <QWidget>

namespace NVO {

/** One control in a layout run of the ribbon. Owns nothing. */
struct RibbonLayoutItem
{
    RibbonControl::SizeMode mode = RibbonControl::Small;
    QSize size;
    QWidget *widget = nullptr;
    RibbonControl *control = nullptr; ///< The widget as a control; null if it is none.

    RibbonLayoutItem() = default;

    explicit RibbonLayoutItem(QWidget *p_widget)
        : RibbonLayoutItem(p_widget, dynamic_cast<RibbonControl *>(p_widget))
    {}

    RibbonLayoutItem(QWidget *p_widget, RibbonControl *p_control)
        : mode(p_control ? p_control->sizeMode() : RibbonControl::Small)
        , widget(p_widget)
        , control(p_control)
    {}

    bool isVisible() const { return !control || control->controlVisible(); }
    bool isRibbonControl() const { return control != nullptr; }

    /** The size in \a mode; that of the plain widget if it is no control. */
    QSize sizeFromMode(bool p_minimum) const { return sizeFromMode(mode, p_minimum); }

    QSize sizeFromMode(RibbonControl::SizeMode p_mode, bool p_minimum) const
    {
        if (control)
            return control->sizeFromMode(p_mode, p_minimum);
        return widget ? widget->minimumSize() : QSize();
    }
};

} // namespace NVO
