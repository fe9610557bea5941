#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "SenderModuleDialog/chart/ChartSharpBitmap.h"
#include "SenderModuleDialog/chart/ChromaBitmapDesk.h"
#include "SenderModuleDialog/chart/ChromaBitmapPainter.h"
#include "SenderModuleDialog/chart/ChromaGamutThread.h"
#include "SenderModuleDialog/colour/ChromaGamutInterpolation.h"

#include <QImage>

#include <algorithm>
#include <utility>

/// @file
/// The chart's background bitmaps: who paints them, where, and how they are handed over.

namespace {

/// The window type whose bitmap has the chart's own size.
constexpr int c_nDefaultWndType = -1;
/// Number of window types with a bitmap of their own, counted from 0.
constexpr int c_nWndBitmapCount = 5;

} // namespace

SWndBitmap* CChromaticityDlgWnd::WndBitmap(int nType)
{
    SWndBitmap* const arrBitmaps[c_nWndBitmapCount] = {&m_wndBitmap0, &m_wndBitmap1, &m_wndBitmap2,
                                                       &m_wndBitmap3, &m_wndBitmap4};
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
    SWndBitmap* pBitmap = WndBitmap(nType);
    if (pBitmap == nullptr)
        return;
    const auto lock = m_pDesk->Lock();
    pBitmap->nType = nType;
    pBitmap->nWidth = nWidth;
    pBitmap->nHeight = nHeight;
}

void CChromaticityDlgWnd::GetWndData(int nType, int& nWidth, int& nHeight)
{
    const SWndBitmap* pBitmap = WndBitmap(nType);
    if (pBitmap == nullptr)
        return;
    nWidth = pBitmap->nWidth;
    nHeight = pBitmap->nHeight;
}

void CChromaticityDlgWnd::InitialWndBitMap() {}

void CChromaticityDlgWnd::GetChromaticityBmp(int nType)
{
    if (nType == c_nDefaultWndType || WndBitmap(nType) != nullptr)
        PaintBitmap(nType, false);
}

void CChromaticityDlgWnd::PaintBitmap(int nType, bool bWorker)
{
    const CPaintingShift shift(*m_pDesk);
    ChromaBitmap::SSource source;
    const quint64 nTicket = TakeMeasures(nType, source);
    QImage image = ChromaBitmap::Paint(
        source, [this, bWorker] { return m_bAbortPaint || (bWorker && m_pDesk->IsWorkerToStop()); });
    // A worker that is stopped leaves the old bitmap; a host's abort shows what there is.
    if (!bWorker || !m_pDesk->IsWorkerToStop())
        HandOver(nType, std::move(image), std::move(source), nTicket);
}

quint64 CChromaticityDlgWnd::TakeMeasures(int nType, ChromaBitmap::SSource& source)
{
    const auto lock = m_pDesk->Lock();
    const SWndBitmap* pBitmap = WndBitmap(nType);
    source.nWidth = pBitmap != nullptr ? pBitmap->nWidth : m_nWndWidth;
    source.nHeight = pBitmap != nullptr ? pBitmap->nHeight : m_nWndHeight;
    source.vecLocus = m_pGamut->GetQPointFData();
    source.vecOutline.assign(m_pBoundaryPxF, m_pBoundaryPxF + BoundaryCount());
    return m_pDesk->TakeTicket();
}

void CChromaticityDlgWnd::HandOver(int nType, QImage image, ChromaBitmap::SSource source, quint64 nTicket)
{
    const auto lock = m_pDesk->Lock();
    if (!m_pDesk->Note(nType, std::move(source), nTicket))
        return;
    SWndBitmap* pBitmap = WndBitmap(nType);
    QImage*& pImage = pBitmap != nullptr ? pBitmap->pImage : m_pDefaultImage;
    delete std::exchange(pImage, new QImage(std::move(image)));
    if (pBitmap != nullptr)
        pBitmap->bReady = true;
}

