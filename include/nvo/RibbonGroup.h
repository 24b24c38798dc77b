#pragma once

#include <nvo/Export.h>
#include <nvo/RibbonControl.h>

#include <QFrame>
#include <QList>
#include <QPair>
#include <QPointer>

class QStackedLayout;

namespace NVO {

class RibbonGroupButton;
class RibbonGroupLayout;

/**
 * The captioned block of controls on a ribbon page. Where there is no room it collapses to a button that
 * opens the same controls in a popup; a group with a single visible control never does. A group without a
 * visible control is hidden.
 *
 * Its action gives the caption, text, icon and tool tip of the button, the enabled state, and by
 * Action::sizeMode() the modes that its controls are fixed to. Actions are not owned and should outlive the
 * group; without one there are no texts. The class is also the content of the popup, in a form without a
 * button.
 */
class NVO_EXPORT RibbonGroup : public QFrame, public RibbonControl
{
    Q_OBJECT

public:
    RibbonGroup(Action *p_action, bool p_popup, QWidget *p_parent);
    ~RibbonGroup() override;

    /**
     * Adds the control for an action and returns it: null, with a debug message, for an unknown type, and
     * null for a null action. Hides the function of QWidget.
     */
    QWidget *addAction(Action *p_action);

    /** The visible controls, in order. */
    QList<QWidget *> visibleWidgets() const;

    /** The first control whose action has the value name \a p_name, whatever its case; both null if none. */
    QPair<QWidget *, RibbonControl *> getControl(const QString &p_name) const;

    /** The keys of the group and its controls, for inspection. */
    QString getIndexkeys() const;

    /**
     * Triggers the first enabled and visible control with a key: its index key, whatever the case, or with
     * \a p_shortcut its shortcut as portable text. A collapsed group opens its popup with keytips instead and
     * returns false, like a group without such a control.
     */
    bool selectControlByKey(const QString &p_key, bool p_shortcut);

    /**
     * Gives the first enabled and visible control the focus, or the button of a collapsed group that has such
     * a control; false if there is none.
     */
    bool selectFirstControl();

    /** Shows a keytip on each visible control, or on the button of a collapsed group. */
    void showKeytips();
    bool areControlKeytipsVisible() const;

    /**
     * Gives the control in a row of the first column the focus, of the last one with \a p_left; the first
     * row stands in for one that is not there.
     */
    void setFocus(bool p_left, int p_row);
    using QWidget::setFocus;

    /** Where the top left corner of a rectangle has to be for it to lie on its screen, in global pixels. */
    static QPoint screenGeometry(QRect p_rect);

    QSize sizeHint() const override;

    bool setSizeMode(SizeMode p_mode, bool p_force) override;
    void updateLayout() override;
    QSize sizeFromMode(SizeMode p_mode, const QSize &p_available) const override;
    QSize sizeFromMode(SizeMode p_mode, bool p_minimum) const override;
    void onSetSizeModeChanged(SizeMode p_oldMode) override;
    Action *action() const override;
    bool controlVisible() const override;

Q_SIGNALS:
    /** Something has changed, and with it perhaps whether the group shows. */
    void visibleChange(NVO::RibbonControl *p_ribbonControl);
    /** The focus comes (\a p_in) or goes; with a null event after the popup has closed. */
    void focusInOutEvent(QFocusEvent *p_event, bool p_in);
    /** An arrow key leads out of the group, to the left if \a key is true, in a row. */
    void keyFocusChange(int key, int row);

public Q_SLOTS:
    void hideKeytips();
    /** Told when the popup has gone: the button is released. A popup that shows stays. */
    void closePopup();
    /** Opens the popup of a collapsed group, shows the keytips of an open one. */
    void triggeredAction();
    /** Takes over what the action is now. */
    void changedAction();
    /** Takes over that a control has changed. */
    void onVisibleChange(NVO::RibbonControl *p_ribbonControl);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void initStyleSheet();
    void createButton();
    void updateFace();
    void setActionParams();
    void updateCaption();
    void setUpdateVisible();
    void closeIfEmpty();
    bool hasSingleControl() const;
    bool isCollapsed() const;
    QList<RibbonControl *> controls() const;
    template <typename Control>
    QWidget *addControl(Control *control);
    void showPopup(bool p_showKeytips);
    void reconsiderPopup();
    void placePopup(RibbonGroup *popup);
    void focusPopup(const RibbonGroup &popup);
    void showKeytip(QWidget *widget, const Action *action);
    void moveFocus(int key);

    QList<QPointer<QWidget>> m_keytips;
    QPointer<Action> m_action;
    QStackedLayout *m_stackedLayout;
    RibbonGroupButton *m_groupButton = nullptr;
    RibbonGroupLayout *m_groupLayout;
    QPointer<QWidget> m_popup;
};

} // namespace NVO
