#ifndef TOOLS_CHROMATICITY_H
#define TOOLS_CHROMATICITY_H

#include "host/CommonClass/PointEx.h"

#include <QPointF>
#include <QString>

#include <vector>

struct SColourStandard;

/// A finite number in the C locale. Throws `CToolError`; `szWhat` says what it should have been.
double ParseNumber(const QString& strNumber, const char* szWhat);

/// A CIE 1931 chromaticity written as `x,y`, both from 0 to 1. Throws `CToolError`.
QPointF ParseChromaticity(const QString& strPoint);

/// Chromaticities as `x,y;x,y` and so on. Throws `CToolError`.
std::vector<CPointEx<float>> ParseChromaticities(const QString& strPoints);

/// A standard colour space by its label in any case; null for another label.
const SColourStandard* FindStandard(const QString& strLabel);

/// The labels of the standard colour spaces, as a list to choose from.
QString StandardLabels();

/// A gamut: the label of a standard colour space in any case, or three chromaticities as `x,y;x,y;x,y`.
/// Throws `CToolError`.
std::vector<CPointEx<float>> ParseGamut(const QString& strGamut);

#endif // TOOLS_CHROMATICITY_H
