#include "SenderModuleDialog/chart/bitmap/ChromaBitmapRowLanes.h"

#include <immintrin.h>

namespace {

/// Eight pixels at a time.
struct SAvx2Lanes
{
    using Floats = __m256;
    using Integers = __m256i;
    static constexpr int c_nCount = 8;

    static Floats Set(float fValue) { return _mm256_set1_ps(fValue); }
    static Floats From(int nX)
    {
        return Add(Set(float(nX)), _mm256_setr_ps(0.0F, 1.0F, 2.0F, 3.0F, 4.0F, 5.0F, 6.0F, 7.0F));
    }
    static Floats Add(Floats first, Floats second) { return _mm256_add_ps(first, second); }
    static Floats Multiply(Floats first, Floats second) { return _mm256_mul_ps(first, second); }
    static Floats Divide(Floats first, Floats second) { return _mm256_div_ps(first, second); }
    static Floats SquareRoot(Floats value) { return _mm256_sqrt_ps(value); }
    static constexpr float c_fQuickFactor = 0.25F;
    /// The root of a number of which a quarter is given: the quick reciprocal root, good to 1.5 x 2^-12, and
    /// one step of Newton's method.
    static Floats QuickRoot(Floats quarter)
    {
        const Floats inverse = _mm256_rsqrt_ps(quarter); // twice that of the number
        const Floats half = Multiply(quarter, inverse);
        return Multiply(half, _mm256_sub_ps(Set(3.0F), Multiply(half, inverse)));
    }
    static Floats Absolute(Floats value) { return _mm256_andnot_ps(Set(-0.0F), value); }
    static Integers Truncate(Floats value) { return _mm256_cvttps_epi32(value); }
    static Integers SetInteger(std::uint32_t nValue) { return _mm256_set1_epi32(int(nValue)); }
    static Integers Or(Integers first, Integers second) { return _mm256_or_si256(first, second); }
    static Integers And(Integers first, Integers second) { return _mm256_and_si256(first, second); }
    /// Of values below 2^15.
    static Integers Least(Integers first, Integers second) { return _mm256_min_epi16(first, second); }
    template <int nShift>
    static Integers ShiftLeft(Integers value)
    {
        return _mm256_slli_epi32(value, nShift);
    }
    template <int nShift>
    static Integers ShiftRight(Integers value)
    {
        return _mm256_srli_epi32(value, nShift);
    }
    static bool IsAnyZero(Integers value)
    {
        return _mm256_movemask_epi8(_mm256_cmpeq_epi32(value, _mm256_setzero_si256())) != 0;
    }
    static void Store(std::uint32_t* pPixels, Integers pixels)
    {
        _mm256_storeu_si256(reinterpret_cast<__m256i*>(pPixels), pixels);
    }
};

} // namespace

void ChromaBitmap::PaintPieceAvx2(std::uint32_t* pRow, int nWidth, const SRamp* arrRamps,
                                  const SRowPiece& piece)
{
    PaintPiece<SAvx2Lanes>(pRow, nWidth, arrRamps, piece);
}
