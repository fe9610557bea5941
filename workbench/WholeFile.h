#ifndef WORKBENCH_WHOLEFILE_H
#define WORKBENCH_WHOLEFILE_H

#include <QByteArray>
#include <QString>

/// Writing an exported file.
namespace WholeFile {

/// Writes a file as a whole: when that fails, a file of this name stays as it was.
/// @return why the file could not be written, in the system's words; empty when it was written
QString Write(const QString& strFile, const QByteArray& baContent);

} // namespace WholeFile

#endif // WORKBENCH_WHOLEFILE_H
