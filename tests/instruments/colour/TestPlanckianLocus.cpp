#include "SenderModuleDialog/colour/CIE1931Observer.h"
#include "instruments/colour/PlanckianLocus.h"
#include "tests/instruments/colour/Generate.h"
#include "tests/instruments/colour/Near.h"

#include <algorithm>
#include <limits>
#include <utility>
#include <vector>

namespace {

constexpr double c_dNaN = std::numeric_limits<double>::quiet_NaN();

/// What is promised against the locus itself.
constexpr double c_dKelvinTolerance = 0.1;
constexpr double c_dDuvTolerance = 1e-6;

struct SPlainPoint
{
    long double dU;
    long double dV;
};

/// The locus by its definition: Planck's law summed over the observer, every step in extended precision.
SPlainPoint PlainPoint(long double dKelvin)
{
    long double dX = 0.0L;
    long double dY = 0.0L;
    long double dZ = 0.0L;
    for (const SObserverRow& row : c_arrObserver) {
        const long double dMetres = static_cast<long double>(row.dWavelength) * 1e-9L;
        const long double dSquare = dMetres * dMetres * 1e12L;
        const long double dExitance =
            1.0L / (dSquare * dSquare * dMetres * 1e6L * std::expm1(0.014388L / (dMetres * dKelvin)));
        dX += static_cast<long double>(row.dX) * dExitance;
        dY += static_cast<long double>(row.dY) * dExitance;
        dZ += static_cast<long double>(row.dZ) * dExitance;
    }
    const long double dDivisor = dX + 15.0L * dY + 3.0L * dZ;
    return {4.0L * dX / dDivisor, 6.0L * dY / dDivisor};
}

long double PlainDistance(long double dKelvin, const SUcs1960& uv)
{
    const SPlainPoint pt = PlainPoint(dKelvin);
    return std::hypot(pt.dU - static_cast<long double>(uv.dU), pt.dV - static_cast<long double>(uv.dV));
}

/// Steps of the dense walk: half a percent.
constexpr long double c_dStep = 1.005L;

/// The temperature of the nearest of many points along the whole range.
long double NearestOfMany(const SUcs1960& uv)
{
    static const std::vector<std::pair<long double, SPlainPoint>> s_vecPoints = [] {
        std::vector<std::pair<long double, SPlainPoint>> vecPoints;
        for (long double dKelvin = 990.0L; dKelvin < 20400.0L; dKelvin *= c_dStep)
            vecPoints.emplace_back(dKelvin, PlainPoint(dKelvin));
        return vecPoints;
    }();
    const auto DistanceTo = [&uv](const auto& point) {
        return std::hypot(point.second.dU - static_cast<long double>(uv.dU),
                          point.second.dV - static_cast<long double>(uv.dV));
    };
    return std::min_element(s_vecPoints.begin(), s_vecPoints.end(),
                            [&](const auto& a, const auto& b) { return DistanceTo(a) < DistanceTo(b); })
        ->first;
}

/// The nearest temperature by a golden section search around the nearest of many: no table, no derivative.
long double PlainTemperature(const SUcs1960& uv)
{
    const long double dBest = NearestOfMany(uv);
    long double dLow = dBest / c_dStep;
    long double dHigh = dBest * c_dStep;
    const long double dGolden = (std::sqrt(5.0L) - 1.0L) / 2.0L;
    while (dHigh - dLow > 1e-8L * dLow) {
        const long double dFirst = dHigh - (dHigh - dLow) * dGolden;
        const long double dSecond = dLow + (dHigh - dLow) * dGolden;
        if (PlainDistance(dFirst, uv) < PlainDistance(dSecond, uv))
            dHigh = dSecond;
        else
            dLow = dFirst;
    }
    return (dLow + dHigh) / 2.0L;
}

SChromaticity ToXy(SUcs1960 uv)
{
    return Chromaticity::FromUcs({uv.dU, 1.5 * uv.dV});
}

/// A point off the locus at a right angle.
SChromaticity OffLocus(double dKelvin, double dDuv)
{
    const SPlainPoint before = PlainPoint(static_cast<long double>(dKelvin) * 0.9999L);
    const SPlainPoint after = PlainPoint(static_cast<long double>(dKelvin) * 1.0001L);
    const double dU = double(after.dU - before.dU);
    const double dV = double(after.dV - before.dV);
    const double dLength = std::hypot(dU, dV);
    const SPlainPoint foot = PlainPoint(static_cast<long double>(dKelvin));
    // Toward rising temperatures the locus runs to smaller u, so green is on the right.
    return ToXy({double(foot.dU) + dDuv * dV / dLength, double(foot.dV) - dDuv * dU / dLength});
}

} // namespace

