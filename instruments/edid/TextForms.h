#ifndef INSTRUMENTS_EDID_TEXTFORMS_H
#define INSTRUMENTS_EDID_TEXTFORMS_H

#include "instruments/edid/Reading.h"

#include <vector>

/// @file
/// The forms in which text holds an EDID. Each reader gets a text that its predicate has recognised.

namespace Edid {

/// One line of a text, where it stands.
struct SLine
{
    const char* pBegin;
    const char* pEnd;
    int nNumber; ///< from 1

    int Size() const { return int(pEnd - pBegin); }
    char At(int nColumn) const { return nColumn < Size() ? pBegin[nColumn] : '\0'; }
    QByteArray Text() const { return QByteArray(pBegin, Size()); }
};

using Lines = std::vector<SLine>;

/// The lines of a text, without their ends.
Lines SplitLines(const QByteArray& text);

/// What is wrong at a place.
SReading ErrorAt(const SLine& line, int nColumn, const QString& strError);

/// Takes bytes from text until something is wrong or there are too many.
class CByteCollector
{
public:
    /// The pairs of digits of a stretch of a line; between groups blanks, tabs, commas and colons count as
    /// nothing, and a group may begin with `0x`.
    /// @return whether all went well
    bool TakeGroups(const SLine& line, int nBegin, int nEnd);
    /// Bytes that a text leaves out because they repeat.
    bool Repeat(const SLine& line, int nUpTo);
    /// Notes what is wrong. @return false
    bool Fail(const SLine& line, int nColumn, const QString& strError);

    const QByteArray& Bytes() const { return m_bytes; }
    void Clear() { m_bytes.clear(); }
    bool HasFailed() const { return !m_error.IsRead(); }
    const SReading& Error() const { return m_error; }
    /// The whole as one EDID, or the error, or that the bytes are no whole blocks.
    SReading Result(const SLine& lineLast) const;

private:
    bool TakeGroup(const SLine& line, int nBegin, int nEnd);
    bool HasRoom(const SLine& line, int nColumn, int nMore);

    QByteArray m_bytes;
    SReading m_error;
};

/// What is wrong with a number of bytes; empty for whole blocks, at least one and not too many.
QString SizeError(qint64 nBytes);

/// @name Recognising and reading
/// @{
bool IsJson(const QByteArray& text);
SReading ReadJson(const QByteArray& text);
bool IsXrandr(const QByteArray& text);
SReading ReadXrandr(const QByteArray& text);
bool IsDecoderText(const QByteArray& text);
SReading ReadDecoderText(const QByteArray& text);
bool IsCArray(const QByteArray& text);
SReading ReadCArray(const QByteArray& text);
bool IsXxd(const QByteArray& text);
SReading ReadXxd(const QByteArray& text);
bool IsHexdump(const QByteArray& text);
SReading ReadHexdump(const QByteArray& text);
SReading ReadPlainHex(const QByteArray& text);
/// @}

} // namespace Edid

#endif // INSTRUMENTS_EDID_TEXTFORMS_H
