#ifndef TOOLS_WALLTEXT_H
#define TOOLS_WALLTEXT_H

#include "instruments/colour/WallAnalysis.h"

#include <QByteArray>

/// What is told of a wall, for people and for programs.
namespace WallText {

QByteArray Text(const Modules& modules, const SWallAnalysis& analysis);

/// Every number of the analysis, with each module's differences and matrix.
QByteArray Json(const Modules& modules, const SWallAnalysis& analysis);

} // namespace WallText

#endif // TOOLS_WALLTEXT_H
