#include "SenderModuleDialog/chart/ChartKeptDrawings.h"

#include <QFontMetrics>
#include <QPainter>
#include <QtTest>

#include <functional>

namespace {

constexpr QRect c_rcChart(0, 0, 200, 160);
constexpr QRect c_rcDisc(50, 40, 20, 20);
constexpr double c_dReach = 3.0;
constexpr qint64 c_nLayerKey = 7;

QImage Canvas(QImage::Format format = QImage::Format_ARGB32_Premultiplied)
{
    QImage image(c_rcChart.size(), format);
    image.fill(QColor(50, 60, 70));
    return image;
}

/// Paints a frame with one disc, and counts how often that is drawn.
class CStage
{
public:
    CChartKeptDrawings kept;
    CChartKeptDrawings::SDrawing drawing = {c_rcDisc, c_dReach, QString()};
    QImage canvas = Canvas();
    QPen pen = QPen(Qt::white, 2.0);
    QBrush brush = Qt::red;
    QFont font;
    QPoint ptOrigin;
    qint64 nLayerKey = c_nLayerKey;
    int nDrawn = 0;

    QImage Frame()
    {
        QImage image = canvas;
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(pen);
        painter.setBrush(brush);
        painter.setFont(font);
        painter.translate(ptOrigin);
        const CChartSurface surface(painter);
        kept.Begin(surface, c_rcChart, nLayerKey);
        DrawDisc(painter);
        kept.End();
        return image;
    }

    void DrawDisc(QPainter& painter)
    {
        kept.Draw(painter, drawing, [&] {
            ++nDrawn;
            painter.drawEllipse(drawing.rcPlace);
        });
    }
};

using FuncChange = std::function<void(CStage&)>;

} // namespace

Q_DECLARE_METATYPE(FuncChange)

class TestChartKeptDrawings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheSameDrawingOverTheSamePixelsIsCopied();
    void AnotherDrawingIsDrawn_data();
    void AnotherDrawingIsDrawn();
    void ADrawingOverOtherPixelsIsDrawnAndItsForerunnerStaysKept();
    void ADrawingThatAlwaysMeetsOtherPixelsIsKeptOverThem();
    void WhatCannotBeCopiedIsDrawn_data();
    void WhatCannotBeCopiedIsDrawn();
    void AFreeTextIsCopiedWhole_data();
    void AFreeTextIsCopiedWhole();
    void ADrawingBetweenFramesIsDrawn();
    void AFrameWithoutADrawingForgetsIt();
    void TextsAreAsWideAsTheirMetricsSay();
    void ALineAcrossIsTheDrawnOne_data();
    void ALineAcrossIsTheDrawnOne();
};

void TestChartKeptDrawings::TheSameDrawingOverTheSamePixelsIsCopied()
{
    CStage stage;
    const QImage first = stage.Frame();
    QVERIFY(first != stage.canvas);
    for (int i = 0; i < 3; ++i)
        QVERIFY(stage.Frame() == first);
    QCOMPARE(stage.nDrawn, 1);
}

void TestChartKeptDrawings::AnotherDrawingIsDrawn_data()
{
    QTest::addColumn<FuncChange>("change");
    const auto AddRow = [](const char* szName, const FuncChange& funcChange) {
        QTest::newRow(szName) << funcChange;
    };
    AddRow("pen", [](CStage& stage) { stage.pen = QPen(Qt::lightGray, 2.0); });
    AddRow("width of the pen", [](CStage& stage) { stage.pen = QPen(Qt::white, 2.5); });
    AddRow("brush", [](CStage& stage) { stage.brush = Qt::green; });
    AddRow("font", [](CStage& stage) { stage.font = QFont(QStringLiteral("DejaVu Sans"), 40); });
    AddRow("origin", [](CStage& stage) { stage.ptOrigin = QPoint(1, 0); });
    AddRow("place", [](CStage& stage) { stage.drawing.rcPlace.translate(0.25, 0.0); });
    AddRow("text", [](CStage& stage) { stage.drawing.strText = QStringLiteral("text"); });
    AddRow("layer below", [](CStage& stage) { ++stage.nLayerKey; });
}

