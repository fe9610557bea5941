#include "instruments/edid/TimingStandards.h"

#include "instruments/edid/ListedTimings.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace Edid {

namespace {

constexpr double c_dMicroseconds = 1e6;
constexpr double c_dHzPerMHz = 1e6;
constexpr int c_nCell = 8;                   ///< character cell, pixels (CVT 3.3, GTF)
constexpr double c_dMinVsyncBackPorch = 550; ///< microseconds (CVT 3.3, GTF)
constexpr double c_dReducedMinVBlank = 460;  ///< microseconds (CVT 3.4)
constexpr int c_nMinVPorch = 3;              ///< lines (CVT 3.3)
constexpr int c_nMinVBackPorch = 7;          ///< lines (CVT 1.2, 3.3)

// Gradient and offset of the blanking formula with its default parameters C 40, M 600, K 128, J 20 (GTF,
// CVT 3.3).
constexpr double c_dGradient = 300.0;
constexpr double c_dOffset = 30.0;
constexpr double c_dMinDuty = 20.0; ///< percent (CVT 3.3)
constexpr double c_dHSyncPercent = 0.08;

double DownTo(double dValue, double dStep)
{
    return std::floor(dValue / dStep) * dStep;
}

int ToInt(double dValue)
{
    constexpr double c_dLargest = 1e9;
    return int(std::clamp(dValue, -c_dLargest, c_dLargest));
}

/// Lines of one field, and the half line that it has more.
double FieldLines(const SModeRequest& request)
{
    return request.bInterlaced ? std::floor(request.nHeight / 2.0) : request.nHeight;
}

double HalfLine(const SModeRequest& request)
{
    return request.bInterlaced ? 0.5 : 0.0;
}

struct SVsync
{
    int nWidth;
    int nHeight;
    int nLines;
};

/// The sync tells the aspect ratio (CVT 3.3, table 2).
constexpr SVsync c_arrVsync[] = {{4, 3, 4}, {16, 9, 5}, {16, 10, 6}, {5, 4, 7}, {15, 9, 7}};
constexpr int c_nOtherVsync = 10;

int CvtVsync(const SModeRequest& request)
{
    const auto Matches = [&](const SVsync& row) {
        const qint64 nWidth = qint64(request.nHeight) * row.nWidth / row.nHeight / c_nCell * c_nCell;
        return nWidth == request.nWidth;
    };
    const SVsync* pFound = std::find_if(std::begin(c_arrVsync), std::end(c_arrVsync), Matches);
    return pFound == std::end(c_arrVsync) ? c_nOtherVsync : pFound->nLines;
}

SModeTiming Begin(const SModeRequest& request, bool bHPositive)
{
    SModeTiming timing;
    timing.bInterlaced = request.bInterlaced;
    timing.horizontal.nActive = request.nWidth;
    timing.horizontal.bPositive = bHPositive;
    timing.vertical.nActive = request.nHeight;
    timing.vertical.bPositive = !bHPositive;
    return timing;
}

void SetClock(SModeTiming& timing, double dMHz)
{
    timing.nClock = std::llround(dMHz * c_dHzPerMHz);
}

/// The formulas take whole cells; what is left of the width is shown all the same.
int WholeCells(const SModeRequest& request)
{
    return request.nWidth / c_nCell * c_nCell;
}

/// CVT 1.2, section 5.3, steps 8 to 17.
SModeTiming Cvt(const SModeRequest& request)
{
    constexpr double c_dClockStep = 0.25;
    const double dLines = FieldLines(request);
    const int nVsync = CvtVsync(request);
    const double dPeriod = (c_dMicroseconds / request.dRate - c_dMinVsyncBackPorch) /
                           (dLines + c_nMinVPorch + HalfLine(request));
    const int nVsyncBack =
        std::max(ToInt(std::floor(c_dMinVsyncBackPorch / dPeriod)) + 1, nVsync + c_nMinVBackPorch);
    const double dDuty = std::max(c_dOffset - c_dGradient * dPeriod / 1000.0, c_dMinDuty);
    constexpr int c_nPair = 2 * c_nCell;
    const int nBlank = ToInt(DownTo(WholeCells(request) * dDuty / (100.0 - dDuty), c_nPair));
    SModeTiming timing = Begin(request, false);
    SAxis& horizontal = timing.horizontal;
    const int nTotal = WholeCells(request) + nBlank;
    horizontal.nSync = ToInt(DownTo(c_dHSyncPercent * nTotal, c_nCell));
    horizontal.nBack = nBlank / 2;
    horizontal.nFront = nBlank - horizontal.nSync - horizontal.nBack;
    timing.vertical.nFront = c_nMinVPorch;
    timing.vertical.nSync = nVsync;
    timing.vertical.nBack = nVsyncBack - nVsync;
    SetClock(timing, DownTo(nTotal / dPeriod, c_dClockStep));
    return timing;
}

/// What tells the three reduced blankings apart.
struct SReduced
{
    int nHFront;
    int nHSync;
    int nHBack;
    int nMinVFront;
    int nVSync;        ///< 0: by the aspect ratio
    int nVBack;        ///< the fixed porch; the rest of the blanking goes to the other one
    bool bFixedFront;  ///< the front porch is the fixed one
    double dClockStep; ///< MHz
    bool bWholeCells;  ///< the clock is that of whole cells
    bool bClockUp;     ///< the clock is rounded up
};

/// CVT 1.2, sections 3.4.1 and 3.4.2; CVT 2.0 for version 3.
constexpr SReduced c_reduced1 = {48, 32, 80, 3, 0, c_nMinVBackPorch, true, 0.25, true, false};
constexpr SReduced c_reduced2 = {8, 32, 40, 1, 8, 6, false, 0.001, false, false};
constexpr SReduced c_reduced3 = {8, 32, 40, 1, 8, 6, false, 0.25, true, true};

/// CVT 1.2, section 5.4.
SModeTiming CvtReduced(const SModeRequest& request, const SReduced& reduced)
{
    const double dLines = FieldLines(request);
    const int nVsync = reduced.nVSync != 0 ? reduced.nVSync : CvtVsync(request);
    const double dPeriod = (c_dMicroseconds / request.dRate - c_dReducedMinVBlank) / dLines;
    const int nBlank = std::max(ToInt(std::floor(c_dReducedMinVBlank / dPeriod)) + 1,
                                reduced.nMinVFront + nVsync + reduced.nVBack);
    SModeTiming timing = Begin(request, true);
    timing.horizontal.nFront = reduced.nHFront;
    timing.horizontal.nSync = reduced.nHSync;
    timing.horizontal.nBack = reduced.nHBack;
    SAxis& vertical = timing.vertical;
    vertical.nSync = nVsync;
    vertical.nBack = reduced.bFixedFront ? nBlank - nVsync - reduced.nMinVFront : reduced.nVBack;
    vertical.nFront = nBlank - nVsync - vertical.nBack;
    const int nCut = reduced.bWholeCells ? request.nWidth - WholeCells(request) : 0;
    const double dMHz = request.dRate * (dLines + nBlank + HalfLine(request)) *
                        (timing.horizontal.Total() - nCut) / c_dHzPerMHz;
    // What is a whole number of steps but for the rounding of the product stays that number.
    constexpr double c_dTolerance = 1e-7;
    const double dSteps = dMHz / reduced.dClockStep;
    const double dWhole =
        reduced.bClockUp ? std::ceil(dSteps - c_dTolerance) : std::floor(dSteps + c_dTolerance);
    SetClock(timing, dWhole * reduced.dClockStep);
    return timing;
}

/// GTF 1.1, section 5.1.
SModeTiming Gtf(SModeRequest request)
{
    constexpr int c_nFront = 1;
    constexpr int c_nVSync = 3;
    constexpr double c_dClockStep = 0.001;
    request.nWidth = ToInt(std::round(request.nWidth / double(c_nCell))) * c_nCell;
    const double dLines = FieldLines(request);
    const double dHalf = HalfLine(request);
    const double dEstimate =
        (c_dMicroseconds / request.dRate - c_dMinVsyncBackPorch) / (dLines + c_nFront + dHalf);
    const int nVsyncBack = ToInt(std::round(c_dMinVsyncBackPorch / dEstimate));
    const double dTotal = dLines + nVsyncBack + dHalf + c_nFront;
    const double dPeriod = c_dMicroseconds / request.dRate / dTotal;
    const double dDuty = c_dOffset - c_dGradient * dPeriod / 1000.0;
    constexpr int c_nPair = 2 * c_nCell;
    const int nBlank = ToInt(std::round(request.nWidth * dDuty / (100.0 - dDuty) / c_nPair)) * c_nPair;
    SModeTiming timing = Begin(request, false);
    SAxis& horizontal = timing.horizontal;
    const int nTotal = request.nWidth + nBlank;
    horizontal.nSync = ToInt(std::round(c_dHSyncPercent * nTotal / c_nCell)) * c_nCell;
    horizontal.nBack = nBlank / 2;
    horizontal.nFront = nBlank / 2 - horizontal.nSync;
    timing.vertical.nFront = c_nFront;
    timing.vertical.nSync = c_nVSync;
    timing.vertical.nBack = nVsyncBack - c_nVSync;
    SetClock(timing, std::round(nTotal / dPeriod / c_dClockStep) * c_dClockStep);
    return timing;
}

/// The listed row of a size whose rate is nearest, within half a hertz.
std::optional<SModeTiming> Nearest(STimingList list, const SModeRequest& request)
{
    constexpr double c_dTolerance = 0.5;
    std::optional<SModeTiming> best;
    double dBest = c_dTolerance;
    for (const SListedTiming& listed : list) {
        const SModeTiming timing = TimingOf(listed);
        const double dOff = std::fabs(timing.Rate() - request.dRate);
        const bool bSize = timing.horizontal.nActive == request.nWidth &&
                           timing.vertical.nActive == request.nHeight &&
                           timing.bInterlaced == request.bInterlaced;
        if (bSize && dOff < dBest) {
            best = timing;
            dBest = dOff;
        }
    }
    return best;
}

/// The rates of television in North America are 1000/1001 of the whole ones (CTA-861-H, section 4): the same
/// code stands for both.
std::optional<SModeTiming> Cea(const SModeRequest& request)
{
    constexpr double c_dNtsc = 1000.0 / 1001.0;
    std::optional<SModeTiming> timing = Nearest(VideoCodes(), request);
    if (!timing)
        return timing;
    const double dRate = timing->Rate();
    const bool bWhole =
        std::fmod(std::round(dRate), 6.0) == 0.0 && std::fabs(dRate - std::round(dRate)) < 0.01;
    if (bWhole && std::fabs(request.dRate - dRate * c_dNtsc) < std::fabs(request.dRate - dRate))
        timing->nClock = std::llround(double(timing->nClock) * c_dNtsc);
    return timing;
}

/// A formula may leave no time for the lines, or no room for the porches.
std::optional<SModeTiming> IfPossible(const SModeTiming& timing)
{
    const SAxis& horizontal = timing.horizontal;
    const SAxis& vertical = timing.vertical;
    const bool bPossible = timing.nClock > 0 && horizontal.nFront > 0 && horizontal.nSync > 0 &&
                           horizontal.nBack > 0 && vertical.nFront > 0 && vertical.nBack > 0;
    return bPossible ? std::optional<SModeTiming>(timing) : std::nullopt;
}

/// Whether the blanking alone takes longer than a frame: then no formula has an answer.
bool LeavesTime(const SModeRequest& request, double dBlank)
{
    return request.nWidth > 0 && request.nHeight > 1 && request.dRate > 0 &&
           c_dMicroseconds / request.dRate > dBlank;
}

constexpr const char* c_arrNames[c_nTimingStandards] = {"cvt", "cvt-rb", "cvt-rb2", "cvt-rb3",
                                                        "dmt", "cea",    "gtf"};

} // namespace

const char* StandardName(enTimingStandard standard)
{
    return c_arrNames[int(standard)];
}

std::optional<enTimingStandard> FindTimingStandard(const QString& strName)
{
    for (int i = 0; i < c_nTimingStandards; ++i)
        if (strName == QLatin1String(c_arrNames[i]))
            return enTimingStandard(i);
    return std::nullopt;
}

std::optional<SModeTiming> StandardTimingOf(enTimingStandard standard, const SModeRequest& request)
{
    if (standard == enTimingStandard::enDmt)
        return Nearest(DisplayTimings(), request);
    if (standard == enTimingStandard::enCea)
        return Cea(request);
    if (!LeavesTime(request, c_dMinVsyncBackPorch))
        return std::nullopt;
    switch (standard) {
    case enTimingStandard::enCvt:
        return IfPossible(Cvt(request));
    case enTimingStandard::enCvtRb:
        return IfPossible(CvtReduced(request, c_reduced1));
    case enTimingStandard::enCvtRb2:
        return IfPossible(CvtReduced(request, c_reduced2));
    case enTimingStandard::enCvtRb3:
        return IfPossible(CvtReduced(request, c_reduced3));
    default:
        return IfPossible(Gtf(request));
    }
}

} // namespace Edid
