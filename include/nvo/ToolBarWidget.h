#pragma once

#include <nvo/Export.h>

#include <QToolBar>

namespace NVO {

class ToolBarGroup;

/**
 * A styled tool bar for groups of large buttons. It also publishes the names under which the application's
 * menu definition holds the values of an Action.
 *
 * Its object name is "ToolBarWidget" and its sheet that of ElementToolBarWidget.
 */
class NVO_EXPORT ToolBarWidget : public QToolBar
{
    Q_OBJECT

public:
    /** \name The keys of an action in the application's definition
     * Each is named after what it becomes: Action::valueName(), Action::sizeMode() and so on. */
    ///@{
    static constexpr const char *m_ValueName = "value_name";
    static constexpr const char *m_ValuesSize = "values_size";
    static constexpr const char *m_MacroIndexkey = "macro_indexkey";
    static constexpr const char *m_MacroText = "macro_text";
    static constexpr const char *m_MacroRibbonText = "macro_ribbontext";
    static constexpr const char *m_MacroTooltip = "macro_tooltip";
    static constexpr const char *m_MacroIconname = "macro_iconname";
    static constexpr const char *m_ExpressionVisible = "expression_visible";
    static constexpr const char *m_ExpressionCreateOnly = "expression_createonly";
    static constexpr const char *m_ExpressionEnabled = "expression_enabled";
    static constexpr const char *m_ExpressionCollapsed = "expression_collapsed";
    static constexpr const char *m_ExecuteText = "executetext";
    static constexpr const char *m_ExecuteNumber = "executenumber";
    ///@}

    explicit ToolBarWidget(QWidget *p_parent = nullptr);

    /**
     * A new group on \a p_action, which may be null. Neither of the two is added to the bar: the caller owns
     * the group and places it, with addWidget() for example.
     */
    ToolBarGroup *addAction(QAction *p_action);

private:
    void initStyleSheet();
};

} // namespace NVO
