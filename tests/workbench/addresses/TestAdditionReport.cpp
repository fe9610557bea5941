#include "simulator/CommonClass/AddressText.h"
#include "workbench/addresses/AdditionReport.h"

#include <QtTest>

namespace {

QStringList Texts(std::initializer_list<const char*> listTexts)
{
    QStringList listResult;
    for (const char* szText : listTexts)
        listResult.append(QString::fromLatin1(szText));
    return listResult;
}

/// 192.168.1.22 and .23 are in the list, .24 is the gateway's.
enAddressVerdict Verdict(unsigned int nAddress)
{
    const QString strAddress = AddressText(nAddress);
    if (strAddress == QStringLiteral("192.168.1.22") || strAddress == QStringLiteral("192.168.1.23"))
        return enAddressInUse;
    return strAddress == QStringLiteral("192.168.1.24") ? enAddressOfGateway : enAddressGood;
}

} // namespace

class TestAdditionReport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ItTellsWhatHappened_data();
    void ItTellsWhatHappened();
};

void TestAdditionReport::ItTellsWhatHappened_data()
{
    QTest::addColumn<QStringList>("added");
    QTest::addColumn<QString>("expected");
    QTest::newRow("nothing was added") << QStringList() << QString();
    QTest::newRow("one") << Texts({"192.168.1.20()"}) << QStringLiteral("已添加 1 个地址：192.168.1.20。");
    QTest::newRow("refused ones are left out, by the reason")
        << Texts({"192.168.1.21(a)", "192.168.1.25(b)"})
        << QStringLiteral("已添加 2 个地址：192.168.1.21、192.168.1.25。 "
                          "略过 2 个：192.168.1.22、192.168.1.23（已在列表中）。 "
                          "略过 1 个：192.168.1.24（默认网关的地址）。");
    QTest::newRow("good ones between rows typed by hand were not tried")
        << Texts({"192.168.1.30()", "192.168.1.33()"})
        << QStringLiteral("已添加 2 个地址：192.168.1.30、192.168.1.33。");
    QTest::newRow("a leap to another network leaves nothing out")
        << Texts({"192.168.1.21()", "192.168.9.1()"})
        << QStringLiteral("已添加 2 个地址：192.168.1.21、192.168.9.1。");
    QTest::newRow("many are shortened")
        << Texts({"10.0.0.1()", "10.0.0.2()", "10.0.0.3()", "10.0.0.4()", "10.0.0.5()"})
        << QStringLiteral("已添加 5 个地址：10.0.0.1 至 10.0.0.5。");
}

void TestAdditionReport::ItTellsWhatHappened()
{
    QFETCH(QStringList, added);
    const QStringList listBefore = {QStringLiteral("192.168.1.22()"), QStringLiteral("192.168.1.23()")};
    QTEST(AdditionReport::Of(listBefore, listBefore + added, Verdict), "expected");
}

QTEST_APPLESS_MAIN(TestAdditionReport)
#include "TestAdditionReport.moc"
