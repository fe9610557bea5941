#ifndef INSTRUMENTS_EDID_CVTCODE_H
#define INSTRUMENTS_EDID_CVTCODE_H

#include <QString>

/// @file
/// The three bytes of a CVT code (VESA E-EDID 1.4, section 3.10.3.8).

namespace Edid {

/// What three bytes name.
struct SCvtCode
{
    int nWidth;
    int nHeight;
    int nPreferredRate; ///< Hz
    unsigned nRates;    ///< bits 4 to 0: 50, 60, 75, 85 Hz, 60 Hz with reduced blanking

    /// Whether the preferred rate is one of those that are supported.
    bool IsPreferredSupported() const;
};

/// Reads a code, first byte high.
SCvtCode ReadCvtCode(quint32 nCode);

/// `1280x768 at 60 Hz, 60 Hz reduced`.
QString CvtCodeText(quint32 nCode);

} // namespace Edid

#endif // INSTRUMENTS_EDID_CVTCODE_H
