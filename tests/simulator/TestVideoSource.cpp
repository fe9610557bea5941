#include "host/HardwareSupport/EdidSetting.h"
#include "host/HardwareSupport/SenderEdidLimitData.h"
#include "host/HardwareSupport/VideoPortKey.h"
#include "host/HardwareSupport/VideoSourceLogic.h"
#include "host/OrviControl/CustomDialog.h"
#include "tests/simulator/SimulatorTest.h"

#include <QSignalSpy>
#include <QTranslator>

namespace {

QString Text(const char* szText)
{
    return QString::fromUtf8(szText);
}

/// Translates every text of the dialogs by adding a mark.
class CMarkTranslator : public QTranslator
{
public:
    QString translate(const char* szContext, const char* szSource, const char*, int) const override
    {
        return qstrcmp(szContext, "CCustomDialog") == 0 ? Text("EN:") + Text(szSource) : QString();
    }
    bool isEmpty() const override { return false; }
};

SEdidSetting Setting(int nWidth, int nHeight, int nRate)
{
    SEdidSetting setting;
    setting.wWidth = quint16(nWidth);
    setting.wHeight = quint16(nHeight);
    setting.byRate = quint8(nRate);
    return setting;
}

SEdidSetting StoredSetting(int nInterfaceId)
{
    SVideoPortKey key;
    key.nInterfaceId = nInterfaceId;
    SEdidSetting setting;
    GetHwVideoSourceLogic()->GetEdidSetting(0, &key, &setting);
    return setting;
}

QString Verdict(int nWidth, int nHeight, int nLimit)
{
    QString strMessage;
    GetHwVideoSourceLogic()->CheckEdidLimit(nWidth, nHeight, nLimit, &strMessage);
    return strMessage;
}

/// A project with one sender; the project can be changed at once.
void OneSender(int nType, const std::function<void(SSimulatedSender&)>& funcChange = {})
{
    CSimulator::Instance().Document().AddSender(nType);
    if (funcChange)
        CSimulator::Instance().Document().Change(
            [&](SSimulatedProject& project) { funcChange(project.listSenders[0]); });
}

/// Type of a sender that takes the basic record, and of one that takes the full record.
constexpr int c_nBasicType = 16;
constexpr int c_nExtendedType = 17;

constexpr qint64 c_nLargeArea = 9000000;

} // namespace

class TestVideoSource : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void AnInputHasItsName();
    void AFactoryNewInputShows1080p60();
    void AnInputWithoutASettingSaysSo();
    void TheLimitsOfAnInputAreItsOwn();
    void ASettingIsInForceWhenTheWriteHasEnded();
    void AFullRecordCarriesTheComputerChoiceAsItsOpposite_data();
    void AFullRecordCarriesTheComputerChoiceAsItsOpposite();
    void ABasicRecordCarriesSizeAndRateAlone();
    void AWriteThatFailsLeavesTheSetting();
    void ABasicWriteThatDoesNotTakeLeavesTheSetting();
    void AnEndWithoutAWriteDoesNothing();
    void AWriteToAnInputThatIsNotThereFails();
    void AWriteThatTookIsAnnounced();
    void ASlowSenderTakesItsTime();
    void TheInputRateIsAsItWasSet();
    void VerdictsByArea_data();
    void VerdictsByArea();
    void VerdictsByPixelClock_data();
    void VerdictsByPixelClock();
    void TheNoticeIsTheDialogsOwnTranslation();
    void ASenderWithoutExtensionBlocksRefusesSuchModes();
    void TheVerdictConcernsTheInputAskedForLast();
    void OutputLimitsAreEarned_data();
    void OutputLimitsAreEarned();
    void OutputLimitsCanBeForced_data();
    void OutputLimitsCanBeForced();
};

void TestVideoSource::init()
{
    FreshSimulator();
}

void TestVideoSource::AnInputHasItsName()
{
    OneSender(c_nExtendedType);
    SVideoPortKey key;
    key.nInterfaceId = 18;
    QCOMPARE(GetHwVideoSourceLogic()->GetVideoPortName(0, &key, 0), Text("HDMI 3"));
    key.nInterfaceId = 99;
    QCOMPARE(GetHwVideoSourceLogic()->GetVideoPortName(0, &key, 0), Text("Input 99"));
}

