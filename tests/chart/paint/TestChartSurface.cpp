#include "SenderModuleDialog/chart/paint/ChartSurface.h"

#include <QPicture>
#include <QPixmap>
#include <QWidget>
#include <QtTest>

#include <functional>

namespace {

using FuncPrepare = std::function<void(QPainter&)>;

constexpr QSize c_sizeImage(40, 30);

QImage Canvas(QImage::Format format = QImage::Format_ARGB32_Premultiplied, double dRatio = 1.0)
{
    QImage image(c_sizeImage, format);
    image.setDevicePixelRatio(dRatio);
    return image;
}

bool CanCopyTo(
    QPaintDevice& device, const FuncPrepare& funcPrepare = [](QPainter&) {})
{
    QPainter painter(&device);
    funcPrepare(painter);
    return CChartSurface(painter).CanCopy();
}

CChartSurface::SState StateOf(
    QImage image, const FuncPrepare& funcPrepare = [](QPainter&) {})
{
    QPainter painter(&image);
    funcPrepare(painter);
    return CChartSurface(painter).State();
}

/// A widget that keeps what the surface says of its painter.
class CSurfaceWidget : public QWidget
{
public:
    CSurfaceWidget() { resize(c_sizeImage); }

    double m_dRatio = 0.0;

protected:
    void paintEvent(QPaintEvent*) override
    {
        const QPainter painter(this);
        m_dRatio = CChartSurface::DevicePixelRatio(painter);
    }
};

} // namespace

Q_DECLARE_METATYPE(FuncPrepare)

class TestChartSurface : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void OpaquePixelsOf32BitsAreCopied_data();
    void OpaquePixelsOf32BitsAreCopied();
    void OnlyAWholeRatioIsCopied_data();
    void OnlyAWholeRatioIsCopied();
    void TheStateOfThePainterDecides_data();
    void TheStateOfThePainterDecides();
    void APixmapIsCopiedLikeItsImage();
    void APictureIsNotCopied();
    void APainterWithoutADeviceIsNotCopied();
    void AWidgetPaintsIntoTheImageThatItIsRenderedTo();
    void EqualPaintersHaveTheSameState();
    void WhatChangesPixelsChangesTheState_data();
    void WhatChangesPixelsChangesTheState();
    void ImagesOfAnotherKindHaveAnotherState_data();
    void ImagesOfAnotherKindHaveAnotherState();
};

void TestChartSurface::OpaquePixelsOf32BitsAreCopied_data()
{
    QTest::addColumn<QImage::Format>("format");
    QTest::addColumn<bool>("copied");
    QTest::newRow("RGB32") << QImage::Format_RGB32 << true;
    QTest::newRow("ARGB32") << QImage::Format_ARGB32 << true;
    QTest::newRow("ARGB32 premultiplied") << QImage::Format_ARGB32_Premultiplied << true;
    QTest::newRow("another order of the bytes") << QImage::Format_RGBA8888 << false;
    QTest::newRow("24 bits") << QImage::Format_RGB888 << false;
    QTest::newRow("16 bits") << QImage::Format_RGB16 << false;
    QTest::newRow("30 bits of colour") << QImage::Format_RGB30 << false;
}

void TestChartSurface::OpaquePixelsOf32BitsAreCopied()
{
    QFETCH(QImage::Format, format);
    QFETCH(bool, copied);
    QImage image = Canvas(format);
    QCOMPARE(CanCopyTo(image), copied);
}

void TestChartSurface::OnlyAWholeRatioIsCopied_data()
{
    QTest::addColumn<double>("ratio");
    QTest::addColumn<bool>("copied");
    QTest::newRow("1") << 1.0 << true;
    QTest::newRow("2") << 2.0 << true;
    QTest::newRow("1.5") << 1.5 << false;
}

void TestChartSurface::OnlyAWholeRatioIsCopied()
{
    QFETCH(double, ratio);
    QFETCH(bool, copied);
    QImage image = Canvas(QImage::Format_RGB32, ratio);
    QCOMPARE(CanCopyTo(image), copied);
}

