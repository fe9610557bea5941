#ifndef HOST_HARDWARESUPPORT_OUTPUTLIMIT_H
#define HOST_HARDWARESUPPORT_OUTPUTLIMIT_H

#include <array>

/// The output limits that a sender breaks, as `CVideoSourceLogic::GetOutputLimitFlags` reports them.
enum enOutputLimitFlag : unsigned int
{
    enLimitOutputArea = 0x800,    ///< the canvas is larger than what the sender puts out
    enLimitDvi1To4 = 0x1000,      ///< pixel sum of the inputs DVI 1 to 4
    enLimitDvi5To8 = 0x2000,      ///< pixel sum of the inputs DVI 5 to 8
    enLimitPortArea = 0x8000000,  ///< load area of an output port
    enLimitEdidArea = 0x10000000, ///< the size that an input's setting asks for
};

/// Sender types that put out at most 2.6 million pixels; all others put out 8.88 million.
constexpr std::array<int, 4> c_arrSmallOutputTypes = {16, 24, 31, 63};

/// True for a sender type of that list.
constexpr bool IsSmallOutputType(int nSenderType)
{
    for (const int nType : c_arrSmallOutputTypes) {
        if (nType == nSenderType)
            return true;
    }
    return false;
}

#endif // HOST_HARDWARESUPPORT_OUTPUTLIMIT_H
