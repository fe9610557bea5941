#include "host/HardwareSupport/SenderLogic.h"

#include "host/HardwareSupport/CanvasLimit.h"
#include "simulator/CommonClass/AddressText.h"
#include "simulator/CommonClass/JournalCall.h"
#include "simulator/CommonClass/Simulator.h"

#include <QtEndian>

#include <algorithm>

namespace {

/// Entries of the table that the caller provides.
constexpr int c_nDetectedTableLength = 255;

/// `ApplyDemoProject` does not know the sender type that was set.
constexpr int c_nDemoTypeUnknown = -1;

class CSimulatedSenderLogic : public CSenderLogic
{
public:
    bool IsVideoProcessor(int nSender) override { return Capability(nSender).bVideoProcessor; }
    int GetSenderType(int nSender) override { return Capability(nSender).nType; }
    bool IsSupport10Bit(int nSender) override { return Capability(nSender).bSupport10Bit; }
    bool IsSupport12Bit(int nSender) override { return Capability(nSender).bSupport12Bit; }

    /// The interface names no sender, so the answer is that of the current sender.
    bool IsExtendedEdidSupported() override
    {
        return Capability(m_simulator.Project().nCurSender).bExtendedEdid;
    }

    /// Nothing to do: the write has already taken effect.
    void AfterEdidWritten(int /*nSender*/) override {}

    bool IsSupportCanvasSize(int nSender) override { return Capability(nSender).bCanvasFromHardware; }
    QSize GetHardwareCanvasSize(int nSender) override { return Sender(nSender).sizeHardwareCanvas; }
    void GetCanvasLimit(int nSender, SCanvasLimit* pLimit) override
    {
        *pLimit = Capability(nSender).canvasLimit;
    }

    int GetOutputDepthMode(int nSender) override { return Sender(nSender).nOutputDepthMode; }
    void SetOutputDepthMode(int nSender, int nMode, int /*nSave*/) override
    {
        Write(nSender, [=](SSimulatedSender& sender) { sender.nOutputDepthMode = nMode; });
    }
    void SetOutput50Hz(int nSender, bool bIs50Hz, int /*nReserved*/) override
    {
        Write(nSender, [=](SSimulatedSender& sender) { sender.b50Hz = bIs50Hz; });
    }

    bool IsIPAddressMode() override { return Addressing().bIPAddressMode; }
    int GetAddedSenderCount() override
    {
        return Addressing().nAddedSenderCount.value_or(int(m_simulator.Project().listSenders.size()));
    }
    int GetDetectedIPList(unsigned int* pList) override;
    int ApplyDemoProject() override
    {
        return m_simulator.Document().NewDemoProject(m_simulator.Project().nDemoSenderType)
                   ? 0
                   : c_nDemoTypeUnknown;
    }

private:
    const SAddressing& Addressing() const { return m_simulator.Project().addressing; }

    /// The sender with that index, or one without any capability.
    const SSimulatedSender& Sender(int nSender) const
    {
        static const SSimulatedSender s_none;
        const SSimulatedSender* pSender = m_simulator.Project().FindSender(nSender);
        return pSender == nullptr ? s_none : *pSender;
    }
    const SSenderCapability& Capability(int nSender) const { return Sender(nSender).capability; }

    template <class TChange>
    void Write(int nSender, TChange change)
    {
        if (m_simulator.Project().FindSender(nSender) == nullptr)
            return;
        m_simulator.Hardware().SpendWriteDelay(nSender);
        m_simulator.Document().Change(
            [&](SSimulatedProject& project) { change(*project.FindSender(nSender)); });
    }

    CSimulator& m_simulator = CSimulator::Instance();
};

int CSimulatedSenderLogic::GetDetectedIPList(unsigned int* pList)
{
    const QStringList& listDetected = Addressing().listDetected;
    const int nCount = std::min(int(listDetected.size()), c_nDetectedTableLength);
    // The search uses network byte order: the first octet is in the low byte.
    for (int nIndex = 0; nIndex < nCount; ++nIndex)
        pList[nIndex] = qbswap(AddressValue(listDetected.at(nIndex)).value_or(0));
    return nCount;
}

class CJournalledSenderLogic : public CJournalledFront<CSenderLogic>
{
public:
    using CJournalledFront::CJournalledFront;

    bool IsVideoProcessor(int nSender) override
    {
        return Call(enJournalRead, "IsVideoProcessor", &CSenderLogic::IsVideoProcessor, nSender);
    }
    int GetSenderType(int nSender) override
    {
        return Call(enJournalRead, "GetSenderType", &CSenderLogic::GetSenderType, nSender);
    }
    bool IsSupport10Bit(int nSender) override
    {
        return Call(enJournalRead, "IsSupport10Bit", &CSenderLogic::IsSupport10Bit, nSender);
    }
    bool IsSupport12Bit(int nSender) override
    {
        return Call(enJournalRead, "IsSupport12Bit", &CSenderLogic::IsSupport12Bit, nSender);
    }
    bool IsExtendedEdidSupported() override
    {
        return Call(enJournalRead, "IsExtendedEdidSupported", &CSenderLogic::IsExtendedEdidSupported);
    }
    void AfterEdidWritten(int nSender) override
    {
        Call(enJournalWrite, "AfterEdidWritten", &CSenderLogic::AfterEdidWritten, nSender);
    }
    bool IsSupportCanvasSize(int nSender) override
    {
        return Call(enJournalRead, "IsSupportCanvasSize", &CSenderLogic::IsSupportCanvasSize, nSender);
    }
    QSize GetHardwareCanvasSize(int nSender) override
    {
        return Call(enJournalRead, "GetHardwareCanvasSize", &CSenderLogic::GetHardwareCanvasSize, nSender);
    }
    void GetCanvasLimit(int nSender, SCanvasLimit* pLimit) override
    {
        Call(enJournalRead, "GetCanvasLimit", &CSenderLogic::GetCanvasLimit, nSender, pLimit);
    }
    int GetOutputDepthMode(int nSender) override
    {
        return Call(enJournalRead, "GetOutputDepthMode", &CSenderLogic::GetOutputDepthMode, nSender);
    }
    void SetOutputDepthMode(int nSender, int nMode, int nSave) override
    {
        Call(enJournalWrite, "SetOutputDepthMode", &CSenderLogic::SetOutputDepthMode, nSender, nMode, nSave);
    }
    void SetOutput50Hz(int nSender, bool bIs50Hz, int nReserved) override
    {
        Call(enJournalWrite, "SetOutput50Hz", &CSenderLogic::SetOutput50Hz, nSender, bIs50Hz, nReserved);
    }
    bool IsIPAddressMode() override
    {
        return Call(enJournalRead, "IsIPAddressMode", &CSenderLogic::IsIPAddressMode);
    }
    int GetAddedSenderCount() override
    {
        return Call(enJournalRead, "GetAddedSenderCount", &CSenderLogic::GetAddedSenderCount);
    }
    int GetDetectedIPList(unsigned int* pList) override
    {
        return Call(enJournalRead, "GetDetectedIPList", &CSenderLogic::GetDetectedIPList,
                    JournalText::STable{pList});
    }
    int ApplyDemoProject() override
    {
        return Call(enJournalWrite, "ApplyDemoProject", &CSenderLogic::ApplyDemoProject);
    }
};

} // namespace

CSenderLogic* GetHwSenderLogic()
{
    static CSimulatedSenderLogic s_logic;
    static CJournalledSenderLogic s_front(s_logic, CSimulator::Instance().Journal(), "CSenderLogic");
    return &s_front;
}
