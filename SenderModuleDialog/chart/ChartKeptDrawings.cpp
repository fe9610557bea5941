#include "SenderModuleDialog/chart/ChartKeptDrawings.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <cstring>
#include <tuple>

namespace {

/// More texts than a legend has; beyond, a host changes them from frame to frame.
constexpr int c_nMostTexts = 64;

/// So often in turn a drawing may meet other pixels than those that are kept before it is kept over them. The
/// cross hair that passes under it is gone by then.
constexpr int c_nPatience = 8;

/// Whether the pixels of an image in a rectangle are those of another image.
bool HasPixels(const QImage& image, const QRect& rcPixels, const QImage& imgPixels)
{
    const std::size_t nBytes = std::size_t(rcPixels.width()) * sizeof(QRgb);
    for (int nY = 0; nY < rcPixels.height(); ++nY) {
        const uchar* const pRow = image.constScanLine(rcPixels.top() + nY);
        const uchar* const pPixels = pRow + std::size_t(rcPixels.left()) * sizeof(QRgb);
        if (std::memcmp(pPixels, imgPixels.constScanLine(nY), nBytes) != 0)
            return false;
    }
    return true;
}

/// Where a text without a box is, with as much around it as the font is high: the metrics do not tell where
/// its ink ends, and parts of it may come from other fonts.
QRectF TextPlace(const QFontMetrics& metrics, const CChartKeptDrawings::SDrawing& drawing)
{
    const int nHeight = metrics.height();
    const QRect rcLine(0, -metrics.ascent(), metrics.horizontalAdvance(drawing.strText), nHeight);
    return QRectF(rcLine.adjusted(-nHeight, -nHeight, nHeight, nHeight))
        .translated(drawing.rcPlace.topLeft());
}

/// False for places that are no number, too: a host may have put its points anywhere.
bool IsInside(const QRectF& rcInner, const QRectF& rcOuter)
{
    return rcInner.left() >= rcOuter.left() && rcInner.top() >= rcOuter.top() &&
           rcInner.right() <= rcOuter.right() && rcInner.bottom() <= rcOuter.bottom();
}

/// Whether two images of the same size have the same outermost pixels.
bool HaveSameRim(const QImage& first, const QImage& second)
{
    const QRect rcInner = first.rect().adjusted(1, 1, -1, -1);
    for (int nY = 0; nY < first.height(); ++nY) {
        const bool bWhole = nY < rcInner.top() || nY > rcInner.bottom();
        for (int nX = 0; nX < first.width(); nX += bWhole ? 1 : std::max(1, first.width() - 1)) {
            if (first.pixel(nX, nY) != second.pixel(nX, nY))
                return false;
        }
    }
    return true;
}

} // namespace

CChartKeptDrawings::SDrawing CChartKeptDrawings::SDrawing::FreeText(QPointF ptStart, const QString& strText)
{
    return {QRectF(ptStart, QSizeF(0.0, 0.0)), 0.0, strText};
}

bool CChartKeptDrawings::SDrawing::IsFreeText() const
{
    return rcPlace.isNull() && !strText.isEmpty();
}

bool CChartKeptDrawings::SDrawing::operator==(const SDrawing& other) const
{
    return std::tie(rcPlace, dReach, strText) == std::tie(other.rcPlace, other.dReach, other.strText);
}

void CChartKeptDrawings::Begin(const CChartSurface& surface, const QRect& rcChart, qint64 nLayerKey)
{
    m_nNext = 0;
    if (!surface.CanCopy() || surface.State().dRatio != 1.0)
        return;
    m_pSurface = &surface;
    m_rcPixels = rcChart.translated(surface.Origin()) & surface.Paintable();
    if (surface.Origin() != m_ptOrigin || nLayerKey != m_nLayerKey)
        m_vecKept.clear();
    m_ptOrigin = surface.Origin();
    m_nLayerKey = nLayerKey;
}

void CChartKeptDrawings::End()
{
    if (m_pSurface != nullptr)
        m_vecKept.resize(std::min(m_vecKept.size(), m_nNext));
    m_pSurface = nullptr;
}

QRect CChartKeptDrawings::Pixels(const QPainter& painter, const SDrawing& drawing) const
{
    const QRectF rcPlace = drawing.IsFreeText() ? TextPlace(painter.fontMetrics(), drawing) : drawing.rcPlace;
    const double dReach = drawing.dReach;
    const QRectF rcTouched = rcPlace.adjusted(-dReach, -dReach, dReach, dReach).translated(m_ptOrigin);
    return IsInside(rcTouched, m_rcPixels) ? rcTouched.toAlignedRect() : QRect();
}

bool CChartKeptDrawings::IsKept(const SKept& kept, const QPainter& painter, const SDrawing& drawing) const
{
    return !kept.imgBefore.isNull() && kept.drawing == drawing && kept.pen == painter.pen() &&
           kept.brush == painter.brush() && kept.font == painter.font() && m_rcPixels.contains(kept.rcPixels);
}

bool CChartKeptDrawings::Copy(QPainter& painter, const SDrawing& drawing)
{
    if (m_pSurface == nullptr || m_nNext >= m_vecKept.size())
        return false;
    SKept& kept = m_vecKept[m_nNext];
    if (!IsKept(kept, painter, drawing) || !HasPixels(m_pSurface->Image(), kept.rcPixels, kept.imgBefore))
        return false;
    painter.drawImage(kept.rcPixels.topLeft() - m_ptOrigin, kept.imgAfter);
    kept.nMisses = 0;
    ++m_nNext;
    return true;
}

CChartKeptDrawings::SKept* CChartKeptDrawings::BeginDrawing(const QPainter& painter, const SDrawing& drawing)
{
    if (m_pSurface == nullptr)
        return nullptr;
    if (m_nNext == m_vecKept.size())
        m_vecKept.emplace_back();
    SKept& kept = m_vecKept[m_nNext++];
    if (IsKept(kept, painter, drawing) && ++kept.nMisses < c_nPatience)
        return nullptr;
    const QRect rcPixels = Pixels(painter, drawing);
    if (rcPixels.isEmpty()) {
        kept = {};
        return nullptr;
    }
    kept = {drawing,         painter.pen(),
            painter.brush(), painter.font(),
            rcPixels,        m_pSurface->Image().copy(rcPixels),
            QImage(),        0};
    return &kept;
}

void CChartKeptDrawings::EndDrawing(SKept& kept)
{
    kept.imgAfter = m_pSurface->Image().copy(kept.rcPixels);
    if (!HaveSameRim(kept.imgBefore, kept.imgAfter)) {
        // It reaches farther than it was said to.
        kept.imgBefore = QImage();
        return;
    }
    // All its pixels are opaque; said so, they replace what is there and are not blended.
    kept.imgAfter.reinterpretAsFormat(QImage::Format_RGB32);
}

void CChartKeptDrawings::DrawLineAcross(QPainter& painter, const QLine& line)
{
    if (m_pSurface == nullptr)
        painter.drawLine(line);
    else
        (line.dy() == 0 ? m_picLevel : m_picUpright).Draw(painter, *m_pSurface, line);
}

int CChartKeptDrawings::TextWidth(const QFont& font, const QString& strText)
{
    if (m_hashWidths.size() >= c_nMostTexts || m_fontWidths != font)
        m_hashWidths.clear();
    m_fontWidths = font;
    const auto it = m_hashWidths.constFind(strText);
    if (it != m_hashWidths.constEnd())
        return *it;
    return *m_hashWidths.insert(strText, QFontMetrics(font).boundingRect(strText).width());
}
