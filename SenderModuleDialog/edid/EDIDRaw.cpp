#include "SenderModuleDialog/edid/EDIDRaw.h"

#include "SenderModuleDialog/Fault.h"
#include "SenderModuleDialog/Saturate.h"
#include "SenderModuleDialog/edid/CvtTiming.h"
#include "SenderModuleDialog/edid/EdidBlock.h"
#include "SenderModuleDialog/edid/TimingTable.h"

#include <optional>
#include <type_traits>

static_assert(sizeof(CEDIDRaw) == c_nEdidBlockSize && std::is_standard_layout_v<CEDIDRaw>,
              "hosts read the block through the object's address");

namespace {

/// The pixel clock that a sender can drive, Hz.
constexpr int c_nPixelBudget = 160000000;

/// The standard of the EDID dialog that asks for reduced blanking.
constexpr int c_nStandardReduced = 0;

/// Blanking of both directions.
struct SBlank
{
    int nHorizontal; ///< pixels
    int nVertical;   ///< lines
};

/// A rate beyond the range of int is clamped to it; no row is listed there.
std::optional<SBlank> ListedBlank(int nWidth, int nHeight, float fRate)
{
    const std::optional<int> id = TimingTable::Find(nWidth, nHeight, SaturateTo<int>(fRate));
    if (!id)
        return std::nullopt;
    return SBlank{timingData[*id].wHBlank, timingData[*id].wVBlank};
}

SBlank CalculatedBlank(int nWidth, int nHeight, float fRate, int nStandard)
{
    const int nReduced = nStandard == c_nStandardReduced ? 1 : 0;
    tagSBlankTiming timing = {};
    CvtTiming::Calculate({nWidth, nHeight, fRate, 0, nReduced, 0}, timing);
    return {timing.wHBlank, timing.wVBlank};
}

/// Whether a frequency can be judged as an int; what cannot is over any budget. False for NaN.
bool IsWithinInt(float fFrequency)
{
    constexpr float c_fAboveInt = 2147483648.0F;
    return fFrequency >= -c_fAboveInt && fFrequency < c_fAboveInt;
}

int BackPorch(int nBlank, int nFront, int nSync)
{
    return SaturateTo<int>(double(nBlank) - double(nFront) - double(nSync));
}

/// Both sums and the product are rounded to single precision.
float PixelsPerSecond(int nHActive, int nHBlank, int nVActive, int nVBlank, float fRate)
{
    const float fTotalWidth = static_cast<float>(nHActive) + static_cast<float>(nHBlank);
    const float fTotalHeight = static_cast<float>(nVActive) + static_cast<float>(nVBlank);
    return fTotalWidth * fTotalHeight * fRate;
}

} // namespace

CEDIDRaw::CEDIDRaw()
    : m_byBlock()
{}

void CEDIDRaw::ChangeWH(int nWidth, int nHeight, float fRate)
{
    m_byBlock.fill(0);
    Init1p3VersionEdidBaseBlock(nWidth, nHeight);
    CalFirstDetailTimingByCvt(nWidth, nHeight, fRate);
}

void CEDIDRaw::Init1p3VersionEdidBaseBlock(int nWidth, int nHeight)
{
    EdidBlock::WriteTemplate(m_byBlock, nWidth, nHeight);
}

void CEDIDRaw::CalFirstDetailTimingByCvt(int nWidth, int nHeight, float fRate)
{
    tagSBlankTiming timing = {};
    CvtTiming::Calculate({nWidth, nHeight, fRate, 0, 1, 0}, timing);
    StoreFirstDetailTiming(nWidth, nHeight, fRate, &timing);
}

void CEDIDRaw::CalculateFirstDetailTiming(int nWidth, int nHeight, float fRate)
{
    CalFirstDetailTimingByCvt(nWidth, nHeight, fRate);
}

void CEDIDRaw::StoreFirstDetailTiming(int nWidth, int nHeight, float fRate, tagSBlankTiming* pTiming)
{
    const tagSBlankTiming& timing = Deref(pTiming, "pTiming != nullptr");
    const qint64 nClock = EdidBlock::PixelClock(nWidth, nHeight, fRate, timing);
    EdidBlock::WriteFirstDetailedTiming(m_byBlock, {nClock, nWidth, nHeight, timing});
    CalSumCheck();
}

void CEDIDRaw::CalSumCheck()
{
    EdidBlock::WriteChecksum(m_byBlock);
}

void CEDIDRaw::CalCVTtiming(int nWidth, int nHeight, float fRate, int nInterlaced, int nReduced, int nMargins,
                            tagSBlankTiming* pTiming) const
{
    CvtTiming::Calculate({nWidth, nHeight, fRate, nInterlaced, nReduced, nMargins},
                         Deref(pTiming, "pTiming != nullptr"));
}

void CEDIDRaw::CalculateTiming(tagSCalTimingIn in, tagSBlankTiming* pTiming) const
{
    CvtTiming::Calculate(in, Deref(pTiming, "pTiming != nullptr"));
}

int CEDIDRaw::CalculateHBackPorch(int nBlank, int nFront, int nSync) const
{
    return BackPorch(nBlank, nFront, nSync);
}

int CEDIDRaw::CalculateVBackPorch(int nBlank, int nFront, int nSync) const
{
    return BackPorch(nBlank, nFront, nSync);
}

float CEDIDRaw::CalculatePixelFreq(int nHActive, int nHBlank, int nVActive, int nVBlank, float fRate) const
{
    return PixelsPerSecond(nHActive, nHBlank, nVActive, nVBlank, fRate) / EdidBlock::c_fHzPerMHz;
}

void CEDIDRaw::MatchTimingID(int nWidth, int nHeight, int nRate, int* pId) const
{
    int& nId = Deref(pId, "pId != nullptr");
    nId = TimingTable::Find(nWidth, nHeight, nRate).value_or(nId);
}

bool CEDIDRaw::IsReslutionOk(int nWidth, int nHeight, float fRate) const
{
    // A mode that is not listed is judged without blanking, so nothing is calculated for it.
    const SBlank blank = ListedBlank(nWidth, nHeight, fRate).value_or(SBlank{0, 0});
    const qint64 nTotal = (qint64(nWidth) + blank.nHorizontal) * (qint64(nHeight) + blank.nVertical);
    const float fFrequency = static_cast<float>(nTotal) * fRate;
    return IsWithinInt(fFrequency) && SaturateTo<int>(fFrequency) <= c_nPixelBudget;
}

float CEDIDRaw::CalReslutionPixelFreq(int nWidth, int nHeight, float fRate, int nStandard) const
{
    const std::optional<SBlank> listed = ListedBlank(nWidth, nHeight, fRate);
    const SBlank blank = listed ? *listed : CalculatedBlank(nWidth, nHeight, fRate, nStandard);
    return PixelsPerSecond(nWidth, blank.nHorizontal, nHeight, blank.nVertical, fRate);
}
