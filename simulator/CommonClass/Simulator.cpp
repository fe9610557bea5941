#include "simulator/CommonClass/Simulator.h"

#include "host/KelvaroLabel.h"
#include "simulator/CommonClass/AddressText.h"
#include "simulator/CommonClass/JournalCall.h"
#include "simulator/CommonClass/ProjectFile.h"
#include "simulator/CommonClass/SimulatorText.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThread>

#include <utility>

namespace {

/// The sender types that a demo project can be made of, in the order of the demo dialog's menu.
constexpr int c_arrDemoTypes[] = {21, 46, 16, 17, 35, 131074};

/// Output ports of the record that stands for the senders of an empty project.
constexpr int c_nDefaultPorts = 4;

class CSimulatedLabel : public IKelvaroLabel
{
public:
    explicit CSimulatedLabel(CSimulator& simulator)
        : m_simulator(simulator)
    {}

    void PostLabelEvent(int nCode, int nA, int nB, int nC) override
    {
        m_simulator.NoticeChanges();
        Q_EMIT m_simulator.OnLabelEvent(nCode, nA, nB, nC);
    }

private:
    CSimulator& m_simulator;
};

class CJournalledLabel : public CJournalledFront<IKelvaroLabel>
{
public:
    using CJournalledFront::CJournalledFront;

    void PostLabelEvent(int nCode, int nA, int nB, int nC) override
    {
        Call(enJournalEvent, "PostLabelEvent", &IKelvaroLabel::PostLabelEvent, JournalText::SHexCode{nCode},
             nA, nB, nC);
    }
};

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

/// Makes the pictures of one folder those of another. Pictures there belong to the project that was
/// overwritten, and would come up under the new project's senders.
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

SFileProblem PictureProblem(const QString& strFolder)
{
    SFileProblem problem;
    problem.strFile = strFolder;
    problem.strWhat =
        CSimulatorText::tr("The project is saved, but not all background pictures could be copied.");
    problem.strAdvice =
        CSimulatorText::tr("Check that you may write to the folder, then choose the pictures anew.");
    return problem;
}

int AddSenderTo(SSimulatedProject& project, int nType, const QString& strName)
{
    std::optional<SSimulatedSender> sender = CCatalogue::Instance().NewSender(nType);
    if (!sender || project.nNextSenderId > c_nLastSenderId)
        return -1;
    sender->nId = project.nNextSenderId++;
    sender->strName = strName.isEmpty() ? sender->capability.strModel : strName;
    project.listSenders.push_back(std::move(*sender));
    return int(project.listSenders.size()) - 1;
}

template <class TTypes>
SSimulatedProject ProjectOf(const TTypes& types)
{
    SSimulatedProject project;
    for (const int nType : types)
        AddSenderTo(project, nType, QString());
    return project;
}

QString TemporaryPictures()
{
    const QString strData = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    QDir().mkpath(strData);
    return QDir(strData).filePath(QStringLiteral("unsaved-XXXXXX"));
}

} // namespace

CSimulator& CSimulator::Instance()
{
    static CSimulator s_simulator;
    return s_simulator;
}

CSimulator::CSimulator()
    : m_pLabel(std::make_unique<CSimulatedLabel>(*this))
    , m_pLabelJournalled(std::make_unique<CJournalledLabel>(*m_pLabel, m_journal, "IKelvaroLabel"))
    , m_funcFacts(MachineNetworkFacts)
    , m_facts(MachineNetworkFacts())
    , m_funcSleep([](int nMilliseconds) { QThread::msleep(static_cast<unsigned long>(nMilliseconds)); })
{
    m_senderNone.nOutputPortCount = c_nDefaultPorts;
    qRegisterMetaType<SProjectChange>();
    m_jsonSaved = ProjectToJson(m_project);
    m_fingerprintSaved = m_fingerprintNoticed = FingerprintOf(m_project);
}

CSimulator::~CSimulator() = default;

IKelvaroLabel* CSimulator::Label()
{
    return m_pLabelJournalled.get();
}

void CSimulator::Change(const std::function<void(SSimulatedProject&)>& funcChange)
{
    funcChange(m_project);
    NoticeChanges();
}

void CSimulator::NoticeChanges()
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

void CSimulator::UpdateModified(const SProjectFingerprint& present)
{
    const bool bModified = !Difference(m_fingerprintSaved, present).IsEmpty();
    if (bModified == m_bModified)
        return;
    m_bModified = bModified;
    Q_EMIT OnModifiedChanged(bModified);
}

