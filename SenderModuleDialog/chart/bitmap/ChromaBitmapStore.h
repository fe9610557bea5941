#ifndef SENDERMODULEDIALOG_CHART_BITMAP_CHROMABITMAPSTORE_H
#define SENDERMODULEDIALOG_CHART_BITMAP_CHROMABITMAPSTORE_H

#include "SenderModuleDialog/chart/bitmap/ChromaBitmapPainter.h"

#include <QImage>
#include <QtGlobal>

#include <array>
#include <atomic>
#include <condition_variable>
#include <functional>
#include <mutex>

/// Paints bitmaps for callers in any thread and hands over the newest picture of each type. A painting takes
/// its measures under the lock, paints a picture of its own without it, and hands it over under the lock
/// again, so nobody sees half a picture.
///
/// `std::mutex` and not Qt's lock: the thread sanitizer follows it.
class CChromaBitmapStore
{
public:
    /// Where measures come from and pictures go.
    struct SOwner
    {
        std::function<ChromaBitmap::SSource(int nType)> funcMeasure; ///< called under the lock
        std::function<void(int nType, QImage image)> funcShow;       ///< called under the lock
        std::function<bool()> funcIsAborted; ///< called without the lock, at each row of pixels
    };

    explicit CChromaBitmapStore(SOwner owner);

    /// The owner's sizes, outline and pictures do not change while the lock is held.
    using CLock = std::unique_lock<std::mutex>;
    CLock Lock() { return CLock(m_mutex); }

    /// Paints the bitmap of a type, -1 to 4, on the calling thread, and hands it over unless a painting that
    /// began later was handed over before. When the owner aborts, the part that is painted by then is shown.
    void Paint(int nType);
    /// What the picture that was handed over last was painted from. Call it under the lock.
    const ChromaBitmap::SSource& Source(int nType) const { return m_arrTypes[Place(nType)].source; }

    /// What a worker does: it paints the types 0 to 4 in this order. Told to stop, it drops the picture that
    /// it is painting. Does nothing after `Close`.
    void PaintForWorker();

    /// A worker is about to begin: from here on `WaitForBitmap` waits for it.
    void AnnounceWorker() { SetAnnounced(true); }
    /// The announced worker never began. Does nothing once a worker has begun.
    void WithdrawWorker() { SetAnnounced(false); }
    /// Whether a worker paints or is announced.
    bool IsWorkerBusy();
    /// Tells all workers to stop at the next row of pixels, or withdraws that.
    void SetStopWorkers(bool bStop) { m_bStopWorkers = bStop; }
    /// Waits until no worker paints.
    void WaitForWorkers();
    /// Waits until the bitmap of a type is ready, or no painter is at work that could make it ready.
    /// Paintings of other types do not matter.
    void WaitForBitmap(int nType, const std::atomic<bool>& bReady);

    /// Stops the workers, waits for them, and lets none begin again: the owner may go.
    void Close();

private:
    /// Types begin at -1.
    static constexpr std::size_t c_nTypes = 6;
    static constexpr std::size_t Place(int nType)
    {
        const int nPlace = nType + 1;
        return std::size_t(nPlace);
    }

    struct SType
    {
        quint64 nTicket = 0; ///< of the painting that was handed over last
        ChromaBitmap::SSource source;
        int nPainters = 0; ///< at work on it now
    };

    /// Counts a painter of a type while it lives.
    class CScopedPainting;

    void PaintUnless(int nType, const std::function<bool()>& funcIsStopped);
    bool BeginWorker();
    void EndWorker();
    void SetAnnounced(bool bAnnounced);
    void CountPainter(int nType, int nStep);

    const SOwner m_owner;
    std::mutex m_mutex;
    std::condition_variable m_condition; ///< notified of everything that a wait may be for
    std::atomic<bool> m_bStopWorkers{false};
    bool m_bClosed = false;
    bool m_bAnnounced = false;
    int m_nWorkers = 0;        ///< at work now
    quint64 m_nLastTicket = 0; ///< of the painting that took its measures last
    std::array<SType, c_nTypes> m_arrTypes;
};

#endif // SENDERMODULEDIALOG_CHART_BITMAP_CHROMABITMAPSTORE_H
