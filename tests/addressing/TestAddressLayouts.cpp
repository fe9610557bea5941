#include "SenderModuleDialog/addressing/CustomAddProcessorDlg.h"
#include "SenderModuleDialog/addressing/DemoProjectConfigDlg.h"
#include "SenderModuleDialog/addressing/SetIPOfflineDlg.h"
#include "host/OrviControl/CustomComboBox.h"
#include "host/OrviControl/CustomLabel.h"
#include "host/OrviControl/CustomSpinBox.h"
#include "host/OrviControl/Style.h"
#include "tests/addressing/AddressDialogSupport.h"
#include "tests/support/Controls.h"
#include "tests/support/LayoutText.h"
#include "tests/support/RecordingHost.h"

#include <QGridLayout>
#include <QMenu>
#include <QPushButton>
#include <QtTest>

using namespace AddressDialogSupport;

/// Margins, spacings, stretches and styles of the address dialogs: a picture does not show them to the pixel.
class TestAddressLayouts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheAddressDialog_data();
    void TheAddressDialog();
    void TheDialogOfProcessorsAddedByHand();
    void TheCaptionsOfProcessorsAddedByHand();
    void TheControlsOfProcessorsAddedByHandAreStyled();
    void TheDemoDialog();
    void TheControlsOfTheDemoDialogAreStyled();
};

namespace {

/// Processors that are found by address.
void UseAddresses(CRecordingHost& host)
{
    host.configData.nDetectStrategy = 2;
    host.senderLogic.bIPAddressMode = true;
}

QString ButtonStyle()
{
    return GetFontStyleSheet(g_pushButtonStyle, QStringLiteral("QPushButton"), 12);
}

QString CaptionStyle()
{
    return GetFontStyleSheet(g_labelNoFrameStyle, QStringLiteral("QLabel"), 12);
}

/// The frame that the address dialogs share: the rows, a space, the buttons.
void CompareFrame(const QWidget& dialog)
{
    const auto* pOuter = qobject_cast<const QBoxLayout*>(dialog.layout());
    QVERIFY(pOuter != nullptr);
    QCOMPARE(pOuter->contentsMargins(), QMargins(10, 20, 10, 20));
    QCOMPARE(LayoutText::Box(*pOuter), QStringLiteral("QGridLayout:0 10px:0 QHBoxLayout:0"));
    const QBoxLayout* pButtons = LayoutText::BoxOf(dialog, &Control<QPushButton>(dialog, "ok"));
    QCOMPARE(LayoutText::Box(*pButtons), QStringLiteral("确定:0 取消:0"));
    for (const char* szName : {"ok", "cancel"}) {
        QCOMPARE(Control<QPushButton>(dialog, szName).size(), QSize(80, 24));
        QCOMPARE(Control<QPushButton>(dialog, szName).styleSheet(), ButtonStyle());
    }
}

} // namespace

void TestAddressLayouts::TheAddressDialog_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<bool>("set");
    QTest::newRow("batch") << -1 << true;
    QTest::newRow("modify") << 1 << false;
    QTest::newRow("set one") << 1 << true;
    QTest::newRow("set three") << 3 << true;
}

void TestAddressLayouts::TheAddressDialog()
{
    QFETCH(int, count);
    QFETCH(bool, set);
    const CRecordingHost host;
    const CLocalAddressScript local({"10.0.0.5"});
    const CSetIPOfflineDlg dialog(1, count, set, false, nullptr);
    CompareFrame(dialog);
    const auto* pGrid = dialog.findChild<QGridLayout*>();
    QCOMPARE(pGrid->horizontalSpacing(), 15);
    QCOMPARE(pGrid->verticalSpacing(), 15);
    for (int nRow = 0; nRow < pGrid->rowCount(); ++nRow) {
        const auto* pLabel = qobject_cast<const CCustomLabel*>(pGrid->itemAtPosition(nRow, 0)->widget());
        QVERIFY(pLabel != nullptr);
        QCOMPARE(pLabel->size(), QSize(80, 24));
        QCOMPARE(int(pLabel->alignment()), 130);
        QCOMPARE(pLabel->styleSheet(), CaptionStyle());
        QVERIFY(pGrid->itemAtPosition(nRow, 1) != nullptr);
    }
}

