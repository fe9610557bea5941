#ifndef SIMULATOR_COMMONCLASS_PROJECTDOCUMENT_H
#define SIMULATOR_COMMONCLASS_PROJECTDOCUMENT_H

#include "host/HostExport.h"
#include "simulator/CommonClass/FileProblem.h"
#include "simulator/CommonClass/ProjectFingerprint.h"
#include "simulator/CommonClass/SimulatedProject.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>

class CSavedProject;

/// The project of the simulated host: its values, their changes, and the file that stores them.
class COMMONCLASS_EXPORT CProjectDocument : public QObject
{
    Q_OBJECT

public:
    /// A project without senders and without a file.
    explicit CProjectDocument(QObject* pParent = nullptr);
    ~CProjectDocument() override;

    /// @name Values
    /// @{

    /// The values as they are now, to read. The reference stays valid; its senders go when the
    /// project is replaced.
    const SSimulatedProject& Project() const { return m_project; }
    /// Changes the project by a function and announces it. Use it to set settings, limits, faults and
    /// everything else in the project:
    ///
    ///     document.Change([](SSimulatedProject& project) {
    ///         project.listSenders[0].faults.nEdidWriteResult = 5;
    ///     });
    void Change(const std::function<void(SSimulatedProject& project)>& funcChange);
    /// The project, to be changed now or in place later: changes are detected when control returns to the
    /// event loop, so many small writes are compared only once.
    SSimulatedProject& Edit();
    /// The dialogs write sender records in place. Finds such changes and announces them; runs automatically
    /// when control returns to the event loop after a record was handed out.
    void NoticeChanges();
    /// True when the project differs from its file, or has changed since it was started. The choice of the
    /// current sender does not count.
    bool IsModified();
    /// @}

    /// @name Starting a project
    /// @{

    /// Starts a project with the six sender types of a demo project.
    void NewProject();
    /// Starts a project with one sender of each type of the catalogue.
    void NewCatalogueProject();
    /// Starts a project without senders.
    void NewEmptyProject();
    /// Starts a project with one sender of a type, in demo mode. The addressing stays
    /// as it is.
    /// @return false for a type that is not in the catalogue; nothing changes then
    bool NewDemoProject(int nType);
    /// @}

    /// @name Senders
    /// @{

    /// Adds a factory-new sender as the last one.
    /// @return its index; -1 for a type that is not in the catalogue, and when the ids are used up
    int AddSender(int nType, const QString& strName = QString());
    /// Adds factory-new senders, announced as one change.
    /// @param nOutputPorts their output ports; empty: as many as the type has
    /// @return the number added: 0 for a type that is not in the catalogue, fewer than requested when the ids
    /// are used up
    int AddSenders(int nType, int nCount, std::optional<int> nOutputPorts = {});
    /// Removes a sender; the current sender stays current where possible.
    void RemoveSender(int nSender);
    /// Removes several, announced as one change. Indices without a sender are ignored.
    void RemoveSenders(const QList<int>& listSenders);
    /// Makes a sender the one that the dialogs edit. An index without a sender is ignored.
    void SetCurrentSender(int nSender);
    /// The record that stands for the senders of a project without any.
    CSender* NoSender() { return &m_senderNone; }
    /// @}

    /// @name The file
    /// @{

    /// Path of the project file; empty until the project is first saved.
    QString FilePath() const;
    /// Opens a project. On a problem the present project stays.
    bool Open(const QString& strFile, SFileProblem& problem);
    /// Saves to the project's file; a project without one needs `SaveAs`.
    bool Save(SFileProblem& problem);
    /// Saves to a file, which becomes the project's, and takes the background pictures along. Pictures that
    /// could not be copied are reported by `OnProblem`.
    bool SaveAs(const QString& strFile, SFileProblem& problem);
    /// Makes the address lists permanent, but no other change. A project without a file
    /// keeps them until it is saved.
    bool SaveAddresses(SFileProblem& problem);
    /// The unreadable file that the last save kept beside the new one; empty when there was none.
    QString KeptFile() const;
    /// Folder of the background pictures.
    QString PictureFolder();
    /// File name of a sender's background picture, without the folder.
    QString PictureName(int nSender) const;
    /// Reports a problem that no return value carries.
    void Report(const SFileProblem& problem);
    /// @}

Q_SIGNALS:
    /// The project changed; announced once for each change, however much it covers.
    void OnProjectChanged(const SProjectChange& change);
    /// Another project replaced this one; anything remembered about senders and inputs is invalid.
    void OnProjectReplaced();
    /// `IsModified` changed.
    void OnModifiedChanged(bool bModified);
    /// `FilePath` changed.
    void OnFilePathChanged(const QString& strFile);
    /// A problem that no return value carries, such as a failed `SpecifiedIPsSave`.
    void OnProblem(const SFileProblem& problem);

private:
    void Replace(SSimulatedProject project, const QString& strFile);
    void AnnounceFile(const QString& strFileBefore);
    void UpdateModified(const SProjectFingerprint& present);

    SSimulatedProject m_project;
    CSender m_senderNone;
    const std::unique_ptr<CSavedProject> m_pSaved;
    SProjectFingerprint m_fingerprintNoticed; ///< the project as it was last announced
    bool m_bModified = false;
    bool m_bChangesExpected = false;
};

#endif // SIMULATOR_COMMONCLASS_PROJECTDOCUMENT_H
