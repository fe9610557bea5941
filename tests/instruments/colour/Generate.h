#ifndef TESTS_INSTRUMENTS_COLOUR_GENERATE_H
#define TESTS_INSTRUMENTS_COLOUR_GENERATE_H

#include "instruments/colour/Primaries.h"
#include "tests/support/PropertyTest.h"

/// @file
/// Generated arguments for properties.

/// Any number from 0 to 1, both ends excluded.
inline double AnyPart()
{
    return double(*rc::gen::resize(rc::kNominalSize, rc::gen::inRange(1, 1 << 30))) * 0x1p-30;
}

inline double AnyBetween(double dLow, double dHigh)
{
    return dLow + (dHigh - dLow) * AnyPart();
}

/// Any chromaticity with x, y and 1 - x - y above 0.
inline SChromaticity AnyChromaticity()
{
    const double dX = AnyBetween(0.01, 0.98);
    return {dX, AnyBetween(0.005, 0.995 - dX)};
}

/// Primaries near those of LED walls: red, green and blue in separate corners.
inline SGamut AnyGamut()
{
    return {{AnyBetween(0.60, 0.69), AnyBetween(0.27, 0.31)},
            {AnyBetween(0.15, 0.30), AnyBetween(0.58, 0.69)},
            {AnyBetween(0.12, 0.17), AnyBetween(0.04, 0.09)}};
}

inline SPrimaries AnyPrimaries()
{
    const SGamut gamut = AnyGamut();
    return {{gamut.red, AnyBetween(50.0, 500.0)},
            {gamut.green, AnyBetween(200.0, 1500.0)},
            {gamut.blue, AnyBetween(20.0, 150.0)}};
}

#endif // TESTS_INSTRUMENTS_COLOUR_GENERATE_H
