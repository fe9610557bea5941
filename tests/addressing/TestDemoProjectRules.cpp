#include "SenderModuleDialog/addressing/DemoProjectRules.h"

#include <QtTest>

#include <climits>

class TestDemoProjectRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EachIndexHasItsType_data();
    void EachIndexHasItsType();
    void AnIndexOutsideTheTableHasNoType_data();
    void AnIndexOutsideTheTableHasNoType();
};

void TestDemoProjectRules::EachIndexHasItsType_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("type");
    QTest::newRow("the first") << 0 << "M6K" << 21;
    QTest::newRow("a name of two words") << 1 << "R16 PRO" << 46;
    QTest::newRow("the last") << 5 << "T8" << 131074;
}

void TestDemoProjectRules::EachIndexHasItsType()
{
    QFETCH(int, index);
    QFETCH(QString, name);
    QFETCH(int, type);
    QCOMPARE(DemoProjectRules::NameAt(index), name);
    const DemoProjectRules::SDemoType* pType = DemoProjectRules::TypeAt(index);
    QVERIFY(pType != nullptr);
    QCOMPARE(pType->nSenderType, type);
}

void TestDemoProjectRules::AnIndexOutsideTheTableHasNoType_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("just below") << -1;
    QTest::newRow("just above") << 6;
    QTest::newRow("the least int") << INT_MIN;
    QTest::newRow("the greatest int") << INT_MAX;
}

void TestDemoProjectRules::AnIndexOutsideTheTableHasNoType()
{
    QFETCH(int, index);
    QCOMPARE(DemoProjectRules::TypeAt(index), nullptr);
    QCOMPARE(DemoProjectRules::NameAt(index), QString());
}

QTEST_APPLESS_MAIN(TestDemoProjectRules)
#include "TestDemoProjectRules.moc"
