#ifndef HOST_HARDWARESUPPORT_MONITORLOGIC_H
#define HOST_HARDWARESUPPORT_MONITORLOGIC_H

#include "host/HostExport.h"

/// Monitoring of senders and receivers. The library hands the pointer on and calls nothing of it.
class CMonitorLogic
{
public:
    virtual ~CMonitorLogic() = default;
};

/// The host's object; it outlives every dialog.
HARDWARESUPPORT_EXPORT CMonitorLogic* GetHwMonitorLogic();

#endif // HOST_HARDWARESUPPORT_MONITORLOGIC_H
