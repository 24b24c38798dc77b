#include <nvo/ToolBarWidget.h>

#include "theme/StyleSupport.h"

#include <nvo/ToolBarGroup.h>

namespace NVO {

ToolBarWidget::ToolBarWidget(QWidget *p_parent)
    : QToolBar(p_parent)
{
    setObjectName(QStringLiteral("ToolBarWidget"));
    initStyleSheet();
}

ToolBarGroup *ToolBarWidget::addAction(QAction *p_action)
{
    return new ToolBarGroup(p_action, nullptr);
}

void ToolBarWidget::initStyleSheet()
{
    StyleSupport::applySheet(this, ElementToolBarWidget);
}

} // namespace NVO
