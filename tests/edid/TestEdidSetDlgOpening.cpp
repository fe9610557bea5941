#include "SenderModuleDialog/SenderModuleDialogInit.h"
#include "host/OrviControl/CustomComboBox.h"
#include "host/OrviControl/CustomLabel.h"
#include "host/OrviControl/CustomSpinBox.h"
#include "host/OrviControl/Style.h"
#include "host/QtCompat.h"
#include "tests/edid/EdidDialogHost.h"
#include "tests/support/DeathTest.h"

#include <QtTest>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTranslator>

#include <algorithm>

/// What the dialog reads while it is built, and what it shows first.
class TestEdidSetDlgOpening : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void HostCallsInOrder();
    void TheSupportOfDepthsIsAskedOnlyForAVideoProcessor();
    void TheTitleNamesThePort();
    void WithoutASettingTheDefaultsApply();
    void ARefusedSettingIsNotReadInParts();
    void AStoredSettingIsTaken();
    void RateIndex_data();
    void RateIndex();
    void DepthAndFormatIndex_data();
    void DepthAndFormatIndex();
    void ResolutionIndex_data();
    void ResolutionIndex();
    void TheFirstOfTwoEqualResolutionsIsTaken();
    void TheSpinBoxesStartAtTheStoredSize();
    void SpinBoxRanges();
    void SizesOfTheControls();
    void StylesOfTheControls();
    void PlacesOfTheControls();
    void ResultIsFalseAtFirst();
    void ADialogBeforeTheInitialisationFaults();
    void EveryTextIsLookedUpInTheCommonContext();
    void TheNoticeIsComparedInTheOperatorsLanguage();
};

void TestEdidSetDlgOpening::HostCallsInOrder()
{
    CEdidHost host;
    host.projectData.nCurSenderIndex = 2;
    const CEdidDialog dialog(host, 17);
    const QStringList listExpected = {
        QStringLiteral("GetCurSenderIndex()"),
        QStringLiteral("GetSenderType(2)"),
        QStringLiteral("GetEdidLimit(2, 17)"),
        QStringLiteral("GetVideoPortName(2, 17, 0)"),
        QStringLiteral("GetEdidSetting(2, 17)"),
        QStringLiteral("IsExtendedEdidSupported()"),
        QStringLiteral("GetCurSenderIndex()"),
        QStringLiteral("IsVideoProcessor(2)"),
        QStringLiteral("IsSupport10Bit(2)"),
        QStringLiteral("IsSupport12Bit(2)"),
        QStringLiteral("CheckEdidLimit(1920, 1080, 2304000)"),
    };
    QCOMPARE(host.record.All(), listExpected);
}

void TestEdidSetDlgOpening::TheSupportOfDepthsIsAskedOnlyForAVideoProcessor()
{
    CEdidHost host;
    host.senderLogic.bVideoProcessor = false;
    const CEdidDialog dialog(host);
    QCOMPARE(host.record.Count(QStringLiteral("IsSupport10Bit")), 0);
    QCOMPARE(host.record.Count(QStringLiteral("IsSupport12Bit")), 0);
}

void TestEdidSetDlgOpening::TheTitleNamesThePort()
{
    CEdidHost host;
    host.videoSourceLogic.strPortName = QStringLiteral("DP2");
    const CEdidDialog dialog(host);
    QCOMPARE(dialog.dlg.windowTitle(), QStringLiteral("DP2 - EDID设置"));
}

void TestEdidSetDlgOpening::WithoutASettingTheDefaultsApply()
{
    CEdidHost host;
    host.videoSourceLogic.limit.listResolution.clear();
    const CEdidDialog dialog(host);
    QCOMPARE(dialog.probe.Resolution().text(), QStringLiteral("自定义：1920×1080"));
    QCOMPARE(dialog.probe.RateIndex(), 7);
    QCOMPARE(int(dialog.probe.FormatFlags()), 0x02);
    QCOMPARE(dialog.probe.DepthIndex(), 0);
    QCOMPARE(dialog.probe.FormatIndex(), 0);
    QCOMPARE(int(dialog.probe.TimingStandard()), 0);
    QCOMPARE(int(dialog.probe.ConnectByte()), 0);
}

