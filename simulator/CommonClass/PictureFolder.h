#ifndef SIMULATOR_COMMONCLASS_PICTUREFOLDER_H
#define SIMULATOR_COMMONCLASS_PICTUREFOLDER_H

#include "simulator/CommonClass/FileProblem.h"

#include <QString>

#include <memory>

class QTemporaryDir;

/// The folder of a project's background pictures: `name.pictures` beside the project file, or a temporary one
/// before the first save.
class CPictureFolder
{
public:
    CPictureFolder();
    ~CPictureFolder();

    /// Switches to another project, whose pictures are beside its file. Temporary ones are deleted.
    /// @param strFile the project's file; empty for a project without one
    void Replace(const QString& strFile);
    /// Moves the project and its pictures to another file. Pictures beside that file belong to the
    /// project that was overwritten, and are deleted.
    /// @param problem receives the error when not all pictures could be copied
    /// @return false when not all pictures could be copied
    bool MoveTo(const QString& strFile, SFileProblem& problem);
    /// The folder's path; creates the temporary one.
    QString Path();

private:
    QString PresentPath() const;

    QString m_strFile;
    std::unique_ptr<QTemporaryDir> m_pTemporary;
};

#endif // SIMULATOR_COMMONCLASS_PICTUREFOLDER_H
