#ifndef SENDERMODULEDIALOG_EDID_MONITORNAME_H
#define SENDERMODULEDIALOG_EDID_MONITORNAME_H

#include <array>

/// The name that a block gives its display: `LED%5dX%d` of the resolution, cut to the 13 characters of a
/// monitor descriptor (VESA E-EDID, section 3.10.3). It is put together by hand because `snprintf` takes
/// longer than all the rest of a block.
class CMonitorName
{
public:
    /// @param nWidth, nHeight  pixels; any value
    CMonitorName(int nWidth, int nHeight);

    /// @name The characters that survive
    /// @{
    const char* begin() const { return m_szText.data(); }
    const char* end() const { return m_pEnd; }
    /// @}
    /// Whether the whole name fits.
    bool IsWhole() const { return m_bWhole; }

private:
    /// Characters of a monitor descriptor.
    static constexpr int c_nFieldSize = 13;
    /// "LED", two numbers of up to 11 characters, and an X.
    static constexpr int c_nLongestText = 3 + 11 + 1 + 11;

    std::array<char, c_nLongestText> m_szText;
    const char* m_pEnd;
    bool m_bWhole;
};

#endif // SENDERMODULEDIALOG_EDID_MONITORNAME_H
