#ifndef INSTRUMENTS_EDID_MODETIMING_H
#define INSTRUMENTS_EDID_MODETIMING_H

#include <QtGlobal>

/// @file
/// A video timing with every part that a computer and a display have to agree on.

namespace Edid {

/// One direction of a timing: pixels of a line, or lines of a frame. The porches and the sync of an
/// interlaced timing are lines of one field; the active lines are those of both.
struct SAxis
{
    int nActive = 0;
    int nFront = 0; ///< front porch
    int nSync = 0;
    int nBack = 0;          ///< back porch
    bool bPositive = false; ///< polarity of the sync

    int Blank() const { return nFront + nSync + nBack; }
    int Total() const { return nActive + Blank(); }
};

/// A complete timing.
struct SModeTiming
{
    qint64 nClock = 0; ///< pixel clock, Hz
    SAxis horizontal;
    SAxis vertical;
    bool bInterlaced = false;
    bool bHalfLine = true; ///< interlaced: the field has half a line more than it counts, as nearly always

    /// Lines of a frame, both fields of an interlaced one.
    int FrameLines() const;
    /// Lines in a second, Hz; 0 without a total.
    double LineRate() const;
    /// Frames in a second, fields when interlaced, Hz; 0 without a total.
    double Rate() const;
};

bool operator==(const SAxis& a, const SAxis& b);
bool operator==(const SModeTiming& a, const SModeTiming& b);

} // namespace Edid

#endif // INSTRUMENTS_EDID_MODETIMING_H
