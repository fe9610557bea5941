#ifndef INSTRUMENTS_EDID_READING_H
#define INSTRUMENTS_EDID_READING_H

#include <QByteArray>
#include <QString>
#include <QVector>

/// @file
/// Reading EDIDs in whatever form they arrive: binary, hexadecimal text in its usual dresses, the output of
/// xrandr, or JSON. The form is recognised from the content.

namespace Edid {

/// Most blocks of an EDID: the base block and 255 extensions.
constexpr int c_nMaxBlocks = 256;

/// No text longer than this is read: room for 256 blocks in any dress, for several displays.
constexpr int c_nMaxText = 8 * 1024 * 1024;

/// An EDID and the display that it was found under.
struct SNamedEdid
{
    QString strName;  ///< output of xrandr, name in JSON; empty for the others
    QByteArray bytes; ///< whole blocks of 128 bytes, 1 to 256
};

/// What was read, or why nothing was.
struct SReading
{
    QVector<SNamedEdid> vecEdids; ///< at least one unless there is an error
    QString strError;             ///< what is wrong and what to do; empty when nothing is
    int nLine = 0;                ///< of a text, from 1; 0 for a binary file
    int nColumn = 0;              ///< of that line, from 1; 0 for a binary file

    /// Whether there are EDIDs; otherwise there is an error.
    bool IsRead() const { return strError.isEmpty(); }
    /// `line 3, column 17: what is wrong`.
    QString ErrorText() const;
};

/// Reads all EDIDs of a content. Bytes need not make sense, but there are whole blocks of 128, at least one
/// and at most 256.
SReading Read(const QByteArray& content);

} // namespace Edid

#endif // INSTRUMENTS_EDID_READING_H
