#ifndef INSTRUMENTS_EDID_SECTIONBLOCKS_H
#define INSTRUMENTS_EDID_SECTIONBLOCKS_H

#include "instruments/edid/DisplayIdLayout.h"

#include <optional>

/// @file
/// Walking through the data blocks of a DisplayID section (VESA DisplayID 1.3, section 3).

namespace Edid {

/// One data block.
struct SSectionBlock
{
    int nOffset; ///< of its tag, from where the walk counts
    quint8 byTag;
    int nLength; ///< bytes of its content

    int Content() const { return nOffset + c_nDataBlockHeadSize; }
    int End() const { return Content() + nLength; }
};

/// Where the data blocks of a section begin and end, from where the section's offset counts. A length beyond
/// the extension block counts as the largest that fits.
int SectionBegin(int nSection);
int SectionEnd(const quint8* pBytes, int nSection);

/// The data block at an offset; empty at the end, at the zeros that fill a section, and for a block that
/// would go beyond the end.
std::optional<SSectionBlock> SectionBlockAt(const quint8* pBytes, int nOffset, int nEnd);

} // namespace Edid

#endif // INSTRUMENTS_EDID_SECTIONBLOCKS_H
