#include "SenderModuleDialog/geometry/CalcChromaRatio.h"
#include "tests/support/ExactCompare.h"

#include <QtTest>

Q_DECLARE_METATYPE(std::vector<CPointEx<float>>)

class TestCalcChromaRatio : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void IdenticalTrianglesCoverEachOtherUpToARounding_data();
    void IdenticalTrianglesCoverEachOtherUpToARounding();
};

void TestCalcChromaRatio::IdenticalTrianglesCoverEachOtherUpToARounding_data()
{
    QTest::addColumn<std::vector<CPointEx<float>>>("vecTriangle");
    QTest::addColumn<float>("fExpected");
    QTest::newRow("NTSC: the fan rounds up and is clipped")
        << std::vector<CPointEx<float>>{{0.67F, 0.33F}, {0.21F, 0.71F}, {0.14F, 0.08F}} << 1.0F;
    QTest::newRow("DCIP3: the fan starts at another corner than the reference and rounds down")
        << std::vector<CPointEx<float>>{{0.68F, 0.32F}, {0.265F, 0.69F}, {0.15F, 0.06F}} << 0.999999702F;
}

void TestCalcChromaRatio::IdenticalTrianglesCoverEachOtherUpToARounding()
{
    QFETCH(std::vector<CPointEx<float>>, vecTriangle);
    QFETCH(float, fExpected);
    float fRatio = -1.0F;
    QVERIFY(CCalcChromaRatio().CalcChromaRatio(vecTriangle, vecTriangle, fRatio));
    COMPARE_BITS(fRatio, fExpected);
}

QTEST_APPLESS_MAIN(TestCalcChromaRatio)
#include "TestCalcChromaRatio.moc"
