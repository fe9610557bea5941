#ifndef SENDERMODULEDIALOG_CHART_PAINT_CHARTSTATICLAYER_H
#define SENDERMODULEDIALOG_CHART_PAINT_CHARTSTATICLAYER_H

#include "SenderModuleDialog/chart/paint/ChartSurface.h"

#include <QBrush>
#include <QByteArray>
#include <QColor>
#include <QFont>
#include <QImage>
#include <QPainter>
#include <QPen>
#include <QRect>
#include <QString>

#include <functional>

/// Keeps the picture of the chart's lowest layers, which stay the same from paint to paint, and copies
/// it where that gives the very pixels that painting them would give. Where it would not, or might not,
/// it declines.
class CChartStaticLayer
{
public:
    /// All that the layers show.
    struct SContent
    {
        QRect rcChart;
        QColor
            clrBackground; ///< an opaque one covers what was there before; with any other nothing is copied
        qint64 nBitmapKey = 0; ///< `QImage::cacheKey` of the bitmap
        int nGridAlpha = 0;
        float fMarginX = 0.0F;
        float fMarginY = 0.0F;
        float fScale = 0.0F;
        QString strFontFamily;
        QByteArray boundary; ///< the bytes of the locus in widget pixels

        bool operator==(const SContent& other) const;
    };

    /// Paints the layers, and leaves the painter as it leaves it.
    using FuncPaint = std::function<void(QPainter&)>;

    /// Shows the layers on the painter's surface and leaves the painter as `funcPaint` would have.
    /// @return false, with nothing done, where a copy is not sure to give the same pixels: on a surface that
    ///         takes no copies, and over a background that lets something through
    bool Show(QPainter& painter, const SContent& content, const FuncPaint& funcPaint);

private:
    void Repaint(const SContent& content, const CChartSurface::SState& state, const FuncPaint& funcPaint);
    void CopyTo(QPainter& painter) const;

    SContent m_content;
    CChartSurface::SState m_state;
    QImage m_image; ///< null until something was painted
    QPen m_pen;     ///< what the painter is left with
    QBrush m_brush;
    QFont m_font;
    QPainter::RenderHints m_hints;
};

#endif // SENDERMODULEDIALOG_CHART_PAINT_CHARTSTATICLAYER_H
