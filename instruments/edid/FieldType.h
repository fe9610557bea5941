#ifndef INSTRUMENTS_EDID_FIELDTYPE_H
#define INSTRUMENTS_EDID_FIELDTYPE_H

#include <QtGlobal>

#include <array>

/// @file
/// How a field lies in its record and what its bits say: the rows that the layout tables are made of.

namespace Edid {

/// How the bits of a field are read and shown.
enum class enKind : quint8
{
    enNumber,          ///< scaled, with a unit
    enSigned,          ///< a number of one byte that may be negative
    enHex,             ///< a number that is a code
    enFlag,            ///< one bit
    enChoice,          ///< a name from a list
    enText,            ///< characters up to the line feed
    enBytes,           ///< bytes that are not looked into
    enGroup,           ///< fields that belong together, or the whole of a record
    enDescriptor,      ///< a group with the name of its display descriptor
    enMaker,           ///< three letters of five bits
    enWeek,            ///< week of manufacture, or the mark of a model year
    enGamma,           ///< gamma, or the mark that it stands elsewhere
    enChecksum,        ///< right, or what would be right
    enStandard,        ///< two bytes of a standard timing
    enCvtCode,         ///< three bytes of a CVT code
    enVideoCode,       ///< a VIC with its native mark
    enPreference,      ///< a VIC or the number of another timing
    enHdmiCode,        ///< a video code of the HDMI vendor block
    enEstablished,     ///< a flag that stands for a timing
    enModeline,        ///< a line for X.org, from the bytes of a timing
    enTypeVIIModeline, ///< a line for X.org, from the bytes of a type VII timing
    enMode,            ///< size and rate, from the bytes of a detailed timing
    enTypeIMode,       ///< size and rate, from the bytes of a type I timing
    enTypeVIIMode,     ///< size and rate, from the bytes of a type VII timing
    enDataBlock,       ///< a group with the name of its CTA data block
    enSectionBlock,    ///< a group with the name of its DisplayID data block
    enCoverage,        ///< the colour standards that the primaries cover
    enTemperature,     ///< correlated colour temperature of the white
    enReal,            ///< calculated, no bits of its own
    enDisplayMode,     ///< a DMT number
    enOui,             ///< an organisation's number
};

/// When a field has the meaning that its row gives it. A row applies while all its conditions hold.
enum enWhen : quint32
{
    enAlways = 0,
    enAnalog = 0x1,
    enDigital = 0x2,
    enBefore14 = 0x4, ///< revision 3 and older
    enFrom14 = 0x8,   ///< revision 4 and newer
    enSizeInCm = 0x10,
    enLandscape = 0x20, ///< the height's byte is zero: an aspect ratio
    enPortrait = 0x40,  ///< the width's byte is zero: an aspect ratio
    enYearMade = 0x80,
    enModelYear = 0x100,
    enSeparateSync = 0x200,  ///< digital, two lines
    enCompositeSync = 0x400, ///< digital, one line
    enAnalogSync = 0x800,
    enCvtFormula = 0x1000,
    enGtfFormula = 0x2000, ///< the secondary curve
    enNoFormula = 0x4000,
};

/// Bits of one byte of the record, `byHigh` to `byLow`.
struct SBits
{
    quint8 byByte; ///< offset in the record
    quint8 byHigh; ///< highest bit, 0 to 7
    quint8 byLow;  ///< lowest bit, 0 to `byHigh`
};

/// What a value is called.
struct SChoice
{
    int nValue;         ///< raw value
    const char* szName; ///< English
};

/// The names of a choice.
struct SChoices
{
    const SChoice* pFirst = nullptr; ///< a static table
    int nCount = 0;                  ///< its rows

    const char* Name(qint64 nValue) const; ///< null for a value without a name
};

/// One row of a layout table.
struct SFieldType
{
    /// Most pieces that the bits of a field lie in.
    static constexpr int c_nMaxPieces = 3;

    const char* szKey;        ///< for programs: stable, lower case
    const char* szLabel;      ///< for people
    const char* szUnit = "";  ///< of a number; empty without any
    SChoices choices = {};    ///< of an `enChoice`
    double dScale = 1.0;      ///< of a number: value = raw x scale + add
    double dAdd = 0.0;        ///< of a number
    quint32 nWhen = enAlways; ///< of `enWhen`
    quint16 nOffset = 0;      ///< of the first byte, within the record
    quint16 nSize = 0;        ///< bytes that it touches, from the first to the last
    /// Where its bits lie, lowest first. Without any the whole bytes count, the lowest first.
    std::array<SBits, c_nMaxPieces> arrPieces = {};
    quint8 nPieces = 0;            ///< of `arrPieces` that count
    enKind kind = enKind::enGroup; ///< how the bits are read and shown
    quint8 nDecimals = 0;          ///< digits that a number is shown with

