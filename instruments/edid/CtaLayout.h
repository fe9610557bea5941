#ifndef INSTRUMENTS_EDID_CTALAYOUT_H
#define INSTRUMENTS_EDID_CTALAYOUT_H

#include "instruments/edid/FieldType.h"

/// @file
/// The layout of a CTA extension block (CTA-861-H, section 7.4 and 7.5) and of the HDMI blocks inside it
/// (HDMI 1.4b, section 8.3; HDMI 2.1, section 10.3). Rows of a data block count from its first byte, the one
/// that holds tag and length.

namespace Edid {

constexpr quint8 c_byCtaTag = 0x02;     ///< first byte of the extension block
constexpr int c_nCtaDetailedOffset = 2; ///< byte that tells where the detailed timings begin
constexpr int c_nCtaFirstDataBlock = 4;

extern const SLayout c_layoutCta; ///< the four bytes of the head

/// Tags of data blocks, bits 7 to 5 of their first byte.
enum enCtaTag
{
    enCtaReserved = 0,
    enCtaAudio = 1,
    enCtaVideo = 2,
    enCtaVendor = 3,
    enCtaSpeakers = 4,
    enCtaVesaTransfer = 5,
    enCtaVideoFormat = 6,
    enCtaExtended = 7,
};

/// Tags of extended data blocks, their second byte.
enum enCtaExtendedTag
{
    enCtaVideoCapability = 0x00,
    enCtaVendorVideo = 0x01,
    enCtaVesaDevice = 0x02,
    enCtaColorimetry = 0x05,
    enCtaHdrStatic = 0x06,
    enCtaHdrDynamic = 0x07,
    enCtaNativeResolution = 0x08,
    enCtaVideoPreference = 0x0D,
    enCta420Video = 0x0E,
    enCta420Map = 0x0F,
    enCtaVendorAudio = 0x11,
    enCtaHdmiAudio = 0x12,
    enCtaRoom = 0x13,
    enCtaSpeakerLocation = 0x14,
    enCtaInfoFrame = 0x20,
    enCtaTypeVIITiming = 0x22,
    enCtaTypeXTiming = 0x2A,
    enCtaHdmiForumOverride = 0x78,
    enCtaHdmiForumSink = 0x79,
};

constexpr quint32 c_nHdmiOui = 0x000C03;
constexpr quint32 c_nHdmiForumOui = 0xC45DD8;

/// Conditions of the rows of a room's configuration and of a speaker's location.
enum enPlaceWhen : quint32
{
    enHasPlace = 0x1,
    enHasDisplayPlace = 0x2,
};

/// Conditions of the rows of a short audio descriptor.
enum enAudioWhen : quint32
{
    enLinearPcm = 0x1,
    enBitRate = 0x2,    ///< formats 2 to 8
    enFormatByte = 0x4, ///< formats 9 to 14
    enExtendedFormat = 0x8,
};

extern const SLayout c_layoutAudio; ///< three bytes
extern const SLayout c_layoutSpeakers;
extern const SLayout c_layoutVideoCapability;
extern const SLayout c_layoutColorimetry;
extern const SLayout c_layoutHdrStatic;
extern const SLayout c_layoutHdmi;
extern const SLayout c_layoutHdmiForum;
extern const SLayout c_layoutHdrDynamic; ///< one type of metadata, from the byte with its length
extern const SLayout c_layoutHdmiAudio;
extern const SLayout c_layoutHdmiAudio3D; ///< one audio format with three-dimensional sound, four bytes
extern const SLayout c_layoutRoom;
extern const SLayout c_layoutSpeakerLocation; ///< one speaker, two bytes, or five with its place

/// The name of a data block, from its tag and, for the tag 7, the extended one.
const char* CtaBlockName(int nTag, int nExtendedTag);

/// The row that announces an organisation's number.
extern const SFieldType c_fieldOui;

} // namespace Edid

#endif // INSTRUMENTS_EDID_CTALAYOUT_H
