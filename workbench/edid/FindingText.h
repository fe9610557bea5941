#ifndef WORKBENCH_EDID_FINDINGTEXT_H
#define WORKBENCH_EDID_FINDINGTEXT_H

#include "instruments/edid/Rules.h"

/// The words of findings in the current language.
namespace FindingText {

/// What is wrong, with its numbers.
QString Wrong(const Edid::SFinding& finding);
/// What to do.
QString Remedy(const Edid::SFinding& finding);
/// Whether the table has the rule at its index.
bool HasWords(Edid::enRule rule);

} // namespace FindingText

#endif // WORKBENCH_EDID_FINDINGTEXT_H
