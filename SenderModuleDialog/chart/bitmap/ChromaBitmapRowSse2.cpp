#include "SenderModuleDialog/chart/bitmap/ChromaBitmapRowLanes.h"

#include <immintrin.h>

namespace {

/// Four pixels at a time, on any x86-64.
struct SSse2Lanes
{
    using Floats = __m128;
    using Integers = __m128i;
    static constexpr int c_nCount = 4;

    static Floats Set(float fValue) { return _mm_set1_ps(fValue); }
    static Floats From(int nX) { return Add(Set(float(nX)), _mm_setr_ps(0.0F, 1.0F, 2.0F, 3.0F)); }
    static Floats Add(Floats first, Floats second) { return _mm_add_ps(first, second); }
    static Floats Multiply(Floats first, Floats second) { return _mm_mul_ps(first, second); }
    static Floats Divide(Floats first, Floats second) { return _mm_div_ps(first, second); }
    static Floats SquareRoot(Floats value) { return _mm_sqrt_ps(value); }
    static constexpr float c_fQuickFactor = 1.0F;
    static Floats QuickRoot(Floats value) { return SquareRoot(value); }
    static Floats Absolute(Floats value) { return _mm_andnot_ps(Set(-0.0F), value); }
    static Integers Truncate(Floats value) { return _mm_cvttps_epi32(value); }
    static Integers SetInteger(std::uint32_t nValue) { return _mm_set1_epi32(int(nValue)); }
    static Integers Or(Integers first, Integers second) { return _mm_or_si128(first, second); }
    static Integers And(Integers first, Integers second) { return _mm_and_si128(first, second); }
    /// Of values below 2^15.
    static Integers Least(Integers first, Integers second) { return _mm_min_epi16(first, second); }
    template <int nShift>
    static Integers ShiftLeft(Integers value)
    {
        return _mm_slli_epi32(value, nShift);
    }
    template <int nShift>
    static Integers ShiftRight(Integers value)
    {
        return _mm_srli_epi32(value, nShift);
    }
    static bool IsAnyZero(Integers value)
    {
        return _mm_movemask_epi8(_mm_cmpeq_epi32(value, _mm_setzero_si128())) != 0;
    }
    static void Store(std::uint32_t* pPixels, Integers pixels)
    {
        _mm_storeu_si128(reinterpret_cast<__m128i*>(pPixels), pixels);
    }
};

} // namespace

void ChromaBitmap::PaintPieceSse2(std::uint32_t* pRow, int nWidth, const SRamp* arrRamps,
                                  const SRowPiece& piece)
{
    PaintPiece<SSse2Lanes>(pRow, nWidth, arrRamps, piece);
}
