#pragma once

#include <QImage>
#include <QPainter>

#include <cmath>
#include <vector>

namespace NVO {

/** An image that is transparent but for a few rectangles, of which alone it consists. */
class SparseImage
{
public:
    SparseImage() = default;
    explicit SparseImage(const QSize &size)
        : m_size(size)
    {}

    /** Adds a rectangle of premultiplied pixels. The rectangles do not overlap. */
    void add(const QPoint &position, const QImage &image) { m_pieces.push_back({position, image}); }

    /**
     * Draws the image at \a offset, \a ratio of its pixels to one of the painter, as QPainter would draw the
     * whole.
     *
     * Where its pixels do not fall on those of the device it is the whole that is drawn, since the rounding
     * of each piece would be its own.
     */
    void draw(QPainter *painter, const QPointF &offset, qreal ratio)
    {
        if (m_pieces.empty())
            return;
        if (!fallsOnPixels(painter->deviceTransform(), offset, ratio)) {
            painter->drawImage(QRectF(offset, QSizeF(m_size) / ratio), whole(), QRectF(QPointF(), m_size));
            return;
        }
        for (const Piece &piece : m_pieces) {
            const QSize size = piece.image.size();
            painter->drawImage(QRectF(offset + QPointF(piece.position) / ratio, QSizeF(size) / ratio),
                               piece.image, QRectF(QPointF(), size));
        }
    }

    /** The image as a whole; it is kept. */
    const QImage &whole()
    {
        if (m_whole.size() != m_size)
            m_whole = assembled();
        return m_whole;
    }

private:
    struct Piece
    {
        QPoint position;
        QImage image;
    };

    static bool isInteger(qreal value) { return value == std::floor(value); }

    static bool fallsOnPixels(const QTransform &toDevice, const QPointF &offset, qreal ratio)
    {
        const QPointF origin = toDevice.map(offset);
        return toDevice.type() <= QTransform::TxScale && toDevice.m11() == ratio && toDevice.m22() == ratio
               && isInteger(origin.x()) && isInteger(origin.y());
    }

    QImage assembled() const
    {
        QImage image(m_size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        for (const Piece &piece : m_pieces)
            painter.drawImage(piece.position, piece.image);
        return image;
    }

    QSize m_size;
    std::vector<Piece> m_pieces;
    QImage m_whole;
};

} // namespace NVO
