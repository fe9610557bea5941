#ifndef TESTS_EDID_TIMINGINPUTS_H
#define TESTS_EDID_TIMINGINPUTS_H

#include <QSize>

#include <cfloat>
#include <climits>
#include <limits>
#include <vector>

/// The modes that the timing is tested with.
namespace TimingInputs {

constexpr float c_fInf = std::numeric_limits<float>::infinity();
constexpr float c_fNan = std::numeric_limits<float>::quiet_NaN();

inline const std::vector<float> c_arrRates = {
    1.0F,   15.0F,  23.976F, 24.0F,   25.0F,  29.97F, 30.0F,  47.952F, 48.0F,   50.0F,
    59.94F, 60.0F,  71.928F, 72.0F,   75.0F,  85.0F,  100.0F, 119.88F, 120.0F,  143.9F,
    144.0F, 165.0F, 200.0F,  239.76F, 240.0F, 360.0F, 480.0F, 0.9999F, 1000.0F, 1000.1F};

/// Sizes of ordinary displays, where the aspect ratios meet, and their neighbours.
inline std::vector<QSize> DisplaySizes()
{
    const std::vector<QSize> vecListed = {
        {640, 480},   {720, 480},   {720, 576},   {800, 600},   {1024, 768},  {1152, 864},  {1280, 720},
        {1280, 768},  {1280, 800},  {1280, 960},  {1280, 1024}, {1360, 768},  {1366, 768},  {1400, 1050},
        {1440, 900},  {1600, 900},  {1600, 1200}, {1680, 1050}, {1920, 1080}, {1920, 1200}, {2048, 1080},
        {2048, 1152}, {2048, 1536}, {2560, 1080}, {2560, 1440}, {2560, 1600}, {2560, 2048}, {3440, 1440},
        {3840, 1080}, {3840, 2160}, {3840, 2400}, {4096, 2160}, {5120, 2880}, {7680, 4320}, {8192, 4320}};
    std::vector<QSize> vecSizes;
    for (const QSize& size : vecListed)
        for (int nMoreWidth = -8; nMoreWidth <= 8; ++nMoreWidth)
            for (int nMoreHeight = -2; nMoreHeight <= 2; ++nMoreHeight)
                vecSizes.emplace_back(size.width() + nMoreWidth, size.height() + nMoreHeight);
    return vecSizes;
}

/// @name Values that no display has
/// @{
inline const std::vector<int> c_arrHostileInts = {0,     -1,    1,        7,       1920,   -1920,
                                                  65535, 65536, 16777217, INT_MAX, INT_MIN};
inline const std::vector<float> c_arrHostileRates = {
    0.0F,   -0.0F,  60.0F,  -60.0F,  FLT_MIN, -FLT_MIN, FLT_MAX, -FLT_MAX, c_fInf,  -c_fInf,
    c_fNan, 1e-45F, 1e-30F, 2173.9F, 2174.0F, 1818.1F,  1818.2F, 2.2e9F,   -2.2e9F, 9223372036854775808.0F};
/// @}

} // namespace TimingInputs

#endif // TESTS_EDID_TIMINGINPUTS_H
