#ifndef SENDERMODULEDIALOG_CHART_BITMAP_CHROMABITMAPPAINTER_H
#define SENDERMODULEDIALOG_CHART_BITMAP_CHROMABITMAPPAINTER_H

#include "host/CommonClass/PointEx.h"

#include <QImage>
#include <QPointF>
#include <QVector>

#include <functional>
#include <vector>

/// The coloured horseshoe behind the chart, as a picture.
namespace ChromaBitmap {

/// What a bitmap is painted from.
struct SSource
{
    int nWidth = 0;            ///< of the bitmap, in pixels
    int nHeight = 0;           ///< of the bitmap, in pixels
    QVector<QPointF> vecLocus; ///< the locus in chromaticities: it gives the colours and the box
    std::vector<CPointEx<float>> vecOutline; ///< the locus in the widget's pixels: it gives the shape

    /// The same bitmap on a screen with more device pixels than pixels.
    SSource Scaled(double dRatio) const;
};

/// The bitmap's own mapping of chromaticities to pixels. It differs from the chart's on purpose:
/// whole numbers, and a margin that is 10 pixels smaller.
struct SMapping
{
    int nMarginX = 0;
    int nMarginY = 0;
    int nScale = 0; ///< pixels per unit of chromaticity
    int nHeight = 0;

    /// The mapping of a bitmap of this size.
    static SMapping ForSize(int nWidth, int nHeight);
    /// The pixel of a chromaticity, computed in double precision and narrowed.
    CPointEx<float> ToPixel(QPointF ptChromaticity) const;
};

/// The instruction sets that the painter is compiled for. Each paints the same bytes.
enum enInstructions
{
    enPlainInstructions, ///< any processor
    enSse2Instructions,  ///< x86-64
    enAvx2Instructions,  ///< x86-64 with AVX2
    enNeonInstructions   ///< AArch64
};

/// The widest instruction set that this processor has.
enInstructions BestInstructions();
/// Whether this processor has the instruction set.
bool HasInstructions(enInstructions instructions);

/// Called at each row of pixels: whether to stop there.
using FuncStop = std::function<bool()>;

/// Paints a bitmap: transparent outside the outline, opaque inside.
///
/// A pixel is inside within 0.0001 of a vertex of the outline, or else by the even-odd rule; and only pixels
/// of the box around the locus are painted. Its red, green and blue are 0 on the far side of the line through
/// the horseshoe's top and left, right and left, right and top corner, grow with the square root of the
/// distance from it, and are full from the distance of the chromaticity (1/3, 1/3) on.
/// @param funcStop the rows from where it says true stay transparent
QImage Paint(const SSource& source, const FuncStop& funcStop,
             enInstructions instructions = BestInstructions());

} // namespace ChromaBitmap

#endif // SENDERMODULEDIALOG_CHART_BITMAP_CHROMABITMAPPAINTER_H
