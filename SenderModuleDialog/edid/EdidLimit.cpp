#include "SenderModuleDialog/edid/EdidLimit.h"

#include "SenderModuleDialog/Constants.h"
#include "SenderModuleDialog/Saturate.h"
#include "SenderModuleDialog/edid/EDIDRaw.h"
#include "SenderModuleDialog/edid/EdidBlock.h"
#include "SenderModuleDialog/edid/EdidOptions.h"
#include "host/OrviControl/CustomDialog.h"

#include <array>
#include <cstddef>

namespace EdidLimit {

namespace {

using FuncScale = int (*)(qint64 nArea60);

/// Half the rate leaves twice the area, and so on. The rows differ in where they cut: whole rates scale in
/// double precision or in integers, and the rates over 1.001 divide first, in integers, except the first.
constexpr std::array<FuncScale, 9> c_arrScales = {
    [](qint64 nArea60) { return SaturateTo<int>(double(nArea60) * 2.5 / 1000 * 1001); }, // 23.976
    [](qint64 nArea60) { return SaturateTo<int>(double(nArea60) * 2.5); },               // 24
    [](qint64 nArea60) { return SaturateTo<int>(double(nArea60) * 2.4); },               // 25
    [](qint64 nArea60) { return SaturateTo<int>(nArea60 / 500 * 1001); },                // 29.97
    [](qint64 nArea60) { return SaturateTo<int>(nArea60 * 2); },                         // 30
    [](qint64 nArea60) { return SaturateTo<int>(double(nArea60) * 1.2); },               // 50
    [](qint64 nArea60) { return SaturateTo<int>(nArea60 / 1000 * 1001); },               // 59.94
    [](qint64 nArea60) { return SaturateTo<int>(nArea60); },                             // 60
    [](qint64 nArea60) { return SaturateTo<int>(nArea60 / 2); },                         // 120
};

/// Pixels at 144 and 240 Hz, for every sender.
constexpr int c_nHighRateArea = 2304000;

} // namespace

int MaxAreaByRate(int nArea60, int nRateIndex)
{
    if (nRateIndex < 0 || nRateIndex >= int(c_arrScales.size()))
        return c_nHighRateArea;
    return c_arrScales[std::size_t(nRateIndex)](nArea60);
}

int PixelClockMHz(QSize size, int nRateIndex, int nTimingStandard)
{
    const EdidOptions::SRate* pRate = EdidOptions::RateAt(nRateIndex);
    const float fRate = pRate == nullptr ? 0.0F : pRate->fRate;
    const float fHz = CEDIDRaw().CalReslutionPixelFreq(size.width(), size.height(), fRate, nTimingStandard);
    return SaturateTo<int>(fHz / EdidBlock::c_fHzPerMHz);
}

bool IsNotice(const QString& strVerdict)
{
    // The verdict comes translated from the host, so it is compared in the operator's language.
    return strVerdict == CCustomDialog::tr("已使用DisplayID 1.3扩展块");
}

} // namespace EdidLimit
