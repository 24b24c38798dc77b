#pragma once

#include <nvo/ExpandingOverviewButton.h>
#include <nvo/Pixmap.h>

#include <QWidget>

namespace NVO {

namespace PathText {
struct Segment;
}

/** Shows a path as its names with arrows between them, and leaves out names in its middle without room. */
class PathLabel : public QWidget
{
    Q_OBJECT

public:
    using Path = ExpandingOverviewButton::Path;

    explicit PathLabel(QWidget *parent);

    void setPath(const Path &path);
    Path path() const { return m_path; }

    /** The room for the whole path. */
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QSize arrowSize() const;
    QPixmap arrowImage() const;
    int arrowSpace() const;
    QVector<PathText::Segment> segments() const;

    Qt::TextElideMode m_elideMode = Qt::ElideNone;
    Path m_path;
    Pixmap m_arrow;
};

} // namespace NVO
