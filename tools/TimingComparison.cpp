#include "tools/TimingComparison.h"

#include "instruments/edid/TimingText.h"
#include "tools/Report.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QStringList>

namespace TimingComparison {

namespace {

using Edid::enTimingStandard;
using Edid::SAxis;
using Edid::SModeTiming;

constexpr double c_dHzPerMHz = 1e6;
constexpr double c_dHzPerKHz = 1e3;

QString NameOf(enTimingStandard standard)
{
    return QString::fromLatin1(Edid::StandardName(standard));
}

QStringList AllNames()
{
    QStringList listNames;
    for (int i = 0; i < Edid::c_nTimingStandards; ++i)
        listNames += NameOf(enTimingStandard(i));
    return listNames;
}

std::optional<SModeTiming> Find(enTimingStandard standard, const SVideoMode& mode, bool bInterlaced)
{
    return Edid::StandardTimingOf(standard,
                                  {mode.nWidth, mode.nHeight, mode.strRate.toDouble(), bInterlaced});
}

QString AxisText(const SAxis& axis, int nTotal, const char* szUnit)
{
    return QStringLiteral("%1 active + %2 blank (%3 front porch, %4 sync, %5 back porch) = %6 %7")
        .arg(axis.nActive)
        .arg(nTotal - axis.nActive)
        .arg(axis.nFront)
        .arg(axis.nSync)
        .arg(axis.nBack)
        .arg(nTotal)
        .arg(QString::fromLatin1(szUnit));
}

QString Sign(bool bPositive)
{
    return bPositive ? QStringLiteral("+") : QStringLiteral("-");
}

/// A difference with its sign, also a positive one.
QString Signed(double dValue, int nDecimals)
{
    const QString strNumber = QString::number(dValue, 'f', nDecimals);
    return dValue >= 0 ? QLatin1Char('+') + strNumber : strNumber;
}

/// How a timing differs from ours.
struct SDifference
{
    int nPixels;
    int nLines;
    double dClock; ///< Hz
};

SDifference Difference(const SModeTiming& timing, const CStoredMode& ours)
{
    return {timing.horizontal.Total() - ours.HTotal(), timing.FrameLines() - ours.VTotal(),
            double(timing.nClock) - ours.RoundedClock()};
}

QString DifferenceText(const SDifference& difference)
{
    return QStringLiteral("%1 pixels, %2 lines, %3 MHz")
        .arg(Signed(difference.nPixels, 0), Signed(difference.nLines, 0),
             Signed(difference.dClock / c_dHzPerMHz, 3));
}

QJsonObject AxisJson(const SAxis& axis, int nTotal)
{
    return {
        {QStringLiteral("active"), axis.nActive},         {QStringLiteral("blank"), nTotal - axis.nActive},
        {QStringLiteral("frontPorch"), axis.nFront},      {QStringLiteral("sync"), axis.nSync},
        {QStringLiteral("backPorch"), axis.nBack},        {QStringLiteral("total"), nTotal},
        {QStringLiteral("syncPositive"), axis.bPositive},
    };
}

QJsonObject TimingJson(enTimingStandard standard, const SModeTiming& timing, const CStoredMode& ours)
{
    const SDifference difference = Difference(timing, ours);
    return {
        {QStringLiteral("standard"), NameOf(standard)},
        {QStringLiteral("interlaced"), timing.bInterlaced},
        {QStringLiteral("horizontal"), AxisJson(timing.horizontal, timing.horizontal.Total())},
        {QStringLiteral("vertical"), AxisJson(timing.vertical, timing.FrameLines())},
        {QStringLiteral("clockHz"), double(timing.nClock)},
        {QStringLiteral("lineRateHz"), timing.LineRate()},
        {QStringLiteral("rateHz"), timing.Rate()},
        {QStringLiteral("modeline"), Edid::Modeline(timing)},
        {QStringLiteral("pixelsMore"), difference.nPixels},
        {QStringLiteral("linesMore"), difference.nLines},
        {QStringLiteral("clockMoreHz"), difference.dClock},
    };
}

QString Row(const QString& strName, const QString& strTotals, double dClock, double dRate,
            const QString& strDifference)
{
    return QStringLiteral("%1%2%3 MHz  %4 Hz  %5")
               .arg(strName.leftJustified(9), strTotals.leftJustified(13),
                    QString::number(dClock / c_dHzPerMHz, 'f', 3).rightJustified(9),
                    QString::number(dRate, 'f', 4).rightJustified(9), strDifference)
               .trimmed() +
           QLatin1Char('\n');
}

QString Totals(int nPixels, int nLines)
{
    return QStringLiteral("%1x%2").arg(nPixels).arg(nLines);
}

QString StandardRow(enTimingStandard standard, const CStoredMode& ours, bool bInterlaced)
{
    const std::optional<SModeTiming> timing = Find(standard, ours.Mode(), bInterlaced);
    if (!timing)
        return NameOf(standard).leftJustified(9) + QStringLiteral("has no such mode\n");
    return Row(NameOf(standard), Totals(timing->horizontal.Total(), timing->FrameLines()),
               double(timing->nClock), timing->Rate(), DifferenceText(Difference(*timing, ours)));
}

} // namespace

enTimingStandard ParseStandard(const QString& strName)
{
    const std::optional<enTimingStandard> standard = Edid::FindTimingStandard(strName);
    if (!standard)
        throw CToolError(QStringLiteral("unknown standard '%1'; give one of: %2")
                             .arg(strName, AllNames().join(QStringLiteral(", "))));
    return *standard;
}

SModeTiming TimingBy(enTimingStandard standard, const SVideoMode& mode, bool bInterlaced)
{
    const std::optional<SModeTiming> timing = Find(standard, mode, bInterlaced);
    if (!timing)
        throw CToolError(QStringLiteral("the standard %1 has no timing for %2; try --compare")
                             .arg(NameOf(standard), DescribeVideoMode(mode)));
    return *timing;
}

QByteArray Text(enTimingStandard standard, const SModeTiming& timing, const CStoredMode& ours)
{
    const QStringList listLines = {
        QStringLiteral("Mode         %1, %2").arg(DescribeVideoMode(ours.Mode()), NameOf(standard)),
        QStringLiteral("Horizontal   %1")
            .arg(AxisText(timing.horizontal, timing.horizontal.Total(), "pixels")),
        QStringLiteral("Vertical     %1").arg(AxisText(timing.vertical, timing.FrameLines(), "lines")),
        QStringLiteral("Sync         %1hsync %2vsync")
            .arg(Sign(timing.horizontal.bPositive), Sign(timing.vertical.bPositive)),
        QStringLiteral("Pixel clock  %1 MHz").arg(double(timing.nClock) / c_dHzPerMHz, 0, 'f', 3),
        QStringLiteral("Line rate    %1 kHz").arg(timing.LineRate() / c_dHzPerKHz, 0, 'f', 3),
        QStringLiteral("Frame rate   %1 Hz actual, %2 Hz wanted")
            .arg(timing.Rate(), 0, 'f', 4)
            .arg(ours.Mode().strRate),
        QStringLiteral("Difference   %1").arg(DifferenceText(Difference(timing, ours))),
        Edid::Modeline(timing),
    };
    return (listLines.join(QLatin1Char('\n')) + QLatin1Char('\n')).toLatin1();
}

QByteArray Json(enTimingStandard standard, const SModeTiming& timing, const CStoredMode& ours)
{
    return QJsonDocument(TimingJson(standard, timing, ours)).toJson();
}

QByteArray AllText(const CStoredMode& ours, bool bInterlaced)
{
    QString strText = Row(QStringLiteral("ours"), Totals(ours.HTotal(), ours.VTotal()), ours.RoundedClock(),
                          ours.RoundedClock() / ours.HTotal() / ours.VTotal(), QString());
    for (int i = 0; i < Edid::c_nTimingStandards; ++i)
        strText += StandardRow(enTimingStandard(i), ours, bInterlaced);
    return strText.toLatin1();
}

QByteArray AllJson(const CStoredMode& ours, bool bInterlaced)
{
    QJsonArray timings;
    for (int i = 0; i < Edid::c_nTimingStandards; ++i)
        if (const auto timing = Find(enTimingStandard(i), ours.Mode(), bInterlaced))
            timings.append(TimingJson(enTimingStandard(i), *timing, ours));
    const QJsonObject object = {
        {QStringLiteral("ours"), QJsonObject{{QStringLiteral("hTotal"), ours.HTotal()},
                                             {QStringLiteral("vTotal"), ours.VTotal()},
                                             {QStringLiteral("clockHz"), ours.RoundedClock()}}},
        {QStringLiteral("standards"), timings},
    };
    return QJsonDocument(object).toJson();
}

} // namespace TimingComparison
