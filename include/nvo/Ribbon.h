#pragma once

#include <nvo/Export.h>
#include <nvo/RibbonControl.h>

#include <QList>
#include <QPair>
#include <QPointer>
#include <QTabWidget>
#include <QVariant>

class QLabel;

namespace NVO {

class RibbonTab;

/**
 * The command strip at the top of a main window: tabs with pages of groups of controls, which fit themselves
 * to the width.
 *
 * The application builds it with addTab(), RibbonTab::addGroup() and RibbonGroup::addAction(), and derives
 * from it to supply what only it knows. With an action in the constructor the first tab is a command:
 * choosing it triggers that action and the page before comes back. Actions are not owned and should outlive
 * the ribbon.
 *
 * The keyboard: the application starts it with toggleKeyfocus() and passes what is typed to selectTabByKey()
 * and selectControlByKey(); areKeytipsVisible() and areControlKeytipsVisible() tell how far it is.
 *
 * In a right-to-left layout Qt mirrors the tab bar; groups and controls stay from left to right.
 */
class NVO_EXPORT Ribbon : public QTabWidget
{
    Q_OBJECT

public:
    Ribbon(Action *p_action, QWidget *p_parent);
    ~Ribbon() override;

    /** \name Hooks for the application */
    ///@{
    virtual void testFunc();
    /** A new widget for the right end of the current page, on its first need; null for none. */
    virtual QWidget *createExtraWidget();
    /** A text with its macros replaced; unchanged unless overridden. */
    virtual QString replaceMacroText(const QString &p_text) const;
    virtual int getMacroNumber(const QString &p_text) const;
    virtual QVariant getEvaluateExpression(const QString &p_text) const;
    /** The library in which picture blocks look for their pictures. */
    virtual QString getPictureDllName() const;
    /** Whether tool tips show the value names of actions. */
    virtual bool isTestFlag() const;
    ///@}

    /** The ribbon that holds a widget, or is it; null if there is none. */
    static Ribbon *findRibbon(const QWidget *p_widget);

    /** The tool tip of a control: a table with title and shortcut, help, and the value name where it is
     * tested. */
    static QString createTooltip(Action *p_action, QWidget *p_widget);

    /** Adds a page at the right end and returns it. The ribbon owns it. Hides the functions of QTabWidget. */
    RibbonTab *addTab(Action *p_action);

    /** Gives the focus back to the last widget outside of the ribbon that lost it. */
    void setOutsideFocusWidget();

    /** The first control whose action has the value name \a p_name, whatever its case; both null if none. */
    QPair<QWidget *, RibbonControl *> getControl(const QString &p_name) const;

    /** The keys of all pages, groups and controls, for inspection. */
    QString getIndexkeys() const;

    /** Whether keytips show on the tabs. */
    bool areKeytipsVisible() const;
    /** Whether keytips show on the controls of a page. */
    bool areControlKeytipsVisible() const;
    /** Shows a keytip on each tab: its action's shortcut. */
    void showKeytips();
    void hideKeytips();

    /** Starts the keyboard with keytips on the tabs, and returns true, or hides them and returns false. */
    bool toggleKeyfocus();

    /** Makes the tab with a shortcut the current one and shows the keytips of its controls; false if none has
     * it. */
    bool selectTabByKey(const QString &p_key);

    /** See RibbonGroup::selectControlByKey(); the current page or all visible ones are asked. Hides keytips.
     */
    bool selectControlByKey(const QString &p_key, bool p_currentTab, bool p_shortcut);

public Q_SLOTS:
    /** The application calls this when a command of the ribbon was triggered: the focus goes back. */
    virtual void slotTriggerAction();
    void showTab(int p_index);
    void tabCurrentChanged(int p_index);
    void onChangedAction(NVO::RibbonTab *p_ribbonTab);
    void slotFocusChanged(QWidget *p_old, QWidget *p_now);
    void slotDestroyedFocusWidget(QObject *p_object = nullptr);

protected:
    void setTabBarStyle(const QString &p_style);
    void setTabBarStyle(bool p_focus);
    QWidget *createKeytip(const QString &p_text);
    void initStyleSheet();

    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void tabInserted(int index) override;
    void tabRemoved(int index) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QList<RibbonTab *> livingTabs() const;
    RibbonTab *tabAt(int index) const;
    void placeKeytips();
    void triggerFileTab();
    void moveExtraWidget(int index);
    int returnPosition(const RibbonTab *tab) const;
    void leaveFileTab();
    bool tabBarKeyPress(int key);
    bool isFirstTabFocused() const;

    QWidget *m_outsideFocusWidget = nullptr;
    bool m_selectingByKey = false;
    bool m_changingTabs = false; // Qt chooses a tab then, not the user
    QList<QPointer<QWidget>> m_keytips;
    QPointer<Action> m_fileAction;
    QPointer<QWidget> m_previousPage;
    QList<QPointer<RibbonTab>> m_tabs;
};

} // namespace NVO
