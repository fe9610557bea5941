#ifndef ORACLES_CHART_PLAINCHART_H
#define ORACLES_CHART_PLAINCHART_H

#include "SenderModuleDialog/chart/ChromaGroupInfo.h"
#include "SenderModuleDialog/colour/CCT2ColorCoord.h"
#include "SenderModuleDialog/colour/ChromaGamutInterpolation.h"
#include "host/CommonClass/PointEx.h"

#include <QList>
#include <QMap>
#include <QPoint>
#include <QPointF>

#include <functional>

using CPoint = CPointEx<float>;

/// The chart's solving and mouse rules, step by step and without a widget: what the fast ones are compared
/// with. Nothing is prepared, nothing is remembered beyond the chart's own state, and the locus is walked
/// through the list that grows with each use.
class CPlainChart
{
public:
    CPlainChart();

    /// Lays the chart out as `SetSize` does.
    void SetSize(int nWidth, int nHeight);

    /// @name Solving
    /// @{
    static CPoint Inward(CPoint ptP, CPoint ptT);
    static void AddFloatExcursion(QPointF& point, QPointF ptFrom);
    static bool IsInTriangle(CPoint ptW, CPoint ptR, CPoint ptG, CPoint ptB);
    static bool GetCIEIntersection(const QList<CPoint>& list, CPoint ptFrom, CPoint ptTo, CPoint& ptOut);
    bool GetNearestPoint(CPoint ptW, CPoint ptCur, CPoint ptA, CPoint ptB);
    static bool GetNearestPoint2(CPoint ptW, CPoint ptCur, CPoint ptA, CPoint ptB, CPoint& ptOut);
    bool GetWhiteIntersection(SChromaGroupInfo* pGroup, CPoint ptWhite);
    bool ReCalRGB(SChromaGroupInfo* pGroup, int nIndex);
    bool ReCalCMY(SChromaGroupInfo* pGroup);
    bool IsPointInRegion(SChromaGroupInfo* pGroup, int nIndex) const;
    void GetFeasibleRegionNearstPoint(const QList<CPoint>& region, CPoint& point) const;
    void GetFeasibleRegionNearstPoint2(const QList<CPoint>& region, CPoint& point) const;
    /// @}

    /// @name Mouse
    /// @{
    void HitTest(QPoint pos, int& nGroup, int& nPoint);
    void CalcCurrentPoint(QPointF pos, SChromaGroupInfo* pGroup);
    void Press(QPoint pos, bool bLeft);
    void Move(QPoint pos, bool bLeftHeld);
    void Release(QPoint pos, int nWidgetWidth, int nWidgetHeight);
    /// @}

    /// The host's answer to a drag move.
    std::function<bool(int nGroup, int nPoint)> funcAnswer;

    CChromaGamutInterpolation gamut;
    CCCT2ColorCoord cct;
    QMap<int, SChromaGroupInfo*> mapGroups; ///< not owned
    QPoint ptMouse;
    QPointF ptNearest;
    QPointF ptD65;
    int nWndHeight = 0;
    float fMarginX = 25.0F;
    float fMarginY = 25.0F;
    float fScale = 500.0F;
    int nHoverGroup = -1;
    int nHoverPoint = -1;
    bool bCanDrag = true;
    bool bPressed = false;
    bool bDragging = false;
    bool bHitWhite = false;
    bool bMouseInside = false;
    bool bShowStandard = false;
    bool bFirstPress = true;
    bool bSnapWhite = false;

private:
    SChromaGroupInfo* HoverGroup() const;
    void StopAtRegion(const QList<CPoint>& region, CPoint ptFrom, CPoint& point) const;
};

/// A group's point by index.
CPoint& PointOfGroup(SChromaGroupInfo& group, int nIndex);
/// A group's move flag by index.
bool& MoveFlagOfGroup(SChromaGroupInfo& group, int nIndex);

#endif // ORACLES_CHART_PLAINCHART_H
