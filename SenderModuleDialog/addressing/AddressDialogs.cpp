#include "SenderModuleDialog/addressing/AddressDialogs.h"

#include "SenderModuleDialog/Constants.h"
#include "SenderModuleDialog/DialogFrame.h"
#include "SenderModuleDialog/HostAccess.h"
#include "host/OrviControl/CustomDialog.h"
#include "host/OrviControl/CustomIPEdit.h"

#include <QVBoxLayout>

namespace AddressDialogs {

namespace {

// The frame around rows and buttons, pixels.
constexpr QMargins c_margins(10, 20, 10, 20);
constexpr int c_nSpaceAboveButtons = 10;

} // namespace

bool Confirm(QWidget* pDialog, const IPAddressRules::SPath& path, const QStringList& listTexts,
             const QString& strOldAddress)
{
    const auto funcVerdict = [](unsigned int nIP, unsigned int* pCode) {
        return HostAccess::ConfigData().IsIPHasError(nIP, pCode, false);
    };
    const IPAddressRules::SJudgement judgement =
        IPAddressRules::Judge(path, listTexts, strOldAddress, funcVerdict);
    if (judgement.szQuestion != nullptr &&
        !DialogFrame::Ask(pDialog, CCustomDialog::tr(judgement.szQuestion)))
        return false;
    if (judgement.szRefusal != nullptr)
        DialogFrame::ShowMessage(pDialog, CCustomDialog::tr(judgement.szRefusal));
    return judgement.szRefusal == nullptr;
}

bool HasError(unsigned int nIP)
{
    return HostAccess::ConfigData().IsIPHasError(nIP, nullptr, false);
}

void Store(unsigned int nIP)
{
    HostAccess::ConfigData().AddSpecifiedIP(IPAddressRules::AddressText(nIP), QString());
}

CCustomIPEdit* CreateAddressField(QWidget* pDialog)
{
    auto* pEdit = new CCustomIPEdit(pDialog);
    pEdit->setFixedSize(DialogFrame::c_sizeAddressField);
    return pEdit;
}

void LayOut(QWidget* pDialog, QLayout* pRows, QLayout* pButtons)
{
    auto* pOuter = new QVBoxLayout(pDialog);
    pOuter->setContentsMargins(c_margins);
    pOuter->addLayout(pRows);
    pOuter->addSpacing(c_nSpaceAboveButtons);
    pOuter->addLayout(pButtons);
}

} // namespace AddressDialogs
