#ifndef TESTS_WORKBENCH_EDID_EDIDBLOCKS_H
#define TESTS_WORKBENCH_EDID_EDIDBLOCKS_H

#include "SenderModuleDialog/edid/EDIDRaw.h"

#include <QByteArray>

/// The block that the library builds for a mode.
inline QByteArray BlockOf(int nWidth, int nHeight, float fRate = 60.0F)
{
    CEDIDRaw raw;
    raw.ChangeWH(nWidth, nHeight, fRate);
    return {reinterpret_cast<const char*>(&raw), c_nEdidBlockSize};
}

#endif // TESTS_WORKBENCH_EDID_EDIDBLOCKS_H
