#include "tools/Output.h"

#include "tools/Report.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cstdio>

namespace Output {

namespace {

const QString c_strStandardOutput = QStringLiteral("-");

[[noreturn]] void ThrowUnwritable(const QString& strFile, const QFileDevice& device)
{
    throw CToolError(QStringLiteral("cannot write '%1': %2; give a file in a folder that you may write to")
                         .arg(strFile, device.errorString()));
}

bool WriteAll(QFileDevice& device, const QByteArray& content)
{
    return device.write(content) == content.size() && device.flush();
}

/// A device or a pipe cannot be replaced by a new file.
bool IsSpecial(const QString& strFile)
{
    const QFileInfo info(strFile);
    return info.exists() && !info.isFile() && !info.isDir();
}

void WriteDirectly(const QString& strFile, const QByteArray& content)
{
    QFile file(strFile);
    if (!file.open(QIODevice::WriteOnly) || !WriteAll(file, content))
        ThrowUnwritable(strFile, file);
}

void WriteAtOnce(const QString& strFile, const QByteArray& content)
{
    QSaveFile file(strFile);
    if (!file.open(QIODevice::WriteOnly) || !WriteAll(file, content) || !file.commit())
        ThrowUnwritable(strFile, file);
}

} // namespace

void ToStandardOutput(const QByteArray& content)
{
    QFile file;
    if (!file.open(stdout, QIODevice::WriteOnly) || !WriteAll(file, content))
        throw CToolError(QStringLiteral("cannot write to standard output: %1").arg(file.errorString()));
}

void ToFile(const QString& strFile, const QByteArray& content)
{
    if (strFile.isEmpty())
        throw CToolError(QStringLiteral("the name of the output file is empty; give a file name"));
    if (IsSpecial(strFile))
        WriteDirectly(strFile, content);
    else
        WriteAtOnce(strFile, content);
}

bool IsStandardOutput(const QString& strFile)
{
    return strFile == c_strStandardOutput;
}

void To(const QString& strFile, const QByteArray& content)
{
    if (strFile.isNull() || IsStandardOutput(strFile))
        ToStandardOutput(content);
    else
        ToFile(strFile, content);
}

} // namespace Output
