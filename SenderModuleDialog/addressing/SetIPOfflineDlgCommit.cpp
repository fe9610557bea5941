// What OK does: the addresses are validated and enter the host's list.

#include "SenderModuleDialog/Constants.h"
#include "SenderModuleDialog/HostAccess.h"
#include "SenderModuleDialog/addressing/AddressDialogs.h"
#include "SenderModuleDialog/addressing/AddressGenerators.h"
#include "SenderModuleDialog/addressing/SetIPOfflineDlg.h"
#include "host/OrviControl/CustomIPEdit.h"
#include "host/OrviControl/CustomSpinBox.h"

#include <QHostAddress>
#include <QLineEdit>

#include <algorithm>

QString CSetIPOfflineDlg::EnteredName() const
{
    return m_pNameEdit == nullptr ? QString() : m_pNameEdit->text();
}

bool CSetIPOfflineDlg::DoModify()
{
    if (m_pIPEdit == nullptr)
        return false;
    const QString strIP = m_pIPEdit->text();
    if (!AddressDialogs::Confirm(this, IPAddressRules::c_pathModify, {strIP}, m_strOldIP))
        return false;
    // The text goes as it was typed, and the list is made permanent by the host.
    CConfigData& config = HostAccess::ConfigData();
    if (m_bOriginal)
        config.SetSpecifiedIPWithIndex(m_nIndex, strIP, EnteredName());
    else
        config.SetCurSetSpecifiedIPWithIndex(m_nIndex, strIP, EnteredName());
    return true;
}

bool CSetIPOfflineDlg::DoCustomAdd()
{
    if (m_pCountSpinBox == nullptr || m_pIPEdit == nullptr)
        return false;
    const int nCount = int(m_pCountSpinBox->value());
    const QString strIP = m_pIPEdit->text();
    if (!AddressDialogs::Confirm(this, IPAddressRules::c_pathCustomAdd, {strIP}, m_strOldIP))
        return false;
    AddressGenerators::AddBatch(IPAddressRules::AddressValue(strIP), nCount, AddressDialogs::HasError,
                                AddressDialogs::Store);
    HostAccess::ConfigData().SpecifiedIPsSave();
    return true;
}

bool CSetIPOfflineDlg::DoNumAdd()
{
    if (m_listIPEdit.size() != m_nCount)
        return false;
    QStringList listTexts;
    for (const CCustomIPEdit* pField : m_listIPEdit)
        listTexts.append(pField->text());
    if (!AddressDialogs::Confirm(this, IPAddressRules::c_pathRows, listTexts, QString()))
        return false;
    CConfigData& config = HostAccess::ConfigData();
    // Rows that the list has no room for are dropped silently.
    const int nRoom = std::max(IPAddressRules::c_nListLimit - config.GetSpecifiedIPDWORD(nullptr), 0);
    for (const QString& strIP : listTexts.mid(0, nRoom))
        config.AddSpecifiedIP(QHostAddress(strIP).toString(), EnteredName());
    config.SpecifiedIPsSave();
    return true;
}

bool CSetIPOfflineDlg::Commit()
{
    if (m_bBatch)
        return DoCustomAdd();
    return m_bSet ? DoNumAdd() : DoModify();
}
