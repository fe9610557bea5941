#include "tests/simulator/SimulatorTest.h"

#include <algorithm>
#include <functional>

namespace {

/// Sender types that the EDID dialog, the output dialogs and the demo dialog tell apart.
const QList<int> c_listTypesToldApart = {16, 17, 19, 20, 21, 23, 24, 26, 27, 28, 29, 30,    31, 34,
                                         35, 36, 37, 38, 39, 40, 41, 42, 43, 44, 46, 49,    50, 51,
                                         53, 54, 59, 61, 62, 63, 65, 66, 68, 69, 73, 131074};

using FuncCapability = std::function<bool(const SSenderCapability&)>;

QString CatalogueWith(const QString& strSender)
{
    return QStringLiteral(R"({
        "limits": [{"name": "l", "maxPixelClock": 0, "limit": {"maxWidth": 1, "maxHeight": 2, "maxArea": 3,
                    "byPixelClock": false, "resolutions": ["1x2"]}}],
        "inputSets": [{"name": "s", "inputs": [{"interface": 16, "name": "HDMI", "limit": "l"}]},
                      {"name": "t", "inputs": [{"interface": 16, "name": "HDMI", "limit": "unknown limit"}]}],
        "families": [{"name": "f", "outputPorts": 4, "inputs": "s", "videoProcessor": true, "support10Bit": true,
                      "support12Bit": false, "extendedEdid": true, "canvasFromHardware": true,
                      "extensionBlock": false, "factorySetting": false,
                      "canvasLimit": {"maxWidth": 1, "maxHeight": 2, "maxArea": 3}}],
        "senders": [%1]})")
        .arg(strSender);
}

} // namespace

Q_DECLARE_METATYPE(FuncCapability)

class TestCatalogue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EverySenderTypeThatIsToldApartIsThere();
    void SomeTypesBelongToNoSet();
    void TheDemoListHasItsNames_data();
    void TheDemoListHasItsNames();
    void EveryKindOfInterfaceIsThere_data();
    void EveryKindOfInterfaceIsThere();
    void EachCapabilityIsThereAndMissing_data();
    void EachCapabilityIsThereAndMissing();
    void EverySenderIsComplete();
    void AFactoryNewSenderBreaksNoOutputLimit();
    void InputsLimitedByAreaAndByPixelClockAreThere();
    void AFixedInputHasLongAndShortLists();
    void WhatIsWrongWithACatalogueIsNamed_data();
    void WhatIsWrongWithACatalogueIsNamed();
};

void TestCatalogue::EverySenderTypeThatIsToldApartIsThere()
{
    for (const int nType : c_listTypesToldApart)
        QVERIFY2(CCatalogue::Instance().Contains(nType), qPrintable(QString::number(nType)));
}

void TestCatalogue::SomeTypesBelongToNoSet()
{
    const QList<int> listTypes = CCatalogue::Instance().Types();
    QVERIFY(std::any_of(listTypes.cbegin(), listTypes.cend(),
                        [](int nType) { return !c_listTypesToldApart.contains(nType); }));
}

void TestCatalogue::TheDemoListHasItsNames_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("name");
    QTest::newRow("M6K") << 21 << QStringLiteral("M6K");
    QTest::newRow("R16 PRO") << 46 << QStringLiteral("R16 PRO");
    QTest::newRow("T4") << 16 << QStringLiteral("T4");
    QTest::newRow("T6") << 17 << QStringLiteral("T6");
    QTest::newRow("T6 PRO") << 35 << QStringLiteral("T6 PRO");
    QTest::newRow("T8") << 131074 << QStringLiteral("T8");
    QTest::newRow("a type that is not there") << 9999 << QString();
}

void TestCatalogue::TheDemoListHasItsNames()
{
    QFETCH(int, type);
    QFETCH(QString, name);
    QCOMPARE(CCatalogue::Instance().ModelName(type), name);
}

void TestCatalogue::EveryKindOfInterfaceIsThere_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");
    QTest::newRow("the group 1 to 4") << 1 << 4;
    QTest::newRow("DVI 5 to 8, beside that group") << 5 << 8;
    QTest::newRow("the group 16 to 19") << 16 << 19;
    QTest::newRow("20, just outside that group") << 20 << 20;
    QTest::newRow("others") << 32 << 33;
    QTest::newRow("the fixed input") << 132 << 132;
}

void TestCatalogue::EveryKindOfInterfaceIsThere()
{
    QFETCH(int, first);
    QFETCH(int, last);
    QSet<int> setFound;
    for (const int nType : CCatalogue::Instance().Types()) {
        const SSimulatedSender sender = *CCatalogue::Instance().NewSender(nType);
        for (int nId = first; nId <= last; ++nId) {
            if (sender.FindInput(nId) != nullptr)
                setFound.insert(nId);
        }
    }
    QCOMPARE(setFound.size(), last - first + 1);
}

void TestCatalogue::EachCapabilityIsThereAndMissing_data()
{
    QTest::addColumn<FuncCapability>("capability");
    const auto Row = [](const char* szName, const FuncCapability& funcCapability) {
        QTest::newRow(szName) << funcCapability;
    };
    Row("video processor", [](const SSenderCapability& c) { return c.bVideoProcessor; });
    Row("10 bit", [](const SSenderCapability& c) { return c.bSupport10Bit; });
    Row("12 bit", [](const SSenderCapability& c) { return c.bSupport12Bit; });
    Row("12 without 10 bit", [](const SSenderCapability& c) { return c.bSupport12Bit && !c.bSupport10Bit; });
    Row("full EDID record", [](const SSenderCapability& c) { return c.bExtendedEdid; });
    Row("canvas from the hardware", [](const SSenderCapability& c) { return c.bCanvasFromHardware; });
    Row("extension block", [](const SSenderCapability& c) { return c.bExtensionBlock; });
}