void TestChartSurface::TheStateOfThePainterDecides_data()
{
    QTest::addColumn<FuncPrepare>("prepare");
    QTest::addColumn<bool>("copied");
    const auto Row = [](const char* szName, bool bCopied, const FuncPrepare& funcPrepare) {
        QTest::newRow(szName) << funcPrepare << bCopied;
    };
    Row("moved by whole pixels", true, [](QPainter& painter) { painter.translate(3, -4); });
    Row("moved by half a pixel to the right", false, [](QPainter& painter) { painter.translate(0.5, 0); });
    Row("moved by half a pixel down", false, [](QPainter& painter) { painter.translate(0, 0.5); });
    Row("twice as wide", false, [](QPainter& painter) { painter.scale(2, 1); });
    Row("twice as high", false, [](QPainter& painter) { painter.scale(1, 2); });
    Row("mirrored", false, [](QPainter& painter) { painter.scale(-1, 1); });
    Row("rotated", false, [](QPainter& painter) { painter.rotate(90); });
    Row("sheared", false, [](QPainter& painter) { painter.shear(0.5, 0); });
    Row("clipped", false, [](QPainter& painter) { painter.setClipRect(0, 0, 10, 10); });
    Row("half opaque", false, [](QPainter& painter) { painter.setOpacity(0.5); });
    Row("with another composition mode", false,
        [](QPainter& painter) { painter.setCompositionMode(QPainter::CompositionMode_Source); });
}

void TestChartSurface::TheStateOfThePainterDecides()
{
    QFETCH(FuncPrepare, prepare);
    QFETCH(bool, copied);
    QImage image = Canvas();
    QCOMPARE(CanCopyTo(image, prepare), copied);
}

void TestChartSurface::APixmapIsCopiedLikeItsImage()
{
    QPixmap pixmap(c_sizeImage);
    QVERIFY(CanCopyTo(pixmap));
}

void TestChartSurface::APictureIsNotCopied()
{
    QPicture picture;
    QVERIFY(!CanCopyTo(picture));
}

void TestChartSurface::APainterWithoutADeviceIsNotCopied()
{
    const QPainter painter;
    QVERIFY(!CChartSurface(painter).CanCopy());
    QCOMPARE(CChartSurface::DevicePixelRatio(painter), 1.0);
}

void TestChartSurface::AWidgetPaintsIntoTheImageThatItIsRenderedTo()
{
    CSurfaceWidget widget;
    QCOMPARE(widget.devicePixelRatioF(), 1.0);
    QImage image = Canvas(QImage::Format_RGB32, 2.0);
    widget.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    QCOMPARE(widget.m_dRatio, 2.0);
}

void TestChartSurface::EqualPaintersHaveTheSameState()
{
    QVERIFY(StateOf(Canvas()) == StateOf(Canvas()));
}

void TestChartSurface::WhatChangesPixelsChangesTheState_data()
{
    QTest::addColumn<FuncPrepare>("prepare");
    const auto Row = [](const char* szName, const FuncPrepare& funcPrepare) {
        QTest::newRow(szName) << funcPrepare;
    };
    Row("smooth edges", [](QPainter& painter) { painter.setRenderHint(QPainter::Antialiasing); });
    Row("another font", [](QPainter& painter) {
        QFont font = painter.font();
        font.setPixelSize(31);
        painter.setFont(font);
    });
    Row("from right to left", [](QPainter& painter) { painter.setLayoutDirection(Qt::RightToLeft); });
}

void TestChartSurface::WhatChangesPixelsChangesTheState()
{
    QFETCH(FuncPrepare, prepare);
    QVERIFY(!(StateOf(Canvas(), prepare) == StateOf(Canvas())));
}

void TestChartSurface::ImagesOfAnotherKindHaveAnotherState_data()
{
    QTest::addColumn<QImage::Format>("format");
    QTest::addColumn<double>("ratio");
    QTest::newRow("another format") << QImage::Format_RGB32 << 1.0;
    QTest::newRow("another ratio") << QImage::Format_ARGB32_Premultiplied << 2.0;
}

void TestChartSurface::ImagesOfAnotherKindHaveAnotherState()
{
    QFETCH(QImage::Format, format);
    QFETCH(double, ratio);
    // The font of a painter follows the resolution of its device; here only the image differs.
    const FuncPrepare funcSameFont = [](QPainter& painter) { painter.setFont(QFont()); };
    QVERIFY(!(StateOf(Canvas(format, ratio), funcSameFont) == StateOf(Canvas(), funcSameFont)));
}

QTEST_MAIN(TestChartSurface)
#include "TestChartSurface.moc"
