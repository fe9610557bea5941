#ifndef HOST_TEVRADATA_SENDER_H
#define HOST_TEVRADATA_SENDER_H

#include <QSize>

/// The project's record of one sender. The host owns it; the dialogs read and write its fields in place.
struct CSender
{
    int nFrameRate = 60;      ///< maximum frame rate of the project, Hz
    int nColorDepth = 8;      ///< output depth, bits per channel: 8, 10 or 12
    int nOutputPortCount = 0; ///< output ports of the sender
    QSize sizeCanvas;         ///< canvas size, pixels

    // The three background fields stand next to each other in this order.
    quint8 BkImageAlpha = 128;  ///< opacity of the background picture, 0 to 255
    bool BkImageEnable = false; ///< the background picture is shown
    quint8 BkImageFit = 0;      ///< 0 one to one, 1 stretched

    /// Canvas size of the sender, pixels.
    QSize GetCanvasSize() const { return sizeCanvas; }
};

#endif // HOST_TEVRADATA_SENDER_H
