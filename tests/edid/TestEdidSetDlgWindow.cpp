#include "host/OrviControl/CustomComboBox.h"
#include "host/OrviControl/CustomLabel.h"
#include "host/OrviControl/CustomSpinBox.h"
#include "tests/edid/EdidDialogHost.h"

#include <QtTest>

#include <QCheckBox>
#include <QMenu>
#include <QPushButton>

#include <limits>

/// What the window shows for the state it is in: rows, height, error line, limits.
class TestEdidSetDlgWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Height_data();
    void Height();
    void HeightFollowsEachChange();
    void TheRowOfTheSizeIsShownForCustomOnly();
    void TheFormatRowNeverAppears();
    void TheRowsThatTheSenderTypeDecides_data();
    void TheRowsThatTheSenderTypeDecides();
    void ConnectByteShows_data();
    void ConnectByteShows();
    void AnUnknownTimingStandardShowsNoName();
    void AreaLimit_data();
    void AreaLimit();
    void ClockLimit_data();
    void ClockLimit();
    void AnErrorDisablesOKAndGrowsTheWindow();
    void TheNoticeLeavesOKEnabled();
    void AVerdictThatFitsHasNoTooltip();
    void ALongVerdictEndsInAnEllipsisAndIsTheTooltip_data();
    void ALongVerdictEndsInAnEllipsisAndIsTheTooltip();
    void ATypedSizeIsJudged();
    void ATypedSizeAboveTheLimitBecomesTheLimit();
    void ALimitOfNothingEndsAtTheSmallestSize();
    void NothingOverlapsInAnyWindow_data();
    void NothingOverlapsInAnyWindow();
    void TheRowsShareTheSpareHeight_data();
    void TheRowsShareTheSpareHeight();
};

namespace {

// Qt 6 takes whole pixels for each line of a text, Qt 5 for the whole text.
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
constexpr int c_nLineRounding = 0;
#else
constexpr int c_nLineRounding = 1;
#endif

/// Sets up a host whose dialog shows the rows asked for: 1 connect to computer, 2 timing standard, 4 error,
/// 8 custom size. Types 43, 24: both; 16: standard alone; 18: none. Connect alone does not exist: each type
/// that has it has the standard too.
void SetRows(CEdidHost& host, int nRows)
{
    host.senderLogic.nSenderType = (nRows & 1) != 0 ? 43 : (nRows & 2) != 0 ? 16 : 18;
    if ((nRows & 4) != 0)
        host.videoSourceLogic.funcVerdict = [](int, int, int) { return QStringLiteral("too large"); };
    host.videoSourceLogic.setting =
        CEdidHost::Setting((nRows & 8) != 0 ? QSize(1000, 500) : QSize(1920, 1080), 60);
}

} // namespace

void TestEdidSetDlgWindow::Height_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<QString>("version");
    QTest::addColumn<int>("height");
    for (const int nStandardRows : {0, 2, 3}) {
        for (const int nOther : {0, 4, 8, 12}) {
            const int nShown = (nStandardRows == 3   ? 2
                                : nStandardRows == 2 ? 1
                                                     : 0) +
                               ((nOther & 4) != 0 ? 1 : 0) + 1;
            const int nCustom = (nOther & 8) != 0 ? 1 : 0;
            const int nRows = nStandardRows | nOther;
            QTest::addRow("rows %d", nRows) << nRows << "4.0.3" << 32 * (3 + nCustom + nShown) + 39;
            QTest::addRow("rows %d, space of the custom row kept", nRows)
                << nRows << "4.0.2" << 32 * (4 + nShown) + 39;
        }
    }
}

void TestEdidSetDlgWindow::Height()
{
    QFETCH(int, rows);
    QFETCH(QString, version);
    QFETCH(int, height);
    CEdidHost host;
    host.strProductType = QStringLiteral("kylin");
    host.strProductVersion = version;
    SetRows(host, rows);
    const CEdidDialog dialog(host, 16);
    QCOMPARE(dialog.dlg.size(), QSize(300, height));
    QCOMPARE(dialog.dlg.minimumSize(), QSize(300, height));
    QCOMPARE(dialog.dlg.maximumSize(), QSize(300, height));
}

