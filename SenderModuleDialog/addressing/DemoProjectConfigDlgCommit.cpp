// What OK does: the host's project goes into demo mode with the picked type.

#include "SenderModuleDialog/Constants.h"
#include "SenderModuleDialog/DialogFrame.h"
#include "SenderModuleDialog/HostAccess.h"
#include "SenderModuleDialog/addressing/DemoProjectConfigDlg.h"
#include "SenderModuleDialog/addressing/DemoProjectRules.h"

void CDemoProjectConfigDlg::OpenDemoProject()
{
    HostAccess::ProjectData().SetDemoModeEnable(true);
    if (const DemoProjectRules::SDemoType* pType = DemoProjectRules::TypeAt(m_nTypeIndex))
        HostAccess::ProjectData().SetDemoSenderType(pType->nSenderType);
    HostAccess::SenderLogic().ApplyDemoProject();
    DialogFrame::Finish(this, DialogFrame::enAccepted);
}
