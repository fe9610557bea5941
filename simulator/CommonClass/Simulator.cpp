#include "simulator/CommonClass/Simulator.h"

#include "host/KelvaroLabel.h"
#include "simulator/CommonClass/JournalCall.h"

namespace {

class CSimulatedLabel : public IKelvaroLabel
{
public:
    explicit CSimulatedLabel(CSimulator& simulator)
        : m_simulator(simulator)
    {}

    void PostLabelEvent(int nCode, int nA, int nB, int nC) override
    {
        m_simulator.Document().NoticeChanges();
        Q_EMIT m_simulator.OnLabelEvent(nCode, nA, nB, nC);
    }

private:
    CSimulator& m_simulator;
};

class CJournalledLabel : public CJournalledFront<IKelvaroLabel>
{
public:
    using CJournalledFront::CJournalledFront;

    void PostLabelEvent(int nCode, int nA, int nB, int nC) override
    {
        Call(enJournalEvent, "PostLabelEvent", &IKelvaroLabel::PostLabelEvent, JournalText::SHexCode{nCode},
             nA, nB, nC);
    }
};

} // namespace

CSimulator& CSimulator::Instance()
{
    static CSimulator s_simulator;
    return s_simulator;
}

CSimulator::CSimulator()
    : m_addresses(m_document)
    , m_hardware(m_document)
    , m_pLabel(std::make_unique<CSimulatedLabel>(*this))
    , m_pLabelJournalled(std::make_unique<CJournalledLabel>(*m_pLabel, m_journal, "IKelvaroLabel"))
{}

CSimulator::~CSimulator() = default;

IKelvaroLabel* CSimulator::Label()
{
    return m_pLabelJournalled.get();
}
