#ifndef TOOLS_OUTPUT_H
#define TOOLS_OUTPUT_H

#include <QByteArray>
#include <QString>

/// @file
/// Where results go.

namespace Output {

/// Writes to standard output. Throws `CToolError` when it takes no more.
void ToStandardOutput(const QByteArray& content);

/// Writes a file whole or not at all: what was there before stays until the new content is complete. A device
/// or a pipe is written to directly. Throws `CToolError` when it cannot be written.
void ToFile(const QString& strFile, const QByteArray& content);

/// Whether a file's name means standard output: `-`.
bool IsStandardOutput(const QString& strFile);

/// To the file, or to standard output when no file is named or its name is `-`.
void To(const QString& strFile, const QByteArray& content);

} // namespace Output

#endif // TOOLS_OUTPUT_H
