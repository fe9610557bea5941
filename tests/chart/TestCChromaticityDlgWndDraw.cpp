#include "SenderModuleDialog/chart/bitmap/ChromaBitmapPainter.h"
#include "SenderModuleDialog/colour/ChromaGamutInterpolation.h"
#include "tests/chart/FrameTesting.h"
#include "tests/support/DeathTest.h"

#include <QPainterPath>
#include <QPicture>
#include <QtTest>

using namespace FrameTesting;

namespace {

/// What a painter is set to, apart from the device.
struct SPainterState
{
    QPen pen;
    QBrush brush;
    QFont font;
    QPainter::RenderHints hints;
    QTransform transform;
    QPainter::CompositionMode mode;

    explicit SPainterState(const QPainter& painter)
        : pen(painter.pen())
        , brush(painter.brush())
        , font(painter.font())
        , hints(painter.renderHints())
        , transform(painter.worldTransform())
        , mode(painter.compositionMode())
    {}

    bool operator==(const SPainterState& other) const
    {
        return pen == other.pen && brush == other.brush && font == other.font && hints == other.hints &&
               transform == other.transform && mode == other.mode;
    }
};

/// A chart that is on a screen with three device pixels per pixel.
class CSharpChart : public CChromaticityDlgWnd
{
public:
    CSharpChart()
        : CChromaticityDlgWnd(nullptr)
    {}

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        if (metric == PdmDevicePixelRatio)
            return 3;
        if (metric == PdmDevicePixelRatioScaled)
            return int(3 * devicePixelRatioFScale());
        return CChromaticityDlgWnd::metric(metric);
    }
};

} // namespace

Q_DECLARE_METATYPE(FuncPrepare)
Q_DECLARE_METATYPE(std::function<void(CChromaticityDlgWnd&)>)

class TestCChromaticityDlgWndDraw : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void FramesAreThePlainOnes_data();
    void FramesAreThePlainOnes();
    void FramesFollowEveryChange_data();
    void FramesFollowEveryChange();
    void FramesFollowThePaintersState_data();
    void FramesFollowThePaintersState();
    void HighResolutionFramesAreDrawnInOrder_data();
    void HighResolutionFramesAreDrawnInOrder();
    void AHighResolutionBitmapIsSharp_data();
    void AHighResolutionBitmapIsSharp();
    void AnAbortedSharpBitmapIsNotKept();
    void ARedirectedWidgetTakesTheRatioOfThePicture();
    void DrawingWithAnInactivePainterFaults();
    void AGrabbedWidgetIsThePlainOne();
    void AGrabbedParentIsThePlainOne();
    void APictureIsDrawnInThePlainOrder();
    void ThePainterIsLeftAsPlainly();
    void TheDefaultBitmapIsPaintedOnce();
    void ASmallerBitmapLeavesTheBackground();
    void ALargerBitmapIsCut();
    void AChartWithoutASizeDrawsWhatItCan();
};

void TestCChromaticityDlgWndDraw::FramesAreThePlainOnes_data()
{
    QTest::addColumn<QImage::Format>("format");
    QTest::newRow("RGB32") << QImage::Format_RGB32;
    QTest::newRow("ARGB32") << QImage::Format_ARGB32;
    QTest::newRow("ARGB32 premultiplied") << QImage::Format_ARGB32_Premultiplied;
    QTest::newRow("RGBA8888 premultiplied") << QImage::Format_RGBA8888_Premultiplied;
    QTest::newRow("RGB888") << QImage::Format_RGB888;
    QTest::newRow("RGB16") << QImage::Format_RGB16;
    QTest::newRow("30 bits") << QImage::Format_RGB30;
    QTest::newRow("grey") << QImage::Format_Grayscale8;
}

void TestCChromaticityDlgWndDraw::FramesAreThePlainOnes()
{
    QFETCH(QImage::Format, format);
    const auto pChart = MakeChart();
    QVERIFY(IsPlain(*pChart, Canvas(format)));
}

