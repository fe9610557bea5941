#include "Host.h"

#include "SenderModuleDialog/SenderModuleDialogInit.h"
#include "SenderModuleDialog/addressing/CustomAddProcessorDlg.h"
#include "SenderModuleDialog/addressing/DemoProjectConfigDlg.h"
#include "SenderModuleDialog/addressing/SetIPOfflineDlg.h"
#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "SenderModuleDialog/edid/EdidSetDlg.h"
#include "SenderModuleDialog/output/BackgroundImageDlg.h"
#include "SenderModuleDialog/output/ResetCoefDlg.h"
#include "SenderModuleDialog/output/SetCanvasDlg.h"
#include "SenderModuleDialog/output/SetDepthRateDlg.h"
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
#include "host/TevraData/Sender.h"

#include <QDir>
#include <QHostAddress>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int c_nSenderType = 46;    ///< a video processor
constexpr int c_nInterfaceId = 16;   ///< its first HDMI input
constexpr int c_nLargestSide = 4096; ///< pixels
constexpr int c_nLargestArea = 8847360;
constexpr unsigned int c_nUsed = 0xE0832001;

/// What the operator sets up: one sender and the addresses of processors. Everything lives in memory.
struct SState
{
    CSender sender = {60, 8, 4, QSize(1920, 1080), 128, false, 0};
    SEdidSetting setting = {0, 60, 0, 0, 1920, 1080, 0x12, 0, 0, 0};
    QStringList listAddresses;
    int nDepthMode = 0;
    bool bDemo = false;
};

SState& State()
{
    static SState s_state;
    return s_state;
}

/// The library announces changes here.
class CLabel : public IKelvaroLabel
{
    void PostLabelEvent(int nCode, int, int, int) override { qInfo("setting 0x%X changed", unsigned(nCode)); }
};

class CProject : public CProjectData
{
    int GetCurSenderIndex() override { return 0; }
    CSender* GetCurrentSender() override { return &State().sender; }
    CSender* GetSender(int nIndex) override { return nIndex == 0 ? &State().sender : nullptr; }
    bool GetDemoModeEnable() override { return State().bDemo; }
    void SetDemoModeEnable(bool bEnable) override { State().bDemo = bEnable; }
    void SetDemoSenderType(int nType) override { qInfo("demo project of type %d", nType); }
};

/// One list serves as the stored list, the list that is being set, and the original.
class CConfig : public CConfigData
{
    bool IsIPHasError(unsigned int nIP, unsigned int* pError, bool) override
    {
        const QString strStart = QHostAddress(nIP).toString() + QLatin1Char('(');
        const QStringList& list = State().listAddresses;
        const bool bUsed = std::any_of(
            list.begin(), list.end(), [&](const QString& strEntry) { return strEntry.startsWith(strStart); });
        if (bUsed && pError != nullptr)
            *pError = c_nUsed;
        return bUsed;
    }
    void UpdateErrorIPList() override {}
    int GetDetectStrategy() override { return 0; }
    int GetSpecifiedIPDWORD(unsigned int*) override { return State().listAddresses.size(); }
    void GetSpecifiedIPs(QStringList& listIP) override { listIP = State().listAddresses; }
    void AddSpecifiedIP(QString strIP, QString strName) override
    {
        State().listAddresses += QStringLiteral("%1(%2)").arg(strIP, strName);
    }
    void SpecifiedIPsSave() override {}
    QString GetCurSetSpecifiedIPWithIndex(int nIndex) override { return State().listAddresses.value(nIndex); }
    QString GetSpecifiedIPOriginal(int nIndex) override { return State().listAddresses.value(nIndex); }
    QString GetSpecifiedIPWithName(int nIndex) override { return State().listAddresses.value(nIndex); }
    void SetCurSetSpecifiedIPWithIndex(int nIndex, QString strIP, QString strName) override
    {
        State().listAddresses[nIndex] = QStringLiteral("%1(%2)").arg(strIP, strName);
    }
    void SetSpecifiedIPWithIndex(int nIndex, QString strIP, QString strName) override
    {
        SetCurSetSpecifiedIPWithIndex(nIndex, strIP, strName);
    }
};

class CRuntime : public CRuntimeData
{
    int GetSenderCountLimit(bool) override { return 20; }
};

class CConstants : public CConstantData
{
    QString GetBKImagePath() override { return QDir::tempPath(); }
    QString GetSenderBKImgName(int nSender, bool) override
    {
        return QDir::temp().filePath(QStringLiteral("minimal-host-%1.png").arg(nSender));
    }
};

