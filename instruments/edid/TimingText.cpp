#include "instruments/edid/TimingText.h"

namespace Edid {

namespace {

constexpr double c_dHzPerMHz = 1e6;
constexpr int c_nRateDecimals = 3;

/// Active, start and end of the sync, and total of one direction. Both fields of an interlaced timing count.
QString Numbers(const SAxis& axis, int nFields, int nTotal)
{
    const int nSyncStart = axis.nActive + axis.nFront * nFields;
    return QStringLiteral("%1 %2 %3 %4")
        .arg(axis.nActive)
        .arg(nSyncStart)
        .arg(nSyncStart + axis.nSync * nFields)
        .arg(nTotal);
}

QString Sign(bool bPositive)
{
    return bPositive ? QStringLiteral("+") : QStringLiteral("-");
}

} // namespace

QString ShortNumber(double dValue, int nDecimals)
{
    QString strNumber = QString::number(dValue, 'f', nDecimals);
    while (strNumber.contains(QLatin1Char('.')) &&
           (strNumber.endsWith(QLatin1Char('0')) || strNumber.endsWith(QLatin1Char('.'))))
        strNumber.chop(1);
    return strNumber;
}

QString ModeText(const SModeTiming& timing)
{
    return QStringLiteral("%1x%2%3 at %4 Hz")
        .arg(timing.horizontal.nActive)
        .arg(timing.vertical.nActive)
        .arg(timing.bInterlaced ? QStringLiteral("i") : QString(),
             ShortNumber(timing.Rate(), c_nRateDecimals));
}

QString Modeline(const SModeTiming& timing)
{
    const int nFields = timing.bInterlaced ? 2 : 1;
    return QStringLiteral("Modeline \"%1x%2_%3%4\" %5  %6  %7  %8hsync %9vsync%10")
        .arg(timing.horizontal.nActive)
        .arg(timing.vertical.nActive)
        .arg(QString::number(timing.Rate(), 'f', 2), timing.bInterlaced ? QStringLiteral("i") : QString(),
             QString::number(double(timing.nClock) / c_dHzPerMHz, 'f', 3),
             Numbers(timing.horizontal, 1, timing.horizontal.Total()),
             Numbers(timing.vertical, nFields, timing.FrameLines()), Sign(timing.horizontal.bPositive),
             Sign(timing.vertical.bPositive), timing.bInterlaced ? QStringLiteral(" Interlace") : QString());
}

} // namespace Edid
