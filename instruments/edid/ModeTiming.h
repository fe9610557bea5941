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
    int nActive = 0;        ///< visible pixels or lines
    int nFront = 0;         ///< front porch
    int nSync = 0;          ///< sync width
    int nBack = 0;          ///< back porch
    bool bPositive = false; ///< polarity of the sync

    /// Pixels or lines that are not visible.
    int Blank() const { return nFront + nSync + nBack; }
    /// Pixels of a whole line, or lines of a whole frame.
    int Total() const { return nActive + Blank(); }
};

/// A complete timing.
struct SModeTiming
{
    qint64 nClock = 0;        ///< pixel clock, Hz
    SAxis horizontal;         ///< pixels of a line
    SAxis vertical;           ///< lines of a frame, or of a field
    bool bInterlaced = false; ///< two fields make a frame
    bool bHalfLine = true;    ///< interlaced: the field has half a line more than it counts, as nearly always

    /// Lines of a frame, both fields of an interlaced one.
    int FrameLines() const;
    /// Lines in a second, Hz; 0 without a total.
    double LineRate() const;
    /// Frames in a second, fields when interlaced, Hz; 0 without a total.
    double Rate() const;
};

/// Equal in every part.
bool operator==(const SAxis& a, const SAxis& b);
/// Equal in every part.
bool operator==(const SModeTiming& a, const SModeTiming& b);

} // namespace Edid

#endif // INSTRUMENTS_EDID_MODETIMING_H
