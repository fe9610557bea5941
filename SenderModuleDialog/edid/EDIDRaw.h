#ifndef SENDERMODULEDIALOG_EDID_EDIDRAW_H
#define SENDERMODULEDIALOG_EDID_EDIDRAW_H

#include "SenderModuleDialog/SenderModuleDialogGlobal.h"
#include "SenderModuleDialog/edid/VideoTiming.h"
#include "host/CommonClass/EdidBlockSize.h"

#include <array>

/// One EDID 1.3 base block (VESA Enhanced EDID Standard, Release A), filled for a resolution and a frame
/// rate, and the video timing calculations behind it.
///
/// The object is its 128 bytes and nothing else: a host reads the block through the object's address. The
/// block is a fixed template with three variable things: the monitor name, the first detailed timing and
/// the checksum. The detailed timing always comes from the reduced-blanking calculation, even for sizes
/// listed in `timingData`.
///
/// No operation can fail or report anything, none allocates, and none has undefined behaviour for any
/// argument: what no field can hold is held to the field's range, or cut to its low bits where a comment says
/// so. A null pointer ends the process.
///
/// The operations on the block are for one thread at a time; those on video timing only read, and any thread
/// may call them.
class SENDERMODULEDIALOG_EXPORT CEDIDRaw
{
public:
    /// Zeroes the block; a block of zeros is not a valid one.
    CEDIDRaw();

    /// @name The block
    /// Width and height are in pixels, the rate in Hz. The detailed timing keeps the low 12 bits of width and
    /// height and the low 16 bits of the pixel clock in units of 10 kHz.
    /// @{

    /// The complete operation: zeroes the block, writes the template, calculates the timing (progressive,
    /// reduced blanking, no margins), stores it. The block is valid afterwards.
    void ChangeWH(int nWidth, int nHeight, float fRate);
    /// Writes the template with the monitor name `LED%5dX%d`, of which 13 characters survive. Does
    /// not clear the block first, so a shorter name leaves the tail of a longer one; the checksum is
    /// the placeholder 0x80.
    void Init1p3VersionEdidBaseBlock(int nWidth, int nHeight);
    /// Calculates the timing as `ChangeWH` does and stores it; the rest of the block stays.
    void CalFirstDetailTimingByCvt(int nWidth, int nHeight, float fRate);
    /// A second name for `CalFirstDetailTimingByCvt`, kept for hosts that call it.
    void CalculateFirstDetailTiming(int nWidth, int nHeight, float fRate);
    /// Writes a timing as the first detailed timing, then the checksum. The pixel clock is the total of
    /// pixels times the rate in single precision, truncated, divided by 10000 in integers.
    void StoreFirstDetailTiming(int nWidth, int nHeight, float fRate, tagSBlankTiming* pTiming);
    /// Writes the checksum: the sum of all 128 bytes becomes 0 modulo 256.
    void CalSumCheck();
    /// @}

    /// @name Video timing
    /// These use no byte of the block. Sizes are in pixels and lines, rates in Hz.
    /// @{

    /// Calculates blanking like VESA CVT 1.1, each step rounded to single precision. The width is
    /// rounded up to whole cells of 8 pixels, normal blanking has a minimum back porch of 3 lines, and the
    /// rate of an interlaced mode is not doubled: this product's choices where the published formula differs.
    /// A line period of zero or below asks for the most blanking lines that the field holds.
    /// @param nInterlaced, nReduced, nMargins  non-zero for yes
    /// @param pTiming  every field is written
    void CalCVTtiming(int nWidth, int nHeight, float fRate, int nInterlaced, int nReduced, int nMargins,
                      tagSBlankTiming* pTiming) const;
    /// `CalCVTtiming` with its input in a record.
    void CalculateTiming(tagSCalTimingIn in, tagSBlankTiming* pTiming) const;
    /// Blank - front - sync, held to the range of int.
    int CalculateHBackPorch(int nBlank, int nFront, int nSync) const;
    /// Blank - front - sync, held to the range of int.
    int CalculateVBackPorch(int nBlank, int nFront, int nSync) const;
    /// The pixel frequency in MHz, sums and products in single precision.
    float CalculatePixelFreq(int nHActive, int nHBlank, int nVActive, int nVBlank, float fRate) const;
    /// Writes the row of `timingData` for a mode; `*pId` stays when no row serves it.
    /// @param nRate  whole Hz: 59.94 Hz arrives as 59, which no row serves
    void MatchTimingID(int nWidth, int nHeight, int nRate, int* pId) const;
    /// True when the frame is within the budget of 160 MHz. A listed mode is judged with its blanking, any
    /// other on its active pixels alone: this asymmetry is intentional. A value beyond the range of int is
    /// over budget.
    bool IsReslutionOk(int nWidth, int nHeight, float fRate) const;
    /// The pixel frequency in Hz, with the blanking of the listed timing or, for other modes,
    /// the calculated one.
    /// @param nStandard  0: reduced blanking; anything else: normal blanking
    float CalReslutionPixelFreq(int nWidth, int nHeight, float fRate, int nStandard) const;
    /// @}

private:
    std::array<unsigned char, c_nEdidBlockSize> m_byBlock;
};

#endif // SENDERMODULEDIALOG_EDID_EDIDRAW_H
