#pragma once

#include <nvo/Export.h>
#include <nvo/RibbonControl.h>

#include <QFrame>
#include <QPair>
#include <QPointer>

class QHBoxLayout;

namespace NVO {

class RibbonGroup;
class RibbonGroupObject;
class RibbonLayout;

/**
 * A page of the ribbon: a strip of groups with separators between them, and at its right end perhaps one
 * extra widget, which the ribbon moves from page to page. The page's action is not owned and should outlive
 * it.
 */
class NVO_EXPORT RibbonTab : public QFrame
{
    Q_OBJECT

public:
    RibbonTab(Action *p_action, QWidget *p_parent);
    ~RibbonTab() override;

    /** The action whose text is that of the tab. */
    Action *action() const;

    /** Adds a group at the right end. The page owns it. */
    RibbonGroup *addGroup(Action *p_action);

    /** Adds a picture block at the right end. The page owns it. */
    RibbonGroupObject *addGroupObject(Action *p_action);

    /**
     * Takes a widget as the extra widget; false, with nothing changed, if there is one already or it
     * contains the page.
     */
    bool addExtraWidget(QWidget *p_widget);

    /** The extra widget, taken out of the page with \a p_remove; null if there is none. */
    QWidget *getRemoveExtraWidget(bool p_remove);

    /** Whether anything on the page is visible. Hides the function of QWidget. */
    bool isVisible() const;

    /** The first control whose action has the value name \a p_name, whatever its case; both null if none. */
    QPair<QWidget *, RibbonControl *> getControl(const QString &p_name) const;

    /** The keys of the page, its groups and controls, for inspection. */
    QString getIndexkeys() const;

    /** See RibbonGroup::selectControlByKey(); the groups are asked in order. */
    bool selectControlByKey(const QString &p_key, bool p_shortcut);

    /** Gives the first group that takes it the focus; false if none does. */
    bool selectFirstControl();

    void hideKeytips();
    bool areControlKeytipsVisible() const;

    /** Does nothing. */
    void testFunction();

Q_SIGNALS:
    /** Something has changed that may decide on the presence of the page. */
    void signalChangedAction(NVO::RibbonTab *p_ribbonTab);
    /** The focus comes (\a p_in) to the page or one of its controls, or goes. */
    void focusInOutEvent(QFocusEvent *p_event, bool p_in);

public Q_SLOTS:
    /** Shows the keytips of all groups. */
    void showKeytips();
    /** Takes over what the action is now. */
    void changedAction();
    void onVisibleChange(NVO::RibbonControl *p_ribbonControl);
    /** Moves the focus from the group that sends this to its neighbour, at the left with \a p_left. */
    void groupKeyFocusChange(bool p_left, int p_row);

protected:
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void setActionParams();
    void updateSeparators();
    bool isCurrentPage() const;
    QList<RibbonGroup *> groups() const;
    template <typename Block>
    Block *addBlock(Block *block);

    QPointer<Action> m_action;
    RibbonLayout *m_ribbonLayout;
    QHBoxLayout *m_boxLayout;
    QWidget *m_pageWidget;
};

} // namespace NVO
