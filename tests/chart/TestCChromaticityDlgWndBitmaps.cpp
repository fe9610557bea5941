#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "SenderModuleDialog/chart/ChromaGamutThread.h"
#include "SenderModuleDialog/colour/ChromaGamutInterpolation.h"
#include "oracles/chart/PlainBitmap.h"
#include "tests/support/ExactCompare.h"

#include <QtTest>

#include <limits>
#include <memory>
#include <vector>

#include <sys/resource.h>

namespace {

using Point = CPointEx<float>;

std::vector<Point> Outline(const CChromaticityDlgWnd& chart)
{
    return {chart.m_pBoundaryPxF, chart.m_pBoundaryPxF + chart.m_pGamut->GetQPointFData().size()};
}

} // namespace

class TestCChromaticityDlgWndBitmaps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void WndDataIsStoredForItsTypesAlone();
    void SetWndDataPaintsAtOnce();
    void SetWndDataOfTheDefaultTypePaintsIt();
    void StoreWndDataPaintsNothing();
    void ARepeatedSetWndDataReplacesTheImage();
    void AnUnknownTypePaintsNothing();
    void ABitmapHasTheWidgetsOutlineInItsOwnBox();
    void AnAbortedBitmapIsReadyAndTransparent();
    void InitialWndBitMapDoesNothing();
    void StaticPixelsAreMapped();
    void StaticPixelsMayBeNone();
    void StaticPixelsRefuseNull();
    void StaticPixelsRefuseANegativeCount();
    void StaticPixelsRefuseWhatTheMemoryHasNoRoomFor();
    void StaticPixelsOfAnEarlierCallStayReadable();
};

void TestCChromaticityDlgWndBitmaps::WndDataIsStoredForItsTypesAlone()
{
    CChromaticityDlgWnd chart(nullptr);
    chart.SetSize(200, 200);
    for (int nType = 0; nType < 5; ++nType)
        chart.SetWndData(nType, 50 + nType, 60 + nType);
    for (int nType = 0; nType < 5; ++nType) {
        int nWidth = 0;
        int nHeight = 0;
        chart.GetWndData(nType, nWidth, nHeight);
        QCOMPARE(QSize(nWidth, nHeight), QSize(50 + nType, 60 + nType));
    }
    const SWndBitmap* const arrBitmaps[] = {&chart.m_wndBitmap0, &chart.m_wndBitmap1, &chart.m_wndBitmap2,
                                            &chart.m_wndBitmap3, &chart.m_wndBitmap4};
    for (int nType = 0; nType < 5; ++nType)
        QCOMPARE(arrBitmaps[nType]->nType, nType);
    for (const int nType : {-1, 5}) {
        int nWidth = 11;
        int nHeight = 22;
        chart.SetWndData(nType, 70, 70);
        chart.GetWndData(nType, nWidth, nHeight);
        QCOMPARE(QSize(nWidth, nHeight), QSize(11, 22));
    }
}

void TestCChromaticityDlgWndBitmaps::SetWndDataPaintsAtOnce()
{
    CChromaticityDlgWnd chart(nullptr);
    chart.SetSize(200, 200);
    chart.SetWndData(3, 120, 90);
    QVERIFY(chart.m_wndBitmap3.bReady);
    QCOMPARE(chart.m_wndBitmap3.pImage->size(), QSize(120, 90));
    QCOMPARE(chart.m_wndBitmap3.pImage->format(), QImage::Format_ARGB32);
    QVERIFY(!chart.m_wndBitmap0.bReady && chart.m_wndBitmap0.pImage == nullptr);
}

void TestCChromaticityDlgWndBitmaps::SetWndDataOfTheDefaultTypePaintsIt()
{
    CChromaticityDlgWnd chart(nullptr);
    chart.SetSize(220, 180);
    chart.SetWndData(-1, 50, 50);
    QCOMPARE(chart.m_pDefaultImage->size(), QSize(220, 180));
    QVERIFY(chart.m_bDefaultDirty);
}

