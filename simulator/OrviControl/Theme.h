#ifndef SIMULATOR_ORVICONTROL_THEME_H
#define SIMULATOR_ORVICONTROL_THEME_H

#include "host/HostExport.h"

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QString>

class QStyle;
class QWidget;

/// The host's appearance in one place: colours, metrics, font, and the lookup of colour names in style texts.
namespace Theme {

/// @name Colours
/// A dark theme around the entry fields' white on rgb(31,31,31). Every text has a contrast of 4.5 to 1 or
/// more to what it stands on, and what outlines, marks or fills a control 3 to 1. Disabled
/// controls are exempt; their outlines have 1.5 to 1.
/// @{
constexpr QRgb c_rgbWindow = qRgb(45, 45, 45);        ///< dialogs
constexpr QRgb c_rgbField = qRgb(31, 31, 31);         ///< entry fields and menus
constexpr QRgb c_rgbFieldDisabled = qRgb(40, 40, 40); ///< entry fields that accept no input
constexpr QRgb c_rgbEdge = qRgb(130, 130, 130);       ///< outlines of fields, buttons and boxes
constexpr QRgb c_rgbEdgeDisabled = qRgb(85, 85, 85);  ///< the same, where they accept no input
constexpr QRgb c_rgbText = qRgb(255, 255, 255);       ///< all texts
constexpr QRgb c_rgbTextDisabled = qRgb(120, 120, 120);
constexpr QRgb c_rgbNote = qRgb(150, 150, 150); ///< texts in place of a content
constexpr QRgb c_rgbButton = qRgb(70, 70, 70);
constexpr QRgb c_rgbButtonHover = qRgb(85, 85, 85);
constexpr QRgb c_rgbButtonPressed = qRgb(50, 50, 50);
constexpr QRgb c_rgbButtonDisabled = qRgb(55, 55, 55);
constexpr QRgb c_rgbAccent = qRgb(74, 144, 226);    ///< switches and boxes that are on
constexpr QRgb c_rgbSelection = qRgb(45, 112, 195); ///< behind selected text, below white
constexpr QRgb c_rgbFocus = qRgb(120, 180, 255);    ///< the outline with the focus, and links
constexpr QRgb c_rgbWarning = qRgb(255, 120, 90);
constexpr QRgb c_rgbTrackOff = qRgb(100, 100, 100); ///< a switch that is off
/// @}

/// Font size of all controls, pixels: the size that the dialogs hand to `GetFontStyleSheet`.
constexpr int c_nFontSize = 12;

/// Corner radius of fields and buttons, pixels.
constexpr int c_nRadius = 4;

/// Width of the outline with the focus, pixels; without it an outline is 1 pixel wide.
constexpr int c_nFocusWidth = 2;

/// Duration of the knob's slide, milliseconds.
constexpr int c_nSlideDuration = 120;

/// The colours for widgets that no style sheet reaches.
ORVICONTROL_EXPORT QPalette Palette();

/// The host's font at the size of the controls.
ORVICONTROL_EXPORT QFont Font();

/// A style for widgets that no style sheet reaches: Fusion, with outlines that stand out from the dark
/// windows. The caller owns it.
ORVICONTROL_EXPORT QStyle* CreateStyle();

/// Applies the colours and the font to a window and its contents.
void Apply(QWidget* pWindow);

/// Replaces colour names such as `@field@` in a style text.
QString Resolve(const char* szStyle);

/// False when the environment variable ORVICONTROL_ANIMATIONS is 0, or when the desktop disables animations.
bool AreAnimationsOn();

} // namespace Theme

#endif // SIMULATOR_ORVICONTROL_THEME_H
