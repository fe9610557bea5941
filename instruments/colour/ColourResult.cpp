#include "instruments/colour/ColourResult.h"

namespace {

struct SFaultText
{
    enColourFault fault;
    const char* szText;
};

constexpr SFaultText c_arrTexts[] = {
    {enColourFault::enNone, "nothing is wrong"},
    {enColourFault::enNotFinite, "a number is not finite"},
    {enColourFault::enNotChromaticity, "x and y must be above 0, and their sum at most 1"},
    {enColourFault::enNotPositive, "a luminance must be above 0"},
    {enColourFault::enDegenerateGamut, "the three primaries lie on one line"},
    {enColourFault::enNoTemperature, "the correlated colour temperature is not from 1000 to 20000 kelvin"},
    {enColourFault::enAtWhite, "the point is the white itself"},
    {enColourFault::enWhiteOutsideGamut, "the white lies outside the gamut"},
    {enColourFault::enNoCommonGamut, "no chromaticity lies in the gamut of every module"},
    {enColourFault::enNoModules, "there are no modules"},
};

} // namespace

const char* ColourFaultText(enColourFault fault)
{
    for (const SFaultText& row : c_arrTexts)
        if (row.fault == fault)
            return row.szText;
    return "unknown fault";
}
