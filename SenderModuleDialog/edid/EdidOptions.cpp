#include "SenderModuleDialog/edid/EdidOptions.h"

#include "SenderModuleDialog/Constants.h"

#include <algorithm>
#include <cstddef>

namespace EdidOptions {

namespace {

// Sender types, by what the dialog does for them.
constexpr int c_arrFilmRateTypes[] = {51, 53, 61, 62, 63, 65, 66, 69};
constexpr int c_arr25HzTypes[] = {53, 62};
constexpr int c_arrFractionalRateTypes[] = {50, 51, 53, 59, 61, 62, 63, 65, 66, 69};
constexpr int c_arr120HzTypes[] = {17, 27, 28, 35, 36, 44, 46, 50, 51, 53, 59, 61, 62, 63, 65, 66, 68, 69};
constexpr int c_arrHighRateTypes[] = {68};
constexpr int c_arrTimingStandardTypes[] = {16, 17, 19, 20, 23, 24, 26, 27, 28, 29, 30, 31,
                                            34, 35, 36, 39, 40, 41, 42, 43, 44, 46, 49, 50,
                                            51, 53, 59, 61, 62, 63, 65, 66, 68, 69, 73};
constexpr int c_arrConnectPCTypes[] = {19, 20, 24, 30, 34, 42, 43};
constexpr int c_arrConnectByteTypes[] = {17, 26, 27, 28, 29, 36, 37};
constexpr int c_arrSlowTypes[] = {21, 54};

/// Offers every rate up to 60 Hz on the interfaces 16 to 19, and 12 bit on all.
constexpr int c_nAllRatesType = 73;
/// Offers 12 bit on the interfaces 16 to 19 whatever it says of its depths.
constexpr int c_n12BitType = 17;

/// The interfaces 16 to 19 differ in these bits alone.
constexpr int c_nInterfaceGroupMask = 3;
constexpr int c_nInterfaceGroup16 = 16;

/// Bits of the format flags: 1 to 3 hold the depth, 4 to 7 the format.
constexpr int c_nDepthBits = 0x0E;
constexpr int c_nBitsBelowFormat = 0x0F;

template <std::size_t N>
bool Contains(const int (&arrTypes)[N], int nSenderType)
{
    return std::find(std::begin(arrTypes), std::end(arrTypes), nSenderType) != std::end(arrTypes);
}

bool IsAllRatesCase(const SInput& input)
{
    return input.nSenderType == c_nAllRatesType && IsInterface16To19(input.nInterfaceId);
}

bool OffersFilmRates(const SInput& input)
{
    return Contains(c_arrFilmRateTypes, input.nSenderType) || IsAllRatesCase(input);
}

bool Offers25Hz(const SInput& input)
{
    return Contains(c_arr25HzTypes, input.nSenderType) || IsAllRatesCase(input);
}

bool OffersFractionalRates(const SInput& input)
{
    return Contains(c_arrFractionalRateTypes, input.nSenderType) || IsAllRatesCase(input);
}

bool Offers30And50Hz(const SInput& input)
{
    return !IsInterface132(input.nInterfaceId);
}

bool OffersFractional60Hz(const SInput& input)
{
    return !input.bLowRateOnly && OffersFractionalRates(input);
}

bool Offers60Hz(const SInput& input)
{
    return !input.bLowRateOnly;
}

bool Offers120Hz(const SInput& input)
{
    const bool bByInterface =
        input.bExtendedEdid && (IsInterface16To19(input.nInterfaceId) || IsInterface1To4(input.nInterfaceId));
    return !input.bLowRateOnly && (bByInterface || Contains(c_arr120HzTypes, input.nSenderType));
}

bool OffersHighRates(const SInput& input)
{
    return !input.bLowRateOnly && Contains(c_arrHighRateTypes, input.nSenderType);
}

/// In menu order; the index is what the dialog keeps.
constexpr std::array<SRate, 11> c_arrRates = {{
    // text, Hz, divided by 1.001, rate of the clock limit, offered
    {"23.976", 24, true, 0.0F, OffersFilmRates},
    {"24", 24, false, 0.0F, OffersFilmRates},
    {"25", 25, false, 0.0F, Offers25Hz},
    {"29.97", 30, true, 29.97F, OffersFractionalRates},
    {"30", 30, false, 30.0F, Offers30And50Hz},
    {"50", 50, false, 50.0F, Offers30And50Hz},
    {"59.94", 60, true, 59.94F, OffersFractional60Hz},
    {"60", 60, false, 60.0F, Offers60Hz},
    {"120", 120, false, 120.0F, Offers120Hz},
    {"144", 144, false, 0.0F, OffersHighRates},
    {"240", 240, false, 0.0F, OffersHighRates},
}};

template <class TRow, std::size_t N>
bool IsIndexOf(const std::array<TRow, N>&, int nIndex)
{
    return nIndex >= 0 && nIndex < int(N);
}

/// The index of the first row whose bit is set, 0 when none is.
template <class TRow, std::size_t N>
int IndexOfSetBit(const std::array<TRow, N>& arrRows, unsigned char byFlags)
{
    const auto itRow = std::find_if(arrRows.begin(), arrRows.end(),
                                    [byFlags](const TRow& row) { return (row.byFlag & byFlags) != 0; });
    return itRow == arrRows.end() ? 0 : int(itRow - arrRows.begin());
}

} // namespace

bool IsInterface16To19(int nInterfaceId)
{
    return (nInterfaceId & ~c_nInterfaceGroupMask) == c_nInterfaceGroup16;
}

bool IsInterface1To4(int nInterfaceId)
{
    return nInterfaceId >= 1 && nInterfaceId <= 4;
}

bool IsInterface132(int nInterfaceId)
{
    return nInterfaceId == 132;
}

bool ShowsTimingStandard(int nSenderType)
{
    return Contains(c_arrTimingStandardTypes, nSenderType);
}

bool ShowsConnectPC(int nSenderType)
{
    return Contains(c_arrConnectPCTypes, nSenderType);
}

bool AlwaysWritesConnectByte(int nSenderType)
{
    return Contains(c_arrConnectByteTypes, nSenderType);
}

bool StoresSlowly(int nSenderType)
{
    return Contains(c_arrSlowTypes, nSenderType);
}

const SRate* RateAt(int nIndex)
{
    return IsIndexOf(c_arrRates, nIndex) ? &c_arrRates[std::size_t(nIndex)] : nullptr;
}

std::optional<int> RateIndex(unsigned char byRate, bool bFractional)
{
    const auto Find = [&](auto funcMatches) {
        return std::find_if(c_arrRates.begin(), c_arrRates.end(), funcMatches);
    };
    auto itRow =
        Find([&](const SRate& row) { return row.byRate == byRate && row.bFractional == bFractional; });
    if (itRow == c_arrRates.end())
        itRow = Find([&](const SRate& row) { return row.byRate == byRate; });
    if (itRow == c_arrRates.end())
        return std::nullopt;
    return int(itRow - c_arrRates.begin());
}

std::vector<int> OfferedRates(const SInput& input)
{
    std::vector<int> vecIndices;
    for (std::size_t i = 0; i < c_arrRates.size(); ++i) {
        if (c_arrRates[i].funcOffered(input))
            vecIndices.push_back(int(i));
    }
    return vecIndices;
}

QString DepthName(int nIndex)
{
    return IsIndexOf(c_arrDepths, nIndex) ? QString::fromLatin1(c_arrDepths[std::size_t(nIndex)].szName)
                                          : QString();
}

int DepthIndex(unsigned char byFlags)
{
    return IndexOfSetBit(c_arrDepths, byFlags);
}

bool StoreDepth(int nIndex, unsigned char& byFlags)
{
    byFlags = static_cast<unsigned char>(byFlags & ~c_nDepthBits);
    if (!IsIndexOf(c_arrDepths, nIndex))
        return false;
    byFlags = static_cast<unsigned char>(byFlags | c_arrDepths[std::size_t(nIndex)].byFlag);
    return true;
}

int OfferedDepthCount(const SDepthSupport& support, const SInput& input)
{
    if (!support.bVideoProcessor)
        return 3;
    if (HasOnly8Bit(support))
        return 1;
    const bool bByType = input.nSenderType == c_nAllRatesType ||
                         (input.nSenderType == c_n12BitType && IsInterface16To19(input.nInterfaceId));
    return support.b12Bit || bByType ? 3 : 2;
}

bool HasOnly8Bit(const SDepthSupport& support)
{
    return support.bVideoProcessor && !support.b10Bit && !support.b12Bit;
}

QString FormatName(int nIndex)
{
    return IsIndexOf(c_arrFormats, nIndex) ? QString::fromLatin1(c_arrFormats[std::size_t(nIndex)].szName)
                                           : QString();
}

QString TimingStandardName(int nIndex)
{
    return IsIndexOf(c_arrTimingStandards, nIndex)
               ? QString::fromLatin1(c_arrTimingStandards[std::size_t(nIndex)])
               : QString();
}

int FormatIndex(unsigned char byFlags)
{
    return IndexOfSetBit(c_arrFormats, byFlags);
}

bool StoreFormat(int nIndex, unsigned char& byFlags)
{
    if (!IsIndexOf(c_arrFormats, nIndex))
        return false;
    byFlags =
        static_cast<unsigned char>((byFlags & c_nBitsBelowFormat) | c_arrFormats[std::size_t(nIndex)].byFlag);
    return true;
}

} // namespace EdidOptions