void TestCChromaticityDlgWndBitmaps::StoreWndDataPaintsNothing()
{
    CChromaticityDlgWnd chart(nullptr);
    chart.SetSize(200, 200);
    chart.StoreWndData(1, 120, 90);
    QCOMPARE(chart.m_wndBitmap1.nType, 1);
    QCOMPARE(chart.m_wndBitmap1.nWidth, 120);
    QVERIFY(!chart.m_wndBitmap1.bReady && chart.m_wndBitmap1.pImage == nullptr);
    chart.StoreWndData(5, 1, 1);
}

void TestCChromaticityDlgWndBitmaps::ARepeatedSetWndDataReplacesTheImage()
{
    CChromaticityDlgWnd chart(nullptr);
    chart.SetSize(200, 200);
    chart.SetWndData(4, 120, 90);
    chart.SetWndData(4, 60, 50);
    QCOMPARE(chart.m_wndBitmap4.pImage->size(), QSize(60, 50));
    QVERIFY(chart.m_wndBitmap4.bReady);
}

void TestCChromaticityDlgWndBitmaps::AnUnknownTypePaintsNothing()
{
    CChromaticityDlgWnd chart(nullptr);
    chart.SetSize(200, 200);
    chart.SetWndData(2, 120, 90);
    const QImage* pImage = chart.m_wndBitmap2.pImage;
    for (const int nType : {7, 5, -2}) {
        chart.GetChromaticityBmp(nType);
        QCOMPARE(chart.m_pDefaultImage, nullptr);
        QVERIFY(chart.m_bDefaultDirty);
        QCOMPARE(chart.m_wndBitmap2.pImage, pImage);
        for (const SWndBitmap* pBitmap :
             {&chart.m_wndBitmap0, &chart.m_wndBitmap1, &chart.m_wndBitmap3, &chart.m_wndBitmap4})
            QVERIFY(!pBitmap->bReady && pBitmap->pImage == nullptr);
    }
}

void TestCChromaticityDlgWndBitmaps::ABitmapHasTheWidgetsOutlineInItsOwnBox()
{
    CChromaticityDlgWnd chart(nullptr);
    chart.SetSize(800, 600);
    chart.SetWndData(2, 400, 300);
    const QImage& image = *chart.m_wndBitmap2.pImage;
    QCOMPARE(image.size(), QSize(400, 300));
    QVERIFY(image == PlainBitmap::Paint(400, 300, chart.m_pGamut->GetQPointFData(), Outline(chart)));
    // The middle of the widget's shape lies below the box of the bitmap's, its top left part inside.
    QCOMPARE(qAlpha(image.pixel(200, 295)), 0);
    QCOMPARE(qAlpha(image.pixel(200, 250)), 255);
}

void TestCChromaticityDlgWndBitmaps::AnAbortedBitmapIsReadyAndTransparent()
{
    CChromaticityDlgWnd chart(nullptr);
    chart.SetSize(200, 200);
    chart.m_bAbortPaint = true;
    chart.SetWndData(0, 120, 90);
    QVERIFY(chart.m_wndBitmap0.bReady);
    QCOMPARE(chart.m_wndBitmap0.pImage->size(), QSize(120, 90));
    QCOMPARE(chart.m_wndBitmap0.pImage->pixel(60, 50), 0U);
}

void TestCChromaticityDlgWndBitmaps::InitialWndBitMapDoesNothing()
{
    CChromaticityDlgWnd chart(nullptr);
    chart.SetSize(200, 200);
    chart.StoreWndData(0, 120, 90);
    chart.InitialWndBitMap();
    QVERIFY(!chart.m_pThread->isRunning());
    QVERIFY(!chart.m_wndBitmap0.bReady && chart.m_pDefaultImage == nullptr);
}

void TestCChromaticityDlgWndBitmaps::StaticPixelsAreMapped()
{
    CChromaticityDlgWnd chart(nullptr);
    chart.SetSize(640, 480);
    QPointF arrPoints[] = {{0.3, 0.4}, {0.0, 0.0}};
    QVERIFY(chart.DrawStaticPiexl(arrPoints, 2, 1, 2, 3, 4));
    QVERIFY(chart.m_bHasStaticPixels);
    QCOMPARE(chart.m_nStaticPixelCount, 2);
    for (int i = 0; i < 2; ++i)
        COMPARE_BITS(chart.m_pStaticPixels[i], chart.Mapping().ToPixel(arrPoints[i]));
    for (int i = 0; i < 4; ++i)
        QCOMPARE(int(chart.m_nStaticColor[i]), i + 1);
}

