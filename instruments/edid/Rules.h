#ifndef INSTRUMENTS_EDID_RULES_H
#define INSTRUMENTS_EDID_RULES_H

#include <QString>

#include <vector>

/// @file
/// The rules by which an EDID is judged: names that stay, and texts for whoever has to put it right.

namespace Edid {

/// How bad it is to break a rule.
enum class enSeverity : quint8
{
    enError,   ///< the standards forbid it: computers may refuse the block
    enWarning, ///< allowed, but it causes trouble
};

/// Every rule, in the order of the bytes that it looks at.
enum class enRule : quint8
{
    enHeader,
    enMaker,
    enWeek,
    enWeek54,
    enWeekModelYear,
    enYear,
    enVersion,
    enBitDepth,
    enInterface,
    enPreferredFlag,
    enSrgb,
    enStandardUnused,
    enPreferred,
    enDescriptorAge,
    enDescriptorReserved,
    enDescriptorTag,
    enDescriptorOrder,
    enClock,
    enZero,
    enHorizontalPorch,
    enVerticalPorch,
    enSizeMissing,
    enSizeMismatch,
    enSizeUndeclared,
    enBorders,
    enTextEmpty,
    enTextCharacter,
    enTextSpaces,
    enTextPadding,
    enNameMissing,
    enDummy,
    enEstablishedAge,
    enCvtAge,
    enCvtVersion,
    enCvtReserved,
    enCvtRate,
    enCvtPreferred,
    enRangeMissing,
    enRangeVertical,
    enRangeHorizontal,
    enRangeClock,
    enRangeFormula,
    enRangeAge,
    enRangeContinuous,
    enRangePadding,
    enRangeReserved,
    enRangeTimings,
    enRangeTimings14,
    enExtensions,
    enChecksum,
    enExtensionTag,
    enCtaRevision,
    enCtaOffset,
    enCtaFlags,
    enCtaFlagsAge,
    enCtaNative,
    enCtaBlock,
    enCtaBlockShort,
    enCtaBlockTwice,
    enCtaScan,
    enAudioBasic,
    enAudioLength,
    enAudioFormat,
    enAudioReserved,
    enVideoCode,
    enVideoTwice,
    enVideo420,
    enHdmiClock,
    enHdmiForumClock,
    enHdmiForumPlace,
    enHdmiForumTwice,
    enCtaPadding,
    enSectionLength,
    enSectionProduct,
    enSectionCount,
    enSectionMissing,
    enSectionPreferred,
    enSectionAge,
    enSectionBlockLength,
    enSectionOrder,
    enSectionTwice,
    enSectionReserved,
    enSectionBlock,
    enSectionFiller,
    enSectionChecksum,
    enSectionPadding,
    enCount,
};

/// What a rule says.
struct SRule
{
    const char* szName;   ///< stable, for programs: `range.clock`
    enSeverity severity;  ///< the same for every finding of the rule
    const char* szWrong;  ///< what is wrong; `%1` and `%2` are a finding's numbers
    const char* szRemedy; ///< what to do
};

/// The words of a rule.
const SRule& RuleOf(enRule rule);

/// One place where a rule is broken.
struct SFinding
{
    enRule rule;    ///< the rule that is broken
    qint32 nOffset; ///< of the first byte that is to blame
    qint32 nSize;   ///< bytes
    qint32 nFirst;  ///< number for `%1` of the text
    qint32 nSecond; ///< number for `%2`
};

/// Puts a finding's numbers into a text that holds `%1` and `%2`.
QString WithNumbers(QString strText, const SFinding& finding);
/// What is wrong, with its numbers.
QString WrongText(const SFinding& finding);
/// What to do.
QString RemedyText(const SFinding& finding);

/// What the checks have to be told.
struct SCheckOptions
{
    int nYear = 0; ///< the present one; a display cannot be much younger. 0 does not judge years
};

/// Judges a whole EDID.
/// @param vecFindings  replaced, in the order of the bytes within each block
void Check(const quint8* pBytes, int nSize, const SCheckOptions& options, std::vector<SFinding>& vecFindings);

/// Whether any finding is an error.
bool HasErrors(const std::vector<SFinding>& vecFindings);

} // namespace Edid

#endif // INSTRUMENTS_EDID_RULES_H
