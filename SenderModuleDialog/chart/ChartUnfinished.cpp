#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"

bool CChromaticityDlgWnd::GetCIEIntersection(const QList<CPointEx<float>>&, CPointEx<float>, CPointEx<float>,
                                             CPointEx<float>&)
{
    return false;
}
void CChromaticityDlgWnd::GetFeasibleRegionNearstPoint(QList<CPointEx<float>>&, CPointEx<float>&) {}
void CChromaticityDlgWnd::GetFeasibleRegionNearstPoint2(QList<CPointEx<float>>&, CPointEx<float>&) {}
bool CChromaticityDlgWnd::GetNearestPoint(CPointEx<float>, CPointEx<float>, CPointEx<float>, CPointEx<float>)
{
    return false;
}
bool CChromaticityDlgWnd::GetNearestPoint2(CPointEx<float>, CPointEx<float>, CPointEx<float>, CPointEx<float>,
                                           CPointEx<float>&)
{
    return false;
}
bool CChromaticityDlgWnd::GetWhiteIntersection(SChromaGroupInfo*, CPointEx<float>)
{
    return false;
}
void CChromaticityDlgWnd::AddFloatExcursion(QPointF&, QPointF) {}
bool CChromaticityDlgWnd::ReCalRGB(SChromaGroupInfo*, int)
{
    return false;
}
bool CChromaticityDlgWnd::ReCalCMY(SChromaGroupInfo*)
{
    return false;
}
bool CChromaticityDlgWnd::IsPointInRegion(SChromaGroupInfo*, int)
{
    return false;
}
void CChromaticityDlgWnd::DrawBorder(QPainter&) {}
void CChromaticityDlgWnd::DrawHexCoorDialog(QPainter&) {}
void CChromaticityDlgWnd::DrawTipsString(QPainter&) {}
void CChromaticityDlgWnd::DrawCrossLine(QPainter&) {}
void CChromaticityDlgWnd::DrawCCTLine(QPainter&) {}
void CChromaticityDlgWnd::DrawCCTLineString(QPainter&, float, QPointF, int) {}
void CChromaticityDlgWnd::DrawChromTriangle(QPainter&) {}
void CChromaticityDlgWnd::DrawChromNote(QPainter&) {}
void CChromaticityDlgWnd::DrawCIEStandardShow(QPainter&) {}
int CChromaticityDlgWnd::CalcRatio()
{
    return -1;
}
void CChromaticityDlgWnd::HitTest(QPoint, int&, int&) {}
void CChromaticityDlgWnd::CalcCurrentPoint(QPointF, SChromaGroupInfo*) {}
void CChromaticityDlgWnd::mousePressEvent(QMouseEvent*) {}
void CChromaticityDlgWnd::mouseReleaseEvent(QMouseEvent*) {}
void CChromaticityDlgWnd::mouseMoveEvent(QMouseEvent*) {}
void CChromaticityDlgWnd::leaveEvent(QEvent*) {}
void CChromaticityDlgWnd::paintEvent(QPaintEvent*) {}
