#include "SenderModuleDialog/edid/MonitorName.h"

#include <algorithm>
#include <charconv>
#include <iterator>

namespace {

constexpr char c_szPrefix[] = {'L', 'E', 'D'};
constexpr char c_chBetween = 'X';
constexpr int c_nWidthColumns = 5; ///< the width is right-aligned in so many columns

} // namespace

CMonitorName::CMonitorName(int nWidth, int nHeight)
    : m_szText()
    , m_pEnd(nullptr)
    , m_bWhole(true)
{
    std::array<char, c_nLongestText> szWidth = {};
    char* const pWidthEnd = std::to_chars(szWidth.begin(), szWidth.end(), nWidth).ptr;
    const auto nBlanks = c_nWidthColumns - std::distance(szWidth.data(), pWidthEnd);

    char* pOut = std::copy(std::begin(c_szPrefix), std::end(c_szPrefix), m_szText.data());
    if (nBlanks > 0)
        pOut = std::fill_n(pOut, nBlanks, ' ');
    pOut = std::copy(szWidth.data(), pWidthEnd, pOut);
    *pOut++ = c_chBetween;
    pOut = std::to_chars(pOut, m_szText.data() + m_szText.size(), nHeight).ptr;

    m_bWhole = pOut - m_szText.data() <= c_nFieldSize;
    m_pEnd = std::min<const char*>(pOut, m_szText.data() + c_nFieldSize);
}
