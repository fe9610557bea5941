// Any value into any field of any blocks: a refused value changes nothing, and a taken one changes its field
// and checksums alone.

#include "SenderModuleDialog/Fault.h"
#include "fuzz/FuzzInput.h"
#include "host/CommonClass/EdidBlockSize.h"
#include "instruments/edid/FieldEditing.h"
#include "instruments/edid/FieldText.h"

#include <algorithm>

namespace {

using Edid::SField;

constexpr int c_nMaxBlocks = 3;
constexpr int c_nValueSize = 24;

std::vector<SField> FieldsOf(const QByteArray& edid)
{
    std::vector<SField> vecFields;
    Edid::Explain(reinterpret_cast<const quint8*>(edid.constData()), int(edid.size()), vecFields);
    return vecFields;
}

QByteArray Take(CFuzzInput& input, int nBytes)
{
    QByteArray bytes;
    for (int i = 0; i < nBytes; ++i)
        bytes.append(input.Take<char>());
    return bytes;
}

bool Lies(int nOffset, const SField& field)
{
    return nOffset >= field.nOffset && nOffset < field.nOffset + field.nSize;
}

/// At most the checksums of block and section follow a field.
void CheckOnlyFieldChanged(const QByteArray& before, const QByteArray& after, const SField& field)
{
    constexpr int c_nChecksums = 2;
    int nBeside = 0;
    for (int i = 0; i < before.size(); ++i)
        nBeside += before.at(i) != after.at(i) && !Lies(i, field) ? 1 : 0;
    Require(before.size() == after.size() && nBeside <= c_nChecksums, "only the field and checksums change");
}

void CheckField(const QByteArray& before, const SField& field, const QString& strValue)
{
    QByteArray after = before;
    if (Edid::SetField(after, field, strValue).isEmpty())
        CheckOnlyFieldChanged(before, after, field);
    else
        Require(after == before, "a refused value changes nothing");
    QByteArray same = before;
    const QString strText = Edid::EditText(field, reinterpret_cast<const quint8*>(before.constData()));
    Require(!Edid::IsEditable(field) || (Edid::SetField(same, field, strText).isEmpty() && same == before),
            "the value that is there is taken");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    CFuzzInput input(pData, nSize);
    const std::size_t nField = input.Take<std::uint16_t>();
    const QByteArray value = Take(input, c_nValueSize);
    const int nBlocks = std::min(int(input.Left()) / c_nEdidBlockSize, c_nMaxBlocks);
    if (nBlocks == 0)
        return 0;
    const QByteArray edid = Take(input, nBlocks * c_nEdidBlockSize);
    const std::vector<SField> vecFields = FieldsOf(edid);
    CheckField(edid, vecFields[nField % vecFields.size()],
               QString::fromUtf8(value.left(value.indexOf('\0'))));
    return 0;
}