namespace {

/// A host that writes into the record and says that there is none.
class CHalfHost : public CRecordingVideoSourceLogic
{
public:
    using CRecordingVideoSourceLogic::CRecordingVideoSourceLogic;
    bool GetEdidSetting(int nSender, SVideoPortKey* pKey, SEdidSetting* pSetting) override
    {
        CRecordingVideoSourceLogic::GetEdidSetting(nSender, pKey, pSetting);
        *pSetting = CEdidHost::Setting(QSize(1, 1), 24, 0x88);
        return false;
    }
};

} // namespace

void TestEdidSetDlgOpening::ARefusedSettingIsNotReadInParts()
{
    CEdidHost host;
    CHalfHost logicHalf(host.record);
    g_pVideoSourceLogic = &logicHalf;
    const CEdidDialog dialog(host);
    QCOMPARE(dialog.probe.Width().value(), 1920.0);
    QCOMPARE(dialog.probe.RateIndex(), 7);
    QCOMPARE(int(dialog.probe.FormatFlags()), 0x02);
}

void TestEdidSetDlgOpening::AStoredSettingIsTaken()
{
    CEdidHost host;
    SEdidSetting setting = CEdidHost::Setting(QSize(1280, 720), 30, 0x44);
    setting.byFractional = 1;
    setting.byTimingStandard = 1;
    setting.byConnectPC = 1;
    host.videoSourceLogic.setting = setting;
    const CEdidDialog dialog(host);
    QCOMPARE(dialog.probe.ResolutionIndex(), 1);
    QCOMPARE(dialog.probe.RateIndex(), 3);
    QCOMPARE(dialog.probe.DepthIndex(), 1);
    QCOMPARE(dialog.probe.FormatIndex(), 2);
    QCOMPARE(int(dialog.probe.TimingStandard()), 1);
    QCOMPARE(int(dialog.probe.ConnectByte()), 1);
    QVERIFY(dialog.probe.ConnectPC().isChecked());
}

void TestEdidSetDlgOpening::RateIndex_data()
{
    QTest::addColumn<int>("rate");
    QTest::addColumn<int>("fractional");
    QTest::addColumn<int>("index");
    QTest::newRow("24 / 1.001") << 24 << 1 << 0;
    QTest::newRow("24") << 24 << 0 << 1;
    QTest::newRow("25") << 25 << 0 << 2;
    QTest::newRow("30 / 1.001") << 30 << 1 << 3;
    QTest::newRow("30") << 30 << 0 << 4;
    QTest::newRow("50") << 50 << 0 << 5;
    QTest::newRow("60 / 1.001") << 60 << 1 << 6;
    QTest::newRow("60") << 60 << 0 << 7;
    QTest::newRow("120") << 120 << 0 << 8;
    QTest::newRow("144") << 144 << 0 << 9;
    QTest::newRow("240") << 240 << 0 << 10;
    QTest::newRow("48 opens at 60") << 48 << 0 << 7;
    QTest::newRow("0 opens at 60") << 0 << 1 << 7;
}

void TestEdidSetDlgOpening::RateIndex()
{
    QFETCH(int, rate);
    QFETCH(int, fractional);
    QFETCH(int, index);
    CEdidHost host;
    host.videoSourceLogic.setting = CEdidHost::Setting(QSize(1920, 1080), quint8(rate));
    host.videoSourceLogic.setting->byFractional = quint8(fractional);
    const CEdidDialog dialog(host);
    QCOMPARE(dialog.probe.RateIndex(), index);
}

