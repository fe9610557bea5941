#include "simulator/CommonClass/SimulatedHardware.h"

#include "simulator/CommonClass/ProjectDocument.h"

#include <QThread>

#include <utility>

CSimulatedHardware::CSimulatedHardware(CProjectDocument& document, QObject* pParent)
    : QObject(pParent)
    , m_document(document)
    , m_funcSleep([](int nMilliseconds) { QThread::msleep(static_cast<unsigned long>(nMilliseconds)); })
{}

CSimulatedHardware::~CSimulatedHardware() = default;

bool CSimulatedHardware::SetEdidMemory(int nSender, int nInterfaceId, const QByteArray& baEdid)
{
    const SSimulatedSender* pSender = m_document.Project().FindSender(nSender);
    const bool bInput = pSender != nullptr && pSender->FindInput(nInterfaceId) != nullptr;
    if (!bInput || (!baEdid.isEmpty() && baEdid.size() != c_nEdidBlockSize))
        return false;
    m_document.Change([&](SSimulatedProject& project) {
        project.FindSender(nSender)->FindInput(nInterfaceId)->baEdid = baEdid;
    });
    return true;
}

void CSimulatedHardware::SetSleep(std::function<void(int)> funcSleep)
{
    m_funcSleep = std::move(funcSleep);
}

void CSimulatedHardware::SpendWriteDelay(int nSender)
{
    const SSimulatedSender* pSender = m_document.Project().FindSender(nSender);
    if (pSender != nullptr && pSender->faults.nWriteDelay > 0)
        m_funcSleep(pSender->faults.nWriteDelay);
}
