#ifndef WORKBENCH_COLOUR_COLOURGROUPS_H
#define WORKBENCH_COLOUR_COLOURGROUPS_H

#include "SenderModuleDialog/chart/ChromaGroupInfo.h"

#include <QMap>

#include <optional>

class CChromaticityDlgWnd;

/// Colour groups as values: taken from a chart, put back, and changed.
namespace ColourGroups {

/// All groups of a chart by key.
using Groups = QMap<int, SChromaGroupInfo>;

/// Copies of a chart's groups.
Groups Take(const CChromaticityDlgWnd& chart);

/// Makes a chart's groups equal to the copies. Remaining groups are edited in place, so pointers to
/// them stay valid.
void Restore(CChromaticityDlgWnd& chart, const Groups& groups);

/// Whether two sets of groups look the same to the operator. Colours from the palette are ignored.
bool AreSame(const Groups& first, const Groups& second);

/// Whether the key is that of the output or of the screen colour space.
bool IsCoverageKey(int nKey);

/// The smallest key that is free.
int FreeKey(const CChromaticityDlgWnd& chart);

/// The same gamut in RGB or CMY mode: the colour points become the vertices of the triangle or the midpoints
/// of its edges.
void SetMode(SChromaGroupInfo& group, bool bRgb);

/// Gives a group the points of a standard, in the group's mode, and its label as name.
void SetStandard(SChromaGroupInfo& group, enColorStandard standard);

/// A visible group in RGB mode with the points of a standard. All of its points may be dragged.
SChromaGroupInfo OfStandard(enColorStandard standard);

/// The output and the screen colour space as they are added: the output is fixed, the screen may be dragged.
/// @{
SChromaGroupInfo OutputSpace();
SChromaGroupInfo ScreenSpace();
/// @}

/// Makes a live group valid after its point `nPoint` was written.
/// @return false when that is impossible: its white is not a colour
bool MakeLegal(CChromaticityDlgWnd& chart, SChromaGroupInfo& group, int nPoint);

/// How much of the output colour space the screen covers, in whole percent; empty unless both exist
/// and are visible.
std::optional<int> Coverage(CChromaticityDlgWnd& chart);

/// "0.3127, 0.3290".
QString PointText(CPointEx<float> point);

/// Reads a chromaticity: two numbers from 0 to 1, with a comma, a semicolon or spaces between them.
std::optional<CPointEx<float>> ParsePoint(const QString& strText);

} // namespace ColourGroups

#endif // WORKBENCH_COLOUR_COLOURGROUPS_H
