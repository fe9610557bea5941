#ifndef TOOLS_EDIDFORMAT_H
#define TOOLS_EDIDFORMAT_H

#include "tools/VideoMode.h"

#include <QByteArray>
#include <QStringList>

/// @file
/// The forms in which a block is written.

namespace EdidFormat {

/// The names of all forms, the first is the default.
QStringList Names();

/// A block in a form. Throws `CToolError` when the form is unknown.
QByteArray Format(const QString& strName, const QByteArray& block, const SVideoMode& mode);

/// The same in one line, without its end. Throws `CToolError` for a format that has no such form.
QByteArray Line(const QString& strName, const QByteArray& block, const SVideoMode& mode);

} // namespace EdidFormat

#endif // TOOLS_EDIDFORMAT_H
