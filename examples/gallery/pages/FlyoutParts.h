#pragma once

#include <nvo/Flyout.h>

#include <QMargins>

class QVBoxLayout;

namespace NVO {
class Label;
}

/** \name What the flyouts of pages are made of */
///@{

constexpr QMargins flyoutMargins(14, 2, 0, 2);       // a flyout leaves the rest on the right and below
constexpr QMargins flyoutCrossMargins(14, 2, 10, 2); // the text ends before the cross

/**
 * A flyout that stands in a page, to be looked at: it takes neither the mouse nor the keyboard. For it the
 * upper left corner of its stage is that of the screen, and \a target is a place on the stage.
 */
class FlyoutPicture : public NVO::Flyout
{
    Q_OBJECT

public:
    FlyoutPicture(const QRect &target, FlyoutFlags flags, QWidget *stage);

    void present(PointerPosition position, FlyoutStyle style, QWidget *content);

protected:
    void showEvent(QShowEvent *event) override;
};

/** An empty content without a parent yet, with a column for what stands in it. */
QVBoxLayout *makeFlyoutContent();

/** A text that breaks its lines at \a width pixels. */
NVO::Label *addFlyoutText(QVBoxLayout *column, const QString &html, int width);

///@}