void TestChartKeptDrawings::AnotherDrawingIsDrawn()
{
    QFETCH(FuncChange, change);
    CStage stage;
    stage.Frame();
    change(stage);
    const QImage changed = stage.Frame();
    QCOMPARE(stage.nDrawn, 2);
    QVERIFY(stage.Frame() == changed);
    QCOMPARE(stage.nDrawn, 2);
}

void TestChartKeptDrawings::ADrawingOverOtherPixelsIsDrawnAndItsForerunnerStaysKept()
{
    CStage stage;
    const QImage first = stage.Frame();
    const QImage canvas = stage.canvas;
    stage.canvas.setPixelColor(c_rcDisc.topLeft(), Qt::blue);
    const QImage second = stage.Frame();
    QCOMPARE(stage.nDrawn, 2);
    QCOMPARE(second.pixelColor(c_rcDisc.topLeft()), QColor(Qt::blue));
    stage.canvas = canvas;
    QVERIFY(stage.Frame() == first);
    QCOMPARE(stage.nDrawn, 2);
}

void TestChartKeptDrawings::ADrawingThatAlwaysMeetsOtherPixelsIsKeptOverThem()
{
    CStage stage;
    stage.Frame();
    stage.canvas.setPixelColor(c_rcDisc.topLeft(), Qt::blue);
    for (int i = 0; i < 20; ++i)
        stage.Frame();
    const int nDrawn = stage.nDrawn;
    QVERIFY2(nDrawn > 2 && nDrawn < 20, qPrintable(QString::number(nDrawn)));
    stage.Frame();
    QCOMPARE(stage.nDrawn, nDrawn);
}

void TestChartKeptDrawings::WhatCannotBeCopiedIsDrawn_data()
{
    QTest::addColumn<FuncChange>("change");
    const auto AddRow = [](const char* szName, const FuncChange& funcChange) {
        QTest::newRow(szName) << funcChange;
    };
    AddRow("reaches farther than said", [](CStage& stage) { stage.drawing.dReach = 0.0; });
    AddRow("leaves the chart", [](CStage& stage) { stage.drawing.rcPlace = QRect(-5, 40, 20, 20); });
    AddRow("on a sharp screen", [](CStage& stage) { stage.canvas.setDevicePixelRatio(2.0); });
    AddRow("on pixels of another kind", [](CStage& stage) { stage.canvas = Canvas(QImage::Format_RGB888); });
}

void TestChartKeptDrawings::WhatCannotBeCopiedIsDrawn()
{
    QFETCH(FuncChange, change);
    CStage stage;
    change(stage);
    const QImage first = stage.Frame();
    QVERIFY(stage.Frame() == first);
    QCOMPARE(stage.nDrawn, 2);
}

void TestChartKeptDrawings::AFreeTextIsCopiedWhole_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("letters that reach beyond their advance") << QStringLiteral("jfWAg/");
    QTest::newRow("another script") << QStringLiteral("屏幕颜色（校正后）");
    QTest::newRow("marks above and below") << QStringLiteral("ẤỘŖ̂̂̂");
}

void TestChartKeptDrawings::AFreeTextIsCopiedWhole()
{
    QFETCH(QString, text);
    CChartKeptDrawings kept;
    int nDrawn = 0;
    const auto Frame = [&] {
        QImage image = Canvas();
        QPainter painter(&image);
        painter.setFont(QFont(QStringLiteral("DejaVu Sans"), 11, -1, true));
        painter.setPen(Qt::white);
        const CChartSurface surface(painter);
        const QPointF ptStart(40.3, 80.7);
        kept.Begin(surface, c_rcChart, c_nLayerKey);
        kept.Draw(painter, CChartKeptDrawings::SDrawing::FreeText(ptStart, text), [&] {
            ++nDrawn;
            painter.drawText(ptStart, text);
        });
        kept.End();
        return image;
    };
    const QImage first = Frame();
    QVERIFY(first != Canvas());
    QVERIFY(Frame() == first);
    QCOMPARE(nDrawn, 1);
}

