#ifndef SENDERMODULEDIALOG_EDID_EDIDLIMIT_H
#define SENDERMODULEDIALOG_EDID_EDIDLIMIT_H

#include <QSize>
#include <QString>

/// The values against which the host judges a resolution, and how its verdict is taken.
namespace EdidLimit {

/// The largest area at a rate.
/// @param nArea60 pixels allowed at 60 Hz
/// @param nRateIndex row of the rate table
/// @return pixels; a constant at 144 and 240 Hz and beyond the table, whatever the sender can do at 60 Hz
int MaxAreaByRate(int nArea60, int nRateIndex);

/// The pixel clock of a mode.
/// @param size pixels
/// @param nRateIndex row of the rate table; a row without a rate for the clock gives 0
/// @param nTimingStandard 0 CVT with reduced blanking, else CVT; counts where the mode has no fixed timing
/// @return MHz, cut towards zero
int PixelClockMHz(QSize size, int nRateIndex, int nTimingStandard);

/// True for the one verdict that informs and does not forbid.
bool IsNotice(const QString& strVerdict);

} // namespace EdidLimit

#endif // SENDERMODULEDIALOG_EDID_EDIDLIMIT_H
