#include "overview/OverviewItemLook.h"

#include "theme/StyleSupport.h"

#include <nvo/Font.h>
#include <nvo/OverviewComboBox.h>

#include <QPainter>
#include <QStyle>
#include <QTextCursor>
#include <QTextDocument>
#include <QtMath>

#include <algorithm>

namespace NVO {

namespace {

constexpr QSize iconArea(24, 24);
constexpr int sideMargin = 10;    // left of an icon and of the text of an action item
constexpr int textLeft = 44;      // of an entry
constexpr int textRight = 38;     // of an entry; leaves room for the arrow
constexpr int actionMargins = 48; // left and right of the text of an action item
constexpr int heightMargins = 20; // above and below
constexpr int pathSpacing = 5;
constexpr int lowestItem = 46;

/** Gives a painter back as it was. */
class PainterState
{
public:
    explicit PainterState(QPainter *painter)
        : m_painter(painter)
    {
        m_painter->save();
    }
    ~PainterState() { m_painter->restore(); }
    PainterState(const PainterState &) = delete;
    PainterState &operator=(const PainterState &) = delete;

private:
    QPainter *m_painter;
};

/** A text that is laid out without margins; it is never edited. */
void fill(QTextDocument &document, const QString &html, const QFont &font)
{
    document.setUndoRedoEnabled(false);
    document.setDocumentMargin(0);
    document.setDefaultFont(font);
    document.setHtml(html);
}

/** The same to be painted: the colours of the text give way, its faces stay. */
void fill(QTextDocument &document, const QString &html, const QFont &font, const QColor &color)
{
    fill(document, html, font);
    QTextCharFormat format;
    format.setForeground(color);
    QTextCursor cursor(&document);
    cursor.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
    cursor.mergeCharFormat(format);
}

} // namespace

OverviewItemLook::OverviewItemLook(const QModelIndex &item, const QWidget *box)
    : m_item(item)
    , m_box(box)
    , m_isAction(item.data(OverviewComboBox::IsActionRole).toBool())
{}

QString OverviewItemLook::text(int role) const
{
    return m_item.data(role).toString();
}

QFont OverviewItemLook::pathFont() const
{
    QFont font = m_box->font();
    const int pixelSize = Font::instance().fontSize(Font::SMALL);
    if (pixelSize > 0)
        font.setPixelSize(pixelSize);
    return font;
}

// Sizes

QSize OverviewItemLook::contentSize() const
{
    return (m_isAction ? actionSize() : entrySize()) + QSize(0, heightMargins);
}

QSize OverviewItemLook::sizeHint(const QSize &content) const
{
    return {content.width() + (m_isAction ? actionMargins : textLeft + textRight),
            std::max(content.height(), lowestItem)};
}

QSize OverviewItemLook::actionSize() const
{
    QTextDocument document;
    document.setHtml(text(OverviewComboBox::ActionTextRole));
    return {int(document.size().width()), int(document.size().height())};
}

QSize OverviewItemLook::entrySize() const
{
    QSizeF texts(0, 0);
    for (const int role : {OverviewComboBox::TitleRole, OverviewComboBox::DescriptionRole}) {
        const QString html = text(role);
        if (html.isEmpty())
            continue;
        QTextDocument document;
        fill(document, html, m_box->font());
        const QSizeF size = document.size();
        texts = {std::max(texts.width(), size.width()), texts.height() + size.height()};
    }
    const QString path = text(OverviewComboBox::PathRole);
    const int pathHeight =
        path.isEmpty() ? 0 : QFontMetrics(pathFont()).boundingRect(path).height() + pathSpacing;
    return {int(texts.width()), int(texts.height()) + pathHeight};
}

// Painting

void OverviewItemLook::paint(QPainter *painter, const QRect &rect, int contentHeight,
                             const QColor &color) const
{
    if (m_isAction)
        paintAction(painter, rect, color);
    else
        paintEntry(painter, rect, contentHeight, color);
}

void OverviewItemLook::paintAction(QPainter *painter, const QRect &rect, const QColor &color) const
{
    QTextDocument document;
    fill(document, text(OverviewComboBox::ActionTextRole), m_box->font(), color);
    QRect place = QStyle::visualRect(m_box->layoutDirection(), rect, rect.adjusted(sideMargin, 0, 0, 0));
    place.setTop(int(rect.top() + (rect.height() - document.size().height()) / 2));
    paintDocument(painter, place, document);
}

void OverviewItemLook::paintEntry(QPainter *painter, const QRect &rect, int contentHeight,
                                  const QColor &color) const
{
    paintIcon(painter, rect);

    const PainterState state(painter);
    QRect place =
        QStyle::visualRect(m_box->layoutDirection(), rect, rect.adjusted(textLeft, 0, -textRight, 0));
    painter->setClipRect(place, Qt::IntersectClip);
    // The rows of a box that is higher than it asks to be stay as they are.
    const int spare = std::min(m_box->height(), rect.height()) - contentHeight;
    place.setTop(rect.top() + std::max(spare, 0) / 2 + heightMargins / 2);
    for (const int role : {OverviewComboBox::TitleRole, OverviewComboBox::DescriptionRole})
        place.setTop(place.top() + paintText(painter, place, role, color));
    place.setTop(place.top() + pathSpacing);
    paintPath(painter, place, color);
}

/** In its own proportions, whatever size it has. */
void OverviewItemLook::paintIcon(QPainter *painter, const QRect &rect) const
{
    const bool enabled = m_box->isEnabled() && m_item.flags().testFlag(Qt::ItemIsEnabled);
    const QPixmap pixmap = StyleSupport::iconPixmap(m_item.data(Qt::DecorationRole).value<QIcon>(), iconArea,
                                                    m_box, enabled ? QIcon::Normal : QIcon::Disabled);
    QRect place(QPoint(rect.left() + sideMargin, rect.top() + (rect.height() - iconArea.height()) / 2),
                iconArea);
    place = QStyle::visualRect(m_box->layoutDirection(), rect, place);
    const PainterState state(painter);
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->drawPixmap(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter,
                                            pixmap.size().scaled(iconArea, Qt::KeepAspectRatio), place),
                        pixmap);
}

