#include "host/HardwareSupport/CanvasLimit.h"
#include "host/HardwareSupport/EdidSetting.h"
#include "host/HardwareSupport/SenderEdidLimitData.h"
#include "host/HardwareSupport/SenderLogic.h"
#include "host/HardwareSupport/VideoPortKey.h"
#include "host/HardwareSupport/VideoSourceLogic.h"
#include "host/KelvaroLabel.h"
#include "host/TevraData/ConfigData.h"
#include "host/TevraData/ConstantData.h"
#include "host/TevraData/ProjectData.h"
#include "host/TevraData/RuntimeData.h"
#include "tests/simulator/SimulatorTest.h"

#include <functional>

namespace {

using FuncCall = std::function<void()>;

// What the calls point to.
SVideoPortKey s_key;
SEdidSetting s_setting;
CSenderEdidLimitData s_limit;
SCanvasLimit s_canvasLimit;
QString s_strMessage;
QStringList s_listIP;
bool s_bSuccess = false;
unsigned int s_nFlags = 0;
unsigned int s_arrTable[255] = {};

} // namespace

Q_DECLARE_METATYPE(FuncCall)

/// Each operation of the host is noted under its own name, with its arguments and its result.
class TestEveryCall : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void IsNotedAsItWasMade_data();
    void IsNotedAsItWasMade();

private:
    void ProjectRows();
    void ConfigRows();
    void SenderRows();
    void VideoRows();

    static void Row(enJournalCategory category, const char* szCall, const char* szResult,
                    const FuncCall& funcCall)
    {
        QTest::newRow(szCall) << category << QString::fromUtf8(szCall) << QString::fromUtf8(szResult)
                              << funcCall;
    }
};

Q_DECLARE_METATYPE(enJournalCategory)

void TestEveryCall::IsNotedAsItWasMade_data()
{
    QTest::addColumn<enJournalCategory>("category");
    QTest::addColumn<QString>("call");
    QTest::addColumn<QString>("result");
    QTest::addColumn<FuncCall>("function");
    ProjectRows();
    ConfigRows();
    SenderRows();
    VideoRows();
}

void TestEveryCall::ProjectRows()
{
    const char* const szRecord = "{rate 60 depth 8 ports 6 canvas 1920x1080 picture false alpha 128 fit 0}";
    Row(enJournalRead, "GetCurSenderIndex()", "0", [] { GetProjectData()->GetCurSenderIndex(); });
    Row(enJournalRead, "GetCurrentSender()", szRecord, [] { GetProjectData()->GetCurrentSender(); });
    Row(enJournalRead, "GetSender(0)", szRecord, [] { GetProjectData()->GetSender(0); });
    Row(enJournalRead, "GetSender(5)", "null", [] { GetProjectData()->GetSender(5); });
    Row(enJournalRead, "GetDemoModeEnable()", "true", [] { GetProjectData()->GetDemoModeEnable(); });
    Row(enJournalWrite, "SetDemoModeEnable(false)", "", [] { GetProjectData()->SetDemoModeEnable(false); });
    Row(enJournalWrite, "SetDemoSenderType(21)", "", [] { GetProjectData()->SetDemoSenderType(21); });
    Row(enJournalRead, "GetSenderBKImgName(0, false)", "\"sender-1\"",
        [] { GetConstantData()->GetSenderBKImgName(0, false); });
    Row(enJournalRead, "GetSenderCountLimit(true)", "255",
        [] { GetRuntimeData()->GetSenderCountLimit(true); });
    Row(enJournalEvent, "PostLabelEvent(0x24000, 1, 0, 0)", "",
        [] { CSimulator::Instance().Label()->PostLabelEvent(0x24000, 1, 0, 0); });
}

