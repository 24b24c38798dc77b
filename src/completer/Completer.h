#pragma once

#include <QFont>
#include <QPair>
#include <QVector>
#include <QWidget>

namespace NVO {

class CompleterData;
class CompleterProxyModel;
class CompleterSourceModel;
class CompleterView;
class Label;

/**
 * The popup with the suggestions of a field: a title above a list, in a window that never takes the focus.
 *
 * It answers the mouse alone. A click on the cross of a row removes the row, a click elsewhere on an entry is
 * reported. Whose popup it is places it, shows it and closes it. Object name of the title: "title".
 */
class Completer : public QWidget
{
    Q_OBJECT

public:
    explicit Completer(QWidget *parent);

    /** Shows \a suggestions, narrowed down to what is typed. The columns are measured here, over all rows. */
    void setData(const CompleterData &suggestions);

    /** The width of the field in pixels; the popup takes it into account with the next adjustWidth(). */
    void setTargetWidth(int width) { m_targetWidth = width; }

    /** Takes over \a text as what is typed: filters by it and marks it. */
    void setMatchingText(const QString &text);

    void expandAll();

    /** As wide as the contents need and, if that is less, as wide as the field. */
    void adjustWidth();

    /**
     * The same, which needs the height of the list, for a popup that may not be on the screen yet. If the
     * font has changed the columns are measured anew.
     */
    void prepareToShow();

    /** Makes the popup belong to \a window, or a modal dialog would keep the mouse from it. */
    void standOn(QWidget *window);

    /** Deletes the popup: at once or, while it answers a click, soon. */
    void dispose();

Q_SIGNALS:
    /** An entry was clicked; \a p_text is what its first column shows. */
    void suggestionClicked(const QString &p_text);

private Q_SLOTS:
    void cellClicked(const QModelIndex &index);

private:
    void resizeColumns();
    int scrollBarRoom() const;
    int columnsWidth() const;
    void setOwnWidth(int width);

    Label *m_titleLabel;
    CompleterView *m_view;
    CompleterSourceModel *m_sourceModel;
    CompleterProxyModel *m_proxyModel;
    int m_targetWidth = 0;
    QString m_matchingText;
    QVector<int> m_contentWidths; // of the columns, as measured
    QFont m_measuredFont;
    QPair<int, int> m_fitted; // the target width and the room for the scroll bar they were fitted to
    bool m_inClick = false;
};

} // namespace NVO