bool CSimulator::IsModified()
{
    if (m_bChangesExpected)
        NoticeChanges();
    return m_bModified;
}

SSimulatedProject& CSimulator::Edit()
{
    ExpectChanges();
    return m_project;
}

void CSimulator::ExpectChanges()
{
    if (m_bChangesExpected)
        return;
    m_bChangesExpected = true;
    QMetaObject::invokeMethod(this, &CSimulator::NoticeChanges, Qt::QueuedConnection);
}

void CSimulator::NewProject()
{
    Replace(ProjectOf(c_arrDemoTypes), QString());
}

void CSimulator::NewCatalogueProject()
{
    Replace(ProjectOf(CCatalogue::Instance().Types()), QString());
}

void CSimulator::NewEmptyProject()
{
    Replace({}, QString());
}

bool CSimulator::NewDemoProject(int nType)
{
    if (!CCatalogue::Instance().Contains(nType))
        return false;
    SSimulatedProject project = ProjectOf(QList<int>{nType});
    project.nDemoSenderType = nType;
    project.addressing = m_project.addressing;
    Replace(std::move(project), QString());
    return true;
}

void CSimulator::Replace(SSimulatedProject project, const QString& strFile)
{
    m_project = std::move(project);
    m_pTemporaryPictures.reset();
    SetFilePath(strFile);
    m_fingerprintNoticed = FingerprintOf(m_project);
    const SProjectChange change = Difference({}, m_fingerprintNoticed);
    MarkSaved(ProjectToJson(m_project), m_fingerprintNoticed);
    Q_EMIT OnProjectReplaced();
    Q_EMIT OnProjectChanged(change);
}

void CSimulator::MarkSaved(const QJsonObject& saved, const SProjectFingerprint& fingerprint)
{
    m_jsonSaved = saved;
    m_fingerprintSaved = fingerprint;
    UpdateModified(FingerprintOf(m_project));
}

void CSimulator::SetFilePath(const QString& strFile)
{
    if (strFile == m_strFile)
        return;
    m_strFile = strFile;
    Q_EMIT OnFilePathChanged(strFile);
}

int CSimulator::AddSender(int nType, const QString& strName)
{
    const int nSender = AddSenderTo(m_project, nType, strName);
    NoticeChanges();
    return nSender;
}

int CSimulator::AddSenders(int nType, int nCount, int nOutputPorts)
{
    int nAdded = 0;
    for (; nAdded < nCount; ++nAdded) {
        const int nSender = AddSenderTo(m_project, nType, QString());
        if (nSender < 0)
            break;
        m_project.FindSender(nSender)->record.nOutputPortCount = nOutputPorts;
    }
    NoticeChanges();
    return nAdded;
}

void CSimulator::RemoveSender(int nSender)
{
    if (m_project.FindSender(nSender) == nullptr)
        return;
    m_project.listSenders.erase(m_project.listSenders.begin() + nSender);
    const int nLast = int(m_project.listSenders.size()) - 1;
    if (nSender < m_project.nCurSender || m_project.nCurSender > nLast)
        m_project.nCurSender = std::max(0, m_project.nCurSender - 1);
    NoticeChanges();
}

void CSimulator::SetCurrentSender(int nSender)
{
    if (m_project.FindSender(nSender) == nullptr)
        return;
    m_project.nCurSender = nSender;
    NoticeChanges();
}

bool CSimulator::SetEdidMemory(int nSender, int nInterfaceId, const QByteArray& baEdid)
{
    SSimulatedSender* pSender = m_project.FindSender(nSender);
    SSimulatedInput* pInput = pSender == nullptr ? nullptr : pSender->FindInput(nInterfaceId);
    if (pInput == nullptr || (!baEdid.isEmpty() && baEdid.size() != c_nEdidBlockSize))
        return false;
    pInput->baEdid = baEdid;
    NoticeChanges();
    return true;
}

bool CSimulator::Open(const QString& strFile, SFileProblem& problem)
{
    std::optional<SSimulatedProject> project = ProjectFile::Read(strFile, problem);
    if (!project)
        return false;
    Replace(std::move(*project), QFileInfo(strFile).absoluteFilePath());
    return true;
}

bool CSimulator::Save(SFileProblem& problem)
{
    if (m_strFile.isEmpty()) {
        problem = {};
        problem.strWhat = CSimulatorText::tr("The project has no file yet.");
        problem.strAdvice = CSimulatorText::tr("Choose a file to save it to.");
        return false;
    }
    return SaveAs(m_strFile, problem);
}

