#ifndef TESTS_CHART_CHARTINPUTS_H
#define TESTS_CHART_CHARTINPUTS_H

#include "SenderModuleDialog/chart/ChromaGroupInfo.h"
#include "host/CommonClass/PointEx.h"

#include <QPointF>
#include <QString>
#include <QVector>

#include <random>

/// Points and groups to try the chart with: everyday ones, and those that probe vertices, axes, equal
/// coordinates and NaN. The same seed gives the same row of inputs.
class CChartInputs
{
public:
    /// @param vecLocus the outline to stay near
    CChartInputs(unsigned int nSeed, const QVector<QPointF>& vecLocus);

    CPointEx<float> Point();
    /// A point that is usually a real colour, and never NaN.
    CPointEx<float> OrdinaryPoint();
    /// A group of points of either kind; the flags at random.
    SChromaGroupInfo Group();
    /// A group without NaN.
    SChromaGroupInfo OrdinaryGroup();
    /// A whole number from nFirst to nLast.
    int Whole(int nFirst, int nLast);
    bool Coin() { return Whole(0, 1) == 1; }
    float Real(float fFirst, float fLast);

private:
    float Coordinate();
    CPointEx<float> NearLocus();

    std::mt19937 m_generator;
    QVector<QPointF> m_vecLocus;
    CPointEx<float> m_ptLast; ///< repeated now and then, so that points and coordinates coincide
};

/// Whether two points are the same to the last bit; NaN is the same as NaN.
bool SamePoints(CPointEx<float> ptFirst, CPointEx<float> ptSecond);

/// Where the points of two groups differ in any bit; empty if nowhere.
QString PointDifference(const SChromaGroupInfo& actual, const SChromaGroupInfo& expected);

#endif // TESTS_CHART_CHARTINPUTS_H
