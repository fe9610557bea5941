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

const char* DisplayIdBlockName(quint8 byTag)
{
    const char* szName = SChoices{c_arrTags, int(std::size(c_arrTags))}.Name(byTag);
    return szName == nullptr ? "Data block" : szName;
}

} // namespace Edid
