#ifndef SIMULATOR_COMMONCLASS_SIMULATOR_H
#define SIMULATOR_COMMONCLASS_SIMULATOR_H

#include "host/HostExport.h"
#include "simulator/CommonClass/AddressVerdict.h"
#include "simulator/CommonClass/Catalogue.h"
#include "simulator/CommonClass/FileProblem.h"
#include "simulator/CommonClass/HostJournal.h"
#include "simulator/CommonClass/NetworkFacts.h"
#include "simulator/CommonClass/ProjectFingerprint.h"
#include "simulator/CommonClass/SimulatedProject.h"

#include <QObject>
#include <QSet>

#include <functional>
#include <memory>

class IKelvaroLabel;
class QTemporaryDir;

/// The simulated host: its project, its file, its journal and its network. There is one in a process, and the
/// host objects behind `GetProjectData()`, `GetHwSenderLogic()` and the other getters all answer from it.
///
///     CSimulator& simulator = CSimulator::Instance();
///     SenderModuleDialogInit(simulator.Label());
///     simulator.NewProject();
///     simulator.SetCurrentSender(2);
///     CEdidSetDlg dialog(this, 16, false);
///     dialog.exec();
///
/// All of it lives on the GUI thread.
class COMMONCLASS_EXPORT CSimulator : public QObject
{
    Q_OBJECT

public:
    static CSimulator& Instance();

    /// @name The host's parts
    /// @{
    /// What `SenderModuleDialogInit` is to be given.
    IKelvaroLabel* Label();
    /// Every host call in order, as a table model.
    CHostJournal& Journal() { return m_journal; }
    /// @}

    /// @name The project
    /// @{
    const SSimulatedProject& Project() const { return m_project; }
    /// Changes the project by a function and announces it. This is how settings, limits, misbehaviour and
    /// whatever else the project holds are set:
    ///
    ///     simulator.Change([](SSimulatedProject& project) {
    ///         project.listSenders[0].faults.nEdidWriteResult = 5;
    ///     });
    void Change(const std::function<void(SSimulatedProject& project)>& funcChange);
    /// The dialogs write sender records in place. Finds such changes and announces them; runs by itself when
    /// control is back in the event loop after a record was handed out.
    void NoticeChanges();

    /// Starts a project with the six senders that a demo project can be made of.
    void NewProject();
    /// Starts a project with one sender of each type of the catalogue.
    void NewCatalogueProject();
    /// Starts a project without senders.
    void NewEmptyProject();
    /// Starts a project with one sender of a type, in demo mode.
    /// @return false for a type that the catalogue does not know; nothing is changed then
    bool NewDemoProject(int nType);

    /// Adds a factory-new sender as the last one.
    /// @return its index; -1 for a type that the catalogue does not know, and when the ids are used up
    int AddSender(int nType, const QString& strName = QString());
    /// Adds factory-new senders with that number of output ports, announced as one change.
    /// @return how many were added: none of a type that the catalogue does not know, fewer when the ids are
    /// used up
    int AddSenders(int nType, int nCount, int nOutputPorts);
    /// Removes a sender; the current one stays current where it can.
    void RemoveSender(int nSender);
    /// Makes a sender the one that the dialogs edit. An index without a sender is ignored.
    void SetCurrentSender(int nSender);
    /// Stores what a computer reads from an input.
    /// @param baEdid 128 bytes, or nothing to empty the memory
    /// @return false when sender or input does not exist or the block has another length
    bool SetEdidMemory(int nSender, int nInterfaceId, const QByteArray& baEdid);
    /// @}

    /// @name The project file
    /// @{
    /// Path of the project file; empty while the project was never saved.
    QString FilePath() const { return m_strFile; }
    /// True when the project differs from its file, or was changed since it was started.
    bool IsModified();
    /// Opens a project. On a problem the present project stays.
    bool Open(const QString& strFile, SFileProblem& problem);
    /// Saves to the project's file; a project without one needs `SaveAs`.
    bool Save(SFileProblem& problem);
    /// Saves to a file, which becomes the project's, and takes the background pictures along. Pictures that
    /// could not be copied are reported by `OnProblem`.
    bool SaveAs(const QString& strFile, SFileProblem& problem);
    /// The broken file that the last save has kept beside the new one; empty when there was none.
    QString KeptFile() const { return m_strKept; }
    /// Makes the address lists permanent, and nothing else of what was changed. A project without a file
    /// keeps them until it is saved.
    bool SaveAddresses(SFileProblem& problem);
    /// Folder of the background pictures: beside the project file, or a temporary one before the first save.
    QString PictureFolder();
    /// File name of a sender's background picture, without the folder.
    QString PictureName(int nSender) const;
    /// @}

