#include "SenderModuleDialog/colour/NearestRowSearch.h"
#include "oracles/colour/PlainColorimetry.h"

#include <QtTest>

#include <limits>
#include <random>

Q_DECLARE_METATYPE(SNearestRow)

bool operator==(const SNearestRow& first, const SNearestRow& second)
{
    return first.nNearest == second.nNearest && first.bImproved == second.bImproved &&
           first.nStop == second.nStop;
}

namespace QTest {

template <>
char* toString(const SNearestRow& row)
{
    return qstrdup(qPrintable(QStringLiteral("nearest %1, improved %2, stop %3")
                                  .arg(row.nNearest)
                                  .arg(int(row.bImproved))
                                  .arg(row.nStop)));
}

} // namespace QTest

namespace {

/// The usual table: 4000 K to 25000 K.
QVector<sCIE1931> TemperatureRows()
{
    const std::vector<sCIE1931> vecRows = PlainColorimetry::MakeRows();
    return QVector<sCIE1931>(vecRows.begin(), vecRows.end());
}

/// Rows on the u axis.
QVector<sCIE1931> RowsAt(const QVector<double>& vecU)
{
    QVector<sCIE1931> vecRows(vecU.size());
    for (int i = 0; i < vecU.size(); ++i)
        vecRows[i].dU = vecU[i];
    return vecRows;
}

SNearestRow Walk(const QVector<sCIE1931>& vecRows, QPointF uvPoint)
{
    return WalkToNearestRow(uvPoint, vecRows.constData(), vecRows.size());
}

} // namespace

/// The search that skips rows, beside the walk over all of them.
class TestNearestRowSearch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheWalkEndsAtTheFirstRowThatDoesNotImprove_data();
    void TheWalkEndsAtTheFirstRowThatDoesNotImprove();
    void TheSearchEndsWhereTheWalkEnds_data();
    void TheSearchEndsWhereTheWalkEnds();
    void PointsOutOfReachAreWalked_data();
    void PointsOutOfReachAreWalked();
    void ASearchIsForTheSharedTableAlone();
};

void TestNearestRowSearch::TheWalkEndsAtTheFirstRowThatDoesNotImprove_data()
{
    QTest::addColumn<QVector<double>>("rows");
    QTest::addColumn<double>("u");
    QTest::addColumn<SNearestRow>("expected");
    QTest::newRow("no rows") << QVector<double>{} << 0.0 << SNearestRow{0, false, -1};
    QTest::newRow("always nearer: the table ends it")
        << QVector<double>{3.0, 2.0, 1.0} << 0.0 << SNearestRow{2, true, -1};
    QTest::newRow("the same distance ends it, and nearer rows behind do not count")
        << QVector<double>{3.0, 2.0, 2.0, 1.0} << 0.0 << SNearestRow{1, true, 2};
    QTest::newRow("a farther row ends it")
        << QVector<double>{2.0, 3.0, 1.0} << 0.0 << SNearestRow{0, true, 1};
    QTest::newRow("a difference below single precision does not improve")
        << QVector<double>{1.0, 1.0 - 1e-9, 0.5} << 0.0 << SNearestRow{0, true, 1};
    QTest::newRow("rows beyond 10 neither improve nor end it")
        << QVector<double>{12.0, 11.0, 9.0, 12.0, 8.0} << 0.0 << SNearestRow{4, true, -1};
    QTest::newRow("nor do rows at 10") << QVector<double>{10.0, 9.0} << 0.0 << SNearestRow{1, true, -1};
    QTest::newRow("NaN is never nearer")
        << QVector<double>{1.0, 0.5} << std::numeric_limits<double>::quiet_NaN() << SNearestRow{0, false, -1};
}

void TestNearestRowSearch::TheWalkEndsAtTheFirstRowThatDoesNotImprove()
{
    QFETCH(QVector<double>, rows);
    QFETCH(double, u);
    QTEST(Walk(RowsAt(rows), QPointF(u, 0.0)), "expected");
}

void TestNearestRowSearch::TheSearchEndsWhereTheWalkEnds_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("count");
    QTest::newRow("the usual table") << 0 << 4201;
    QTest::newRow("from its middle") << 2000 << 1500;
    QTest::newRow("fewer rows than a block") << 100 << 5;
    QTest::newRow("a block and one row") << 0 << 9;
    QTest::newRow("two rows") << 4000 << 2;
}

void TestNearestRowSearch::TheSearchEndsWhereTheWalkEnds()
{
    QFETCH(int, first);
    QFETCH(int, count);
    const QVector<sCIE1931> vecRows = TemperatureRows().mid(first, count);
    const CNearestRowSearch search(vecRows);
    std::mt19937 engine(20240229);
    for (const double dOffset : {1e-6, 1e-3, 0.1, 3.0}) {
        std::uniform_real_distribution<double> offset(-dOffset, dOffset);
        for (int i = 0; i < 1000; ++i) {
            const sCIE1931& row = vecRows[int(engine() % unsigned(vecRows.size()))];
            const QPointF uv(row.dU + offset(engine), row.dV + offset(engine));
            QCOMPARE(search.Find(uv), Walk(vecRows, uv));
        }
    }
}

void TestNearestRowSearch::PointsOutOfReachAreWalked_data()
{
    QTest::addColumn<QPointF>("uv");
    const double dInfinity = std::numeric_limits<double>::infinity();
    QTest::newRow("beyond the reach") << QPointF(4.5, 0.3);
    QTest::newRow("farther than the walk's start") << QPointF(50.0, 50.0);
    QTest::newRow("infinite") << QPointF(-dInfinity, 0.3);
    QTest::newRow("NaN") << QPointF(0.2, std::numeric_limits<double>::quiet_NaN());
}

void TestNearestRowSearch::PointsOutOfReachAreWalked()
{
    QFETCH(QPointF, uv);
    const QVector<sCIE1931> vecRows = TemperatureRows();
    QCOMPARE(CNearestRowSearch(vecRows).Find(uv), Walk(vecRows, uv));
}

void TestNearestRowSearch::ASearchIsForTheSharedTableAlone()
{
    const QVector<sCIE1931> vecRows = TemperatureRows();
    const CNearestRowSearch search(vecRows);
    QVector<sCIE1931> vecCopy = vecRows;
    QVERIFY(search.IsFor(vecCopy));
    vecCopy[0].dU = 0.5;
    QVERIFY(!search.IsFor(vecCopy));
    QVERIFY(!search.IsFor(TemperatureRows()));
}

QTEST_APPLESS_MAIN(TestNearestRowSearch)
#include "TestNearestRowSearch.moc"
