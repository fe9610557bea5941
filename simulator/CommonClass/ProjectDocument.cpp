#include "simulator/CommonClass/ProjectDocument.h"

#include "simulator/CommonClass/Catalogue.h"
#include "simulator/CommonClass/ProjectFile.h"
#include "simulator/CommonClass/ProjectTemplates.h"
#include "simulator/CommonClass/SavedProject.h"
#include "simulator/CommonClass/SimulatorText.h"

#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace {

/// Output ports of the record that stands for the senders of an empty project.
constexpr int c_nDefaultPorts = 4;

} // namespace

CProjectDocument::CProjectDocument(QObject* pParent)
    : QObject(pParent)
    , m_pSaved(std::make_unique<CSavedProject>())
{
    qRegisterMetaType<SProjectChange>();
    m_senderNone.nOutputPortCount = c_nDefaultPorts;
    m_fingerprintNoticed = FingerprintOf(m_project);
    m_pSaved->Replace(m_project, m_fingerprintNoticed, QString());
}

CProjectDocument::~CProjectDocument() = default;

void CProjectDocument::Change(const std::function<void(SSimulatedProject&)>& funcChange)
{
    funcChange(m_project);
    NoticeChanges();
}

SSimulatedProject& CProjectDocument::Edit()
{
    if (!m_bChangesExpected) {
        m_bChangesExpected = true;
        QMetaObject::invokeMethod(this, &CProjectDocument::NoticeChanges, Qt::QueuedConnection);
    }
    return m_project;
}

void CProjectDocument::NoticeChanges()
{
    m_bChangesExpected = false;
    SProjectFingerprint present = FingerprintOf(m_project);
    UpdateModified(present);
    const SProjectChange change = Difference(m_fingerprintNoticed, present);
    if (change.IsEmpty())
        return;
    m_fingerprintNoticed = std::move(present);
    Q_EMIT OnProjectChanged(change);
}

void CProjectDocument::UpdateModified(const SProjectFingerprint& present)
{
    const bool bModified = m_pSaved->DiffersFrom(present);
    if (bModified == m_bModified)
        return;
    m_bModified = bModified;
    Q_EMIT OnModifiedChanged(bModified);
}

bool CProjectDocument::IsModified()
{
    if (m_bChangesExpected)
        NoticeChanges();
    return m_bModified;
}

void CProjectDocument::NewProject()
{
    Replace(ProjectTemplates::Demo(), QString());
}

void CProjectDocument::NewCatalogueProject()
{
    Replace(ProjectTemplates::Catalogue(), QString());
}

void CProjectDocument::NewEmptyProject()
{
    Replace({}, QString());
}

bool CProjectDocument::NewDemoProject(int nType)
{
    if (!CCatalogue::Instance().Contains(nType))
        return false;
    SSimulatedProject project = ProjectTemplates::OneSender(nType);
    project.nDemoSenderType = nType;
    project.addressing = m_project.addressing;
    Replace(std::move(project), QString());
    return true;
}

void CProjectDocument::Replace(SSimulatedProject project, const QString& strFile)
{
    const QString strFileBefore = FilePath();
    m_project = std::move(project);
    m_fingerprintNoticed = FingerprintOf(m_project);
    m_pSaved->Replace(m_project, m_fingerprintNoticed, strFile);
    AnnounceFile(strFileBefore);
    UpdateModified(m_fingerprintNoticed);
    const SProjectChange change = Difference({}, m_fingerprintNoticed);
    Q_EMIT OnProjectReplaced();
    Q_EMIT OnProjectChanged(change);
}

void CProjectDocument::AnnounceFile(const QString& strFileBefore)
{
    if (FilePath() != strFileBefore)
        Q_EMIT OnFilePathChanged(FilePath());
}

int CProjectDocument::AddSender(int nType, const QString& strName)
{
    const int nSender = ProjectTemplates::AddSender(m_project, nType, strName);
    NoticeChanges();
    return nSender;
}

int CProjectDocument::AddSenders(int nType, int nCount, std::optional<int> nOutputPorts)
{
    int nAdded = 0;
    for (; nAdded < nCount; ++nAdded) {
        const int nSender = ProjectTemplates::AddSender(m_project, nType, QString());
        if (nSender < 0)
            break;
        if (nOutputPorts)
            m_project.FindSender(nSender)->record.nOutputPortCount = *nOutputPorts;
    }
    NoticeChanges();
    return nAdded;
}

void CProjectDocument::RemoveSender(int nSender)
{
    RemoveSenders({nSender});
}

void CProjectDocument::RemoveSenders(const QList<int>& listSenders)
{
    const QSet<int> setSenders(listSenders.cbegin(), listSenders.cend());
    const int nCount = int(m_project.listSenders.size());
    std::deque<SSimulatedSender> listStaying;
    int nCurrent = m_project.nCurSender;
    for (int i = 0; i < nCount; ++i) {
        if (!setSenders.contains(i))
            listStaying.push_back(std::move(m_project.listSenders[std::size_t(i)]));
        else if (i < m_project.nCurSender)
            --nCurrent;
    }
    m_project.listSenders = std::move(listStaying);
    m_project.nCurSender = std::max(0, std::min(nCurrent, int(m_project.listSenders.size()) - 1));
    NoticeChanges();
}

void CProjectDocument::SetCurrentSender(int nSender)
{
    if (m_project.FindSender(nSender) == nullptr)
        return;
    m_project.nCurSender = nSender;
    NoticeChanges();
}

QString CProjectDocument::FilePath() const
{
    return m_pSaved->File();
}

QString CProjectDocument::KeptFile() const
{
    return m_pSaved->KeptFile();
}

bool CProjectDocument::Open(const QString& strFile, SFileProblem& problem)
{
    std::optional<SSimulatedProject> project = ProjectFile::Read(strFile, problem);
    if (!project)
        return false;
    Replace(std::move(*project), QFileInfo(strFile).absoluteFilePath());
    return true;
}

bool CProjectDocument::Save(SFileProblem& problem)
{
    if (FilePath().isEmpty()) {
        problem = {};
        problem.strWhat = CSimulatorText::tr("The project has no file yet.");
        problem.strAdvice = CSimulatorText::tr("Choose a file to save it to.");
        return false;
    }
    return SaveAs(FilePath(), problem);
}

bool CProjectDocument::SaveAs(const QString& strFile, SFileProblem& problem)
{
    const QString strPath = QFileInfo(strFile).absoluteFilePath();
    const QString strFileBefore = FilePath();
    if (!m_pSaved->Write(m_project, strPath, problem))
        return false;
    SFileProblem problemPictures;
    const bool bPictures = m_pSaved->Pictures().MoveTo(strPath, problemPictures);
    AnnounceFile(strFileBefore);
    UpdateModified(FingerprintOf(m_project));
    if (!bPictures)
        Report(problemPictures);
    return true;
}

bool CProjectDocument::SaveAddresses(SFileProblem& problem)
{
    if (FilePath().isEmpty())
        return true;
    if (!m_pSaved->WriteAddresses(m_project, problem))
        return false;
    UpdateModified(FingerprintOf(m_project));
    return true;
}

QString CProjectDocument::PictureFolder()
{
    return m_pSaved->Pictures().Path();
}

QString CProjectDocument::PictureName(int nSender) const
{
    // No extension: the picture keeps the format of its source file.
    const SSimulatedSender* pSender = m_project.FindSender(nSender);
    return QStringLiteral("sender-%1").arg(pSender == nullptr ? 0 : pSender->nId);
}

void CProjectDocument::Report(const SFileProblem& problem)
{
    Q_EMIT OnProblem(problem);
}
