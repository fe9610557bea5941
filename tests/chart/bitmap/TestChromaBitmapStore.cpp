#include "SenderModuleDialog/chart/bitmap/ChromaBitmapStore.h"

#include <QImage>
#include <QSemaphore>
#include <QtTest>

#include <atomic>
#include <thread>
#include <vector>

namespace {

/// A store whose first painting of one type waits at its first row until it is let go on.
class CHeldStore
{
public:
    explicit CHeldStore(int nHeldType)
        : m_nHeldType(nHeldType)
    {}

    CChromaBitmapStore& Store() { return m_store; }
    /// Waits until the held painting has begun.
    void AwaitBegin() { m_begun.acquire(); }
    void LetGo() { m_go.release(); }
    std::vector<int> Shown()
    {
        const auto lock = m_store.Lock();
        return m_vecShown;
    }

private:
    ChromaBitmap::SSource Measure(int nType)
    {
        t_nType = nType;
        ChromaBitmap::SSource source;
        source.nWidth = 60;
        source.nHeight = 50;
        source.vecLocus = {{0.1, 0.0}, {0.7, 0.3}, {0.1, 0.8}};
        source.vecOutline = {{5.0F, 45.0F}, {50.0F, 30.0F}, {5.0F, 5.0F}};
        return source;
    }

    bool HoldFirstRow()
    {
        if (t_nType != m_nHeldType || m_bHeld.exchange(true))
            return false;
        m_begun.release();
        m_go.acquire();
        return false;
    }

    /// What the thread paints.
    static thread_local int t_nType;

    const int m_nHeldType;
    std::atomic<bool> m_bHeld{false};
    QSemaphore m_begun;
    QSemaphore m_go;
    std::vector<int> m_vecShown; ///< types, in the order in which they were shown
    CChromaBitmapStore m_store{{[this](int nType) { return Measure(nType); },
                                [this](int nType, const QImage&) { m_vecShown.push_back(nType); },
                                [this] { return HoldFirstRow(); }}};
};

thread_local int CHeldStore::t_nType = 0;

} // namespace

class TestChromaBitmapStore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void APaintingIsShown();
    void APaintingThatBeganEarlierDoesNotReplaceALaterOne();
    void AWorkerPaintsTheFiveTypesInOrder();
    void AWorkerThatIsStoppedDropsItsPicture();
    void AClosedStoreTakesNoWorker();
    void AnAbsentBitmapIsWaitedForOnlyWhileSomebodyIsAtWork();
    void ABitmapThatIsBeingPaintedIsWaitedFor();
    void PaintingsOfOtherTypesAreNotWaitedFor();
    void WaitingForWorkersWaitsForTheirEnd();
};

void TestChromaBitmapStore::APaintingIsShown()
{
    CHeldStore held(3);
    held.Store().Paint(-1);
    held.Store().Paint(4);
    QCOMPARE(held.Shown(), (std::vector<int>{-1, 4}));
}

void TestChromaBitmapStore::APaintingThatBeganEarlierDoesNotReplaceALaterOne()
{
    CHeldStore held(2);
    std::thread early([&] { held.Store().Paint(2); });
    held.AwaitBegin();
    held.Store().Paint(2);
    held.LetGo();
    early.join();
    QCOMPARE(held.Shown(), (std::vector<int>{2}));
}

void TestChromaBitmapStore::AWorkerPaintsTheFiveTypesInOrder()
{
    CHeldStore held(-1);
    held.Store().PaintForWorker();
    QCOMPARE(held.Shown(), (std::vector<int>{0, 1, 2, 3, 4}));
    QVERIFY(!held.Store().IsWorkerBusy());
}

void TestChromaBitmapStore::AWorkerThatIsStoppedDropsItsPicture()
{
    CHeldStore held(1);
    std::thread worker([&] { held.Store().PaintForWorker(); });
    held.AwaitBegin();
    held.Store().SetStopWorkers(true);
    held.LetGo();
    worker.join();
    QCOMPARE(held.Shown(), (std::vector<int>{0}));
}

void TestChromaBitmapStore::AClosedStoreTakesNoWorker()
{
    CHeldStore held(-1);
    held.Store().Close();
    held.Store().PaintForWorker();
    QVERIFY(held.Shown().empty());
}

void TestChromaBitmapStore::AnAbsentBitmapIsWaitedForOnlyWhileSomebodyIsAtWork()
{
    CHeldStore held(-1);
    const std::atomic<bool> bReady{false};
    held.Store().WaitForBitmap(2, bReady);
    held.Store().AnnounceWorker();
    held.Store().WithdrawWorker();
    held.Store().WaitForBitmap(2, bReady);
    QVERIFY(!held.Store().IsWorkerBusy());
}

void TestChromaBitmapStore::ABitmapThatIsBeingPaintedIsWaitedFor()
{
    CHeldStore held(2);
    const std::atomic<bool> bReady{false};
    std::thread painter([&] { held.Store().Paint(2); });
    held.AwaitBegin();
    std::thread releaser([&] { held.LetGo(); });
    held.Store().WaitForBitmap(2, bReady);
    QCOMPARE(held.Shown(), (std::vector<int>{2}));
    releaser.join();
    painter.join();
}

void TestChromaBitmapStore::PaintingsOfOtherTypesAreNotWaitedFor()
{
    CHeldStore held(3);
    const std::atomic<bool> bReady{false};
    std::thread painter([&] { held.Store().Paint(3); });
    held.AwaitBegin();
    std::atomic<bool> bWaited{false};
    std::thread waiter([&] {
        held.Store().WaitForBitmap(2, bReady);
        bWaited = true;
    });
    const bool bInTime = QTest::qWaitFor([&] { return bWaited.load(); });
    held.LetGo();
    waiter.join();
    painter.join();
    QVERIFY(bInTime);
}

void TestChromaBitmapStore::WaitingForWorkersWaitsForTheirEnd()
{
    CHeldStore held(4);
    std::thread worker([&] { held.Store().PaintForWorker(); });
    held.AwaitBegin();
    QVERIFY(held.Store().IsWorkerBusy());
    std::thread releaser([&] { held.LetGo(); });
    held.Store().WaitForWorkers();
    QCOMPARE(held.Shown(), (std::vector<int>{0, 1, 2, 3, 4}));
    releaser.join();
    worker.join();
}

QTEST_GUILESS_MAIN(TestChromaBitmapStore)
#include "TestChromaBitmapStore.moc"
