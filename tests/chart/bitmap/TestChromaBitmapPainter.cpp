#include "SenderModuleDialog/chart/ChartMapping.h"
#include "SenderModuleDialog/chart/bitmap/ChromaBitmapPainter.h"
#include "SenderModuleDialog/colour/ChromaGamutInterpolation.h"
#include "oracles/chart/PlainBitmap.h"
#include "tests/support/ExactCompare.h"

#include <QtTest>

#include <limits>
#include <random>

using namespace ChromaBitmap;

Q_DECLARE_METATYPE(ChromaBitmap::enInstructions)

namespace {

using Point = CPointEx<float>;

/// The locus as a widget of this size has it in pixels.
std::vector<Point> OutlineOfWidget(QSize size, const QVector<QPointF>& vecLocus)
{
    const CChartMapping mapping = CChartMapping::ForSize(size.width(), size.height());
    std::vector<Point> vecOutline;
    for (const QPointF pt : vecLocus) {
        const QPointF ptPixel = mapping.ToPixel(pt);
        vecOutline.emplace_back(float(ptPixel.x()), float(ptPixel.y()));
    }
    return vecOutline;
}

bool Never()
{
    return false;
}

/// The first pixel that differs, for the failure message; empty if none does.
QString Difference(const QImage& actual, const QImage& expected)
{
    if (actual.size() != expected.size() || actual.format() != expected.format())
        return QStringLiteral("other size or format");
    for (int y = 0; y < expected.height(); ++y) {
        for (int x = 0; x < expected.width(); ++x) {
            if (actual.pixel(x, y) != expected.pixel(x, y))
                return QStringLiteral("(%1, %2): %3 instead of %4")
                    .arg(x)
                    .arg(y)
                    .arg(actual.pixel(x, y), 8, 16)
                    .arg(expected.pixel(x, y), 8, 16);
        }
    }
    return {};
}

int OpaqueCount(const QImage& image)
{
    int nCount = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            nCount += qAlpha(image.pixel(x, y)) == 255 ? 1 : 0;
    }
    return nCount;
}

const std::pair<const char*, enInstructions> c_arrInstructions[] = {
    {"plain", enPlainInstructions},
    {"SSE2", enSse2Instructions},
    {"AVX2", enAvx2Instructions},
    {"NEON", enNeonInstructions},
};

} // namespace

class TestChromaBitmapPainter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void MappingHasWholeMarginsAndScale_data();
    void MappingHasWholeMarginsAndScale();
    void EveryInstructionSetPaintsThePlainPixels_data();
    void EveryInstructionSetPaintsThePlainPixels();
    void RandomSizesArePaintedAsPlainly_data();
    void RandomSizesArePaintedAsPlainly();
    void RandomOutlinesArePaintedAsPlainly();
    void OfEqualCornersTheFirstCounts_data();
    void OfEqualCornersTheFirstCounts();
    void ANearlyLevelLineIsPaintedAsPlainly();
    void AVertexOnAPixelIsInside();
    void AVertexJustOutOfReachIsNot();
    void TheMiddleIsNearlyWhite();
    void AnAbortedPaintingIsTransparent();
    void AnAbortLeavesTheRowsBefore();
    void NoSizeGivesNoImage_data();
    void NoSizeGivesNoImage();
    void ThePlainInstructionsAreAlwaysThere();
    void WideInstructionsAreThereOnTheProcessorsThatHaveThem();

private:
    SSource Source(QSize sizeBitmap, QSize sizeWidget) const
    {
        return {sizeBitmap.width(), sizeBitmap.height(), m_vecLocus, OutlineOfWidget(sizeWidget, m_vecLocus)};
    }
    QImage Plain(const SSource& source) const
    {
        return PlainBitmap::Paint(source.nWidth, source.nHeight, source.vecLocus, source.vecOutline);
    }

    QVector<QPointF> m_vecLocus = CChromaGamutInterpolation().GetQPointFData();
};

