#ifndef INSTRUMENTS_EDID_CONFORMING_H
#define INSTRUMENTS_EDID_CONFORMING_H

#include <QByteArray>
#include <QString>

/// @file
/// EDIDs that any computer accepts: EDID 1.4, and for modes that a base block cannot hold a DisplayID block.

namespace Edid {

/// What is asked for.
struct SConformRequest
{
    int nWidth;                               ///< pixels
    int nHeight;                              ///< lines
    float fRate;                              ///< Hz
    QString strMaker = QStringLiteral("LED"); ///< three letters
    QString strName;                          ///< at most 13 characters; empty: made of the size
    int nWidthCm = 0;                         ///< 0 to 255, 0 for unknown
    int nHeightCm = 0;                        ///< 0 to 255, 0 for unknown
};

/// What was made, or why nothing was.
struct SConformResult
{
    QByteArray edid;  ///< one or two blocks
    QString strError; ///< what is wrong and what to do; empty when nothing is
};

/// Makes an EDID for a mode with reduced blanking, as the library calculates it. A mode that is
/// wider or higher than 4095 or needs a clock above 655.35 MHz goes into a second block, and the
/// base block holds 1920x1080.
SConformResult MakeConforming(const SConformRequest& request);

} // namespace Edid

#endif // INSTRUMENTS_EDID_CONFORMING_H