    /// @name Addresses
    /// @{
    /// Where the network facts come from. The default asks the machine. Refreshes the facts.
    void SetNetworkFacts(FuncNetworkFacts funcFacts);
    /// Asks for the network facts again.
    void RefreshNetworkFacts();
    const SNetworkFacts& NetworkFacts() const { return m_facts; }
    /// Judges an address as the dialogs have it judged.
    enAddressVerdict JudgeAddress(unsigned int nAddress);
    /// Removes an entry from all three address lists.
    void RemoveAddress(int nIndex);
    /// Takes the list that is being set into force, or throws its changes away.
    void ApplyCurrentSet();
    void RevertCurrentSet();
    /// @}

    /// How a slow sender's delay is spent; tests put something faster in its place.
    void SetSleep(std::function<void(int nMilliseconds)> funcSleep);
    /// Spends the write delay of a sender. For the simulated host objects.
    void SpendWriteDelay(int nSender);

    /// @name For the simulated host objects
    /// @{
    /// The project, to be changed now or in place later: changes are looked for when control is back in the
    /// event loop, so that a run of many small writes is compared once.
    SSimulatedProject& Edit();
    /// The record that stands for the senders of a project without any.
    CSender* NoSender() { return &m_senderNone; }
    /// Reports a problem that no return value carries.
    void Report(const SFileProblem& problem);
    /// @}

Q_SIGNALS:
    /// Anything in the project changed; announced once for each change, whatever it holds.
    void OnProjectChanged(const SProjectChange& change);
    /// Another project took its place; what was known of senders and inputs is void.
    void OnProjectReplaced();
    /// `IsModified` changed.
    void OnModifiedChanged(bool bModified);
    /// `FilePath` changed.
    void OnFilePathChanged(const QString& strFile);
    /// A setting was written to an input and took: its EDID memory is due for a new block.
    void OnEdidWritten(int nSender, int nInterfaceId);
    /// The library announced a change through the label interface.
    void OnLabelEvent(int nCode, int nA, int nB, int nC);
    /// A problem that no return value carries, such as a failed `SpecifiedIPsSave`.
    void OnProblem(const SFileProblem& problem);

private:
    CSimulator();
    ~CSimulator() override;

    void ExpectChanges();
    const QSet<unsigned int>& UsedAddresses();
    void Replace(SSimulatedProject project, const QString& strFile);
    bool WriteTo(const QString& strFile, const QJsonObject& project, SFileProblem& problem);
    void MarkSaved(const QJsonObject& saved, const SProjectFingerprint& fingerprint);
    void UpdateModified(const SProjectFingerprint& present);
    void SetFilePath(const QString& strFile);
    /// The picture folder, or nothing when the project has neither file nor temporary folder.
    QString PresentPictureFolder() const;

    CHostJournal m_journal;
    std::unique_ptr<IKelvaroLabel> m_pLabel;
    std::unique_ptr<IKelvaroLabel> m_pLabelJournalled;

    SSimulatedProject m_project;
    QJsonObject m_jsonSaved; ///< the project as it is in its file, or as it was started
    SProjectFingerprint m_fingerprintSaved;
    SProjectFingerprint m_fingerprintNoticed; ///< the project as it was last announced
    bool m_bModified = false;
    bool m_bChangesExpected = false;
    QString m_strFile;
    QString m_strKept;
    std::unique_ptr<QTemporaryDir> m_pTemporaryPictures;
    CSender m_senderNone;

    QStringList m_listUsedStored; ///< the lists from which `m_setUsed` was made
    QStringList m_listUsedCurSet;
    QSet<unsigned int> m_setUsed;

    FuncNetworkFacts m_funcFacts;
    SNetworkFacts m_facts;
    std::function<void(int)> m_funcSleep;
};

#endif // SIMULATOR_COMMONCLASS_SIMULATOR_H
