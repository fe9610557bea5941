#ifndef INSTRUMENTS_EDID_CHECKCONTEXT_H
#define INSTRUMENTS_EDID_CHECKCONTEXT_H

#include "instruments/edid/FieldType.h"
#include "instruments/edid/Rules.h"

#include <bitset>

namespace Edid {

/// What a check looks at and where it writes.
class CCheckContext
{
public:
    CCheckContext(const quint8* pBytes, int nSize, const SCheckOptions& options,
                  std::vector<SFinding>& vecFindings)
        : m_pBytes(pBytes)
        , m_nSize(nSize)
        , m_options(options)
        , m_vecFindings(vecFindings)
    {}

    const quint8* At(int nOffset) const { return m_pBytes + nOffset; }
    int Size() const { return m_nSize; }
    const SCheckOptions& Options() const { return m_options; }

    /// The value of a row, as a number.
    int Raw(const SFieldType& type, int nRecord) const { return int(Get(m_pBytes + nRecord, type)); }

    /// Notes a finding at the bytes of a row.
    void Add(enRule rule, const SFieldType& type, int nRecord, int nFirst = 0, int nSecond = 0)
    {
        AddBytes(rule, nRecord + type.nOffset, type.nSize, nFirst, nSecond);
    }
    void AddBytes(enRule rule, int nOffset, int nSize, int nFirst = 0, int nSecond = 0)
    {
        m_vecFindings.push_back({rule, nOffset, nSize, nFirst, nSecond});
    }

private:
    const quint8* m_pBytes;
    int m_nSize;
    const SCheckOptions& m_options;
    std::vector<SFinding>& m_vecFindings;
};

/// What the CTA extensions before one have told.
struct SCtaSeen
{
    int nFirstBlock = 0;              ///< where the first extension begins; 0 before there is any
    std::bitset<256> setCodes;        ///< video codes that are offered
    std::bitset<256> setCodes420;     ///< video codes that are offered as 4:2:0 only
    std::bitset<256> setTags;         ///< of data blocks
    std::bitset<256> setExtendedTags; ///< of extended data blocks
    bool bHdmiForum = false;          ///< whether there is a block of the HDMI Forum
};

/// What the DisplayID sections before one have told.
struct SSectionsSeen
{
    int nFirstBlock = 0;      ///< where the first extension begins; 0 before there is any
    std::bitset<256> setTags; ///< of data blocks
};

/// @name Judging one block, which begins at an offset
/// @{
void CheckBase(CCheckContext& context);
void CheckCta(CCheckContext& context, SCtaSeen& seen, int nBlock);
void CheckDisplayId(CCheckContext& context, SSectionsSeen& seen, int nBlock);
/// An 18-byte detailed timing, wherever it stands.
void CheckDetailed(CCheckContext& context, int nRecord);
/// The image size of a detailed timing, beside the size of the display.
void CheckImageSize(CCheckContext& context, int nRecord);
/// @}

} // namespace Edid

#endif // INSTRUMENTS_EDID_CHECKCONTEXT_H
