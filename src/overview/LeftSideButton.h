#pragma once

#include <nvo/OverviewButtonBase.h>

namespace NVO {

class Label;

/** The left half of a split tile: an icon and a title above a text. */
class LeftSideButton : public OverviewButtonBase
{
    Q_OBJECT

public:
    explicit LeftSideButton(QWidget *parent);

    void setIcon(const QPixmap &icon);
    void setTitle(const QString &title);
    QString title() const;
    void setText(const QString &text);
    QString text() const;
    void setTitleFontSize(int pixelSize);
    void setTextFontSize(int pixelSize);

    /** Whether the side towards the other half is open, or the half stands as a whole tile. */
    void setShapeForRightSide(bool hasRightSide);

protected:
    void changeEvent(QEvent *event) override;
    void initStyleSheet() override;

private:
    void applyShape();

    bool m_hasRightSide = true;
    Label *m_iconLabel;
    Label *m_titleLabel;
    Label *m_textLabel;
};

} // namespace NVO
