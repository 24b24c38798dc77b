#pragma once

#include <nvo/Export.h>

#include <QFrame>

#include <array>

class QGridLayout;
class QPixmap;

namespace NVO {

class LeftSideButton;
class RightSideButton;
class RightSideDummyButton;
class SeparatorLine;

/**
 * A tile in two halves: a large button with icon, title and text, and up to three buttons with a title, a
 * text and an arrow beside it, one above the other. The lines between them light up with their neighbours.
 *
 * All three are there at first. Rows without a button keep their place; without any, the large button is the
 * whole tile. Tab and the cursor keys walk through the buttons; up and down lead out of the tile at its ends.
 *
 * Titles and texts are html, see Label. The sheet is that of ElementOverviewButton, with the object names
 * "leftSideIcon", "leftSideTitle", "leftSideText", "rightSideTitle", "rightSideText", and "top", "middle" and
 * "bottom" for the rows without a button.
 */
class NVO_EXPORT OverviewButton3Children : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle)
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    static constexpr unsigned int numOfRightSideButtons = 3;
    static constexpr unsigned int numOfRightSideSeparators = 2;

    explicit OverviewButton3Children(QWidget *parent = nullptr);

    /** Of any size; a null pixmap takes the icon away. */
    void setIcon(const QPixmap &icon);
    void setTitle(const QString &title);
    QString title() const;
    void setText(const QString &text);
    QString text() const;

    /** Of the right button \a index, from 0 at the top; others are ignored. */
    void setRighSideTitle(unsigned int index, const QString &title);
    void setRighSideText(unsigned int index, const QString &text);
    /** Empty for a button that does not exist. */
    QString rightSideTitle(unsigned int index) const;
    QString rightSideText(unsigned int index) const;

    /** Shows the first \a count right buttons. */
    void setRightSideVisible(unsigned int count);

Q_SIGNALS:
    /** The large button was clicked. */
    void clicked();

    /** A right button was clicked, 0 for the one at the top. */
    void rightSideClicked(int p_index);

protected:
    bool event(QEvent *event) override;

private:
    template <typename Type>
    using PerButton = std::array<Type *, numOfRightSideButtons>;
    template <typename Type>
    using PerSeparator = std::array<Type *, numOfRightSideSeparators>;

    void addRow(unsigned int row, QGridLayout *grid);
    void addSeparators(unsigned int row, QGridLayout *grid);
    void leftButtonKeyPressed(int key);
    void rightButtonKeyPressed(RightSideButton *button, int key);
    template <typename Iterator>
    RightSideButton *visibleButton(Iterator from, Iterator end) const;
    RightSideButton *nextVisibleButton(RightSideButton *button) const;
    RightSideButton *previousVisibleButton(RightSideButton *button) const;
    void initStyleSheet();
    void updateFontSizes();

    QWidget *m_rightContainer;
    LeftSideButton *m_leftButton;
    PerButton<RightSideButton> m_rightButtons{};
    PerButton<RightSideDummyButton> m_rightDummies{};
    PerSeparator<SeparatorLine> m_horizontalSeparators{};
    PerSeparator<SeparatorLine> m_cornerSeparators{};
    PerButton<SeparatorLine> m_verticalSeparators{};
    PerSeparator<QWidget> m_frameEdges{}; // where a horizontal separator shows only ground
};

} // namespace NVO
