#ifndef INSTRUMENTS_EDID_TIMINGSTANDARDS_H
#define INSTRUMENTS_EDID_TIMINGSTANDARDS_H

#include "instruments/edid/ModeTiming.h"

#include <QString>

#include <optional>

/// @file
/// The timings that computers give a mode: by the published formulas, or from the published lists.

namespace Edid {

/// A published formula or list of timings.
enum class enTimingStandard
{
    enCvt,    ///< VESA CVT 1.2, standard blanking
    enCvtRb,  ///< VESA CVT 1.2, reduced blanking
    enCvtRb2, ///< VESA CVT 1.2, reduced blanking version 2
    enCvtRb3, ///< VESA CVT 2.0, reduced blanking version 3
    enDmt,    ///< VESA DMT 1.13, listed
    enCea,    ///< CTA-861-H, listed
    enGtf,    ///< VESA GTF 1.1
};

/// Values of `enTimingStandard`.
constexpr int c_nTimingStandards = 7;

/// The name that a person writes: `cvt-rb2`.
const char* StandardName(enTimingStandard standard);
/// The standard with a name; empty for another.
std::optional<enTimingStandard> FindTimingStandard(const QString& strName);

/// A mode that is asked for.
struct SModeRequest
{
    int nWidth;       ///< pixels, above 0
    int nHeight;      ///< lines of the frame, above 0
    double dRate;     ///< Hz, above 0; of fields when interlaced
    bool bInterlaced; ///< two fields make a frame
};

/// The timing of a mode by a standard; empty when a list does not have the mode, or when a formula leaves no
/// time for the lines or no front porch.
std::optional<SModeTiming> StandardTimingOf(enTimingStandard standard, const SModeRequest& request);

} // namespace Edid

#endif // INSTRUMENTS_EDID_TIMINGSTANDARDS_H
