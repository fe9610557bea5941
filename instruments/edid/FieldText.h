#ifndef INSTRUMENTS_EDID_FIELDTEXT_H
#define INSTRUMENTS_EDID_FIELDTEXT_H

#include "instruments/edid/Explanation.h"

#include <QHash>
#include <QJsonValue>
#include <QString>
#include <QVector>

/// @file
/// What people and programs read of an explanation.

namespace Edid {

/// Names of makers by their three letters, as the list `pnp.ids` of Debian's hwdata holds them.
using MakerNames = QHash<QString, QString>;

/// Reads a list of lines `ABC<tab>Name`; other lines are left out.
MakerNames ReadMakerNames(const QByteArray& list);

/// The letters of a maker's number, '?' for each that is none.
QString MakerLetters(qint64 nRaw);

/// What a field's row is called; a data block and a descriptor by their own names, one of several
/// with its number.
QString LabelText(const SField& field);

/// A field's value. Empty for a group that only holds others.
/// @param pBytes  the whole EDID that was explained
QString ValueText(const SField& field, const quint8* pBytes, const MakerNames& makerNames);

/// A field's value for programs: a number, a truth value, a text, or null for a group.
QJsonValue ValueJson(const SField& field, const quint8* pBytes, const MakerNames& makerNames);

/// The characters of a text field up to its line feed; what cannot be printed as `\x00`.
QString FieldCharacters(const quint8* pText, int nSize);

/// Where the bytes that hold a field's bits are in the whole EDID; those between them are not among them.
QVector<int> FieldOffsets(const SField& field);

/// The bytes that hold a field's bits, in their order.
QString FieldHex(const SField& field, const quint8* pBytes);

/// Bytes as two hexadecimal digits each, in capitals, with blanks between.
QString HexText(const quint8* pBytes, int nSize);

} // namespace Edid

#endif // INSTRUMENTS_EDID_FIELDTEXT_H
