#include "instruments/edid/Checksum.h"

#include <numeric>

namespace Edid {

quint8 Checksum(const quint8* pBlock)
{
    const unsigned nSum = std::accumulate(pBlock, pBlock + c_nChecksumOffset, 0U);
    return static_cast<quint8>(0U - nSum);
}

} // namespace Edid
