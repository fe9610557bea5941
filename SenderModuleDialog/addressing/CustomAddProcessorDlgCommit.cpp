// What OK does: number and ports are kept for the host, and the addresses enter its list.

#include "SenderModuleDialog/Constants.h"
#include "SenderModuleDialog/DialogFrame.h"
#include "SenderModuleDialog/HostAccess.h"
#include "SenderModuleDialog/addressing/AddressDialogs.h"
#include "SenderModuleDialog/addressing/AddressGenerators.h"
#include "SenderModuleDialog/addressing/CustomAddProcessorDlg.h"
#include "host/OrviControl/CustomComboBox.h"
#include "host/OrviControl/CustomIPEdit.h"
#include "host/OrviControl/CustomSpinBox.h"

bool CCustomAddProcessorDlg::CheckIPAddress()
{
    const QString strIP = Deref(m_pIPEdit, "m_pIPEdit != nullptr").text();
    return AddressDialogs::Confirm(this, IPAddressRules::c_pathCheckIPAddress, {strIP}, QString());
}

void CCustomAddProcessorDlg::Accept()
{
    m_nCount = int(m_pCountSpinBox->value());
    if (m_pPortComboBox != nullptr)
        m_nPortCount = m_pPortComboBox->text().toInt();
    if (m_bUseIP) {
        if (!CheckIPAddress())
            return;
        StoreAddresses();
    }
    DialogFrame::Finish(this, DialogFrame::enAccepted);
}

void CCustomAddProcessorDlg::StoreAddresses()
{
    CConfigData& config = HostAccess::ConfigData();
    const int nListed = config.GetSpecifiedIPDWORD(nullptr);
    const unsigned int nStart = IPAddressRules::AddressValue(m_pIPEdit->text());
    if (nListed < IPAddressRules::c_nListLimit)
        AddressGenerators::AddByHand(nStart, m_nCount, nListed, AddressDialogs::HasError,
                                     AddressDialogs::Store);
    config.SpecifiedIPsSave();
}
