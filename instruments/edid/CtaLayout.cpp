#include "instruments/edid/CtaLayout.h"

namespace Edid {

namespace {

// clang-format off

constexpr SFieldType c_arrCta[] = {
    Whole("revision", "Revision", enKind::enNumber, 1),
    Whole("timings_offset", "Detailed timings begin at byte", enKind::enNumber, 2),
    Flag("underscan", "Underscans IT formats", 3, 7),
    Flag("basic_audio", "Basic audio", 3, 6),
    Flag("ycbcr_444", "YCbCr 4:4:4", 3, 5),
    Flag("ycbcr_422", "YCbCr 4:2:2", 3, 4),
    Part("native_count", "Native detailed timings", enKind::enNumber, 3, 3, 0),
};

constexpr SChoice c_arrAudioFormats[] = {
    {1, "Linear PCM"}, {2, "AC-3"}, {3, "MPEG 1"}, {4, "MP3"}, {5, "MPEG 2"}, {6, "AAC LC"}, {7, "DTS"},
    {8, "ATRAC"}, {9, "One Bit Audio"}, {10, "Enhanced AC-3"}, {11, "DTS-HD"}, {12, "MAT"}, {13, "DST"},
    {14, "WMA Pro"}, {15, "extended"},
};

constexpr SChoice c_arrAudioExtensions[] = {
    {4, "MPEG-4 HE AAC"}, {5, "MPEG-4 HE AAC v2"}, {6, "MPEG-4 AAC LC"}, {7, "DRA"},
    {8, "MPEG-4 HE AAC + MPEG Surround"}, {10, "MPEG-4 AAC LC + MPEG Surround"}, {11, "MPEG-H 3D Audio"},
    {12, "AC-4"}, {13, "L-PCM 3D Audio"},
};

constexpr SFieldType c_arrAudio[] = {
    Part("format", "Format", enKind::enChoice, 0, 6, 3).Of(c_arrAudioFormats),
    Part("extension", "Extended format", enKind::enChoice, 2, 7, 3).When(enExtendedFormat).Of(c_arrAudioExtensions),
    Part("channels", "Channels", enKind::enNumber, 0, 2, 0).Scaled(1, 0, "", 1),
    Flag("khz_192", "192 kHz", 1, 6),
    Flag("khz_176", "176.4 kHz", 1, 5),
    Flag("khz_96", "96 kHz", 1, 4),
    Flag("khz_88", "88.2 kHz", 1, 3),
    Flag("khz_48", "48 kHz", 1, 2),
    Flag("khz_44", "44.1 kHz", 1, 1),
    Flag("khz_32", "32 kHz", 1, 0),
    Flag("bits_24", "24 bit", 2, 2).When(enLinearPcm),
    Flag("bits_20", "20 bit", 2, 1).When(enLinearPcm),
    Flag("bits_16", "16 bit", 2, 0).When(enLinearPcm),
    Whole("bit_rate", "Highest bit rate", enKind::enNumber, 2).Scaled(8, 0, "kbit/s").When(enBitRate),
    Whole("format_byte", "Format's own value", enKind::enHex, 2).When(enFormatByte),
};

constexpr SFieldType c_arrSpeakers[] = {
    Flag("flw_frw", "Front left and right wide", 1, 7),
    Flag("rlc_rrc", "Rear left and right of centre", 1, 6),
    Flag("flc_frc", "Front left and right of centre", 1, 5),
    Flag("bc", "Back centre", 1, 4),
    Flag("bl_br", "Back left and right", 1, 3),
    Flag("fc", "Front centre", 1, 2),
    Flag("lfe", "Low frequency effects", 1, 1),
    Flag("fl_fr", "Front left and right", 1, 0),
    Flag("tpsil_tpsir", "Top side left and right", 2, 7),
    Flag("sil_sir", "Side left and right", 2, 6),
    Flag("tpbc", "Top back centre", 2, 5),
    Flag("lfe2", "Low frequency effects 2", 2, 4),
    Flag("ls_rs", "Left and right surround", 2, 3),
    Flag("tpfc", "Top front centre", 2, 2),
    Flag("tpc", "Top centre", 2, 1),
    Flag("tpfl_tpfr", "Top front left and right", 2, 0),
    Flag("tpls_tprs", "Top left and right surround", 3, 3),
    Flag("btfl_btfr", "Bottom front left and right", 3, 2),
    Flag("btfc", "Bottom front centre", 3, 1),
    Flag("tpbl_tpbr", "Top back left and right", 3, 0),
};

constexpr SChoice c_arrScanning[] = {
    {0, "no data"}, {1, "always overscanned"}, {2, "always underscanned"}, {3, "both"},
};

constexpr SFieldType c_arrVideoCapability[] = {
    Flag("ycc_range", "Selectable YCC quantisation", 2, 7),
    Flag("rgb_range", "Selectable RGB quantisation", 2, 6),
    Part("pt_scan", "Preferred timing", enKind::enChoice, 2, 5, 4).Of(c_arrScanning),
    Part("it_scan", "IT formats", enKind::enChoice, 2, 3, 2).Of(c_arrScanning),
    Part("ce_scan", "CE formats", enKind::enChoice, 2, 1, 0).Of(c_arrScanning),
};

constexpr SFieldType c_arrColorimetry[] = {
    Flag("bt2020_rgb", "BT.2020 RGB", 2, 7),
    Flag("bt2020_ycc", "BT.2020 YCC", 2, 6),
    Flag("bt2020_cycc", "BT.2020 constant luminance YCC", 2, 5),
    Flag("op_rgb", "opRGB", 2, 4),
    Flag("op_ycc", "opYCC 601", 2, 3),
    Flag("s_ycc", "sYCC 601", 2, 2),
    Flag("xv_709", "xvYCC 709", 2, 1),
    Flag("xv_601", "xvYCC 601", 2, 0),
    Flag("dci_p3", "DCI-P3", 3, 7),
    Part("metadata", "Gamut metadata profiles", enKind::enHex, 3, 3, 0),
};

constexpr SFieldType c_arrHdrStatic[] = {
    Flag("hlg", "Hybrid log-gamma", 2, 3),
    Flag("pq", "SMPTE ST 2084 (PQ)", 2, 2),
    Flag("hdr_gamma", "Traditional gamma, HDR range", 2, 1),
    Flag("sdr_gamma", "Traditional gamma, SDR range", 2, 0),
    Flag("type_1", "Static metadata type 1", 3, 0),
    Whole("max_luminance", "Highest luminance code", enKind::enNumber, 4),
    Whole("average_luminance", "Highest frame average luminance code", enKind::enNumber, 5),
    Whole("min_luminance", "Lowest luminance code", enKind::enNumber, 6),
};

constexpr SFieldType c_arrHdmi[] = {
    Split("address", "Physical address", enKind::enHex, {5, 7, 0}, {4, 7, 0}),
    Flag("ai", "Takes ACP and ISRC packets", 6, 7),
    Flag("dc_48", "48 bits per pixel", 6, 6),
    Flag("dc_36", "36 bits per pixel", 6, 5),
    Flag("dc_30", "30 bits per pixel", 6, 4),
    Flag("dc_y444", "Deep colour in YCbCr 4:4:4", 6, 3),
    Flag("dual_link", "DVI dual link", 6, 0),
    Whole("tmds_max", "Highest TMDS clock", enKind::enNumber, 7).Scaled(5, 0, "MHz"),
    Flag("latency", "Latencies are told", 8, 7),
    Flag("interlaced_latency", "Interlaced latencies are told", 8, 6),
    Flag("hdmi_video", "HDMI video formats are told", 8, 5),
    Flag("game", "Content type game", 8, 3),
    Flag("cinema", "Content type cinema", 8, 2),
    Flag("photo", "Content type photo", 8, 1),
    Flag("graphics", "Content type graphics", 8, 0),
};

constexpr SChoice c_arrFixedRates[] = {
    {0, "none"}, {1, "3 Gbit/s on 3 lanes"}, {2, "3 and 6 Gbit/s on 3 lanes"}, {3, "up to 6 Gbit/s on 4 lanes"},
    {4, "up to 8 Gbit/s on 4 lanes"}, {5, "up to 10 Gbit/s on 4 lanes"}, {6, "up to 12 Gbit/s on 4 lanes"},
};

constexpr SFieldType c_arrHdmiForum[] = {
    Whole("version", "Version", enKind::enNumber, 4),
    Whole("tmds_max", "Highest TMDS character rate", enKind::enNumber, 5).Scaled(5, 0, "MHz"),
    Flag("scdc", "Status and control data channel", 6, 7),
    Flag("scdc_read", "Requests SCDC reads", 6, 6),
    Flag("cable_status", "Cable status", 6, 5),
    Flag("colour_content", "Colour content bits per component", 6, 4),
    Flag("scramble_low", "Scrambling at 340 MHz and below", 6, 3),
    Flag("independent_view", "3D independent view", 6, 2),
    Flag("dual_view", "3D dual view", 6, 1),
    Flag("osd_disparity", "3D OSD disparity", 6, 0),
    Part("frl_max", "Fixed rate link", enKind::enChoice, 7, 7, 4).Of(c_arrFixedRates),
    Flag("uhd_vic", "UHD video codes", 7, 3),
    Flag("dc_48_420", "48 bits in YCbCr 4:2:0", 7, 2),
    Flag("dc_36_420", "36 bits in YCbCr 4:2:0", 7, 1),
    Flag("dc_30_420", "30 bits in YCbCr 4:2:0", 7, 0),
    Flag("m_delta", "Negative M VRR", 8, 5),
    Flag("cinema_vrr", "Cinema VRR", 8, 4),
    Flag("negative_mvrr", "Negative MVRR", 8, 3),
    Flag("fast_vactive", "Fast vertical active", 8, 2),
    Flag("auto_low_latency", "Auto low-latency mode", 8, 1),
    Flag("fapa_start", "FAPA starts after first line", 8, 0),
    Part("vrr_min", "Lowest variable rate", enKind::enNumber, 9, 5, 0).Unit("Hz"),
    Split("vrr_max", "Highest variable rate", enKind::enNumber, {10, 7, 0}, {9, 7, 6}).Unit("Hz"),
};

constexpr SFieldType c_arrHdrDynamic[] = {
    Whole("metadata_length", "Length", enKind::enNumber, 0).Unit("bytes"),
    Whole("metadata_type", "Metadata type", enKind::enNumber, 1, 2),
    Part("metadata_version", "Version", enKind::enNumber, 3, 3, 0),
};

constexpr SFieldType c_arrHdmiAudio[] = {
    Part("streams", "Audio streams at once", enKind::enNumber, 2, 1, 0).Scaled(1, 0, "", 1),
    Flag("non_mixed", "Streams that are not mixed", 2, 2),
    Part("formats_3d", "Audio formats with 3D sound", enKind::enNumber, 3, 2, 0),
};

constexpr SFieldType c_arrHdmiAudio3D[] = {
    Part("format", "Format", enKind::enChoice, 0, 3, 0).Of(c_arrAudioFormats),
    Part("channels", "Channels", enKind::enNumber, 1, 4, 0).Scaled(1, 0, "", 1),
    Flag("khz_192", "192 kHz", 2, 6),
    Flag("khz_176", "176.4 kHz", 2, 5),
    Flag("khz_96", "96 kHz", 2, 4),
    Flag("khz_88", "88.2 kHz", 2, 3),
    Flag("khz_48", "48 kHz", 2, 2),
    Flag("khz_44", "44.1 kHz", 2, 1),
    Flag("khz_32", "32 kHz", 2, 0),
    Flag("bits_24", "24 bit", 3, 2).When(enLinearPcm),
    Flag("bits_20", "20 bit", 3, 1).When(enLinearPcm),
    Flag("bits_16", "16 bit", 3, 0).When(enLinearPcm),
};

/// A coordinate in 64ths of the room's half size, negative to the left, back and bottom.
constexpr SFieldType RoomCoordinate(const char* szKey, const char* szLabel, int nOffset, quint32 nWhen)
{
    return Whole(szKey, szLabel, enKind::enSigned, nOffset).Scaled(1.0 / 64.0, 3, "").When(nWhen);
}

constexpr SFieldType c_arrRoom[] = {
    Flag("display_place", "Place of the display is told", 2, 7),
    Flag("speaker_count", "Number of speakers is told", 2, 6),
    Flag("room_size", "Size of the room is told", 2, 5),
    Part("speakers", "Speakers", enKind::enNumber, 2, 4, 0).Scaled(1, 0, "", 1),
    Flag("flw_frw", "Front left and right wide", 3, 7),
    Flag("rlc_rrc", "Rear left and right of centre", 3, 6),
    Flag("flc_frc", "Front left and right of centre", 3, 5),
    Flag("bc", "Back centre", 3, 4),
    Flag("bl_br", "Back left and right", 3, 3),
    Flag("fc", "Front centre", 3, 2),
    Flag("lfe", "Low frequency effects", 3, 1),
    Flag("fl_fr", "Front left and right", 3, 0),
    Flag("tpsil_tpsir", "Top side left and right", 4, 7),
    Flag("sil_sir", "Side left and right", 4, 6),
    Flag("tpbc", "Top back centre", 4, 5),
    Flag("lfe2", "Low frequency effects 2", 4, 4),
    Flag("ls_rs", "Left and right surround", 4, 3),
    Flag("tpfc", "Top front centre", 4, 2),
    Flag("tpc", "Top centre", 4, 1),
    Flag("tpfl_tpfr", "Top front left and right", 4, 0),
    Flag("tpls_tprs", "Top left and right surround", 5, 3),
    Flag("btfl_btfr", "Bottom front left and right", 5, 2),
    Flag("btfc", "Bottom front centre", 5, 1),
    Flag("tpbl_tpbr", "Top back left and right", 5, 0),
    Whole("x_max", "Half width of the room", enKind::enNumber, 6).Unit("dm").When(enHasPlace),
    Whole("y_max", "Half depth of the room", enKind::enNumber, 7).Unit("dm").When(enHasPlace),
    Whole("z_max", "Half height of the room", enKind::enNumber, 8).Unit("dm").When(enHasPlace),
    RoomCoordinate("display_x", "Place of the display, x", 9, enHasDisplayPlace),
    RoomCoordinate("display_y", "Place of the display, y", 10, enHasDisplayPlace),
    RoomCoordinate("display_z", "Place of the display, z", 11, enHasDisplayPlace),
};

constexpr SChoice c_arrSpeakerNames[] = {
    {0, "front left"}, {1, "front right"}, {2, "front centre"}, {3, "low frequency effects 1"}, {4, "back left"},
    {5, "back right"}, {6, "front left of centre"}, {7, "front right of centre"}, {8, "back centre"},
    {9, "low frequency effects 2"}, {10, "side left"}, {11, "side right"}, {12, "top front left"},
    {13, "top front right"}, {14, "top front centre"}, {15, "top centre"}, {16, "top back left"},
    {17, "top back right"}, {18, "top side left"}, {19, "top side right"}, {20, "top back centre"},
    {21, "bottom front centre"}, {22, "bottom front left"}, {23, "bottom front right"}, {24, "front left wide"},
    {25, "front right wide"}, {26, "left surround"}, {27, "right surround"},
};

constexpr SFieldType c_arrSpeakerLocation[] = {
    Flag("has_place", "Place is told", 0, 6),
    Flag("active", "In use", 0, 5),
    Part("channel", "Channel", enKind::enNumber, 0, 4, 0),
    Part("speaker", "Speaker", enKind::enChoice, 1, 4, 0).Of(c_arrSpeakerNames),
    RoomCoordinate("x", "Place, x", 2, enHasPlace),
    RoomCoordinate("y", "Place, y", 3, enHasPlace),
    RoomCoordinate("z", "Place, z", 4, enHasPlace),
};

constexpr SChoice c_arrTags[] = {
    {enCtaReserved, "Reserved data block"}, {enCtaAudio, "Audio data block"}, {enCtaVideo, "Video data block"},
    {enCtaVendor, "Vendor data block"}, {enCtaSpeakers, "Speaker allocation data block"},
    {enCtaVesaTransfer, "VESA display transfer characteristics data block"},
    {enCtaVideoFormat, "Video format data block"},
};

constexpr SChoice c_arrExtendedTags[] = {
    {0x00, "Video capability data block"}, {0x01, "Vendor video data block"}, {0x02, "VESA display device data block"},
    {0x03, "VESA video timing block extension"}, {0x04, "HDMI video data block"}, {0x05, "Colorimetry data block"},
    {0x06, "HDR static metadata data block"}, {0x07, "HDR dynamic metadata data block"},
    {0x08, "Native video resolution data block"}, {0x0D, "Video format preference data block"},
    {0x0E, "YCbCr 4:2:0 video data block"}, {0x0F, "YCbCr 4:2:0 capability map data block"},
    {0x10, "Miscellaneous audio data block"}, {0x11, "Vendor audio data block"}, {0x12, "HDMI audio data block"},
    {0x13, "Room configuration data block"}, {0x14, "Speaker location data block"}, {0x20, "InfoFrame data block"},
    {0x22, "DisplayID type VII timing data block"}, {0x23, "DisplayID type VIII timing data block"},
    {0x2A, "DisplayID type X timing data block"}, {0x78, "HDMI Forum EDID extension override data block"},
    {0x79, "HDMI Forum sink capability data block"},
};
// clang-format on

template <std::size_t c_nCount>
const char* NameOr(const SChoice (&arrNames)[c_nCount], int nValue, const char* szElse)
{
    const char* szName = SChoices{arrNames, int(c_nCount)}.Name(nValue);
    return szName == nullptr ? szElse : szName;
}

} // namespace

const SLayout c_layoutCta = c_arrCta;
const SLayout c_layoutAudio = c_arrAudio;
const SLayout c_layoutSpeakers = c_arrSpeakers;
const SLayout c_layoutVideoCapability = c_arrVideoCapability;
const SLayout c_layoutColorimetry = c_arrColorimetry;
const SLayout c_layoutHdrStatic = c_arrHdrStatic;
const SLayout c_layoutHdmi = c_arrHdmi;
const SLayout c_layoutHdmiForum = c_arrHdmiForum;
const SLayout c_layoutHdrDynamic = c_arrHdrDynamic;
const SLayout c_layoutHdmiAudio = c_arrHdmiAudio;
const SLayout c_layoutHdmiAudio3D = c_arrHdmiAudio3D;
const SLayout c_layoutRoom = c_arrRoom;
const SLayout c_layoutSpeakerLocation = c_arrSpeakerLocation;

const SFieldType c_fieldOui = Whole("oui", "Organisation", enKind::enOui, 1, 3);

const char* CtaBlockName(int nTag, int nExtendedTag)
{
    if (nTag == enCtaExtended)
        return NameOr(c_arrExtendedTags, nExtendedTag, "Extended data block");
    return NameOr(c_arrTags, nTag, "Data block");
}

} // namespace Edid
