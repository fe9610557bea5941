#include "SenderModuleDialog/chart/ChromaBitmapDesk.h"

bool CChromaBitmapDesk::IsNewest(int nType, quint64 nTicket)
{
    const int nPlace = nType + 1;
    quint64& nHandedOver = m_arrHandedOver[size_t(nPlace)];
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

void CChromaBitmapDesk::SetWorker(enWorker worker)
{
    const CLock lock(m_mutex);
    m_worker = worker;
    m_condition.notify_all();
}

bool CChromaBitmapDesk::IsWorkerBusy()
{
    const CLock lock(m_mutex);
    return IsBusy();
}

void CChromaBitmapDesk::WaitWhilePainting(const std::atomic<bool>& bReady)
{
    if (bReady)
        return;
    CLock lock(m_mutex);
    m_condition.wait(lock, [this, &bReady] { return bReady || (m_nPainters == 0 && !IsBusy()); });
}

void CChromaBitmapDesk::WaitForWorker()
{
    CLock lock(m_mutex);
    m_condition.wait(lock, [this] { return m_worker == enResting; });
}
