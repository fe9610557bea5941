#ifndef REPORTS_WALLPAINTER_H
#define REPORTS_WALLPAINTER_H

#include "instruments/colour/WallAnalysis.h"

#include <QPointF>

#include <functional>

class QPainter;

/// A wall's modules over a chromaticity diagram.
namespace WallPainter {

/// Takes a chromaticity to its place on the painter.
using FuncToPixel = std::function<QPointF(SChromaticity)>;

/// Paints each module's gamut as a thin triangle, the odd ones in another colour above the others, and over
/// them the common gamut, filled lightly.
void Paint(QPainter& painter, const Modules& modules, const SWallAnalysis& analysis,
           const FuncToPixel& funcToPixel);

} // namespace WallPainter

#endif // REPORTS_WALLPAINTER_H
