#ifndef INSTRUMENTS_EDID_EXPLANATION_H
#define INSTRUMENTS_EDID_EXPLANATION_H

#include "instruments/edid/FieldType.h"

#include <vector>

/// @file
/// What the bytes of an EDID say: a tree of fields, kept as a list with depths. Fields hold numbers; texts
/// are made from them where somebody reads (`FieldText.h`).

namespace Edid {

/// One field of an EDID.
struct SField
{
    const SFieldType* pType; ///< what it is; static
    qint32 nOffset; ///< of its first byte in the whole EDID; of a value that is calculated, its record's
    quint16 nSize;  ///< bytes that it touches
    quint8 nDepth;  ///< 0 for a block, one more for each level below
    quint16 nIndex; ///< its number among its like, from 1; 0 where there is but one
    qint64 nRaw;    ///< its bits
    double dValue;  ///< a number with its scale; what was calculated
};

/// Explains every byte of an EDID.
/// @param pBytes     the whole EDID
/// @param nSize      bytes; what is left behind the last whole block is shown as bytes
/// @param vecFields  replaced; what it has reserved is used again
void Explain(const quint8* pBytes, int nSize, std::vector<SField>& vecFields);

} // namespace Edid

#endif // INSTRUMENTS_EDID_EXPLANATION_H
