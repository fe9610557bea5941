#include "SenderModuleDialog/chart/bitmap/ChromaBitmapStore.h"

#include "SenderModuleDialog/chart/ChromaGroupInfo.h"

#include <utility>

class CChromaBitmapStore::CScopedPainting
{
public:
    CScopedPainting(CChromaBitmapStore& store, int nType)
        : m_store(store)
        , m_nType(nType)
    {
        m_store.CountPainter(m_nType, 1);
    }
    ~CScopedPainting() { m_store.CountPainter(m_nType, -1); }
    CScopedPainting(const CScopedPainting&) = delete;
    CScopedPainting& operator=(const CScopedPainting&) = delete;

private:
    CChromaBitmapStore& m_store;
    const int m_nType;
};

CChromaBitmapStore::CChromaBitmapStore(SOwner owner)
    : m_owner(std::move(owner))
{}

void CChromaBitmapStore::Paint(int nType)
{
    PaintUnless(nType, [] { return false; });
}

void CChromaBitmapStore::PaintUnless(int nType, const std::function<bool()>& funcIsStopped)
{
    const CScopedPainting painting(*this, nType);
    CLock lock(m_mutex);
    const quint64 nTicket = ++m_nLastTicket;
    ChromaBitmap::SSource source = m_owner.funcMeasure(nType);
    lock.unlock();
    QImage image = ChromaBitmap::Paint(source, [&] { return m_owner.funcIsAborted() || funcIsStopped(); });
    if (funcIsStopped())
        return;
    lock.lock();
    SType& type = m_arrTypes[Place(nType)];
    if (nTicket < type.nTicket)
        return;
    type.nTicket = nTicket;
    type.source = std::move(source);
    m_owner.funcShow(nType, std::move(image));
}

void CChromaBitmapStore::PaintForWorker()
{
    if (!BeginWorker())
        return;
    for (int nType = 0; nType < c_nWndBitmapCount && !m_bStopWorkers; ++nType)
        PaintUnless(nType, [this] { return m_bStopWorkers.load(); });
    EndWorker();
}

bool CChromaBitmapStore::BeginWorker()
{
    const CLock lock(m_mutex);
    if (m_bClosed)
        return false;
    // Whichever worker begins first paints all that the announced one would.
    m_bAnnounced = false;
    ++m_nWorkers;
    return true;
}

void CChromaBitmapStore::EndWorker()
{
    const CLock lock(m_mutex);
    --m_nWorkers;
    m_condition.notify_all();
}

void CChromaBitmapStore::SetAnnounced(bool bAnnounced)
{
    const CLock lock(m_mutex);
    m_bAnnounced = bAnnounced;
    m_condition.notify_all();
}

void CChromaBitmapStore::CountPainter(int nType, int nStep)
{
    const CLock lock(m_mutex);
    m_arrTypes[Place(nType)].nPainters += nStep;
    m_condition.notify_all();
}

bool CChromaBitmapStore::IsWorkerBusy()
{
    const CLock lock(m_mutex);
    return m_bAnnounced || m_nWorkers > 0;
}

void CChromaBitmapStore::WaitForWorkers()
{
    CLock lock(m_mutex);
    m_condition.wait(lock, [this] { return m_nWorkers == 0; });
}

void CChromaBitmapStore::WaitForBitmap(int nType, const std::atomic<bool>& bReady)
{
    CLock lock(m_mutex);
    const int& nPainters = m_arrTypes[Place(nType)].nPainters;
    m_condition.wait(lock, [&] { return bReady || (nPainters == 0 && m_nWorkers == 0 && !m_bAnnounced); });
}

void CChromaBitmapStore::Close()
{
    m_bStopWorkers = true;
    CLock lock(m_mutex);
    m_bClosed = true;
    m_condition.wait(lock, [this] { return m_nWorkers == 0; });
}
