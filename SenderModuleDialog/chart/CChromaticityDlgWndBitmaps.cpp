#include "SenderModuleDialog/chart/CChromaticityDlgWndPrivate.h"
#include "SenderModuleDialog/chart/ChromaGamutThread.h"
#include "SenderModuleDialog/chart/bitmap/ChartSharpBitmap.h"
#include "SenderModuleDialog/chart/bitmap/ChromaBitmapPainter.h"
#include "SenderModuleDialog/chart/bitmap/ChromaBitmapStore.h"
#include "SenderModuleDialog/colour/ChromaGamutInterpolation.h"

#include <QImage>

#include <algorithm>
#include <new>
#include <utility>

/// @file
/// The chart's background bitmaps: who paints them, where, and how they are handed over.

SWndBitmap* CChromaticityDlgWndPrivate::WndBitmap(int nType)
{
    SWndBitmap* const arrBitmaps[c_nWndBitmapCount] = {&m_chart.m_wndBitmap0, &m_chart.m_wndBitmap1,
                                                       &m_chart.m_wndBitmap2, &m_chart.m_wndBitmap3,
                                                       &m_chart.m_wndBitmap4};
    return nType >= 0 && nType < c_nWndBitmapCount ? arrBitmaps[nType] : nullptr;
}

void CChromaticityDlgWnd::SetWndType(int nType)
{
    m_nWndType = nType;
}

void CChromaticityDlgWnd::SetWndData(int nType, int nWidth, int nHeight)
{
    StoreWndData(nType, nWidth, nHeight);
    GetChromaticityBmp(nType);
}

void CChromaticityDlgWnd::StoreWndData(int nType, int nWidth, int nHeight)
{
    SWndBitmap* pBitmap = m_pPrivate->WndBitmap(nType);
    if (pBitmap == nullptr)
        return;
    const auto lock = m_pPrivate->m_pStore->Lock();
    pBitmap->nType = nType;
    pBitmap->nWidth = nWidth;
    pBitmap->nHeight = nHeight;
}

void CChromaticityDlgWnd::GetWndData(int nType, int& nWidth, int& nHeight)
{
    const SWndBitmap* pBitmap = m_pPrivate->WndBitmap(nType);
    if (pBitmap == nullptr)
        return;
    nWidth = pBitmap->nWidth;
    nHeight = pBitmap->nHeight;
}

void CChromaticityDlgWnd::InitialWndBitMap() {}

void CChromaticityDlgWnd::GetChromaticityBmp(int nType)
{
    if (nType == c_nDefaultWndType || m_pPrivate->WndBitmap(nType) != nullptr)
        m_pPrivate->m_pStore->Paint(nType);
}

std::shared_ptr<CChromaBitmapStore> CChromaticityDlgWndPrivate::MakeStore()
{
    return std::make_shared<CChromaBitmapStore>(
        CChromaBitmapStore::SOwner{[this](int nType) { return Measure(nType); },
                                   [this](int nType, QImage image) { ShowBitmap(nType, std::move(image)); },
                                   [this] { return m_chart.m_bAbortPaint.load(); }});
}

ChromaBitmap::SSource CChromaticityDlgWndPrivate::Measure(int nType)
{
    const SWndBitmap* pBitmap = WndBitmap(nType);
    ChromaBitmap::SSource source;
    source.nWidth = pBitmap != nullptr ? pBitmap->nWidth : m_chart.m_nWndWidth;
    source.nHeight = pBitmap != nullptr ? pBitmap->nHeight : m_chart.m_nWndHeight;
    source.vecLocus = m_chart.m_pGamut->GetQPointFData();
    source.vecOutline.assign(m_chart.m_pBoundaryPxF, m_chart.m_pBoundaryPxF + BoundaryCount());
    return source;
}

void CChromaticityDlgWndPrivate::ShowBitmap(int nType, QImage image)
{
    SWndBitmap* pBitmap = WndBitmap(nType);
    QImage*& pImage = pBitmap != nullptr ? pBitmap->pImage : m_chart.m_pDefaultImage;
    delete std::exchange(pImage, new QImage(std::move(image)));
    if (pBitmap != nullptr)
        pBitmap->bReady = true;
}

QImage CChromaticityDlgWndPrivate::TakeBitmap()
{
    if (m_chart.m_nWndType == c_nDefaultWndType && std::exchange(m_chart.m_bDefaultDirty, false))
        m_chart.GetChromaticityBmp(c_nDefaultWndType);
    const SWndBitmap* pBitmap = WndBitmap(m_chart.m_nWndType);
    if (pBitmap != nullptr)
        m_pStore->WaitForBitmap(m_chart.m_nWndType, pBitmap->bReady);
    else if (m_chart.m_nWndType != c_nDefaultWndType)
        return {};
    const auto lock = m_pStore->Lock();
    const QImage* pImage = pBitmap != nullptr ? pBitmap->pImage : m_chart.m_pDefaultImage;
    return pImage != nullptr ? *pImage : QImage();
}

