#ifndef SIMULATOR_COMMONCLASS_SIMULATEDHARDWARE_H
#define SIMULATOR_COMMONCLASS_SIMULATEDHARDWARE_H

#include "host/HostExport.h"

#include <QByteArray>
#include <QObject>

#include <functional>

class CProjectDocument;

/// The simulated senders as devices: writes take time, and each input has an EDID memory.
class COMMONCLASS_EXPORT CSimulatedHardware : public QObject
{
    Q_OBJECT

public:
    /// The devices of a document's senders.
    /// @param document outlives this object
    explicit CSimulatedHardware(CProjectDocument& document, QObject* pParent = nullptr);
    ~CSimulatedHardware() override;

    /// Stores what a computer reads from an input.
    /// @param baEdid 128 bytes, or nothing to empty the memory
    /// @return false when sender or input does not exist or the block has another length
    bool SetEdidMemory(int nSender, int nInterfaceId, const QByteArray& baEdid);
    /// How to wait for a slow sender; tests substitute something faster.
    void SetSleep(std::function<void(int nMilliseconds)> funcSleep);
    /// Waits for the write delay of a sender.
    void SpendWriteDelay(int nSender);

Q_SIGNALS:
    /// A setting was successfully written to an input: its EDID memory needs a new block.
    void OnEdidWritten(int nSender, int nInterfaceId);

private:
    CProjectDocument& m_document;
    std::function<void(int)> m_funcSleep;
};

#endif // SIMULATOR_COMMONCLASS_SIMULATEDHARDWARE_H
