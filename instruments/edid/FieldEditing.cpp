#include "instruments/edid/FieldEditing.h"

#include "instruments/edid/BaseLayout.h"
#include "instruments/edid/BlockChecksums.h"
#include "instruments/edid/Checksum.h"
#include "instruments/edid/DetailedTiming.h"
#include "instruments/edid/DisplayIdLayout.h"
#include "instruments/edid/EdidText.h"
#include "instruments/edid/FieldText.h"
#include "instruments/edid/FieldValues.h"
#include "instruments/edid/StandardTiming.h"
#include "instruments/edid/TimingText.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace Edid {

namespace {

/// The field and the bytes that it is read from.
struct SSource
{
    const SField& field;
    const quint8* pBytes;

    const SFieldType& Type() const { return *field.pType; }
    const quint8* First() const { return pBytes + field.nOffset; }
};

/// The field and the bytes that it is written to.
struct STarget
{
    const SField& field;
    quint8* pBytes;

    const SFieldType& Type() const { return *field.pType; }
    quint8* First() const { return pBytes + field.nOffset; }
    void PutRaw(qint64 nRaw) const { Put(First() - Type().nOffset, Type(), nRaw); }
    int Revision() const { return int(Get(pBytes, c_layoutBase[enRevision])); }
};

QString NotHeld(const QString& strValue, const QString& strRange)
{
    return CEdidText::tr("'%1' does not fit; give %2").arg(strValue, strRange);
}

/// What a row adds to a number beside its scale: rates of range limits may stand 255 above their byte.
double OffsetOf(const SField& field)
{
    return field.dValue - double(field.nRaw) * field.pType->dScale;
}

/// A clock of 0 would turn a timing into a display descriptor; a gamma of all ones stands elsewhere.
qint64 LowestRaw(const SFieldType& type)
{
    return &type == &c_layoutDetailed[enClock] ? 1 : 0;
}

qint64 HighestRaw(const SFieldType& type)
{
    return type.MaxRaw() - (type.kind == enKind::enGamma ? 1 : 0);
}

/// Coordinates of 1/1024 take the nearest step; other numbers have steps that can be written exactly.
bool HasWholeSteps(const SFieldType& type)
{
    const double dSteps = type.dScale * std::pow(10.0, type.nDecimals);
    return std::abs(dSteps - std::round(dSteps)) < 1e-9;
}

QString NumberText(const SSource& source)
{
    return QString::number(source.field.dValue, 'f', source.Type().nDecimals);
}

QString NumberRange(const SField& field)
{
    const SFieldType& type = *field.pType;
    const auto Shown = [&](qint64 nRaw) {
        return QString::number(double(nRaw) * type.dScale + OffsetOf(field), 'f', type.nDecimals);
    };
    const QString strLast = Shown(HighestRaw(type));
    if (type.dScale == 1.0 || !HasWholeSteps(type))
        return CEdidText::tr("a number from %1 to %2").arg(Shown(LowestRaw(type)), strLast);
    return CEdidText::tr("a number from %1 to %2 in steps of %3")
        .arg(Shown(LowestRaw(type)), strLast, ShortNumber(type.dScale, type.nDecimals));
}

QString SetNumber(const STarget& target, const QString& strValue)
{
    const SFieldType& type = target.Type();
    constexpr double c_dRoundingError = 1e-6;
    bool bRead = false;
    const double dSteps = (strValue.toDouble(&bRead) - OffsetOf(target.field)) / type.dScale;
    const double dRaw = std::round(dSteps);
    const bool bStep = !HasWholeSteps(type) || std::abs(dSteps - dRaw) < c_dRoundingError;
    if (!bRead || !bStep || !(dRaw >= double(LowestRaw(type)) && dRaw <= double(HighestRaw(type))))
        return NotHeld(strValue, NumberRange(target.field));
    target.PutRaw(qint64(dRaw));
    return {};
}

QString CodeText(const SSource& source)
{
    return QString::number(source.field.nRaw);
}

QString HexCodeText(const SSource& source)
{
    const int nDigits = (source.Type().BitCount() + 3) / 4;
    return QStringLiteral("0x%1").arg(source.field.nRaw, nDigits, 16, QLatin1Char('0'));
}

/// A number in decimal digits or, behind 0x, hexadecimal ones.
QString SetCode(const STarget& target, const QString& strValue)
{
    bool bRead = false;
    const qulonglong nValue = strValue.toULongLong(&bRead, 0);
    const qint64 nLargest = target.Type().MaxRaw();
    if (!bRead || nValue > qulonglong(nLargest))
        return NotHeld(strValue, CEdidText::tr("a number from 0 to %1, or 0x%2")
                                     .arg(nLargest)
                                     .arg(nLargest, 0, 16, QLatin1Char('0')));
    target.PutRaw(qint64(nValue));
    return {};
}

QString SetWeek(const STarget& target, const QString& strValue)
{
    constexpr int c_nLastWeek = 54;
    constexpr int c_nModelYear = 255;
    bool bRead = false;
    const int nWeek = strValue.toInt(&bRead);
    if (!bRead || nWeek < 0 || (nWeek > c_nLastWeek && nWeek != c_nModelYear))
        return NotHeld(strValue,
                       CEdidText::tr("a week from 1 to 54, 0 for none, or 255 for the year of the model"));
    target.PutRaw(nWeek);
    return {};
}

QString MakerText(const SSource& source)
{
    return MakerLetters(source.field.nRaw);
}

QString SetMaker(const STarget& target, const QString& strValue)
{
    const std::optional<int> maker = MakerNumber(strValue);
    if (!maker)
        return NotHeld(strValue, CEdidText::tr("three letters A to Z"));
    // The bit above the letters is reserved, and is no part of what was asked for.
    constexpr qint64 c_nReserved = 0x8000;
    target.PutRaw((target.field.nRaw & c_nReserved) | *maker);
    return {};
}

QString CharactersText(const SSource& source)
{
    return FieldCharacters(source.First(), source.field.nSize);
}

QString SetCharacters(const STarget& target, const QString& strValue)
{
    QString strError = TextError(strValue);
    if (strError.isEmpty())
        WriteText(target.First(), strValue);
    return strError;
}

QString BytesText(const SSource& source)
{
    return HexText(source.First(), source.field.nSize);
}

bool IsHexDigit(QChar ch)
{
    return (ch >= QLatin1Char('0') && ch <= QLatin1Char('9')) ||
           (ch.toLower() >= QLatin1Char('a') && ch.toLower() <= QLatin1Char('f'));
}

QString SetBytes(const STarget& target, const QString& strValue)
{
    QString strDigits = strValue;
    strDigits.remove(QLatin1Char(' '));
    const int nSize = target.field.nSize;
    if (strDigits.size() != 2 * nSize || !std::all_of(strDigits.begin(), strDigits.end(), &IsHexDigit))
        return NotHeld(strValue, CEdidText::tr("%1 bytes of two hexadecimal digits each").arg(nSize));
    const QByteArray bytes = QByteArray::fromHex(strDigits.toLatin1());
    std::copy(bytes.begin(), bytes.end(), target.First());
    return {};
}

/// Empty for an unused pair.
QString StandardEditText(const SSource& source)
{
    if (source.field.nRaw == c_wUnusedStandard)
        return {};
    const int nRevision = int(Get(source.pBytes, c_layoutBase[enRevision]));
    const SStandardTiming timing = ReadStandard(quint16(source.field.nRaw), nRevision);
    return QStringLiteral("%1x%2@%3").arg(timing.nWidth).arg(timing.nHeight).arg(timing.nRate);
}

std::optional<quint16> StandardOf(const QString& strValue, int nRevision)
{
    constexpr double c_dLargest = 65535.0;
    if (strValue.isEmpty())
        return c_wUnusedStandard;
    const SPair size = ReadPair(strValue.section(QLatin1Char('@'), 0, 0), QLatin1Char('x'));
    bool bRate = false;
    const int nRate = strValue.section(QLatin1Char('@'), 1).toInt(&bRate);
    if (!size.bRead || !bRate || !IsWhole(size.dFirst, 1, c_dLargest) ||
        !IsWhole(size.dSecond, 1, c_dLargest))
        return std::nullopt;
    return StandardCode({int(size.dFirst), int(size.dSecond), nRate}, nRevision);
}

QString SetStandard(const STarget& target, const QString& strValue)
{
    const std::optional<quint16> code = StandardOf(strValue, target.Revision());
    if (!code)
        return NotHeld(strValue,
                       CEdidText::tr("WIDTHxHEIGHT@RATE with a width from 256 to 2288 in steps of 8, a shape "
                                     "of 16:10, 4:3, 5:4 or 16:9 and a rate from 60 to 123, or nothing"));
    target.PutRaw(*code);
    return {};
}

QString ModeEditText(const SModeTiming& timing)
{
    constexpr int c_nDecimals = 3;
    return QStringLiteral("%1x%2@%3")
        .arg(timing.horizontal.nActive)
        .arg(timing.vertical.nActive)
        .arg(ShortNumber(timing.Rate(), c_nDecimals));
}

QString DetailedEditText(const SSource& source)
{
    return ModeEditText(ReadDetailed(source.First()));
}

QString SetDetailed(const STarget& target, const QString& strValue)
{
    const std::optional<SModeTiming> timing = ModeOf(strValue);
    if (!timing || !FitsDetailed(*timing))
        return NotHeld(strValue, CEdidText::tr("WIDTHxHEIGHT@RATE of at most 4095x4095 and 655.35 MHz"));
    ReplaceDetailed(target.First(), *timing);
    return {};
}

QString TypeIEditText(const SSource& source)
{
    return ModeEditText(ReadTypeI(source.First()));
}

QString SetTypeI(const STarget& target, const QString& strValue)
{
    const std::optional<SModeTiming> timing = ModeOf(strValue);
    if (!timing || !FitsTypeI(*timing))
        return NotHeld(strValue, CEdidText::tr("WIDTHxHEIGHT@RATE of at most 65535x65535"));
    const SFieldType& preferred = c_layoutTypeI[enTypeIPreferred];
    const qint64 nPreferred = Get(target.First(), preferred);
    WriteTypeI(target.First(), *timing);
    Put(target.First(), preferred, nPreferred);
    return {};
}

struct SEditKind
{
    enKind kind;
    QString (*pText)(const SSource& source);
    QString (*pSet)(const STarget& target, const QString& strValue);
};

constexpr SEditKind c_arrKinds[] = {
    {enKind::enNumber, &NumberText, &SetNumber},
    {enKind::enGamma, &NumberText, &SetNumber},
    {enKind::enFlag, &CodeText, &SetCode},
    {enKind::enEstablished, &CodeText, &SetCode},
    {enKind::enChoice, &CodeText, &SetCode},
    {enKind::enVideoCode, &CodeText, &SetCode},
    {enKind::enPreference, &CodeText, &SetCode},
    {enKind::enHdmiCode, &CodeText, &SetCode},
    {enKind::enDisplayMode, &CodeText, &SetCode},
    {enKind::enWeek, &CodeText, &SetWeek},
    {enKind::enHex, &HexCodeText, &SetCode},
    {enKind::enCvtCode, &HexCodeText, &SetCode},
    {enKind::enOui, &HexCodeText, &SetCode},
    {enKind::enMaker, &MakerText, &SetMaker},
    {enKind::enText, &CharactersText, &SetCharacters},
    {enKind::enBytes, &BytesText, &SetBytes},
    {enKind::enStandard, &StandardEditText, &SetStandard},
    {enKind::enMode, &DetailedEditText, &SetDetailed},
    {enKind::enTypeIMode, &TypeIEditText, &SetTypeI},
};

const SEditKind* EditKindOf(const SField& field)
{
    // Only the texts of display descriptors end in a line feed.
    if (field.pType->kind == enKind::enText && field.nSize != c_nContentSize)
        return nullptr;
    const auto IsIt = [&](const SEditKind& row) { return row.kind == field.pType->kind; };
    const SEditKind* pFound = std::find_if(std::begin(c_arrKinds), std::end(c_arrKinds), IsIt);
    return pFound == std::end(c_arrKinds) ? nullptr : pFound;
}

} // namespace

