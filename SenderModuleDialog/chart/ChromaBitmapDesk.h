#ifndef SENDERMODULEDIALOG_CHART_CHROMABITMAPDESK_H
#define SENDERMODULEDIALOG_CHART_CHROMABITMAPDESK_H

#include "SenderModuleDialog/chart/ChromaBitmapPainter.h"

#include <QtGlobal>

#include <array>
#include <atomic>
#include <condition_variable>
#include <mutex>

/// What the threads that paint the chart's bitmaps agree by. Painters take their measures under the lock,
/// paint a picture of their own without it, and hand it over under the lock again; so nobody ever sees half a
/// picture.
class CChromaBitmapDesk
{
public:
    /// Holds the sizes, the outline and the image pointers still while it lives.
    using CLock = std::unique_lock<std::mutex>;
    CLock Lock() { return CLock(m_mutex); }

    /// A number that is larger than those of all paintings that took their measures before. Call it under the
    /// lock.
    quint64 TakeTicket() { return ++m_nLastTicket; }
    /// Notes what the bitmap of a type was painted from, unless a painting with a later ticket was noted
    /// before. Call it under the lock.
    /// @param nType -1 to 4
    /// @return whether this painting is the newest
    bool Note(int nType, ChromaBitmap::SSource source, quint64 nTicket);
    /// What the bitmap that was noted last for a type was painted from. Call it under the lock.
    const ChromaBitmap::SSource& Source(int nType) const;

    /// One more painter is at work.
    void BeginPainting();
    /// The painter is done: whoever waits looks again.
    void EndPainting();

    /// @name The worker's way
    /// From rest it is announced before its thread runs, so that nobody finds the time between idle; it
    /// paints, it reports its end, and it rests.
    /// @{
    void AnnounceWorker() { SetWorker(enAnnounced); }
    void BeginWorker() { SetWorker(enPainting); }
    void EndWorker() { SetWorker(enReporting); }
    void RestWorker() { SetWorker(enResting); }
    /// @}

    /// Whether the worker paints or is about to.
    bool IsWorkerBusy();

    /// Tells the worker to stop at the next row of pixels, or withdraws that.
    void SetStopWorker(bool bStop) { m_bStopWorker = bStop; }
    bool IsWorkerToStop() const { return m_bStopWorker; }

    /// Waits until the bitmap is ready, or nobody is at work who could make it so.
    void WaitWhilePainting(const std::atomic<bool>& bReady);
    /// Waits until the worker rests.
    void WaitForWorker();

private:
    enum enWorker
    {
        enResting,
        enAnnounced,
        enPainting,
        enReporting
    };

    /// Number of window types, which begin at -1.
    static constexpr int c_nTypes = 6;

    /// A bitmap that was handed over.
    struct SNote
    {
        quint64 nTicket = 0;
        ChromaBitmap::SSource source;
    };

    /// Whoever waits looks again.
    void SetWorker(enWorker worker);
    bool IsBusy() const { return m_worker == enAnnounced || m_worker == enPainting; }

    std::mutex m_mutex;
    std::condition_variable m_condition;
    std::atomic<bool> m_bStopWorker{false};
    quint64 m_nLastTicket = 0;
    std::array<SNote, c_nTypes> m_arrNotes;
    int m_nPainters = 0;
    enWorker m_worker = enResting;
};

/// A painter at work, for as long as it lives.
class CPaintingShift
{
public:
    explicit CPaintingShift(CChromaBitmapDesk& desk)
        : m_desk(desk)
    {
        m_desk.BeginPainting();
    }
    ~CPaintingShift() { m_desk.EndPainting(); }
    CPaintingShift(const CPaintingShift&) = delete;
    CPaintingShift& operator=(const CPaintingShift&) = delete;

private:
    CChromaBitmapDesk& m_desk;
};

#endif // SENDERMODULEDIALOG_CHART_CHROMABITMAPDESK_H
