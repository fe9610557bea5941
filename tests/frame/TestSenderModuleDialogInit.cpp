#include "SenderModuleDialog/Constants.h"
#include "SenderModuleDialog/HostAccess.h"
#include "tests/support/DeathTest.h"
#include "tests/support/RecordingHost.h"

#include <QtTest>

#include <algorithm>

class TestSenderModuleDialogInit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void BeforeInitAllHandlesAreNull();
    void InitStoresTheLabelAndTheGettersResults();
    void ANullLabelIsStoredWithoutComplaint();
    void ASecondCallReplacesTheLabelAndKeepsTheOthers();
    void ANullHandleEndsTheProcessAtTheCall();
    void TheDigestPlaceholdersHave33EqualBytes();
};

void TestSenderModuleDialogInit::BeforeInitAllHandlesAreNull()
{
    QVERIFY(g_pIKelvaroLabel == nullptr);
    QVERIFY(g_pProjectData == nullptr);
    QVERIFY(g_pConstantData == nullptr);
    QVERIFY(g_pConfigData == nullptr);
    QVERIFY(g_pRuntimeData == nullptr);
    QVERIFY(g_pMonitorData == nullptr);
    QVERIFY(g_pSenderLogic == nullptr);
    QVERIFY(g_pReceiverLogic == nullptr);
    QVERIFY(g_pVideoSourceLogic == nullptr);
    QVERIFY(g_pCaliSoftEdgeLogic == nullptr);
    QVERIFY(g_pAdvSoftEdgeLogic == nullptr);
    QVERIFY(g_pColorBrightLogic == nullptr);
    QVERIFY(g_pMonitorLogic == nullptr);
}

void TestSenderModuleDialogInit::InitStoresTheLabelAndTheGettersResults()
{
    CRecordingHost host;
    QVERIFY(g_pIKelvaroLabel == &host.label);
    QVERIFY(g_pProjectData == &host.projectData);
    QVERIFY(g_pConstantData == &host.constantData);
    QVERIFY(g_pConfigData == &host.configData);
    QVERIFY(g_pRuntimeData == &host.runtimeData);
    QVERIFY(g_pMonitorData == &host.monitorData);
    QVERIFY(g_pSenderLogic == &host.senderLogic);
    QVERIFY(g_pReceiverLogic == &host.receiverLogic);
    QVERIFY(g_pVideoSourceLogic == &host.videoSourceLogic);
    QVERIFY(g_pCaliSoftEdgeLogic == &host.caliSoftEdgeLogic);
    QVERIFY(g_pAdvSoftEdgeLogic == &host.advancedSoftEdgeLogic);
    QVERIFY(g_pColorBrightLogic == &host.colorBrightLogic);
    QVERIFY(g_pMonitorLogic == &host.monitorLogic);
}

void TestSenderModuleDialogInit::ANullLabelIsStoredWithoutComplaint()
{
    CRecordingHost host;
    SenderModuleDialogInit(nullptr);
    QVERIFY(g_pIKelvaroLabel == nullptr);
    QVERIFY(g_pProjectData == &host.projectData);
}

void TestSenderModuleDialogInit::ASecondCallReplacesTheLabelAndKeepsTheOthers()
{
    CRecordingHost host;
    CRecordingLabel labelOther(host.record);
    SenderModuleDialogInit(&labelOther);
    QVERIFY(g_pIKelvaroLabel == &labelOther);
    QVERIFY(g_pSenderLogic == &host.senderLogic);
    QVERIFY(g_pMonitorLogic == &host.monitorLogic);
}

void TestSenderModuleDialogInit::ANullHandleEndsTheProcessAtTheCall()
{
    const SDeath death = RunToDeath([] { HostAccess::CurrentSenderIndex(); });
    QVERIFY(death.bAborted);
    QVERIFY2(death.strOutput.contains("g_pProjectData != nullptr"), death.strOutput.constData());
    QVERIFY2(death.strOutput.contains("TestSenderModuleDialogInit.cpp"), death.strOutput.constData());
}

void TestSenderModuleDialogInit::TheDigestPlaceholdersHave33EqualBytes()
{
    QCOMPARE(int(sizeof MD5_NULL), 33);
    QCOMPARE(int(sizeof MD5_CUSTOM), 33);
    QVERIFY(std::all_of(std::begin(MD5_NULL), std::end(MD5_NULL), [](unsigned char by) { return by == 0; }));
    QVERIFY(
        std::all_of(std::begin(MD5_CUSTOM), std::end(MD5_CUSTOM), [](unsigned char by) { return by == 1; }));
}

QTEST_MAIN(TestSenderModuleDialogInit)
#include "TestSenderModuleDialogInit.moc"