bool IsEditable(const SField& field)
{
    return EditKindOf(field) != nullptr;
}

bool HasChoices(const SField& field)
{
    const enKind kind = field.pType->kind;
    return kind == enKind::enFlag || kind == enKind::enEstablished || kind == enKind::enChoice;
}

QString EditText(const SField& field, const quint8* pBytes)
{
    const SEditKind* pKind = EditKindOf(field);
    return pKind == nullptr ? QString() : pKind->pText({field, pBytes});
}

QString SetField(QByteArray& edid, const SField& field, const QString& strValue)
{
    const SEditKind* pKind = EditKindOf(field);
    if (pKind == nullptr)
        return CEdidText::tr("this value follows from others");
    // A value that cannot be written exactly, as the rate of a timing, stays when it is left as it is.
    if (strValue == EditText(field, reinterpret_cast<const quint8*>(edid.constData())))
        return {};
    const int nBlock = field.nOffset / c_nEdidBlockSize * c_nEdidBlockSize;
    if (nBlock + c_nEdidBlockSize > edid.size())
        return pKind->pSet({field, reinterpret_cast<quint8*>(edid.data())}, strValue);
    const CKeptChecksums checksums(edid, nBlock);
    QString strError = pKind->pSet({field, reinterpret_cast<quint8*>(edid.data())}, strValue);
    checksums.Restore(edid);
    return strError;
}

} // namespace Edid
