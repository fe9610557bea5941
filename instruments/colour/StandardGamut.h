#ifndef INSTRUMENTS_COLOUR_STANDARDGAMUT_H
#define INSTRUMENTS_COLOUR_STANDARDGAMUT_H

#include "SenderModuleDialog/colour/ColourStandards.h"
#include "instruments/colour/Gamut.h"

/// @file
/// The eight standard colour spaces of the chart, as double precision takes them.

namespace StandardGamut {

/// A coordinate as it is written: 0.3127, where the table's float widens to 0.31270000338554.
double Decimal(float fCoordinate);

/// Both coordinates of a point as they are written.
SChromaticity Decimal(CPointEx<float> pt);

/// The primaries of a standard.
SGamut Primaries(const SColourStandard& standard);
/// The white of a standard.
SChromaticity White(const SColourStandard& standard);

} // namespace StandardGamut

#endif // INSTRUMENTS_COLOUR_STANDARDGAMUT_H
