#include "workbench/addresses/AddressPage.h"

#include "SenderModuleDialog/addressing/CustomAddProcessorDlg.h"
#include "SenderModuleDialog/addressing/DemoProjectConfigDlg.h"
#include "SenderModuleDialog/addressing/SetIPOfflineDlg.h"
#include "host/OrviControl/CustomIPEdit.h"
#include "simulator/CommonClass/Simulator.h"
#include "workbench/addresses/AddressListModel.h"
#include "workbench/addresses/HandAddition.h"
#include "workbench/addresses/VerdictText.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>
#include <QVBoxLayout>

#include <utility>

namespace {

constexpr int c_nBatch = -1;        ///< the count by which the address dialog is asked for a batch
constexpr int c_nMaxProcessors = 5; ///< rows that the address dialog's fixed size shows

/// Type of the senders that are added by hand to a project without any.
constexpr int c_nDefaultType = 21;

} // namespace

CAddressPage::CAddressPage(std::function<bool()> funcMayLeave, QWidget* pParent)
    : CWorkbenchPage(pParent)
    , m_funcMayLeave(std::move(funcMayLeave))
    , m_pModel(new CAddressListModel(this))
{
    m_pTable = new QTableView(this);
    m_pTable->setModel(m_pModel);
    m_pTable->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_pTable->setSelectionMode(QAbstractItemView::SingleSelection);
    m_pTable->setAlternatingRowColors(true);
    m_pTable->setTabKeyNavigation(false);
    m_pTable->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    auto* pMiddle = new QHBoxLayout;
    pMiddle->addWidget(m_pTable, 1);
    pMiddle->addWidget(CreateButtons());
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addLayout(pMiddle, 1);
    pLayout->addWidget(CreateCheckRow());
    connect(&CSimulator::Instance().Document(), &CProjectDocument::OnProjectReplaced, this,
            &CAddressPage::Refresh);
    connect(&CSimulator::Instance().Document(), &CProjectDocument::OnProjectChanged, this,
            [this](const SProjectChange& change) {
                if (change.bAddresses)
                    Refresh();
            });
    connect(m_pTable->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &CAddressPage::EnableButtons);
    CAddressPage::Retranslate();
}

CAddressPage::~CAddressPage() = default;

void CAddressPage::AddAction(const char* szText, bool bNeedsEntry, void (CAddressPage::*pAction)())
{
    auto* pButton = new QPushButton(this);
    connect(pButton, &QPushButton::clicked, this, pAction);
    m_vecActions.push_back({pButton, szText, bNeedsEntry});
}

QWidget* CAddressPage::CreateButtons()
{
    AddAction(QT_TR_NOOP("批量添加..."), false, &CAddressPage::AddBatch);
    AddAction(QT_TR_NOOP("设置地址..."), false, &CAddressPage::SetAddresses);
    AddAction(QT_TR_NOOP("修改..."), true, &CAddressPage::ModifySelected);
    AddAction(QT_TR_NOOP("恢复原样"), true, &CAddressPage::ResetSelected);
    AddAction(QT_TR_NOOP("删除"), true, &CAddressPage::RemoveSelected);
    AddAction(QT_TR_NOOP("手动添加主控..."), false, &CAddressPage::AddByHand);
    AddAction(QT_TR_NOOP("新建演示工程..."), false, &CAddressPage::StartDemo);

    auto* pPanel = new QWidget(this);
    m_pCountCaption = new QLabel(pPanel);
    m_pCount = new QSpinBox(pPanel);
    m_pCount->setRange(1, c_nMaxProcessors);
    auto* pLayout = new QVBoxLayout(pPanel);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(m_pCountCaption);
    pLayout->addWidget(m_pCount);
    for (const SAction& action : m_vecActions)
        pLayout->addWidget(action.pButton);
    pLayout->addStretch();
    return pPanel;
}

QWidget* CAddressPage::CreateCheckRow()
{
    auto* pRow = new QWidget(this);
    m_pCheckCaption = new QLabel(pRow);
    m_pCheck = new CCustomIPEdit(pRow);
    m_pCheck->setFixedSize(180, 25);
    m_pVerdict = new QLabel(pRow);
    auto* pLayout = new QHBoxLayout(pRow);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(m_pCheckCaption);
    pLayout->addWidget(m_pCheck);
    pLayout->addWidget(m_pVerdict, 1);
    connect(m_pCheck, &CCustomIPEdit::textChanged, this, &CAddressPage::ShowVerdict);
    return pRow;
}

QString CAddressPage::Title() const
{
    return tr("地址");
}

