#include "SenderModuleDialog/chart/ChromaBitmapDesk.h"

#include <utility>

namespace {

size_t Place(int nType)
{
    const int nPlace = nType + 1;
    return size_t(nPlace);
}

} // namespace

bool CChromaBitmapDesk::Note(int nType, ChromaBitmap::SSource source, quint64 nTicket)
{
    SNote& note = m_arrNotes[Place(nType)];
    if (nTicket < note.nTicket)
        return false;
    note = {nTicket, std::move(source)};
    return true;
}

const ChromaBitmap::SSource& CChromaBitmapDesk::Source(int nType) const
{
    return m_arrNotes[Place(nType)].source;
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
