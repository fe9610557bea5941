#ifndef SENDERMODULEDIALOG_EDID_EDIDBLOCK_H
#define SENDERMODULEDIALOG_EDID_EDIDBLOCK_H

#include "SenderModuleDialog/edid/VideoTiming.h"
#include "host/CommonClass/EdidBlockSize.h"

#include <array>

/// @file
/// Writing the 128 bytes of an EDID 1.3 base block (VESA Enhanced EDID Standard, Release A).

namespace EdidBlock {

constexpr float c_fHzPerMHz = 1000000.0F;

using BlockBytes = std::array<unsigned char, c_nEdidBlockSize>;

/// What a detailed timing descriptor says.
struct SDetailedTiming
{
    qint64 nPixelClock; ///< units of 10 kHz; the descriptor keeps 16 bits
    int nWidth;         ///< active width, pixels; the descriptor keeps 12 bits
    int nHeight;        ///< active height, lines; the descriptor keeps 12 bits
    tagSBlankTiming blank;
};

/// Writes every byte of the template, except what a name shorter than its field leaves behind it. The
/// checksum is a placeholder.
void WriteTemplate(BlockBytes& block, int nWidth, int nHeight);

/// Writes the first detailed timing, 18 bytes; the checksum stays as it was.
void WriteFirstDetailedTiming(BlockBytes& block, const SDetailedTiming& timing);

/// Makes the sum of all bytes 0 modulo 256.
void WriteChecksum(BlockBytes& block);

/// The pixel clock that the descriptor stores for a mode, before it is cut to 16 bits: units of 10 kHz.
qint64 PixelClock(int nWidth, int nHeight, float fRate, const tagSBlankTiming& blank);

} // namespace EdidBlock

#endif // SENDERMODULEDIALOG_EDID_EDIDBLOCK_H
