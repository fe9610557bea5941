#ifndef INSTRUMENTS_EDID_FIELDEDITING_H
#define INSTRUMENTS_EDID_FIELDEDITING_H

#include "instruments/edid/Explanation.h"

#include <QByteArray>
#include <QString>

/// @file
/// Changing one field of an explanation in its place. A change touches the bits of the field and the
/// checksums of its block that were right; what the field cannot hold is refused, never cut.

namespace Edid {

/// Whether `SetField` takes a value for the field: one with bits of its own that is no checksum, and a timing
/// as a whole.
bool IsEditable(const SField& field);

/// Whether the value is one of a few: a flag or a choice. `SetField` then takes its number.
bool HasChoices(const SField& field);

/// The field's value in the form that `SetField` takes: a number without its unit, letters, the characters of
/// a text, bytes as hexadecimal digits, a timing as `WIDTHxHEIGHT@RATE`.
/// @param pBytes  the whole EDID that was explained
QString EditText(const SField& field, const quint8* pBytes);

/// Sets a field.
/// @param edid      the EDID that was explained; unchanged when the value is refused
/// @param strValue  as `EditText` gives it
/// @return what is wrong with the value and what to write; empty when it was set
QString SetField(QByteArray& edid, const SField& field, const QString& strValue);

} // namespace Edid

#endif // INSTRUMENTS_EDID_FIELDEDITING_H
