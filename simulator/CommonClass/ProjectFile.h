#ifndef SIMULATOR_COMMONCLASS_PROJECTFILE_H
#define SIMULATOR_COMMONCLASS_PROJECTFILE_H

#include "host/HostExport.h"
#include "simulator/CommonClass/SimulatedProject.h"

#include <QJsonObject>

#include <optional>

/// The project on disk: JSON with a header that names format and version.
namespace ProjectFile {

/// The version that this program writes, and the newest that it reads.
constexpr int c_nVersion = 1;

/// Reads a project. On a problem, nothing: the file stays as it is.
COMMONCLASS_EXPORT std::optional<SSimulatedProject> Read(const QString& strFile, SFileProblem& problem);

/// Writes a project in one step: at any moment there is the old file or the new one, whole. A file in the
/// place that is no readable project of this version is not overwritten: it is kept beside the new one under
/// a name of its own.
/// @param project as `ProjectToJson` gives it; refused when it could not be read back
/// @param strKept takes the name of the file that was kept; empty when there was nothing to keep
/// @return true when the file is written
COMMONCLASS_EXPORT bool Write(const QString& strFile, const QJsonObject& project, QString& strKept,
                              SFileProblem& problem);

} // namespace ProjectFile

#endif // SIMULATOR_COMMONCLASS_PROJECTFILE_H
