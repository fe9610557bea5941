#include "SenderModuleDialog/edid/EdidCommit.h"

#include "SenderModuleDialog/Constants.h"
#include "SenderModuleDialog/Saturate.h"
#include "SenderModuleDialog/edid/EdidOptions.h"

namespace EdidCommit {

SEdidSetting BasicSetting(QSize size, unsigned char byRate)
{
    SEdidSetting setting;
    setting.byRate = byRate;
    setting.wWidth = SaturateTo<quint16>(size.width());
    setting.wHeight = SaturateTo<quint16>(size.height());
    return setting;
}

SEdidSetting FullSetting(const SChoice& choice)
{
    SEdidSetting setting = BasicSetting(choice.size, choice.byRate);
    setting.byFractional = choice.bFractional ? 1 : 0;
    setting.byFormatFlags = choice.byFormatFlags;
    setting.byTimingStandard = choice.byTimingStandard;
    setting.byConnectPC = choice.byConnectPC;
    return setting;
}

unsigned char ConnectByte(bool bChecked, bool bAlways)
{
    return !bChecked || bAlways ? 1 : 0;
}

unsigned int DeviceWait(int nSenderType)
{
    return EdidOptions::StoresSlowly(nSenderType) ? c_nSlowDeviceWait : c_nDeviceWait;
}

} // namespace EdidCommit
