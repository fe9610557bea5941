#ifndef HOST_COMMONCLASS_EDIDBLOCKSIZE_H
#define HOST_COMMONCLASS_EDIDBLOCKSIZE_H

/// Bytes of every block of an EDID, the base block as well as each extension (VESA E-EDID, section 3.1).
constexpr int c_nEdidBlockSize = 128;

#endif // HOST_COMMONCLASS_EDIDBLOCKSIZE_H
