#include "SenderModuleDialog/edid/TimingTable.h"

#include "SenderModuleDialog/edid/VideoTiming.h"

#include <algorithm>
#include <iterator>

// clang-format off
// One row per resolution, so 50 Hz takes the blanking of 60 Hz.
// width, H blank, H front porch, H sync, reserved, height, V blank, V front porch, V sync, reserved, sync flag
const STimingData timingData[c_nTimingDataCount] = {
    { 800, 256,  40, 128, 0,  600,  28, 1, 4, 0, 3},
    {1024, 320,  24, 136, 0,  768,  38, 3, 6, 0, 0},
    {1280, 520,  96, 112, 0,  960,  40, 1, 3, 0, 3},
    {1280, 408,  48, 112, 0, 1024,  42, 1, 3, 0, 3},
    {1366, 426,  70, 143, 0,  768,  30, 3, 3, 0, 3},
    {1400, 464,  88, 144, 0, 1050,  39, 3, 4, 0, 2},
    {1440, 464,  80, 152, 0,  900,  34, 3, 6, 0, 2},
    {1600, 200,  24,  80, 0,  900, 100, 1, 3, 0, 3},
    {1680, 560, 104, 176, 0, 1050,  39, 3, 6, 0, 2},
    {1920, 280,  88,  44, 0, 1080,  45, 4, 5, 0, 3},
    {1920, 160,  48,  32, 0, 1200,  35, 3, 6, 0, 1},
    {2048, 202,  26,  80, 0, 1152,  48, 1, 3, 0, 3},
    { 800, 160,  48,  32, 0,  600,  36, 3, 4, 0, 1},
};
// clang-format on

namespace TimingTable {

namespace {

constexpr int c_nNoSecondRate = 0;

/// Which rates a row of `timingData` serves; the size is the row's own.
struct SServedRates
{
    int nId;
    int nRate;
    int nSecondRate;
};

/// 800x600 has no 50 Hz, unlike every other size, and its second row is the only one for 120 Hz.
constexpr SServedRates c_arrServedRates[] = {
    {0, 60, c_nNoSecondRate},
    {12, 120, c_nNoSecondRate},
    {1, 60, 50},
    {2, 60, 50},
    {3, 60, 50},
    {4, 60, 50},
    {6, 60, 50},
    {5, 60, 50},
    {7, 60, 50},
    {8, 60, 50},
    {9, 60, 50},
    {10, 60, 50},
    {11, 60, 50},
};

} // namespace

std::optional<int> Find(int nWidth, int nHeight, int nRate)
{
    const auto Serves = [=](const SServedRates& served) {
        const STimingData& row = timingData[served.nId];
        const bool bRate =
            nRate == served.nRate || (nRate == served.nSecondRate && served.nSecondRate != c_nNoSecondRate);
        return bRate && row.wWidth == nWidth && row.wHeight == nHeight;
    };
    const auto it = std::find_if(std::begin(c_arrServedRates), std::end(c_arrServedRates), Serves);
    if (it == std::end(c_arrServedRates))
        return std::nullopt;
    return it->nId;
}

} // namespace TimingTable
