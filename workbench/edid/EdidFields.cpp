#include "workbench/edid/EdidFields.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>

namespace EdidFields {

namespace {

/// A block as its decoders read it.
class CBlock
{
public:
    explicit CBlock(const QByteArray& block)
        : m_block(block)
    {}

    int Byte(int nOffset) const { return int(quint8(m_block.at(nOffset))); }
    int Word(int nOffset) const { return Byte(nOffset) | Byte(nOffset + 1) << 8; }
    /// Bits nHigh to nLow of a byte.
    int Bits(int nOffset, int nHigh, int nLow) const
    {
        return (Byte(nOffset) >> nLow) & ((1 << (nHigh - nLow + 1)) - 1);
    }
    QByteArray Bytes(int nOffset, int nCount) const { return m_block.mid(nOffset, nCount); }

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
    return block.Bytes(0x00, 8) == s_header ? CEdidFieldText::tr("正确") : CEdidFieldText::tr("错误");
}

/// Three letters of five bits each, 1 for A; a value beyond 26 is no letter.
QString Manufacturer(const CBlock& block)
{
    constexpr int c_nLetters = 26;
    const int nId = block.Byte(0x08) << 8 | block.Byte(0x09);
    const int arrFields[] = {nId >> 10 & 31, nId >> 5 & 31, nId & 31};
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
    return QString::number(block.Word(0x0A));
}

QString SerialNumber(const CBlock& block)
{
    return Hex(block.Bytes(0x0C, 4));
}

QString Manufactured(const CBlock& block)
{
    constexpr int c_nFirstYear = 1990;
    const int nYear = c_nFirstYear + block.Byte(0x11);
    const int nWeek = block.Byte(0x10);
    return nWeek == 0 ? CEdidFieldText::tr("%1 年").arg(nYear)
                      : CEdidFieldText::tr("%1 年第 %2 周").arg(nYear).arg(nWeek);
}

QString Version(const CBlock& block)
{
    return QStringLiteral("%1.%2").arg(block.Byte(0x12)).arg(block.Byte(0x13));
}

QString Input(const CBlock& block)
{
    return block.Bits(0x14, 7, 7) == 1 ? CEdidFieldText::tr("数字") : CEdidFieldText::tr("模拟");
}

QString PhysicalSize(const CBlock& block)
{
    // In revision 1.3 the size is undefined when either of the two is zero.
    if (block.Byte(0x15) == 0 || block.Byte(0x16) == 0)
        return CEdidFieldText::tr("未知");
    return QStringLiteral("%1 × %2 cm").arg(block.Byte(0x15)).arg(block.Byte(0x16));
}

QString Gamma(const CBlock& block)
{
    return QString::number((block.Byte(0x17) + 100) / 100.0, 'f', 2);
}

QString Features(const CBlock& block)
{
    return block.Bits(0x18, 1, 1) == 1 ? CEdidFieldText::tr("第一个详细时序为首选")
                                       : CEdidFieldText::tr("没有首选时序");
}

/// One chromaticity: eight high bits of each coordinate and two low bits, in units of 1/1024.
QString Chromaticity(const CBlock& block, int nHighOffset, int nLowOffset, int nLowBit)
{
    const int nX = block.Byte(nHighOffset) << 2 | block.Bits(nLowOffset, nLowBit + 3, nLowBit + 2);
    const int nY = block.Byte(nHighOffset + 1) << 2 | block.Bits(nLowOffset, nLowBit + 1, nLowBit);
    return QStringLiteral("x %1, y %2").arg(nX / 1024.0, 0, 'f', 4).arg(nY / 1024.0, 0, 'f', 4);
}

QString Red(const CBlock& block)
{
    return Chromaticity(block, 0x1B, 0x19, 4);
}

QString Green(const CBlock& block)
{
    return Chromaticity(block, 0x1D, 0x19, 0);
}

QString Blue(const CBlock& block)
{
    return Chromaticity(block, 0x1F, 0x1A, 4);
}

QString White(const CBlock& block)
{
    return Chromaticity(block, 0x21, 0x1A, 0);
}

QString EstablishedTimings(const CBlock& block)
{
    return block.Bits(0x23, 0, 0) == 1 ? QStringLiteral("800 × 600, 60 Hz") : CEdidFieldText::tr("无");
}

QString StandardTimings(const CBlock& block)
{
    constexpr int c_nTimings = 8;
    const QByteArray unused(2, 1);
    int nUsed = 0;
    for (int i = 0; i < c_nTimings; ++i)
        nUsed += block.Bytes(0x26 + 2 * i, 2) == unused ? 0 : 1;
    return nUsed == 0 ? CEdidFieldText::tr("无") : QString::number(nUsed);
}

QString PixelClock(const CBlock& block)
{
    return QStringLiteral("%1 MHz").arg(block.Word(0x36) / 100.0, 0, 'f', 2);
}

QString Width(const CBlock& block)
{
    return Pixels(block.Byte(0x38) | block.Bits(0x3A, 7, 4) << 8);
}

QString HBlank(const CBlock& block)
{
    return Pixels(block.Byte(0x39) | block.Bits(0x3A, 3, 0) << 8);
}

QString Height(const CBlock& block)
{
    return Lines(block.Byte(0x3B) | block.Bits(0x3D, 7, 4) << 8);
}

QString VBlank(const CBlock& block)
{
    return Lines(block.Byte(0x3C) | block.Bits(0x3D, 3, 0) << 8);
}

QString HFrontPorch(const CBlock& block)
{
    return Pixels(block.Byte(0x3E) | block.Bits(0x41, 7, 6) << 8);
}

QString HSync(const CBlock& block)
{
    return Pixels(block.Byte(0x3F) | block.Bits(0x41, 5, 4) << 8);
}

QString VFrontPorch(const CBlock& block)
{
    return Lines(block.Bits(0x40, 7, 4) | block.Bits(0x41, 3, 2) << 4);
}

QString VSync(const CBlock& block)
{
    return Lines(block.Bits(0x40, 3, 0) | block.Bits(0x41, 1, 0) << 4);
}

QString Sign(int nBit)
{
    return nBit == 1 ? QStringLiteral("+") : QStringLiteral("−");
}

QString SyncPolarity(const CBlock& block)
{
    return CEdidFieldText::tr("水平 %1，垂直 %2")
        .arg(Sign(block.Bits(0x47, 1, 1)), Sign(block.Bits(0x47, 2, 2)));
}

/// Text of a descriptor: up to the line feed, without the fill.
QString DescriptorText(const CBlock& block, int nOffset)
{
    constexpr int c_nTextSize = 13;
    QByteArray text = block.Bytes(nOffset, c_nTextSize);
    for (const char chEnd : {'\n', '\0'}) {
        const int nEnd = text.indexOf(chEnd);
        if (nEnd >= 0)
            text.truncate(nEnd);
    }
    return QString::fromLatin1(text);
}

QString SerialText(const CBlock& block)
{
    return DescriptorText(block, 0x4D);
}

QString MonitorName(const CBlock& block)
{
    return DescriptorText(block, 0x5F);
}

QString VerticalRange(const CBlock& block)
{
    return QStringLiteral("%1 – %2 Hz").arg(block.Byte(0x71)).arg(block.Byte(0x72));
}

QString HorizontalRange(const CBlock& block)
{
    return QStringLiteral("%1 – %2 kHz").arg(block.Byte(0x73)).arg(block.Byte(0x74));
}

QString MaximumClock(const CBlock& block)
{
    return QStringLiteral("%1 MHz").arg(block.Byte(0x75) * 10);
}

QString Extensions(const CBlock& block)
{
    return QString::number(block.Byte(0x7E));
}

QString Checksum(const CBlock& block)
{
    int nSum = 0;
    for (int i = 0; i < c_nBlockSize; ++i)
        nSum += block.Byte(i);
    return nSum % 256 == 0 ? CEdidFieldText::tr("正确") : CEdidFieldText::tr("错误");
}

struct SByteRange
{
    int nFirst;
    int nCount;
};

/// A row: group, name, where the bytes are, how they read.
struct SFieldRow
{
    const char* szGroup;
    const char* szName;
    SByteRange arrRanges[2];
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
    {c_szProduct, QT_TRANSLATE_NOOP("CEdidFieldText", "标头"), {{0x00, 8}, {}}, Header},
    {c_szProduct, QT_TRANSLATE_NOOP("CEdidFieldText", "制造商"), {{0x08, 2}, {}}, Manufacturer},
    {c_szProduct, QT_TRANSLATE_NOOP("CEdidFieldText", "产品代码"), {{0x0A, 2}, {}}, ProductCode},
    {c_szProduct, QT_TRANSLATE_NOOP("CEdidFieldText", "序列号"), {{0x0C, 4}, {}}, SerialNumber},
    {c_szProduct, QT_TRANSLATE_NOOP("CEdidFieldText", "制造时间"), {{0x10, 2}, {}}, Manufactured},
    {c_szProduct, QT_TRANSLATE_NOOP("CEdidFieldText", "EDID 版本"), {{0x12, 2}, {}}, Version},
    {c_szDisplay, QT_TRANSLATE_NOOP("CEdidFieldText", "输入"), {{0x14, 1}, {}}, Input},
    {c_szDisplay, QT_TRANSLATE_NOOP("CEdidFieldText", "物理尺寸"), {{0x15, 2}, {}}, PhysicalSize},
    {c_szDisplay, QT_TRANSLATE_NOOP("CEdidFieldText", "伽马"), {{0x17, 1}, {}}, Gamma},
    {c_szDisplay, QT_TRANSLATE_NOOP("CEdidFieldText", "特性"), {{0x18, 1}, {}}, Features},
    {c_szColour, QT_TRANSLATE_NOOP("CEdidFieldText", "红"), {{0x19, 1}, {0x1B, 2}}, Red},
    {c_szColour, QT_TRANSLATE_NOOP("CEdidFieldText", "绿"), {{0x19, 1}, {0x1D, 2}}, Green},
    {c_szColour, QT_TRANSLATE_NOOP("CEdidFieldText", "蓝"), {{0x1A, 1}, {0x1F, 2}}, Blue},
    {c_szColour, QT_TRANSLATE_NOOP("CEdidFieldText", "白"), {{0x1A, 1}, {0x21, 2}}, White},
    {c_szTimings, QT_TRANSLATE_NOOP("CEdidFieldText", "既定时序"), {{0x23, 3}, {}}, EstablishedTimings},
    {c_szTimings, QT_TRANSLATE_NOOP("CEdidFieldText", "标准时序"), {{0x26, 16}, {}}, StandardTimings},
    {c_szDetailed, QT_TRANSLATE_NOOP("CEdidFieldText", "像素时钟"), {{0x36, 2}, {}}, PixelClock},
    {c_szDetailed, QT_TRANSLATE_NOOP("CEdidFieldText", "宽"), {{0x38, 1}, {0x3A, 1}}, Width},
    {c_szDetailed, QT_TRANSLATE_NOOP("CEdidFieldText", "水平消隐"), {{0x39, 2}, {}}, HBlank},
    {c_szDetailed, QT_TRANSLATE_NOOP("CEdidFieldText", "高"), {{0x3B, 1}, {0x3D, 1}}, Height},
    {c_szDetailed, QT_TRANSLATE_NOOP("CEdidFieldText", "垂直消隐"), {{0x3C, 2}, {}}, VBlank},
    {c_szDetailed, QT_TRANSLATE_NOOP("CEdidFieldText", "水平前肩"), {{0x3E, 1}, {0x41, 1}}, HFrontPorch},
    {c_szDetailed, QT_TRANSLATE_NOOP("CEdidFieldText", "水平同步"), {{0x3F, 1}, {0x41, 1}}, HSync},
    {c_szDetailed, QT_TRANSLATE_NOOP("CEdidFieldText", "垂直前肩"), {{0x40, 2}, {}}, VFrontPorch},
    {c_szDetailed, QT_TRANSLATE_NOOP("CEdidFieldText", "垂直同步"), {{0x40, 2}, {}}, VSync},
    {c_szDetailed, QT_TRANSLATE_NOOP("CEdidFieldText", "同步极性"), {{0x47, 1}, {}}, SyncPolarity},
    {c_szDescriptors, QT_TRANSLATE_NOOP("CEdidFieldText", "序列文本"), {{0x48, 18}, {}}, SerialText},
    {c_szDescriptors, QT_TRANSLATE_NOOP("CEdidFieldText", "显示器名称"), {{0x5A, 18}, {}}, MonitorName},
    {c_szDescriptors, QT_TRANSLATE_NOOP("CEdidFieldText", "垂直频率"), {{0x71, 2}, {}}, VerticalRange},
    {c_szDescriptors, QT_TRANSLATE_NOOP("CEdidFieldText", "水平频率"), {{0x73, 2}, {}}, HorizontalRange},
    {c_szDescriptors, QT_TRANSLATE_NOOP("CEdidFieldText", "最大像素时钟"), {{0x75, 1}, {}}, MaximumClock},
    {c_szEnd, QT_TRANSLATE_NOOP("CEdidFieldText", "扩展块"), {{0x7E, 1}, {}}, Extensions},
    {c_szEnd, QT_TRANSLATE_NOOP("CEdidFieldText", "校验和"), {{0x7F, 1}, {}}, Checksum},
};

QVector<int> Offsets(const SFieldRow& row)
{
    QVector<int> vecOffsets;
    for (const SByteRange& range : row.arrRanges)
        for (int i = 0; i < range.nCount; ++i)
            vecOffsets.append(range.nFirst + i);
    return vecOffsets;
}

} // namespace

QVector<SEdidField> Decode(const QByteArray& block)
{
    QVector<SEdidField> vecFields;
    if (block.size() != c_nBlockSize)
        return vecFields;
    const CBlock reader(block);
    for (const SFieldRow& row : c_arrFields)
        vecFields.append({CEdidFieldText::tr(row.szGroup), CEdidFieldText::tr(row.szName),
                          row.pDecode(reader), Offsets(row)});
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
