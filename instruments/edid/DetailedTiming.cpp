#include "instruments/edid/DetailedTiming.h"

#include "instruments/edid/BaseLayout.h"
#include "instruments/edid/DisplayIdLayout.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace Edid {

namespace {

/// Unit of the pixel clock in both forms, Hz.
constexpr qint64 c_nClockUnit = 10000;
/// Hz; of a type VII timing, whose highest clock is above what 32 bits hold
constexpr qint64 c_nTypeVIIClockUnit = 1000;

/// Digital separate sync, the only kind that tells both polarities.
constexpr int c_nDigitalSeparate = 3;
constexpr int c_nDigitalComposite = 2;

/// A number of the standard counts from zero where it is one less than it says.
int Get1(const quint8* pTiming, int nRow)
{
    return int(Get(pTiming, c_layoutTypeI[nRow])) + 1;
}

int Get0(const quint8* pDescriptor, int nRow)
{
    return int(Get(pDescriptor, c_layoutDetailed[nRow]));
}

/// The active lines of a field are told; those of the frame are twice as many.
int FieldsOf(const SModeTiming& timing)
{
    return timing.bInterlaced ? 2 : 1;
}

struct SPart
{
    int nRow;
    qint64 nValue;
};

/// The numbers of a timing in the nine rows that both forms have, in the order of the rows named.
using Parts = std::array<SPart, 9>;

Parts PartsOf(const SModeTiming& timing, const std::array<int, 9>& arrRows, int nFields)
{
    const SAxis& horizontal = timing.horizontal;
    const SAxis& vertical = timing.vertical;
    const qint64 arrValues[] = {timing.nClock / c_nClockUnit,
                                horizontal.nActive,
                                horizontal.Blank(),
                                horizontal.nFront,
                                horizontal.nSync,
                                vertical.nActive / nFields,
                                vertical.Blank(),
                                vertical.nFront,
                                vertical.nSync};
    Parts parts = {};
    for (std::size_t i = 0; i < parts.size(); ++i)
        parts[i] = {arrRows[i], arrValues[i]};
    return parts;
}

Parts DetailedParts(const SModeTiming& timing)
{
    return PartsOf(timing,
                   {enClock, enHActive, enHBlank, enHFront, enHSync, enVActive, enVBlank, enVFront, enVSync},
                   FieldsOf(timing));
}

Parts TypeIParts(const SModeTiming& timing)
{
    return PartsOf(timing,
                   {enTypeIClock, enTypeIHActive, enTypeIHBlank, enTypeIHFront, enTypeIHSync, enTypeIVActive,
                    enTypeIVBlank, enTypeIVFront, enTypeIVSync},
                   1);
}

/// Whether every value fits its row, which holds what it is above the lowest.
bool Fits(const SLayout& layout, const Parts& parts, int nLowest)
{
    return std::all_of(parts.begin(), parts.end(), [&](const SPart& part) {
        return part.nValue >= nLowest && part.nValue - nLowest <= layout[part.nRow].MaxRaw();
    });
}

template <class TParts>
void PutAll(quint8* pRecord, const SLayout& layout, const TParts& parts, int nLowest)
{
    for (const SPart& part : parts)
        Put(pRecord, layout[part.nRow], part.nValue - nLowest);
}

struct SRatio
{
    int nWidth;
    int nHeight;
    int nCode;
};

/// Aspect codes of a type I timing; what is none of them is undefined.
constexpr SRatio c_arrRatios[] = {
    {1, 1, 0}, {5, 4, 1}, {4, 3, 2}, {15, 9, 3}, {16, 9, 4}, {16, 10, 5}, {64, 27, 6}, {256, 135, 7},
};
constexpr int c_nUndefinedAspect = 8;

int AspectCode(const SModeTiming& timing)
{
    const auto Matches = [&](const SRatio& ratio) {
        return qint64(timing.horizontal.nActive) * ratio.nHeight ==
               qint64(timing.vertical.nActive) * ratio.nWidth;
    };
    const SRatio* pFound = std::find_if(std::begin(c_arrRatios), std::end(c_arrRatios), Matches);
    return pFound == std::end(c_arrRatios) ? c_nUndefinedAspect : pFound->nCode;
}

} // namespace

bool IsDetailed(const quint8* pDescriptor)
{
    return pDescriptor[0] != 0 || pDescriptor[1] != 0;
}

