#include "tests/gui/AllDialogs.h"

#include "SenderModuleDialog/addressing/CustomAddProcessorDlg.h"
#include "SenderModuleDialog/addressing/DemoProjectConfigDlg.h"
#include "SenderModuleDialog/addressing/SetIPOfflineDlg.h"
#include "SenderModuleDialog/edid/EdidSetDlg.h"
#include "SenderModuleDialog/output/BackgroundImageDlg.h"
#include "SenderModuleDialog/output/ResetCoefDlg.h"
#include "SenderModuleDialog/output/SetCanvasDlg.h"
#include "SenderModuleDialog/output/SetDepthRateDlg.h"

#include <QAction>

namespace AllDialogs {

namespace {

/// Larger than any verdict asks for.
constexpr int c_nAnyArea = 1 << 30;

/// A canvas of the largest size against a limit.
FuncMake Canvas(SCanvasLimit limit)
{
    return [limit](CRecordingHost& host) {
        host.projectData.sender.sizeCanvas = QSize(32768, 16384);
        host.senderLogic.canvasLimit = limit;
        return std::make_unique<CSetCanvasDlg>(nullptr);
    };
}

/// The rate and depth dialog with the warning of a flag.
FuncMake DepthRate(unsigned int nFlags, int nSenderType)
{
    return [nFlags, nSenderType](CRecordingHost& host) {
        host.senderLogic.nSenderType = nSenderType;
        host.videoSourceLogic.limitFlags = nFlags;
        auto pDialog = std::make_unique<CSetDepthRateDlg>(nullptr);
        pDialog->show();
        QAction action(QStringLiteral("240Hz"));
        pDialog->ComboBoxSelect(&action);
        return pDialog;
    };
}

/// The EDID dialog at a custom size, of a sender type that shows every row.
FuncMake Edid(const char* szVerdict)
{
    return [szVerdict](CRecordingHost& host) {
        host.senderLogic.nSenderType = 43;
        host.videoSourceLogic.limit.listResolution = {QSize(1280, 720), QSize(1920, 1080)};
        SEdidSetting setting;
        setting.byRate = 60;
        setting.wWidth = 16000;
        setting.wHeight = 9000;
        setting.byFormatFlags = 0x12;
        host.videoSourceLogic.setting = setting;
        host.videoSourceLogic.funcVerdict = [szVerdict](int, int, int) {
            return QString::fromUtf8(szVerdict);
        };
        return std::make_unique<CEdidSetDlg>(nullptr, 16, false);
    };
}

FuncMake Addresses(int nCount, bool bSet)
{
    return [nCount, bSet](CRecordingHost& host) {
        host.configData.listCurSet = QStringList(QStringLiteral("192.168.100.107(name)"));
        return std::make_unique<CSetIPOfflineDlg>(0, nCount, bSet, false, nullptr);
    };
}

FuncMake Processors(int nAdded, int nStrategy)
{
    return [nAdded, nStrategy](CRecordingHost& host) {
        host.senderLogic.nAddedSenderCount = nAdded;
        host.senderLogic.bIPAddressMode = true;
        host.configData.nDetectStrategy = nStrategy;
        host.projectData.sender.nOutputPortCount = 16;
        return std::make_unique<CCustomAddProcessorDlg>(nullptr);
    };
}

template <class TDialog, class... TArguments>
FuncMake Plain(TArguments... arguments)
{
    return [arguments...](CRecordingHost&) { return std::make_unique<TDialog>(arguments..., nullptr); };
}

} // namespace

std::vector<SVariant> Variants()
{
    return {
        {"canvas", Canvas(SCanvasLimit())},
        {"canvas, width", Canvas({32767, 16384, c_nAnyArea})},
        {"canvas, height", Canvas({32768, 16383, c_nAnyArea})},
        {"canvas, area", Canvas({32768, 16384, 536870911})},
        {"rate and depth", Plain<CSetDepthRateDlg>()},
        {"area, small", DepthRate(0x800, 16)},
        {"area", DepthRate(0x800, 17)},
        {"DVI 1 to 4", DepthRate(0x1000, 17)},
        {"DVI 5 to 8", DepthRate(0x2000, 17)},
        {"port", DepthRate(0x8000000, 17)},
        {"EDID area, small", DepthRate(0x10000000, 16)},
        {"EDID area", DepthRate(0x10000000, 17)},
        {"background", Plain<CBackgroundImageDlg>()},
        {"correction", Plain<CResetCoefDlg>(true)},
        {"seam repair", Plain<CResetCoefDlg>(false)},
        {"EDID", Edid("")},
        {"EDID with a verdict", Edid("no")},
        {"batch of addresses", Addresses(-1, true)},
        {"address to modify", Addresses(1, false)},
        {"address to set", Addresses(1, true)},
        {"addresses to set", Addresses(3, true)},
        {"processors, ports and address", Processors(0, 2)},
        {"processors and ports", Processors(0, 0)},
        {"processors and address", Processors(1, 2)},
        {"processors", Processors(1, 0)},
        {"demo project", Plain<CDemoProjectConfigDlg>()},
    };
}

} // namespace AllDialogs
