#include "host/OrviControl/CustomComboBox.h"
#include "host/OrviControl/CustomLabel.h"
#include "host/OrviControl/CustomSpinBox.h"
#include "tests/edid/EdidDialogHost.h"
#include "tests/support/ModalAnswers.h"

#include <QtTest>

#include <QApplication>
#include <QCheckBox>
#include <QMenu>
#include <QPushButton>
#include <QTimer>

/// The dialog as an operator drives it, with mouse and keys.
class TestEdidSetDlgOperator : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void CancelWritesNothing();
    void EscapeWritesNothing();
    void ClosingByTheTitleBarRunsNoHandler();
    void ASizeIsTypedAndConfirmedWithEnter();
    void TheResolutionHasTheFirstFocus();
    void EnterOnAMenuButtonConfirms();
    void ATypedHeightAboveTheLimitBecomesTheLimit();
    void EachKeyIsJudged();
    void TheCheckBoxTogglesAndAsksNobody();
    void AClickedBoxIsWrittenAsItsOpposite();
    void AMenuIsDrivenByKeysAlone();
    void TabReachesEveryControlThatIsShown();
    void TheSpinBoxesAreLockedDuringTheWait();
    void ExecReturnsTheResult();
};

namespace {

/// An extended sender with every row shown, open at a custom size.
void SetEverythingShown(CEdidHost& host)
{
    host.senderLogic.nSenderType = 43;
    host.senderLogic.bExtendedEdid = true;
    host.videoSourceLogic.setting = CEdidHost::Setting(QSize(1000, 500), 60);
}

void Show(CEdidDialog& dialog)
{
    dialog.dlg.show();
    dialog.dlg.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog.dlg));
    dialog.host.record.Clear();
}

void TypeOver(CCustomSpinBox& spinBox, const QString& strText)
{
    spinBox.setFocus();
    spinBox.selectAll();
    QTest::keyClicks(&spinBox, strText);
}

} // namespace

void TestEdidSetDlgOperator::CancelWritesNothing()
{
    CEdidHost host;
    CEdidDialog dialog(host);
    Show(dialog);
    QTest::mouseClick(&dialog.probe.Cancel(), Qt::LeftButton);
    QVERIFY(!dialog.dlg.isVisible());
    QCOMPARE(dialog.dlg.result(), 0);
    QCOMPARE(host.record.All(), QStringList());
}

void TestEdidSetDlgOperator::EscapeWritesNothing()
{
    CEdidHost host;
    CEdidDialog dialog(host);
    Show(dialog);
    QTest::keyClick(&dialog.dlg, Qt::Key_Escape);
    QVERIFY(!dialog.dlg.isVisible());
    QCOMPARE(dialog.dlg.result(), 0);
    QCOMPARE(host.record.All(), QStringList());
}

void TestEdidSetDlgOperator::ClosingByTheTitleBarRunsNoHandler()
{
    CEdidHost host;
    CEdidDialog dialog(host);
    Show(dialog);
    QVERIFY(dialog.dlg.close()); // what the window system asks for
    QVERIFY(!dialog.dlg.isVisible());
    QCOMPARE(dialog.dlg.result(), 0);
    QCOMPARE(host.record.All(), QStringList());
    QVERIFY(!dialog.dlg.IsSetSuccessed());
}

void TestEdidSetDlgOperator::ASizeIsTypedAndConfirmedWithEnter()
{
    CEdidHost host;
    host.videoSourceLogic.setting = CEdidHost::Setting(QSize(1000, 500), 60);
    CEdidDialog dialog(host);
    Show(dialog);
    TypeOver(dialog.probe.Width(), QStringLiteral("2048"));
    TypeOver(dialog.probe.Height(), QStringLiteral("1152"));
    QTest::keyClick(&dialog.probe.Height(), Qt::Key_Return);
    QVERIFY(host.videoSourceLogic.written.has_value());
    QCOMPARE(int(host.videoSourceLogic.written->wWidth), 2048);
    QCOMPARE(int(host.videoSourceLogic.written->wHeight), 1152);
    QCOMPARE(dialog.dlg.result(), 1);
}

void TestEdidSetDlgOperator::TheResolutionHasTheFirstFocus()
{
    CEdidHost host;
    CEdidDialog dialog(host);
    Show(dialog);
    QVERIFY(dialog.probe.Resolution().hasFocus());
    QVERIFY(dialog.probe.OK().isDefault());
}

void TestEdidSetDlgOperator::EnterOnAMenuButtonConfirms()
{
    CEdidHost host;
    CEdidDialog dialog(host);
    Show(dialog);
    QTest::keyClick(&dialog.probe.Resolution(), Qt::Key_Return);
    QVERIFY(host.videoSourceLogic.written.has_value());
    QCOMPARE(dialog.dlg.result(), 1);
}

void TestEdidSetDlgOperator::ATypedHeightAboveTheLimitBecomesTheLimit()
{
    CEdidHost host;
    host.videoSourceLogic.limit.nMaxHeight = 16384;
    host.videoSourceLogic.setting = CEdidHost::Setting(QSize(1000, 500), 60);
    CEdidDialog dialog(host);
    Show(dialog);
    TypeOver(dialog.probe.Height(), QStringLiteral("16385"));
    QCOMPARE(dialog.probe.Height().text(), QStringLiteral("16384"));
}

