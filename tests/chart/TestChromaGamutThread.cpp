#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "SenderModuleDialog/chart/ChromaGamutThread.h"
#include "SenderModuleDialog/colour/ChromaGamutInterpolation.h"

#include <QImage>
#include <QPainter>
#include <QPointer>
#include <QSemaphore>
#include <QSignalSpy>
#include <QtTest>

#include <array>
#include <atomic>
#include <memory>
#include <random>
#include <thread>

namespace {

/// Large enough that a painting is under way for a while.
constexpr QSize c_sizeLarge(3000, 2000);

std::unique_ptr<CChromaticityDlgWnd> MakeChart()
{
    auto pChart = std::make_unique<CChromaticityDlgWnd>(nullptr);
    pChart->resize(300, 300);
    pChart->SetSize(300, 300);
    return pChart;
}

const SWndBitmap& Bitmap(const CChromaticityDlgWnd& chart, int nType)
{
    const std::array<const SWndBitmap*, 5> arrBitmaps = {&chart.m_wndBitmap0, &chart.m_wndBitmap1,
                                                         &chart.m_wndBitmap2, &chart.m_wndBitmap3,
                                                         &chart.m_wndBitmap4};
    return *arrBitmaps[size_t(nType)];
}

QImage Painted(CChromaticityDlgWnd& chart)
{
    QImage image(chart.size(), QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    chart.Draw(painter);
    return image;
}

} // namespace

class TestChromaGamutThread : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheThreadIsAPlainThreadWithOneSignal();
    void RunWithoutAChartReportsItsEnd();
    void RunPaintsTheFiveTypesAndReportsItsEnd();
    void AStartedWorkerPaintsWhatTheCallerWouldPaint();
    void AStartedWorkerRepaintsTheChartAtItsEnd();
    void AStartedWorkerEnds();
    void AThreadThatTheHostStartsPaintsToo();
    void StartingAgainPaintsTheNewSizes();
    void StartingPaintsForThisChartWhateverTheThreadWasGiven();
    void StoppingAtRestDoesNothing();
    void StoppingLeavesTheOldBitmap();
    void StoppingLetsTheNextStartPaint();
    void DrawWaitsForABitmapThatIsBeingPainted();
    void DrawShowsTheOldBitmapMeanwhile();
    void DrawWithoutAPainterShowsTheBackgroundAlone();
    void DrawOfAnUnknownTypeShowsTheBackgroundAlone();
    void APaintingThatBeganEarlierDoesNotReplaceALaterOne();
    void TheChartMayGoWhileTheWorkerPaints();
    void StoppingStopsAWorkerOfTheHostsToo();
    void AQueuedSlotMayForgetTheChart();
    void ADirectSlotMayForgetTheChart();
    void ADirectSlotMayDeleteTheChart_data();
    void ADirectSlotMayDeleteTheChart();
    void ASlotThatTheGuiRunsMayDeleteTheChart();
    void ADirectSlotMayStartTheWorkerAgain();
    void ADirectSlotMayStopTheWorker();
    void AWorkerMayBePointedFromChartToChart();
    void AStartedThreadThatIsPointedElsewhereKeepsNobodyWaiting();
    void AWorkerMayRunWhenItsChartIsGone();
    void AStormOfCallsLeavesEverythingWhole();
};

void TestChromaGamutThread::TheThreadIsAPlainThreadWithOneSignal()
{
    const QMetaObject& meta = CChromaGamutThread::staticMetaObject;
    QCOMPARE(meta.superClass()->className(), "QThread");
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    QCOMPARE(meta.method(meta.methodOffset()).methodSignature(), QByteArray("RunOver()"));
}

void TestChromaGamutThread::RunWithoutAChartReportsItsEnd()
{
    CChromaGamutThread thread(nullptr);
    QSignalSpy spy(&thread, &CChromaGamutThread::RunOver);
    thread.run();
    QCOMPARE(spy.count(), 1);
}

void TestChromaGamutThread::RunPaintsTheFiveTypesAndReportsItsEnd()
{
    const auto pChart = MakeChart();
    for (int nType = 0; nType < 5; ++nType)
        pChart->StoreWndData(nType, 100 + nType, 90);
    QSignalSpy spy(pChart->m_pThread, &CChromaGamutThread::RunOver);
    pChart->m_pThread->run();
    QCOMPARE(spy.count(), 1);
    for (int nType = 0; nType < 5; ++nType) {
        QVERIFY(Bitmap(*pChart, nType).bReady);
        QCOMPARE(Bitmap(*pChart, nType).pImage->size(), QSize(100 + nType, 90));
    }
    QCOMPARE(pChart->m_pDefaultImage, nullptr);
}

