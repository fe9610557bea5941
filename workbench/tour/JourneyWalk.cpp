#include "workbench/tour/JourneyWalk.h"

#include "workbench/MainWindow.h"

#include <QApplication>
#include <QTimer>

namespace {

constexpr int c_nPause = 10;       ///< ms between two looks whether the next widget takes input
constexpr int c_nPatience = 20000; ///< ms; writing a mode takes one second

/// Whether a widget takes input. A window that the program has closed leaves none active where no window
/// manager activates the next.
bool TakesInput(QWidget* pWidget)
{
    if (pWidget == nullptr || !pWidget->isVisible() || !pWidget->isEnabled())
        return false;
    QWidget* pWindow = pWidget->window();
    if (pWindow != Find::InputWindow())
        return false;
    const bool bPopup = pWindow == QApplication::activePopupWidget();
    if (!bPopup && QApplication::activeWindow() != pWindow) {
        pWindow->activateWindow();
        return false;
    }
    return true;
}

} // namespace

CJourneyWalk::CJourneyWalk(CMainWindow& window, enHand hand, const QString& strFile)
    : m_window(window)
    , m_pHand(CHand::Create(hand))
    , m_strFile(strFile)
{}

CJourneyWalk::~CJourneyWalk() = default;

QString CJourneyWalk::Walk(const SJourney& journey, const std::function<void(int nStep)>& funcDone)
{
    journey.pPrepare();
    NoteSteps(journey, funcDone);
    Schedule();
    m_loop.exec();
    return m_strProblem;
}

void CJourneyWalk::NoteSteps(const SJourney& journey, const std::function<void(int nStep)>& funcDone)
{
    int nStep = 0;
    for (const SJourneyStep& step : journey.vecSteps) {
        ++nStep;
        const QString strWhere = QString::fromUtf8(step.szName);
        step.pDo(*m_pHand, m_window, m_strFile);
        for (const STouch& touch : m_pHand->TakeTouches())
            m_queueTasks.push_back({strWhere, touch});
        // A step has ended when the window takes input again.
        const auto funcEnd = [funcDone, nStep](QWidget*) {
            funcDone(nStep);
            return true;
        };
        m_queueTasks.push_back(
            {strWhere, {QStringLiteral("its end"), [this] { return &m_window; }, funcEnd}});
    }
}

void CJourneyWalk::Schedule()
{
    m_waiting.start();
    QTimer::singleShot(c_nPause, this, &CJourneyWalk::Continue);
}

void CJourneyWalk::Continue()
{
    if (m_queueTasks.empty() || !m_strProblem.isEmpty()) {
        CloseAll();
        return;
    }
    const STask task = m_queueTasks.front();
    if (TakesInput(task.touch.funcFind())) {
        m_queueTasks.pop_front();
        // Before the touch: what it opens may not return until the following touches have closed it.
        Schedule();
        Do(task);
        return;
    }
    if (m_waiting.hasExpired(c_nPatience))
        m_strProblem = QStringLiteral("%1: %2 does not take input").arg(task.strWhere, task.touch.strWhat);
    QTimer::singleShot(c_nPause, this, &CJourneyWalk::Continue);
}

void CJourneyWalk::Do(const STask& task)
{
    if (!task.touch.funcDo(task.touch.funcFind()) && m_strProblem.isEmpty())
        m_strProblem = QStringLiteral("%1: %2 was not reached").arg(task.strWhere, task.touch.strWhat);
}

/// Dialogs inside one another close one after the other, from the innermost.
void CJourneyWalk::CloseAll()
{
    QWidget* pOpen = QApplication::activePopupWidget() != nullptr ? QApplication::activePopupWidget()
                                                                  : QApplication::activeModalWidget();
    if (pOpen == nullptr) {
        m_loop.quit();
        return;
    }
    pOpen->close();
    QTimer::singleShot(c_nPause, this, &CJourneyWalk::CloseAll);
}