    /// The row under conditions.
    /// @param nConditions bits of `enWhen`
    constexpr SFieldType When(quint32 nConditions) const
    {
        SFieldType type = *this;
        type.nWhen = nConditions;
        return type;
    }
    /// The row with a unit.
    constexpr SFieldType Unit(const char* szName) const
    {
        SFieldType type = *this;
        type.szUnit = szName;
        return type;
    }
    /// The row of a number: value = raw x `dFactor` + `dOffset`.
    constexpr SFieldType Scaled(double dFactor, int nDigits, const char* szName, double dOffset = 0.0) const
    {
        SFieldType type = Unit(szName);
        type.dScale = dFactor;
        type.dAdd = dOffset;
        type.nDecimals = static_cast<quint8>(nDigits);
        return type;
    }
    /// The row with names for its values.
    template <std::size_t c_nCount>
    constexpr SFieldType Of(const SChoice (&arrChoices)[c_nCount]) const
    {
        SFieldType type = *this;
        type.choices = {arrChoices, int(c_nCount)};
        return type;
    }

    /// Bits that the field has; 0 for one that is no number.
    int BitCount() const;
    /// The largest raw value.
    qint64 MaxRaw() const { return (qint64(1) << BitCount()) - 1; }
};

/// Rows of a layout table.
struct SLayout
{
    const SFieldType* pFirst; ///< a static table
    int nCount;               ///< its rows

    /// All rows of a table; converts.
    template <std::size_t c_nCount>
    constexpr SLayout(const SFieldType (&arrRows)[c_nCount])
        : pFirst(arrRows)
        , nCount(int(c_nCount))
    {}

    /// For range-based loops.
    const SFieldType* begin() const { return pFirst; }
    /// For range-based loops.
    const SFieldType* end() const { return pFirst + nCount; }
    /// A row.
    /// @param nRow 0 to `nCount` - 1, not checked
    const SFieldType& operator[](int nRow) const { return pFirst[nRow]; }
    /// The row with a key, null without any. Of several with one key the first.
    const SFieldType* Find(const char* szKey) const;
};

/// The raw value of a field.
/// @param pRecord  the record, at least as long as the field's end
qint64 Get(const quint8* pRecord, const SFieldType& type);

/// Stores a raw value; bits beyond the field's are dropped, bits beside it stay.
void Put(quint8* pRecord, const SFieldType& type, qint64 nRaw);

/// @name Rows
/// @{

/// A field of whole bytes.
constexpr SFieldType Whole(const char* szKey, const char* szLabel, enKind kind, int nOffset, int nSize = 1)
{
    SFieldType type = {szKey, szLabel};
    type.kind = kind;
    type.nOffset = static_cast<quint16>(nOffset);
    type.nSize = static_cast<quint16>(nSize);
    return type;
}

/// A field of bits of one byte.
constexpr SFieldType Part(const char* szKey, const char* szLabel, enKind kind, int nOffset, int nHigh,
                          int nLow)
{
    SFieldType type = Whole(szKey, szLabel, kind, nOffset);
    type.arrPieces[0] = {static_cast<quint8>(nOffset), static_cast<quint8>(nHigh), static_cast<quint8>(nLow)};
    type.nPieces = 1;
    return type;
}

/// A field of one bit.
constexpr SFieldType Flag(const char* szKey, const char* szLabel, int nOffset, int nBit)
{
    return Part(szKey, szLabel, enKind::enFlag, nOffset, nBit, nBit);
}

/// A number whose low bits and high bits lie apart.
constexpr SFieldType Split(const char* szKey, const char* szLabel, enKind kind, SBits low, SBits high)
{
    const int nFirst = low.byByte < high.byByte ? low.byByte : high.byByte;
    const int nLast = low.byByte < high.byByte ? high.byByte : low.byByte;
    SFieldType type = Whole(szKey, szLabel, kind, nFirst, nLast - nFirst + 1);
    type.arrPieces[0] = low;
    type.arrPieces[1] = high;
    type.nPieces = 2;
    return type;
}

/// A number of three bytes, the highest first.
constexpr SFieldType Triple(const char* szKey, const char* szLabel, enKind kind, int nOffset = 0)
{
    SFieldType type = Whole(szKey, szLabel, kind, nOffset, 3);
    const auto byFirst = static_cast<quint8>(nOffset);
    type.arrPieces = {{{static_cast<quint8>(byFirst + 2), 7, 0},
                       {static_cast<quint8>(byFirst + 1), 7, 0},
                       {byFirst, 7, 0}}};
    type.nPieces = 3;
    return type;
}

/// A heading, or a value that is calculated from a record's bytes.
constexpr SFieldType Title(const char* szKey, const char* szLabel, enKind kind = enKind::enGroup)
{
    return Whole(szKey, szLabel, kind, 0, 0);
}
/// @}

} // namespace Edid

#endif // INSTRUMENTS_EDID_FIELDTYPE_H