void TestChromaGamutThread::AStartedWorkerPaintsWhatTheCallerWouldPaint()
{
    const auto pChart = MakeChart();
    const auto pOther = MakeChart();
    for (int nType = 0; nType < 5; ++nType) {
        pChart->StoreWndData(nType, 300 - nType, 200 + nType);
        pOther->SetWndData(nType, 300 - nType, 200 + nType);
    }
    // Not a signal spy: it would write from the worker's thread.
    int nEnds = 0;
    connect(pChart->m_pThread, &CChromaGamutThread::RunOver, this, [&nEnds] { ++nEnds; });
    pChart->StartWndBitmapThread();
    QTRY_COMPARE(nEnds, 1);
    pChart->StopWndBitmapThread();
    for (int nType = 0; nType < 5; ++nType)
        QVERIFY(*Bitmap(*pChart, nType).pImage == *Bitmap(*pOther, nType).pImage);
}

void TestChromaGamutThread::AStartedWorkerRepaintsTheChartAtItsEnd()
{
    const auto pChart = MakeChart();
    pChart->StoreWndData(1, 300, 300);
    pChart->SetWndType(1);
    pChart->show();
    QCoreApplication::processEvents();
    const QImage before = pChart->grab().toImage();
    QVERIFY(!Bitmap(*pChart, 1).bReady);
    pChart->StartWndBitmapThread();
    QTRY_VERIFY(!pChart->m_pThread->isRunning());
    QVERIFY(pChart->grab().toImage() != before);
}

void TestChromaGamutThread::AStartedWorkerEnds()
{
    const auto pChart = MakeChart();
    pChart->StartWndBitmapThread();
    QTRY_VERIFY(pChart->m_pThread->isFinished());
}

void TestChromaGamutThread::AThreadThatTheHostStartsPaintsToo()
{
    const auto pChart = MakeChart();
    pChart->StoreWndData(4, 100, 90);
    pChart->m_pThread->start();
    QTRY_VERIFY(Bitmap(*pChart, 4).bReady);
    pChart->StopWndBitmapThread();
    QCOMPARE(Bitmap(*pChart, 4).pImage->size(), QSize(100, 90));
}

void TestChromaGamutThread::StartingAgainPaintsTheNewSizes()
{
    const auto pChart = MakeChart();
    for (const int nSide : {2000, 1500, 120}) {
        for (int nType = 0; nType < 5; ++nType)
            pChart->StoreWndData(nType, nSide, nSide);
        pChart->StartWndBitmapThread();
    }
    QTRY_VERIFY(pChart->m_pThread->isFinished());
    pChart->StopWndBitmapThread();
    for (int nType = 0; nType < 5; ++nType)
        QCOMPARE(Bitmap(*pChart, nType).pImage->size(), QSize(120, 120));
}

void TestChromaGamutThread::StartingPaintsForThisChartWhateverTheThreadWasGiven()
{
    const auto pOther = MakeChart();
    for (CChromaticityDlgWnd* const pGiven : {pOther.get(), static_cast<CChromaticityDlgWnd*>(nullptr)}) {
        const auto pChart = MakeChart();
        pChart->StoreWndData(0, 100, 90);
        pChart->SetWndType(0);
        pChart->m_pThread->SetChromaticityDlgWnd(pGiven);
        pChart->StartWndBitmapThread();
        Painted(*pChart);
        QVERIFY(Bitmap(*pChart, 0).bReady);
    }
    QVERIFY(!Bitmap(*pOther, 0).bReady);
}

void TestChromaGamutThread::StoppingAtRestDoesNothing()
{
    const auto pChart = MakeChart();
    pChart->StopWndBitmapThread();
    pChart->StopWndBitmapThread();
    QVERIFY(!pChart->m_pThread->isRunning());
}

void TestChromaGamutThread::StoppingLeavesTheOldBitmap()
{
    const auto pChart = MakeChart();
    pChart->SetWndData(4, 100, 90);
    const QImage before = *Bitmap(*pChart, 4).pImage;
    for (int nType = 0; nType < 5; ++nType)
        pChart->StoreWndData(nType, c_sizeLarge.width(), c_sizeLarge.height());
    pChart->StartWndBitmapThread();
    pChart->StopWndBitmapThread();
    // The worker is hardly ever done with all five by now, and never shows a part.
    const QImage after = *Bitmap(*pChart, 4).pImage;
    QVERIFY(after == before || after.size() == c_sizeLarge);
    QVERIFY(!pChart->m_pThread->isRunning());
}

