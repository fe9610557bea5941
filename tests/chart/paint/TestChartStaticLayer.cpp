#include "tests/chart/FrameTesting.h"

#include <QtTest>

#include <limits>

using namespace FrameTesting;

/// Frames that copy what earlier ones made.
class TestChartStaticLayer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ADragIsPaintedAsPlainly();
    void AMovingMouseIsPaintedAsPlainly_data();
    void AMovingMouseIsPaintedAsPlainly();
    void ACrossAtTheEdgesIsThePlainOne_data();
    void ACrossAtTheEdgesIsThePlainOne();
    void DotsBeyondTheChartAreThePlainOnes();
    void PointsBeyondAllPixelsAreThePlainOnes_data();
    void PointsBeyondAllPixelsAreThePlainOnes();
    void APartOfAWidgetIsThePlainOne();
    void ADotThatWasPaintedInPartIsThePlainOne();
    void AFrameElsewhereOnTheImageIsThePlainOne();
    void LayersBetweenFramesAreThePlainOnes();
};

void TestChartStaticLayer::ADragIsPaintedAsPlainly()
{
    // The dots of a held group shrink from paint to paint, so each side paints each frame once.
    const auto pChart = MakeChart();
    CPlainOverlays overlays(*pChart);
    for (int i = 0; i < 10; ++i) {
        QImage actual = Canvas(QImage::Format_RGB32);
        QImage expected = actual;
        QPainter painter(&expected);
        PlainFrame::Draw(*pChart, overlays, painter);
        painter.end();
        painter.begin(&actual);
        pChart->Draw(painter);
        painter.end();
        QVERIFY(actual == expected);
        pChart->m_bPressed = true;
        pChart->m_bDragging = true;
        pChart->m_nHoverGroup = enOutputColorSpace;
        pChart->m_nHoverPoint = enRedPoint;
        pChart->GetChromaGroupByIndex(enOutputColorSpace)->ptRed.x -= 0.01F;
    }
}

void TestChartStaticLayer::AMovingMouseIsPaintedAsPlainly_data()
{
    QTest::addColumn<QImage::Format>("format");
    QTest::newRow("RGB32") << QImage::Format_RGB32;
    QTest::newRow("ARGB32") << QImage::Format_ARGB32;
    QTest::newRow("ARGB32 premultiplied") << QImage::Format_ARGB32_Premultiplied;
}

void TestChartStaticLayer::AMovingMouseIsPaintedAsPlainly()
{
    // The cross passes over dots, labels and the curve, and stays away for long enough that they are copied.
    QFETCH(QImage::Format, format);
    const auto pChart = MakeChart();
    for (int i = 0; i < 300; ++i) {
        pChart->m_ptMouse = QPoint(60 + i % 150, 60 + (7 * i) % 230);
        const QImage canvas = Canvas(format);
        const QImage expected = Painted(*pChart, DrawPlain, canvas, [](QPainter&) {});
        const QImage actual = Painted(*pChart, DrawFast, canvas, [](QPainter&) {});
        QVERIFY2(actual == expected, qPrintable(QString::number(i)));
    }
}

void TestChartStaticLayer::ACrossAtTheEdgesIsThePlainOne_data()
{
    AMovingMouseIsPaintedAsPlainly_data();
}

void TestChartStaticLayer::ACrossAtTheEdgesIsThePlainOne()
{
    // The mouse is inside; the cross stands at the point that can be dragged, wherever the host has put that.
    QFETCH(QImage::Format, format);
    const auto pChart = MakeChart();
    pChart->m_nHoverGroup = enOutputColorSpace;
    pChart->m_nHoverPoint = enRedPoint;
    pChart->m_bCanDrag = true;
    const CChartMapping mapping = pChart->Mapping();
    const QSize sizeCanvas = Canvas(format).size();
    for (int i = 0; i < 12; ++i) {
        const int nX = i < 6 ? i - 3 : sizeCanvas.width() + 8 - i;
        const int nY = i < 6 ? i - 3 : sizeCanvas.height() + 8 - i;
        for (const QPoint pt : {QPoint(nX, 100), QPoint(100, nY), QPoint(nX, nY)}) {
            const QPointF ptChromaticity = mapping.ToChromaticity(pt);
            pChart->GetChromaGroupByIndex(enOutputColorSpace)->ptRed = {float(ptChromaticity.x()),
                                                                        float(ptChromaticity.y())};
            QVERIFY(IsPlain(*pChart, Canvas(format)));
        }
    }
}

