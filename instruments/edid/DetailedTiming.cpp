#include "instruments/edid/DetailedTiming.h"

#include "instruments/edid/BaseLayout.h"
#include "instruments/edid/DisplayIdLayout.h"

#include <algorithm>
#include <iterator>

namespace Edid {

namespace {

/// Unit of the pixel clock in both forms, Hz.
constexpr qint64 c_nClockUnit = 10000;

/// Digital separate sync, the only kind that tells both polarities.
constexpr int c_nDigitalSeparate = 3;
constexpr int c_nDigitalComposite = 2;

/// A number of the standard counts from zero where it is one less than it says.
int Get1(const quint8* pTiming, int nRow)
{
    return int(Get(pTiming, c_layoutTypeI[nRow])) + 1;
}

void Put1(quint8* pTiming, int nRow, int nValue)
{
    Put(pTiming, c_layoutTypeI[nRow], nValue - 1);
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

/// Whether every value fits its row, less what the row adds.
template <std::size_t c_nCount>
bool Fits(const SLayout& layout, const SPart (&arrParts)[c_nCount], int nLowest)
{
    return std::all_of(std::begin(arrParts), std::end(arrParts), [&](const SPart& part) {
        return part.nValue >= nLowest && part.nValue - nLowest <= layout[part.nRow].MaxRaw();
    });
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
    const SAxis& horizontal = timing.horizontal;
    const SAxis& vertical = timing.vertical;
    const SPart arrParts[] = {
        {enClock, timing.nClock / c_nClockUnit},
        {enHActive, horizontal.nActive},
        {enHBlank, horizontal.Blank()},
        {enHFront, horizontal.nFront},
        {enHSync, horizontal.nSync},
        {enVActive, vertical.nActive / FieldsOf(timing)},
        {enVBlank, vertical.Blank()},
        {enVFront, vertical.nFront},
        {enVSync, vertical.nSync},
    };
    return timing.nClock >= c_nClockUnit && Fits(c_layoutDetailed, arrParts, 0);
}

void WriteDetailed(quint8* pDescriptor, const SModeTiming& timing, int nWidthMm, int nHeightMm)
{
    std::fill_n(pDescriptor, c_nDescriptorSize, quint8(0));
    const SAxis& horizontal = timing.horizontal;
    const SAxis& vertical = timing.vertical;
    const SPart arrParts[] = {
        {enClock, timing.nClock / c_nClockUnit},
        {enHActive, horizontal.nActive},
        {enHBlank, horizontal.Blank()},
        {enHFront, horizontal.nFront},
        {enHSync, horizontal.nSync},
        {enHPolarity, horizontal.bPositive},
        {enVActive, vertical.nActive / FieldsOf(timing)},
        {enVBlank, vertical.Blank()},
        {enVFront, vertical.nFront},
        {enVSync, vertical.nSync},
        {enVPolarity, vertical.bPositive},
        {enWidthMm, nWidthMm},
        {enHeightMm, nHeightMm},
        {enInterlacedRow, timing.bInterlaced},
        {enSyncType, c_nDigitalSeparate},
    };
    for (const SPart& part : arrParts)
        Put(pDescriptor, c_layoutDetailed[part.nRow], part.nValue);
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

bool FitsTypeI(const SModeTiming& timing)
{
    const SAxis& horizontal = timing.horizontal;
    const SAxis& vertical = timing.vertical;
    const SPart arrParts[] = {
        {enTypeIClock, timing.nClock / c_nClockUnit},
        {enTypeIHActive, horizontal.nActive},
        {enTypeIHBlank, horizontal.Blank()},
        {enTypeIHFront, horizontal.nFront},
        {enTypeIHSync, horizontal.nSync},
        {enTypeIVActive, vertical.nActive},
        {enTypeIVBlank, vertical.Blank()},
        {enTypeIVFront, vertical.nFront},
        {enTypeIVSync, vertical.nSync},
    };
    return Fits(c_layoutTypeI, arrParts, 1);
}

void WriteTypeI(quint8* pTiming, const SModeTiming& timing)
{
    std::fill_n(pTiming, c_nTypeISize, quint8(0));
    const SAxis& horizontal = timing.horizontal;
    const SAxis& vertical = timing.vertical;
    Put1(pTiming, enTypeIClock, int(timing.nClock / c_nClockUnit));
    Put1(pTiming, enTypeIHActive, horizontal.nActive);
    Put1(pTiming, enTypeIHBlank, horizontal.Blank());
    Put1(pTiming, enTypeIHFront, horizontal.nFront);
    Put1(pTiming, enTypeIHSync, horizontal.nSync);
    Put1(pTiming, enTypeIVActive, vertical.nActive);
    Put1(pTiming, enTypeIVBlank, vertical.Blank());
    Put1(pTiming, enTypeIVFront, vertical.nFront);
    Put1(pTiming, enTypeIVSync, vertical.nSync);
    const SPart arrFlags[] = {
        {enTypeIPreferred, 1},
        {enTypeIInterlaced, timing.bInterlaced},
        {enTypeIAspect, AspectCode(timing)},
        {enTypeIHPositive, horizontal.bPositive},
        {enTypeIVPositive, vertical.bPositive},
    };
    for (const SPart& flag : arrFlags)
        Put(pTiming, c_layoutTypeI[flag.nRow], flag.nValue);
}

} // namespace Edid