void TestChromaBitmapPainter::MappingHasWholeMarginsAndScale_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QPoint>("margins");
    QTest::addColumn<int>("scale");

    QTest::newRow("the height limits the scale") << QSize(1000, 1000) << QPoint(33, 33) << 1037;
    QTest::newRow("the width limits the scale") << QSize(400, 1000) << QPoint(13, 33) << 467;
    QTest::newRow("margins are cut") << QSize(89, 119) << QPoint(2, 3) << 106;
    QTest::newRow("no margin below 30 pixels") << QSize(29, 29) << QPoint(0, 0) << 32;
    QTest::newRow("nothing") << QSize(0, 0) << QPoint(0, 0) << 0;
}

void TestChromaBitmapPainter::MappingHasWholeMarginsAndScale()
{
    QFETCH(QSize, size);
    QFETCH(QPoint, margins);
    QFETCH(int, scale);

    const SMapping mapping = SMapping::ForSize(size.width(), size.height());
    QCOMPARE(QPoint(mapping.nMarginX, mapping.nMarginY), margins);
    QCOMPARE(mapping.nScale, scale);
    COMPARE_BITS(mapping.ToPixel({0.5, 0.25}).x, float(0.5 * scale + margins.x()));
    COMPARE_BITS(mapping.ToPixel({0.5, 0.25}).y, float((size.height() - margins.y()) - 0.25 * scale));
}

void TestChromaBitmapPainter::EveryInstructionSetPaintsThePlainPixels_data()
{
    QTest::addColumn<QSize>("sizeBitmap");
    QTest::addColumn<QSize>("sizeWidget");

    QTest::newRow("equal") << QSize(500, 500) << QSize(500, 500);
    QTest::newRow("equal and large: some pixels are in doubt") << QSize(1000, 1000) << QSize(1000, 1000);
    QTest::newRow("wide and large") << QSize(1920, 1080) << QSize(1600, 900);
    QTest::newRow("wide") << QSize(960, 540) << QSize(960, 540);
    QTest::newRow("high") << QSize(300, 700) << QSize(300, 700);
    QTest::newRow("bitmap smaller") << QSize(400, 300) << QSize(800, 600);
    QTest::newRow("bitmap larger") << QSize(640, 480) << QSize(320, 240);
    QTest::newRow("bitmap of another shape") << QSize(200, 640) << QSize(600, 400);
    QTest::newRow("outline reaches the right edge") << QSize(333, 111) << QSize(1000, 1000);
    QTest::newRow("before the chart was laid out") << QSize(150, 150) << QSize(101, 101);
    QTest::newRow("one pixel") << QSize(1, 1) << QSize(200, 200);
    QTest::newRow("two pixels") << QSize(2, 2) << QSize(200, 200);
    QTest::newRow("one row") << QSize(300, 1) << QSize(200, 200);
    QTest::newRow("one column") << QSize(1, 300) << QSize(200, 200);
    QTest::newRow("a few pixels") << QSize(9, 7) << QSize(101, 101);
}

void TestChromaBitmapPainter::EveryInstructionSetPaintsThePlainPixels()
{
    QFETCH(QSize, sizeBitmap);
    QFETCH(QSize, sizeWidget);

    const SSource source = Source(sizeBitmap, sizeWidget);
    const QImage expected = Plain(source);
    for (const auto& [szName, instructions] : c_arrInstructions) {
        if (HasInstructions(instructions)) {
            const QString strDifference = Difference(Paint(source, Never, instructions), expected);
            QVERIFY2(strDifference.isEmpty(),
                     qPrintable(QLatin1String(szName) + QLatin1Char(' ') + strDifference));
        }
    }
}

void TestChromaBitmapPainter::RandomSizesArePaintedAsPlainly_data()
{
    QTest::addColumn<int>("seed");
    for (int nSeed = 0; nSeed < 40; ++nSeed)
        QTest::addRow("sizes-%d", nSeed) << nSeed;
}

