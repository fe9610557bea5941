#include "workbench/edid/FindingText.h"

#include <QCoreApplication>

#include <iterator>

namespace FindingText {

namespace {

class CFindingText
{
    Q_DECLARE_TR_FUNCTIONS(CFindingText)
};

struct SRuleWords
{
    Edid::enRule rule;
    const char* szWrong;
    const char* szRemedy;
};

// clang-format off
/// In the order of `Edid::enRule`.
constexpr SRuleWords c_arrWords[] = {
    {Edid::enRule::enHeader, QT_TRANSLATE_NOOP("CFindingText", "块不以 00 FF FF FF FF FF FF 00 开头"), QT_TRANSLATE_NOOP("CFindingText", "写入文件头")},
    {Edid::enRule::enMaker, QT_TRANSLATE_NOOP("CFindingText", "厂商编号不代表三个字母"), QT_TRANSLATE_NOOP("CFindingText", "给出由 A 到 Z 的三个字母组成的厂商")},
    {Edid::enRule::enWeek, QT_TRANSLATE_NOOP("CFindingText", "没有第 %1 周"), QT_TRANSLATE_NOOP("CFindingText", "给出 1 到 53 的周，或用 0 表示没有")},
    {Edid::enRule::enWeek54, QT_TRANSLATE_NOOP("CFindingText", "第 54 周需要 EDID 1.4"), QT_TRANSLATE_NOOP("CFindingText", "给出 1 到 53 的周，或用 0 表示没有")},
    {Edid::enRule::enWeekModelYear, QT_TRANSLATE_NOOP("CFindingText", "型号年份的标记需要 EDID 1.4"), QT_TRANSLATE_NOOP("CFindingText", "给出周，或用 0 表示没有")},
    {Edid::enRule::enYear, QT_TRANSLATE_NOOP("CFindingText", "年份 %1 在未来"), QT_TRANSLATE_NOOP("CFindingText", "给出显示器的制造年份")},
    {Edid::enRule::enVersion, QT_TRANSLATE_NOOP("CFindingText", "版本是 %1，而不是 1"), QT_TRANSLATE_NOOP("CFindingText", "写入版本 1")},
    {Edid::enRule::enBitDepth, QT_TRANSLATE_NOOP("CFindingText", "颜色深度是保留值"), QT_TRANSLATE_NOOP("CFindingText", "给出 6 到 16 位的深度，或用 0 表示未定义")},
    {Edid::enRule::enInterface, QT_TRANSLATE_NOOP("CFindingText", "接口是保留值 %1"), QT_TRANSLATE_NOOP("CFindingText", "清除视频输入的保留位")},
    {Edid::enRule::enPreferredFlag, QT_TRANSLATE_NOOP("CFindingText", "EDID 1.3 要求第一个详细时序是首选时序"), QT_TRANSLATE_NOOP("CFindingText", "设置特性的第 1 位")},
    {Edid::enRule::enSrgb, QT_TRANSLATE_NOOP("CFindingText", "sRGB 是默认色彩空间，但色度坐标不同"), QT_TRANSLATE_NOOP("CFindingText", "清除特性的第 2 位，或给出 sRGB 的基色")},
    {Edid::enRule::enStandardUnused, QT_TRANSLATE_NOOP("CFindingText", "未使用的标准时序写成了 %1，而不是 01 01"), QT_TRANSLATE_NOOP("CFindingText", "写入 01 01")},
    {Edid::enRule::enPreferred, QT_TRANSLATE_NOOP("CFindingText", "第一个描述符不是详细时序"), QT_TRANSLATE_NOOP("CFindingText", "把首选时序放在第一个描述符")},
    {Edid::enRule::enDescriptorAge, QT_TRANSLATE_NOOP("CFindingText", "EDID 1.0 没有显示描述符"), QT_TRANSLATE_NOOP("CFindingText", "写入修订 3 或 4")},
    {Edid::enRule::enDescriptorReserved, QT_TRANSLATE_NOOP("CFindingText", "显示描述符的字节 %1 是 %2，而不是 0"), QT_TRANSLATE_NOOP("CFindingText", "写入 0")},
    {Edid::enRule::enDescriptorTag, QT_TRANSLATE_NOOP("CFindingText", "描述符的标记 %1 是保留的"), QT_TRANSLATE_NOOP("CFindingText", "使用标准中的标记，未使用的描述符用 10")},
    {Edid::enRule::enDescriptorOrder, QT_TRANSLATE_NOOP("CFindingText", "详细时序排在显示描述符之后"), QT_TRANSLATE_NOOP("CFindingText", "把详细时序放在前面")},
    {Edid::enRule::enClock, QT_TRANSLATE_NOOP("CFindingText", "像素时钟低于 10 MHz"), QT_TRANSLATE_NOOP("CFindingText", "给出时序的时钟")},
    {Edid::enRule::enZero, QT_TRANSLATE_NOOP("CFindingText", "时序的某一部分为 0"), QT_TRANSLATE_NOOP("CFindingText", "给出两个方向的有效尺寸、消隐、前沿和同步")},
    {Edid::enRule::enHorizontalPorch, QT_TRANSLATE_NOOP("CFindingText", "水平后沿没有剩余"), QT_TRANSLATE_NOOP("CFindingText", "使水平消隐长于前沿、同步和边框之和")},
    {Edid::enRule::enVerticalPorch, QT_TRANSLATE_NOOP("CFindingText", "垂直后沿没有剩余"), QT_TRANSLATE_NOOP("CFindingText", "使垂直消隐长于前沿、同步和边框之和")},
    {Edid::enRule::enSizeMissing, QT_TRANSLATE_NOOP("CFindingText", "时序没有给出图像尺寸，但显示器有尺寸"), QT_TRANSLATE_NOOP("CFindingText", "以毫米给出图像尺寸")},
    {Edid::enRule::enSizeMismatch, QT_TRANSLATE_NOOP("CFindingText", "时序的图像尺寸与显示器的尺寸不同"), QT_TRANSLATE_NOOP("CFindingText", "在两处给出相同的尺寸")},
    {Edid::enRule::enSizeUndeclared, QT_TRANSLATE_NOOP("CFindingText", "时序给出了图像尺寸，但显示器没有尺寸"), QT_TRANSLATE_NOOP("CFindingText", "以厘米给出显示器的尺寸")},
    {Edid::enRule::enBorders, QT_TRANSLATE_NOOP("CFindingText", "时序有边框"), QT_TRANSLATE_NOOP("CFindingText", "两个边框都写 0")},
    {Edid::enRule::enTextEmpty, QT_TRANSLATE_NOOP("CFindingText", "文本为空"), QT_TRANSLATE_NOOP("CFindingText", "写入文本，或改为未使用的描述符")},
    {Edid::enRule::enTextCharacter, QT_TRANSLATE_NOOP("CFindingText", "文本含有字节 %1，它不是可打印字符"), QT_TRANSLATE_NOOP("CFindingText", "使用可打印的 ASCII 字符")},
    {Edid::enRule::enTextSpaces, QT_TRANSLATE_NOOP("CFindingText", "文本以空格结尾"), QT_TRANSLATE_NOOP("CFindingText", "用 0A 结束文本，其后填空格")},
    {Edid::enRule::enTextPadding, QT_TRANSLATE_NOOP("CFindingText", "文本结束之后不全是空格"), QT_TRANSLATE_NOOP("CFindingText", "在 0A 之后用 20 填满描述符")},
    {Edid::enRule::enNameMissing, QT_TRANSLATE_NOOP("CFindingText", "块中没有显示器名称"), QT_TRANSLATE_NOOP("CFindingText", "添加一个名称描述符")},
    {Edid::enRule::enDummy, QT_TRANSLATE_NOOP("CFindingText", "未使用的描述符不全为零"), QT_TRANSLATE_NOOP("CFindingText", "写入零")},
    {Edid::enRule::enEstablishedAge, QT_TRANSLATE_NOOP("CFindingText", "既定时序 III 需要 EDID 1.4"), QT_TRANSLATE_NOOP("CFindingText", "写入修订 4，或删除该描述符")},
    {Edid::enRule::enCvtAge, QT_TRANSLATE_NOOP("CFindingText", "CVT 代码需要 EDID 1.4"), QT_TRANSLATE_NOOP("CFindingText", "写入修订 4，或删除该描述符")},
    {Edid::enRule::enCvtVersion, QT_TRANSLATE_NOOP("CFindingText", "CVT 代码的版本是 %1，而不是 1"), QT_TRANSLATE_NOOP("CFindingText", "写入 1")},
    {Edid::enRule::enCvtReserved, QT_TRANSLATE_NOOP("CFindingText", "CVT 代码含有保留值"), QT_TRANSLATE_NOOP("CFindingText", "清除保留位，并给出行数")},
    {Edid::enRule::enCvtRate, QT_TRANSLATE_NOOP("CFindingText", "CVT 代码不支持任何帧率"), QT_TRANSLATE_NOOP("CFindingText", "设置五个帧率之一")},
    {Edid::enRule::enCvtPreferred, QT_TRANSLATE_NOOP("CFindingText", "CVT 代码的首选帧率不受支持"), QT_TRANSLATE_NOOP("CFindingText", "选择受支持的帧率")},
    {Edid::enRule::enRangeMissing, QT_TRANSLATE_NOOP("CFindingText", "块中没有范围限制"), QT_TRANSLATE_NOOP("CFindingText", "添加一个范围限制描述符")},
    {Edid::enRule::enRangeVertical, QT_TRANSLATE_NOOP("CFindingText", "最低垂直频率高于最高垂直频率"), QT_TRANSLATE_NOOP("CFindingText", "先写较低的频率")},
    {Edid::enRule::enRangeHorizontal, QT_TRANSLATE_NOOP("CFindingText", "最低水平频率高于最高水平频率"), QT_TRANSLATE_NOOP("CFindingText", "先写较低的频率")},
    {Edid::enRule::enRangeClock, QT_TRANSLATE_NOOP("CFindingText", "EDID 1.4 的范围限制没有给出最高时钟"), QT_TRANSLATE_NOOP("CFindingText", "以 10 MHz 为单位给出最高时钟")},
    {Edid::enRule::enRangeFormula, QT_TRANSLATE_NOOP("CFindingText", "公式 %1 是保留的"), QT_TRANSLATE_NOOP("CFindingText", "EDID 1.4 中用 1 表示没有公式，更早用 0")},
    {Edid::enRule::enRangeAge, QT_TRANSLATE_NOOP("CFindingText", "公式 %1 需要 EDID 1.4"), QT_TRANSLATE_NOOP("CFindingText", "写入 0，或修订 4")},
    {Edid::enRule::enRangeContinuous, QT_TRANSLATE_NOOP("CFindingText", "公式要求显示器频率连续"), QT_TRANSLATE_NOOP("CFindingText", "写入 1 表示只有范围限制，或设置特性的第 0 位")},
    {Edid::enRule::enRangePadding, QT_TRANSLATE_NOOP("CFindingText", "范围限制的末尾不是公式要求的字节"), QT_TRANSLATE_NOOP("CFindingText", "写入 0A 和六个 20，第二曲线的数值之前写 00")},
    {Edid::enRule::enRangeReserved, QT_TRANSLATE_NOOP("CFindingText", "CVT 限制的保留位被设置"), QT_TRANSLATE_NOOP("CFindingText", "清除字节 14 和 15 的第 2 到 0 位，以及字节 16 的第 3 到 0 位")},
    {Edid::enRule::enRangeTimings, QT_TRANSLATE_NOOP("CFindingText", "块中有一个时序超出范围限制"), QT_TRANSLATE_NOOP("CFindingText", "放宽限制")},
    {Edid::enRule::enRangeTimings14, QT_TRANSLATE_NOOP("CFindingText", "块中有一个模式超出范围限制"), QT_TRANSLATE_NOOP("CFindingText", "放宽限制，或去掉该模式")},
    {Edid::enRule::enExtensions, QT_TRANSLATE_NOOP("CFindingText", "块声明有 %1 个扩展块，实际有 %2 个"), QT_TRANSLATE_NOOP("CFindingText", "写入扩展块的数目")},
    {Edid::enRule::enChecksum, QT_TRANSLATE_NOOP("CFindingText", "校验和是 %1，应为 %2"), QT_TRANSLATE_NOOP("CFindingText", "写入校验和")},
    {Edid::enRule::enExtensionTag, QT_TRANSLATE_NOOP("CFindingText", "扩展块的标记 %1 未知"), QT_TRANSLATE_NOOP("CFindingText", "检查字节是否完整")},
    {Edid::enRule::enCtaOffset, QT_TRANSLATE_NOOP("CFindingText", "扩展块的详细时序从字节 %1 开始，那里不可能有"), QT_TRANSLATE_NOOP("CFindingText", "给出 0，或 4 到 127 的字节")},
    {Edid::enRule::enCtaBlock, QT_TRANSLATE_NOOP("CFindingText", "数据块超出了详细时序之前的空间"), QT_TRANSLATE_NOOP("CFindingText", "更正它的长度")},
    {Edid::enRule::enSectionLength, QT_TRANSLATE_NOOP("CFindingText", "%1 字节的数据段放不进它的块"), QT_TRANSLATE_NOOP("CFindingText", "一个块的数据段最多有 121 个字节")},
    {Edid::enRule::enSectionChecksum, QT_TRANSLATE_NOOP("CFindingText", "数据段的校验和是 %1，应为 %2"), QT_TRANSLATE_NOOP("CFindingText", "写入校验和")},
};
// clang-format on

const SRuleWords& WordsOf(Edid::enRule rule)
{
    return c_arrWords[int(rule)];
}

} // namespace

QString Wrong(const Edid::SFinding& finding)
{
    return Edid::WithNumbers(CFindingText::tr(WordsOf(finding.rule).szWrong), finding);
}

QString Remedy(const Edid::SFinding& finding)
{
    return CFindingText::tr(WordsOf(finding.rule).szRemedy);
}

bool HasWords(Edid::enRule rule)
{
    return int(rule) < int(std::size(c_arrWords)) && WordsOf(rule).rule == rule;
}

} // namespace FindingText
