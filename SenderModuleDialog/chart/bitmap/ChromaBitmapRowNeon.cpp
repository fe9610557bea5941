#include "SenderModuleDialog/chart/bitmap/ChromaBitmapRowLanes.h"

#include <arm_neon.h>

namespace {

/// Four pixels at a time, on any AArch64.
struct SNeonLanes
{
    using Floats = float32x4_t;
    using Integers = uint32x4_t;
    static constexpr int c_nCount = 4;

    static Floats Set(float fValue) { return vdupq_n_f32(fValue); }
    static Floats From(int nX)
    {
        static constexpr float c_arrLanes[c_nCount] = {0.0F, 1.0F, 2.0F, 3.0F};
        return Add(Set(float(nX)), vld1q_f32(c_arrLanes));
    }
    static Floats Add(Floats first, Floats second) { return vaddq_f32(first, second); }
    static Floats Multiply(Floats first, Floats second) { return vmulq_f32(first, second); }
    static Floats Divide(Floats first, Floats second) { return vdivq_f32(first, second); }
    static Floats SquareRoot(Floats value) { return vsqrtq_f32(value); }
    static constexpr float c_fQuickFactor = 1.0F;
    /// The processor's estimate of a reciprocal root has eight bits only: the steps that would make it good
    /// enough take as long as the root.
    static Floats QuickRoot(Floats value) { return SquareRoot(value); }
    static Floats Absolute(Floats value) { return vabsq_f32(value); }
    /// Negative values and NaN give 0.
    static Integers Truncate(Floats value) { return vcvtq_u32_f32(value); }
    static Integers SetInteger(std::uint32_t nValue) { return vdupq_n_u32(nValue); }
    static Integers Or(Integers first, Integers second) { return vorrq_u32(first, second); }
    static Integers And(Integers first, Integers second) { return vandq_u32(first, second); }
    static Integers Least(Integers first, Integers second) { return vminq_u32(first, second); }
    template <int nShift>
    static Integers ShiftLeft(Integers value)
    {
        return vshlq_n_u32(value, nShift);
    }
    template <int nShift>
    static Integers ShiftRight(Integers value)
    {
        return vshrq_n_u32(value, nShift);
    }
    static bool IsAnyZero(Integers value) { return vminvq_u32(value) == 0; }
    static void Store(std::uint32_t* pPixels, Integers pixels) { vst1q_u32(pPixels, pixels); }
};

} // namespace

void ChromaBitmap::PaintPieceNeon(std::uint32_t* pRow, int nWidth, const SRamp* arrRamps,
                                  const SRowPiece& piece)
{
    PaintPiece<SNeonLanes>(pRow, nWidth, arrRamps, piece);
}
