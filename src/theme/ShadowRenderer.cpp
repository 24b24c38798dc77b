#include "theme/ShadowRenderer.h"

#include <QtAlgorithms>

#include <algorithm>

namespace NVO {

namespace {

constexpr qreal outOfReach = 5000;     // distance of a pixel that finds nothing
constexpr qreal coordinateLimit = 1e8; // far beyond any image, and safe to add up

int toPixels(qreal length, qreal ratio)
{
    return qRound(qBound(-coordinateLimit, length * ratio, coordinateLimit));
}

qreal distance(int dx, int dy)
{
    return std::sqrt(qreal(dx) * dx + qreal(dy) * dy);
}

} // namespace

SparseImage &ShadowRenderer::shadowOfPixels(const QImage &source, qreal ratio)
{
    constexpr QImage::Format format = QImage::Format_ARGB32_Premultiplied;
    setRatio(ratio);
    if (m_offsets.empty())
        m_shadow = SparseImage(source.size());
    else if (m_mask.read(source.format() == format ? source : source.convertToFormat(format),
                         m_parameters.outer))
        m_shadow = pixelShadow();
    return m_shadow;
}

SparseImage &ShadowRenderer::shadowOfRect(const QRect &rect, const QSize &imageSize, qreal ratio)
{
    setRatio(ratio);
    if (m_rect != rect || m_imageSize != imageSize) {
        m_rect = rect;
        m_imageSize = imageSize;
        m_shadow = rectShadow();
    }
    return m_shadow;
}

QRect ShadowRenderer::castingRect(const QSizeF &widgetSize, const QRect &part, const QSize &imageSize,
                                  qreal ratio)
{
    const QSize whole(toPixels(widgetSize.width(), ratio), toPixels(widgetSize.height(), ratio));
    const QRect rect = part.isNull() ? QRect(QPoint(), whole)
                                     : QRect(toPixels(part.x(), ratio), toPixels(part.y(), ratio),
                                             toPixels(part.width(), ratio), toPixels(part.height(), ratio));
    return rect.translated((imageSize.width() - whole.width()) / 2, (imageSize.height() - whole.height()) / 2)
           & QRect(QPoint(), imageSize);
}

void ShadowRenderer::setRatio(qreal ratio)
{
    if (m_ratio == ratio)
        return;
    m_ratio = ratio;
    m_neighbourhood = ShadowNeighbourhood(m_parameters, ratio);
    listOffsets();
    m_mask = PixelMask(qMax(-m_neighbourhood.dxMin(), m_neighbourhood.dxMax()),
                       qMax(-m_neighbourhood.dyMin(), m_neighbourhood.dyMax()));
    m_imageSize = QSize();
}

void ShadowRenderer::listOffsets()
{
    m_offsets.clear();
    m_diagonals.clear();
    for (int dy = m_neighbourhood.dyMin(); dy <= m_neighbourhood.dyMax(); ++dy) {
        for (int dx = m_neighbourhood.dxMin(); dx <= m_neighbourhood.dxMax(); ++dx) {
            if (dx == 0 && dy == 0)
                continue; // no pixel finds itself
            m_offsets.push_back({dx, dy, m_neighbourhood.pixelAt(distance(dx, dy))});
            if (qAbs(dx) == qAbs(dy))
                m_diagonals.push_back(m_offsets.back());
        }
    }
    std::sort(m_offsets.begin(), m_offsets.end(), [](const Offset &a, const Offset &b) {
        return a.dx * a.dx + a.dy * a.dy < b.dx * b.dx + b.dy * b.dy;
    });
    while (!m_offsets.empty() && m_offsets.back().pixel == 0)
        m_offsets.pop_back(); // so far away nothing is written
}

SparseImage ShadowRenderer::pixelShadow() const
{
    SparseImage shadow(m_mask.size());
    for (int column = 0; column < m_mask.wordsPerRow(); ++column)
        addColumn(shadow, column);
    return shadow;
}

/**
 * Adds the shadow in one column of words, in a piece for each run of rows that have some.
 *
 * A row that finds around itself what the row above it found gets the same: most of an image is alike.
 */
void ShadowRenderer::addColumn(SparseImage &shadow, int column) const
{
    const int left = column * PixelMask::wordBits;
    const int rowsInReach = m_neighbourhood.dyMax() - m_neighbourhood.dyMin() + 1;
    int rowsAlike = 0;
    ShadowLine line;
    ShadowRun run;
    for (int y = 0; y < m_mask.size().height(); ++y) {
        rowsAlike = isLikeRowAbove(m_mask.word(column, y + m_neighbourhood.dyMax())) ? rowsAlike + 1 : 0;
        const bool likeLast = rowsAlike >= rowsInReach;
        if (!likeLast)
            line = lineOf(m_mask.word(column, y), m_mask.usedBits(column));
        if (!line.written || !run.accepts(line))
            run.moveTo(shadow, {left, y});
        if (line.written)
            run.append(line, likeLast);
    }
    run.moveTo(shadow, {left, m_mask.size().height()});
}

/** Whether around \a word, as far as pixels look to the side, its row is like the one above. */
bool ShadowRenderer::isLikeRowAbove(const Word *word) const
{
    const int first = PixelMask::wordsAway(m_neighbourhood.dxMin());
    const int last = PixelMask::wordsAway(m_neighbourhood.dxMax() + PixelMask::wordBits - 1);
    const Word *above = word - m_mask.stride();
    for (int i = first; i <= last; ++i) {
        if (word[i] != above[i])
            return false;
    }
    return true;
}

/** The shadow of the pixels of \a word, of which those in \a usedBits belong to the image. */
ShadowLine ShadowRenderer::lineOf(const Word *word, Word usedBits) const
{
    ShadowLine line;
    Word open = usedBits & ~*word;
    if (open && m_parameters.outer)
        open &= foundOnDiagonals(word);
    for (auto offset = m_offsets.begin(); open && offset != m_offsets.end(); ++offset) {
        const Word found = open & m_mask.neighbours(word, offset->dx, offset->dy);
        open &= ~found;
        if (!offset->pixel)
            continue; // nearer ones are beyond the darkest
        line.written |= found;
        for (Word rest = found; rest; rest &= rest - 1)
            line.pixels[qCountTrailingZeroBits(rest)] = offset->pixel;
    }
    return line;
}

ShadowRenderer::Word ShadowRenderer::foundOnDiagonals(const Word *word) const
{
    Word found = 0;
    for (const Offset &offset : m_diagonals)
        found |= m_mask.neighbours(word, offset.dx, offset.dy);
    return found;
}

SparseImage ShadowRenderer::rectShadow() const
{
    SparseImage shadow(m_imageSize);
    if (!m_parameters.outer || m_rect.isEmpty())
        return shadow;
    const QRect reach = m_rect.adjusted(-m_neighbourhood.dxMax(), -m_neighbourhood.dyMax(),
                                        -m_neighbourhood.dxMin(), -m_neighbourhood.dyMin())
                        & QRect(QPoint(), m_imageSize);
    addStrip(shadow, QRect(reach.topLeft(), QPoint(reach.right(), m_rect.top() - 1)));
    addStrip(shadow, QRect(QPoint(reach.left(), m_rect.top()), QPoint(m_rect.left() - 1, m_rect.bottom())));
    addStrip(shadow, QRect(QPoint(m_rect.right() + 1, m_rect.top()), QPoint(reach.right(), m_rect.bottom())));
    addStrip(shadow, QRect(QPoint(reach.left(), m_rect.bottom() + 1), reach.bottomRight()));
    return shadow;
}

void ShadowRenderer::addStrip(SparseImage &shadow, const QRect &strip) const
{
    if (strip.isEmpty())
        return;
    QImage image(strip.size(), QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < image.height(); ++y) {
        QRgb *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x)
            line[x] = rectPixel(strip.x() + x, strip.y() + y);
    }
    shadow.add(strip.topLeft(), image);
}