void TestCChromaticityDlgWndDraw::FramesFollowEveryChange_data()
{
    using FuncChange = std::function<void(CChromaticityDlgWnd&)>;
    QTest::addColumn<FuncChange>("change");
    const auto AddRow = [](const char* szName, const FuncChange& funcChange) {
        QTest::newRow(szName) << funcChange;
    };
    AddRow("mouse", [](auto& chart) { chart.m_ptMouse = QPoint(180, 210); });
    AddRow("mouse outside", [](auto& chart) { chart.m_ptMouse = QPoint(0, 0); });
    AddRow("background", [](auto& chart) { chart.SetBackgroundColor(Qt::darkGreen); });
    AddRow("translucent background", [](auto& chart) { chart.SetBackgroundColor(QColor(0, 0, 200, 100)); });
    AddRow("no background", [](auto& chart) { chart.SetBackgroundColor(QColor()); });
    AddRow("grid", [](auto& chart) { chart.SetGridLineAlpha(30); });
    AddRow("no grid", [](auto& chart) { chart.SetGridLineAlpha(0); });
    AddRow("grid out of range", [](auto& chart) { chart.SetGridLineAlpha(300); });
    AddRow("layout", [](auto& chart) { chart.SetSize(300, 340); });
    AddRow("outline", [](auto& chart) {
        chart.m_pGamut->GetQPointFData()[40] += QPointF(0.05, 0.02);
        chart.SetSize(c_sizeChart.width(), c_sizeChart.height());
    });
    AddRow("emptied outline", [](auto& chart) { chart.m_pGamut->GetQPointFData().clear(); });
    AddRow("shortened outline", [](auto& chart) { chart.m_pGamut->GetQPointFData().resize(80); });
    AddRow("bitmap of another type", [](auto& chart) {
        chart.SetWndData(2, 420, 360);
        chart.SetWndType(2);
    });
    AddRow("bitmap painted anew", [](auto& chart) {
        chart.SetWndData(2, 420, 360);
        chart.SetWndType(2);
        QImage image = Canvas(QImage::Format_RGB32);
        QPainter painter(&image);
        chart.Draw(painter);
        chart.SetWndData(2, 300, 360);
    });
    AddRow("no bitmap", [](auto& chart) { chart.SetWndType(3); });
    AddRow("unknown type", [](auto& chart) { chart.SetWndType(77); });
    AddRow("default bitmap painted anew", [](auto& chart) {
        chart.SetSize(400, 300);
        chart.GetChromaticityBmp(-1);
    });
    AddRow("groups", [](auto& chart) { chart.RemoveChromaGroupByIndex(enOutputColorSpace); });
    const auto Edit = [](const std::function<void(SChromaGroupInfo&)>& funcEdit) {
        return [funcEdit](CChromaticityDlgWnd& chart) {
            funcEdit(*chart.GetChromaGroupByIndex(enScreenColorSpace));
        };
    };
    AddRow("moved point", Edit([](auto& group) { group.ptGreen.x += 0.003F; }));
    AddRow("moved white", Edit([](auto& group) { group.ptWhite.y += 0.003F; }));
    AddRow("fixed point", Edit([](auto& group) { group.bMoveGreen = !group.bMoveGreen; }));
    AddRow("hidden dot", Edit([](auto& group) { group.bShowGreenDot = false; }));
    AddRow("hidden white", Edit([](auto& group) { group.bShowWhiteDot = false; }));
    AddRow("hidden group", Edit([](auto& group) { group.bVisible = false; }));
    AddRow("no note", Edit([](auto& group) { group.bShowNote = false; }));
    AddRow("other mode", Edit([](auto& group) { group.bRgbMode = !group.bRgbMode; }));
    AddRow("thicker lines", Edit([](auto& group) { group.fPenWidth = 3.0F; }));
    AddRow("colour of its own", Edit([](auto& group) {
               group.bOwnColor = true;
               group.nColorR = 165;
           }));
    AddRow("renamed group", [](auto& chart) {
        AddStandardGroup(chart, 3, enStandardSRGB, true);
        IsPlain(chart, Canvas(QImage::Format_RGB32));
        chart.GetChromaGroupByIndex(3)->strName = QStringLiteral("a name that is rather long");
    });
    AddRow("spacing of the legend", [](auto& chart) { chart.m_fTextRatio = 1.7F; });
    AddRow("height of the widget", [](auto& chart) { chart.resize(420, 500); });
    AddRow("temperature", [](auto& chart) {
        chart.m_bShowCCT = true;
        chart.m_bHitWhite = true;
    });
}

