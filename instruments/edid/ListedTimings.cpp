#include "instruments/edid/ListedTimings.h"

#include <algorithm>
#include <cstring>

namespace Edid {

namespace {

template <class TPredicate>
const SListedTiming* Find(STimingList list, TPredicate predicate)
{
    const SListedTiming* pFound = std::find_if(list.begin(), list.end(), predicate);
    return pFound == list.end() ? nullptr : pFound;
}

SAxis AxisOf(const quint16 (&arrParts)[4], char chPolarity)
{
    return {arrParts[0], arrParts[1], arrParts[2], arrParts[3], chPolarity == '+'};
}

} // namespace

SVideoCode VideoCodeOf(int nByte)
{
    constexpr int c_nFirstNative = 129;
    constexpr int c_nLastNative = 192;
    constexpr int c_nMark = 128;
    const bool bNative = nByte >= c_nFirstNative && nByte <= c_nLastNative;
    return {bNative ? nByte - c_nMark : nByte, bNative};
}

const SListedTiming* FindListed(STimingList list, int nId)
{
    return Find(list, [=](const SListedTiming& listed) { return listed.nId == nId; });
}

const SListedTiming* FindStandard(quint16 wStandard)
{
    if (wStandard == 0)
        return nullptr;
    return Find(DisplayTimings(), [=](const SListedTiming& listed) { return listed.wStandard == wStandard; });
}

const SListedTiming* FindCvtCode(quint32 nCode)
{
    if (nCode == 0)
        return nullptr;
    return Find(DisplayTimings(), [=](const SListedTiming& listed) { return listed.nCvtCode == nCode; });
}

const SListedTiming* FindMode(STimingList list, int nWidth, int nHeight, int nRate)
{
    const auto Fits = [=](const SListedTiming& listed) {
        const SModeTiming timing = TimingOf(listed);
        return timing.horizontal.nActive == nWidth && timing.vertical.nActive == nHeight &&
               !timing.bInterlaced && qRound(timing.Rate()) == nRate;
    };
    return Find(list, Fits);
}

SModeTiming TimingOf(const SListedTiming& listed)
{
    constexpr qint64 c_nHzPerKHz = 1000;
    SModeTiming timing;
    timing.nClock = listed.nClock * c_nHzPerKHz;
    timing.horizontal = AxisOf(listed.arrHorizontal, listed.szFlags[0]);
    timing.vertical = AxisOf(listed.arrVertical, listed.szFlags[1]);
    timing.bInterlaced = std::strchr(listed.szFlags, 'i') != nullptr;
    timing.bHalfLine = std::strchr(listed.szFlags, 'w') == nullptr;
    return timing;
}

} // namespace Edid