QRgb ShadowRenderer::rectPixel(int x, int y) const
{
    const qreal distance = distanceToRect(x, y);
    return distance < outOfReach && meetsRectDiagonally(x, y) ? m_neighbourhood.pixelAt(distance) : 0;
}

/** The distance to the nearest edge that lies straight ahead, or corner, within the neighbourhood. */
qreal ShadowRenderer::distanceToRect(int x, int y) const
{
    qreal nearest = outOfReach;
    for (const int edgeY : {m_rect.top(), m_rect.bottom()}) {
        if (m_rect.left() <= x && x <= m_rect.right() && m_neighbourhood.containsY(edgeY - y))
            nearest = qMin<qreal>(nearest, qAbs(edgeY - y));
        for (const int edgeX : {m_rect.left(), m_rect.right()}) {
            if (m_neighbourhood.containsX(edgeX - x) && m_neighbourhood.containsY(edgeY - y))
                nearest = qMin(nearest, distance(edgeX - x, edgeY - y));
        }
    }
    for (const int edgeX : {m_rect.left(), m_rect.right()}) {
        if (m_rect.top() <= y && y <= m_rect.bottom() && m_neighbourhood.containsX(edgeX - x))
            nearest = qMin<qreal>(nearest, qAbs(edgeX - x));
    }
    return nearest;
}

/** Whether a diagonal from the pixel meets the rectangle; it ends one step before the widest reach. */
bool ShadowRenderer::meetsRectDiagonally(int x, int y) const
{
    const ShadowNeighbourhood &hood = m_neighbourhood;
    const int end = std::max({-hood.dxMin(), hood.dxMax() + 1, -hood.dyMin(), hood.dyMax() + 1});
    for (const int sx : {-1, 1}) {
        for (const int sy : {-1, 1}) {
            if (sx < 0 ? hood.dxMin() >= 0 : hood.dxMax() < 1)
                continue;
            if (sy < 0 ? hood.dyMin() >= 0 : hood.dyMax() < 1)
                continue;
            for (int k = 1; k < end; ++k) {
                if (m_rect.contains(x + k * sx, y + k * sy))
                    return true;
            }
        }
    }
    return false;
}

} // namespace NVO
