#pragma once

#include <QPixmap>
#include <QPointer>
#include <QWidget>

/**
 * Shows the lower right corner of a widget and what is around it enlarged, pixel by pixel. It looks when it
 * is shown and when the widget gets another place or size, not at every change.
 */
class Magnifier : public QWidget
{
    Q_OBJECT

public:
    /** \a target is a child of the widget that makes its ground. */
    explicit Magnifier(QWidget *target, QWidget *parent = nullptr);

    QSize sizeHint() const override { return minimumSize(); }

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void lookSoon();
    void look();

    QPointer<QWidget> m_target;
    QPixmap m_picture;
};
