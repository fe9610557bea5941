#ifndef SENDERMODULEDIALOG_CHART_BITMAP_CHROMAOUTLINESPANS_H
#define SENDERMODULEDIALOG_CHART_BITMAP_CHROMAOUTLINESPANS_H

#include "host/CommonClass/PointEx.h"

#include <QRect>

#include <vector>

/// The pixels inside an outline, row by row, within a box of whole pixels: the answer of the even-odd test
/// for each pixel, found by asking each edge once a row.
///
/// At the height of a row, an edge counts for a pixel when the edge's x is below the pixel's and one of its
/// ends is at or left of the pixel. Both hold from some whole x on, the edge's threshold; so the pixels
/// inside are those from the first threshold to the second, from the third to the fourth, and so on. A pixel
/// within 0.0001 of a vertex, in x and in y, is inside as well; that can only be the one next to the vertex.
class CChromaOutlineSpans
{
public:
    /// @param vecOutline vertices in pixels; the last is joined to the first
    /// @param rcBox the pixels to look at, with x and y below 2^24
    CChromaOutlineSpans(const std::vector<CPointEx<float>>& vecOutline, const QRect& rcBox);

    /// The thresholds of a row of the box, in rising order, as a range of pointers.
    const int* ThresholdsBegin(int nY) const { return m_vecThresholds.data() + First(nY); }
    const int* ThresholdsEnd(int nY) const { return m_vecThresholds.data() + First(nY + 1); }

    /// The pixels of the box that are next to a vertex and within its reach.
    const std::vector<QPoint>& VertexPixels() const { return m_vecVertexPixels; }

private:
    using Outline = std::vector<CPointEx<float>>;

    size_t First(int nY) const { return m_vecFirst[size_t(nY - m_rcBox.top())]; }
    void CollectThresholds(const Outline& vecOutline);
    void CollectVertexPixels(const Outline& vecOutline);

    QRect m_rcBox;
    std::vector<size_t> m_vecFirst;   ///< where the thresholds of each row begin, and one end behind them
    std::vector<int> m_vecThresholds; ///< row by row
    std::vector<QPoint> m_vecVertexPixels;
};

#endif // SENDERMODULEDIALOG_CHART_BITMAP_CHROMAOUTLINESPANS_H