void TestChartStaticLayer::DotsBeyondTheChartAreThePlainOnes()
{
    const auto pChart = MakeChart();
    for (const QImage::Format format : {QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied}) {
        QImage canvas = Canvas(format);
        canvas.fill(QColor(10, 20, 30, 40));
        for (const QPoint pt : {QPoint(0, 100), QPoint(100, 1), QPoint(c_sizeChart.width() - 2, 150),
                                QPoint(200, c_sizeChart.height() + 3)}) {
            const QPointF ptChromaticity = pChart->Mapping().ToChromaticity(pt);
            pChart->GetChromaGroupByIndex(enScreenColorSpace)->ptWhite = {float(ptChromaticity.x()),
                                                                          float(ptChromaticity.y())};
            QVERIFY(IsPlain(*pChart, canvas));
            QVERIFY(IsPlain(*pChart, canvas, [](QPainter& painter) { painter.translate(9, 5); }));
        }
    }
}

void TestChartStaticLayer::PointsBeyondAllPixelsAreThePlainOnes_data()
{
    QTest::addColumn<float>("coordinate");
    QTest::newRow("far") << 1e4F;
    QTest::newRow("beyond every pixel") << 1e9F;
    QTest::newRow("beyond every pixel, negative") << -1e30F;
    QTest::newRow("infinite") << std::numeric_limits<float>::infinity();
}

void TestChartStaticLayer::PointsBeyondAllPixelsAreThePlainOnes()
{
    QFETCH(float, coordinate);
    const auto pChart = MakeChart();
    SChromaGroupInfo& group = *pChart->GetChromaGroupByIndex(enScreenColorSpace);
    group.ptWhite = {coordinate, coordinate};
    QVERIFY(IsPlain(*pChart, Canvas(QImage::Format_RGB32)));
    QVERIFY(
        IsPlain(*pChart, Canvas(QImage::Format_RGB32), [](QPainter& painter) { painter.translate(9, 5); }));
}

void TestChartStaticLayer::APartOfAWidgetIsThePlainOne()
{
    const auto pChart = MakeChart();
    CPlainChartWidget plain(*pChart, nullptr);
    const QRect rcDot = QRect(QPoint(), QSize(9, 9));
    const QPoint ptDot = pChart->Mapping().ToPixel(QPointF(0.3127, 0.329)).toPoint();
    const QRegion region =
        QRegion(rcDot.translated(ptDot)) + QRegion(20, 20, 60, 70) + QRegion(250, 30, 90, 60);
    for (const QRegion& regionPart : {QRegion(rcDot.translated(ptDot)), region, QRegion()}) {
        QImage actual = Canvas(QImage::Format_ARGB32_Premultiplied);
        QImage expected = actual;
        pChart->render(&actual, QPoint(), regionPart);
        plain.render(&expected, QPoint(), regionPart);
        QVERIFY(actual == expected);
    }
}

void TestChartStaticLayer::ADotThatWasPaintedInPartIsThePlainOne()
{
    const auto pChart = MakeChart();
    CPlainChartWidget plain(*pChart, nullptr);
    SChromaGroupInfo& group = *pChart->GetChromaGroupByIndex(enScreenColorSpace);
    const QPoint ptDot = pChart->Mapping().ToPixel(group.ptWhite).toPoint();
    QImage image = Canvas(QImage::Format_RGB32);
    pChart->m_ptMouse = QPoint();
    group.bShowWhiteDot = false;
    pChart->render(&image);
    group.bShowWhiteDot = true;
    pChart->render(&image, ptDot, QRegion(QRect(ptDot, QSize(30, 30))));
    QImage expected = Canvas(QImage::Format_RGB32);
    QImage actual = expected;
    plain.render(&expected);
    pChart->render(&actual);
    QVERIFY(actual == expected);
}

void TestChartStaticLayer::AFrameElsewhereOnTheImageIsThePlainOne()
{
    // Without a grid the legend stands on the plain background, which is the same a few pixels on.
    const auto pChart = MakeChart();
    pChart->SetGridLineAlpha(0);
    for (int i = 0; i < 5; ++i)
        QVERIFY(IsPlain(*pChart, Canvas(QImage::Format_RGB32),
                        [i](QPainter& painter) { painter.translate(i % 3, 2 * i); }));
}

void TestChartStaticLayer::LayersBetweenFramesAreThePlainOnes()
{
    const auto pChart = MakeChart();
    QVERIFY(IsPlain(*pChart, Canvas(QImage::Format_RGB32)));
    CPlainOverlays overlays(*pChart);
    const auto DrawLayers = [](auto& layers) {
        QImage image = Canvas(QImage::Format_RGB32);
        QPainter painter(&image);
        layers.DrawCrossLine(painter);
        layers.DrawCCTLine(painter);
        layers.DrawChromTriangle(painter);
        layers.DrawChromNote(painter);
        return image;
    };
    const QImage expected = DrawLayers(overlays);
    QVERIFY(DrawLayers(*pChart) == expected);
    QVERIFY(DrawLayers(*pChart) == expected);
    QVERIFY(IsPlain(*pChart, Canvas(QImage::Format_RGB32)));
}

QTEST_MAIN(TestChartStaticLayer)
#include "TestChartStaticLayer.moc"
