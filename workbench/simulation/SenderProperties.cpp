#include "workbench/simulation/SenderProperties.h"

#include "host/HardwareSupport/OutputLimit.h"
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
constexpr int c_nBySenders = -1;   ///< the number of processors equals that of the senders
constexpr int c_nByAddress = 2;    ///< the detect strategy that finds processors by address
constexpr int c_nNotByAddress = 1; ///< any other; the dialogs do not distinguish them

/// Reading and writing of one property.
struct SAccess
{
    QVariant (*pRead)(const SSimulatedProject& project, int nSender);
    void (*pWrite)(SSimulatedProject& project, int nSender, const QVariant& value);
};

/// A field of a sender, reached through members: capability, then one of its fields.
template <auto... c_pMembers>
struct SOfSender
{
    template <class TProject>
    static auto& Field(TProject& project, int nSender)
    {
        return ((*project.FindSender(nSender)).*....*c_pMembers);
    }
};

/// A field of the project itself.
template <auto... c_pMembers>
struct SOfProject
{
    template <class TProject>
    static auto& Field(TProject& project, int)
    {
        return (project.*....*c_pMembers);
    }
};

template <class TPlace>
constexpr SAccess c_accessTo = {
    [](const SSimulatedProject& project, int nSender) { return QVariant(TPlace::Field(project, nSender)); },
    [](SSimulatedProject& project, int nSender, const QVariant& value) {
        auto& field = TPlace::Field(project, nSender);
        field = value.value<std::decay_t<decltype(field)>>();
    }};

template <auto... c_pMembers>
constexpr SAccess c_sender = c_accessTo<SOfSender<c_pMembers...>>;

template <auto... c_pMembers>
constexpr SAccess c_project = c_accessTo<SOfProject<c_pMembers...>>;

/// One side of a size of the sender.
template <auto c_pRead, auto c_pWrite, auto... c_pMembers>
constexpr SAccess c_side = {[](const SSimulatedProject& project, int nSender) {
                                return QVariant(
                                    (SOfSender<c_pMembers...>::Field(project, nSender).*c_pRead)());
                            },
                            [](SSimulatedProject& project, int nSender, const QVariant& value) {
                                (SOfSender<c_pMembers...>::Field(project, nSender).*c_pWrite)(value.toInt());
                            }};

template <auto... c_pMembers>
constexpr SAccess c_width = c_side<&QSize::width, &QSize::setWidth, c_pMembers...>;

template <auto... c_pMembers>
constexpr SAccess c_height = c_side<&QSize::height, &QSize::setHeight, c_pMembers...>;

/// An optional value; a number outside its range represents absence.
template <class TPlace, int c_nAbsent>
constexpr SAccess c_optional = {[](const SSimulatedProject& project, int nSender) {
                                    const auto& optional = TPlace::Field(project, nSender);
                                    return QVariant(optional ? int(*optional) : c_nAbsent);
                                },
                                [](SSimulatedProject& project, int nSender, const QVariant& value) {
                                    auto& optional = TPlace::Field(project, nSender);
                                    optional.reset();
                                    if (value.toInt() != c_nAbsent)
                                        optional = value.toInt();
                                }};

constexpr SAccess c_writeFails = {
    [](const SSimulatedProject& project, int nSender) {
        return QVariant(project.FindSender(nSender)->faults.nEdidWriteResult != 0);
    },
    [](SSimulatedProject& project, int nSender, const QVariant& value) {
        project.FindSender(nSender)->faults.nEdidWriteResult = value.toBool() ? 1 : 0;
    }};

constexpr SAccess c_detectStrategy = {
    [](const SSimulatedProject& project, int) {
        return QVariant(project.addressing.nDetectStrategy == c_nByAddress ? c_nByAddress : c_nNotByAddress);
    },
    [](SSimulatedProject& project, int, const QVariant& value) {
        project.addressing.nDetectStrategy = value.toInt();
    }};

/// How a property is edited.
struct SEditing
{
    enEditor editor;
    int nMin = 0;
    int nMax = 0;
    const char* szLowest = nullptr;
    std::vector<SPropertyChoice> vecChoices = {};
};

SEditing Numbers(int nMin, int nMax, const char* szLowest = nullptr)
{
    return {enEditor::enNumber, nMin, nMax, szLowest};
}

SEditing Choices(std::vector<SPropertyChoice> vecChoices)
{
    return {enEditor::enChoice, 0, 0, nullptr, std::move(vecChoices)};
}

SSenderProperty Row(const char* szGroup, const char* szName, const SEditing& editing, const SAccess& access)
{
    return {szGroup,      szName,           editing.editor,     editing.nMin,
            editing.nMax, editing.szLowest, editing.vecChoices, access.pRead,
            access.pWrite};
}

