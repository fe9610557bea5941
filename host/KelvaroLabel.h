#ifndef HOST_KELVAROLABEL_H
#define HOST_KELVAROLABEL_H

/// What a label event tells: the code, and with it the details that follow.
enum enLabelEvent
{
    enRateDepthChanged = 0xC00,   ///< frame rate and colour depth; details (0, 1, 0)
    enPictureChanged = 0x24000,   ///< background picture or its switch; details (1, 0, 0)
    enPictureViewChanged = 0x4000 ///< fit or transparency of the background picture; details (1, 0, 0)
};

/// The channel through which the library tells the host that a setting changed. Calls come from the GUI
/// thread while the dialog is open.
class IKelvaroLabel
{
public:
    virtual ~IKelvaroLabel() = default;

    /// Announces a change. The library reads no answer.
    /// @param nCode what changed, an `enLabelEvent`
    /// @param nA,nB,nC details of the event
    virtual void PostLabelEvent(int nCode, int nA, int nB, int nC) = 0;
};

#endif // HOST_KELVAROLABEL_H
