#ifndef HOST_HARDWARESUPPORT_VIDEOPORTKEY_H
#define HOST_HARDWARESUPPORT_VIDEOPORTKEY_H

#include <QtGlobal>

/// Names a video port: five 32-bit fields, of which the library fills the interface id; the others stay 0.
struct SVideoPortKey
{
    qint32 nReserved0 = 0;   ///< 0
    qint32 nReserved1 = 0;   ///< 0
    qint32 nReserved2 = 0;   ///< 0
    qint32 nInterfaceId = 0; ///< video interface: 1 to 4, 16 to 19 and 132 are told apart
    qint32 nReserved4 = 0;   ///< 0
};

static_assert(sizeof(SVideoPortKey) == 20, "a port key is five 32-bit fields");

#endif // HOST_HARDWARESUPPORT_VIDEOPORTKEY_H
