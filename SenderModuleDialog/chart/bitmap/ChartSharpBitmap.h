#ifndef SENDERMODULEDIALOG_CHART_BITMAP_CHARTSHARPBITMAP_H
#define SENDERMODULEDIALOG_CHART_BITMAP_CHARTSHARPBITMAP_H

#include <QImage>

/// The shown bitmap as it was last painted for a screen with more device pixels than pixels.
struct SChartSharpBitmap
{
    qint64 nBitmapKey = 0; ///< `QImage::cacheKey` of the bitmap that it stands for
    double dRatio = 1.0;   ///< device pixels per pixel
    QImage image;          ///< in device pixels
};

#endif // SENDERMODULEDIALOG_CHART_BITMAP_CHARTSHARPBITMAP_H
