#ifndef SIMULATOR_COMMONCLASS_SIMULATEDHARDWARE_H
#define SIMULATOR_COMMONCLASS_SIMULATEDHARDWARE_H

#include "host/HostExport.h"

#include <QByteArray>
#include <QObject>

#include <functional>

class CProjectDocument;

/// What the simulated senders do as devices: they take time to write, and keep an EDID memory per input.
class COMMONCLASS_EXPORT CSimulatedHardware : public QObject
{
    Q_OBJECT

public:
    explicit CSimulatedHardware(CProjectDocument& document, QObject* pParent = nullptr);
    ~CSimulatedHardware() override;

    /// Stores what a computer reads from an input.
    /// @param baEdid 128 bytes, or nothing to empty the memory
    /// @return false when sender or input does not exist or the block has another length
    bool SetEdidMemory(int nSender, int nInterfaceId, const QByteArray& baEdid);
    /// How a slow sender's delay is spent; tests put something faster in its place.
    void SetSleep(std::function<void(int nMilliseconds)> funcSleep);
    /// Spends the write delay of a sender.
    void SpendWriteDelay(int nSender);

Q_SIGNALS:
    /// A setting was written to an input and took: its EDID memory is due for a new block.
    void OnEdidWritten(int nSender, int nInterfaceId);

private:
    CProjectDocument& m_document;
    std::function<void(int)> m_funcSleep;
};

#endif // SIMULATOR_COMMONCLASS_SIMULATEDHARDWARE_H
