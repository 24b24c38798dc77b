#pragma once

#include <nvo/GraphicsEffect.h>

#include <QColor>
#include <QtMath>

namespace NVO {

/** What a shadow looks like, whatever the screen. */
struct ShadowParameters
{
    int extentX = 0; ///< Reach in device-independent pixels.
    int extentY = 0;
    int sides = 0; ///< A set of ShadowSides.
    bool outer = true;
    int percent = 0; ///< Strength at the edge, in percent of full black.
};

/**
 * The offsets from a pixel at which it looks for what casts or cuts its shadow, and the strength of the
 * shadow by distance, on a screen of some device pixel ratio.
 *
 * An outer shadow looks back to the shape, an inner one outward. Both ends of a range are included; a range
 * that ends before it begins is empty.
 */
class ShadowNeighbourhood
{
public:
    ShadowNeighbourhood() = default;

    ShadowNeighbourhood(const ShadowParameters &parameters, qreal ratio)
        : m_peak(static_cast<qreal>(peakAlpha(parameters.percent)))
        , m_fallOff(ratio * qMax(parameters.extentX, parameters.extentY))
    {
        const ShadowSide minXSide = parameters.outer ? ShadowRight : ShadowLeft;
        const ShadowSide minYSide = parameters.outer ? ShadowBottom : ShadowTop;
        if (parameters.sides & minXSide)
            m_dxMin = qFloor(-parameters.extentX * ratio);
        if (parameters.sides & minYSide)
            m_dyMin = qFloor(-parameters.extentY * ratio);
        if (parameters.outer && (parameters.sides & ShadowLeft))
            m_dxMax = qCeil(parameters.extentX * ratio);
        if (parameters.outer && (parameters.sides & ShadowTop))
            m_dyMax = qCeil(parameters.extentY * ratio);
    }

    int dxMin() const { return m_dxMin; }
    int dxMax() const { return m_dxMax; }
    int dyMin() const { return m_dyMin; }
    int dyMax() const { return m_dyMax; }

    bool containsX(int dx) const { return m_dxMin <= dx && dx <= m_dxMax; }
    bool containsY(int dy) const { return m_dyMin <= dy && dy <= m_dyMax; }

    /** The premultiplied shadow at a distance of 1 or more; transparent where none is written. */
    QRgb pixelAt(qreal distance) const
    {
        const qint64 alpha = qRound64(m_peak - (distance - 1) * m_peak / m_fallOff);
        return alpha >= 1 && alpha <= 255 ? qRgba(0, 0, 0, static_cast<int>(alpha)) : 0;
    }

private:
    static qint64 peakAlpha(int percent) { return qint64(255) * percent / 100; }

    qreal m_peak = 0;
    qreal m_fallOff = 0;
    int m_dxMin = 0;
    int m_dxMax = 0;
    int m_dyMin = 0;
    int m_dyMax = 0;
};

} // namespace NVO
