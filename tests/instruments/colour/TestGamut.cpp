#include "SenderModuleDialog/geometry/CalcChromaRatio.h"
#include "instruments/colour/StandardGamut.h"
#include "tests/instruments/colour/Generate.h"
#include "tests/instruments/colour/Near.h"

#include <limits>

namespace {

constexpr double c_dNaN = std::numeric_limits<double>::quiet_NaN();

/// The chart's own calculation adds up thin triangles by Heron's formula in single precision.
constexpr double c_dSinglePrecision = 5e-4;
constexpr double c_dRounding = 1e-12;

SGamut Standard(int nIndex)
{
    return StandardGamut::Primaries(c_arrColourStandards[nIndex]);
}

std::vector<CPointEx<float>> ToSingle(const SGamut& gamut)
{
    const auto Single = [](SChromaticity xy) { return CPointEx<float>(float(xy.dX), float(xy.dY)); };
    return {Single(gamut.red), Single(gamut.green), Single(gamut.blue)};
}

/// The part of a gamut that another covers, by testing the places of a fine grid.
double CoverageByGrid(enDiagram diagram, const SGamut& covered, const SGamut& covering)
{
    constexpr int c_nPlaces = 700;
    const ConvexPolygon reference = Gamut::Triangle(diagram, covered);
    const ConvexPolygon cover = Gamut::Triangle(diagram, covering);
    int nReference = 0;
    int nBoth = 0;
    for (int i = 0; i < c_nPlaces; ++i) {
        for (int j = 0; j < c_nPlaces; ++j) {
            const SPlace place = {(i + 0.5) / c_nPlaces, (j + 0.5) / c_nPlaces};
            if (!Gamut::Contains(reference, place))
                continue;
            ++nReference;
            nBoth += Gamut::Contains(cover, place);
        }
    }
    return double(nBoth) / nReference;
}

SGamut Permuted(const SGamut& gamut)
{
    return {gamut.blue, gamut.red, gamut.green};
}

SGamut Mirrored(const SGamut& gamut)
{
    return {gamut.green, gamut.red, gamut.blue};
}

} // namespace

Q_DECLARE_METATYPE(SGamut)
Q_DECLARE_METATYPE(enColourFault)

class TestGamut : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void StandardsAreTheirDecimals();
    void CoverageInXyIsTheLibrarys();
    void CoverageInUcsIsTheGrids();
    void AGamutCoversItself();
    void TheOrderOfPrimariesDoesNotMatter();
    void AreasComeFromBothSides();
    void ApartIsNothing();
    void EveryStandardIsInTheTable();
    void IntersectionIsSymmetric();
    void IntersectionLiesInBoth();
    void WhatIsNoGamutIsNamed_data();
    void WhatIsNoGamutIsNamed();
};

void TestGamut::StandardsAreTheirDecimals()
{
    const SGamut p3 = Standard(7);
    QVERIFY(p3.green.dX == 0.265 && p3.green.dY == 0.69);
    const SChromaticity white = StandardGamut::White(c_arrColourStandards[7]);
    QVERIFY(white.dX == 0.3127 && white.dY == 0.329);
}

void TestGamut::CoverageInXyIsTheLibrarys()
{
    QVERIFY(PropertyHolds("the same coverage as in single precision", [] {
        const SGamut covered = AnyGamut();
        const SGamut covering = AnyGamut();
        std::vector<CPointEx<float>> vecCovered = ToSingle(covered);
        std::vector<CPointEx<float>> vecCovering = ToSingle(covering);
        float fRatio = -1.0F;
        CCalcChromaRatio().CalcChromaRatio(vecCovering, vecCovered, fRatio);
        const auto coverage = Gamut::CoverageOf(enDiagram::enXy, covered, covering);
        RC_ASSERT(std::abs(coverage->dCovered - double(fRatio)) < c_dSinglePrecision);
    }));
}

void TestGamut::CoverageInUcsIsTheGrids()
{
    for (const int nCovered : {0, 3, 6}) {
        const auto coverage = Gamut::CoverageOf(enDiagram::enUcs, Standard(nCovered), Standard(7));
        COMPARE_NEAR(coverage->dCovered, CoverageByGrid(enDiagram::enUcs, Standard(nCovered), Standard(7)),
                     3e-3);
    }
}

void TestGamut::AGamutCoversItself()
{
    QVERIFY(PropertyHolds("of itself a gamut covers all, in both diagrams", [] {
        const SGamut gamut = AnyGamut();
        for (const enDiagram diagram : {enDiagram::enXy, enDiagram::enUcs}) {
            const auto coverage = Gamut::CoverageOf(diagram, gamut, gamut);
            RC_ASSERT(std::abs(coverage->dCovered - 1.0) < c_dRounding);
            RC_ASSERT(std::abs(coverage->dAreaRatio - 1.0) < c_dRounding);
        }
    }));
}

