#ifndef INSTRUMENTS_EDID_DISPLAYIDLAYOUT_H
#define INSTRUMENTS_EDID_DISPLAYIDLAYOUT_H

#include "instruments/edid/FieldType.h"

/// @file
/// The layout of a DisplayID extension block (VESA DisplayID 1.3, sections 2 to 4; data block tags of
/// 2.0 by name).

namespace Edid {

constexpr quint8 c_byDisplayIdTag = 0x70; ///< first byte of the extension block

/// The section fills the extension block between its tag and its checksum: four bytes of head, data blocks,
/// and a checksum of its own.
constexpr int c_nSectionOffset = 1;
constexpr int c_nSectionHeadSize = 4;
/// Most bytes of data blocks that the section of one extension block holds.
constexpr int c_nMaxSectionBytes = 121;

/// Tag, revision, length.
constexpr int c_nDataBlockHeadSize = 3;

constexpr quint8 c_byTypeITag = 0x03;
constexpr int c_nTypeISize = 20;

extern const SLayout c_layoutSection;   ///< from the section's first byte
extern const SLayout c_layoutDataBlock; ///< from the data block's first byte

/// Rows of a type I detailed timing that code asks for by name.
enum enTypeIRow
{
    enTypeIClock,
    enTypeIPreferred,
    enTypeIStereo,
    enTypeIInterlaced,
    enTypeIAspect,
    enTypeIHActive,
    enTypeIHBlank,
    enTypeIHFront,
    enTypeIHPositive,
    enTypeIHSync,
    enTypeIVActive,
    enTypeIVBlank,
    enTypeIVFront,
    enTypeIVPositive,
    enTypeIVSync,
};

/// A type I detailed timing (section 4.4.1), 20 bytes, in the order of `enTypeIRow`.
extern const SLayout c_layoutTypeI;

/// A type VII detailed timing (DisplayID 2.0, section 4.3), 20 bytes: type I with the clock in steps of 1
/// kHz.
constexpr int c_nTypeVIISize = 20;
extern const SLayout c_layoutTypeVII;

/// Rows of data blocks, from the data block's first byte.
/// @{
extern const SLayout c_layoutProductId;    ///< up to the name (DisplayID 1.3, section 4.1)
extern const SLayout c_layoutProductId2;   ///< up to the name (DisplayID 2.0, section 4.1)
extern const SLayout c_layoutParameters;   ///< DisplayID 1.3, section 4.2
extern const SLayout c_layoutTiledDisplay; ///< DisplayID 1.3, section 4.14
/// @}

/// What a data block's tag announces.
const char* DisplayIdBlockName(quint8 byTag);

} // namespace Edid

#endif // INSTRUMENTS_EDID_DISPLAYIDLAYOUT_H
