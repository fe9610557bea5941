#ifndef WORKBENCH_COLOUR_WAVELENGTHMARKS_H
#define WORKBENCH_COLOUR_WAVELENGTHMARKS_H

#include "reports/WallPainter.h"

/// Wavelengths along the outline of a diagram.
namespace WavelengthMarks {

/// Paints a tick and a number of nanometres at round wavelengths, outside the outline.
void Paint(QPainter& painter, const WallPainter::FuncToPixel& funcToPixel);

} // namespace WavelengthMarks

#endif // WORKBENCH_COLOUR_WAVELENGTHMARKS_H
