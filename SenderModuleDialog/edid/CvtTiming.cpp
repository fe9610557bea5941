#include "SenderModuleDialog/edid/CvtTiming.h"

#include "SenderModuleDialog/Saturate.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace CvtTiming {

namespace {

// Names in capitals are those of VESA CVT 1.1, section 5.

constexpr float c_fCell = 8.0F;               ///< CELL_GRAN: character cell, pixels
constexpr float c_fHBlankStep = 2 * c_fCell;  ///< horizontal blanking is a whole number of cell pairs, pixels
constexpr float c_fHMarginPercent = 1.8F;     ///< MARGIN_PER of the width, on each side
constexpr float c_fVMarginShare = 0.018F;     ///< MARGIN_PER of the lines, as a fraction, at top and bottom
constexpr float c_fMicroseconds = 1000000.0F; ///< microseconds in a second

constexpr float c_fMinVPorch = 3.0F;            ///< MIN_V_PORCH_RND: vertical front porch, lines
constexpr float c_fMinVBackPorchReduced = 6.0F; ///< MIN_V_BPORCH: vertical back porch, lines
/// Vertical back porch of normal blanking, lines: 3 here, where the published formula has MIN_V_BPORCH, 6.
constexpr float c_fMinVBackPorchNormal = 3.0F;

constexpr float c_fReducedMinVBlank = 460.0F; ///< RB_MIN_V_BLANK: vertical blanking, microseconds
constexpr float c_fReducedHBlank = 160.0F;    ///< RB_H_BLANK: horizontal blanking, pixels
constexpr float c_fReducedHSync = 32.0F;      ///< RB_H_SYNC: horizontal sync, pixels
constexpr float c_fReducedHBackPorch = 80.0F; ///< half of RB_H_BLANK, pixels
constexpr quint8 c_byReducedSyncFlag = 1;     ///< horizontal sync positive, vertical negative

constexpr float c_fMinVSyncBackPorch = 550.0F;          ///< MIN_VSYNC_BP, microseconds
constexpr float c_fMinVSyncBackPorchSeconds = 0.00055F; ///< MIN_VSYNC_BP, seconds
constexpr float c_fDutyGradient = -300.0F; ///< M_PRIME of the blanking duty cycle, negated, percent per ms
constexpr float c_fDutyGradientUnit = 1000.0F; ///< microseconds in a millisecond
constexpr float c_fDutyOffset = 30.0F;         ///< C_PRIME of the blanking duty cycle, percent
constexpr float c_fMinDuty = 20.0F;            ///< least blanking duty cycle, percent
constexpr float c_fWholeLine = 100.0F;         ///< percent
constexpr float c_fHSyncShare = 0.08F;         ///< H_SYNC_PER of the total width, as a fraction
constexpr quint8 c_byNormalSyncFlag = 2;       ///< horizontal sync negative, vertical positive

/// The most lines that a field holds: what a line period of zero or below asks for.
constexpr float c_fMostLines = std::numeric_limits<quint16>::max();

/// Vertical sync tells the aspect ratio to the display, in the table of VESA CVT 1.1.
struct SAspectRatio
{
    float fNumerator;
    float fDenominator;
    quint8 byVSync; ///< lines
};

/// In the order of testing: the first that gives the width wins.
constexpr SAspectRatio c_arrAspectRatios[] = {
    {4.0F, 3.0F, 4}, {16.0F, 9.0F, 5}, {16.0F, 10.0F, 6}, {5.0F, 4.0F, 7}, {15.0F, 9.0F, 7},
};
constexpr quint8 c_byVSyncOtherRatio = 10; ///< vertical sync of any other aspect ratio, lines

/// What both kinds of blanking start from.
struct SFrame
{
    float fRate;      ///< Hz
    float fWidth;     ///< active width in whole cells, pixels
    float fHMargin;   ///< on each side, pixels
    float fLines;     ///< active lines of a field
    float fVMargin;   ///< at top and bottom, lines
    quint8 byVSync;   ///< lines
    float fInterlace; ///< the half line of an interlaced field, lines
};

/// Blanking before it is stored.
struct SBlanking
{
    float fHBlank;     ///< pixels
    float fHBackPorch; ///< pixels
    float fHSync;      ///< pixels
    float fVBlank;     ///< lines
    quint8 bySyncFlag;
};

/// How the steps of any mode are rounded and stored: nothing is known of the values.
struct SAnyMode
{
    static float Floor(float fValue) { return std::floor(fValue); }