void TestEdidSetDlgOpening::DepthAndFormatIndex_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<int>("depth");
    QTest::addColumn<int>("format");
    QTest::newRow("nothing set") << 0x00 << 0 << 0;
    QTest::newRow("8 bit, RGB") << 0x12 << 0 << 0;
    QTest::newRow("10 bit, 4:4:4") << 0x24 << 1 << 1;
    QTest::newRow("12 bit, 4:2:2") << 0x48 << 2 << 2;
    QTest::newRow("8 bit, 4:4:0") << 0x82 << 0 << 3;
    QTest::newRow("all set: the first of each") << 0xFF << 0 << 0;
    QTest::newRow("10 and 12 bit, the upper three formats") << 0xEC << 1 << 1;
}

void TestEdidSetDlgOpening::DepthAndFormatIndex()
{
    QFETCH(int, flags);
    QFETCH(int, depth);
    QFETCH(int, format);
    CEdidHost host;
    host.videoSourceLogic.setting = CEdidHost::Setting(QSize(1920, 1080), 60, quint8(flags));
    const CEdidDialog dialog(host);
    QCOMPARE(dialog.probe.DepthIndex(), depth);
    QCOMPARE(dialog.probe.FormatIndex(), format);
    QCOMPARE(int(dialog.probe.FormatFlags()), flags);
}

void TestEdidSetDlgOpening::ResolutionIndex_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("interfaceId");
    QTest::addColumn<int>("index");
    QTest::newRow("first of the list") << QSize(1280, 720) << 1 << 1;
    QTest::newRow("last of the list") << QSize(1920, 1200) << 1 << 3;
    QTest::newRow("not listed: custom") << QSize(1000, 500) << 1 << 0;
    QTest::newRow("not listed on 131: custom") << QSize(1000, 500) << 131 << 0;
    QTest::newRow("not listed on 132: the fourth") << QSize(1000, 500) << 132 << 4;
    QTest::newRow("listed on 132") << QSize(1920, 1080) << 132 << 2;
}

void TestEdidSetDlgOpening::ResolutionIndex()
{
    QFETCH(QSize, size);
    QFETCH(int, interfaceId);
    QFETCH(int, index);
    CEdidHost host;
    host.videoSourceLogic.setting = CEdidHost::Setting(size, 60);
    const CEdidDialog dialog(host, interfaceId);
    QCOMPARE(dialog.probe.ResolutionIndex(), index);
}

void TestEdidSetDlgOpening::TheFirstOfTwoEqualResolutionsIsTaken()
{
    CEdidHost host;
    host.videoSourceLogic.limit.listResolution = {QSize(800, 600), QSize(1920, 1080), QSize(1920, 1080)};
    const CEdidDialog dialog(host);
    QCOMPARE(dialog.probe.ResolutionIndex(), 2);
}

void TestEdidSetDlgOpening::TheSpinBoxesStartAtTheStoredSize()
{
    CEdidHost host;
    host.videoSourceLogic.setting = CEdidHost::Setting(QSize(1234, 567), 60);
    const CEdidDialog dialog(host);
    QCOMPARE(dialog.probe.Width().text(), QStringLiteral("1234"));
    QCOMPARE(dialog.probe.Height().text(), QStringLiteral("567"));
}

void TestEdidSetDlgOpening::SpinBoxRanges()
{
    CEdidHost host;
    const CEdidDialog dialog(host);
    QCOMPARE(dialog.probe.Width().minimum(), 1.0);
    QCOMPARE(dialog.probe.Width().maximum(), 32768.0);
    QCOMPARE(dialog.probe.Height().minimum(), 1.0);
    QCOMPARE(dialog.probe.Height().maximum(), 16384.0);
}

