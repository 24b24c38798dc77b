#pragma once

#include "overview/ResultEnd.h"

#include <nvo/ExpandingOverviewButton.h>
#include <nvo/OverviewButtonBase.h>

namespace NVO {

class Label;
class PathLabel;

/** The head of a search result: an icon beside a title, a text, and a path or what there is to unfold. */
class TopSideButton : public OverviewButtonBase
{
    Q_OBJECT

public:
    using Path = ExpandingOverviewButton::Path;
    using ButtonStyle = ExpandingOverviewButton::ButtonStyle;

    /** The head of \a part. */
    TopSideButton(QWidget *parent, AccordionPart *part);

    void setTitle(const QString &title);
    QString title() const;
    void setText(const QString &text);
    QString text() const;
    void setTextVisible(bool visible);
    void setIcon(const QPixmap &icon);
    void setIconState(const QPixmap &state);

    /** Makes this the way to \a path: it has an arrow. */
    void setPath(const Path &path);
    Path path() const;

    /** Makes this what unfolds the part, which \a text tells about: it has an indicator. */
    void setExpandText(const QString &text);
    QString expandText() const;

    void setButtonStyle(ButtonStyle style);

    /** Whether this stands above what is unfolded, or as a whole tile. */
    void setExpanded(bool expanded);

    /** \name As assistive technology sees it */
    ///@{
    bool isTextVisible() const;
    bool isExpandable() const;
    bool isPartExpanded() const;
    ///@}

    QSize sizeHint() const override;
    int heightForWidth(int width) const override;

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void initStyleSheet() override;

private:
    void createChildren(AccordionPart *part);
    void addLayouts();
    void updateFontSizes();
    void showExpandable(bool expandable);
    void tellAssistiveTechnology();
    int leastHeight() const;

    AccordionPart *m_part; // that this is in
    Label *m_iconLabel;
    QWidget *m_iconSpacer;
    Label *m_titleLabel;
    Label *m_textLabel;
    PathLabel *m_pathLabel;
    QWidget *m_expandContainer;
    Label *m_expandLabel;
    ResultEnd m_end;
    ButtonStyle m_buttonStyle = ButtonStyle::SearchHits;
};

} // namespace NVO
