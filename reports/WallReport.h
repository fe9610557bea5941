#ifndef REPORTS_WALLREPORT_H
#define REPORTS_WALLREPORT_H

#include "SenderModuleDialog/colour/ColourStandards.h"
#include "instruments/colour/WallAnalysis.h"

#include <QByteArray>

/// A measured wall on two pages: the chart with all modules, and the tables.
namespace WallReport {

/// The PDF file. The texts are in the language of the installed translators. Requires a QGuiApplication; the
/// offscreen platform is enough.
/// @param standard what the analysis was made for
/// @param strTitle what the wall is called, for example the name of its file
QByteArray Pdf(const Modules& modules, const SWallAnalysis& analysis, const SColourStandard& standard,
               const QString& strTitle);

} // namespace WallReport

#endif // REPORTS_WALLREPORT_H