void TestCChromaticityDlgWndDraw::FramesFollowEveryChange()
{
    QFETCH(std::function<void(CChromaticityDlgWnd&)>, change);
    for (const QImage::Format format :
         {QImage::Format_RGB32, QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied}) {
        const auto pChart = MakeChart();
        QVERIFY(IsPlain(*pChart, Canvas(format)));
        change(*pChart);
        QVERIFY(IsPlain(*pChart, Canvas(format)));
    }
}

void TestCChromaticityDlgWndDraw::FramesFollowThePaintersState_data()
{
    QTest::addColumn<FuncPrepare>("prepare");
    const auto AddRow = [](const char* szName, const FuncPrepare& funcPrepare) {
        QTest::newRow(szName) << funcPrepare;
    };
    AddRow("moved by whole pixels", [](QPainter& painter) { painter.translate(13, 17); });
    AddRow("moved by a part of a pixel", [](QPainter& painter) { painter.translate(0.5, 0.25); });
    AddRow("scaled", [](QPainter& painter) { painter.scale(0.9, 0.9); });
    AddRow("scaled up", [](QPainter& painter) { painter.scale(2, 2); });
    AddRow("mirrored", [](QPainter& painter) {
        painter.translate(420, 0);
        painter.scale(-1, 1);
    });
    AddRow("rotated", [](QPainter& painter) { painter.rotate(5); });
    AddRow("window and viewport", [](QPainter& painter) { painter.setWindow(0, 0, 900, 900); });
    AddRow("clipped", [](QPainter& painter) { painter.setClipRect(50, 60, 200, 100); });
    AddRow("clipped by a path", [](QPainter& painter) {
        QPainterPath path;
        path.addEllipse(50, 60, 200, 100);
        painter.setClipPath(path);
    });
    AddRow("translucent", [](QPainter& painter) { painter.setOpacity(0.5); });
    AddRow("another composition",
           [](QPainter& painter) { painter.setCompositionMode(QPainter::CompositionMode_DestinationOver); });
    AddRow("antialiased", [](QPainter& painter) { painter.setRenderHint(QPainter::Antialiasing); });
    AddRow("smooth pixmaps",
           [](QPainter& painter) { painter.setRenderHint(QPainter::SmoothPixmapTransform); });
    AddRow("hard text", [](QPainter& painter) { painter.setRenderHint(QPainter::TextAntialiasing, false); });
    AddRow("another font", [](QPainter& painter) {
        QFont font = painter.font();
        font.setItalic(true);
        font.setWeight(QFont::Black);
        font.setLetterSpacing(QFont::AbsoluteSpacing, 2);
        painter.setFont(font);
    });
    AddRow("right to left", [](QPainter& painter) { painter.setLayoutDirection(Qt::RightToLeft); });
}

void TestCChromaticityDlgWndDraw::FramesFollowThePaintersState()
{
    QFETCH(FuncPrepare, prepare);
    for (const QImage::Format format :
         {QImage::Format_RGB32, QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied}) {
        const auto pChart = MakeChart();
        QVERIFY(IsPlain(*pChart, Canvas(format)));
        QVERIFY(IsPlain(*pChart, Canvas(format), prepare));
        QVERIFY(IsPlain(*pChart, Canvas(format)));
    }
}

void TestCChromaticityDlgWndDraw::HighResolutionFramesAreDrawnInOrder_data()
{
    QTest::addColumn<double>("ratio");
    QTest::newRow("double") << 2.0;
    QTest::newRow("triple") << 3.0;
    QTest::newRow("one and a half") << 1.5;
}

