#include "simulator/CommonClass/ProjectTemplates.h"

#include "host/TevraData/DemoSenderType.h"
#include "simulator/CommonClass/Catalogue.h"

#include <utility>

namespace ProjectTemplates {

namespace {

constexpr int c_arrDemoTypes[] = {enDemoM6K, enDemoR16Pro, enDemoT4, enDemoT6, enDemoT6Pro, enDemoT8};

template <class TTypes>
SSimulatedProject ProjectOf(const TTypes& types)
{
    SSimulatedProject project;
    for (const int nType : types)
        AddSender(project, nType, QString());
    return project;
}

} // namespace

SSimulatedProject Demo()
{
    return ProjectOf(c_arrDemoTypes);
}

SSimulatedProject Catalogue()
{
    return ProjectOf(CCatalogue::Instance().Types());
}

SSimulatedProject OneSender(int nType)
{
    return ProjectOf(QList<int>{nType});
}

int AddSender(SSimulatedProject& project, int nType, const QString& strName)
{
    std::optional<SSimulatedSender> sender = CCatalogue::Instance().NewSender(nType);
    if (!sender || project.nNextSenderId > c_nLastSenderId)
        return -1;
    sender->nId = project.nNextSenderId++;
    sender->strName = strName.isEmpty() ? sender->capability.strModel : strName;
    project.listSenders.push_back(std::move(*sender));
    return int(project.listSenders.size()) - 1;
}

} // namespace ProjectTemplates
