#include "SenderModuleDialog/edid/EDIDRaw.h"
#include "tests/support/AllocationCounter.h"

#include <QtTest>

#include <functional>

Q_DECLARE_METATYPE(std::function<void()>)

/// The EDID dialog calculates on every change of a control, so nothing here may allocate.
class TestEDIDAllocation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheCounterSeesAnAllocation();
    void NoOperationAllocates_data();
    void NoOperationAllocates();
};

void TestEDIDAllocation::TheCounterSeesAnAllocation()
{
    const CAllocationCounter counter;
    const QByteArray bytes(1000, 'x');
    QVERIFY(counter.Count() > 0);
}

void TestEDIDAllocation::NoOperationAllocates_data()
{
    static CEDIDRaw s_edid;
    static tagSBlankTiming s_timing;
    static int s_nId;
    QTest::addColumn<std::function<void()>>("operation");
    const auto Add = [](const char* szName, const std::function<void()>& operation) {
        QTest::newRow(szName) << operation;
    };
    Add("construction", [] { s_edid = CEDIDRaw(); });
    Add("ChangeWH", [] { s_edid.ChangeWH(1920, 1080, 60.0F); });
    Add("ChangeWH with the longest name", [] { s_edid.ChangeWH(INT_MIN, INT_MIN, 60.0F); });
    Add("Init1p3VersionEdidBaseBlock", [] { s_edid.Init1p3VersionEdidBaseBlock(1920, 1080); });
    Add("CalFirstDetailTimingByCvt", [] { s_edid.CalFirstDetailTimingByCvt(1920, 1080, 60.0F); });
    Add("CalculateFirstDetailTiming", [] { s_edid.CalculateFirstDetailTiming(1920, 1080, 60.0F); });
    Add("StoreFirstDetailTiming", [] { s_edid.StoreFirstDetailTiming(1920, 1080, 60.0F, &s_timing); });
    Add("CalSumCheck", [] { s_edid.CalSumCheck(); });
    Add("CalCVTtiming, reduced", [] { s_edid.CalCVTtiming(1920, 1080, 60.0F, 0, 1, 0, &s_timing); });
    Add("CalCVTtiming, normal", [] { s_edid.CalCVTtiming(1920, 1080, 60.0F, 1, 0, 1, &s_timing); });
    Add("CalculateTiming", [] { s_edid.CalculateTiming({1920, 1080, 60.0F, 0, 1, 0}, &s_timing); });
    Add("CalculatePixelFreq", [] { s_edid.CalculatePixelFreq(1920, 160, 1080, 31, 60.0F); });
    Add("MatchTimingID", [] { s_edid.MatchTimingID(1920, 1080, 60, &s_nId); });
    Add("IsReslutionOk", [] { s_edid.IsReslutionOk(1920, 1080, 60.0F); });
    Add("CalReslutionPixelFreq, matched", [] { s_edid.CalReslutionPixelFreq(1920, 1080, 60.0F, 0); });
    Add("CalReslutionPixelFreq, unmatched", [] { s_edid.CalReslutionPixelFreq(3840, 2160, 30.0F, 1); });
}

void TestEDIDAllocation::NoOperationAllocates()
{
    QFETCH(std::function<void()>, operation);
    const CAllocationCounter counter;
    operation();
    QCOMPARE(counter.Count(), std::size_t(0));
}

QTEST_APPLESS_MAIN(TestEDIDAllocation)
#include "TestEDIDAllocation.moc"
