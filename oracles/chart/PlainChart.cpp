#include "oracles/chart/PlainChart.h"

#include "SenderModuleDialog/geometry/Line.h"
#include "SenderModuleDialog/geometry/Polygon.h"

#include <QRect>

#include <algorithm>
#include <cmath>

namespace {

bool Coincide(float fA, float fB)
{
    return std::fabs(fA - fB) < 0.0001F;
}

bool Coincide(CPoint ptA, CPoint ptB)
{
    return Coincide(ptA.x, ptB.x) && Coincide(ptA.y, ptB.y);
}

void Clamp(CPoint& pt)
{
    if (pt.x < 0.0F)
        pt.x = 0.0F;
    if (pt.y < 0.0F)
        pt.y = 0.0F;
}

QPointF Wide(CPoint pt)
{
    return {double(pt.x), double(pt.y)};
}

CPoint Narrow(QPointF pt)
{
    return {float(pt.x()), float(pt.y())};
}

/// a*x + b*y + c = 0
struct SPlainLine
{
    float a;
    float b;
    float c;
};

SPlainLine Through(CPoint pt1, CPoint pt2)
{
    return {pt2.y - pt1.y, pt1.x - pt2.x, pt1.y * pt2.x - pt1.x * pt2.y};
}

SPlainLine Through(CPoint pt, float fSlope)
{
    return {-fSlope, 1.0F, -(pt.y - fSlope * pt.x)};
}

float Length(CPoint ptA, CPoint ptB)
{
    const float dx = ptA.x - ptB.x;
    const float dy = ptA.y - ptB.y;
    return std::sqrt(dx * dx + dy * dy);
}

/// Steps 1 to 5 of the solving: the crossing with the cone's side.
bool Crossing(CPoint ptW, CPoint ptCur, CPoint ptA, CPoint ptB, CPoint& ptX)
{
    const float k = Length(ptW, ptA) / Length(ptB, ptW);
    const CPoint ptQ(ptW.x + k * (ptB.x - ptW.x), ptW.y + k * (ptB.y - ptW.y));
    CPoint ptM((ptQ.x + ptA.x) / 2.0F, (ptQ.y + ptA.y) / 2.0F);

    CLine lineL(ptW, ptM);
    const SPlainLine n = Through(ptCur, lineL.GetSlop());
    const SPlainLine e = lineL.IsSameSide(ptCur, ptA) ? Through(ptB, ptW) : Through(ptA, ptW);
    if (e.a / n.a == e.b / n.b)
        return false;
    const float d = e.a * n.b - n.a * e.b;
    ptX.x = (e.b * n.c - n.b * e.c) / d;
    ptX.y = (n.a * e.c - e.a * n.c) / d;
    return true;
}

bool Toggles(CPoint ptP, CPoint ptQ, CPoint ptW)
{
    const bool bUp = ptP.y < ptW.y && ptW.y <= ptQ.y;
    const bool bDown = ptW.y <= ptP.y && ptQ.y < ptW.y;
    if (!bUp && !bDown)
        return false;
    if (!(ptP.x <= ptW.x || ptQ.x <= ptW.x))
        return false;
    return (ptQ.x - ptP.x) * ((ptW.y - ptP.y) / (ptQ.y - ptP.y)) + ptP.x < ptW.x;
}

} // namespace

CPoint& PointOfGroup(SChromaGroupInfo& group, int nIndex)
{
    switch (nIndex) {
    case 0:
        return group.ptRed;
    case 1:
        return group.ptGreen;
    case 2:
        return group.ptBlue;
    default:
        return group.ptWhite;
    }
}

bool& MoveFlagOfGroup(SChromaGroupInfo& group, int nIndex)
{
    switch (nIndex) {
    case 0:
        return group.bMoveRed;
    case 1:
        return group.bMoveGreen;
    case 2:
        return group.bMoveBlue;
    default:
        return group.bMoveWhite;
    }
}

CPlainChart::CPlainChart()
{
    cct.CCTtoColorCoord(6500.0F, &ptD65, false);
}

