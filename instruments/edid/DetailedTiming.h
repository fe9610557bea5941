#ifndef INSTRUMENTS_EDID_DETAILEDTIMING_H
#define INSTRUMENTS_EDID_DETAILEDTIMING_H

#include "instruments/edid/ModeTiming.h"

/// @file
/// Timings as blocks hold them, by the layout tables.

namespace Edid {

/// Whether 18 bytes are a detailed timing: a display descriptor begins with a clock of zero.
bool IsDetailed(const quint8* pDescriptor);

/// Reads a detailed timing (VESA E-EDID, section 3.10.2). Borders count as part of the back porch; the sync
/// of a composite signal counts as negative.
SModeTiming ReadDetailed(const quint8* pDescriptor);

/// Whether a detailed timing can hold a timing without cutting it.
bool FitsDetailed(const SModeTiming& timing);

/// Writes a timing that fits: digital separate sync, no borders, no stereo.
/// @param nWidthMm, nHeightMm  size of the picture, 0 for unknown
void WriteDetailed(quint8* pDescriptor, const SModeTiming& timing, int nWidthMm, int nHeightMm);

/// Reads a type I timing (VESA DisplayID 1.3, section 4.4.1), 20 bytes.
SModeTiming ReadTypeI(const quint8* pTiming);

/// Reads a type VII timing (VESA DisplayID 2.0, section 4.3), 20 bytes.
SModeTiming ReadTypeVII(const quint8* pTiming);

/// Whether a type I timing can hold a timing without cutting it.
bool FitsTypeI(const SModeTiming& timing);

/// Writes a timing that fits as the preferred one.
void WriteTypeI(quint8* pTiming, const SModeTiming& timing);

} // namespace Edid

#endif // INSTRUMENTS_EDID_DETAILEDTIMING_H