void TestChromaGamutThread::StoppingLetsTheNextStartPaint()
{
    const auto pChart = MakeChart();
    pChart->StoreWndData(0, 100, 90);
    pChart->StartWndBitmapThread();
    pChart->StopWndBitmapThread();
    pChart->StartWndBitmapThread();
    QTRY_VERIFY(Bitmap(*pChart, 0).bReady);
}

void TestChromaGamutThread::DrawWaitsForABitmapThatIsBeingPainted()
{
    const auto pChart = MakeChart();
    const auto pOther = MakeChart();
    for (int nType = 0; nType < 4; ++nType)
        pChart->StoreWndData(nType, c_sizeLarge.width(), c_sizeLarge.height());
    pChart->StoreWndData(4, 300, 300);
    pOther->SetWndData(4, 300, 300);
    pChart->SetWndType(4);
    pOther->SetWndType(4);
    pChart->StartWndBitmapThread();
    QVERIFY(Painted(*pChart) == Painted(*pOther));
    QVERIFY(Bitmap(*pChart, 4).bReady);
}

void TestChromaGamutThread::DrawShowsTheOldBitmapMeanwhile()
{
    const auto pChart = MakeChart();
    pChart->SetWndData(4, 300, 300);
    pChart->SetWndType(4);
    const QImage before = Painted(*pChart);
    pChart->StartWndBitmapThread();
    QVERIFY(Painted(*pChart) == before);
}

void TestChromaGamutThread::DrawWithoutAPainterShowsTheBackgroundAlone()
{
    const auto pChart = MakeChart();
    pChart->StoreWndData(2, 300, 300);
    pChart->SetWndType(2);
    const QImage image = Painted(*pChart);
    pChart->SetWndType(9);
    QVERIFY(Painted(*pChart) == image);
    QVERIFY(!Bitmap(*pChart, 2).bReady);
}

void TestChromaGamutThread::DrawOfAnUnknownTypeShowsTheBackgroundAlone()
{
    const auto pChart = MakeChart();
    pChart->SetBackgroundColor(QColor(10, 20, 30));
    pChart->SetWndType(5);
    // Just inside the locus, away from the grid.
    const QPointF ptGreen = pChart->Mapping().ToPixel(QPointF(0.25, 0.55));
    QCOMPARE(Painted(*pChart).pixelColor(ptGreen.toPoint()), QColor(10, 20, 30));
}

void TestChromaGamutThread::APaintingThatBeganEarlierDoesNotReplaceALaterOne()
{
    const auto pChart = MakeChart();
    pChart->StoreWndData(0, c_sizeLarge.width(), c_sizeLarge.height());
    pChart->StartWndBitmapThread();
    // Whether the worker is at the large bitmap by now or not: the one that was asked for last is shown.
    pChart->SetWndData(0, 60, 50);
    QTRY_VERIFY(pChart->m_pThread->isFinished());
    pChart->StopWndBitmapThread();
    QCOMPARE(Bitmap(*pChart, 0).pImage->size(), QSize(60, 50));
}

void TestChromaGamutThread::TheChartMayGoWhileTheWorkerPaints()
{
    for (int i = 0; i < 20; ++i) {
        const auto pChart = MakeChart();
        for (int nType = 0; nType < 5; ++nType)
            pChart->StoreWndData(nType, 600, 500);
        pChart->StartWndBitmapThread();
        if (i % 2 == 0)
            QCoreApplication::processEvents();
    }
}

void TestChromaGamutThread::StoppingStopsAWorkerOfTheHostsToo()
{
    const auto pChart = MakeChart();
    pChart->StoreWndData(0, 60, 50);
    for (int nType = 1; nType < 5; ++nType)
        pChart->StoreWndData(nType, c_sizeLarge.width(), c_sizeLarge.height());
    CChromaGamutThread worker(nullptr);
    worker.SetChromaticityDlgWnd(pChart.get());
    worker.start();
    while (!Bitmap(*pChart, 0).bReady)
        std::this_thread::yield();
    pChart->StopWndBitmapThread();
    // From here on nobody writes to the chart, so it may be read.
    std::array<bool, 5> arrReady = {};
    for (int nType = 0; nType < 5; ++nType)
        arrReady[size_t(nType)] = Bitmap(*pChart, nType).bReady;
    QVERIFY(worker.wait());
    for (int nType = 0; nType < 5; ++nType)
        QCOMPARE(Bitmap(*pChart, nType).bReady.load(), arrReady[size_t(nType)]);
}

