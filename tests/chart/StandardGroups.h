#ifndef TESTS_CHART_STANDARDGROUPS_H
#define TESTS_CHART_STANDARDGROUPS_H

#include "SenderModuleDialog/chart/ChromaGroupInfo.h"
#include "SenderModuleDialog/colour/ColourStandards.h"

/// A group with the points of a standard colour space, otherwise as it is made.
inline SChromaGroupInfo GroupOf(const SColourStandard& standard)
{
    SChromaGroupInfo group;
    group.ptRed = standard.ptRed;
    group.ptGreen = standard.ptGreen;
    group.ptBlue = standard.ptBlue;
    group.ptWhite = standard.ptWhite;
    return group;
}

/// The everyday group.
inline SChromaGroupInfo SrgbGroup()
{
    return GroupOf(c_arrColourStandards[enStandardSRGB]);
}

#endif // TESTS_CHART_STANDARDGROUPS_H
