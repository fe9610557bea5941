#include "instruments/edid/CvtCode.h"

#include "instruments/edid/ListedTimings.h"

#include <QStringList>

namespace Edid {

namespace {

constexpr int c_nCell = 8; ///< the width is whole cells

/// Aspect codes 0 to 3.
constexpr SAspect c_arrAspects[] = {{4, 3}, {16, 9}, {16, 10}, {15, 9}};
constexpr int c_arrPreferred[] = {50, 60, 75, 85};

struct SRateBit
{
    unsigned nBit;
    const char* szText;
};

constexpr SRateBit c_arrRates[] = {
    {0x10, "50 Hz"}, {0x08, "60 Hz"}, {0x04, "75 Hz"}, {0x02, "85 Hz"}, {0x01, "60 Hz reduced"},
};

unsigned Byte(quint32 nCode, unsigned nShift)
{
    return (nCode >> nShift) & 0xFFU;
}

} // namespace

bool SCvtCode::IsPreferredSupported() const
{
    constexpr unsigned c_arrBits[] = {0x10, 0x08 | 0x01, 0x04, 0x02};
    for (std::size_t i = 0; i < std::size(c_arrPreferred); ++i)
        if (c_arrPreferred[i] == nPreferredRate)
            return (nRates & c_arrBits[i]) != 0;
    return false;
}

SCvtCode ReadCvtCode(quint32 nCode)
{
    const unsigned nFirst = Byte(nCode, 16);
    const unsigned nSecond = Byte(nCode, 8);
    const unsigned nThird = Byte(nCode, 0);
    const int nHeight = int((nFirst | (nSecond & 0xF0U) << 4U) + 1U) * 2;
    const SAspect aspect = c_arrAspects[(nSecond >> 2U) & 3U];
    const int nWidth = nHeight * aspect.nWidth / aspect.nHeight / c_nCell * c_nCell;
    return {nWidth, nHeight, c_arrPreferred[(nThird >> 5U) & 3U], nThird & 0x1FU};
}

QString CvtCodeText(quint32 nCode)
{
    const SCvtCode code = ReadCvtCode(nCode);
    QStringList listRates;
    for (const SRateBit& rate : c_arrRates)
        if ((code.nRates & rate.nBit) != 0)
            listRates += QString::fromLatin1(rate.szText);
    return QStringLiteral("%1x%2 at %3, %4 Hz preferred")
        .arg(code.nWidth)
        .arg(code.nHeight)
        .arg(listRates.isEmpty() ? QStringLiteral("no rate") : listRates.join(QStringLiteral(", ")))
        .arg(code.nPreferredRate);
}

} // namespace Edid