void TestEveryCall::ConfigRows()
{
    Row(enJournalRead, "IsIPHasError(0.0.0.0, 0xe0832002, false)", "true",
        [] { GetConfigData()->IsIPHasError(0, &s_nFlags, false); });
    Row(enJournalRead, "UpdateErrorIPList()", "", [] { GetConfigData()->UpdateErrorIPList(); });
    Row(enJournalRead, "GetDetectStrategy()", "2", [] { GetConfigData()->GetDetectStrategy(); });
    Row(enJournalRead, "GetSpecifiedIPDWORD(table)", "1",
        [] { GetConfigData()->GetSpecifiedIPDWORD(s_arrTable); });
    Row(enJournalRead, "GetSpecifiedIPs([10.0.0.7(left)])", "",
        [] { GetConfigData()->GetSpecifiedIPs(s_listIP); });
    Row(enJournalWrite, "AddSpecifiedIP(\"10.0.0.8\", \"\")", "",
        [] { GetConfigData()->AddSpecifiedIP(QStringLiteral("10.0.0.8"), QString()); });
    Row(enJournalWrite, "SpecifiedIPsSave()", "", [] { GetConfigData()->SpecifiedIPsSave(); });
    Row(enJournalRead, "GetCurSetSpecifiedIPWithIndex(0)", "\"10.0.0.7(left)\"",
        [] { GetConfigData()->GetCurSetSpecifiedIPWithIndex(0); });
    Row(enJournalRead, "GetSpecifiedIPOriginal(0)", "\"10.0.0.7(left)\"",
        [] { GetConfigData()->GetSpecifiedIPOriginal(0); });
    Row(enJournalRead, "GetSpecifiedIPWithName(0)", "\"10.0.0.7(left)\"",
        [] { GetConfigData()->GetSpecifiedIPWithName(0); });
    Row(enJournalWrite, "SetCurSetSpecifiedIPWithIndex(0, \"10.0.0.9\", \"x\")", "", [] {
        GetConfigData()->SetCurSetSpecifiedIPWithIndex(0, QStringLiteral("10.0.0.9"), QStringLiteral("x"));
    });
    Row(enJournalWrite, "SetSpecifiedIPWithIndex(0, \"10.0.0.9\", \"x\")", "",
        [] { GetConfigData()->SetSpecifiedIPWithIndex(0, QStringLiteral("10.0.0.9"), QStringLiteral("x")); });
}

void TestEveryCall::SenderRows()
{
    Row(enJournalRead, "IsVideoProcessor(0)", "true", [] { GetHwSenderLogic()->IsVideoProcessor(0); });
    Row(enJournalRead, "GetSenderType(0)", "17", [] { GetHwSenderLogic()->GetSenderType(0); });
    Row(enJournalRead, "IsSupport10Bit(0)", "true", [] { GetHwSenderLogic()->IsSupport10Bit(0); });
    Row(enJournalRead, "IsSupport12Bit(0)", "false", [] { GetHwSenderLogic()->IsSupport12Bit(0); });
    Row(enJournalRead, "IsExtendedEdidSupported()", "true",
        [] { GetHwSenderLogic()->IsExtendedEdidSupported(); });
    Row(enJournalWrite, "AfterEdidWritten(0)", "", [] { GetHwSenderLogic()->AfterEdidWritten(0); });
    Row(enJournalRead, "IsSupportCanvasSize(0)", "true", [] { GetHwSenderLogic()->IsSupportCanvasSize(0); });
    Row(enJournalRead, "GetHardwareCanvasSize(0)", "1920x1080",
        [] { GetHwSenderLogic()->GetHardwareCanvasSize(0); });
    Row(enJournalRead, "GetCanvasLimit(0, {3840, 3840, 3932160})", "",
        [] { GetHwSenderLogic()->GetCanvasLimit(0, &s_canvasLimit); });
    Row(enJournalRead, "GetOutputDepthMode(0)", "0", [] { GetHwSenderLogic()->GetOutputDepthMode(0); });
    Row(enJournalWrite, "SetOutputDepthMode(0, 2, 1)", "",
        [] { GetHwSenderLogic()->SetOutputDepthMode(0, 2, 1); });
    Row(enJournalWrite, "SetOutput50Hz(0, true, 0)", "",
        [] { GetHwSenderLogic()->SetOutput50Hz(0, true, 0); });
    Row(enJournalRead, "IsIPAddressMode()", "true", [] { GetHwSenderLogic()->IsIPAddressMode(); });
    Row(enJournalRead, "GetAddedSenderCount()", "1", [] { GetHwSenderLogic()->GetAddedSenderCount(); });
    Row(enJournalRead, "GetDetectedIPList(table)", "0",
        [] { GetHwSenderLogic()->GetDetectedIPList(s_arrTable); });
    Row(enJournalWrite, "ApplyDemoProject()", "-1", [] { GetHwSenderLogic()->ApplyDemoProject(); });
}