Q_DECLARE_METATYPE(SChromaticity)
Q_DECLARE_METATYPE(enColourFault)

class TestPlanckianLocus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheLocusIsPlancksLaw();
    void PublishedTemperatures_data();
    void PublishedTemperatures();
    void TheNearestPointIsTheDenseReferences();
    void BothEndsBelongToTheRange();
    void TemperaturesBeyondTheRangeAreRefused_data();
    void TemperaturesBeyondTheRangeAreRefused();
    void DuvIsPositiveAboveTheLocus();
    void FarFromTheLocusATemperatureMeansNothing();
};

void TestPlanckianLocus::TheLocusIsPlancksLaw()
{
    for (const double dKelvin : {1000.0, 2855.54, 4000.0, 6504.0, 20000.0}) {
        const SUcs1960 uv = PlanckianLocus::PointOfTemperature(dKelvin);
        const SPlainPoint plain = PlainPoint(static_cast<long double>(dKelvin));
        COMPARE_NEAR(uv.dU, double(plain.dU), 1e-13);
        COMPARE_NEAR(uv.dV, double(plain.dV), 1e-13);
    }
}

void TestPlanckianLocus::PublishedTemperatures_data()
{
    QTest::addColumn<SChromaticity>("xy");
    QTest::addColumn<double>("kelvin");
    QTest::addColumn<double>("duv");
    QTest::addColumn<double>("tolerance");
    // CIE 15:2018: illuminant A is a Planckian radiator of 2848 K with c2 = 0.01435, which is 2855.54 K with
    // 0.014388, and D65 has 6504 K (6503.61 K in CIE 15:2004, rounded coordinates).
    QTest::newRow("illuminant A") << SChromaticity{0.44758, 0.40745} << 2855.54 << 0.0 << 0.5;
    QTest::newRow("illuminant D65") << SChromaticity{0.31272, 0.32903} << 6504.0 << 0.0032 << 1.0;
    QTest::newRow("illuminant D50") << SChromaticity{0.34567, 0.35851} << 5003.0 << 0.0032 << 1.5;
    // Y. Ohno, Practical use and calculation of CCT and Duv, LEUKOS 10, 2014, with c2 = 0.0143877.
    QTest::newRow("Ohno's D65") << ToXy({0.1978, 0.3122}) << 6507.5 << 0.0032 << 0.5;
}

void TestPlanckianLocus::PublishedTemperatures()
{
    QFETCH(SChromaticity, xy);
    QFETCH(double, kelvin);
    QFETCH(double, duv);
    QFETCH(double, tolerance);
    const auto temperature = PlanckianLocus::TemperatureOf(xy);
    QVERIFY(bool(temperature));
    COMPARE_NEAR(temperature->dKelvin, kelvin, tolerance);
    COMPARE_NEAR(temperature->dDuv, duv, 5e-5);
    QVERIFY(temperature->IsMeaningful());
}

