#ifndef WORKBENCH_COLOUR_DIAGRAMOVERLAY_H
#define WORKBENCH_COLOUR_DIAGRAMOVERLAY_H

#include "SenderModuleDialog/chart/ChartMapping.h"

#include <QPixmap>
#include <QWidget>

#include <optional>

class CChartView;
class CMeasuredWall;

/// Lies over the chart and shows wavelengths along the outline, every module of the measured wall as a thin
/// triangle, and their common gamut. The picture is cached until the wall or the chart's layout changes, so a
/// drag costs one copy, however many modules there are.
class CDiagramOverlay : public QWidget
{
    Q_OBJECT

public:
    CDiagramOverlay(const CMeasuredWall& wall, CChartView& view);

    /// Whether the modules are shown.
    void SetWallShown(bool bShown);

    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

protected:
    void paintEvent(QPaintEvent* pEvent) override;

private:
    QPixmap Paint(const CChartMapping& mapping) const;

    const CMeasuredWall& m_wall;
    CChartView& m_view;
    bool m_bWallShown = true;
    QPixmap m_picture;
    std::optional<CChartMapping> m_mapping; ///< mapping of the cached picture; none: it must be painted
};

#endif // WORKBENCH_COLOUR_DIAGRAMOVERLAY_H