void TestEdidSetDlgWindow::HeightFollowsEachChange()
{
    CEdidHost host;
    host.videoSourceLogic.funcVerdict = [](int nWidth, int, int) {
        return nWidth == 1280 ? QStringLiteral("no") : QString();
    };
    CEdidDialog dialog(host);
    const int nHeight = dialog.dlg.height();
    EdidDialog::Choose(dialog.probe.Resolution(), QStringLiteral("1280 × 720"));
    QCOMPARE(dialog.dlg.height(), nHeight + 32);
    EdidDialog::Choose(dialog.probe.Resolution(), QStringLiteral("1920 × 1080"));
    QCOMPARE(dialog.dlg.height(), nHeight);
    EdidDialog::Choose(dialog.probe.Resolution(), QStringLiteral("自定义"));
    QCOMPARE(dialog.dlg.height(), nHeight + 32);
}

void TestEdidSetDlgWindow::TheRowOfTheSizeIsShownForCustomOnly()
{
    CEdidHost host;
    const CEdidDialog dialog(host);
    const CEdidSetDlgProbe& probe = dialog.probe;
    const QList<QWidget*> listRow = {&probe.SizeLabel(), &probe.Width(), &probe.TimesLabel(),
                                     &probe.Height()};
    for (const QWidget* pWidget : listRow)
        QVERIFY(pWidget->isHidden());
    EdidDialog::Choose(probe.Resolution(), QStringLiteral("自定义"));
    for (const QWidget* pWidget : listRow)
        QVERIFY(!pWidget->isHidden());
}

void TestEdidSetDlgWindow::TheFormatRowNeverAppears()
{
    for (const int nType : {16, 43, 68, 73}) {
        CEdidHost host;
        host.senderLogic.nSenderType = nType;
        const CEdidDialog dialog(host, 16);
        QVERIFY(dialog.probe.Format().isHidden());
        QVERIFY(dialog.probe.FormatLabel().isHidden());
    }
}

void TestEdidSetDlgWindow::TheRowsThatTheSenderTypeDecides_data()
{
    QTest::addColumn<int>("senderType");
    QTest::addColumn<int>("interfaceId");
    QTest::addColumn<bool>("connect");
    QTest::addColumn<bool>("standard");
    QTest::newRow("16 has a standard") << 16 << 16 << false << true;
    QTest::newRow("18 has neither") << 18 << 16 << false << false;
    for (const int nType : {19, 20, 24, 30, 34, 42, 43}) {
        QTest::addRow("%d on 16", nType) << nType << 16 << true << true;
        QTest::addRow("%d on 19", nType) << nType << 19 << true << true;
        QTest::addRow("%d on 20", nType) << nType << 20 << false << true;
        QTest::addRow("%d on 1", nType) << nType << 1 << false << true;
    }
}

void TestEdidSetDlgWindow::TheRowsThatTheSenderTypeDecides()
{
    QFETCH(int, senderType);
    QFETCH(int, interfaceId);
    QFETCH(bool, connect);
    QFETCH(bool, standard);
    CEdidHost host;
    host.senderLogic.nSenderType = senderType;
    const CEdidDialog dialog(host, interfaceId);
    QCOMPARE(dialog.dlg.IsShowConnectPC(), connect);
    QCOMPARE(!dialog.probe.ConnectPC().isHidden(), connect);
    QCOMPARE(!dialog.probe.Standard().isHidden(), standard);
    QCOMPARE(!dialog.probe.StandardLabel().isHidden(), standard);
}

void TestEdidSetDlgWindow::ConnectByteShows_data()
{
    QTest::addColumn<int>("byte");
    QTest::addColumn<bool>("checked");
    QTest::newRow("0") << 0 << false;
    QTest::newRow("1") << 1 << true;
    QTest::newRow("only 1 is checked") << 2 << false;
}

