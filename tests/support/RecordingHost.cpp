#include "tests/support/RecordingHost.h"

#include "SenderModuleDialog/SenderModuleDialogInit.h"

#include <algorithm>

namespace {

/// The host whose objects the getters give.
CRecordingHost* s_pHost = nullptr;

QString Text(bool bValue)
{
    return bValue ? QStringLiteral("true") : QStringLiteral("false");
}

QString Text(int nValue)
{
    return QString::number(nValue);
}

QString Text(const QString& strValue)
{
    return QStringLiteral("\"%1\"").arg(strValue);
}

QString Address(unsigned int nIP)
{
    return QStringLiteral("%1.%2.%3.%4")
        .arg(nIP >> 24)
        .arg(nIP >> 16 & 255U)
        .arg(nIP >> 8 & 255U)
        .arg(nIP & 255U);
}

/// An operation with its arguments as text.
template <class... TArguments>
QString Call(const char* szName, const TArguments&... arguments)
{
    const QStringList listArguments = {Text(arguments)...};
    return QStringLiteral("%1(%2)").arg(QString::fromLatin1(szName),
                                        listArguments.join(QStringLiteral(", ")));
}

QString Call(const char* szName)
{
    return QStringLiteral("%1()").arg(QString::fromLatin1(szName));
}

QString SettingText(const SEdidSetting& setting)
{
    return QStringLiteral("{%1x%2 rate %3 fractional %4 flags 0x%5 standard %6 pc %7}")
        .arg(setting.wWidth)
        .arg(setting.wHeight)
        .arg(setting.byRate)
        .arg(setting.byFractional)
        .arg(setting.byFormatFlags, 2, 16, QLatin1Char('0'))
        .arg(setting.byTimingStandard)
        .arg(setting.byConnectPC);
}

QString Entry(const QString& strIP, const QString& strName)
{
    return QStringLiteral("%1(%2)").arg(strIP, strName);
}

} // namespace

QStringList CCallRecord::Only(const QStringList& listNames) const
{
    QStringList listFound;
    std::copy_if(m_listCalls.cbegin(), m_listCalls.cend(), std::back_inserter(listFound),
                 [&](const QString& strCall) {
                     return listNames.contains(strCall.left(strCall.indexOf(QLatin1Char('('))));
                 });
    return listFound;
}

void CRecordingLabel::PostLabelEvent(int nCode, int nA, int nB, int nC)
{
    m_record.Add(
        QStringLiteral("PostLabelEvent(0x%1, %2, %3, %4)").arg(nCode, 0, 16).arg(nA).arg(nB).arg(nC));
}

int CRecordingProjectData::GetCurSenderIndex()
{
    m_record.Add(Call("GetCurSenderIndex"));
    return nCurSenderIndex;
}

CSender* CRecordingProjectData::GetCurrentSender()
{
    m_record.Add(Call("GetCurrentSender"));
    return &sender;
}

CSender* CRecordingProjectData::GetSender(int nIndex)
{
    m_record.Add(Call("GetSender", nIndex));
    return nIndex == nCurSenderIndex ? &sender : &senderFirst;
}

bool CRecordingProjectData::GetDemoModeEnable()
{
    m_record.Add(Call("GetDemoModeEnable"));
    return bDemoMode;
}

void CRecordingProjectData::SetDemoModeEnable(bool bEnable)
{
    m_record.Add(Call("SetDemoModeEnable", bEnable));
    bDemoMode = bEnable;
}

void CRecordingProjectData::SetDemoSenderType(int nType)
{
    m_record.Add(Call("SetDemoSenderType", nType));
    nDemoSenderType = nType;
}

QString CRecordingConstantData::GetBKImagePath()
{
    m_record.Add(Call("GetBKImagePath"));
    return strImageFolder;
}

QString CRecordingConstantData::GetSenderBKImgName(int nSender, bool bFullPath)
{
    m_record.Add(Call("GetSenderBKImgName", nSender, bFullPath));
    return strImageFile;
}

int CRecordingRuntimeData::GetSenderCountLimit(bool bIPAddressMode)
{
    m_record.Add(Call("GetSenderCountLimit", bIPAddressMode));
    return nSenderCountLimit;
}

unsigned int CRecordingConfigData::Verdict(unsigned int nIP) const
{
    constexpr unsigned int c_nInUse = 0xE0832001;
    if (funcVerdict)
        return funcVerdict(nIP);
    const QString strStart = Address(nIP) + QLatin1Char('(');
    const bool bInUse = std::any_of(listStored.cbegin(), listStored.cend(),
                                    [&](const QString& strEntry) { return strEntry.startsWith(strStart); });
    return bInUse ? c_nInUse : 0;
}

bool CRecordingConfigData::IsIPHasError(unsigned int nIP, unsigned int* pError, bool bReserved)
{
    m_record.Add(QStringLiteral("IsIPHasError(%1, %2, %3)")
                     .arg(Address(nIP), pError == nullptr ? QStringLiteral("null") : QStringLiteral("code"),
                          Text(bReserved)));
    const unsigned int nCode = Verdict(nIP);
    if (nCode != 0 && pError != nullptr)
        *pError = nCode;
    return nCode != 0;
}

