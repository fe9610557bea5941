#include "tests/chart/ChartInputs.h"

#include "SenderModuleDialog/chart/ChartGroupPoints.h"
#include "tests/support/ExactCompare.h"

#include <cmath>
#include <limits>

namespace {

/// Values at which comparisons change sides, and values that are no chromaticities at all.
constexpr float c_arrHostile[] = {
    0.0F,
    -0.0F,
    1.0F,
    -1.0F,
    0.0001F,
    -0.0001F,
    1.0F / 3.0F,
    1.1920929e-07F,
    65536.0F,
    std::numeric_limits<float>::max(),
    -std::numeric_limits<float>::max(),
    std::numeric_limits<float>::denorm_min(),
    std::numeric_limits<float>::infinity(),
    -std::numeric_limits<float>::infinity(),
    std::numeric_limits<float>::quiet_NaN(),
};

constexpr int c_nHostile = int(std::size(c_arrHostile));

} // namespace

CChartInputs::CChartInputs(unsigned int nSeed, const QVector<QPointF>& vecLocus)
    : m_generator(nSeed)
    , m_vecLocus(vecLocus)
{}

int CChartInputs::Whole(int nFirst, int nLast)
{
    // The distributions of the standard library differ between implementations; this does not.
    return nFirst + int(m_generator() % unsigned(nLast - nFirst + 1));
}

float CChartInputs::Real(float fFirst, float fLast)
{
    constexpr float c_fSteps = 16777216.0F;
    return fFirst + (fLast - fFirst) * (float(m_generator() >> 8U) / c_fSteps);
}

float CChartInputs::Coordinate()
{
    switch (Whole(0, 9)) {
    case 0:
        return c_arrHostile[Whole(0, c_nHostile - 1)];
    case 1:
        return float(Whole(-2, 10)) / 10.0F;
    case 2:
        return Coin() ? m_ptLast.x : m_ptLast.y;
    default:
        return Real(-0.2F, 1.0F);
    }
}

CPointEx<float> CChartInputs::NearLocus()
{
    const int nCount = m_vecLocus.size();
    const int nVertex = Whole(0, nCount - 1);
    const QPointF ptVertex = m_vecLocus[nVertex];
    const QPointF ptNext = m_vecLocus[(nVertex + 1) % nCount];
    const QPointF ptEdge = ptVertex + (ptNext - ptVertex) * double(Real(0.0F, 1.0F));
    const QPointF pt = Coin() ? ptVertex : ptEdge;
    const float fReach = Coin() ? 0.0F : 0.0002F;
    return {float(pt.x()) + Real(-fReach, fReach), float(pt.y()) + Real(-fReach, fReach)};
}

CPointEx<float> CChartInputs::Point()
{
    switch (Whole(0, 5)) {
    case 0:
        m_ptLast = NearLocus();
        break;
    case 1:
        break;
    case 2:
        m_ptLast = {m_ptLast.x + Real(-0.0002F, 0.0002F), m_ptLast.y + Real(-0.0002F, 0.0002F)};
        break;
    case 3:
        m_ptLast = OrdinaryPoint();
        break;
    default:
        m_ptLast = {Coordinate(), Coordinate()};
    }
    return m_ptLast;
}

CPointEx<float> CChartInputs::OrdinaryPoint()
{
    return Whole(0, 9) == 0 ? NearLocus() : CPointEx<float>(Real(-0.05F, 0.8F), Real(-0.05F, 0.9F));
}

SChromaGroupInfo CChartInputs::Group()
{
    SChromaGroupInfo group = OrdinaryGroup();
    if (Coin())
        return group;
    for (int i = 0; i < c_nChromaPointCount; ++i)
        GroupPoint(group, i) = Point();
    return group;
}

SChromaGroupInfo CChartInputs::OrdinaryGroup()
{
    SChromaGroupInfo group;
    for (int i = 0; i < c_nChromaPointCount; ++i)
        GroupPoint(group, i) = OrdinaryPoint();
    if (Coin())
        group.ptWhite = {Real(0.25F, 0.4F), Real(0.25F, 0.4F)};
    group.bMoveRed = Coin();
    group.bMoveGreen = Coin();
    group.bMoveBlue = Coin();
    group.bMoveWhite = Coin();
    group.bVisible = Coin();
    group.bRgbMode = Coin();
    return group;
}

bool SamePoints(CPointEx<float> ptFirst, CPointEx<float> ptSecond)
{
    return ExactCompare::SameBits(ptFirst.x, ptSecond.x) && ExactCompare::SameBits(ptFirst.y, ptSecond.y);
}

QString PointDifference(const SChromaGroupInfo& actual, const SChromaGroupInfo& expected)
{
    QString strDifference;
    for (int i = 0; i < c_nChromaPointCount; ++i) {
        const CPointEx<float> ptActual = GroupPointOrOrigin(actual, i);
        const CPointEx<float> ptExpected = GroupPointOrOrigin(expected, i);
        if (!ExactCompare::SameBits(ptActual.x, ptExpected.x))
            strDifference += QStringLiteral("point %1 x: %2; ")
                                 .arg(i)
                                 .arg(ExactCompare::Difference(ptActual.x, ptExpected.x));
        if (!ExactCompare::SameBits(ptActual.y, ptExpected.y))
            strDifference += QStringLiteral("point %1 y: %2; ")
                                 .arg(i)
                                 .arg(ExactCompare::Difference(ptActual.y, ptExpected.y));
    }
    return strDifference;
}