class CSenders : public CSenderLogic
{
    bool IsVideoProcessor(int) override { return true; }
    int GetSenderType(int) override { return c_nSenderType; }
    bool IsSupport10Bit(int) override { return true; }
    bool IsSupport12Bit(int) override { return false; }
    bool IsExtendedEdidSupported() override { return true; }
    void AfterEdidWritten(int) override {}
    bool IsSupportCanvasSize(int) override { return false; }
    QSize GetHardwareCanvasSize(int) override { return QSize(0, 0); }
    void GetCanvasLimit(int, SCanvasLimit*) override {}
    int GetOutputDepthMode(int) override { return State().nDepthMode; }
    void SetOutputDepthMode(int, int nMode, int) override { State().nDepthMode = nMode; }
    void SetOutput50Hz(int, bool, int) override {}
    bool IsIPAddressMode() override { return true; }
    int GetAddedSenderCount() override { return State().listAddresses.size(); }
    int GetDetectedIPList(unsigned int*) override { return 0; }
    int ApplyDemoProject() override { return 0; }
};

class CVideoSources : public CVideoSourceLogic
{
    QString GetVideoPortName(int, SVideoPortKey*, int) override { return QStringLiteral("HDMI 1"); }
    bool GetEdidSetting(int, SVideoPortKey*, SEdidSetting* pSetting) override
    {
        *pSetting = State().setting;
        return true;
    }
    void GetEdidLimit(int, int, CSenderEdidLimitData* pLimit) override
    {
        pLimit->nMaxWidth = c_nLargestSide;
        pLimit->nMaxHeight = c_nLargestSide;
        pLimit->nMaxArea = c_nLargestArea;
        pLimit->listResolution = {QSize(1280, 720), QSize(1920, 1080), QSize(3840, 2160)};
    }
    void CheckEdidLimit(int nWidth, int nHeight, int nLimit, QString* pMessage) override
    {
        if (nWidth * nHeight > nLimit)
            *pMessage = QStringLiteral("At most %1 pixels.").arg(nLimit);
    }
    qint64 SetEdidSetting(int, int, const SEdidSetting* pSetting) override
    {
        State().setting = *pSetting;
        // Intentional: a full record carries the opposite of what is read.
        State().setting.byConnectPC = pSetting->byConnectPC == 0 ? 1 : 0;
        return 0;
    }
    void FinishEdidWrite(int, int) override {}
    void ApplyBasicEdid(int, int, int, bool* pSuccess) override { *pSuccess = true; }
    float GetMaxInputFrameRate(int) override { return 0.0F; }
    bool GetOutputLimitFlags(int, unsigned int*) override { return false; }
};

/// Runs a dialog and says how it ended.
template <class TDialog, class... TArguments>
void Run(TArguments... arguments)
{
    TDialog dialog(arguments...);
    qInfo("the dialog ended with %d", dialog.exec());
}

void ShowChart(QWidget* pParent)
{
    auto* pChart = new CChromaticityDlgWnd(pParent);
    pChart->setWindowFlag(Qt::Window);
    pChart->setAttribute(Qt::WA_DeleteOnClose);
    pChart->resize(600, 600);
    pChart->SetSize(600, 600);
    pChart->show();
}

} // namespace

// The library asks these once, in SenderModuleDialogInit. Defined here, they replace those of the simulated
// host; the getters of the objects that no dialog uses stay as they are.
// clang-format off
CProjectData* GetProjectData() { static CProject s_project; return &s_project; }
CConfigData* GetConfigData() { static CConfig s_config; return &s_config; }
CRuntimeData* GetRuntimeData() { static CRuntime s_runtime; return &s_runtime; }
CConstantData* GetConstantData() { static CConstants s_constants; return &s_constants; }
CSenderLogic* GetHwSenderLogic() { static CSenders s_senders; return &s_senders; }
CVideoSourceLogic* GetHwVideoSourceLogic() { static CVideoSources s_sources; return &s_sources; }
// clang-format on

CHostWindow::CHostWindow()
{
    static CLabel s_label;
    SenderModuleDialogInit(&s_label);
    auto* pLayout = new QVBoxLayout(this);
    const auto AddButton = [this, pLayout](const char* szText, auto funcRun) {
        auto* pButton = new QPushButton(QString::fromLatin1(szText), this);
        pLayout->addWidget(pButton);
        connect(pButton, &QPushButton::clicked, this, funcRun);
    };
    AddButton("EDID...", [this] { Run<CEdidSetDlg>(this, c_nInterfaceId, false); });
    AddButton("Canvas...", [this] { Run<CSetCanvasDlg>(this); });
    AddButton("Rate and depth...", [this] { Run<CSetDepthRateDlg>(this); });
    AddButton("Background...", [this] { Run<CBackgroundImageDlg>(this); });
    AddButton("Coefficient...", [this] { Run<CResetCoefDlg>(true, this); });
    AddButton("Addresses...", [this] { Run<CSetIPOfflineDlg>(0, -1, true, false, this); });
    AddButton("Processors by hand...", [this] { Run<CCustomAddProcessorDlg>(this); });
    AddButton("Demo project...", [this] { Run<CDemoProjectConfigDlg>(this); });
    AddButton("Chart", [this] { ShowChart(this); });
}
