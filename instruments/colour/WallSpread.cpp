#include "instruments/colour/ModuleWall.h"

#include <algorithm>
#include <cmath>

namespace {

/// Scales the median absolute deviation to the standard deviation of a normal distribution: the reciprocal of
/// its third quartile.
constexpr double c_dDeviationScale = 1.0 / 0.6745;
/// Iglewicz and Hoaglin call what lies farther out a potential outlier.
constexpr double c_dOutlierScore = 3.5;

constexpr enWallColour c_arrColours[] = {enWallColour::enRed, enWallColour::enGreen, enWallColour::enBlue,
                                         enWallColour::enWhite};

/// The upper median of what is not empty.
double Median(std::vector<double> vecValues)
{
    const auto middle = vecValues.begin() + std::ptrdiff_t(vecValues.size() / 2);
    std::nth_element(vecValues.begin(), middle, vecValues.end());
    return *middle;
}

double OutlierLimit(const std::vector<double>& vecValues)
{
    const double dMedian = Median(vecValues);
    std::vector<double> vecDeviations;
    vecDeviations.reserve(vecValues.size());
    for (const double dValue : vecValues)
        vecDeviations.push_back(std::abs(dValue - dMedian));
    return dMedian + c_dOutlierScore * c_dDeviationScale * Median(vecDeviations);
}

using Readings = std::array<SReading, c_nWallColours>;

Readings ReadingsOf(const SModule& module)
{
    Readings readings;
    for (const enWallColour colour : c_arrColours)
        readings[std::size_t(colour)] = ModuleWall::ReadingOf(module, colour);
    return readings;
}

/// The mean of one colour over all modules, in (u', v') and luminance.
SReading MeanOf(const std::vector<Readings>& vecReadings, std::size_t nColour)
{
    SUcs sum;
    double dLuminance = 0.0;
    for (const Readings& readings : vecReadings) {
        const SUcs uv = Chromaticity::ToUcs(readings[nColour].xy);
        sum.dU += uv.dU;
        sum.dV += uv.dV;
        dLuminance += readings[nColour].dLuminance;
    }
    const double dCount = double(vecReadings.size());
    return {Chromaticity::FromUcs({sum.dU / dCount, sum.dV / dCount}), dLuminance / dCount};
}

ModuleWall::SDifference DifferenceOf(const SReading& reading, const SReading& mean)
{
    return {Chromaticity::Distance(Chromaticity::ToUcs(reading.xy), Chromaticity::ToUcs(mean.xy)),
            reading.dLuminance / mean.dLuminance - 1.0};
}

ModuleWall::SModuleSpread SpreadOfModule(const Readings& readings, const Readings& mean)
{
    ModuleWall::SModuleSpread spread;
    for (std::size_t i = 0; i < c_nWallColours; ++i) {
        const ModuleWall::SDifference difference = DifferenceOf(readings[i], mean[i]);
        spread.arrColours[i] = difference;
        spread.worst.dUcs = std::max(spread.worst.dUcs, difference.dUcs);
        if (std::abs(difference.dLuminance) > std::abs(spread.worst.dLuminance))
            spread.worst.dLuminance = difference.dLuminance;
    }
    return spread;
}

ModuleWall::SDifference LimitOf(const std::vector<ModuleWall::SModuleSpread>& vecModules)
{
    std::vector<double> vecUcs;
    std::vector<double> vecLuminance;
    for (const ModuleWall::SModuleSpread& module : vecModules) {
        vecUcs.push_back(module.worst.dUcs);
        vecLuminance.push_back(std::abs(module.worst.dLuminance));
    }
    return {std::max(OutlierLimit(vecUcs), ModuleWall::c_dVisibleUcs),
            std::max(OutlierLimit(vecLuminance), ModuleWall::c_dVisibleLuminance)};
}

} // namespace

std::optional<ModuleWall::SModuleFault> ModuleWall::FirstFault(const Modules& modules)
{
    for (std::size_t i = 0; i < modules.size(); ++i) {
        const SModule& module = modules[i];
        enColourFault fault = Primaries::Check(module.primaries);
        if (fault == enColourFault::enNone && module.white)
            fault = Primaries::CheckReading(*module.white);
        if (fault != enColourFault::enNone)
            return SModuleFault{i, fault};
    }
    return std::nullopt;
}

SReading ModuleWall::ReadingOf(const SModule& module, enWallColour colour)
{
    switch (colour) {
    case enWallColour::enRed:
        return module.primaries.red;
    case enWallColour::enGreen:
        return module.primaries.green;
    case enWallColour::enBlue:
        return module.primaries.blue;
    case enWallColour::enWhite:
        break;
    }
    if (module.white)
        return *module.white;
    const CColourResult<SReading> white = Primaries::WhiteOf(module.primaries);
    return white ? *white : SReading();
}

std::size_t ModuleWall::SSpread::OddCount() const
{
    return std::size_t(std::count_if(vecModules.begin(), vecModules.end(),
                                     [](const SModuleSpread& module) { return module.IsOdd(); }));
}

SPrimaries ModuleWall::SSpread::MeanPrimaries() const
{
    return {arrMean[std::size_t(enWallColour::enRed)], arrMean[std::size_t(enWallColour::enGreen)],
            arrMean[std::size_t(enWallColour::enBlue)]};
}

CColourResult<ModuleWall::SSpread> ModuleWall::SpreadOf(const Modules& modules)
{
    if (modules.empty())
        return enColourFault::enNoModules;
    if (const auto fault = FirstFault(modules))
        return fault->fault;
    std::vector<Readings> vecReadings;
    vecReadings.reserve(modules.size());
    for (const SModule& module : modules)
        vecReadings.push_back(ReadingsOf(module));
    SSpread spread;
    for (std::size_t i = 0; i < c_nWallColours; ++i)
        spread.arrMean[i] = MeanOf(vecReadings, i);
    for (const Readings& readings : vecReadings)
        spread.vecModules.push_back(SpreadOfModule(readings, spread.arrMean));
    spread.limit = LimitOf(spread.vecModules);
    for (SModuleSpread& module : spread.vecModules) {
        module.bOddColour = module.worst.dUcs > spread.limit.dUcs;
        module.bOddLuminance = std::abs(module.worst.dLuminance) > spread.limit.dLuminance;
    }
    return spread;
}