void TestAddressLayouts::TheDialogOfProcessorsAddedByHand()
{
    CRecordingHost host;
    UseAddresses(host);
    const CLocalAddressScript local({"10.0.0.5"});
    const CCustomAddProcessorDlg dialog(nullptr);
    CompareFrame(dialog);
    const auto* pGrid = dialog.findChild<QGridLayout*>();
    QCOMPARE(pGrid->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(LayoutText::Columns(*pGrid, 5), QStringLiteral("1 0 1 0 1"));
    QCOMPARE(pGrid->itemAtPosition(0, 3)->widget(), &Control<CCustomSpinBox>(dialog, "count"));
    QCOMPARE(pGrid->itemAtPosition(1, 3)->widget(), &Control<CCustomComboBox>(dialog, "ports"));
    QCOMPARE(pGrid->itemAtPosition(2, 3)->widget(), AddressFields(dialog).first());
}

void TestAddressLayouts::TheCaptionsOfProcessorsAddedByHand()
{
    CRecordingHost host;
    UseAddresses(host);
    const CLocalAddressScript local({"10.0.0.5"});
    const CCustomAddProcessorDlg dialog(nullptr);
    const auto* pGrid = dialog.findChild<QGridLayout*>();
    const int arrMaxWidths[] = {150, 120, 120};
    for (int nRow = 0; nRow < 3; ++nRow) {
        const auto* pLabel = qobject_cast<const CCustomLabel*>(pGrid->itemAtPosition(nRow, 1)->widget());
        QVERIFY(pLabel != nullptr);
        QCOMPARE(pLabel->maximumWidth(), arrMaxWidths[nRow]);
        QCOMPARE(pLabel->height(), 24);
        QCOMPARE(int(pLabel->alignment()), 130);
        QCOMPARE(pLabel->styleSheet(), CaptionStyle());
    }
}

void TestAddressLayouts::TheControlsOfProcessorsAddedByHandAreStyled()
{
    const CRecordingHost host;
    const CCustomAddProcessorDlg dialog(nullptr);
    QCOMPARE(Control<CCustomSpinBox>(dialog, "count").styleSheet(),
             GetFontStyleSheet(g_doubleSpinBoxStyle, QStringLiteral("QSpinxBox"), 12));
    QCOMPARE(Control<CCustomComboBox>(dialog, "ports").menu()->styleSheet(),
             GetFontStyleSheet(g_menuStyle, QStringLiteral("QMenu"), 12));
}

void TestAddressLayouts::TheDemoDialog()
{
    const CRecordingHost host;
    const CDemoProjectConfigDlg dialog(nullptr);
    const auto* pOuter = qobject_cast<const QBoxLayout*>(dialog.layout());
    QCOMPARE(LayoutText::Box(*pOuter), QStringLiteral("QHBoxLayout:0 QHBoxLayout:0"));
    const QBoxLayout* pTypeRow = LayoutText::BoxOf(dialog, dialog.findChild<CCustomLabel*>());
    QCOMPARE(pTypeRow->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(pTypeRow->spacing(), 0);
    QCOMPARE(LayoutText::Box(*pTypeRow), QStringLiteral("主控类型:0 M6K:0"));
    const QBoxLayout* pButtons = LayoutText::BoxOf(dialog, &Control<QPushButton>(dialog, "ok"));
    QCOMPARE(LayoutText::Box(*pButtons), QStringLiteral("~:0 确认:0 ~:0 取消:0 ~:0"));
}

void TestAddressLayouts::TheControlsOfTheDemoDialogAreStyled()
{
    const CRecordingHost host;
    const CDemoProjectConfigDlg dialog(nullptr);
    QCOMPARE(dialog.findChild<CCustomLabel*>()->styleSheet(), CaptionStyle());
    QCOMPARE(Control<QPushButton>(dialog, "ok").styleSheet(), ButtonStyle());
    QCOMPARE(Control<QPushButton>(dialog, "cancel").styleSheet(), ButtonStyle());
    QCOMPARE(Control<CCustomComboBox>(dialog, "type").menu()->styleSheet(),
             GetFontStyleSheet(g_menuStyle, QStringLiteral("QMenu"), 12));
}

QTEST_MAIN(TestAddressLayouts)
#include "TestAddressLayouts.moc"
