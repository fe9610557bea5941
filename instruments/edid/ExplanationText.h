#ifndef INSTRUMENTS_EDID_EXPLANATIONTEXT_H
#define INSTRUMENTS_EDID_EXPLANATIONTEXT_H

#include "instruments/edid/FieldText.h"

#include <QByteArray>
#include <QJsonArray>

/// @file
/// A whole explanation for people and for programs.

namespace Edid {

/// One line a field: offset, bytes, label and value, indented by its depth. Bits that are not set are left
/// out, and of a long run of bytes the value alone is written.
QString ExplanationText(const QByteArray& edid, const MakerNames& makerNames);

/// The blocks as objects with `key`, `label`, `offset`, `bytes`, `value`, `unit` and `fields`. Every
/// field is there.
QJsonArray ExplanationJson(const QByteArray& edid, const MakerNames& makerNames);

} // namespace Edid

#endif // INSTRUMENTS_EDID_EXPLANATIONTEXT_H
