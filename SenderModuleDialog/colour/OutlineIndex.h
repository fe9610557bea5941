#ifndef SENDERMODULEDIALOG_COLOUR_OUTLINEINDEX_H
#define SENDERMODULEDIALOG_COLOUR_OUTLINEINDEX_H

#include "host/CommonClass/PointEx.h"

#include <QPointF>
#include <QVector>

#include <array>

namespace OutlineTest {

/// Whether a point lies within 0.0001 of a vertex in x and in y.
bool IsAtVertex(CPointEx<float> pt, CPointEx<float> ptVertex);

/// Whether a point lies in an outline or at one of its vertices, by a walk over all edges: the even-odd rule
/// in single precision. False for an outline without points.
bool Contains(const QVector<QPointF>& vecOutline, QPointF pt);

} // namespace OutlineTest

/// An outline in single precision that answers `OutlineTest::Contains` by looking at the few edges at the
/// height of the point.
///
/// The height is cut into equal bands. Each band lists the vertices that are in reach of it, and the edges
/// that span a height of it. The band of a height is a monotone function of it, also with its roundings, so
/// an edge that spans a height is always listed in the band of that height, whatever the rounding was.
class COutlineIndex
{
public:
    explicit COutlineIndex(const QVector<QPointF>& vecOutline);

    /// The same answer as the walk over all edges.
    bool Contains(QPointF pt) const;

    /// The outline rounded to single precision.
    const QVector<CPointEx<float>>& Points() const { return m_vecPoints; }

private:
    static constexpr int c_nBands = 256;

    int BandOf(float fY) const;
    bool IsInBand(int nVertex, int nBand) const;

    QVector<CPointEx<float>> m_vecPoints;
    float m_fLowest = 0.0F;                        ///< below it nothing is in reach
    float m_fHighest = 0.0F;                       ///< above it nothing is in reach
    float m_fBandsPerUnit = 0.0F;                  ///< bands per unit of height
    std::array<int, c_nBands + 1> m_arrFirst = {}; ///< where the list of each band begins
    QVector<int> m_vecListed; ///< vertices by band: each stands for itself and the edge that ends in it
};

#endif // SENDERMODULEDIALOG_COLOUR_OUTLINEINDEX_H