void TestEdidSetDlgWindow::ConnectByteShows()
{
    QFETCH(int, byte);
    QFETCH(bool, checked);
    CEdidHost host;
    host.senderLogic.nSenderType = 43;
    host.videoSourceLogic.setting = CEdidHost::Setting(QSize(1920, 1080), 60);
    host.videoSourceLogic.setting->byConnectPC = quint8(byte);
    const CEdidDialog dialog(host, 16);
    QCOMPARE(dialog.probe.ConnectPC().isChecked(), checked);
    QCOMPARE(int(dialog.probe.ConnectByte()), byte);
}

void TestEdidSetDlgWindow::AnUnknownTimingStandardShowsNoName()
{
    CEdidHost host;
    host.videoSourceLogic.setting = CEdidHost::Setting(QSize(1920, 1080), 60);
    host.videoSourceLogic.setting->byTimingStandard = 200;
    const CEdidDialog dialog(host);
    QCOMPARE(dialog.probe.Standard().text(), QString());
    QCOMPARE(EdidDialog::CheckedTexts(dialog.probe.Standard()), QStringList());
}

void TestEdidSetDlgWindow::AreaLimit_data()
{
    QTest::addColumn<int>("rate");
    QTest::addColumn<int>("fractional");
    QTest::addColumn<int>("limit");
    QTest::newRow("23.976") << 24 << 1 << 5765760;
    QTest::newRow("29.97") << 30 << 1 << 4612608;
    QTest::newRow("59.94") << 60 << 1 << 2306304;
    QTest::newRow("60") << 60 << 0 << 2304000;
    QTest::newRow("144") << 144 << 0 << 2304000;
    QTest::newRow("240") << 240 << 0 << 2304000;
}

void TestEdidSetDlgWindow::AreaLimit()
{
    QFETCH(int, rate);
    QFETCH(int, fractional);
    QFETCH(int, limit);
    CEdidHost host;
    host.videoSourceLogic.setting = CEdidHost::Setting(QSize(1920, 1080), quint8(rate));
    host.videoSourceLogic.setting->byFractional = quint8(fractional);
    const CEdidDialog dialog(host);
    QCOMPARE(dialog.dlg.GetMaxAreaByRate(), limit);
    QCOMPARE(host.record.All().last(), QStringLiteral("CheckEdidLimit(1920, 1080, %1)").arg(limit));
}

void TestEdidSetDlgWindow::ClockLimit_data()
{
    QTest::addColumn<int>("rate");
    QTest::addColumn<int>("fractional");
    QTest::addColumn<int>("standard");
    QTest::addColumn<int>("limit");
    QTest::newRow("23.976: the host sees no clock") << 24 << 1 << 0 << 0;
    QTest::newRow("144: the host sees no clock") << 144 << 0 << 0 << 0;
    QTest::newRow("50: the fixed timing's blanking") << 50 << 0 << 0 << 123;
    QTest::newRow("60: the fixed timing's blanking") << 60 << 0 << 1 << 148;
    QTest::newRow("59.94: reduced blanking") << 60 << 1 << 0 << 138;
    QTest::newRow("59.94: normal blanking") << 60 << 1 << 1 << 172;
}

void TestEdidSetDlgWindow::ClockLimit()
{
    QFETCH(int, rate);
    QFETCH(int, fractional);
    QFETCH(int, standard);
    QFETCH(int, limit);
    CEdidHost host;
    host.videoSourceLogic.limit.bLimitByPixelClock = true;
    host.videoSourceLogic.setting = CEdidHost::Setting(QSize(1920, 1080), quint8(rate));
    host.videoSourceLogic.setting->byFractional = quint8(fractional);
    host.videoSourceLogic.setting->byTimingStandard = quint8(standard);
    const CEdidDialog dialog(host);
    QCOMPARE(host.record.All().last(), QStringLiteral("CheckEdidLimit(1920, 1080, %1)").arg(limit));
}

