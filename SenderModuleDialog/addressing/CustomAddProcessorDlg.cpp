#include "SenderModuleDialog/addressing/CustomAddProcessorDlg.h"

#include "SenderModuleDialog/Constants.h"
#include "SenderModuleDialog/DialogFrame.h"
#include "SenderModuleDialog/HostAccess.h"
#include "SenderModuleDialog/addressing/AddressDialogs.h"
#include "SenderModuleDialog/addressing/AddressGenerators.h"
#include "SenderModuleDialog/addressing/LocalAddresses.h"
#include "host/OrviControl/CustomComboBox.h"
#include "host/OrviControl/CustomIPEdit.h"
#include "host/OrviControl/CustomLabel.h"
#include "host/OrviControl/CustomSpinBox.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QMenu>

namespace {

constexpr int c_nDefaultCount = 3;
constexpr int c_nAddressStrategy = 2; ///< the one detect strategy that finds processors by address

/// Output ports that a processor can have.
constexpr int c_arrPortCounts[] = {2, 4, 6, 8, 12, 16, 20, 32, 80};

constexpr int c_nCountCaptionWidth = 150;
constexpr int c_nCaptionWidth = 120;
constexpr int c_nCaptionHeight = 24;

// Grid columns: the outer and the middle ones stretch, so that the controls stay centred.
constexpr int c_nCaptionColumn = 1;
constexpr int c_nFieldColumn = 3;
constexpr int c_arrStretchColumns[] = {0, 2, 4};

constexpr int c_nCountRow = 0;
constexpr int c_nPortRow = 1;
constexpr int c_nAddressRow = 2;

/// The window has the size of the rows that it shows.
QSize DialogSize(bool bPortFixed, bool bUseIP)
{
    if (bUseIP)
        return {340, bPortFixed ? 145 : 175};
    return {260, bPortFixed ? 95 : 145};
}

} // namespace

CCustomAddProcessorDlg::CCustomAddProcessorDlg(QWidget* pParent)
    : CCustomDialog(pParent, false)
{
    m_bPortFixed = HostAccess::SenderLogic().GetAddedSenderCount() > 0;
    m_nPortCount = Deref(HostAccess::ProjectData().GetSender(0), "GetSender(0) != nullptr").nOutputPortCount;
    m_bUseIP = HostAccess::ConfigData().GetDetectStrategy() == c_nAddressStrategy &&
               HostAccess::SenderLogic().IsIPAddressMode();
    setFixedSize(DialogSize(m_bPortFixed, m_bUseIP));
    InitControl();
}

CCustomAddProcessorDlg::~CCustomAddProcessorDlg() = default;

void CCustomAddProcessorDlg::InitControl()
{
    setWindowTitle(CCustomDialog::tr("自定义添加主控"));
    setFocusPolicy(Qt::ClickFocus);
    m_nCount = c_nDefaultCount;

    auto* pGrid = new QGridLayout;
    pGrid->setContentsMargins(0, 0, 0, 0);
    for (const int nColumn : c_arrStretchColumns)
        pGrid->setColumnStretch(nColumn, 1);
    InitCountRow(pGrid);
    if (!m_bPortFixed)
        InitPortRow(pGrid);
    if (m_bUseIP)
        InitAddressRow(pGrid);

    AddressDialogs::LayOut(this, pGrid,
                           DialogFrame::CreateOkCancelRow(this, [this](int nID) { ActionSlots(nID); }));
}

CCustomLabel* CCustomAddProcessorDlg::CreateRowCaption(const char* szText, int nMaxWidth)
{
    CCustomLabel* pCaption = DialogFrame::CreateCaption(this, CCustomDialog::tr(szText));
    pCaption->setMaximumWidth(nMaxWidth);
    pCaption->setFixedHeight(c_nCaptionHeight);
    return pCaption;
}

void CCustomAddProcessorDlg::AddRow(QGridLayout* pGrid, int nRow, CCustomLabel* pCaption, QWidget* pField)
{
    pGrid->addWidget(pCaption, nRow, c_nCaptionColumn);
    pGrid->addWidget(pField, nRow, c_nFieldColumn);
}

void CCustomAddProcessorDlg::InitCountRow(QGridLayout* pGrid)
{
    CCustomLabel* pCaption =
        CreateRowCaption(QT_TRANSLATE_NOOP("CCustomDialog", "主控数量"), c_nCountCaptionWidth);
    m_pCountSpinBox = new CCustomSpinBox(0, this);
    m_pCountSpinBox->setFixedSize(DialogFrame::c_sizeSmallField);
    // Misspelt intentionally: hosts write their styles for this selector, and the box keeps its own look.
    DialogFrame::StyleSpinBox(m_pCountSpinBox, "QSpinxBox");
    const bool bIPAddressMode = HostAccess::SenderLogic().IsIPAddressMode();
    m_pCountSpinBox->SetMinMax(1, HostAccess::RuntimeData().GetSenderCountLimit(bIPAddressMode));
    m_pCountSpinBox->setValue(c_nDefaultCount);
    DialogFrame::NameControl(m_pCountSpinBox, "count", pCaption);
    AddRow(pGrid, c_nCountRow, pCaption, m_pCountSpinBox);
}

void CCustomAddProcessorDlg::InitPortRow(QGridLayout* pGrid)
{
    CCustomLabel* pCaption =
        CreateRowCaption(QT_TRANSLATE_NOOP("CCustomDialog", "输出口数量"), c_nCaptionWidth);
    m_pPortComboBox = new CCustomComboBox(this);
    m_pPortComboBox->setFixedSize(DialogFrame::c_sizeSmallField);
    QMenu* pMenu = DialogFrame::CreateMenu(this, {});
    for (const int nPorts : c_arrPortCounts)
        DialogFrame::AddEntry(pMenu, {QString::number(nPorts), nPorts});
    m_pPortComboBox->SetMenu(pMenu, true, true, true);
    // The text is the current processor's, and the count is that of processor 0 until OK.
    m_pPortComboBox->setText(QString::number(HostAccess::CurrentSender().nOutputPortCount));
    DialogFrame::NameControl(m_pPortComboBox, "ports", pCaption);
    AddRow(pGrid, c_nPortRow, pCaption, m_pPortComboBox);
}

void CCustomAddProcessorDlg::InitAddressRow(QGridLayout* pGrid)
{
    CCustomLabel* pCaption =
        CreateRowCaption(QT_TRANSLATE_NOOP("CCustomDialog", "起始IP地址"), c_nCaptionWidth);
    m_pIPEdit = AddressDialogs::CreateAddressField(this);
    QString strIP;
    GetInitialIP(strIP);
    m_pIPEdit->setText(strIP);
    DialogFrame::NameControl(m_pIPEdit, "address", pCaption);
    AddRow(pGrid, c_nAddressRow, pCaption, m_pIPEdit);
}

void CCustomAddProcessorDlg::GetInitialIP(QString& strIP)
{
    const unsigned int nBase = IPAddressRules::FirstLocalAddress(LocalAddresses::All());
    strIP = IPAddressRules::AddressText(AddressGenerators::FirstFreeAfter(nBase, AddressDialogs::HasError));
}

void CCustomAddProcessorDlg::ActionSlots(int nID)
{
    if (nID == DialogFrame::enOk)
        Accept();
    else if (nID == DialogFrame::enCancel)
        DialogFrame::Finish(this, DialogFrame::enCancelled);
}
