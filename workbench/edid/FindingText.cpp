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
    {Edid::enRule::enHeader, QT_TRANSLATE_NOOP("CFindingText", "块不以 00 FF FF FF FF FF FF 00 开头"), QT_TRANSLATE_NOOP("CFindingText", "写入标头；“全部修复”可完成")},
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
    {Edid::enRule::enExtensions, QT_TRANSLATE_NOOP("CFindingText", "块声明有 %1 个扩展块，实际有 %2 个"), QT_TRANSLATE_NOOP("CFindingText", "写入扩展块的数目；“全部修复”可完成")},
    {Edid::enRule::enChecksum, QT_TRANSLATE_NOOP("CFindingText", "校验和是 %1，应为 %2"), QT_TRANSLATE_NOOP("CFindingText", "写入校验和；“全部修复”可完成")},
    {Edid::enRule::enExtensionTag, QT_TRANSLATE_NOOP("CFindingText", "扩展块的标记 %1 未知"), QT_TRANSLATE_NOOP("CFindingText", "检查字节是否完整")},
    {Edid::enRule::enCtaRevision, QT_TRANSLATE_NOOP("CFindingText", "扩展块的修订 %1 无人使用"), QT_TRANSLATE_NOOP("CFindingText", "写入修订 3")},
    {Edid::enRule::enCtaOffset, QT_TRANSLATE_NOOP("CFindingText", "扩展块的详细时序从字节 %1 开始，那里不可能有"), QT_TRANSLATE_NOOP("CFindingText", "给出 0，或 4 到 127 的字节")},
    {Edid::enRule::enCtaFlags, QT_TRANSLATE_NOOP("CFindingText", "字节 3 是 %1，而同类的第一个扩展块中是 %2"), QT_TRANSLATE_NOOP("CFindingText", "在每个扩展块中写入相同的标志和本机时序数目")},
    {Edid::enRule::enCtaFlagsAge, QT_TRANSLATE_NOOP("CFindingText", "字节 3 是 %1，但修订 1 没有标志"), QT_TRANSLATE_NOOP("CFindingText", "写入 0，或修订 3")},
    {Edid::enRule::enCtaNative, QT_TRANSLATE_NOOP("CFindingText", "声明有 %1 个本机详细时序，实际只有 %2 个"), QT_TRANSLATE_NOOP("CFindingText", "最多给出详细时序的数目")},
    {Edid::enRule::enCtaBlock, QT_TRANSLATE_NOOP("CFindingText", "数据块超出了详细时序之前的空间"), QT_TRANSLATE_NOOP("CFindingText", "更正它的长度")},
    {Edid::enRule::enCtaBlockShort, QT_TRANSLATE_NOOP("CFindingText", "数据块的内容有 %1 个字节，至少需要 %2 个"), QT_TRANSLATE_NOOP("CFindingText", "补全该数据块，或删除它")},
    {Edid::enRule::enCtaBlockTwice, QT_TRANSLATE_NOOP("CFindingText", "同类数据块只能有一个，这里是第二个"), QT_TRANSLATE_NOOP("CFindingText", "删除其中一个")},
    {Edid::enRule::enCtaScan, QT_TRANSLATE_NOOP("CFindingText", "数据块与 IT 格式欠扫描的标志矛盾"), QT_TRANSLATE_NOOP("CFindingText", "设置或清除字节 3 的第 7 位，使两者一致")},
    {Edid::enRule::enAudioBasic, QT_TRANSLATE_NOOP("CFindingText", "有音频数据，但基本音频的标志未设置"), QT_TRANSLATE_NOOP("CFindingText", "设置字节 3 的第 6 位")},
    {Edid::enRule::enAudioLength, QT_TRANSLATE_NOOP("CFindingText", "音频数据块的 %1 个字节不是由三个字节的完整格式组成"), QT_TRANSLATE_NOOP("CFindingText", "更正它的长度")},
    {Edid::enRule::enAudioFormat, QT_TRANSLATE_NOOP("CFindingText", "音频格式 0 是保留的"), QT_TRANSLATE_NOOP("CFindingText", "给出 1 到 15 的格式")},
    {Edid::enRule::enAudioReserved, QT_TRANSLATE_NOOP("CFindingText", "音频格式的保留位被设置"), QT_TRANSLATE_NOOP("CFindingText", "清除第二个字节的第 7 位，线性 PCM 还要清除第三个字节的第 7 到 3 位")},
    {Edid::enRule::enVideoCode, QT_TRANSLATE_NOOP("CFindingText", "视频代码 %1 是保留的"), QT_TRANSLATE_NOOP("CFindingText", "使用 1 到 127 或 193 到 219 的代码")},
    {Edid::enRule::enVideoTwice, QT_TRANSLATE_NOOP("CFindingText", "视频代码 %1 前面已经列出"), QT_TRANSLATE_NOOP("CFindingText", "每个代码只列一次")},
    {Edid::enRule::enVideo420, QT_TRANSLATE_NOOP("CFindingText", "视频代码 %1 既列为仅 4:2:0，又列为普通代码"), QT_TRANSLATE_NOOP("CFindingText", "保留其中之一")},
    {Edid::enRule::enHdmiClock, QT_TRANSLATE_NOOP("CFindingText", "最高 TMDS 时钟 %1 MHz 高于 340 MHz"), QT_TRANSLATE_NOOP("CFindingText", "这里最多给出 340 MHz，更高的值写在 HDMI Forum 的数据块中")},
    {Edid::enRule::enHdmiForumClock, QT_TRANSLATE_NOOP("CFindingText", "最高 TMDS 速率 %1 MHz 不在 340 MHz 以上、600 MHz 以下"), QT_TRANSLATE_NOOP("CFindingText", "给出这样的速率，或用 0 表示不高于 340 MHz")},
    {Edid::enRule::enHdmiForumPlace, QT_TRANSLATE_NOOP("CFindingText", "HDMI Forum 的数据块没有紧跟在 HDMI 的数据块之后"), QT_TRANSLATE_NOOP("CFindingText", "把它直接放在 00-0C-03 的厂商数据块之后")},
    {Edid::enRule::enHdmiForumTwice, QT_TRANSLATE_NOOP("CFindingText", "有第二个 HDMI Forum 的数据块"), QT_TRANSLATE_NOOP("CFindingText", "删除其中一个")},
    {Edid::enRule::enCtaPadding, QT_TRANSLATE_NOOP("CFindingText", "详细时序之后的字节不全为零"), QT_TRANSLATE_NOOP("CFindingText", "写入零")},
    {Edid::enRule::enSectionLength, QT_TRANSLATE_NOOP("CFindingText", "%1 字节的数据段放不进它的块"), QT_TRANSLATE_NOOP("CFindingText", "一个块的数据段最多有 121 个字节")},
    {Edid::enRule::enSectionProduct, QT_TRANSLATE_NOOP("CFindingText", "数据段的产品类型不能是 %1"), QT_TRANSLATE_NOOP("CFindingText", "在第一个数据段给出产品类型，其后的写 0")},
    {Edid::enRule::enSectionCount, QT_TRANSLATE_NOOP("CFindingText", "数据段声明其后还有 %1 个，实际有 %2 个"), QT_TRANSLATE_NOOP("CFindingText", "写入其后数据段的数目")},
    {Edid::enRule::enSectionMissing, QT_TRANSLATE_NOOP("CFindingText", "缺少此类产品需要的数据块，标记为 %1"), QT_TRANSLATE_NOOP("CFindingText", "添加该数据块")},
    {Edid::enRule::enSectionPreferred, QT_TRANSLATE_NOOP("CFindingText", "各数据段中没有首选时序"), QT_TRANSLATE_NOOP("CFindingText", "把一个时序标为首选")},
    {Edid::enRule::enSectionAge, QT_TRANSLATE_NOOP("CFindingText", "标记 %1 属于另一个版本的 DisplayID"), QT_TRANSLATE_NOOP("CFindingText", "使用与数据段版本相符的数据块")},
    {Edid::enRule::enSectionBlockLength, QT_TRANSLATE_NOOP("CFindingText", "数据块的内容有 %1 个字节，应为 %2 个"), QT_TRANSLATE_NOOP("CFindingText", "更正长度和内容")},
    {Edid::enRule::enSectionOrder, QT_TRANSLATE_NOOP("CFindingText", "产品标识不是第一个数据块"), QT_TRANSLATE_NOOP("CFindingText", "把它放在最前面")},
    {Edid::enRule::enSectionTwice, QT_TRANSLATE_NOOP("CFindingText", "显示参数给出了两次"), QT_TRANSLATE_NOOP("CFindingText", "删除两个数据块之一")},
    {Edid::enRule::enSectionReserved, QT_TRANSLATE_NOOP("CFindingText", "时序的立体方式或宽高比是保留值"), QT_TRANSLATE_NOOP("CFindingText", "给出标准中的值")},
    {Edid::enRule::enSectionBlock, QT_TRANSLATE_NOOP("CFindingText", "数据块超出了数据段的剩余空间"), QT_TRANSLATE_NOOP("CFindingText", "更正它的长度")},
    {Edid::enRule::enSectionFiller, QT_TRANSLATE_NOOP("CFindingText", "数据块之后的字节不全为零"), QT_TRANSLATE_NOOP("CFindingText", "写入零")},
    {Edid::enRule::enSectionChecksum, QT_TRANSLATE_NOOP("CFindingText", "数据段的校验和是 %1，应为 %2"), QT_TRANSLATE_NOOP("CFindingText", "写入校验和；“全部修复”可完成")},
    {Edid::enRule::enSectionPadding, QT_TRANSLATE_NOOP("CFindingText", "数据段之后的字节不全为零"), QT_TRANSLATE_NOOP("CFindingText", "写入零")},
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
