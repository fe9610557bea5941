#ifndef WORKBENCH_COLOUR_PICTURESIZE_H
#define WORKBENCH_COLOUR_PICTURESIZE_H

#include <QSize>

/// Resolution at which a chart has the lines and letters of the screen, dots per inch.
constexpr int c_nScreenResolution = 96;

/// How large a picture of the chart becomes, and how fine: at twice the resolution, lines and letters have
/// twice the pixels.
struct SPictureSize
{
    QSize size;                            ///< pixels
    int nResolution = c_nScreenResolution; ///< dots per inch

    /// Pixels of the picture for each pixel that the chart is laid out in.
    double Ratio() const { return double(nResolution) / c_nScreenResolution; }
    /// The size that the chart is laid out for.
    QSize Layout() const { return (QSizeF(size) / Ratio()).toSize(); }
};

#endif // WORKBENCH_COLOUR_PICTURESIZE_H
