#include "workbench/addresses/AddressEditor.h"

#include "SenderModuleDialog/addressing/CustomAddProcessorDlg.h"
#include "SenderModuleDialog/addressing/DemoProjectConfigDlg.h"
#include "SenderModuleDialog/addressing/SetIPOfflineDlg.h"
#include "simulator/CommonClass/AddressText.h"
#include "simulator/CommonClass/Simulator.h"
#include "workbench/addresses/AdditionReport.h"
#include "workbench/addresses/HandAddition.h"

#include <utility>

namespace {

constexpr int c_nBatch = -1; ///< the count by which the address dialog is asked for a batch

/// Type of the senders that are added by hand to a project without any.
constexpr int c_nDefaultType = 21;

CProjectDocument& Document()
{
    return CSimulator::Instance().Document();
}

const SAddressLists& Lists()
{
    return CSimulator::Instance().Project().addresses;
}

/// Verdicts on addresses with a list in force that may differ from the project's.
AdditionReport::FuncVerdict VerdictsWith(const QStringList& listStored)
{
    QSet<unsigned int> setUsed;
    for (const QString& strEntry : listStored)
        setUsed.insert(AddressValue(EntryAddress(strEntry)).value_or(0));
    return [setUsed](unsigned int nAddress) {
        return AddressVerdict(nAddress, setUsed, CSimulator::Instance().Addresses().NetworkFacts());
    };
}

} // namespace

CAddressEditor::CAddressEditor(std::function<bool()> funcMayLeave, QWidget* pWindow)
    : QObject(pWindow)
    , m_funcMayLeave(std::move(funcMayLeave))
    , m_pWindow(pWindow)
{}

void CAddressEditor::AddBatch()
{
    RunDialog(tr("批量添加地址"), 0, c_nBatch);
}

void CAddressEditor::SetAddresses(int nCount)
{
    RunDialog(tr("设置地址"), int(Lists().listStored.size()) + 1, nCount);
}

void CAddressEditor::RunDialog(const QString& strStep, int nFirst, int nCount)
{
    const QStringList listBefore = Lists().listStored;
    CSetIPOfflineDlg dialog(nFirst, nCount, true, false, m_pWindow);
    Q_EMIT StepBegan(strStep);
    dialog.exec();
    Document().NoticeChanges();
    Q_EMIT StepEnded();
    const QString strReport = AdditionReport::Of(listBefore, Lists().listStored, VerdictsWith(listBefore));
    if (!strReport.isEmpty())
        Q_EMIT Reported(strReport);
}

void CAddressEditor::Modify(int nRow)
{
    // The dialog changes the list that is being set and leaves it to the host to make that permanent.
    CSetIPOfflineDlg dialog(nRow, 1, false, false, m_pWindow);
    Q_EMIT StepBegan(tr("修改地址"));
    const bool bAccepted = dialog.exec() == QDialog::Accepted;
    if (bAccepted)
        CSimulator::Instance().Addresses().ApplyCurrentSet();
    Q_EMIT StepEnded();
    if (bAccepted)
        ApplyModified();
}

void CAddressEditor::ApplyModified()
{
    SFileProblem problem;
    if (Document().SaveAddresses(problem))
        Q_EMIT Reported(tr("地址已修改。"));
    else
        Q_EMIT Failed(problem.Text());
}

void CAddressEditor::Reset(const QList<int>& listRows)
{
    Q_EMIT StepBegan(tr("恢复原地址"));
    Document().Change([&listRows](SSimulatedProject& project) {
        SAddressLists& lists = project.addresses;
        for (const int nRow : listRows)
            lists.listStored[nRow] = lists.listCurSet[nRow] = lists.listOriginal[nRow];
    });
    Q_EMIT StepEnded();
    QStringList listAddresses;
    for (const int nRow : listRows)
        listAddresses.append(CSetIPOfflineDlg(nRow, 1, false, false, m_pWindow).GetResetStr());
    Q_EMIT Reported(tr("已恢复为 %1。").arg(listAddresses.join(tr("、"))));
}

void CAddressEditor::Remove(const QList<int>& listRows)
{
    Q_EMIT StepBegan(tr("删除 %1 个地址").arg(listRows.size()));
    CSimulator::Instance().Addresses().Remove(listRows);
    Q_EMIT StepEnded();
    Q_EMIT Reported(tr("已删除 %1 个地址。").arg(listRows.size()));
}

void CAddressEditor::AddByHand()
{
    const QString strObstacle = HandAddition::Obstacle();
    if (!strObstacle.isEmpty()) {
        Q_EMIT Failed(strObstacle);
        return;
    }
    CCustomAddProcessorDlg dialog(m_pWindow);
    Q_EMIT StepBegan(tr("手动添加主控"));
    if (dialog.exec() == QDialog::Accepted)
        TakeProcessors(dialog);
    Q_EMIT StepEnded();
}

void CAddressEditor::TakeProcessors(const CCustomAddProcessorDlg& dialog)
{
    const SSimulatedProject& project = CSimulator::Instance().Project();
    const SSimulatedSender* pSender = project.FindSender(project.nCurSender);
    const int nType = pSender == nullptr ? c_nDefaultType : pSender->capability.nType;
    const int nPorts = dialog.GetPortCount();
    const int nAdded = Document().AddSenders(nType, dialog.GetCount(), nPorts);
    Q_EMIT Reported(tr("已添加 %1 个主控，各有 %2 个输出口。").arg(nAdded).arg(nPorts));
}

void CAddressEditor::StartDemo()
{
    if (!m_funcMayLeave())
        return;
    CDemoProjectConfigDlg dialog(m_pWindow);
    dialog.exec();
}
