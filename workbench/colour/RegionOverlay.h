#ifndef WORKBENCH_COLOUR_REGIONOVERLAY_H
#define WORKBENCH_COLOUR_REGIONOVERLAY_H

#include "workbench/colour/FeasibleRegion.h"

#include <QWidget>

class CChromaticityDlgWnd;
class QPainter;

/// Lies over the chart and shows the standard's name and the feasible region. While a region is being drawn
/// it takes the mouse and the keys, and says what they do: a click sets a corner, a double click or Enter
/// closes the region, Backspace takes the last corner back, Escape keeps the region as it was.
class CRegionOverlay : public QWidget
{
    Q_OBJECT

public:
    CRegionOverlay(CChromaticityDlgWnd& chart, CFeasibleRegion& region, QWidget* pParent);

    /// Lets the operator draw a region.
    void StartDrawing();
    bool IsDrawing() const { return m_bDrawing; }
    /// What the next click or key does; empty while nothing is drawn.
    QString Hint() const;

    /// Paints what the overlay shows on any device, in the chart's widget pixels.
    static void Paint(QPainter& painter, CChromaticityDlgWnd& chart, const CFeasibleRegion& region);

Q_SIGNALS:
    void DrawingStarted();
    /// A new region was closed.
    void RegionDrawn();
    /// Drawing has ended, with a new region or without.
    void DrawingEnded();

protected:
    void paintEvent(QPaintEvent* pEvent) override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void mouseMoveEvent(QMouseEvent* pEvent) override;
    void mouseDoubleClickEvent(QMouseEvent* pEvent) override;
    void keyPressEvent(QKeyEvent* pEvent) override;

private:
    void PaintDraft(QPainter& painter) const;
    void PaintHint(QPainter& painter) const;
    void CloseRegion();
    void RemoveLastCorner();
    void EndDrawing();

    CChromaticityDlgWnd& m_chart;
    CFeasibleRegion& m_region;
    QPolygonF
        m_draft; ///< corners set so far, as chromaticities: they stay in place when the chart is resized
    QPointF m_ptMouse; ///< widget pixels
    bool m_bDrawing = false;
};

#endif // WORKBENCH_COLOUR_REGIONOVERLAY_H
