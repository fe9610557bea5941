#ifndef HOST_HARDWARESUPPORT_EDIDSETTING_H
#define HOST_HARDWARESUPPORT_EDIDSETTING_H

#include <QtGlobal>

/// The EDID choice of one video interface as it crosses to the sender: twelve bytes, little-endian.
struct SEdidSetting
{
    quint8 byReserved0 = 0;      ///< written as 0, read by nothing
    quint8 byRate = 0;           ///< integer frame rate, Hz: 24, 25, 30, 50, 60, 120, 144 or 240
    quint8 byFractional = 0;     ///< 1: the rate is divided by 1.001
    quint8 byReserved3 = 0;      ///< written as 0, read by nothing
    quint16 wWidth = 0;          ///< pixels
    quint16 wHeight = 0;         ///< pixels
    quint8 byFormatFlags = 0;    ///< one depth bit (0x02, 0x04, 0x08) and one format bit (0x10 to 0x80)
    quint8 byTimingStandard = 0; ///< 0 "CVT_RB", 1 "CVT"
    quint8 byConnectPC = 0;      ///< connect-to-computer; a full write carries the opposite of what is read
    quint8 byReserved11 = 0;     ///< written as 0, read by nothing
};

static_assert(sizeof(SEdidSetting) == 12, "an EDID setting is twelve bytes on the wire");

#endif // HOST_HARDWARESUPPORT_EDIDSETTING_H