void TestChromaBitmapPainter::RandomSizesArePaintedAsPlainly()
{
    QFETCH(int, seed);
    std::mt19937 generator{unsigned(seed)};
    std::uniform_int_distribution<int> side(1, 260);
    std::uniform_int_distribution<int> widget(101, 400);

    const QSize sizeBitmap(side(generator), side(generator));
    const QSize sizeWidget = seed % 2 == 0 ? QSize(sizeBitmap.width() + 100, sizeBitmap.height() + 100)
                                           : QSize(widget(generator), widget(generator));
    const SSource source = Source(sizeBitmap, sizeWidget);
    const QImage expected = Plain(source);
    for (const auto& entry : c_arrInstructions) {
        if (HasInstructions(entry.second))
            QCOMPARE(Difference(Paint(source, Never, entry.second), expected), QString());
    }
}

void TestChromaBitmapPainter::RandomOutlinesArePaintedAsPlainly()
{
    std::mt19937 generator{7};
    std::uniform_real_distribution<float> anywhere(-20.0F, 120.0F);
    std::uniform_int_distribution<int> kind(0, 3);
    std::uniform_int_distribution<size_t> count(1, 12);
    for (int nRound = 0; nRound < 200; ++nRound) {
        SSource source = {100, 90, m_vecLocus, {}};
        for (size_t i = count(generator); i > 0; --i) {
            Point pt{anywhere(generator), anywhere(generator)};
            // Whole coordinates, and such that are almost whole: the rules for level edges and for vertices.
            if (kind(generator) == 0)
                pt.x = std::round(pt.x);
            if (kind(generator) == 0)
                pt.y = std::round(pt.y) + 0.00009F;
            else if (kind(generator) == 0)
                pt.y = std::round(pt.y);
            source.vecOutline.push_back(pt);
        }
        QCOMPARE(Difference(Paint(source, Never), Plain(source)), QString());
    }
}

void TestChromaBitmapPainter::OfEqualCornersTheFirstCounts_data()
{
    QTest::addColumn<QVector<QPointF>>("vecLocus");
    const QPointF ptRight(0.7, 0.3);
    const QPointF ptTop(0.1, 0.8);
    const QPointF ptLeft(0.125, 0.125);
    QTest::newRow("two rightmost") << QVector<QPointF>{ptRight, {0.7, 0.1}, ptTop, ptLeft};
    QTest::newRow("two topmost") << QVector<QPointF>{ptRight, ptTop, {0.3, 0.8}, ptLeft};
    QTest::newRow("two leftmost") << QVector<QPointF>{ptRight, ptTop, ptLeft, {0.25, 0.0}};
}

void TestChromaBitmapPainter::OfEqualCornersTheFirstCounts()
{
    QFETCH(QVector<QPointF>, vecLocus);
    const QSize size(1000, 1000);
    const SSource source = {size.width(), size.height(), vecLocus, OutlineOfWidget(size, vecLocus)};
    QCOMPARE(Difference(Paint(source, Never), Plain(source)), QString());
}

void TestChromaBitmapPainter::ANearlyLevelLineIsPaintedAsPlainly()
{
    // Left and right corner differ by a last bit in height: the line through them crosses a row billions of
    // pixels away.
    const QVector<QPointF> vecLocus = {{0.1, 0.1}, {0.7, 0.1 + 1e-7}, {0.3, 0.8}};
    const SSource source = {1000, 1000, vecLocus, OutlineOfWidget({1000, 1000}, vecLocus)};
    const SMapping mapping = SMapping::ForSize(1000, 1000);
    QVERIFY(mapping.ToPixel(vecLocus[0]).y != mapping.ToPixel(vecLocus[1]).y);
    QCOMPARE(Difference(Paint(source, Never), Plain(source)), QString());
}

