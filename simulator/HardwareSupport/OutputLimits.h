#ifndef SIMULATOR_HARDWARESUPPORT_OUTPUTLIMITS_H
#define SIMULATOR_HARDWARESUPPORT_OUTPUTLIMITS_H

#include "host/HardwareSupport/OutputLimit.h"

struct SSimulatedSender;

/// The flags that the sender was told to report, or else those that its canvas, ports and input settings
/// earn.
unsigned int OutputLimitFlags(const SSimulatedSender& sender);

#endif // SIMULATOR_HARDWARESUPPORT_OUTPUTLIMITS_H