void TestEdidSetDlgOpening::SizesOfTheControls()
{
    CEdidHost host;
    const CEdidDialog dialog(host);
    const CEdidSetDlgProbe& probe = dialog.probe;
    const QList<const QWidget*> listRows = {&probe.Resolution(), &probe.Width(), &probe.Height(),
                                            &probe.Rate(),       &probe.Depth(), &probe.Format(),
                                            &probe.Standard()};
    for (const QWidget* pWidget : listRows) {
        QCOMPARE(pWidget->minimumHeight(), 26);
        QCOMPARE(pWidget->maximumHeight(), 26);
    }
    QCOMPARE(probe.ConnectPC().maximumSize(), QSize(86, 26));
    QCOMPARE(probe.Error().maximumSize(), QSize(240, 52));
    QCOMPARE(probe.OK().maximumSize(), QSize(86, 26));
    QCOMPARE(probe.Cancel().maximumSize(), QSize(86, 26));
    QVERIFY(probe.Error().wordWrap());
}

void TestEdidSetDlgOpening::StylesOfTheControls()
{
    const auto Styled = [](const QString& strStyle, const char* szSelector) {
        return GetFontStyleSheet(strStyle, QString::fromLatin1(szSelector), 12);
    };
    CEdidHost host;
    const CEdidDialog dialog(host);
    const CEdidSetDlgProbe& probe = dialog.probe;
    int nCaptions = 0;
    for (const CCustomLabel* pLabel : dialog.dlg.findChildren<CCustomLabel*>()) {
        if (pLabel == &probe.Error())
            continue;
        ++nCaptions;
        QCOMPARE(pLabel->alignment(), Qt::AlignCenter);
        QCOMPARE(pLabel->styleSheet(), Styled(g_labelNoFrameStyle, "QLabel"));
    }
    QCOMPARE(nCaptions, 6);
    QCOMPARE(probe.Error().styleSheet(), Styled(g_labelWarnStyle, "QLabel"));
    QCOMPARE(probe.ConnectPC().styleSheet(), Styled(g_checkBoxStyle, "QCheckBox"));
    QCOMPARE(probe.OK().styleSheet(), Styled(g_pushButtonStyle, "QPushButton"));
    QCOMPARE(probe.Cancel().styleSheet(), Styled(g_pushButtonStyle, "QPushButton"));
    for (const CCustomComboBox* pComboBox :
         {&probe.Resolution(), &probe.Rate(), &probe.Depth(), &probe.Format(), &probe.Standard()})
        QCOMPARE(pComboBox->menu()->styleSheet(), Styled(g_menuStyle, "QMenu"));
}

void TestEdidSetDlgOpening::PlacesOfTheControls()
{
    CEdidHost host;
    const CEdidDialog dialog(host);
    const CEdidSetDlgProbe& probe = dialog.probe;
    const auto* pGrid = dialog.dlg.findChild<QGridLayout*>();
    QVERIFY(pGrid != nullptr);
    QCOMPARE(pGrid->contentsMargins(), QMargins(30, 15, 30, 10));
    QCOMPARE(pGrid->horizontalSpacing(), 0);
    const int arrStretch[] = {3, 2, 1, 2};
    for (int i = 0; i < 4; ++i)
        QCOMPARE(pGrid->columnStretch(i), arrStretch[i]);

    const auto Place = [&](QWidget& widget) {
        int nRow = -1;
        int nColumn = -1;
        int nRowSpan = -1;
        int nColumnSpan = -1;
        pGrid->getItemPosition(pGrid->indexOf(&widget), &nRow, &nColumn, &nRowSpan, &nColumnSpan);
        return QStringLiteral("%1 %2 %3").arg(nRow).arg(nColumn).arg(nColumnSpan);
    };
    QCOMPARE(Place(probe.Resolution()), QStringLiteral("0 0 4"));
    QCOMPARE(Place(probe.SizeLabel()), QStringLiteral("1 0 1"));
    QCOMPARE(Place(probe.Width()), QStringLiteral("1 1 1"));
    QCOMPARE(Place(probe.TimesLabel()), QStringLiteral("1 2 1"));
    QCOMPARE(Place(probe.Height()), QStringLiteral("1 3 1"));
    QCOMPARE(Place(probe.Rate()), QStringLiteral("2 1 3"));
    QCOMPARE(Place(probe.Depth()), QStringLiteral("3 1 3"));
    QCOMPARE(Place(probe.FormatLabel()), QStringLiteral("4 0 1"));
    QCOMPARE(Place(probe.Format()), QStringLiteral("4 1 3"));
    QCOMPARE(Place(probe.StandardLabel()), QStringLiteral("5 0 1"));
    QCOMPARE(Place(probe.Standard()), QStringLiteral("5 1 3"));
    QCOMPARE(Place(probe.ConnectPC()), QStringLiteral("6 0 4"));
    QCOMPARE(Place(probe.Error()), QStringLiteral("7 0 4"));
    QCOMPARE(Place(probe.OK()), QStringLiteral("8 0 1"));
    QCOMPARE(Place(probe.Cancel()), QStringLiteral("8 2 2"));
}

