#pragma once

#include "buttons/AccessibleButton.h"

namespace NVO {

class ToolBarButton;

/** A large button of a tool bar: called by its text on one line, with the badge in its description. */
class AccessibleToolBarButton : public AccessibleButton
{
public:
    /** Lets QAccessible describe each ToolBarButton in this way. Every call after the first does nothing. */
    static void install();

    explicit AccessibleToolBarButton(ToolBarButton *button);

    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    QString text(QAccessible::Text type) const override;
    QStringList actionNames() const override;
    void doAction(const QString &name) override;

private:
    ToolBarButton *toolButton() const;
    bool hasMenu() const;
    bool isMenuOnly() const;
};

} // namespace NVO