QImage CChromaticityDlgWnd::TakeBitmap()
{
    if (m_nWndType == c_nDefaultWndType && std::exchange(m_bDefaultDirty, false))
        GetChromaticityBmp(c_nDefaultWndType);
    const SWndBitmap* pBitmap = WndBitmap(m_nWndType);
    if (pBitmap != nullptr)
        m_pDesk->WaitWhilePainting(pBitmap->bReady);
    else if (m_nWndType != c_nDefaultWndType)
        return {};
    const auto lock = m_pDesk->Lock();
    const QImage* pImage = pBitmap != nullptr ? pBitmap->pImage : m_pDefaultImage;
    return pImage != nullptr ? *pImage : QImage();
}

QImage CChromaticityDlgWnd::TakeBitmap(double dRatio)
{
    QImage imgBitmap = TakeBitmap();
    if (imgBitmap.isNull() || dRatio <= 1.0)
        return imgBitmap;
    if (m_pSharp->nBitmapKey != imgBitmap.cacheKey() || m_pSharp->dRatio != dRatio)
        *m_pSharp = {imgBitmap.cacheKey(), dRatio, PaintSharp(dRatio)};
    return m_pSharp->image;
}

QImage CChromaticityDlgWnd::PaintSharp(double dRatio)
{
    ChromaBitmap::SSource source;
    {
        const auto lock = m_pDesk->Lock();
        source = m_pDesk->Source(m_nWndType).Scaled(dRatio);
    }
    QImage image = ChromaBitmap::Paint(source, [this] { return m_bAbortPaint.load(); });
    image.setDevicePixelRatio(dRatio);
    return image;
}

void CChromaticityDlgWnd::StartWndBitmapThread()
{
    StopWndBitmapThread();
    // A thread that a host gave another chart, or none, would never take the announcement up.
    m_pThread->SetChromaticityDlgWnd(this);
    m_pDesk->AnnounceWorker();
    m_pThread->start();
    // Without a thread nobody would ever withdraw the announcement.
    if (!m_pThread->isRunning() && !m_pThread->isFinished())
        m_pDesk->RestWorker();
}

void CChromaticityDlgWnd::StopWndBitmapThread()
{
    m_pDesk->SetStopWorker(true);
    m_pDesk->WaitForWorker();
    m_pThread->wait();
    m_pDesk->SetStopWorker(false);
}

void CChromaticityDlgWnd::PaintWndBitmaps()
{
    m_pDesk->BeginWorker();
    for (int nType = 0; nType < c_nWndBitmapCount && !m_pDesk->IsWorkerToStop(); ++nType)
        PaintBitmap(nType, true);
    m_pDesk->EndWorker();
}

void CChromaticityDlgWnd::RestWndBitmapThread()
{
    m_pDesk->RestWorker();
}

void CChromaticityDlgWnd::FinishWndBitmapThread()
{
    // The news of a run that was stopped for another one comes late: the other one brings its own.
    if (m_pDesk->IsWorkerBusy())
        return;
    m_pThread->quit();
    m_pThread->wait();
    update();
}

bool CChromaticityDlgWnd::DrawStaticPiexl(QPointF* pPoints, int nCount, unsigned char r, unsigned char g,
                                          unsigned char b, unsigned char a)
{
    if (pPoints == nullptr || nCount < 0)
        return false;
    const CChartMapping mapping = Mapping();
    // The earlier array is dropped and not freed: a host may still read from it.
    m_pStaticPixels = new QPointF[size_t(nCount)]();
    std::transform(pPoints, pPoints + nCount, m_pStaticPixels,
                   [&mapping](QPointF pt) { return mapping.ToPixel(pt); });
    m_nStaticPixelCount = nCount;
    m_nStaticColor[0] = r;
    m_nStaticColor[1] = g;
    m_nStaticColor[2] = b;
    m_nStaticColor[3] = a;
    m_bHasStaticPixels = true;
    return true;
}
