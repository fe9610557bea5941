#ifndef TESTS_GEOMETRY_COEFFICIENTS_H
#define TESTS_GEOMETRY_COEFFICIENTS_H

#include "SenderModuleDialog/geometry/Line.h"

#include <cstring>
#include <type_traits>

/// The coefficients of a*x + b*y + c = 0.
struct SCoefficients
{
    float fA;
    float fB;
    float fC;
};

static_assert(sizeof(CLine) == sizeof(SCoefficients), "a line holds its three coefficients and nothing else");
static_assert(std::is_trivially_copyable_v<CLine>, "a line is copied member by member");
static_assert(std::is_standard_layout_v<CLine>, "a line's fields lie in their order");

/// A line's coefficients, which it keeps to itself: they are its three fields in this order.
inline SCoefficients CoefficientsOf(const CLine& line)
{
    SCoefficients coefficients;
    std::memcpy(&coefficients, &line, sizeof coefficients);
    return coefficients;
}

#endif // TESTS_GEOMETRY_COEFFICIENTS_H
