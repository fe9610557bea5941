#include "workbench/output/CanvasLayout.h"

#include <QtTest>

Q_DECLARE_METATYPE(enPictureFit)

class TestCanvasLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void FitCanvas_data();
    void FitCanvas();
    void ACanvasKeepsItsShapeAndStaysInTheArea();
    void PlacePicture_data();
    void PlacePicture();
    void NothingIsPlacedOnNoCanvas();
};

void TestCanvasLayout::FitCanvas_data()
{
    QTest::addColumn<QSize>("canvas");
    QTest::addColumn<QRect>("area");
    QTest::addColumn<QRect>("expected");
    QTest::addColumn<double>("scale");
    QTest::newRow("as large as the area")
        << QSize(400, 300) << QRect(0, 0, 400, 300) << QRect(0, 0, 400, 300) << 1.0;
    QTest::newRow("wide: the width decides")
        << QSize(3840, 1080) << QRect(0, 0, 384, 300) << QRect(0, 96, 384, 108) << 0.1;
    QTest::newRow("high: the height decides")
        << QSize(1080, 3840) << QRect(0, 0, 300, 384) << QRect(96, 0, 108, 384) << 0.1;
    QTest::newRow("small: enlarged") << QSize(64, 64) << QRect(0, 0, 640, 640) << QRect(0, 0, 640, 640)
                                     << 10.0;
    QTest::newRow("the area's place counts")
        << QSize(100, 100) << QRect(10, 20, 50, 50) << QRect(10, 20, 50, 50) << 0.5;
    QTest::newRow("largest canvas, narrow: one pixel at least")
        << QSize(32768, 64) << QRect(0, 0, 256, 101) << QRect(0, 50, 256, 1) << 0.0078125;
    QTest::newRow("no width") << QSize(0, 600) << QRect(0, 0, 100, 100) << QRect() << 0.0;
    QTest::newRow("no height") << QSize(600, 0) << QRect(0, 0, 100, 100) << QRect() << 0.0;
    QTest::newRow("unset canvas") << QSize() << QRect(0, 0, 100, 100) << QRect() << 0.0;
    QTest::newRow("no room") << QSize(600, 400) << QRect(0, 0, 100, -5) << QRect() << 0.0;
}

void TestCanvasLayout::FitCanvas()
{
    QFETCH(QSize, canvas);
    QFETCH(QRect, area);
    QFETCH(double, scale);
    const SCanvasLayout layout = CanvasLayout::FitCanvas(canvas, area);
    QTEST(layout.rectCanvas, "expected");
    QCOMPARE(layout.dScale, scale);
}

void TestCanvasLayout::ACanvasKeepsItsShapeAndStaysInTheArea()
{
    const QRect rectArea(7, 11, 503, 397);
    for (int nWidth = 64; nWidth <= 32768; nWidth = nWidth * 5 / 3) {
        for (int nHeight = 64; nHeight <= 16384; nHeight = nHeight * 7 / 4) {
            const SCanvasLayout layout = CanvasLayout::FitCanvas({nWidth, nHeight}, rectArea);
            QVERIFY(rectArea.contains(layout.rectCanvas));
            QVERIFY(qAbs(layout.rectCanvas.width() - nWidth * layout.dScale) <= 1);
            QVERIFY(qAbs(layout.rectCanvas.height() - nHeight * layout.dScale) <= 1);
            QVERIFY(layout.rectCanvas.width() == rectArea.width() ||
                    layout.rectCanvas.height() == rectArea.height());
        }
    }
}

void TestCanvasLayout::PlacePicture_data()
{
    QTest::addColumn<QSize>("picture");
    QTest::addColumn<enPictureFit>("fit");
    QTest::addColumn<QRect>("source");
    QTest::addColumn<QRect>("target");
    QTest::newRow("1:1, smaller: top left, at the canvas' scale")
        << QSize(960, 540) << enPictureFit::enOneToOne << QRect(0, 0, 960, 540) << QRect(10, 20, 96, 54);
    QTest::newRow("1:1, larger: cut off at the canvas") << QSize(5000, 4000) << enPictureFit::enOneToOne
                                                        << QRect(0, 0, 1920, 1080) << QRect(10, 20, 192, 108);
    QTest::newRow("1:1, wider and lower: cut off on one side")
        << QSize(5000, 100) << enPictureFit::enOneToOne << QRect(0, 0, 1920, 100) << QRect(10, 20, 192, 10);
    QTest::newRow("1:1, one pixel: still seen")
        << QSize(1, 1) << enPictureFit::enOneToOne << QRect(0, 0, 1, 1) << QRect(10, 20, 1, 1);
    QTest::newRow("stretched, smaller: fills the canvas")
        << QSize(10, 10) << enPictureFit::enStretched << QRect(0, 0, 10, 10) << QRect(10, 20, 192, 108);
    QTest::newRow("stretched, larger: all of it on the canvas")
        << QSize(5000, 100) << enPictureFit::enStretched << QRect(0, 0, 5000, 100) << QRect(10, 20, 192, 108);
    QTest::newRow("no picture") << QSize() << enPictureFit::enStretched << QRect() << QRect();
}

void TestCanvasLayout::PlacePicture()
{
    QFETCH(QSize, picture);
    QFETCH(enPictureFit, fit);
    const QSize sizeCanvas(1920, 1080);
    const SCanvasLayout layout = CanvasLayout::FitCanvas(sizeCanvas, {10, 20, 192, 108});
    const SPictureLayout place = CanvasLayout::PlacePicture(layout, sizeCanvas, picture, fit);
    QTEST(place.rectSource, "source");
    QTEST(place.rectTarget, "target");
}

void TestCanvasLayout::NothingIsPlacedOnNoCanvas()
{
    const SPictureLayout place =
        CanvasLayout::PlacePicture({}, QSize(0, 600), QSize(100, 100), enPictureFit::enStretched);
    QVERIFY(place.rectTarget.isEmpty());
    QVERIFY(place.rectSource.isEmpty());
}

QTEST_APPLESS_MAIN(TestCanvasLayout)
#include "TestCanvasLayout.moc"
