#include "workbench/ProjectSnapshot.h"

#include "simulator/CommonClass/ProjectFingerprint.h"

#include <QHash>

CProjectSnapshot::CProjectSnapshot(const SSimulatedProject& project)
{
    TakeRest(project);
    for (const SSimulatedSender& sender : project.listSenders)
        m_vecSenders.push_back(std::make_shared<const SSimulatedSender>(sender));
}

void CProjectSnapshot::TakeRest(const SSimulatedProject& project)
{
    m_rest = project;
    m_rest.listSenders.clear();
}

CProjectSnapshot CProjectSnapshot::Next(const SSimulatedProject& project, const SProjectChange& change) const
{
    QHash<int, std::shared_ptr<const SSimulatedSender>> hashPrevious;
    for (const auto& pSender : m_vecSenders)
        if (!change.setSenderIds.contains(pSender->nId))
            hashPrevious.insert(pSender->nId, pSender);
    CProjectSnapshot next;
    next.TakeRest(project);
    for (const SSimulatedSender& sender : project.listSenders) {
        const auto pPrevious = hashPrevious.value(sender.nId);
        next.m_vecSenders.push_back(pPrevious ? pPrevious : std::make_shared<const SSimulatedSender>(sender));
    }
    return next;
}

SSimulatedProject CProjectSnapshot::Project() const
{
    SSimulatedProject project = m_rest;
    for (const auto& pSender : m_vecSenders)
        project.listSenders.push_back(*pSender);
    return project;
}
