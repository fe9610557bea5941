#ifndef SENDERMODULEDIALOG_CHART_CCHROMATICITYDLGWNDPRIVATE_H
#define SENDERMODULEDIALOG_CHART_CCHROMATICITYDLGWNDPRIVATE_H

#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "SenderModuleDialog/chart/bitmap/ChartSharpBitmap.h"
#include "SenderModuleDialog/chart/bitmap/ChromaBitmapPainter.h"
#include "SenderModuleDialog/chart/bitmap/ChromaBitmapStore.h"
#include "SenderModuleDialog/chart/paint/CctCurve.h"
#include "SenderModuleDialog/chart/paint/ChartOverlay.h"
#include "SenderModuleDialog/chart/paint/ChartStaticLayer.h"
#include "SenderModuleDialog/chart/solve/ChartSolver.h"

#include <QImage>
#include <QPoint>
#include <QPointF>

#include <memory>

class QPainter;

/// The private part of the chart: it holds what the rooms keep between calls, reads the widget's open members
/// and hands their values to the rooms.
class CChromaticityDlgWndPrivate
{
public:
    /// @param chart with its locus and its temperatures
    explicit CChromaticityDlgWndPrivate(CChromaticityDlgWnd& chart);

    /// @name Bitmaps
    /// @{

    /// The bitmap of a type 0 to 4, null for any other.
    SWndBitmap* WndBitmap(int nType);
    /// The finished picture of the type that is shown; a null image if there is none. Waits for it while
    /// somebody paints.
    QImage TakeBitmap();
    /// The same for a device with that many device pixels per pixel: above 1, painted in device pixels.
    QImage TakeBitmap(double dRatio);
    void ConnectWndBitmapThread();
    /// Waits until the chart's own worker has ended, unless it is the caller.
    void JoinWndBitmapThread();
    /// Called last: afterwards no worker uses the chart.
    void ReleaseWndBitmapThread();
    /// @}

    /// The points of the boundary that the locus has now: a host may have emptied or cut it.
    int BoundaryCount() const;

    /// @name Painting
    /// @{

    /// What the layers share.
    ChartOverlay::SChartFrame Frame() const;
    /// The chromaticity that the tips show, without negative coordinates.
    QPointF TipsPoint() const;
    /// Where the cross hair stands, in widget pixels.
    QPoint CrossPlace() const;
    /// The layers that stay the same from paint to paint: background, bitmap, locus and grid.
    void DrawStaticLayers(QPainter& painter, const QImage& imgBitmap);
    /// The line around the chart.
    void DrawFrame(QPainter& painter);
    /// @}

    /// A move with the left button held on a point that may be moved.
    void Drag(QPoint pos);
    /// A move without the left button.
    void Hover(QPoint pos);

private:
    std::shared_ptr<CChromaBitmapStore> MakeStore();
    /// What the bitmap of a type is to be painted from now. Called under the store's lock.
    ChromaBitmap::SSource Measure(int nType);
    /// Shows a picture as the bitmap of a type. Called under the store's lock.
    void ShowBitmap(int nType, QImage image);
    /// @param bAborted true from the moment that the host aborts
    QImage PaintSharp(double dRatio, bool& bAborted);
    /// The worker has ended; on the GUI thread.
    void FinishWndBitmapThread();
    void DrawBitmap(QPainter& painter, const QImage& imgBitmap);
    void DrawSharpBitmap(QPainter& painter, const QImage& imgBitmap);

    CChromaticityDlgWnd& m_chart;

public:
    const int m_nBoundarySize;                    ///< points that the boundary arrays have room for
    std::shared_ptr<CChromaBitmapStore> m_pStore; ///< paints the bitmaps; workers share it
    CChartSolver m_solver;                        ///< keeps groups legal
    CCctCurve m_cctCurve;                         ///< the curve of colour temperatures
    CChartStaticLayer m_staticLayer;              ///< the layers that stay the same from paint to paint

private:
    SChartSharpBitmap m_sharp; ///< for screens with more device pixels than pixels
};

#endif // SENDERMODULEDIALOG_CHART_CCHROMATICITYDLGWNDPRIVATE_H
