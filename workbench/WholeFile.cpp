#include "workbench/WholeFile.h"

#include <QSaveFile>

QString WholeFile::Write(const QString& strFile, const QByteArray& baContent)
{
    QSaveFile file(strFile);
    // The commit alone does not notice that the buffer could not be flushed to a full disk.
    const bool bWritten = file.open(QIODevice::WriteOnly) && file.write(baContent) == baContent.size() &&
                          file.flush() && file.commit();
    return bWritten ? QString() : file.errorString();
}
