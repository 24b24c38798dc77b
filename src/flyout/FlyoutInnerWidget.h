#pragma once

#include <nvo/Flyout.h>

#include <QWidget>

namespace NVO {

/** What is seen of a flyout: paints the box with the pointer and lays out the content. */
class FlyoutInnerWidget : public QWidget
{
    Q_OBJECT

public:
    explicit FlyoutInnerWidget(Flyout *flyout);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QSize marginSize() const;

    Flyout *m_flyout;
};

} // namespace NVO
