#ifndef SENDERMODULEDIALOG_SENDERMODULEDIALOGINIT_H
#define SENDERMODULEDIALOG_SENDERMODULEDIALOGINIT_H

#include "SenderModuleDialog/SenderModuleDialogGlobal.h"

class CAdvancedSoftEdgeLogic;
class CCaliSoftEdgeLogic;
class CColorBrightLogic;
class CConfigData;
class CConstantData;
class CMonitorData;
class CMonitorLogic;
class CProjectData;
class CReceiverLogic;
class CRuntimeData;
class CSenderLogic;
class CVideoSourceLogic;
class IKelvaroLabel;

/// @file
/// The library's entry point and the handles through which every dialog reaches the host. The handles are
/// null until `SenderModuleDialogInit` has run; a dialog built before it ends the process at its first host
/// call. The objects belong to the host, outlive every dialog, and are never freed by the library. Read the
/// handles on the GUI thread; nothing but `SenderModuleDialogInit` writes them.

/// The argument of `SenderModuleDialogInit`: `CSetDepthRateDlg` and `CBackgroundImageDlg` announce changes
/// through it.
extern SENDERMODULEDIALOG_EXPORT IKelvaroLabel* g_pIKelvaroLabel;
/// From `GetProjectData()`: every dialog that edits a sender finds it through this one.
extern SENDERMODULEDIALOG_EXPORT CProjectData* g_pProjectData;
/// From `GetConstantData()`, for `CBackgroundImageDlg`.
extern SENDERMODULEDIALOG_EXPORT CConstantData* g_pConstantData;
/// From `GetConfigData()`: the address list of `CSetIPOfflineDlg` and `CCustomAddProcessorDlg`.
extern SENDERMODULEDIALOG_EXPORT CConfigData* g_pConfigData;
/// From `GetRuntimeData()`, for `CCustomAddProcessorDlg`.
extern SENDERMODULEDIALOG_EXPORT CRuntimeData* g_pRuntimeData;
extern SENDERMODULEDIALOG_EXPORT CMonitorData* g_pMonitorData; ///< for the host's use alone
/// From `GetHwSenderLogic()`: what senders can do, for every dialog but
/// `CBackgroundImageDlg` and `CResetCoefDlg`.
extern SENDERMODULEDIALOG_EXPORT CSenderLogic* g_pSenderLogic;
extern SENDERMODULEDIALOG_EXPORT CReceiverLogic* g_pReceiverLogic; ///< for the host's use alone
/// From `GetHwVideoSourceLogic()`, for `CEdidSetDlg` and `CSetDepthRateDlg`.
extern SENDERMODULEDIALOG_EXPORT CVideoSourceLogic* g_pVideoSourceLogic;
extern SENDERMODULEDIALOG_EXPORT CCaliSoftEdgeLogic* g_pCaliSoftEdgeLogic;    ///< for the host's use alone
extern SENDERMODULEDIALOG_EXPORT CAdvancedSoftEdgeLogic* g_pAdvSoftEdgeLogic; ///< for the host's use alone
extern SENDERMODULEDIALOG_EXPORT CColorBrightLogic* g_pColorBrightLogic;      ///< for the host's use alone
extern SENDERMODULEDIALOG_EXPORT CMonitorLogic* g_pMonitorLogic;              ///< for the host's use alone

/// Stores the host's label interface and fills the other handles from the getters of the host's libraries.
/// Call it once on the GUI thread before any dialog is created; a second call stores everything again.
/// @param pLabel stored as it is, null too: nothing is checked, and a null label faults at its first use
SENDERMODULEDIALOG_EXPORT void SenderModuleDialogInit(IKelvaroLabel* pLabel);

#endif // SENDERMODULEDIALOG_SENDERMODULEDIALOGINIT_H
