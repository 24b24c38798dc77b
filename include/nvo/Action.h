#pragma once

#include <nvo/Export.h>
#include <nvo/RibbonControl.h>

#include <QAction>
#include <QMap>
#include <QString>

namespace NVO {

/**
 * What the application's menu definition says about one command: which control to build, the texts that
 * still hold macros, the expressions that decide on it, and the sizes of the controls in a group.
 *
 * The library builds controls from it and shows the state of its QAction. The application evaluates macros
 * and expressions and writes the results into that state. Setters only store: a control follows what QAction
 * itself reports by QAction::changed().
 */
class NVO_EXPORT Action : public QAction
{
    Q_OBJECT

public:
    /** The control that a group builds; any other value is an unknown type and builds none. */
    enum CommandType : int {
        CommandButton = 1,   ///< RibbonButton
        CommandCheckBox = 3, ///< RibbonCheckBox
        CommandLabel = 4     ///< RibbonLabel
    };

    explicit Action(QObject *parent = nullptr);
    explicit Action(const QString &text, QObject *parent = nullptr);
    Action(const QIcon &icon, const QString &text, QObject *parent = nullptr);

    /** The name of the command in the definition. */
    QString valueName() const { return m_valueName; }
    void setValueName(const QString &valueName) { m_valueName = valueName; }

    /** For the action of a group: the mode that a control is fixed to, by the value name of its action. */
    QMap<QString, RibbonControl::SizeMode> sizeMode() const { return m_sizeMode; }
    void setSizeMode(const QMap<QString, RibbonControl::SizeMode> &sizeMode) { m_sizeMode = sizeMode; }

    /** \name Texts with macros */
    ///@{
    QString macroIndexkey() const { return m_macroIndexkey; }
    void setMacroIndexkey(const QString &macroIndexkey) { m_macroIndexkey = macroIndexkey; }
    QString macroText() const { return m_macroText; }
    void setMacroText(const QString &macroText) { m_macroText = macroText; }
    QString macroRibbonText() const { return m_macroRibbonText; }
    void setMacroRibbonText(const QString &macroRibbonText) { m_macroRibbonText = macroRibbonText; }
    QString macroTooltip() const { return m_macroTooltip; }
    void setMacroTooltip(const QString &macroTooltip) { m_macroTooltip = macroTooltip; }
    QString macroIconname() const { return m_macroIconname; }
    void setMacroIconname(const QString &macroIconname) { m_macroIconname = macroIconname; }
    ///@}

    /** \name Expressions */
    ///@{
    QString expressionVisible() const { return m_expressionVisible; }
    void setExpressionVisible(const QString &expressionVisible) { m_expressionVisible = expressionVisible; }
    QString expressionCreateOnly() const { return m_expressionCreateOnly; }
    void setExpressionCreateOnly(const QString &expression) { m_expressionCreateOnly = expression; }
    QString expressionEnabled() const { return m_expressionEnabled; }
    void setExpressionEnabled(const QString &expressionEnabled) { m_expressionEnabled = expressionEnabled; }
    QString expressionCollapsed() const { return m_expressionCollapsed; }
    void setExpressionCollapsed(const QString &expression) { m_expressionCollapsed = expression; }
    ///@}

    /** What the application runs when the command is triggered. */
    QString executeText() const { return m_executeText; }
    void setExecuteText(const QString &executeText) { m_executeText = executeText; }
    QString executeNumber() const { return m_executeNumber; }
    void setExecuteNumber(const QString &executeNumber) { m_executeNumber = executeNumber; }

    CommandType controlType() const { return m_controlType; }
    void setControlType(CommandType controlType) { m_controlType = controlType; }

    /** The text of the shortcut where QAction::shortcut() has none to show. */
    QString shortcutKey() const { return m_shortcutKey; }
    void setShortcutKey(const QString &shortcutKey) { m_shortcutKey = shortcutKey; }

    QString macroChecked() const { return m_macroChecked; }
    void setMacroChecked(const QString &macroChecked) { m_macroChecked = macroChecked; }

private:
    QString m_valueName;
    QMap<QString, RibbonControl::SizeMode> m_sizeMode;
    QString m_macroIndexkey;
    QString m_macroText;
    QString m_macroRibbonText;
    QString m_macroTooltip;
    QString m_macroIconname;
    QString m_expressionVisible;
    QString m_expressionCreateOnly;
    QString m_expressionEnabled;
    QString m_expressionCollapsed;
    QString m_executeText;
    QString m_executeNumber;
    CommandType m_controlType = CommandType(0);
    QString m_shortcutKey;
    QString m_macroChecked;
};

} // namespace NVO
