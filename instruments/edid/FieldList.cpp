#include "instruments/edid/FieldList.h"

#include "instruments/edid/Checksum.h"

#include <algorithm>

namespace Edid {

namespace {

constexpr SFieldType c_fieldLineRate =
    Title("line_rate", "Line rate", enKind::enReal).Scaled(0.001, 3, "kHz");
constexpr SFieldType c_fieldRate = Title("rate", "Rate", enKind::enReal).Scaled(1.0, 4, "Hz");
constexpr SFieldType c_fieldModeline = Title("modeline", "Modeline", enKind::enModeline);
constexpr SFieldType c_fieldTypeVIIModeline = Title("modeline", "Modeline", enKind::enTypeVIIModeline);

} // namespace

const SFieldType c_fieldTag = Whole("tag", "Tag", enKind::enHex, 0);
const SFieldType c_fieldChecksum = Whole("checksum", "Checksum", enKind::enChecksum, c_nChecksumOffset);
const SFieldType c_fieldUnexplained = Title("bytes", "Bytes", enKind::enBytes);
const SFieldType c_fieldPadding = Title("padding", "Padding", enKind::enBytes);
const SFieldType c_fieldMode = Title("timing", "Detailed timing", enKind::enMode);

void CFieldList::Add(const SFieldType& type, int nOffset, int nSize, int nIndex, qint64 nRaw, double dValue)
{
    m_vecFields.push_back(
        {&type, nOffset, static_cast<quint16>(nSize), m_byDepth, static_cast<quint16>(nIndex), nRaw, dValue});
}

void CFieldList::Open(const SFieldType& type, int nOffset, int nSize, int nIndex, qint64 nRaw)
{
    Add(type, nOffset, nSize, nIndex, nRaw, 0.0);
    ++m_byDepth;
}

void CFieldList::Row(const SFieldType& type, int nRecord, int nIndex)
{
    const qint64 nRaw = Get(m_pBytes + nRecord, type);
    constexpr qint64 c_nFirstNegative = 0x80;
    constexpr qint64 c_nByteValues = 0x100;
    const bool bNegative = type.kind == enKind::enSigned && nRaw >= c_nFirstNegative;
    const qint64 nValue = bNegative ? nRaw - c_nByteValues : nRaw;
    Add(type, nRecord + type.nOffset, type.nSize, nIndex, nRaw, double(nValue) * type.dScale + type.dAdd);
}

void CFieldList::Rows(const SLayout& layout, int nFirst, int nLast, int nRecord, quint32 nConditions)
{
    for (int nRow = nFirst; nRow <= nLast; ++nRow)
        if ((layout[nRow].nWhen & ~nConditions) == 0)
            Row(layout[nRow], nRecord);
}

void CFieldList::Record(const SLayout& layout, int nRecord, int nSize, quint32 nConditions)
{
    RecordTo(layout, nRecord, nRecord + nSize, nConditions);
}

int CFieldList::RecordTo(const SLayout& layout, int nRecord, int nEnd, quint32 nConditions)
{
    int nLast = nRecord;
    for (const SFieldType& type : layout) {
        const int nRowEnd = nRecord + type.nOffset + type.nSize;
        if ((type.nWhen & ~nConditions) != 0 || nRowEnd > nEnd)
            continue;
        Row(type, nRecord);
        nLast = std::max(nLast, nRowEnd);
    }
    return nLast;
}

void CFieldList::Calculated(const SFieldType& type, int nRecord, int nSize, double dValue)
{
    Add(type, nRecord, nSize, 0, 0, dValue);
}

void CFieldList::Bytes(const SFieldType& type, int nOffset, int nSize)
{
    if (nSize > 0)
        Add(type, nOffset, nSize, 0, 0, 0.0);
}

void CFieldList::Rates(const SModeTiming& timing, int nRecord, int nSize, enKind modeline)
{
    Calculated(c_fieldLineRate, nRecord, nSize, timing.LineRate());
    Calculated(c_fieldRate, nRecord, nSize, timing.Rate());
    const bool bTypeVII = modeline == enKind::enTypeVIIModeline;
    Calculated(bTypeVII ? c_fieldTypeVIIModeline : c_fieldModeline, nRecord, nSize, 0.0);
}

} // namespace Edid
