#include "workbench/edid/EdidFields.h"

#include "SenderModuleDialog/edid/EdidLayout.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <iterator>
#include <numeric>

namespace EdidFields {

namespace {

/// A block as seen by its decoders.
class CBlock
{
public:
    explicit CBlock(const QByteArray& block)
        : m_block(block)
    {}

    int Value(const EdidLayout::SNumber& number) const
    {
        return EdidLayout::Read(m_block.constData(), number);
    }
    bool Is(const EdidLayout::SNumber& flag) const { return Value(flag) == 1; }
    QByteArray Bytes(const EdidLayout::SBytes& place) const
    {
        return m_block.mid(place.nOffset, place.nLength);
    }

private:
    const QByteArray& m_block;
};

/// Translation context of the fields.
class CEdidFieldText
{
    Q_DECLARE_TR_FUNCTIONS(CEdidFieldText)
};

QString Hex(const QByteArray& bytes)
{
    return QString::fromLatin1(bytes.toHex(' ').toUpper());
}

QString Pixels(int nValue)
{
    return CEdidFieldText::tr("%1 像素").arg(nValue);
}

QString Lines(int nValue)
{
    return CEdidFieldText::tr("%1 行").arg(nValue);
}

QString Header(const CBlock& block)
{
    static const QByteArray s_header = QByteArray::fromHex("00ffffffffffff00");
    return block.Bytes(EdidLayout::c_header) == s_header ? CEdidFieldText::tr("正确")
                                                         : CEdidFieldText::tr("错误");
}

/// Three letters of five bits each, 1 for A; a value above 26 is not a letter.
QString Manufacturer(const CBlock& block)
{
    constexpr int c_nLetters = 26;
    const int arrFields[] = {block.Value(EdidLayout::c_firstLetter), block.Value(EdidLayout::c_secondLetter),
                             block.Value(EdidLayout::c_thirdLetter)};
    const bool bLetters = std::all_of(std::begin(arrFields), std::end(arrFields),
                                      [](int nField) { return nField >= 1 && nField <= c_nLetters; });
    if (!bLetters)
        return CEdidFieldText::tr("%1 %2 %3（不是字母）")
            .arg(arrFields[0])
            .arg(arrFields[1])
            .arg(arrFields[2]);
    QString strLetters;
    for (const int nField : arrFields)
        strLetters.append(QLatin1Char(char('A' + nField - 1)));
    return strLetters;
}

QString ProductCode(const CBlock& block)
{
    return QString::number(block.Value(EdidLayout::c_productCode));
}

QString SerialNumber(const CBlock& block)
{
    return Hex(block.Bytes(EdidLayout::c_serialNumber));
}

QString Manufactured(const CBlock& block)
{
    constexpr int c_nFirstYear = 1990;
    const int nYear = c_nFirstYear + block.Value(EdidLayout::c_year);
    const int nWeek = block.Value(EdidLayout::c_week);
    return nWeek == 0 ? CEdidFieldText::tr("%1 年").arg(nYear)
                      : CEdidFieldText::tr("%1 年第 %2 周").arg(nYear).arg(nWeek);
}

QString Version(const CBlock& block)
{
    return QStringLiteral("%1.%2")
        .arg(block.Value(EdidLayout::c_versionNumber))
        .arg(block.Value(EdidLayout::c_revisionNumber));
}

QString Input(const CBlock& block)
{
    return block.Is(EdidLayout::c_isDigital) ? CEdidFieldText::tr("数字") : CEdidFieldText::tr("模拟");
}

QString PhysicalSize(const CBlock& block)
{
    // In revision 1.3 the size is undefined when either of the two is zero.
    const int nWidth = block.Value(EdidLayout::c_widthCm);
    const int nHeight = block.Value(EdidLayout::c_heightCm);
    if (nWidth == 0 || nHeight == 0)
        return CEdidFieldText::tr("未知");
    return QStringLiteral("%1 × %2 cm").arg(nWidth).arg(nHeight);
}

QString Gamma(const CBlock& block)
{
    return QString::number((block.Value(EdidLayout::c_gamma) + 100) / 100.0, 'f', 2);
}

QString Features(const CBlock& block)
{
    return block.Is(EdidLayout::c_prefersFirstTiming) ? CEdidFieldText::tr("第一个详细时序为首选")
                                                      : CEdidFieldText::tr("没有首选时序");
}

/// One chromaticity, in units of 1/1024.
QString Chromaticity(const CBlock& block, const EdidLayout::SNumber& x, const EdidLayout::SNumber& y)
{
    return QStringLiteral("x %1, y %2")
        .arg(block.Value(x) / 1024.0, 0, 'f', 4)
        .arg(block.Value(y) / 1024.0, 0, 'f', 4);
}

QString Red(const CBlock& block)
{
    return Chromaticity(block, EdidLayout::c_redX, EdidLayout::c_redY);
}

QString Green(const CBlock& block)
{
    return Chromaticity(block, EdidLayout::c_greenX, EdidLayout::c_greenY);
}

QString Blue(const CBlock& block)
{
    return Chromaticity(block, EdidLayout::c_blueX, EdidLayout::c_blueY);
}

QString White(const CBlock& block)
{
    return Chromaticity(block, EdidLayout::c_whiteX, EdidLayout::c_whiteY);
}

QString EstablishedTimings(const CBlock& block)
{
    return block.Is(EdidLayout::c_svga60) ? QStringLiteral("800 × 600, 60 Hz") : CEdidFieldText::tr("无");
}

QString StandardTimings(const CBlock& block)
{
    const QByteArray timings = block.Bytes(EdidLayout::c_standardTimings);
    const QByteArray unused(EdidLayout::c_nStandardTimingSize, 1);
    int nUsed = 0;
    for (int i = 0; i < timings.size(); i += EdidLayout::c_nStandardTimingSize)
        nUsed += timings.mid(i, EdidLayout::c_nStandardTimingSize) == unused ? 0 : 1;
    return nUsed == 0 ? CEdidFieldText::tr("无") : QString::number(nUsed);
}

QString PixelClock(const CBlock& block)
{
    return QStringLiteral("%1 MHz").arg(block.Value(EdidLayout::c_pixelClock) / 100.0, 0, 'f', 2);
}

QString Width(const CBlock& block)
{
    return Pixels(block.Value(EdidLayout::c_width));
}

QString HBlank(const CBlock& block)
{
    return Pixels(block.Value(EdidLayout::c_hBlank));
}

QString Height(const CBlock& block)
{
    return Lines(block.Value(EdidLayout::c_height));
}

QString VBlank(const CBlock& block)
{
    return Lines(block.Value(EdidLayout::c_vBlank));
}

QString HFrontPorch(const CBlock& block)
{
    return Pixels(block.Value(EdidLayout::c_hFrontPorch));
}

QString HSync(const CBlock& block)
{
    return Pixels(block.Value(EdidLayout::c_hSync));
}

QString VFrontPorch(const CBlock& block)
{
    return Lines(block.Value(EdidLayout::c_vFrontPorch));
}

QString VSync(const CBlock& block)
{
    return Lines(block.Value(EdidLayout::c_vSync));
}

QString Sign(bool bPositive)
{
    return bPositive ? QStringLiteral("+") : QStringLiteral("−");
}

QString SyncPolarity(const CBlock& block)
{
    return CEdidFieldText::tr("水平 %1，垂直 %2")
        .arg(Sign(block.Is(EdidLayout::c_hSyncPositive)), Sign(block.Is(EdidLayout::c_vSyncPositive)));
}

/// Text of a descriptor: up to the line feed, without the fill.
QString DescriptorText(const CBlock& block, const EdidLayout::SBytes& place)
{
    QByteArray text = block.Bytes(place);
    for (const char chEnd : {'\n', '\0'}) {
        const int nEnd = text.indexOf(chEnd);
        if (nEnd >= 0)
            text.truncate(nEnd);
    }
    return QString::fromLatin1(text);
}

QString SerialText(const CBlock& block)
{
    return DescriptorText(block, EdidLayout::c_serialText);
}

QString MonitorName(const CBlock& block)
{
    return DescriptorText(block, EdidLayout::c_nameText);
}

QString VerticalRange(const CBlock& block)
{
    return QStringLiteral("%1 – %2 Hz")
        .arg(block.Value(EdidLayout::c_minVertical))
        .arg(block.Value(EdidLayout::c_maxVertical));
}

QString HorizontalRange(const CBlock& block)
{
    return QStringLiteral("%1 – %2 kHz")
        .arg(block.Value(EdidLayout::c_minHorizontal))
        .arg(block.Value(EdidLayout::c_maxHorizontal));
}

QString MaximumClock(const CBlock& block)
{
    return QStringLiteral("%1 MHz").arg(block.Value(EdidLayout::c_maxClock) * 10);
}

QString Extensions(const CBlock& block)
{
    return QString::number(quint8(block.Bytes(EdidLayout::c_extensionCount).at(0)));
}

QString Checksum(const CBlock& block)
{
    const QByteArray bytes = block.Bytes({"", 0, c_nEdidBlockSize});
    const unsigned nSum = std::accumulate(bytes.cbegin(), bytes.cend(), 0U,
                                          [](unsigned nBefore, char ch) { return nBefore + quint8(ch); });
    return (nSum & 0xFFU) == 0 ? CEdidFieldText::tr("正确") : CEdidFieldText::tr("错误");
}

/// The bytes of a field in ascending order, each once.
struct SPlaces
{
    std::array<int, 18> arrOffsets = {};
    int nCount = 0;

