#include "SenderModuleDialog/colour/CCT2ColorCoord.h"
#include "SenderModuleDialog/colour/ChromaGamutInterpolation.h"
#include "SenderModuleDialog/geometry/CalcChromaRatio.h"
#include "SenderModuleDialog/geometry/Line.h"
#include "SenderModuleDialog/geometry/Polygon.h"

#include <cstdio>

namespace {

/// Lines, polygons and triangles on the chromaticity plane.
void PrintGeometry()
{
    float fX = 0.0F;
    float fY = 0.0F;
    CLine::GetSegmentCross({0, 0}, {2, 2}, {0, 2}, {2, 0}, fX, fY); // true: (1, 1)

    CPolygon polygon(QVector<QPointF>{{0, 1}, {0.5, 0.5}, {1, 1}, {0, 0}, {1, 0}});
    polygon.GrahamScan(); // its convex hull: the unit square, counter-clockwise
    QPointF point(0.25, -0.5);
    polygon.GetPointCloser(&point); // now just inside, near (0.25, 0)

    std::vector<CPointEx<float>> srgb = {{0.64F, 0.33F}, {0.30F, 0.60F}, {0.15F, 0.06F}};
    std::vector<CPointEx<float>> ntsc = {{0.67F, 0.33F}, {0.21F, 0.71F}, {0.14F, 0.08F}};
    float fRatio = 0.0F;
    CCalcChromaRatio().CalcChromaRatio(srgb, ntsc, fRatio); // the part of NTSC that sRGB covers: 0.68

    std::printf("crossing %g,%g  moved to %.2f,%.2f  coverage %.2f\n", double(fX), double(fY), point.x(),
                point.y(), double(fRatio));
}

/// Daylight temperatures, and the outline of all real colours.
void PrintColorimetry()
{
    CCCT2ColorCoord cct; // cheap after the first: all objects share what is solved and tabulated once
    QPointF white;
    cct.CCTtoColorCoord(5000.0F, &white, false); // true: (0.34574, 0.35867)
    float fKelvin = 0.0F;
    cct.TriangAlgCalcRelativeCCT(QPointF(0.3127, 0.329), &fKelvin, false); // true: 6500, D65 snaps

    CChromaGamutInterpolation gamut;
    const int nPoints = gamut.GetQPointFData().size(); // 156 points, counter-clockwise from 404 nm
    const bool bReal = gamut.IsPointInCIEPolygon(QPointF(0.3127, 0.329)); // true

    std::printf("5000 K %.5f,%.5f  D65 %.0f K  outline %d points  D65 %s\n", white.x(), white.y(),
                double(fKelvin), nPoints, bReal ? "real" : "imaginary");
}

} // namespace

/// How much of one gamut another covers, and the library's other calculations. It needs no
/// window or host.
int main()
{
    PrintGeometry();
    PrintColorimetry();
    return 0;
}
