#include "SenderModuleDialog/edid/EdidBlock.h"

#include "SenderModuleDialog/Saturate.h"
#include "SenderModuleDialog/edid/MonitorName.h"

#include <algorithm>
#include <numeric>

namespace EdidBlock {

namespace {

using Byte = unsigned char;

template <std::size_t c_nSize>
using Bytes = std::array<Byte, c_nSize>;

// Where the row groups of the block start (VESA E-EDID, section 3.1).
constexpr int c_nHeader = 0x00;
constexpr int c_nProduct = 0x08;
constexpr int c_nVersion = 0x12;
constexpr int c_nBasicParameters = 0x14;
constexpr int c_nChromaticity = 0x19;
constexpr int c_nEstablishedTimings = 0x23;
constexpr int c_nStandardTimings = 0x26;
constexpr int c_nFirstDetailedTiming = 0x36;
constexpr int c_nSerialDescriptor = 0x48;
constexpr int c_nNameDescriptor = 0x5A;
constexpr int c_nRangeDescriptor = 0x6C;
constexpr int c_nExtensionCount = 0x7E;
constexpr int c_nChecksum = 0x7F;

/// Bytes before the content of a monitor descriptor (VESA E-EDID, section 3.10.3).
constexpr int c_nDescriptorHeaderSize = 5;

// Tags of the monitor descriptors (VESA E-EDID, section 3.10.3).
constexpr Byte c_bySerialTag = 0xFF;
constexpr Byte c_byNameTag = 0xFC;
constexpr Byte c_byRangeTag = 0xFD;

/// Pattern that every base block begins with (VESA E-EDID, section 3.3).
constexpr Bytes<8> c_header = {0x00, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x00};

/// Vendor and product (VESA E-EDID, section 3.4).
constexpr Bytes<10> c_product = {
    0x7B, 0xDE,             // manufacturer: three times letter 30 of 26, an invalid id that is meant
    0x00, 0x00,             // product code 0
    0x01, 0x01, 0x01, 0x01, // serial number field
    0x00,                   // no week of manufacture
    0x1B,                   // year of manufacture, 27 after 1990: 2017
};

/// EDID version 1, revision 3 (VESA E-EDID, section 3.5).
constexpr Bytes<2> c_version = {0x01, 0x03};

/// Basic display parameters (VESA E-EDID, section 3.6).
constexpr Bytes<5> c_basicParameters = {
    0x81,       // digital input, compatible with DFP 1.x
    0x00, 0x00, // no size: an LED wall has whatever size it is built in
    0x78,       // gamma 2.20, as (gamma - 1) x 100
    0x0A,       // RGB colour display, the first detailed timing is the preferred one
};

/// Established timings (VESA E-EDID, section 3.8): 800x600 at 60 Hz alone.
constexpr Bytes<3> c_establishedTimings = {0x01, 0x00, 0x00};

/// Standard timings (VESA E-EDID, section 3.9): a pair of ones is an unused entry.
constexpr int c_nStandardTimingBytes = 16;
constexpr Byte c_byUnusedStandardTiming = 0x01;

/// What the template holds until a timing is stored: 1280x1024 at 108.52 MHz.
constexpr SDetailedTiming c_defaultTiming = {10852, 1280, 1024, {408, 48, 112, 42, 1, 3, 3}};

/// Serial number text (VESA E-EDID, section 3.10.3): "000", its terminator, and blanks.
constexpr Bytes<13> c_serial = {'0', '0', '0', '\n', ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' '};

/// Monitor range limits (VESA E-EDID, section 3.10.3).
constexpr Bytes<13> c_range = {
    23,   120,                          // vertical rate, Hz
    30,   153,                          // horizontal rate, kHz
    17,                                 // highest pixel clock, units of 10 MHz
    0x00,                               // default timing formula
    '\n', ' ', ' ', ' ', ' ', ' ', ' ', // terminator and blanks
};

/// What stands in the place of the checksum until it is calculated.
constexpr Byte c_byChecksumPlaceholder = 0x80;

/// Fixed part of the last byte of a detailed timing: digital separate sync (VESA E-EDID, section 3.10.2).
constexpr unsigned c_nDigitalSeparateSync = 0x18;

/// Pixel clock unit of a detailed timing (VESA E-EDID, section 3.10.2), Hz.
constexpr qint64 c_nPixelClockUnit = 10000;

/// A chromaticity coordinate pair in units of 1/1024.
struct SChromaticity
{
    unsigned nX;
    unsigned nY;
};

constexpr SChromaticity c_red = {703, 320};
constexpr SChromaticity c_green = {192, 728};
constexpr SChromaticity c_blue = {140, 52};
constexpr SChromaticity c_white = {320, 337};

/// Bits nHigh to nLow of a value, counted from 0, at the low end of the result.
constexpr unsigned Bits(unsigned nValue, unsigned nHigh, unsigned nLow)
{
    return (nValue >> nLow) & ((1U << (nHigh - nLow + 1U)) - 1U);
}

constexpr Byte LowByte(unsigned nValue)
{
    return static_cast<Byte>(nValue & 0xFFU);
}

/// Two values of four bits in one byte.
constexpr Byte Nibbles(unsigned nHigh, unsigned nLow)
{
    return LowByte(nHigh << 4U | nLow);
}

/// Four values of two bits in one byte, the first in the highest place.
constexpr Byte Pairs(unsigned n76, unsigned n54, unsigned n32, unsigned n10)
{
    return LowByte(n76 << 6U | n54 << 4U | n32 << 2U | n10);
}

template <std::size_t c_nSize>
void Put(BlockBytes& block, int nOffset, const Bytes<c_nSize>& bytes)
{
    std::copy(bytes.begin(), bytes.end(), block.begin() + nOffset);
}

/// The low bits of all coordinates, then their high bits (VESA E-EDID, section 3.7).
constexpr Bytes<10> PackChromaticity()
{
    constexpr auto Low = [](unsigned nValue) { return Bits(nValue, 1, 0); };
    constexpr auto High = [](unsigned nValue) { return LowByte(Bits(nValue, 9, 2)); };
    return {
        Pairs(Low(c_red.nX), Low(c_red.nY), Low(c_green.nX), Low(c_green.nY)),
        Pairs(Low(c_blue.nX), Low(c_blue.nY), Low(c_white.nX), Low(c_white.nY)),
        High(c_red.nX),
        High(c_red.nY),
        High(c_green.nX),
        High(c_green.nY),
        High(c_blue.nX),
        High(c_blue.nY),
        High(c_white.nX),
        High(c_white.nY),
    };
}

void WriteHeader(BlockBytes& block)
{
    Put(block, c_nHeader, c_header);
}

void WriteProductAndVersion(BlockBytes& block)
{
    Put(block, c_nProduct, c_product);
    Put(block, c_nVersion, c_version);
}

void WriteBasicParameters(BlockBytes& block)
{
    Put(block, c_nBasicParameters, c_basicParameters);
}

void WriteChromaticity(BlockBytes& block)
{
    constexpr Bytes<10> c_chromaticity = PackChromaticity();
    Put(block, c_nChromaticity, c_chromaticity);
}

void WriteEstablishedAndStandardTimings(BlockBytes& block)
{
    Put(block, c_nEstablishedTimings, c_establishedTimings);
    std::fill_n(block.begin() + c_nStandardTimings, c_nStandardTimingBytes, c_byUnusedStandardTiming);
}

void WriteDescriptorHeader(BlockBytes& block, int nOffset, Byte byTag)
{
    Put(block, nOffset, Bytes<c_nDescriptorHeaderSize>{0x00, 0x00, 0x00, byTag, 0x00});
}

void WriteSerialDescriptor(BlockBytes& block)
{
    WriteDescriptorHeader(block, c_nSerialDescriptor, c_bySerialTag);
    Put(block, c_nSerialDescriptor + c_nDescriptorHeaderSize, c_serial);
}

/// The name has no terminator and no padding: a shorter one leaves the rest of its field as it was.
void WriteNameDescriptor(BlockBytes& block, int nWidth, int nHeight)
{
    WriteDescriptorHeader(block, c_nNameDescriptor, c_byNameTag);
    const CMonitorName name(nWidth, nHeight);
    std::copy(name.begin(), name.end(), block.begin() + c_nNameDescriptor + c_nDescriptorHeaderSize);
}

void WriteRangeDescriptor(BlockBytes& block)
{
    WriteDescriptorHeader(block, c_nRangeDescriptor, c_byRangeTag);
    Put(block, c_nRangeDescriptor + c_nDescriptorHeaderSize, c_range);
}

void WriteTrailer(BlockBytes& block)
{
    block[c_nExtensionCount] = 0;
    block[c_nChecksum] = c_byChecksumPlaceholder;
}

} // namespace

void WriteTemplate(BlockBytes& block, int nWidth, int nHeight)
{
    WriteHeader(block);
    WriteProductAndVersion(block);
    WriteBasicParameters(block);
    WriteChromaticity(block);
    WriteEstablishedAndStandardTimings(block);
    WriteFirstDetailedTiming(block, c_defaultTiming);
    WriteSerialDescriptor(block);
    WriteNameDescriptor(block, nWidth, nHeight);
    WriteRangeDescriptor(block);
    WriteTrailer(block);
}

void WriteFirstDetailedTiming(BlockBytes& block, const SDetailedTiming& timing)
{
    const unsigned nClock = static_cast<unsigned>(timing.nPixelClock);
    const unsigned nWidth = static_cast<unsigned>(timing.nWidth);
    const unsigned nHeight = static_cast<unsigned>(timing.nHeight);
    const tagSBlankTiming& blank = timing.blank;
    Put(block, c_nFirstDetailedTiming,
        Bytes<18>{
            LowByte(nClock),
            LowByte(nClock >> 8U),
            LowByte(nWidth),
            LowByte(blank.wHBlank),
            Nibbles(Bits(nWidth, 11, 8), Bits(blank.wHBlank, 11, 8)),
            LowByte(nHeight),
            LowByte(blank.wVBlank),
            Nibbles(Bits(nHeight, 11, 8), Bits(blank.wVBlank, 11, 8)),
            LowByte(blank.wHFrontPorch),
            LowByte(blank.wHSync),
            Nibbles(Bits(blank.byVFrontPorch, 3, 0), Bits(blank.byVSync, 3, 0)),
            Pairs(Bits(blank.wHFrontPorch, 9, 8), Bits(blank.wHSync, 9, 8), Bits(blank.byVFrontPorch, 5, 4),
                  Bits(blank.byVSync, 5, 4)),
            0,
            0,
            0, // image size: unknown
            0,
            0, // borders: none
            LowByte(static_cast<unsigned>(blank.bySyncFlag) << 1U | c_nDigitalSeparateSync),
        });
}

void WriteChecksum(BlockBytes& block)
{
    const unsigned nSum = std::accumulate(block.begin(), block.begin() + c_nChecksum, 0U);
    block[c_nChecksum] = LowByte(0U - nSum);
}

qint64 PixelClock(int nWidth, int nHeight, float fRate, const tagSBlankTiming& blank)
{
    const qint64 nTotal = (qint64(nWidth) + blank.wHBlank) * (qint64(nHeight) + blank.wVBlank);
    return SaturateTo<qint64>(static_cast<float>(nTotal) * fRate) / c_nPixelClockUnit;
}

} // namespace EdidBlock
