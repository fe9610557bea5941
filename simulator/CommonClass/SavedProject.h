#ifndef SIMULATOR_COMMONCLASS_SAVEDPROJECT_H
#define SIMULATOR_COMMONCLASS_SAVEDPROJECT_H

#include "host/HostExport.h"
#include "simulator/CommonClass/FileProblem.h"
#include "simulator/CommonClass/PictureFolder.h"
#include "simulator/CommonClass/ProjectFingerprint.h"
#include "simulator/CommonClass/SimulatedProject.h"

#include <QJsonObject>
#include <QString>

/// A project as it was last saved, or as it was started: its file, the values in it, and the pictures.
class COMMONCLASS_EXPORT CSavedProject
{
public:
    CSavedProject();
    ~CSavedProject();

    /// Path of the file; empty until the first save.
    const QString& File() const { return m_strFile; }
    /// The unreadable file that the last save kept beside the new one; empty when there was none.
    const QString& KeptFile() const { return m_strKept; }
    CPictureFolder& Pictures() { return m_pictures; }

    /// True when a state has values that are not saved. The current sender does not count.
    bool DiffersFrom(const SProjectFingerprint& present) const;

    /// Takes another project, which counts as saved.
    /// @param strFile where it was read from; empty for a new one
    void Replace(const SSimulatedProject& project, const SProjectFingerprint& fingerprint,
                 const QString& strFile);
    /// Writes a project to a file, which becomes the project's. The pictures stay where they are.
    bool Write(const SSimulatedProject& project, const QString& strFile, SFileProblem& problem);
    /// Writes the file as it was last saved, with the address lists of a project.
    /// @pre the project has a file
    bool WriteAddresses(const SSimulatedProject& project, SFileProblem& problem);

private:
    QString m_strFile;
    QString m_strKept;
    QJsonObject m_jsonSaved;
    SProjectFingerprint m_fingerprintSaved;
    CPictureFolder m_pictures;
};

#endif // SIMULATOR_COMMONCLASS_SAVEDPROJECT_H
