#pragma once

#include <nvo/Export.h>

#include <QFrame>
#include <QList>
#include <QMetaType>
#include <QPair>
#include <QStringList>
#include <QVariant>
#include <QVector>

class QPixmap;

namespace NVO {

class AccordionPart;
class BottomSideButton;
class SeparatorLine;
class TopSideButton;

/**
 * A tile for a search result: a large button with icon, title, text and state. It leads to its target, which
 * it shows as a path and an arrow, or, if there are several targets, unfolds a row for each of them.
 *
 * Unfolding and folding take 200 milliseconds. The large button keeps its open shape until the fold is shut.
 * Tab and the cursor keys walk through the large button and the rows that are seen.
 *
 * Titles and texts are html, see Label; the elements of paths are plain. The sheet is that of
 * ElementOverviewButton, with the object names "icon", "title", "text" and "expand" in the large button and
 * "title" in a row; paths are NVO--PathLabel.
 *
 * The tile may be deleted and may be given other targets inside clicked().
 */
class NVO_EXPORT ExpandingOverviewButton : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle)
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(ButtonStyle buttonStyle READ buttonStyle WRITE setButtonStyle)

public:
    /** A target. */
    struct Path
    {
        QVariant id;          ///< What its owner finds the target by.
        QStringList elements; ///< The names on the way to it, outermost first.

        friend bool operator==(const Path &one, const Path &other)
        {
            return one.id == other.id && one.elements == other.elements;
        }
        friend bool operator!=(const Path &one, const Path &other) { return !(one == other); }
    };

    /** What the targets are. It decides on the words for them and on the look. */
    enum ButtonStyle : int {
        SearchHits = 0,        ///< "2 Treffer"; the text is cut at the end of its line
        InputMasks = 1,        ///< "2 Eingabemasken"; the text wraps
        MatchingInputMasks = 2 ///< "2 passende Eingabemasken"; the text wraps
    };
    Q_ENUM(ButtonStyle)

    explicit ExpandingOverviewButton(QWidget *parent = nullptr);

    void setTitle(const QString &title);
    QString title() const;
    void setText(const QString &text);
    QString text() const;
    void setTextVisible(bool visible);

    /** Of any size; a null pixmap takes the icon away. */
    void setIcon(const QPixmap &icon);
    /** A small icon at the end; a null pixmap takes it away. */
    void setIconState(const QPixmap &state);

    /** Makes \a path the only target. Rows are deleted, and the tile is folded at once. */
    void setPath(const Path &path);
    /** The path of the large button, also while there are several targets. */
    Path path() const;

    /**
     * Makes these the targets, each with the title of its row, and returns the new rows, in this order. They
     * have the present buttonStyle(). The tile owns them and deletes them with the next change of the
     * targets. An open tile stays open.
     *
     * The paths that are set already change nothing and give no rows. None at all makes path() the only
     * target.
     */
    QList<BottomSideButton *> setPaths(const QVector<QPair<QString, Path>> &paths);
    /** The targets with rows; empty if path() is the only one. */
    QVector<QPair<QString, Path>> paths() const { return m_paths; }

    /** Rows that are there keep their style. Only some styles cast a shadow in some looks. */
    void setButtonStyle(ButtonStyle style);
    ButtonStyle buttonStyle() const { return m_buttonStyle; }

Q_SIGNALS:
    /** The only target, or that of a row, was chosen. */
    void clicked(const NVO::ExpandingOverviewButton::Path &p_path);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void createHeader();
    QList<BottomSideButton *> makeRows(QWidget *content);
    void showOnlyTarget();
    void keepFocus();
    void topSideClicked();
    void animationFinished();
    void updateExpandText();
    void initStyleSheet();

    AccordionPart *m_accordionPart;
    TopSideButton *m_topSideButton;
    SeparatorLine *m_separator;
    QWidget *m_foldEdge; // closes the tile at the bottom while it moves
    QVector<QPair<QString, Path>> m_paths;
    ButtonStyle m_buttonStyle = SearchHits;
};

} // namespace NVO

Q_DECLARE_METATYPE(NVO::ExpandingOverviewButton::Path)