void TestVideoSource::AFactoryNewInputShows1080p60()
{
    OneSender(c_nExtendedType);
    const SEdidSetting setting = StoredSetting(16);
    QCOMPARE(int(setting.wWidth), 1920);
    QCOMPARE(int(setting.wHeight), 1080);
    QCOMPARE(int(setting.byRate), 60);
    QCOMPARE(int(setting.byFormatFlags), 0x12);
}

void TestVideoSource::AnInputWithoutASettingSaysSo()
{
    OneSender(10);
    SVideoPortKey key;
    key.nInterfaceId = 1;
    SEdidSetting setting;
    QVERIFY(!GetHwVideoSourceLogic()->GetEdidSetting(0, &key, &setting));
    QVERIFY(!GetHwVideoSourceLogic()->GetEdidSetting(7, &key, &setting));
}

void TestVideoSource::TheLimitsOfAnInputAreItsOwn()
{
    OneSender(c_nExtendedType);
    CSenderEdidLimitData limit;
    GetHwVideoSourceLogic()->GetEdidLimit(0, 1, &limit);
    QCOMPARE(limit.nMaxArea, 2304000);
    QVERIFY(limit.listResolution.contains(QSize(1920, 1200)));
    GetHwVideoSourceLogic()->GetEdidLimit(0, 16, &limit);
    QCOMPARE(limit.nMaxArea, 8847360);
    GetHwVideoSourceLogic()->GetEdidLimit(0, 99, &limit);
    QCOMPARE(limit.nMaxArea, 0);
    QVERIFY(limit.listResolution.isEmpty());
}

void TestVideoSource::ASettingIsInForceWhenTheWriteHasEnded()
{
    OneSender(c_nExtendedType);
    const SEdidSetting setting = Setting(1280, 720, 50);
    QCOMPARE(GetHwVideoSourceLogic()->SetEdidSetting(0, 16, &setting), qint64(0));
    QCOMPARE(int(StoredSetting(16).wWidth), 1920);
    GetHwVideoSourceLogic()->FinishEdidWrite(0, 1);
    QCOMPARE(int(StoredSetting(16).wWidth), 1280);
    QCOMPARE(int(StoredSetting(16).byRate), 50);
    QCOMPARE(int(StoredSetting(17).wWidth), 1920);
}

void TestVideoSource::AFullRecordCarriesTheComputerChoiceAsItsOpposite_data()
{
    QTest::addColumn<int>("written");
    QTest::addColumn<int>("read");
    QTest::newRow("written 1: the box was not checked") << 1 << 0;
    QTest::newRow("written 0: the box was checked") << 0 << 1;
}

void TestVideoSource::AFullRecordCarriesTheComputerChoiceAsItsOpposite()
{
    QFETCH(int, written);
    QFETCH(int, read);
    OneSender(c_nExtendedType);
    SEdidSetting setting = Setting(1280, 720, 50);
    setting.byConnectPC = quint8(written);
    GetHwVideoSourceLogic()->SetEdidSetting(0, 16, &setting);
    GetHwVideoSourceLogic()->FinishEdidWrite(0, 1);
    QCOMPARE(int(StoredSetting(16).byConnectPC), read);
}

void TestVideoSource::ABasicRecordCarriesSizeAndRateAlone()
{
    OneSender(c_nBasicType, [](SSimulatedSender& sender) {
        sender.FindInput(16)->setting->byFormatFlags = 0x24;
        sender.FindInput(16)->setting->byConnectPC = 1;
        sender.FindInput(17)->setting.reset();
    });
    const SEdidSetting setting = Setting(1280, 720, 50);
    for (const int nInterfaceId : {16, 17}) {
        bool bSuccess = false;
        GetHwVideoSourceLogic()->SetEdidSetting(0, nInterfaceId, &setting);
        GetHwVideoSourceLogic()->ApplyBasicEdid(0, 1280, 720, &bSuccess);
        QVERIFY(bSuccess);
        QCOMPARE(int(StoredSetting(nInterfaceId).wWidth), 1280);
    }
    QCOMPARE(int(StoredSetting(16).byFormatFlags), 0x24);
    QCOMPARE(int(StoredSetting(16).byConnectPC), 1);
    QCOMPARE(int(StoredSetting(17).byFormatFlags), 0x12);
}