QImage CChromaticityDlgWndPrivate::TakeBitmap(double dRatio)
{
    QImage imgBitmap = TakeBitmap();
    if (imgBitmap.isNull() || dRatio <= 1.0)
        return imgBitmap;
    if (m_sharp.nBitmapKey == imgBitmap.cacheKey() && m_sharp.dRatio == dRatio)
        return m_sharp.image;
    bool bAborted = false;
    QImage imgSharp = PaintSharp(dRatio, bAborted);
    // A picture that was cut short is shown, but the next paint begins anew.
    if (!bAborted)
        m_sharp = {imgBitmap.cacheKey(), dRatio, imgSharp};
    return imgSharp;
}

QImage CChromaticityDlgWndPrivate::PaintSharp(double dRatio, bool& bAborted)
{
    ChromaBitmap::SSource source;
    {
        const auto lock = m_pStore->Lock();
        source = m_pStore->Source(m_chart.m_nWndType).Scaled(dRatio);
    }
    QImage image = ChromaBitmap::Paint(source, [&] { return bAborted = bAborted || m_chart.m_bAbortPaint; });
    image.setDevicePixelRatio(dRatio);
    return image;
}

std::function<void()> CChromaticityDlgWnd::WorkOfWndBitmapThread() const
{
    // The work may outlive the chart, and does nothing then.
    return [pStore = std::weak_ptr<CChromaBitmapStore>(m_pPrivate->m_pStore)] {
        if (const std::shared_ptr<CChromaBitmapStore> pHeld = pStore.lock())
            pHeld->PaintForWorker();
    };
}

void CChromaticityDlgWndPrivate::ConnectWndBitmapThread()
{
    QObject::connect(m_chart.m_pThread, &CChromaGamutThread::RunOver, &m_chart,
                     [this] { FinishWndBitmapThread(); });
    // In the worker's thread, before it has ended: a run that worked for another chart, or for none, leaves
    // nobody waiting for it.
    QObject::connect(
        m_chart.m_pThread, &QThread::finished, &m_chart, [this] { m_pStore->WithdrawWorker(); },
        Qt::DirectConnection);
}

void CChromaticityDlgWnd::StartWndBitmapThread()
{
    // A slot of the worker's own signal would wait for itself to end.
    if (QThread::currentThread() != thread()) {
        QMetaObject::invokeMethod(this, &CChromaticityDlgWnd::StartWndBitmapThread, Qt::QueuedConnection);
        return;
    }
    StopWndBitmapThread();
    // A host may have given the thread another chart, or none.
    m_pThread->SetChromaticityDlgWnd(this);
    m_pPrivate->m_pStore->AnnounceWorker();
    m_pThread->start();
    // A thread that could not be made never says that it has finished.
    if (!m_pThread->isRunning() && !m_pThread->isFinished())
        m_pPrivate->m_pStore->WithdrawWorker();
}

void CChromaticityDlgWnd::StopWndBitmapThread()
{
    m_pPrivate->m_pStore->SetStopWorkers(true);
    m_pPrivate->JoinWndBitmapThread();
    m_pPrivate->m_pStore->WaitForWorkers();
    m_pPrivate->m_pStore->SetStopWorkers(false);
}

void CChromaticityDlgWndPrivate::JoinWndBitmapThread()
{
    if (QThread::currentThread() != m_chart.m_pThread)
        m_chart.m_pThread->wait();
}

void CChromaticityDlgWndPrivate::ReleaseWndBitmapThread()
{
    m_pStore->Close();
    JoinWndBitmapThread();
    // Its last touch of the store was under the lock, and so was before this.
    m_pStore->WaitForWorkers();
    if (QThread::currentThread() != m_chart.m_pThread)
        return;
    // A slot of the worker's own signal deletes the chart: the thread goes when it has ended.
    m_chart.m_pThread->setParent(nullptr);
    QObject::connect(m_chart.m_pThread, &QThread::finished, m_chart.m_pThread, &QObject::deleteLater);
}

void CChromaticityDlgWndPrivate::FinishWndBitmapThread()
{
    // The signal of a run that was stopped for another one arrives late: the other one sends its own.
    if (m_pStore->IsWorkerBusy())
        return;
    m_chart.m_pThread->quit();
    m_chart.m_pThread->wait();
    m_chart.update();
}

bool CChromaticityDlgWnd::DrawStaticPiexl(QPointF* pPoints, int nCount, unsigned char r, unsigned char g,
                                          unsigned char b, unsigned char a)
{
    if (pPoints == nullptr || nCount < 0)
        return false;
    auto* const pPixels = new (std::nothrow) QPointF[size_t(nCount)]();
    if (pPixels == nullptr)
        return false;
    const CChartMapping mapping = Mapping();
    std::transform(pPoints, pPoints + nCount, pPixels,
                   [&mapping](QPointF pt) { return mapping.ToPixel(pt); });
    // The earlier array is dropped and not freed: a host may still read from it.
    m_pStaticPixels = pPixels;
    m_nStaticPixelCount = nCount;
    m_nStaticColor[0] = r;
    m_nStaticColor[1] = g;
    m_nStaticColor[2] = b;
    m_nStaticColor[3] = a;
    m_bHasStaticPixels = true;
    return true;
}
