#include "SenderModuleDialog/colour/ChromaGamutInterpolation.h"
#include "tests/support/AllocationCounter.h"
#include "tests/support/ExactCompare.h"

#include <QLineF>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

/// The middle of the longest edge, the purple line.
QPointF MiddleOfPurpleLine(const QVector<QPointF>& vecOutline)
{
    QLineF longest;
    for (int i = 0; i < vecOutline.size(); ++i) {
        const QLineF edge(vecOutline[i], vecOutline[(i + 1) % vecOutline.size()]);
        if (edge.length() > longest.length())
            longest = edge;
    }
    return longest.center();
}

} // namespace

class TestChromaGamutInterpolation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void OutlineStartsAt404Nanometres();
    void OutlineReachesTheTopOfTheLocus();
    void EveryCallOfGetDataAppendsACopy();
    void UsesAreAppendedWhenTheListIsAskedFor();
    void UsesOfAWrittenOutlineKeepItsPoints();
    void InsideTest_data();
    void InsideTest();
    void NearAVertexIsInside();
    void NearThePurpleLineIsOutside();
    void EmptiedOutlineContainsNothing();
    void WrittenOutlineDecides();
    void InsideTestDoesNotAllocate();
};

void TestChromaGamutInterpolation::OutlineStartsAt404Nanometres()
{
    CChromaGamutInterpolation gamut;
    QCOMPARE(gamut.GetQPointFData().size(), 156);
    COMPARE_BITS(float(gamut.GetQPointFData()[0].x()), 0.17310095F);
    COMPARE_BITS(float(gamut.GetQPointFData()[0].y()), 0.0047738748F);
}

void TestChromaGamutInterpolation::OutlineReachesTheTopOfTheLocus()
{
    CChromaGamutInterpolation gamut;
    const QVector<QPointF> vecOutline = gamut.GetQPointFData();
    const auto top = std::max_element(vecOutline.cbegin(), vecOutline.cend(),
                                      [](QPointF a, QPointF b) { return a.y() < b.y(); });
    QVERIFY(std::abs(top->x() - 0.0820534) < 1e-7);
    QVERIFY(std::abs(top->y() - 0.8340903) < 1e-7);
}

void TestChromaGamutInterpolation::EveryCallOfGetDataAppendsACopy()
{
    CChromaGamutInterpolation gamut;
    gamut.GetData();
    const QList<CPointEx<float>>& listPoints = gamut.GetData();
    QCOMPARE(listPoints.size(), 312);
    for (int i = 0; i < 156; ++i) {
        COMPARE_BITS(listPoints[i].x, float(gamut.GetQPointFData()[i].x()));
        COMPARE_BITS(listPoints[i].y, float(gamut.GetQPointFData()[i].y()));
        COMPARE_BITS(listPoints[i + 156].x, listPoints[i].x);
        COMPARE_BITS(listPoints[i + 156].y, listPoints[i].y);
    }
}

void TestChromaGamutInterpolation::UsesAreAppendedWhenTheListIsAskedFor()
{
    CChromaGamutInterpolation gamut;
    for (int i = 0; i < 3; ++i) {
        const CChromaGamutInterpolation::SFloatOutline outline = gamut.UseFloatOutline();
        QCOMPARE(outline.nCount, 156);
        COMPARE_BITS(outline.pPoints[0].x, 0.17310095F);
    }
    QCOMPARE(gamut.GetData().size(), 4 * 156);
    QCOMPARE(gamut.GetData().size(), 5 * 156);
}

void TestChromaGamutInterpolation::UsesOfAWrittenOutlineKeepItsPoints()
{
    CChromaGamutInterpolation gamut;
    gamut.UseFloatOutline();
    gamut.GetQPointFData() = {QPointF(0.25, 0.5)};
    const CChromaGamutInterpolation::SFloatOutline outline = gamut.UseFloatOutline();
    QCOMPARE(outline.nCount, 1);
    COMPARE_BITS(outline.pPoints[0].x, 0.25F);
    gamut.GetQPointFData()[0] = QPointF(0.75, 0.5);
    const QList<CPointEx<float>>& listPoints = gamut.GetData();
    QCOMPARE(listPoints.size(), 156 + 1 + 1);
    COMPARE_BITS(listPoints[0].x, 0.17310095F);
    COMPARE_BITS(listPoints[156].x, 0.25F);
    COMPARE_BITS(listPoints[157].x, 0.75F);
}

