#ifndef SIMULATOR_HARDWARESUPPORT_OUTPUTLIMITS_H
#define SIMULATOR_HARDWARESUPPORT_OUTPUTLIMITS_H

#include "host/HardwareSupport/OutputLimit.h"

struct SSimulatedSender;

/// The flags that the sender is configured to report, or else those computed from its canvas, ports
/// and input settings.
unsigned int OutputLimitFlags(const SSimulatedSender& sender);

#endif // SIMULATOR_HARDWARESUPPORT_OUTPUTLIMITS_H
