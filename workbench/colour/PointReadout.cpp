#include "workbench/colour/PointReadout.h"

#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "SenderModuleDialog/chart/ChartGroupPoints.h"
#include "SenderModuleDialog/colour/CCT2ColorCoord.h"
#include "SenderModuleDialog/colour/ChromaGamutInterpolation.h"
#include "instruments/colour/SpectralWavelength.h"
#include "workbench/colour/ColourGroups.h"
#include "workbench/colour/GroupModel.h"

#include <QCoreApplication>

namespace {

/// Distance in (x, y): closer than this to the spectral locus, the cursor is on a wavelength.
constexpr double c_dNearOutline = 0.012;

/// Texts of the line below the chart.
class CReadoutText
{
    Q_DECLARE_TR_FUNCTIONS(CReadoutText)

public:
    static QString PointName(const SChromaGroupInfo& group, int nPoint)
    {
        const QString arrRgb[c_nChromaPointCount] = {tr("红"), tr("绿"), tr("蓝"), tr("白")};
        const QString arrCmy[c_nChromaPointCount] = {tr("青"), tr("品红"), tr("黄"), tr("白")};
        return group.bRgbMode ? arrRgb[nPoint] : arrCmy[nPoint];
    }

    static QString AtWavelength(const QString& strPlace, double dWavelength)
    {
        const QString strWavelength = tr("波长 %1 nm").arg(dWavelength, 0, 'f', 0);
        return strPlace.isEmpty() ? strWavelength : QStringLiteral("%1 · %2").arg(strPlace, strWavelength);
    }

    static QString OfWhite(const QString& strPlace, float fTemperature)
    {
        return tr("%1，色温 %2 K").arg(strPlace).arg(qRound(fTemperature));
    }
};

QString PlaceText(QPointF pt)
{
    return QStringLiteral("x, y = %1").arg(ColourGroups::PointText({float(pt.x()), float(pt.y())}));
}

QString Describe(const CChromaticityDlgWnd& chart, const SChromaGroupInfo& group, int nPoint)
{
    const CPointEx<float> point = GroupPointOrOrigin(group, nPoint);
    const QPointF pt(double(point.x), double(point.y));
    const QString strPlace =
        QStringLiteral("%1 · %2 · %3")
            .arg(CGroupModel::GroupName(group), CReadoutText::PointName(group, nPoint), PlaceText(pt));
    float fTemperature = 0.0F;
    const bool bTemperature = nPoint == enWhitePoint && point.x > 0.0F && point.y > 0.0F &&
                              chart.m_pCct->TriangAlgCalcRelativeCCT(pt, &fTemperature, false);
    return bTemperature ? CReadoutText::OfWhite(strPlace, fTemperature) : strPlace;
}

} // namespace

QString PointReadout::OfPoint(const CChromaticityDlgWnd& chart, int nGroup, int nPoint)
{
    const SChromaGroupInfo* pGroup = chart.m_mapGroups.value(nGroup, nullptr);
    return pGroup != nullptr && IsChromaPoint(nPoint) ? Describe(chart, *pGroup, nPoint) : QString();
}

QString PointReadout::Of(const CChromaticityDlgWnd& chart)
{
    const SChromaGroupInfo* pGroup = chart.m_mapGroups.value(chart.m_nHoverGroup, nullptr);
    if (pGroup != nullptr && IsChromaPoint(chart.m_nHoverPoint))
        return Describe(chart, *pGroup, chart.m_nHoverPoint);
    const QPointF pt = chart.Mapping().ToChromaticity(chart.m_ptMouse);
    const QString strPlace = chart.m_pGamut->IsPointInCIEPolygon(pt) ? PlaceText(pt) : QString();
    const auto nearest = SpectralWavelength::NearestTo({pt.x(), pt.y()});
    return nearest.dDistance > c_dNearOutline ? strPlace
                                              : CReadoutText::AtWavelength(strPlace, nearest.dWavelength);
}
