#pragma once

#include <QFont>
#include <QPushButton>

namespace NVO {

/**
 * What a collapsed ribbon group shows: its icon above its text on at most two lines and a chevron. The
 * dynamic property "style" is "open" while the popup of the group is open, else "default".
 */
class RibbonGroupButton : public QPushButton
{
    Q_OBJECT

public:
    explicit RibbonGroupButton(QWidget *p_parent = nullptr);

    bool isOpen() const;
    void setOpen(bool p_open);

    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /** The focus comes (\a p_in) or goes. */
    void signalFocusInOutEvent(QFocusEvent *p_event, bool p_in);

protected:
    bool event(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    /** The smallest size with what it was computed from. */
    struct Kept
    {
        QString text;
        QFont font;
        bool hasIcon = false;
        QSize size;
    };

    void initStyleSheet(bool open);
    QSize computedSize() const;
    QStringList textLines() const;
    void paintChevron(QPainter &painter) const;

    mutable Kept m_kept;
};

} // namespace NVO
