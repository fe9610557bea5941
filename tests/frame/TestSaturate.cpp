#include "SenderModuleDialog/Saturate.h"

#include <QtTest>

#include <limits>

class TestSaturate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void FractionsAreCutTowardsZero();
    void FloatsBeyondTheRangeGiveItsEnd();
    void TheLargestIntIsReachedOnlyByWhatIsNearIt();
    void InfinityGivesTheEndOfTheRange();
    void WhatIsNoNumberGivesZero();
    void IntegersBeyondTheRangeGiveItsEnd();
    void NegativeIntegersOfAnUnsignedTypeAreZero();
};

void TestSaturate::FractionsAreCutTowardsZero()
{
    QCOMPARE(SaturateTo<int>(2.9), 2);
    QCOMPARE(SaturateTo<int>(-2.9F), -2);
    QCOMPARE(SaturateTo<quint8>(-0.9), quint8(0));
}

void TestSaturate::FloatsBeyondTheRangeGiveItsEnd()
{
    QCOMPARE(SaturateTo<int>(1e30F), std::numeric_limits<int>::max());
    QCOMPARE(SaturateTo<int>(-1e30), std::numeric_limits<int>::min());
    QCOMPARE(SaturateTo<quint16>(65536.0), quint16(65535));
    QCOMPARE(SaturateTo<quint16>(-1.0F), quint16(0));
    QCOMPARE(SaturateTo<qint64>(1e30), std::numeric_limits<qint64>::max());
}

void TestSaturate::TheLargestIntIsReachedOnlyByWhatIsNearIt()
{
    QCOMPARE(SaturateTo<int>(2147483647.0), 2147483647);
    QCOMPARE(SaturateTo<int>(2147483646.9), 2147483646);
    QCOMPARE(SaturateTo<int>(2147483520.0F), 2147483520); // the largest float below the limit
    QCOMPARE(SaturateTo<int>(2147483648.0F), 2147483647);
    QCOMPARE(SaturateTo<int>(-2147483648.0), std::numeric_limits<int>::min());
}

void TestSaturate::InfinityGivesTheEndOfTheRange()
{
    QCOMPARE(SaturateTo<int>(std::numeric_limits<float>::infinity()), std::numeric_limits<int>::max());
    QCOMPARE(SaturateTo<int>(-std::numeric_limits<double>::infinity()), std::numeric_limits<int>::min());
}

void TestSaturate::WhatIsNoNumberGivesZero()
{
    QCOMPARE(SaturateTo<int>(std::numeric_limits<float>::quiet_NaN()), 0);
    QCOMPARE(SaturateTo<quint16>(std::numeric_limits<double>::quiet_NaN()), quint16(0));
}

void TestSaturate::IntegersBeyondTheRangeGiveItsEnd()
{
    QCOMPARE(SaturateTo<quint16>(70000), quint16(65535));
    QCOMPARE(SaturateTo<int>(qint64(1) << 40), std::numeric_limits<int>::max());
    QCOMPARE(SaturateTo<int>(-(qint64(1) << 40)), std::numeric_limits<int>::min());
    QCOMPARE(SaturateTo<int>(4000000000U), std::numeric_limits<int>::max());
    QCOMPARE(SaturateTo<int>(-5), -5);
    QCOMPARE(SaturateTo<quint16>(1920), quint16(1920));
}

void TestSaturate::NegativeIntegersOfAnUnsignedTypeAreZero()
{
    QCOMPARE(SaturateTo<quint16>(-1), quint16(0));
    QCOMPARE(SaturateTo<quint8>(-300), quint8(0));
}

QTEST_APPLESS_MAIN(TestSaturate)
#include "TestSaturate.moc"
