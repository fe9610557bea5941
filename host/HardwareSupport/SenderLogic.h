#ifndef HOST_HARDWARESUPPORT_SENDERLOGIC_H
#define HOST_HARDWARESUPPORT_SENDERLOGIC_H

#include "host/HostExport.h"

#include <QSize>

struct SCanvasLimit;

/// What senders are and can do. `nSender` is an index as `CProjectData::GetCurSenderIndex` gives it.
/// All calls come from the GUI thread.
class CSenderLogic
{
public:
    virtual ~CSenderLogic() = default;

    /// True for a sender whose depth, canvas and rate are limited by and written to hardware.
    virtual bool IsVideoProcessor(int nSender) = 0;
    /// The numeric sender type code.
    virtual int GetSenderType(int nSender) = 0;
    /// True when 10-bit output is offered.
    virtual bool IsSupport10Bit(int nSender) = 0;
    /// True when 12-bit output is offered.
    virtual bool IsSupport12Bit(int nSender) = 0;
    /// True when the senders take the full EDID record, and so offer 120 Hz on interfaces 1 to 4 and 16
    /// to 19.
    virtual bool IsExtendedEdidSupported() = 0;
    /// Called after a good write of the basic EDID record.
    virtual void AfterEdidWritten(int nSender) = 0;
    /// True when the canvas is read from the hardware.
    virtual bool IsSupportCanvasSize(int nSender) = 0;
    /// Canvas size that the hardware holds, pixels; (0, 0) means none.
    virtual QSize GetHardwareCanvasSize(int nSender) = 0;
    /// Overwrites the preset limits in `pLimit`, or leaves them as they are.
    virtual void GetCanvasLimit(int nSender, SCanvasLimit* pLimit) = 0;
    /// Output depth that the hardware holds: 0, 1, 2 for 8, 10, 12 bit.
    virtual int GetOutputDepthMode(int nSender) = 0;
    /// Writes the output depth to the hardware.
    /// @param nMode 0, 1, 2 for 8, 10, 12 bit
    /// @param nSave the library passes 1
    virtual void SetOutputDepthMode(int nSender, int nMode, int nSave) = 0;
    /// Tells the hardware whether the output runs at 50 Hz; called before the rate is saved.
    /// @param nReserved the library passes 0
    virtual void SetOutput50Hz(int nSender, bool bIs50Hz, int nReserved) = 0;
    /// True when processors are addressed by IP.
    virtual bool IsIPAddressMode() = 0;
    /// Number of processors that exist already.
    virtual int GetAddedSenderCount() = 0;
    /// Fills a zeroed table of 255 entries with the addresses that were detected, first octet in
    /// the low byte.
    /// @return number of entries written
    virtual int GetDetectedIPList(unsigned int* pList) = 0;
    /// Opens the demo project, after demo mode and sender type were set. The result is not read.
    virtual int ApplyDemoProject() = 0;
};

/// The host's sender logic; the object outlives every dialog.
HARDWARESUPPORT_EXPORT CSenderLogic* GetHwSenderLogic();

#endif // HOST_HARDWARESUPPORT_SENDERLOGIC_H
