#ifndef TOOLS_CHROMATICITY_H
#define TOOLS_CHROMATICITY_H

#include "host/CommonClass/PointEx.h"
#include "instruments/colour/Chromaticity.h"

#include <QPointF>
#include <QString>

#include <vector>

/// A finite number in the C locale. Throws `CToolError`; `szWhat` says what it should have been.
double ParseNumber(const QString& strNumber, const char* szWhat);

/// A CIE 1931 chromaticity written as `x,y`, both from 0 to 1. Throws `CToolError`.
QPointF ParseChromaticity(const QString& strPoint);

/// Chromaticities as `x,y;x,y` and so on. Throws `CToolError`.
std::vector<CPointEx<float>> ParseChromaticities(const QString& strPoints);

/// A white: the name of a CIE illuminant, for example `D65`, or a chromaticity as `x,y`. Throws `CToolError`.
SChromaticity ParseWhite(const QString& strWhite);

/// Whether three corners enclose an area that single precision can tell from zero.
bool HasArea(const std::vector<CPointEx<float>>& vecTriangle);

/// A gamut: the name of a standard colour space, or three chromaticities as `x,y;x,y;x,y` that span a
/// triangle. Throws `CToolError`.
std::vector<CPointEx<float>> ParseGamut(const QString& strGamut);

#endif // TOOLS_CHROMATICITY_H
