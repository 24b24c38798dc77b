#include "containers/TextHolder.h"

#include "theme/StyleSupport.h"

#include <QAbstractTextDocumentLayout>
#include <QAccessibleWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QTextBlock>
#include <QTextCursor>

namespace NVO {

namespace {

constexpr int hintWidth = 720;
constexpr int leastWidth = 300;

/** A text, described by the link that the keyboard is on. */
class AccessibleText : public QAccessibleWidget
{
public:
    explicit AccessibleText(TextHolder *holder)
        : QAccessibleWidget(holder, QAccessible::StaticText)
    {}

    QString text(QAccessible::Text type) const override
    {
        QString own = QAccessibleWidget::text(type);
        const auto *holder = static_cast<const TextHolder *>(object());
        if (!own.isEmpty())
            return own;
        if (type == QAccessible::Name)
            return holder->plainText();
        return type == QAccessible::Description ? holder->currentLinkText() : own;
    }
};

QAccessibleInterface *createInterface(const QString &className, QObject *object)
{
    auto *holder = StyleSupport::exactly<TextHolder>(className, object);
    return holder ? new AccessibleText(holder) : nullptr;
}

void announce(QWidget *widget, QAccessible::Event type)
{
    QAccessibleEvent event(widget, type);
    QAccessible::updateAccessibility(&event);
}

} // namespace

TextHolder::TextHolder(QWidget *parent)
    : QWidget(parent)
{
    QAccessible::installFactory(createInterface);
    m_document.setUndoRedoEnabled(false);
    m_document.setDocumentMargin(0);
    followFont();
    followDirection();
    QSizePolicy policy = sizePolicy();
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    setMouseTracking(true);
}

void TextHolder::setHtml(const QString &html)
{
    m_document.setHtml(html);
    unsetCursor(); // what was a link under the mouse may be none any more
    findLinks();
    textChanged();
    announce(this, QAccessible::NameChanged);
}

/** A link may be made of several pieces in different formats. */
void TextHolder::findLinks()
{
    m_links.clear();
    for (QTextBlock block = m_document.begin(); block.isValid(); block = block.next()) {
        for (QTextBlock::iterator it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment piece = it.fragment();
            const QString target = piece.charFormat().anchorHref();
            const int end = piece.position() + piece.length();
            if (target.isEmpty())
                continue;
            if (!m_links.isEmpty() && m_links.last().end == piece.position()
                && m_links.last().target == target)
                m_links.last().end = end;
            else
                m_links.append({piece.position(), end, target});
        }
    }
    m_currentLink = hasFocus() && !m_links.isEmpty() ? 0 : -1;
    setFocusPolicy(m_links.isEmpty() ? Qt::NoFocus : Qt::TabFocus);
}

QString TextHolder::currentLinkText() const
{
    if (m_currentLink < 0)
        return QString();
    const Link &link = m_links.at(m_currentLink);
    return m_document.toPlainText().mid(link.begin, link.end - link.begin);
}

void TextHolder::setCurrentLink(int index)
{
    if (m_currentLink == index)
        return;
    m_currentLink = index;
    update();
    announce(this, QAccessible::DescriptionChanged);
}

QSize TextHolder::sizeHint() const
{
    return QSize(hintWidth, hintHeight());
}

QSize TextHolder::minimumSizeHint() const
{
    return QSize(leastWidth, hintHeight());
}

/** Layouts ask for both hints all the time, in between other widths. */
int TextHolder::hintHeight() const
{
    ensurePolished();
    if (m_hintHeight < 0)
        m_hintHeight = heightForWidth(hintWidth);
    return m_hintHeight;
}

int TextHolder::heightForWidth(int width) const
{
    ensurePolished();
    layOut(width);
    return m_document.size().toSize().height();
}

/** QTextDocument lays out anew even if the width is the one it has. */
void TextHolder::layOut(int width) const
{
    const qreal textWidth = qMax(0, width);                        // below 0 there would be no line breaks
    if (!qFuzzyCompare(m_document.textWidth() + 2, textWidth + 2)) // at first it is -1
        m_document.setTextWidth(textWidth);
}

QString TextHolder::anchorAt(const QPointF &position) const
{
    layOut(width());
    return m_document.documentLayout()->anchorAt(position);
}

bool TextHolder::event(QEvent *event)
{
    const bool result = QWidget::event(event);
    switch (event->type()) {
    case QEvent::FontChange:
        followFont();
        break;
    case QEvent::LayoutDirectionChange:
        followDirection();
        break;
    default:
        break;
    }
    return result;
}

void TextHolder::followFont()
{
    m_document.setDefaultFont(font());
    textChanged();
}

/** Left to right each paragraph goes by its own text; right to left all start at the right edge. */
void TextHolder::followDirection()
{
    QTextOption option = m_document.defaultTextOption();
    option.setTextDirection(isRightToLeft() ? Qt::RightToLeft : Qt::LayoutDirectionAuto);
    m_document.setDefaultTextOption(option);
    textChanged();
}

void TextHolder::textChanged()
{
    m_hintHeight = -1;
    updateGeometry();
    update(); // the size may be the same
}

/** Tab goes from link to link and leaves behind the last one. */
bool TextHolder::focusNextPrevChild(bool next)
{
    const int index = m_currentLink + (next ? 1 : -1);
    if (m_currentLink < 0 || index < 0 || index >= m_links.size())
        return QWidget::focusNextPrevChild(next);
    setCurrentLink(index);
    return true;
}

void TextHolder::focusInEvent(QFocusEvent *event)
{
    if (m_currentLink < 0 && !m_links.isEmpty())
        setCurrentLink(event->reason() == Qt::BacktabFocusReason ? m_links.size() - 1 : 0);
    QWidget::focusInEvent(event);
}

void TextHolder::focusOutEvent(QFocusEvent *event)
{
    // From another window or a popup the focus comes back to the same link.
    if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason)
        setCurrentLink(-1);
    QWidget::focusOutEvent(event);
}

