#ifndef INSTRUMENTS_EDID_BASELAYOUT_H
#define INSTRUMENTS_EDID_BASELAYOUT_H

#include "instruments/edid/FieldType.h"

/// @file
/// The layout of the base block, EDID 1.0 to 1.4 (VESA E-EDID Release A, revisions 1 and 2; section numbers
/// are those of revision 2). Every reader and writer of these bytes takes its rows from here.

namespace Edid {

/// Rows of the base block that code asks for by name.
enum enBaseRow
{
    enHeader,
    enMakerId,
    enProduct,
    enSerial,
    enWeek,
    enYear,
    enModelYearRow,
    enVersion,
    enRevision,
    enDigitalInput,
    enAnalogLevels,
    enAnalogSetup,
    enAnalogSeparate,
    enAnalogComposite,
    enAnalogGreen,
    enAnalogSerration,
    enDfp,
    enBitDepth,
    enInterface,
    enWidthCm,
    enHeightCm,
    enLandscapeRatio,
    enPortraitRatio,
    enGammaRow,
    enStandby,
    enSuspend,
    enActiveOff,
    enDisplayType,
    enColourEncoding,
    enSrgbDefault,
    enPreferredIsFirst,
    enPreferredIsNative,
    enDefaultGtf,
    enContinuous,
    enRedX,
    enRedY,
    enGreenX,
    enGreenY,
    enBlueX,
    enBlueY,
    enWhiteX,
    enWhiteY,
    enExtensionCount,
    enBaseChecksum,
};

/// Where groups of rows stand in the base block.
constexpr int c_nInputOffset = 0x14;
constexpr int c_nFeatureOffset = 0x18;
constexpr int c_nChromaticityOffset = 0x19;
constexpr int c_nChromaticitySize = 10;
constexpr int c_nEstablishedOffset = 0x23;
constexpr int c_nEstablishedSize = 3;
constexpr int c_nStandardOffset = 0x26;
constexpr int c_nStandardCount = 8;
constexpr int c_nStandardSize = 2;
constexpr int c_nDescriptorOffset = 0x36;
constexpr int c_nDescriptorCount = 4;
constexpr int c_nDescriptorSize = 18;
constexpr int c_nExtensionCountOffset = 0x7E;

/// Two bytes of a standard timing that is not used.
constexpr quint16 c_wUnusedStandard = 0x0101;

/// The rows, in the order of `enBaseRow`.
extern const SLayout c_layoutBase;

/// Rows of the detailed timing that code asks for by name.
enum enDetailedRow
{
    enClock,
    enHActive,
    enHBlank,
    enVActive,
    enVBlank,
    enHFront,
    enHSync,
    enVFront,
    enVSync,
    enWidthMm,
    enHeightMm,
    enHBorder,
    enVBorder,
    enInterlacedRow,
    enStereo,
    enSyncType,
    enVPolarity,
    enSerrations,
    enHPolarity,
    enSyncOnAll,
};

/// An 18-byte detailed timing (section 3.10.2), in the order of `enDetailedRow`.
extern const SLayout c_layoutDetailed;

/// @name Display descriptors (section 3.10.3)
/// @{
constexpr quint8 c_bySerialTag = 0xFF;
constexpr quint8 c_byTextTag = 0xFE;
constexpr quint8 c_byRangeTag = 0xFD;
constexpr quint8 c_byNameTag = 0xFC;
constexpr quint8 c_byWhitePointTag = 0xFB;
constexpr quint8 c_byStandardTag = 0xFA;
constexpr quint8 c_byColourTag = 0xF9;
constexpr quint8 c_byCvtTag = 0xF8;
constexpr quint8 c_byEstablishedTag = 0xF7;
constexpr quint8 c_byDummyTag = 0x10;
constexpr quint8 c_byLastMakerTag = 0x0F; ///< tags up to here are the maker's own

/// Where a descriptor's tag and content stand within it.
constexpr int c_nTagOffset = 3;
constexpr int c_nContentOffset = 5;
constexpr int c_nContentSize = 13;

/// Rows of the range limits that code asks for by name.
enum enRangeRow
{
    enVOffsets,
    enHOffsets,
    enVMin,
    enVMax,
    enHMin,
    enHMax,
    enMaxClock,
    enFormula,
    enCvtVersion,
    enCvtClockCut,
    enCvtMaxActive,
};

extern const SLayout c_layoutRange;
extern const SLayout c_layoutWhitePoint; ///< one of the two entries, five bytes
extern const SLayout c_layoutColour;
extern const SLayout c_layoutName;
extern const SLayout c_layoutSerial;
extern const SLayout c_layoutText;

/// @}

} // namespace Edid

#endif // INSTRUMENTS_EDID_BASELAYOUT_H
