// The logic objects that the library passes on without calling them.
#include "host/HardwareSupport/AdvancedSoftEdgeLogic.h"
#include "host/HardwareSupport/CaliSoftEdgeLogic.h"
#include "host/HardwareSupport/ColorBrightLogic.h"
#include "host/HardwareSupport/MonitorLogic.h"
#include "host/HardwareSupport/ReceiverLogic.h"

namespace {

template <class TLogic>
TLogic* TheObject()
{
    static TLogic s_logic;
    return &s_logic;
}

} // namespace

CAdvancedSoftEdgeLogic* GetHwAdvancedSoftEdgeLogic()
{
    return TheObject<CAdvancedSoftEdgeLogic>();
}

CCaliSoftEdgeLogic* GetHwCaliSoftEdgeLogic()
{
    return TheObject<CCaliSoftEdgeLogic>();
}

CColorBrightLogic* GetHwColorBrightLogic()
{
    return TheObject<CColorBrightLogic>();
}

CMonitorLogic* GetHwMonitorLogic()
{
    return TheObject<CMonitorLogic>();
}

CReceiverLogic* GetHwReceiverLogic()
{
    return TheObject<CReceiverLogic>();
}
