#ifndef SIMULATOR_COMMONCLASS_PROJECTDESCRIPTIONS_H
#define SIMULATOR_COMMONCLASS_PROJECTDESCRIPTIONS_H

#include "simulator/CommonClass/JsonArchive.h"
#include "simulator/CommonClass/SimulatedProject.h"

/// @file
/// The fields of the project's records: key, value and limits, for reading and writing alike.

/// Longest text in a file: a name field holds 64 characters, and an entry has two such fields.
constexpr SLength c_textLength = {256};
/// Longest line of measurements: a name and twelve numbers.
constexpr SLength c_measurementLength = {1024};
/// Sides of a resolution or canvas, pixels; the fields of an EDID setting have 16 bits.
constexpr SRange c_sideRange = {0, 65535};
/// Frame rates, Hz.
constexpr SRange c_rateRange = {0, 1000};
/// Longest delay of a write, ms.
constexpr SRange c_delayRange = {0, 60000};
/// Integers that JSON numbers represent exactly.
constexpr SRange c_exactRange = {-9007199254740991, 9007199254740991};

template <class TArchive>
void Describe(TArchive& archive, CSenderEdidLimitData& limit)
{
    archive.Field("maxWidth", limit.nMaxWidth, c_sideRange);
    archive.Field("maxHeight", limit.nMaxHeight, c_sideRange);
    archive.Field("maxArea", limit.nMaxArea, SRange{0, std::numeric_limits<int>::max()});
    archive.Field("byPixelClock", limit.bLimitByPixelClock);
    archive.Field("resolutions", limit.listResolution, c_sideRange);
}

template <class TArchive>
void Describe(TArchive& archive, SEdidSetting& setting)
{
    archive.Field("rate", setting.byRate);
    archive.Field("fractional", setting.byFractional, SRange{0, 1});
    archive.Field("width", setting.wWidth);
    archive.Field("height", setting.wHeight);
    archive.Field("formatFlags", setting.byFormatFlags);
    archive.Field("timingStandard", setting.byTimingStandard);
    archive.Field("connectPC", setting.byConnectPC);
}

template <class TArchive>
void Describe(TArchive& archive, SSimulatedInput& input)
{
    archive.Field("interface", input.nInterfaceId, SRange{0, 255});
    archive.Field("name", input.strName, c_textLength);
    archive.Field("limit", input.limit);
    archive.Field("maxPixelClock", input.nMaxPixelClock, SRange{0, 10000});
    archive.Field("setting", input.setting);
    archive.Field("edid", input.baEdid, SLength{c_nEdidBlockSize});
}

template <class TArchive>
void Describe(TArchive& archive, SCanvasLimit& limit)
{
    archive.Field("maxWidth", limit.nMaxWidth, c_sideRange);
    archive.Field("maxHeight", limit.nMaxHeight, c_sideRange);
    archive.Field("maxArea", limit.nMaxArea, SRange{0, std::numeric_limits<int>::max()});
}

template <class TArchive>
void Describe(TArchive& archive, SSenderCapability& capability)
{
    archive.Field("type", capability.nType);
    archive.Field("model", capability.strModel, c_textLength);
    archive.Field("videoProcessor", capability.bVideoProcessor);
    archive.Field("support10Bit", capability.bSupport10Bit);
    archive.Field("support12Bit", capability.bSupport12Bit);
    archive.Field("extendedEdid", capability.bExtendedEdid);
    archive.Field("canvasFromHardware", capability.bCanvasFromHardware);
    archive.Field("extensionBlock", capability.bExtensionBlock);
    archive.Field("canvasLimit", capability.canvasLimit);
}

template <class TArchive>
void Describe(TArchive& archive, SSenderFaults& faults)
{
    archive.Field("edidWriteResult", faults.nEdidWriteResult, c_exactRange);
    archive.Field("basicEdidFails", faults.bBasicEdidFails);
    archive.Field("writeDelay", faults.nWriteDelay, c_delayRange);
}

template <class TArchive>
void Describe(TArchive& archive, CSender& sender)
{
    archive.Field("frameRate", sender.nFrameRate, c_rateRange);
    archive.Field("colorDepth", sender.nColorDepth, SRange{0, 64});
    archive.Field("outputPorts", sender.nOutputPortCount, SRange{0, 1024});
    archive.Field("canvas", sender.sizeCanvas, c_sideRange);
    archive.Field("pictureAlpha", sender.BkImageAlpha);
    archive.Field("pictureEnabled", sender.BkImageEnable);
    archive.Field("pictureFit", sender.BkImageFit);
}