void TestCChromaticityDlgWndBitmaps::StaticPixelsMayBeNone()
{
    CChromaticityDlgWnd chart(nullptr);
    QPointF pt;
    QVERIFY(chart.DrawStaticPiexl(&pt, 0, 1, 2, 3, 4));
    QVERIFY(chart.m_bHasStaticPixels && chart.m_pStaticPixels != nullptr);
    QCOMPARE(chart.m_nStaticPixelCount, 0);
}

void TestCChromaticityDlgWndBitmaps::StaticPixelsRefuseNull()
{
    CChromaticityDlgWnd chart(nullptr);
    QVERIFY(!chart.DrawStaticPiexl(nullptr, 3, 1, 2, 3, 4));
    QVERIFY(!chart.m_bHasStaticPixels && chart.m_pStaticPixels == nullptr);
    QCOMPARE(int(chart.m_nStaticColor[0]), 255);
}

void TestCChromaticityDlgWndBitmaps::StaticPixelsRefuseANegativeCount()
{
    CChromaticityDlgWnd chart(nullptr);
    QPointF pt;
    QVERIFY(!chart.DrawStaticPiexl(&pt, -1, 1, 2, 3, 4));
    QVERIFY(!chart.m_bHasStaticPixels);
}

namespace {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
/// A sanitizer reserves more addresses than any limit; it is run with a limit of
/// its own (`tests/CMakeLists.txt`).
class CMemoryLimit
{
public:
    CMemoryLimit() {} // NOLINT(modernize-use-equals-default): a limit is there to be named and not used
};
#else
/// Leaves the process 8 GB of addresses for as long as it lives.
class CMemoryLimit
{
public:
    CMemoryLimit()
    {
        getrlimit(RLIMIT_AS, &m_before);
        const rlimit small = {rlim_t(8) << 30U, m_before.rlim_max};
        setrlimit(RLIMIT_AS, &small);
    }
    ~CMemoryLimit() { setrlimit(RLIMIT_AS, &m_before); }
    CMemoryLimit(const CMemoryLimit&) = delete;
    CMemoryLimit& operator=(const CMemoryLimit&) = delete;

private:
    rlimit m_before = {};
};
#endif

} // namespace

void TestCChromaticityDlgWndBitmaps::StaticPixelsRefuseWhatTheMemoryHasNoRoomFor()
{
    CChromaticityDlgWnd chart(nullptr);
    chart.SetSize(200, 200);
    QPointF pt(0.3, 0.3);
    QVERIFY(chart.DrawStaticPiexl(&pt, 1, 1, 2, 3, 4));
    const QPointF* const pBefore = chart.m_pStaticPixels;
    {
        const CMemoryLimit limit;
        QVERIFY(!chart.DrawStaticPiexl(&pt, std::numeric_limits<int>::max(), 9, 9, 9, 9));
    }
    QCOMPARE(chart.m_pStaticPixels, pBefore);
    QCOMPARE(chart.m_nStaticPixelCount, 1);
    QCOMPARE(chart.m_nStaticColor[0], uchar(1));
}

void TestCChromaticityDlgWndBitmaps::StaticPixelsOfAnEarlierCallStayReadable()
{
    // Intentional: the earlier array is dropped, not freed. So this test frees it.
    CChromaticityDlgWnd chart(nullptr);
    chart.SetSize(200, 200);
    QPointF pt(0.3, 0.3);
    chart.DrawStaticPiexl(&pt, 1, 0, 0, 0, 0);
    const std::unique_ptr<QPointF[]> pEarlier(chart.m_pStaticPixels);
    chart.DrawStaticPiexl(&pt, 1, 0, 0, 0, 0);
    QVERIFY(chart.m_pStaticPixels != pEarlier.get());
    COMPARE_BITS(pEarlier[0], chart.Mapping().ToPixel(pt));
}

QTEST_MAIN(TestCChromaticityDlgWndBitmaps)
#include "TestCChromaticityDlgWndBitmaps.moc"