void TestChromaGamutInterpolation::InsideTest_data()
{
    QTest::addColumn<QPointF>("pt");
    QTest::addColumn<bool>("bInside");
    const double dNaN = std::numeric_limits<double>::quiet_NaN();
    const double dInf = std::numeric_limits<double>::infinity();
    QTest::newRow("D65") << QPointF(0.3127, 0.3290) << true;
    QTest::newRow("outside the triangle of all chromaticities") << QPointF(0.9, 0.9) << false;
    QTest::newRow("origin") << QPointF(0.0, 0.0) << false;
    QTest::newRow("x is not a number") << QPointF(dNaN, 0.3) << false;
    QTest::newRow("y is not a number") << QPointF(0.3, dNaN) << false;
    QTest::newRow("x is infinite") << QPointF(-dInf, 0.3) << false;
    QTest::newRow("y is infinite") << QPointF(0.3, dInf) << false;
    QTest::newRow("pixels") << QPointF(400.0, 300.0) << false;
}

void TestChromaGamutInterpolation::InsideTest()
{
    QFETCH(QPointF, pt);
    QTEST(CChromaGamutInterpolation().IsPointInCIEPolygon(pt), "bInside");
}

void TestChromaGamutInterpolation::NearAVertexIsInside()
{
    CChromaGamutInterpolation gamut;
    const QPointF ptLowest = gamut.GetQPointFData()[0];
    QVERIFY(gamut.IsPointInCIEPolygon(ptLowest + QPointF(-0.00005, -0.00005)));
    QVERIFY(!gamut.IsPointInCIEPolygon(ptLowest + QPointF(-0.00005, -0.00015)));
}

void TestChromaGamutInterpolation::NearThePurpleLineIsOutside()
{
    CChromaGamutInterpolation gamut;
    const QPointF ptMiddle = MiddleOfPurpleLine(gamut.GetQPointFData());
    QVERIFY(!gamut.IsPointInCIEPolygon(ptMiddle + QPointF(0.00005, -0.00005)));
    QVERIFY(gamut.IsPointInCIEPolygon(ptMiddle + QPointF(-0.00005, 0.00005)));
}

void TestChromaGamutInterpolation::EmptiedOutlineContainsNothing()
{
    CChromaGamutInterpolation gamut;
    gamut.GetQPointFData().clear();
    QVERIFY(!gamut.IsPointInCIEPolygon(QPointF(0.3127, 0.3290)));
    QVERIFY(gamut.GetData().isEmpty());
}

void TestChromaGamutInterpolation::WrittenOutlineDecides()
{
    CChromaGamutInterpolation gamut;
    gamut.GetQPointFData() = {QPointF(2.0, 2.0), QPointF(3.0, 2.0), QPointF(2.0, 3.0)};
    QVERIFY(gamut.IsPointInCIEPolygon(QPointF(2.25, 2.25)));
    QVERIFY(!gamut.IsPointInCIEPolygon(QPointF(0.3127, 0.3290)));
    QVERIFY(CChromaGamutInterpolation().IsPointInCIEPolygon(QPointF(0.3127, 0.3290)));
}

void TestChromaGamutInterpolation::InsideTestDoesNotAllocate()
{
    CChromaGamutInterpolation gamut;
    const CAllocationCounter counter;
    const bool bInside = gamut.IsPointInCIEPolygon(QPointF(0.3127, 0.3290));
    const int nCount = gamut.UseFloatOutline().nCount;
    QCOMPARE(counter.Count(), std::size_t(0));
    QVERIFY(bInside);
    QCOMPARE(nCount, 156);
}

QTEST_GUILESS_MAIN(TestChromaGamutInterpolation)
#include "TestChromaGamutInterpolation.moc"