void TestCChromaticityDlgWndDraw::HighResolutionFramesAreDrawnInOrder()
{
    QFETCH(double, ratio);
    const auto pChart = MakeChart();
    for (const QImage::Format format : {QImage::Format_RGB32, QImage::Format_ARGB32_Premultiplied}) {
        const QImage canvas = Canvas(format, ratio);
        // Under a clip nothing is copied.
        const QImage expected = Painted(*pChart, DrawFast, canvas,
                                        [](QPainter& painter) { painter.setClipRect(-10, -10, 900, 900); });
        for (int i = 0; i < 2; ++i)
            QVERIFY(Painted(*pChart, DrawFast, canvas, [](QPainter&) {}) == expected);
    }
}

void TestCChromaticityDlgWndDraw::AHighResolutionBitmapIsSharp_data()
{
    HighResolutionFramesAreDrawnInOrder_data();
}

void TestCChromaticityDlgWndDraw::AHighResolutionBitmapIsSharp()
{
    QFETCH(double, ratio);
    const auto pChart = MakeChart();
    pChart->SetGridLineAlpha(0);
    const QImage image = Painted(*pChart, DrawFast, Canvas(QImage::Format_RGB32, ratio), [](QPainter&) {});
    ChromaBitmap::SSource source;
    source.nWidth = c_sizeChart.width();
    source.nHeight = c_sizeChart.height();
    source.vecLocus = pChart->m_pGamut->GetQPointFData();
    source.vecOutline.assign(pChart->m_pBoundaryPxF, pChart->m_pBoundaryPxF + source.vecLocus.size());
    const QImage sharp = ChromaBitmap::Paint(source.Scaled(ratio), [] { return false; });
    // A part of the green, where no line passes.
    const QPoint ptFirst = (pChart->Mapping().ToPixel(QPointF(0.18, 0.7)) * ratio).toPoint();
    for (int y = 0; y < 15; ++y) {
        for (int x = 0; x < 12; ++x)
            QCOMPARE(image.pixel(ptFirst + QPoint(x, y)), sharp.pixel(ptFirst + QPoint(x, y)));
    }
}

void TestCChromaticityDlgWndDraw::AnAbortedSharpBitmapIsNotKept()
{
    const auto Frame = [](bool bAbortFirst) {
        const auto pChart = MakeChart();
        pChart->SetWndData(1, c_sizeChart.width(), c_sizeChart.height());
        pChart->SetWndType(1);
        const QImage canvas = Canvas(QImage::Format_RGB32, 2.0);
        pChart->m_bAbortPaint = bAbortFirst;
        Painted(*pChart, DrawFast, canvas, [](QPainter&) {});
        pChart->m_bAbortPaint = false;
        return Painted(*pChart, DrawFast, canvas, [](QPainter&) {});
    };
    QVERIFY(Frame(true) == Frame(false));
}

void TestCChromaticityDlgWndDraw::ARedirectedWidgetTakesTheRatioOfThePicture()
{
    CSharpChart chart;
    chart.resize(c_sizeChart);
    chart.SetSize(c_sizeChart.width(), c_sizeChart.height());
    QCOMPARE(chart.devicePixelRatioF(), 3.0);
    const QImage canvas = Canvas(QImage::Format_ARGB32_Premultiplied);
    QImage rendered = canvas;
    chart.render(&rendered, QPoint(), QRegion(), QWidget::RenderFlags());
    // Above the labels of the colour temperatures: Qt hints letters by the widget's ratio.
    const QRect rcPart(0, 0, c_sizeChart.width(), c_sizeChart.height() / 2);
    QVERIFY(rendered.copy(rcPart) == Painted(chart, DrawFast, canvas, [](QPainter&) {}).copy(rcPart));
}

void TestCChromaticityDlgWndDraw::DrawingWithAnInactivePainterFaults()
{
    const auto pChart = MakeChart();
    const SDeath death = RunToDeath([&pChart] {
        QPainter painter;
        pChart->Draw(painter);
    });
    QVERIFY(death.bAborted);
    QVERIFY(death.strOutput.contains("painter.isActive()"));
}

void TestCChromaticityDlgWndDraw::AGrabbedWidgetIsThePlainOne()
{
    const auto pChart = MakeChart();
    CPlainChartWidget plain(*pChart, nullptr);
    const QImage expected = plain.grab().toImage();
    QVERIFY(pChart->grab().toImage() == expected);
    QVERIFY(pChart->grab().toImage() == expected);
    QVERIFY(pChart->grab(QRect(30, 40, 200, 150)).toImage() == plain.grab(QRect(30, 40, 200, 150)).toImage());
}

