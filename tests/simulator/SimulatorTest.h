#ifndef TESTS_SIMULATOR_SIMULATORTEST_H
#define TESTS_SIMULATOR_SIMULATORTEST_H

#include "simulator/CommonClass/AddressText.h"
#include "simulator/CommonClass/Simulator.h"

#include <QStandardPaths>
#include <QtTest>

/// A network for tests: one interface 192.168.1.17/24 behind the gateway 192.168.1.254, and loopback.
inline SNetworkFacts TestNetwork()
{
    const auto Value = [](const char* szAddress) { return *AddressValue(QString::fromLatin1(szAddress)); };
    SNetworkFacts facts;
    facts.listLocal = {{Value("127.0.0.1"), Value("255.0.0.0"), 0},
                       {Value("192.168.1.17"), Value("255.255.255.0"), Value("192.168.1.255")}};
    facts.listGateways = {Value("192.168.1.254")};
    return facts;
}

/// Puts the one simulator of the process into a known state: the test network, a project without senders, an
/// empty journal, no waiting, and no file in the user's own folders.
inline CSimulator& FreshSimulator()
{
    QStandardPaths::setTestModeEnabled(true);
    CSimulator& simulator = CSimulator::Instance();
    simulator.Addresses().SetNetworkFacts(TestNetwork);
    simulator.Hardware().SetSleep([](int) {});
    simulator.Document().NewEmptyProject();
    simulator.Journal().SetCapacity(CHostJournal::c_nDefaultCapacity);
    simulator.Journal().Clear();
    return simulator;
}

#endif // TESTS_SIMULATOR_SIMULATORTEST_H
