#include "host/TevraData/RuntimeData.h"

#include "simulator/CommonClass/JournalCall.h"
#include "simulator/CommonClass/Simulator.h"

namespace {

class CSimulatedRuntimeData : public CRuntimeData
{
public:
    int GetSenderCountLimit(bool bIPAddressMode) override
    {
        const SAddressing& addressing = CSimulator::Instance().Project().addressing;
        return bIPAddressMode ? addressing.nCountLimitByIP : addressing.nCountLimitOtherwise;
    }
};

class CJournalledRuntimeData : public CJournalledFront<CRuntimeData>
{
public:
    using CJournalledFront::CJournalledFront;

    int GetSenderCountLimit(bool bIPAddressMode) override
    {
        return Call(enJournalRead, "GetSenderCountLimit", &CRuntimeData::GetSenderCountLimit, bIPAddressMode);
    }
};

} // namespace

CRuntimeData* GetRuntimeData()
{
    static CSimulatedRuntimeData s_data;
    static CJournalledRuntimeData s_front(s_data, CSimulator::Instance().Journal(), "CRuntimeData");
    return &s_front;
}
