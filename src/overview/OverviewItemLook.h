#pragma once

#include <QFont>
#include <QModelIndex>

class QColor;
class QPainter;
class QTextDocument;
class QWidget;

namespace NVO {

/** How an item of an OverviewComboBox looks, on the closed box and in its list alike. */
class OverviewItemLook
{
public:
    /** \a item in the font, the state and the direction of \a box. */
    OverviewItemLook(const QModelIndex &item, const QWidget *box);

    /** What the texts take, and the margins above and below them. */
    QSize contentSize() const;

    /** The room to ask for, for a content of that size. */
    QSize sizeHint(const QSize &content) const;

    /** Into \a rect, with the texts in \a color. A content of \a contentHeight is centred in the box. */
    void paint(QPainter *painter, const QRect &rect, int contentHeight, const QColor &color) const;

private:
    QString text(int role) const;
    QFont pathFont() const;
    QSize actionSize() const;
    QSize entrySize() const;

    void paintAction(QPainter *painter, const QRect &rect, const QColor &color) const;
    void paintEntry(QPainter *painter, const QRect &rect, int contentHeight, const QColor &color) const;
    void paintIcon(QPainter *painter, const QRect &rect) const;
    int paintText(QPainter *painter, const QRect &place, int role, const QColor &color) const;
    int paintDocument(QPainter *painter, const QRect &place, QTextDocument &document) const;
    void paintPath(QPainter *painter, const QRect &place, const QColor &color) const;

    QModelIndex m_item;
    const QWidget *m_box;
    bool m_isAction;
};

} // namespace NVO
