#ifndef SENDERMODULEDIALOG_EDID_CVTTIMING_H
#define SENDERMODULEDIALOG_EDID_CVTTIMING_H

#include "SenderModuleDialog/edid/VideoTiming.h"

/// @file
/// Blanking calculated like VESA Coordinated Video Timings 1.1, with the roundings and constants
/// of this product where they differ.

namespace CvtTiming {

/// The blanking of a mode. Every step is rounded to single precision on its own. Any input gives a record:
/// what a field cannot hold is clamped to its range.
/// @param timing  every field is written in its place: a record of small fields that is returned in registers
///                would first be put together in memory
void Calculate(const tagSCalTimingIn& in, tagSBlankTiming& timing);

} // namespace CvtTiming

#endif // SENDERMODULEDIALOG_EDID_CVTTIMING_H
