#ifndef HOST_KELVAROLABEL_H
#define HOST_KELVAROLABEL_H

/// The channel through which the library tells the host that a setting changed.
class IKelvaroLabel
{
public:
    virtual ~IKelvaroLabel() = default;

    /// Announces a change. The library reads no answer.
    /// @param nCode what changed: 0xC00 rate and depth, 0x24000 background picture or its switch,
    ///              0x4000 fit or transparency of the background picture
    /// @param nA,nB,nC details of the event: (0, 1, 0) with 0xC00 and (1, 0, 0) with the other two
    virtual void PostLabelEvent(int nCode, int nA, int nB, int nC) = 0;
};

#endif // HOST_KELVAROLABEL_H
