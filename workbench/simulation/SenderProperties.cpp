#include "workbench/simulation/SenderProperties.h"

#include "simulator/CommonClass/SimulatedProject.h"

#include <QCoreApplication>

#include <type_traits>

namespace SenderProperties {

namespace {

class CSenderPropertyText
{
    Q_DECLARE_TR_FUNCTIONS(CSenderPropertyText)
};

constexpr int c_nMaxSide = 65535;
constexpr int c_nMaxArea = 2147483647;
constexpr int c_nMaxDelay = 60000; ///< ms
constexpr int c_nComputed = -1;    ///< limit flags are computed from the project
constexpr int c_nBySenders = -1;   ///< the number of processors is that of the senders

SSimulatedSender& Sender(SSimulatedProject& project, int nSender)
{
    return *project.FindSender(nSender);
}

const SSimulatedSender& Sender(const SSimulatedProject& project, int nSender)
{
    return *project.FindSender(nSender);
}

/// Where a property stands and how it is edited.
struct SCaption
{
    const char* szGroup;
    const char* szName;
};

/// Limits of a number, both included.
struct SLimits
{
    int nMin;
    int nMax;
};

/// A property that is one field. The access gives the field of a project, constant or not.
template <class FAccess>
SSenderProperty Field(const SCaption& caption, enEditor editor, FAccess access, SLimits limits = {0, 0},
                      const std::vector<SPropertyChoice>& vecChoices = {})
{
    return {caption.szGroup,
            caption.szName,
            editor,
            limits.nMin,
            limits.nMax,
            vecChoices,
            [access](const SSimulatedProject& project, int nSender) {
                return QVariant(access(project, nSender));
            },
            [access](SSimulatedProject& project, int nSender, const QVariant& value) {
                auto& field = access(project, nSender);
                field = value.value<std::decay_t<decltype(field)>>();
            }};
}

/// The width of a size that the access gives.
template <class FAccess>
SSenderProperty Width(const SCaption& caption, FAccess access)
{
    return {
        caption.szGroup,
        caption.szName,
        enEditor::Number,
        0,
        c_nMaxSide,
        {},
        [access](const SSimulatedProject& project, int nSender) { return access(project, nSender).width(); },
        [access](SSimulatedProject& project, int nSender, const QVariant& value) {
            access(project, nSender).setWidth(value.toInt());
        }};
}

/// The height of a size that the access gives.
template <class FAccess>
SSenderProperty Height(const SCaption& caption, FAccess access)
{
    return {
        caption.szGroup,
        caption.szName,
        enEditor::Number,
        0,
        c_nMaxSide,
        {},
        [access](const SSimulatedProject& project, int nSender) { return access(project, nSender).height(); },
        [access](SSimulatedProject& project, int nSender, const QVariant& value) {
            access(project, nSender).setHeight(value.toInt());
        }};
}

QVariant ReadLimitFlags(const SSimulatedProject& project, int nSender)
{
    const auto& flags = Sender(project, nSender).outputLimitFlags;
    return flags ? int(*flags) : c_nComputed;
}

void WriteLimitFlags(SSimulatedProject& project, int nSender, const QVariant& value)
{
    auto& flags = Sender(project, nSender).outputLimitFlags;
    if (value.toInt() == c_nComputed)
        flags.reset();
    else
        flags = unsigned(value.toInt());
}

QVariant ReadWriteFails(const SSimulatedProject& project, int nSender)
{
    return Sender(project, nSender).faults.nEdidWriteResult != 0;
}

void WriteWriteFails(SSimulatedProject& project, int nSender, const QVariant& value)
{
    Sender(project, nSender).faults.nEdidWriteResult = value.toBool() ? 1 : 0;
}

QVariant ReadAddedCount(const SSimulatedProject& project, int)
{
    return project.addressing.nAddedSenderCount.value_or(c_nBySenders);
}

void WriteAddedCount(SSimulatedProject& project, int, const QVariant& value)
{
    auto& count = project.addressing.nAddedSenderCount;
    if (value.toInt() == c_nBySenders)
        count.reset();
    else
        count = value.toInt();
}

constexpr const char* c_szSender = QT_TRANSLATE_NOOP("CSenderPropertyText", "发送器");
constexpr const char* c_szOutput = QT_TRANSLATE_NOOP("CSenderPropertyText", "输出");
constexpr const char* c_szCanvas = QT_TRANSLATE_NOOP("CSenderPropertyText", "画布");
constexpr const char* c_szFaults = QT_TRANSLATE_NOOP("CSenderPropertyText", "故障");
constexpr const char* c_szAddressing = QT_TRANSLATE_NOOP("CSenderPropertyText", "寻址（整个工程）");

const std::vector<SPropertyChoice> c_vecDepthModes = {
    {QT_TRANSLATE_NOOP("CSenderPropertyText", "8 位"), 0},
    {QT_TRANSLATE_NOOP("CSenderPropertyText", "10 位"), 1},
    {QT_TRANSLATE_NOOP("CSenderPropertyText", "12 位"), 2},
};

const std::vector<SPropertyChoice> c_vecLimitFlags = {
    {QT_TRANSLATE_NOOP("CSenderPropertyText", "由工程计算"), c_nComputed},
    {QT_TRANSLATE_NOOP("CSenderPropertyText", "没有超限"), 0},
    {QT_TRANSLATE_NOOP("CSenderPropertyText", "输出视频区域"), 0x800},
    {QT_TRANSLATE_NOOP("CSenderPropertyText", "DVI 1 至 4"), 0x1000},
    {QT_TRANSLATE_NOOP("CSenderPropertyText", "DVI 5 至 8"), 0x2000},
    {QT_TRANSLATE_NOOP("CSenderPropertyText", "输出口带载面积"), 0x8000000},
    {QT_TRANSLATE_NOOP("CSenderPropertyText", "EDID 输出面积"), 0x10000000},
    {QT_TRANSLATE_NOOP("CSenderPropertyText", "未知的标志"), 0x1},
};

} // namespace

const std::vector<SSenderProperty>& All()
{
    static const std::vector<SSenderProperty> s_vecProperties = {
        Field(
            {c_szSender, QT_TRANSLATE_NOOP("CSenderPropertyText", "名称")}, enEditor::Text,
            [](auto& project, int nSender) -> auto& { return Sender(project, nSender).strName; }),
        Field(
            {c_szSender, QT_TRANSLATE_NOOP("CSenderPropertyText", "视频处理器")}, enEditor::Switch,
            [](auto& project, int nSender) -> auto& {
                return Sender(project, nSender).capability.bVideoProcessor;
            }),
        Field(
            {c_szSender, QT_TRANSLATE_NOOP("CSenderPropertyText", "支持 10 位")}, enEditor::Switch,
            [](auto& project, int nSender) -> auto& {
                return Sender(project, nSender).capability.bSupport10Bit;
            }),
        Field(
            {c_szSender, QT_TRANSLATE_NOOP("CSenderPropertyText", "支持 12 位")}, enEditor::Switch,
            [](auto& project, int nSender) -> auto& {
                return Sender(project, nSender).capability.bSupport12Bit;
            }),
        Field(
            {c_szSender, QT_TRANSLATE_NOOP("CSenderPropertyText", "接受完整的 EDID 记录")}, enEditor::Switch,
            [](auto& project, int nSender) -> auto& {
                return Sender(project, nSender).capability.bExtendedEdid;
            }),
        Field(
            {c_szSender, QT_TRANSLATE_NOOP("CSenderPropertyText", "支持 EDID 扩展块")}, enEditor::Switch,
            [](auto& project, int nSender) -> auto& {
                return Sender(project, nSender).capability.bExtensionBlock;
            }),
        Field({c_szSender, QT_TRANSLATE_NOOP("CSenderPropertyText", "输出口数量")}, enEditor::Number,
              [](auto& project, int nSender) -> auto& {
                  return Sender(project, nSender).record.nOutputPortCount;
              },
              {0, 255}),
        Field({c_szOutput, QT_TRANSLATE_NOOP("CSenderPropertyText", "工程帧率 (Hz)")}, enEditor::Number,
              [](auto& project, int nSender) -> auto& { return Sender(project, nSender).record.nFrameRate; },
              {1, 240}),
        Field({c_szOutput, QT_TRANSLATE_NOOP("CSenderPropertyText", "工程色深（位）")}, enEditor::Number,
              [](auto& project, int nSender) -> auto& { return Sender(project, nSender).record.nColorDepth; },
              {1, 16}),
        Field(
            {c_szOutput, QT_TRANSLATE_NOOP("CSenderPropertyText", "硬件色深")}, enEditor::Choice,
            [](auto& project, int nSender) -> auto& { return Sender(project, nSender).nOutputDepthMode; },
            {0, 0}, c_vecDepthModes),
        Field(
            {c_szOutput, QT_TRANSLATE_NOOP("CSenderPropertyText", "硬件以 50 Hz 运行")}, enEditor::Switch,
            [](auto& project, int nSender) -> auto& { return Sender(project, nSender).b50Hz; }),
        Field({c_szOutput, QT_TRANSLATE_NOOP("CSenderPropertyText", "实际输入帧率 (Hz)，0 为未知")},
              enEditor::Decimal,
              [](auto& project, int nSender) -> auto& { return Sender(project, nSender).fMaxInputFrameRate; },
              {0, 1000}),
        {c_szOutput, QT_TRANSLATE_NOOP("CSenderPropertyText", "输出超限"), enEditor::Choice, 0, 0,
         c_vecLimitFlags, ReadLimitFlags, WriteLimitFlags},
        Width(
            {c_szCanvas, QT_TRANSLATE_NOOP("CSenderPropertyText", "画布宽")},
            [](auto& project, int nSender) -> auto& { return Sender(project, nSender).record.sizeCanvas; }),
        Height(
            {c_szCanvas, QT_TRANSLATE_NOOP("CSenderPropertyText", "画布高")},
            [](auto& project, int nSender) -> auto& { return Sender(project, nSender).record.sizeCanvas; }),
        Field(
            {c_szCanvas, QT_TRANSLATE_NOOP("CSenderPropertyText", "从硬件读取画布")}, enEditor::Switch,
            [](auto& project, int nSender) -> auto& {
                return Sender(project, nSender).capability.bCanvasFromHardware;
            }),
        Width(
            {c_szCanvas, QT_TRANSLATE_NOOP("CSenderPropertyText", "硬件画布宽")},
            [](auto& project, int nSender) -> auto& { return Sender(project, nSender).sizeHardwareCanvas; }),
        Height(
            {c_szCanvas, QT_TRANSLATE_NOOP("CSenderPropertyText", "硬件画布高")},
            [](auto& project, int nSender) -> auto& { return Sender(project, nSender).sizeHardwareCanvas; }),
        Field({c_szCanvas, QT_TRANSLATE_NOOP("CSenderPropertyText", "最大宽")}, enEditor::Number,
              [](auto& project, int nSender) -> auto& {
                  return Sender(project, nSender).capability.canvasLimit.nMaxWidth;
              },
              {1, c_nMaxSide}),
        Field({c_szCanvas, QT_TRANSLATE_NOOP("CSenderPropertyText", "最大高")}, enEditor::Number,
              [](auto& project, int nSender) -> auto& {
                  return Sender(project, nSender).capability.canvasLimit.nMaxHeight;
              },
              {1, c_nMaxSide}),
        Field({c_szCanvas, QT_TRANSLATE_NOOP("CSenderPropertyText", "最大面积")}, enEditor::Number,
              [](auto& project, int nSender) -> auto& {
                  return Sender(project, nSender).capability.canvasLimit.nMaxArea;
              },
              {1, c_nMaxArea}),
        {c_szFaults,
         QT_TRANSLATE_NOOP("CSenderPropertyText", "EDID 写入失败"),
         enEditor::Switch,
         0,
         0,
         {},
         ReadWriteFails,
         WriteWriteFails},
        Field(
            {c_szFaults, QT_TRANSLATE_NOOP("CSenderPropertyText", "EDID 写入后不生效")}, enEditor::Switch,
            [](auto& project, int nSender) -> auto& {
                return Sender(project, nSender).faults.bBasicEdidFails;
            }),
        Field({c_szFaults, QT_TRANSLATE_NOOP("CSenderPropertyText", "写入延迟（毫秒）")}, enEditor::Number,
              [](auto& project, int nSender) -> auto& { return Sender(project, nSender).faults.nWriteDelay; },
              {0, c_nMaxDelay}),
        Field(
            {c_szAddressing, QT_TRANSLATE_NOOP("CSenderPropertyText", "演示模式")}, enEditor::Switch,
            [](auto& project, int) -> auto& { return project.bDemoMode; }),
        Field(
            {c_szAddressing, QT_TRANSLATE_NOOP("CSenderPropertyText", "按 IP 地址寻址")}, enEditor::Switch,
            [](auto& project, int) -> auto& { return project.addressing.bIPAddressMode; }),
        Field({c_szAddressing, QT_TRANSLATE_NOOP("CSenderPropertyText", "探测方式，2 要求起始地址")},
              enEditor::Number,
              [](auto& project, int) -> auto& { return project.addressing.nDetectStrategy; }, {0, 9}),
        {c_szAddressing,
         QT_TRANSLATE_NOOP("CSenderPropertyText", "已有主控数量，-1 为发送器的数量"),
         enEditor::Number,
         c_nBySenders,
         255,
         {},
         ReadAddedCount,
         WriteAddedCount},
        Field({c_szAddressing, QT_TRANSLATE_NOOP("CSenderPropertyText", "主控数量上限（按地址）")},
              enEditor::Number,
              [](auto& project, int) -> auto& { return project.addressing.nCountLimitByIP; }, {1, 255}),
    };
    return s_vecProperties;
}

QString Text(const char* szText)
{
    return CSenderPropertyText::tr(szText);
}

} // namespace SenderProperties
