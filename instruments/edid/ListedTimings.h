#ifndef INSTRUMENTS_EDID_LISTEDTIMINGS_H
#define INSTRUMENTS_EDID_LISTEDTIMINGS_H

#include "instruments/edid/ModeTiming.h"

#include <vector>

/// @file
/// The timings that an EDID names by a number alone.

namespace Edid {

/// A picture's shape, width to height.
struct SAspect
{
    int nWidth;
    int nHeight;
};

/// One row of the published lists.
struct SListedTiming
{
    int nId;                  ///< VIC or DMT number
    quint16 wStandard;        ///< the two bytes of a standard timing, first byte high; 0 without any
    quint32 nCvtCode;         ///< the three bytes of a CVT code, first byte high; 0 without any
    SAspect aspect;           ///< of the picture
    quint32 nClock;           ///< kHz
    quint16 arrHorizontal[4]; ///< active, front porch, sync, back porch
    quint16 arrVertical[4];   ///< active, front porch, sync, back porch; of a field when interlaced
    /// Polarities of horizontal and vertical sync, then letters: 'i' interlaced, 'w' fields of whole lines,
    /// 'r' reduced blanking.
    const char* szFlags;
};

/// Rows of a table.
struct STimingList
{
    const SListedTiming* pFirst;
    int nCount;

    const SListedTiming* begin() const { return pFirst; }
    const SListedTiming* end() const { return pFirst + nCount; }
};

/// Video identification codes (CTA-861-H, table 3).
STimingList VideoCodes();
/// Video codes of the HDMI vendor block (HDMI 1.4, table 8-13).
STimingList HdmiVideoCodes();
/// Display monitor timings (VESA DMT 1.13).
STimingList DisplayTimings();

/// A byte that stands for a video code: 129 to 192 are the codes 1 to 64 of a native format (CTA-861-H,
/// section 7.5.1).
struct SVideoCode
{
    int nVic;
    bool bNative;
};

SVideoCode VideoCodeOf(int nByte);

/// The row with a number, null without any.
const SListedTiming* FindListed(STimingList list, int nId);
/// The display monitor timing of a standard timing's two bytes, null without any.
const SListedTiming* FindStandard(quint16 wStandard);
/// The display monitor timing of a CVT code's three bytes, null without any.
const SListedTiming* FindCvtCode(quint32 nCode);
/// The first progressive row of a size and a rate in whole Hz, null without any.
const SListedTiming* FindMode(STimingList list, int nWidth, int nHeight, int nRate);

/// The row as a timing.
SModeTiming TimingOf(const SListedTiming& listed);

/// A timing that stands for one bit of the established timings.
struct SEstablished
{
    quint8 byByte;        ///< of the base block, or of the established timings III descriptor
    quint8 byBit;         ///< 7 is the highest
    quint8 byDmt;         ///< display monitor timing, 0 for one of a maker of its own
    const char* szOrigin; ///< "IBM", "Apple" or "DMT"
    const SListedTiming* pTiming;
};

using EstablishedList = std::vector<SEstablished>;

/// Established timings I and II, bytes 0x23 to 0x25 of the base block (VESA E-EDID, section 3.8).
const EstablishedList& EstablishedTimings();
/// Established timings III, bytes 6 to 11 of the descriptor with tag 0xF7 (VESA E-EDID 1.4,
/// section 3.10.3.9).
const EstablishedList& EstablishedTimingsIII();

} // namespace Edid

#endif // INSTRUMENTS_EDID_LISTEDTIMINGS_H
