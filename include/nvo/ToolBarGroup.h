#pragma once

#include <nvo/Export.h>

#include <QAction>
#include <QFrame>
#include <QList>
#include <QPointer>

namespace NVO {

/**
 * A styled frame around controls of a tool bar that belong together. It has an empty horizontal layout
 * without spacing and margins, which the application fills.
 *
 * Its object name is "ToolBarGroup" and its sheet that of ElementToolBarGroup.
 */
class NVO_EXPORT ToolBarGroup : public QFrame
{
    Q_OBJECT

public:
    ToolBarGroup(QAction *p_action, QWidget *p_parent);

    /** The action of the group, which is not owned; null if there is none or it is gone. */
    QAction *action() const { return m_action; }

    /** \name For groups that build their controls themselves
     * This one does not: nothing is added, hidden or followed. */
    ///@{
    QWidget *addAction(QAction *p_action);
    QList<QAction *> getHiddenActions() const;
    void setActionParams();

public Q_SLOTS:
    void triggeredAction();
    void changedAction();
    ///@}

private:
    QPointer<QAction> m_action;
};

} // namespace NVO