constexpr const char* c_szFaults = QT_TRANSLATE_NOOP("CSenderPropertyText", "故障");
constexpr const char* c_szSender = QT_TRANSLATE_NOOP("CSenderPropertyText", "发送器");
constexpr const char* c_szOutput = QT_TRANSLATE_NOOP("CSenderPropertyText", "输出");
constexpr const char* c_szCanvas = QT_TRANSLATE_NOOP("CSenderPropertyText", "画布");
constexpr const char* c_szAddressing = QT_TRANSLATE_NOOP("CSenderPropertyText", "寻址（整个工程）");

const SEditing c_text = {enEditor::enText};
const SEditing c_switch = {enEditor::enSwitch};
const SEditing c_side16 = Numbers(0, c_nMaxSide);
const SEditing c_limit16 = Numbers(1, c_nMaxSide);

const SEditing c_depthModes = Choices({
    {QT_TRANSLATE_NOOP("CSenderPropertyText", "8 位"), 0},
    {QT_TRANSLATE_NOOP("CSenderPropertyText", "10 位"), 1},
    {QT_TRANSLATE_NOOP("CSenderPropertyText", "12 位"), 2},
});

const SEditing c_limitFlags = Choices({
    {QT_TRANSLATE_NOOP("CSenderPropertyText", "由工程计算"), c_nComputed},
    {QT_TRANSLATE_NOOP("CSenderPropertyText", "没有超限"), 0},
    {QT_TRANSLATE_NOOP("CSenderPropertyText", "输出视频区域"), enLimitOutputArea},
    {QT_TRANSLATE_NOOP("CSenderPropertyText", "DVI 1 至 4"), enLimitDvi1To4},
    {QT_TRANSLATE_NOOP("CSenderPropertyText", "DVI 5 至 8"), enLimitDvi5To8},
    {QT_TRANSLATE_NOOP("CSenderPropertyText", "输出口带载面积"), enLimitPortArea},
    {QT_TRANSLATE_NOOP("CSenderPropertyText", "EDID 输出面积"), enLimitEdidArea},
    {QT_TRANSLATE_NOOP("CSenderPropertyText", "未知的标志"), 0x1},
});

const SEditing c_strategies = Choices({
    {QT_TRANSLATE_NOOP("CSenderPropertyText", "按地址：手动添加时要求起始地址"), c_nByAddress},
    {QT_TRANSLATE_NOOP("CSenderPropertyText", "不按地址"), c_nNotByAddress},
});

using SSender = SSimulatedSender;
using SProject = SSimulatedProject;
using SCapability = SSenderCapability;
using SLimit = SCanvasLimit;

