#ifndef SENDERMODULEDIALOG_EDID_EDIDLAYOUT_H
#define SENDERMODULEDIALOG_EDID_EDIDLAYOUT_H

#include "host/CommonClass/EdidBlockSize.h"

#include <array>

/// Where the fields of an EDID 1.3 base block stand (VESA Enhanced EDID Standard, Release A, section 3): one
/// table for everyone who writes a block or reads one.
namespace EdidLayout {

/// A run of whole bytes.
struct SBytes
{
    const char* szName;
    int nOffset; ///< of the first byte in the block
    int nLength; ///< bytes
};

/// Neighbouring bits of one byte.
struct SBits
{
    int nOffset; ///< of the byte in the block
    int nLow;    ///< lowest of the bits, 0 to 7
    int nCount;  ///< how many bits; 0 stands for none
};

/// A number, whose bits stand in one place or in two.
struct SNumber
{
    const char* szName;
    SBits low;  ///< its low bits
    SBits high; ///< the bits above them
};

constexpr SBits ByteAt(int nOffset)
{
    return {nOffset, 0, 8};
}

constexpr SBits c_none = {0, 0, 0};

/// @name Row groups
/// They follow each other and fill the block.
/// @{
constexpr SBytes c_header = {"header", 0x00, 8};
constexpr SBytes c_product = {"vendor and product", 0x08, 10};
constexpr SBytes c_version = {"version", 0x12, 2};
constexpr SBytes c_basicParameters = {"basic display parameters", 0x14, 5};
constexpr SBytes c_chromaticity = {"chromaticity", 0x19, 10};
constexpr SBytes c_establishedTimings = {"established timings", 0x23, 3};
constexpr SBytes c_standardTimings = {"standard timings", 0x26, 16};
constexpr SBytes c_firstDetailedTiming = {"first detailed timing", 0x36, 18};
constexpr SBytes c_serialDescriptor = {"serial number descriptor", 0x48, 18};
constexpr SBytes c_nameDescriptor = {"name descriptor", 0x5A, 18};
constexpr SBytes c_rangeDescriptor = {"range limits descriptor", 0x6C, 18};
constexpr SBytes c_extensionCount = {"extension count", 0x7E, 1};
constexpr SBytes c_checksum = {"checksum", 0x7F, 1};

constexpr std::array<SBytes, 13> c_arrGroups = {
    c_header,           c_product,
    c_version,          c_basicParameters,
    c_chromaticity,     c_establishedTimings,
    c_standardTimings,  c_firstDetailedTiming,
    c_serialDescriptor, c_nameDescriptor,
    c_rangeDescriptor,  c_extensionCount,
    c_checksum,
};
/// @}

/// @name Vendor and product (section 3.4)
/// @{
constexpr SNumber c_firstLetter = {"first letter of the manufacturer", {0x08, 2, 5}, c_none};
constexpr SNumber c_secondLetter = {"second letter of the manufacturer", {0x09, 5, 3}, {0x08, 0, 2}};
constexpr SNumber c_thirdLetter = {"third letter of the manufacturer", {0x09, 0, 5}, c_none};
constexpr SNumber c_productCode = {"product code", ByteAt(0x0A), ByteAt(0x0B)};
constexpr SBytes c_serialNumber = {"serial number", 0x0C, 4};
constexpr SNumber c_week = {"week of manufacture", ByteAt(0x10), c_none};
constexpr SNumber c_year = {"year of manufacture, from 1990", ByteAt(0x11), c_none};
/// @}

/// @name Version (section 3.5)
/// @{
constexpr SNumber c_versionNumber = {"version", ByteAt(0x12), c_none};
constexpr SNumber c_revisionNumber = {"revision", ByteAt(0x13), c_none};
/// @}

/// @name Basic display parameters (section 3.6)
/// @{
constexpr SNumber c_input = {"input", ByteAt(0x14), c_none};
constexpr SNumber c_isDigital = {"digital input", {0x14, 7, 1}, c_none};
constexpr SNumber c_widthCm = {"width, cm", ByteAt(0x15), c_none};
constexpr SNumber c_heightCm = {"height, cm", ByteAt(0x16), c_none};
constexpr SNumber c_gamma = {"gamma, (gamma - 1) x 100", ByteAt(0x17), c_none};
constexpr SNumber c_features = {"features", ByteAt(0x18), c_none};
constexpr SNumber c_prefersFirstTiming = {"first detailed timing preferred", {0x18, 1, 1}, c_none};
/// @}

/// @name Chromaticity, units of 1/1024 (section 3.7)
/// @{
constexpr SNumber c_redX = {"red x", {0x19, 6, 2}, ByteAt(0x1B)};
constexpr SNumber c_redY = {"red y", {0x19, 4, 2}, ByteAt(0x1C)};
constexpr SNumber c_greenX = {"green x", {0x19, 2, 2}, ByteAt(0x1D)};
constexpr SNumber c_greenY = {"green y", {0x19, 0, 2}, ByteAt(0x1E)};
constexpr SNumber c_blueX = {"blue x", {0x1A, 6, 2}, ByteAt(0x1F)};
constexpr SNumber c_blueY = {"blue y", {0x1A, 4, 2}, ByteAt(0x20)};
constexpr SNumber c_whiteX = {"white x", {0x1A, 2, 2}, ByteAt(0x21)};
constexpr SNumber c_whiteY = {"white y", {0x1A, 0, 2}, ByteAt(0x22)};
/// @}

/// 800x600 at 60 Hz, the lowest bit of the established timings (section 3.8).
constexpr SNumber c_svga60 = {"800x600 at 60 Hz", {0x23, 0, 1}, c_none};

/// Bytes of one standard timing (section 3.9).
constexpr int c_nStandardTimingSize = 2;

/// @name First detailed timing (section 3.10.2)
/// @{
constexpr SNumber c_pixelClock = {"pixel clock, 10 kHz", ByteAt(0x36), ByteAt(0x37)};
constexpr SNumber c_width = {"active width, pixels", ByteAt(0x38), {0x3A, 4, 4}};
constexpr SNumber c_hBlank = {"horizontal blanking, pixels", ByteAt(0x39), {0x3A, 0, 4}};
constexpr SNumber c_height = {"active height, lines", ByteAt(0x3B), {0x3D, 4, 4}};
constexpr SNumber c_vBlank = {"vertical blanking, lines", ByteAt(0x3C), {0x3D, 0, 4}};
constexpr SNumber c_hFrontPorch = {"horizontal front porch, pixels", ByteAt(0x3E), {0x41, 6, 2}};
constexpr SNumber c_hSync = {"horizontal sync, pixels", ByteAt(0x3F), {0x41, 4, 2}};
constexpr SNumber c_vFrontPorch = {"vertical front porch, lines", {0x40, 4, 4}, {0x41, 2, 2}};
constexpr SNumber c_vSync = {"vertical sync, lines", {0x40, 0, 4}, {0x41, 0, 2}};
constexpr SBytes c_imageSizeAndBorders = {"image size and borders", 0x42, 5};
constexpr SNumber c_timingFlags = {"flags", ByteAt(0x47), c_none};
constexpr SNumber c_hSyncPositive = {"horizontal sync positive", {0x47, 1, 1}, c_none};
constexpr SNumber c_vSyncPositive = {"vertical sync positive", {0x47, 2, 1}, c_none};
/// @}

/// @name Monitor descriptors (section 3.10.3)
/// A header, whose fourth byte is the tag, and 13 bytes of content.
/// @{
constexpr int c_nDescriptorHeaderSize = 5;
constexpr int c_nDescriptorTagPlace = 3;
constexpr SBytes c_serialText = {"serial text", 0x4D, 13};
constexpr SBytes c_nameText = {"display name", 0x5F, 13};
constexpr SNumber c_minVertical = {"lowest vertical rate, Hz", ByteAt(0x71), c_none};
constexpr SNumber c_maxVertical = {"highest vertical rate, Hz", ByteAt(0x72), c_none};
constexpr SNumber c_minHorizontal = {"lowest horizontal rate, kHz", ByteAt(0x73), c_none};
constexpr SNumber c_maxHorizontal = {"highest horizontal rate, kHz", ByteAt(0x74), c_none};
constexpr SNumber c_maxClock = {"highest pixel clock, 10 MHz", ByteAt(0x75), c_none};
constexpr SNumber c_timingFormula = {"timing formula", ByteAt(0x76), c_none};
constexpr SBytes c_rangePadding = {"padding", 0x77, 7};
/// @}

/// The bits in their place in a byte.
constexpr unsigned Mask(SBits bits)
{
    return ((1U << unsigned(bits.nCount)) - 1U) << unsigned(bits.nLow);
}

/// Reads a number from a block.
/// @param block anything whose elements are bytes
template <class TBlock>
constexpr int Read(const TBlock& block, const SNumber& number)
{
    const auto Part = [&block](SBits bits) {
        return (unsigned(static_cast<unsigned char>(block[std::size_t(bits.nOffset)])) & Mask(bits)) >>
               unsigned(bits.nLow);
    };
    return int(Part(number.low) | Part(number.high) << unsigned(number.low.nCount));
}

/// Writes a number into a block; bits beyond the field are dropped, and the other bits stay.
template <class TBlock>
constexpr void Write(TBlock& block, const SNumber& number, unsigned nValue)
{
    const auto Part = [&block](SBits bits, unsigned nPart) {
        auto& byte = block[std::size_t(bits.nOffset)];
        const unsigned nOthers = unsigned(byte) & ~Mask(bits) & 0xFFU;
        byte = static_cast<unsigned char>(nOthers | ((nPart << unsigned(bits.nLow)) & Mask(bits)));
    };
    Part(number.low, nValue);
    if (number.high.nCount > 0)
        Part(number.high, nValue >> unsigned(number.low.nCount));
}

} // namespace EdidLayout

#endif // SENDERMODULEDIALOG_EDID_EDIDLAYOUT_H
