#include "SenderModuleDialog/chart/bitmap/ChromaBitmapRowLanes.h"

#include <cmath>

namespace {

/// One pixel at a time, on any processor.
struct SPlainLane
{
    using Floats = float;
    using Integers = std::uint32_t;
    static constexpr int c_nCount = 1;

    static Floats Set(float fValue) { return fValue; }
    static Floats From(int nX) { return float(nX); }
    static Floats Add(Floats first, Floats second) { return first + second; }
    static Floats Multiply(Floats first, Floats second) { return first * second; }
    static Floats Divide(Floats first, Floats second) { return first / second; }
    static Floats SquareRoot(Floats value) { return std::sqrt(value); }
    static constexpr float c_fQuickFactor = 1.0F;
    static Floats QuickRoot(Floats value) { return SquareRoot(value); }
    static Floats Absolute(Floats value) { return std::fabs(value); }
    /// The values are far below the range's end; NaN gives 0.
    static Integers Truncate(Floats value) { return value > 0.0F ? std::uint32_t(std::int32_t(value)) : 0; }
    static Integers SetInteger(std::uint32_t nValue) { return nValue; }
    static Integers Or(Integers first, Integers second) { return first | second; }
    static Integers And(Integers first, Integers second) { return first & second; }
    static Integers Least(Integers first, Integers second) { return first < second ? first : second; }
    template <int nShift>
    static Integers ShiftLeft(Integers value)
    {
        return value << nShift;
    }
    template <int nShift>
    static Integers ShiftRight(Integers value)
    {
        return value >> nShift;
    }
    static bool IsAnyZero(Integers value) { return value == 0; }
    static void Store(std::uint32_t* pPixels, Integers pixels) { *pPixels = pixels; }
};

} // namespace

void ChromaBitmap::PaintPiecePlain(std::uint32_t* pRow, int nWidth, const SRamp* arrRamps,
                                   const SRowPiece& piece)
{
    PaintPiece<SPlainLane>(pRow, nWidth, arrRamps, piece);
}
