#ifndef HOST_HARDWARESUPPORT_VIDEOSOURCELOGIC_H
#define HOST_HARDWARESUPPORT_VIDEOSOURCELOGIC_H

#include "host/HostExport.h"

#include <QString>

struct CSenderEdidLimitData;
struct SEdidSetting;
struct SVideoPortKey;

/// The video inputs of the senders. `nSender` is an index as `CProjectData::GetCurSenderIndex` gives it.
/// All calls come from the GUI thread.
class CVideoSourceLogic
{
public:
    virtual ~CVideoSourceLogic() = default;

    /// Name of a port as the operator knows it.
    /// @param nReserved the library passes 0
    virtual QString GetVideoPortName(int nSender, SVideoPortKey* pKey, int nReserved) = 0;
    /// The setting that is in force. False: there is none, and the caller's defaults apply.
    virtual bool GetEdidSetting(int nSender, SVideoPortKey* pKey, SEdidSetting* pSetting) = 0;
    /// Fills the limits of a video interface.
    virtual void GetEdidLimit(int nSender, int nInterfaceId, CSenderEdidLimitData* pLimit) = 0;
    /// Judges a size.
    /// @param nWidth,nHeight pixels
    /// @param nLimit largest area in pixels, or the pixel clock in MHz where the limit is one
    /// @param pMessage the verdict for the operator; empty when the size is valid
    virtual void CheckEdidLimit(int nWidth, int nHeight, int nLimit, QString* pMessage) = 0;
    /// Writes a setting to the sender.
    /// @return 0 on success
    virtual qint64 SetEdidSetting(int nSender, int nInterfaceId, const SEdidSetting* pSetting) = 0;
    /// Ends the write of a full record, after the wait.
    /// @param nSave the library passes 1
    virtual void FinishEdidWrite(int nSender, int nSave) = 0;
    /// Ends the write of a basic record, after the wait, and says whether it took.
    virtual void ApplyBasicEdid(int nSender, int nWidth, int nHeight, bool* pSuccess) = 0;
    /// Highest frame rate that really comes in, Hz; 0 or less when unknown.
    virtual float GetMaxInputFrameRate(int nSender) = 0;
    /// The output limits that the present choice breaks.
    /// @param pFlags takes the bits of `enOutputLimitFlag`
    /// @return true when the bits are set
    virtual bool GetOutputLimitFlags(int nSender, unsigned int* pFlags) = 0;
};

/// The host's video source logic; the object outlives every dialog.
HARDWARESUPPORT_EXPORT CVideoSourceLogic* GetHwVideoSourceLogic();

#endif // HOST_HARDWARESUPPORT_VIDEOSOURCELOGIC_H
