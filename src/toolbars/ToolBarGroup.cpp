#include <nvo/ToolBarGroup.h>

#include "theme/StyleSupport.h"

#include <QHBoxLayout>

namespace NVO {

ToolBarGroup::ToolBarGroup(QAction *p_action, QWidget *p_parent)
    : QFrame(p_parent)
    , m_action(p_action)
{
    setObjectName(QStringLiteral("ToolBarGroup"));
    auto *row = new QHBoxLayout(this);
    row->setSpacing(0);
    row->setContentsMargins(0, 0, 0, 0);
    StyleSupport::applySheet(this, ElementToolBarGroup);
}

QWidget *ToolBarGroup::addAction(QAction *)
{
    return nullptr;
}

QList<QAction *> ToolBarGroup::getHiddenActions() const
{
    return {};
}

void ToolBarGroup::setActionParams() {}

void ToolBarGroup::triggeredAction() {}

void ToolBarGroup::changedAction() {}

} // namespace NVO
