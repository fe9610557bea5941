#include "SenderModuleDialog/output/DepthRateRules.h"

#include "SenderModuleDialog/Fault.h"
#include "host/HardwareSupport/OutputLimit.h"

#include <algorithm>

namespace DepthRateRules {

namespace {

/// The one type of video processor that does not run at 50 Hz.
constexpr int c_nTypeWithout50Hz = 38;

/// A limit and its wording.
struct SLimit
{
    unsigned int nFlag;
    const char* szTextSmall; ///< for the types with a small output
    const char* szText;      ///< for all other types
};

/// In the order of their tests.
constexpr std::array<SLimit, 5> c_arrLimits = {{
    {enLimitOutputArea, QT_TRANSLATE_NOOP("CCustomDialog", "输出视频区域不能超过260万像素。"),
     QT_TRANSLATE_NOOP("CCustomDialog", "输出视频区域不能超过888万像素。")},
    {enLimitDvi1To4, QT_TRANSLATE_NOOP("CCustomDialog", "DVI1~4的点数和不能超过888万。"),
     QT_TRANSLATE_NOOP("CCustomDialog", "DVI1~4的点数和不能超过888万。")},
    {enLimitDvi5To8, QT_TRANSLATE_NOOP("CCustomDialog", "DVI5~8的点数和不能超过888万。"),
     QT_TRANSLATE_NOOP("CCustomDialog", "DVI5~8的点数和不能超过888万。")},
    {enLimitPortArea, QT_TRANSLATE_NOOP("CCustomDialog", "输出口带载面积不能超过655360。"),
     QT_TRANSLATE_NOOP("CCustomDialog", "输出口带载面积不能超过655360。")},
    {enLimitEdidArea, QT_TRANSLATE_NOOP("CCustomDialog", "EDID的输出面积不能超过260W。"),
     QT_TRANSLATE_NOOP("CCustomDialog", "EDID的输出面积不能超过888W。")},
}};

template <std::size_t nSize>
std::optional<int> ValueOf(const std::array<SChoice, nSize>& arrChoices, const QString& strText)
{
    for (const SChoice& choice : arrChoices) {
        if (strText == QLatin1String(choice.szText))
            return choice.nValue;
    }
    return std::nullopt;
}

} // namespace

std::optional<int> RateOf(const QString& strText)
{
    return ValueOf(c_arrRates, strText);
}

std::optional<int> DepthOf(const QString& strText)
{
    return ValueOf(c_arrDepths, strText);
}

int DepthMode(int nDepth)
{
    const auto itFound = std::find_if(c_arrDepths.cbegin(), c_arrDepths.cend(),
                                      [nDepth](const SChoice& choice) { return choice.nValue == nDepth; });
    Require(itFound != c_arrDepths.cend(), "nDepth is 8, 10 or 12");
    return int(itFound - c_arrDepths.cbegin());
}

bool IsExemptRateOffered(bool bVideoProcessor, int nSenderType)
{
    return !bVideoProcessor || nSenderType != c_nTypeWithout50Hz;
}

SDepthOffer OfferDepths(bool bSupport10Bit, bool bSupport12Bit)
{
    return {bSupport10Bit || bSupport12Bit, bSupport12Bit};
}

const char* LimitMessage(unsigned int nFlags, int nSenderType)
{
    const auto itFound = std::find_if(c_arrLimits.cbegin(), c_arrLimits.cend(),
                                      [nFlags](const SLimit& limit) { return (nFlags & limit.nFlag) != 0; });
    if (itFound == c_arrLimits.cend())
        return nullptr;
    return IsSmallOutputType(nSenderType) ? itFound->szTextSmall : itFound->szText;
}

bool IsBelowInput(int nRate, float fInputRate)
{
    return fInputRate > 0.0F && double(fInputRate) > double(nRate);
}

} // namespace DepthRateRules
