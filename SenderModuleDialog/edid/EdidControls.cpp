#include "SenderModuleDialog/edid/EdidControls.h"

#include "SenderModuleDialog/Constants.h"
#include "SenderModuleDialog/edid/EdidModel.h"
#include "host/OrviControl/CustomComboBox.h"
#include "host/OrviControl/CustomDialog.h"
#include "host/OrviControl/CustomLabel.h"
#include "host/OrviControl/CustomSpinBox.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

/// Rows of the grid.
enum enGridRow
{
    enRowResolution,
    enRowSize,
    enRowRate,
    enRowDepth,
    enRowFormat,
    enRowStandard,
    enRowConnectPC,
    enRowError,
    enRowButtons
};

constexpr int c_arrColumnStretch[] = {3, 2, 1, 2};
constexpr int c_nColumns = 4;

/// Around the grid, pixels.
constexpr QMargins c_margins(30, 15, 30, 10);

/// Height of the choices and spin boxes, pixels.
constexpr int c_nControlHeight = 26;
constexpr QSize c_sizeButton(86, 26);
constexpr QSize c_sizeCheckBox(86, 26);
constexpr QSize c_sizeError(240, 52);

/// Lines that the error label holds.
constexpr int c_nErrorLines = 3;

/// The largest gap between rows with which the error line, higher than the one row that the window grows by,
/// still fits into every window.
constexpr int c_nRowGap = 4;

/// Every control stands in the middle of its row, so that the rows share the spare height of a window.
constexpr Qt::Alignment c_alignRow = Qt::AlignVCenter;

/// The largest size that can be typed, pixels.
constexpr QSize c_sizeMaximum(32768, 16384);

CCustomLabel* CreateCaption(QWidget* pDialog, const char* szText)
{
    return DialogFrame::CreateCaption(pDialog, CCustomDialog::tr(szText), Qt::AlignCenter);
}

CCustomComboBox* CreateComboBox(QWidget* pDialog)
{
    auto* pComboBox = new CCustomComboBox(pDialog);
    pComboBox->setFixedHeight(c_nControlHeight);
    return pComboBox;
}

CCustomComboBox* CreateResolution(QWidget* pDialog)
{
    CCustomComboBox* pComboBox = CreateComboBox(pDialog);
    DialogFrame::NameControl(pComboBox, "resolution", CCustomDialog::tr("分辨率"));
    return pComboBox;
}

CCustomSpinBox* CreateSpinBox(QWidget* pDialog, int nMaximum, int nValue)
{
    auto* pSpinBox = new CCustomSpinBox(0, pDialog);
    pSpinBox->SetMinMax(1, nMaximum);
    pSpinBox->setFixedHeight(c_nControlHeight);
    pSpinBox->setValue(nValue);
    return pSpinBox;
}

SEdidChoiceRow CreateChoiceRow(QWidget* pDialog, const char* szCaption, const char* szName)
{
    SEdidChoiceRow row;
    row.pLabel = CreateCaption(pDialog, szCaption);
    row.pComboBox = CreateComboBox(pDialog);
    DialogFrame::NameControl(row.pComboBox, szName, row.pLabel);
    return row;
}

QCheckBox* CreateConnectPC(QWidget* pDialog)
{
    auto* pCheckBox = new QCheckBox(CCustomDialog::tr("连接电脑"), pDialog);
    DialogFrame::StyleCheckBox(pCheckBox);
    pCheckBox->setFixedSize(c_sizeCheckBox);
    DialogFrame::NameControl(pCheckBox, "connectPC", pCheckBox->text());
    return pCheckBox;
}

CCustomLabel* CreateError(QWidget* pDialog)
{
    auto* pLabel = new CCustomLabel(pDialog, Qt::WindowFlags());
    DialogFrame::StyleWarning(pLabel);
    pLabel->setWordWrap(true);
    pLabel->setObjectName(QStringLiteral("error"));
    pLabel->setFixedSize(c_sizeError);
    return pLabel;
}

QGridLayout* CreateGrid(QWidget* pDialog)
{
    auto* pOuter = new QVBoxLayout(pDialog);
    pOuter->setContentsMargins(0, 0, 0, 0);
    auto* pGrid = new QGridLayout;
    pGrid->setContentsMargins(c_margins);
    pGrid->setHorizontalSpacing(0);
    pGrid->setVerticalSpacing(c_nRowGap);
    for (int i = 0; i < c_nColumns; ++i)
        pGrid->setColumnStretch(i, c_arrColumnStretch[i]);
    pOuter->addLayout(pGrid);
    return pGrid;
}

void AddWholeRow(QGridLayout* pGrid, QWidget* pControl, enGridRow row)
{
    pGrid->addWidget(pControl, row, 0, 1, c_nColumns, c_alignRow);
}

void AddChoiceRow(QGridLayout* pGrid, const SEdidChoiceRow& choice, enGridRow row)
{
    pGrid->addWidget(choice.pLabel, row, 0, c_alignRow);
    pGrid->addWidget(choice.pComboBox, row, 1, 1, c_nColumns - 1, c_alignRow);
}