void TestCatalogue::EachCapabilityIsThereAndMissing()
{
    QFETCH(FuncCapability, capability);
    const QList<int> listTypes = CCatalogue::Instance().Types();
    const auto Has = [&](int nType) {
        return capability(CCatalogue::Instance().NewSender(nType)->capability);
    };
    QVERIFY(std::any_of(listTypes.cbegin(), listTypes.cend(), Has));
    QVERIFY(!std::all_of(listTypes.cbegin(), listTypes.cend(), Has));
}

void TestCatalogue::EverySenderIsComplete()
{
    for (const int nType : CCatalogue::Instance().Types()) {
        const SSimulatedSender sender = *CCatalogue::Instance().NewSender(nType);
        const QByteArray baType = QByteArray::number(nType);
        QCOMPARE(sender.capability.nType, nType);
        QVERIFY2(!sender.capability.strModel.isEmpty(), baType.constData());
        QVERIFY2(!sender.listInputs.empty(), baType.constData());
        QVERIFY2(sender.record.nOutputPortCount > 0, baType.constData());
        for (const SSimulatedInput& input : sender.listInputs) {
            QVERIFY2(!input.limit.listResolution.isEmpty(), baType.constData());
            QVERIFY2(input.limit.bLimitByPixelClock ? input.nMaxPixelClock > 0 : input.limit.nMaxArea > 0,
                     baType.constData());
        }
    }
}

void TestCatalogue::AFactoryNewSenderBreaksNoOutputLimit()
{
    constexpr int c_nPortArea = 655360;
    for (const int nType : CCatalogue::Instance().Types()) {
        const CSender record = CCatalogue::Instance().NewSender(nType)->record;
        QVERIFY2(record.sizeCanvas.width() * record.sizeCanvas.height() <=
                     record.nOutputPortCount * c_nPortArea,
                 QByteArray::number(nType).constData());
    }
}

void TestCatalogue::InputsLimitedByAreaAndByPixelClockAreThere()
{
    QSet<bool> setKinds;
    for (const int nType : CCatalogue::Instance().Types()) {
        const SSimulatedSender sender = *CCatalogue::Instance().NewSender(nType);
        for (const SSimulatedInput& input : sender.listInputs)
            setKinds.insert(input.limit.bLimitByPixelClock);
    }
    QCOMPARE(setKinds.size(), 2);
}

void TestCatalogue::AFixedInputHasLongAndShortLists()
{
    // A size outside the list opens at entry 4 of the fixed input, so a list below four entries
    // is tested separately.
    QSet<bool> setKinds;
    for (const int nType : CCatalogue::Instance().Types()) {
        const SSimulatedSender sender = *CCatalogue::Instance().NewSender(nType);
        const SSimulatedInput* pInput = sender.FindInput(132);
        if (pInput != nullptr)
            setKinds.insert(pInput->limit.listResolution.size() < 4);
    }
    QCOMPARE(setKinds.size(), 2);
}

void TestCatalogue::WhatIsWrongWithACatalogueIsNamed_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<QString>("place");
    QTest::addColumn<QString>("text");
    const QString strGood = QStringLiteral(R"({"type": 1, "model": "m", "family": "f"})");
    QTest::newRow("good") << CatalogueWith(strGood) << QString() << QString();
    QTest::newRow("no JSON") << QStringLiteral("{") << QString() << QStringLiteral("not JSON");
    QTest::newRow("a type twice") << CatalogueWith(strGood + QLatin1Char(',') + strGood)
                                  << QStringLiteral("senders[1]") << QStringLiteral("type 1");
    QTest::newRow("unknown family") << CatalogueWith(QString(strGood).replace(QStringLiteral("\"f\""),
                                                                              QStringLiteral("\"g\"")))
                                    << QStringLiteral("senders[0]") << QStringLiteral("\"g\"");
    QTest::newRow("unknown limit") << CatalogueWith(strGood).replace(QStringLiteral("\"inputs\": \"s\""),
                                                                     QStringLiteral("\"inputs\": \"t\""))
                                   << QStringLiteral("senders[0]") << QStringLiteral("\"unknown limit\"");
    QTest::newRow("a misspelt key") << CatalogueWith(strGood).replace(QStringLiteral("outputPorts"),
                                                                      QStringLiteral("outputPort"))
                                    << QStringLiteral("families[0]")
                                    << QStringLiteral("\"outputPorts\" is missing");
}

void TestCatalogue::WhatIsWrongWithACatalogueIsNamed()
{
    QFETCH(QString, json);
    QFETCH(QString, place);
    QFETCH(QString, text);
    SFileProblem problem;
    const CCatalogue catalogue = CCatalogue::FromJson(json.toUtf8(), problem);
    QCOMPARE(problem.strPlace, place);
    QCOMPARE(problem.IsSet(), !text.isEmpty());
    QVERIFY2(problem.strWhat.contains(text), qPrintable(problem.strWhat));
    QCOMPARE(catalogue.Types().isEmpty(), !text.isEmpty());
}

QTEST_GUILESS_MAIN(TestCatalogue)
#include "TestCatalogue.moc"
