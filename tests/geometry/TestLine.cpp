#include "SenderModuleDialog/geometry/Line.h"
#include "tests/geometry/Coefficients.h"
#include "tests/support/ExactCompare.h"

#include <QtTest>

class TestLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void DiagonalsCrossInTheMiddle();
    void CreateLineUnderstandsTheVerticalSlope();
};

void TestLine::DiagonalsCrossInTheMiddle()
{
    float fX = 0.0F;
    float fY = 0.0F;
    QVERIFY(CLine::GetSegmentCross({0, 0}, {2, 2}, {0, 2}, {2, 0}, fX, fY));
    COMPARE_BITS(fX, 1.0F);
    COMPARE_BITS(fY, 1.0F);
}

void TestLine::CreateLineUnderstandsTheVerticalSlope()
{
    CPointEx<float> pt(0.25F, 0.5F);
    CLine line(pt, c_fVerticalSlope);
    COMPARE_BITS(CoefficientsOf(line).fA, -3.4028234663852886e+38F);
    COMPARE_BITS(CoefficientsOf(line).fB, 1.0F);
    line.CreateLine(c_fVerticalSlope, pt);
    COMPARE_BITS(CoefficientsOf(line).fA, 1.0F);
    COMPARE_BITS(CoefficientsOf(line).fB, 0.0F);
    COMPARE_BITS(CoefficientsOf(line).fC, -0.25F);
}

QTEST_APPLESS_MAIN(TestLine)
#include "TestLine.moc"
