#ifndef TESTS_ARCHITECTURE_DIGEST_DIGEST_H
#define TESTS_ARCHITECTURE_DIGEST_DIGEST_H

#include "host/CommonClass/PointEx.h"

#include <QPointF>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <vector>

/// @file
/// Digests of calculated results, to the last bit, over a fixed sequence of inputs. Two builds that print the
/// same digests round alike.

/// A 64-bit FNV-1a hash of results.
class CDigest
{
public:
    void Add(std::uint64_t nValue)
    {
        for (int nShift = 0; nShift < 64; nShift += 8)
            m_nHash = (m_nHash ^ ((nValue >> nShift) & 0xFFU)) * c_nPrime;
        ++m_nCount;
    }
    void Add(int nValue) { Add(std::uint64_t(std::uint32_t(nValue))); }
    void Add(bool bValue) { Add(std::uint64_t(bValue ? 1 : 0)); }
    void Add(double dValue) { Add(std::isnan(dValue) ? c_nAnyNaN : BitsOf(dValue)); }
    void Add(float fValue) { Add(double(fValue)); }
    void Add(QPointF pt)
    {
        Add(pt.x());
        Add(pt.y());
    }
    void Add(CPointEx<float> pt)
    {
        Add(pt.x);
        Add(pt.y);
    }

    std::uint64_t Hash() const { return m_nHash; }
    std::uint64_t Count() const { return m_nCount; }

private:
    // The parameters that the hash is published with.
    static constexpr std::uint64_t c_nOffset = 14695981039346656037U;
    static constexpr std::uint64_t c_nPrime = 1099511628211U;
    // Sign and payload of a NaN are unspecified.
    static constexpr std::uint64_t c_nAnyNaN = 0x7FF8000000000000U;

    static std::uint64_t BitsOf(double dValue)
    {
        std::uint64_t nBits = 0;
        std::memcpy(&nBits, &dValue, sizeof nBits);
        return nBits;
    }

    std::uint64_t m_nHash = c_nOffset;
    std::uint64_t m_nCount = 0;
};

/// The fixed sequence of inputs: a 64-bit linear congruential generator, integers only, so that it depends on
/// no library and no compiler. Draw one value per statement, or inside braces: arguments are evaluated in no
/// fixed order.
class CSequence
{
public:
    /// The next 32 bits.
    std::uint32_t Next()
    {
        m_nState = m_nState * c_nMultiplier + c_nIncrement;
        return std::uint32_t(m_nState >> 32U);
    }

    /// An integer from 0 to nCount - 1.
    int Below(int nCount) { return int(Next() % std::uint32_t(nCount)); }

    /// A multiple of 2^-24 from 0 to less than 1.
    float Unit() { return float(Next() >> 8U) * 0x1p-24F; }

    /// Near the unit square: anything, eighths (which meet and line up), the neighbourhood of 2^-23, and now
    /// and then invalid values.
    float Coordinate()
    {
        static constexpr float c_arrOdd[] = {-0.0F,    -1.0F, 1e-30F, 1e30F, 3.4028234663852886e+38F,
                                             INFINITY, NAN};
        const int nKind = Below(64);
        if (nKind == 0)
            return c_arrOdd[Below(7)];
        if (nKind < 8)
            return Unit() * 0x1p-22F;
        if (nKind < 32)
            return float(Below(9)) / 8.0F;
        return Unit();
    }

    CPointEx<float> Point() { return {Coordinate(), Coordinate()}; }

private:
    // D. E. Knuth's MMIX.
    static constexpr std::uint64_t c_nMultiplier = 6364136223846793005U;
    static constexpr std::uint64_t c_nIncrement = 1442695040888963407U;

    std::uint64_t m_nState = 20260;
};

/// One line of the program's output: some function's results over a part of the sequence.
struct SDigestFunction
{
    const char* szName;
    void (*funcRun)(CSequence& sequence, CDigest& digest);
};

/// @name One table per folder
/// @{
std::vector<SDigestFunction> GeometryDigests();
std::vector<SDigestFunction> ColourDigests();
std::vector<SDigestFunction> ChartDigests();
std::vector<SDigestFunction> EdidDigests();
/// @}

#endif // TESTS_ARCHITECTURE_DIGEST_DIGEST_H