void TestEveryCall::VideoRows()
{
    Row(enJournalRead, "GetVideoPortName(0, 16, 0)", "\"HDMI 1\"",
        [] { GetHwVideoSourceLogic()->GetVideoPortName(0, &s_key, 0); });
    Row(enJournalRead, "GetEdidSetting(0, 16, {1920x1080 rate 60 fractional 0 flags 0x12 standard 0 pc 0})",
        "true", [] { GetHwVideoSourceLogic()->GetEdidSetting(0, &s_key, &s_setting); });
    Row(enJournalRead, "GetEdidLimit(0, 16, {4096x4096 area 8847360, 15 resolutions})", "",
        [] { GetHwVideoSourceLogic()->GetEdidLimit(0, 16, &s_limit); });
    Row(enJournalRead, "CheckEdidLimit(1920, 1080, 8847360, \"\")", "", [] {
        GetHwVideoSourceLogic()->GetEdidLimit(0, 16, &s_limit);
        GetHwVideoSourceLogic()->CheckEdidLimit(1920, 1080, 8847360, &s_strMessage);
    });
    Row(enJournalWrite, "SetEdidSetting(0, 16, {0x0 rate 0 fractional 0 flags 0x00 standard 0 pc 0})", "0",
        [] {
            const SEdidSetting setting;
            GetHwVideoSourceLogic()->SetEdidSetting(0, 16, &setting);
        });
    Row(enJournalWrite, "FinishEdidWrite(0, 1)", "", [] { GetHwVideoSourceLogic()->FinishEdidWrite(0, 1); });
    Row(enJournalWrite, "ApplyBasicEdid(0, 640, 480, false)", "", [] {
        GetHwVideoSourceLogic()->FinishEdidWrite(0, 1);
        GetHwVideoSourceLogic()->ApplyBasicEdid(0, 640, 480, &s_bSuccess);
    });
    Row(enJournalRead, "GetMaxInputFrameRate(0)", "59.94",
        [] { GetHwVideoSourceLogic()->GetMaxInputFrameRate(0); });
    Row(enJournalRead, "GetOutputLimitFlags(0, 0x800)", "true",
        [] { GetHwVideoSourceLogic()->GetOutputLimitFlags(0, &s_nFlags); });
}

void TestEveryCall::IsNotedAsItWasMade()
{
    QFETCH(enJournalCategory, category);
    QFETCH(QString, call);
    QFETCH(QString, result);
    QFETCH(FuncCall, function);
    CSimulator& simulator = FreshSimulator();
    simulator.Document().AddSender(17);
    simulator.Document().Change([](SSimulatedProject& project) {
        SSimulatedSender& sender = project.listSenders[0];
        sender.fMaxInputFrameRate = 59.94F;
        sender.outputLimitFlags = 0x800;
        const QStringList listEntries = {QStringLiteral("10.0.0.7(left)")};
        project.addresses = {listEntries, listEntries, listEntries};
    });
    s_key.nInterfaceId = 16;
    s_nFlags = 0;
    function();
    const SJournalEntry entry = simulator.Journal().At(simulator.Journal().GetCount() - 1);
    QCOMPARE(entry.CallText(), call);
    QCOMPARE(entry.strResult, result);
    QCOMPARE(int(entry.category), int(category));
}

QTEST_GUILESS_MAIN(TestEveryCall)
#include "TestEveryCall.moc"
