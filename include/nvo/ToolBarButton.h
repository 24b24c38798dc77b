#pragma once

#include <nvo/Export.h>

#include <QStringList>
#include <QToolButton>

namespace NVO {

/**
 * The large button of a tool bar: a rounded box of 42 x 24 pixels (48 with an arrow) that holds an icon of
 * 16 x 16 and an arrow if arrowType() is not Qt::NoArrow, a badge at the corner of the box, and the text
 * below it. Each "<br>" and each line feed of the text starts a new line; everything else is shown as it
 * stands, "&" too.
 *
 * It paints all of this itself; the sheet of ElementToolBarButton gives it the face of its text, and with
 * "selection-background-color" the ring that shows the focus once it is moved by the keyboard. Only the box
 * reacts to the left mouse button. From right to left, badge and arrow change sides.
 *
 * The colours are those of the palette when the first button was painted. Assistive technology is told the
 * text, on one line, as the name and the badge in the description.
 */
class NVO_EXPORT ToolBarButton : public QToolButton
{
    Q_OBJECT
    Q_PROPERTY(QString badge READ badge WRITE setBadge)

public:
    explicit ToolBarButton(QWidget *p_parent = nullptr);

    /** The text of the badge; without one there is no badge. It does not count for the size. */
    QString badge() const { return m_badge; }
    void setBadge(const QString &p_text);

    /** Shows \a p_count as the badge; -1 takes it away. */
    void setCounter(int p_count);

    /** The box or the widest line, and 5 pixels on each side. */
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    struct DefaultValues;
    static const DefaultValues &getValues();

    void initStyleSheet();
    QStringList textStringList() const;
    QRect boxRect() const;
    QRect visualRect(const QRect &place) const;
    bool mouseEvent(QMouseEvent *event);

    void paintBox(QPainter &painter) const;
    void paintFocus(QPainter &painter) const;
    void paintArrow(QPainter &painter) const;
    void paintIcon(QPainter &painter) const;
    void paintBadge(QPainter &painter) const;
    void paintText(QPainter &painter) const;

    QString m_badge;
};

} // namespace NVO