void TestCChromaticityDlgWndDraw::AGrabbedParentIsThePlainOne()
{
    QWidget parent;
    const auto pChart = MakeChart(&parent);
    pChart->move(33, 21);
    parent.resize(600, 500);
    parent.show();
    QCoreApplication::processEvents();
    const QImage actual = parent.grab().toImage();
    pChart->hide();
    CPlainChartWidget plain(*pChart, &parent);
    plain.move(33, 21);
    plain.show();
    QVERIFY(actual == parent.grab().toImage());
}

void TestCChromaticityDlgWndDraw::APictureIsDrawnInThePlainOrder()
{
    const auto pChart = MakeChart();
    QVERIFY(IsPlain(*pChart, Canvas(QImage::Format_RGB32)));
    const auto Record = [&pChart](void (*funcDraw)(CChromaticityDlgWnd&, QPainter&)) {
        QPicture picture;
        QPainter painter(&picture);
        funcDraw(*pChart, painter);
        painter.end();
        return QByteArray(picture.data(), int(picture.size()));
    };
    const QByteArray expected = Record(DrawPlain);
    QVERIFY(expected.size() > 1000);
    QVERIFY(Record(DrawFast) == expected);
}

void TestCChromaticityDlgWndDraw::ThePainterIsLeftAsPlainly()
{
    const auto pChart = MakeChart();
    for (int i = 0; i < 2; ++i) {
        QImage image = Canvas(QImage::Format_RGB32);
        QPainter painter(&image);
        painter.translate(3, 4);
        pChart->Draw(painter);
        const SPainterState actual(painter);
        painter.end();
        painter.begin(&image);
        painter.translate(3, 4);
        DrawPlain(*pChart, painter);
        QVERIFY(actual == SPainterState(painter));
    }
}

void TestCChromaticityDlgWndDraw::TheDefaultBitmapIsPaintedOnce()
{
    const auto pChart = MakeChart();
    QVERIFY(pChart->m_bDefaultDirty && pChart->m_pDefaultImage == nullptr);
    pChart->grab();
    QVERIFY(!pChart->m_bDefaultDirty);
    const QImage* pImage = pChart->m_pDefaultImage;
    QCOMPARE(pImage->size(), c_sizeChart);
    pChart->SetSize(300, 300);
    pChart->grab();
    QCOMPARE(pChart->m_pDefaultImage, pImage);
    QCOMPARE(pImage->size(), c_sizeChart);
}

void TestCChromaticityDlgWndDraw::ASmallerBitmapLeavesTheBackground()
{
    const auto pChart = MakeChart();
    pChart->SetWndData(0, 210, 360);
    pChart->SetWndType(0);
    const QImage image = pChart->grab().toImage();
    const QPoint ptRight = pChart->Mapping().ToPixel(QPointF(0.62, 0.35)).toPoint();
    QVERIFY(ptRight.x() > 210);
    QCOMPARE(image.pixelColor(ptRight), pChart->m_clrBackground);
}

void TestCChromaticityDlgWndDraw::ALargerBitmapIsCut()
{
    const auto pChart = MakeChart();
    pChart->SetWndData(0, 1000, 900);
    pChart->SetWndType(0);
    QImage image = Canvas(QImage::Format_RGB32);
    QPainter painter(&image);
    pChart->Draw(painter);
    painter.end();
    QCOMPARE(image.pixelColor(c_sizeChart.width() + 5, 100), QColor(200, 100, 20));
    QVERIFY(IsPlain(*pChart, Canvas(QImage::Format_RGB32)));
}

void TestCChromaticityDlgWndDraw::AChartWithoutASizeDrawsWhatItCan()
{
    CChromaticityDlgWnd chart(nullptr);
    QVERIFY(IsPlain(chart, Canvas(QImage::Format_RGB32)));
}

QTEST_MAIN(TestCChromaticityDlgWndDraw)
#include "TestCChromaticityDlgWndDraw.moc"
