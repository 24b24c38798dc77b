#pragma once

#include <nvo/Export.h>

#include <QMetaType>
#include <QSize>

namespace NVO {

class Action;

/**
 * How the layouts of the ribbon see a control: how large it would be in a size mode, and how to put it into
 * one. Widgets inherit it as their second base.
 */
class NVO_EXPORT RibbonControl
{
public:
    enum SizeMode : int {
        Auto = 0,  ///< As a fix mode only: the control is not fixed to a mode.
        Small = 1, ///< One text line beside an icon of 16 x 16 pixels.
        Large = 2  ///< An icon of 32 x 32 pixels above up to several text lines.
    };

    RibbonControl() = default;
    RibbonControl(const RibbonControl &) = default;
    RibbonControl &operator=(const RibbonControl &) = default;
    virtual ~RibbonControl();

    /**
     * Puts the control into a mode, Small or Large, and calls onSetSizeModeChanged(). Returns false if it is
     * in that mode already. A control that is fixed to a mode changes with \a p_force only, and returns true
     * either way.
     */
    virtual bool setSizeMode(SizeMode p_mode, bool p_force);

    /** Makes the layout around the control look at its size again. */
    virtual void updateLayout() = 0;

    /** The size in pixels in a mode when there is \a p_available room; the smallest, unless overridden. */
    virtual QSize sizeFromMode(SizeMode p_mode, const QSize &p_available) const;

    /** The smallest or the preferred size in pixels in a mode. */
    virtual QSize sizeFromMode(SizeMode p_mode, bool p_minimum) const = 0;

    /** Called after the mode has changed. */
    virtual void onSetSizeModeChanged(SizeMode p_oldMode);

    /** The action behind the control, not owned; null if there is none. */
    virtual Action *action() const;

    /** Whether the control should show: whether its action, if any, is visible. */
    virtual bool controlVisible() const;

    /** The mode that the control is in; Small at first. */
    SizeMode sizeMode() const { return m_sizeMode; }

    /** The mode that the control insists on; Auto at first, which is none. */
    SizeMode fixSizeMode() const { return m_fixSizeMode; }

    /** Fixes the control to a mode, which it is in from now on, or frees it with Auto. */
    void setFixSizeMode(SizeMode p_mode);

    /** The size in the mode that the control is in. */
    QSize sizeFromInternMode(bool p_minimum) const;

private:
    SizeMode m_fixSizeMode = Auto;
    SizeMode m_sizeMode = Small;
};

} // namespace NVO

Q_DECLARE_METATYPE(NVO::RibbonControl *)
