#include "simulator/CommonClass/ProjectFile.h"

#include "simulator/CommonClass/SimulatorText.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSaveFile>

#include <cerrno>
#include <csignal>
#include <cstdio>

#include <sys/types.h>

namespace {

const QString c_strFormat = QStringLiteral("sender-project");
const QString c_strFormatKey = QStringLiteral("format");
const QString c_strVersionKey = QStringLiteral("version");
const QString c_strProjectKey = QStringLiteral("project");

/// A larger file cannot be a project and is not read into memory.
constexpr qint64 c_nLargestFile = qint64(64) * 1024 * 1024;

void Refuse(SFileProblem& problem, const QString& strWhat, const QString& strAdvice)
{
    problem.strWhat = strWhat;
    problem.strAdvice = strAdvice;
}

QString AdviceBroken()
{
    return CSimulatorText::tr(
        "The file is left as it is. Correct the value, or start a new project; when that "
        "is saved under this name, the broken file is kept beside it.");
}

QString AdviceDisk()
{
    return CSimulatorText::tr("Check that the file and its folder exist and that you may use them, or choose "
                              "another place.");
}

/// Reading a pipe or a device could block forever; the caller handles a missing file.
bool RequireRegularFile(const QString& strFile, SFileProblem& problem)
{
    const QFileInfo info(strFile);
    if (!info.exists() || info.isFile())
        return true;
    Refuse(problem, CSimulatorText::tr("This is no regular file, so it holds no project."), AdviceDisk());
    return false;
}

bool ReadBytes(const QString& strFile, QByteArray& baContent, SFileProblem& problem)
{
    if (!RequireRegularFile(strFile, problem))
        return false;
    QFile file(strFile);
    if (!file.open(QIODevice::ReadOnly)) {
        Refuse(problem, CSimulatorText::tr("The file cannot be read: %1").arg(file.errorString()),
               AdviceDisk());
        return false;
    }
    if (file.size() > c_nLargestFile) {
        Refuse(problem, CSimulatorText::tr("The file is too large for a project."), AdviceBroken());
        return false;
    }
    baContent = file.readAll();
    return true;
}

bool CheckHeader(const QJsonObject& object, SFileProblem& problem)
{
    if (object.value(c_strFormatKey).toString() != c_strFormat) {
        Refuse(problem,
               CSimulatorText::tr("The file is no project: its \"format\" is not \"%1\".").arg(c_strFormat),
               AdviceBroken());
        return false;
    }
    const int nVersion = object.value(c_strVersionKey).toInt();
    if (nVersion > ProjectFile::c_nVersion) {
        Refuse(problem,
               CSimulatorText::tr("The project has version %1; this program reads up to version %2.")
                   .arg(nVersion)
                   .arg(ProjectFile::c_nVersion),
               CSimulatorText::tr("Open it with the newer program that wrote it."));
        return false;
    }
    if (nVersion < 1) {
        Refuse(problem, CSimulatorText::tr("The file has no valid \"version\"."), AdviceBroken());
        return false;
    }
    return true;
}

bool CheckHeaderKeys(const QJsonObject& object, SFileProblem& problem)
{
    const QStringList listKnown = {c_strFormatKey, c_strVersionKey, c_strProjectKey};
    for (const QString& strKey : object.keys()) {
        if (!listKnown.contains(strKey)) {
            Refuse(problem, CSimulatorText::tr("The key \"%1\" is not known here.").arg(strKey),
                   AdviceBroken());
            return false;
        }
    }
    if (!object.value(c_strProjectKey).isObject()) {
        Refuse(problem, CSimulatorText::tr("The file holds no \"project\"."), AdviceBroken());
        return false;
    }
    return true;
}

/// Names `project.json` as `project.broken-20261121-143005.json`; a running number follows when that
/// name is taken.
QString NameForKept(const QString& strFile)
{
    const QFileInfo info(strFile);
    const QString strStem =
        QStringLiteral("%1/%2.broken-%3")
            .arg(info.path(), info.completeBaseName(),
                 QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss")));
    const QString strSuffix = info.suffix().isEmpty() ? QString() : QLatin1Char('.') + info.suffix();
    QString strName = strStem + strSuffix;
    for (int nNumber = 2; QFileInfo::exists(strName); ++nNumber)
        strName = QStringLiteral("%1-%2%3").arg(strStem).arg(nNumber).arg(strSuffix);
    return strName;
}

/// Copies a file that cannot be read as a project out of the way.
bool KeepBroken(const QString& strFile, QString& strKept, SFileProblem& problem)
{
    SFileProblem problemOld;
    if (!QFileInfo::exists(strFile) || ProjectFile::Read(strFile, problemOld))
        return true;
    const QString strName = NameForKept(strFile);
    if (QFile::copy(strFile, strName)) {
        strKept = strName;
        return true;
    }
    Refuse(problem,
           CSimulatorText::tr("The broken file in this place cannot be kept as %1, so it is not overwritten.")
               .arg(QDir::toNativeSeparators(strName)),
           AdviceDisk());
    return false;
}

/// Prefix of the temporary files that a save uses beside the file. It contains the file's name, so that
/// leftovers of a killed save cannot be mistaken for the operator's files.
QString UnfinishedPrefix(const QFileInfo& info)
{
    return QStringLiteral(".%1.saving-").arg(info.fileName());
}

bool IsRunning(qint64 nProcess)
{
    return kill(pid_t(nProcess), 0) == 0 || errno == EPERM;
}

/// Removes leftovers of killed saves of this file, but not the files of a save running in another process.
void RemoveUnfinished(const QFileInfo& info)
{
    const QString strPrefix = UnfinishedPrefix(info);
    const QStringList listNames = info.dir().entryList(QDir::Files | QDir::Hidden);
    for (const QString& strName : listNames) {
        if (!strName.startsWith(strPrefix))
            continue;
        const QString strProcess = strName.mid(strPrefix.size()).section(QLatin1Char('.'), 0, 0);
        const qint64 nProcess = strProcess.toLongLong();
        if (nProcess > 0 && (nProcess == QCoreApplication::applicationPid() || !IsRunning(nProcess)))
            info.dir().remove(strName);
    }
}

/// A link stays a link: its target is replaced.
QFileInfo Target(const QString& strFile)
{
    const QFileInfo info(strFile);
    return info.exists() ? QFileInfo(info.canonicalFilePath()) : info;
}

/// Replaces one file by another in a single step.
bool MoveOver(const QString& strFrom, const QFileInfo& infoTo)
{
    if (infoTo.exists())
        QFile::setPermissions(strFrom, infoTo.permissions());
    return std::rename(QFile::encodeName(strFrom).constData(),
                       QFile::encodeName(infoTo.absoluteFilePath()).constData()) == 0;
}

/// Why the last step failed, or nothing.
QString WriteWhole(const QFileInfo& info, const QByteArray& baContent)
{
    if (info.exists() && !info.isWritable())
        return qt_error_string(EACCES);
    const QString strUnfinished =
        info.dir().filePath(UnfinishedPrefix(info) + QString::number(QCoreApplication::applicationPid()));
    QSaveFile file(strUnfinished);
    // The commit alone does not notice that the buffer could not be flushed to a full disk.
    if (!file.open(QIODevice::WriteOnly) || file.write(baContent) != baContent.size() || !file.flush() ||
        !file.commit())
        return file.errorString();
    if (MoveOver(strUnfinished, info))
        return {};
    QString strError = qt_error_string(errno);
    QFile::remove(strUnfinished);
    return strError;
}

bool Commit(const QString& strFile, const QByteArray& baContent, SFileProblem& problem)
{
    const QFileInfo info = Target(strFile);
    RemoveUnfinished(info);
    const QString strError = WriteWhole(info, baContent);
    if (strError.isEmpty())
        return true;
    Refuse(problem, CSimulatorText::tr("The file cannot be written: %1").arg(strError), AdviceDisk());
    return false;
}

} // namespace

std::optional<SSimulatedProject> ProjectFile::Read(const QString& strFile, SFileProblem& problem)
{
    problem = {};
    problem.strFile = strFile;
    QByteArray baContent;
    if (!ReadBytes(strFile, baContent, problem))
        return std::nullopt;
    QJsonParseError error;
    const QJsonObject object = QJsonDocument::fromJson(baContent, &error).object();
    if (error.error != QJsonParseError::NoError) {
        Refuse(problem,
               CSimulatorText::tr("The file is not JSON (%1, at byte %2).")
                   .arg(error.errorString())
                   .arg(error.offset),
               AdviceBroken());
        return std::nullopt;
    }
    if (!CheckHeader(object, problem) || !CheckHeaderKeys(object, problem))
        return std::nullopt;
    SSimulatedProject project = ProjectFromJson(object.value(c_strProjectKey).toObject(), problem);
    if (!problem.IsSet())
        return project;
    problem.strAdvice = AdviceBroken();
    return std::nullopt;
}

bool ProjectFile::Write(const QString& strFile, const QJsonObject& project, QString& strKept,
                        SFileProblem& problem)
{
    problem = {};
    problem.strFile = strFile;
    strKept.clear();
    ProjectFromJson(project, problem);
    if (problem.IsSet()) {
        problem.strAdvice = CSimulatorText::tr("Nothing was written. Correct the value and save again.");
        return false;
    }
    const QJsonObject object = {
        {c_strFormatKey, c_strFormat}, {c_strVersionKey, c_nVersion}, {c_strProjectKey, project}};
    return RequireRegularFile(strFile, problem) && KeepBroken(strFile, strKept, problem) &&
           Commit(strFile, QJsonDocument(object).toJson(), problem);
}
