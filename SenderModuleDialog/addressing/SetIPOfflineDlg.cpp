#include "SenderModuleDialog/addressing/SetIPOfflineDlg.h"

#include "SenderModuleDialog/Constants.h"
#include "SenderModuleDialog/DialogFrame.h"
#include "SenderModuleDialog/HostAccess.h"
#include "SenderModuleDialog/addressing/AddressDialogs.h"
#include "SenderModuleDialog/addressing/AddressGenerators.h"
#include "SenderModuleDialog/addressing/LocalAddresses.h"
#include "host/OrviControl/CustomIPEdit.h"
#include "host/OrviControl/CustomLabel.h"
#include "host/OrviControl/CustomSpinBox.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLineEdit>

#include <algorithm>
#include <array>

namespace {

constexpr int c_nBatch = -1; ///< the count that asks for a batch
constexpr QSize c_sizeDialog(330, 125);
constexpr QSize c_sizeCaption(80, 24);
constexpr int c_nGridSpacing = 15; ///< pixels
constexpr int c_nNameLength = 64;  ///< longest name, characters

/// The host has no style for the name field.
constexpr const char* c_szNameStyle =
    "QLineEdit{background:rgb(31,31,31); color:white; border:1px solid rgb(7,7,7); border-radius: 4px;}"
    "QLineEdit:disabled{color:rgb(120,120,120); }";

/// Entries of the table that the sender logic fills with detected addresses.
constexpr std::size_t c_nDetectedTableSize = 255;

/// The first batch fills the list up to 16 entries and the second up to 36; after that batches are of 10.
int FirstBatchSize(int nListed)
{
    if (nListed < 16)
        return 16 - nListed;
    return nListed < 36 ? 36 - nListed : 10;
}

/// The addresses that the sender logic detected, first octet in the low byte.
QList<unsigned int> DetectedAddresses()
{
    std::array<unsigned int, c_nDetectedTableSize> arrTable = {};
    const int nFound = HostAccess::SenderLogic().GetDetectedIPList(arrTable.data());
    const int nCount = std::clamp(nFound, 0, int(arrTable.size()));
    QList<unsigned int> listDetected;
    std::copy_n(arrTable.cbegin(), nCount, std::back_inserter(listDetected));
    return listDetected;
}

} // namespace

CSetIPOfflineDlg::CSetIPOfflineDlg(int nIndex, int nCount, bool bSet, bool bOriginal, QWidget* pParent)
    : CCustomDialog(pParent, false)
    , m_bSet(bSet)
    , m_bOriginal(bOriginal)
    , m_nIndex(nIndex)
    , m_nCount(nCount)
    , m_bBatch(nCount == c_nBatch)
{
    setWindowTitle(CCustomDialog::tr(Title()));
    // The window keeps its size whatever the number of rows.
    setFixedSize(c_sizeDialog);
    InitControl();
    SetInitialIP();
}

CSetIPOfflineDlg::~CSetIPOfflineDlg() = default;

bool CSetIPOfflineDlg::IsSingle() const
{
    return !m_bBatch && (!m_bSet || m_nCount == 1);
}

const char* CSetIPOfflineDlg::Title() const
{
    if (m_bBatch)
        return QT_TRANSLATE_NOOP("CCustomDialog", "批量添加IP");
    return m_bSet ? QT_TRANSLATE_NOOP("CCustomDialog", "设置IP地址")
                  : QT_TRANSLATE_NOOP("CCustomDialog", "修改IP地址");
}

void CSetIPOfflineDlg::InitControl()
{
    auto* pGrid = new QGridLayout;
    pGrid->setSpacing(c_nGridSpacing);
    if (m_bBatch)
        InitBatchRows(pGrid);
    else if (IsSingle())
        InitSingleRows(pGrid);
    else
        InitProcessorRows(pGrid);

    AddressDialogs::LayOut(this, pGrid,
                           DialogFrame::CreateOkCancelRow(this, [this](int nID) { ActionSlots(nID); }));
}

void CSetIPOfflineDlg::AddRow(QGridLayout* pGrid, const QString& strCaption, QWidget* pField,
                              const char* szName)
{
    // rowCount() is 1 for an empty grid.
    const int nRow = pGrid->count() == 0 ? 0 : pGrid->rowCount();
    CCustomLabel* pLabel = DialogFrame::CreateCaption(this, strCaption);
    pLabel->setFixedSize(c_sizeCaption);
    DialogFrame::NameControl(pField, szName, pLabel);
    pGrid->addWidget(pLabel, nRow, 0);
    pGrid->addWidget(pField, nRow, 1);
}

