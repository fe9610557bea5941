#include "instruments/edid/Editing.h"

#include "SenderModuleDialog/colour/ColourStandards.h"
#include "instruments/colour/StandardNames.h"
#include "instruments/edid/BaseLayout.h"
#include "instruments/edid/BlockChecksums.h"
#include "instruments/edid/Checksum.h"
#include "instruments/edid/DetailedTiming.h"
#include "instruments/edid/FieldValues.h"

#include <QVector>

#include <algorithm>
#include <iterator>

namespace Edid {

namespace {

constexpr quint8 c_arrHeader[] = {0x00, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x00};

quint8* BytesOf(QByteArray& edid)
{
    return reinterpret_cast<quint8*>(edid.data());
}

bool IsFrom14(const quint8* pBlock)
{
    return Get(pBlock, c_layoutBase[enVersion]) == 1 && Get(pBlock, c_layoutBase[enRevision]) >= 4;
}

quint8* Descriptor(quint8* pBlock, int nIndex)
{
    const int nOffset = c_nDescriptorOffset + nIndex * c_nDescriptorSize;
    return pBlock + nOffset;
}

/// The descriptor with a tag, else an unused one; null when every one is taken.
quint8* FindDescriptor(quint8* pBlock, quint8 byTag)
{
    for (const quint8 byWanted : {byTag, c_byDummyTag})
        for (int i = 0; i < c_nDescriptorCount; ++i) {
            quint8* pDescriptor = Descriptor(pBlock, i);
            if (!IsDetailed(pDescriptor) && pDescriptor[c_nTagOffset] == byWanted)
                return pDescriptor;
        }
    return nullptr;
}

QString NoDescriptor()
{
    return QStringLiteral("no descriptor is free; the block has room for four");
}

QString OutOfRange(const QString& strValue, const QString& strRange)
{
    return QStringLiteral("'%1' does not fit; give %2").arg(strValue, strRange);
}

QString SetMaker(quint8* pBlock, const QString& strValue)
{
    const std::optional<int> maker = MakerNumber(strValue);
    if (!maker)
        return OutOfRange(strValue, QStringLiteral("three letters A to Z"));
    Put(pBlock, c_layoutBase[enMakerId], *maker);
    return {};
}

/// A number in decimal digits or, behind 0x, hexadecimal ones.
QString SetNumber(quint8* pBlock, int nRow, const QString& strValue)
{
    bool bRead = false;
    const qulonglong nValue = strValue.toULongLong(&bRead, 0);
    const qint64 nLargest = c_layoutBase[nRow].MaxRaw();
    if (!bRead || nValue > qulonglong(nLargest))
        return OutOfRange(strValue, QStringLiteral("a number from 0 to %1").arg(nLargest));
    Put(pBlock, c_layoutBase[nRow], qint64(nValue));
    return {};
}

QString SetProduct(quint8* pBlock, const QString& strValue)
{
    return SetNumber(pBlock, enProduct, strValue);
}

QString SetSerial(quint8* pBlock, const QString& strValue)
{
    return SetNumber(pBlock, enSerial, strValue);
}

QString SetDate(quint8* pBlock, const QString& strValue)
{
    constexpr int c_nFirstYear = 1990;
    constexpr int c_nLastYear = c_nFirstYear + 255;
    constexpr int c_nLastWeek = 53;
    const bool bWeek = strValue.contains(QLatin1Char('W'));
    const SPair pair = ReadPair(bWeek ? strValue : strValue + QStringLiteral("W0"), QLatin1Char('W'));
    const double dYear = pair.dFirst;
    if (!pair.bRead || !IsWhole(dYear, c_nFirstYear, c_nLastYear) ||
        !IsWhole(pair.dSecond, bWeek ? 1 : 0, c_nLastWeek))
        return OutOfRange(strValue,
                          QStringLiteral("a year from 1990 to 2245, with a week from 1 to 53 as 2026W12"));
    Put(pBlock, c_layoutBase[enYear], int(dYear) - c_nFirstYear);
    Put(pBlock, c_layoutBase[enWeek], int(pair.dSecond));
    return {};
}

/// The size stands in the basic parameters and in the first detailed timing.
QString SetSize(quint8* pBlock, const QString& strValue)
{
    constexpr int c_nMmPerCm = 10;
    constexpr int c_nLargestCm = 255;
    const SPair pair = ReadPair(strValue, QLatin1Char('x'));
    const bool bBothOrNone = (pair.dFirst == 0) == (pair.dSecond == 0);
    if (!pair.bRead || !bBothOrNone || !IsWhole(pair.dFirst, 0, c_nLargestCm) ||
        !IsWhole(pair.dSecond, 0, c_nLargestCm))
        return OutOfRange(strValue, QStringLiteral("centimetres from 1x1 to 255x255, or 0x0 for unknown"));
    Put(pBlock, c_layoutBase[enWidthCm], int(pair.dFirst));
    Put(pBlock, c_layoutBase[enHeightCm], int(pair.dSecond));
    quint8* pFirst = Descriptor(pBlock, 0);
    if (IsDetailed(pFirst)) {
        Put(pFirst, c_layoutDetailed[enWidthMm], qint64(pair.dFirst) * c_nMmPerCm);
        Put(pFirst, c_layoutDetailed[enHeightMm], qint64(pair.dSecond) * c_nMmPerCm);
    }
    return {};
}

QString SetGamma(quint8* pBlock, const QString& strValue)
{
    constexpr double c_dLowest = 1.0;
    constexpr double c_dHighest = 3.54;
    bool bRead = false;
    const double dGamma = strValue.toDouble(&bRead);
    if (!bRead || !(dGamma >= c_dLowest && dGamma <= c_dHighest))
        return OutOfRange(strValue, QStringLiteral("a gamma from 1.00 to 3.54"));
    Put(pBlock, c_layoutBase[enGammaRow], qRound((dGamma - 1.0) * 100.0));
    return {};
}

QString SetText(quint8* pBlock, quint8 byTag, const QString& strValue)
{
    QString strError = TextError(strValue);
    if (!strError.isEmpty())
        return strError;
    quint8* pDescriptor = FindDescriptor(pBlock, byTag);
    if (pDescriptor == nullptr)
        return NoDescriptor();
    WriteTextDescriptor(pDescriptor, byTag, strValue);
    return {};
}

QString SetName(quint8* pBlock, const QString& strValue)
{
    return SetText(pBlock, c_byNameTag, strValue);
}

QString SetSerialText(quint8* pBlock, const QString& strValue)
{
    return SetText(pBlock, c_bySerialTag, strValue);
}

QString SetFreeText(quint8* pBlock, const QString& strValue)
{
    return SetText(pBlock, c_byTextTag, strValue);
}

/// Coordinates of red, green, blue and white.
using Points = QVector<SPair>;

Points PointsOf(const SColourStandard& standard)
{
    Points vecPoints;
    for (const CPointEx<float>& pt : {standard.ptRed, standard.ptGreen, standard.ptBlue, standard.ptWhite})
        vecPoints.append({double(pt.x), double(pt.y), true});
    return vecPoints;
}

Points ReadPoints(const QString& strValue)
{
    if (const SColourStandard* const pStandard = FindColourStandard(strValue))
        return PointsOf(*pStandard);
    Points vecPoints;
    for (const QString& strPoint : strValue.split(QLatin1Char(';')))
        vecPoints.append(ReadPair(strPoint, QLatin1Char(',')));
    return vecPoints;
}

QString SetPrimaries(quint8* pBlock, const QString& strValue)
{
    constexpr double c_dSteps = 1024.0;
    constexpr double c_dLargest = 1023.0 / c_dSteps;
    constexpr int c_nPoints = 4;
    const auto IsPoint = [](const SPair& pair) {
        return pair.bRead && pair.dFirst >= 0.0 && pair.dFirst <= c_dLargest && pair.dSecond >= 0.0 &&
               pair.dSecond <= c_dLargest;
    };
    const Points vecPoints = ReadPoints(strValue);
    if (vecPoints.size() != c_nPoints || !std::all_of(vecPoints.begin(), vecPoints.end(), IsPoint))
        return OutOfRange(
            strValue,
            QStringLiteral("a standard such as sRGB, or red, green, blue and white as x,y;x,y;x,y;x,y with "
                           "coordinates from 0 to 0.9990"));
    int nRow = enRedX;
    for (const SPair& pair : vecPoints) {
        Put(pBlock, c_layoutBase[nRow++], qRound(pair.dFirst * c_dSteps));
        Put(pBlock, c_layoutBase[nRow++], qRound(pair.dSecond * c_dSteps));
    }
    return {};
}

/// The first descriptor becomes a timing with reduced blanking; the image size of one that was there stays.
QString SetMode(quint8* pBlock, const QString& strValue)
{
    const QString strRange =
        QStringLiteral("WIDTHxHEIGHT@RATE of at most 4095x4095 and 655.35 MHz; larger modes need the "
                       "second block that 'edid --conform' makes");
    const std::optional<SModeTiming> timing = ModeOf(strValue);
    if (!timing || !FitsDetailed(*timing))
        return OutOfRange(strValue, strRange);
    ReplaceDetailed(Descriptor(pBlock, 0), *timing);
    return {};
}

/// `VMIN-VMAX,HMIN-HMAX,CLOCK`, in Hz, kHz and MHz.
std::optional<SRangeLimits> ReadLimits(const QString& strValue, bool bFrom14)
{
    const double dLargest = bFrom14 ? 510.0 : 255.0;
    constexpr double c_dLargestClock = 2550.0;
    const QStringList listParts = strValue.split(QLatin1Char(','));
    const SPair vertical = ReadPair(listParts.value(0), QLatin1Char('-'));
    const SPair horizontal = ReadPair(listParts.value(1), QLatin1Char('-'));
    bool bClock = false;
    const double dClock = listParts.value(2).toDouble(&bClock);
    const auto IsPair = [=](const SPair& pair) {
        return pair.bRead && IsWhole(pair.dFirst, 1, dLargest) &&
               IsWhole(pair.dSecond, pair.dFirst, dLargest);
    };
    const bool bSteps = bClock && IsWhole(dClock / 10.0, 1, c_dLargestClock / 10.0);
    if (listParts.size() != 3 || !IsPair(vertical) || !IsPair(horizontal) || !bSteps)
        return std::nullopt;
    return SRangeLimits{int(vertical.dFirst), int(vertical.dSecond), int(horizontal.dFirst),
                        int(horizontal.dSecond), int(dClock)};
}

QString SetRange(quint8* pBlock, const QString& strValue)
{
    const bool bFrom14 = IsFrom14(pBlock);
    const std::optional<SRangeLimits> limits = strValue == QLatin1String("auto")
                                                   ? LimitsFor(TimingsOf(pBlock), bFrom14)
                                                   : ReadLimits(strValue, bFrom14);
    if (!limits)
        return OutOfRange(
            strValue,
            QStringLiteral("'auto', or VMIN-VMAX,HMIN-HMAX,CLOCK with rates from 1 to %1 Hz and kHz and a "
                           "clock from 10 to 2550 MHz in steps of 10")
                .arg(bFrom14 ? 510 : 255));
    quint8* pDescriptor = FindDescriptor(pBlock, c_byRangeTag);
    if (pDescriptor == nullptr)
        return NoDescriptor();
    if (pDescriptor[c_nTagOffset] == c_byRangeTag)
        PutLimits(pDescriptor, *limits, bFrom14);
    else
        WriteRange(pDescriptor, *limits, bFrom14);
    return {};
}

struct SEditor
{
    SEditable editable;
    QString (*pSet)(quint8* pBlock, const QString& strValue);
};

constexpr SEditor c_arrEditors[] = {
    {{"name", "TEXT"}, &SetName},
    {{"serial-text", "TEXT"}, &SetSerialText},
    {{"text", "TEXT"}, &SetFreeText},
    {{"maker", "LETTERS"}, &SetMaker},
    {{"product", "NUMBER"}, &SetProduct},
    {{"serial", "NUMBER"}, &SetSerial},
    {{"date", "YEAR or YEARWweek"}, &SetDate},
    {{"size", "WIDTHxHEIGHT in cm"}, &SetSize},
    {{"gamma", "GAMMA"}, &SetGamma},
    {{"primaries", "STANDARD or x,y;x,y;x,y;x,y"}, &SetPrimaries},
    {{"mode", "WIDTHxHEIGHT@RATE"}, &SetMode},
    {{"range", "auto or VMIN-VMAX,HMIN-HMAX,CLOCK"}, &SetRange},
};

} // namespace

const QVector<SEditable>& Editables()
{
    static const QVector<SEditable> s_vecEditables = [] {
        QVector<SEditable> vecEditables;
        for (const SEditor& editor : c_arrEditors)
            vecEditables.append(editor.editable);
        return vecEditables;
    }();
    return s_vecEditables;
}

QString SetValue(QByteArray& edid, const QString& strKey, const QString& strValue)
{
    const auto HasKey = [&](const SEditor& editor) { return strKey == QLatin1String(editor.editable.szKey); };
    const SEditor* pEditor = std::find_if(std::begin(c_arrEditors), std::end(c_arrEditors), HasKey);
    if (pEditor == std::end(c_arrEditors)) {
        QStringList listKeys;
        for (const SEditor& editor : c_arrEditors)
            listKeys += QString::fromLatin1(editor.editable.szKey);
        return QStringLiteral("unknown field '%1'; give one of: %2")
            .arg(strKey, listKeys.join(QStringLiteral(", ")));
    }
    const CKeptChecksums checksums(edid, 0);
    QString strError = pEditor->pSet(BytesOf(edid), strValue);
    checksums.Restore(edid);
    return strError;
}

void Fix(QByteArray& edid)
{
    constexpr int c_nMostExtensions = 255;
    quint8* pBytes = BytesOf(edid);
    const int nExtensions = int(edid.size()) / c_nEdidBlockSize - 1;
    std::copy(std::begin(c_arrHeader), std::end(c_arrHeader), pBytes);
    Put(pBytes, c_layoutBase[enExtensionCount], std::min(nExtensions, c_nMostExtensions));
    for (int nBlock = 0; nBlock + c_nEdidBlockSize <= edid.size(); nBlock += c_nEdidBlockSize) {
        if (nBlock > 0)
            PutSectionChecksum(edid, nBlock);
        PutChecksum(edid, nBlock);
    }
}

void DropExtensions(QByteArray& edid)
{
    edid.truncate(c_nEdidBlockSize);
    edid[c_nExtensionCountOffset] = 0;
    PutChecksum(edid, 0);
}

} // namespace Edid
