#pragma once

#include <nvo/RibbonControl.h>

#include <QFrame>
#include <QPointer>

namespace NVO {

/**
 * The line before a group of a ribbon page. It shows only while something visible stands to its left on the
 * page and the group itself is visible. The sheet of the ribbon decides how wide it is, by its margins.
 */
class RibbonSeperator : public QFrame, public RibbonControl
{
    Q_OBJECT

public:
    /** \a p_control is the group behind the line. It is not owned; if it is a widget, it may die first. */
    RibbonSeperator(RibbonControl *p_control, QWidget *p_parent);

    void updateLayout() override;
    using RibbonControl::sizeFromMode;
    QSize sizeFromMode(SizeMode p_mode, bool p_minimum) const override;
    bool controlVisible() const override;

public Q_SLOTS:
    void onVisibleChange(NVO::RibbonControl *p_ribbonControl);

private:
    bool controlLives() const;
    bool hasVisibleBefore() const;

    RibbonControl *m_control;
    bool m_controlIsWidget;
    QPointer<QWidget> m_controlWidget;
};

} // namespace NVO
