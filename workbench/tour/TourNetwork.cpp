#include "workbench/tour/TourNetwork.h"

#include "simulator/CommonClass/Simulator.h"

namespace {

SNetworkFacts Facts()
{
    SNetworkFacts facts;
    facts.listLocal = {{0xC0A8010A, 0xFFFFFF00, 0xC0A801FF}};
    facts.listGateways = {0xC0A80101};
    return facts;
}

} // namespace

CTourNetwork::CTourNetwork()
{
    CSimulator::Instance().Addresses().SetNetworkFacts(Facts);
}

CTourNetwork::~CTourNetwork()
{
    CSimulator::Instance().Addresses().SetNetworkFacts(MachineNetworkFacts);
}
