#ifndef WORKBENCH_EDID_EDIDWORDTABLE_H
#define WORKBENCH_EDID_EDIDWORDTABLE_H

/// The decoder's English texts with the source texts of their translations, which are looked up in the
/// context `CEdidWords`.
namespace EdidWordTable {

/// A text of the decoder, and the source text that says the same.
struct SWord
{
    const char* szEnglish;
    const char* szChinese;
};

/// A table to walk.
struct SEntries
{
    const SWord* pFirst;
    const SWord* pEnd;

    const SWord* begin() const { return pFirst; }
    const SWord* end() const { return pEnd; }
};

/// What the decoder calls fields, blocks, values and units.
SEntries Words();
/// What stands within values, in the order in which it is replaced.
SEntries Phrases();

} // namespace EdidWordTable

#endif // WORKBENCH_EDID_EDIDWORDTABLE_H
