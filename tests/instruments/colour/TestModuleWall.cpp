#include "instruments/colour/ModuleWall.h"
#include "instruments/colour/StandardGamut.h"
#include "tests/instruments/colour/Generate.h"
#include "tests/instruments/colour/Near.h"

#include <algorithm>
#include <limits>
#include <random>

namespace {

constexpr SChromaticity c_d65 = {0.3127, 0.3290};
constexpr double c_dNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double c_dRounding = 1e-10;

SPrimaries Nominal()
{
    return {{{0.690, 0.305}, 240.0}, {{0.190, 0.720}, 800.0}, {{0.140, 0.055}, 75.0}};
}

/// Modules scattered around the nominal primaries like one delivery of LEDs.
Modules Scattered(int nCount, unsigned int nSeed)
{
    std::mt19937 engine(nSeed);
    std::normal_distribution<double> place(0.0, 0.001);
    std::normal_distribution<double> level(0.0, 0.01);
    Modules modules;
    for (int i = 0; i < nCount; ++i) {
        SModule module = {QString::number(i), Nominal(), std::nullopt};
        for (SReading* pReading : {&module.primaries.red, &module.primaries.green, &module.primaries.blue}) {
            pReading->xy.dX += place(engine);
            pReading->xy.dY += place(engine);
            pReading->dLuminance *= 1.0 + level(engine);
        }
        modules.push_back(module);
    }
    return modules;
}

double LargestByPlainSearch(const ConvexPolygon& polygon)
{
    double dLargest = 0.0;
    for (const SPlace& a : polygon)
        for (const SPlace& b : polygon)
            for (const SPlace& c : polygon)
                dLargest = std::max(dLargest, Gamut::TriangleArea(a, b, c));
    return dLargest;
}

} // namespace

class TestModuleWall : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EqualModulesDoNotDiffer();
    void TheMeanIsTheMean();
    void AMeasuredWhiteStandsForTheSum();
    void AnOddModuleIsFound_data();
    void AnOddModuleIsFound();
    void AnEvenDeliveryHasNoOddModule();
    void TheCommonGamutLiesInEveryModules();
    void TheCommonGamutIsNotTooSmall();
    void CorrectedModulesShowTheSameColours();
    void NoModuleIsDrivenBeyondItsRange();
    void TheLimitingModuleSetsTheLevel();
    void TheOrderOfModulesDoesNotMatter();
    void TheLargestTriangleIsThePlainSearchs();
    void HostileInputIsNamed();
};

void TestModuleWall::EqualModulesDoNotDiffer()
{
    const Modules modules(5, SModule{QStringLiteral("m"), Nominal(), std::nullopt});
    const auto spread = ModuleWall::SpreadOf(modules);
    QVERIFY(bool(spread));
    QCOMPARE(int(spread->OddCount()), 0);
    for (const auto& module : spread->vecModules) {
        COMPARE_NEAR(module.worst.dUcs, 0.0, c_dRounding);
        COMPARE_NEAR(module.worst.dLuminance, 0.0, c_dRounding);
    }
    const auto common = ModuleWall::CommonOf(modules, c_d65);
    COMPARE_NEAR(common->gamut.red.dX, Nominal().red.xy.dX, c_dRounding);
    COMPARE_NEAR(common->gamut.blue.dY, Nominal().blue.xy.dY, c_dRounding);
    COMPARE_NEAR(common->dLevel, Primaries::GreatestLevel(Nominal(), c_d65)->dLevel, 1e-6);
}

void TestModuleWall::TheMeanIsTheMean()
{
    Modules modules(2, SModule{QStringLiteral("m"), Nominal(), std::nullopt});
    modules[1].primaries.red.dLuminance = 300.0;
    const SUcs uv = Chromaticity::ToUcs(Nominal().red.xy);
    modules[1].primaries.red.xy = Chromaticity::FromUcs({uv.dU + 0.01, uv.dV});
    const auto spread = ModuleWall::SpreadOf(modules);
    const SReading mean = spread->arrMean[std::size_t(enWallColour::enRed)];
    COMPARE_NEAR(mean.dLuminance, 270.0, c_dRounding);
    COMPARE_NEAR(Chromaticity::ToUcs(mean.xy).dU, uv.dU + 0.005, c_dRounding);
    COMPARE_NEAR(spread->vecModules[0].arrColours[0].dUcs, 0.005, c_dRounding);
    COMPARE_NEAR(spread->vecModules[1].arrColours[0].dLuminance, 300.0 / 270.0 - 1.0, c_dRounding);
    COMPARE_NEAR(spread->vecModules[0].arrColours[1].dUcs, 0.0, c_dRounding);
}

