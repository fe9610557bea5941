#ifndef WORKBENCH_COLOUR_UCSVIEW_H
#define WORKBENCH_COLOUR_UCSVIEW_H

#include "instruments/colour/Chromaticity.h"

#include <QImage>
#include <QWidget>

class CChartEditor;
class CMeasuredWall;

/// The CIE 1976 (u', v') diagram with the chart's groups and the measured wall. It is for viewing only;
/// points are moved on the chart.
class CUcsView : public QWidget
{
    Q_OBJECT

public:
    CUcsView(CChartEditor& editor, const CMeasuredWall& wall, QWidget* pParent = nullptr);

    /// The widget's pixel of a chromaticity.
    QPointF PixelOf(SChromaticity xy) const;
    void SetWallShown(bool bShown);

protected:
    void paintEvent(QPaintEvent* pEvent) override;

private:
    double Scale() const;
    QImage PaintColours() const;
    void PaintGrid(QPainter& painter) const;
    void PaintGroups(QPainter& painter) const;

    CChartEditor& m_editor;
    const CMeasuredWall& m_wall;
    QImage m_colours; ///< the diagram's colours at the present size
    bool m_bWallShown = true;
};

#endif // WORKBENCH_COLOUR_UCSVIEW_H
