#ifndef INSTRUMENTS_EDID_WRITING_H
#define INSTRUMENTS_EDID_WRITING_H

#include <QByteArray>
#include <QJsonArray>
#include <QString>
#include <QStringList>

/// @file
/// The forms in which an EDID is written. Every one can be read back bit for bit.

namespace Edid {

/// The bytes as two digits each in capitals, in rows.
/// @param strPrefix     before each byte
/// @param strSeparator  between the bytes of a row
QStringList ByteRows(const QByteArray& edid, int nColumns, const QString& strPrefix,
                     const QString& strSeparator);

/// Rows of 16 bytes as texts, in the way that JSON can be read back.
QJsonArray BytesJson(const QByteArray& edid);

/// Rows of 16 bytes.
QByteArray HexForm(const QByteArray& edid);

/// An array of C under a comment.
QByteArray CForm(const QByteArray& edid, const QString& strComment);

/// The bytes and what they say.
QByteArray JsonForm(const QByteArray& edid);

} // namespace Edid

#endif // INSTRUMENTS_EDID_WRITING_H
