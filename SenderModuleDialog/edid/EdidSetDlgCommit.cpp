// What OK does: the choice goes to the sender, the operator waits behind a bar, the dialog ends.

#include "SenderModuleDialog/Constants.h"
#include "SenderModuleDialog/DialogFrame.h"
#include "SenderModuleDialog/HostAccess.h"
#include "SenderModuleDialog/Saturate.h"
#include "SenderModuleDialog/edid/EdidCommit.h"
#include "SenderModuleDialog/edid/EdidControls.h"
#include "SenderModuleDialog/edid/EdidEnvironment.h"
#include "SenderModuleDialog/edid/EdidModel.h"
#include "SenderModuleDialog/edid/EdidSetDlg.h"
#include "host/OrviControl/CustomProgressbar.h"
#include "host/OrviControl/CustomSpinBox.h"

#include <QCheckBox>

namespace {

/// The message stands on its own: the dialog is about to go.
void ShowSaveFailed()
{
    DialogFrame::ShowMessage(nullptr, CCustomDialog::tr("保存失败。"));
}

CCustomProgressbar* CreateProgressbar(QWidget* pDialog)
{
    auto* pProgressbar = new CCustomProgressbar(pDialog, false);
    pProgressbar->setLabelText(CCustomDialog::tr("发送中..."));
    pProgressbar->GetProgressOwnerRecord().pOwner = pDialog;
    pProgressbar->SetProgressValue(EdidCommit::c_nStartPercent);
    return pProgressbar;
}

/// Keeps the GUI thread while the device stores the setting.
/// @param nDeviceWait before each step of the bar, microseconds; a demo project waits less
void WaitBehind(CCustomProgressbar* pProgressbar, unsigned int nDeviceWait)
{
    for (int nPercent = EdidCommit::c_nStartPercent + 1; nPercent <= EdidCommit::c_nLastPercent; ++nPercent) {
        const bool bDemo = HostAccess::ProjectData().GetDemoModeEnable();
        EdidEnvironment().funcWait(bDemo ? EdidCommit::c_nDemoWait : nDeviceWait);
        pProgressbar->SetProgressValue(nPercent);
    }
}

} // namespace

void CEdidSetDlg::OnOKPushButtonClicked()
{
    m_pControls->EnableSize(false);
    if (!Commit())
        m_pControls->EnableSize(true);
}

bool CEdidSetDlg::Commit()
{
    QSize size;
    unsigned char byRate = 0;
    bool bFractional = false;
    if (!ChosenSize(size) || !GetFrameRateByIndex(m_pModel->nRateIndex, byRate, bFractional))
        return false;
    const int nSender = HostAccess::CurrentSenderIndex();
    if (HostAccess::SenderLogic().IsExtendedEdidSupported())
        return CommitFull(nSender, size);
    CommitBasic(nSender, size, byRate);
    return true;
}

void CEdidSetDlg::CommitBasic(int nSender, QSize size, unsigned char byRate)
{
    CVideoSourceLogic& logic = HostAccess::VideoSourceLogic();
    const SEdidSetting setting = EdidCommit::BasicSetting(size, byRate);
    const bool bWritten = logic.SetEdidSetting(nSender, m_pModel->nInterfaceId, &setting) == 0;
    // The wait runs its whole length even when the write has failed: the failure shows afterwards.
    CCustomProgressbar* pProgressbar = CreateProgressbar(this);
    WaitBehind(pProgressbar, EdidCommit::c_nDeviceWait);
    if (bWritten) {
        HostAccess::SenderLogic().AfterEdidWritten(nSender);
        logic.ApplyBasicEdid(nSender, size.width(), size.height(), &m_pModel->bSetSuccessed);
    }
    pProgressbar->CloseProgress();
    if (!bWritten)
        ShowSaveFailed();
    done(DialogFrame::enAccepted);
}

bool CEdidSetDlg::CommitFull(int nSender, QSize size)
{
    // A depth that is stored stays stored even when the format then ends the commit.
    if (!GetColorDepthByIndex(m_pModel->nDepthIndex, m_pModel->byFormatFlags) ||
        !GetColorFormatByIndex(m_pModel->nFormatIndex, m_pModel->byFormatFlags))
        return false;
    EdidCommit::SChoice choice;
    choice.size = size;
    GetFrameRateByIndex(m_pModel->nRateIndex, choice.byRate, choice.bFractional);
    choice.byFormatFlags = m_pModel->byFormatFlags;
    choice.byTimingStandard = m_pModel->byTimingStandard;
    choice.byConnectPC =
        EdidCommit::ConnectByte(m_pControls->pConnectPC->checkState() == Qt::Checked, IsSenderConnectPC());
    WriteFull(nSender, EdidCommit::FullSetting(choice));
    return true;
}

void CEdidSetDlg::WriteFull(int nSender, const SEdidSetting& setting)
{
    CVideoSourceLogic& logic = HostAccess::VideoSourceLogic();
    if (logic.SetEdidSetting(nSender, m_pModel->nInterfaceId, &setting) != 0) {
        ShowSaveFailed();
        done(DialogFrame::enAccepted);
        return;
    }
    CCustomProgressbar* pProgressbar = CreateProgressbar(this);
    const int nSenderType = HostAccess::SenderLogic().GetSenderType(nSender);
    WaitBehind(pProgressbar, EdidCommit::DeviceWait(nSenderType));
    pProgressbar->CloseProgress();
    logic.FinishEdidWrite(nSender, 1);
    done(DialogFrame::enAccepted);
}

bool CEdidSetDlg::ChosenSize(QSize& size) const
{
    if (m_pModel->nResolutionIndex != 0)
        return GetResolutionByIndex(m_pModel->nResolutionIndex, size);
    size =
        QSize(SaturateTo<int>(m_pControls->pWidth->value()), SaturateTo<int>(m_pControls->pHeight->value()));
    return true;
}