void TextHolder::keyPressEvent(QKeyEvent *event)
{
    const bool opens =
        event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space;
    const bool isPlain = !(event->modifiers() & ~Qt::KeypadModifier);
    if (!opens || !isPlain || m_currentLink < 0) {
        QWidget::keyPressEvent(event);
        return;
    }
    event->accept();
    if (event->isAutoRepeat())
        return;
    Q_EMIT linkActivated(QString(m_links.at(m_currentLink).target));
}

void TextHolder::mouseMoveEvent(QMouseEvent *event)
{
    setCursor(anchorAt(event->localPos()).isEmpty() ? Qt::ArrowCursor : Qt::PointingHandCursor);
    QWidget::mouseMoveEvent(event);
}

void TextHolder::mouseReleaseEvent(QMouseEvent *event)
{
    const QPointer<TextHolder> alive(this);
    const QString link = event->button() == Qt::LeftButton ? anchorAt(event->localPos()) : QString();
    if (!link.isEmpty())
        Q_EMIT linkActivated(link);
    if (alive)
        QWidget::mouseReleaseEvent(event);
}

void TextHolder::paintEvent(QPaintEvent *)
{
    layOut(width());
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette = palette();
    if (m_currentLink >= 0 && hasFocus()) {
        QAbstractTextDocumentLayout::Selection selection;
        selection.cursor = QTextCursor(&m_document);
        selection.cursor.setPosition(m_links.at(m_currentLink).begin);
        selection.cursor.setPosition(m_links.at(m_currentLink).end, QTextCursor::KeepAnchor);
        selection.format.setForeground(palette().highlightedText());
        selection.format.setBackground(palette().highlight());
        context.selections.append(selection);
    }
    QPainter painter(this);
    m_document.documentLayout()->draw(&painter, context);
}

} // namespace NVO