void TestChartKeptDrawings::ADrawingBetweenFramesIsDrawn()
{
    CStage stage;
    stage.Frame();
    QImage image = Canvas();
    QPainter painter(&image);
    stage.DrawDisc(painter);
    stage.DrawDisc(painter);
    QCOMPARE(stage.nDrawn, 3);
}

void TestChartKeptDrawings::AFrameWithoutADrawingForgetsIt()
{
    CStage stage;
    stage.Frame();
    QImage image = Canvas();
    QPainter painter(&image);
    const CChartSurface surface(painter);
    stage.kept.Begin(surface, c_rcChart, c_nLayerKey);
    stage.kept.End();
    stage.Frame();
    QCOMPARE(stage.nDrawn, 2);
}

void TestChartKeptDrawings::TextsAreAsWideAsTheirMetricsSay()
{
    // The same few texts in turns of fonts, and more of them than are remembered.
    CChartKeptDrawings kept;
    for (const int nTexts : {5, 200}) {
        for (const int nSize : {8, 20, 8}) {
            const QFont font(QStringLiteral("DejaVu Sans"), nSize);
            for (int i = 0; i < 2 * nTexts; ++i) {
                const QString strText = QStringLiteral("group %1").arg(i % nTexts);
                QCOMPARE(kept.TextWidth(font, strText), QFontMetrics(font).boundingRect(strText).width());
            }
        }
    }
}

void TestChartKeptDrawings::ALineAcrossIsTheDrawnOne_data()
{
    QTest::addColumn<QImage::Format>("format");
    QTest::addColumn<QPen>("pen");
    const std::pair<const char*, QImage::Format> c_formats[] = {
        {"RGB32", QImage::Format_RGB32},
        {"ARGB32", QImage::Format_ARGB32},
        {"ARGB32 premultiplied", QImage::Format_ARGB32_Premultiplied}};
    const std::pair<const char*, QPen> c_pens[] = {{"the cross", QPen(QColor(255, 240, 240, 240), 1.0)},
                                                   {"opaque", QPen(Qt::black, 1.0)},
                                                   {"faint", QPen(QColor(1, 200, 77, 9), 1.0)}};
    for (const auto& [szFormat, format] : c_formats) {
        for (const auto& [szPen, pen] : c_pens)
            QTest::addRow("%s, %s", szFormat, szPen) << format << pen;
    }
}

void TestChartKeptDrawings::ALineAcrossIsTheDrawnOne()
{
    // Over every pixel value, opaque and not, at every place.
    QFETCH(QImage::Format, format);
    QFETCH(QPen, pen);
    QImage canvas(c_rcChart.size(), QImage::Format_ARGB32);
    for (int y = 0; y < canvas.height(); ++y) {
        for (int x = 0; x < canvas.width(); ++x)
            canvas.setPixel(
                x, y, qRgba((7 * x + y) % 256, (x + 11 * y) % 256, (3 * x + 5 * y) % 256, x < 150 ? 255 : x));
    }
    canvas = canvas.convertToFormat(format);
    CChartKeptDrawings kept;
    for (int i = -4; i < 210; ++i) {
        for (const QLine& line : {QLine(0, i, c_rcChart.width(), i), QLine(i, 0, i, c_rcChart.height())}) {
            QImage expected = canvas;
            QPainter painter(&expected);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setPen(pen);
            painter.drawLine(line);
            painter.end();
            QImage actual = canvas;
            painter.begin(&actual);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setPen(pen);
            const CChartSurface surface(painter);
            kept.Begin(surface, c_rcChart, c_nLayerKey);
            kept.DrawLineAcross(painter, line);
            kept.End();
            painter.end();
            QVERIFY2(actual == expected, qPrintable(QString::number(i)));
        }
    }
}

QTEST_MAIN(TestChartKeptDrawings)
#include "TestChartKeptDrawings.moc"
