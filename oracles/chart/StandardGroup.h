#ifndef ORACLES_CHART_STANDARDGROUP_H
#define ORACLES_CHART_STANDARDGROUP_H

#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "SenderModuleDialog/colour/ColourStandards.h"

/// Adds a group with the points of a standard to a chart, so that tests and benchmarks compare
/// the same frames.
/// @param nKey the group's key on the chart
inline void AddStandardGroup(CChromaticityDlgWnd& chart, int nKey, enColorStandard standard, bool bRgbMode)
{
    const SColourStandard& points = c_arrColourStandards[standard];
    SChromaGroupInfo group;
    group.ptRed = points.ptRed;
    group.ptGreen = points.ptGreen;
    group.ptBlue = points.ptBlue;
    group.ptWhite = points.ptWhite;
    group.bMoveRed = true;
    group.nPenStyle = Qt::SolidLine;
    group.bRgbMode = bRgbMode;
    chart.AddChromaGroupByIndex(nKey, group);
}

#endif // ORACLES_CHART_STANDARDGROUP_H
