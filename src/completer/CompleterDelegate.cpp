#include "completer/CompleterDelegate.h"

#include <nvo/CompleterDataRow.h>
#include <nvo/Font.h>
#include <nvo/Palette.h>
#include <nvo/Pixmap.h>

#include <QPainter>

namespace NVO {

namespace {

constexpr int rowHeight = 25;
constexpr int dataWidthExtra = 30;
constexpr int removeColumnWidthExtra = -5;
constexpr int textIndent = 5;
constexpr int hoverReach = 20; // over the indentation of a child row
constexpr int crossIndent = 5;
constexpr int keptDocuments = 400; // a few times what is seen at once

struct Cell
{
    int type;
    int column;
    bool isLast;
    bool isHovered;

    bool isCaption() const
    {
        return type == CompleterDataRow::MainCaption || type == CompleterDataRow::SubCaption;
    }
    bool isData() const { return type == CompleterDataRow::Data || type == CompleterDataRow::DataRemovable; }
};

Cell cellAt(const QStyleOptionViewItem &option, const QModelIndex &index)
{
    return {index.data(Qt::UserRole).toInt(), index.column(),
            index.column() == index.model()->columnCount() - 1,
            option.state.testFlag(QStyle::State_MouseOver)};
}

QColor paletteColor(const char *name)
{
    return Palette::instance().namedColor(QString::fromLatin1(name));
}

/** \a option's rectangle with its edges moved, seen in the direction of reading. */
QRect moved(const QStyleOptionViewItem &option, int start, int end)
{
    return option.direction == Qt::RightToLeft ? option.rect.adjusted(-end, 0, -start, 0)
                                               : option.rect.adjusted(start, 0, end, 0);
}

void paintGround(QPainter *painter, const QStyleOptionViewItem &option, const Cell &cell)
{
    if (cell.type == CompleterDataRow::MainCaption) {
        painter->fillRect(option.rect, paletteColor("COLOR_COMPLETER_MAINCAPTION_BACKGROUND_NORMAL"));
    } else if (cell.isData() && cell.isHovered) {
        // The other columns have no indentation beside them, but the end of a text.
        painter->fillRect(moved(option, cell.column == 0 ? -hoverReach : 0, 0),
                          paletteColor("COLOR_COMPLETER_DATA_BACKGROUND_MOUSEOVER"));
    }
}

void paintCross(QPainter *painter, const QStyleOptionViewItem &option)
{
    const Pixmap cross(QStringLiteral(":/clearWhite"));
    if (cross.isNull())
        return;
    const QSize size = cross.size() / cross.devicePixelRatio();
    const int x = option.direction == Qt::RightToLeft ? option.rect.right() + 1 - crossIndent - size.width()
                                                      : option.rect.x() + crossIndent;
    painter->drawPixmap(x, option.rect.y() + (rowHeight - size.height()) / 2, cross);
}

QRect textRect(const QStyleOptionViewItem &option, const Cell &cell)
{
    if (cell.isCaption())
        return moved(option, textIndent, 0);
    if (!cell.isData())
        return option.rect;
    if (cell.column == 0)
        return moved(option, -textIndent, 0);
    return moved(option, textIndent, cell.isLast ? 0 : textIndent);
}

QString textColor(const Cell &cell)
{
    if (cell.type == CompleterDataRow::MainCaption)
        return paletteColor("COLOR_COMPLETER_MAINCAPTION_TEXT_NORMAL").name();
    if (cell.type == CompleterDataRow::SubCaption)
        return paletteColor("COLOR_COMPLETER_SUBCAPTION_TEXT_NORMAL").name();
    if (!cell.isData())
        return QString();
    return paletteColor(cell.isHovered ? "COLOR_COMPLETER_DATA_TEXT_MOUSEOVER"
                                       : "COLOR_COMPLETER_DATA_TEXT_NORMAL")
        .name();
}

QString fontStyle(const Cell &cell)
{
    if (cell.isCaption())
        return Font::instance().semibold();
    return cell.isData() ? Font::instance().normal() : QString();
}

QString richText(const QString &marked)
{
    QString unmarked = marked;
    unmarked.remove(QLatin1String("<b>")).remove(QLatin1String("</b>"));
    if (Qt::mightBeRichText(unmarked))
        return marked;
    QString html = marked.toHtmlEscaped();
    html.replace(QLatin1String("&lt;b&gt;"), QLatin1String("<b>"));
    html.replace(QLatin1String("&lt;/b&gt;"), QLatin1String("</b>"));
    return html;
}

} // namespace

CompleterDelegate::CompleterDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
    , m_documents(keptDocuments)
{}

void CompleterDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const
{
    const Cell cell = cellAt(option, index);
    paintGround(painter, option, cell);
    if (cell.type == CompleterDataRow::DataRemovable && cell.isHovered && cell.isLast)
        paintCross(painter, option);

    const QString text = index.data(Qt::DisplayRole).toString();
    if (text.isEmpty())
        return;
    const QString html = QLatin1String("<font color=\"") + textColor(cell) + QLatin1String("\" style =\"")
                         + fontStyle(cell) + QLatin1String("\">") + richText(text) + QLatin1String("</font>");
    QTextDocument *laidOut = document(html, option.font);
    const QRect rect = textRect(option, cell);
    const qreal shift =
        option.direction == Qt::RightToLeft ? rect.width() - laidOut->size().width() : qreal(0);
    painter->save();
    painter->translate(rect.x() + shift, rect.y());
    laidOut->drawContents(painter, QRectF(-shift, 0, rect.width(), rect.height()));
    painter->restore();
}

QSize CompleterDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    int width = QStyledItemDelegate::sizeHint(option, index).width();
    const Cell cell = cellAt(option, index);
    if (cell.isData())
        width += cell.isLast ? removeColumnWidthExtra : dataWidthExtra;
    return {width, rowHeight};
}

/** The document of \a html, laid out. It is kept for a while. */
QTextDocument *CompleterDelegate::document(const QString &html, const QFont &font) const
{
    if (m_font != font) {
        m_documents.clear();
        m_font = font;
    }
    if (QTextDocument *kept = m_documents.object(html))
        return kept;
    auto *made = new QTextDocument;
    made->setUndoRedoEnabled(false);
    made->setDefaultFont(font);
    made->setHtml(html);
    m_documents.insert(html, made);
    return made;
}

} // namespace NVO
