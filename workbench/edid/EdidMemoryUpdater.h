#ifndef WORKBENCH_EDID_EDIDMEMORYUPDATER_H
#define WORKBENCH_EDID_EDIDMEMORYUPDATER_H

#include "host/HardwareSupport/EdidSetting.h"

#include <QByteArray>
#include <QObject>

/// Keeps the EDID memories consistent with the settings: when a setting was successfully written to an input,
/// its block is built and stored as a sender would present it to a computer.
class CEdidMemoryUpdater : public QObject
{
    Q_OBJECT

public:
    explicit CEdidMemoryUpdater(QObject* pParent = nullptr);

    /// The block of a setting: 128 bytes, built by `CEDIDRaw::ChangeWH`.
    static QByteArray BlockOf(const SEdidSetting& setting);

Q_SIGNALS:
    /// A block was stored.
    void BlockStored(int nSender, int nInterfaceId, const QByteArray& blockBefore,
                     const QByteArray& blockAfter);

private:
    void Update(int nSender, int nInterfaceId);
};

#endif // WORKBENCH_EDID_EDIDMEMORYUPDATER_H
