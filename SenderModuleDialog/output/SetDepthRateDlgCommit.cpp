// What OK does: rate and depth go to the hardware of a video processor and to the sender's record.

#include "SenderModuleDialog/Constants.h"
#include "SenderModuleDialog/DialogFrame.h"
#include "SenderModuleDialog/HostAccess.h"
#include "SenderModuleDialog/output/DepthRateRules.h"
#include "SenderModuleDialog/output/SetDepthRateDlg.h"
#include "host/OrviControl/CustomComboBox.h"

/// A text that is not in its menu leaves the value as it is: what a sender came with is not kept.
void CSetDepthRateDlg::TakeFields()
{
    m_nFrameRate = DepthRateRules::RateOf(m_pRateComboBox->text()).value_or(m_nFrameRate);
    m_nColorDepth = DepthRateRules::DepthOf(m_pDepthComboBox->text()).value_or(m_nColorDepth);
}

/// @return true when the rate may be saved
bool CSetDepthRateDlg::ConfirmRate(int nSender)
{
    const float fInputRate = HostAccess::VideoSourceLogic().GetMaxInputFrameRate(nSender);
    if (!DepthRateRules::IsBelowInput(m_nFrameRate, fInputRate))
        return true;
    return DialogFrame::Ask(
        this, CCustomDialog::tr("工程设置支持的最大帧率(%1Hz)小于实际输入的最大帧率(%2Hz)，是否继续？")
                  .arg(m_nFrameRate)
                  .arg(double(fInputRate), 0, 'f', 2));
}

void CSetDepthRateDlg::Accept()
{
    const int nSender = HostAccess::CurrentSenderIndex();
    TakeFields();
    CSenderLogic& logic = HostAccess::SenderLogic();
    if (logic.IsVideoProcessor(nSender)) {
        if (!ConfirmRate(nSender))
            return;
        logic.SetOutput50Hz(nSender, m_nFrameRate == DepthRateRules::c_nExemptRate, 0);
    }
    SaveData();
    HostAccess::Label().PostLabelEvent(enRateDepthChanged, 0, 1, 0);
    done(DialogFrame::enAccepted);
}

void CSetDepthRateDlg::SaveData()
{
    const int nSender = HostAccess::CurrentSenderIndex();
    CSenderLogic& logic = HostAccess::SenderLogic();
    if (logic.IsVideoProcessor(nSender)) {
        const int nMode = DepthRateRules::DepthMode(m_nColorDepth);
        if (logic.GetOutputDepthMode(nSender) != nMode)
            logic.SetOutputDepthMode(nSender, nMode, 1);
    }
    CSender& sender = HostAccess::CurrentSender();
    sender.nColorDepth = m_nColorDepth;
    sender.nFrameRate = m_nFrameRate;
}