void TestVideoSource::AWriteThatFailsLeavesTheSetting()
{
    OneSender(c_nExtendedType, [](SSimulatedSender& sender) { sender.faults.nEdidWriteResult = 5; });
    const SEdidSetting setting = Setting(1280, 720, 50);
    QCOMPARE(GetHwVideoSourceLogic()->SetEdidSetting(0, 16, &setting), qint64(5));
    QVERIFY(CSimulator::Instance().Journal().At(CSimulator::Instance().Journal().GetCount() - 1).bFailed);
    GetHwVideoSourceLogic()->FinishEdidWrite(0, 1);
    QCOMPARE(int(StoredSetting(16).wWidth), 1920);
}

void TestVideoSource::ABasicWriteThatDoesNotTakeLeavesTheSetting()
{
    OneSender(c_nBasicType, [](SSimulatedSender& sender) { sender.faults.bBasicEdidFails = true; });
    QSignalSpy spyWritten(&CSimulator::Instance().Hardware(), &CSimulatedHardware::OnEdidWritten);
    const SEdidSetting setting = Setting(1280, 720, 50);
    bool bSuccess = true;
    QCOMPARE(GetHwVideoSourceLogic()->SetEdidSetting(0, 16, &setting), qint64(0));
    GetHwVideoSourceLogic()->ApplyBasicEdid(0, 1280, 720, &bSuccess);
    QVERIFY(!bSuccess);
    QCOMPARE(int(StoredSetting(16).wWidth), 1920);
    QCOMPARE(spyWritten.count(), 0);
}

void TestVideoSource::AnEndWithoutAWriteDoesNothing()
{
    OneSender(c_nBasicType);
    bool bSuccess = true;
    GetHwVideoSourceLogic()->FinishEdidWrite(0, 1);
    GetHwVideoSourceLogic()->ApplyBasicEdid(0, 1280, 720, &bSuccess);
    QVERIFY(!bSuccess);
    QCOMPARE(int(StoredSetting(16).wWidth), 1920);
}

void TestVideoSource::AWriteToAnInputThatIsNotThereFails()
{
    OneSender(c_nExtendedType);
    const SEdidSetting setting = Setting(1280, 720, 50);
    QVERIFY(GetHwVideoSourceLogic()->SetEdidSetting(0, 99, &setting) != 0);
    QVERIFY(GetHwVideoSourceLogic()->SetEdidSetting(3, 16, &setting) != 0);
}

void TestVideoSource::AWriteThatTookIsAnnounced()
{
    OneSender(c_nExtendedType);
    QSignalSpy spyWritten(&CSimulator::Instance().Hardware(), &CSimulatedHardware::OnEdidWritten);
    const SEdidSetting setting = Setting(1280, 720, 50);
    GetHwVideoSourceLogic()->SetEdidSetting(0, 18, &setting);
    QCOMPARE(spyWritten.count(), 0);
    GetHwVideoSourceLogic()->FinishEdidWrite(0, 1);
    QCOMPARE(spyWritten.count(), 1);
    QCOMPARE(spyWritten.at(0), QVariantList({0, 18}));
}

void TestVideoSource::ASlowSenderTakesItsTime()
{
    QList<int> listSleeps;
    CSimulator::Instance().Hardware().SetSleep(
        [&listSleeps](int nMilliseconds) { listSleeps.append(nMilliseconds); });
    OneSender(c_nExtendedType, [](SSimulatedSender& sender) { sender.faults.nWriteDelay = 40; });
    const SEdidSetting setting = Setting(1280, 720, 50);
    GetHwVideoSourceLogic()->SetEdidSetting(0, 16, &setting);
    GetHwVideoSourceLogic()->FinishEdidWrite(0, 1);
    QCOMPARE(listSleeps, QList<int>({40, 40}));
}

