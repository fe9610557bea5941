#ifndef SENDERMODULEDIALOG_CHART_SOLVE_CHARTHITTEST_H
#define SENDERMODULEDIALOG_CHART_SOLVE_CHARTHITTEST_H

#include "SenderModuleDialog/chart/ChartMapping.h"
#include "SenderModuleDialog/chart/ChromaGroupInfo.h"

#include <QPoint>

/// What lies under a widget pixel.
struct SChartHit
{
    int nGroup = -1;        ///< key of the group, -1 for none
    int nPoint = enNoPoint; ///< index of the point
    bool bWhite = false;    ///< some white point was hit, whatever the result is
};

/// Finds the point under a widget pixel, of visible and hidden groups, whether or not their dots are shown.
/// The first point hit, in key order and by index, is the result unless a later one that may be moved is hit;
/// the last such point wins. Every entry must hold a group. Allocates nothing.
SChartHit HitTestChart(const ChromaGroups& mapGroups, const CChartMapping& mapping, QPoint pos);

#endif // SENDERMODULEDIALOG_CHART_SOLVE_CHARTHITTEST_H
