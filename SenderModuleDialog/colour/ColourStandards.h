#ifndef SENDERMODULEDIALOG_COLOUR_COLOURSTANDARDS_H
#define SENDERMODULEDIALOG_COLOUR_COLOURSTANDARDS_H

#include "host/CommonClass/PointEx.h"

/// A standard colour space: its label and the chromaticities of its primaries and white.
struct SColourStandard
{
    const char* szName;      ///< Latin label as the chart shows it; static
    CPointEx<float> ptRed;   ///< red primary, CIE 1931 xy
    CPointEx<float> ptGreen; ///< green primary, CIE 1931 xy
    CPointEx<float> ptBlue;  ///< blue primary, CIE 1931 xy
    CPointEx<float> ptWhite; ///< white point, CIE 1931 xy
};

// clang-format off
/// The standard colour spaces by the value of `enColorStandard`. Some rows differ from the usual published values
/// (PAL's green and blue, NTSC's white, Rec601's green): those are the numbers that senders are set up with, and
/// groups are compared with exactly these floats. sRGB and Rec709 are the same points.
inline constexpr SColourStandard c_arrColourStandards[] = {
    // label       red               green             blue              white
    {"sRGB",     {0.64F,  0.33F},  {0.30F,  0.60F},  {0.15F,  0.06F},  {0.3127F, 0.329F}},
    {"AdobeRGB", {0.64F,  0.33F},  {0.21F,  0.71F},  {0.15F,  0.06F},  {0.3127F, 0.329F}},
    {"PAL",      {0.60F,  0.33F},  {0.148F, 0.60F},  {0.15F,  0.16F},  {0.3127F, 0.329F}},
    {"NTSC",     {0.67F,  0.33F},  {0.21F,  0.71F},  {0.14F,  0.08F},  {0.31F,   0.316F}},
    {"Rec601",   {0.64F,  0.33F},  {0.29F,  0.60F},  {0.15F,  0.06F},  {0.3127F, 0.329F}},
    {"Rec709",   {0.64F,  0.33F},  {0.30F,  0.60F},  {0.15F,  0.06F},  {0.3127F, 0.329F}},
    {"Rec2020",  {0.708F, 0.292F}, {0.17F,  0.797F}, {0.131F, 0.046F}, {0.3127F, 0.329F}},
    {"DCIP3",    {0.68F,  0.32F},  {0.265F, 0.69F},  {0.15F,  0.06F},  {0.3127F, 0.329F}},
};
// clang-format on

#endif // SENDERMODULEDIALOG_COLOUR_COLOURSTANDARDS_H
