#ifndef SENDERMODULEDIALOG_HOSTACCESS_H
#define SENDERMODULEDIALOG_HOSTACCESS_H

#include "SenderModuleDialog/Fault.h"
#include "SenderModuleDialog/SenderModuleDialogInit.h"
#include "host/HardwareSupport/SenderLogic.h"
#include "host/HardwareSupport/VideoSourceLogic.h"
#include "host/KelvaroLabel.h"
#include "host/TevraData/ConfigData.h"
#include "host/TevraData/ConstantData.h"
#include "host/TevraData/ProjectData.h"
#include "host/TevraData/RuntimeData.h"
#include "host/TevraData/Sender.h"

/// How the dialogs reach the host: each accessor faults at the caller's place when its handle is null, which
/// means that the host built a dialog before `SenderModuleDialogInit`.
namespace HostAccess {

inline IKelvaroLabel& Label(SSourcePlace place = SSourcePlace::Here())
{
    return Deref(g_pIKelvaroLabel, "g_pIKelvaroLabel != nullptr", place);
}

inline CProjectData& ProjectData(SSourcePlace place = SSourcePlace::Here())
{
    return Deref(g_pProjectData, "g_pProjectData != nullptr", place);
}

inline CConstantData& ConstantData(SSourcePlace place = SSourcePlace::Here())
{
    return Deref(g_pConstantData, "g_pConstantData != nullptr", place);
}

inline CConfigData& ConfigData(SSourcePlace place = SSourcePlace::Here())
{
    return Deref(g_pConfigData, "g_pConfigData != nullptr", place);
}

inline CRuntimeData& RuntimeData(SSourcePlace place = SSourcePlace::Here())
{
    return Deref(g_pRuntimeData, "g_pRuntimeData != nullptr", place);
}

inline CSenderLogic& SenderLogic(SSourcePlace place = SSourcePlace::Here())
{
    return Deref(g_pSenderLogic, "g_pSenderLogic != nullptr", place);
}

inline CVideoSourceLogic& VideoSourceLogic(SSourcePlace place = SSourcePlace::Here())
{
    return Deref(g_pVideoSourceLogic, "g_pVideoSourceLogic != nullptr", place);
}

/// Index of the sender that is being edited.
inline int CurrentSenderIndex(SSourcePlace place = SSourcePlace::Here())
{
    return ProjectData(place).GetCurSenderIndex();
}

/// Record of the sender that is being edited; faults when the host has none.
inline CSender& CurrentSender(SSourcePlace place = SSourcePlace::Here())
{
    return Deref(ProjectData(place).GetCurrentSender(), "GetCurrentSender() != nullptr", place);
}

/// Where the host keeps the background picture of the sender that is being edited.
inline QString CurrentPicturePath(SSourcePlace place = SSourcePlace::Here())
{
    return ConstantData(place).GetSenderBKImgName(CurrentSenderIndex(place), true);
}

} // namespace HostAccess

#endif // SENDERMODULEDIALOG_HOSTACCESS_H
