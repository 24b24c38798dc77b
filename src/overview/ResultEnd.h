#pragma once

#include <QPixmap>
#include <Qt>

class QHBoxLayout;
class QSpacerItem;
class QWidget;

namespace NVO {

class Label;

/** The end of a section of a search result: an icon that says its state, and an arrow to its target. */
class ResultEnd
{
public:
    /** Makes the labels as children of \a section. */
    explicit ResultEnd(QWidget *section);

    void addTo(QHBoxLayout *row) const;

    /** A null pixmap shows none. */
    void setState(const QPixmap &state);
    void setArrowVisible(bool visible);
    /** The gap before all this, in pixels. */
    void setGap(int width);
    /** Lets the arrow point to where one reads on. */
    void updateDirection();

    /** \a pixmap for the direction in which one reads: mirrored from right to left. */
    static QPixmap directed(const QPixmap &pixmap, Qt::LayoutDirection direction);

private:
    void setWidth(QSpacerItem *spacer, int width);

    QWidget *m_section;
    Label *m_stateLabel;
    QSpacerItem *m_stateArrowSpacer;
    Label *m_arrowLabel;
    QSpacerItem *m_stateSpacer;
};

} // namespace NVO
