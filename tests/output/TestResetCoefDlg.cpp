#include "SenderModuleDialog/output/ResetCoefDlg.h"
#include "host/OrviControl/Style.h"
#include "tests/output/OutputDialogSupport.h"
#include "tests/support/Controls.h"
#include "tests/support/ExactCompare.h"

#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

using namespace OutputDialogSupport;

namespace {

QDoubleSpinBox& Spin(const CResetCoefDlg& dialog)
{
    return Control<QDoubleSpinBox>(dialog, "coefficient");
}

void TypeOver(QDoubleSpinBox& spin, const QString& strText)
{
    spin.selectAll();
    QTest::keyClicks(&spin, strText);
}

} // namespace

class TestResetCoefDlg : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheMetaObjectHasTheSlot();
    void Wording_data();
    void Wording();
    void TheWindowAndItsControls();
    void TheControlsLieInTheWindow();
    void WithoutSetValueTheFieldShowsZero();
    void WithoutSetValueCancelGivesOneAndOkGivesZero_data();
    void WithoutSetValueCancelGivesOneAndOkGivesZero();
    void OkGivesTheShownValueInSinglePrecision_data();
    void OkGivesTheShownValueInSinglePrecision();
    void CancelDiscardsTheEdit();
    void TheTitleBarDiscardsTheEdit();
    void SetValueKeepsWhatTheFieldCannotShow_data();
    void SetValueKeepsWhatTheFieldCannotShow();
    void TheSlotClosesTheDialog_data();
    void TheSlotClosesTheDialog();
    void OtherIdsDoNothing();
    void ReturnPressesOk();
    void AnArrowKeyStepsByAThousandth();
    void TextsAreLookedUpInOneContext();
};

void TestResetCoefDlg::TheMetaObjectHasTheSlot()
{
    QCOMPARE(Slots(CResetCoefDlg::staticMetaObject), List({"ActionSlots(int nID)"}));
}

void TestResetCoefDlg::Wording_data()
{
    QTest::addColumn<bool>("bCorrection");
    QTest::addColumn<QString>("strTitle");
    QTest::addColumn<QString>("strLabel");
    QTest::newRow("correction") << true << QStringLiteral("重置校正系数") << QStringLiteral("校正系数");
    QTest::newRow("seam repair") << false << QStringLiteral("重置修缝系数") << QStringLiteral("修缝系数");
}

void TestResetCoefDlg::Wording()
{
    QFETCH(bool, bCorrection);
    const CResetCoefDlg dialog(bCorrection, nullptr);
    QTEST(dialog.windowTitle(), "strTitle");
    QTEST(dialog.findChild<QLabel*>()->text(), "strLabel");
}

void TestResetCoefDlg::TheWindowAndItsControls()
{
    const CResetCoefDlg dialog(true, nullptr);
    QCOMPARE(dialog.minimumSize(), QSize(270, 105));
    QCOMPARE(dialog.maximumSize(), QSize(270, 105));
    const QDoubleSpinBox& spin = Spin(dialog);
    QCOMPARE(spin.minimum(), 0.0);
    QCOMPARE(spin.maximum(), 1.0);
    QCOMPARE(spin.decimals(), 3);
    QCOMPARE(spin.singleStep(), 0.001);
    QCOMPARE(spin.size(), QSize(70, 24));
    QCOMPARE(spin.styleSheet(),
             GetFontStyleSheet(g_doubleSpinBoxStyle, QStringLiteral("QDoubleSpinBox"), 12));
    QCOMPARE(dialog.findChild<QLabel*>()->alignment(), Qt::AlignCenter);
    for (const char* szName : {"ok", "cancel"})
        QCOMPARE(Control<QPushButton>(dialog, szName).size(), QSize(80, 24));
}

void TestResetCoefDlg::TheControlsLieInTheWindow()
{
    CResetCoefDlg dialog(true, nullptr);
    dialog.show();
    const QRect rcInside = dialog.rect().marginsRemoved({10, 10, 10, 10});
    for (const QWidget* pControl : std::initializer_list<const QWidget*>{
             dialog.findChild<QLabel*>(), &Spin(dialog), &Control<QPushButton>(dialog, "ok"),
             &Control<QPushButton>(dialog, "cancel")})
        QVERIFY(rcInside.contains(pControl->geometry()));
}

void TestResetCoefDlg::WithoutSetValueTheFieldShowsZero()
{
    const CResetCoefDlg dialog(true, nullptr);
    QCOMPARE(Spin(dialog).value(), 0.0);
    QCOMPARE(Spin(dialog).text(), QStringLiteral("0.000"));
    COMPARE_BITS(dialog.GetValue(), 1.0F);
}

void TestResetCoefDlg::WithoutSetValueCancelGivesOneAndOkGivesZero_data()
{
    QTest::addColumn<QByteArray>("szButton");
    QTest::addColumn<int>("nResult");
    QTest::addColumn<float>("fValue");
    QTest::newRow("Cancel") << QByteArray("cancel") << 0 << 1.0F;
    QTest::newRow("OK") << QByteArray("ok") << 1 << 0.0F;
}

void TestResetCoefDlg::WithoutSetValueCancelGivesOneAndOkGivesZero()
{
    QFETCH(QByteArray, szButton);
    QFETCH(float, fValue);
    CResetCoefDlg dialog(true, nullptr);
    ClickInLoop(&dialog, szButton.constData());
    QTEST(dialog.exec(), "nResult");
    COMPARE_BITS(dialog.GetValue(), fValue);
    QVERIFY(!dialog.isVisible());
}

