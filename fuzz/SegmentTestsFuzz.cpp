// Lines and segment tests on any points, including infinities and NaN: no undefined behaviour, and the tests
// agree with each other.

#include "SenderModuleDialog/Fault.h"
#include "SenderModuleDialog/geometry/Line.h"
#include "fuzz/FuzzInput.h"

#include <array>
#include <cmath>

namespace {

constexpr float c_fPreset = -7.0F;

void CheckSegments(const std::array<CPointEx<float>, 4>& arr)
{
    const bool bRect = CLine::IsRectCross(arr[0], arr[1], arr[2], arr[3]);
    const bool bStraddle = CLine::IsLineSegmentCross(arr[0], arr[1], arr[2], arr[3]);
    const bool bCross = CLine::IsCross(arr[0], arr[1], arr[2], arr[3]);
    float fX = c_fPreset;
    float fY = c_fPreset;
    const bool bPoint = CLine::GetSegmentCross(arr[0], arr[1], arr[2], arr[3], fX, fY);

    Require(!bCross || (bRect && bStraddle), "a crossing passes both tests");
    Require(!bPoint || bCross, "a crossing point needs a crossing");
    Require(bCross || fX == c_fPreset, "without a crossing x is left alone");
    Require(bPoint || fY == c_fPreset, "without a crossing point y is left alone");
}

void CheckSelf(CPointEx<float> ptA, CPointEx<float> ptB)
{
    if (!std::isfinite(ptA.x) || !std::isfinite(ptA.y) || !std::isfinite(ptB.x) || !std::isfinite(ptB.y))
        return;
    Require(!CLine::IsCross(ptA, ptB, ptA, ptB), "no segment crosses itself");
    Require(!CLine::IsCross(ptA, ptB, ptB, ptA), "no segment crosses its reverse");
}

/// Keeps the compiler from dropping a calculation whose result is unused.
template <class T>
void Keep(T value)
{
    volatile T kept = value;
    (void)kept;
}

/// Calls every operation and keeps its result, whatever that is.
void UseLine(std::array<CPointEx<float>, 4>& arr)
{
    CLine line(arr[0], arr[1]);
    const CLine lineOther(arr[2], arr[3].x);
    Keep((line & lineOther).x);
    Keep(line.GetXbyY(arr[2].y));
    Keep(line.GetYbyX(arr[2].x));
    Keep(line.GetSlop());
    Keep(line.Distance2(arr[2]));
    Keep(line.GetFootPoint(arr[2]).x);
    Keep(line.IsSameSide(arr[2], arr[3]));
    line.CreateLine(CLine::GetSlop(arr[0], arr[1]), arr[0]);
    std::array<float, 4> arrX = {arr[0].x, arr[1].x, arr[2].x, arr[3].x};
    std::array<float, 4> arrY = {arr[0].y, arr[1].y, arr[2].y, arr[3].y};
    line.FitLine(arrX.data(), arrY.data(), 4);
    Keep(line.GetSlop());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    CFuzzInput input(pData, nSize);
    std::array<CPointEx<float>, 4> arrPoints;
    for (CPointEx<float>& pt : arrPoints)
        pt = input.TakePoint();
    CheckSegments(arrPoints);
    CheckSelf(arrPoints[0], arrPoints[1]);
    UseLine(arrPoints);
    return 0;
}
