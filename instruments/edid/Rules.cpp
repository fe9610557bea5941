#include "instruments/edid/Rules.h"

#include <algorithm>
#include <array>

namespace Edid {

namespace {

constexpr enSeverity c_error = enSeverity::enError;
constexpr enSeverity c_warning = enSeverity::enWarning;

// clang-format off
/// In the order of `enRule`.
constexpr std::array<SRule, std::size_t(enRule::enCount)> c_arrRules = {{
    {"base.header", c_error, "the block does not begin with 00 FF FF FF FF FF FF 00", "write the header; 'edit --fix' does it"},
    {"product.maker", c_error, "the maker's number does not stand for three letters", "give a maker of three letters A to Z"},
    {"product.week", c_error, "there is no week %1", "give a week from 1 to 53, or 0 for none"},
    {"product.week54", c_error, "week 54 needs EDID 1.4", "give a week from 1 to 53, or 0 for none"},
    {"product.model_year", c_error, "the mark of a model year needs EDID 1.4", "give a week, or 0 for none"},
    {"product.year", c_error, "the year %1 lies in the future", "give the year in which the display was made"},
    {"base.version", c_error, "the version is %1 and not 1", "write version 1"},
    {"input.bit_depth", c_error, "the colour depth has a reserved value", "give a depth of 6 to 16 bits, or 0 for undefined"},
    {"input.interface", c_error, "the interface has the reserved value %1", "clear the reserved bits of the video input"},
    {"features.preferred", c_error, "EDID 1.3 requires that the first detailed timing is the preferred one", "set bit 1 of the features"},
    {"features.srgb", c_error, "sRGB is the default colour space, but the chromaticities are others", "clear bit 2 of the features, or give the primaries of sRGB"},
    {"standard.unused", c_error, "an unused standard timing is written as %1 and not as 01 01", "write 01 01"},
    {"detailed.missing", c_error, "the first descriptor is no detailed timing", "put the preferred timing into the first descriptor"},
    {"descriptor.age", c_error, "EDID 1.0 has no display descriptors", "write revision 3 or 4"},
    {"descriptor.reserved", c_error, "byte %1 of a display descriptor is %2 and not 0", "write 0"},
    {"descriptor.tag", c_error, "the descriptor's tag %1 is reserved", "use a tag of the standard, or 10 for an unused descriptor"},
    {"descriptor.order", c_error, "a detailed timing stands behind a display descriptor", "put the detailed timings first"},
    {"detailed.clock", c_error, "the pixel clock is below 10 MHz", "give the clock of the timing"},
    {"detailed.zero", c_error, "a part of the timing is 0", "give active size, blanking, front porch and sync of both directions"},
    {"detailed.h_porch", c_error, "nothing is left for the horizontal back porch", "make the horizontal blanking longer than front porch, sync and borders"},
    {"detailed.v_porch", c_error, "nothing is left for the vertical back porch", "make the vertical blanking longer than front porch, sync and borders"},
    {"detailed.size_missing", c_error, "the timing gives no image size, but the display has one", "give the image size in millimetres"},
    {"detailed.size", c_error, "the image size of the timing is not that of the display", "give the same size in both places"},
    {"display.size", c_error, "a timing gives an image size, but the display has none", "give the size of the display in centimetres"},
    {"detailed.borders", c_warning, "the timing has borders", "write 0 for both borders"},
    {"text.empty", c_error, "the text is empty", "write a text, or make the descriptor an unused one"},
    {"text.character", c_error, "the text holds the byte %1, which is no printable character", "use printable ASCII characters"},
    {"text.spaces", c_error, "the text ends in blanks", "end the text with 0A; blanks follow behind it"},
    {"name.terminator", c_error, "what follows the end of the text is not all blanks", "fill the descriptor with 20 behind the 0A"},
    {"name.missing", c_error, "the block has no name of the display", "add a descriptor with the name"},
    {"dummy.content", c_error, "an unused descriptor is not all zeros", "write zeros"},
    {"established.age", c_error, "established timings III need EDID 1.4", "write revision 4, or remove the descriptor"},
    {"cvt.age", c_error, "CVT codes need EDID 1.4", "write revision 4, or remove the descriptor"},
    {"cvt.version", c_error, "the version of the CVT codes is %1 and not 1", "write 1"},
    {"cvt.reserved", c_error, "a CVT code has a reserved value", "clear the reserved bits, and give a number of lines"},
    {"cvt.rate", c_error, "a CVT code supports no rate", "set one of the five rates"},
    {"cvt.preferred", c_error, "the preferred rate of a CVT code is not supported", "prefer a rate that is supported"},
    {"range.missing", c_error, "the block has no range limits", "add a descriptor with the range limits"},
    {"range.vertical", c_error, "the lowest vertical rate is above the highest", "give the lower rate first"},
    {"range.horizontal", c_error, "the lowest horizontal rate is above the highest", "give the lower rate first"},
    {"range.clock", c_error, "the range limits of EDID 1.4 give no highest clock", "give the highest clock in steps of 10 MHz"},
    {"range.formula", c_error, "the formula %1 is reserved", "use 1 for no formula in EDID 1.4, 0 before"},
    {"range.age", c_error, "the formula %1 needs EDID 1.4", "write 0, or revision 4"},
    {"range.continuous", c_error, "a formula needs a display of continuous frequency", "write 1 for range limits alone, or set bit 0 of the features"},
    {"range.padding", c_error, "the range limits end in other bytes than the formula asks for", "write 0A and six times 20, or 00 before the numbers of a secondary curve"},
    {"range.reserved", c_error, "reserved bits of the CVT limits are set", "clear bits 2 to 0 of bytes 14 and 15, and bits 3 to 0 of byte 16"},
    {"range.timings", c_error, "a timing of the block lies outside the range limits", "widen the limits; 'auto' finds them"},
    {"range.modes", c_warning, "a timing of the block lies outside the range limits", "widen the limits; 'auto' finds them"},
    {"base.extensions", c_error, "the block announces %1 extension blocks, but there are %2", "write the number of blocks; 'edit --fix' does it"},
    {"base.checksum", c_error, "the checksum is %1 and should be %2", "write the checksum; 'edit --fix' does it"},
    {"extension.tag", c_warning, "the extension's tag %1 is not known", "see whether the bytes are whole"},
    {"cta.revision", c_error, "the extension has revision %1, which nothing uses", "write revision 3"},
    {"cta.timings", c_error, "the detailed timings of the extension begin at byte %1, where none can be", "give 0, or a byte from 4 to 127"},
    {"cta.flags", c_error, "byte 3 is %1, but %2 in the first extension of this kind", "write the same flags and number of native timings into each"},
    {"cta.flags_age", c_error, "byte 3 is %1, but revision 1 has no flags", "write 0, or revision 3"},
    {"cta.native_count", c_error, "%1 detailed timings are called native, but there are %2", "give at most the number of detailed timings"},
    {"cta.block", c_error, "a data block is longer than the room before the detailed timings", "correct its length"},
    {"cta.block_short", c_error, "a data block has %1 bytes of content and needs at least %2", "complete the data block, or remove it"},
    {"cta.block_twice", c_error, "there is a second data block of a kind of which there may be only one", "remove one of them"},
    {"cta.scan", c_error, "the data block contradicts the flag for underscanned IT formats", "set or clear bit 7 of byte 3 to agree with it"},
    {"audio.basic", c_error, "there is data about audio, but the flag of basic audio is clear", "set bit 6 of byte 3"},
    {"audio.length", c_error, "the %1 bytes of an audio data block are not whole formats of three bytes", "correct its length"},
    {"audio.format", c_error, "the audio format 0 is reserved", "give a format from 1 to 15"},
    {"audio.reserved", c_error, "reserved bits of an audio format are set", "clear bit 7 of its second byte, and for linear PCM bits 7 to 3 of the third"},
    {"video.code", c_error, "the video code %1 is reserved", "use a code from 1 to 127 or 193 to 219"},
    {"video.twice", c_error, "the video code %1 is listed before", "list each code once"},
    {"video.only_420", c_error, "the video code %1 is listed as 4:2:0 only and as a regular one", "keep one of the two"},
    {"hdmi.clock", c_error, "the highest TMDS clock of %1 MHz is above 340 MHz", "give at most 340 MHz here, and more in the data block of the HDMI Forum"},
    {"hdmi.forum_clock", c_error, "the highest TMDS rate of %1 MHz is not above 340 MHz and up to 600 MHz", "give such a rate, or 0 for none above 340 MHz"},
    {"hdmi.forum_place", c_error, "the data block of the HDMI Forum does not follow that of HDMI", "put it directly behind the vendor block with 00-0C-03"},
    {"hdmi.forum_twice", c_error, "there is a second data block of the HDMI Forum", "remove one of them"},
    {"cta.padding", c_error, "the bytes behind the detailed timings are not all zeros", "write zeros"},
    {"displayid.length", c_error, "the section of %1 bytes does not fit its block", "a section of one block has at most 121 bytes"},
    {"displayid.product", c_error, "the section cannot have the product type %1", "give the type of the product in the first section, and 0 in those that follow"},
    {"displayid.sections", c_error, "the section announces %1 that follow, but there are %2", "write the number of sections that follow"},
    {"displayid.missing", c_error, "the data block with the tag %1, which such a product needs, is missing", "add the data block"},
    {"displayid.preferred", c_error, "no timing of the sections is the preferred one", "mark a timing as preferred"},
    {"displayid.age", c_error, "the tag %1 belongs to another version of DisplayID", "use a data block of the section's version"},
    {"displayid.block_length", c_error, "the data block has %1 bytes of content instead of %2", "correct the length and the content"},
    {"displayid.order", c_error, "the product identification is not the first data block", "put it first"},
    {"displayid.block_twice", c_error, "the display parameters are given twice", "remove one of the two data blocks"},
    {"displayid.reserved", c_error, "stereo or aspect ratio of the timing has a reserved value", "give one of the values of the standard"},
    {"displayid.block", c_error, "a data block is longer than the rest of its section", "correct its length"},
    {"displayid.filler", c_error, "the bytes behind the data blocks are not all zeros", "write zeros"},
    {"displayid.checksum", c_error, "the checksum of the section is %1 and should be %2", "write the checksum; 'edit --fix' does it"},
    {"displayid.padding", c_error, "the bytes behind the section are not all zeros", "write zeros"},
}};
// clang-format on

/// Rules whose numbers are bytes.
bool ShowsBytes(enRule rule)
{
    constexpr enRule c_arrBytes[] = {
        enRule::enDescriptorTag, enRule::enTextCharacter,   enRule::enChecksum,
        enRule::enExtensionTag,  enRule::enSectionChecksum, enRule::enCtaFlags,
        enRule::enCtaFlagsAge,   enRule::enSectionMissing,  enRule::enSectionAge};
    return std::find(std::begin(c_arrBytes), std::end(c_arrBytes), rule) != std::end(c_arrBytes);
}

QString Hex(int nValue, int nDigits)
{
    return QStringLiteral("%1").arg(nValue, nDigits, 16, QLatin1Char('0')).toUpper();
}

QString FirstText(const SFinding& finding)
{
    constexpr int c_nByteMask = 0xFF;
    if (finding.rule == enRule::enStandardUnused)
        return QStringLiteral("%1 %2").arg(Hex(finding.nFirst >> 8, 2), Hex(finding.nFirst & c_nByteMask, 2));
    return ShowsBytes(finding.rule) ? Hex(finding.nFirst, 2) : QString::number(finding.nFirst);
}

QString SecondText(const SFinding& finding)
{
    const bool bByte = ShowsBytes(finding.rule) || finding.rule == enRule::enDescriptorReserved;
    return bByte ? Hex(finding.nSecond, 2) : QString::number(finding.nSecond);
}

} // namespace

const SRule& RuleOf(enRule rule)
{
    return c_arrRules[std::size_t(rule)];
}

QString WrongText(const SFinding& finding)
{
    return WithNumbers(QString::fromLatin1(RuleOf(finding.rule).szWrong), finding);
}

QString WithNumbers(QString strText, const SFinding& finding)
{
    return strText.replace(QLatin1String("%1"), FirstText(finding))
        .replace(QLatin1String("%2"), SecondText(finding));
}

QString RemedyText(const SFinding& finding)
{
    return QString::fromLatin1(RuleOf(finding.rule).szRemedy);
}

bool HasErrors(const std::vector<SFinding>& vecFindings)
{
    return std::any_of(vecFindings.begin(), vecFindings.end(), [](const SFinding& finding) {
        return RuleOf(finding.rule).severity == enSeverity::enError;
    });
}

} // namespace Edid
