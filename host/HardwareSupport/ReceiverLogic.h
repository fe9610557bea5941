#ifndef HOST_HARDWARESUPPORT_RECEIVERLOGIC_H
#define HOST_HARDWARESUPPORT_RECEIVERLOGIC_H

#include "host/HostExport.h"

/// The receivers behind the senders. The library hands the pointer on and calls nothing of it.
class CReceiverLogic
{
public:
    virtual ~CReceiverLogic() = default;
};

/// The host's object; it outlives every dialog.
HARDWARESUPPORT_EXPORT CReceiverLogic* GetHwReceiverLogic();

#endif // HOST_HARDWARESUPPORT_RECEIVERLOGIC_H
