#ifndef ORACLES_CHART_PLAINBITMAP_H
#define ORACLES_CHART_PLAINBITMAP_H

#include "SenderModuleDialog/Saturate.h"
#include "SenderModuleDialog/geometry/Line.h"
#include "host/CommonClass/PointEx.h"

#include <QColor>
#include <QImage>
#include <QPointF>
#include <QVector>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

/// The background bitmap pixel by pixel, each step as it is stated: what the fast painter is compared with.
namespace PlainBitmap {

using Point = CPointEx<float>;

/// A colour component: nothing on the far side of the line, then the square root of the share of the centre's
/// distance, up to full.
inline int Component(const CLine& line, Point ptPixel, Point ptCentre, float fCentreDistance)
{
    if (!line.IsSameSide(ptPixel, ptCentre))
        return 0;
    const float fDistance = line.Distance2(ptPixel);
    if (fDistance > fCentreDistance)
        return 255;
    return SaturateTo<int>(255.0F * std::sqrt(fDistance / fCentreDistance));
}

/// Within 0.0001 of a vertex, or else inside by the even-odd rule.
inline bool IsInside(const std::vector<Point>& vecOutline, Point pt)
{
    for (const Point vertex : vecOutline) {
        if (std::fabs(pt.x - vertex.x) < 0.0001F && std::fabs(pt.y - vertex.y) < 0.0001F)
            return true;
    }
    bool bInside = false;
    for (size_t i = 0, j = vecOutline.size() - 1; i < vecOutline.size(); j = i++) {
        const Point vi = vecOutline[i];
        const Point vj = vecOutline[j];
        const bool bStraddles = (vi.y < pt.y && pt.y <= vj.y) || (pt.y <= vi.y && vj.y < pt.y);
        if (bStraddles && (vi.x <= pt.x || vj.x <= pt.x) &&
            (vj.x - vi.x) * ((pt.y - vi.y) / (vj.y - vi.y)) + vi.x < pt.x)
            bInside = !bInside;
    }
    return bInside;
}

/// Paints the bitmap of a size.
/// @param vecLocus the locus in chromaticities
/// @param vecOutline the locus in the widget's pixels
inline QImage Paint(int nWidth, int nHeight, const QVector<QPointF>& vecLocus,
                    const std::vector<Point>& vecOutline)
{
    QImage image(nWidth, nHeight, QImage::Format_ARGB32);
    image.fill(QColor(0, 0, 0, 0));

    const int nMarginX = nWidth / 30;
    const int nMarginY = nHeight / 30;
    const int nScale =
        SaturateTo<int>(std::min((nWidth - 2 * nMarginX) / 0.8, (nHeight - 2 * nMarginY) / 0.9));
    std::vector<Point> vecMapped;
    for (const QPointF pt : vecLocus)
        vecMapped.emplace_back(float(pt.x() * nScale + nMarginX),
                               float((nHeight - nMarginY) - pt.y() * nScale));

    float fRightmost = -6.5536e9F;
    float fTopmost = 6.5536e9F;
    float fLeftmost = -6.5536e9F;
    Point ptRight;
    Point ptTop;
    Point ptLeft;
    for (const Point pt : vecMapped) {
        if (pt.x > fRightmost) {
            fRightmost = pt.x;
            ptRight = pt;
        }
        if (pt.y < fTopmost) {
            fTopmost = pt.y;
            ptTop = pt;
        }
        if (pt.y - pt.x > fLeftmost) {
            fLeftmost = pt.y - pt.x;
            ptLeft = pt;
        }
    }
    const CLine line0(ptTop, ptLeft);
    const CLine line1(ptRight, ptLeft);
    const CLine line2(ptRight, ptTop);
    const Point ptCentre(float(nMarginX + nScale / 3.0), float((nHeight - nMarginY) - nScale / 3.0));
    const float fDistance0 = line0.Distance2(ptCentre);
    const float fDistance1 = line1.Distance2(ptCentre);
    const float fDistance2 = line2.Distance2(ptCentre);

    float fLeft = 6.5536e9F;
    float fTop = 6.5536e9F;
    float fRight = -6.5536e9F;
    float fBottom = -6.5536e9F;
    for (const Point pt : vecMapped) {
        fLeft = std::min(fLeft, pt.x);
        fTop = std::min(fTop, pt.y);
        fRight = std::max(fRight, pt.x);
        fBottom = std::max(fBottom, pt.y);
    }

    for (int x = 0; x <= nWidth; ++x) {
        for (int y = 0; y <= nHeight; ++y) {
            const Point pt{float(x), float(y)};
            if (pt.x < fLeft || pt.x > fRight || pt.y < fTop || pt.y > fBottom)
                continue;
            // Qt would ignore a pixel outside the image too, with a warning.
            if (x == nWidth || y == nHeight || !IsInside(vecOutline, pt))
                continue;
            image.setPixelColor(x, y,
                                QColor(Component(line0, pt, ptCentre, fDistance0),
                                       Component(line1, pt, ptCentre, fDistance1),
                                       Component(line2, pt, ptCentre, fDistance2)));
        }
    }
    return image;
}

} // namespace PlainBitmap

#endif // ORACLES_CHART_PLAINBITMAP_H
