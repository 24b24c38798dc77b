#include <nvo/ToolBarHiddenButton.h>

#include "theme/StyleSupport.h"

namespace NVO {

ToolBarHiddenButton::ToolBarHiddenButton(QWidget *p_parent)
    : QPushButton(p_parent)
{
    setObjectName(QStringLiteral("ToolBarHiddenButton"));
    StyleSupport::applySheet(this, ElementToolBarHiddenButton);
}

} // namespace NVO
