#include "instruments/edid/FieldValues.h"

#include "instruments/edid/BaseLayout.h"
#include "instruments/edid/DetailedTiming.h"
#include "instruments/edid/EdidText.h"
#include "instruments/edid/ReducedMode.h"

#include <QStringList>

#include <algorithm>
#include <cmath>

namespace Edid {

namespace {

constexpr int c_nByteMax = 255;
constexpr double c_dHzPerKHz = 1000.0;
constexpr double c_dHzPerClockStep = 1e7; ///< the highest clock counts in steps of 10 MHz
constexpr int c_nMhzPerStep = 10;

bool IsPrintable(QChar ch)
{
    return ch >= QLatin1Char(' ') && ch <= QLatin1Char('~');
}

int Bound(double dValue, int nLargest)
{
    return int(std::clamp(dValue, 0.0, double(nLargest)));
}

/// The offset code of a pair of limits: none, the maximum alone, or both.
int OffsetCode(int nMin, int nMax)
{
    constexpr int c_nMaximum = 2;
    constexpr int c_nBoth = 3;
    if (nMax <= c_nByteMax)
        return 0;
    return nMin > c_nByteMax ? c_nBoth : c_nMaximum;
}

struct SPairRows
{
    int nOffsets;
    int nMin;
    int nMax;
};

void PutPair(quint8* pDescriptor, const SPairRows& rows, int nMin, int nMax, bool bFrom14)
{
    const int nCode = bFrom14 ? OffsetCode(nMin, nMax) : 0;
    if (bFrom14)
        Put(pDescriptor, c_layoutRange[rows.nOffsets], nCode);
    const int nMaxRaw = nCode != 0 ? nMax - c_nByteMax : nMax;
    const int nMinRaw = nMin > c_nByteMax && nCode != 0 ? nMin - c_nByteMax : nMin;
    Put(pDescriptor, c_layoutRange[rows.nMin], std::min(nMinRaw, c_nByteMax));
    Put(pDescriptor, c_layoutRange[rows.nMax], std::min(nMaxRaw, c_nByteMax));
}

} // namespace

SPair ReadPair(const QString& strText, QChar chBetween)
{
    const QStringList listParts = strText.split(chBetween, Qt::KeepEmptyParts, Qt::CaseInsensitive);
    SPair pair;
    bool bFirst = false;
    bool bSecond = false;
    pair.dFirst = listParts.value(0).toDouble(&bFirst);
    pair.dSecond = listParts.value(1).toDouble(&bSecond);
    pair.bRead = bFirst && bSecond && listParts.size() == 2;
    return pair;
}

bool IsWhole(double dValue, double dFirst, double dLast)
{
    return dValue >= dFirst && dValue <= dLast && dValue == std::floor(dValue);
}

std::optional<SModeTiming> ModeOf(const QString& strMode)
{
    constexpr double c_dLargest = 65535.0;
    const SPair size = ReadPair(strMode.section(QLatin1Char('@'), 0, 0), QLatin1Char('x'));
    bool bRate = false;
    const float fRate = strMode.section(QLatin1Char('@'), 1).toFloat(&bRate);
    if (!size.bRead || !bRate || !(fRate > 0.0F) || !IsWhole(size.dFirst, 1, c_dLargest) ||
        !IsWhole(size.dSecond, 1, c_dLargest))
        return std::nullopt;
    const SModeTiming timing = ReducedMode(int(size.dFirst), int(size.dSecond), fRate);
    return timing.vertical.nBack > 0 ? std::optional<SModeTiming>(timing) : std::nullopt;
}

void ReplaceDetailed(quint8* pDescriptor, const SModeTiming& timing)
{
    const bool bSize = IsDetailed(pDescriptor);
    const int nWidthMm = bSize ? int(Get(pDescriptor, c_layoutDetailed[enWidthMm])) : 0;
    const int nHeightMm = bSize ? int(Get(pDescriptor, c_layoutDetailed[enHeightMm])) : 0;
    WriteDetailed(pDescriptor, timing, nWidthMm, nHeightMm);
}

std::optional<int> MakerNumber(const QString& strLetters)
{
    constexpr int c_nLetters = 3;
    constexpr int c_nBits = 5;
    if (strLetters.size() != c_nLetters)
        return std::nullopt;
    int nNumber = 0;
    for (const QChar ch : strLetters) {
        if (ch < QLatin1Char('A') || ch > QLatin1Char('Z'))
            return std::nullopt;
        nNumber = nNumber << c_nBits | (ch.unicode() - 'A' + 1);
    }
    return nNumber;
}

QString TextError(const QString& strText)
{
    if (strText.isEmpty() || strText.size() > c_nContentSize)
        return CEdidText::tr("a text has 1 to 13 characters, and '%1' has %2")
            .arg(strText)
            .arg(strText.size());
    if (!std::all_of(strText.begin(), strText.end(), &IsPrintable))
        return CEdidText::tr("'%1' holds other characters than printable ASCII").arg(strText);
    return strText.endsWith(QLatin1Char(' ')) ? CEdidText::tr("'%1' ends in a blank").arg(strText)
                                              : QString();
}

void WriteText(quint8* pContent, const QString& strText)
{
    QByteArray content = strText.toLatin1().left(c_nContentSize);
    if (content.size() < c_nContentSize)
        content.append('\n');
    content = content.leftJustified(c_nContentSize, ' ');
    std::copy(content.begin(), content.end(), pContent);
}

void WriteTextDescriptor(quint8* pDescriptor, quint8 byTag, const QString& strText)
{
    std::fill_n(pDescriptor, c_nContentOffset, quint8(0));
    pDescriptor[c_nTagOffset] = byTag;
    WriteText(pDescriptor + c_nContentOffset, strText);
}

SRangeLimits LimitsFor(const SBlockTimings& timings, bool bFrom14)
{
    const int nLargest = bFrom14 ? 2 * c_nByteMax : c_nByteMax;
    const int nVMin = std::max(Bound(std::floor(timings.dVMin), nLargest), 1);
    const int nHMin = std::max(Bound(std::floor(timings.dHMin / c_dHzPerKHz), nLargest), 1);
    return {nVMin, std::max(Bound(std::ceil(timings.dVMax), nLargest), nVMin), nHMin,
            std::max(Bound(std::ceil(timings.dHMax / c_dHzPerKHz), nLargest), nHMin),
            Bound(std::ceil(double(timings.nMaxClock) / c_dHzPerClockStep), c_nByteMax) * c_nMhzPerStep};
}

void PutLimits(quint8* pDescriptor, const SRangeLimits& limits, bool bFrom14)
{
    PutPair(pDescriptor, {enVOffsets, enVMin, enVMax}, limits.nVMin, limits.nVMax, bFrom14);
    PutPair(pDescriptor, {enHOffsets, enHMin, enHMax}, limits.nHMin, limits.nHMax, bFrom14);
    Put(pDescriptor, c_layoutRange[enMaxClock], limits.nMaxClock / c_nMhzPerStep);
}

void WriteRange(quint8* pDescriptor, const SRangeLimits& limits, bool bFrom14)
{
    constexpr int c_nPadding = 11;
    std::fill_n(pDescriptor, c_nPadding, quint8(0));
    pDescriptor[c_nTagOffset] = c_byRangeTag;
    PutLimits(pDescriptor, limits, bFrom14);
    Put(pDescriptor, c_layoutRange[enFormula], bFrom14 ? 1 : 0);
    pDescriptor[c_nPadding] = '\n';
    std::fill(pDescriptor + c_nPadding + 1, pDescriptor + c_nDescriptorSize, quint8(' '));
}

} // namespace Edid
