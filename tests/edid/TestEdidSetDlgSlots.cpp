#include "host/OrviControl/CustomComboBox.h"
#include "host/OrviControl/CustomSpinBox.h"
#include "tests/edid/EdidDialogHost.h"
#include "tests/support/DeathTest.h"

#include <QtTest>

#include <QAction>
#include <QMetaMethod>
#include <QPushButton>

#include <limits>

/// What the meta-object carries, and the translation between records and indices.
class TestEdidSetDlgSlots : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheMetaObjectListsTheSlotsInOrder();
    void TheDialogIsAChildOfTheCommonBase();
    void EverySlotCanBeInvokedByName();
    void HandlersIgnoreIndices_data();
    void HandlersIgnoreIndices();
    void TheResolutionSlotHasNoUpperBound();
    void TheRateSlotHasNoUpperBound();
    void TheRateSlotWithoutAnActionFaults();
    void TheTimingStandardIsHeldAgainstTheFormats();
    void IndexByResolution();
    void IndexByFrameRateLeavesTheIndexAloneForOtherRates();
    void IndexByColorDepthStoresInTheMember();
    void IndexByColorFormat();
    void ResolutionByIndex();
    void FrameRateByIndexClearsItsResults();
    void ColorDepthByIndexTakesTheMember();
    void ColorDepthByIndexChecksItsArgument();
    void ColorFormatByIndex();
    void SenderConnectPC_data();
    void SenderConnectPC();
    void RateIndexMax();
};

void TestEdidSetDlgSlots::TheMetaObjectListsTheSlotsInOrder()
{
    const QMetaObject& meta = CEdidSetDlg::staticMetaObject;
    QStringList listMethods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        QCOMPARE(method.methodType(), QMetaMethod::Slot);
        listMethods.append(
            QString::fromLatin1(method.methodSignature() + ' ' + method.parameterNames().join(',')));
    }
    const QStringList listExpected = {
        QStringLiteral("OnWidthSpinBoxValueChanged() "),
        QStringLiteral("OnHeightSpinBoxValueChanged() "),
        QStringLiteral("OnResolutionComboBoxSelect(int) index"),
        QStringLiteral("OnRateComboBoxSelect(QAction*) action"),
        QStringLiteral("OnColorDepthComboBoxSelect(int) index"),
        QStringLiteral("OnColorFormatComboBoxSelect(int) index"),
        QStringLiteral("OnTimingStandardComboBoxSelect(int) index"),
        QStringLiteral("OnOKPushButtonClicked() "),
        QStringLiteral("OnCancelPushButtonClicked() "),
    };
    QCOMPARE(listMethods, listExpected);
}

void TestEdidSetDlgSlots::TheDialogIsAChildOfTheCommonBase()
{
    QVERIFY(CEdidSetDlg::staticMetaObject.superClass() == &CCustomDialog::staticMetaObject);
}

void TestEdidSetDlgSlots::EverySlotCanBeInvokedByName()
{
    CEdidHost host;
    CEdidDialog dialog(host);
    QAction action;
    action.setData(5);
    CEdidSetDlg* pDlg = &dialog.dlg;
    QVERIFY(QMetaObject::invokeMethod(pDlg, "OnResolutionComboBoxSelect", Q_ARG(int, 3)));
    QVERIFY(QMetaObject::invokeMethod(pDlg, "OnRateComboBoxSelect", Q_ARG(QAction*, &action)));
    QVERIFY(QMetaObject::invokeMethod(pDlg, "OnColorDepthComboBoxSelect", Q_ARG(int, 2)));
    QVERIFY(QMetaObject::invokeMethod(pDlg, "OnColorFormatComboBoxSelect", Q_ARG(int, 3)));
    QVERIFY(QMetaObject::invokeMethod(pDlg, "OnTimingStandardComboBoxSelect", Q_ARG(int, 1)));
    QCOMPARE(dialog.probe.ResolutionIndex(), 3);
    QCOMPARE(dialog.probe.RateIndex(), 5);
    QCOMPARE(dialog.probe.DepthIndex(), 2);
    QCOMPARE(dialog.probe.FormatIndex(), 3);
    QCOMPARE(int(dialog.probe.TimingStandard()), 1);

    host.record.Clear();
    QVERIFY(QMetaObject::invokeMethod(pDlg, "OnWidthSpinBoxValueChanged"));
    QVERIFY(QMetaObject::invokeMethod(pDlg, "OnHeightSpinBoxValueChanged"));
    QCOMPARE(host.record.Count(QStringLiteral("CheckEdidLimit")), 2);

    QVERIFY(QMetaObject::invokeMethod(pDlg, "OnOKPushButtonClicked"));
    QCOMPARE(dialog.dlg.result(), 1);
    QVERIFY(QMetaObject::invokeMethod(pDlg, "OnCancelPushButtonClicked"));
    QCOMPARE(dialog.dlg.result(), 0);
}