void TestEdidSetDlgOpening::ResultIsFalseAtFirst()
{
    CEdidHost host;
    const CEdidDialog dialog(host);
    QVERIFY(!dialog.dlg.IsSetSuccessed());
}

void TestEdidSetDlgOpening::ADialogBeforeTheInitialisationFaults()
{
    const SDeath death = RunToDeath([] { const CEdidSetDlg dlg(nullptr, 1, false); });
    QVERIFY(death.bAborted);
    QVERIFY2(death.strOutput.contains("g_pProjectData != nullptr"), death.strOutput.constData());
}

namespace {

/// Puts brackets around what is looked up in the common context, while it lives.
class CBrackets : public QTranslator
{
public:
    CBrackets() { QCoreApplication::installTranslator(this); }
    QString translate(const char* szContext, const char* szText, const char*, int) const override
    {
        return qstrcmp(szContext, "CCustomDialog") == 0
                   ? QStringLiteral("[%1]").arg(QString::fromUtf8(szText))
                   : QString();
    }
    bool isEmpty() const override { return false; }
};

bool IsChinese(const QString& strText)
{
    return std::any_of(strText.cbegin(), strText.cend(),
                       [](QChar ch) { return ch.script() == QChar::Script_Han; });
}

} // namespace

void TestEdidSetDlgOpening::EveryTextIsLookedUpInTheCommonContext()
{
    const CBrackets translator;
    CEdidHost host;
    host.videoSourceLogic.setting = CEdidHost::Setting(QSize(1000, 500), 60);
    host.videoSourceLogic.limit.listResolution.append(QtCompat::DesktopSize());
    CEdidDialog dialog(host);
    QStringList listTexts = {dialog.dlg.windowTitle()};
    for (const QLabel* pLabel : dialog.dlg.findChildren<QLabel*>())
        listTexts.append(pLabel->text());
    for (const QAbstractButton* pButton : dialog.dlg.findChildren<QAbstractButton*>())
        listTexts.append(pButton->text());
    for (const QAction* pAction : dialog.dlg.findChildren<QAction*>())
        listTexts.append(pAction->text());
    int nChinese = 0;
    for (const QString& strText : qAsConst(listTexts)) {
        if (!IsChinese(strText))
            continue;
        ++nChinese;
        QVERIFY2(strText.contains(QLatin1Char('[')), qPrintable(strText));
    }
    // The title, five captions, the resolution's text, the check box, two buttons, two entries of the menu.
    QCOMPARE(nChinese, 12);
}

void TestEdidSetDlgOpening::TheNoticeIsComparedInTheOperatorsLanguage()
{
    const CBrackets translator;
    CEdidHost host;
    host.videoSourceLogic.funcVerdict = [](int, int, int) {
        return QStringLiteral("[已使用DisplayID 1.3扩展块]");
    };
    QVERIFY(CEdidDialog(host).probe.OK().isEnabled());
    host.videoSourceLogic.funcVerdict = [](int, int, int) {
        return QStringLiteral("已使用DisplayID 1.3扩展块");
    };
    QVERIFY(!CEdidDialog(host).probe.OK().isEnabled());
}

QTEST_MAIN(TestEdidSetDlgOpening)
#include "TestEdidSetDlgOpening.moc"
