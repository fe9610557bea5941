#ifndef SIMULATOR_COMMONCLASS_SIMULATOR_H
#define SIMULATOR_COMMONCLASS_SIMULATOR_H

#include "host/HostExport.h"
#include "simulator/CommonClass/Catalogue.h"
#include "simulator/CommonClass/HostJournal.h"
#include "simulator/CommonClass/ProjectDocument.h"
#include "simulator/CommonClass/SimulatedAddresses.h"
#include "simulator/CommonClass/SimulatedHardware.h"

#include <QObject>

#include <memory>

class IKelvaroLabel;

/// The simulated host. There is one in a process, and the host objects behind `GetProjectData()`,
/// `GetHwSenderLogic()` and the other getters all answer from it.
///
///     CSimulator& simulator = CSimulator::Instance();
///     SenderModuleDialogInit(simulator.Label());
///     simulator.Document().NewProject();
///     simulator.Document().SetCurrentSender(2);
///     CEdidSetDlg dialog(this, 16, false);
///     dialog.exec();
///
/// All of it lives on the GUI thread.
class COMMONCLASS_EXPORT CSimulator : public QObject
{
    Q_OBJECT

public:
    /// The one of the process, made at the first call; it ends with the process. Call it on the GUI thread.
    static CSimulator& Instance();

    /// The argument for `SenderModuleDialogInit`.
    IKelvaroLabel* Label();
    /// Every host call in order, as a table model.
    CHostJournal& Journal() { return m_journal; }
    /// The project and its file.
    CProjectDocument& Document() { return m_document; }
    /// The project's addresses and their verdicts.
    CSimulatedAddresses& Addresses() { return m_addresses; }
    /// The senders as devices.
    CSimulatedHardware& Hardware() { return m_hardware; }

    /// The document's project.
    const SSimulatedProject& Project() const { return m_document.Project(); }

Q_SIGNALS:
    /// The library announced a change through the label interface.
    void OnLabelEvent(int nCode, int nA, int nB, int nC);

private:
    CSimulator();
    ~CSimulator() override;

    CHostJournal m_journal;
    CProjectDocument m_document;
    CSimulatedAddresses m_addresses;
    CSimulatedHardware m_hardware;
    std::unique_ptr<IKelvaroLabel> m_pLabel;
    std::unique_ptr<IKelvaroLabel> m_pLabelJournalled;
};

#endif // SIMULATOR_COMMONCLASS_SIMULATOR_H
