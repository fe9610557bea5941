#ifndef SIMULATOR_COMMONCLASS_SIMULATEDADDRESSES_H
#define SIMULATOR_COMMONCLASS_SIMULATEDADDRESSES_H

#include "host/HostExport.h"
#include "simulator/CommonClass/AddressVerdict.h"
#include "simulator/CommonClass/NetworkFacts.h"

#include <QSet>
#include <QStringList>

class CProjectDocument;

/// The address lists of the project, and the verdicts on addresses based on these lists and the network.
class COMMONCLASS_EXPORT CSimulatedAddresses
{
public:
    /// The addresses of a document's project.
    /// @param document outlives this object
    explicit CSimulatedAddresses(CProjectDocument& document);

    /// Sets the source of the network facts and refreshes them. The default queries the machine.
    void SetNetworkFacts(FuncNetworkFacts funcFacts);
    /// Refreshes the network facts.
    void RefreshNetworkFacts();
    /// The network as it was when the facts were last refreshed.
    const SNetworkFacts& NetworkFacts() const { return m_facts; }

    /// Checks an address as the dialogs do.
    enAddressVerdict Judge(unsigned int nAddress);
    /// Removes entries from all three address lists; rows without an entry are ignored.
    void Remove(const QList<int>& listRows);
    /// Puts the list being set in force.
    void ApplyCurrentSet();
    /// Discards the changes of the list being set.
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
