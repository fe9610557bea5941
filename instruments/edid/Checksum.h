#ifndef INSTRUMENTS_EDID_CHECKSUM_H
#define INSTRUMENTS_EDID_CHECKSUM_H

#include "host/CommonClass/EdidBlockSize.h"

#include <QtGlobal>

/// @file
/// The checksum that every block of an EDID ends with (VESA E-EDID, section 3.11; CTA-861; DisplayID
/// as an extension).

namespace Edid {

/// Where the checksum stands in its block.
constexpr int c_nChecksumOffset = c_nEdidBlockSize - 1;

/// The value of a block's last byte that makes the sum of all its bytes 0 modulo 256.
/// @param pBlock  128 bytes, of which the last is not read
quint8 Checksum(const quint8* pBlock);

} // namespace Edid

#endif // INSTRUMENTS_EDID_CHECKSUM_H
