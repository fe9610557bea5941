#ifndef TOOLS_VIDEOMODE_H
#define TOOLS_VIDEOMODE_H

#include <QString>

/// A video mode as a person writes it: `1920x1080@59.94`.
struct SVideoMode
{
    int nWidth;      ///< pixels, 1 to 65535
    int nHeight;     ///< lines, 1 to 65535
    float fRate;     ///< Hz, above 0, up to 65535
    QString strRate; ///< the rate as it was written
};

/// Reads a mode. Throws `CToolError` when the text is not a mode or a number is out of its range.
SVideoMode ParseVideoMode(const QString& strMode);

/// `1920x1080 at 59.94 Hz`.
QString DescribeVideoMode(const SVideoMode& mode);

#endif // TOOLS_VIDEOMODE_H
