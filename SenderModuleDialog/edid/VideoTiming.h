#ifndef SENDERMODULEDIALOG_EDID_VIDEOTIMING_H
#define SENDERMODULEDIALOG_EDID_VIDEOTIMING_H

#include "SenderModuleDialog/SenderModuleDialogGlobal.h"

/// @file
/// The records of a video timing and the table of the fixed ones.

/// Blanking of a mode: the result of every timing calculation.
struct tagSBlankTiming
{
    quint16 wHBlank;      ///< horizontal blanking, pixels
    quint16 wHFrontPorch; ///< horizontal front porch, pixels
    quint16 wHSync;       ///< horizontal sync width, pixels
    quint16 wVBlank;      ///< vertical blanking, lines
    quint8 byVFrontPorch; ///< vertical front porch, lines
    quint8 byVSync;       ///< vertical sync width, lines
    quint8 bySyncFlag;    ///< bit 0: horizontal sync positive; bit 1: vertical sync positive
};

/// Input of `CEDIDRaw::CalculateTiming`.
struct tagSCalTimingIn
{
    int nWidth;        ///< active width, pixels
    int nHeight;       ///< active height, lines
    float fRate;       ///< frame rate, Hz
    int bInterlaced;   ///< non-zero: interlaced
    int bReducedBlank; ///< non-zero: reduced blanking
    int bMargins;      ///< non-zero: add margins
};

/// One fixed timing.
struct STimingData
{
    quint16 wWidth;       ///< active width, pixels
    quint16 wHBlank;      ///< horizontal blanking, pixels
    quint16 wHFrontPorch; ///< horizontal front porch, pixels
    quint16 wHSync;       ///< horizontal sync width, pixels
    quint16 wReserved1;   ///< 0
    quint16 wHeight;      ///< active height, lines
    quint16 wVBlank;      ///< vertical blanking, lines
    quint16 wVFrontPorch; ///< vertical front porch, lines
    quint16 wVSync;       ///< vertical sync width, lines
    quint16 wReserved2;   ///< 0
    quint16 wSyncFlag;    ///< as `tagSBlankTiming::bySyncFlag`
};

/// Rows of `timingData`.
constexpr int c_nTimingDataCount = 13;

/// The fixed timings, indexed by the timing id of `CEDIDRaw::MatchTimingID`. The blankings are those of VESA
/// DMT and CTA-861 for 60 Hz; row 12 is 800x600 at 120 Hz. 50 Hz takes the row of 60 Hz on purpose.
extern SENDERMODULEDIALOG_EXPORT const STimingData timingData[c_nTimingDataCount];

#endif // SENDERMODULEDIALOG_EDID_VIDEOTIMING_H