void TestEdidSetDlgSlots::HandlersIgnoreIndices_data()
{
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<int>("index");
    QTest::newRow("resolution, negative") << QByteArray("OnResolutionComboBoxSelect") << -1;
    QTest::newRow("depth, negative") << QByteArray("OnColorDepthComboBoxSelect") << -1;
    QTest::newRow("depth, above") << QByteArray("OnColorDepthComboBoxSelect") << 3;
    QTest::newRow("format, negative") << QByteArray("OnColorFormatComboBoxSelect") << -1;
    QTest::newRow("format, above") << QByteArray("OnColorFormatComboBoxSelect") << 4;
    QTest::newRow("timing standard, negative") << QByteArray("OnTimingStandardComboBoxSelect") << -1;
    QTest::newRow("timing standard, above the formats") << QByteArray("OnTimingStandardComboBoxSelect") << 4;
    QTest::newRow("rate, negative") << QByteArray("OnRateComboBoxSelect") << -1;
}

void TestEdidSetDlgSlots::HandlersIgnoreIndices()
{
    QFETCH(QByteArray, slot);
    QFETCH(int, index);
    CEdidHost host;
    CEdidDialog dialog(host);
    host.record.Clear();
    QAction action;
    action.setData(index);
    QAction* pAction = &action;
    const bool bTakesAction = slot == "OnRateComboBoxSelect";
    QVERIFY(QMetaObject::invokeMethod(&dialog.dlg, slot.constData(),
                                      bTakesAction ? QGenericArgument(Q_ARG(QAction*, pAction))
                                                   : QGenericArgument(Q_ARG(int, index))));
    QCOMPARE(dialog.probe.ResolutionIndex(), 2);
    QCOMPARE(dialog.probe.RateIndex(), 7);
    QCOMPARE(dialog.probe.DepthIndex(), 0);
    QCOMPARE(dialog.probe.FormatIndex(), 0);
    QCOMPARE(int(dialog.probe.TimingStandard()), 0);
    QCOMPARE(host.record.All(), QStringList()); // no refresh either
}

void TestEdidSetDlgSlots::TheResolutionSlotHasNoUpperBound()
{
    CEdidHost host;
    CEdidDialog dialog(host);
    dialog.dlg.OnResolutionComboBoxSelect(std::numeric_limits<int>::max());
    QCOMPARE(dialog.probe.ResolutionIndex(), std::numeric_limits<int>::max());
    // Nothing of the resolution changes, and the host judges what stands in the spin boxes.
    QCOMPARE(dialog.probe.Resolution().text(), QStringLiteral("1920×1080"));
    QCOMPARE(host.record.All().last(), QStringLiteral("CheckEdidLimit(1920, 1080, 2304000)"));
}