void CPlainChart::SetSize(int nWidth, int nHeight)
{
    nWndHeight = nHeight;
    fMarginX = float(nWidth) / 30.0F + 10.0F;
    fMarginY = float(nHeight) / 30.0F + 10.0F;
    const float fScaleX = (float(nWidth) - 2.0F * fMarginX) / 0.8F;
    const float fScaleY = (float(nHeight) - 2.0F * fMarginY) / 0.9F;
    fScale = fScaleY < fScaleX ? fScaleY : fScaleX;
}

CPoint CPlainChart::Inward(CPoint ptP, CPoint ptT)
{
    const float s = CLine::GetSlop(ptP, ptT);
    const float d = 0.0001F / std::sqrt(s * s + 1.0F);
    if (ptP.x <= ptT.x)
        return {ptP.x - d, ptP.y - s * d};
    return {ptP.x + d, ptP.y + s * d};
}

void CPlainChart::AddFloatExcursion(QPointF& point, QPointF ptFrom)
{
    const CPoint ptP = Narrow(point);
    const CPoint ptT = Narrow(ptFrom);
    const float s = CLine::GetSlop(ptP, ptT);
    const float d = 0.0001F / std::sqrt(s * s + 1.0F);
    const float sd = s * d;
    if (ptP.x <= ptT.x)
        point = QPointF(double(ptP.x) - double(d), double(ptP.y) - double(sd));
    else
        point = QPointF(double(ptP.x) + double(d), double(ptP.y) + double(sd));
}

bool CPlainChart::IsInTriangle(CPoint ptW, CPoint ptR, CPoint ptG, CPoint ptB)
{
    if (Coincide(ptW, ptR) || Coincide(ptW, ptG) || Coincide(ptW, ptB))
        return true;
    bool bInside = false;
    if (Toggles(ptR, ptB, ptW))
        bInside = !bInside;
    if (Toggles(ptG, ptR, ptW))
        bInside = !bInside;
    if (Toggles(ptB, ptG, ptW))
        bInside = !bInside;
    return bInside;
}

bool CPlainChart::GetCIEIntersection(const QList<CPoint>& list, CPoint ptFrom, CPoint ptTo, CPoint& ptOut)
{
    const int n = int(list.size());
    if (n < 3)
        return false;
    bool bCrossed = false;
    for (int i = 1; i <= n; ++i) {
        const CPoint ptEnd = i == n ? list[0] : list[i];
        float x = 0.0F;
        float y = 0.0F;
        if (!CLine::GetSegmentCross(ptFrom, ptTo, list[i - 1], ptEnd, x, y))
            continue;
        ptOut.x = x;
        ptOut.y = y;
        bCrossed = true;
    }
    if (!bCrossed)
        return false;
    ptOut = Inward(ptOut, ptTo);
    return true;
}

bool CPlainChart::GetNearestPoint(CPoint ptW, CPoint ptCur, CPoint ptA, CPoint ptB)
{
    CPoint ptX;
    if (!Crossing(ptW, ptCur, ptA, ptB, ptX))
        return false;
    ptNearest = Wide(ptX);
    if (!gamut.IsPointInCIEPolygon(Wide(ptX))) {
        CPoint ptOut(0.0F, 0.0F);
        if (GetCIEIntersection(gamut.GetData(), ptW, ptX, ptOut))
            ptNearest = Wide(ptOut);
    }
    AddFloatExcursion(ptNearest, Wide(ptCur));
    return true;
}

bool CPlainChart::GetNearestPoint2(CPoint ptW, CPoint ptCur, CPoint ptA, CPoint ptB, CPoint& ptOut)
{
    CPoint ptX;
    if (!Crossing(ptW, ptCur, ptA, ptB, ptX))
        return false;
    ptOut = Inward(ptX, ptCur);
    return true;
}

bool CPlainChart::GetWhiteIntersection(SChromaGroupInfo* pGroup, CPoint ptWhite)
{
    if (pGroup == nullptr)
        return false;
    const CPoint r = pGroup->ptRed;
    const CPoint g = pGroup->ptGreen;
    const CPoint b = pGroup->ptBlue;
    if (Coincide(r.x, g.x) && Coincide(r.x, b.x))
        return false;
    if (Coincide(r.y, g.y) && Coincide(r.y, b.y))
        return false;
    const QVector<QPointF> vecPoints{Wide(r), Wide(g), Wide(b)};
    const CPolygon polygon(vecPoints);
    ptNearest = Wide(ptWhite);
    if (!polygon.GetPointCloser(&ptNearest))
        return false;
    AddFloatExcursion(ptNearest, Wide(ptWhite));
    return true;
}