void TestChromaBitmapPainter::AVertexOnAPixelIsInside()
{
    // A flat outline has no inside but its vertices.
    const SSource source = {200, 200, m_vecLocus, {{70.0F, 80.0F}, {90.0F, 80.0F}, {80.00005F, 80.00005F}}};
    const QImage image = Paint(source, Never);
    QVERIFY(qAlpha(image.pixel(70, 80)) == 255);
    QVERIFY(qAlpha(image.pixel(90, 80)) == 255);
    QVERIFY(qAlpha(image.pixel(80, 80)) == 255);
    QCOMPARE(Difference(image, Plain(source)), QString());
}

void TestChromaBitmapPainter::AVertexJustOutOfReachIsNot()
{
    const SSource source = {
        200, 200, m_vecLocus, {{70.0002F, 80.0F}, {70.0002F, 79.9998F}, {70.0002F, 80.0002F}}};
    QCOMPARE(OpaqueCount(Paint(source, Never)), 0);
}

void TestChromaBitmapPainter::TheMiddleIsNearlyWhite()
{
    const QImage image = Paint(Source({900, 900}, {900, 900}), Never);
    const SMapping mapping = SMapping::ForSize(900, 900);
    const Point pt = mapping.ToPixel({1.0 / 3.0, 1.0 / 3.0});
    const QColor colour = image.pixelColor(int(pt.x), int(pt.y));
    QVERIFY(colour.red() > 250 && colour.green() > 250 && colour.blue() > 250);
    QVERIFY(image.pixelColor(10, 10).alpha() == 0);
}

void TestChromaBitmapPainter::AnAbortedPaintingIsTransparent()
{
    const QImage image = Paint(Source({300, 300}, {300, 300}), [] { return true; });
    QCOMPARE(image.size(), QSize(300, 300));
    QCOMPARE(OpaqueCount(image), 0);
}

void TestChromaBitmapPainter::AnAbortLeavesTheRowsBefore()
{
    const SSource source = Source({300, 300}, {300, 300});
    int nAsked = 0;
    const QImage image = Paint(source, [&nAsked] { return ++nAsked > 100; });
    const QImage whole = Paint(source, Never);
    QCOMPARE(nAsked, 101);
    QVERIFY(OpaqueCount(image) > 0 && OpaqueCount(image) < OpaqueCount(whole));
    for (int y = 0; y < 100; ++y)
        QCOMPARE(memcmp(image.constScanLine(y), whole.constScanLine(y), size_t(image.bytesPerLine())), 0);
}

void TestChromaBitmapPainter::NoSizeGivesNoImage_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("nothing") << QSize(0, 0);
    QTest::newRow("negative") << QSize(-5, 20);
    QTest::newRow("too large") << QSize(std::numeric_limits<int>::max(), std::numeric_limits<int>::max());
}

void TestChromaBitmapPainter::NoSizeGivesNoImage()
{
    QFETCH(QSize, size);
    QVERIFY(Paint(Source(size, {200, 200}), Never).isNull());
}

void TestChromaBitmapPainter::ThePlainInstructionsAreAlwaysThere()
{
    QVERIFY(HasInstructions(enPlainInstructions));
    QVERIFY(HasInstructions(BestInstructions()));
}

void TestChromaBitmapPainter::WideInstructionsAreThereOnTheProcessorsThatHaveThem()
{
#if defined(Q_PROCESSOR_X86_64)
    QVERIFY(HasInstructions(enSse2Instructions));
    QVERIFY(!HasInstructions(enNeonInstructions));
#elif defined(Q_PROCESSOR_ARM_64)
    QVERIFY(HasInstructions(enNeonInstructions));
    QCOMPARE(BestInstructions(), enNeonInstructions);
#endif
}

QTEST_APPLESS_MAIN(TestChromaBitmapPainter)
#include "TestChromaBitmapPainter.moc"
