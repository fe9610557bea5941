#include "simulator/CommonClass/SimulatedAddresses.h"

#include "simulator/CommonClass/AddressText.h"
#include "simulator/CommonClass/ProjectDocument.h"

#include <algorithm>
#include <functional>
#include <utility>

CSimulatedAddresses::CSimulatedAddresses(CProjectDocument& document)
    : m_document(document)
    , m_funcFacts(MachineNetworkFacts)
    , m_facts(MachineNetworkFacts())
{}

void CSimulatedAddresses::SetNetworkFacts(FuncNetworkFacts funcFacts)
{
    m_funcFacts = std::move(funcFacts);
    RefreshNetworkFacts();
}

void CSimulatedAddresses::RefreshNetworkFacts()
{
    m_facts = m_funcFacts();
}

enAddressVerdict CSimulatedAddresses::Judge(unsigned int nAddress)
{
    return AddressVerdict(nAddress, Used(), m_facts);
}

const QSet<unsigned int>& CSimulatedAddresses::Used()
{
    const SAddressLists& lists = m_document.Project().addresses;
    // Lists that share their data compare equal immediately, so this costs nothing while they are unchanged.
    if (lists.listStored == m_listUsedStored && lists.listCurSet == m_listUsedCurSet)
        return m_setUsed;
    m_listUsedStored = lists.listStored;
    m_listUsedCurSet = lists.listCurSet;
    m_setUsed.clear();
    // An address is in use if it is in the list in force or in the one being set.
    for (const QStringList* pList : {&m_listUsedStored, &m_listUsedCurSet}) {
        for (const QString& strEntry : *pList)
            m_setUsed.insert(AddressValue(EntryAddress(strEntry)).value_or(0));
    }
    return m_setUsed;
}

void CSimulatedAddresses::Remove(const QList<int>& listRows)
{
    // The last first: the others then keep their rows.
    QList<int> listDescending = listRows;
    std::sort(listDescending.begin(), listDescending.end(), std::greater<>());
    m_document.Change([&listDescending](SSimulatedProject& project) {
        SAddressLists& lists = project.addresses;
        for (const int nRow : listDescending)
            for (QStringList* pList : {&lists.listStored, &lists.listOriginal, &lists.listCurSet})
                if (nRow >= 0 && nRow < pList->size())
                    pList->removeAt(nRow);
    });
}

void CSimulatedAddresses::ApplyCurrentSet()
{
    m_document.Change(
        [](SSimulatedProject& project) { project.addresses.listStored = project.addresses.listCurSet; });
}

void CSimulatedAddresses::RevertCurrentSet()
{
    m_document.Change(
        [](SSimulatedProject& project) { project.addresses.listCurSet = project.addresses.listStored; });
}