void TestChromaGamutThread::AQueuedSlotMayForgetTheChart()
{
    auto pChart = MakeChart();
    CChromaGamutThread worker(nullptr);
    worker.SetChromaticityDlgWnd(pChart.get());
    QSemaphore forgotten;
    connect(
        &worker, &CChromaGamutThread::RunOver, this,
        [&] {
            worker.SetChromaticityDlgWnd(nullptr);
            forgotten.release();
        },
        Qt::QueuedConnection);
    // Connected later, so called later: the emission ends when the queued slot has run.
    connect(
        &worker, &CChromaGamutThread::RunOver, this, [&] { forgotten.acquire(); }, Qt::DirectConnection);
    worker.start();
    QTRY_VERIFY(worker.isFinished());
    pChart->StopWndBitmapThread();
    pChart.reset();
    QVERIFY(worker.wait());
}

void TestChromaGamutThread::ADirectSlotMayForgetTheChart()
{
    auto pChart = MakeChart();
    CChromaGamutThread* const pWorker = pChart->m_pThread;
    connect(
        pWorker, &CChromaGamutThread::RunOver, this, [&] { pWorker->SetChromaticityDlgWnd(nullptr); },
        Qt::DirectConnection);
    pChart->StoreWndData(4, 100, 90);
    pChart->StartWndBitmapThread();
    QTRY_VERIFY(pWorker->isFinished());
    pChart->StartWndBitmapThread();
    pChart->StopWndBitmapThread();
    QVERIFY(Bitmap(*pChart, 4).bReady);
}

void TestChromaGamutThread::ADirectSlotMayDeleteTheChart_data()
{
    QTest::addColumn<bool>("bOwnWorker");
    QTest::addColumn<bool>("bInItsThread");
    QTest::newRow("the chart's worker, run by the caller") << true << false;
    QTest::newRow("the chart's worker, in its thread") << true << true;
    QTest::newRow("the host's worker, run by the caller") << false << false;
    QTest::newRow("the host's worker, in its thread") << false << true;
}

void TestChromaGamutThread::ADirectSlotMayDeleteTheChart()
{
    QFETCH(bool, bOwnWorker);
    QFETCH(bool, bInItsThread);
    CChromaticityDlgWnd* pChart = MakeChart().release();
    CChromaGamutThread hostWorker(nullptr);
    hostWorker.SetChromaticityDlgWnd(pChart);
    const QPointer<CChromaGamutThread> pOwnWorker = pChart->m_pThread;
    CChromaGamutThread* const pWorker = bOwnWorker ? pOwnWorker.data() : &hostWorker;
    std::atomic<bool> bDeleted{false};
    connect(
        pWorker, &CChromaGamutThread::RunOver, this,
        [&] {
            delete pChart;
            bDeleted = true;
        },
        Qt::DirectConnection);
    if (bInItsThread)
        pWorker->start();
    else
        pWorker->run();
    while (!bDeleted)
        std::this_thread::yield();
    // A thread that its slot left without a chart goes by itself when it has ended.
    QTRY_VERIFY(pOwnWorker.isNull());
    QVERIFY(hostWorker.wait());
}

void TestChromaGamutThread::ASlotThatTheGuiRunsMayDeleteTheChart()
{
    auto pChart = MakeChart();
    CChromaGamutThread worker(nullptr);
    worker.SetChromaticityDlgWnd(pChart.get());
    // The worker waits in its signal while the chart goes.
    connect(
        &worker, &CChromaGamutThread::RunOver, this, [&pChart] { pChart.reset(); },
        Qt::BlockingQueuedConnection);
    worker.start();
    QTRY_VERIFY(pChart == nullptr);
    QVERIFY(worker.wait());
}

void TestChromaGamutThread::ADirectSlotMayStartTheWorkerAgain()
{
    const auto pChart = MakeChart();
    std::atomic<int> nEnds{0};
    connect(
        pChart->m_pThread, &CChromaGamutThread::RunOver, this,
        [&] {
            if (++nEnds > 1)
                return;
            pChart->StoreWndData(2, 70, 60);
            pChart->StartWndBitmapThread();
        },
        Qt::DirectConnection);
    pChart->StartWndBitmapThread();
    QTRY_COMPARE(nEnds.load(), 2);
    pChart->StopWndBitmapThread();
    QCOMPARE(Bitmap(*pChart, 2).pImage->size(), QSize(70, 60));
}

