#include "instruments/edid/FieldType.h"

#include <algorithm>
#include <cstring>

namespace Edid {

namespace {

constexpr int c_nBitsPerByte = 8;
/// A value of more bytes is bytes, not a number.
constexpr int c_nLongestNumber = 4;

int Width(const SBits& bits)
{
    return bits.byHigh - bits.byLow + 1;
}

unsigned Mask(const SBits& bits)
{
    return (1U << Width(bits)) - 1U;
}

bool IsNumber(const SFieldType& type)
{
    return type.nSize <= c_nLongestNumber;
}

} // namespace

const char* SChoices::Name(qint64 nValue) const
{
    const SChoice* pEnd = pFirst + nCount;
    const SChoice* pFound =
        std::find_if(pFirst, pEnd, [=](const SChoice& choice) { return choice.nValue == nValue; });
    return pFound == pEnd ? nullptr : pFound->szName;
}

int SFieldType::BitCount() const
{
    if (nPieces == 0)
        return IsNumber(*this) ? nSize * c_nBitsPerByte : 0;
    int nBits = 0;
    for (int i = 0; i < nPieces; ++i)
        nBits += Width(arrPieces[std::size_t(i)]);
    return nBits;
}

const SFieldType* SLayout::Find(const char* szKey) const
{
    const auto HasKey = [=](const SFieldType& type) { return std::strcmp(type.szKey, szKey) == 0; };
    const SFieldType* pFound = std::find_if(begin(), end(), HasKey);
    return pFound == end() ? nullptr : pFound;
}

qint64 Get(const quint8* pRecord, const SFieldType& type)
{
    quint64 nRaw = 0;
    if (type.nPieces == 0) {
        for (int i = IsNumber(type) ? type.nSize : 0; i > 0; --i)
            nRaw = nRaw << c_nBitsPerByte | pRecord[type.nOffset + i - 1];
        return qint64(nRaw);
    }
    for (int i = type.nPieces; i > 0; --i) {
        const SBits& bits = type.arrPieces[std::size_t(i - 1)];
        nRaw = nRaw << Width(bits) | ((unsigned(pRecord[bits.byByte]) >> bits.byLow) & Mask(bits));
    }
    return qint64(nRaw);
}

void Put(quint8* pRecord, const SFieldType& type, qint64 nRaw)
{
    quint64 nLeft = quint64(nRaw);
    if (type.nPieces == 0) {
        for (int i = 0; i < (IsNumber(type) ? type.nSize : 0); ++i, nLeft >>= c_nBitsPerByte)
            pRecord[type.nOffset + i] = static_cast<quint8>(nLeft & 0xFFU);
        return;
    }
    for (int i = 0; i < type.nPieces; ++i) {
        const SBits& bits = type.arrPieces[std::size_t(i)];
        const unsigned nMask = Mask(bits) << bits.byLow;
        const unsigned nBits = (unsigned(nLeft & Mask(bits))) << bits.byLow;
        pRecord[bits.byByte] = static_cast<quint8>((pRecord[bits.byByte] & ~nMask) | nBits);
        nLeft >>= Width(bits);
    }
}

} // namespace Edid
