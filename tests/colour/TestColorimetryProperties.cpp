// What holds for any input: laws of the conversions and of the inside test, and the same conversions
// by Little-CMS.

#include "SenderModuleDialog/colour/CCT2ColorCoord.h"
#include "SenderModuleDialog/colour/ChromaGamutInterpolation.h"
#include "tests/support/PropertyTest.h"

#include <QtTest>

#include <lcms2.h>

#include <cmath>

namespace {

/// Table rows are 5 K apart, and the pair that a temperature comes from spans two steps.
constexpr double c_dTableStep = 5.0;

/// Chromaticity of single precision against double: half a unit in the last place of 0.38, and in y what the
/// rounded x adds to it, at most 1.4 times as much.
constexpr double c_dSinglePrecision = 4e-8;

/// The conversion to temperature walks the daylight locus; Little-CMS interpolates Robertson's isotemperature
/// lines of the Planckian locus. Mired that the two may differ by on the daylight locus.
constexpr double c_dOtherMethodMired = 0.2;

double Mired(double dCCT)
{
    return 1000000.0 / dCCT;
}

float AnyTemperature()
{
    return 4000.0F +
           21000.0F * float(*rc::gen::resize(rc::kNominalSize, rc::gen::inRange(0, 1 << 24))) * 0x1p-24F;
}

double AnyUnit()
{
    return double(*rc::gen::resize(rc::kNominalSize, rc::gen::inRange(0, 1 << 30))) * 0x1p-30;
}

} // namespace

class TestColorimetryProperties : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ThereAndBackAgreesWithinTheStepOfTheTable();
    void HigherTemperaturesLieFartherDownTheLocus();
    void ATemperatureIsWrittenExactlyInsideTheGate();
    void TheOutlineIsConvex();
    void APointBetweenTwoInsideIsInside();
    void LittleCmsGivesTheSamePoint();
    void LittleCmsGivesATemperatureNearby();

private:
    QPointF PointOf(float fCCT) const
    {
        QPointF pt;
        m_cct.CCTtoColorCoord(fCCT, &pt, true);
        return pt;
    }

    CCCT2ColorCoord m_cct;
    CChromaGamutInterpolation m_gamut;
};

void TestColorimetryProperties::ThereAndBackAgreesWithinTheStepOfTheTable()
{
    QVERIFY(PropertyHolds("to chromaticity and back is within a step", [this] {
        const float fCCT = AnyTemperature();
        float fBack = 0.0F;
        // Just below 25000 K the rounding may land beyond the last row, so the verdict is left open.
        m_cct.TriangAlgCalcRelativeCCT(PointOf(fCCT), &fBack, true);
        RC_ASSERT(std::abs(double(fBack) - double(fCCT)) < c_dTableStep);
    }));
}

void TestColorimetryProperties::HigherTemperaturesLieFartherDownTheLocus()
{
    QVERIFY(PropertyHolds("x and y fall as the temperature rises", [this] {
        const float fCCT = AnyTemperature();
        const float fHigher = AnyTemperature();
        RC_PRE(fHigher > fCCT + 1.0F);
        // Across 7000 K the two polynomials differ by about 1e-5.
        RC_PRE((fCCT >= 7000.0F) == (fHigher >= 7000.0F));
        RC_ASSERT(PointOf(fHigher).x() < PointOf(fCCT).x());
        RC_ASSERT(PointOf(fHigher).y() < PointOf(fCCT).y());
    }));
}

void TestColorimetryProperties::ATemperatureIsWrittenExactlyInsideTheGate()
{
    QVERIFY(PropertyHolds("the gate decides whether a temperature is written, its range decides the verdict",
                          [this] {
                              const double dX = AnyUnit();
                              const QPointF pt(dX, AnyUnit());
                              constexpr float c_fUnwritten = -1.0F;
                              float fCCT = c_fUnwritten;
                              const bool bInRange = m_cct.TriangAlgCalcRelativeCCT(pt, &fCCT, false);
                              RC_ASSERT((fCCT != c_fUnwritten) == m_cct.isCoordInArea(pt));
                              RC_ASSERT(bInRange == m_cct.isCCTInRange(fCCT));
                          }));
}

void TestColorimetryProperties::TheOutlineIsConvex()
{
    const QVector<QPointF> vecOutline = m_gamut.GetQPointFData();
    for (int i = 0; i < vecOutline.size(); ++i) {
        const QPointF ptA = vecOutline[i];
        const QPointF ptB = vecOutline[(i + 1) % vecOutline.size()];
        const QPointF ptC = vecOutline[(i + 2) % vecOutline.size()];
        const QPointF ptAB = ptB - ptA;
        const QPointF ptBC = ptC - ptB;
        QVERIFY(ptAB.x() * ptBC.y() - ptAB.y() * ptBC.x() > 0.0);
    }
}

void TestColorimetryProperties::APointBetweenTwoInsideIsInside()
{
    QVERIFY(PropertyHolds("a convex outline holds what lies between two of its points", [this] {
        const QVector<QPointF>& vecOutline = m_gamut.GetQPointFData();
        const QPointF ptWhite(0.3127, 0.329);
        // Four fifths of the way from white to the outline are clear of the edges.
        const QPointF ptA = ptWhite + 0.8 * AnyUnit() * (vecOutline[*rc::gen::inRange(0, 156)] - ptWhite);
        const QPointF ptB = ptWhite + 0.8 * AnyUnit() * (vecOutline[*rc::gen::inRange(0, 156)] - ptWhite);
        RC_ASSERT(m_gamut.IsPointInCIEPolygon(ptA));
        RC_ASSERT(m_gamut.IsPointInCIEPolygon(ptA + AnyUnit() * (ptB - ptA)));
    }));
}

void TestColorimetryProperties::LittleCmsGivesTheSamePoint()
{
    QVERIFY(PropertyHolds("the same daylight polynomials give the same point up to single precision", [this] {
        const float fCCT = AnyTemperature();
        // Little-CMS takes 7000 K itself by the lower polynomial.
        RC_PRE(fCCT != 7000.0F);
        cmsCIExyY white = {};
        RC_ASSERT(cmsWhitePointFromTemp(&white, double(fCCT)) != 0);
        const QPointF pt = PointOf(fCCT);
        RC_ASSERT(std::abs(pt.x() - white.x) < c_dSinglePrecision);
        RC_ASSERT(std::abs(pt.y() - white.y) < c_dSinglePrecision);
    }));
}

void TestColorimetryProperties::LittleCmsGivesATemperatureNearby()
{
    double dLargest = 0.0;
    double dAt = 0.0;
    for (float fCCT = 4005.0F; fCCT < 25000.0F; fCCT += 5.0F) {
        const QPointF pt = PointOf(fCCT);
        float fLibrary = 0.0F;
        m_cct.TriangAlgCalcRelativeCCT(pt, &fLibrary, true);
        const cmsCIExyY white = {pt.x(), pt.y(), 1.0};
        double dLittleCms = 0.0;
        QVERIFY(cmsTempFromWhitePoint(&dLittleCms, &white) != 0);
        const double dDifference = std::abs(Mired(double(fLibrary)) - Mired(dLittleCms));
        if (dDifference > dLargest) {
            dLargest = dDifference;
            dAt = double(fCCT);
        }
    }
    qInfo("largest difference %.3f mired, at %.0f K", dLargest, dAt);
    QVERIFY(dLargest < c_dOtherMethodMired);
}

QTEST_APPLESS_MAIN(TestColorimetryProperties)
#include "TestColorimetryProperties.moc"