/// Faults come first: they are used most. Addressing comes last because it belongs to the project.
const std::vector<SSenderProperty> c_vecProperties = {
    Row(c_szFaults, QT_TRANSLATE_NOOP("CSenderPropertyText", "EDID 写入失败"), c_switch, c_writeFails),
    Row(c_szFaults, QT_TRANSLATE_NOOP("CSenderPropertyText", "EDID 写入后不生效"), c_switch,
        c_sender<&SSender::faults, &SSenderFaults::bBasicEdidFails>),
    Row(c_szFaults, QT_TRANSLATE_NOOP("CSenderPropertyText", "写入延迟（毫秒）"), Numbers(0, c_nMaxDelay),
        c_sender<&SSender::faults, &SSenderFaults::nWriteDelay>),
    Row(c_szSender, QT_TRANSLATE_NOOP("CSenderPropertyText", "名称"), c_text, c_sender<&SSender::strName>),
    Row(c_szSender, QT_TRANSLATE_NOOP("CSenderPropertyText", "视频处理器"), c_switch,
        c_sender<&SSender::capability, &SCapability::bVideoProcessor>),
    Row(c_szSender, QT_TRANSLATE_NOOP("CSenderPropertyText", "支持 10 位"), c_switch,
        c_sender<&SSender::capability, &SCapability::bSupport10Bit>),
    Row(c_szSender, QT_TRANSLATE_NOOP("CSenderPropertyText", "支持 12 位"), c_switch,
        c_sender<&SSender::capability, &SCapability::bSupport12Bit>),
    Row(c_szSender, QT_TRANSLATE_NOOP("CSenderPropertyText", "接受完整的 EDID 记录"), c_switch,
        c_sender<&SSender::capability, &SCapability::bExtendedEdid>),
    Row(c_szSender, QT_TRANSLATE_NOOP("CSenderPropertyText", "支持 EDID 扩展块"), c_switch,
        c_sender<&SSender::capability, &SCapability::bExtensionBlock>),
    Row(c_szSender, QT_TRANSLATE_NOOP("CSenderPropertyText", "输出口数量"), Numbers(0, 255),
        c_sender<&SSender::record, &CSender::nOutputPortCount>),
    Row(c_szOutput, QT_TRANSLATE_NOOP("CSenderPropertyText", "工程帧率 (Hz)"), Numbers(1, 240),
        c_sender<&SSender::record, &CSender::nFrameRate>),
    Row(c_szOutput, QT_TRANSLATE_NOOP("CSenderPropertyText", "工程色深（位）"), Numbers(1, 16),
        c_sender<&SSender::record, &CSender::nColorDepth>),
    Row(c_szOutput, QT_TRANSLATE_NOOP("CSenderPropertyText", "硬件色深"), c_depthModes,
        c_sender<&SSender::nOutputDepthMode>),
    Row(c_szOutput, QT_TRANSLATE_NOOP("CSenderPropertyText", "硬件以 50 Hz 运行"), c_switch,
        c_sender<&SSender::b50Hz>),
    Row(c_szOutput, QT_TRANSLATE_NOOP("CSenderPropertyText", "实际输入帧率 (Hz)"),
        {enEditor::enDecimal, 0, 1000, QT_TRANSLATE_NOOP("CSenderPropertyText", "未知")},
        c_sender<&SSender::fMaxInputFrameRate>),
    Row(c_szOutput, QT_TRANSLATE_NOOP("CSenderPropertyText", "输出超限"), c_limitFlags,
        c_optional<SOfSender<&SSender::outputLimitFlags>, c_nComputed>),
    Row(c_szCanvas, QT_TRANSLATE_NOOP("CSenderPropertyText", "画布宽"), c_side16,
        c_width<&SSender::record, &CSender::sizeCanvas>),
    Row(c_szCanvas, QT_TRANSLATE_NOOP("CSenderPropertyText", "画布高"), c_side16,
        c_height<&SSender::record, &CSender::sizeCanvas>),
    Row(c_szCanvas, QT_TRANSLATE_NOOP("CSenderPropertyText", "从硬件读取画布"), c_switch,
        c_sender<&SSender::capability, &SCapability::bCanvasFromHardware>),
    Row(c_szCanvas, QT_TRANSLATE_NOOP("CSenderPropertyText", "硬件画布宽"), c_side16,
        c_width<&SSender::sizeHardwareCanvas>),
    Row(c_szCanvas, QT_TRANSLATE_NOOP("CSenderPropertyText", "硬件画布高"), c_side16,
        c_height<&SSender::sizeHardwareCanvas>),
    Row(c_szCanvas, QT_TRANSLATE_NOOP("CSenderPropertyText", "最大宽"), c_limit16,
        c_sender<&SSender::capability, &SCapability::canvasLimit, &SLimit::nMaxWidth>),
    Row(c_szCanvas, QT_TRANSLATE_NOOP("CSenderPropertyText", "最大高"), c_limit16,
        c_sender<&SSender::capability, &SCapability::canvasLimit, &SLimit::nMaxHeight>),
    Row(c_szCanvas, QT_TRANSLATE_NOOP("CSenderPropertyText", "最大面积"), Numbers(1, c_nMaxArea),
        c_sender<&SSender::capability, &SCapability::canvasLimit, &SLimit::nMaxArea>),
    Row(c_szAddressing, QT_TRANSLATE_NOOP("CSenderPropertyText", "演示模式"), c_switch,
        c_project<&SProject::bDemoMode>),
    Row(c_szAddressing, QT_TRANSLATE_NOOP("CSenderPropertyText", "按 IP 地址寻址"), c_switch,
        c_project<&SProject::addressing, &SAddressing::bIPAddressMode>),
    Row(c_szAddressing, QT_TRANSLATE_NOOP("CSenderPropertyText", "探测方式"), c_strategies, c_detectStrategy),
    Row(c_szAddressing, QT_TRANSLATE_NOOP("CSenderPropertyText", "已有主控数量"),
        Numbers(c_nBySenders, 255, QT_TRANSLATE_NOOP("CSenderPropertyText", "发送器的数量")),
        c_optional<SOfProject<&SProject::addressing, &SAddressing::nAddedSenderCount>, c_nBySenders>),
    Row(c_szAddressing, QT_TRANSLATE_NOOP("CSenderPropertyText", "主控数量上限（按地址）"), Numbers(1, 255),
        c_project<&SProject::addressing, &SAddressing::nCountLimitByIP>),
};

} // namespace

const std::vector<SSenderProperty>& All()
{
    return c_vecProperties;
}

QString Text(const char* szText)
{
    return CSenderPropertyText::tr(szText);
}

} // namespace SenderProperties
