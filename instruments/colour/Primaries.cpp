#include "instruments/colour/Primaries.h"

#include <QtGlobal>

#include <algorithm>
#include <cmath>

namespace {

/// Drive values this far outside 0 to 1 are roundings.
constexpr double c_dDriveTolerance = 1e-9;

Vector3 ToVector(const STristimulus& xyz)
{
    return {xyz.dX, xyz.dY, xyz.dZ};
}

Vector3 ColumnOf(const SReading& reading)
{
    return ToVector(Chromaticity::ToTristimulus(reading.xy, reading.dLuminance));
}

/// The matrix whose columns are the primaries at luminance 1.
CColourMatrix UnitMatrix(const SGamut& gamut)
{
    return CColourMatrix::OfColumns(ColumnOf({gamut.red, 1.0}), ColumnOf({gamut.green, 1.0}),
                                    ColumnOf({gamut.blue, 1.0}));
}

enColourFault CheckLuminance(double dLuminance)
{
    if (!std::isfinite(dLuminance))
        return enColourFault::enNotFinite;
    return dLuminance > 0.0 ? enColourFault::enNone : enColourFault::enNotPositive;
}

/// The luminances of the primaries for a white of luminance 1; the inverse of `UnitMatrix` times the white.
CColourResult<Vector3> Shares(const SGamut& gamut, SChromaticity white)
{
    if (const enColourFault fault = Gamut::Check(gamut); fault != enColourFault::enNone)
        return fault;
    if (const enColourFault fault = Chromaticity::Check(white); fault != enColourFault::enNone)
        return fault;
    const Vector3 shares = UnitMatrix(gamut).Inverse() * ColumnOf({white, 1.0});
    const bool bInside =
        std::all_of(shares.begin(), shares.end(), [](double dShare) { return dShare > 0.0; });
    if (!bInside)
        return enColourFault::enWhiteOutsideGamut;
    return shares;
}

bool IsBelow(double dDrive)
{
    return dDrive < -c_dDriveTolerance;
}

bool IsAbove(double dDrive)
{
    return dDrive > 1.0 + c_dDriveTolerance;
}

} // namespace

SGamut Primaries::GamutOf(const SPrimaries& primaries)
{
    return {primaries.red.xy, primaries.green.xy, primaries.blue.xy};
}

enColourFault Primaries::CheckReading(const SReading& reading)
{
    if (const enColourFault fault = Chromaticity::Check(reading.xy); fault != enColourFault::enNone)
        return fault;
    return CheckLuminance(reading.dLuminance);
}

enColourFault Primaries::Check(const SPrimaries& primaries)
{
    if (const enColourFault fault = Gamut::Check(GamutOf(primaries)); fault != enColourFault::enNone)
        return fault;
    for (const SReading& reading : {primaries.red, primaries.green, primaries.blue})
        if (const enColourFault fault = CheckLuminance(reading.dLuminance); fault != enColourFault::enNone)
            return fault;
    return enColourFault::enNone;
}

CColourResult<CColourMatrix> Primaries::MatrixToXyz(const SPrimaries& primaries)
{
    if (const enColourFault fault = Check(primaries); fault != enColourFault::enNone)
        return fault;
    return CColourMatrix::OfColumns(ColumnOf(primaries.red), ColumnOf(primaries.green),
                                    ColumnOf(primaries.blue));
}

CColourResult<SReading> Primaries::WhiteOf(const SPrimaries& primaries)
{
    const CColourResult<CColourMatrix> matrix = MatrixToXyz(primaries);
    if (!matrix)
        return matrix.Fault();
    const Vector3 xyz = *matrix * Vector3{1.0, 1.0, 1.0};
    return SReading{Chromaticity::FromTristimulus({xyz[0], xyz[1], xyz[2]}), xyz[1]};
}

CColourResult<Primaries::SLuminances> Primaries::LuminancesForWhite(const SGamut& gamut, SChromaticity white,
                                                                    double dLevel)
{
    if (const enColourFault fault = CheckLuminance(dLevel); fault != enColourFault::enNone)
        return fault;
    const CColourResult<Vector3> shares = Shares(gamut, white);
    if (!shares)
        return shares.Fault();
    return SLuminances{(*shares)[0] * dLevel, (*shares)[1] * dLevel, (*shares)[2] * dLevel};
}

CColourResult<Primaries::SGreatestLevel> Primaries::GreatestLevel(const SPrimaries& primaries,
                                                                  SChromaticity white)
{
    if (const enColourFault fault = Check(primaries); fault != enColourFault::enNone)
        return fault;
    const CColourResult<Vector3> shares = Shares(GamutOf(primaries), white);
    if (!shares)
        return shares.Fault();
    const std::array<double, 3> levels = {primaries.red.dLuminance / (*shares)[0],
                                          primaries.green.dLuminance / (*shares)[1],
                                          primaries.blue.dLuminance / (*shares)[2]};
    const auto* const pSmallest = std::min_element(levels.begin(), levels.end());
    return SGreatestLevel{*pSmallest, enChannel(pSmallest - levels.begin())};
}

CColourResult<CColourMatrix> Primaries::SourceToXyz(const SGamut& gamut, SChromaticity white, double dLevel)
{
    const CColourResult<SLuminances> luminances = LuminancesForWhite(gamut, white, dLevel);
    if (!luminances)
        return luminances.Fault();
    return UnitMatrix(gamut).ColumnsTimes({luminances->dRed, luminances->dGreen, luminances->dBlue});
}

CColourResult<CColourMatrix> Primaries::DriveMatrix(const SGamut& source, SChromaticity white, double dLevel,
                                                    const SPrimaries& display)
{
    const CColourResult<CColourMatrix> sourceToXyz = SourceToXyz(source, white, dLevel);
    if (!sourceToXyz)
        return sourceToXyz.Fault();
    const CColourResult<CColourMatrix> displayToXyz = MatrixToXyz(display);
    if (!displayToXyz)
        return displayToXyz.Fault();
    return displayToXyz->Inverse() * *sourceToXyz;
}

Primaries::SClipShare Primaries::ClipShare(const CColourMatrix& drive, int nSteps)
{
    qint64 nBelow = 0;
    qint64 nAbove = 0;
    qint64 nClipped = 0;
    const double dStep = 1.0 / (nSteps - 1);
    for (int nRed = 0; nRed < nSteps; ++nRed) {
        for (int nGreen = 0; nGreen < nSteps; ++nGreen) {
            for (int nBlue = 0; nBlue < nSteps; ++nBlue) {
                const Vector3 values = drive * Vector3{nRed * dStep, nGreen * dStep, nBlue * dStep};
                const bool bBelow = std::any_of(values.begin(), values.end(), IsBelow);
                const bool bAbove = std::any_of(values.begin(), values.end(), IsAbove);
                nBelow += bBelow;
                nAbove += bAbove;
                nClipped += bBelow || bAbove;
            }
        }
    }
    const double dAll = double(nSteps) * nSteps * nSteps;
    return {double(nBelow) / dAll, double(nAbove) / dAll, double(nClipped) / dAll};
}
