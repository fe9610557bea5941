#include "SenderModuleDialog/chart/ChromaGamutThread.h"

#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"

CChromaGamutThread::CChromaGamutThread(QObject* parent)
    : QThread(parent)
{}

CChromaGamutThread::~CChromaGamutThread() = default;

void CChromaGamutThread::SetChromaticityDlgWnd(CChromaticityDlgWnd* pWnd)
{
    m_pWnd = pWnd;
}

void CChromaGamutThread::run()
{
    if (m_pWnd != nullptr)
        m_pWnd->PaintWndBitmaps();
    Q_EMIT RunOver();
    if (m_pWnd != nullptr)
        m_pWnd->RestWndBitmapThread();
}