void CRecordingConfigData::UpdateErrorIPList()
{
    m_record.Add(Call("UpdateErrorIPList"));
}

int CRecordingConfigData::GetDetectStrategy()
{
    m_record.Add(Call("GetDetectStrategy"));
    return nDetectStrategy;
}

int CRecordingConfigData::GetSpecifiedIPDWORD(unsigned int* pList)
{
    m_record.Add(QStringLiteral("GetSpecifiedIPDWORD(%1)")
                     .arg(pList == nullptr ? QStringLiteral("null") : QStringLiteral("list")));
    return listStored.size();
}

void CRecordingConfigData::GetSpecifiedIPs(QStringList& listIP)
{
    m_record.Add(Call("GetSpecifiedIPs"));
    listIP = listStored;
}

void CRecordingConfigData::AddSpecifiedIP(QString strIP, QString strName)
{
    m_record.Add(Call("AddSpecifiedIP", strIP, strName));
    listStored.append(Entry(strIP, strName));
}

void CRecordingConfigData::SpecifiedIPsSave()
{
    m_record.Add(Call("SpecifiedIPsSave"));
}

QString CRecordingConfigData::GetCurSetSpecifiedIPWithIndex(int nIndex)
{
    m_record.Add(Call("GetCurSetSpecifiedIPWithIndex", nIndex));
    return listCurSet.value(nIndex);
}

QString CRecordingConfigData::GetSpecifiedIPOriginal(int nIndex)
{
    m_record.Add(Call("GetSpecifiedIPOriginal", nIndex));
    return listOriginal.value(nIndex);
}

QString CRecordingConfigData::GetSpecifiedIPWithName(int nIndex)
{
    m_record.Add(Call("GetSpecifiedIPWithName", nIndex));
    return strWithName;
}

void CRecordingConfigData::SetCurSetSpecifiedIPWithIndex(int nIndex, QString strIP, QString strName)
{
    m_record.Add(Call("SetCurSetSpecifiedIPWithIndex", nIndex, strIP, strName));
}

void CRecordingConfigData::SetSpecifiedIPWithIndex(int nIndex, QString strIP, QString strName)
{
    m_record.Add(Call("SetSpecifiedIPWithIndex", nIndex, strIP, strName));
}

bool CRecordingSenderLogic::IsVideoProcessor(int nSender)
{
    m_record.Add(Call("IsVideoProcessor", nSender));
    return bVideoProcessor;
}

int CRecordingSenderLogic::GetSenderType(int nSender)
{
    m_record.Add(Call("GetSenderType", nSender));
    return nSenderType;
}

bool CRecordingSenderLogic::IsSupport10Bit(int nSender)
{
    m_record.Add(Call("IsSupport10Bit", nSender));
    return bSupport10Bit;
}

bool CRecordingSenderLogic::IsSupport12Bit(int nSender)
{
    m_record.Add(Call("IsSupport12Bit", nSender));
    return bSupport12Bit;
}

bool CRecordingSenderLogic::IsExtendedEdidSupported()
{
    m_record.Add(Call("IsExtendedEdidSupported"));
    return bExtendedEdid;
}

void CRecordingSenderLogic::AfterEdidWritten(int nSender)
{
    m_record.Add(Call("AfterEdidWritten", nSender));
}

bool CRecordingSenderLogic::IsSupportCanvasSize(int nSender)
{
    m_record.Add(Call("IsSupportCanvasSize", nSender));
    return bSupportCanvasSize;
}

QSize CRecordingSenderLogic::GetHardwareCanvasSize(int nSender)
{
    m_record.Add(Call("GetHardwareCanvasSize", nSender));
    return sizeHardwareCanvas;
}

void CRecordingSenderLogic::GetCanvasLimit(int nSender, SCanvasLimit* pLimit)
{
    m_record.Add(QStringLiteral("GetCanvasLimit(%1, {%2, %3, %4})")
                     .arg(nSender)
                     .arg(pLimit->nMaxWidth)
                     .arg(pLimit->nMaxHeight)
                     .arg(pLimit->nMaxArea));
    if (canvasLimit)
        *pLimit = *canvasLimit;
}

int CRecordingSenderLogic::GetOutputDepthMode(int nSender)
{
    m_record.Add(Call("GetOutputDepthMode", nSender));
    return nOutputDepthMode;
}

void CRecordingSenderLogic::SetOutputDepthMode(int nSender, int nMode, int nSave)
{
    m_record.Add(Call("SetOutputDepthMode", nSender, nMode, nSave));
}

void CRecordingSenderLogic::SetOutput50Hz(int nSender, bool bIs50Hz, int nReserved)
{
    m_record.Add(Call("SetOutput50Hz", nSender, bIs50Hz, nReserved));
}

bool CRecordingSenderLogic::IsIPAddressMode()
{
    m_record.Add(Call("IsIPAddressMode"));
    return bIPAddressMode;
}

int CRecordingSenderLogic::GetAddedSenderCount()
{
    m_record.Add(Call("GetAddedSenderCount"));
    return nAddedSenderCount;
}

