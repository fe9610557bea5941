#ifndef HOST_TEVRADATA_PROJECTDATA_H
#define HOST_TEVRADATA_PROJECTDATA_H

#include "host/HostExport.h"

struct CSender;

/// The host's project: its senders and its demo mode. All calls come from the GUI thread.
class CProjectData
{
public:
    virtual ~CProjectData() = default;

    /// Index of the sender that is being edited.
    virtual int GetCurSenderIndex() = 0;
    /// Record of the sender that is being edited, valid while a dialog is open. Owned by the host.
    virtual CSender* GetCurrentSender() = 0;
    /// Record of the sender with that index. Owned by the host.
    virtual CSender* GetSender(int nIndex) = 0;
    /// True when no hardware is present: waits are skipped or shortened.
    virtual bool GetDemoModeEnable() = 0;
    /// Turns demo mode on or off.
    virtual void SetDemoModeEnable(bool bEnable) = 0;
    /// Sets the sender type of the demo project, an `enDemoSenderType`.
    virtual void SetDemoSenderType(int nType) = 0;
};

/// The host's project object; it outlives every dialog.
TEVRADATA_EXPORT CProjectData* GetProjectData();

#endif // HOST_TEVRADATA_PROJECTDATA_H
