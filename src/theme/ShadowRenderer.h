#pragma once

#include "theme/PixelMask.h"
#include "theme/ShadowNeighbourhood.h"
#include "theme/ShadowRun.h"
#include "theme/SparseImage.h"

#include <QRect>

#include <vector>

namespace NVO {

/**
 * Computes the shadows of a ShadowEffect, in pixels of the device, and keeps the last one until what casts
 * it or the ratio changes.
 */
class ShadowRenderer
{
public:
    explicit ShadowRenderer(const ShadowParameters &parameters)
        : m_parameters(parameters)
    {}

    /** The shadow of the opaque pixels of \a source, as large as it. */
    SparseImage &shadowOfPixels(const QImage &source, qreal ratio);

    /** The outer shadow of \a rect on an image of \a imageSize, in pixels; no inner shadow. */
    SparseImage &shadowOfRect(const QRect &rect, const QSize &imageSize, qreal ratio);

    /**
     * The rectangle that casts the shadow on an image of \a imageSize, in pixels of it, for a widget that
     * stands in its middle: \a part of the widget, or all of it if that is null. Both are
     * device-independent.
     */
    static QRect castingRect(const QSizeF &widgetSize, const QRect &part, const QSize &imageSize,
                             qreal ratio);

private:
    using Word = PixelMask::Word;

    /** An offset at which the pixels look, and the shadow of those that find something there first. */
    struct Offset
    {
        int dx;
        int dy;
        QRgb pixel;
    };

    void setRatio(qreal ratio);
    void listOffsets();

    SparseImage pixelShadow() const;
    void addColumn(SparseImage &shadow, int column) const;
    bool isLikeRowAbove(const Word *word) const;
    ShadowLine lineOf(const Word *word, Word usedBits) const;
    Word foundOnDiagonals(const Word *word) const;

    SparseImage rectShadow() const;
    void addStrip(SparseImage &shadow, const QRect &strip) const;
    QRgb rectPixel(int x, int y) const;
    qreal distanceToRect(int x, int y) const;
    bool meetsRectDiagonally(int x, int y) const;

    ShadowParameters m_parameters;
    qreal m_ratio = 0;
    ShadowNeighbourhood m_neighbourhood;
    std::vector<Offset> m_offsets;   // by rising distance
    std::vector<Offset> m_diagonals; // those that an outer shadow must find something at
    PixelMask m_mask;                // what the pixels look for
    QRect m_rect;
    QSize m_imageSize;
    SparseImage m_shadow;
};

} // namespace NVO
