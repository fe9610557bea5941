#ifndef INSTRUMENTS_EDID_BLOCKCUTS_H
#define INSTRUMENTS_EDID_BLOCKCUTS_H

#include "SenderModuleDialog/edid/VideoTiming.h"

#include <QStringList>

/// @file
/// What the EDID 1.3 block of the library cuts of a mode.

namespace Edid {

/// A mode as it goes into the block.
struct SBlockMode
{
    int nWidth;            ///< pixels
    int nHeight;           ///< lines
    tagSBlankTiming blank; ///< blanking of the mode
    qint64 nClock;         ///< units of 10 kHz, before it is cut
    double dWantedClock;   ///< Hz, before it is rounded to units
};

/// A mode with reduced blanking.
/// @param fRate  Hz
SBlockMode ReducedBlockMode(int nWidth, int nHeight, float fRate);

/// What a detailed timing cuts of the pixel clock, a line each.
QStringList ClockCuts(const SBlockMode& mode);

/// What the whole block cuts of the mode or contradicts, a line each.
QStringList BlockCuts(const SBlockMode& mode);

/// A frequency in MHz, with two decimals: exact for whole units of 10 kHz.
QString Megahertz(double dHz);

} // namespace Edid

#endif // INSTRUMENTS_EDID_BLOCKCUTS_H
