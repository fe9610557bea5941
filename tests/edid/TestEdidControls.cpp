#include "SenderModuleDialog/edid/EdidControls.h"
#include "SenderModuleDialog/edid/EdidModel.h"
#include "host/OrviControl/CustomComboBox.h"
#include "host/OrviControl/CustomLabel.h"
#include "host/OrviControl/CustomSpinBox.h"
#include "tests/support/RecordingHost.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QMenu>
#include <QPushButton>
#include <QtTest>

namespace {

/// A dialog with nothing but the controls.
class CDialog
{
public:
    QString TextAt(int nRow, int nColumn) const
    {
        return Grid().itemAtPosition(nRow, nColumn)->widget()->property("text").toString();
    }
    QString NameAt(int nRow, int nColumn) const
    {
        return Grid().itemAtPosition(nRow, nColumn)->widget()->objectName();
    }

    const CRecordingHost host;
    QWidget widget;
    const SEdidControls controls{&widget, QSize(1280, 720)};

private:
    QGridLayout& Grid() const { return *widget.findChild<QGridLayout*>(); }
};

} // namespace

/// The controls of the EDID dialog without the dialog.
class TestEdidControls : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EachControlStandsInItsRow_data();
    void EachControlStandsInItsRow();
    void TheSpinBoxesStartWithTheCustomSize();
    void ASizeStaysWithinTheLargest();
    void TheRowOfTheSizeIsShownAsAWhole();
    void ADisabledSizeKeepsItsValues();
    void AnErrorIsShownWhileThereIsOne();
    void AChoiceRowShowsItsModel();
    void AChoiceRowWithoutATextKeepsTheOldOne();
};

void TestEdidControls::EachControlStandsInItsRow_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("name");
    QTest::newRow("size") << 1 << QStringLiteral("分辨率") << QStringLiteral("width");
    QTest::newRow("rate") << 2 << QStringLiteral("帧率") << QStringLiteral("rate");
    QTest::newRow("depth") << 3 << QStringLiteral("色深") << QStringLiteral("depth");
    QTest::newRow("format") << 4 << QStringLiteral("颜色格式") << QStringLiteral("format");
    QTest::newRow("standard") << 5 << QStringLiteral("标准") << QStringLiteral("standard");
}

void TestEdidControls::EachControlStandsInItsRow()
{
    QFETCH(int, row);
    const CDialog dialog;
    QTEST(dialog.TextAt(row, 0), "caption");
    QTEST(dialog.NameAt(row, 1), "name");
}

void TestEdidControls::TheSpinBoxesStartWithTheCustomSize()
{
    const CDialog dialog;
    QCOMPARE(dialog.controls.TypedSize(), QSize(1280, 720));
}

void TestEdidControls::ASizeStaysWithinTheLargest()
{
    const CDialog dialog;
    dialog.controls.pWidth->setValue(99999);
    dialog.controls.pHeight->setValue(99999);
    QCOMPARE(dialog.controls.TypedSize(), QSize(32768, 16384));
    dialog.controls.pWidth->setValue(0);
    dialog.controls.pHeight->setValue(0);
    QCOMPARE(dialog.controls.TypedSize(), QSize(1, 1));
}

void TestEdidControls::TheRowOfTheSizeIsShownAsAWhole()
{
    const CDialog dialog;
    const SEdidControls& controls = dialog.controls;
    for (const bool bShow : {false, true}) {
        controls.ShowSize(bShow);
        QCOMPARE(controls.pSizeLabel->isHidden(), !bShow);
        QCOMPARE(controls.pWidth->isHidden(), !bShow);
        QCOMPARE(controls.pTimesLabel->isHidden(), !bShow);
        QCOMPARE(controls.pHeight->isHidden(), !bShow);
    }
}

void TestEdidControls::ADisabledSizeKeepsItsValues()
{
    const CDialog dialog;
    dialog.controls.EnableSize(false);
    QVERIFY(!dialog.controls.pWidth->isEnabled());
    QVERIFY(!dialog.controls.pHeight->isEnabled());
    QCOMPARE(dialog.controls.TypedSize(), QSize(1280, 720));
}

void TestEdidControls::AnErrorIsShownWhileThereIsOne()
{
    const CDialog dialog;
    dialog.controls.ShowError(QStringLiteral("too large"));
    QVERIFY(!dialog.controls.pError->isHidden());
    QCOMPARE(dialog.controls.pError->text(), QStringLiteral("too large"));
    dialog.controls.ShowError(QString());
    QVERIFY(dialog.controls.pError->isHidden());
    QCOMPARE(dialog.controls.pError->text(), QString());
}

void TestEdidControls::AChoiceRowShowsItsModel()
{
    CDialog dialog;
    const SEdidChoiceRow& row = dialog.controls.rowRate;
    row.pComboBox->SetMenu(DialogFrame::CreateMenu(&dialog.widget, {{QStringLiteral("50"), 5}}), false, true,
                           true);
    row.Show({QStringLiteral("50"), 5, true});
    QCOMPARE(row.pComboBox->text(), QStringLiteral("50"));
    QVERIFY(row.pComboBox->menu()->actions().first()->isChecked());
    QVERIFY(!row.pLabel->isHidden());
    row.Show({QStringLiteral("60"), 7, false});
    QVERIFY(!row.pComboBox->menu()->actions().first()->isChecked());
    QVERIFY(row.pLabel->isHidden());
    QVERIFY(row.pComboBox->isHidden());
}

void TestEdidControls::AChoiceRowWithoutATextKeepsTheOldOne()
{
    CDialog dialog;
    const SEdidChoiceRow& row = dialog.controls.rowRate;
    row.pComboBox->SetMenu(DialogFrame::CreateMenu(&dialog.widget, {}), false, true, true);
    row.Show({QStringLiteral("60"), 7, true});
    row.Show({std::nullopt, 7, true});
    QCOMPARE(row.pComboBox->text(), QStringLiteral("60"));
}

QTEST_MAIN(TestEdidControls)
#include "TestEdidControls.moc"