void TestResetCoefDlg::OkGivesTheShownValueInSinglePrecision_data()
{
    QTest::addColumn<QString>("strTyped");
    QTest::addColumn<float>("fValue");
    QTest::newRow("three decimals") << QStringLiteral("0.123") << 0.123F;
    QTest::newRow("a fourth decimal is not taken") << QStringLiteral("0.1239") << 0.123F;
    QTest::newRow("one") << QStringLiteral("1") << 1.0F;
    QTest::newRow("above one is not taken") << QStringLiteral("2") << 0.5F;
}

void TestResetCoefDlg::OkGivesTheShownValueInSinglePrecision()
{
    QFETCH(QString, strTyped);
    QFETCH(float, fValue);
    CResetCoefDlg dialog(false, nullptr);
    dialog.SetValue(0.5F);
    QTimer::singleShot(0, &dialog, [&] {
        TypeOver(Spin(dialog), strTyped);
        QTest::mouseClick(&Control<QPushButton>(dialog, "ok"), Qt::LeftButton);
    });
    QCOMPARE(dialog.exec(), 1);
    COMPARE_BITS(dialog.GetValue(), fValue);
}

void TestResetCoefDlg::CancelDiscardsTheEdit()
{
    CResetCoefDlg dialog(true, nullptr);
    dialog.SetValue(0.25F);
    QTimer::singleShot(0, &dialog, [&] {
        TypeOver(Spin(dialog), QStringLiteral("0.75"));
        QTest::mouseClick(&Control<QPushButton>(dialog, "cancel"), Qt::LeftButton);
    });
    QCOMPARE(dialog.exec(), 0);
    COMPARE_BITS(dialog.GetValue(), 0.25F);
}

void TestResetCoefDlg::TheTitleBarDiscardsTheEdit()
{
    CResetCoefDlg dialog(true, nullptr);
    QTimer::singleShot(0, &dialog, [&] {
        TypeOver(Spin(dialog), QStringLiteral("0.75"));
        dialog.close();
    });
    QCOMPARE(dialog.exec(), 0);
    COMPARE_BITS(dialog.GetValue(), 1.0F);
}

void TestResetCoefDlg::SetValueKeepsWhatTheFieldCannotShow_data()
{
    QTest::addColumn<float>("fValue");
    QTest::addColumn<double>("dShown");
    QTest::newRow("in range") << 0.5F << 0.5;
    QTest::newRow("more than three decimals") << 0.12345F << 0.123;
    QTest::newRow("above") << 7.5F << 1.0;
    QTest::newRow("below") << -0.5F << 0.0;
}

void TestResetCoefDlg::SetValueKeepsWhatTheFieldCannotShow()
{
    QFETCH(float, fValue);
    QFETCH(double, dShown);
    CResetCoefDlg dialog(true, nullptr);
    dialog.SetValue(fValue);
    COMPARE_BITS(dialog.GetValue(), fValue);
    COMPARE_BITS(Spin(dialog).value(), dShown);
}

void TestResetCoefDlg::TheSlotClosesTheDialog_data()
{
    QTest::addColumn<int>("nId");
    QTest::addColumn<int>("nResult");
    QTest::newRow("OK") << 0 << 1;
    QTest::newRow("Cancel") << 1 << 0;
}

void TestResetCoefDlg::TheSlotClosesTheDialog()
{
    QFETCH(int, nId);
    CResetCoefDlg dialog(true, nullptr);
    QTimer::singleShot(0, &dialog,
                       [&] { QMetaObject::invokeMethod(&dialog, "ActionSlots", Q_ARG(int, nId)); });
    QTEST(dialog.exec(), "nResult");
}

void TestResetCoefDlg::OtherIdsDoNothing()
{
    CResetCoefDlg dialog(true, nullptr);
    dialog.show();
    for (const int nId : {-1, 2, 3})
        dialog.ActionSlots(nId);
    QVERIFY(dialog.isVisible());
    COMPARE_BITS(dialog.GetValue(), 1.0F);
}

void TestResetCoefDlg::ReturnPressesOk()
{
    CResetCoefDlg dialog(true, nullptr);
    QTimer::singleShot(0, &dialog, [&] {
        TypeOver(Spin(dialog), QStringLiteral("0.5"));
        QTest::keyClick(&Spin(dialog), Qt::Key_Return);
    });
    QCOMPARE(dialog.exec(), 1);
    COMPARE_BITS(dialog.GetValue(), 0.5F);
}

void TestResetCoefDlg::AnArrowKeyStepsByAThousandth()
{
    CResetCoefDlg dialog(true, nullptr);
    dialog.SetValue(0.5F);
    QTest::keyClick(&Spin(dialog), Qt::Key_Up);
    QCOMPARE(Spin(dialog).text(), QStringLiteral("0.501"));
}

void TestResetCoefDlg::TextsAreLookedUpInOneContext()
{
    const CContextTranslator translator;
    const CResetCoefDlg dialogCorrection(true, nullptr);
    const CResetCoefDlg dialogSeamRepair(false, nullptr);
    QCOMPARE(translator.Strays(), QStringList());
    QCOMPARE(translator.Sources(),
             List({"重置校正系数", "校正系数", "确定", "取消", "重置修缝系数", "修缝系数"}));
    QCOMPARE(dialogSeamRepair.windowTitle(), Marked("重置修缝系数"));
}

QTEST_MAIN(TestResetCoefDlg)
#include "TestResetCoefDlg.moc"