void TestEdidSetDlgWindow::AnErrorDisablesOKAndGrowsTheWindow()
{
    CEdidHost host;
    host.videoSourceLogic.funcVerdict = [](int nWidth, int, int) {
        return nWidth > 1280 ? QStringLiteral("too wide") : QString();
    };
    const CEdidDialog dialog(host);
    QCOMPARE(dialog.probe.Error().text(), QStringLiteral("too wide"));
    QVERIFY(!dialog.probe.Error().isHidden());
    QVERIFY(!dialog.probe.OK().isEnabled());
    const int nHeight = dialog.dlg.height();

    EdidDialog::Choose(dialog.probe.Resolution(), QStringLiteral("1280 × 720"));
    QCOMPARE(dialog.probe.Error().text(), QString());
    QVERIFY(dialog.probe.Error().isHidden());
    QVERIFY(dialog.probe.OK().isEnabled());
    QCOMPARE(dialog.dlg.height(), nHeight - 32);
}

void TestEdidSetDlgWindow::TheNoticeLeavesOKEnabled()
{
    CEdidHost host;
    host.videoSourceLogic.funcVerdict = [](int, int, int) {
        return QStringLiteral("已使用DisplayID 1.3扩展块");
    };
    const CEdidDialog dialog(host);
    QVERIFY(!dialog.probe.Error().isHidden());
    QVERIFY(dialog.probe.OK().isEnabled());
    QCOMPARE(dialog.dlg.height(), 32 * 6 + 39);
}

namespace {

CEdidHost& WithVerdict(CEdidHost& host, const QString& strVerdict)
{
    host.videoSourceLogic.funcVerdict = [strVerdict](int nWidth, int, int) {
        return nWidth == 1280 ? QString() : strVerdict;
    };
    return host;
}

} // namespace

void TestEdidSetDlgWindow::AVerdictThatFitsHasNoTooltip()
{
    CEdidHost host;
    const QString strVerdict = QStringLiteral("first line\nsecond line\nthird line");
    const CEdidDialog dialog(WithVerdict(host, strVerdict));
    QCOMPARE(dialog.probe.Error().text(), strVerdict);
    QCOMPARE(dialog.probe.Error().toolTip(), QString());
}

void TestEdidSetDlgWindow::ALongVerdictEndsInAnEllipsisAndIsTheTooltip_data()
{
    QTest::addColumn<QString>("verdict");
    QTest::newRow("words") << QStringLiteral("much too large for this input ").repeated(10);
    QTest::newRow("Chinese") << QStringLiteral("分辨率超出此输入的限制，").repeated(10);
    QTest::newRow("one word") << QStringLiteral("x").repeated(300);
    QTest::newRow("four short lines") << QStringLiteral("one\ntwo\nthree\nfour");
}

void TestEdidSetDlgWindow::ALongVerdictEndsInAnEllipsisAndIsTheTooltip()
{
    QFETCH(QString, verdict);
    CEdidHost host;
    CEdidDialog dialog(WithVerdict(host, verdict));
    const CCustomLabel& error = dialog.probe.Error();
    QCOMPARE(error.toolTip(), verdict);
    QVERIFY(error.text().endsWith(QChar(0x2026)));
    QVERIFY(error.text().size() < verdict.size() + 1);
    const QRect rcText =
        error.fontMetrics().boundingRect(QRect(0, 0, error.width(), 1000), Qt::TextWordWrap, error.text());
    QCOMPARE(error.text().count(QLatin1Char('\n')), 2);
    QVERIFY(rcText.height() <= error.height() + c_nLineRounding * 3);
    QVERIFY(rcText.width() <= error.width());

    EdidDialog::Choose(dialog.probe.Resolution(), QStringLiteral("1280 × 720"));
    QCOMPARE(error.text(), QString());
    QCOMPARE(error.toolTip(), QString());
}

void TestEdidSetDlgWindow::ATypedSizeIsJudged()
{
    CEdidHost host;
    host.videoSourceLogic.setting = CEdidHost::Setting(QSize(1000, 500), 60);
    const CEdidDialog dialog(host);
    host.record.Clear();
    dialog.probe.Width().setValue(1200);
    dialog.probe.Height().setValue(600);
    const QStringList listExpected = {QStringLiteral("CheckEdidLimit(1200, 500, 2304000)"),
                                      QStringLiteral("CheckEdidLimit(1200, 600, 2304000)")};
    QCOMPARE(host.record.All(), listExpected);
}