void TestGamut::TheOrderOfPrimariesDoesNotMatter()
{
    QVERIFY(PropertyHolds("primaries in any order and direction", [] {
        const SGamut covered = AnyGamut();
        const SGamut covering = AnyGamut();
        const double dCovered = Gamut::CoverageOf(enDiagram::enXy, covered, covering)->dCovered;
        for (const SGamut& gamut : {Permuted(covering), Mirrored(covering)})
            RC_ASSERT(std::abs(Gamut::CoverageOf(enDiagram::enXy, covered, gamut)->dCovered - dCovered) <
                      c_dRounding);
    }));
}

void TestGamut::AreasComeFromBothSides()
{
    QVERIFY(PropertyHolds("coverage times area is the same area from both sides", [] {
        const SGamut a = AnyGamut();
        const SGamut b = AnyGamut();
        for (const enDiagram diagram : {enDiagram::enXy, enDiagram::enUcs}) {
            const auto aByB = Gamut::CoverageOf(diagram, a, b);
            const auto bByA = Gamut::CoverageOf(diagram, b, a);
            RC_ASSERT(std::abs(aByB->dAreaRatio * bByA->dAreaRatio - 1.0) < c_dRounding);
            RC_ASSERT(std::abs(aByB->dCovered - bByA->dCovered * aByB->dAreaRatio) < c_dRounding);
        }
    }));
}

void TestGamut::ApartIsNothing()
{
    const SGamut left = {{0.10, 0.10}, {0.15, 0.10}, {0.10, 0.15}};
    const SGamut right = {{0.50, 0.10}, {0.55, 0.10}, {0.50, 0.15}};
    QCOMPARE(Gamut::CoverageOf(enDiagram::enXy, left, right)->dCovered, 0.0);
    QCOMPARE(Gamut::CoverageOf(enDiagram::enUcs, left, right)->dCovered, 0.0);
}

void TestGamut::EveryStandardIsInTheTable()
{
    const auto coverages = Gamut::CoverageOfStandards(Standard(6));
    QVERIFY(bool(coverages));
    QCOMPARE(QByteArray((*coverages)[6].szName), QByteArray("Rec2020"));
    COMPARE_NEAR((*coverages)[6].xy.dCovered, 1.0, c_dRounding);
    QVERIFY((*coverages)[0].xy.dAreaRatio > 1.8);
    // What the chart tells of DCIP3 and Rec2020: 71.73 %.
    COMPARE_NEAR((*Gamut::CoverageOfStandards(Standard(7)))[6].xy.dCovered, 0.7173, 5e-5);
}

void TestGamut::IntersectionIsSymmetric()
{
    QVERIFY(PropertyHolds("a with b has the area of b with a", [] {
        const ConvexPolygon a = Gamut::Triangle(enDiagram::enXy, AnyGamut());
        const ConvexPolygon b = Gamut::Triangle(enDiagram::enXy, AnyGamut());
        RC_ASSERT(std::abs(Gamut::Area(Gamut::Intersection(a, b)) - Gamut::Area(Gamut::Intersection(b, a))) <
                  c_dRounding);
    }));
}

void TestGamut::IntersectionLiesInBoth()
{
    QVERIFY(PropertyHolds("every corner of the intersection lies in both", [] {
        const ConvexPolygon a = Gamut::Triangle(enDiagram::enXy, AnyGamut());
        const ConvexPolygon b = Gamut::Triangle(enDiagram::enXy, AnyGamut());
        for (const SPlace& place : Gamut::Intersection(a, b)) {
            RC_ASSERT(Gamut::Contains(a, place));
            RC_ASSERT(Gamut::Contains(b, place));
        }
    }));
}

void TestGamut::WhatIsNoGamutIsNamed_data()
{
    QTest::addColumn<SGamut>("gamut");
    QTest::addColumn<enColourFault>("fault");
    QTest::newRow("DCIP3") << Standard(7) << enColourFault::enNone;
    QTest::newRow("one line") << SGamut{{0.1, 0.1}, {0.2, 0.2}, {0.3, 0.3}}
                              << enColourFault::enDegenerateGamut;
    QTest::newRow("one point") << SGamut{{0.3, 0.3}, {0.3, 0.3}, {0.3, 0.3}}
                               << enColourFault::enDegenerateGamut;
    QTest::newRow("NaN") << SGamut{{0.64, 0.33}, {0.3, c_dNaN}, {0.15, 0.06}} << enColourFault::enNotFinite;
    QTest::newRow("zero") << SGamut{{0.64, 0.33}, {0.3, 0.6}, {0.0, 0.0}} << enColourFault::enNotChromaticity;
}

void TestGamut::WhatIsNoGamutIsNamed()
{
    QFETCH(SGamut, gamut);
    QFETCH(enColourFault, fault);
    QCOMPARE(int(Gamut::Check(gamut)), int(fault));
    if (fault == enColourFault::enNone)
        return;
    QCOMPARE(int(Gamut::CoverageOf(enDiagram::enXy, Standard(0), gamut).Fault()), int(fault));
    QCOMPARE(int(Gamut::CoverageOf(enDiagram::enUcs, gamut, Standard(0)).Fault()), int(fault));
    QCOMPARE(int(Gamut::CoverageOfStandards(gamut).Fault()), int(fault));
}

QTEST_APPLESS_MAIN(TestGamut)
#include "TestGamut.moc"