void TestVideoSource::TheInputRateIsAsItWasSet()
{
    OneSender(c_nExtendedType, [](SSimulatedSender& sender) { sender.fMaxInputFrameRate = 59.94F; });
    QCOMPARE(GetHwVideoSourceLogic()->GetMaxInputFrameRate(0), 59.94F);
    QCOMPARE(GetHwVideoSourceLogic()->GetMaxInputFrameRate(1), 0.0F);
}

void TestVideoSource::VerdictsByArea_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("limit");
    QTest::addColumn<QString>("expected");
    const auto Row = [](const char* szName, int nWidth, int nHeight, int nLimit, const char* szExpected) {
        QTest::newRow(szName) << nWidth << nHeight << nLimit << Text(szExpected);
    };
    Row("a common mode", 1920, 1080, 8847360, "");
    Row("exactly the area", 1920, 1080, 2073600, "");
    Row("one pixel too much", 1920, 1080, 2073599, "此帧率下分辨率的面积不能大于2073599。");
    Row("the smallest sides", 64, 64, 8847360, "");
    Row("too narrow", 63, 1080, 8847360, "分辨率的宽或高不能小于64。");
    Row("too low", 1920, 63, 8847360, "分辨率的宽或高不能小于64。");
    Row("nothing typed", 0, 0, 8847360, "分辨率的宽或高不能小于64。");
    Row("the widest", 8192, 1080, 8847360, "已使用DisplayID 1.3扩展块");
    Row("too wide", 8193, 1080, 8847360, "分辨率的宽不能大于8192。");
    Row("too high", 1080, 8193, 8847360, "分辨率的高不能大于8192。");
    Row("the base block's widest", 4095, 2160, 8847360, "");
    Row("one above the base block", 4096, 2160, 8847360, "已使用DisplayID 1.3扩展块");
    Row("as high as above the base block", 2160, 4096, 8847360, "已使用DisplayID 1.3扩展块");
    Row("a negative area", 1920, 1080, -1, "此帧率下分辨率的面积不能大于-1。");
}

void TestVideoSource::VerdictsByArea()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(int, limit);
    QFETCH(QString, expected);
    OneSender(35);
    CSenderEdidLimitData data;
    GetHwVideoSourceLogic()->GetEdidLimit(0, 16, &data);
    QVERIFY(!data.bLimitByPixelClock);
    QCOMPARE(Verdict(width, height, limit), expected);
}

void TestVideoSource::VerdictsByPixelClock_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("clock");
    QTest::addColumn<QString>("expected");
    QTest::newRow("unknown clock") << 51 << 0 << QString();
    QTest::newRow("exactly the clock") << 51 << 600 << QString();
    QTest::newRow("above the clock") << 51 << 601 << Text("像素时钟601MHz超过接口的最大值600MHz。");
    QTest::newRow("the base block's fastest") << 68 << 655 << QString();
    QTest::newRow("above the base block") << 68 << 656 << Text("已使用DisplayID 1.3扩展块");
}

void TestVideoSource::VerdictsByPixelClock()
{
    QFETCH(int, type);
    QFETCH(int, clock);
    QFETCH(QString, expected);
    OneSender(type);
    const int nInterfaceId = type == 68 ? 1 : 16;
    CSenderEdidLimitData data;
    GetHwVideoSourceLogic()->GetEdidLimit(0, nInterfaceId, &data);
    QVERIFY(data.bLimitByPixelClock);
    QCOMPARE(Verdict(3840, 2160, clock), expected);
}

void TestVideoSource::TheNoticeIsTheDialogsOwnTranslation()
{
    CMarkTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    OneSender(35);
    CSenderEdidLimitData data;
    GetHwVideoSourceLogic()->GetEdidLimit(0, 16, &data);
    const QString strNotice = Verdict(4096, 2160, int(c_nLargeArea));
    QCOMPARE(strNotice, Text("EN:已使用DisplayID 1.3扩展块"));
    QCOMPARE(strNotice, CCustomDialog::tr("已使用DisplayID 1.3扩展块"));
    QCoreApplication::removeTranslator(&translator);
}

void TestVideoSource::ASenderWithoutExtensionBlocksRefusesSuchModes()
{
    OneSender(35, [](SSimulatedSender& sender) { sender.capability.bExtensionBlock = false; });
    CSenderEdidLimitData data;
    GetHwVideoSourceLogic()->GetEdidLimit(0, 16, &data);
    QCOMPARE(Verdict(4096, 2160, int(c_nLargeArea)), Text("此接口不支持需要EDID扩展块的分辨率。"));
}