template <class TArchive>
void Describe(TArchive& archive, SSimulatedSender& sender)
{
    archive.Field("id", sender.nId, SRange{1, c_nLastSenderId});
    archive.Field("name", sender.strName, c_textLength);
    archive.Field("capability", sender.capability);
    archive.Field("record", sender.record);
    archive.Field("inputs", sender.listInputs);
    archive.Field("hardwareCanvas", sender.sizeHardwareCanvas, c_sideRange);
    archive.Field("outputDepthMode", sender.nOutputDepthMode, SRange{0, 2});
    archive.Field("output50Hz", sender.b50Hz);
    archive.Field("maxInputFrameRate", sender.fMaxInputFrameRate, c_rateRange);
    archive.Field("outputLimitFlags", sender.outputLimitFlags);
    archive.Field("faults", sender.faults);
}

template <class TArchive>
void Describe(TArchive& archive, SAddressing& addressing)
{
    constexpr SRange c_countRange = {0, 65535};
    archive.Field("ipAddressMode", addressing.bIPAddressMode);
    archive.Field("detectStrategy", addressing.nDetectStrategy);
    archive.Field("addedSenderCount", addressing.nAddedSenderCount, c_countRange);
    archive.Field("countLimitByIP", addressing.nCountLimitByIP, c_countRange);
    archive.Field("countLimitOtherwise", addressing.nCountLimitOtherwise, c_countRange);
    archive.Field("detected", addressing.listDetected, c_textLength);
}

template <class TArchive>
void Describe(TArchive& archive, SAddressLists& lists)
{
    archive.Field("stored", lists.listStored, c_textLength);
    archive.Field("original", lists.listOriginal, c_textLength);
    archive.Field("currentSet", lists.listCurSet, c_textLength);
}

/// Coordinates of a chromaticity.
constexpr SRange c_chromaticityRange = {0, 1};

template <class TArchive>
void Describe(TArchive& archive, SProjectPoint& point)
{
    archive.Field("x", point.fX, c_chromaticityRange);
    archive.Field("y", point.fY, c_chromaticityRange);
}

template <class TArchive>
void Describe(TArchive& archive, SProjectColourPoint& point)
{
    archive.Field("place", point.place);
    archive.Field("movable", point.bMovable);
    archive.Field("dotShown", point.bDotShown);
}

template <class TArchive>
void Describe(TArchive& archive, SProjectColourGroup& group)
{
    archive.Field("key", group.nKey, SRange{0, std::numeric_limits<int>::max()});
    archive.Field("name", group.strName, c_textLength);
    archive.Field("rgb", group.bRgb);
    archive.Field("red", group.red);
    archive.Field("green", group.green);
    archive.Field("blue", group.blue);
    archive.Field("white", group.white);
    archive.Field("visible", group.bVisible);
    archive.Field("noteShown", group.bNoteShown);
    archive.Field("ownColour", group.bOwnColour);
    archive.Field("lineRed", group.byRed);
    archive.Field("lineGreen", group.byGreen);
    archive.Field("lineBlue", group.byBlue);
    archive.Field("penStyle", group.nPenStyle, SRange{0, 5});
    archive.Field("penWidth", group.fPenWidth, SRange{0, 100});
}

template <class TArchive>
void Describe(TArchive& archive, SProjectColour& colour)
{
    archive.Field("groups", colour.listGroups);
    archive.Field("region", colour.listRegion);
    archive.Field("regionOn", colour.bRegionOn);
}

template <class TArchive>
void Describe(TArchive& archive, SSimulatedProject& project)
{
    archive.Field("demoMode", project.bDemoMode);
    archive.Field("demoSenderType", project.nDemoSenderType);
    archive.Field("currentSender", project.nCurSender, SRange{0, 65535});
    archive.Field("nextSenderId", project.nNextSenderId, SRange{1, c_nLastSenderId + 1});
    archive.Field("senders", project.listSenders);
    archive.Field("addressing", project.addressing);
    archive.Field("addresses", project.addresses);
    archive.OptionalField("measurements", project.listMeasurements, c_measurementLength);
    archive.OptionalField("colour", project.colour);
}

#endif // SIMULATOR_COMMONCLASS_PROJECTDESCRIPTIONS_H
