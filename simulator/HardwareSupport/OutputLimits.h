#ifndef SIMULATOR_HARDWARESUPPORT_OUTPUTLIMITS_H
#define SIMULATOR_HARDWARESUPPORT_OUTPUTLIMITS_H

struct SSimulatedSender;

/// The output limits that a sender breaks, as `CVideoSourceLogic::GetOutputLimitFlags` reports them.
enum enOutputLimitFlag : unsigned int
{
    enLimitOutputArea = 0x800,    ///< the canvas is larger than what the sender puts out
    enLimitDvi1To4 = 0x1000,      ///< pixel sum of the inputs DVI 1 to 4
    enLimitDvi5To8 = 0x2000,      ///< pixel sum of the inputs DVI 5 to 8
    enLimitPortArea = 0x8000000,  ///< load area of an output port
    enLimitEdidArea = 0x10000000, ///< the size that an input's setting asks for
};

/// The flags that the sender was told to report, or else those that its canvas, ports and input settings
/// earn.
unsigned int OutputLimitFlags(const SSimulatedSender& sender);

#endif // SIMULATOR_HARDWARESUPPORT_OUTPUTLIMITS_H
