#pragma once

#include <nvo/Export.h>
#include <nvo/RibbonControl.h>

#include <QFont>
#include <QPointer>
#include <QPushButton>
#include <QTextOption>

namespace NVO {

/**
 * A button of the ribbon. It mirrors its action: in mode Large an icon of 32 x 32 pixels above one text line
 * for each "<br>" of the action's text, in mode Small an icon of 16 x 16 pixels beside a single line.
 *
 * A click emits QAction::triggered() of the action and toggles a checkable button, not the action: the next
 * QAction::changed() puts the button right. The action is not owned and should outlive the button.
 */
class NVO_EXPORT RibbonButton : public QPushButton, public RibbonControl
{
    Q_OBJECT

public:
    RibbonButton(Action *p_action, QWidget *p_parent);

    /** How the one line of mode Small is drawn; at the left and top at first. */
    void setTextOption(const QTextOption &p_textOption) { m_textOption = p_textOption; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    void updateLayout() override;
    using RibbonControl::sizeFromMode;
    QSize sizeFromMode(SizeMode p_mode, bool p_minimum) const override;
    void onSetSizeModeChanged(SizeMode p_oldMode) override;
    Action *action() const override;

Q_SIGNALS:
    /** The action has changed, and with it perhaps whether the control shows. */
    void visibleChange(NVO::RibbonControl *p_ribbonControl);
    /** The focus comes (\a p_in) or goes. */
    void focusInOutEvent(QFocusEvent *p_event, bool p_in);

public Q_SLOTS:
    /** Takes over what the action is now. */
    void changedAction();

protected:
    bool event(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    /** The sizes by mode, with what they were computed from. */
    struct Sizes
    {
        QString text;
        QFont font;
        bool hasIcon = false;
        QSize small;
        QSize large;
    };

    void initStyleSheet();
    bool setActionParams();
    QStringList textStringList(SizeMode p_mode) const;
    QSize computedSize(SizeMode p_mode) const;
    void paintIcon(QPainter &painter, const QPoint &position, const QSize &size);
    void paintTextLines(QPainter &painter, const QStringList &lines, int top);

    QPointer<Action> m_action;
    QTextOption m_textOption{Qt::AlignLeft | Qt::AlignTop};
    mutable Sizes m_sizes;
};

} // namespace NVO