void TestModuleWall::AMeasuredWhiteStandsForTheSum()
{
    SModule module = {QStringLiteral("m"), Nominal(), std::nullopt};
    COMPARE_NEAR(ModuleWall::ReadingOf(module, enWallColour::enWhite).dLuminance, 1115.0, c_dRounding);
    module.white = SReading{c_d65, 1050.0};
    COMPARE_NEAR(ModuleWall::ReadingOf(module, enWallColour::enWhite).dLuminance, 1050.0, c_dRounding);
}

void TestModuleWall::AnOddModuleIsFound_data()
{
    QTest::addColumn<double>("shift");
    QTest::addColumn<double>("factor");
    QTest::addColumn<bool>("oddColour");
    QTest::addColumn<bool>("oddLuminance");
    QTest::newRow("another bin of green") << 0.02 << 1.0 << true << false;
    QTest::newRow("a dark module") << 0.0 << 0.8 << false << true;
    QTest::newRow("both") << 0.02 << 1.3 << true << true;
}

void TestModuleWall::AnOddModuleIsFound()
{
    QFETCH(double, shift);
    QFETCH(double, factor);
    Modules modules = Scattered(64, 1);
    SPrimaries& primaries = modules[17].primaries;
    primaries.green.xy.dX += shift;
    for (SReading* pReading : {&primaries.red, &primaries.green, &primaries.blue})
        pReading->dLuminance *= factor;
    const auto spread = ModuleWall::SpreadOf(modules);
    QCOMPARE(int(spread->OddCount()), 1);
    QTEST(spread->vecModules[17].bOddColour, "oddColour");
    QTEST(spread->vecModules[17].bOddLuminance, "oddLuminance");
}

void TestModuleWall::AnEvenDeliveryHasNoOddModule()
{
    // Differences that nobody sees are not odd, however regular the others are.
    Modules modules(50, SModule{QStringLiteral("m"), Nominal(), std::nullopt});
    modules[3].primaries.green.xy.dX += 0.002;
    modules[3].primaries.red.dLuminance *= 1.02;
    QCOMPARE(int(ModuleWall::SpreadOf(modules)->OddCount()), 0);
}

void TestModuleWall::TheCommonGamutLiesInEveryModules()
{
    const Modules modules = Scattered(100, 2);
    const auto common = ModuleWall::CommonOf(modules, c_d65);
    QVERIFY(bool(common));
    for (const SModule& module : modules) {
        const ConvexPolygon triangle = Gamut::Triangle(enDiagram::enXy, Primaries::GamutOf(module.primaries));
        for (const SPlace& place : common->intersection)
            QVERIFY(Gamut::Contains(triangle, place));
        for (const SChromaticity& xy : {common->gamut.red, common->gamut.green, common->gamut.blue})
            QVERIFY(Gamut::Contains(triangle, {xy.dX, xy.dY}));
    }
}

void TestModuleWall::TheCommonGamutIsNotTooSmall()
{
    const Modules modules = Scattered(100, 3);
    const auto common = ModuleWall::CommonOf(modules, c_d65);
    // Places of a grid that lie in every module's gamut lie in the intersection too.
    for (int i = 0; i < 200; ++i) {
        for (int j = 0; j < 200; ++j) {
            const SPlace place = {i / 250.0 + 0.001, j / 250.0 + 0.001};
            const bool bInAll = std::all_of(modules.begin(), modules.end(), [place](const SModule& module) {
                return Gamut::Contains(Gamut::Triangle(enDiagram::enXy, Primaries::GamutOf(module.primaries)),
                                       place);
            });
            QCOMPARE(Gamut::Contains(common->intersection, place), bInAll);
        }
    }
}

void TestModuleWall::CorrectedModulesShowTheSameColours()
{
    const Modules modules = Scattered(30, 4);
    const auto common = ModuleWall::CommonOf(modules, c_d65);
    const CColourMatrix target = *Primaries::SourceToXyz(common->gamut, c_d65, common->dLevel);
    for (std::size_t i = 0; i < modules.size(); ++i) {
        for (const Vector3& rgb : {Vector3{1.0, 0.0, 0.0}, Vector3{0.2, 0.9, 0.4}, Vector3{1.0, 1.0, 1.0}}) {
            const Vector3 shown =
                *Primaries::MatrixToXyz(modules[i].primaries) * (common->vecMatrices[i] * rgb);
            const Vector3 meant = target * rgb;
            for (std::size_t n = 0; n < 3; ++n)
                COMPARE_NEAR(shown[n], meant[n], 1e-8);
        }
    }
}

