#include "instruments/edid/BlockTimings.h"

#include "instruments/edid/BaseLayout.h"
#include "instruments/edid/DetailedTiming.h"
#include "instruments/edid/ListedTimings.h"

#include <algorithm>
#include <cmath>

namespace Edid {

namespace {

constexpr double c_dHzPerKHz = 1000.0;
constexpr qint64 c_nHzPerMHz = 1000000;

bool IsSet(const quint8* pRecord, const SEstablished& established)
{
    return (unsigned(pRecord[established.byByte]) >> established.byBit & 1U) != 0;
}

void IncludeEstablished(SBlockTimings& timings, const EstablishedList& vecEstablished, const quint8* pRecord)
{
    for (const SEstablished& established : vecEstablished)
        if (IsSet(pRecord, established))
            timings.Include(TimingOf(*established.pTiming));
}

void IncludeStandards(SBlockTimings& timings, const quint8* pFirst, int nCount)
{
    for (int i = 0; i < nCount; ++i, pFirst += c_nStandardSize) {
        const quint16 wStandard = static_cast<quint16>(pFirst[0] << 8 | pFirst[1]);
        if (const SListedTiming* pListed = FindStandard(wStandard))
            timings.Include(TimingOf(*pListed));
    }
}

void IncludeDescriptor(SBlockTimings& timings, const quint8* pDescriptor)
{
    constexpr int c_nMoreStandards = 6;
    if (IsDetailed(pDescriptor)) {
        if (IsPlausibleClock(pDescriptor))
            timings.Include(ReadDetailed(pDescriptor));
    } else if (pDescriptor[c_nTagOffset] == c_byStandardTag) {
        IncludeStandards(timings, pDescriptor + c_nContentOffset, c_nMoreStandards);
    } else if (pDescriptor[c_nTagOffset] == c_byEstablishedTag) {
        IncludeEstablished(timings, EstablishedTimingsIII(), pDescriptor);
    }
}

} // namespace

SRangeLimits ReadRange(const quint8* pDescriptor, bool bFrom14)
{
    constexpr int c_nOffset = 255;
    constexpr int c_nBoth = 3;
    constexpr int c_nMaximum = 2;
    const auto Raw = [=](int nRow) { return int(Get(pDescriptor, c_layoutRange[nRow])); };
    const auto Add = [=](int nRow, int nLowest) { return bFrom14 && Raw(nRow) >= nLowest ? c_nOffset : 0; };
    return {Raw(enVMin) + Add(enVOffsets, c_nBoth), Raw(enVMax) + Add(enVOffsets, c_nMaximum),
            Raw(enHMin) + Add(enHOffsets, c_nBoth), Raw(enHMax) + Add(enHOffsets, c_nMaximum),
            Raw(enMaxClock) * 10};
}

void SBlockTimings::Include(const SModeTiming& timing)
{
    const double dLine = timing.LineRate();
    const double dRate = timing.Rate();
    const bool bFirst = nModes++ == 0;
    dVMin = bFirst ? dRate : std::min(dVMin, dRate);
    dVMax = std::max(dVMax, dRate);
    dHMin = bFirst ? dLine : std::min(dHMin, dLine);
    dHMax = std::max(dHMax, dLine);
    nMaxClock = std::max(nMaxClock, timing.nClock);
}

bool SBlockTimings::IsOutside() const
{
    const double dHMinKHz = std::round(dHMin / c_dHzPerKHz);
    const double dHMaxKHz = std::round(dHMax / c_dHzPerKHz);
    const bool bClock = limits.nMaxClock != 0 && nMaxClock > limits.nMaxClock * c_nHzPerMHz;
    return std::round(dVMin) < limits.nVMin || std::round(dVMax) > limits.nVMax || dHMinKHz < limits.nHMin ||
           dHMaxKHz > limits.nHMax || bClock;
}

SBlockTimings TimingsOf(const quint8* pBlock)
{
    SBlockTimings timings;
    const bool bFrom14 = Get(pBlock, c_layoutBase[enRevision]) >= 4;
    IncludeEstablished(timings, EstablishedTimings(), pBlock);
    IncludeStandards(timings, pBlock + c_nStandardOffset, c_nStandardCount);
    for (int i = 0; i < c_nDescriptorCount; ++i) {
        const int nOffset = c_nDescriptorOffset + i * c_nDescriptorSize;
        const quint8* pDescriptor = pBlock + nOffset;
        IncludeDescriptor(timings, pDescriptor);
        if (!IsDetailed(pDescriptor) && pDescriptor[c_nTagOffset] == c_byRangeTag) {
            timings.nRange = nOffset;
            timings.limits = ReadRange(pDescriptor, bFrom14);
        }
    }
    return timings;
}

bool IsPlausibleClock(const quint8* pDescriptor)
{
    constexpr int c_nLowest = 1000; // units of 10 kHz
    return Get(pDescriptor, c_layoutDetailed[enClock]) >= c_nLowest;
}

} // namespace Edid
