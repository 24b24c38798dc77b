#pragma once

#include <nvo/ExpandingOverviewButton.h>
#include <nvo/OverviewButtonBase.h>

#include <memory>

class QSpacerItem;

namespace NVO {

class Label;
class PathLabel;
class ResultEnd;

/**
 * A row that an ExpandingOverviewButton unfolds: a title above a path, icons at both ends and an arrow.
 *
 * The title is html, see Label. The sheet is that of ElementOverviewButton, with the object name "title".
 */
class NVO_EXPORT BottomSideButton : public OverviewButtonBase
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle)

public:
    using Path = ExpandingOverviewButton::Path;
    using ButtonStyle = ExpandingOverviewButton::ButtonStyle;

    /** Whether the row closes its tile at the bottom or goes on into the next one. */
    enum Style : int { LastRow = 0, InnerRow = 1 };

    /** A row that stands alone, as a tile without a shadow. */
    explicit BottomSideButton(QWidget *parent = nullptr);
    ~BottomSideButton() override;

    void setTitle(const QString &title);
    QString title() const;

    /** A path without elements takes no room. */
    void setPath(const Path &path);
    Path path() const;

    /** A null pixmap takes the icon away. */
    void setIconLeft(const QPixmap &icon);
    void setIconState(const QPixmap &state);

    /** Opens the sides at which neighbours follow. Hides QWidget::setStyle(). */
    void setStyle(Style style);

    /** Indents the row as the tiles of \a style do. SearchHits at first. */
    void setButtonStyle(NVO::ExpandingOverviewButton::ButtonStyle style);

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void initStyleSheet() override;
    void addLayouts();
    void updateMargins();
    void updateHeightSpacer();

    Label *m_titleLabel;
    PathLabel *m_pathLabel;
    Label *m_iconLeftLabel;
    QSpacerItem *m_iconLeftSpacer;
    std::unique_ptr<ResultEnd> m_end;
    QWidget *m_pathGap;
    ButtonStyle m_buttonStyle = ButtonStyle::SearchHits;
    QSpacerItem *m_heightSpacer;
};

} // namespace NVO
