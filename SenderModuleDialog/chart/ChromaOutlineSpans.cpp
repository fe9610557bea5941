#include "SenderModuleDialog/chart/ChromaOutlineSpans.h"

#include "SenderModuleDialog/Saturate.h"

#include <algorithm>
#include <cmath>

namespace {

using Point = CPointEx<float>;

/// How close a pixel is to a vertex to be inside, in x and in y. A tolerance of the inside test's own.
constexpr float c_fVertexReach = 0.0001F;

/// The first whole number above a height or an x.
int FirstAbove(float fValue)
{
    const int nFloor = SaturateTo<int>(std::floor(fValue));
    return nFloor == std::numeric_limits<int>::max() ? nFloor : nFloor + 1;
}

int FirstAtOrAbove(float fValue)
{
    return SaturateTo<int>(std::ceil(fValue));
}

/// Where an edge is at a height that it spans, in single precision.
float EdgeX(Point ptEnd, Point ptStart, float fY)
{
    return (ptStart.x - ptEnd.x) * ((fY - ptEnd.y) / (ptStart.y - ptEnd.y)) + ptEnd.x;
}

/// From which pixel on the edge counts in a row.
int Threshold(Point ptEnd, Point ptStart, int nY)
{
    return std::max(FirstAbove(EdgeX(ptEnd, ptStart, float(nY))),
                    FirstAtOrAbove(std::min(ptEnd.x, ptStart.x)));
}

/// Sorts a row's thresholds: hardly ever more than two.
void SortFew(int* pBegin, int* pEnd)
{
    for (int* pNext = pBegin; pNext != pEnd; ++pNext)
        std::rotate(std::upper_bound(pBegin, pNext, *pNext), pNext, pNext + 1);
}

} // namespace

CChromaOutlineSpans::CChromaOutlineSpans(const Outline& vecOutline, const QRect& rcBox)
    : m_rcBox(rcBox)
    , m_vecFirst(size_t(std::max(rcBox.height(), 0)) + 1)
{
    CollectThresholds(vecOutline);
    CollectVertexPixels(vecOutline);
}

/// Calls `func(row of the box, threshold)` for each edge and each row that it spans: its lower end excluded,
/// its upper end included.
template <class TFunc>
void CChromaOutlineSpans::ForEachThreshold(const Outline& vecOutline, const TFunc& func) const
{
    for (size_t i = 0; i < vecOutline.size(); ++i) {
        const Point ptEnd = vecOutline[i];
        const Point ptStart = vecOutline[i == 0 ? vecOutline.size() - 1 : i - 1];
        const int nTop = std::max(FirstAbove(std::min(ptEnd.y, ptStart.y)), m_rcBox.top());
        const int nBottom =
            std::min(SaturateTo<int>(std::floor(std::max(ptEnd.y, ptStart.y))), m_rcBox.bottom());
        for (int nY = nTop; nY <= nBottom; ++nY)
            func(size_t(nY - m_rcBox.top()), ptEnd, ptStart, nY);
    }
}

void CChromaOutlineSpans::CollectThresholds(const Outline& vecOutline)
{
    // Each row's count is taken two places behind, summed up to where the next row begins, and counted up to
    // where its own ends while the thresholds are filled in.
    std::vector<size_t>& vecNext = m_vecFirst;
    vecNext.push_back(0);
    ForEachThreshold(vecOutline, [&vecNext](size_t nRow, Point, Point, int) { ++vecNext[nRow + 2]; });
    for (size_t i = 1; i < vecNext.size(); ++i)
        vecNext[i] += vecNext[i - 1];
    m_vecThresholds.resize(vecNext.back());
    ForEachThreshold(vecOutline, [this, &vecNext](size_t nRow, Point ptEnd, Point ptStart, int nY) {
        m_vecThresholds[vecNext[nRow + 1]++] = Threshold(ptEnd, ptStart, nY);
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
