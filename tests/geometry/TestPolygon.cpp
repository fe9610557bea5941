#include "SenderModuleDialog/geometry/Polygon.h"
#include "tests/support/ExactCompare.h"

#include <QtTest>

class TestPolygon : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheHullRunsCounterClockwiseFromTheLowestPoint();
    void APointOutsideMovesToItsFootNudgedInside();
};

void TestPolygon::TheHullRunsCounterClockwiseFromTheLowestPoint()
{
    CPolygon polygon(QVector<QPointF>{{0, 1}, {0.5, 0.5}, {1, 1}, {0, 0}, {1, 0}});
    polygon.GrahamScan();
    QCOMPARE(polygon, CPolygon(QPolygonF({{0, 0}, {1, 0}, {1, 1}, {0, 1}})));
}

void TestPolygon::APointOutsideMovesToItsFootNudgedInside()
{
    const CPolygon polygon(QVector<QPointF>{{0, 0}, {1, 0}, {1, 1}, {0, 1}});
    QPointF pt(0.25, -0.5);
    QVERIFY(polygon.GetPointCloser(&pt));
    QVERIFY(polygon.containsPoint(pt, Qt::WindingFill));
    QVERIFY(pt.y() < 1e-5);
    QVERIFY(qAbs(pt.x() - 0.25) < 1e-5);
}

QTEST_APPLESS_MAIN(TestPolygon)
#include "TestPolygon.moc"
