#include "SenderModuleDialog/edid/EdidModel.h"

#include "SenderModuleDialog/edid/EdidLimit.h"
#include "SenderModuleDialog/edid/EdidOptions.h"
#include "host/HardwareSupport/EdidSetting.h"

namespace {

/// Where the interface 132, which has no custom size, opens when its size is not listed.
constexpr int c_nIndexWithoutCustom = 4;

} // namespace

void SEdidModel::Read(const SEdidSetting& setting)
{
    sizeCustom = QSize(setting.wWidth, setting.wHeight);
    byFormatFlags = setting.byFormatFlags;
    byTimingStandard = setting.byTimingStandard;
    byConnectPC = setting.byConnectPC;
    nResolutionIndex = ResolutionIndexOf(sizeCustom);
    if (nResolutionIndex == 0 && EdidOptions::IsInterface132(nInterfaceId))
        nResolutionIndex = c_nIndexWithoutCustom;
    nRateIndex = EdidOptions::RateIndex(setting.byRate, setting.byFractional != 0)
                     .value_or(EdidOptions::c_nDefaultRateIndex);
    nDepthIndex = EdidOptions::DepthIndex(byFormatFlags);
    nFormatIndex = EdidOptions::FormatIndex(byFormatFlags);
}

int SEdidModel::ResolutionIndexOf(QSize size) const
{
    return int(limit.listResolution.indexOf(size)) + 1;
}

std::optional<QSize> SEdidModel::ResolutionAt(int nIndex) const
{
    if (nIndex < 0 || nIndex > limit.listResolution.size())
        return std::nullopt;
    return nIndex == 0 ? sizeCustom : limit.listResolution.at(nIndex - 1);
}

QSize SEdidModel::JudgedSize(QSize sizeTyped) const
{
    // An index beyond the list has no entry to judge, so the typed size stays.
    return nResolutionIndex == 0 ? sizeTyped : limit.listResolution.value(nResolutionIndex - 1, sizeTyped);
}

int SEdidModel::LimitOf(QSize size) const
{
    return limit.bLimitByPixelClock ? EdidLimit::PixelClockMHz(size, nRateIndex, byTimingStandard)
                                    : EdidLimit::MaxAreaByRate(limit.nMaxArea, nRateIndex);
}

SEdidRow SEdidModel::RateRow() const
{
    SEdidRow row = {std::nullopt, nRateIndex, true};
    if (const EdidOptions::SRate* pRate = EdidOptions::RateAt(nRateIndex))
        row.text = QString::fromLatin1(pRate->szText);
    return row;
}

SEdidRow SEdidModel::FormatRow() const
{
    // The format is kept and written as it was read: the operator does not see it.
    return {EdidOptions::FormatName(nFormatIndex), nFormatIndex, false};
}

SEdidRow SEdidModel::StandardRow() const
{
    return {EdidOptions::TimingStandardName(byTimingStandard), byTimingStandard,
            EdidOptions::ShowsTimingStandard(nSenderType)};
}
