#ifndef TESTS_SUPPORT_RECORDINGHOST_H
#define TESTS_SUPPORT_RECORDINGHOST_H

#include "host/HardwareSupport/AdvancedSoftEdgeLogic.h"
#include "host/HardwareSupport/CaliSoftEdgeLogic.h"
#include "host/HardwareSupport/CanvasLimit.h"
#include "host/HardwareSupport/ColorBrightLogic.h"
#include "host/HardwareSupport/EdidSetting.h"
#include "host/HardwareSupport/MonitorLogic.h"
#include "host/HardwareSupport/ReceiverLogic.h"
#include "host/HardwareSupport/SenderEdidLimitData.h"
#include "host/HardwareSupport/SenderLogic.h"
#include "host/HardwareSupport/VideoPortKey.h"
#include "host/HardwareSupport/VideoSourceLogic.h"
#include "host/KelvaroLabel.h"
#include "host/TevraData/ConfigData.h"
#include "host/TevraData/ConstantData.h"
#include "host/TevraData/MonitorData.h"
#include "host/TevraData/ProjectData.h"
#include "host/TevraData/RuntimeData.h"
#include "host/TevraData/Sender.h"

#include <QList>
#include <QSize>
#include <QStringList>

#include <functional>
#include <optional>

/// The calls of all recording objects, in order, as text: `SetOutput50Hz(0, true, 0)`.
class CCallRecord
{
public:
    void Add(const QString& strCall) { m_listCalls.append(strCall); }
    void Clear() { m_listCalls.clear(); }
    /// Every call.
    QStringList All() const { return m_listCalls; }
    /// The calls whose name is one of these, in order: for tests that look only at writes.
    QStringList Only(const QStringList& listNames) const;
    /// How often an operation was called.
    int Count(const QString& strName) const { return Only({strName}).size(); }

private:
    QStringList m_listCalls;
};

/// @name Recording objects
/// Each notes its calls in the record that it is given and answers from its public fields.
/// @{
class CRecordingLabel : public IKelvaroLabel
{
public:
    explicit CRecordingLabel(CCallRecord& record)
        : m_record(record)
    {}
    void PostLabelEvent(int nCode, int nA, int nB, int nC) override;

private:
    CCallRecord& m_record;
};

class CRecordingProjectData : public CProjectData
{
public:
    explicit CRecordingProjectData(CCallRecord& record)
        : m_record(record)
    {}
    int GetCurSenderIndex() override;
    CSender* GetCurrentSender() override;
    CSender* GetSender(int nIndex) override;
    bool GetDemoModeEnable() override;
    void SetDemoModeEnable(bool bEnable) override;
    void SetDemoSenderType(int nType) override;

    int nCurSenderIndex = 0;
    CSender sender;      ///< the current sender
    CSender senderFirst; ///< what `GetSender(0)` gives when the current sender has another index
    bool bDemoMode = true;
    int nDemoSenderType = 0;

private:
    CCallRecord& m_record;
};

class CRecordingConstantData : public CConstantData
{
public:
    explicit CRecordingConstantData(CCallRecord& record)
        : m_record(record)
    {}
    QString GetBKImagePath() override;
    QString GetSenderBKImgName(int nSender, bool bFullPath) override;

    QString strImageFolder;
    QString strImageFile;

private:
    CCallRecord& m_record;
};

class CRecordingRuntimeData : public CRuntimeData
{
public:
    explicit CRecordingRuntimeData(CCallRecord& record)
        : m_record(record)
    {}
    int GetSenderCountLimit(bool bIPAddressMode) override;

    int nSenderCountLimit = 255;

private:
    CCallRecord& m_record;
};

class CRecordingConfigData : public CConfigData
{
public:
    explicit CRecordingConfigData(CCallRecord& record)
        : m_record(record)
    {}
    bool IsIPHasError(unsigned int nIP, unsigned int* pError, bool bReserved) override;
    void UpdateErrorIPList() override;
    int GetDetectStrategy() override;
    int GetSpecifiedIPDWORD(unsigned int* pList) override;
    void GetSpecifiedIPs(QStringList& listIP) override;
    void AddSpecifiedIP(QString strIP, QString strName) override;
    void SpecifiedIPsSave() override;
    QString GetCurSetSpecifiedIPWithIndex(int nIndex) override;
    QString GetSpecifiedIPOriginal(int nIndex) override;
    QString GetSpecifiedIPWithName(int nIndex) override;
    void SetCurSetSpecifiedIPWithIndex(int nIndex, QString strIP, QString strName) override;
    void SetSpecifiedIPWithIndex(int nIndex, QString strIP, QString strName) override;

