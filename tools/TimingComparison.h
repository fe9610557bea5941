#ifndef TOOLS_TIMINGCOMPARISON_H
#define TOOLS_TIMINGCOMPARISON_H

#include "instruments/edid/TimingStandards.h"
#include "tools/StoredMode.h"

#include <QByteArray>
#include <QJsonObject>

/// @file
/// A mode by other standards than our own calculation, and how far they are from it.

namespace TimingComparison {

/// Reads the name of a standard. Throws `CToolError` for another.
Edid::enTimingStandard ParseStandard(const QString& strName);

/// The timing of a mode by a standard. Throws `CToolError` when the standard has none.
Edid::SModeTiming TimingBy(Edid::enTimingStandard standard, const SVideoMode& mode, bool bInterlaced);

/// The timing with its differences to ours, as lines.
QByteArray Text(Edid::enTimingStandard standard, const Edid::SModeTiming& timing, const CStoredMode& ours);
/// The same for programs.
QByteArray Json(Edid::enTimingStandard standard, const Edid::SModeTiming& timing, const CStoredMode& ours);

/// Our timing and that of every standard, a line each.
QByteArray AllText(const CStoredMode& ours, bool bInterlaced);
/// The same for programs.
QByteArray AllJson(const CStoredMode& ours, bool bInterlaced);

} // namespace TimingComparison

#endif // TOOLS_TIMINGCOMPARISON_H
