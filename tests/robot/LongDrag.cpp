#include "tests/robot/LongDrag.h"

#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "SenderModuleDialog/chart/ChartGroupPoints.h"
#include "tests/chart/StandardGroups.h"
#include "tests/robot/MemoryTrend.h"
#include "tests/robot/ProcessorTime.h"
#include "tests/robot/RobotActions.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QtTest>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

constexpr int c_nSide = 800;          ///< of the chart, pixels
constexpr int c_nMovesInBatch = 1000; ///< moves whose time is taken together, with one point held
constexpr int c_nMovesToJudge = 100000;
constexpr int c_nBatchesCompared = 10; ///< at each end of the run
constexpr double c_dMostSlowdown = 1.2;
constexpr double c_dMostGrowth = 1.05;
constexpr int c_nPoints = 4;
constexpr int c_nLongestStep = 12; ///< of the mouse in one move, pixels

class CDraggedChart : public CChromaticityDlgWnd
{
public:
    CDraggedChart()
        : CChromaticityDlgWnd(nullptr)
    {
        resize(c_nSide, c_nSide);
        SetSize(c_nSide, c_nSide);
        connect(this, &CChromaticityDlgWnd::OnPositionChangeSignal, this, [this](int, int, bool& bSuccessed) {
            ++m_nFollowed;
            bSuccessed = true;
        });
    }

    QPoint PixelOf(int nPoint)
    {
        return Mapping().ToPixel(GroupPoint(*GetChromaGroupByIndex(0), nPoint)).toPoint();
    }
    void Send(QEvent::Type type, QPoint pos, Qt::MouseButton button)
    {
        const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, pos, mapToGlobal(pos), button, held, Qt::NoModifier);
        QCoreApplication::sendEvent(this, &event);
    }
    int Followed() const { return m_nFollowed; }

private:
    int m_nFollowed = 0; ///< moves that the chart has announced
};

/// Where the mouse goes next: a step from where it is, within the chart.
QPoint NextPosition(QPoint pos, CDice& dice)
{
    const auto Step = [&dice] { return dice.Below(2 * c_nLongestStep + 1) - c_nLongestStep; };
    return {std::clamp(pos.x() + Step(), 0, c_nSide - 1), std::clamp(pos.y() + Step(), 0, c_nSide - 1)};
}

/// Takes hold of one of the points, moves it, and lets it go.
/// @return microseconds of processor time
qint64 DragOnce(CDraggedChart& chart, CDice& dice, int nMoves)
{
    const qint64 nStart = ProcessorTime();
    QPoint pos = chart.PixelOf(dice.Below(c_nPoints));
    chart.Send(QEvent::MouseButtonPress, pos, Qt::LeftButton);
    for (int i = 0; i < nMoves; ++i) {
        pos = NextPosition(pos, dice);
        chart.Send(QEvent::MouseMove, pos, Qt::NoButton);
        QCoreApplication::processEvents();
    }
    chart.Send(QEvent::MouseButtonRelease, pos, Qt::LeftButton);
    return ProcessorTime() - nStart;
}

/// What one run is judged by.
struct SDragRun
{
    int nMoves = 0;
    int nFollowed = 0;
    std::vector<qint64> vecBatches; ///< microseconds of each whole batch
    CMemoryTrend allocated;
    CMemoryTrend resident;
};

SDragRun Drag(int nMoves, unsigned int nSeed)
{
    CDice dice(nSeed);
    CDraggedChart chart;
    SChromaGroupInfo group = SrgbGroup();
    group.bMoveRed = group.bMoveGreen = group.bMoveBlue = group.bMoveWhite = true;
    chart.AddChromaGroupByIndex(0, group);
    chart.show();
    SDragRun run;
    while (run.nMoves < nMoves) {
        const int nBatch = std::min(c_nMovesInBatch, nMoves - run.nMoves);
        run.vecBatches.push_back(DragOnce(chart, dice, nBatch));
        run.nMoves += nBatch;
        const double dDone = double(run.nMoves) / double(nMoves);
        run.allocated.Note(dDone, AllocatedBytes());
        run.resident.Note(dDone, ResidentBytes());
    }
    run.nFollowed = chart.Followed();
    return run;
}

/// The median of some batches, milliseconds.
double Median(std::vector<qint64> vecBatches)
{
    const auto itMiddle = vecBatches.begin() + std::ptrdiff_t(vecBatches.size() / 2);
    std::nth_element(vecBatches.begin(), itMiddle, vecBatches.end());
    return double(*itMiddle) / 1000.0;
}

/// How long a thousand moves take at the two ends of a run, milliseconds.
struct SBatchTimes
{
    double dFirst;
    double dLast;
};

SBatchTimes TimesAtTheEnds(const std::vector<qint64>& vecBatches)
{
    const auto nCompared = std::ptrdiff_t(std::min<std::size_t>(c_nBatchesCompared, vecBatches.size()));
    return {Median({vecBatches.begin(), vecBatches.begin() + nCompared}),
            Median({vecBatches.end() - nCompared, vecBatches.end()})};
}

/// Prints a rule that does not hold.
bool Require(bool bHolds, const char* szRule)
{
    if (!bHolds)
        std::fprintf(stderr, "sender-robot: drags: %s\n", szRule);
    return bHolds;
}

} // namespace

bool DragForLong(int nMoves, unsigned int nSeed)
{
    const SDragRun run = Drag(nMoves, nSeed);
    const SBatchTimes times = TimesAtTheEnds(run.vecBatches);
    std::printf(
        "%d moves, %d followed; a thousand took %.0f ms at first and %.0f ms at last; of the memory after "
        "the warm-up, %.3f is allocated and %.3f resident\n",
        run.nMoves, run.nFollowed, times.dFirst, times.dLast, run.allocated.Growth(), run.resident.Growth());
    bool bGood = Require(run.nFollowed == run.nMoves, "a point did not follow the mouse");
    if (nMoves >= c_nMovesToJudge) {
        bGood &= Require(times.dLast <= times.dFirst * c_dMostSlowdown, "the moves became slower");
        bGood &= Require(run.allocated.Growth() <= c_dMostGrowth, "the memory allocated grew");
        bGood &= Require(run.resident.Growth() <= c_dMostGrowth, "the resident memory grew");
    }
    return bGood;
}
