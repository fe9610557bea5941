#ifndef HOST_TEVRADATA_RUNTIMEDATA_H
#define HOST_TEVRADATA_RUNTIMEDATA_H

#include "host/HostExport.h"

/// What the host knows while it runs. All calls come from the GUI thread.
class CRuntimeData
{
public:
    virtual ~CRuntimeData() = default;

    /// Largest allowed number of processors.
    /// @param bIPAddressMode the result of `CSenderLogic::IsIPAddressMode`
    virtual int GetSenderCountLimit(bool bIPAddressMode) = 0;
};

/// The host's run-time data; the object outlives every dialog.
TEVRADATA_EXPORT CRuntimeData* GetRuntimeData();

#endif // HOST_TEVRADATA_RUNTIMEDATA_H
