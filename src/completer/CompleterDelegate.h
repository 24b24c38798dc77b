#pragma once

#include <QCache>
#include <QFont>
#include <QStyledItemDelegate>
#include <QTextDocument>

namespace NVO {

/**
 * Paints the rows of the suggestions: captions, and entries that show under the mouse that they can be chosen
 * and, if they can be removed, a cross at their end.
 *
 * Texts are rich text if Qt takes them for that. Any other text stands as it is, but for the bold tags that
 * mark in it what was typed.
 */
class CompleterDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit CompleterDelegate(QObject *parent);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    QTextDocument *document(const QString &html, const QFont &font) const;

    mutable QCache<QString, QTextDocument> m_documents; // laid out, by their html; all in m_font
    mutable QFont m_font;
};

} // namespace NVO
