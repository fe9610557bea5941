#include "SenderModuleDialog/edid/EdidEnvironment.h"

#include <QElapsedTimer>
#include <QSysInfo>
#include <QtTest>

/// What the EDID dialog takes from the machine.
class TestEdidEnvironment : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheSystemIsThisMachine();
    void AWaitLastsAtLeastItsTime();
    void AReplacedFunctionIsSeenEverywhere();
};

void TestEdidEnvironment::TheSystemIsThisMachine()
{
    QCOMPARE(EdidEnvironment().funcProductType(), QSysInfo::productType());
    QCOMPARE(EdidEnvironment().funcProductVersion(), QSysInfo::productVersion());
}

void TestEdidEnvironment::AWaitLastsAtLeastItsTime()
{
    QElapsedTimer timer;
    timer.start();
    EdidEnvironment().funcWait(2000);
    QVERIFY(timer.nsecsElapsed() >= 2000000);
}

void TestEdidEnvironment::AReplacedFunctionIsSeenEverywhere()
{
    const SEdidEnvironment before = EdidEnvironment();
    EdidEnvironment().funcProductType = [] { return QStringLiteral("kylin"); };
    const QString strSeen = EdidEnvironment().funcProductType();
    EdidEnvironment() = before;
    QCOMPARE(strSeen, QStringLiteral("kylin"));
}

QTEST_APPLESS_MAIN(TestEdidEnvironment)
#include "TestEdidEnvironment.moc"
