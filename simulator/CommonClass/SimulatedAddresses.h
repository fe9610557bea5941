#ifndef SIMULATOR_COMMONCLASS_SIMULATEDADDRESSES_H
#define SIMULATOR_COMMONCLASS_SIMULATEDADDRESSES_H

#include "host/HostExport.h"
#include "simulator/CommonClass/AddressVerdict.h"
#include "simulator/CommonClass/NetworkFacts.h"

#include <QSet>
#include <QStringList>

class CProjectDocument;

/// The address lists of the project, and the verdicts on addresses by these lists and the network.
class COMMONCLASS_EXPORT CSimulatedAddresses
{
public:
    explicit CSimulatedAddresses(CProjectDocument& document);

    /// Where the network facts come from. The default asks the machine. Refreshes the facts.
    void SetNetworkFacts(FuncNetworkFacts funcFacts);
    /// Asks for the network facts again.
    void RefreshNetworkFacts();
    const SNetworkFacts& NetworkFacts() const { return m_facts; }

    /// Judges an address as the dialogs have it judged.
    enAddressVerdict Judge(unsigned int nAddress);
    /// Removes an entry from all three address lists.
    void Remove(int nIndex);
    /// Takes the list that is being set into force, or throws its changes away.
    void ApplyCurrentSet();
    void RevertCurrentSet();

private:
    const QSet<unsigned int>& Used();

    CProjectDocument& m_document;
    FuncNetworkFacts m_funcFacts;
    SNetworkFacts m_facts;
    QStringList m_listUsedStored; ///< the lists from which `m_setUsed` was made
    QStringList m_listUsedCurSet;
    QSet<unsigned int> m_setUsed;
};

#endif // SIMULATOR_COMMONCLASS_SIMULATEDADDRESSES_H