bool CPlainChart::ReCalRGB(SChromaGroupInfo* pGroup, int nIndex)
{
    Clamp(pGroup->ptRed);
    Clamp(pGroup->ptGreen);
    Clamp(pGroup->ptBlue);
    const CPoint r = pGroup->ptRed;
    const CPoint g = pGroup->ptGreen;
    const CPoint b = pGroup->ptBlue;
    const CPoint w = pGroup->ptWhite;
    CPoint p = PointOfGroup(*pGroup, nIndex);
    Clamp(p);

    CPoint ptOut = p;
    if (!gamut.IsPointInCIEPolygon(Wide(p))) {
        if (nIndex == 3)
            return false;
        GetCIEIntersection(gamut.GetData(), w, p, ptOut);
    }
    if (nIndex == 3) {
        if (IsInTriangle(p, r, g, b))
            pGroup->ptWhite = p;
        else if (GetWhiteIntersection(pGroup, p))
            pGroup->ptWhite = Narrow(ptNearest);
        return true;
    }
    if (IsInTriangle(w, r, g, b))
        PointOfGroup(*pGroup, nIndex) = ptOut;
    else if (nIndex == 0 && GetNearestPoint(w, r, g, b))
        pGroup->ptRed = Narrow(ptNearest);
    else if (nIndex == 1 && GetNearestPoint(w, g, r, b))
        pGroup->ptGreen = Narrow(ptNearest);
    else if (nIndex == 2 && GetNearestPoint(w, b, r, g))
        pGroup->ptBlue = Narrow(ptNearest);
    return true;
}

bool CPlainChart::ReCalCMY(SChromaGroupInfo* pGroup)
{
    const CPoint c = pGroup->ptRed;
    const CPoint m = pGroup->ptGreen;
    const CPoint y = pGroup->ptBlue;
    pGroup->ptRed = CPoint(m.x + y.x - c.x, m.y + y.y - c.y);
    pGroup->ptGreen = CPoint(y.x + c.x - m.x, y.y + c.y - m.y);
    pGroup->ptBlue = CPoint(m.x + c.x - y.x, m.y + c.y - y.y);
    Clamp(pGroup->ptRed);
    Clamp(pGroup->ptGreen);
    Clamp(pGroup->ptBlue);
    const CPoint r = pGroup->ptRed;
    const CPoint g = pGroup->ptGreen;
    const CPoint b = pGroup->ptBlue;
    const CPoint w = pGroup->ptWhite;

    for (int nIndex = 3; nIndex >= 0; --nIndex) {
        CPoint q = nIndex == 0 ? r : nIndex == 1 ? g : nIndex == 2 ? b : w;
        Clamp(q);
        if (gamut.IsPointInCIEPolygon(Wide(q)))
            continue;
        if (nIndex == 3) {
            pGroup->ptRed = c;
            pGroup->ptGreen = m;
            pGroup->ptBlue = y;
            return false;
        }
        CPoint ptOut = q;
        GetCIEIntersection(gamut.GetData(), w, q, ptOut);
        if (IsInTriangle(w, r, g, b))
            PointOfGroup(*pGroup, nIndex) = ptOut;
        else if (nIndex == 0 && GetNearestPoint(w, r, g, b))
            pGroup->ptRed = Narrow(ptNearest);
        else if (nIndex == 1 && GetNearestPoint(w, g, r, b))
            pGroup->ptGreen = Narrow(ptNearest);
        else if (nIndex == 2 && GetNearestPoint(w, b, r, g))
            pGroup->ptBlue = Narrow(ptNearest);
    }

    const CPoint r2 = pGroup->ptRed;
    const CPoint g2 = pGroup->ptGreen;
    const CPoint b2 = pGroup->ptBlue;
    pGroup->ptRed = CPoint((g2.x + b2.x) / 2.0F, (g2.y + b2.y) / 2.0F);
    pGroup->ptGreen = CPoint((r2.x + b2.x) / 2.0F, (r2.y + b2.y) / 2.0F);
    pGroup->ptBlue = CPoint((r2.x + g2.x) / 2.0F, (r2.y + g2.y) / 2.0F);
    return true;
}

