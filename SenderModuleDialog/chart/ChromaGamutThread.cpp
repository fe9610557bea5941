#include "SenderModuleDialog/chart/ChromaGamutThread.h"

#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"

CChromaGamutThread::CChromaGamutThread(QObject* parent)
    : QThread(parent)
{}

CChromaGamutThread::~CChromaGamutThread()
{
    SetChromaticityDlgWnd(nullptr);
}

void CChromaGamutThread::SetChromaticityDlgWnd(CChromaticityDlgWnd* pWnd)
{
    std::function<void()> funcWork = pWnd != nullptr ? pWnd->WorkOfWndBitmapThread() : nullptr;
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_funcWork.swap(funcWork);
}

void CChromaGamutThread::run()
{
    std::function<void()> funcWork;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        funcWork = m_funcWork;
    }
    if (funcWork)
        funcWork();
    // The last thing: a slot may point the thread elsewhere, delete the chart, and the thread with it.
    Q_EMIT RunOver();
}
