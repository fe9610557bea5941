#include "SenderModuleDialog/chart/ChromaBitmapDesk.h"

bool CChromaBitmapDesk::IsNewest(int nType, quint64 nTicket)
{
    quint64& nHandedOver = m_arrHandedOver[size_t(nType + 1)];
    if (nTicket < nHandedOver)
        return false;
    nHandedOver = nTicket;
    return true;
}

void CChromaBitmapDesk::BeginPainting()
{
    const CLock lock(m_mutex);
    ++m_nPainters;
}

void CChromaBitmapDesk::EndPainting()
{
    const CLock lock(m_mutex);
    --m_nPainters;
    m_condition.notify_all();
}

void CChromaBitmapDesk::AnnounceWorker()
{
    const CLock lock(m_mutex);
    m_bWorkerAnnounced = true;
}

void CChromaBitmapDesk::BeginWorker()
{
    const CLock lock(m_mutex);
    m_bWorkerAnnounced = false;
    m_bWorkerRuns = true;
}

void CChromaBitmapDesk::EndWorker()
{
    const CLock lock(m_mutex);
    m_bWorkerAnnounced = false;
    m_bWorkerRuns = false;
    m_condition.notify_all();
}

bool CChromaBitmapDesk::IsWorkerBusy()
{
    const CLock lock(m_mutex);
    return m_bWorkerAnnounced || m_bWorkerRuns;
}

void CChromaBitmapDesk::WaitWhilePainting(const std::atomic<bool>& bReady)
{
    if (bReady)
        return;
    CLock lock(m_mutex);
    m_condition.wait(lock, [this, &bReady] {
        return bReady || (m_nPainters == 0 && !m_bWorkerAnnounced && !m_bWorkerRuns);
    });
}

void CChromaBitmapDesk::WaitForWorker()
{
    CLock lock(m_mutex);
    m_condition.wait(lock, [this] { return !m_bWorkerAnnounced && !m_bWorkerRuns; });
}
