#include "host/HardwareSupport/VideoSourceLogic.h"

#include "host/HardwareSupport/EdidSetting.h"
#include "host/HardwareSupport/SenderEdidLimitData.h"
#include "host/HardwareSupport/VideoPortKey.h"
#include "simulator/CommonClass/JournalCall.h"
#include "simulator/CommonClass/Simulator.h"
#include "simulator/CommonClass/SimulatorText.h"
#include "simulator/HardwareSupport/EdidVerdict.h"
#include "simulator/HardwareSupport/OutputLimits.h"

#include <optional>

namespace {

/// Result of `SetEdidSetting` for an input that does not exist.
constexpr qint64 c_nNoSuchInput = -1;

/// Format flags of an input that never had a full record: 8 bit, RGB.
constexpr quint8 c_byDefaultFormat = 0x12;

/// A setting that was sent and takes effect at the end of the write.
struct SPendingWrite
{
    int nSender = 0;
    int nInterfaceId = 0;
    SEdidSetting setting;
};

/// The setting in force after a full record, which carries the connect-to-computer choice inverted.
SEdidSetting FullSetting(SEdidSetting setting)
{
    setting.byConnectPC = setting.byConnectPC == 0 ? 1 : 0;
    return setting;
}

/// The setting in force after a basic record, which carries only size and rate; the rest stays unchanged.
SEdidSetting BasicSetting(const SEdidSetting& written, std::optional<SEdidSetting> present)
{
    SEdidSetting setting = present.value_or(SEdidSetting());
    if (!present)
        setting.byFormatFlags = c_byDefaultFormat;
    setting.byRate = written.byRate;
    setting.byFractional = 0;
    setting.wWidth = written.wWidth;
    setting.wHeight = written.wHeight;
    return setting;
}

class CSimulatedVideoSourceLogic : public CVideoSourceLogic
{
public:
    QString GetVideoPortName(int nSender, SVideoPortKey* pKey, int /*nReserved*/) override
    {
        const SSimulatedInput* pInput = Input(nSender, pKey->nInterfaceId);
        return pInput == nullptr ? CSimulatorText::tr("Input %1").arg(pKey->nInterfaceId) : pInput->strName;
    }
    bool GetEdidSetting(int nSender, SVideoPortKey* pKey, SEdidSetting* pSetting) override
    {
        const SSimulatedInput* pInput = Input(nSender, pKey->nInterfaceId);
        if (pInput == nullptr || !pInput->setting)
            return false;
        *pSetting = *pInput->setting;
        return true;
    }
    void GetEdidLimit(int nSender, int nInterfaceId, CSenderEdidLimitData* pLimit) override;
    void CheckEdidLimit(int nWidth, int nHeight, int nLimit, QString* pMessage) override;
    qint64 SetEdidSetting(int nSender, int nInterfaceId, const SEdidSetting* pSetting) override;
    void FinishEdidWrite(int nSender, int /*nSave*/) override { TakeIntoForce(nSender); }
    void ApplyBasicEdid(int nSender, int nWidth, int nHeight, bool* pSuccess) override;

    float GetMaxInputFrameRate(int nSender) override
    {
        const SSimulatedSender* pSender = m_simulator.Project().FindSender(nSender);
        return pSender == nullptr ? 0.0F : pSender->fMaxInputFrameRate;
    }
    bool GetOutputLimitFlags(int nSender, unsigned int* pFlags) override;

private:
    const SSimulatedInput* Input(int nSender, int nInterfaceId) const
    {
        const SSimulatedSender* pSender = m_simulator.Project().FindSender(nSender);
        return pSender == nullptr ? nullptr : pSender->FindInput(nInterfaceId);
    }
    void TakeIntoForce(int nSender);

