#ifndef HOST_HARDWARESUPPORT_ADVANCEDSOFTEDGELOGIC_H
#define HOST_HARDWARESUPPORT_ADVANCEDSOFTEDGELOGIC_H

#include "host/HostExport.h"

/// Soft edges of overlapping outputs. The library hands the pointer on and calls nothing of it.
class CAdvancedSoftEdgeLogic
{
public:
    virtual ~CAdvancedSoftEdgeLogic() = default;
};

/// The host's object; it outlives every dialog.
HARDWARESUPPORT_EXPORT CAdvancedSoftEdgeLogic* GetHwAdvancedSoftEdgeLogic();

#endif // HOST_HARDWARESUPPORT_ADVANCEDSOFTEDGELOGIC_H