void TestEdidSetDlgSlots::TheRateSlotHasNoUpperBound()
{
    CEdidHost host;
    CEdidDialog dialog(host);
    QAction action;
    action.setData(99);
    dialog.dlg.OnRateComboBoxSelect(&action);
    QCOMPARE(dialog.probe.RateIndex(), 99);
    QCOMPARE(dialog.probe.Rate().text(), QStringLiteral("60")); // there is no text to show
    QCOMPARE(EdidDialog::CheckedTexts(dialog.probe.Rate()), QStringList());
    QCOMPARE(dialog.dlg.GetMaxAreaByRate(), 2304000);
}

void TestEdidSetDlgSlots::TheRateSlotWithoutAnActionFaults()
{
    CEdidHost host;
    CEdidDialog dialog(host);
    const SDeath death = RunToDeath([&] { dialog.dlg.OnRateComboBoxSelect(nullptr); });
    QVERIFY(death.bAborted);
    QVERIFY2(death.strOutput.contains("action != nullptr"), death.strOutput.constData());
}

void TestEdidSetDlgSlots::TheTimingStandardIsHeldAgainstTheFormats()
{
    CEdidHost host;
    CEdidDialog dialog(host);
    dialog.dlg.OnTimingStandardComboBoxSelect(3);
    QCOMPARE(int(dialog.probe.TimingStandard()), 3);
    QCOMPARE(EdidDialog::CheckedTexts(dialog.probe.Standard()), QStringList());
}

void TestEdidSetDlgSlots::IndexByResolution()
{
    CEdidHost host;
    const CEdidDialog dialog(host, 132);
    int nIndex = 77;
    QVERIFY(dialog.dlg.GetIndexByResolution(QSize(1920, 1200), nIndex));
    QCOMPARE(nIndex, 3);
    QVERIFY(!dialog.dlg.GetIndexByResolution(QSize(1, 1), nIndex));
    QCOMPARE(nIndex, 0); // without the special case of the interface 132
}

void TestEdidSetDlgSlots::IndexByFrameRateLeavesTheIndexAloneForOtherRates()
{
    CEdidHost host;
    const CEdidDialog dialog(host);
    int nIndex = 77;
    QVERIFY(!dialog.dlg.GetIndexByFrameRate(48, false, nIndex));
    QCOMPARE(nIndex, 77);
    QVERIFY(dialog.dlg.GetIndexByFrameRate(30, true, nIndex));
    QCOMPARE(nIndex, 3);
}

void TestEdidSetDlgSlots::IndexByColorDepthStoresInTheMember()
{
    CEdidHost host;
    CEdidDialog dialog(host);
    int nIndex = 77;
    QVERIFY(dialog.dlg.GetIndexByColorDepth(0x08, nIndex));
    QCOMPARE(nIndex, 77);
    QCOMPARE(dialog.probe.DepthIndex(), 2);
    QVERIFY(dialog.dlg.GetIndexByColorDepth(0x00, nIndex));
    QCOMPARE(nIndex, 77);
    QCOMPARE(dialog.probe.DepthIndex(), 0);
}

void TestEdidSetDlgSlots::IndexByColorFormat()
{
    CEdidHost host;
    const CEdidDialog dialog(host);
    int nIndex = 77;
    QVERIFY(dialog.dlg.GetIndexByColorFormat(0x80, nIndex));
    QCOMPARE(nIndex, 3);
    QVERIFY(dialog.dlg.GetIndexByColorFormat(0x0F, nIndex));
    QCOMPARE(nIndex, 0);
}

void TestEdidSetDlgSlots::ResolutionByIndex()
{
    CEdidHost host;
    host.videoSourceLogic.setting = CEdidHost::Setting(QSize(1000, 500), 60);
    const CEdidDialog dialog(host);
    QSize size(7, 7);
    QVERIFY(!dialog.dlg.GetResolutionByIndex(-1, size));
    QVERIFY(!dialog.dlg.GetResolutionByIndex(4, size));
    QCOMPARE(size, QSize(7, 7));
    QVERIFY(dialog.dlg.GetResolutionByIndex(0, size));
    QCOMPARE(size, QSize(1000, 500));
    QVERIFY(dialog.dlg.GetResolutionByIndex(3, size));
    QCOMPARE(size, QSize(1920, 1200));
}

