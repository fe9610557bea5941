#include "SenderModuleDialog/chart/bitmap/ChromaOutlineSpans.h"
#include "oracles/chart/PlainBitmap.h"

#include <QtTest>

#include <algorithm>
#include <random>
#include <vector>

namespace {

using PlainBitmap::Point;

bool IsInside(const CChromaOutlineSpans& spans, QPoint pt)
{
    const auto nAtOrLeft = std::count_if(spans.ThresholdsBegin(pt.y()), spans.ThresholdsEnd(pt.y()),
                                         [pt](int nThreshold) { return nThreshold <= pt.x(); });
    const std::vector<QPoint>& vecVertices = spans.VertexPixels();
    return nAtOrLeft % 2 != 0 || std::find(vecVertices.begin(), vecVertices.end(), pt) != vecVertices.end();
}

/// The first pixel of a box for which the spans and the plain test differ; empty if there is none.
QString Difference(const std::vector<Point>& vecOutline, const QRect& rcBox)
{
    const CChromaOutlineSpans spans(vecOutline, rcBox);
    for (int nY = rcBox.top(); nY <= rcBox.bottom(); ++nY) {
        if (!std::is_sorted(spans.ThresholdsBegin(nY), spans.ThresholdsEnd(nY)))
            return QStringLiteral("row %1 is not in order").arg(nY);
        for (int nX = rcBox.left(); nX <= rcBox.right(); ++nX) {
            if (IsInside(spans, {nX, nY}) != PlainBitmap::IsInside(vecOutline, {float(nX), float(nY)}))
                return QStringLiteral("(%1, %2)").arg(nX).arg(nY);
        }
    }
    return {};
}

} // namespace

class TestChromaOutlineSpans : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ThePixelsInsideAreThoseOfThePlainTest_data();
    void ThePixelsInsideAreThoseOfThePlainTest();
    void ABoxWithoutPixelsHasNoSpans();
};

void TestChromaOutlineSpans::ThePixelsInsideAreThoseOfThePlainTest_data()
{
    QTest::addColumn<QRect>("box");
    QTest::addColumn<float>("reach");
    QTest::newRow("around the box") << QRect(0, 0, 24, 20) << 10.0F;
    QTest::newRow("around a box left of and above zero") << QRect(-7, -6, 14, 13) << 10.0F;
    QTest::newRow("far beyond the box") << QRect(-20, -2, 24, 20) << 30000.0F;
}

void TestChromaOutlineSpans::ThePixelsInsideAreThoseOfThePlainTest()
{
    // Some coordinates are whole, and some a little off: the rules for level edges, ends and vertices.
    QFETCH(QRect, box);
    QFETCH(float, reach);
    std::mt19937 generator{11};
    std::uniform_int_distribution<int> kind(0, 5);
    const auto Coordinate = [&](int nFirst, int nLast) {
        const int nKind = kind(generator);
        const float fBeyond = kind(generator) % 2 == 0 ? reach : 1.0F;
        std::uniform_real_distribution<float> anywhere(float(nFirst) - fBeyond, float(nLast) + fBeyond);
        const float fAnywhere = anywhere(generator);
        constexpr float c_arrOff[] = {0.0F, 0.00009F, -0.00009F, 0.0002F};
        return nKind < 4 ? std::round(fAnywhere) + c_arrOff[nKind] : fAnywhere;
    };
    for (int nRound = 0; nRound < 3000; ++nRound) {
        std::vector<Point> vecOutline;
        for (int i = 0; i < 3 + nRound % 6; ++i) {
            const float fX = Coordinate(box.left(), box.right());
            vecOutline.push_back({fX, Coordinate(box.top(), box.bottom())});
        }
        QCOMPARE(Difference(vecOutline, box), QString());
    }
}

void TestChromaOutlineSpans::ABoxWithoutPixelsHasNoSpans()
{
    const CChromaOutlineSpans spans({{0.0F, 0.0F}, {9.0F, 0.0F}, {0.0F, 9.0F}}, QRect());
    QVERIFY(spans.VertexPixels().empty());
}

QTEST_APPLESS_MAIN(TestChromaOutlineSpans)
#include "TestChromaOutlineSpans.moc"
