// The controls of the EDID dialog and the menus behind its combo boxes.

#include "SenderModuleDialog/Constants.h"
#include "SenderModuleDialog/DialogFrame.h"
#include "SenderModuleDialog/HostAccess.h"
#include "SenderModuleDialog/edid/EdidModel.h"
#include "SenderModuleDialog/edid/EdidOptions.h"
#include "SenderModuleDialog/edid/EdidSetDlg.h"
#include "host/OrviControl/CustomComboBox.h"
#include "host/OrviControl/CustomLabel.h"
#include "host/OrviControl/CustomSpinBox.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDesktopWidget>
#include <QGridLayout>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>

#include <cstddef>

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

/// The largest gap between rows with which the error line, higher than the one row that the window grows by,
/// still fits into every window.
constexpr int c_nRowGap = 4;

/// Every control stands in the middle of its row, so that the rows share the spare height of a window.
constexpr Qt::Alignment c_alignRow = Qt::AlignVCenter;

constexpr int c_nWidthMax = 32768;
constexpr int c_nHeightMax = 16384;

} // namespace

void CEdidSetDlg::SChoiceRow::Show(const SEdidRow& row) const
{
    if (row.text)
        pComboBox->setText(*row.text);
    DialogFrame::CheckEntry(pComboBox->menu()->actions(), row.nChecked);
    pLabel->setVisible(row.bVisible);
    pComboBox->setVisible(row.bVisible);
}

void CEdidSetDlg::InitControl()
{
    QGridLayout* pGrid = CreateGrid();
    m_pResolutionComboBox = CreateComboBox();
    DialogFrame::NameControl(m_pResolutionComboBox, "resolution", CCustomDialog::tr("分辨率"));
    pGrid->addWidget(m_pResolutionComboBox, enRowResolution, 0, 1, c_nColumns, c_alignRow);
    InitSizeRow(pGrid);
    InitChoiceRow(pGrid, enRowRate, QT_TRANSLATE_NOOP("CCustomDialog", "帧率"), "rate", m_rowRate);
    InitChoiceRow(pGrid, enRowDepth, QT_TRANSLATE_NOOP("CCustomDialog", "色深"), "depth", m_rowDepth);
    InitChoiceRow(pGrid, enRowFormat, QT_TRANSLATE_NOOP("CCustomDialog", "颜色格式"), "format", m_rowFormat);
    InitChoiceRow(pGrid, enRowStandard, QT_TRANSLATE_NOOP("CCustomDialog", "标准"), "standard",
                  m_rowStandard);
    InitOptionRows(pGrid);
    InitButtonRow(pGrid);
}