    /// Whether the ratio's width for a height rounds down to a whole number of cells. The difference is exact
    /// wherever it decides the answer, so no rounding is needed.
    static bool GivesWidth(const SAspectRatio& ratio, float fWidth, float fHeight)
    {
        const float fAbove = ratio.fNumerator * fHeight / ratio.fDenominator - fWidth;
        return fAbove >= 0.0F && fAbove < c_fCell;
    }

    template <class TField>
    static TField Store(float fValue)
    {
        return SaturateTo<TField>(fValue);
    }
};

/// The same for common display modes. Their steps are between 0 and what the fields hold, so plain
/// conversions do: they cut the fraction, which rounds down.
struct SUsualMode
{
    static constexpr int c_nMostPixels = 8192; ///< of the width and of the height
    static constexpr float c_fLeastRate = 1.0F;
    static constexpr float c_fMostRate = 1000.0F; ///< well below the rates at which no time is left for lines

    static bool Is(const tagSCalTimingIn& in)
    {
        const auto IsUsualSize = [](int nSize) { return unsigned(nSize) - 1U < unsigned(c_nMostPixels); };
        return IsUsualSize(in.nWidth) && IsUsualSize(in.nHeight) && in.fRate >= c_fLeastRate &&
               in.fRate <= c_fMostRate;
    }

    static float Floor(float fValue) { return static_cast<float>(static_cast<int>(fValue)); }

    /// Without a division: all products are whole numbers below 2^24 and so are exact, and the quotient is a
    /// whole number or at least a tenth away from one, more than it would be rounded.
    static bool GivesWidth(const SAspectRatio& ratio, float fWidth, float fHeight)
    {
        const float fAbove = ratio.fNumerator * fHeight - ratio.fDenominator * fWidth;
        return fAbove >= 0.0F && fAbove < c_fCell * ratio.fDenominator;
    }