int CRecordingSenderLogic::GetDetectedIPList(unsigned int* pList)
{
    m_record.Add(Call("GetDetectedIPList"));
    std::copy(listDetected.cbegin(), listDetected.cend(), pList);
    return listDetected.size();
}

int CRecordingSenderLogic::ApplyDemoProject()
{
    m_record.Add(Call("ApplyDemoProject"));
    return 0;
}

QString CRecordingVideoSourceLogic::GetVideoPortName(int nSender, SVideoPortKey* pKey, int nReserved)
{
    m_record.Add(Call("GetVideoPortName", nSender, pKey->nInterfaceId, nReserved));
    return strPortName;
}

bool CRecordingVideoSourceLogic::GetEdidSetting(int nSender, SVideoPortKey* pKey, SEdidSetting* pSetting)
{
    m_record.Add(Call("GetEdidSetting", nSender, pKey->nInterfaceId));
    if (setting)
        *pSetting = *setting;
    return setting.has_value();
}

void CRecordingVideoSourceLogic::GetEdidLimit(int nSender, int nInterfaceId, CSenderEdidLimitData* pLimit)
{
    m_record.Add(Call("GetEdidLimit", nSender, nInterfaceId));
    *pLimit = limit;
}

void CRecordingVideoSourceLogic::CheckEdidLimit(int nWidth, int nHeight, int nLimit, QString* pMessage)
{
    m_record.Add(Call("CheckEdidLimit", nWidth, nHeight, nLimit));
    if (funcVerdict)
        *pMessage = funcVerdict(nWidth, nHeight, nLimit);
}

qint64 CRecordingVideoSourceLogic::SetEdidSetting(int nSender, int nInterfaceId, const SEdidSetting* pSetting)
{
    m_record.Add(QStringLiteral("SetEdidSetting(%1, %2, %3)")
                     .arg(nSender)
                     .arg(nInterfaceId)
                     .arg(SettingText(*pSetting)));
    written = *pSetting;
    return nWriteResult;
}

void CRecordingVideoSourceLogic::FinishEdidWrite(int nSender, int nSave)
{
    m_record.Add(Call("FinishEdidWrite", nSender, nSave));
}

void CRecordingVideoSourceLogic::ApplyBasicEdid(int nSender, int nWidth, int nHeight, bool* pSuccess)
{
    m_record.Add(Call("ApplyBasicEdid", nSender, nWidth, nHeight));
    *pSuccess = bBasicSuccess;
}

float CRecordingVideoSourceLogic::GetMaxInputFrameRate(int nSender)
{
    m_record.Add(Call("GetMaxInputFrameRate", nSender));
    return fMaxInputFrameRate;
}

bool CRecordingVideoSourceLogic::GetOutputLimitFlags(int nSender, unsigned int* pFlags)
{
    m_record.Add(QStringLiteral("GetOutputLimitFlags(%1, 0x%2)").arg(nSender).arg(*pFlags, 0, 16));
    if (limitFlags)
        *pFlags = *limitFlags;
    return limitFlags.has_value();
}

CRecordingHost::CRecordingHost()
{
    s_pHost = this;
    SenderModuleDialogInit(&label);
}

CRecordingHost::~CRecordingHost()
{
    s_pHost = nullptr;
    SenderModuleDialogInit(nullptr);
}

// The getters of the host's libraries, for tests that link no host: without a recording host there is none.
CProjectData* GetProjectData()
{
    return s_pHost == nullptr ? nullptr : &s_pHost->projectData;
}

CConstantData* GetConstantData()
{
    return s_pHost == nullptr ? nullptr : &s_pHost->constantData;
}

CConfigData* GetConfigData()
{
    return s_pHost == nullptr ? nullptr : &s_pHost->configData;
}

CRuntimeData* GetRuntimeData()
{
    return s_pHost == nullptr ? nullptr : &s_pHost->runtimeData;
}

CMonitorData* GetMonitorData()
{
    return s_pHost == nullptr ? nullptr : &s_pHost->monitorData;
}

CSenderLogic* GetHwSenderLogic()
{
    return s_pHost == nullptr ? nullptr : &s_pHost->senderLogic;
}

CReceiverLogic* GetHwReceiverLogic()
{
    return s_pHost == nullptr ? nullptr : &s_pHost->receiverLogic;
}

CVideoSourceLogic* GetHwVideoSourceLogic()
{
    return s_pHost == nullptr ? nullptr : &s_pHost->videoSourceLogic;
}

CCaliSoftEdgeLogic* GetHwCaliSoftEdgeLogic()
{
    return s_pHost == nullptr ? nullptr : &s_pHost->caliSoftEdgeLogic;
}

CAdvancedSoftEdgeLogic* GetHwAdvancedSoftEdgeLogic()
{
    return s_pHost == nullptr ? nullptr : &s_pHost->advancedSoftEdgeLogic;
}

CColorBrightLogic* GetHwColorBrightLogic()
{
    return s_pHost == nullptr ? nullptr : &s_pHost->colorBrightLogic;
}

CMonitorLogic* GetHwMonitorLogic()
{
    return s_pHost == nullptr ? nullptr : &s_pHost->monitorLogic;
}
