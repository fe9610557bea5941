#ifndef SENDERMODULEDIALOG_EDID_EDIDOPTIONS_H
#define SENDERMODULEDIALOG_EDID_EDIDOPTIONS_H

#include <QString>

#include <array>
#include <optional>
#include <vector>

/// @file
/// What the EDID of a video input can be made of, and which sender offers what. The menus of the dialog and
/// the rules of its commit read the same tables. Sender types and interface ids are the host's numbers; they
/// have no names here beyond what the dialog does with them.

namespace EdidOptions {

/// What the offer depends on.
struct SInput
{
    int nSenderType = 0;
    int nInterfaceId = 0;
    bool bLowRateOnly = false;  ///< nothing above 50 Hz
    bool bExtendedEdid = false; ///< the senders take the full EDID record
};

/// @name Interface groups
/// @{
/// The interfaces 16 to 19.
bool IsInterface16To19(int nInterfaceId);
/// The interfaces 1 to 4.
bool IsInterface1To4(int nInterfaceId);
/// The interface 132: no custom size, and neither 30 nor 50 Hz.
bool IsInterface132(int nInterfaceId);
/// @}

/// @name Sender types
/// @{
/// The row of the timing standard is shown.
bool ShowsTimingStandard(int nSenderType);
/// The option "connect to computer" is shown, on the interfaces 16 to 19.
bool ShowsConnectPC(int nSenderType);
/// The record always says "do not connect a computer", on the interfaces 16 to 19.
bool AlwaysWritesConnectByte(int nSenderType);
/// The hardware takes longer than others to store an EDID.
bool StoresSlowly(int nSenderType);
/// @}

/// @name Frame rates
/// @{
struct SRate
{
    const char* szText;
    unsigned char byRate; ///< integer rate of the record, Hz
    bool bFractional;     ///< the real rate is the integer rate divided by 1.001
    float fRate;          ///< Hz, for the pixel clock; 0 for the rates that the clock limit does not know
    bool (*funcOffered)(const SInput& input);
};

/// "60": what the dialog opens at when the stored rate is none of the table's.
constexpr int c_nDefaultRateIndex = 7;

/// The row of the table, null outside it.
const SRate* RateAt(int nIndex);
/// The index of a stored rate. The fractional flag counts only where the table has the rate in both forms.
std::optional<int> RateIndex(unsigned char byRate, bool bFractional);
/// The indices that the menu offers, in its order.
std::vector<int> OfferedRates(const SInput& input);
/// @}

/// @name Colour depths
/// @{
struct SDepth
{
    const char* szName;     ///< what the dialog shows as the present depth
    const char* szMenuText; ///< the menu writes it without a blank: intentional
    unsigned char byFlag;   ///< bit of the format flags
};

constexpr std::array<SDepth, 3> c_arrDepths = {{
    {"8 bit", "8bit", 0x02},
    {"10 bit", "10bit", 0x04},
    {"12 bit", "12bit", 0x08},
}};

/// What a sender can put out.
struct SDepthSupport
{
    bool bVideoProcessor = false; ///< only video processors are limited
    bool b10Bit = false;
    bool b12Bit = false;
};

/// The name of a depth; empty outside the table.
QString DepthName(int nIndex);
/// The index of the first depth whose bit is set, 0 when none is.
int DepthIndex(unsigned char byFlags);
/// Puts a depth into the flags in place of the one there. Outside the table it returns false and leaves the
/// flags without a depth.
bool StoreDepth(int nIndex, unsigned char& byFlags);
/// How many depths the menu offers, counted from the lowest.
int OfferedDepthCount(const SDepthSupport& support, const SInput& input);
/// True for a video processor that offers only 8 bit: the project gets that depth.
bool HasOnly8Bit(const SDepthSupport& support);
/// @}

/// @name Colour formats
/// @{
struct SFormat
{
    const char* szName;
    unsigned char byFlag; ///< bit of the format flags
};

constexpr std::array<SFormat, 4> c_arrFormats = {{
    {"RGB", 0x10},
    {"YCBCR 4:4:4", 0x20},
    {"YCBCR 4:2:2", 0x40},
    {"YCBCR 4:4:0", 0x80},
}};

/// The name of a format; empty outside the table.
QString FormatName(int nIndex);
/// The index of the first format whose bit is set, 0 when none is.
int FormatIndex(unsigned char byFlags);
/// Puts a format into the flags in place of the one there. Outside the table it returns false and leaves the
/// flags alone.
bool StoreFormat(int nIndex, unsigned char& byFlags);
/// @}

/// Timing standards (VESA CVT), by the index that the record holds: with reduced blanking, and without.
constexpr std::array<const char*, 2> c_arrTimingStandards = {"CVT_RB", "CVT"};

/// The name of a timing standard; empty outside the table.
QString TimingStandardName(int nIndex);

} // namespace EdidOptions

#endif // SENDERMODULEDIALOG_EDID_EDIDOPTIONS_H
