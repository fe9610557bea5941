#ifndef HOST_TEVRADATA_MONITORDATA_H
#define HOST_TEVRADATA_MONITORDATA_H

#include "host/HostExport.h"

/// The host's monitoring data. The library hands the pointer on and calls nothing of it.
class CMonitorData
{
public:
    virtual ~CMonitorData() = default;
};

/// The host's monitoring data; the object outlives every dialog.
TEVRADATA_EXPORT CMonitorData* GetMonitorData();

#endif // HOST_TEVRADATA_MONITORDATA_H
