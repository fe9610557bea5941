#ifndef SENDERMODULEDIALOG_CHART_CHROMAPALETTE_H
#define SENDERMODULEDIALOG_CHART_CHROMAPALETTE_H

/// @file
/// The colours of the groups that have none of their own.

/// Number of colours in the palette.
inline constexpr int c_nPaletteSize = 9;

/// @name The palette
/// One table a component, read with one index: how many visible groups were painted before in this pass.
/// @{
inline constexpr unsigned char g_colorRed[c_nPaletteSize] = {255, 0, 0, 255, 0, 165, 255, 255, 138};
inline constexpr unsigned char g_colorGreen[c_nPaletteSize] = {0, 255, 0, 255, 255, 42, 0, 153, 43};
inline constexpr unsigned char g_colorBlue[c_nPaletteSize] = {0, 0, 255, 0, 255, 42, 255, 0, 226};
/// @}

/// The place in the palette for the nIndex-th visible group, counted from 0: from the tenth on it
/// starts anew.
constexpr int PaletteIndex(int nIndex)
{
    return nIndex % c_nPaletteSize;
}

#endif // SENDERMODULEDIALOG_CHART_CHROMAPALETTE_H
