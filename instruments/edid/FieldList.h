#ifndef INSTRUMENTS_EDID_FIELDLIST_H
#define INSTRUMENTS_EDID_FIELDLIST_H

#include "instruments/edid/Explanation.h"
#include "instruments/edid/ModeTiming.h"

namespace Edid {

/// Puts fields into an explanation, level by level.
class CFieldList
{
public:
    CFieldList(const quint8* pBytes, std::vector<SField>& vecFields)
        : m_pBytes(pBytes)
        , m_vecFields(vecFields)
    {}

    const quint8* At(int nOffset) const { return m_pBytes + nOffset; }

    /// Begins a group, or a record with a value of its own: what follows lies in it until `Close`.
    void Open(const SFieldType& type, int nOffset, int nSize, int nIndex = 0, qint64 nRaw = 0);
    void Close() { --m_byDepth; }

    /// The field of a row.
    /// @param nRecord  where its record begins
    void Row(const SFieldType& type, int nRecord, int nIndex = 0);
    /// Rows from one to another of a layout, each whose conditions hold.
    void Rows(const SLayout& layout, int nFirst, int nLast, int nRecord, quint32 nConditions);
    /// All rows of a layout whose conditions hold and that a short record has room for.
    void Record(const SLayout& layout, int nRecord, int nSize, quint32 nConditions = enAlways);
    /// `Record` up to an end.
    /// @return where the last of its rows ends; `nRecord` when there is none
    int RecordTo(const SLayout& layout, int nRecord, int nEnd, quint32 nConditions = enAlways);
    /// A number that is calculated from a record.
    void Calculated(const SFieldType& type, int nRecord, int nSize, double dValue);
    /// Bytes that are not looked into; nothing for none.
    void Bytes(const SFieldType& type, int nOffset, int nSize);
    /// The rates of a timing and its modeline.
    /// @param modeline  how the line is made of the record
    void Rates(const SModeTiming& timing, int nRecord, int nSize, enKind modeline = enKind::enModeline);

    /// The field that was put last, to adjust its number.
    SField& Last() { return m_vecFields.back(); }

private:
    void Add(const SFieldType& type, int nOffset, int nSize, int nIndex, qint64 nRaw, double dValue);

    const quint8* m_pBytes;
    std::vector<SField>& m_vecFields;
    quint8 m_byDepth = 0;
};

/// @name Explaining one block, which begins at an offset
/// @{
void ExplainBase(CFieldList& list, int nBlock);
void ExplainCta(CFieldList& list, int nBlock);
void ExplainDisplayId(CFieldList& list, int nBlock);
/// An 18-byte detailed timing's rows.
void ExplainDetailed(CFieldList& list, int nRecord);
/// A 20-byte type I timing's rows.
void ExplainTypeI(CFieldList& list, int nRecord);
/// A 20-byte type VII timing's rows.
void ExplainTypeVII(CFieldList& list, int nRecord);
/// @}

/// @name Rows that every block has
/// @{
extern const SFieldType c_fieldTag;
extern const SFieldType c_fieldChecksum;
extern const SFieldType c_fieldUnexplained;
extern const SFieldType c_fieldPadding;
extern const SFieldType c_fieldMode;
/// @}

} // namespace Edid

#endif // INSTRUMENTS_EDID_FIELDLIST_H