void TestEdidSetDlgSlots::FrameRateByIndexClearsItsResults()
{
    CEdidHost host;
    const CEdidDialog dialog(host);
    unsigned char byRate = 77;
    bool bFractional = true;
    QVERIFY(!dialog.dlg.GetFrameRateByIndex(11, byRate, bFractional));
    QCOMPARE(int(byRate), 0);
    QVERIFY(!bFractional);
    QVERIFY(!dialog.dlg.GetFrameRateByIndex(-1, byRate, bFractional));
    QVERIFY(dialog.dlg.GetFrameRateByIndex(6, byRate, bFractional));
    QCOMPARE(int(byRate), 60);
    QVERIFY(bFractional);
}

void TestEdidSetDlgSlots::ColorDepthByIndexTakesTheMember()
{
    CEdidHost host;
    CEdidDialog dialog(host);
    dialog.probe.DepthIndex() = 2;
    unsigned char byFlags = 0xFF;
    QVERIFY(dialog.dlg.GetColorDepthByIndex(0, byFlags));
    QCOMPARE(int(byFlags), 0xF9);
    dialog.probe.DepthIndex() = 3;
    QVERIFY(!dialog.dlg.GetColorDepthByIndex(0, byFlags));
    QCOMPARE(int(byFlags), 0xF1);
}

void TestEdidSetDlgSlots::ColorDepthByIndexChecksItsArgument()
{
    CEdidHost host;
    const CEdidDialog dialog(host);
    unsigned char byFlags = 0xFF;
    QVERIFY(!dialog.dlg.GetColorDepthByIndex(3, byFlags));
    QCOMPARE(int(byFlags), 0xFF);
    QVERIFY(dialog.dlg.GetColorDepthByIndex(-1, byFlags)); // only the upper end is checked
    QCOMPARE(int(byFlags), 0xF3);
}

void TestEdidSetDlgSlots::ColorFormatByIndex()
{
    CEdidHost host;
    const CEdidDialog dialog(host);
    unsigned char byFlags = 0x8E;
    QVERIFY(dialog.dlg.GetColorFormatByIndex(1, byFlags));
    QCOMPARE(int(byFlags), 0x2E);
    QVERIFY(!dialog.dlg.GetColorFormatByIndex(4, byFlags));
    QCOMPARE(int(byFlags), 0x2E);
}

void TestEdidSetDlgSlots::SenderConnectPC_data()
{
    QTest::addColumn<int>("senderType");
    QTest::addColumn<int>("interfaceId");
    QTest::addColumn<bool>("expected");
    QTest::newRow("17 on 16") << 17 << 16 << true;
    QTest::newRow("37 on 19") << 37 << 19 << true;
    QTest::newRow("17 on 15") << 17 << 15 << false;
    QTest::newRow("17 on 20") << 17 << 20 << false;
    QTest::newRow("18 on 16") << 18 << 16 << false;
}

void TestEdidSetDlgSlots::SenderConnectPC()
{
    QFETCH(int, senderType);
    QFETCH(int, interfaceId);
    QFETCH(bool, expected);
    CEdidHost host;
    host.senderLogic.nSenderType = senderType;
    const CEdidDialog dialog(host, interfaceId);
    QCOMPARE(dialog.dlg.IsSenderConnectPC(), expected);
}

void TestEdidSetDlgSlots::RateIndexMax()
{
    CEdidHost host;
    QCOMPARE(CEdidDialog(host, 1, false).dlg.GetRateIndexMax(), 4);
    QCOMPARE(CEdidDialog(host, 1, true).dlg.GetRateIndexMax(), 2);
}

QTEST_MAIN(TestEdidSetDlgSlots)
#include "TestEdidSetDlgSlots.moc"
