#ifndef HOST_HARDWARESUPPORT_SENDEREDIDLIMITDATA_H
#define HOST_HARDWARESUPPORT_SENDEREDIDLIMITDATA_H

#include <QList>
#include <QSize>

/// What a video interface of a sender can take.
struct CSenderEdidLimitData
{
    int nMaxWidth = 0;               ///< pixels
    int nMaxHeight = 0;              ///< pixels
    int nMaxArea = 0;                ///< pixels at 60 Hz
    bool bLimitByPixelClock = false; ///< true: judged by pixel clock, false: judged by area
    QList<QSize> listResolution;     ///< resolutions that the menu offers
};

#endif // HOST_HARDWARESUPPORT_SENDEREDIDLIMITDATA_H
