#ifndef INSTRUMENTS_EDID_DIFFERENCE_H
#define INSTRUMENTS_EDID_DIFFERENCE_H

#include "instruments/edid/FieldText.h"

#include <QByteArray>
#include <QVector>

/// @file
/// What two EDIDs have different, by field and by byte.

namespace Edid {

/// Two fields that stand in the same place of their explanations and are different.
struct SFieldPair
{
    int nFirst;  ///< place in its explanation, -1 where the field is not there
    int nSecond; ///< as `nFirst`
};

/// The fields that are different, or that one of two EDIDs does not have, in the order of the bytes. Fields
/// that only repeat others, headings and calculated values, are left out.
/// @param vecFirst, vecSecond  their explanations
QVector<SFieldPair> DifferentFields(const std::vector<SField>& vecFirst, const QByteArray& first,
                                    const std::vector<SField>& vecSecond, const QByteArray& second);

/// A field that is different, or that one of them does not have.
struct SFieldDifference
{
    QString strPath;   ///< labels from the block down, with ` / ` between
    int nFirstOffset;  ///< -1 where the field is not there
    int nSecondOffset; ///< as `nFirstOffset`
    int nSize;         ///< bytes
    QString strFirst;  ///< values; empty where the field is not there
    QString strSecond; ///< as `strFirst`
};

/// A byte that is different, or that only one of them has.
struct SByteDifference
{
    int nOffset; ///< in the whole EDID
    int nFirst;  ///< its value, -1 where there is none
    int nSecond; ///< as `nFirst`
};

/// `DifferentFields` in words.
QVector<SFieldDifference> FieldDifferences(const QByteArray& first, const QByteArray& second);

/// Bytes in their order.
QVector<SByteDifference> ByteDifferences(const QByteArray& first, const QByteArray& second);

} // namespace Edid

#endif // INSTRUMENTS_EDID_DIFFERENCE_H
