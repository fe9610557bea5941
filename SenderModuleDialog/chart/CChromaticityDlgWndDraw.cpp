#include "SenderModuleDialog/Fault.h"
#include "SenderModuleDialog/chart/CChromaticityDlgWndPrivate.h"
#include "SenderModuleDialog/chart/paint/ChartStaticLayer.h"
#include "SenderModuleDialog/chart/paint/ChartSurface.h"
#include "host/OrviControl/Style.h"

#include <QImage>
#include <QPainter>
#include <QPen>
#include <QtMath>

/// @file
/// The order in which the chart is painted.

namespace {

/// `QPainter::NonCosmeticDefaultPen`: Qt's headers call the name old, since pens of width 0 are so by now,
/// but the hint is still part of a painter's state.
constexpr auto c_hintNonCosmeticPen = QPainter::RenderHint(0x10);

/// Width of the line around the chart.
constexpr double c_dFrameWidth = 1.0;

} // namespace

void CChromaticityDlgWnd::Draw(QPainter& painter)
{
    Require(painter.isActive(), "painter.isActive()");
    const QImage imgBitmap = m_pPrivate->TakeBitmap(CChartSurface::DevicePixelRatio(painter));
    const QByteArray boundary(reinterpret_cast<const char*>(m_pBoundaryPx),
                              m_pPrivate->BoundaryCount() * int(sizeof(QPointF)));
    const CChartStaticLayer::SContent content = {m_rcChart,    m_clrBackground, imgBitmap.cacheKey(),
                                                 m_nGridAlpha, m_fMarginX,      m_fMarginY,
                                                 m_fScale,     GetFontFamily(), boundary};
    const auto funcPaint = [this, &imgBitmap](QPainter& target) {
        m_pPrivate->DrawStaticLayers(target, imgBitmap);
    };
    if (!m_pPrivate->m_staticLayer.Show(painter, content, funcPaint))
        funcPaint(painter);
    DrawTipsString(painter);
    DrawCrossLine(painter);
    DrawCCTLine(painter);
    DrawChromTriangle(painter);
    DrawChromNote(painter);
    m_pPrivate->DrawFrame(painter);
}

void CChromaticityDlgWndPrivate::DrawStaticLayers(QPainter& painter, const QImage& imgBitmap)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_chart.m_clrBackground);
    painter.drawRect(m_chart.m_rcChart);
    painter.setRenderHint(QPainter::Antialiasing);
    DrawBitmap(painter, imgBitmap);
    painter.setBrush(Qt::NoBrush);
    painter.setRenderHint(c_hintNonCosmeticPen);
    m_chart.DrawBorder(painter);
    m_chart.DrawHexCoorDialog(painter);
}

void CChromaticityDlgWndPrivate::DrawBitmap(QPainter& painter, const QImage& imgBitmap)
{
    const QSize size(m_chart.m_nWndWidth, m_chart.m_nWndHeight);
    if (imgBitmap.devicePixelRatioF() > 1.0) {
        DrawSharpBitmap(painter, imgBitmap);
        return;
    }
    // What the bitmap does not cover stays transparent.
    QImage imgShown(size, QImage::Format_ARGB32);
    imgShown.fill(Qt::transparent);
    if (!imgBitmap.isNull())
        imgShown = imgBitmap.copy(QRect(QPoint(0, 0), size));
    painter.drawImage(QRect(QPoint(0, 0), size), imgShown);
}

void CChromaticityDlgWndPrivate::DrawSharpBitmap(QPainter& painter, const QImage& imgBitmap)
{
    // The part that the chart shows, pixel by device pixel.
    const double dRatio = imgBitmap.devicePixelRatioF();
    const QRect rcSource =
        QRect(0, 0, qCeil(m_chart.m_nWndWidth * dRatio), qCeil(m_chart.m_nWndHeight * dRatio)) &
        imgBitmap.rect();
    painter.drawImage(QRectF(QPointF(0, 0), QSizeF(rcSource.size()) / dRatio), imgBitmap, QRectF(rcSource));
}

void CChromaticityDlgWndPrivate::DrawFrame(QPainter& painter)
{
    painter.setPen(QPen(Qt::black, c_dFrameWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(m_chart.m_rcChart);
}
