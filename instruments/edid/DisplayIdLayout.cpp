#include "instruments/edid/DisplayIdLayout.h"

namespace Edid {

namespace {

// clang-format off

constexpr SChoice c_arrProducts[] = {
    {0, "extension of another section"}, {1, "test structure"}, {2, "display panel"}, {3, "standalone display device"},
    {4, "television receiver"}, {5, "repeater or translator"}, {6, "direct drive monitor"},
};

constexpr SFieldType c_arrSection[] = {
    Part("version", "Version", enKind::enNumber, 0, 7, 4),
    Part("revision", "Revision", enKind::enNumber, 0, 3, 0),
    Whole("length", "Bytes of data blocks", enKind::enNumber, 1),
    Whole("product_type", "Product type", enKind::enChoice, 2).Of(c_arrProducts),
    Whole("section_extensions", "Sections that follow", enKind::enNumber, 3),
};

constexpr SFieldType c_arrDataBlock[] = {
    Whole("tag", "Tag", enKind::enHex, 0),
    Part("block_revision", "Revision", enKind::enNumber, 1, 2, 0),
    Whole("block_length", "Length", enKind::enNumber, 2).Unit("bytes"),
};

constexpr SChoice c_arrStereoModes[] = {
    {0, "mono"}, {1, "stereo"}, {2, "as the operator chooses"},
};

constexpr SChoice c_arrAspects[] = {
    {0, "1:1"}, {1, "5:4"}, {2, "4:3"}, {3, "15:9"}, {4, "16:9"}, {5, "16:10"}, {6, "64:27"}, {7, "256:135"},
    {8, "undefined"},
};

constexpr SFieldType c_arrTypeI[] = {
    Whole("clock", "Pixel clock", enKind::enNumber, 0, 3).Scaled(0.01, 2, "MHz", 0.01),
    Flag("preferred", "Preferred", 3, 7),
    Part("stereo", "Stereo", enKind::enChoice, 3, 6, 5).Of(c_arrStereoModes),
    Flag("interlaced", "Interlaced", 3, 4),
    Part("aspect", "Aspect ratio", enKind::enChoice, 3, 3, 0).Of(c_arrAspects),
    Whole("h_active", "Horizontal active", enKind::enNumber, 4, 2).Scaled(1, 0, "pixels", 1),
    Whole("h_blank", "Horizontal blanking", enKind::enNumber, 6, 2).Scaled(1, 0, "pixels", 1),
    Split("h_front", "Horizontal front porch", enKind::enNumber, {8, 7, 0}, {9, 6, 0}).Scaled(1, 0, "pixels", 1),
    Flag("h_positive", "Horizontal sync positive", 9, 7),
    Whole("h_sync", "Horizontal sync", enKind::enNumber, 10, 2).Scaled(1, 0, "pixels", 1),
    Whole("v_active", "Vertical active", enKind::enNumber, 12, 2).Scaled(1, 0, "lines", 1),
    Whole("v_blank", "Vertical blanking", enKind::enNumber, 14, 2).Scaled(1, 0, "lines", 1),
    Split("v_front", "Vertical front porch", enKind::enNumber, {16, 7, 0}, {17, 6, 0}).Scaled(1, 0, "lines", 1),
    Flag("v_positive", "Vertical sync positive", 17, 7),
    Whole("v_sync", "Vertical sync", enKind::enNumber, 18, 2).Scaled(1, 0, "lines", 1),
};

/// Type VII is type I with another step of the clock.
constexpr SFieldType c_typeVIIClock = Whole("clock", "Pixel clock", enKind::enNumber, 0, 3).Scaled(0.001, 3, "MHz", 0.001);

constexpr SFieldType c_arrTypeVII[] = {
    c_typeVIIClock,
    c_arrTypeI[enTypeIPreferred],
    c_arrTypeI[enTypeIStereo],
    c_arrTypeI[enTypeIInterlaced],
    c_arrTypeI[enTypeIAspect],
    c_arrTypeI[enTypeIHActive],
    c_arrTypeI[enTypeIHBlank],
    c_arrTypeI[enTypeIHFront],
    c_arrTypeI[enTypeIHPositive],
    c_arrTypeI[enTypeIHSync],
    c_arrTypeI[enTypeIVActive],
    c_arrTypeI[enTypeIVBlank],
    c_arrTypeI[enTypeIVFront],
    c_arrTypeI[enTypeIVPositive],
    c_arrTypeI[enTypeIVSync],
};

constexpr SFieldType c_arrProductId[] = {
    Whole("vendor", "Maker", enKind::enText, 3, 3),
    Whole("product", "Product code", enKind::enHex, 6, 2),
    Whole("serial", "Serial number", enKind::enNumber, 8, 4),
    Whole("week", "Week", enKind::enWeek, 12),
    Whole("year", "Year of manufacture", enKind::enNumber, 13).Scaled(1, 0, "", 2000),
    Whole("name_length", "Length of the name", enKind::enNumber, 14).Unit("bytes"),
};

constexpr SFieldType c_arrProductId2[] = {
    Triple("oui", "Organisation", enKind::enOui, 3),
    Whole("product", "Product code", enKind::enHex, 6, 2),
    Whole("serial", "Serial number", enKind::enNumber, 8, 4),
    Whole("week", "Week", enKind::enWeek, 12),
    Whole("year", "Year of manufacture", enKind::enNumber, 13).Scaled(1, 0, "", 2000),
    Whole("name_length", "Length of the name", enKind::enNumber, 14).Unit("bytes"),
};

constexpr SFieldType c_arrParameters[] = {
    Whole("width_mm", "Image width", enKind::enNumber, 3, 2).Scaled(0.1, 1, "mm"),
    Whole("height_mm", "Image height", enKind::enNumber, 5, 2).Scaled(0.1, 1, "mm"),
    Whole("h_native", "Native width", enKind::enNumber, 7, 2).Unit("pixels"),
    Whole("v_native", "Native height", enKind::enNumber, 9, 2).Unit("lines"),
    Flag("audio", "Audio on the video interface", 11, 7),
    Flag("audio_inputs", "Separate audio inputs", 11, 6),
    Flag("audio_override", "Audio input override", 11, 5),
    Flag("power_management", "Power management", 11, 4),
    Flag("fixed_timing", "Fixed timing", 11, 3),
    Flag("fixed_format", "Fixed pixel format", 11, 2),
    Flag("ai", "Takes ACP and ISRC packets", 11, 1),
    Flag("deinterlacing", "Removes interlacing", 11, 0),
    Whole("gamma", "Gamma", enKind::enGamma, 12).Scaled(0.01, 2, "", 1.0),
    Whole("aspect", "Aspect ratio", enKind::enNumber, 13).Scaled(0.01, 2, ":1", 1.0),
    Part("bits_overall", "Bits per colour, overall", enKind::enNumber, 14, 7, 4).Scaled(1, 0, "", 1),
    Part("bits_native", "Bits per colour, native", enKind::enNumber, 14, 3, 0).Scaled(1, 0, "", 1),
};

constexpr SChoice c_arrSomeTiles[] = {
    {0, "undefined"}, {1, "image at the place of its tile"},
};

constexpr SChoice c_arrOneTile[] = {
    {0, "undefined"}, {1, "image at the place of its tile"}, {2, "image over all tiles"}, {3, "image on every tile"},
};

constexpr SFieldType Bezel(const char* szKey, const char* szLabel, int nOffset)
{
    return Whole(szKey, szLabel, enKind::enNumber, nOffset).Scaled(0.1, 1, "");
}

constexpr SFieldType c_arrTiledDisplay[] = {
    Flag("one_enclosure", "One enclosure", 3, 7),
    Flag("bezels", "Bezels are told", 3, 6),
    Part("some_tiles", "When only some tiles get a picture", enKind::enChoice, 3, 4, 3).Of(c_arrSomeTiles),
    Part("one_tile", "When one tile alone gets a picture", enKind::enChoice, 3, 2, 0).Of(c_arrOneTile),
    Split("h_tiles", "Tiles in a row", enKind::enNumber, {4, 7, 4}, {6, 7, 6}).Scaled(1, 0, "", 1),
    Split("v_tiles", "Tiles in a column", enKind::enNumber, {4, 3, 0}, {6, 5, 4}).Scaled(1, 0, "", 1),
    Split("h_place", "Place in the row", enKind::enNumber, {5, 7, 4}, {6, 3, 2}),
    Split("v_place", "Place in the column", enKind::enNumber, {5, 3, 0}, {6, 1, 0}),
    Whole("tile_width", "Width of a tile", enKind::enNumber, 7, 2).Scaled(1, 0, "pixels", 1),
    Whole("tile_height", "Height of a tile", enKind::enNumber, 9, 2).Scaled(1, 0, "lines", 1),
    Whole("bezel_multiplier", "Multiplier of the bezels", enKind::enNumber, 11),
    Bezel("bezel_top", "Top bezel, times the multiplier", 12),
    Bezel("bezel_bottom", "Bottom bezel, times the multiplier", 13),
    Bezel("bezel_right", "Right bezel, times the multiplier", 14),
    Bezel("bezel_left", "Left bezel, times the multiplier", 15),
    Whole("vendor", "Maker", enKind::enText, 16, 3),
    Whole("product", "Product code", enKind::enHex, 19, 2),
    Whole("serial", "Serial number", enKind::enNumber, 21, 4),
};

constexpr SChoice c_arrTags[] = {
    {0x00, "Product identification"}, {0x01, "Display parameters"}, {0x02, "Colour characteristics"},
    {0x03, "Type I timings, detailed"}, {0x04, "Type II timings, detailed"}, {0x05, "Type III timings, short"},
    {0x06, "Type IV timings, DMT numbers"}, {0x07, "VESA timing standard"}, {0x08, "CTA timing standard"},
    {0x09, "Video timing range limits"}, {0x0A, "Product serial number"}, {0x0B, "Text"},
    {0x0C, "Display device data"}, {0x0D, "Interface power sequencing"}, {0x0E, "Transfer characteristics"},
    {0x0F, "Display interface"}, {0x10, "Stereo display interface"}, {0x11, "Type V timings, short"},
    {0x12, "Tiled display topology"}, {0x13, "Type VI timings, detailed"},
    {0x20, "Product identification (2.0)"}, {0x21, "Display parameters (2.0)"}, {0x22, "Type VII timings, detailed"},
    {0x23, "Type VIII timings, enumerated"}, {0x24, "Type IX timings, formula"}, {0x25, "Dynamic video timing range"},
    {0x26, "Display interface features"}, {0x27, "Stereo display interface (2.0)"}, {0x28, "Tiled display topology (2.0)"},
    {0x29, "Container ID"}, {0x2A, "Type X timings, formula"}, {0x2B, "Adaptive sync"},
    {0x7E, "Vendor data (2.0)"}, {0x7F, "Vendor data"}, {0x81, "CTA DisplayID data"},
};
// clang-format on

} // namespace

const SLayout c_layoutSection = c_arrSection;
const SLayout c_layoutDataBlock = c_arrDataBlock;
const SLayout c_layoutTypeI = c_arrTypeI;
const SLayout c_layoutTypeVII = c_arrTypeVII;
const SLayout c_layoutProductId = c_arrProductId;
const SLayout c_layoutProductId2 = c_arrProductId2;
const SLayout c_layoutParameters = c_arrParameters;
const SLayout c_layoutTiledDisplay = c_arrTiledDisplay;

const char* DisplayIdBlockName(quint8 byTag)
{
    const char* szName = SChoices{c_arrTags, int(std::size(c_arrTags))}.Name(byTag);
    return szName == nullptr ? "Data block" : szName;
}

} // namespace Edid