void TestVideoSource::TheVerdictConcernsTheInputAskedForLast()
{
    OneSender(c_nExtendedType);
    CSenderEdidLimitData data;
    GetHwVideoSourceLogic()->GetEdidLimit(0, 16, &data);
    QVERIFY(Verdict(4000, 2000, int(c_nLargeArea)).isEmpty());
    GetHwVideoSourceLogic()->GetEdidLimit(0, 1, &data);
    QCOMPARE(Verdict(4000, 2000, int(c_nLargeArea)), Text("分辨率的宽不能大于3840。"));
    GetHwVideoSourceLogic()->GetEdidLimit(0, 99, &data);
    QVERIFY(Verdict(4000, 2000, int(c_nLargeArea)).isEmpty());
}

void TestVideoSource::OutputLimitsAreEarned_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QSize>("canvas");
    QTest::addColumn<int>("dviWidth");
    QTest::addColumn<unsigned int>("expected");
    QTest::newRow("factory-new") << 17 << QSize(1920, 1080) << 1920 << 0U;
    QTest::newRow("six ports full") << 17 << QSize(3932160, 1) << 1920 << 0U;
    QTest::newRow("one pixel more than six ports") << 17 << QSize(3932161, 1) << 1920 << 0x8000000U;
    QTest::newRow("8.88 million pixels, and one") << 21 << QSize(8880001, 1) << 1920 << 0x800U;
    QTest::newRow("2.6 million pixels of a small sender") << 16 << QSize(2600000, 1) << 1920 << 0U;
    QTest::newRow("2.6 million pixels of a small sender, and one")
        << 16 << QSize(2600001, 1) << 1920 << 0x800U;
    QTest::newRow("DVI 1 to 4 beyond 8.88 million") << 17 << QSize(1920, 1080) << 2056 << 0x1000U;
    QTest::newRow("DVI 1 to 4 and 5 to 8") << 11 << QSize(1920, 1080) << 2056 << 0x3000U;
    QTest::newRow("an input beyond the small sender's output")
        << 16 << QSize(1920, 1080) << 2408 << 0x10000000U;
}

void TestVideoSource::OutputLimitsAreEarned()
{
    QFETCH(int, type);
    QFETCH(QSize, canvas);
    QFETCH(int, dviWidth);
    QFETCH(unsigned int, expected);
    OneSender(type, [&](SSimulatedSender& sender) {
        sender.record.sizeCanvas = canvas;
        for (SSimulatedInput& input : sender.listInputs) {
            if (input.nInterfaceId <= 8)
                input.setting->wWidth = quint16(dviWidth);
        }
    });
    unsigned int nFlags = 0;
    QCOMPARE(GetHwVideoSourceLogic()->GetOutputLimitFlags(0, &nFlags), expected != 0);
    QCOMPARE(nFlags, expected);
}

void TestVideoSource::OutputLimitsCanBeForced_data()
{
    QTest::addColumn<unsigned int>("forced");
    QTest::addColumn<bool>("expected");
    for (const unsigned int nFlag : {0x800U, 0x1000U, 0x2000U, 0x8000000U, 0x10000000U})
        QTest::addRow("flag 0x%x", nFlag) << nFlag << true;
    QTest::newRow("a bit that no dialog knows") << 1U << true;
    QTest::newRow("none") << 0U << false;
}

void TestVideoSource::OutputLimitsCanBeForced()
{
    QFETCH(unsigned int, forced);
    QFETCH(bool, expected);
    OneSender(16, [&](SSimulatedSender& sender) {
        sender.record.sizeCanvas = QSize(30000, 30000);
        sender.outputLimitFlags = forced;
    });
    unsigned int nFlags = 0;
    QCOMPARE(GetHwVideoSourceLogic()->GetOutputLimitFlags(0, &nFlags), expected);
    QCOMPARE(nFlags, forced);
}

QTEST_GUILESS_MAIN(TestVideoSource)
#include "TestVideoSource.moc"
