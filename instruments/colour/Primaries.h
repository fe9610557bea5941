#ifndef INSTRUMENTS_COLOUR_PRIMARIES_H
#define INSTRUMENTS_COLOUR_PRIMARIES_H

#include "instruments/colour/ColourMatrix.h"
#include "instruments/colour/Gamut.h"

/// @file
/// Displays with three additive primaries in linear light. The matrix from the primaries to XYZ and the
/// luminances for a white follow SMPTE RP 177:1993, Derivation of basic television color equations; the
/// chromaticities of the standards are those of ITU-R BT.709, BT.2020 and SMPTE RP 431-2.

/// A measured colour.
struct SReading
{
    SChromaticity xy;        ///< CIE 1931 xy
    double dLuminance = 0.0; ///< cd/m2
};

/// The three primaries of a display, each at full drive.
struct SPrimaries
{
    SReading red;   ///< red alone
    SReading green; ///< green alone
    SReading blue;  ///< blue alone
};

namespace Primaries {

/// The chromaticities alone.
SGamut GamutOf(const SPrimaries& primaries);

/// Why a reading cannot be calculated with.
enColourFault CheckReading(const SReading& reading);
/// Why primaries cannot be calculated with.
enColourFault Check(const SPrimaries& primaries);

/// The matrix from drive values (1 is full drive) to XYZ in cd/m2: its columns are the primaries.
CColourResult<CColourMatrix> MatrixToXyz(const SPrimaries& primaries);

/// The white at full drive of all three primaries.
CColourResult<SReading> WhiteOf(const SPrimaries& primaries);

/// Red, green and blue luminance.
struct SLuminances
{
    double dRed = 0.0;   ///< of red, in the unit of the level that was asked for
    double dGreen = 0.0; ///< of green
    double dBlue = 0.0;  ///< of blue
};

/// The luminance of each primary for a white at a level.
/// @param dLevel luminance of the white, cd/m2; 1 gives the luminances as parts of it
CColourResult<SLuminances> LuminancesForWhite(const SGamut& gamut, SChromaticity white, double dLevel);

/// The channel that reaches its limit first.
enum class enChannel
{
    enRed,
    enGreen,
    enBlue,
};

/// The greatest luminance of a white that keeps all three primaries within full drive.
struct SGreatestLevel
{
    double dLevel = 0.0;                ///< cd/m2
    enChannel limit = enChannel::enRed; ///< the primary at full drive
};

/// How bright a display can show a white.
/// @return the fault of `Check`, or `enWhiteOutsideGamut`
CColourResult<SGreatestLevel> GreatestLevel(const SPrimaries& primaries, SChromaticity white);

/// The matrix from linear light of a gamut with a white to XYZ, where white has the luminance `dLevel`.
CColourResult<CColourMatrix> SourceToXyz(const SGamut& gamut, SChromaticity white, double dLevel);

/// The matrix from linear light of a source (0 to 1 for each channel) to the drive values of a display.
/// @param dLevel luminance of the source's white on the display, cd/m2
CColourResult<CColourMatrix> DriveMatrix(const SGamut& source, SChromaticity white, double dLevel,
                                         const SPrimaries& display);

/// What a drive matrix does with the colours of its source, as parts of a regular grid over 0 to 1
/// in each channel.
struct SClipShare
{
    double dBelow = 0.0;   ///< colours that ask a primary for less than nothing: outside the display's gamut
    double dAbove = 0.0;   ///< colours that ask for more than full drive
    double dClipped = 0.0; ///< colours of either kind
};

/// @param nSteps places of the grid along each channel, 2 or more; black, at its corner, is one of them
SClipShare ClipShare(const CColourMatrix& drive, int nSteps);

} // namespace Primaries

#endif // INSTRUMENTS_COLOUR_PRIMARIES_H
