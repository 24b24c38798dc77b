#include <nvo/Label.h>

#include "theme/StyleSupport.h"

#include <nvo/Css.h>
#include <nvo/Font.h>

#include <QEvent>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPainter>
#include <QTextDocument>
#include <QTextLayout>

namespace NVO {

namespace {

// What the baseline of a single line is moved up by, so that it stands as QLabel would put it.
constexpr qreal centreOffset = 1.0;
constexpr qreal bottomOffset = 1.5;

QString plainText(const QString &html)
{
    QTextDocument document;
    document.setHtml(html);
    return document.toPlainText();
}

} // namespace

Label::Label(QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::RichText);
    setTextInteractionFlags(Qt::LinksAccessibleByMouse);
    connect(this, &QLabel::linkHovered, this,
            [this](const QString &link) { m_linkHovered = !link.isEmpty(); });
}

Label::Label(const QString &text, QWidget *parent)
    : Label(parent)
{
    setText(text);
}

void Label::setText(const QString &text)
{
    QString rewritten = Css::instance().replaceBoldTags(text);
    if (rewritten == m_text)
        return;
    rewritten.replace(QLatin1String("&lpar;"), QLatin1String("("));
    rewritten.replace(QLatin1String("&rpar;"), QLatin1String(")"));
    m_text = rewritten;
    m_plainText.clear();
    QLabel::setText(QLatin1String("<html><head><style>h1,h2,h3,h4{") + Font::instance().semibold()
                    + QLatin1String("}</style></head><body>") + m_text + QLatin1String("</body></html>"));
}

bool Label::hasContent() const
{
    return !m_text.trimmed().isEmpty();
}

void Label::enableElide(bool enable)
{
    if (m_elideEnabled == enable)
        return;
    m_elideEnabled = enable;
    setText(text());
}

void Label::clear()
{
    setText(QString());
}

bool Label::event(QEvent *event)
{
    if (event->type() == QEvent::ApplicationFontChange)
        updateFontSizes();
    return QLabel::event(event);
}

void Label::updateFontSizes()
{
    if (m_basePixelSize == -1) {
        m_basePixelSize = font().pixelSize();
        if (m_basePixelSize == -1) // a font given in points
            m_basePixelSize = QFontInfo(font()).pixelSize();
    }
    const int wanted = StyleSupport::scaled(m_basePixelSize);
    if (wanted != font().pixelSize())
        StyleSupport::setPixelSize(this, wanted);
}

void Label::mousePressEvent(QMouseEvent *event)
{
    // The text may have changed under a mouse that stands still.
    QMouseEvent hover(QEvent::MouseMove, event->localPos(), event->windowPos(), event->screenPos(),
                      Qt::NoButton, Qt::NoButton, event->modifiers());
    QLabel::mouseMoveEvent(&hover);
    QLabel::mousePressEvent(event);
    if (m_linkHovered)
        event->accept();
}

void Label::mouseReleaseEvent(QMouseEvent *event)
{
    QLabel::mouseReleaseEvent(event);
}

void Label::paintEvent(QPaintEvent *event)
{
    if (!m_elideEnabled) {
        QLabel::paintEvent(event);
        return;
    }
    const bool cut = paintElided();
    if (cut == m_elided)
        return;
    m_elided = cut;
    Q_EMIT elisionChanged(cut);
}

/** Where the first line starts, in pixels from the top. */
qreal Label::elidedTop(const QFontMetricsF &metrics) const
{
    if (!wordWrap()) {
        if (alignment() & (Qt::AlignHCenter | Qt::AlignVCenter))
            return (height() - metrics.lineSpacing()) * 0.5 - centreOffset;
        if (alignment() & Qt::AlignTop)
            return 0;
        if (alignment() & Qt::AlignBottom)
            return height() - metrics.lineSpacing() - bottomOffset;
    }
    const int flags = int(alignment()) | (wordWrap() ? Qt::TextWordWrap : 0);
    return metrics.boundingRect(QRectF(rect()), flags, m_text).y();
}

/** Paints the lines that have room, the last one cut if need be; returns whether it had to be. */
bool Label::paintElided()
{
    QPainter painter(this);
    const QFontMetricsF metrics(painter.fontMetrics());
    const qreal spacing = metrics.lineSpacing();
    if (m_plainText.isEmpty())
        m_plainText = plainText(m_text);

    QTextLayout layout(m_plainText, painter.font());
    QTextOption option(alignment());
    option.setWrapMode(wordWrap() ? QTextOption::WordWrap : QTextOption::NoWrap);
    layout.setTextOption(option);
    layout.beginLayout();

    qreal top = elidedTop(metrics);
    bool cut = false;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width());
        if (wordWrap() && height() >= top + 2 * spacing) {
            line.draw(&painter, QPointF(0, top));
            top += spacing;
            continue;
        }
        const QString rest = m_plainText.mid(line.textStart());
        const QString elided = metrics.elidedText(rest, Qt::ElideRight, width());
        painter.drawText(QPointF(0, metrics.ascent() + top), elided);
        cut = elided != rest;
        break;
    }
    layout.endLayout();
    return cut;
}

} // namespace NVO
