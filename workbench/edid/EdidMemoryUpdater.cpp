#include "workbench/edid/EdidMemoryUpdater.h"

#include "SenderModuleDialog/edid/EDIDRaw.h"
#include "simulator/CommonClass/Simulator.h"
#include "workbench/ModeText.h"

CEdidMemoryUpdater::CEdidMemoryUpdater(QObject* pParent)
    : QObject(pParent)
{
    connect(&CSimulator::Instance().Hardware(), &CSimulatedHardware::OnEdidWritten, this,
            &CEdidMemoryUpdater::Update);
}

QByteArray CEdidMemoryUpdater::BlockOf(const SEdidSetting& setting)
{
    CEDIDRaw raw;
    raw.ChangeWH(setting.wWidth, setting.wHeight, ModeText::Rate(setting));
    // A host reads the block through the object's address.
    return {reinterpret_cast<const char*>(&raw), c_nEdidBlockSize};
}

void CEdidMemoryUpdater::Update(int nSender, int nInterfaceId)
{
    CSimulator& simulator = CSimulator::Instance();
    const SSimulatedSender* pSender = simulator.Project().FindSender(nSender);
    const SSimulatedInput* pInput = pSender == nullptr ? nullptr : pSender->FindInput(nInterfaceId);
    if (pInput == nullptr || !pInput->setting)
        return;
    const QByteArray blockBefore = pInput->baEdid;
    const QByteArray blockAfter = BlockOf(*pInput->setting);
    if (simulator.Hardware().SetEdidMemory(nSender, nInterfaceId, blockAfter))
        Q_EMIT BlockStored(nSender, nInterfaceId, blockBefore, blockAfter);
}
