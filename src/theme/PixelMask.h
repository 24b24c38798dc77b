#pragma once

#include <QImage>

#include <vector>

namespace NVO {

/**
 * One bit for each pixel of an image: set where the pixel is opaque, or where it is not.
 *
 * Rows are rows of words, the leftmost pixel in the lowest bit, with so many words and rows of zeros around
 * the image that any neighbour within the reach may be read without a look at the bounds.
 */
class PixelMask
{
public:
    using Word = quint64;
    static constexpr int wordBits = 64;

    PixelMask() = default;

    /**
     * A mask of no image yet, for neighbours that are up to \a reachX and \a reachY pixels away, and the row
     * above those.
     */
    PixelMask(int reachX, int reachY)
        : m_marginWords(reachX / wordBits + 1)
        , m_marginRows(reachY + 1)
    {}

    /**
     * Marks the pixels of \a image (premultiplied, 32 bits) that are \a opaque or not, opaque being those
     * with an alpha of at least 128. Returns whether that changed anything.
     */
    bool read(const QImage &image, bool opaque)
    {
        bool changed = resize(image.size());
        for (int y = 0; y < m_size.height(); ++y) {
            const QRgb *pixels = reinterpret_cast<const QRgb *>(image.constScanLine(y));
            Word *row = &m_words[index(0, y)];
            for (int i = 0; i < wordsPerRow(); ++i, pixels += wordBits) {
                const Word opaqueBits = opaqueBitsOf(pixels, bitsInWord(i));
                const Word bits = opaque ? opaqueBits : ~opaqueBits & usedBits(i);
                changed |= row[i] != bits;
                row[i] = bits;
            }
        }
        return changed;
    }

    QSize size() const { return m_size; }
    int wordsPerRow() const { return (m_size.width() + wordBits - 1) / wordBits; }
    int stride() const { return wordsPerRow() + 2 * m_marginWords; }

    /** The word number \a i of row \a y; its neighbours lie around it, stride() words a row. */
    const Word *word(int i, int y) const { return &m_words[index(i, y)]; }

    /** The bits of the word number \a i of a row that stand for pixels of the image. */
    Word usedBits(int i) const { return ~Word(0) >> (wordBits - bitsInWord(i)); }

    /** The word that lies \a dx pixels away from the first pixel of another, in words from that. */
    static int wordsAway(int dx) { return dx >> 6; }

    /** For each bit of \a word the one that is (\a dx, \a dy) pixels away. */
    Word neighbours(const Word *word, int dx, int dy) const
    {
        const Word *other = word + static_cast<qptrdiff>(dy) * stride() + wordsAway(dx);
        const int shift = dx & (wordBits - 1);
        return other[0] >> shift | other[1] << 1 << (wordBits - 1 - shift);
    }

private:
    static constexpr QRgb opaqueBit = 0x80000000; // set in an alpha of 128 and more

    static Word opaqueBitsOf(const QRgb *pixels, int count)
    {
        QRgb all = opaqueBit;
        QRgb any = 0;
        for (int i = 0; i < count; ++i) {
            all &= pixels[i];
            any |= pixels[i];
        }
        if (!(any & opaqueBit))
            return 0;
        if (all)
            return ~Word(0) >> (wordBits - count);
        Word bits = 0;
        for (int i = 0; i < count; ++i)
            bits |= Word(pixels[i] >> 31) << i;
        return bits;
    }

    bool resize(const QSize &size)
    {
        if (size == m_size)
            return false;
        m_size = size;
        m_words.assign(static_cast<size_t>(stride()) * static_cast<size_t>(size.height() + 2 * m_marginRows),
                       0);
        return true;
    }

    size_t index(int i, int y) const
    {
        return static_cast<size_t>(y + m_marginRows) * static_cast<size_t>(stride())
               + static_cast<size_t>(i + m_marginWords);
    }

    int bitsInWord(int i) const { return qMin(wordBits, m_size.width() - i * wordBits); }

    int m_marginWords = 1;
    int m_marginRows = 1;
    QSize m_size;
    std::vector<Word> m_words;
};

} // namespace NVO