bool CPlainChart::IsPointInRegion(SChromaGroupInfo* pGroup, int nIndex) const
{
    CPoint p = PointOfGroup(*pGroup, nIndex);
    Clamp(p);
    if (!gamut.IsPointInCIEPolygon(Wide(p)))
        return false;
    return IsInTriangle(pGroup->ptWhite, pGroup->ptRed, pGroup->ptGreen, pGroup->ptBlue);
}

SChromaGroupInfo* CPlainChart::HoverGroup() const
{
    return mapGroups.value(nHoverGroup, nullptr);
}

void CPlainChart::StopAtRegion(const QList<CPoint>& region, CPoint ptFrom, CPoint& point) const
{
    CPoint ptOut = point;
    if (GetCIEIntersection(region, ptFrom, PointOfGroup(*HoverGroup(), nHoverPoint), ptOut))
        point = ptOut;
}

void CPlainChart::GetFeasibleRegionNearstPoint(const QList<CPoint>& region, CPoint& point) const
{
    if (region.size() < 3 || HoverGroup() == nullptr || nHoverPoint < 0 || nHoverPoint > 2)
        return;
    StopAtRegion(region, HoverGroup()->ptWhite, point);
}

void CPlainChart::GetFeasibleRegionNearstPoint2(const QList<CPoint>& region, CPoint& point) const
{
    if (region.size() < 3 || HoverGroup() == nullptr || nHoverPoint < 0 || nHoverPoint > 2)
        return;
    CPoint ptSum(0.0F, 0.0F);
    for (const CPoint& pt : region) {
        ptSum.x = ptSum.x + pt.x;
        ptSum.y = ptSum.y + pt.y;
    }
    StopAtRegion(region, CPoint(ptSum.x / float(region.size()), ptSum.y / float(region.size())), point);
}

void CPlainChart::HitTest(QPoint pos, int& nGroup, int& nPoint)
{
    bHitWhite = false;
    const float r = fScale / 100.0F;
    int nHits = 0;
    nGroup = -1;
    nPoint = -1;
    for (auto it = mapGroups.constBegin(); it != mapGroups.constEnd(); ++it) {
        for (int i = 0; i < 4; ++i) {
            const CPoint pt = PointOfGroup(*it.value(), i);
            const float px = float(double(pt.x) * double(fScale) + double(fMarginX));
            const float py = float((double(nWndHeight) - double(fMarginY)) - double(pt.y) * double(fScale));
            const float fLeft = std::round(px - r);
            const float fTop = std::round(py - r);
            const float fRight = fLeft + 2.0F * r;
            const float fBottom = fTop + 2.0F * r;
            // A box elsewhere, or nowhere, needs no whole numbers.
            if (!(std::fabs(fLeft) < 1e6F && std::fabs(fTop) < 1e6F))
                continue;
            const QRect rcBox{QPoint{int(fLeft), int(fTop)}, QPoint{int(fRight), int(fBottom)}};
            if (!rcBox.contains(pos))
                continue;
            if (i == 3)
                bHitWhite = true;
            if (nHits == 0 || MoveFlagOfGroup(*it.value(), i)) {
                nGroup = it.key();
                nPoint = i;
            }
            ++nHits;
        }
    }
}

