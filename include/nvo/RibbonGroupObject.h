#pragma once

#include <nvo/Export.h>
#include <nvo/RibbonControl.h>

#include <QFrame>
#include <QPair>
#include <QPointer>

class QVBoxLayout;

namespace NVO {

class Label;

/**
 * A picture with controls beside it that stands on a ribbon page like a group.
 *
 * The picture is the icon name of the action with its macros replaced. A name that does not end in ".png" is
 * looked for at "nvo://LIBRARY/PIXMAP/NAME" in the picture library of the ribbon; the application serves that
 * scheme. The action is not owned and should outlive the object; without one there is no picture.
 */
class NVO_EXPORT RibbonGroupObject : public QFrame, public RibbonControl
{
    Q_OBJECT

public:
    RibbonGroupObject(Action *p_action, QWidget *p_parent);

    /**
     * Adds the control for an action, at the bottom, and returns it: null, with a debug message, for an
     * unknown type, and null for a null action. Hides the function of QWidget.
     */
    QWidget *addAction(Action *p_action);

    /** The first control whose action has the value name \a p_name, whatever its case; both null if none. */
    QPair<QWidget *, RibbonControl *> getControl(const QString &p_name) const;

    void updateLayout() override;
    using RibbonControl::sizeFromMode;
    QSize sizeFromMode(SizeMode p_mode, bool p_minimum) const override;
    Action *action() const override;

public Q_SLOTS:
    /** Takes over what the action is now. */
    void changedAction();

private:
    void initStyleSheet();
    void setActionParams();
    void showPicture(const QString &name);
    QString imageName() const;

    Label *m_pixmapLabel;
    QPointer<Action> m_action;
    QVBoxLayout *m_controlLayout;
};

} // namespace NVO