void AddSizeRow(QGridLayout* pGrid, const SEdidControls& controls)
{
    DialogFrame::NameControl(controls.pWidth, "width", controls.pSizeLabel);
    DialogFrame::NameControl(controls.pHeight, "height", controls.pTimesLabel);
    controls.pWidth->setAccessibleName(CCustomDialog::tr("宽"));
    controls.pHeight->setAccessibleName(CCustomDialog::tr("高"));
    pGrid->addWidget(controls.pSizeLabel, enRowSize, 0, c_alignRow);
    pGrid->addWidget(controls.pWidth, enRowSize, 1, c_alignRow);
    pGrid->addWidget(controls.pTimesLabel, enRowSize, 2, c_alignRow);
    pGrid->addWidget(controls.pHeight, enRowSize, 3, c_alignRow);
}

DialogFrame::SOkCancel CreateButtons(QWidget* pDialog)
{
    const auto buttons = DialogFrame::SOkCancel::Create(pDialog, QT_TRANSLATE_NOOP("CCustomDialog", "确认"));
    buttons.Style();
    buttons.SetFixedSize(c_sizeButton);
    // Enter in a spin box confirms; without a default of its own the window would open the nearest menu.
    buttons.pOk->setDefault(true);
    return buttons;
}

} // namespace

void SEdidChoiceRow::Show(const SEdidRow& row) const
{
    if (row.text)
        pComboBox->setText(*row.text);
    DialogFrame::CheckEntry(pComboBox->menu()->actions(), row.nChecked);
    pLabel->setVisible(row.bVisible);
    pComboBox->setVisible(row.bVisible);
}

/// The order of the controls is that of the tab key.
SEdidControls::SEdidControls(QWidget* pDialog, QSize sizeCustom)
    : pResolution(CreateResolution(pDialog))
    , pSizeLabel(CreateCaption(pDialog, QT_TRANSLATE_NOOP("CCustomDialog", "分辨率")))
    , pWidth(CreateSpinBox(pDialog, c_sizeMaximum.width(), sizeCustom.width()))
    , pTimesLabel(DialogFrame::CreateCaption(pDialog, QStringLiteral("×"), Qt::AlignCenter))
    , pHeight(CreateSpinBox(pDialog, c_sizeMaximum.height(), sizeCustom.height()))
    , rowRate(CreateChoiceRow(pDialog, QT_TRANSLATE_NOOP("CCustomDialog", "帧率"), "rate"))
    , rowDepth(CreateChoiceRow(pDialog, QT_TRANSLATE_NOOP("CCustomDialog", "色深"), "depth"))
    , rowFormat(CreateChoiceRow(pDialog, QT_TRANSLATE_NOOP("CCustomDialog", "颜色格式"), "format"))
    , rowStandard(CreateChoiceRow(pDialog, QT_TRANSLATE_NOOP("CCustomDialog", "标准"), "standard"))
    , pConnectPC(CreateConnectPC(pDialog))
    , pError(CreateError(pDialog))
    , buttons(CreateButtons(pDialog))
{
    // A default button would have the first focus instead of a menu.
    pResolution->setFocus();
    QGridLayout* pGrid = CreateGrid(pDialog);
    AddWholeRow(pGrid, pResolution, enRowResolution);
    AddSizeRow(pGrid, *this);
    AddChoiceRow(pGrid, rowRate, enRowRate);
    AddChoiceRow(pGrid, rowDepth, enRowDepth);
    AddChoiceRow(pGrid, rowFormat, enRowFormat);
    AddChoiceRow(pGrid, rowStandard, enRowStandard);
    AddWholeRow(pGrid, pConnectPC, enRowConnectPC);
    AddWholeRow(pGrid, pError, enRowError);
    pGrid->addWidget(buttons.pOk, enRowButtons, 0, c_alignRow | Qt::AlignLeft);
    pGrid->addWidget(buttons.pCancel, enRowButtons, 2, 1, 2, c_alignRow | Qt::AlignRight);
}

QSize SEdidControls::TypedSize() const
{
    return {pWidth->text().toInt(), pHeight->text().toInt()};
}

void SEdidControls::ShowSize(bool bShow) const
{
    for (QWidget* pWidget : {static_cast<QWidget*>(pSizeLabel), static_cast<QWidget*>(pWidth),
                             static_cast<QWidget*>(pTimesLabel), static_cast<QWidget*>(pHeight)})
        pWidget->setVisible(bShow);
}

void SEdidControls::EnableSize(bool bEnable) const
{
    pWidth->setEnabled(bEnable);
    pHeight->setEnabled(bEnable);
}

void SEdidControls::ShowError(const QString& strText) const
{
    DialogFrame::ShowWrapped(pError, strText, c_nErrorLines);
    pError->setVisible(!strText.isEmpty());
}