    constexpr void Add(int nOffset)
    {
        int i = nCount;
        for (; i > 0 && arrOffsets[std::size_t(i - 1)] >= nOffset; --i)
            if (arrOffsets[std::size_t(i - 1)] == nOffset)
                return;
        for (int j = nCount++; j > i; --j)
            arrOffsets[std::size_t(j)] = arrOffsets[std::size_t(j - 1)];
        arrOffsets[std::size_t(i)] = nOffset;
    }
};

constexpr void Add(SPlaces& places, const EdidLayout::SBytes& bytes)
{
    for (int i = 0; i < bytes.nLength; ++i)
        places.Add(bytes.nOffset + i);
}

constexpr void Add(SPlaces& places, const EdidLayout::SNumber& number)
{
    places.Add(number.low.nOffset);
    if (number.high.nCount > 0)
        places.Add(number.high.nOffset);
}

template <class... TFields>
constexpr SPlaces In(const TFields&... fields)
{
    SPlaces places;
    (Add(places, fields), ...);
    return places;
}

/// A row: group, name, position of the bytes, decoder.
struct SFieldRow
{
    const char* szGroup;
    const char* szName;
    SPlaces places;
    QString (*pDecode)(const CBlock& block);
};

constexpr const char* c_szProduct = QT_TRANSLATE_NOOP("CEdidFieldText", "产品");
constexpr const char* c_szDisplay = QT_TRANSLATE_NOOP("CEdidFieldText", "显示");
constexpr const char* c_szColour = QT_TRANSLATE_NOOP("CEdidFieldText", "色度");
constexpr const char* c_szTimings = QT_TRANSLATE_NOOP("CEdidFieldText", "时序");
constexpr const char* c_szDetailed = QT_TRANSLATE_NOOP("CEdidFieldText", "详细时序");
constexpr const char* c_szDescriptors = QT_TRANSLATE_NOOP("CEdidFieldText", "描述符");
constexpr const char* c_szEnd = QT_TRANSLATE_NOOP("CEdidFieldText", "结尾");

const SFieldRow c_arrFields[] = {
    {c_szProduct, QT_TRANSLATE_NOOP("CEdidFieldText", "标头"), In(EdidLayout::c_header), Header},
    {c_szProduct, QT_TRANSLATE_NOOP("CEdidFieldText", "制造商"),
     In(EdidLayout::c_firstLetter, EdidLayout::c_secondLetter), Manufacturer},
    {c_szProduct, QT_TRANSLATE_NOOP("CEdidFieldText", "产品代码"), In(EdidLayout::c_productCode),
     ProductCode},
    {c_szProduct, QT_TRANSLATE_NOOP("CEdidFieldText", "序列号"), In(EdidLayout::c_serialNumber),
     SerialNumber},
    {c_szProduct, QT_TRANSLATE_NOOP("CEdidFieldText", "制造时间"), In(EdidLayout::c_week, EdidLayout::c_year),
     Manufactured},
    {c_szProduct, QT_TRANSLATE_NOOP("CEdidFieldText", "EDID 版本"), In(EdidLayout::c_version), Version},
    {c_szDisplay, QT_TRANSLATE_NOOP("CEdidFieldText", "输入"), In(EdidLayout::c_input), Input},
    {c_szDisplay, QT_TRANSLATE_NOOP("CEdidFieldText", "物理尺寸"),
     In(EdidLayout::c_widthCm, EdidLayout::c_heightCm), PhysicalSize},
    {c_szDisplay, QT_TRANSLATE_NOOP("CEdidFieldText", "伽马"), In(EdidLayout::c_gamma), Gamma},
    {c_szDisplay, QT_TRANSLATE_NOOP("CEdidFieldText", "特性"), In(EdidLayout::c_features), Features},
    {c_szColour, QT_TRANSLATE_NOOP("CEdidFieldText", "红"), In(EdidLayout::c_redX, EdidLayout::c_redY), Red},
    {c_szColour, QT_TRANSLATE_NOOP("CEdidFieldText", "绿"), In(EdidLayout::c_greenX, EdidLayout::c_greenY),
     Green},
    {c_szColour, QT_TRANSLATE_NOOP("CEdidFieldText", "蓝"), In(EdidLayout::c_blueX, EdidLayout::c_blueY),
     Blue},
    {c_szColour, QT_TRANSLATE_NOOP("CEdidFieldText", "白"), In(EdidLayout::c_whiteX, EdidLayout::c_whiteY),
     White},
    {c_szTimings, QT_TRANSLATE_NOOP("CEdidFieldText", "既定时序"), In(EdidLayout::c_establishedTimings),
     EstablishedTimings},
    {c_szTimings, QT_TRANSLATE_NOOP("CEdidFieldText", "标准时序"), In(EdidLayout::c_standardTimings),
     StandardTimings},
    {c_szDetailed, QT_TRANSLATE_NOOP("CEdidFieldText", "像素时钟"), In(EdidLayout::c_pixelClock), PixelClock},
    {c_szDetailed, QT_TRANSLATE_NOOP("CEdidFieldText", "宽"), In(EdidLayout::c_width), Width},
    {c_szDetailed, QT_TRANSLATE_NOOP("CEdidFieldText", "水平消隐"), In(EdidLayout::c_hBlank), HBlank},
    {c_szDetailed, QT_TRANSLATE_NOOP("CEdidFieldText", "高"), In(EdidLayout::c_height), Height},
    {c_szDetailed, QT_TRANSLATE_NOOP("CEdidFieldText", "垂直消隐"), In(EdidLayout::c_vBlank), VBlank},
    {c_szDetailed, QT_TRANSLATE_NOOP("CEdidFieldText", "水平前肩"), In(EdidLayout::c_hFrontPorch),
     HFrontPorch},
    {c_szDetailed, QT_TRANSLATE_NOOP("CEdidFieldText", "水平同步"), In(EdidLayout::c_hSync), HSync},
    {c_szDetailed, QT_TRANSLATE_NOOP("CEdidFieldText", "垂直前肩"), In(EdidLayout::c_vFrontPorch),
     VFrontPorch},
    {c_szDetailed, QT_TRANSLATE_NOOP("CEdidFieldText", "垂直同步"), In(EdidLayout::c_vSync), VSync},
    {c_szDetailed, QT_TRANSLATE_NOOP("CEdidFieldText", "同步极性"), In(EdidLayout::c_timingFlags),
     SyncPolarity},
    {c_szDescriptors, QT_TRANSLATE_NOOP("CEdidFieldText", "序列文本"), In(EdidLayout::c_serialDescriptor),
     SerialText},
    {c_szDescriptors, QT_TRANSLATE_NOOP("CEdidFieldText", "显示器名称"), In(EdidLayout::c_nameDescriptor),
     MonitorName},
    {c_szDescriptors, QT_TRANSLATE_NOOP("CEdidFieldText", "垂直频率"),
     In(EdidLayout::c_minVertical, EdidLayout::c_maxVertical), VerticalRange},
    {c_szDescriptors, QT_TRANSLATE_NOOP("CEdidFieldText", "水平频率"),
     In(EdidLayout::c_minHorizontal, EdidLayout::c_maxHorizontal), HorizontalRange},
    {c_szDescriptors, QT_TRANSLATE_NOOP("CEdidFieldText", "最大像素时钟"), In(EdidLayout::c_maxClock),
     MaximumClock},
    {c_szEnd, QT_TRANSLATE_NOOP("CEdidFieldText", "扩展块"), In(EdidLayout::c_extensionCount), Extensions},
    {c_szEnd, QT_TRANSLATE_NOOP("CEdidFieldText", "校验和"), In(EdidLayout::c_checksum), Checksum},
};

QVector<int> Offsets(const SPlaces& places)
{
    QVector<int> vecOffsets;
    std::copy_n(places.arrOffsets.cbegin(), places.nCount, std::back_inserter(vecOffsets));
    return vecOffsets;
}

} // namespace

QVector<SEdidField> Decode(const QByteArray& block)
{
    QVector<SEdidField> vecFields;
    if (block.size() != c_nEdidBlockSize)
        return vecFields;
    const CBlock reader(block);
    for (const SFieldRow& row : c_arrFields)
        vecFields.append({CEdidFieldText::tr(row.szGroup), CEdidFieldText::tr(row.szName),
                          row.pDecode(reader), Offsets(row.places)});
    return vecFields;
}

QVector<int> ChangedBytes(const QByteArray& blockBefore, const QByteArray& blockAfter)
{
    QVector<int> vecChanged;
    const int nSize = std::max(blockBefore.size(), blockAfter.size());
    for (int i = 0; i < nSize; ++i)
        if (i >= blockBefore.size() || i >= blockAfter.size() || blockBefore.at(i) != blockAfter.at(i))
            vecChanged.append(i);
    return vecChanged;
}

} // namespace EdidFields
