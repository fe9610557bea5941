#ifndef SIMULATOR_HARDWARESUPPORT_EDIDVERDICT_H
#define SIMULATOR_HARDWARESUPPORT_EDIDVERDICT_H

#include <QString>

struct SSenderCapability;
struct SSimulatedInput;

/// Checks a size against the limits of an input; the text is the verdict for the operator, empty when the
/// size is valid. A valid size that needs an EDID extension block gives a notice.
/// @param nLimit largest area in pixels, or the pixel clock of the mode in MHz where the input is limited by
/// it;
///               a clock of 0 is unknown and is not judged
QString EdidVerdict(const SSenderCapability& capability, const SSimulatedInput& input, int nWidth,
                    int nHeight, int nLimit);

#endif // SIMULATOR_HARDWARESUPPORT_EDIDVERDICT_H
