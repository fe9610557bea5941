#ifndef HOST_HARDWARESUPPORT_COLORBRIGHTLOGIC_H
#define HOST_HARDWARESUPPORT_COLORBRIGHTLOGIC_H

#include "host/HostExport.h"

/// Colour and brightness of the screens. The library hands the pointer on and calls nothing of it.
class CColorBrightLogic
{
public:
    virtual ~CColorBrightLogic() = default;
};

/// The host's object; it outlives every dialog.
HARDWARESUPPORT_EXPORT CColorBrightLogic* GetHwColorBrightLogic();

#endif // HOST_HARDWARESUPPORT_COLORBRIGHTLOGIC_H
