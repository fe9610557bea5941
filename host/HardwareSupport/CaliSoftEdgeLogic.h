#ifndef HOST_HARDWARESUPPORT_CALISOFTEDGELOGIC_H
#define HOST_HARDWARESUPPORT_CALISOFTEDGELOGIC_H

#include "host/HostExport.h"

/// Soft edges between calibrated cabinets. The library hands the pointer on and calls nothing of it.
class CCaliSoftEdgeLogic
{
public:
    virtual ~CCaliSoftEdgeLogic() = default;
};

/// The host's object; it outlives every dialog.
HARDWARESUPPORT_EXPORT CCaliSoftEdgeLogic* GetHwCaliSoftEdgeLogic();

#endif // HOST_HARDWARESUPPORT_CALISOFTEDGELOGIC_H
