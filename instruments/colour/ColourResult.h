#ifndef INSTRUMENTS_COLOUR_COLOURRESULT_H
#define INSTRUMENTS_COLOUR_COLOURRESULT_H

#include <optional>
#include <utility>

/// @file
/// What a calculation gives when its arguments have no answer.

/// Why there is no result.
enum class enColourFault
{
    enNone,
    enNotFinite,         ///< an argument is NaN or infinite
    enNotChromaticity,   ///< x or y is not above 0, or x + y is above 1
    enNotPositive,       ///< a luminance is not above 0
    enDegenerateGamut,   ///< the three primaries lie on one line, or nearly
    enNoTemperature,     ///< the nearest Planckian radiator is not from 1000 K to 20000 K
    enAtWhite,           ///< the point is the white itself, so it has no direction
    enWhiteOutsideGamut, ///< no positive mix of the primaries gives the white
    enNoCommonGamut,     ///< no chromaticity is in every module's gamut
    enNoModules,         ///< there is nothing to calculate from
};

/// One line in English that says what is wrong: "the three primaries lie on one line".
const char* ColourFaultText(enColourFault fault);

/// A value, or the reason why there is none.
template <class T>
class CColourResult
{
public:
    /// A result with a value; converts.
    CColourResult(T value) // NOLINT(google-explicit-constructor): a value is a result
        : m_value(std::move(value))
    {}
    /// A result without a value; converts.
    /// @param fault why, not `enNone`
    CColourResult(enColourFault fault) // NOLINT(google-explicit-constructor): a fault is a result
        : m_fault(fault)
    {}

    /// Whether there is a value.
    explicit operator bool() const { return m_value.has_value(); }
    /// The value. Only where there is one.
    const T& operator*() const { return *m_value; }
    /// A member of the value. Only where there is one.
    const T* operator->() const { return &*m_value; }
    /// Why there is no value; `enNone` where there is one.
    enColourFault Fault() const { return m_fault; }

private:
    std::optional<T> m_value;
    enColourFault m_fault = enColourFault::enNone;
};

#endif // INSTRUMENTS_COLOUR_COLOURRESULT_H
