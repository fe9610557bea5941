#include "SenderModuleDialog/chart/bitmap/ChromaOutlineSpans.h"

#include "SenderModuleDialog/geometry/PointPrecision.h"

#include "SenderModuleDialog/Saturate.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

using Point = CPointEx<float>;

/// `std::floor`, without the call that it is where the processor is not known to have an instruction for it.
int Floor(float fValue)
{
    constexpr float c_fSurelyInt = 1073741824.0F;
    if (!(std::fabs(fValue) < c_fSurelyInt))
        return SaturateTo<int>(std::floor(fValue));
    const int nWhole = int(fValue);
    return nWhole - (float(nWhole) > fValue ? 1 : 0);
}

/// The first whole number above a height or an x.
int FirstAbove(float fValue)
{
    const int nFloor = Floor(fValue);
    return nFloor == std::numeric_limits<int>::max() ? nFloor : nFloor + 1;
}

/// An edge, the rows that it spans, its lower end excluded and its upper end included, and the first pixel at
/// or right of one of its ends.
struct SEdge
{
    Point ptEnd;
    Point ptStart;
    int nTop;
    int nBottom; ///< the last row, which may be above the first
    int nLeast;
};

SEdge MakeEdge(Point ptEnd, Point ptStart, const QRect& rcBox)
{
    return {ptEnd, ptStart, std::max(FirstAbove(std::min(ptEnd.y, ptStart.y)), rcBox.top()),
            std::min(Floor(std::max(ptEnd.y, ptStart.y)), rcBox.bottom()),
            SaturateTo<int>(std::ceil(std::min(ptEnd.x, ptStart.x)))};
}

/// Where an edge is at a height that it spans, in single precision.
float EdgeX(Point ptEnd, Point ptStart, float fY)
{
    return (ptStart.x - ptEnd.x) * ((fY - ptEnd.y) / (ptStart.y - ptEnd.y)) + ptEnd.x;
}

/// From which pixel on an edge counts in a row.
int Threshold(const SEdge& edge, int nY)
{
    return std::max(FirstAbove(EdgeX(edge.ptEnd, edge.ptStart, float(nY))), edge.nLeast);
}

/// Calls `func(edge)` for each edge of an outline.
template <class TFunc>
void ForEachEdge(const std::vector<Point>& vecOutline, const QRect& rcBox, const TFunc& func)
{
    for (size_t i = 0; i < vecOutline.size(); ++i)
        func(MakeEdge(vecOutline[i], vecOutline[i == 0 ? vecOutline.size() - 1 : i - 1], rcBox));
}

/// Sorts a row's thresholds: hardly ever more than two.
void SortFew(int* pBegin, int* pEnd)
{
    if (pEnd - pBegin != 2) {
        std::sort(pBegin, pEnd);
        return;
    }
    const int nFirst = pBegin[0];
    const int nSecond = pBegin[1];
    pBegin[0] = std::min(nFirst, nSecond);
    pBegin[1] = std::max(nFirst, nSecond);
}

} // namespace

CChromaOutlineSpans::CChromaOutlineSpans(const Outline& vecOutline, const QRect& rcBox)
    : m_rcBox(rcBox)
    , m_vecFirst(size_t(std::max(rcBox.height(), 0)) + 1)
{
    CollectThresholds(vecOutline);
    CollectVertexPixels(vecOutline);
}

void CChromaOutlineSpans::CollectThresholds(const Outline& vecOutline)
{
    // Each row's count is taken two places behind, summed up to where the next row begins, and counted up to
    // where its own ends while the thresholds are filled in.
    std::vector<size_t>& vecNext = m_vecFirst;
    const int nFirstRow = m_rcBox.top();
    vecNext.push_back(0);
    ForEachEdge(vecOutline, m_rcBox, [&vecNext, nFirstRow](const SEdge& edge) {
        for (int nY = edge.nTop; nY <= edge.nBottom; ++nY)
            ++vecNext[size_t(nY - nFirstRow) + 2];
    });
    for (size_t i = 1; i < vecNext.size(); ++i)
        vecNext[i] += vecNext[i - 1];
    m_vecThresholds.resize(vecNext.back());
    ForEachEdge(vecOutline, m_rcBox, [this, &vecNext, nFirstRow](const SEdge& edge) {
        for (int nY = edge.nTop; nY <= edge.nBottom; ++nY)
            m_vecThresholds[vecNext[size_t(nY - nFirstRow) + 1]++] = Threshold(edge, nY);
    });
    vecNext.pop_back();
    for (size_t i = 0; i + 1 < m_vecFirst.size(); ++i)
        SortFew(m_vecThresholds.data() + m_vecFirst[i], m_vecThresholds.data() + m_vecFirst[i + 1]);
}

void CChromaOutlineSpans::CollectVertexPixels(const Outline& vecOutline)
{
    for (const Point ptVertex : vecOutline) {
        const QPoint ptPixel(SaturateTo<int>(std::round(ptVertex.x)),
                             SaturateTo<int>(std::round(ptVertex.y)));
        if (m_rcBox.contains(ptPixel) && std::fabs(float(ptPixel.x()) - ptVertex.x) < c_fVertexReach &&
            std::fabs(float(ptPixel.y()) - ptVertex.y) < c_fVertexReach)
            m_vecVertexPixels.push_back(ptPixel);
    }
}