/** Paints the text of a role, if there is one, into the upper corner of \a place, and returns its height. */
int OverviewItemLook::paintText(QPainter *painter, const QRect &place, int role, const QColor &color) const
{
    const QString html = text(role);
    if (html.isEmpty())
        return 0;
    QTextDocument document;
    fill(document, html, m_box->font(), color);
    return paintDocument(painter, place, document);
}

int OverviewItemLook::paintDocument(QPainter *painter, const QRect &place, QTextDocument &document) const
{
    qreal left = place.left();
    if (m_box->isRightToLeft()) {
        QTextOption option = document.defaultTextOption();
        option.setTextDirection(Qt::RightToLeft);
        document.setDefaultTextOption(option);
        document.setTextWidth(document.idealWidth());
        left = place.right() + 1 - document.size().width();
    }
    const PainterState state(painter);
    painter->translate(left, place.top());
    document.drawContents(painter);
    return int(document.size().height());
}

/** Paints the path into the top of \a place, elided where it is too long. */
void OverviewItemLook::paintPath(QPainter *painter, const QRect &place, const QColor &color) const
{
    const QString path = text(OverviewComboBox::PathRole);
    const Qt::LayoutDirection direction = m_box->layoutDirection();
    const QFont font = pathFont();
    const QFontMetrics metrics(font);
    const QRect bounds = metrics.boundingRect(path);
    const int width = std::max(bounds.width(), qCeil(QFontMetricsF(font).horizontalAdvance(path)));
    const QRect line = QStyle::alignedRect(direction, Qt::AlignLeft | Qt::AlignTop,
                                           QSize(width, bounds.height()).boundedTo(place.size()), place);
    const Qt::Alignment left = QStyle::visualAlignment(direction, Qt::AlignLeft) | Qt::AlignAbsolute;
    painter->setFont(font);
    painter->setPen(color);
    painter->drawText(line, int(left | Qt::AlignVCenter) | Qt::TextSingleLine,
                      metrics.elidedText(path, Qt::ElideMiddle, line.width()));
}

} // namespace NVO
