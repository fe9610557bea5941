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

/// Copies the files of one folder to another; what is already there is replaced.
void CopyFiles(const QString& strFrom, const QString& strTo)
{
    const QFileInfoList listFiles = QDir(strFrom).entryInfoList(QDir::Files);
    if (listFiles.isEmpty() || strFrom == strTo)
        return;
    QDir().mkpath(strTo);
    for (const QFileInfo& info : listFiles) {
        const QString strTarget = QDir(strTo).filePath(info.fileName());
        QFile::remove(strTarget);
        QFile::copy(info.filePath(), strTarget);
    }
}

int AddSenderTo(SSimulatedProject& project, int nType, const QString& strName)
{
    std::optional<SSimulatedSender> sender = CCatalogue::Instance().NewSender(nType);
    if (!sender)
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
    MarkSaved(ProjectToJson(m_project));
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
    const QJsonObject present = ProjectToJson(m_project);
    if (present == m_noticed)
        return;
    m_noticed = present;
    const bool bModified = present != m_saved;
    if (bModified != m_bModified) {
        m_bModified = bModified;
        Q_EMIT OnModifiedChanged(bModified);
    }
    Q_EMIT OnProjectChanged();
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
    MarkSaved(ProjectToJson(m_project));
    Q_EMIT OnProjectReplaced();
    Q_EMIT OnProjectChanged();
}

void CSimulator::MarkSaved(const QJsonObject& saved)
{
    m_saved = saved;
    m_noticed = ProjectToJson(m_project);
    const bool bModified = m_noticed != m_saved;
    if (bModified == m_bModified)
        return;
    m_bModified = bModified;
    Q_EMIT OnModifiedChanged(bModified);
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
    if (pInput == nullptr || (!baEdid.isEmpty() && baEdid.size() != c_nEdidBlockLength))
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
    CopyFiles(PictureFolder(), FolderBeside(strPath));
    SetFilePath(strPath);
    MarkSaved(project);
    return true;
}

bool CSimulator::SaveAddresses(SFileProblem& problem)
{
    if (m_strFile.isEmpty())
        return true;
    QJsonObject project = m_saved;
    project.insert(QStringLiteral("addresses"), AddressListsToJson(m_project.addresses));
    if (!WriteTo(m_strFile, project, problem))
        return false;
    MarkSaved(project);
    return true;
}

bool CSimulator::WriteTo(const QString& strFile, const QJsonObject& project, SFileProblem& problem)
{
    return ProjectFile::Write(strFile, project, m_strKept, problem);
}

QString CSimulator::PictureFolder()
{
    if (!m_strFile.isEmpty())
        return FolderBeside(m_strFile);
    if (m_pTemporaryPictures == nullptr)
        m_pTemporaryPictures = std::make_unique<QTemporaryDir>(TemporaryPictures());
    return m_pTemporaryPictures->path();
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

enAddressVerdict CSimulator::JudgeAddress(unsigned int nAddress) const
{
    QList<unsigned int> listUsed;
    // An address is taken by the list that is in force and by the one that is to follow it.
    for (const QStringList* pList : {&m_project.addresses.listStored, &m_project.addresses.listCurSet}) {
        for (const QString& strEntry : *pList)
            listUsed.append(AddressValue(EntryAddress(strEntry)).value_or(0));
    }
    return AddressVerdict(nAddress, listUsed, m_facts);
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