void TestPlanckianLocus::TheNearestPointIsTheDenseReferences()
{
    double dLargestKelvin = 0.0;
    double dLargestDuv = 0.0;
    // Evenly in mired, which is how finely the locus is told apart, on both sides and near both ends.
    for (int i = 0; i <= 60; ++i) {
        const double dKelvin = 1e6 / (50.2 + 949.0 * i / 60.0);
        for (const double dDuv : {-0.02, -0.003, 0.0, 0.0005, 0.02}) {
            const SChromaticity xy = OffLocus(dKelvin, dDuv);
            // Beside the warmest radiators there are no colours.
            if (Chromaticity::Check(xy) != enColourFault::enNone)
                continue;
            const SUcs1960 uv = Chromaticity::ToUcs1960(Chromaticity::ToUcs(xy));
            const auto temperature = PlanckianLocus::TemperatureOf(xy);
            QVERIFY(bool(temperature));
            const long double dPlain = PlainTemperature(uv);
            dLargestKelvin = std::max(dLargestKelvin, std::abs(temperature->dKelvin - double(dPlain)));
            dLargestDuv = std::max(dLargestDuv,
                                   std::abs(std::abs(temperature->dDuv) - double(PlainDistance(dPlain, uv))));
        }
    }
    qInfo("largest differences: %.3g K, %.3g in Duv", dLargestKelvin, dLargestDuv);
    QVERIFY(dLargestKelvin < c_dKelvinTolerance);
    QVERIFY(dLargestDuv < c_dDuvTolerance);
}

void TestPlanckianLocus::BothEndsBelongToTheRange()
{
    for (const double dKelvin : {1000.0, 20000.0}) {
        const auto temperature =
            PlanckianLocus::TemperatureOf(ToXy(PlanckianLocus::PointOfTemperature(dKelvin)));
        QVERIFY(bool(temperature));
        COMPARE_NEAR(temperature->dKelvin, dKelvin, 1e-3);
    }
}

void TestPlanckianLocus::TemperaturesBeyondTheRangeAreRefused_data()
{
    QTest::addColumn<SChromaticity>("xy");
    QTest::addColumn<enColourFault>("fault");
    const auto OfTemperature = [](double dKelvin) {
        return ToXy(PlanckianLocus::PointOfTemperature(dKelvin));
    };
    QTest::newRow("just too warm") << OfTemperature(999.5) << enColourFault::enNoTemperature;
    QTest::newRow("just too cold") << OfTemperature(20005.0) << enColourFault::enNoTemperature;
    QTest::newRow("much too cold") << OfTemperature(100000.0) << enColourFault::enNoTemperature;
    QTest::newRow("blue") << SChromaticity{0.15, 0.06} << enColourFault::enNoTemperature;
    QTest::newRow("NaN") << SChromaticity{c_dNaN, 0.3} << enColourFault::enNotFinite;
    QTest::newRow("zero") << SChromaticity{0.0, 0.0} << enColourFault::enNotChromaticity;
}

void TestPlanckianLocus::TemperaturesBeyondTheRangeAreRefused()
{
    QFETCH(SChromaticity, xy);
    QFETCH(enColourFault, fault);
    const auto temperature = PlanckianLocus::TemperatureOf(xy);
    QVERIFY(!temperature);
    QCOMPARE(int(temperature.Fault()), int(fault));
}

void TestPlanckianLocus::DuvIsPositiveAboveTheLocus()
{
    QVERIFY(PropertyHolds("a point off the locus has its distance and its side back", [] {
        const double dKelvin = 1e6 / AnyBetween(51.0, 990.0);
        const double dDuv = AnyBetween(-0.03, 0.03);
        const SChromaticity xy = OffLocus(dKelvin, dDuv);
        RC_PRE(Chromaticity::Check(xy) == enColourFault::enNone);
        const auto temperature = PlanckianLocus::TemperatureOf(xy);
        RC_ASSERT(bool(temperature));
        RC_ASSERT(std::abs(temperature->dDuv - dDuv) < c_dDuvTolerance);
        RC_ASSERT(std::abs(1e6 / temperature->dKelvin - 1e6 / dKelvin) < 0.01);
    }));
}

void TestPlanckianLocus::FarFromTheLocusATemperatureMeansNothing()
{
    QVERIFY(PlanckianLocus::TemperatureOf(OffLocus(4000.0, 0.049))->IsMeaningful());
    QVERIFY(!PlanckianLocus::TemperatureOf(OffLocus(4000.0, 0.051))->IsMeaningful());
    QVERIFY(!PlanckianLocus::TemperatureOf(OffLocus(4000.0, -0.051))->IsMeaningful());
}

QTEST_APPLESS_MAIN(TestPlanckianLocus)
#include "TestPlanckianLocus.moc"
