#ifndef SENDERMODULEDIALOG_EDID_TIMINGTABLE_H
#define SENDERMODULEDIALOG_EDID_TIMINGTABLE_H

#include <optional>

/// @file
/// Which modes have a fixed timing.

namespace TimingTable {

/// The row of `timingData` that serves a mode, empty when the mode has no fixed timing.
/// @param nWidth, nHeight  active size, pixels
/// @param nRate            frame rate in whole Hz: 59.94 Hz is 59 here and has no fixed timing
std::optional<int> Find(int nWidth, int nHeight, int nRate);

} // namespace TimingTable

#endif // SENDERMODULEDIALOG_EDID_TIMINGTABLE_H
