#ifndef SIMULATOR_COMMONCLASS_PROJECTFILE_H
#define SIMULATOR_COMMONCLASS_PROJECTFILE_H

#include "host/HostExport.h"
#include "simulator/CommonClass/SimulatedProject.h"

#include <QJsonObject>

#include <optional>

/// The project on disk: JSON with a header that names format and version.
namespace ProjectFile {

/// The version that this program writes, and the newest version it can read.
constexpr int c_nVersion = 1;

/// Reads a project; returns nothing on a problem. The file itself is never changed.
COMMONCLASS_EXPORT std::optional<SSimulatedProject> Read(const QString& strFile, SFileProblem& problem);

/// Writes a project in one step: at any moment either the old file or the new one exists in full. An existing
/// file that is not a readable project of this version is not overwritten: it is kept beside the new one
/// under a different name.
/// @param project as `ProjectToJson` returns it; rejected when it could not be read back
/// @param strKept receives the name of the file that was kept; empty when nothing was kept
/// @return true when the file was written
COMMONCLASS_EXPORT bool Write(const QString& strFile, const QJsonObject& project, QString& strKept,
                              SFileProblem& problem);

} // namespace ProjectFile

#endif // SIMULATOR_COMMONCLASS_PROJECTFILE_H