    /// The code of an address, 0 for none. Without it, an address of the list is in use (0xE0832001).
    std::function<unsigned int(unsigned int nIP)> funcVerdict;
    int nDetectStrategy = 0;
    QStringList listStored;   ///< entries `address(name)`
    QStringList listCurSet;   ///< entries `address(name)`
    QStringList listOriginal; ///< entries `address(name)`
    QString strWithName;      ///< what `GetSpecifiedIPWithName` gives

private:
    unsigned int Verdict(unsigned int nIP) const;

    CCallRecord& m_record;
};

class CRecordingSenderLogic : public CSenderLogic
{
public:
    explicit CRecordingSenderLogic(CCallRecord& record)
        : m_record(record)
    {}
    bool IsVideoProcessor(int nSender) override;
    int GetSenderType(int nSender) override;
    bool IsSupport10Bit(int nSender) override;
    bool IsSupport12Bit(int nSender) override;
    bool IsExtendedEdidSupported() override;
    void AfterEdidWritten(int nSender) override;
    bool IsSupportCanvasSize(int nSender) override;
    QSize GetHardwareCanvasSize(int nSender) override;
    void GetCanvasLimit(int nSender, SCanvasLimit* pLimit) override;
    int GetOutputDepthMode(int nSender) override;
    void SetOutputDepthMode(int nSender, int nMode, int nSave) override;
    void SetOutput50Hz(int nSender, bool bIs50Hz, int nReserved) override;
    bool IsIPAddressMode() override;
    int GetAddedSenderCount() override;
    int GetDetectedIPList(unsigned int* pList) override;
    int ApplyDemoProject() override;

    bool bVideoProcessor = true;
    int nSenderType = 16;
    bool bSupport10Bit = true;
    bool bSupport12Bit = true;
    bool bExtendedEdid = false;
    bool bSupportCanvasSize = false;
    QSize sizeHardwareCanvas = QSize(0, 0);
    std::optional<SCanvasLimit> canvasLimit; ///< empty: the presets stay
    int nOutputDepthMode = 0;
    bool bIPAddressMode = false;
    int nAddedSenderCount = 0;
    QList<unsigned int> listDetected; ///< first octet in the low byte

private:
    CCallRecord& m_record;
};

class CRecordingVideoSourceLogic : public CVideoSourceLogic
{
public:
    explicit CRecordingVideoSourceLogic(CCallRecord& record)
        : m_record(record)
    {}
    QString GetVideoPortName(int nSender, SVideoPortKey* pKey, int nReserved) override;
    bool GetEdidSetting(int nSender, SVideoPortKey* pKey, SEdidSetting* pSetting) override;
    void GetEdidLimit(int nSender, int nInterfaceId, CSenderEdidLimitData* pLimit) override;
    void CheckEdidLimit(int nWidth, int nHeight, int nLimit, QString* pMessage) override;
    qint64 SetEdidSetting(int nSender, int nInterfaceId, const SEdidSetting* pSetting) override;
    void FinishEdidWrite(int nSender, int nSave) override;
    void ApplyBasicEdid(int nSender, int nWidth, int nHeight, bool* pSuccess) override;
    float GetMaxInputFrameRate(int nSender) override;
    bool GetOutputLimitFlags(int nSender, unsigned int* pFlags) override;

    QString strPortName = QStringLiteral("HDMI1");
    std::optional<SEdidSetting> setting; ///< empty: the dialog's defaults apply
    CSenderEdidLimitData limit;
    std::function<QString(int nWidth, int nHeight, int nLimit)> funcVerdict; ///< empty: everything is valid
    qint64 nWriteResult = 0;
    std::optional<SEdidSetting> written; ///< the last setting written
    bool bBasicSuccess = true;
    float fMaxInputFrameRate = 0.0F;
    std::optional<unsigned int> limitFlags; ///< empty: the flags are not set

private:
    CCallRecord& m_record;
};
/// @}

/// A whole host for one test: assigns the handles while it lives and takes them away afterwards. The getters
/// of the host's libraries give its objects too, so `SenderModuleDialogInit` can be called.
class CRecordingHost
{
public:
    CRecordingHost();
    ~CRecordingHost();
    CRecordingHost(const CRecordingHost&) = delete;
    CRecordingHost& operator=(const CRecordingHost&) = delete;

    CCallRecord record;
    CRecordingLabel label{record};
    CRecordingProjectData projectData{record};
    CRecordingConstantData constantData{record};
    CRecordingConfigData configData{record};
    CRecordingRuntimeData runtimeData{record};
    CMonitorData monitorData;
    CRecordingSenderLogic senderLogic{record};
    CReceiverLogic receiverLogic;
    CRecordingVideoSourceLogic videoSourceLogic{record};
    CCaliSoftEdgeLogic caliSoftEdgeLogic;
    CAdvancedSoftEdgeLogic advancedSoftEdgeLogic;
    CColorBrightLogic colorBrightLogic;
    CMonitorLogic monitorLogic;
};

#endif // TESTS_SUPPORT_RECORDINGHOST_H
