#include "host/TevraData/ProjectData.h"

#include "simulator/CommonClass/JournalCall.h"
#include "simulator/CommonClass/Simulator.h"

namespace {

class CSimulatedProjectData : public CProjectData
{
public:
    int GetCurSenderIndex() override { return m_simulator.Project().nCurSender; }

    CSender* GetCurrentSender() override { return GetSender(GetCurSenderIndex()); }

    CSender* GetSender(int nIndex) override
    {
        // Processors are added to an empty project through a dialog that asks for sender 0.
        if (m_simulator.Project().listSenders.empty() && nIndex == 0)
            return m_simulator.Document().NoSender();
        SSimulatedSender* pSender = m_simulator.Document().Edit().FindSender(nIndex);
        return pSender == nullptr ? nullptr : &pSender->record;
    }

    bool GetDemoModeEnable() override { return m_simulator.Project().bDemoMode; }

    void SetDemoModeEnable(bool bEnable) override
    {
        m_simulator.Document().Change([=](SSimulatedProject& project) { project.bDemoMode = bEnable; });
    }

    void SetDemoSenderType(int nType) override
    {
        m_simulator.Document().Change([=](SSimulatedProject& project) { project.nDemoSenderType = nType; });
    }

private:
    CSimulator& m_simulator = CSimulator::Instance();
};

class CJournalledProjectData : public CJournalledFront<CProjectData>
{
public:
    using CJournalledFront::CJournalledFront;

    int GetCurSenderIndex() override
    {
        return Call(enJournalRead, "GetCurSenderIndex", &CProjectData::GetCurSenderIndex);
    }
    CSender* GetCurrentSender() override
    {
        return Call(enJournalRead, "GetCurrentSender", &CProjectData::GetCurrentSender);
    }
    CSender* GetSender(int nIndex) override
    {
        return Call(enJournalRead, "GetSender", &CProjectData::GetSender, nIndex);
    }
    bool GetDemoModeEnable() override
    {
        return Call(enJournalRead, "GetDemoModeEnable", &CProjectData::GetDemoModeEnable);
    }
    void SetDemoModeEnable(bool bEnable) override
    {
        Call(enJournalWrite, "SetDemoModeEnable", &CProjectData::SetDemoModeEnable, bEnable);
    }
    void SetDemoSenderType(int nType) override
    {
        Call(enJournalWrite, "SetDemoSenderType", &CProjectData::SetDemoSenderType, nType);
    }
};

} // namespace

CProjectData* GetProjectData()
{
    static CSimulatedProjectData s_data;
    static CJournalledProjectData s_front(s_data, CSimulator::Instance().Journal(), "CProjectData");
    return &s_front;
}
