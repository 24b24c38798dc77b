#pragma once

#include "buttons/AccessibleButton.h"

namespace NVO {

class AbstractToggle;

/** A toggle as assistive technology sees it: a check box without children, described by both labels. */
class AccessibleToggle : public AccessibleButton
{
public:
    /**
     * Lets QAccessible describe each AbstractToggle in this way, and the radio buttons in one as nothing.
     * Every call after the first does nothing.
     */
    static void install();

    explicit AccessibleToggle(AbstractToggle *toggle);

    QAccessible::State state() const override;
    QString text(QAccessible::Text type) const override;

private:
    QString labels() const;
};

} // namespace NVO
