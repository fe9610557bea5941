#include "SenderModuleDialog/addressing/LocalAddresses.h"

#include <QNetworkInterface>
#include <QtTest>

/// Where the addresses of this computer come from.
class TestLocalAddresses : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheyAreThoseOfTheSystem();
    void AnotherSourceReplacesThem();
    void AnEmptySourceRestoresTheSystem();
};

void TestLocalAddresses::TheyAreThoseOfTheSystem()
{
    QCOMPARE(LocalAddresses::All(), QNetworkInterface::allAddresses());
}

void TestLocalAddresses::AnotherSourceReplacesThem()
{
    const QList<QHostAddress> listScripted = {QHostAddress(QStringLiteral("10.1.2.3")),
                                              QHostAddress(QStringLiteral("10.1.2.1"))};
    LocalAddresses::SetSource([listScripted] { return listScripted; });
    const QList<QHostAddress> listSeen = LocalAddresses::All();
    LocalAddresses::SetSource({});
    QCOMPARE(listSeen, listScripted);
}

void TestLocalAddresses::AnEmptySourceRestoresTheSystem()
{
    LocalAddresses::SetSource([] { return QList<QHostAddress>(); });
    LocalAddresses::SetSource({});
    QCOMPARE(LocalAddresses::All(), QNetworkInterface::allAddresses());
}

QTEST_GUILESS_MAIN(TestLocalAddresses)
#include "TestLocalAddresses.moc"
