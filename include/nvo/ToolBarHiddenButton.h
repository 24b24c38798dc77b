#pragma once

#include <nvo/Export.h>

#include <QPushButton>

namespace NVO {

/**
 * The styled button behind which a tool bar keeps what it has no room for.
 *
 * Its object name is "ToolBarHiddenButton" and its sheet that of ElementToolBarHiddenButton.
 */
class NVO_EXPORT ToolBarHiddenButton : public QPushButton
{
    Q_OBJECT

public:
    explicit ToolBarHiddenButton(QWidget *p_parent = nullptr);
};

} // namespace NVO
