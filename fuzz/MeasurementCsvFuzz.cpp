// Any file of measurements: it gives modules or says where it is wrong, and modules that were read come back
// to the last digit from what is written of them.

#include "SenderModuleDialog/Fault.h"
#include "instruments/colour/MeasurementCsv.h"

#include <cstddef>
#include <cstdint>

namespace {

bool AreEqual(const SReading& a, const SReading& b)
{
    return a.xy.dX == b.xy.dX && a.xy.dY == b.xy.dY && a.dLuminance == b.dLuminance;
}

bool AreEqual(const SModule& a, const SModule& b)
{
    bool bEqual = a.strName == b.strName && a.white.has_value() == b.white.has_value();
    for (std::size_t i = 0; i < c_nWallColours; ++i)
        bEqual = bEqual && AreEqual(ModuleWall::ReadingOf(a, enWallColour(i)),
                                    ModuleWall::ReadingOf(b, enWallColour(i)));
    return bEqual;
}

void CheckFormat(const Modules& modules, const SMeasurementFormat& format)
{
    const SMeasurements again = MeasurementCsv::Read(MeasurementCsv::Write(modules, format));
    Require(!again.error && again.modules.size() == modules.size(), "what is written is read");
    for (std::size_t i = 0; i < modules.size(); ++i)
        Require(AreEqual(again.modules[i], modules[i]), "every digit and every name comes back");
}

void CheckError(const SMeasurementError& error)
{
    Require(error.fault != enMeasurementFault::enNone, "an error has a reason");
    const bool bPlace = error.nLine >= 1 && error.nColumn >= 1;
    Require(bPlace || error.fault == enMeasurementFault::enNotText, "an error in a text has a place");
    Require(!error.Text().isEmpty(), "an error has a text");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    const SMeasurements measurements =
        MeasurementCsv::Read(QByteArray(reinterpret_cast<const char*>(pData), int(nSize)));
    Require(measurements.modules.empty() == measurements.error.has_value(), "there are modules or an error");
    if (measurements.error) {
        CheckError(*measurements.error);
        return 0;
    }
    // A line for each primary tells a measured white from the sum of the primaries.
    CheckFormat(measurements.modules, {QLatin1Char(','), false, false, false, true});
    CheckFormat(measurements.modules, {QLatin1Char(';'), true, true, false, true});
    return 0;
}
