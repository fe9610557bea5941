#ifndef HOST_ORVICONTROL_STYLE_H
#define HOST_ORVICONTROL_STYLE_H

#include "host/HostExport.h"

#include <QString>

/// @file
/// The host's look: style texts for the plain Qt controls, and the font that goes with them.

extern ORVICONTROL_EXPORT QString g_labelNoFrameStyle;  ///< caption labels
extern ORVICONTROL_EXPORT QString g_labelWarnStyle;     ///< labels that show a warning
extern ORVICONTROL_EXPORT QString g_pushButtonStyle;    ///< push buttons
extern ORVICONTROL_EXPORT QString g_menuStyle;          ///< menus behind combo boxes
extern ORVICONTROL_EXPORT QString g_checkBoxStyle;      ///< check boxes
extern ORVICONTROL_EXPORT QString g_doubleSpinBoxStyle; ///< spin boxes

/// The host's font family.
ORVICONTROL_EXPORT QString GetFontFamily();

/// Completes a style text with the host's font.
/// @param strStyle one of the style texts, or a literal in their form
/// @param strSelector the style sheet selector that takes the font, such as "QLabel"
/// @param nFontSize font size in pixels; the library passes 12
/// @return the text for `setStyleSheet`
ORVICONTROL_EXPORT QString GetFontStyleSheet(QString strStyle, QString strSelector, int nFontSize);

#endif // HOST_ORVICONTROL_STYLE_H
