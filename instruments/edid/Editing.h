#ifndef INSTRUMENTS_EDID_EDITING_H
#define INSTRUMENTS_EDID_EDITING_H

#include <QByteArray>
#include <QString>
#include <QStringList>

/// @file
/// Changing what an EDID says. A change touches the bytes of its field and the checksum of their block; where
/// the checksum was wrong before, it stays wrong until `Fix`. What the format cannot hold is refused.

namespace Edid {

/// What can be set: the key and how its value is written.
struct SEditable
{
    const char* szKey;   ///< such as `maker`
    const char* szValue; ///< how the value is written, for a help text
};

/// The keys in the order in which the help lists them.
const QVector<SEditable>& Editables();

/// Sets a value in the base block.
/// @param edid     whole blocks, at least one; unchanged when the value is refused
/// @return what is wrong with the key or the value and what to write; empty when it was set
QString SetValue(QByteArray& edid, const QString& strKey, const QString& strValue);

/// Makes the header, the extension count, the checksums of DisplayID sections and every
/// block's checksum right.
void Fix(QByteArray& edid);

/// Leaves the base block alone, with an extension count of 0 and a right checksum.
void DropExtensions(QByteArray& edid);

} // namespace Edid

#endif // INSTRUMENTS_EDID_EDITING_H
