#pragma once

#include <nvo/AccordionPart.h>

#include <QPointer>
#include <QPushButton>

namespace NVO {

/**
 * The button that a part of an accordion is opened with. It shows a free widget, whose layout decides its
 * size, and lets through what that widget does with the mouse.
 *
 * Assistive technology calls it by the left text of an AccordionSimpleHeader, or else as the free widget is
 * called, and learns whether the part is open.
 */
class AccordionHeader : public QPushButton
{
    Q_OBJECT

public:
    explicit AccordionHeader(AccordionPart *part);

    /** Takes \a widget in place of the one before, which is deleted unless it has moved elsewhere. */
    void setHeader(QWidget *widget);
    QWidget *headerWidget() const { return m_headerWidget; }

    QFlags<AccordionHeaderStyleState> styleState() const { return m_styleState; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;

Q_SIGNALS:
    void styleStateChanged();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void updateStyleState();

    QPointer<QWidget> m_headerWidget;
    QFlags<AccordionHeaderStyleState> m_styleState;
};

} // namespace NVO
