#ifndef HOST_HARDWARESUPPORT_CANVASLIMIT_H
#define HOST_HARDWARESUPPORT_CANVASLIMIT_H

/// Largest canvas of a sender. The defaults are the largest canvas of any sender.
struct SCanvasLimit
{
    int nMaxWidth = 32768;    ///< pixels
    int nMaxHeight = 16384;   ///< pixels
    int nMaxArea = 536870912; ///< pixels
};

#endif // HOST_HARDWARESUPPORT_CANVASLIMIT_H
