#pragma once

#include "theme/PixelMask.h"
#include "theme/SparseImage.h"

#include <QtAlgorithms>

#include <algorithm>
#include <array>
#include <vector>

namespace NVO {

/** The shadow in a row of as many pixels as a word of a PixelMask stands for. */
struct ShadowLine
{
    std::array<QRgb, PixelMask::wordBits> pixels{};
    PixelMask::Word written = 0; ///< The pixels that are not transparent.
};

/** Lines of shadow, one below the other, on their way to be one piece of an image. */
class ShadowRun
{
public:
    /** Whether \a line fits in without making the piece much larger than its lines are. */
    bool accepts(const ShadowLine &line) const
    {
        const int pieceArea = widthOf(m_written | line.written) * (static_cast<int>(m_rows.size()) + 1);
        return pieceArea - m_area - widthOf(line.written) <= acceptedWaste;
    }

    /** Adds \a line below the others; one that is \a likeLast costs next to nothing. */
    void append(const ShadowLine &line, bool likeLast)
    {
        if (!likeLast || m_lines.empty())
            m_lines.push_back(line);
        m_rows.push_back(m_lines.size() - 1);
        m_written |= line.written;
        m_area += widthOf(line.written);
    }

    /** Adds the lines to \a image as a piece that ends above \a bottomLeft, and forgets them. */
    void moveTo(SparseImage &image, const QPoint &bottomLeft)
    {
        if (m_rows.empty())
            return;
        const int height = static_cast<int>(m_rows.size());
        const int width = widthOf(m_written);
        const int first = firstOf(m_written);
        QImage piece(width, height, QImage::Format_ARGB32_Premultiplied);
        QRgb *pixels = reinterpret_cast<QRgb *>(piece.bits());
        for (const size_t row : m_rows)
            pixels = std::copy_n(m_lines[row].pixels.data() + first, width, pixels);
        image.add(bottomLeft + QPoint(first, -height), piece);
        *this = ShadowRun();
    }

private:
    using Word = PixelMask::Word;

    // About as many transparent pixels are drawn in the time that another piece takes.
    static constexpr int acceptedWaste = 1000;

    static int firstOf(Word written) { return static_cast<int>(qCountTrailingZeroBits(written)); }

    static int widthOf(Word written)
    {
        return PixelMask::wordBits - static_cast<int>(qCountLeadingZeroBits(written)) - firstOf(written);
    }

    std::vector<ShadowLine> m_lines;
    std::vector<size_t> m_rows; // for each row its line
    Word m_written = 0;
    int m_area = 0;
};

} // namespace NVO
