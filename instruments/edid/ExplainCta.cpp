#include "instruments/edid/BaseLayout.h"
#include "instruments/edid/Checksum.h"
#include "instruments/edid/CtaDataBlocks.h"
#include "instruments/edid/CtaLayout.h"
#include "instruments/edid/DetailedTiming.h"
#include "instruments/edid/FieldList.h"

#include <algorithm>

namespace Edid {

namespace {

constexpr SFieldType c_fieldBlock = Title("data_block", "Data block", enKind::enDataBlock);
constexpr SFieldType c_fieldHead = Whole("head", "Tag and length", enKind::enHex, 0);
constexpr SFieldType c_fieldExtendedTag = Whole("extended_tag", "Extended tag", enKind::enHex, 1);
constexpr SFieldType c_fieldAudio = Title("audio", "Audio format");
constexpr SFieldType c_fieldVideoCode = Whole("vic", "Video code", enKind::enVideoCode, 0);
constexpr SFieldType c_fieldPreference = Whole("preference", "Preferred", enKind::enPreference, 0);
constexpr SFieldType c_fieldDynamic = Title("metadata", "Dynamic metadata");
constexpr SFieldType c_fieldAudio3D = Title("audio_3d", "Audio format with 3D sound");
constexpr SFieldType c_fieldSpeaker = Title("speaker_location", "Speaker");
constexpr SFieldType c_fieldHdmiCode = Whole("hdmi_vic", "HDMI video code", enKind::enHdmiCode, 0);
constexpr SFieldType c_fieldLatency = Whole("latency_code", "Latency code", enKind::enNumber, 0);
constexpr SFieldType c_fieldHdmiVideo = Whole("hdmi_video_flags", "3D and image size", enKind::enHex, 0);
constexpr SFieldType c_fieldHdmiLengths =
    Whole("hdmi_video_lengths", "Lengths of the lists", enKind::enHex, 0);

constexpr int c_nAudioSize = 3;

/// Where the looked-into part of a data block ends; the rest is shown as bytes.
using Explained = int;

quint32 AudioCondition(int nFormat)
{
    constexpr int c_nPcm = 1;
    constexpr int c_nLastBitRate = 8;
    constexpr int c_nExtended = 15;
    if (nFormat == c_nPcm)
        return enLinearPcm;
    if (nFormat <= c_nLastBitRate)
        return enBitRate;
    return nFormat == c_nExtended ? enExtendedFormat : enFormatByte;
}

Explained ExplainAudio(CFieldList& list, const SDataBlock& block)
{
    int nEntry = block.nOffset + 1;
    for (int nIndex = 1; nEntry + c_nAudioSize <= block.End(); nEntry += c_nAudioSize, ++nIndex) {
        list.Open(c_fieldAudio, nEntry, c_nAudioSize, nIndex);
        const int nFormat = int(Get(list.At(nEntry), c_layoutAudio[0]));
        list.Record(c_layoutAudio, nEntry, c_nAudioSize, AudioCondition(nFormat));
        list.Close();
    }
    return nEntry;
}

quint32 ConditionIf(bool bHolds, quint32 nCondition)
{
    return bHolds ? nCondition : quint32(enAlways);
}

/// Behind the tags.
int ContentBegin(const SDataBlock& block)
{
    return block.nOffset + (block.nExtendedTag < 0 ? 1 : 2);
}

/// One code a byte up to the end of the block.
Explained ExplainCodes(CFieldList& list, const SFieldType& type, int nFirst, int nEnd)
{
    for (int nCode = nFirst; nCode < nEnd; ++nCode)
        list.Row(type, nCode, nCode - nFirst + 1);
    return nEnd;
}

Explained ExplainVideo(CFieldList& list, const SDataBlock& block)
{
    return ExplainCodes(list, c_fieldVideoCode, block.nOffset + 1, block.End());
}

Explained Explain420Video(CFieldList& list, const SDataBlock& block)
{
    return ExplainCodes(list, c_fieldVideoCode, block.nOffset + 2, block.End());
}

Explained ExplainPreference(CFieldList& list, const SDataBlock& block)
{
    return ExplainCodes(list, c_fieldPreference, block.nOffset + 2, block.End());
}

/// Rows that a short block has no room for are left out.
template <const SLayout& c_layout>
Explained ExplainByLayout(CFieldList& list, const SDataBlock& block)
{
    return std::max(list.RecordTo(c_layout, block.nOffset, block.End()), ContentBegin(block));
}

/// Each type begins with the number of bytes that follow.
Explained ExplainHdrDynamic(CFieldList& list, const SDataBlock& block)
{
    constexpr int c_nLeast = 3;
    constexpr int c_nLastWithVersion = 4;
    int nEntry = block.nOffset + 2;
    for (int nIndex = 1; nEntry + c_nLeast <= block.End(); ++nIndex) {
        const int nEnd = nEntry + 1 + *list.At(nEntry);
        if (nEnd < nEntry + c_nLeast || nEnd > block.End())
            break;
        list.Open(c_fieldDynamic, nEntry, nEnd - nEntry, nIndex);
        const bool bVersion = Get(list.At(nEntry), c_layoutHdrDynamic[1]) <= c_nLastWithVersion;
        const int nNext = list.RecordTo(c_layoutHdrDynamic, nEntry, bVersion ? nEnd : nEntry + c_nLeast);
        list.Bytes(c_fieldUnexplained, nNext, nEnd - nNext);
        list.Close();
        nEntry = nEnd;
    }
    return nEntry;
}

/// Audio formats, then the speakers that they are for.
Explained ExplainHdmiAudio(CFieldList& list, const SDataBlock& block)
{
    constexpr int c_nEntrySize = 4;
    constexpr int c_nPcm = 1;
    constexpr int c_nCountRow = 2;
    constexpr int c_nCountOffset = 3;
    int nEntry = list.RecordTo(c_layoutHdmiAudio, block.nOffset, block.End());
    nEntry = std::max(nEntry, ContentBegin(block));
    if (block.nSize <= c_nCountOffset || Get(list.At(block.nOffset), c_layoutHdmiAudio[c_nCountRow]) == 0)
        return nEntry;
    // The last four bytes are the speakers.
    for (int nIndex = 1; nEntry + 2 * c_nEntrySize <= block.End(); nEntry += c_nEntrySize, ++nIndex) {
        list.Open(c_fieldAudio3D, nEntry, c_nEntrySize, nIndex);
        const bool bPcm = Get(list.At(nEntry), c_layoutHdmiAudio3D[0]) == c_nPcm;
        list.Record(c_layoutHdmiAudio3D, nEntry, c_nEntrySize, ConditionIf(bPcm, enLinearPcm));
        list.Close();
    }
    // The rows of a speaker allocation count from the byte before it.
    return nEntry + c_nEntrySize == block.End() ? list.RecordTo(c_layoutSpeakers, nEntry - 1, block.End() - 1)
                                                : nEntry;
}

Explained ExplainRoom(CFieldList& list, const SDataBlock& block)
{
    constexpr int c_nFlags = 2;
    constexpr unsigned c_nDisplayPlace = 0x80;
    constexpr unsigned c_nRoomSize = 0x20;
    const unsigned nFlags = block.nSize > c_nFlags ? *list.At(block.nOffset + c_nFlags) : 0U;
    const quint32 nConditions = ConditionIf((nFlags & c_nRoomSize) != 0, enHasPlace) |
                                ConditionIf((nFlags & c_nDisplayPlace) != 0, enHasDisplayPlace);
    return std::max(list.RecordTo(c_layoutRoom, block.nOffset, block.End(), nConditions),
                    ContentBegin(block));
}

Explained ExplainSpeakerLocations(CFieldList& list, const SDataBlock& block)
{
    constexpr int c_nShort = 2;
    constexpr int c_nLong = 5;
    int nEntry = block.nOffset + 2;
    for (int nIndex = 1; nEntry + c_nShort <= block.End(); ++nIndex) {
        const bool bPlace =
            Get(list.At(nEntry), c_layoutSpeakerLocation[0]) != 0 && nEntry + c_nLong <= block.End();
        const int nSize = bPlace ? c_nLong : c_nShort;
        list.Open(c_fieldSpeaker, nEntry, nSize, nIndex);
        list.Record(c_layoutSpeakerLocation, nEntry, nSize, ConditionIf(bPlace, enHasPlace));
        list.Close();
        nEntry += nSize;
    }
    return nEntry;
}

/// Latencies, then the video codes: what stands here depends on the flags before it.
Explained ExplainHdmiVideo(CFieldList& list, const SDataBlock& block, int nNext)
{
    const quint8* pBlock = list.At(block.nOffset);
    const auto Has = [=](const char* szKey) { return Get(pBlock, *c_layoutHdmi.Find(szKey)) != 0; };
    const int nLatencies = (Has("latency") ? 2 : 0) + (Has("interlaced_latency") ? 2 : 0);
    const int nLatencyEnd = std::min(nNext + nLatencies, block.End());
    nNext = ExplainCodes(list, c_fieldLatency, nNext, nLatencyEnd);
    if (!Has("hdmi_video") || nNext + 2 > block.End())
        return nNext;
    list.Row(c_fieldHdmiVideo, nNext);
    list.Row(c_fieldHdmiLengths, nNext + 1);
    constexpr unsigned c_nCountShift = 5;
    const int nCodes = *list.At(nNext + 1) >> c_nCountShift;
    return ExplainCodes(list, c_fieldHdmiCode, nNext + 2, std::min(nNext + 2 + nCodes, block.End()));
}

Explained ExplainHdmi(CFieldList& list, const SDataBlock& block)
{
    const int nNext = ExplainByLayout<c_layoutHdmi>(list, block);
    constexpr int c_nFlagsOffset = 8;
    return block.nSize > c_nFlagsOffset ? ExplainHdmiVideo(list, block, nNext) : nNext;
}

Explained ExplainVendor(CFieldList& list, const SDataBlock& block)
{
    const int nOuiEnd = block.nOffset + c_fieldOui.nOffset + c_fieldOui.nSize;
    if (block.End() < nOuiEnd)
        return block.nOffset + 1;
    list.Row(c_fieldOui, block.nOffset);
    const qint64 nOui = Get(list.At(block.nOffset), c_fieldOui);
    if (nOui == c_nHdmiOui)
        return ExplainHdmi(list, block);
    if (nOui == c_nHdmiForumOui)
        return ExplainByLayout<c_layoutHdmiForum>(list, block);
    return nOuiEnd;
}

struct SDataBlockKind
{
    int nTag;
    int nExtendedTag; ///< -1 without one
    Explained (*pExplain)(CFieldList& list, const SDataBlock& block);
};

constexpr int c_nNone = -1;

constexpr SDataBlockKind c_arrKinds[] = {
    {enCtaAudio, c_nNone, &ExplainAudio},
    {enCtaVideo, c_nNone, &ExplainVideo},
    {enCtaVendor, c_nNone, &ExplainVendor},
    {enCtaSpeakers, c_nNone, &ExplainByLayout<c_layoutSpeakers>},
    {enCtaExtended, enCtaVideoCapability, &ExplainByLayout<c_layoutVideoCapability>},
    {enCtaExtended, enCtaColorimetry, &ExplainByLayout<c_layoutColorimetry>},
    {enCtaExtended, enCtaHdrStatic, &ExplainByLayout<c_layoutHdrStatic>},
    {enCtaExtended, enCtaHdrDynamic, &ExplainHdrDynamic},
    {enCtaExtended, enCtaVideoPreference, &ExplainPreference},
    {enCtaExtended, enCtaHdmiAudio, &ExplainHdmiAudio},
    {enCtaExtended, enCtaRoom, &ExplainRoom},
    {enCtaExtended, enCtaSpeakerLocation, &ExplainSpeakerLocations},
    {enCtaExtended, enCta420Video, &Explain420Video},
    {enCtaExtended, enCtaHdmiForumSink, &ExplainByLayout<c_layoutHdmiForum>},
};

/// The tag, or both tags, and how the block is explained; what nobody explains is all bytes.
int ExplainContent(CFieldList& list, const SDataBlock& block)
{
    for (const SDataBlockKind& kind : c_arrKinds)
        if (kind.nTag == block.nTag && kind.nExtendedTag == block.nExtendedTag)
            return kind.pExplain(list, block);
    return ContentBegin(block);
}

void ExplainDataBlocks(CFieldList& list, int nBlock)
{
    int nIndex = 0;
    int nOffset = nBlock + c_nCtaFirstDataBlock;
    const int nEnd = nBlock + DataBlocksEnd(list.At(nBlock));
    while (const std::optional<SDataBlock> block = DataBlockAt(list.At(0), nOffset, nEnd)) {
        list.Open(c_fieldBlock, block->nOffset, block->nSize, ++nIndex, block->NameCode());
        list.Row(c_fieldHead, block->nOffset);
        if (block->nExtendedTag != c_nNone)
            list.Row(c_fieldExtendedTag, block->nOffset);
        const int nExplained = ExplainContent(list, *block);
        list.Bytes(c_fieldUnexplained, nExplained, block->End() - nExplained);
        list.Close();
        nOffset = block->End();
    }
    list.Bytes(c_fieldUnexplained, nOffset, nEnd - nOffset);
}

void ExplainDetailedTimings(CFieldList& list, int nBlock)
{
    const int nChecksum = nBlock + c_nChecksumOffset;
    int nOffset = nBlock + DetailedTimingsBegin(list.At(nBlock));
    for (int nIndex = 1; nOffset + c_nDescriptorSize <= nChecksum; ++nIndex) {
        if (!IsDetailed(list.At(nOffset)))
            break;
        list.Open(c_fieldMode, nOffset, c_nDescriptorSize, nIndex);
        ExplainDetailed(list, nOffset);
        list.Close();
        nOffset += c_nDescriptorSize;
    }
    list.Bytes(c_fieldPadding, nOffset, nChecksum - nOffset);
}

} // namespace

void ExplainCta(CFieldList& list, int nBlock)
{
    list.Row(c_fieldTag, nBlock);
    list.Record(c_layoutCta, nBlock, c_nCtaFirstDataBlock);
    ExplainDataBlocks(list, nBlock);
    ExplainDetailedTimings(list, nBlock);
    list.Row(c_fieldChecksum, nBlock);
}

} // namespace Edid
