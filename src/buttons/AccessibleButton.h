#pragma once

#include <QAccessibleWidget>

class QAbstractButton;
class QMenu;

namespace NVO {

/**
 * A button as assistive technology sees it, without children.
 *
 * Unlike Qt's own, which cannot be derived from, it calls a button without a text by its tool tip, reports
 * the keys of a QShortcut that is a child of the button, and is always pressed by a click, also where that
 * toggles: commands hang on the click.
 */
class AccessibleButton : public QAccessibleWidget
{
public:
    /** Lets QAccessible describe each AbstractButton in this way. Every call after the first does nothing. */
    static void install();

    explicit AccessibleButton(QAbstractButton *button);

    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    QString text(QAccessible::Text type) const override;
    QStringList actionNames() const override;
    void doAction(const QString &name) override;
    QStringList keyBindingsForAction(const QString &name) const override;
    int childCount() const override { return 0; }
    QAccessibleInterface *child(int) const override { return nullptr; }

protected:
    QAbstractButton *button() const;

private:
    QString toolTip() const;
    QMenu *menu() const;
    QString clickAction() const;
};

} // namespace NVO
