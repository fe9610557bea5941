#ifndef SENDERMODULEDIALOG_CHART_CHARTTRIANGLE_H
#define SENDERMODULEDIALOG_CHART_CHARTTRIANGLE_H

#include "host/CommonClass/PointEx.h"

/// The three colour points of a group, the vertices of its gamut in RGB mode.
struct SChromaTriangle
{
    CPointEx<float> ptRed;
    CPointEx<float> ptGreen;
    CPointEx<float> ptBlue;
};

#endif // SENDERMODULEDIALOG_CHART_CHARTTRIANGLE_H
