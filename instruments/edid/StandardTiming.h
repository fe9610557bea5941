#ifndef INSTRUMENTS_EDID_STANDARDTIMING_H
#define INSTRUMENTS_EDID_STANDARDTIMING_H

#include <QString>

#include <optional>

/// @file
/// The two bytes of a standard timing (VESA E-EDID, section 3.9).

namespace Edid {

/// What two bytes name.
struct SStandardTiming
{
    int nWidth;
    int nHeight;
    int nRate; ///< Hz
};

/// Reads a standard timing.
/// @param wStandard  the two bytes, first byte high
/// @param nRevision  of EDID 1.x: before 1.3 the aspect code 0 is square
SStandardTiming ReadStandard(quint16 wStandard, int nRevision);

/// The two bytes that name a size and a rate, first byte high; empty when none do.
std::optional<quint16> StandardCode(const SStandardTiming& timing, int nRevision);

/// `1280x1024 at 60 Hz, DMT 0x23`; empty for an unused pair.
QString StandardText(quint16 wStandard, int nRevision);

} // namespace Edid

#endif // INSTRUMENTS_EDID_STANDARDTIMING_H
