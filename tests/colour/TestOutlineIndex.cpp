#include "SenderModuleDialog/colour/OutlineIndex.h"
#include "SenderModuleDialog/colour/SpectralLocus.h"

#include <QtTest>

#include <limits>
#include <random>

Q_DECLARE_METATYPE(QVector<QPointF>)

/// The inside test by bands of height, beside the walk over all edges.
class TestOutlineIndex : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheReachOfAVertex_data();
    void TheReachOfAVertex();
    void AnOutlineWithoutPointsContainsNothing();
    void TheIndexAnswersLikeTheWalk_data();
    void TheIndexAnswersLikeTheWalk();
    void NotANumberIsOutside_data();
    void NotANumberIsOutside();
    void ThePointsAreTheOutlineInSinglePrecision();

private:
    std::mt19937 m_engine{20240229};
};

void TestOutlineIndex::TheReachOfAVertex_data()
{
    QTest::addColumn<float>("offsetX");
    QTest::addColumn<float>("offsetY");
    QTest::addColumn<bool>("expected");
    QTest::newRow("at it") << 0.0F << 0.0F << true;
    QTest::newRow("diagonal, within both") << 0.00009F << -0.00009F << true;
    QTest::newRow("beyond it in x") << 0.00011F << 0.0F << false;
    QTest::newRow("beyond it in y") << 0.0F << -0.00011F << false;
}

void TestOutlineIndex::TheReachOfAVertex()
{
    QFETCH(float, offsetX);
    QFETCH(float, offsetY);
    const CPointEx<float> ptVertex(0.25F, 0.5F);
    QTEST(OutlineTest::IsAtVertex({ptVertex.x + offsetX, ptVertex.y + offsetY}, ptVertex), "expected");
}

void TestOutlineIndex::AnOutlineWithoutPointsContainsNothing()
{
    QVERIFY(!OutlineTest::Contains({}, QPointF(0.0, 0.0)));
}

void TestOutlineIndex::TheIndexAnswersLikeTheWalk_data()
{
    QTest::addColumn<QVector<QPointF>>("outline");
    QTest::newRow("the locus") << SpectralLocus::Outline();
    QTest::newRow("a dented outline") << QVector<QPointF>{{0.1, 0.1}, {0.7, 0.1}, {0.4, 0.3}, {0.7, 0.8}};
    QTest::newRow("edges that cross") << QVector<QPointF>{{0.1, 0.1}, {0.7, 0.8}, {0.7, 0.1}, {0.1, 0.8}};
    QTest::newRow("a level line") << QVector<QPointF>{{0.1, 0.5}, {0.7, 0.5}};
    QTest::newRow("one point") << QVector<QPointF>{{0.5, 0.5}};
}

void TestOutlineIndex::TheIndexAnswersLikeTheWalk()
{
    QFETCH(QVector<QPointF>, outline);
    const COutlineIndex index(outline);
    std::uniform_real_distribution<double> place(-0.1, 1.0);
    std::uniform_real_distribution<double> near(-0.00015, 0.00015);
    for (int i = 0; i < 20000; ++i) {
        const QPointF ptVertex = outline[i % outline.size()];
        for (const QPointF& pt :
             {QPointF(place(m_engine), place(m_engine)), ptVertex + QPointF(near(m_engine), near(m_engine)),
              QPointF(place(m_engine), ptVertex.y())}) {
            if (index.Contains(pt) != OutlineTest::Contains(outline, pt))
                QFAIL(qPrintable(QStringLiteral("(%1, %2)").arg(pt.x(), 0, 'g', 17).arg(pt.y(), 0, 'g', 17)));
        }
    }
}

void TestOutlineIndex::NotANumberIsOutside_data()
{
    QTest::addColumn<QPointF>("pt");
    const double dNaN = std::numeric_limits<double>::quiet_NaN();
    const double dInfinity = std::numeric_limits<double>::infinity();
    QTest::newRow("x is NaN") << QPointF(dNaN, 0.3);
    QTest::newRow("y is NaN") << QPointF(0.3, dNaN);
    QTest::newRow("y is infinite") << QPointF(0.3, dInfinity);
}

void TestOutlineIndex::NotANumberIsOutside()
{
    QFETCH(QPointF, pt);
    QVERIFY(!COutlineIndex(SpectralLocus::Outline()).Contains(pt));
}

void TestOutlineIndex::ThePointsAreTheOutlineInSinglePrecision()
{
    const COutlineIndex index({{0.1, 0.2}, {0.5, 0.25}, {0.3, 0.7}});
    QCOMPARE(index.Points().size(), 3);
    QVERIFY(index.Points()[0].x == 0.1F && index.Points()[0].y == 0.2F);
    QVERIFY(index.Points()[2].x == 0.3F && index.Points()[2].y == 0.7F);
}

QTEST_APPLESS_MAIN(TestOutlineIndex)
#include "TestOutlineIndex.moc"
