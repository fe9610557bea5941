#ifndef SENDERMODULEDIALOG_OUTPUT_CANVASRULES_H
#define SENDERMODULEDIALOG_OUTPUT_CANVASRULES_H

#include "host/HardwareSupport/CanvasLimit.h"

#include <QSize>

#include <array>
#include <optional>

/// What the canvas dialog decides, over plain values.
namespace CanvasRules {

/// Range of a canvas, pixels, whatever the sender.
constexpr int c_nMinSide = 64;
constexpr int c_nMaxWidth = SCanvasLimit().nMaxWidth;
constexpr int c_nMaxHeight = SCanvasLimit().nMaxHeight;

/// A canvas size that the menu offers.
struct SPreset
{
    const char* szText; ///< UTF-8, the same in every language
    QSize size;         ///< pixels
};

/// In menu order: the index is the id of the menu entry.
constexpr std::array<SPreset, 3> c_arrPresets = {{
    {"1920×1080", QSize(1920, 1080)},
    {"3840×2160", QSize(3840, 2160)},
    {"4096×2160", QSize(4096, 2160)},
}};

/// Number of presets that the menu of a sender type offers, the first ones of the table.
int PresetCount(int nSenderType);

/// The preset of exactly that size, -1 for a custom size.
int PresetOf(QSize size);

/// Why a canvas is refused.
struct SProblem
{
    const char* szText; ///< source text in the context `CCustomDialog`, with one number to fill in
    int nLimit;         ///< that number
};

/// The test that comes before all others, for every sender.
/// @return a problem when either side is below `c_nMinSide`
std::optional<SProblem> CheckMinimum(QSize size);

/// Compares a canvas with a sender's limits.
/// @return the last test that fails, in the order width, height, area; earlier failures are not reported
std::optional<SProblem> CheckLimit(QSize size, const SCanvasLimit& limit);

/// The size that the dialog opens with, for a sender whose canvas is read from the hardware.
/// @return the hardware's size as it is, also with one side 0; 1920 x 1080 when both are 0
QSize OpeningSize(QSize sizeHardware);

} // namespace CanvasRules

#endif // SENDERMODULEDIALOG_OUTPUT_CANVASRULES_H
