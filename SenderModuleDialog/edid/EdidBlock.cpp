#include "SenderModuleDialog/edid/EdidBlock.h"

#include "SenderModuleDialog/Saturate.h"
#include "SenderModuleDialog/edid/EdidLayout.h"
#include "SenderModuleDialog/edid/MonitorName.h"

#include <algorithm>
#include <numeric>

namespace EdidBlock {

namespace {

using Byte = unsigned char;

template <std::size_t c_nSize>
using Bytes = std::array<Byte, c_nSize>;

// Tags of the monitor descriptors (VESA E-EDID, section 3.10.3).
constexpr Byte c_bySerialTag = 0xFF;
constexpr Byte c_byNameTag = 0xFC;
constexpr Byte c_byRangeTag = 0xFD;

/// Pattern that every base block begins with (VESA E-EDID, section 3.3).
constexpr Bytes<8> c_header = {0x00, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x00};

/// A field of the template and its value.
struct SValue
{
    EdidLayout::SNumber number;
    unsigned nValue;
};

constexpr SValue c_arrValues[] = {
    // An invalid manufacturer, intentionally: three times letter 30 of 26. Product code 0.
    {EdidLayout::c_firstLetter, 30},
    {EdidLayout::c_secondLetter, 30},
    {EdidLayout::c_thirdLetter, 30},
    {EdidLayout::c_productCode, 0},
    {EdidLayout::c_week, 0}, // none
    {EdidLayout::c_year, 2017 - 1990},
    {EdidLayout::c_versionNumber, 1},
    {EdidLayout::c_revisionNumber, 3},
    {EdidLayout::c_input, 0x81}, // digital, compatible with DFP 1.x
    // No size: an LED wall has whatever size it is built in.
    {EdidLayout::c_widthCm, 0},
    {EdidLayout::c_heightCm, 0},
    {EdidLayout::c_gamma, 120},     // 2.20
    {EdidLayout::c_features, 0x0A}, // RGB colour display, the first detailed timing is the preferred one
    {EdidLayout::c_redX, 703},
    {EdidLayout::c_redY, 320},
    {EdidLayout::c_greenX, 192},
    {EdidLayout::c_greenY, 728},
    {EdidLayout::c_blueX, 140},
    {EdidLayout::c_blueY, 52},
    {EdidLayout::c_whiteX, 320},
    {EdidLayout::c_whiteY, 337},
    {EdidLayout::c_svga60, 1}, // the only established timing
    {EdidLayout::c_minVertical, 23},
    {EdidLayout::c_maxVertical, 120},
    {EdidLayout::c_minHorizontal, 30},
    {EdidLayout::c_maxHorizontal, 153},
    {EdidLayout::c_maxClock, 17},
    {EdidLayout::c_timingFormula, 0}, // the default
};

/// Every byte of the serial number field.
constexpr Byte c_bySerialNumber = 0x01;

/// A pair of ones is an unused standard timing (VESA E-EDID, section 3.9).
constexpr Byte c_byUnusedStandardTiming = 0x01;

/// What the template holds until a timing is stored: 1280x1024 at 108.52 MHz.
constexpr SDetailedTiming c_defaultTiming = {10852, 1280, 1024, {408, 48, 112, 42, 1, 3, 3}};

/// Serial number text (VESA E-EDID, section 3.10.3): "000", its terminator, and blanks.
constexpr Bytes<13> c_serial = {'0', '0', '0', '\n', ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' '};

/// Behind the range limits: a terminator and blanks.
constexpr Bytes<7> c_rangePadding = {'\n', ' ', ' ', ' ', ' ', ' ', ' '};

/// The checksum byte of the template, until it is calculated.
constexpr Byte c_byChecksumPlaceholder = 0x80;

/// Fixed part of the last byte of a detailed timing: digital separate sync (VESA E-EDID, section 3.10.2).
constexpr unsigned c_nDigitalSeparateSync = 0x18;

/// Pixel clock unit of a detailed timing (VESA E-EDID, section 3.10.2), Hz.
constexpr qint64 c_nPixelClockUnit = 10000;

template <std::size_t c_nSize>
constexpr void Put(BlockBytes& block, const EdidLayout::SBytes& place, const Bytes<c_nSize>& bytes)
{
    for (std::size_t i = 0; i < c_nSize; ++i)
        block[std::size_t(place.nOffset) + i] = bytes[i];
}

constexpr void Fill(BlockBytes& block, const EdidLayout::SBytes& place, Byte byValue)
{
    for (int i = place.nOffset; i < place.nOffset + place.nLength; ++i)
        block[std::size_t(i)] = byValue;
}

constexpr void PutDescriptorHeader(BlockBytes& block, const EdidLayout::SBytes& descriptor, Byte byTag)
{
    static_assert(EdidLayout::c_nDescriptorHeaderSize == 5 && EdidLayout::c_nDescriptorTagPlace == 3);
    Put(block, descriptor, Bytes<5>{0x00, 0x00, 0x00, byTag, 0x00});
}

constexpr void PutDetailedTiming(BlockBytes& block, const SDetailedTiming& timing)
{
    const tagSBlankTiming& blank = timing.blank;
    Fill(block, EdidLayout::c_firstDetailedTiming, 0); // image size unknown, no borders
    EdidLayout::Write(block, EdidLayout::c_pixelClock, static_cast<unsigned>(timing.nPixelClock));
    EdidLayout::Write(block, EdidLayout::c_width, static_cast<unsigned>(timing.nWidth));
    EdidLayout::Write(block, EdidLayout::c_hBlank, blank.wHBlank);
    EdidLayout::Write(block, EdidLayout::c_height, static_cast<unsigned>(timing.nHeight));
    EdidLayout::Write(block, EdidLayout::c_vBlank, blank.wVBlank);
    EdidLayout::Write(block, EdidLayout::c_hFrontPorch, blank.wHFrontPorch);
    EdidLayout::Write(block, EdidLayout::c_hSync, blank.wHSync);
    EdidLayout::Write(block, EdidLayout::c_vFrontPorch, blank.byVFrontPorch);
    EdidLayout::Write(block, EdidLayout::c_vSync, blank.byVSync);
    EdidLayout::Write(block, EdidLayout::c_timingFlags,
                      static_cast<unsigned>(blank.bySyncFlag) << 1U | c_nDigitalSeparateSync);
}

/// The template without a name.
constexpr BlockBytes MakeTemplate()
{
    BlockBytes block = {};
    Put(block, EdidLayout::c_header, c_header);
    Fill(block, EdidLayout::c_serialNumber, c_bySerialNumber);
    Fill(block, EdidLayout::c_standardTimings, c_byUnusedStandardTiming);
    PutDetailedTiming(block, c_defaultTiming);
    PutDescriptorHeader(block, EdidLayout::c_serialDescriptor, c_bySerialTag);
    Put(block, EdidLayout::c_serialText, c_serial);
    PutDescriptorHeader(block, EdidLayout::c_nameDescriptor, c_byNameTag);
    PutDescriptorHeader(block, EdidLayout::c_rangeDescriptor, c_byRangeTag);
    Put(block, EdidLayout::c_rangePadding, c_rangePadding);
    Fill(block, EdidLayout::c_checksum, c_byChecksumPlaceholder);
    for (const SValue& value : c_arrValues)
        EdidLayout::Write(block, value.number, value.nValue);
    return block;
}

constexpr BlockBytes c_template = MakeTemplate();

} // namespace

/// The name has no terminator and no padding: a shorter one leaves the rest of its field as it was.
void WriteTemplate(BlockBytes& block, int nWidth, int nHeight)
{
    constexpr int c_nNameEnd = EdidLayout::c_nameText.nOffset + EdidLayout::c_nameText.nLength;
    std::copy_n(c_template.begin(), EdidLayout::c_nameText.nOffset, block.begin());
    std::copy(c_template.begin() + c_nNameEnd, c_template.end(), block.begin() + c_nNameEnd);
    const CMonitorName name(nWidth, nHeight);
    std::copy(name.begin(), name.end(), block.begin() + EdidLayout::c_nameText.nOffset);
}

void WriteFirstDetailedTiming(BlockBytes& block, const SDetailedTiming& timing)
{
    PutDetailedTiming(block, timing);
}

void WriteChecksum(BlockBytes& block)
{
    constexpr int c_nChecksum = EdidLayout::c_checksum.nOffset;
    const unsigned nSum = std::accumulate(block.begin(), block.begin() + c_nChecksum, 0U);
    block[c_nChecksum] = static_cast<Byte>((0U - nSum) & 0xFFU);
}

qint64 PixelClock(int nWidth, int nHeight, float fRate, const tagSBlankTiming& blank)
{
    const qint64 nTotal = (qint64(nWidth) + blank.wHBlank) * (qint64(nHeight) + blank.wVBlank);
    return SaturateTo<qint64>(static_cast<float>(nTotal) * fRate) / c_nPixelClockUnit;
}

} // namespace EdidBlock