void TestModuleWall::NoModuleIsDrivenBeyondItsRange()
{
    const auto common = ModuleWall::CommonOf(Scattered(50, 5), c_d65);
    for (const CColourMatrix& matrix : common->vecMatrices)
        QCOMPARE(Primaries::ClipShare(matrix, 5).dClipped, 0.0);
}

void TestModuleWall::TheLimitingModuleSetsTheLevel()
{
    Modules modules = Scattered(50, 6);
    modules[33].primaries.blue.dLuminance *= 0.5;
    const auto common = ModuleWall::CommonOf(modules, c_d65);
    QCOMPARE(int(common->nLimitingModule), 33);
    QCOMPARE(int(common->limitingChannel), int(Primaries::enChannel::enBlue));
    const Vector3 white = common->vecMatrices[33] * Vector3{1.0, 1.0, 1.0};
    COMPARE_NEAR(white[2], 1.0, c_dRounding);
}

void TestModuleWall::TheOrderOfModulesDoesNotMatter()
{
    Modules modules = Scattered(40, 7);
    const auto common = ModuleWall::CommonOf(modules, c_d65);
    std::reverse(modules.begin(), modules.end());
    const auto reversed = ModuleWall::CommonOf(modules, c_d65);
    COMPARE_NEAR(Gamut::Area(reversed->intersection), Gamut::Area(common->intersection), c_dRounding);
    COMPARE_NEAR(reversed->dLevel, common->dLevel, 1e-6);
    COMPARE_NEAR(reversed->gamut.green.dY, common->gamut.green.dY, c_dRounding);
}

void TestModuleWall::TheLargestTriangleIsThePlainSearchs()
{
    QVERIFY(PropertyHolds("no three corners span more", [] {
        ConvexPolygon polygon = Gamut::Triangle(enDiagram::enXy, AnyGamut());
        for (int i = 0; i < 6; ++i)
            polygon = Gamut::Intersection(polygon, Gamut::Triangle(enDiagram::enXy, AnyGamut()));
        const auto corners = ModuleWall::LargestTriangle(polygon);
        RC_PRE(corners.has_value());
        const double dArea =
            Gamut::TriangleArea(polygon[(*corners)[0]], polygon[(*corners)[1]], polygon[(*corners)[2]]);
        RC_ASSERT(std::abs(dArea - LargestByPlainSearch(polygon)) < c_dRounding);
    }));
    QVERIFY(!ModuleWall::LargestTriangle({{0.1, 0.1}, {0.2, 0.2}}));
}

void TestModuleWall::HostileInputIsNamed()
{
    QCOMPARE(int(ModuleWall::SpreadOf({}).Fault()), int(enColourFault::enNoModules));
    QCOMPARE(int(ModuleWall::CommonOf({}, c_d65).Fault()), int(enColourFault::enNoModules));
    Modules modules = Scattered(4, 8);
    QCOMPARE(int(ModuleWall::CommonOf(modules, {0.7, 0.29}).Fault()),
             int(enColourFault::enWhiteOutsideGamut));
    QCOMPARE(int(ModuleWall::CommonOf(modules, {c_dNaN, 0.3}).Fault()), int(enColourFault::enNotFinite));
    modules[2].primaries.green.dLuminance = 0.0;
    QCOMPARE(int(ModuleWall::FirstFault(modules)->nModule), 2);
    QCOMPARE(int(ModuleWall::SpreadOf(modules).Fault()), int(enColourFault::enNotPositive));
    QCOMPARE(int(ModuleWall::CommonOf(modules, c_d65).Fault()), int(enColourFault::enNotPositive));
    modules[2].white = SReading{c_d65, c_dNaN};
    modules[2].primaries = Nominal();
    QCOMPARE(int(ModuleWall::SpreadOf(modules).Fault()), int(enColourFault::enNotFinite));
    const SPrimaries elsewhere = {{{0.10, 0.10}, 1.0}, {{0.12, 0.10}, 1.0}, {{0.10, 0.12}, 1.0}};
    modules = Scattered(1, 9);
    modules.push_back({QStringLiteral("elsewhere"), elsewhere, std::nullopt});
    QCOMPARE(int(ModuleWall::CommonOf(modules, c_d65).Fault()), int(enColourFault::enNoCommonGamut));
}

QTEST_APPLESS_MAIN(TestModuleWall)
#include "TestModuleWall.moc"
