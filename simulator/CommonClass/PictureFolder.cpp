#include "simulator/CommonClass/PictureFolder.h"

#include "simulator/CommonClass/SimulatorText.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace {

QString FolderBeside(const QString& strFile)
{
    const QFileInfo info(strFile);
    return QStringLiteral("%1/%2.pictures").arg(info.absolutePath(), info.completeBaseName());
}

/// The pictures of a folder; none for an empty name.
QFileInfoList PicturesIn(const QString& strFolder)
{
    return strFolder.isEmpty() ? QFileInfoList()
                               : QDir(strFolder).entryInfoList({QStringLiteral("sender-*")}, QDir::Files);
}

/// Replaces the pictures of one folder by those of another.
bool TakePicturesAlong(const QString& strFrom, const QString& strTo)
{
    if (strFrom == strTo)
        return true;
    bool bGood = true;
    for (const QFileInfo& info : PicturesIn(strTo))
        bGood = QFile::remove(info.filePath()) && bGood;
    const QFileInfoList listPictures = PicturesIn(strFrom);
    if (listPictures.isEmpty())
        return bGood;
    bGood = QDir().mkpath(strTo) && bGood;
    for (const QFileInfo& info : listPictures)
        bGood = QFile::copy(info.filePath(), QDir(strTo).filePath(info.fileName())) && bGood;
    return bGood;
}

SFileProblem CopyProblem(const QString& strFolder)
{
    SFileProblem problem;
    problem.strFile = strFolder;
    problem.strWhat =
        CSimulatorText::tr("The project is saved, but not all background pictures could be copied.");
    problem.strAdvice =
        CSimulatorText::tr("Check that you may write to the folder, then choose the pictures anew.");
    return problem;
}

QString TemporaryTemplate()
{
    const QString strData = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    QDir().mkpath(strData);
    return QDir(strData).filePath(QStringLiteral("unsaved-XXXXXX"));
}

} // namespace

CPictureFolder::CPictureFolder() = default;

CPictureFolder::~CPictureFolder() = default;

void CPictureFolder::Replace(const QString& strFile)
{
    m_strFile = strFile;
    m_pTemporary.reset();
}

bool CPictureFolder::MoveTo(const QString& strFile, SFileProblem& problem)
{
    const bool bGood = TakePicturesAlong(PresentPath(), FolderBeside(strFile));
    m_strFile = strFile;
    if (!bGood)
        problem = CopyProblem(FolderBeside(strFile));
    return bGood;
}

QString CPictureFolder::Path()
{
    if (m_strFile.isEmpty() && m_pTemporary == nullptr)
        m_pTemporary = std::make_unique<QTemporaryDir>(TemporaryTemplate());
    return PresentPath();
}

QString CPictureFolder::PresentPath() const
{
    if (!m_strFile.isEmpty())
        return FolderBeside(m_strFile);
    return m_pTemporary == nullptr ? QString() : m_pTemporary->path();
}