void CAddressPage::ShowSelection(const SSelection& selection)
{
    // The list is the project's, not a sender's.
    Q_UNUSED(selection)
}

void CAddressPage::Retranslate()
{
    for (const SAction& action : m_vecActions)
        action.pButton->setText(tr(action.szText));
    m_pCountCaption->setText(tr("要设置的主控数量"));
    m_pCheckCaption->setText(tr("检查地址"));
    m_pCheck->setAccessibleName(tr("要检查的地址"));
    Refresh();
}

void CAddressPage::Refresh()
{
    const int nRow = SelectedRow();
    m_pModel->Refresh();
    SelectRow(nRow);
    EnableButtons();
    ShowVerdict();
}

void CAddressPage::EnableButtons()
{
    for (const SAction& action : m_vecActions)
        action.pButton->setEnabled(!action.bNeedsEntry || SelectedRow() >= 0);
}

void CAddressPage::ShowVerdict()
{
    m_pVerdict->setText(m_pCheck->text().isEmpty() ? QString() : VerdictText::OfText(m_pCheck->text()));
}

void CAddressPage::CheckAddress(const QString& strAddress)
{
    m_pCheck->setText(strAddress);
}

QString CAddressPage::ShownVerdict() const
{
    return m_pVerdict->text();
}

int CAddressPage::SelectedRow() const
{
    const QModelIndexList listRows = m_pTable->selectionModel()->selectedRows();
    return listRows.isEmpty() ? -1 : listRows.first().row();
}

void CAddressPage::SelectRow(int nRow)
{
    if (nRow >= 0 && nRow < m_pModel->rowCount())
        m_pTable->selectRow(nRow);
}

void CAddressPage::AddBatch()
{
    CSetIPOfflineDlg dialog(0, c_nBatch, true, false, this);
    dialog.exec();
    CSimulator::Instance().Document().NoticeChanges();
}

void CAddressPage::SetAddresses()
{
    const int nFirst = CSimulator::Instance().Project().addresses.listStored.size() + 1;
    CSetIPOfflineDlg dialog(nFirst, m_pCount->value(), true, false, this);
    dialog.exec();
    CSimulator::Instance().Document().NoticeChanges();
}

void CAddressPage::ModifySelected()
{
    CSimulator& simulator = CSimulator::Instance();
    // The dialog changes the list that is being set and leaves it to the host to make that permanent.
    CSetIPOfflineDlg dialog(SelectedRow(), 1, false, false, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    simulator.Addresses().ApplyCurrentSet();
    SFileProblem problem;
    if (simulator.Document().SaveAddresses(problem))
        Q_EMIT Reported(tr("地址已修改。"));
    else
        Q_EMIT Failed(problem.Text());
}

void CAddressPage::ResetSelected()
{
    const int nRow = SelectedRow();
    CSimulator& simulator = CSimulator::Instance();
    simulator.Document().Change([nRow](SSimulatedProject& project) {
        SAddressLists& lists = project.addresses;
        lists.listStored[nRow] = lists.listCurSet[nRow] = lists.listOriginal[nRow];
    });
    CSetIPOfflineDlg dialog(nRow, 1, false, false, this);
    Q_EMIT Reported(tr("已恢复为 %1。").arg(dialog.GetResetStr()));
}

void CAddressPage::RemoveSelected()
{
    CSimulator::Instance().Addresses().Remove(SelectedRow());
}

void CAddressPage::AddByHand()
{
    const QString strObstacle = HandAddition::Obstacle();
    if (!strObstacle.isEmpty()) {
        Q_EMIT Failed(strObstacle);
        return;
    }
    CCustomAddProcessorDlg dialog(this);
    if (dialog.exec() == QDialog::Accepted)
        TakeProcessors(dialog);
}

void CAddressPage::TakeProcessors(const CCustomAddProcessorDlg& dialog)
{
    CSimulator& simulator = CSimulator::Instance();
    const SSimulatedSender* pSender = simulator.Project().FindSender(simulator.Project().nCurSender);
    const int nType = pSender == nullptr ? c_nDefaultType : pSender->capability.nType;
    const int nPorts = dialog.GetPortCount();
    const int nAdded = simulator.Document().AddSenders(nType, dialog.GetCount(), nPorts);
    Q_EMIT Reported(tr("已添加 %1 个主控，各有 %2 个输出口。").arg(nAdded).arg(nPorts));
}

void CAddressPage::StartDemo()
{
    if (!m_funcMayLeave())
        return;
    CDemoProjectConfigDlg dialog(this);
    dialog.exec();
}
