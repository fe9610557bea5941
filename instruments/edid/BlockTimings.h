#ifndef INSTRUMENTS_EDID_BLOCKTIMINGS_H
#define INSTRUMENTS_EDID_BLOCKTIMINGS_H

#include "instruments/edid/ModeTiming.h"

/// @file
/// The modes that a base block offers, and the range limits that they have to stay in.

namespace Edid {

/// The limits of a range descriptor, offsets counted in.
struct SRangeLimits
{
    int nVMin;     ///< Hz
    int nVMax;     ///< Hz
    int nHMin;     ///< kHz
    int nHMax;     ///< kHz
    int nMaxClock; ///< MHz; 0 for none
};

/// Reads the limits of a descriptor of 18 bytes.
SRangeLimits ReadRange(const quint8* pDescriptor, bool bFrom14);

/// What the modes of a block need.
struct SBlockTimings
{
    int nRange = 0; ///< offset of the range limits, 0 without any
    int nModes = 0; ///< how many modes were looked at
    double dVMin = 0.0;
    double dVMax = 0.0; ///< Hz
    double dHMin = 0.0;
    double dHMax = 0.0;   ///< Hz
    qint64 nMaxClock = 0; ///< Hz
    SRangeLimits limits = {};

    /// Counts a mode in.
    void Include(const SModeTiming& timing);
    /// Whether a mode lies outside the limits, in the whole hertz and kilohertz that they hold.
    bool IsOutside() const;
};

/// Looks at the established timings, the standard timings that are listed display timings, and the detailed
/// timings of a base block.
SBlockTimings TimingsOf(const quint8* pBlock);

/// Whether a detailed timing's clock can be one: below 10 MHz the bytes are something else.
bool IsPlausibleClock(const quint8* pDescriptor);

} // namespace Edid

#endif // INSTRUMENTS_EDID_BLOCKTIMINGS_H
