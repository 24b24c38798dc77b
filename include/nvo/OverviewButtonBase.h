#pragma once

#include <nvo/Export.h>

#include <QMargins>
#include <QPointer>
#include <QPushButton>

namespace NVO {

class GraphicsEffect;

/**
 * The base of the big tile buttons of overview pages. It paints nothing but what the sheet says of ground and
 * border; a subclass fills it with widgets and a layout, which alone give it its size.
 *
 * The sheet selects on dynamic properties: "style", the key of the Style; "WithoutLeftBorder",
 * "WithoutRightBorder", "WithoutTopBorder", "WithoutBottomBorder"; "TopLeftRound", "TopRightRound",
 * "BottomLeftRound", "BottomRightRound"; "partialDisabled". All but the first are bool.
 *
 * The tile owns a shadow, which is off while it is held down. An effect that replaces it is left alone.
 *
 * The tile may be deleted inside any of its signals. Only what moves the focus has to be over before: a
 * styleStateChanged() that comes of it allows for deleteLater().
 */
class NVO_EXPORT OverviewButtonBase : public QPushButton
{
    Q_OBJECT
    Q_PROPERTY(Style overviewButtonStyle READ overviewButtonStyle WRITE setOverviewButtonStyle)
    Q_PROPERTY(BorderStyles borderStyle READ borderStyle WRITE setBorderStyle)
    Q_PROPERTY(RoundCornerStyles roundCornerStyle READ roundCornerStyle WRITE setRoundCornerStyle)
    Q_PROPERTY(bool shadowEnabled READ shadowEnabled WRITE setShadowEnabled)

public:
    /** The looks. */
    enum class Style : int {
        Normal = 0,
        Light = 1,  ///< Quieter than the tiles beside it.
        Primary = 2 ///< The main choice of a page.
    };
    Q_ENUM(Style)

    /**
     * The sides that have a border, as they are seen: a right-to-left layout does not swap them. An open side
     * goes on under a neighbour: the tile is painted as if it were 1 pixel larger there.
     */
    enum class BorderStyle : int { None = 0, Left = 1, Right = 2, Top = 4, Bottom = 8, Normal = 15 };
    Q_DECLARE_FLAGS(BorderStyles, BorderStyle)
    Q_FLAG(BorderStyle)
    Q_FLAG(BorderStyles)

    /** The corners that are round, as they are seen. */
    enum class RoundCornerStyle : int {
        None = 0,
        TopLeft = 1,
        TopRight = 2,
        BottomLeft = 4,
        BottomRight = 8,
        Normal = 15
    };
    Q_DECLARE_FLAGS(RoundCornerStyles, RoundCornerStyle)
    Q_FLAG(RoundCornerStyle)
    Q_FLAG(RoundCornerStyles)

    /** What the tile is to the mouse and the keyboard. Of several the later one counts, but focus beats
     * hover. */
    enum StyleState : int {
        StyleStateNormal = 0,
        StyleStateFocus = 1,
        StyleStateHover = 2,
        StyleStatePressed = 3
    };

    explicit OverviewButtonBase(QWidget *parent = nullptr);

    Style overviewButtonStyle() const { return m_overviewButtonStyle; }
    void setOverviewButtonStyle(Style style);

    BorderStyles borderStyle() const { return m_borderStyle; }
    void setBorderStyle(BorderStyles borders);

    RoundCornerStyles roundCornerStyle() const { return m_roundCornerStyle; }
    void setRoundCornerStyle(RoundCornerStyles corners);

    /** Whether the tile looks disabled and stays out of the way of the keyboard. */
    bool partialDisabled() const { return m_partialDisabled; }

    /**
     * A partially disabled tile has no focus, passes one that it has on, shows the arrow as its cursor and
     * always has the state StyleStateNormal. It still can be clicked and has what it holds enabled.
     */
    void setPartialDisabled(bool disabled);

    bool shadowEnabled() const { return m_shadowEnabled; }

    /** Whether the tile may cast a shadow; true at first. */
    void setShadowEnabled(bool enabled);

    StyleState styleState() const { return m_styleState; }

    /** That of the layout: a tile has no text of its own. */
    QSize sizeHint() const override;
    /** That of the layout. */
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /** styleState() is another one. */
    void styleStateChanged();

    /** A cursor key was pressed, of the Qt::Key values, in a tile that handles them. */
    void keyPressed(int p_key);

protected:
    bool handleCursorKeys() const { return m_handleCursorKeys; }

    /**
     * Lets the tile report the cursor keys with keyPressed() and do nothing else with them, in place of Qt's
     * walk to the next button. Off at first.
     */
    void setHandleCursorKeys(bool handle);

    /**
     * Publishes the dynamic properties. A subclass calls this, gives itself a sheet, and calls its own
     * version at the end of its constructor; setters call it with each change.
     */
    virtual void initStyleSheet();

    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QMargins openEdges() const;
    StyleState currentStyleState() const;
    void updateShadow();
    void updateStyleState();
    bool isReportedKey(const QKeyEvent &event) const;
    void passFocusOn();

    bool m_hovered = false;
    Style m_overviewButtonStyle = Style::Normal;
    BorderStyles m_borderStyle = BorderStyle::Normal;
    RoundCornerStyles m_roundCornerStyle = RoundCornerStyle::Normal;
    bool m_partialDisabled = false;
    bool m_shadowEnabled = true;
    StyleState m_styleState = StyleStateNormal;
    QPointer<GraphicsEffect> m_shadowEffect;
    bool m_handleCursorKeys = false;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(OverviewButtonBase::BorderStyles)
Q_DECLARE_OPERATORS_FOR_FLAGS(OverviewButtonBase::RoundCornerStyles)

} // namespace NVO
