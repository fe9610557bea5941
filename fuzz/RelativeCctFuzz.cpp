// Any chromaticity, including infinities and NaN: no undefined behaviour, and verdict, temperature and pair
// of rows equal those of the plain walk over the table to the bit.

#include "SenderModuleDialog/Fault.h"
#include "SenderModuleDialog/colour/CCT2ColorCoord.h"
#include "fuzz/FuzzInput.h"
#include "oracles/colour/PlainColorimetry.h"

#include <cstring>

namespace {

constexpr float c_fPreset = -7.0F;

bool SameBits(float fA, float fB)
{
    return std::memcmp(&fA, &fB, sizeof fA) == 0;
}

void CheckPoint(QPointF xy, bool bExact)
{
    static const CCCT2ColorCoord s_cct;
    static const std::vector<sCIE1931> s_vecRows = PlainColorimetry::MakeRows();

    float fExpected = c_fPreset;
    sCIE1931 arrExpected[2];
    const bool bExpected =
        PlainColorimetry::PointToTemperature(s_vecRows, xy, &fExpected, bExact, arrExpected);
    float fCCT = c_fPreset;
    Require(s_cct.TriangAlgCalcRelativeCCT(xy, &fCCT, bExact) == bExpected, "the verdict of the plain walk");
    Require(SameBits(fCCT, fExpected), "the temperature of the plain walk");
    if (!s_cct.isCoordInArea(xy))
        return;

    QPointF uv;
    s_cct.ColorCoordXYtoUV(xy, &uv);
    // The smallest coordinates round to 0, which the search by itself does not take.
    if (!(uv.x() > 0.0 && uv.y() > 0.0))
        return;
    sCIE1931 arrPair[2];
    s_cct.SearchNearestTwoPoint(uv, arrPair);
    Require(arrPair[0].nCCT == arrExpected[0].nCCT && arrPair[1].nCCT == arrExpected[1].nCCT,
            "the pair of the plain walk");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    CFuzzInput input(pData, nSize);
    const double dX = input.Take<double>();
    const double dY = input.Take<double>();
    const bool bExact = (input.Take<std::uint8_t>() & 1U) != 0;
    CheckPoint(QPointF(dX, dY), bExact);

    // Arbitrary doubles are hardly ever chromaticities; four more bytes each give a place on the unit square.
    constexpr double c_dUnit = 1.0 / 4294967295.0;
    CheckPoint(
        QPointF(double(input.Take<std::uint32_t>()) * c_dUnit, double(input.Take<std::uint32_t>()) * c_dUnit),
        bExact);
    return 0;
}
