#ifndef WORKBENCH_COLOUR_CHARTTRANSFORM_H
#define WORKBENCH_COLOUR_CHARTTRANSFORM_H

#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"

#include <QTransform>

/// Takes chromaticities to the chart's widget pixels as the chart is laid out now; its inverse takes them
/// back.
inline QTransform ChartTransform(const CChromaticityDlgWnd& chart)
{
    const CChartMapping mapping = chart.Mapping();
    const double dScale = double(mapping.Scale());
    return {dScale, 0.0, 0.0, -dScale, double(mapping.MarginX()), mapping.Baseline()};
}

#endif // WORKBENCH_COLOUR_CHARTTRANSFORM_H