void CSetIPOfflineDlg::InitBatchRows(QGridLayout* pGrid)
{
    QStringList listStored;
    HostAccess::ConfigData().GetSpecifiedIPs(listStored);
    m_pCountSpinBox = new CCustomSpinBox(0, this);
    m_pCountSpinBox->setFixedSize(DialogFrame::c_sizeSmallField);
    m_pCountSpinBox->SetMinMax(1, IPAddressRules::c_nListLimit - int(listStored.size()));
    m_pCountSpinBox->setValue(FirstBatchSize(int(listStored.size())));
    m_pIPEdit = AddressDialogs::CreateAddressField(this);
    AddRow(pGrid, CCustomDialog::tr("添加数量"), m_pCountSpinBox, "count");
    AddRow(pGrid, CCustomDialog::tr("起始IP地址"), m_pIPEdit, "address");
}

void CSetIPOfflineDlg::InitSingleRows(QGridLayout* pGrid)
{
    CCustomIPEdit* pField = nullptr;
    if (m_bSet)
        pField = AddProcessorField();
    else
        pField = m_pIPEdit = AddressDialogs::CreateAddressField(this);
    m_pNameEdit = new QLineEdit(this);
    m_pNameEdit->setFixedSize(DialogFrame::c_sizeAddressField);
    m_pNameEdit->setMaxLength(c_nNameLength);
    DialogFrame::StyleWith(m_pNameEdit, c_szNameStyle, "QLineEdit");
    if (!m_bSet)
        m_pNameEdit->setText(IPAddressRules::SplitEntry(StoredEntry()).strName);
    AddRow(pGrid, CCustomDialog::tr("IP地址"), pField, "address");
    AddRow(pGrid, CCustomDialog::tr("IP名称"), m_pNameEdit, "name");
}

void CSetIPOfflineDlg::InitProcessorRows(QGridLayout* pGrid)
{
    // In 64 bits: the host's ordinal can be any int.
    const qint64 nFirst = m_nIndex;
    for (int i = 0; i < m_nCount; ++i)
        AddRow(pGrid, CCustomDialog::tr("主控 %1").arg(nFirst + i), AddProcessorField(),
               QByteArray("address" + QByteArray::number(i)).constData());
}

CCustomIPEdit* CSetIPOfflineDlg::AddProcessorField()
{
    m_listIPEdit.append(AddressDialogs::CreateAddressField(this));
    return m_listIPEdit.last();
}

void CSetIPOfflineDlg::SetInitialIP()
{
    HostAccess::ConfigData().UpdateErrorIPList();
    const unsigned int nBase = BaseAddress();
    if (m_bSet)
        ProposeAddresses(nBase);
    else
        ShowStoredAddress();
}

unsigned int CSetIPOfflineDlg::BaseAddress()
{
    const QList<unsigned int> listDetected = DetectedAddresses();
    const QList<QHostAddress> listLocal = LocalAddresses::All();
    if (listDetected.isEmpty())
        return IPAddressRules::FirstLocalAddress(listLocal);
    return IPAddressRules::LastLocalAddressIn(IPAddressRules::NetworksOf(listDetected), listLocal);
}

void CSetIPOfflineDlg::ProposeAddresses(unsigned int nBase)
{
    const QList<CCustomIPEdit*> listFields = m_bBatch ? QList<CCustomIPEdit*>{m_pIPEdit} : m_listIPEdit;
    AddressGenerators::CProposalSearch search(nBase);
    for (CCustomIPEdit* pField : listFields) {
        const std::optional<unsigned int> candidate = search.Next(AddressDialogs::HasError);
        if (candidate)
            pField->setText(IPAddressRules::AddressText(*candidate));
    }
}

void CSetIPOfflineDlg::ShowStoredAddress()
{
    m_strOldIP = IPAddressRules::SplitEntry(StoredEntry()).strAddress;
    if (m_pIPEdit != nullptr)
        m_pIPEdit->setText(m_strOldIP);
}

QString CSetIPOfflineDlg::StoredEntry()
{
    CConfigData& config = HostAccess::ConfigData();
    return m_bOriginal ? config.GetSpecifiedIPOriginal(m_nIndex)
                       : config.GetCurSetSpecifiedIPWithIndex(m_nIndex);
}

QString CSetIPOfflineDlg::GetResetStr()
{
    if (m_bSet)
        return {};
    CConfigData& config = HostAccess::ConfigData();
    if (m_bOriginal)
        return config.GetSpecifiedIPWithName(m_nIndex);
    return IPAddressRules::EntryWithDefaultName(config.GetCurSetSpecifiedIPWithIndex(m_nIndex));
}

void CSetIPOfflineDlg::ActionSlots(int nID)
{
    if (nID == DialogFrame::enCancel)
        DialogFrame::Finish(this, DialogFrame::enCancelled);
    else if (nID == DialogFrame::enOk && Commit())
        DialogFrame::Finish(this, DialogFrame::enAccepted);
}
