#include "instruments/edid/FieldText.h"

#include "instruments/edid/BaseLayout.h"
#include "instruments/edid/Checksum.h"
#include "instruments/edid/ColourText.h"
#include "instruments/edid/CtaDataBlocks.h"
#include "instruments/edid/CvtCode.h"
#include "instruments/edid/DetailedTiming.h"
#include "instruments/edid/DisplayIdLayout.h"
#include "instruments/edid/ListedTimings.h"
#include "instruments/edid/StandardTiming.h"
#include "instruments/edid/TimingText.h"

#include <algorithm>

namespace Edid {

namespace {

QString Latin(const char* szText)
{
    return QString::fromLatin1(szText);
}

QString WithUnit(const QString& strNumber, const SFieldType& type)
{
    const QString strUnit = Latin(type.szUnit);
    // A ratio's sign follows its number at once.
    const bool bJoined = strUnit.isEmpty() || strUnit.startsWith(QLatin1Char(':'));
    return strNumber + (bJoined ? QString() : QStringLiteral(" ")) + strUnit;
}

/// What a value is made of: the field, the bytes and the names of makers.
struct SSource
{
    const SField& field;
    const quint8* pBytes;
    const MakerNames& makerNames;

    const quint8* Record() const { return pBytes + field.nOffset; }
};

QString NumberValue(const SSource& source)
{
    const SFieldType& type = *source.field.pType;
    return WithUnit(QString::number(source.field.dValue, 'f', type.nDecimals), type);
}

/// What was calculated came in base units: the scale is for people.
QString RealValue(const SSource& source)
{
    const SFieldType& type = *source.field.pType;
    return WithUnit(QString::number(source.field.dValue * type.dScale, 'f', type.nDecimals), type);
}

QString HexValue(const SSource& source)
{
    const int nDigits = (source.field.pType->BitCount() + 3) / 4;
    return QStringLiteral("0x%1").arg(source.field.nRaw, nDigits, 16, QLatin1Char('0'));
}

QString FlagValue(const SSource& source)
{
    return source.field.nRaw != 0 ? QStringLiteral("yes") : QStringLiteral("no");
}

QString ChoiceValue(const SSource& source)
{
    const char* szName = source.field.pType->choices.Name(source.field.nRaw);
    return szName != nullptr ? Latin(szName) : QStringLiteral("reserved (%1)").arg(source.field.nRaw);
}

QString TextValue(const SSource& source)
{
    return FieldCharacters(source.Record(), source.field.nSize);
}

QString BytesValue(const SSource& source)
{
    return HexText(source.Record(), source.field.nSize);
}

QString NoValue(const SSource&)
{
    return {};
}

QString MakerValue(const SSource& source)
{
    const QString strLetters = MakerLetters(source.field.nRaw);
    const QString strName = source.makerNames.value(strLetters);
    return strName.isEmpty() ? strLetters : QStringLiteral("%1 (%2)").arg(strLetters, strName);
}

QString WeekValue(const SSource& source)
{
    constexpr int c_nModelYear = 0xFF;
    if (source.field.nRaw == 0)
        return QStringLiteral("not given");
    return source.field.nRaw == c_nModelYear ? QStringLiteral("model year")
                                             : QString::number(source.field.nRaw);
}

QString GammaValue(const SSource& source)
{
    constexpr int c_nElsewhere = 0xFF;
    return source.field.nRaw == c_nElsewhere ? QStringLiteral("defined elsewhere") : NumberValue(source);
}

QString ChecksumValue(const SSource& source)
{
    const quint8* pBlock = source.Record() - c_nChecksumOffset;
    const quint8 byRight = Checksum(pBlock);
    if (byRight == source.field.nRaw)
        return QStringLiteral("right");
    return QStringLiteral("wrong, should be 0x%1").arg(byRight, 2, 16, QLatin1Char('0'));
}

/// The base block comes first in every EDID.
int Revision(const SSource& source)
{
    return int(Get(source.pBytes, c_layoutBase[enRevision]));
}

QString StandardValue(const SSource& source)
{
    const QString strText = StandardText(quint16(source.field.nRaw), Revision(source));
    return strText.isEmpty() ? QStringLiteral("unused") : strText;
}

QString CvtCodeValue(const SSource& source)
{
    return source.field.nRaw == 0 ? QStringLiteral("unused") : CvtCodeText(quint32(source.field.nRaw));
}

QString ListedText(STimingList list, int nId, const QString& strName)
{
    const SListedTiming* pListed = FindListed(list, nId);
    if (pListed == nullptr)
        return QStringLiteral("%1, unknown").arg(strName);
    return QStringLiteral("%1, %2, %3:%4")
        .arg(strName, ModeText(TimingOf(*pListed)))
        .arg(pListed->aspect.nWidth)
        .arg(pListed->aspect.nHeight);
}

QString VideoCodeValue(const SSource& source)
{
    const SVideoCode code = VideoCodeOf(int(source.field.nRaw));
    return ListedText(VideoCodes(), code.nVic, QStringLiteral("VIC %1").arg(code.nVic)) +
           (code.bNative ? QStringLiteral(", native") : QString());
}

/// Short video references of the preference block (CTA-861-H, section 7.5.12).
QString PreferenceValue(const SSource& source)
{
    struct SRange
    {
        int nFirst;
        int nLast;
        int nBefore; ///< the first one's number is one more
        const char* szText;
    };
    static constexpr SRange c_arrRanges[] = {
        {129, 144, 128, "detailed timing %1"},  {145, 160, 144, "type VII timing %1"},
        {254, 254, 253, "type VIII timing %1"}, {0, 0, 0, "reserved (%1)"},
        {128, 128, 0, "reserved (%1)"},         {161, 192, 0, "reserved (%1)"},
        {255, 255, 0, "reserved (%1)"},
    };
    const int nCode = int(source.field.nRaw);
    for (const SRange& range : c_arrRanges)
        if (nCode >= range.nFirst && nCode <= range.nLast)
            return Latin(range.szText).arg(nCode - range.nBefore);
    return VideoCodeValue(source);
}

QString HdmiCodeValue(const SSource& source)
{
    return ListedText(HdmiVideoCodes(), int(source.field.nRaw),
                      QStringLiteral("HDMI VIC %1").arg(source.field.nRaw));
}

QString DisplayModeValue(const SSource& source)
{
    return ListedText(DisplayTimings(), int(source.field.nRaw),
                      QStringLiteral("DMT 0x%1").arg(source.field.nRaw, 2, 16, QLatin1Char('0')));
}

QString DetailedModeValue(const SSource& source)
{
    return ModeText(ReadDetailed(source.Record()));
}

QString TypeIModeValue(const SSource& source)
{
    return ModeText(ReadTypeI(source.Record()));
}

QString TypeVIIModeValue(const SSource& source)
{
    return ModeText(ReadTypeVII(source.Record()));
}

QString TypeVIIModelineValue(const SSource& source)
{
    return Modeline(ReadTypeVII(source.Record()));
}

QString ModelineValue(const SSource& source)
{
    const bool bDetailed = source.field.nSize == c_nDescriptorSize;
    return Modeline(bDetailed ? ReadDetailed(source.Record()) : ReadTypeI(source.Record()));
}

QString CoverageValue(const SSource& source)
{
    return CoverageText(source.Record() - c_nChromaticityOffset);
}

QString TemperatureValue(const SSource& source)
{
    return TemperatureText(source.Record() - c_nChromaticityOffset);
}

/// An organisation's number in the order in which it is written.
QString OuiValue(const SSource& source)
{
    const QString strDigits = QStringLiteral("%1").arg(source.field.nRaw, 6, 16, QLatin1Char('0')).toUpper();
    return QStringLiteral("%1-%2-%3").arg(strDigits.mid(0, 2), strDigits.mid(2, 2), strDigits.mid(4));
}

using ValueFunction = QString (*)(const SSource& source);

struct SValueKind
{
    enKind kind;
    ValueFunction pText;
};

constexpr SValueKind c_arrKinds[] = {
    {enKind::enNumber, &NumberValue},
    {enKind::enSigned, &NumberValue},
    {enKind::enHex, &HexValue},
    {enKind::enFlag, &FlagValue},
    {enKind::enChoice, &ChoiceValue},
    {enKind::enText, &TextValue},
    {enKind::enBytes, &BytesValue},
    {enKind::enGroup, &NoValue},
    {enKind::enDescriptor, &NoValue},
    {enKind::enMaker, &MakerValue},
    {enKind::enWeek, &WeekValue},
    {enKind::enGamma, &GammaValue},
    {enKind::enChecksum, &ChecksumValue},
    {enKind::enStandard, &StandardValue},
    {enKind::enCvtCode, &CvtCodeValue},
    {enKind::enVideoCode, &VideoCodeValue},
    {enKind::enPreference, &PreferenceValue},
    {enKind::enHdmiCode, &HdmiCodeValue},
    {enKind::enEstablished, &FlagValue},
    {enKind::enModeline, &ModelineValue},
    {enKind::enMode, &DetailedModeValue},
    {enKind::enTypeIMode, &TypeIModeValue},
    {enKind::enTypeVIIMode, &TypeVIIModeValue},
    {enKind::enTypeVIIModeline, &TypeVIIModelineValue},
    {enKind::enDataBlock, &NoValue},
    {enKind::enSectionBlock, &NoValue},
    {enKind::enCoverage, &CoverageValue},
    {enKind::enTemperature, &TemperatureValue},
    {enKind::enReal, &RealValue},
    {enKind::enDisplayMode, &DisplayModeValue},
    {enKind::enOui, &OuiValue},
};

ValueFunction FunctionOf(enKind kind)
{
    const auto IsIt = [=](const SValueKind& row) { return row.kind == kind; };
    return std::find_if(std::begin(c_arrKinds), std::end(c_arrKinds), IsIt)->pText;
}

QString EstablishedLabel(const SField& field)
{
    const bool bBase = field.pType->nOffset >= c_nEstablishedOffset;
    const EstablishedList& vecEstablished = bBase ? EstablishedTimings() : EstablishedTimingsIII();
    const SEstablished& established = vecEstablished[std::size_t(field.nIndex - 1)];
    const QString strOrigin =
        established.byDmt == 0 ? Latin(established.szOrigin)
                               : QStringLiteral("DMT 0x%1").arg(established.byDmt, 2, 16, QLatin1Char('0'));
    return QStringLiteral("%1 (%2)").arg(ModeText(TimingOf(*established.pTiming)), strOrigin);
}

} // namespace

MakerNames ReadMakerNames(const QByteArray& list)
{
    constexpr int c_nLetters = 3;
    MakerNames makerNames;
    for (const QByteArray& line : list.split('\n'))
        if (line.size() > c_nLetters && line[c_nLetters] == '\t')
            makerNames.insert(QString::fromLatin1(line.left(c_nLetters)),
                              QString::fromUtf8(line.mid(c_nLetters + 1)).trimmed());
    return makerNames;
}

QString MakerLetters(qint64 nRaw)
{
    constexpr int c_nBits = 5;
    constexpr int c_nLetters = 3;
    constexpr int c_nMask = 0x1F;
    constexpr int c_nAlphabet = 26;
    QString strLetters;
    for (int i = c_nLetters - 1; i >= 0; --i) {
        const int nLetter = int(nRaw >> (i * c_nBits)) & c_nMask;
        const bool bLetter = nLetter >= 1 && nLetter <= c_nAlphabet;
        strLetters += bLetter ? QLatin1Char(static_cast<char>('A' + nLetter - 1)) : QLatin1Char('?');
    }
    return strLetters;
}

QString FieldCharacters(const quint8* pText, int nSize)
{
    const quint8* pEnd = std::find(pText, pText + nSize, quint8('\n'));
    QString strText;
    for (const quint8* p = pText; p != pEnd; ++p)
        strText += *p >= ' ' && *p < 0x7F ? QString(QLatin1Char(char(*p)))
                                          : QStringLiteral("\\x%1").arg(*p, 2, 16, QLatin1Char('0'));
    return strText;
}

QVector<int> FieldOffsets(const SField& field)
{
    const SFieldType& type = *field.pType;
    const auto HoldsBits = [&](int nByte) {
        const auto IsIt = [=](const SBits& bits) { return bits.byByte == nByte; };
        return type.nPieces == 0 ||
               std::any_of(type.arrPieces.begin(), type.arrPieces.begin() + type.nPieces, IsIt);
    };
    QVector<int> vecOffsets;
    for (int i = 0; i < field.nSize; ++i)
        if (HoldsBits(type.nOffset + i))
            vecOffsets.append(field.nOffset + i);
    return vecOffsets;
}

QString FieldHex(const SField& field, const quint8* pBytes)
{
    QByteArray bytes;
    for (const int nOffset : FieldOffsets(field))
        bytes += char(pBytes[nOffset]);
    return HexText(reinterpret_cast<const quint8*>(bytes.constData()), int(bytes.size()));
}

QString HexText(const quint8* pBytes, int nSize)
{
    return QString::fromLatin1(
        QByteArray::fromRawData(reinterpret_cast<const char*>(pBytes), nSize).toHex(' ').toUpper());
}

QString LabelText(const SField& field)
{
    const QString strNumber = field.nIndex == 0 ? QString() : QStringLiteral(" %1").arg(field.nIndex);
    switch (field.pType->kind) {
    case enKind::enEstablished:
        return EstablishedLabel(field);
    case enKind::enDescriptor:
        return QStringLiteral("Descriptor %1, %2")
            .arg(field.nIndex)
            .arg(Latin(field.pType->szLabel).toLower());
    case enKind::enDataBlock:
        return Latin(CtaBlockName(field.nRaw));
    case enKind::enSectionBlock:
        return Latin(DisplayIdBlockName(quint8(field.nRaw)));
    default:
        return Latin(field.pType->szLabel) + strNumber;
    }
}

QString ValueText(const SField& field, const quint8* pBytes, const MakerNames& makerNames)
{
    return FunctionOf(field.pType->kind)({field, pBytes, makerNames});
}

QJsonValue ValueJson(const SField& field, const quint8* pBytes, const MakerNames& makerNames)
{
    switch (field.pType->kind) {
    case enKind::enNumber:
    case enKind::enSigned:
    case enKind::enReal:
        return field.dValue;
    case enKind::enFlag:
    case enKind::enEstablished:
        return field.nRaw != 0;
    case enKind::enGroup:
    case enKind::enDescriptor:
    case enKind::enDataBlock:
    case enKind::enSectionBlock:
        return QJsonValue::Null;
    default:
        return ValueText(field, pBytes, makerNames);
    }
}

} // namespace Edid
