// The overlap of any two triangles, including infinities and NaN: no undefined behaviour, and a ratio that is
// NaN or from 0 to 1.

#include "SenderModuleDialog/Fault.h"
#include "SenderModuleDialog/geometry/CalcChromaRatio.h"
#include "fuzz/FuzzInput.h"

#include <array>
#include <cmath>

namespace {

constexpr float c_fPreset = -7.0F;

std::vector<CPointEx<float>> TakeTriangle(CFuzzInput& input)
{
    std::vector<CPointEx<float>> vecTriangle;
    while (vecTriangle.size() < 3)
        vecTriangle.push_back(input.TakePoint());
    return vecTriangle;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    CFuzzInput input(pData, nSize);
    std::vector<CPointEx<float>> vecA = TakeTriangle(input);
    std::vector<CPointEx<float>> vecB = TakeTriangle(input);

    float fRatio = c_fPreset;
    Require(CCalcChromaRatio().CalcChromaRatio(vecA, vecB, fRatio), "the result is always true");
    Require(fRatio == c_fPreset || std::isnan(fRatio) || (fRatio >= 0.0F && fRatio <= 1.0F),
            "the ratio is left alone, or NaN, or from 0 to 1");

    for (int nCount = 0; nCount <= 3; ++nCount) {
        // A copy of exactly nCount points lets a sanitizer see a read beyond them.
        std::vector<CPointEx<float>> vecSome(vecA.begin(), vecA.begin() + nCount);
        volatile bool bSink = CCalcChromaRatio::G_IsPointInPolygon2(vecB[0], vecSome.data(), nCount);
        (void)bSink;
    }
    return 0;
}
