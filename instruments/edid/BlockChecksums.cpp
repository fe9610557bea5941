#include "instruments/edid/BlockChecksums.h"

#include "instruments/edid/Checksum.h"
#include "instruments/edid/DisplayIdLayout.h"

#include <numeric>

namespace Edid {

namespace {

const quint8* BlockOf(const QByteArray& edid, int nBlock)
{
    return reinterpret_cast<const quint8*>(edid.constData()) + nBlock;
}

/// Where the checksum of a section stands in its block; 0 in a block without a section that fits.
int SectionChecksumOffset(const quint8* pBlock)
{
    const int nLength = pBlock[c_nSectionOffset + 1];
    return pBlock[0] != c_byDisplayIdTag || nLength > c_nMaxSectionBytes
               ? 0
               : c_nSectionOffset + c_nSectionHeadSize + nLength;
}

quint8 SectionChecksum(const quint8* pBlock, int nOffset)
{
    return static_cast<quint8>(0U - std::accumulate(pBlock + c_nSectionOffset, pBlock + nOffset, 0U));
}

bool HasRightSection(const quint8* pBlock)
{
    const int nOffset = SectionChecksumOffset(pBlock);
    return nOffset != 0 && pBlock[nOffset] == SectionChecksum(pBlock, nOffset);
}

} // namespace

void PutChecksum(QByteArray& edid, int nBlock)
{
    edid[nBlock + c_nChecksumOffset] = char(Checksum(BlockOf(edid, nBlock)));
}

void PutSectionChecksum(QByteArray& edid, int nBlock)
{
    const quint8* pBlock = BlockOf(edid, nBlock);
    const int nOffset = SectionChecksumOffset(pBlock);
    if (nOffset != 0)
        edid[nBlock + nOffset] = char(SectionChecksum(pBlock, nOffset));
}

CKeptChecksums::CKeptChecksums(const QByteArray& edid, int nBlock)
    : m_nBlock(nBlock)
    , m_bSection(nBlock > 0 && HasRightSection(BlockOf(edid, nBlock)))
    , m_bBlock(BlockOf(edid, nBlock)[c_nChecksumOffset] == Checksum(BlockOf(edid, nBlock)))
{}

void CKeptChecksums::Restore(QByteArray& edid) const
{
    if (m_bSection)
        PutSectionChecksum(edid, m_nBlock);
    if (m_bBlock)
        PutChecksum(edid, m_nBlock);
}

} // namespace Edid