SModeTiming ReadDetailed(const quint8* pDescriptor)
{
    const int nSync = Get0(pDescriptor, enSyncType);
    SModeTiming timing;
    timing.nClock = Get0(pDescriptor, enClock) * c_nClockUnit;
    timing.bInterlaced = Get0(pDescriptor, enInterlacedRow) != 0;
    SAxis& horizontal = timing.horizontal;
    horizontal = {Get0(pDescriptor, enHActive), Get0(pDescriptor, enHFront), Get0(pDescriptor, enHSync), 0,
                  nSync >= c_nDigitalComposite && Get0(pDescriptor, enHPolarity) != 0};
    horizontal.nBack = Get0(pDescriptor, enHBlank) - horizontal.nFront - horizontal.nSync;
    SAxis& vertical = timing.vertical;
    vertical = {Get0(pDescriptor, enVActive) * FieldsOf(timing), Get0(pDescriptor, enVFront),
                Get0(pDescriptor, enVSync), 0,
                nSync == c_nDigitalSeparate && Get0(pDescriptor, enVPolarity) != 0};
    vertical.nBack = Get0(pDescriptor, enVBlank) - vertical.nFront - vertical.nSync;
    return timing;
}

bool FitsDetailed(const SModeTiming& timing)
{
    return timing.nClock >= c_nClockUnit && Fits(c_layoutDetailed, DetailedParts(timing), 0);
}

void WriteDetailed(quint8* pDescriptor, const SModeTiming& timing, int nWidthMm, int nHeightMm)
{
    std::fill_n(pDescriptor, c_nDescriptorSize, quint8(0));
    PutAll(pDescriptor, c_layoutDetailed, DetailedParts(timing), 0);
    const SPart arrOthers[] = {
        {enHPolarity, timing.horizontal.bPositive},
        {enVPolarity, timing.vertical.bPositive},
        {enWidthMm, nWidthMm},
        {enHeightMm, nHeightMm},
        {enInterlacedRow, timing.bInterlaced},
        {enSyncType, c_nDigitalSeparate},
    };
    PutAll(pDescriptor, c_layoutDetailed, arrOthers, 0);
}

SModeTiming ReadTypeI(const quint8* pTiming)
{
    const auto Is = [=](int nRow) { return Get(pTiming, c_layoutTypeI[nRow]) != 0; };
    SModeTiming timing;
    timing.nClock = Get1(pTiming, enTypeIClock) * c_nClockUnit;
    timing.bInterlaced = Is(enTypeIInterlaced);
    SAxis& horizontal = timing.horizontal;
    horizontal = {Get1(pTiming, enTypeIHActive), Get1(pTiming, enTypeIHFront), Get1(pTiming, enTypeIHSync), 0,
                  Is(enTypeIHPositive)};
    horizontal.nBack = Get1(pTiming, enTypeIHBlank) - horizontal.nFront - horizontal.nSync;
    SAxis& vertical = timing.vertical;
    vertical = {Get1(pTiming, enTypeIVActive), Get1(pTiming, enTypeIVFront), Get1(pTiming, enTypeIVSync), 0,
                Is(enTypeIVPositive)};
    vertical.nBack = Get1(pTiming, enTypeIVBlank) - vertical.nFront - vertical.nSync;
    return timing;
}

SModeTiming ReadTypeVII(const quint8* pTiming)
{
    SModeTiming timing = ReadTypeI(pTiming);
    timing.nClock = Get1(pTiming, enTypeIClock) * c_nTypeVIIClockUnit;
    return timing;
}

bool FitsTypeI(const SModeTiming& timing)
{
    return Fits(c_layoutTypeI, TypeIParts(timing), 1);
}

void WriteTypeI(quint8* pTiming, const SModeTiming& timing)
{
    std::fill_n(pTiming, c_nTypeISize, quint8(0));
    PutAll(pTiming, c_layoutTypeI, TypeIParts(timing), 1);
    const SPart arrFlags[] = {
        {enTypeIPreferred, 1},
        {enTypeIInterlaced, timing.bInterlaced},
        {enTypeIAspect, AspectCode(timing)},
        {enTypeIHPositive, timing.horizontal.bPositive},
        {enTypeIVPositive, timing.vertical.bPositive},
    };
    PutAll(pTiming, c_layoutTypeI, arrFlags, 0);
}

} // namespace Edid
