#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "SenderModuleDialog/chart/ChromaGamutThread.h"

#include <QImage>
#include <QPainter>
#include <QtTest>

#include <array>
#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <memory>
#include <mutex>
#include <random>
#include <thread>

// Random sequences of what a host does with charts and workers: start, stop, point elsewhere, resize, draw,
// destroy. None may hang, and the thread sanitizer finds no race (`./test --endurance`).
//
// SENDER_SEQUENCES is how many are run, SENDER_SEQUENCE_SEED the seed of the first. Sequence n of a run has
// the seed of the first plus n, so that it can be run alone.

namespace {

constexpr int c_nUsualSequences = 40;
constexpr int c_nSteps = 40;
constexpr int c_nCharts = 2;
/// No sequence takes longer, not even under a sanitizer on a busy machine.
constexpr std::chrono::seconds c_longest(120);

int FromEnvironment(const char* szName, int nUsual)
{
    bool bNumber = false;
    const int nValue = qEnvironmentVariableIntValue(szName, &bNumber);
    return bNumber && nValue > 0 ? nValue : nUsual;
}

/// Ends the process, with the seed of the sequence, when a sequence takes too long.
class CWatchdog
{
public:
    CWatchdog() = default;
    ~CWatchdog()
    {
        Tell(true, 0);
        m_thread.join();
    }
    CWatchdog(const CWatchdog&) = delete;
    CWatchdog& operator=(const CWatchdog&) = delete;

    void Begin(unsigned nSeed) { Tell(false, nSeed); }

private:
    void Tell(bool bEnd, unsigned nSeed)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_bEnd = bEnd;
        m_nSeed = nSeed;
        m_bTold = true;
        m_condition.notify_one();
    }

    void Watch()
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        while (!m_bEnd) {
            if (m_condition.wait_for(lock, c_longest, [this] { return m_bTold; })) {
                m_bTold = false;
                continue;
            }
            std::fprintf(stderr, "The sequence with SENDER_SEQUENCE_SEED=%u hangs.\n", m_nSeed);
            std::abort();
        }
    }

    std::mutex m_mutex;
    std::condition_variable m_condition;
    bool m_bEnd = false;
    bool m_bTold = false;
    unsigned m_nSeed = 0;
    std::thread m_thread{[this] { Watch(); }};
};

/// Two charts, a worker of the host's beside theirs, and what happens to them.
class CSequence
{
public:
    explicit CSequence(unsigned nSeed)
        : m_generator(nSeed)
    {
        for (auto& pChart : m_arrCharts)
            Make(pChart);
        QObject::connect(
            &m_worker, &CChromaGamutThread::RunOver, &m_worker, [this] { OnRunOver(); },
            Qt::DirectConnection);
    }
    ~CSequence()
    {
        SetAnswer(c_nNoAnswer);
        // The charts go first, while the worker paints, or the worker does.
        if (Random(0, 1) == 0)
            m_worker.wait();
        for (auto& pChart : m_arrCharts)
            pChart.reset();
        m_worker.wait();
        // The sanitizer does not see Qt's wait, but it sees that this comes after the slot.
        SetAnswer(c_nNoAnswer);
    }
    CSequence(const CSequence&) = delete;
    CSequence& operator=(const CSequence&) = delete;

    void Step()
    {
        using FuncStep = void (CSequence::*)();
        static constexpr FuncStep c_arrSteps[] = {
            &CSequence::Start,           &CSequence::Start,        &CSequence::Stop,
            &CSequence::StartHostWorker, &CSequence::PointWorker,  &CSequence::PointOwn,
            &CSequence::Resize,          &CSequence::StoreSize,    &CSequence::PaintType,
            &CSequence::ChooseType,      &CSequence::Draw,         &CSequence::Draw,
            &CSequence::SetAbort,        &CSequence::RunEventLoop, &CSequence::Replace,
            &CSequence::RunHere};
        (this->*c_arrSteps[Random(0, int(std::size(c_arrSteps)) - 1)])();
    }

private:
    using CChart = std::unique_ptr<CChromaticityDlgWnd>;

