#ifndef SENDERMODULEDIALOG_EDID_EDIDCOMMIT_H
#define SENDERMODULEDIALOG_EDID_EDIDCOMMIT_H

#include "host/HardwareSupport/EdidSetting.h"

#include <QSize>

/// What the commit of the EDID dialog writes, and how long it waits for the device.
namespace EdidCommit {

/// @name Progress, per cent
/// The bar starts at the first value before any wait, then moves by one after each, and stops short of 100:
/// nothing asks the device whether it is done.
/// @{
constexpr int c_nStartPercent = 2;
constexpr int c_nLastPercent = 99;
/// @}

/// @name Wait before each step of the bar, microseconds
/// @{
constexpr unsigned int c_nDemoWait = 10000;
constexpr unsigned int c_nDeviceWait = 120000;
constexpr unsigned int c_nSlowDeviceWait = 200000;
/// @}

/// The choice that a full record carries.
struct SChoice
{
    QSize size; ///< pixels, cut to what 16 bits hold
    unsigned char byRate = 0;
    bool bFractional = false;
    unsigned char byFormatFlags = 0;
    unsigned char byTimingStandard = 0;
    unsigned char byConnectPC = 0;
};

/// The record of senders that know size and rate alone: every other byte is 0.
SEdidSetting BasicSetting(QSize size, unsigned char byRate);
/// The record with all that the dialog holds.
SEdidSetting FullSetting(const SChoice& choice);

/// The connect-to-computer byte that is written: the opposite of the check box. Reading does not invert it.
/// Intentional: hosts rely on both.
/// @param bAlways the sender gets a 1 in every case
unsigned char ConnectByte(bool bChecked, bool bAlways);

/// The wait that a sender type needs in a full write.
unsigned int DeviceWait(int nSenderType);

} // namespace EdidCommit

#endif // SENDERMODULEDIALOG_EDID_EDIDCOMMIT_H