void TestChromaGamutThread::ADirectSlotMayStopTheWorker()
{
    const auto pChart = MakeChart();
    std::atomic<int> nEnds{0};
    connect(
        pChart->m_pThread, &CChromaGamutThread::RunOver, this,
        [&] {
            pChart->StopWndBitmapThread();
            ++nEnds;
        },
        Qt::DirectConnection);
    pChart->StartWndBitmapThread();
    QTRY_COMPARE(nEnds.load(), 1);
}

void TestChromaGamutThread::AWorkerMayBePointedFromChartToChart()
{
    CChromaGamutThread worker(nullptr);
    for (int i = 0; i < 30; ++i) {
        const auto pFirst = MakeChart();
        auto pSecond = MakeChart();
        for (int nType = 0; nType < 5; ++nType)
            pFirst->StoreWndData(nType, 300, 200);
        worker.SetChromaticityDlgWnd(pFirst.get());
        worker.start();
        if (i % 2 == 0) {
            while (!Bitmap(*pFirst, 0).bReady)
                std::this_thread::yield();
        }
        worker.SetChromaticityDlgWnd(pSecond.get());
        pFirst->StopWndBitmapThread();
        pSecond.reset();
        QVERIFY(worker.wait());
    }
}

void TestChromaGamutThread::AStartedThreadThatIsPointedElsewhereKeepsNobodyWaiting()
{
    for (int i = 0; i < 30; ++i) {
        const auto pOther = MakeChart();
        const auto pChart = MakeChart();
        pChart->StoreWndData(0, 100, 90);
        pChart->SetWndType(0);
        pChart->StartWndBitmapThread();
        pChart->m_pThread->SetChromaticityDlgWnd(i % 2 == 0 ? pOther.get() : nullptr);
        QCOMPARE(Painted(*pChart).size(), pChart->size());
        pChart->StopWndBitmapThread();
    }
}

void TestChromaGamutThread::AWorkerMayRunWhenItsChartIsGone()
{
    CChromaGamutThread worker(nullptr);
    worker.SetChromaticityDlgWnd(MakeChart().get());
    QSignalSpy spy(&worker, &CChromaGamutThread::RunOver);
    worker.run();
    QCOMPARE(spy.count(), 1);
}

void TestChromaGamutThread::AStormOfCallsLeavesEverythingWhole()
{
    constexpr int c_nCharts = 12;
    constexpr int c_nSteps = 60;
    std::mt19937 generator{2027};
    const auto Random = [&generator](int nFirst, int nLast) {
        return std::uniform_int_distribution<int>(nFirst, nLast)(generator);
    };
    for (int nChart = 0; nChart < c_nCharts; ++nChart) {
        const auto pChart = MakeChart();
        pChart->show();
        for (int nStep = 0; nStep < c_nSteps; ++nStep) {
            switch (Random(0, 9)) {
            case 0:
            case 1:
                pChart->StartWndBitmapThread();
                break;
            case 2:
                pChart->StopWndBitmapThread();
                break;
            case 3: {
                const QSize size(Random(101, 400), Random(101, 400));
                pChart->resize(size);
                pChart->SetSize(size.width(), size.height());
                break;
            }
            case 4:
                pChart->StoreWndData(Random(0, 4), Random(1, 500), Random(1, 500));
                break;
            case 5:
                pChart->SetWndData(Random(-1, 5), Random(1, 200), Random(1, 200));
                break;
            case 6:
                pChart->SetWndType(Random(-1, 5));
                break;
            case 7:
                QCoreApplication::processEvents();
                break;
            case 8:
                pChart->m_bAbortPaint = Random(0, 3) == 0;
                break;
            default:
                QCOMPARE(Painted(*pChart).size(), pChart->size());
            }
        }
        pChart->StopWndBitmapThread();
        for (int nType = 0; nType < 5; ++nType)
            QCOMPARE(Bitmap(*pChart, nType).bReady.load(), Bitmap(*pChart, nType).pImage != nullptr);
        // Every other chart goes while its worker is at work.
        if (nChart % 2 == 0)
            pChart->StartWndBitmapThread();
    }
}

QTEST_MAIN(TestChromaGamutThread)
#include "TestChromaGamutThread.moc"
