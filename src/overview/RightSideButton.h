#pragma once

#include <nvo/OverviewButtonBase.h>

namespace NVO {

class Label;

/** One of the buttons of the right half of a split tile: a title above a text, and an arrow. */
class RightSideButton : public OverviewButtonBase
{
    Q_OBJECT

public:
    explicit RightSideButton(QWidget *parent);

    void setTitle(const QString &title);
    QString title() const;
    void setText(const QString &text);
    QString text() const;
    void setTitleFontSize(int pixelSize);
    void setTextFontSize(int pixelSize);

    /** The shape in a left-to-right layout; the other one mirrors it. */
    void setShape(BorderStyles borders, RoundCornerStyles corners);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent *event) override;
    void initStyleSheet() override;

private:
    void applyDirection();

    BorderStyles m_borders = BorderStyle::Normal;
    RoundCornerStyles m_corners = RoundCornerStyle::Normal;
    Label *m_titleLabel;
    Label *m_textLabel;
    Label *m_arrowLabel;
};

} // namespace NVO
