#pragma once

#include <nvo/Export.h>

#include <QGroupBox>
#include <QPointer>

class QLayout;

namespace NVO {

/**
 * The group box, in four looks of the sheet of ElementGroupBox, which selects on the dynamic property
 * "style", the key of the GroupBoxStyle.
 *
 * A small legend can stand in its top right corner, above the contents. The rows of the box, which are the
 * layouts among the items of its own layout, tell where the user is: each has a dynamic property "state",
 * which is "focus" if one of the row's widgets has the keyboard focus, else "hover" if the mouse is over the
 * row, else "". It is brought up to date with each move of the mouse that reaches the box, and is there for
 * the application: nothing in the library looks at it.
 */
class NVO_EXPORT GroupBox : public QGroupBox
{
    Q_OBJECT
    Q_PROPERTY(GroupBoxStyle groupBoxStyle READ groupBoxStyle WRITE setGroupBoxStyle)

public:
    /** The looks. */
    enum GroupBoxStyle : int {
        Paragraph = 0,              ///< A paragraph of a form, with a border.
        ParagraphWithoutBorder = 1, ///< The same without one.
        Overview = 2,               ///< A card on an overview.
        TopicChooser = 3            ///< A list of topics to choose from.
    };
    Q_ENUM(GroupBoxStyle)

    explicit GroupBox(QWidget *parent = nullptr);

    GroupBoxStyle groupBoxStyle() const { return m_groupBoxStyle; }
    void setGroupBoxStyle(GroupBoxStyle style);

    /** The legend; null at first, and once the legend has been deleted. */
    QWidget *legend() const { return m_legend; }

    /**
     * Lets \a legend stand in the top right corner, now and whenever the box changes its size: right-aligned
     * to the width of the contents and at least as high as the strip above them, in right-to-left layouts
     * the other way round. It is shown with that. A box that is not under a style sheet leaves it alone.
     *
     * The legend must be made as a child of the box, and stays its creator's: neither the new one is
     * reparented nor the old one hidden or deleted. Null takes no widget.
     */
    void setLegend(QWidget *legend);

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    void initStyleSheet();
    void positionLegend();
    void updateRowState(QLayout *row, const QPoint &mouse);

    GroupBoxStyle m_groupBoxStyle = Paragraph;
    QPointer<QWidget> m_legend;
};

} // namespace NVO