void CPlainChart::CalcCurrentPoint(QPointF pos, SChromaGroupInfo* pGroup)
{
    const double x = (pos.x() - double(fMarginX)) / double(fScale);
    const double y = ((double(nWndHeight) - double(fMarginY)) - pos.y()) / double(fScale);
    CPoint c{float(x), float(y)};
    Clamp(c);
    const CPoint w = pGroup->ptWhite;
    GetCIEIntersection(gamut.GetData(), w, c, c);

    CPoint r = pGroup->ptRed;
    CPoint g = pGroup->ptGreen;
    CPoint b = pGroup->ptBlue;
    if (nHoverPoint == 0)
        r = c;
    if (nHoverPoint == 1)
        g = c;
    if (nHoverPoint == 2)
        b = c;
    const bool bInside = IsInTriangle(w, r, g, b);
    if (nHoverPoint >= 0 && nHoverPoint <= 2) {
        if (bInside)
            PointOfGroup(*pGroup, nHoverPoint) = c;
        else if (nHoverPoint == 0 && GetNearestPoint(w, r, g, b))
            pGroup->ptRed = Narrow(ptNearest);
        else if (nHoverPoint == 1 && GetNearestPoint(w, g, r, b))
            pGroup->ptGreen = Narrow(ptNearest);
        else if (nHoverPoint == 2 && GetNearestPoint(w, b, r, g))
            pGroup->ptBlue = Narrow(ptNearest);
        return;
    }
    if (nHoverPoint != 3)
        return;

    CPoint ptCandidate = c;
    float fTemperature = 0.0F;
    if (bSnapWhite && cct.TriangAlgCalcRelativeCCT(Wide(c), &fTemperature, false)) {
        const double dx = double(c.x) - ptD65.x();
        const double dy = double(c.y) - ptD65.y();
        if (std::sqrt(dx * dx + dy * dy) < 0.025)
            ptCandidate = Narrow(ptD65);
    }
    if (IsInTriangle(c, r, g, b)) {
        pGroup->ptWhite = ptCandidate;
    } else if (GetWhiteIntersection(pGroup, c)) {
        const CPoint ptSolved = Narrow(ptNearest);
        if (Coincide(ptSolved, r))
            pGroup->ptWhite = r;
        else if (Coincide(ptSolved, g))
            pGroup->ptWhite = g;
        else if (Coincide(ptSolved, b))
            pGroup->ptWhite = b;
        else
            pGroup->ptWhite = ptSolved;
    }
}

void CPlainChart::Press(QPoint pos, bool bLeft)
{
    if (!bLeft)
        return;
    int nGroup = -1;
    int nPoint = -1;
    HitTest(pos, nGroup, nPoint);
    if (nGroup == -1)
        return;
    nHoverGroup = nGroup;
    nHoverPoint = nPoint;
    bCanDrag = MoveFlagOfGroup(*mapGroups.value(nGroup), nPoint);
    bPressed = true;
    bFirstPress = false;
    if (bCanDrag)
        bDragging = true;
    else
        nHoverGroup = -1;
}

void CPlainChart::Move(QPoint pos, bool bLeftHeld)
{
    ptMouse = pos;
    if (bLeftHeld) {
        if (!bCanDrag || HoverGroup() == nullptr)
            return;
        bMouseInside = true;
        bShowStandard = false;
        SChromaGroupInfo* const pGroup = HoverGroup();
        CalcCurrentPoint(QPointF(pos), pGroup);
        const bool bSuccessed = funcAnswer && funcAnswer(nHoverGroup, nHoverPoint);
        if (!bSuccessed && nHoverPoint >= 0 && nHoverPoint <= 2)
            PointOfGroup(*pGroup, nHoverPoint) = Narrow(ptNearest);
    } else {
        bMouseInside = gamut.IsPointInCIEPolygon(QPointF(pos));
        int nGroup = -1;
        int nPoint = -1;
        HitTest(pos, nGroup, nPoint);
        if (nGroup != -1 && nHoverPoint >= 0 && nHoverPoint <= 3)
            bCanDrag = MoveFlagOfGroup(*mapGroups.value(nGroup), nHoverPoint);
        nHoverGroup = nGroup;
        nHoverPoint = nPoint;
    }
}

void CPlainChart::Release(QPoint pos, int nWidgetWidth, int nWidgetHeight)
{
    nHoverGroup = -1;
    nHoverPoint = -1;
    bCanDrag = false;
    bMouseInside = pos.x() >= 0 && pos.y() >= 0 && pos.x() <= nWidgetWidth && pos.y() <= nWidgetHeight;
    bDragging = false;
}
