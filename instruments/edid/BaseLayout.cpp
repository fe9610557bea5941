#include "instruments/edid/BaseLayout.h"

namespace Edid {

namespace {

// clang-format off

constexpr SChoice c_arrLevels[] = {
    {0, "0.700 V, sync -0.300 V"},
    {1, "0.714 V, sync -0.286 V"},
    {2, "1.000 V, sync -0.400 V"},
    {3, "0.700 V, sync 0 V"},
};

constexpr SChoice c_arrBitDepths[] = {
    {0, "undefined"}, {1, "6"}, {2, "8"}, {3, "10"}, {4, "12"}, {5, "14"}, {6, "16"},
};

constexpr SChoice c_arrInterfaces[] = {
    {0, "undefined"}, {1, "DVI"}, {2, "HDMI-a"}, {3, "HDMI-b"}, {4, "MDDI"}, {5, "DisplayPort"},
};

constexpr SChoice c_arrDisplayTypes[] = {
    {0, "monochrome"}, {1, "RGB colour"}, {2, "other than RGB"}, {3, "undefined"},
};

constexpr SChoice c_arrEncodings[] = {
    {0, "RGB 4:4:4"}, {1, "RGB 4:4:4, YCbCr 4:4:4"}, {2, "RGB 4:4:4, YCbCr 4:2:2"},
    {3, "RGB 4:4:4, YCbCr 4:4:4, YCbCr 4:2:2"},
};

constexpr SFieldType Coordinate(const char* szKey, const char* szLabel, SBits low, quint8 byHigh)
{
    return Split(szKey, szLabel, enKind::enNumber, low, {byHigh, 7, 0}).Scaled(1.0 / 1024.0, 4, "");
}

/// Sections 3.3 to 3.7 and 3.11.
constexpr SFieldType c_arrBase[] = {
    Whole("header", "Header", enKind::enBytes, 0x00, 8),
    Split("maker", "Maker", enKind::enMaker, {0x09, 7, 0}, {0x08, 7, 0}),
    Whole("product", "Product code", enKind::enHex, 0x0A, 2),
    Whole("serial", "Serial number", enKind::enNumber, 0x0C, 4),
    Whole("week", "Week", enKind::enWeek, 0x10),
    Whole("year", "Year of manufacture", enKind::enNumber, 0x11).Scaled(1, 0, "", 1990).When(enYearMade),
    Whole("model_year", "Model year", enKind::enNumber, 0x11).Scaled(1, 0, "", 1990).When(enModelYear),
    Whole("version", "Version", enKind::enNumber, 0x12),
    Whole("revision", "Revision", enKind::enNumber, 0x13),
    Part("digital", "Digital input", enKind::enFlag, 0x14, 7, 7),
    Part("levels", "Signal levels", enKind::enChoice, 0x14, 6, 5).When(enAnalog).Of(c_arrLevels),
    Flag("setup", "Blank-to-black setup", 0x14, 4).When(enAnalog),
    Flag("separate_sync", "Separate sync", 0x14, 3).When(enAnalog),
    Flag("composite_sync", "Composite sync", 0x14, 2).When(enAnalog),
    Flag("sync_on_green", "Sync on green", 0x14, 1).When(enAnalog),
    Flag("serration", "Serration on vertical sync", 0x14, 0).When(enAnalog),
    Flag("dfp", "DFP 1.x compatible", 0x14, 0).When(enDigital | enBefore14),
    Part("bit_depth", "Bits per primary", enKind::enChoice, 0x14, 6, 4).When(enDigital | enFrom14).Of(c_arrBitDepths),
    Part("interface", "Interface", enKind::enChoice, 0x14, 3, 0).When(enDigital | enFrom14).Of(c_arrInterfaces),
    Whole("width_cm", "Width", enKind::enNumber, 0x15).Unit("cm").When(enSizeInCm),
    Whole("height_cm", "Height", enKind::enNumber, 0x16).Unit("cm").When(enSizeInCm),
    Whole("landscape", "Aspect ratio, landscape", enKind::enNumber, 0x15).Scaled(0.01, 2, ":1", 0.99).When(enLandscape),
    Whole("portrait", "Aspect ratio, portrait", enKind::enNumber, 0x16).Scaled(0.01, 2, ":1", 0.99).When(enPortrait),
    Whole("gamma", "Gamma", enKind::enGamma, 0x17).Scaled(0.01, 2, "", 1.0),
    Flag("standby", "Stand-by", 0x18, 7),
    Flag("suspend", "Suspend", 0x18, 6),
    Flag("active_off", "Active off", 0x18, 5),
    Part("display_type", "Display type", enKind::enChoice, 0x18, 4, 3).When(enAnalog).Of(c_arrDisplayTypes),
    Part("colour_encoding", "Colour encodings", enKind::enChoice, 0x18, 4, 3).When(enDigital | enFrom14).Of(c_arrEncodings),
    Flag("srgb", "sRGB is the default colour space", 0x18, 2),
    Flag("preferred_first", "First detailed timing is preferred", 0x18, 1).When(enBefore14),
    Flag("preferred_native", "Preferred timing has the native format and rate", 0x18, 1).When(enFrom14),
    Flag("default_gtf", "Supports GTF", 0x18, 0).When(enBefore14),
    Flag("continuous", "Continuous frequency", 0x18, 0).When(enFrom14),
    Coordinate("red_x", "Red x", {0x19, 7, 6}, 0x1B),
    Coordinate("red_y", "Red y", {0x19, 5, 4}, 0x1C),
    Coordinate("green_x", "Green x", {0x19, 3, 2}, 0x1D),
    Coordinate("green_y", "Green y", {0x19, 1, 0}, 0x1E),
    Coordinate("blue_x", "Blue x", {0x1A, 7, 6}, 0x1F),
    Coordinate("blue_y", "Blue y", {0x1A, 5, 4}, 0x20),
    Coordinate("white_x", "White x", {0x1A, 3, 2}, 0x21),
    Coordinate("white_y", "White y", {0x1A, 1, 0}, 0x22),
    Whole("extensions", "Extension blocks", enKind::enNumber, 0x7E),
    Whole("checksum", "Checksum", enKind::enChecksum, 0x7F),
};

/// The low bit is the flags' bit 0, the others are bits 6 and 5.
constexpr SChoice c_arrStereo[] = {
    {0, "none"}, {1, "none"},
    {2, "field sequential, right on sync"}, {3, "two-way interleaved, right on even lines"},
    {4, "field sequential, left on sync"}, {5, "two-way interleaved, left on even lines"},
    {6, "four-way interleaved"}, {7, "side by side"},
};

constexpr SChoice c_arrSyncTypes[] = {
    {0, "analog composite"}, {1, "bipolar analog composite"}, {2, "digital composite"}, {3, "digital separate"},
};

constexpr SFieldType c_arrDetailed[] = {
    Whole("clock", "Pixel clock", enKind::enNumber, 0, 2).Scaled(0.01, 2, "MHz"),
    Split("h_active", "Horizontal active", enKind::enNumber, {2, 7, 0}, {4, 7, 4}).Unit("pixels"),
    Split("h_blank", "Horizontal blanking", enKind::enNumber, {3, 7, 0}, {4, 3, 0}).Unit("pixels"),
    Split("v_active", "Vertical active", enKind::enNumber, {5, 7, 0}, {7, 7, 4}).Unit("lines"),
    Split("v_blank", "Vertical blanking", enKind::enNumber, {6, 7, 0}, {7, 3, 0}).Unit("lines"),
    Split("h_front", "Horizontal front porch", enKind::enNumber, {8, 7, 0}, {11, 7, 6}).Unit("pixels"),
    Split("h_sync", "Horizontal sync", enKind::enNumber, {9, 7, 0}, {11, 5, 4}).Unit("pixels"),
    Split("v_front", "Vertical front porch", enKind::enNumber, {10, 7, 4}, {11, 3, 2}).Unit("lines"),
    Split("v_sync", "Vertical sync", enKind::enNumber, {10, 3, 0}, {11, 1, 0}).Unit("lines"),
    Split("width_mm", "Image width", enKind::enNumber, {12, 7, 0}, {14, 7, 4}).Unit("mm"),
    Split("height_mm", "Image height", enKind::enNumber, {13, 7, 0}, {14, 3, 0}).Unit("mm"),
    Whole("h_border", "Horizontal border", enKind::enNumber, 15).Unit("pixels"),
    Whole("v_border", "Vertical border", enKind::enNumber, 16).Unit("lines"),
    Flag("interlaced", "Interlaced", 17, 7),
    Split("stereo", "Stereo", enKind::enChoice, {17, 0, 0}, {17, 6, 5}).Of(c_arrStereo),
    Part("sync", "Sync", enKind::enChoice, 17, 4, 3).Of(c_arrSyncTypes),
    Flag("v_positive", "Vertical sync positive", 17, 2).When(enSeparateSync),
    Flag("serrations", "Serrations", 17, 2).When(enCompositeSync),
    Flag("h_positive", "Horizontal sync positive", 17, 1),
    Flag("sync_on_rgb", "Sync on all three lines", 17, 1).When(enAnalogSync),
};

constexpr SChoice c_arrOffsets[] = {
    {0, "none"}, {1, "reserved"}, {2, "maximum +255"}, {3, "maximum and minimum +255"},
};

constexpr SChoice c_arrFormulas[] = {
    {0, "default GTF, or none"}, {1, "range limits only"}, {2, "secondary GTF"}, {4, "CVT"},
};

constexpr SChoice c_arrCvtAspects[] = {
    {0, "4:3"}, {1, "16:9"}, {2, "16:10"}, {3, "5:4"}, {4, "15:9"},
};

constexpr SFieldType c_arrRange[] = {
    Part("v_offsets", "Vertical offsets", enKind::enChoice, 4, 1, 0).When(enFrom14).Of(c_arrOffsets),
    Part("h_offsets", "Horizontal offsets", enKind::enChoice, 4, 3, 2).When(enFrom14).Of(c_arrOffsets),
    Whole("v_min", "Lowest vertical rate", enKind::enNumber, 5).Unit("Hz"),
    Whole("v_max", "Highest vertical rate", enKind::enNumber, 6).Unit("Hz"),
    Whole("h_min", "Lowest horizontal rate", enKind::enNumber, 7).Unit("kHz"),
    Whole("h_max", "Highest horizontal rate", enKind::enNumber, 8).Unit("kHz"),
    Whole("clock_max", "Highest pixel clock", enKind::enNumber, 9).Scaled(10, 0, "MHz"),
    Whole("formula", "Formula", enKind::enChoice, 10).Of(c_arrFormulas),
    Whole("cvt_version", "CVT version", enKind::enHex, 11).When(enCvtFormula),
    Part("cvt_clock_cut", "Clock below the highest", enKind::enNumber, 12, 7, 2).Scaled(0.25, 2, "MHz").When(enCvtFormula),
    Split("cvt_active_max", "Longest active line", enKind::enNumber, {13, 7, 0}, {12, 1, 0}).Scaled(8, 0, "pixels").When(enCvtFormula),
    Flag("cvt_4_3", "Aspect 4:3", 14, 7).When(enCvtFormula),
    Flag("cvt_16_9", "Aspect 16:9", 14, 6).When(enCvtFormula),
    Flag("cvt_16_10", "Aspect 16:10", 14, 5).When(enCvtFormula),
    Flag("cvt_5_4", "Aspect 5:4", 14, 4).When(enCvtFormula),
    Flag("cvt_15_9", "Aspect 15:9", 14, 3).When(enCvtFormula),
    Part("cvt_preferred", "Preferred aspect", enKind::enChoice, 15, 7, 5).When(enCvtFormula).Of(c_arrCvtAspects),
    Flag("cvt_reduced", "Reduced blanking", 15, 4).When(enCvtFormula),
    Flag("cvt_normal", "Standard blanking", 15, 3).When(enCvtFormula),
    Flag("cvt_h_shrink", "Horizontal shrink", 16, 7).When(enCvtFormula),
    Flag("cvt_h_stretch", "Horizontal stretch", 16, 6).When(enCvtFormula),
    Flag("cvt_v_shrink", "Vertical shrink", 16, 5).When(enCvtFormula),
    Flag("cvt_v_stretch", "Vertical stretch", 16, 4).When(enCvtFormula),
    Whole("cvt_rate", "Preferred vertical rate", enKind::enNumber, 17).Unit("Hz").When(enCvtFormula),
    Whole("gtf_start", "Secondary curve starts at", enKind::enNumber, 12).Scaled(2, 0, "kHz").When(enGtfFormula),
    Whole("gtf_c", "C", enKind::enNumber, 13).Scaled(0.5, 1, "").When(enGtfFormula),
    Whole("gtf_m", "M", enKind::enNumber, 14, 2).When(enGtfFormula),
    Whole("gtf_k", "K", enKind::enNumber, 16).When(enGtfFormula),
    Whole("gtf_j", "J", enKind::enNumber, 17).Scaled(0.5, 1, "").When(enGtfFormula),
    Whole("padding", "Padding", enKind::enBytes, 11, 7).When(enNoFormula),
};

constexpr SFieldType c_arrWhitePoint[] = {
    Whole("index", "Index", enKind::enNumber, 0),
    Split("x", "White x", enKind::enNumber, {1, 3, 2}, {2, 7, 0}).Scaled(1.0 / 1024.0, 4, ""),
    Split("y", "White y", enKind::enNumber, {1, 1, 0}, {3, 7, 0}).Scaled(1.0 / 1024.0, 4, ""),
    Whole("gamma", "Gamma", enKind::enGamma, 4).Scaled(0.01, 2, "", 1.0),
};

constexpr SFieldType c_arrColour[] = {
    Whole("version", "Version", enKind::enNumber, 5),
    Whole("red_a3", "Red a3", enKind::enNumber, 6, 2).Scaled(0.01, 2, ""),
    Whole("red_a2", "Red a2", enKind::enNumber, 8, 2).Scaled(0.01, 2, ""),
    Whole("green_a3", "Green a3", enKind::enNumber, 10, 2).Scaled(0.01, 2, ""),
    Whole("green_a2", "Green a2", enKind::enNumber, 12, 2).Scaled(0.01, 2, ""),
    Whole("blue_a3", "Blue a3", enKind::enNumber, 14, 2).Scaled(0.01, 2, ""),
    Whole("blue_a2", "Blue a2", enKind::enNumber, 16, 2).Scaled(0.01, 2, ""),
};

constexpr SFieldType c_arrName[] = {Whole("name", "Name", enKind::enText, c_nContentOffset, c_nContentSize)};
constexpr SFieldType c_arrSerial[] = {Whole("serial_text", "Serial number", enKind::enText, c_nContentOffset, c_nContentSize)};
constexpr SFieldType c_arrText[] = {Whole("text", "Text", enKind::enText, c_nContentOffset, c_nContentSize)};
// clang-format on

} // namespace

const SLayout c_layoutBase = c_arrBase;
const SLayout c_layoutDetailed = c_arrDetailed;
const SLayout c_layoutRange = c_arrRange;
const SLayout c_layoutWhitePoint = c_arrWhitePoint;
const SLayout c_layoutColour = c_arrColour;
const SLayout c_layoutName = c_arrName;
const SLayout c_layoutSerial = c_arrSerial;
const SLayout c_layoutText = c_arrText;

} // namespace Edid
