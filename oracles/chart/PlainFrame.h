#ifndef ORACLES_CHART_PLAINFRAME_H
#define ORACLES_CHART_PLAINFRAME_H

#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"

#include <QImage>
#include <QPainter>

#include <array>

/// The whole chart in the plain order of painting, with a temporary image for the bitmap and everything drawn
/// anew: what a warm frame is compared with.
namespace PlainFrame {

/// The finished picture of the type that is shown; null if there is none.
inline const QImage* ShownBitmap(const CChromaticityDlgWnd& chart)
{
    const std::array<const SWndBitmap*, 5> arrBitmaps = {&chart.m_wndBitmap0, &chart.m_wndBitmap1,
                                                         &chart.m_wndBitmap2, &chart.m_wndBitmap3,
                                                         &chart.m_wndBitmap4};
    if (chart.m_nWndType == -1)
        return chart.m_pDefaultImage;
    const bool bOfItsOwn = chart.m_nWndType >= 0 && chart.m_nWndType < int(arrBitmaps.size());
    return bOfItsOwn ? arrBitmaps[size_t(chart.m_nWndType)]->pImage : nullptr;
}

/// Paints the chart.
/// @param layers paints the layers over the bitmap: the chart itself, or an oracle with the same operations
template <class TLayers>
void Draw(CChromaticityDlgWnd& chart, TLayers& layers, QPainter& painter)
{
    if (chart.m_nWndType == -1 && chart.m_bDefaultDirty) {
        chart.GetChromaticityBmp(-1);
        chart.m_bDefaultDirty = false;
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(QBrush(chart.m_clrBackground, Qt::SolidPattern));
    painter.drawRect(chart.m_rcChart);
    painter.setRenderHint(QPainter::Antialiasing);

    const QRect rcWhole(0, 0, chart.m_nWndWidth, chart.m_nWndHeight);
    QImage image(rcWhole.size(), QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    if (const QImage* pBitmap = ShownBitmap(chart))
        image = pBitmap->copy(rcWhole);
    painter.drawImage(rcWhole, image);

    painter.setBrush(Qt::NoBrush);
    painter.setRenderHint(QPainter::RenderHint(0x10));
    layers.DrawBorder(painter);
    layers.DrawHexCoorDialog(painter);
    layers.DrawTipsString(painter);
    layers.DrawCrossLine(painter);
    layers.DrawCCTLine(painter);
    layers.DrawChromTriangle(painter);
    layers.DrawChromNote(painter);
    painter.setPen(QPen(QBrush(Qt::black), 1.0));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(chart.m_rcChart);
}

} // namespace PlainFrame

#endif // ORACLES_CHART_PLAINFRAME_H
