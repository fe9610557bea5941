#ifndef FUZZ_FUZZINPUT_H
#define FUZZ_FUZZINPUT_H

#include "host/CommonClass/PointEx.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

/// Reads values from a fuzzer's bytes, in the machine's byte order. Beyond the end there are zeros.
class CFuzzInput
{
public:
    CFuzzInput(const std::uint8_t* pData, std::size_t nSize)
        : m_pData(pData)
        , m_nLeft(nSize)
    {}

    std::size_t Left() const { return m_nLeft; }

    /// Any value of a number type; a float has any bit pattern, including infinities and NaN.
    template <class T>
    T Take()
    {
        T value = T();
        const std::size_t nTaken = std::min(sizeof value, m_nLeft);
        if (nTaken > 0)
            std::memcpy(&value, m_pData, nTaken);
        m_pData += nTaken;
        m_nLeft -= nTaken;
        return value;
    }

    CPointEx<float> TakePoint()
    {
        const float fX = Take<float>();
        const float fY = Take<float>();
        return {fX, fY};
    }

private:
    const std::uint8_t* m_pData;
    std::size_t m_nLeft;
};

#endif // FUZZ_FUZZINPUT_H
