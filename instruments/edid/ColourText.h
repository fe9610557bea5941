#ifndef INSTRUMENTS_EDID_COLOURTEXT_H
#define INSTRUMENTS_EDID_COLOURTEXT_H

#include <QString>

/// @file
/// What the chromaticities of a base block amount to.

namespace Edid {

/// `sRGB 100.0 %, AdobeRGB 74.2 %, ...`: how much of each standard's gamut the primaries cover.
/// @param pBlock  the base block
QString CoverageText(const quint8* pBlock);

/// `6503 K`, or that the white lies outside the temperatures that can be told.
/// @param pBlock  the base block
QString TemperatureText(const quint8* pBlock);

} // namespace Edid

#endif // INSTRUMENTS_EDID_COLOURTEXT_H
