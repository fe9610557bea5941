#ifndef SENDERMODULEDIALOG_CHART_SOLVE_LOCUSEDGES_H
#define SENDERMODULEDIALOG_CHART_SOLVE_LOCUSEDGES_H

#include "host/CommonClass/PointEx.h"

#include <QPointF>
#include <QVector>

#include <optional>
#include <vector>

/// The edges of the spectral locus, ready to be crossed by the segment of a drag.
///
/// Gives the answer of a walk over all edges with `CLine::GetSegmentCross`, to the last bit: two segments
/// whose bounding boxes lie apart do not cross, so edges are passed over by their boxes, a block of
/// neighbours at a time, and the few that remain take the full test. Nothing is allocated after construction.
class CLocusEdges
{
public:
    /// @param vecOutline the closed outline, without a repeated last vertex; rounded to single precision
    explicit CLocusEdges(const QVector<QPointF>& vecOutline);

    /// Where a segment crosses the outline: on the crossed edge that comes last.
    /// @return nothing when no edge is crossed, or the outline has fewer than 3 points
    std::optional<CPointEx<float>> LastCrossing(CPointEx<float> ptFrom, CPointEx<float> ptTo) const;

private:
    struct SBox
    {
        float fMinX;
        float fMaxX;
        float fMinY;
        float fMaxY;
    };

    static SBox BoxOf(CPointEx<float> ptFirst, CPointEx<float> ptSecond);
    static SBox Union(const SBox& first, const SBox& second);
    static bool AreApart(const SBox& first, const SBox& second);

    /// Point i + 1 ends edge i; the first point is repeated at the end.
    std::vector<CPointEx<float>> m_vecPoints;
    std::vector<SBox> m_vecEdgeBoxes;
    std::vector<SBox> m_vecBlockBoxes;
};

#endif // SENDERMODULEDIALOG_CHART_SOLVE_LOCUSEDGES_H
