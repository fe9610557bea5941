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

    /// Another project takes the place: its pictures are beside its file. Temporary ones are deleted.
    /// @param strFile the project's file; empty for a project without one
    void Replace(const QString& strFile);
    /// The project goes to another file, and its pictures with it. Pictures beside that file belong to the
    /// project that was overwritten, and are deleted.
    /// @param problem takes what went wrong when not all pictures could be copied
    /// @return false then
    bool MoveTo(const QString& strFile, SFileProblem& problem);
    /// The folder's path; creates the temporary one.
    QString Path();

private:
    QString PresentPath() const;

    QString m_strFile;
    std::unique_ptr<QTemporaryDir> m_pTemporary;
};

#endif // SIMULATOR_COMMONCLASS_PICTUREFOLDER_H