void TestEdidSetDlgWindow::ATypedSizeAboveTheLimitBecomesTheLimit()
{
    CEdidHost host;
    host.videoSourceLogic.setting = CEdidHost::Setting(QSize(1000, 500), 60);
    const CEdidDialog dialog(host);
    dialog.probe.Width().setValue(4097);
    dialog.probe.Height().setValue(9999);
    QCOMPARE(dialog.probe.Width().value(), 4096.0);
    QCOMPARE(dialog.probe.Height().value(), 2160.0);
    QCOMPARE(host.record.All().last(), QStringLiteral("CheckEdidLimit(4096, 2160, 2304000)"));
    dialog.probe.Width().setValue(4096);
    QCOMPARE(dialog.probe.Width().value(), 4096.0);
}

void TestEdidSetDlgWindow::ALimitOfNothingEndsAtTheSmallestSize()
{
    CEdidHost host;
    host.videoSourceLogic.limit.nMaxWidth = -5;
    host.videoSourceLogic.limit.nMaxHeight = 0;
    host.videoSourceLogic.setting = CEdidHost::Setting(QSize(1000, 500), 60);
    const CEdidDialog dialog(host);
    dialog.probe.Width().setValue(1200);
    dialog.probe.Height().setValue(600);
    QCOMPARE(dialog.probe.Width().value(), 1.0);
    QCOMPARE(dialog.probe.Height().value(), 1.0);
}

void TestEdidSetDlgWindow::NothingOverlapsInAnyWindow_data()
{
    QTest::addColumn<int>("rows");
    for (const int nStandardRows : {0, 2, 3})
        for (const int nOther : {0, 4, 8, 12})
            QTest::addRow("rows %d", nStandardRows | nOther) << (nStandardRows | nOther);
}

void TestEdidSetDlgWindow::NothingOverlapsInAnyWindow()
{
    QFETCH(int, rows);
    CEdidHost host;
    SetRows(host, rows);
    CEdidDialog dialog(host, 16);
    dialog.dlg.show();
    const QList<QWidget*> listAll = dialog.dlg.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    QList<QWidget*> listShown;
    for (QWidget* pWidget : listAll) {
        if (pWidget->isVisible() && !pWidget->isWindow())
            listShown.append(pWidget);
    }
    QVERIFY(listShown.size() >= 7);
    for (const QWidget* pWidget : qAsConst(listShown)) {
        QVERIFY(dialog.dlg.rect().contains(pWidget->geometry()));
        for (const QWidget* pOther : qAsConst(listShown))
            QVERIFY(pWidget == pOther || !pWidget->geometry().intersects(pOther->geometry()));
    }
}

void TestEdidSetDlgWindow::TheRowsShareTheSpareHeight_data()
{
    QTest::addColumn<int>("rows");
    for (const int nRows : {0, 2, 3, 8, 10, 11})
        QTest::addRow("rows %d", nRows) << nRows;
}

void TestEdidSetDlgWindow::TheRowsShareTheSpareHeight()
{
    QFETCH(int, rows);
    CEdidHost host;
    SetRows(host, rows);
    CEdidDialog dialog(host, 16);
    dialog.dlg.show();
    const CEdidSetDlgProbe& probe = dialog.probe;
    QList<int> listTops;
    for (const QWidget* pControl :
         QList<const QWidget*>{&probe.Resolution(), &probe.Width(), &probe.Rate(), &probe.Depth(),
                               &probe.Standard(), &probe.ConnectPC(), &probe.OK()}) {
        if (pControl->isVisible())
            listTops.append(pControl->y());
    }
    const int nDistance = listTops.at(1) - listTops.at(0);
    QVERIFY(nDistance > 26 + 4); // a control and the gap below it
    for (int i = 1; i < listTops.size(); ++i)
        QVERIFY(qAbs(listTops.at(i) - listTops.at(i - 1) - nDistance) <= 1);
}

QTEST_MAIN(TestEdidSetDlgWindow)
#include "TestEdidSetDlgWindow.moc"
