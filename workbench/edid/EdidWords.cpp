#include "workbench/edid/EdidWords.h"

#include "instruments/edid/CtaDataBlocks.h"
#include "instruments/edid/DisplayIdLayout.h"

#include <QCoreApplication>
#include <QHash>

#include <algorithm>
#include <cstring>
#include <iterator>

namespace EdidWords {

namespace {

class CEdidWords
{
    Q_DECLARE_TR_FUNCTIONS(CEdidWords)
};

struct SWord
{
    const char* szEnglish;
    const char* szChinese;
};

// clang-format off
/// What the decoder calls fields, blocks, values and units.
constexpr SWord c_arrWords[] = {
    {"Header", QT_TRANSLATE_NOOP("CEdidWords", "标头")},
    {"Maker", QT_TRANSLATE_NOOP("CEdidWords", "厂商")},
    {"Product code", QT_TRANSLATE_NOOP("CEdidWords", "产品代码")},
    {"Serial number", QT_TRANSLATE_NOOP("CEdidWords", "序列号")},
    {"Week", QT_TRANSLATE_NOOP("CEdidWords", "周")},
    {"Year of manufacture", QT_TRANSLATE_NOOP("CEdidWords", "制造年份")},
    {"Model year", QT_TRANSLATE_NOOP("CEdidWords", "型号年份")},
    {"Version", QT_TRANSLATE_NOOP("CEdidWords", "版本")},
    {"Revision", QT_TRANSLATE_NOOP("CEdidWords", "修订")},
    {"Digital input", QT_TRANSLATE_NOOP("CEdidWords", "数字输入")},
    {"Signal levels", QT_TRANSLATE_NOOP("CEdidWords", "信号电平")},
    {"Blank-to-black setup", QT_TRANSLATE_NOOP("CEdidWords", "消隐到黑的台阶")},
    {"Separate sync", QT_TRANSLATE_NOOP("CEdidWords", "分离同步")},
    {"Composite sync", QT_TRANSLATE_NOOP("CEdidWords", "复合同步")},
    {"Sync on green", QT_TRANSLATE_NOOP("CEdidWords", "绿色带同步")},
    {"Serration on vertical sync", QT_TRANSLATE_NOOP("CEdidWords", "垂直同步带锯齿")},
    {"DFP 1.x compatible", QT_TRANSLATE_NOOP("CEdidWords", "兼容 DFP 1.x")},
    {"Bits per primary", QT_TRANSLATE_NOOP("CEdidWords", "每基色位数")},
    {"Interface", QT_TRANSLATE_NOOP("CEdidWords", "接口")},
    {"Width", QT_TRANSLATE_NOOP("CEdidWords", "宽度")},
    {"Height", QT_TRANSLATE_NOOP("CEdidWords", "高度")},
    {"Aspect ratio, landscape", QT_TRANSLATE_NOOP("CEdidWords", "宽高比（横向）")},
    {"Aspect ratio, portrait", QT_TRANSLATE_NOOP("CEdidWords", "宽高比（纵向）")},
    {"Gamma", QT_TRANSLATE_NOOP("CEdidWords", "伽马")},
    {"Stand-by", QT_TRANSLATE_NOOP("CEdidWords", "待机")},
    {"Suspend", QT_TRANSLATE_NOOP("CEdidWords", "挂起")},
    {"Active off", QT_TRANSLATE_NOOP("CEdidWords", "主动关闭")},
    {"Display type", QT_TRANSLATE_NOOP("CEdidWords", "显示类型")},
    {"Colour encodings", QT_TRANSLATE_NOOP("CEdidWords", "色彩编码")},
    {"sRGB is the default colour space", QT_TRANSLATE_NOOP("CEdidWords", "sRGB 是默认色彩空间")},
    {"First detailed timing is preferred", QT_TRANSLATE_NOOP("CEdidWords", "第一个详细时序为首选")},
    {"Preferred timing has the native format and rate", QT_TRANSLATE_NOOP("CEdidWords", "首选时序是原生格式和帧率")},
    {"Supports GTF", QT_TRANSLATE_NOOP("CEdidWords", "支持 GTF")},
    {"Continuous frequency", QT_TRANSLATE_NOOP("CEdidWords", "连续频率")},
    {"Red x", QT_TRANSLATE_NOOP("CEdidWords", "红 x")},
    {"Red y", QT_TRANSLATE_NOOP("CEdidWords", "红 y")},
    {"Green x", QT_TRANSLATE_NOOP("CEdidWords", "绿 x")},
    {"Green y", QT_TRANSLATE_NOOP("CEdidWords", "绿 y")},
    {"Blue x", QT_TRANSLATE_NOOP("CEdidWords", "蓝 x")},
    {"Blue y", QT_TRANSLATE_NOOP("CEdidWords", "蓝 y")},
    {"White x", QT_TRANSLATE_NOOP("CEdidWords", "白 x")},
    {"White y", QT_TRANSLATE_NOOP("CEdidWords", "白 y")},
    {"Extension blocks", QT_TRANSLATE_NOOP("CEdidWords", "扩展块")},
    {"Checksum", QT_TRANSLATE_NOOP("CEdidWords", "校验和")},
    {"Pixel clock", QT_TRANSLATE_NOOP("CEdidWords", "像素时钟")},
    {"Horizontal active", QT_TRANSLATE_NOOP("CEdidWords", "水平有效")},
    {"Horizontal blanking", QT_TRANSLATE_NOOP("CEdidWords", "水平消隐")},
    {"Vertical active", QT_TRANSLATE_NOOP("CEdidWords", "垂直有效")},
    {"Vertical blanking", QT_TRANSLATE_NOOP("CEdidWords", "垂直消隐")},
    {"Horizontal front porch", QT_TRANSLATE_NOOP("CEdidWords", "水平前肩")},
    {"Horizontal sync", QT_TRANSLATE_NOOP("CEdidWords", "水平同步")},
    {"Vertical front porch", QT_TRANSLATE_NOOP("CEdidWords", "垂直前肩")},
    {"Vertical sync", QT_TRANSLATE_NOOP("CEdidWords", "垂直同步")},
    {"Image width", QT_TRANSLATE_NOOP("CEdidWords", "图像宽度")},
    {"Image height", QT_TRANSLATE_NOOP("CEdidWords", "图像高度")},
    {"Horizontal border", QT_TRANSLATE_NOOP("CEdidWords", "水平边框")},
    {"Vertical border", QT_TRANSLATE_NOOP("CEdidWords", "垂直边框")},
    {"Interlaced", QT_TRANSLATE_NOOP("CEdidWords", "隔行")},
    {"Stereo", QT_TRANSLATE_NOOP("CEdidWords", "立体")},
    {"Sync", QT_TRANSLATE_NOOP("CEdidWords", "同步")},
    {"Vertical sync positive", QT_TRANSLATE_NOOP("CEdidWords", "垂直同步为正")},
    {"Serrations", QT_TRANSLATE_NOOP("CEdidWords", "锯齿")},
    {"Horizontal sync positive", QT_TRANSLATE_NOOP("CEdidWords", "水平同步为正")},
    {"Sync on all three lines", QT_TRANSLATE_NOOP("CEdidWords", "三条线都带同步")},
    {"Vertical offsets", QT_TRANSLATE_NOOP("CEdidWords", "垂直频率的偏移")},
    {"Horizontal offsets", QT_TRANSLATE_NOOP("CEdidWords", "水平频率的偏移")},
    {"Lowest vertical rate", QT_TRANSLATE_NOOP("CEdidWords", "最低垂直频率")},
    {"Highest vertical rate", QT_TRANSLATE_NOOP("CEdidWords", "最高垂直频率")},
    {"Lowest horizontal rate", QT_TRANSLATE_NOOP("CEdidWords", "最低水平频率")},
    {"Highest horizontal rate", QT_TRANSLATE_NOOP("CEdidWords", "最高水平频率")},
    {"Highest pixel clock", QT_TRANSLATE_NOOP("CEdidWords", "最高像素时钟")},
    {"Formula", QT_TRANSLATE_NOOP("CEdidWords", "公式")},
    {"CVT version", QT_TRANSLATE_NOOP("CEdidWords", "CVT 版本")},
    {"Clock below the highest", QT_TRANSLATE_NOOP("CEdidWords", "低于最高时钟的量")},
    {"Longest active line", QT_TRANSLATE_NOOP("CEdidWords", "最长有效行")},
    {"Aspect 4:3", QT_TRANSLATE_NOOP("CEdidWords", "宽高比 4:3")},
    {"Aspect 16:9", QT_TRANSLATE_NOOP("CEdidWords", "宽高比 16:9")},
    {"Aspect 16:10", QT_TRANSLATE_NOOP("CEdidWords", "宽高比 16:10")},
    {"Aspect 5:4", QT_TRANSLATE_NOOP("CEdidWords", "宽高比 5:4")},
    {"Aspect 15:9", QT_TRANSLATE_NOOP("CEdidWords", "宽高比 15:9")},
    {"Preferred aspect", QT_TRANSLATE_NOOP("CEdidWords", "首选宽高比")},
    {"Reduced blanking", QT_TRANSLATE_NOOP("CEdidWords", "缩减消隐")},
    {"Standard blanking", QT_TRANSLATE_NOOP("CEdidWords", "标准消隐")},
    {"Horizontal shrink", QT_TRANSLATE_NOOP("CEdidWords", "水平缩小")},
    {"Horizontal stretch", QT_TRANSLATE_NOOP("CEdidWords", "水平拉伸")},
    {"Vertical shrink", QT_TRANSLATE_NOOP("CEdidWords", "垂直缩小")},
    {"Vertical stretch", QT_TRANSLATE_NOOP("CEdidWords", "垂直拉伸")},
    {"Preferred vertical rate", QT_TRANSLATE_NOOP("CEdidWords", "首选垂直频率")},
    {"Secondary curve starts at", QT_TRANSLATE_NOOP("CEdidWords", "第二曲线的起点")},
    {"Padding", QT_TRANSLATE_NOOP("CEdidWords", "填充")},
    {"Index", QT_TRANSLATE_NOOP("CEdidWords", "序号")},
    {"Red a3", QT_TRANSLATE_NOOP("CEdidWords", "红 a3")},
    {"Red a2", QT_TRANSLATE_NOOP("CEdidWords", "红 a2")},
    {"Green a3", QT_TRANSLATE_NOOP("CEdidWords", "绿 a3")},
    {"Green a2", QT_TRANSLATE_NOOP("CEdidWords", "绿 a2")},
    {"Blue a3", QT_TRANSLATE_NOOP("CEdidWords", "蓝 a3")},
    {"Blue a2", QT_TRANSLATE_NOOP("CEdidWords", "蓝 a2")},
    {"Name", QT_TRANSLATE_NOOP("CEdidWords", "名称")},
    {"Text", QT_TRANSLATE_NOOP("CEdidWords", "文本")},
    {"Vendor and product", QT_TRANSLATE_NOOP("CEdidWords", "厂商和产品")},
    {"Basic parameters", QT_TRANSLATE_NOOP("CEdidWords", "基本参数")},
    {"Chromaticity", QT_TRANSLATE_NOOP("CEdidWords", "色度")},
    {"Covers", QT_TRANSLATE_NOOP("CEdidWords", "覆盖")},
    {"Temperature of the white", QT_TRANSLATE_NOOP("CEdidWords", "白点色温")},
    {"Established timings", QT_TRANSLATE_NOOP("CEdidWords", "既定时序")},
    {"Maker's own timings", QT_TRANSLATE_NOOP("CEdidWords", "厂商自定时序")},
    {"Standard timings", QT_TRANSLATE_NOOP("CEdidWords", "标准时序列表")},
    {"Standard timing", QT_TRANSLATE_NOOP("CEdidWords", "标准时序")},
    {"CVT code", QT_TRANSLATE_NOOP("CEdidWords", "CVT 代码")},
    {"White point", QT_TRANSLATE_NOOP("CEdidWords", "白点")},
    {"Tag", QT_TRANSLATE_NOOP("CEdidWords", "标记")},
    {"Timing", QT_TRANSLATE_NOOP("CEdidWords", "时序")},
    {"Range limits", QT_TRANSLATE_NOOP("CEdidWords", "范围限制")},
    {"White points", QT_TRANSLATE_NOOP("CEdidWords", "白点列表")},
    {"More standard timings", QT_TRANSLATE_NOOP("CEdidWords", "更多标准时序")},
    {"Colour management", QT_TRANSLATE_NOOP("CEdidWords", "色彩管理")},
    {"CVT codes", QT_TRANSLATE_NOOP("CEdidWords", "CVT 代码列表")},
    {"Established timings III", QT_TRANSLATE_NOOP("CEdidWords", "既定时序 III")},
    {"Unused descriptor", QT_TRANSLATE_NOOP("CEdidWords", "未使用的描述符")},
    {"Maker's own descriptor", QT_TRANSLATE_NOOP("CEdidWords", "厂商自定描述符")},
    {"Unknown descriptor", QT_TRANSLATE_NOOP("CEdidWords", "未知描述符")},
    {"Line rate", QT_TRANSLATE_NOOP("CEdidWords", "行频")},
    {"Rate", QT_TRANSLATE_NOOP("CEdidWords", "帧率")},
    {"Modeline", QT_TRANSLATE_NOOP("CEdidWords", "模式行")},
    {"Bytes", QT_TRANSLATE_NOOP("CEdidWords", "字节")},
    {"Detailed timing", QT_TRANSLATE_NOOP("CEdidWords", "详细时序")},
    {"Base block", QT_TRANSLATE_NOOP("CEdidWords", "基本块")},
    {"CTA-861 extension", QT_TRANSLATE_NOOP("CEdidWords", "CTA-861 扩展")},
    {"DisplayID extension", QT_TRANSLATE_NOOP("CEdidWords", "DisplayID 扩展")},
    {"Block map", QT_TRANSLATE_NOOP("CEdidWords", "块映射")},
    {"Video timing extension", QT_TRANSLATE_NOOP("CEdidWords", "视频时序扩展")},
    {"Localised text extension", QT_TRANSLATE_NOOP("CEdidWords", "本地化文本扩展")},
    {"Display information extension", QT_TRANSLATE_NOOP("CEdidWords", "显示信息扩展")},
    {"Maker's own extension", QT_TRANSLATE_NOOP("CEdidWords", "厂商自定扩展")},
    {"Unknown extension", QT_TRANSLATE_NOOP("CEdidWords", "未知扩展")},
    {"Bytes after the last whole block", QT_TRANSLATE_NOOP("CEdidWords", "最后一个整块之后的字节")},
    {"Detailed timings begin at byte", QT_TRANSLATE_NOOP("CEdidWords", "详细时序开始的字节")},
    {"Underscans IT formats", QT_TRANSLATE_NOOP("CEdidWords", "IT 格式欠扫描")},
    {"Basic audio", QT_TRANSLATE_NOOP("CEdidWords", "基本音频")},
    {"Native detailed timings", QT_TRANSLATE_NOOP("CEdidWords", "原生详细时序数")},
    {"Format", QT_TRANSLATE_NOOP("CEdidWords", "格式")},
    {"Extended format", QT_TRANSLATE_NOOP("CEdidWords", "扩展格式")},
    {"Channels", QT_TRANSLATE_NOOP("CEdidWords", "声道")},
    {"24 bit", QT_TRANSLATE_NOOP("CEdidWords", "24 位")},
    {"20 bit", QT_TRANSLATE_NOOP("CEdidWords", "20 位")},
    {"16 bit", QT_TRANSLATE_NOOP("CEdidWords", "16 位")},
    {"Highest bit rate", QT_TRANSLATE_NOOP("CEdidWords", "最高码率")},
    {"Format's own value", QT_TRANSLATE_NOOP("CEdidWords", "格式自有的值")},
    {"Front left and right wide", QT_TRANSLATE_NOOP("CEdidWords", "前左右宽")},
    {"Rear left and right of centre", QT_TRANSLATE_NOOP("CEdidWords", "后中左右")},
    {"Front left and right of centre", QT_TRANSLATE_NOOP("CEdidWords", "前中左右")},
    {"Back centre", QT_TRANSLATE_NOOP("CEdidWords", "后中")},
    {"Back left and right", QT_TRANSLATE_NOOP("CEdidWords", "后左右")},
    {"Front centre", QT_TRANSLATE_NOOP("CEdidWords", "前中")},
    {"Low frequency effects", QT_TRANSLATE_NOOP("CEdidWords", "低频效果")},
    {"Front left and right", QT_TRANSLATE_NOOP("CEdidWords", "前左右")},
    {"Top side left and right", QT_TRANSLATE_NOOP("CEdidWords", "顶侧左右")},
    {"Side left and right", QT_TRANSLATE_NOOP("CEdidWords", "侧左右")},
    {"Top back centre", QT_TRANSLATE_NOOP("CEdidWords", "顶后中")},
    {"Low frequency effects 2", QT_TRANSLATE_NOOP("CEdidWords", "低频效果 2")},
    {"Left and right surround", QT_TRANSLATE_NOOP("CEdidWords", "左右环绕")},
    {"Top front centre", QT_TRANSLATE_NOOP("CEdidWords", "顶前中")},
    {"Top centre", QT_TRANSLATE_NOOP("CEdidWords", "顶中")},
    {"Top front left and right", QT_TRANSLATE_NOOP("CEdidWords", "顶前左右")},
    {"Top left and right surround", QT_TRANSLATE_NOOP("CEdidWords", "顶左右环绕")},
    {"Bottom front left and right", QT_TRANSLATE_NOOP("CEdidWords", "底前左右")},
    {"Bottom front centre", QT_TRANSLATE_NOOP("CEdidWords", "底前中")},
    {"Top back left and right", QT_TRANSLATE_NOOP("CEdidWords", "顶后左右")},
    {"Selectable YCC quantisation", QT_TRANSLATE_NOOP("CEdidWords", "可选 YCC 量化")},
    {"Selectable RGB quantisation", QT_TRANSLATE_NOOP("CEdidWords", "可选 RGB 量化")},
    {"Preferred timing", QT_TRANSLATE_NOOP("CEdidWords", "首选时序的扫描")},
    {"IT formats", QT_TRANSLATE_NOOP("CEdidWords", "IT 格式")},
    {"CE formats", QT_TRANSLATE_NOOP("CEdidWords", "CE 格式")},
    {"BT.2020 constant luminance YCC", QT_TRANSLATE_NOOP("CEdidWords", "BT.2020 恒定亮度 YCC")},
    {"Gamut metadata profiles", QT_TRANSLATE_NOOP("CEdidWords", "色域元数据配置")},
    {"Hybrid log-gamma", QT_TRANSLATE_NOOP("CEdidWords", "混合对数伽马（HLG）")},
    {"Traditional gamma, HDR range", QT_TRANSLATE_NOOP("CEdidWords", "传统伽马，HDR 范围")},
    {"Traditional gamma, SDR range", QT_TRANSLATE_NOOP("CEdidWords", "传统伽马，SDR 范围")},
    {"Static metadata type 1", QT_TRANSLATE_NOOP("CEdidWords", "静态元数据类型 1")},
    {"Highest luminance code", QT_TRANSLATE_NOOP("CEdidWords", "最高亮度代码")},
    {"Highest frame average luminance code", QT_TRANSLATE_NOOP("CEdidWords", "最高帧平均亮度代码")},
    {"Lowest luminance code", QT_TRANSLATE_NOOP("CEdidWords", "最低亮度代码")},
    {"Physical address", QT_TRANSLATE_NOOP("CEdidWords", "物理地址")},
    {"Takes ACP and ISRC packets", QT_TRANSLATE_NOOP("CEdidWords", "接受 ACP 和 ISRC 包")},
    {"48 bits per pixel", QT_TRANSLATE_NOOP("CEdidWords", "每像素 48 位")},
    {"36 bits per pixel", QT_TRANSLATE_NOOP("CEdidWords", "每像素 36 位")},
    {"30 bits per pixel", QT_TRANSLATE_NOOP("CEdidWords", "每像素 30 位")},
    {"Deep colour in YCbCr 4:4:4", QT_TRANSLATE_NOOP("CEdidWords", "YCbCr 4:4:4 深色")},
    {"DVI dual link", QT_TRANSLATE_NOOP("CEdidWords", "DVI 双链路")},
    {"Highest TMDS clock", QT_TRANSLATE_NOOP("CEdidWords", "最高 TMDS 时钟")},
    {"Latencies are told", QT_TRANSLATE_NOOP("CEdidWords", "给出延迟")},
    {"Interlaced latencies are told", QT_TRANSLATE_NOOP("CEdidWords", "给出隔行延迟")},
    {"HDMI video formats are told", QT_TRANSLATE_NOOP("CEdidWords", "给出 HDMI 视频格式")},
    {"Content type game", QT_TRANSLATE_NOOP("CEdidWords", "内容类型：游戏")},
    {"Content type cinema", QT_TRANSLATE_NOOP("CEdidWords", "内容类型：影院")},
    {"Content type photo", QT_TRANSLATE_NOOP("CEdidWords", "内容类型：照片")},
    {"Content type graphics", QT_TRANSLATE_NOOP("CEdidWords", "内容类型：图形")},
    {"Highest TMDS character rate", QT_TRANSLATE_NOOP("CEdidWords", "最高 TMDS 字符率")},
    {"Status and control data channel", QT_TRANSLATE_NOOP("CEdidWords", "状态和控制数据通道（SCDC）")},
    {"Requests SCDC reads", QT_TRANSLATE_NOOP("CEdidWords", "请求读取 SCDC")},
    {"Cable status", QT_TRANSLATE_NOOP("CEdidWords", "线缆状态")},
    {"Colour content bits per component", QT_TRANSLATE_NOOP("CEdidWords", "每分量的内容位数")},
    {"Scrambling at 340 MHz and below", QT_TRANSLATE_NOOP("CEdidWords", "340 MHz 及以下加扰")},
    {"3D independent view", QT_TRANSLATE_NOOP("CEdidWords", "3D 独立视图")},
    {"3D dual view", QT_TRANSLATE_NOOP("CEdidWords", "3D 双视图")},
    {"3D OSD disparity", QT_TRANSLATE_NOOP("CEdidWords", "3D OSD 视差")},
    {"Fixed rate link", QT_TRANSLATE_NOOP("CEdidWords", "固定速率链路")},
    {"UHD video codes", QT_TRANSLATE_NOOP("CEdidWords", "UHD 视频代码")},
    {"48 bits in YCbCr 4:2:0", QT_TRANSLATE_NOOP("CEdidWords", "YCbCr 4:2:0 48 位")},
    {"36 bits in YCbCr 4:2:0", QT_TRANSLATE_NOOP("CEdidWords", "YCbCr 4:2:0 36 位")},
    {"30 bits in YCbCr 4:2:0", QT_TRANSLATE_NOOP("CEdidWords", "YCbCr 4:2:0 30 位")},
    {"Negative M VRR", QT_TRANSLATE_NOOP("CEdidWords", "M 为负的 VRR")},
    {"Cinema VRR", QT_TRANSLATE_NOOP("CEdidWords", "影院 VRR")},
    {"Negative MVRR", QT_TRANSLATE_NOOP("CEdidWords", "负 MVRR")},
    {"Fast vertical active", QT_TRANSLATE_NOOP("CEdidWords", "快速垂直有效（FVA）")},
    {"Auto low-latency mode", QT_TRANSLATE_NOOP("CEdidWords", "自动低延迟模式")},
    {"FAPA starts after first line", QT_TRANSLATE_NOOP("CEdidWords", "FAPA 在首行之后开始")},
    {"Lowest variable rate", QT_TRANSLATE_NOOP("CEdidWords", "最低可变帧率")},
    {"Highest variable rate", QT_TRANSLATE_NOOP("CEdidWords", "最高可变帧率")},
    {"Organisation", QT_TRANSLATE_NOOP("CEdidWords", "组织")},
    {"Data block", QT_TRANSLATE_NOOP("CEdidWords", "数据块")},
    {"Tag and length", QT_TRANSLATE_NOOP("CEdidWords", "标记和长度")},
    {"Extended tag", QT_TRANSLATE_NOOP("CEdidWords", "扩展标记")},
    {"Audio format", QT_TRANSLATE_NOOP("CEdidWords", "音频格式")},
    {"Video code", QT_TRANSLATE_NOOP("CEdidWords", "视频代码")},
    {"Preferred", QT_TRANSLATE_NOOP("CEdidWords", "首选")},
    {"HDMI video code", QT_TRANSLATE_NOOP("CEdidWords", "HDMI 视频代码")},
    {"Latency code", QT_TRANSLATE_NOOP("CEdidWords", "延迟代码")},
    {"3D and image size", QT_TRANSLATE_NOOP("CEdidWords", "3D 和图像尺寸")},
    {"Lengths of the lists", QT_TRANSLATE_NOOP("CEdidWords", "列表的长度")},
    {"Bytes of data blocks", QT_TRANSLATE_NOOP("CEdidWords", "数据块的字节数")},
    {"Product type", QT_TRANSLATE_NOOP("CEdidWords", "产品类型")},
    {"Sections that follow", QT_TRANSLATE_NOOP("CEdidWords", "后续数据段")},
    {"Length", QT_TRANSLATE_NOOP("CEdidWords", "长度")},
    {"Aspect ratio", QT_TRANSLATE_NOOP("CEdidWords", "宽高比")},
    {"Type I timing", QT_TRANSLATE_NOOP("CEdidWords", "I 型时序")},
    {"Display timing", QT_TRANSLATE_NOOP("CEdidWords", "显示时序")},
    {"Checksum of the section", QT_TRANSLATE_NOOP("CEdidWords", "数据段的校验和")},
    {"Dynamic metadata", QT_TRANSLATE_NOOP("CEdidWords", "动态元数据")},
    {"Metadata type", QT_TRANSLATE_NOOP("CEdidWords", "元数据类型")},
    {"Audio format with 3D sound", QT_TRANSLATE_NOOP("CEdidWords", "三维声音的音频格式")},
    {"Audio streams at once", QT_TRANSLATE_NOOP("CEdidWords", "同时的音频流")},
    {"Streams that are not mixed", QT_TRANSLATE_NOOP("CEdidWords", "不混合的音频流")},
    {"Audio formats with 3D sound", QT_TRANSLATE_NOOP("CEdidWords", "三维声音的音频格式数")},
    {"Place of the display is told", QT_TRANSLATE_NOOP("CEdidWords", "给出显示器的位置")},
    {"Number of speakers is told", QT_TRANSLATE_NOOP("CEdidWords", "给出扬声器的数目")},
    {"Size of the room is told", QT_TRANSLATE_NOOP("CEdidWords", "给出房间的尺寸")},
    {"Speakers", QT_TRANSLATE_NOOP("CEdidWords", "扬声器数")},
    {"Half width of the room", QT_TRANSLATE_NOOP("CEdidWords", "房间的半宽")},
    {"Half depth of the room", QT_TRANSLATE_NOOP("CEdidWords", "房间的半深")},
    {"Half height of the room", QT_TRANSLATE_NOOP("CEdidWords", "房间的半高")},
    {"Place of the display, x", QT_TRANSLATE_NOOP("CEdidWords", "显示器的位置 x")},
    {"Place of the display, y", QT_TRANSLATE_NOOP("CEdidWords", "显示器的位置 y")},
    {"Place of the display, z", QT_TRANSLATE_NOOP("CEdidWords", "显示器的位置 z")},
    {"Place is told", QT_TRANSLATE_NOOP("CEdidWords", "给出位置")},
    {"In use", QT_TRANSLATE_NOOP("CEdidWords", "使用中")},
    {"Channel", QT_TRANSLATE_NOOP("CEdidWords", "声道号")},
    {"Speaker", QT_TRANSLATE_NOOP("CEdidWords", "扬声器")},
    {"Place, x", QT_TRANSLATE_NOOP("CEdidWords", "位置 x")},
    {"Place, y", QT_TRANSLATE_NOOP("CEdidWords", "位置 y")},
    {"Place, z", QT_TRANSLATE_NOOP("CEdidWords", "位置 z")},
    {"Type VII timing", QT_TRANSLATE_NOOP("CEdidWords", "VII 型时序")},
    {"Length of the name", QT_TRANSLATE_NOOP("CEdidWords", "名称的长度")},
    {"Native width", QT_TRANSLATE_NOOP("CEdidWords", "原生宽度")},
    {"Native height", QT_TRANSLATE_NOOP("CEdidWords", "原生高度")},
    {"Audio on the video interface", QT_TRANSLATE_NOOP("CEdidWords", "视频接口带音频")},
    {"Separate audio inputs", QT_TRANSLATE_NOOP("CEdidWords", "单独的音频输入")},
    {"Audio input override", QT_TRANSLATE_NOOP("CEdidWords", "音频输入优先")},
    {"Power management", QT_TRANSLATE_NOOP("CEdidWords", "电源管理")},
    {"Fixed timing", QT_TRANSLATE_NOOP("CEdidWords", "固定时序")},
    {"Fixed pixel format", QT_TRANSLATE_NOOP("CEdidWords", "固定像素格式")},
    {"Removes interlacing", QT_TRANSLATE_NOOP("CEdidWords", "去隔行")},
    {"Bits per colour, overall", QT_TRANSLATE_NOOP("CEdidWords", "每色位数（总）")},
    {"Bits per colour, native", QT_TRANSLATE_NOOP("CEdidWords", "每色位数（原生）")},
    {"One enclosure", QT_TRANSLATE_NOOP("CEdidWords", "同一外壳")},
    {"Bezels are told", QT_TRANSLATE_NOOP("CEdidWords", "给出边框宽度")},
    {"When only some tiles get a picture", QT_TRANSLATE_NOOP("CEdidWords", "只有部分拼接屏有图像时")},
    {"When one tile alone gets a picture", QT_TRANSLATE_NOOP("CEdidWords", "只有一个拼接屏有图像时")},
    {"Tiles in a row", QT_TRANSLATE_NOOP("CEdidWords", "每行拼接屏数")},
    {"Tiles in a column", QT_TRANSLATE_NOOP("CEdidWords", "每列拼接屏数")},
    {"Place in the row", QT_TRANSLATE_NOOP("CEdidWords", "在行中的位置")},
    {"Place in the column", QT_TRANSLATE_NOOP("CEdidWords", "在列中的位置")},
    {"Width of a tile", QT_TRANSLATE_NOOP("CEdidWords", "拼接屏宽度")},
    {"Height of a tile", QT_TRANSLATE_NOOP("CEdidWords", "拼接屏高度")},
    {"Multiplier of the bezels", QT_TRANSLATE_NOOP("CEdidWords", "边框的乘数")},
    {"Top bezel, times the multiplier", QT_TRANSLATE_NOOP("CEdidWords", "上边框，乘以乘数")},
    {"Bottom bezel, times the multiplier", QT_TRANSLATE_NOOP("CEdidWords", "下边框，乘以乘数")},
    {"Right bezel, times the multiplier", QT_TRANSLATE_NOOP("CEdidWords", "右边框，乘以乘数")},
    {"Left bezel, times the multiplier", QT_TRANSLATE_NOOP("CEdidWords", "左边框，乘以乘数")},
    {"0.700 V, sync -0.300 V", QT_TRANSLATE_NOOP("CEdidWords", "0.700 V，同步 -0.300 V")},
    {"0.714 V, sync -0.286 V", QT_TRANSLATE_NOOP("CEdidWords", "0.714 V，同步 -0.286 V")},
    {"1.000 V, sync -0.400 V", QT_TRANSLATE_NOOP("CEdidWords", "1.000 V，同步 -0.400 V")},
    {"0.700 V, sync 0 V", QT_TRANSLATE_NOOP("CEdidWords", "0.700 V，同步 0 V")},
    {"undefined", QT_TRANSLATE_NOOP("CEdidWords", "未定义")},
    {"monochrome", QT_TRANSLATE_NOOP("CEdidWords", "单色")},
    {"RGB colour", QT_TRANSLATE_NOOP("CEdidWords", "RGB 彩色")},
    {"other than RGB", QT_TRANSLATE_NOOP("CEdidWords", "非 RGB")},
    {"RGB 4:4:4, YCbCr 4:4:4", QT_TRANSLATE_NOOP("CEdidWords", "RGB 4:4:4，YCbCr 4:4:4")},
    {"RGB 4:4:4, YCbCr 4:2:2", QT_TRANSLATE_NOOP("CEdidWords", "RGB 4:4:4，YCbCr 4:2:2")},
    {"RGB 4:4:4, YCbCr 4:4:4, YCbCr 4:2:2", QT_TRANSLATE_NOOP("CEdidWords", "RGB 4:4:4，YCbCr 4:4:4，YCbCr 4:2:2")},
    {"none", QT_TRANSLATE_NOOP("CEdidWords", "无")},
    {"field sequential, right on sync", QT_TRANSLATE_NOOP("CEdidWords", "场序，同步时为右")},
    {"two-way interleaved, right on even lines", QT_TRANSLATE_NOOP("CEdidWords", "双路交错，偶数行为右")},
    {"field sequential, left on sync", QT_TRANSLATE_NOOP("CEdidWords", "场序，同步时为左")},
    {"two-way interleaved, left on even lines", QT_TRANSLATE_NOOP("CEdidWords", "双路交错，偶数行为左")},
    {"four-way interleaved", QT_TRANSLATE_NOOP("CEdidWords", "四路交错")},
    {"side by side", QT_TRANSLATE_NOOP("CEdidWords", "并排")},
    {"analog composite", QT_TRANSLATE_NOOP("CEdidWords", "模拟复合")},
    {"bipolar analog composite", QT_TRANSLATE_NOOP("CEdidWords", "双极模拟复合")},
    {"digital composite", QT_TRANSLATE_NOOP("CEdidWords", "数字复合")},
    {"digital separate", QT_TRANSLATE_NOOP("CEdidWords", "数字分离")},
    {"reserved", QT_TRANSLATE_NOOP("CEdidWords", "保留")},
    {"maximum +255", QT_TRANSLATE_NOOP("CEdidWords", "最高值 +255")},
    {"maximum and minimum +255", QT_TRANSLATE_NOOP("CEdidWords", "最高和最低值 +255")},
    {"default GTF, or none", QT_TRANSLATE_NOOP("CEdidWords", "默认 GTF，或没有")},
    {"range limits only", QT_TRANSLATE_NOOP("CEdidWords", "只有范围限制")},
    {"secondary GTF", QT_TRANSLATE_NOOP("CEdidWords", "第二 GTF 曲线")},
    {"Linear PCM", QT_TRANSLATE_NOOP("CEdidWords", "线性 PCM")},
    {"extended", QT_TRANSLATE_NOOP("CEdidWords", "扩展")},
    {"no data", QT_TRANSLATE_NOOP("CEdidWords", "无数据")},
    {"always overscanned", QT_TRANSLATE_NOOP("CEdidWords", "总是过扫描")},
    {"always underscanned", QT_TRANSLATE_NOOP("CEdidWords", "总是欠扫描")},
    {"both", QT_TRANSLATE_NOOP("CEdidWords", "两者")},
    {"3 Gbit/s on 3 lanes", QT_TRANSLATE_NOOP("CEdidWords", "3 通道 3 Gbit/s")},
    {"3 and 6 Gbit/s on 3 lanes", QT_TRANSLATE_NOOP("CEdidWords", "3 通道 3 和 6 Gbit/s")},
    {"up to 6 Gbit/s on 4 lanes", QT_TRANSLATE_NOOP("CEdidWords", "4 通道最高 6 Gbit/s")},
    {"up to 8 Gbit/s on 4 lanes", QT_TRANSLATE_NOOP("CEdidWords", "4 通道最高 8 Gbit/s")},
    {"up to 10 Gbit/s on 4 lanes", QT_TRANSLATE_NOOP("CEdidWords", "4 通道最高 10 Gbit/s")},
    {"up to 12 Gbit/s on 4 lanes", QT_TRANSLATE_NOOP("CEdidWords", "4 通道最高 12 Gbit/s")},
    {"Reserved data block", QT_TRANSLATE_NOOP("CEdidWords", "保留的数据块")},
    {"Audio data block", QT_TRANSLATE_NOOP("CEdidWords", "音频数据块")},
    {"Video data block", QT_TRANSLATE_NOOP("CEdidWords", "视频数据块")},
    {"Vendor data block", QT_TRANSLATE_NOOP("CEdidWords", "厂商数据块")},
    {"Speaker allocation data block", QT_TRANSLATE_NOOP("CEdidWords", "扬声器分配数据块")},
    {"VESA display transfer characteristics data block", QT_TRANSLATE_NOOP("CEdidWords", "VESA 显示传输特性数据块")},
    {"Video format data block", QT_TRANSLATE_NOOP("CEdidWords", "视频格式数据块")},
    {"Video capability data block", QT_TRANSLATE_NOOP("CEdidWords", "视频能力数据块")},
    {"Vendor video data block", QT_TRANSLATE_NOOP("CEdidWords", "厂商视频数据块")},
    {"VESA display device data block", QT_TRANSLATE_NOOP("CEdidWords", "VESA 显示设备数据块")},
    {"VESA video timing block extension", QT_TRANSLATE_NOOP("CEdidWords", "VESA 视频时序块扩展")},
    {"HDMI video data block", QT_TRANSLATE_NOOP("CEdidWords", "HDMI 视频数据块")},
    {"Colorimetry data block", QT_TRANSLATE_NOOP("CEdidWords", "色度学数据块")},
    {"HDR static metadata data block", QT_TRANSLATE_NOOP("CEdidWords", "HDR 静态元数据块")},
    {"HDR dynamic metadata data block", QT_TRANSLATE_NOOP("CEdidWords", "HDR 动态元数据块")},
    {"Native video resolution data block", QT_TRANSLATE_NOOP("CEdidWords", "原生视频分辨率数据块")},
    {"Video format preference data block", QT_TRANSLATE_NOOP("CEdidWords", "视频格式偏好数据块")},
    {"YCbCr 4:2:0 video data block", QT_TRANSLATE_NOOP("CEdidWords", "YCbCr 4:2:0 视频数据块")},
    {"YCbCr 4:2:0 capability map data block", QT_TRANSLATE_NOOP("CEdidWords", "YCbCr 4:2:0 能力映射数据块")},
    {"Miscellaneous audio data block", QT_TRANSLATE_NOOP("CEdidWords", "其他音频数据块")},
    {"Vendor audio data block", QT_TRANSLATE_NOOP("CEdidWords", "厂商音频数据块")},
    {"HDMI audio data block", QT_TRANSLATE_NOOP("CEdidWords", "HDMI 音频数据块")},
    {"Room configuration data block", QT_TRANSLATE_NOOP("CEdidWords", "房间配置数据块")},
    {"Speaker location data block", QT_TRANSLATE_NOOP("CEdidWords", "扬声器位置数据块")},
    {"InfoFrame data block", QT_TRANSLATE_NOOP("CEdidWords", "InfoFrame 数据块")},
    {"DisplayID type VII timing data block", QT_TRANSLATE_NOOP("CEdidWords", "DisplayID VII 型时序数据块")},
    {"DisplayID type VIII timing data block", QT_TRANSLATE_NOOP("CEdidWords", "DisplayID VIII 型时序数据块")},
    {"DisplayID type X timing data block", QT_TRANSLATE_NOOP("CEdidWords", "DisplayID X 型时序数据块")},
    {"HDMI Forum EDID extension override data block", QT_TRANSLATE_NOOP("CEdidWords", "HDMI Forum EDID 扩展覆盖数据块")},
    {"HDMI Forum sink capability data block", QT_TRANSLATE_NOOP("CEdidWords", "HDMI Forum 接收端能力数据块")},
    {"Extended data block", QT_TRANSLATE_NOOP("CEdidWords", "扩展数据块")},
    {"extension of another section", QT_TRANSLATE_NOOP("CEdidWords", "另一数据段的扩展")},
    {"test structure", QT_TRANSLATE_NOOP("CEdidWords", "测试结构")},
    {"display panel", QT_TRANSLATE_NOOP("CEdidWords", "显示面板")},
    {"standalone display device", QT_TRANSLATE_NOOP("CEdidWords", "独立显示设备")},
    {"television receiver", QT_TRANSLATE_NOOP("CEdidWords", "电视接收机")},
    {"repeater or translator", QT_TRANSLATE_NOOP("CEdidWords", "中继器或转换器")},
    {"direct drive monitor", QT_TRANSLATE_NOOP("CEdidWords", "直接驱动显示器")},
    {"mono", QT_TRANSLATE_NOOP("CEdidWords", "单视")},
    {"stereo", QT_TRANSLATE_NOOP("CEdidWords", "立体显示")},
    {"as the operator chooses", QT_TRANSLATE_NOOP("CEdidWords", "由操作者选择")},
    {"Product identification", QT_TRANSLATE_NOOP("CEdidWords", "产品标识")},
    {"Display parameters", QT_TRANSLATE_NOOP("CEdidWords", "显示参数")},
    {"Colour characteristics", QT_TRANSLATE_NOOP("CEdidWords", "色彩特性")},
    {"Type I timings, detailed", QT_TRANSLATE_NOOP("CEdidWords", "I 型时序，详细")},
    {"Type II timings, detailed", QT_TRANSLATE_NOOP("CEdidWords", "II 型时序，详细")},
    {"Type III timings, short", QT_TRANSLATE_NOOP("CEdidWords", "III 型时序，简短")},
    {"Type IV timings, DMT numbers", QT_TRANSLATE_NOOP("CEdidWords", "IV 型时序，DMT 编号")},
    {"VESA timing standard", QT_TRANSLATE_NOOP("CEdidWords", "VESA 时序标准")},
    {"CTA timing standard", QT_TRANSLATE_NOOP("CEdidWords", "CTA 时序标准")},
    {"Video timing range limits", QT_TRANSLATE_NOOP("CEdidWords", "视频时序范围限制")},
    {"Product serial number", QT_TRANSLATE_NOOP("CEdidWords", "产品序列号")},
    {"Display device data", QT_TRANSLATE_NOOP("CEdidWords", "显示设备数据")},
    {"Interface power sequencing", QT_TRANSLATE_NOOP("CEdidWords", "接口上电顺序")},
    {"Transfer characteristics", QT_TRANSLATE_NOOP("CEdidWords", "传输特性")},
    {"Display interface", QT_TRANSLATE_NOOP("CEdidWords", "显示接口")},
    {"Stereo display interface", QT_TRANSLATE_NOOP("CEdidWords", "立体显示接口")},
    {"Type V timings, short", QT_TRANSLATE_NOOP("CEdidWords", "V 型时序，简短")},
    {"Tiled display topology", QT_TRANSLATE_NOOP("CEdidWords", "拼接显示拓扑")},
    {"Type VI timings, detailed", QT_TRANSLATE_NOOP("CEdidWords", "VI 型时序，详细")},
    {"Product identification (2.0)", QT_TRANSLATE_NOOP("CEdidWords", "产品标识（2.0）")},
    {"Display parameters (2.0)", QT_TRANSLATE_NOOP("CEdidWords", "显示参数（2.0）")},
    {"Type VII timings, detailed", QT_TRANSLATE_NOOP("CEdidWords", "VII 型时序，详细")},
    {"Type VIII timings, enumerated", QT_TRANSLATE_NOOP("CEdidWords", "VIII 型时序，列举")},
    {"Type IX timings, formula", QT_TRANSLATE_NOOP("CEdidWords", "IX 型时序，公式")},
    {"Dynamic video timing range", QT_TRANSLATE_NOOP("CEdidWords", "动态视频时序范围")},
    {"Display interface features", QT_TRANSLATE_NOOP("CEdidWords", "显示接口特性")},
    {"Stereo display interface (2.0)", QT_TRANSLATE_NOOP("CEdidWords", "立体显示接口（2.0）")},
    {"Tiled display topology (2.0)", QT_TRANSLATE_NOOP("CEdidWords", "拼接显示拓扑（2.0）")},
    {"Container ID", QT_TRANSLATE_NOOP("CEdidWords", "容器 ID")},
    {"Type X timings, formula", QT_TRANSLATE_NOOP("CEdidWords", "X 型时序，公式")},
    {"Adaptive sync", QT_TRANSLATE_NOOP("CEdidWords", "自适应同步")},
    {"Vendor data (2.0)", QT_TRANSLATE_NOOP("CEdidWords", "厂商数据（2.0）")},
    {"Vendor data", QT_TRANSLATE_NOOP("CEdidWords", "厂商数据")},
    {"CTA DisplayID data", QT_TRANSLATE_NOOP("CEdidWords", "CTA DisplayID 数据")},
    {"image at the place of its tile", QT_TRANSLATE_NOOP("CEdidWords", "图像在其拼接屏的位置")},
    {"image over all tiles", QT_TRANSLATE_NOOP("CEdidWords", "图像铺满全部拼接屏")},
    {"image on every tile", QT_TRANSLATE_NOOP("CEdidWords", "图像在每个拼接屏上")},
    {"front left", QT_TRANSLATE_NOOP("CEdidWords", "前左")},
    {"front right", QT_TRANSLATE_NOOP("CEdidWords", "前右")},
    {"front centre", QT_TRANSLATE_NOOP("CEdidWords", "前置中央")},
    {"low frequency effects 1", QT_TRANSLATE_NOOP("CEdidWords", "低频效果 1")},
    {"back left", QT_TRANSLATE_NOOP("CEdidWords", "后左")},
    {"back right", QT_TRANSLATE_NOOP("CEdidWords", "后右")},
    {"front left of centre", QT_TRANSLATE_NOOP("CEdidWords", "前中偏左")},
    {"front right of centre", QT_TRANSLATE_NOOP("CEdidWords", "前中偏右")},
    {"back centre", QT_TRANSLATE_NOOP("CEdidWords", "后置中央")},
    {"low frequency effects 2", QT_TRANSLATE_NOOP("CEdidWords", "低频声道 2")},
    {"side left", QT_TRANSLATE_NOOP("CEdidWords", "侧左")},
    {"side right", QT_TRANSLATE_NOOP("CEdidWords", "侧右")},
    {"top front left", QT_TRANSLATE_NOOP("CEdidWords", "顶前左")},
    {"top front right", QT_TRANSLATE_NOOP("CEdidWords", "顶前右")},
    {"top front centre", QT_TRANSLATE_NOOP("CEdidWords", "顶前中央")},
    {"top centre", QT_TRANSLATE_NOOP("CEdidWords", "顶部中央")},
    {"top back left", QT_TRANSLATE_NOOP("CEdidWords", "顶后左")},
    {"top back right", QT_TRANSLATE_NOOP("CEdidWords", "顶后右")},
    {"top side left", QT_TRANSLATE_NOOP("CEdidWords", "顶侧左")},
    {"top side right", QT_TRANSLATE_NOOP("CEdidWords", "顶侧右")},
    {"top back centre", QT_TRANSLATE_NOOP("CEdidWords", "顶后中央")},
    {"bottom front centre", QT_TRANSLATE_NOOP("CEdidWords", "底前中央")},
    {"bottom front left", QT_TRANSLATE_NOOP("CEdidWords", "底前左")},
    {"bottom front right", QT_TRANSLATE_NOOP("CEdidWords", "底前右")},
    {"front left wide", QT_TRANSLATE_NOOP("CEdidWords", "前左宽")},
    {"front right wide", QT_TRANSLATE_NOOP("CEdidWords", "前右宽")},
    {"left surround", QT_TRANSLATE_NOOP("CEdidWords", "左环绕")},
    {"right surround", QT_TRANSLATE_NOOP("CEdidWords", "右环绕")},
    {"pixels", QT_TRANSLATE_NOOP("CEdidWords", "像素")},
    {"lines", QT_TRANSLATE_NOOP("CEdidWords", "行")},
    {"bytes", QT_TRANSLATE_NOOP("CEdidWords", "个字节")},
};

/// What stands within values.
constexpr SWord c_arrPhrases[] = {
    {"wrong, should be ", QT_TRANSLATE_NOOP("CEdidWords", "错误，应为 ")},
    {"right", QT_TRANSLATE_NOOP("CEdidWords", "正确")},
    {"not given", QT_TRANSLATE_NOOP("CEdidWords", "未给出")},
    {"model year", QT_TRANSLATE_NOOP("CEdidWords", "表示型号年份")},
    {"defined elsewhere", QT_TRANSLATE_NOOP("CEdidWords", "在别处定义")},
    {"unused", QT_TRANSLATE_NOOP("CEdidWords", "未使用")},
    {", unknown", QT_TRANSLATE_NOOP("CEdidWords", "，未知")},
    {", native", QT_TRANSLATE_NOOP("CEdidWords", "，原生")},
    {"detailed timing ", QT_TRANSLATE_NOOP("CEdidWords", "详细时序 ")},
    {"type VII timing ", QT_TRANSLATE_NOOP("CEdidWords", "VII 型时序 ")},
    {"type VIII timing ", QT_TRANSLATE_NOOP("CEdidWords", "VIII 型时序 ")},
    {"reserved", QT_TRANSLATE_NOOP("CEdidWords", "保留值")},
    {"no rate", QT_TRANSLATE_NOOP("CEdidWords", "没有帧率")},
    {" preferred", QT_TRANSLATE_NOOP("CEdidWords", " 首选")},
    {" reduced", QT_TRANSLATE_NOOP("CEdidWords", " 缩减")},
    {"not from 4000 to 25000 K", QT_TRANSLATE_NOOP("CEdidWords", "不在 4000 到 25000 K 之间")},
    {" at ", QT_TRANSLATE_NOOP("CEdidWords", " @ ")},
};
// clang-format on

using Edid::enKind;

const char* FindWord(const char* szEnglish)
{
    static const QHash<QByteArray, const char*> s_mapWords = [] {
        QHash<QByteArray, const char*> mapWords;
        for (const SWord& word : c_arrWords)
            mapWords.insert(word.szEnglish, word.szChinese);
        return mapWords;
    }();
    return s_mapWords.value(QByteArray::fromRawData(szEnglish, int(std::strlen(szEnglish))));
}

QString Numbered(const Edid::SField& field, const QString& strLabel)
{
    return field.nIndex == 0 ? strLabel : QStringLiteral("%1 %2").arg(strLabel).arg(field.nIndex);
}

/// A value whose text holds phrases between names and numbers.
QString InPhrases(QString strValue)
{
    for (const SWord& phrase : c_arrPhrases)
        strValue.replace(QString::fromLatin1(phrase.szEnglish), CEdidWords::tr(phrase.szChinese));
    return strValue;
}

/// A number with its unit.
QString InUnits(const QString& strValue, const char* szUnit)
{
    if (FindWord(szUnit) == nullptr || *szUnit == '\0')
        return strValue;
    return strValue.left(strValue.size() - int(std::strlen(szUnit))) + Word(szUnit);
}

QString YesOrNo(bool bYes)
{
    return bYes ? CEdidWords::tr("是") : CEdidWords::tr("否");
}

QString ChoiceName(const Edid::SField& field)
{
    const char* szName = field.pType->choices.Name(field.nRaw);
    return szName == nullptr ? CEdidWords::tr("保留 (%1)").arg(field.nRaw) : Word(szName);
}

/// Texts, letters, bytes and lines for programs stay as they are.
bool IsVerbatim(enKind kind)
{
    constexpr enKind c_arrVerbatim[] = {enKind::enText,     enKind::enBytes,           enKind::enMaker,
                                        enKind::enModeline, enKind::enTypeVIIModeline, enKind::enCoverage};
    return std::find(std::begin(c_arrVerbatim), std::end(c_arrVerbatim), kind) != std::end(c_arrVerbatim);
}

} // namespace

QString Word(const char* szEnglish)
{
    const char* szChinese = FindWord(szEnglish);
    return szChinese == nullptr ? QString::fromLatin1(szEnglish) : CEdidWords::tr(szChinese);
}

bool HasWord(const char* szEnglish)
{
    return FindWord(szEnglish) != nullptr;
}

QString Label(const Edid::SField& field)
{
    switch (field.pType->kind) {
    case enKind::enEstablished:
        return InPhrases(Edid::LabelText(field));
    case enKind::enDescriptor:
        return CEdidWords::tr("描述符 %1：%2").arg(field.nIndex).arg(Word(field.pType->szLabel));
    case enKind::enDataBlock:
        return Word(Edid::CtaBlockName(field.nRaw));
    case enKind::enSectionBlock:
        return Word(Edid::DisplayIdBlockName(quint8(field.nRaw)));
    default:
        return Numbered(field, Word(field.pType->szLabel));
    }
}

QString Value(const Edid::SField& field, const quint8* pBytes)
{
    switch (field.pType->kind) {
    case enKind::enFlag:
    case enKind::enEstablished:
        return YesOrNo(field.nRaw != 0);
    case enKind::enChoice:
        return ChoiceName(field);
    case enKind::enNumber:
        return InUnits(Edid::ValueText(field, pBytes, {}), field.pType->szUnit);
    default:
        break;
    }
    const QString strValue = Edid::ValueText(field, pBytes, {});
    return IsVerbatim(field.pType->kind) ? strValue : InPhrases(strValue);
}

QVector<SChoice> Choices(const Edid::SField& field)
{
    if (field.pType->kind != enKind::enChoice)
        return {{0, YesOrNo(false)}, {1, YesOrNo(true)}};
    QVector<SChoice> vecChoices;
    const Edid::SChoices& choices = field.pType->choices;
    for (const Edid::SChoice* pChoice = choices.pFirst; pChoice != choices.pFirst + choices.nCount; ++pChoice)
        vecChoices.append({pChoice->nValue, Word(pChoice->szName)});
    // A reserved value that is there can stay.
    if (choices.Name(field.nRaw) == nullptr)
        vecChoices.append({field.nRaw, ChoiceName(field)});
    return vecChoices;
}

} // namespace EdidWords