    CSimulator& m_simulator = CSimulator::Instance();
    std::optional<SPendingWrite> m_pending;
    int m_nJudgedSender = 0;
    int m_nJudgedInterface = 0;
};

void CSimulatedVideoSourceLogic::GetEdidLimit(int nSender, int nInterfaceId, CSenderEdidLimitData* pLimit)
{
    // The verdicts that follow name no input: they apply to the one whose limits were fetched last.
    m_nJudgedSender = nSender;
    m_nJudgedInterface = nInterfaceId;
    const SSimulatedInput* pInput = Input(nSender, nInterfaceId);
    *pLimit = pInput == nullptr ? CSenderEdidLimitData() : pInput->limit;
}

void CSimulatedVideoSourceLogic::CheckEdidLimit(int nWidth, int nHeight, int nLimit, QString* pMessage)
{
    const SSimulatedInput* pInput = Input(m_nJudgedSender, m_nJudgedInterface);
    *pMessage = pInput == nullptr ? QString()
                                  : EdidVerdict(m_simulator.Project().FindSender(m_nJudgedSender)->capability,
                                                *pInput, nWidth, nHeight, nLimit);
}

qint64 CSimulatedVideoSourceLogic::SetEdidSetting(int nSender, int nInterfaceId, const SEdidSetting* pSetting)
{
    m_pending.reset();
    m_simulator.Hardware().SpendWriteDelay(nSender);
    if (Input(nSender, nInterfaceId) == nullptr)
        return c_nNoSuchInput;
    const qint64 nResult = m_simulator.Project().FindSender(nSender)->faults.nEdidWriteResult;
    if (nResult == 0)
        m_pending = SPendingWrite{nSender, nInterfaceId, *pSetting};
    return nResult;
}

void CSimulatedVideoSourceLogic::ApplyBasicEdid(int nSender, int /*nWidth*/, int /*nHeight*/, bool* pSuccess)
{
    const SSimulatedSender* pSender = m_simulator.Project().FindSender(nSender);
    *pSuccess = pSender != nullptr && m_pending && !pSender->faults.bBasicEdidFails;
    if (*pSuccess)
        TakeIntoForce(nSender);
    m_pending.reset();
}

void CSimulatedVideoSourceLogic::TakeIntoForce(int nSender)
{
    if (!m_pending || m_pending->nSender != nSender || Input(nSender, m_pending->nInterfaceId) == nullptr)
        return;
    const SPendingWrite pending = *m_pending;
    m_pending.reset();
    m_simulator.Hardware().SpendWriteDelay(nSender);
    m_simulator.Document().Change([&pending](SSimulatedProject& project) {
        SSimulatedSender& sender = *project.FindSender(pending.nSender);
        SSimulatedInput& input = *sender.FindInput(pending.nInterfaceId);
        input.setting = sender.capability.bExtendedEdid ? FullSetting(pending.setting)
                                                        : BasicSetting(pending.setting, input.setting);
    });
    Q_EMIT m_simulator.Hardware().OnEdidWritten(pending.nSender, pending.nInterfaceId);
}

bool CSimulatedVideoSourceLogic::GetOutputLimitFlags(int nSender, unsigned int* pFlags)
{
    const SSimulatedSender* pSender = m_simulator.Project().FindSender(nSender);
    if (pSender == nullptr)
        return false;
    const unsigned int nFlags = OutputLimitFlags(*pSender);
    if (nFlags != 0)
        *pFlags = nFlags;
    return nFlags != 0;
}

class CJournalledVideoSourceLogic : public CJournalledFront<CVideoSourceLogic>
{
public:
    using CJournalledFront::CJournalledFront;

    QString GetVideoPortName(int nSender, SVideoPortKey* pKey, int nReserved) override
    {
        return Call(enJournalRead, "GetVideoPortName", &CVideoSourceLogic::GetVideoPortName, nSender, pKey,
                    nReserved);
    }
    bool GetEdidSetting(int nSender, SVideoPortKey* pKey, SEdidSetting* pSetting) override
    {
        return Call(enJournalRead, "GetEdidSetting", &CVideoSourceLogic::GetEdidSetting, nSender, pKey,
                    pSetting);
    }
    void GetEdidLimit(int nSender, int nInterfaceId, CSenderEdidLimitData* pLimit) override
    {
        Call(enJournalRead, "GetEdidLimit", &CVideoSourceLogic::GetEdidLimit, nSender, nInterfaceId, pLimit);
    }
    void CheckEdidLimit(int nWidth, int nHeight, int nLimit, QString* pMessage) override
    {
        Call(enJournalRead, "CheckEdidLimit", &CVideoSourceLogic::CheckEdidLimit, nWidth, nHeight, nLimit,
             pMessage);
    }
    qint64 SetEdidSetting(int nSender, int nInterfaceId, const SEdidSetting* pSetting) override
    {
        const qint64 nResult = Call(enJournalWrite, "SetEdidSetting", &CVideoSourceLogic::SetEdidSetting,
                                    nSender, nInterfaceId, pSetting);
        if (nResult != 0)
            MarkFailed();
        return nResult;
    }
    void FinishEdidWrite(int nSender, int nSave) override
    {
        Call(enJournalWrite, "FinishEdidWrite", &CVideoSourceLogic::FinishEdidWrite, nSender, nSave);
    }
    void ApplyBasicEdid(int nSender, int nWidth, int nHeight, bool* pSuccess) override
    {
        Call(enJournalWrite, "ApplyBasicEdid", &CVideoSourceLogic::ApplyBasicEdid, nSender, nWidth, nHeight,
             pSuccess);
        if (!*pSuccess)
            MarkFailed();
    }
    float GetMaxInputFrameRate(int nSender) override
    {
        return Call(enJournalRead, "GetMaxInputFrameRate", &CVideoSourceLogic::GetMaxInputFrameRate, nSender);
    }
    bool GetOutputLimitFlags(int nSender, unsigned int* pFlags) override
    {
        return Call(enJournalRead, "GetOutputLimitFlags", &CVideoSourceLogic::GetOutputLimitFlags, nSender,
                    pFlags);
    }
};

} // namespace

CVideoSourceLogic* GetHwVideoSourceLogic()
{
    static CSimulatedVideoSourceLogic s_logic;
    static CJournalledVideoSourceLogic s_front(s_logic, CSimulator::Instance().Journal(),
                                               "CVideoSourceLogic");
    return &s_front;
}