bool CSimulator::SaveAs(const QString& strFile, SFileProblem& problem)
{
    const QString strPath = QFileInfo(strFile).absoluteFilePath();
    const QJsonObject project = ProjectToJson(m_project);
    if (!WriteTo(strPath, project, problem))
        return false;
    const bool bPictures = TakePicturesAlong(PresentPictureFolder(), FolderBeside(strPath));
    SetFilePath(strPath);
    MarkSaved(project, FingerprintOf(m_project));
    if (!bPictures)
        Report(PictureProblem(FolderBeside(strPath)));
    return true;
}

bool CSimulator::SaveAddresses(SFileProblem& problem)
{
    if (m_strFile.isEmpty())
        return true;
    QJsonObject project = m_jsonSaved;
    project.insert(QStringLiteral("addresses"), AddressListsToJson(m_project.addresses));
    if (!WriteTo(m_strFile, project, problem))
        return false;
    SProjectFingerprint saved = m_fingerprintSaved;
    saved.baAddresses = FingerprintOf(m_project).baAddresses;
    MarkSaved(project, saved);
    return true;
}

bool CSimulator::WriteTo(const QString& strFile, const QJsonObject& project, SFileProblem& problem)
{
    return ProjectFile::Write(strFile, project, m_strKept, problem);
}

QString CSimulator::PictureFolder()
{
    if (m_strFile.isEmpty() && m_pTemporaryPictures == nullptr)
        m_pTemporaryPictures = std::make_unique<QTemporaryDir>(TemporaryPictures());
    return PresentPictureFolder();
}

QString CSimulator::PresentPictureFolder() const
{
    if (!m_strFile.isEmpty())
        return FolderBeside(m_strFile);
    return m_pTemporaryPictures == nullptr ? QString() : m_pTemporaryPictures->path();
}

QString CSimulator::PictureName(int nSender) const
{
    // No extension: the picture keeps the format of the file that it was copied from.
    const SSimulatedSender* pSender = m_project.FindSender(nSender);
    return QStringLiteral("sender-%1").arg(pSender == nullptr ? 0 : pSender->nId);
}

void CSimulator::SetNetworkFacts(FuncNetworkFacts funcFacts)
{
    m_funcFacts = std::move(funcFacts);
    RefreshNetworkFacts();
}

void CSimulator::RefreshNetworkFacts()
{
    m_facts = m_funcFacts();
}

enAddressVerdict CSimulator::JudgeAddress(unsigned int nAddress)
{
    return AddressVerdict(nAddress, UsedAddresses(), m_facts);
}

const QSet<unsigned int>& CSimulator::UsedAddresses()
{
    const SAddressLists& lists = m_project.addresses;
    // Lists that share their data are equal at once, so this costs nothing while they stay as they are.
    if (lists.listStored == m_listUsedStored && lists.listCurSet == m_listUsedCurSet)
        return m_setUsed;
    m_listUsedStored = lists.listStored;
    m_listUsedCurSet = lists.listCurSet;
    m_setUsed.clear();
    // An address is taken by the list that is in force and by the one that is to follow it.
    for (const QStringList* pList : {&m_listUsedStored, &m_listUsedCurSet}) {
        for (const QString& strEntry : *pList)
            m_setUsed.insert(AddressValue(EntryAddress(strEntry)).value_or(0));
    }
    return m_setUsed;
}

void CSimulator::RemoveAddress(int nIndex)
{
    SAddressLists& lists = m_project.addresses;
    if (nIndex < 0 || nIndex >= lists.listStored.size())
        return;
    for (QStringList* pList : {&lists.listStored, &lists.listOriginal, &lists.listCurSet})
        pList->removeAt(nIndex);
    NoticeChanges();
}

void CSimulator::ApplyCurrentSet()
{
    m_project.addresses.listStored = m_project.addresses.listCurSet;
    NoticeChanges();
}

void CSimulator::RevertCurrentSet()
{
    m_project.addresses.listCurSet = m_project.addresses.listStored;
    NoticeChanges();
}

void CSimulator::SetSleep(std::function<void(int)> funcSleep)
{
    m_funcSleep = std::move(funcSleep);
}

void CSimulator::SpendWriteDelay(int nSender)
{
    const SSimulatedSender* pSender = m_project.FindSender(nSender);
    if (pSender != nullptr && pSender->faults.nWriteDelay > 0)
        m_funcSleep(pSender->faults.nWriteDelay);
}

void CSimulator::Report(const SFileProblem& problem)
{
    Q_EMIT OnProblem(problem);
}
