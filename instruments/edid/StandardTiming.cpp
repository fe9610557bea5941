#include "instruments/edid/StandardTiming.h"

#include "instruments/edid/BaseLayout.h"
#include "instruments/edid/ListedTimings.h"

#include <iterator>

namespace Edid {

namespace {

constexpr int c_nWidthUnit = 8;
constexpr int c_nWidthAdd = 31;
constexpr int c_nRateAdd = 60;
constexpr unsigned c_nRateMask = 0x3F;
constexpr unsigned c_nAspectShift = 6;

/// Aspect codes 0 to 3; the first is square in older revisions.
constexpr SAspect c_arrAspects[] = {{16, 10}, {4, 3}, {5, 4}, {16, 9}};
constexpr SAspect c_square = {1, 1};
constexpr int c_nFirstWithoutSquare = 3;

} // namespace

SStandardTiming ReadStandard(quint16 wStandard, int nRevision)
{
    const unsigned nSecond = wStandard & 0xFFU;
    const unsigned nCode = nSecond >> c_nAspectShift;
    const SAspect aspect = nCode == 0 && nRevision < c_nFirstWithoutSquare ? c_square : c_arrAspects[nCode];
    const int nWidth = (int(wStandard >> 8U) + c_nWidthAdd) * c_nWidthUnit;
    return {nWidth, nWidth * aspect.nHeight / aspect.nWidth, int(nSecond & c_nRateMask) + c_nRateAdd};
}

std::optional<quint16> StandardCode(const SStandardTiming& timing, int nRevision)
{
    const int nFirst = timing.nWidth / c_nWidthUnit - c_nWidthAdd;
    const int nRate = timing.nRate - c_nRateAdd;
    constexpr int c_nLastByte = 0xFF;
    if (nFirst < 1 || nFirst > c_nLastByte || nRate < 0 || nRate > int(c_nRateMask))
        return std::nullopt;
    for (unsigned nCode = 0; nCode < std::size(c_arrAspects); ++nCode) {
        const quint16 wCode = quint16(unsigned(nFirst) << 8U | nCode << c_nAspectShift | unsigned(nRate));
        const SStandardTiming named = ReadStandard(wCode, nRevision);
        if (wCode != c_wUnusedStandard && named.nWidth == timing.nWidth && named.nHeight == timing.nHeight)
            return wCode;
    }
    return std::nullopt;
}

QString StandardText(quint16 wStandard, int nRevision)
{
    if (wStandard == c_wUnusedStandard)
        return {};
    const SStandardTiming timing = ReadStandard(wStandard, nRevision);
    const SListedTiming* pListed = FindStandard(wStandard);
    const QString strListed = pListed == nullptr
                                  ? QString()
                                  : QStringLiteral(", DMT 0x%1").arg(pListed->nId, 2, 16, QLatin1Char('0'));
    return QStringLiteral("%1x%2 at %3 Hz%4")
        .arg(timing.nWidth)
        .arg(timing.nHeight)
        .arg(timing.nRate)
        .arg(strListed);
}

} // namespace Edid
