#ifndef INSTRUMENTS_EDID_FIELDVALUES_H
#define INSTRUMENTS_EDID_FIELDVALUES_H

#include "instruments/edid/BlockTimings.h"
#include "instruments/edid/ModeTiming.h"

#include <QString>

#include <optional>

/// @file
/// Values of the base block as people give them. Whatever the format cannot hold is refused, never cut.

namespace Edid {

/// Two numbers with a character between them.
struct SPair
{
    double dFirst = 0.0;
    double dSecond = 0.0;
    bool bRead = false;
};

SPair ReadPair(const QString& strText, QChar chBetween);

/// Whether a number is whole and within bounds.
bool IsWhole(double dValue, double dFirst, double dLast);

/// The timing with reduced blanking of `WIDTHxHEIGHT@RATE`; empty for another text, and for a mode that has
/// no such timing.
std::optional<SModeTiming> ModeOf(const QString& strMode);

/// Replaces a descriptor by a timing that fits. The image size of a timing that was there stays.
void ReplaceDetailed(quint8* pDescriptor, const SModeTiming& timing);

/// The number of three letters A to Z; empty for another text.
std::optional<int> MakerNumber(const QString& strLetters);

/// Why a text does not fit a descriptor; empty when it does: 1 to 13 printable ASCII characters, none of them
/// a blank at the end.
QString TextError(const QString& strText);

/// Writes a text that fits, 13 bytes: a line feed ends a shorter one, and blanks follow.
void WriteText(quint8* pContent, const QString& strText);

/// Writes a text descriptor, 18 bytes.
void WriteTextDescriptor(quint8* pDescriptor, quint8 byTag, const QString& strText);

/// The limits that just contain what the modes of a block need, as far as the format goes: 510 Hz, 510 kHz,
/// 2550 MHz; without offsets 255 Hz and 255 kHz.
SRangeLimits LimitsFor(const SBlockTimings& timings, bool bFrom14);

/// Writes range limits without a formula, 18 bytes.
void WriteRange(quint8* pDescriptor, const SRangeLimits& limits, bool bFrom14);

/// Puts limits into a range descriptor; its formula and what follows stay.
void PutLimits(quint8* pDescriptor, const SRangeLimits& limits, bool bFrom14);

} // namespace Edid

#endif // INSTRUMENTS_EDID_FIELDVALUES_H