QGridLayout* CEdidSetDlg::CreateGrid()
{
    auto* pOuter = new QVBoxLayout(this);
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

CCustomComboBox* CEdidSetDlg::CreateComboBox()
{
    auto* pComboBox = new CCustomComboBox(this);
    pComboBox->setFixedHeight(c_nControlHeight);
    return pComboBox;
}

void CEdidSetDlg::InitSizeRow(QGridLayout* pGrid)
{
    const auto CreateSpinBox = [this](int nMaximum, int nValue) {
        auto* pSpinBox = new CCustomSpinBox(0, this);
        pSpinBox->SetMinMax(1, nMaximum);
        pSpinBox->setFixedHeight(c_nControlHeight);
        pSpinBox->setValue(nValue);
        return pSpinBox;
    };
    m_pSizeLabel = DialogFrame::CreateCaption(this, CCustomDialog::tr("分辨率"), Qt::AlignCenter);
    m_pWidthSpinBox = CreateSpinBox(c_nWidthMax, m_pModel->sizeCustom.width());
    m_pTimesLabel = DialogFrame::CreateCaption(this, QStringLiteral("×"), Qt::AlignCenter);
    m_pHeightSpinBox = CreateSpinBox(c_nHeightMax, m_pModel->sizeCustom.height());
    DialogFrame::NameControl(m_pWidthSpinBox, "width", m_pSizeLabel);
    DialogFrame::NameControl(m_pHeightSpinBox, "height", m_pTimesLabel);
    m_pWidthSpinBox->setAccessibleName(CCustomDialog::tr("宽"));
    m_pHeightSpinBox->setAccessibleName(CCustomDialog::tr("高"));
    pGrid->addWidget(m_pSizeLabel, enRowSize, 0, c_alignRow);
    pGrid->addWidget(m_pWidthSpinBox, enRowSize, 1, c_alignRow);
    pGrid->addWidget(m_pTimesLabel, enRowSize, 2, c_alignRow);
    pGrid->addWidget(m_pHeightSpinBox, enRowSize, 3, c_alignRow);
}

void CEdidSetDlg::InitChoiceRow(QGridLayout* pGrid, int nGridRow, const char* szCaption, const char* szName,
                                SChoiceRow& row)
{
    row.pLabel = DialogFrame::CreateCaption(this, CCustomDialog::tr(szCaption), Qt::AlignCenter);
    row.pComboBox = CreateComboBox();
    DialogFrame::NameControl(row.pComboBox, szName, row.pLabel);
    pGrid->addWidget(row.pLabel, nGridRow, 0, c_alignRow);
    pGrid->addWidget(row.pComboBox, nGridRow, 1, 1, c_nColumns - 1, c_alignRow);
}

void CEdidSetDlg::InitOptionRows(QGridLayout* pGrid)
{
    m_pConnectPCCheckBox = new QCheckBox(CCustomDialog::tr("连接电脑"), this);
    DialogFrame::StyleCheckBox(m_pConnectPCCheckBox);
    m_pConnectPCCheckBox->setFixedSize(c_sizeCheckBox);
    DialogFrame::NameControl(m_pConnectPCCheckBox, "connectPC", m_pConnectPCCheckBox->text());
    pGrid->addWidget(m_pConnectPCCheckBox, enRowConnectPC, 0, 1, c_nColumns, c_alignRow);

    m_pErrorLabel = new CCustomLabel(this, Qt::WindowFlags());
    DialogFrame::StyleWarning(m_pErrorLabel);
    m_pErrorLabel->setWordWrap(true);
    m_pErrorLabel->setObjectName(QStringLiteral("error"));
    m_pErrorLabel->setFixedSize(c_sizeError);
    pGrid->addWidget(m_pErrorLabel, enRowError, 0, 1, c_nColumns, c_alignRow);
}

void CEdidSetDlg::InitButtonRow(QGridLayout* pGrid)
{
    const auto buttons = DialogFrame::SOkCancel::Create(this, QT_TRANSLATE_NOOP("CCustomDialog", "确认"));
    m_pOkButton = buttons.pOk;
    m_pCancelButton = buttons.pCancel;
    buttons.Style();
    buttons.SetFixedSize(c_sizeButton);
    // Enter in a spin box confirms; without a default of its own the window would open the nearest menu.
    m_pOkButton->setDefault(true);
    pGrid->addWidget(m_pOkButton, enRowButtons, 0, c_alignRow | Qt::AlignLeft);
    pGrid->addWidget(m_pCancelButton, enRowButtons, 2, 1, 2, c_alignRow | Qt::AlignRight);
}

void CEdidSetDlg::InitComboBox()
{
    InitResolutionMenu();
    InitRateMenu();
    InitDepthMenu();
    InitFormatMenu();
    InitStandardMenu();
}

void CEdidSetDlg::InitResolutionMenu()
{
    const QList<QSize>& listResolution = m_pModel->limit.listResolution;
    QMenu* pMenu = DialogFrame::CreateMenu(this, {});
    // The interface 132 does not offer the custom size, yet the action is there and works.
    const bool bOffersCustom = !EdidOptions::IsInterface132(m_pModel->nInterfaceId);
    QAction* pCustom = AddResolution(bOffersCustom ? pMenu : nullptr, 0, CCustomDialog::tr("自定义"));
    if (m_pModel->nResolutionIndex > listResolution.size())
        return;
    for (int i = 0; i < listResolution.size(); ++i) {
        QAction* pAction = AddResolution(pMenu, i + 1, PresetText(listResolution.at(i)));
        pAction->setChecked(listResolution.at(i) == m_pModel->sizeCustom);
    }
    pCustom->setChecked(m_pModel->nResolutionIndex == 0);
    m_pResolutionComboBox->SetMenu(pMenu, false, true, true);
}

QAction* CEdidSetDlg::AddResolution(QMenu* pMenu, int nIndex, const QString& strText)
{
    auto* pAction = new QAction(strText, this);
    pAction->setData(nIndex);
    pAction->setCheckable(true);
    m_listResolutionActions.append(pAction);
    if (pMenu != nullptr)
        pMenu->addAction(pAction);
    // After the menu has connected itself, so that the refresh has the last word on the combo box's text.
    connect(pAction, &QAction::triggered, this, [this, nIndex] { OnResolutionComboBoxSelect(nIndex); });
    return pAction;
}

QString CEdidSetDlg::PresetText(QSize size) const
{
    QString strText = QStringLiteral("%1 × %2").arg(size.width()).arg(size.height());
    if (size != QApplication::desktop()->size())
        return strText;
    return QStringLiteral("%1 (%2)").arg(strText, CCustomDialog::tr("电脑"));
}

void CEdidSetDlg::InitRateMenu()
{
    const bool bExtendedEdid = HostAccess::SenderLogic().IsExtendedEdidSupported();
    QMenu* pMenu = DialogFrame::CreateMenu(this, {});
    for (const int nIndex : EdidOptions::OfferedRates(
             {m_pModel->nSenderType, m_pModel->nInterfaceId, m_pModel->bLowRateOnly, bExtendedEdid}))
        DialogFrame::AddEntry(pMenu, {QString::fromLatin1(EdidOptions::RateAt(nIndex)->szText), nIndex});
    m_rowRate.pComboBox->SetMenu(pMenu, false, true, true);
    connect(pMenu, &QMenu::triggered, this, &CEdidSetDlg::OnRateComboBoxSelect);
}

void CEdidSetDlg::InitDepthMenu()
{
    const int nSender = HostAccess::CurrentSenderIndex();
    CSenderLogic& logic = HostAccess::SenderLogic();
    EdidOptions::SDepthSupport support;
    support.bVideoProcessor = logic.IsVideoProcessor(nSender);
    if (support.bVideoProcessor) {
        support.b10Bit = logic.IsSupport10Bit(nSender);
        support.b12Bit = logic.IsSupport12Bit(nSender);
    }
    // Written as soon as the dialog opens, intentionally: hosts expect the record to follow the hardware.
    if (EdidOptions::HasOnly8Bit(support))
        HostAccess::CurrentSender().nColorDepth = 8;

    QMenu* pMenu = DialogFrame::CreateMenu(this, {});
    const int nDepths = EdidOptions::OfferedDepthCount(
        support, {m_pModel->nSenderType, m_pModel->nInterfaceId, m_pModel->bLowRateOnly, false});
    for (int i = 0; i < nDepths; ++i)
        DialogFrame::AddEntry(pMenu,
                              {QString::fromLatin1(EdidOptions::c_arrDepths[std::size_t(i)].szMenuText), i});
    m_rowDepth.pComboBox->SetMenu(pMenu, true, true, true);
}

void CEdidSetDlg::InitFormatMenu()
{
    QMenu* pMenu = DialogFrame::CreateMenu(this, {});
    for (int i = 0; i < int(EdidOptions::c_arrFormats.size()); ++i)
        DialogFrame::AddEntry(pMenu, {EdidOptions::FormatName(i), i});
    m_rowFormat.pComboBox->SetMenu(pMenu, false, true, true);
    connect(pMenu, &QMenu::triggered, this,
            [this](QAction* pAction) { OnColorFormatComboBoxSelect(pAction->data().toInt()); });
}

void CEdidSetDlg::InitStandardMenu()
{
    QMenu* pMenu = DialogFrame::CreateMenu(this, {});
    for (int i = 0; i < int(EdidOptions::c_arrTimingStandards.size()); ++i)
        DialogFrame::AddEntry(pMenu, {EdidOptions::TimingStandardName(i), i});
    m_rowStandard.pComboBox->SetMenu(pMenu, false, true, true);
    connect(pMenu, &QMenu::triggered, this,
            [this](QAction* pAction) { OnTimingStandardComboBoxSelect(pAction->data().toInt()); });
}

void CEdidSetDlg::InitControlConnect()
{
    connect(m_rowDepth.pComboBox, &CCustomComboBox::Activated, this,
            &CEdidSetDlg::OnColorDepthComboBoxSelect);
    connect(m_pConnectPCCheckBox, &QCheckBox::clicked, this,
            [this] { m_pModel->byConnectPC = m_pModel->byConnectPC == 1 ? 0 : 1; });
    connect(m_pWidthSpinBox, &QDoubleSpinBox::textChanged, this, &CEdidSetDlg::OnWidthSpinBoxValueChanged);
    connect(m_pHeightSpinBox, &QDoubleSpinBox::textChanged, this, &CEdidSetDlg::OnHeightSpinBoxValueChanged);
    connect(m_pOkButton, &QPushButton::clicked, this, &CEdidSetDlg::OnOKPushButtonClicked);
    connect(m_pCancelButton, &QPushButton::clicked, this, &CEdidSetDlg::OnCancelPushButtonClicked);
}
