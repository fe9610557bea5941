#include "host/TevraData/ConfigData.h"

#include "simulator/CommonClass/AddressText.h"
#include "simulator/CommonClass/JournalCall.h"
#include "simulator/CommonClass/Simulator.h"

namespace {

class CSimulatedConfigData : public CConfigData
{
public:
    bool IsIPHasError(unsigned int nIP, unsigned int* pError, bool /*bReserved*/) override
    {
        const enAddressVerdict verdict = m_simulator.Addresses().Judge(nIP);
        // A caller may read the code without checking the result, so a valid address clears it.
        if (pError != nullptr)
            *pError = verdict;
        return verdict != enAddressGood;
    }

    void UpdateErrorIPList() override { m_simulator.Addresses().RefreshNetworkFacts(); }

    int GetDetectStrategy() override { return m_simulator.Project().addressing.nDetectStrategy; }

    int GetSpecifiedIPDWORD(unsigned int* pList) override
    {
        if (pList != nullptr) {
            for (const QString& strEntry : Lists().listStored)
                *pList++ = AddressValue(EntryAddress(strEntry)).value_or(0);
        }
        return int(Lists().listStored.size());
    }

    void GetSpecifiedIPs(QStringList& listIP) override { listIP = Lists().listStored; }

    void AddSpecifiedIP(QString strIP, QString strName) override
    {
        const QString strEntry = AddressEntry(strIP, strName);
        SAddressLists& lists = m_simulator.Document().Edit().addresses;
        for (QStringList* pList : {&lists.listStored, &lists.listOriginal, &lists.listCurSet})
            pList->append(strEntry);
    }

    void SpecifiedIPsSave() override
    {
        SFileProblem problem;
        if (!m_simulator.Document().SaveAddresses(problem))
            m_simulator.Document().Report(problem);
    }

    QString GetCurSetSpecifiedIPWithIndex(int nIndex) override { return Lists().listCurSet.value(nIndex); }

    QString GetSpecifiedIPOriginal(int nIndex) override { return Lists().listOriginal.value(nIndex); }

    QString GetSpecifiedIPWithName(int nIndex) override
    {
        return EntryWithName(Lists().listStored.value(nIndex));
    }

    void SetCurSetSpecifiedIPWithIndex(int nIndex, QString strIP, QString strName) override
    {
        Replace(&SAddressLists::listCurSet, nIndex, AddressEntry(strIP, strName));
    }

    void SetSpecifiedIPWithIndex(int nIndex, QString strIP, QString strName) override
    {
        Replace(&SAddressLists::listStored, nIndex, AddressEntry(strIP, strName));
    }

private:
    const SAddressLists& Lists() const { return m_simulator.Project().addresses; }

    void Replace(QStringList SAddressLists::*pList, int nIndex, const QString& strEntry)
    {
        QStringList& list = m_simulator.Document().Edit().addresses.*pList;
        if (nIndex >= 0 && nIndex < list.size())
            list[nIndex] = strEntry;
    }

    CSimulator& m_simulator = CSimulator::Instance();
};

class CJournalledConfigData : public CJournalledFront<CConfigData>
{
public:
    using CJournalledFront::CJournalledFront;

    bool IsIPHasError(unsigned int nIP, unsigned int* pError, bool bReserved) override
    {
        return Call(enJournalRead, "IsIPHasError", &CConfigData::IsIPHasError, nIP, pError, bReserved);
    }
    void UpdateErrorIPList() override
    {
        Call(enJournalRead, "UpdateErrorIPList", &CConfigData::UpdateErrorIPList);
    }
    int GetDetectStrategy() override
    {
        return Call(enJournalRead, "GetDetectStrategy", &CConfigData::GetDetectStrategy);
    }
    int GetSpecifiedIPDWORD(unsigned int* pList) override
    {
        return Call(enJournalRead, "GetSpecifiedIPDWORD", &CConfigData::GetSpecifiedIPDWORD,
                    JournalText::STable{pList});
    }
    void GetSpecifiedIPs(QStringList& listIP) override
    {
        Call(enJournalRead, "GetSpecifiedIPs", &CConfigData::GetSpecifiedIPs, listIP);
    }
    void AddSpecifiedIP(QString strIP, QString strName) override
    {
        Call(enJournalWrite, "AddSpecifiedIP", &CConfigData::AddSpecifiedIP, strIP, strName);
    }
    void SpecifiedIPsSave() override
    {
        bool bProblem = false;
        const auto connection =
            QObject::connect(&CSimulator::Instance().Document(), &CProjectDocument::OnProblem,
                             [&bProblem] { bProblem = true; });
        Call(enJournalWrite, "SpecifiedIPsSave", &CConfigData::SpecifiedIPsSave);
        QObject::disconnect(connection);
        if (bProblem)
            MarkFailed();
    }
    QString GetCurSetSpecifiedIPWithIndex(int nIndex) override
    {
        return Call(enJournalRead, "GetCurSetSpecifiedIPWithIndex",
                    &CConfigData::GetCurSetSpecifiedIPWithIndex, nIndex);
    }
    QString GetSpecifiedIPOriginal(int nIndex) override
    {
        return Call(enJournalRead, "GetSpecifiedIPOriginal", &CConfigData::GetSpecifiedIPOriginal, nIndex);
    }
    QString GetSpecifiedIPWithName(int nIndex) override
    {
        return Call(enJournalRead, "GetSpecifiedIPWithName", &CConfigData::GetSpecifiedIPWithName, nIndex);
    }
    void SetCurSetSpecifiedIPWithIndex(int nIndex, QString strIP, QString strName) override
    {
        Call(enJournalWrite, "SetCurSetSpecifiedIPWithIndex", &CConfigData::SetCurSetSpecifiedIPWithIndex,
             nIndex, strIP, strName);
    }
    void SetSpecifiedIPWithIndex(int nIndex, QString strIP, QString strName) override
    {
        Call(enJournalWrite, "SetSpecifiedIPWithIndex", &CConfigData::SetSpecifiedIPWithIndex, nIndex, strIP,
             strName);
    }
};

} // namespace

CConfigData* GetConfigData()
{
    static CSimulatedConfigData s_data;
    static CJournalledConfigData s_front(s_data, CSimulator::Instance().Journal(), "CConfigData");
    return &s_front;
}
