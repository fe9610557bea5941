#ifndef SIMULATOR_ORVICONTROL_FIELDWHEEL_H
#define SIMULATOR_ORVICONTROL_FIELDWHEEL_H

class QWidget;

/// The mouse wheel over fields that the operator only scrolls past.
namespace FieldWheel {

/// Lets the wheel change a field's value only while the field has the focus, and never give it the focus.
/// Otherwise the wheel goes on to what the field stands on. A second call for a field does nothing.
void NeedsFocus(QWidget* pField);

/// The same for every number field and slider in a window.
void NeedsFocusInAll(QWidget* pWindow);

} // namespace FieldWheel

#endif // SIMULATOR_ORVICONTROL_FIELDWHEEL_H
