#include "simulator/CommonClass/SimulatedProject.h"

#include "simulator/CommonClass/AddressText.h"
#include "simulator/CommonClass/ProjectDescriptions.h"
#include "simulator/CommonClass/SimulatorText.h"

#include <QSet>

#include <algorithm>

namespace {

/// Rejects the second of two elements with the same key.
template <class TContainer, class TKey>
void RequireUnique(const SJsonPlace& place, const TContainer& container, TKey key, const QString& strWhat)
{
    QSet<int> setSeen;
    int nIndex = 0;
    for (const auto& element : container) {
        const int nKey = element.*key;
        if (setSeen.contains(nKey))
            return place.Element(nIndex).Refuse(strWhat.arg(nKey));
        setSeen.insert(nKey);
        ++nIndex;
    }
}

void CheckSenders(const SSimulatedProject& project, const SJsonPlace& place)
{
    const SJsonPlace placeSenders = place.Key(QStringLiteral("senders"));
    RequireUnique(placeSenders, project.listSenders, &SSimulatedSender::nId,
                  CSimulatorText::tr("the id %1 is given twice."));
    int nIndex = 0;
    for (const SSimulatedSender& sender : project.listSenders) {
        RequireUnique(placeSenders.Element(nIndex++).Key(QStringLiteral("inputs")), sender.listInputs,
                      &SSimulatedInput::nInterfaceId, CSimulatorText::tr("the interface %1 is given twice."));
        if (sender.nId >= project.nNextSenderId)
            place.Key(QStringLiteral("nextSenderId"))
                .Refuse(CSimulatorText::tr("the value must be above every sender's id."));
    }
}

void CheckCurrentSender(const SSimulatedProject& project, const SJsonPlace& place)
{
    if (project.nCurSender != 0 && project.FindSender(project.nCurSender) == nullptr)
        place.Key(QStringLiteral("currentSender"))
            .Refuse(CSimulatorText::tr("there is no sender with the index %1.").arg(project.nCurSender));
}

void CheckEntries(const QStringList& listEntries, const SJsonPlace& place)
{
    for (int nIndex = 0; nIndex < listEntries.size(); ++nIndex) {
        const QString& strEntry = listEntries.at(nIndex);
        if (!strEntry.contains(QLatin1Char('(')) || !strEntry.endsWith(QLatin1Char(')')))
            return place.Element(nIndex).RefuseValue(strEntry, CSimulatorText::tr("an entry address(name)"));
    }
}

void CheckAddressLists(const SAddressLists& lists, const SJsonPlace& place)
{
    const SJsonPlace placeLists = place.Key(QStringLiteral("addresses"));
    CheckEntries(lists.listStored, placeLists.Key(QStringLiteral("stored")));
    CheckEntries(lists.listOriginal, placeLists.Key(QStringLiteral("original")));
    CheckEntries(lists.listCurSet, placeLists.Key(QStringLiteral("currentSet")));
    if (lists.listOriginal.size() != lists.listStored.size() ||
        lists.listCurSet.size() != lists.listStored.size())
        placeLists.Refuse(CSimulatorText::tr("the three lists must have the same length."));
}

void CheckDetected(const QStringList& listDetected, const SJsonPlace& place)
{
    const SJsonPlace placeList = place.Key(QStringLiteral("addressing")).Key(QStringLiteral("detected"));
    for (int nIndex = 0; nIndex < listDetected.size(); ++nIndex) {
        if (!AddressValue(listDetected.at(nIndex)))
            return placeList.Element(nIndex).RefuseValue(
                listDetected.at(nIndex), CSimulatorText::tr("an address such as 192.168.0.10"));
    }
}

/// The chart calculates coverage from two groups; with one of them missing there is nothing to compare.
void CheckColour(const SProjectColour& colour, const SJsonPlace& place)
{
    const SJsonPlace placeGroups = place.Key(QStringLiteral("colour")).Key(QStringLiteral("groups"));
    RequireUnique(placeGroups, colour.listGroups, &SProjectColourGroup::nKey,
                  CSimulatorText::tr("the key %1 is given twice."));
    constexpr int c_arrPair[] = {0x200, 0x300};
    const auto Count = [&colour](int nKey) {
        return std::count_if(colour.listGroups.cbegin(), colour.listGroups.cend(),
                             [nKey](const SProjectColourGroup& group) { return group.nKey == nKey; });
    };
    if (Count(c_arrPair[0]) != Count(c_arrPair[1]))
        placeGroups.Refuse(
            CSimulatorText::tr("the groups 512 and 768 must both be there or both be missing."));
}

template <class TSender>
auto FindInputOf(TSender& sender, int nInterfaceId) -> decltype(&sender.listInputs.front())
{
    const auto itInput =
        std::find_if(sender.listInputs.begin(), sender.listInputs.end(),
                     [=](const SSimulatedInput& input) { return input.nInterfaceId == nInterfaceId; });
    return itInput == sender.listInputs.end() ? nullptr : &*itInput;
}

template <class TProject>
auto FindSenderOf(TProject& project, int nSender) -> decltype(&project.listSenders.front())
{
    return nSender < 0 || size_t(nSender) >= project.listSenders.size()
               ? nullptr
               : &project.listSenders[size_t(nSender)];
}

} // namespace

SSimulatedInput* SSimulatedSender::FindInput(int nInterfaceId)
{
    return FindInputOf(*this, nInterfaceId);
}

const SSimulatedInput* SSimulatedSender::FindInput(int nInterfaceId) const
{
    return FindInputOf(*this, nInterfaceId);
}

SSimulatedSender* SSimulatedProject::FindSender(int nSender)
{
    return FindSenderOf(*this, nSender);
}

const SSimulatedSender* SSimulatedProject::FindSender(int nSender) const
{
    return FindSenderOf(*this, nSender);
}

QJsonObject ProjectToJson(const SSimulatedProject& project)
{
    return WriteJson(project).toObject();
}

SSimulatedProject ProjectFromJson(const QJsonObject& object, SFileProblem& problem)
{
    SSimulatedProject project;
    const SJsonPlace place = {QString(), problem};
    ReadJson(place, object, project);
    if (problem.IsSet())
        return project;
    CheckSenders(project, place);
    CheckCurrentSender(project, place);
    CheckAddressLists(project.addresses, place);
    CheckDetected(project.addressing.listDetected, place);
    if (project.colour)
        CheckColour(*project.colour, place);
    return project;
}

QJsonObject AddressListsToJson(const SAddressLists& lists)
{
    return WriteJson(lists).toObject();
}
