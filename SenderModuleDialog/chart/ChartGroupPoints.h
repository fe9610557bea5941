#ifndef SENDERMODULEDIALOG_CHART_CHARTGROUPPOINTS_H
#define SENDERMODULEDIALOG_CHART_CHARTGROUPPOINTS_H

#include "SenderModuleDialog/chart/ChartTriangle.h"
#include "SenderModuleDialog/chart/ChromaGroupInfo.h"

#include <array>

/// @file
/// A group's fields by point index.

/// Where a group's record keeps what belongs to one point.
struct SChromaPointFields
{
    CPointEx<float> SChromaGroupInfo::*pPoint;
    bool SChromaGroupInfo::*pMove;
    bool SChromaGroupInfo::*pShowDot;
};

/// The fields of the points 0 to 3, by index.
inline constexpr std::array<SChromaPointFields, c_nChromaPointCount> c_arrChromaPointFields = {{
    {&SChromaGroupInfo::ptRed, &SChromaGroupInfo::bMoveRed, &SChromaGroupInfo::bShowRedDot},
    {&SChromaGroupInfo::ptGreen, &SChromaGroupInfo::bMoveGreen, &SChromaGroupInfo::bShowGreenDot},
    {&SChromaGroupInfo::ptBlue, &SChromaGroupInfo::bMoveBlue, &SChromaGroupInfo::bShowBlueDot},
    {&SChromaGroupInfo::ptWhite, &SChromaGroupInfo::bMoveWhite, &SChromaGroupInfo::bShowWhiteDot},
}};

/// Whether the index names one of the four points.
constexpr bool IsChromaPoint(int nPoint)
{
    return nPoint >= enRedPoint && nPoint <= enWhitePoint;
}

/// Whether the index names one of the three colour points.
constexpr bool IsColourPoint(int nPoint)
{
    return nPoint >= enRedPoint && nPoint <= enBluePoint;
}

/// A point of a group.
/// @pre `IsChromaPoint(nPoint)`
inline CPointEx<float>& GroupPoint(SChromaGroupInfo& group, int nPoint)
{
    return group.*c_arrChromaPointFields[std::size_t(nPoint)].pPoint;
}

/// A point of a group, (0, 0) for an index that names none.
inline CPointEx<float> GroupPointOrOrigin(const SChromaGroupInfo& group, int nPoint)
{
    return IsChromaPoint(nPoint) ? group.*c_arrChromaPointFields[std::size_t(nPoint)].pPoint
                                 : CPointEx<float>();
}

/// Whether a point may be dragged.
/// @pre `IsChromaPoint(nPoint)`
inline bool IsPointMovable(const SChromaGroupInfo& group, int nPoint)
{
    return group.*c_arrChromaPointFields[std::size_t(nPoint)].pMove;
}

/// The three colour points as they are stored.
inline SChromaTriangle TriangleOf(const SChromaGroupInfo& group)
{
    return {group.ptRed, group.ptGreen, group.ptBlue};
}

#endif // SENDERMODULEDIALOG_CHART_CHARTGROUPPOINTS_H
