#include "SenderModuleDialog/output/BackgroundImageDlg.h"
#include "SenderModuleDialog/output/ResetCoefDlg.h"
#include "host/OrviControl/Style.h"
#include "tests/output/CanvasProbe.h"
#include "tests/output/DepthRateProbe.h"
#include "tests/support/Controls.h"
#include "tests/support/LayoutText.h"

#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QLabel>
#include <QSlider>
#include <QtTest>

/// Margins, spacings, stretches and styles of the output dialogs: a picture does not show them to the pixel.
class TestOutputLayouts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheCanvasDialog();
    void TheFieldsOfTheCanvasDialog();
    void TheRateAndDepthDialog();
    void TheFieldsOfTheRateAndDepthDialog();
    void TheRowsOfTheBackgroundDialog();
    void TheSliderOfTheBackgroundDialogHasItsWholeStyle();
    void TheCoefficientDialog();
};

namespace {

const QMargins c_noMargins(0, 0, 0, 0);

const QBoxLayout& Outer(const QWidget& dialog)
{
    return *qobject_cast<const QBoxLayout*>(dialog.layout());
}

} // namespace

void TestOutputLayouts::TheCanvasDialog()
{
    CRecordingHost host;
    const CanvasProbe::CProbe probe;
    QCOMPARE(Outer(probe.dialog).contentsMargins(), QMargins(25, 10, 25, 10));
    QCOMPARE(LayoutText::Box(Outer(probe.dialog)), QStringLiteral("QWidget:0 CCustomLabel:0 QHBoxLayout:0"));
    const QBoxLayout* pButtons = LayoutText::BoxOf(probe.dialog, &probe.Ok());
    QCOMPARE(pButtons->contentsMargins(), c_noMargins);
    QCOMPARE(pButtons->spacing(), 0);
    QCOMPARE(LayoutText::Box(*pButtons), QStringLiteral("~:2 确定:3 ~:2 取消:3 ~:2"));
}

void TestOutputLayouts::TheFieldsOfTheCanvasDialog()
{
    CRecordingHost host;
    const CanvasProbe::CProbe probe;
    const auto* pGrid = probe.dialog.findChild<QGridLayout*>();
    QCOMPARE(pGrid->contentsMargins(), c_noMargins);
    QCOMPARE(pGrid->horizontalSpacing(), 5);
    QCOMPARE(pGrid->verticalSpacing(), 5);
    QCOMPARE(LayoutText::Columns(*pGrid, 5), QStringLiteral("1 2 1 1 2"));
}

void TestOutputLayouts::TheRateAndDepthDialog()
{
    CRecordingHost host;
    const DepthRateProbe::CProbe probe;
    QCOMPARE(Outer(probe.dialog).contentsMargins(), QMargins(5, 5, 5, 5));
    QCOMPARE(Outer(probe.dialog).spacing(), 0);
    QCOMPARE(LayoutText::Box(Outer(probe.dialog)), QStringLiteral("CCustomLabel:75 CCustomLabel:40"));
    const QBoxLayout* pButtons = LayoutText::BoxOf(probe.dialog, &probe.Ok());
    QCOMPARE(pButtons->contentsMargins(), c_noMargins);
    QCOMPARE(pButtons->spacing(), 0);
    QCOMPARE(LayoutText::Box(*pButtons), QStringLiteral("~:1 确定:2 ~:2 取消:2 ~:1"));
}

void TestOutputLayouts::TheFieldsOfTheRateAndDepthDialog()
{
    CRecordingHost host;
    const DepthRateProbe::CProbe probe;
    const auto* pGrid = qobject_cast<const QGridLayout*>(probe.FieldPanel().layout());
    QVERIFY(pGrid != nullptr);
    QCOMPARE(pGrid->contentsMargins(), QMargins(10, 10, 10, 10));
    QCOMPARE(pGrid->horizontalSpacing(), 10);
    QCOMPARE(pGrid->verticalSpacing(), 10);
    QCOMPARE(pGrid->columnStretch(0), pGrid->columnStretch(1));
    QCOMPARE(pGrid->itemAtPosition(0, 0)->alignment(), Qt::AlignCenter);
    QCOMPARE(pGrid->itemAtPosition(1, 0)->alignment(), Qt::AlignCenter);
    QCOMPARE(pGrid->itemAtPosition(0, 1)->widget(), &probe.Rate());
    QCOMPARE(pGrid->itemAtPosition(1, 1)->widget(), &probe.Depth());
}

