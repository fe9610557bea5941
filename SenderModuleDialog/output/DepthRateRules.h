#ifndef SENDERMODULEDIALOG_OUTPUT_DEPTHRATERULES_H
#define SENDERMODULEDIALOG_OUTPUT_DEPTHRATERULES_H

#include <QString>

#include <array>
#include <optional>

/// What the frame rate and colour depth dialog decides, over plain values.
namespace DepthRateRules {

/// An entry of a menu.
struct SChoice
{
    const char* szText; ///< Latin, the same in every language
    int nValue;         ///< Hz or bits
};

/// The rate menu, Hz. 50 Hz is exempt from every output limit.
constexpr std::array<SChoice, 4> c_arrRates = {{
    {"50Hz", 50},
    {"60Hz", 60},
    {"120Hz", 120},
    {"240Hz", 240},
}};
constexpr int c_nExemptRate = 50;

/// The depth menu, bits per channel. The index is the hardware's depth mode.
constexpr std::array<SChoice, 3> c_arrDepths = {{
    {"8bit", 8},
    {"10bit", 10},
    {"12bit", 12},
}};

/// The value of a menu text.
/// @return nothing for a text that is not in the menu, such as the rate of a sender at 30 Hz
std::optional<int> RateOf(const QString& strText);
std::optional<int> DepthOf(const QString& strText);

/// The hardware's mode of a depth: 0, 1, 2 for 8, 10, 12 bit.
/// @param nDepth 8, 10 or 12; faults on any other
int DepthMode(int nDepth);

/// True when the rate menu offers 50 Hz: to all but one type of video processor.
bool IsExemptRateOffered(bool bVideoProcessor, int nSenderType);

/// What the depth menu offers a video processor.
struct SDepthOffer
{
    bool b10Bit;
    bool b12Bit; ///< 12 bit brings 10 bit with it
};
SDepthOffer OfferDepths(bool bSupport10Bit, bool bSupport12Bit);

/// The message of the first limit that is exceeded.
/// @param nFlags      the host's limit flags
/// @param nSenderType picks the wording, nothing else
/// @return source text in the context `CCustomDialog`, null when no known flag is set
const char* LimitMessage(unsigned int nFlags, int nSenderType);

/// True when saving needs the operator's word: the input runs faster than the project would support.
/// @param fInputRate highest rate of the input, Hz; 0 or below when none is known
bool IsBelowInput(int nRate, float fInputRate);

} // namespace DepthRateRules

#endif // SENDERMODULEDIALOG_OUTPUT_DEPTHRATERULES_H
