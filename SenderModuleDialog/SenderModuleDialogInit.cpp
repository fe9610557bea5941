#include "SenderModuleDialog/SenderModuleDialogInit.h"

#include "SenderModuleDialog/Constants.h"
#include "host/HardwareSupport/AdvancedSoftEdgeLogic.h"
#include "host/HardwareSupport/CaliSoftEdgeLogic.h"
#include "host/HardwareSupport/ColorBrightLogic.h"
#include "host/HardwareSupport/MonitorLogic.h"
#include "host/HardwareSupport/ReceiverLogic.h"
#include "host/HardwareSupport/SenderLogic.h"
#include "host/HardwareSupport/VideoSourceLogic.h"
#include "host/KelvaroLabel.h"
#include "host/TevraData/ConfigData.h"
#include "host/TevraData/ConstantData.h"
#include "host/TevraData/MonitorData.h"
#include "host/TevraData/ProjectData.h"
#include "host/TevraData/RuntimeData.h"

IKelvaroLabel* g_pIKelvaroLabel = nullptr;
CProjectData* g_pProjectData = nullptr;
CConstantData* g_pConstantData = nullptr;
CConfigData* g_pConfigData = nullptr;
CRuntimeData* g_pRuntimeData = nullptr;
CMonitorData* g_pMonitorData = nullptr;
CSenderLogic* g_pSenderLogic = nullptr;
CReceiverLogic* g_pReceiverLogic = nullptr;
CVideoSourceLogic* g_pVideoSourceLogic = nullptr;
CCaliSoftEdgeLogic* g_pCaliSoftEdgeLogic = nullptr;
CAdvancedSoftEdgeLogic* g_pAdvSoftEdgeLogic = nullptr;
CColorBrightLogic* g_pColorBrightLogic = nullptr;
CMonitorLogic* g_pMonitorLogic = nullptr;

void SenderModuleDialogInit(IKelvaroLabel* pLabel)
{
    // The order is part of the contract: a host may build one object out of another.
    g_pIKelvaroLabel = pLabel;
    g_pProjectData = GetProjectData();
    g_pConstantData = GetConstantData();
    g_pConfigData = GetConfigData();
    g_pRuntimeData = GetRuntimeData();
    g_pMonitorData = GetMonitorData();
    g_pSenderLogic = GetHwSenderLogic();
    g_pReceiverLogic = GetHwReceiverLogic();
    g_pVideoSourceLogic = GetHwVideoSourceLogic();
    g_pCaliSoftEdgeLogic = GetHwCaliSoftEdgeLogic();
    g_pAdvSoftEdgeLogic = GetHwAdvancedSoftEdgeLogic();
    g_pColorBrightLogic = GetHwColorBrightLogic();
    g_pMonitorLogic = GetHwMonitorLogic();
}
