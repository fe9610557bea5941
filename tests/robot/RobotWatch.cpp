#include "tests/robot/RobotWatch.h"

#include "tests/robot/ProcessorTime.h"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <iterator>

#include <unistd.h>

namespace {

constexpr int c_nMostFailures = 100;

/// What a build with sanitizers may take more: a batch of addresses takes 0.3 s without and 10 s with them.
#ifdef __SANITIZE_ADDRESS__
constexpr qint64 c_nAllowance = 30;
#else
constexpr qint64 c_nAllowance = 1;
#endif

/// No action may take longer, milliseconds of processor time.
constexpr qint64 c_nLongestAction = 1000 * c_nAllowance;

/// Messages of Qt that say nothing about this program, each with its reason.
constexpr const char* c_arrHarmlessMessages[] = {
    // The offscreen platform has no window manager to ask.
    "This plugin does not support propagateSizeHints()",
    "This plugin does not support raise()",
    "This plugin does not support grabbing the ",
    "This plugin does not support setting window opacity",
    // It has no screen either from which Qt's colour dialog could pick a colour.
    "QImage::pixel: coordinate (0,0) out of range",
    // The machine may have no user session.
    "QStandardPaths: XDG_RUNTIME_DIR not set",
    "QStandardPaths: runtime directory",
    // Qt takes what was entered in a cell only after the key. Where a click comes before that, the cell has
    // taken it as the focus left, and Qt 6 tells that the editor is closed already; Qt 5 is silent.
    "QAbstractItemView::commitData called with an editor that does not belong to this view",
    "QAbstractItemView::closeEditor called with an editor that does not belong to this view",
    // Qt Test tells that a click met a widget that its own press has just hidden.
    "Mouse event occurs outside target window",
    "Mouse event \"MousePress\" not accepted by receiving widget",
    "Mouse event \"MouseRelease\" not accepted by receiving widget",
};

/// The longest time from one action to the next, seconds.
constexpr unsigned int c_nHangs = 60;

CRobotWatch* s_pWatch = nullptr;

/// Prints the raw text and ends at once: the process hangs somewhere.
void EndHanging(int nSignal)
{
    if (s_pWatch != nullptr)
        std::fprintf(stderr, "sender-robot: %s: nothing followed\n", qPrintable(s_pWatch->Action()));
    std::signal(nSignal, SIG_DFL);
    std::abort();
}

bool IsHarmless(const QString& strText)
{
    return std::any_of(std::begin(c_arrHarmlessMessages), std::end(c_arrHarmlessMessages),
                       [&strText](const char* szText) { return strText.contains(QLatin1String(szText)); });
}

void TakeMessage(QtMsgType type, const QMessageLogContext& /*context*/, const QString& strText)
{
    if (type == QtDebugMsg || type == QtInfoMsg || IsHarmless(strText))
        return;
    if (s_pWatch != nullptr)
        s_pWatch->Fail(QStringLiteral("Qt says: ") + strText);
    if (type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", qPrintable(strText));
}

/// Milliseconds of processor time that this thread has used.
qint64 Milliseconds()
{
    return ProcessorTime() / 1000;
}

} // namespace

CRobotWatch::CRobotWatch()
{
    s_pWatch = this;
    std::signal(SIGALRM, &EndHanging);
    qInstallMessageHandler(&TakeMessage);
}

CRobotWatch::~CRobotWatch()
{
    alarm(0);
    qInstallMessageHandler(nullptr);
    s_pWatch = nullptr;
}

void CRobotWatch::Fail(const QString& strWhat)
{
    const QString strFailure = m_strAction + QStringLiteral(": ") + strWhat;
    std::fprintf(stderr, "sender-robot: %s\n", qPrintable(strFailure));
    if (m_listFailures.size() < c_nMostFailures)
        m_listFailures.append(strFailure);
}

void CRobotWatch::SetAction(const QString& strAction)
{
    m_strAction = strAction;
    alarm(c_nHangs);
}

void CRobotWatch::NoteMemory(double dDone)
{
    m_allocated.Note(dDone, AllocatedBytes());
    m_resident.Note(dDone, ResidentBytes());
}

CRobotWatch::CTimedAction::CTimedAction(CRobotWatch& watch)
    : m_watch(watch)
    , m_strAction(watch.Action())
    , m_nStart(Milliseconds())
    , m_nOuterInner(watch.m_nInner)
{
    m_watch.m_nInner = 0;
}

CRobotWatch::CTimedAction::~CTimedAction()
{
    const qint64 nElapsed = Milliseconds() - m_nStart;
    const qint64 nOwn = nElapsed - m_watch.m_nInner;
    m_watch.m_nSlowest = std::max(m_watch.m_nSlowest, nOwn);
    if (nOwn > c_nLongestAction) {
        m_watch.SetAction(m_strAction);
        m_watch.Fail(QStringLiteral("it took %1 ms of processor time").arg(nOwn));
    }
    m_watch.m_nInner = m_nOuterInner + nElapsed;
}
