#include "oracles/edid/TimingOracle.h"

#include <cmath>

namespace TimingOracle {

namespace {

/// A double as the nearest number of 24 significant bits, ties to even: single precision without the type.
double Single(double dValue)
{
    if (dValue == 0.0 || !std::isfinite(dValue))
        return dValue;
    int nExponent = 0;
    const double dMantissa = std::frexp(dValue, &nExponent);
    return std::ldexp(std::nearbyint(std::ldexp(dMantissa, 24)), nExponent - 24);
}

/// The nearest single-precision value of a decimal constant.
double Constant(double dValue)
{
    return Single(dValue);
}

long long Floor(double dValue)
{
    return static_cast<long long>(std::floor(dValue));
}

long long DownTo(long long nStep, long long nValue)
{
    return nValue / nStep * nStep;
}

long long DownTo(long long nStep, double dValue)
{
    return Floor(dValue / double(nStep)) * nStep;
}

long long VerticalSync(long long nWidth, long long nHeight)
{
    if (nWidth == DownTo(8, nHeight * 4 / 3))
        return 4;
    if (nWidth == DownTo(8, nHeight * 16 / 9))
        return 5;
    if (nWidth == DownTo(8, nHeight * 16 / 10))
        return 6;
    if (nWidth == DownTo(8, nHeight * 5 / 4) || nWidth == DownTo(8, nHeight * 15 / 9))
        return 7;
    return 10;
}

struct SLines
{
    long long nActive;
    long long nMargin; ///< at top and bottom
    long long nSync;
    bool bInterlaced;
};

long long ReducedLines(const SLines& lines, double dRate)
{
    const double dTime = Single(Single(1e6 / dRate) - 460.0);
    const double dPeriod = Single(dTime / double(lines.nActive + 2 * lines.nMargin));
    const long long nByTime = Floor(Single(460.0 / dPeriod)) + 1;
    const long long nLeast = 9 + lines.nSync;
    return nByTime > nLeast ? nByTime : nLeast;
}

tagSBlankTiming Reduced(const SLines& lines, double dRate)
{
    tagSBlankTiming timing = {160, 48, 32, 0, 3, 0, 1};
    timing.wVBlank = quint16(ReducedLines(lines, dRate));
    timing.byVSync = quint8(lines.nSync);
    return timing;
}

double NormalPeriod(const SLines& lines, double dRate)
{
    const double dTime = Single(Single(1.0 / dRate) - Constant(0.00055));
    const double dLines = double(lines.nActive + 2 * lines.nMargin + 3) + (lines.bInterlaced ? 0.5 : 0.0);
    return Single(Single(dTime / dLines) * 1e6);
}

long long NormalHBlank(long long nActive, double dPeriod)
{
    const double dSlope = Single(Single(dPeriod * -300.0) / 1000.0);
    const double dDuty = std::fmax(20.0, Single(dSlope + 30.0));
    return DownTo(16, Single(Single(dDuty * double(nActive)) / Single(100.0 - dDuty)));
}

tagSBlankTiming Normal(const SLines& lines, long long nActive, double dRate)
{
    const double dPeriod = NormalPeriod(lines, dRate);
    const long long nByTime = Floor(Single(550.0 / dPeriod)) + 1;
    const long long nLeast = lines.nSync + 3;
    const long long nHBlank = NormalHBlank(nActive, dPeriod);
    const long long nHSync = DownTo(8, Single(double(nActive + nHBlank) * Constant(0.08)));

    tagSBlankTiming timing = {};
    timing.wHBlank = quint16(nHBlank);
    timing.wHFrontPorch = quint16(nHBlank / 2 - nHSync);
    timing.wHSync = quint16(nHSync);
    timing.wVBlank = quint16((nByTime > nLeast ? nByTime : nLeast) + 3);
    timing.byVFrontPorch = 3;
    timing.byVSync = quint8(lines.nSync);
    timing.bySyncFlag = 2;
    return timing;
}

} // namespace

tagSBlankTiming Blanking(const tagSCalTimingIn& in)
{
    const long long nWidth = DownTo(8, static_cast<long long>(in.nWidth) + 7);
    SLines lines = {};
    lines.bInterlaced = in.bInterlaced != 0;
    lines.nActive = lines.bInterlaced ? in.nHeight / 2 : in.nHeight;
    lines.nMargin = in.bMargins != 0 ? Floor(Single(Constant(0.018) * double(lines.nActive))) : 0;
    lines.nSync = VerticalSync(nWidth, in.nHeight);
    if (in.bReducedBlank != 0)
        return Reduced(lines, double(in.fRate));

    const long long nMargin =
        in.bMargins != 0 ? DownTo(8, Single(Single(Constant(1.8) * double(nWidth)) / 100.0)) : 0;
    return Normal(lines, nWidth + 2 * nMargin, double(in.fRate));
}

double PixelFrequency(long long nHTotal, long long nVTotal, double dRate)
{
    return Single(Single(double(nHTotal * nVTotal)) * dRate);
}

} // namespace TimingOracle
