#pragma once

#include <QRadioButton>

namespace NVO {

/**
 * One of the two radio buttons of a RadioToggle: takes no mouse, no focus and no shortcut, is nobody's
 * alternative, and is as wide as its text in the weight of a chosen one.
 */
class RadioToggleRadioButton : public QRadioButton
{
public:
    explicit RadioToggleRadioButton(QWidget *parent);

    /** Hides QAbstractButton::setText(), which would take the shortcut of the text. */
    void setText(const QString &text);

    QSize sizeHint() const override;
};

} // namespace NVO