    int Random(int nFirst, int nLast)
    {
        return std::uniform_int_distribution<int>(nFirst, nLast)(m_generator);
    }
    CChart& AnyChart() { return m_arrCharts[std::size_t(Random(0, c_nCharts - 1))]; }
    /// A chart of this sequence, or none.
    CChromaticityDlgWnd* AnyOrNone() { return Random(0, 2) == 0 ? nullptr : AnyChart().get(); }

    void Make(CChart& pChart)
    {
        pChart = std::make_unique<CChromaticityDlgWnd>(nullptr);
        pChart->resize(150, 140);
        pChart->SetSize(150, 140);
        for (int nType = 0; nType < c_nWndBitmapCount; ++nType)
            pChart->StoreWndData(nType, Random(1, 160), Random(1, 160));
    }

    void Start() { AnyChart()->StartWndBitmapThread(); }
    void Stop() { AnyChart()->StopWndBitmapThread(); }
    void StartHostWorker()
    {
        SetAnswer(Random(0, 3));
        m_worker.start();
    }
    void PointWorker() { m_worker.SetChromaticityDlgWnd(AnyOrNone()); }
    void PointOwn()
    {
        CChromaGamutThread& thread = *AnyChart()->m_pThread;
        thread.SetChromaticityDlgWnd(AnyOrNone());
    }
    void Resize()
    {
        const QSize size(Random(101, 200), Random(101, 200));
        CChromaticityDlgWnd& chart = *AnyChart();
        chart.resize(size);
        chart.SetSize(size.width(), size.height());
    }
    void StoreSize() { AnyChart()->StoreWndData(Random(0, 4), Random(1, 300), Random(1, 300)); }
    void PaintType() { AnyChart()->SetWndData(Random(-1, 5), Random(1, 160), Random(1, 160)); }
    void ChooseType() { AnyChart()->SetWndType(Random(-1, 5)); }
    void Draw()
    {
        CChromaticityDlgWnd& chart = *AnyChart();
        QImage image(chart.size(), QImage::Format_RGB32);
        image.fill(Qt::black);
        QPainter painter(&image);
        chart.Draw(painter);
    }
    void SetAbort() { AnyChart()->m_bAbortPaint = Random(0, 3) == 0; }
    void RunEventLoop() { QCoreApplication::processEvents(); }
    void Replace()
    {
        CChart& pChart = AnyChart();
        pChart.reset();
        Make(pChart);
    }
    void RunHere() { AnyChart()->m_pThread->run(); }

    void SetAnswer(int nAnswer)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_nAnswer = nAnswer;
    }

    /// What the host's slot does in the worker's thread.
    void OnRunOver()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (m_nAnswer == 0)
            m_worker.SetChromaticityDlgWnd(nullptr);
        else if (m_nAnswer == 1)
            m_worker.start();
    }

    static constexpr int c_nNoAnswer = -1;

    std::mt19937 m_generator;
    std::array<CChart, c_nCharts> m_arrCharts;
    CChromaGamutThread m_worker{nullptr};
    std::mutex m_mutex;
    int m_nAnswer = c_nNoAnswer;
};

} // namespace

class TestChartWorkerSequences : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void NoSequenceOfCallsHangs();
};

void TestChartWorkerSequences::NoSequenceOfCallsHangs()
{
    const int nCount = FromEnvironment("SENDER_SEQUENCES", c_nUsualSequences);
    const auto nFirst = unsigned(FromEnvironment("SENDER_SEQUENCE_SEED", 2027));
    qInfo("%d sequences from SENDER_SEQUENCE_SEED=%u on", nCount, nFirst);
    CWatchdog watchdog;
    for (int n = 0; n < nCount; ++n) {
        const unsigned nSeed = nFirst + unsigned(n);
        watchdog.Begin(nSeed);
        CSequence sequence(nSeed);
        for (int nStep = 0; nStep < c_nSteps; ++nStep)
            sequence.Step();
    }
}

QTEST_MAIN(TestChartWorkerSequences)
#include "TestChartWorkerSequences.moc"