    template <class TField>
    static TField Store(float fValue)
    {
        return static_cast<TField>(static_cast<int>(fValue));
    }
};

template <class TMode>
float RoundDownTo(float fStep, float fValue)
{
    return TMode::Floor(fValue / fStep) * fStep;
}

/// Rounds up, where the published formula rounds down.
template <class TMode>
float WidthInCells(int nWidth)
{
    return RoundDownTo<TMode>(c_fCell, static_cast<float>(nWidth) + c_fCell - 1.0F);
}

template <class TMode>
quint8 VSyncWidth(float fWidth, int nHeight)
{
    const float fHeight = static_cast<float>(nHeight);
    for (const SAspectRatio& ratio : c_arrAspectRatios) {
        if (TMode::GivesWidth(ratio, fWidth, fHeight))
            return ratio.byVSync;
    }
    return c_byVSyncOtherRatio;
}

template <class TMode>
float FieldLines(int nHeight, bool bInterlaced)
{
    const float fHeight = static_cast<float>(nHeight);
    return bInterlaced ? TMode::Floor(fHeight * 0.5F) : fHeight;
}

template <class TMode>
SFrame Frame(const tagSCalTimingIn& in)
{
    const bool bInterlaced = in.bInterlaced != 0;
    const bool bMargins = in.bMargins != 0;
    SFrame frame = {};
    frame.fRate = in.fRate;
    frame.fWidth = WidthInCells<TMode>(in.nWidth);
    frame.fHMargin =
        bMargins ? RoundDownTo<TMode>(c_fCell, c_fHMarginPercent * frame.fWidth / c_fWholeLine) : 0.0F;
    frame.fLines = FieldLines<TMode>(in.nHeight, bInterlaced);
    frame.fVMargin = bMargins ? TMode::Floor(c_fVMarginShare * frame.fLines) : 0.0F;
    frame.byVSync = VSyncWidth<TMode>(frame.fWidth, in.nHeight);
    frame.fInterlace = bInterlaced ? 0.5F : 0.0F;
    return frame;
}

/// Whole lines that last at least the given time. A line period of zero or below gives the most that a
/// field holds.
template <class TMode>
float LinesLasting(float fMicroseconds, float fLinePeriod)
{
    if (fLinePeriod <= 0.0F)
        return c_fMostLines;
    return TMode::Floor(fMicroseconds / fLinePeriod) + 1.0F;
}

float ReducedLinePeriod(const SFrame& frame)
{
    const float fActiveTime = c_fMicroseconds / frame.fRate - c_fReducedMinVBlank;
    return fActiveTime / (frame.fLines + frame.fVMargin + frame.fVMargin);
}

template <class TMode>
SBlanking ReducedBlanking(const SFrame& frame)
{
    const float fMinVBlank = c_fMinVPorch + float(frame.byVSync) + c_fMinVBackPorchReduced;
    const float fVBlank =
        std::max(fMinVBlank, LinesLasting<TMode>(c_fReducedMinVBlank, ReducedLinePeriod(frame)));
    return {c_fReducedHBlank, c_fReducedHBackPorch, c_fReducedHSync, fVBlank, c_byReducedSyncFlag};
}

/// The rate of an interlaced mode is not doubled, unlike in the published formula.
float NormalLinePeriod(const SFrame& frame)
{
    const float fActiveTime = 1.0F / frame.fRate - c_fMinVSyncBackPorchSeconds;
    const float fLines = frame.fLines + 2.0F * frame.fVMargin + c_fMinVPorch + frame.fInterlace;
    return fActiveTime / fLines * c_fMicroseconds;
}

/// The part of a line that is blanking, percent.
float DutyCycle(float fLinePeriod)
{
    return std::max(c_fMinDuty, fLinePeriod * c_fDutyGradient / c_fDutyGradientUnit + c_fDutyOffset);
}

template <class TMode>
float NormalHBlank(float fActiveWidth, float fDutyCycle)
{
    return RoundDownTo<TMode>(c_fHBlankStep, fDutyCycle * fActiveWidth / (c_fWholeLine - fDutyCycle));
}

template <class TMode>
SBlanking NormalBlanking(const SFrame& frame)
{
    const float fActiveWidth = frame.fWidth + frame.fHMargin + frame.fHMargin;
    const float fLinePeriod = NormalLinePeriod(frame);
    const float fMinSyncBackPorch = float(frame.byVSync) + c_fMinVBackPorchNormal;
    const float fSyncBackPorch =
        std::max(fMinSyncBackPorch, LinesLasting<TMode>(c_fMinVSyncBackPorch, fLinePeriod));
    const float fHBlank = NormalHBlank<TMode>(fActiveWidth, DutyCycle(fLinePeriod));
    const float fHSync = RoundDownTo<TMode>(c_fCell, (fActiveWidth + fHBlank) * c_fHSyncShare);
    return {fHBlank, 0.5F * fHBlank, fHSync, fSyncBackPorch + c_fMinVPorch, c_byNormalSyncFlag};
}

template <class TMode>
void CalculateMode(const tagSCalTimingIn& in, tagSBlankTiming& timing)
{
    const SFrame frame = Frame<TMode>(in);
    const SBlanking blanking =
        in.bReducedBlank != 0 ? ReducedBlanking<TMode>(frame) : NormalBlanking<TMode>(frame);
    timing.wHBlank = TMode::template Store<quint16>(blanking.fHBlank);
    timing.wHFrontPorch =
        TMode::template Store<quint16>(blanking.fHBlank - blanking.fHBackPorch - blanking.fHSync);
    timing.wHSync = TMode::template Store<quint16>(blanking.fHSync);
    timing.wVBlank = TMode::template Store<quint16>(blanking.fVBlank);
    timing.byVFrontPorch = TMode::template Store<quint8>(c_fMinVPorch);
    timing.byVSync = frame.byVSync;
    timing.bySyncFlag = blanking.bySyncFlag;
}

} // namespace

void Calculate(const tagSCalTimingIn& in, tagSBlankTiming& timing)
{
    if (SUsualMode::Is(in))
        CalculateMode<SUsualMode>(in, timing);
    else
        CalculateMode<SAnyMode>(in, timing);
}

} // namespace CvtTiming