void TestOutputLayouts::TheRowsOfTheBackgroundDialog()
{
    CRecordingHost host;
    const CBackgroundImageDlg dialog(nullptr);
    QCOMPARE(Outer(dialog).contentsMargins(), QMargins(20, 20, 20, 20));
    const QStringList listExpected = {
        QStringLiteral("启用:0 CCustomSwitchButton:0 ~:0 选取图片...:0"),
        QStringLiteral("契合度:0 1:1:0"),
        QStringLiteral("透明度:0 QSlider:0 50%:0"),
    };
    QStringList listRows;
    for (const QHBoxLayout* pRow : dialog.findChildren<QHBoxLayout*>()) {
        QCOMPARE(pRow->contentsMargins(), c_noMargins);
        QCOMPARE(pRow->spacing(), 15);
        listRows.append(LayoutText::Box(*pRow));
    }
    QCOMPARE(listRows, listExpected);
}

void TestOutputLayouts::TheSliderOfTheBackgroundDialogHasItsWholeStyle()
{
    CRecordingHost host;
    const CBackgroundImageDlg dialog(nullptr);
    const QStringList listRules = {
        QStringLiteral(
            "QSlider::groove:horizontal{background:qlineargradient(spread:pad,x1:0,y1:0,x2:1,y2:0, "
            "stop: 0 rgb(0,0,0),stop:0.6 rgb(128,128,128) stop: 1 rgb(255,255,255)); margin:0px 1px "
            "0px 0px;border-radius: 3px; height: 6px; }"),
        QStringLiteral(
            "QSlider::handle:horizontal{width: 14px; background: rgb(255, 255, 255); margin:-4px 0px "
            "-4px 0px; border-radius: 7px;}"),
        QStringLiteral("QSlider::handle:horizontal:pressed{width: 10px; background: rgb(145, 145, 145); "
                       "margin:-4px 0px -4px 0px; border-radius: 7px;  border:2px solid rgb(255,255,255);}"),
        QStringLiteral("QSlider::sub-page:horizontal{background:transparent; border-radius:3px;}"),
        QStringLiteral("QSlider::add-page:horizontal{background:rgb(6,6,6); margin:0px 0px -1px 0px; "
                       "border-bottom:2px solid rgb(50,50,50); border-radius:3px;}"),
        QStringLiteral(
            "QSlider::groove:horizontal:disabled{background-color:rgb(120,120,120); margin:0px 1px "
            "0px 0px;border-radius: 3px; height: 6px; }"),
        QStringLiteral("QSlider::handle:horizontal:disabled{width: 14px; background: rgb(180, 180, 180); "
                       "margin:-4px 0px -4px 0px; border-radius: 7px;}"),
    };
    QCOMPARE(Control<QSlider>(dialog, "transparencySlider").styleSheet(), listRules.join(QString()));
}

void TestOutputLayouts::TheCoefficientDialog()
{
    const CResetCoefDlg dialog(true, nullptr);
    QCOMPARE(Outer(dialog).contentsMargins(), QMargins(10, 10, 10, 10));
    QCOMPARE(LayoutText::Box(Outer(dialog)), QStringLiteral("QHBoxLayout:0 QHBoxLayout:0"));
    const QBoxLayout* pFields = LayoutText::BoxOf(dialog, &Control<QDoubleSpinBox>(dialog, "coefficient"));
    QCOMPARE(pFields->contentsMargins(), c_noMargins);
    QCOMPARE(LayoutText::Box(*pFields), QStringLiteral("~:0 校正系数:0 ~:0 0.000:0 ~:0"));
    QPushButton* pOk = &Control<QPushButton>(dialog, "ok");
    QCOMPARE(LayoutText::Box(*LayoutText::BoxOf(dialog, pOk)), QStringLiteral("确定:0 取消:0"));
    for (const char* szName : {"ok", "cancel"})
        QCOMPARE(Control<QPushButton>(dialog, szName).styleSheet(),
                 GetFontStyleSheet(g_pushButtonStyle, QStringLiteral("QPushButton"), 12));
    QCOMPARE(dialog.findChild<QLabel*>()->styleSheet(),
             GetFontStyleSheet(g_labelNoFrameStyle, QStringLiteral("QLabel"), 12));
}

QTEST_MAIN(TestOutputLayouts)
#include "TestOutputLayouts.moc"
