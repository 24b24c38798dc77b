#pragma once

#include <nvo/Export.h>

#include <QPointer>
#include <QRect>
#include <QVector>
#include <QWidget>

namespace NVO {

class Button;
class FlyoutInnerWidget;

/**
 * A small popup with a pointer, a triangle on one edge of its box, that points at a widget, a rectangle or a
 * point of the screen.
 *
 * The box is placed so that the pointer touches the target. From the position that was asked for, up to
 * twelve positions are tried, and the first is taken at which the box, pushed onto the screen, still points
 * at the target; if there is none, the box lies over the target without a pointer. The flyout follows its
 * target widget and all of the target's ancestors: it moves with them, and hides when the target is hidden,
 * scrolled out of view or destroyed.
 *
 * Without Sticky it is a popup: a press outside of its box closes it. With Sticky it is a window of the tool
 * tip kind that refuses close() and goes only by hide(), by its closing cross or with its target.
 *
 * The box is painted in the colours of the sheet of ElementFlyout: its "background" is the fill and its
 * "color" the border. The sheet selects on the dynamic property "style", the key of the FlyoutStyle.
 *
 * Assistive technology meets it as a dialog, with Sticky as a tool tip and with Error as an alert message, by
 * the name that setAccessibleName() or the window title gives it.
 *
 * All coordinates are those of the screen, in device-independent pixels.
 */
class NVO_EXPORT Flyout : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(FlyoutStyle flyoutStyle READ flyoutStyle WRITE setFlyoutStyle)
    Q_PROPERTY(bool deleteOnClose READ deleteOnClose WRITE setDeleteOnClose)

public:
    /**
     * Where the pointer sits: one bit for the edge of the box, and one for the place on that edge. TopLeft is
     * a pointer near the left end of the top edge, so that the box hangs below its target; LeftTop is a
     * pointer near the top of the left edge, so that the box stands to the right of its target.
     */
    enum PointerPosition : int {
        CenterCenter = 0, ///< No pointer; the box lies over the middle of the target.

        TopMask = 0x10,
        BottomMask = 0x20,
        LeftMask = 0x40,
        RightMask = 0x80,
        PrimaryMask = TopMask | BottomMask | LeftMask | RightMask,

        SubPositionTopOrLeft = 4,
        SubPositionMiddle = 2,
        SubPositionBottomOrRight = 1,
        SubPositionMask = SubPositionTopOrLeft | SubPositionMiddle | SubPositionBottomOrRight,

        TopLeft = TopMask | SubPositionTopOrLeft,
        TopMiddle = TopMask | SubPositionMiddle,
        TopRight = TopMask | SubPositionBottomOrRight,
        BottomLeft = BottomMask | SubPositionTopOrLeft,
        BottomMiddle = BottomMask | SubPositionMiddle,
        BottomRight = BottomMask | SubPositionBottomOrRight,
        LeftTop = LeftMask | SubPositionTopOrLeft,
        LeftMiddle = LeftMask | SubPositionMiddle,
        LeftBottom = LeftMask | SubPositionBottomOrRight,
        RightTop = RightMask | SubPositionTopOrLeft,
        RightMiddle = RightMask | SubPositionMiddle,
        RightBottom = RightMask | SubPositionBottomOrRight
    };
    using PointerPositions = QFlags<PointerPosition>;
    Q_FLAG(PointerPosition)

    /** How a flyout behaves. */
    enum FlyoutFlag : int {
        NoFlag = 0,
        Sticky = 1,         ///< Stays open whatever is clicked elsewhere.
        AttachToTarget = 2, ///< Kept for callers that set it: every flyout follows its target widget.
        CloseButton = 4     ///< Shows a closing cross in the corner.
    };
    using FlyoutFlags = QFlags<FlyoutFlag>;
    Q_FLAG(FlyoutFlag)

    /** The looks. */
    enum FlyoutStyle : int {
        Normal = 0,
        Error = 1 ///< Tells of a mistake.
    };
    Q_ENUM(FlyoutStyle)

    /** Points at \a point. The flyout hides with \a target, which may be null. */
    Flyout(QWidget *target, const QPoint &point, FlyoutFlags flags, QWidget *parent);

    /** Points at \a rect, or at \a target if the rectangle is null. The flyout hides with \a target. */
    Flyout(QWidget *target, const QRect &rect, FlyoutFlags flags, QWidget *parent);

    /**
     * Points at \a target. As long as there is none, the flyout does not place itself and opens wherever it
     * stands.
     */
    Flyout(QWidget *target, FlyoutFlags flags, QWidget *parent);

    ~Flyout() override;

    /** What the box shows; null at first, and again after it was destroyed or given another parent. */
    virtual QWidget *content() const;

    /**
     * Shows \a content, which the flyout takes over, and deletes the content before. Null leaves the box
     * empty; the flyout itself and what it lies in are left alone.
     */
    void setContent(QWidget *content);

    /** The position that was asked for; TopLeft at first. */
    PointerPositions pointerPosition() const { return m_requestedPosition; }

    /** Asks for a position. A visible flyout is placed anew at once. */
    void setPointerPosition(PointerPositions position);

    /** The position that the last placement found; TopLeft before the first. */
    PointerPositions effectivePointerPosition() const { return m_effectivePosition; }

    /** How far the last placement pushed the box to bring it onto the screen. */
    QPoint pointerOffset() const { return m_offset; }

    QWidget *targetWidget() const { return m_target; }

    /** Follows \a target, or nothing if it is null, from now on. The flyout is placed at its next showing. */
    void setTargetWidget(QWidget *target);

    FlyoutStyle flyoutStyle() const { return m_style; }

    /** Changes the look. */
    void setFlyoutStyle(FlyoutStyle style);

    /** Whether closing deletes the flyout; hiding never does. False at first. */
    bool deleteOnClose() const;
    void setDeleteOnClose(bool on);

    /** Showing starts the search for a place from the position that was asked for. */
    void setVisible(bool visible) override;

    /**
     * How far the pointer is from the left end of an edge of \a size, pushed by \a offset; 0 for a position
     * without a place on the edge.
     */
    static int xMarginFrom(PointerPositions position, const QSize &size, int offset);

    /** The same from the top end of an edge. */
    static int yMarginFrom(PointerPositions position, const QSize &size, int offset);

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *object, QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void initStyleSheet();
    void addEventFilters(QObject *first);
    void clearEventFilters(int from);
    void targetMoved();
    void targetDestroyed();
    void chainChanged(QObject *object);
    QRect currentTarget() const;
    void reposition(bool fromEffective);
    void standOnTargetWindow();
    void placeCloseButton();

    FlyoutInnerWidget *m_innerWidget = nullptr;
    QPointer<QWidget> m_contentWidget;
    PointerPositions m_requestedPosition = TopLeft;
    PointerPositions m_effectivePosition = TopLeft;
    QPoint m_offset;
    QRect m_targetRect;
    QPointer<QWidget> m_target;
    FlyoutFlags m_flags;
    FlyoutStyle m_style = Normal;
    QPointer<Button> m_closeButton;
    QVector<QPointer<QObject>> m_filteredObjects; // the target and its ancestors

    bool m_placing = false;
    bool m_repaintPending = false; // the next update request comes from a placement
};

Q_DECLARE_OPERATORS_FOR_FLAGS(Flyout::PointerPositions)
Q_DECLARE_OPERATORS_FOR_FLAGS(Flyout::FlyoutFlags)

} // namespace NVO