void TestEdidSetDlgOperator::EachKeyIsJudged()
{
    CEdidHost host;
    host.videoSourceLogic.setting = CEdidHost::Setting(QSize(1000, 500), 60);
    host.videoSourceLogic.funcVerdict = [](int nWidth, int, int) {
        return nWidth > 200 ? QStringLiteral("no") : QString();
    };
    CEdidDialog dialog(host);
    Show(dialog);
    QVERIFY(!dialog.probe.OK().isEnabled());
    TypeOver(dialog.probe.Width(), QStringLiteral("20"));
    QVERIFY(dialog.probe.OK().isEnabled());
    QTest::keyClicks(&dialog.probe.Width(), QStringLiteral("4"));
    QVERIFY(!dialog.probe.OK().isEnabled());
    QCOMPARE(dialog.probe.Error().text(), QStringLiteral("no"));
    const QStringList listExpected = {QStringLiteral("CheckEdidLimit(2, 500, 2304000)"),
                                      QStringLiteral("CheckEdidLimit(20, 500, 2304000)"),
                                      QStringLiteral("CheckEdidLimit(204, 500, 2304000)")};
    QCOMPARE(host.record.All(), listExpected);
    // Enter confirms nothing while the choice is refused.
    QTest::keyClick(&dialog.probe.Width(), Qt::Key_Return);
    QVERIFY(dialog.dlg.isVisible());
    QVERIFY(!host.videoSourceLogic.written.has_value());
}

void TestEdidSetDlgOperator::TheCheckBoxTogglesAndAsksNobody()
{
    CEdidHost host;
    SetEverythingShown(host);
    CEdidDialog dialog(host, 16);
    Show(dialog);
    QTest::mouseClick(&dialog.probe.ConnectPC(), Qt::LeftButton, Qt::NoModifier, QPoint(8, 13));
    QVERIFY(dialog.probe.ConnectPC().isChecked());
    QCOMPARE(int(dialog.probe.ConnectByte()), 1);
    QTest::keyClick(&dialog.probe.ConnectPC(), Qt::Key_Space);
    QVERIFY(!dialog.probe.ConnectPC().isChecked());
    QCOMPARE(int(dialog.probe.ConnectByte()), 0);
    QCOMPARE(host.record.All(), QStringList());
}

void TestEdidSetDlgOperator::AClickedBoxIsWrittenAsItsOpposite()
{
    CEdidHost host;
    SetEverythingShown(host);
    CEdidDialog dialog(host, 16);
    Show(dialog);
    QTest::mouseClick(&dialog.probe.ConnectPC(), Qt::LeftButton, Qt::NoModifier, QPoint(8, 13));
    EdidDialog::Choose(dialog.probe.Rate(), QStringLiteral("50")); // a refresh keeps the box as it is
    QVERIFY(dialog.probe.ConnectPC().isChecked());
    QTest::mouseClick(&dialog.probe.OK(), Qt::LeftButton);
    QCOMPARE(int(host.videoSourceLogic.written->byConnectPC), 0);
}

void TestEdidSetDlgOperator::AMenuIsDrivenByKeysAlone()
{
    CEdidHost host;
    CEdidDialog dialog(host);
    Show(dialog);
    dialog.probe.Rate().setFocus();
    bool bOpened = false;
    QTimer::singleShot(0, &dialog.dlg, [&bOpened] {
        QWidget* pMenu = QApplication::activePopupWidget();
        bOpened = pMenu != nullptr;
        if (!bOpened)
            return;
        QTest::keyClick(pMenu, Qt::Key_Up); // from "60", which the box shows
        QTest::keyClick(pMenu, Qt::Key_Return);
    });
    QTest::keyClick(&dialog.probe.Rate(), Qt::Key_Space);
    QVERIFY(bOpened);
    QCOMPARE(dialog.probe.Rate().text(), QStringLiteral("50"));
}

void TestEdidSetDlgOperator::TabReachesEveryControlThatIsShown()
{
    CEdidHost host;
    SetEverythingShown(host);
    CEdidDialog dialog(host, 16);
    Show(dialog);
    const CEdidSetDlgProbe& probe = dialog.probe;
    const QList<QWidget*> listExpected = {&probe.Resolution(), &probe.Width(), &probe.Height(),
                                          &probe.Rate(),       &probe.Depth(), &probe.Standard(),
                                          &probe.ConnectPC(),  &probe.OK(),    &probe.Cancel()};
    probe.Resolution().setFocus();
    for (QWidget* pWidget : listExpected) {
        QVERIFY2(QApplication::focusWidget() == pWidget, pWidget->metaObject()->className());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QVERIFY(probe.Resolution().hasFocus());
}

void TestEdidSetDlgOperator::TheSpinBoxesAreLockedDuringTheWait()
{
    CEdidHost host;
    host.videoSourceLogic.setting = CEdidHost::Setting(QSize(1000, 500), 60);
    CEdidDialog dialog(host);
    Show(dialog);
    bool bLocked = true;
    host.funcOnWait = [&] {
        bLocked = bLocked && !dialog.probe.Width().isEnabled() && !dialog.probe.Height().isEnabled();
    };
    QTest::mouseClick(&dialog.probe.OK(), Qt::LeftButton);
    QVERIFY(bLocked);
    // Only an abort gives them back.
    QVERIFY(!dialog.probe.Width().isEnabled());
}

void TestEdidSetDlgOperator::ExecReturnsTheResult()
{
    CEdidHost host;
    for (const bool bOK : {true, false}) {
        CEdidDialog dialog(host);
        QTimer::singleShot(0, &dialog.dlg,
                           [&] { (bOK ? dialog.probe.OK() : dialog.probe.Cancel()).click(); });
        QCOMPARE(dialog.dlg.exec(), bOK ? 1 : 0);
    }
}

QTEST_MAIN(TestEdidSetDlgOperator)
#include "TestEdidSetDlgOperator.moc"
