#include "tools/TimingCommand.h"

#include "SenderModuleDialog/edid/EDIDRaw.h"
#include "tools/Arguments.h"
#include "tools/Output.h"
#include "tools/Report.h"
#include "tools/StoredMode.h"
#include "tools/TimingComparison.h"
#include "tools/Values.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <climits>

namespace {

/// How the blanking is calculated.
struct SKind
{
    bool bNormal;
    bool bInterlaced;
    bool bMargins;
};

/// One direction of a timing, as it is shown.
struct SAxis
{
    int nActive;
    int nBlank;
    int nFrontPorch;
    int nSync;
    int nBackPorch;
    bool bSyncPositive;

    int Total() const { return nActive + nBlank; }
};

SAxis Horizontal(const CStoredMode& stored)
{
    const tagSBlankTiming& blank = stored.Blank();
    return {stored.Mode().nWidth,
            blank.wHBlank,
            blank.wHFrontPorch,
            blank.wHSync,
            CEDIDRaw().CalculateHBackPorch(blank.wHBlank, blank.wHFrontPorch, blank.wHSync),
            (blank.bySyncFlag & 1U) != 0};
}

SAxis Vertical(const CStoredMode& stored)
{
    const tagSBlankTiming& blank = stored.Blank();
    return {stored.Mode().nHeight,
            blank.wVBlank,
            blank.byVFrontPorch,
            blank.byVSync,
            CEDIDRaw().CalculateVBackPorch(blank.wVBlank, blank.byVFrontPorch, blank.byVSync),
            (blank.bySyncFlag & 2U) != 0};
}

CStoredMode Calculate(const SVideoMode& mode, const SKind& kind)
{
    tagSBlankTiming blank = {};
    CEDIDRaw().CalCVTtiming(mode.nWidth, mode.nHeight, mode.fRate, kind.bInterlaced, !kind.bNormal,
                            kind.bMargins, &blank);
    return {mode, blank};
}

QString Polarity(const SAxis& axis)
{
    return axis.bSyncPositive ? QStringLiteral("+") : QStringLiteral("-");
}

/// Start and end of the sync and the total, as a modeline counts them.
QString ModelineNumbers(const SAxis& axis)
{
    const int nSyncStart = axis.nActive + axis.nFrontPorch;
    return QStringLiteral("%1 %2 %3 %4")
        .arg(axis.nActive)
        .arg(nSyncStart)
        .arg(nSyncStart + axis.nSync)
        .arg(axis.Total());
}

/// A line for the configuration of X.org. It takes the clock as it is, also where the block would cut it.
QString Modeline(const CStoredMode& stored, const SKind& kind)
{
    const SAxis horizontal = Horizontal(stored);
    const SAxis vertical = Vertical(stored);
    const SVideoMode& mode = stored.Mode();
    return QStringLiteral("Modeline \"%1x%2_%3\"  %4  %5  %6%7 %8hsync %9vsync")
        .arg(mode.nWidth)
        .arg(mode.nHeight)
        .arg(QString::number(double(mode.fRate), 'f', 2), Edid::Megahertz(stored.RoundedClock()),
             ModelineNumbers(horizontal), ModelineNumbers(vertical),
             kind.bInterlaced ? QStringLiteral(" interlace") : QString(), Polarity(horizontal),
             Polarity(vertical));
}

QString KindText(const SKind& kind)
{
    return QStringLiteral("%1, %2 blanking%3")
        .arg(kind.bInterlaced ? QStringLiteral("interlaced") : QStringLiteral("progressive"),
             kind.bNormal ? QStringLiteral("normal") : QStringLiteral("reduced"),
             kind.bMargins ? QStringLiteral(", margins") : QString());
}

QString AxisText(const SAxis& axis, const QString& strUnit)
{
    return QStringLiteral("%1 active + %2 blank (%3 front porch, %4 sync, %5 back porch) = %6 %7")
        .arg(axis.nActive)
        .arg(axis.nBlank)
        .arg(axis.nFrontPorch)
        .arg(axis.nSync)
        .arg(axis.nBackPorch)
        .arg(axis.Total())
        .arg(strUnit);
}

QByteArray Text(const CStoredMode& stored, const SKind& kind)
{
    const SAxis horizontal = Horizontal(stored);
    const SAxis vertical = Vertical(stored);
    const QStringList listLines = {
        QStringLiteral("Mode         %1, %2").arg(DescribeVideoMode(stored.Mode()), KindText(kind)),
        QStringLiteral("Horizontal   %1").arg(AxisText(horizontal, QStringLiteral("pixels"))),
        QStringLiteral("Vertical     %1").arg(AxisText(vertical, QStringLiteral("lines"))),
        QStringLiteral("Sync         %1hsync %2vsync").arg(Polarity(horizontal), Polarity(vertical)),
        QStringLiteral("Pixel clock  %1 MHz stored, %2 MHz wanted")
            .arg(Edid::Megahertz(stored.StoredClock()))
            .arg(stored.WantedClock() / 1e6, 0, 'f', 6),
        QStringLiteral("Line rate    %1 kHz").arg(stored.LineRate() / 1e3, 0, 'f', 3),
        QStringLiteral("Frame rate   %1 Hz actual, %2 Hz wanted")
            .arg(stored.ActualRate(), 0, 'f', 4)
            .arg(stored.Mode().strRate),
        Modeline(stored, kind),
    };
    return (listLines.join(QLatin1Char('\n')) + QLatin1Char('\n')).toLatin1();
}

QJsonObject AxisJson(const SAxis& axis)
{
    return {
        {QStringLiteral("active"), axis.nActive},
        {QStringLiteral("blank"), axis.nBlank},
        {QStringLiteral("frontPorch"), axis.nFrontPorch},
        {QStringLiteral("sync"), axis.nSync},
        {QStringLiteral("backPorch"), axis.nBackPorch},
        {QStringLiteral("total"), axis.Total()},
        {QStringLiteral("syncPositive"), axis.bSyncPositive},
    };
}

QByteArray Json(const CStoredMode& stored, const SKind& kind)
{
    const QJsonObject object = {
        {QStringLiteral("width"), stored.Mode().nWidth},
        {QStringLiteral("height"), stored.Mode().nHeight},
        {QStringLiteral("interlaced"), kind.bInterlaced},
        {QStringLiteral("reducedBlanking"), !kind.bNormal},
        {QStringLiteral("margins"), kind.bMargins},
        {QStringLiteral("horizontal"), AxisJson(Horizontal(stored))},
        {QStringLiteral("vertical"), AxisJson(Vertical(stored))},
        {QStringLiteral("wantedRateHz"), stored.Mode().strRate.toDouble()},
        {QStringLiteral("actualRateHz"), stored.ActualRate()},
        {QStringLiteral("wantedClockHz"), stored.WantedClock()},
        {QStringLiteral("storedClockHz"), stored.StoredClock()},
        {QStringLiteral("lineRateHz"), stored.LineRate()},
        {QStringLiteral("modeline"), Modeline(stored, kind)},
    };
    return QJsonDocument(object).toJson();
}

/// The timings of others, with their differences to ours.
QByteArray Others(const CArguments& arguments, const CStoredMode& stored, const SKind& kind)
{
    const bool bJson = arguments.Has("json");
    if (arguments.Has("compare"))
        return bJson ? TimingComparison::AllJson(stored, kind.bInterlaced)
                     : TimingComparison::AllText(stored, kind.bInterlaced);
    const Edid::enTimingStandard standard = TimingComparison::ParseStandard(arguments.Value("standard"));
    const Edid::SModeTiming timing = TimingComparison::TimingBy(standard, stored.Mode(), kind.bInterlaced);
    return bJson ? TimingComparison::Json(standard, timing, stored)
                 : TimingComparison::Text(standard, timing, stored);
}

bool WantsOthers(const CArguments& arguments)
{
    return arguments.Has("standard") || arguments.Has("compare");
}

SKind KindOf(const CArguments& arguments)
{
    return {arguments.Has("normal"), arguments.Has("interlaced"), arguments.Has("margins")};
}

void RunOne(const CArguments& arguments)
{
    const SKind kind = KindOf(arguments);
    const CStoredMode stored = Calculate(ParseVideoMode(arguments.Positional().constFirst()), kind);
    if (WantsOthers(arguments))
        return Output::ToStandardOutput(Others(arguments, stored, kind));
    Output::ToStandardOutput(arguments.Has("json") ? Json(stored, kind) : Text(stored, kind));
    for (const QString& strCut : Edid::ClockCuts(stored.InBlock()))
        Report::Warning(strCut);
}

/// A modeline, or the JSON object in one line.
QByteArray Line(const CArguments& arguments, const CStoredMode& stored, const SKind& kind)
{
    if (WantsOthers(arguments))
        return Values::CompactJson(Others(arguments, stored, kind));
    return arguments.Has("json") ? Values::CompactJson(Json(stored, kind))
                                 : Modeline(stored, kind).toLatin1();
}

void RunMany(const CArguments& arguments)
{
    if (WantsOthers(arguments) && !arguments.Has("json"))
        throw CToolError(
            QStringLiteral("the timings of other standards take several lines; give one mode, or --json"));
    const SKind kind = KindOf(arguments);
    QStringList listWarnings;
    const QByteArray lines = Values::Lines(Values::Of(arguments), [&](const QString& strMode) {
        const CStoredMode stored = Calculate(ParseVideoMode(strMode), kind);
        for (const QString& strCut : Edid::ClockCuts(stored.InBlock()))
            listWarnings += QStringLiteral("mode '%1': %2").arg(strMode, strCut);
        return Line(arguments, stored, kind);
    });
    Output::ToStandardOutput(lines);
    for (const QString& strWarning : listWarnings)
        Report::Warning(strWarning);
}

void Run(const CArguments& arguments)
{
    if (Values::AreMany(arguments))
        RunMany(arguments);
    else
        RunOne(arguments);
}

} // namespace

SSubcommand TimingSubcommand()
{
    return {
        "timing",
        "WIDTHxHEIGHT@RATE...",
        1,
        INT_MAX,
        "calculate the blanking of a mode and the rate that it really has",
        "RATE may have a fraction, for example 59.94. The stored clock is what a detailed timing of the\n"
        "block holds, whole units of 10 kHz; line rate and actual frame rate follow from it. Totals are\n"
        "active plus blank, as the block counts them: margins and half lines are no part of them.\n"
        "\n"
        "--standard calculates the mode as others do, and tells the difference to ours: cvt, cvt-rb, "
        "cvt-rb2\n"
        "and cvt-rb3 are the versions of VESA CVT, gtf is VESA GTF, dmt and cea are the lists of VESA and "
        "CTA.\n"
        "With --interlaced RATE is that of the fields there. --compare shows all of them.\n"
        "\n"
        "Several modes give a line each, the modeline or with --json an object; '-' stands for the lines of\n"
        "standard input.\n",
        {
            {"normal", 0, nullptr, "normal blanking instead of reduced"},
            {"interlaced", 0, nullptr, "interlaced video"},
            {"margins", 0, nullptr, "margins around the picture"},
            {"standard", 0, "STANDARD", "the timing of another standard",
             "cvt cvt-rb cvt-rb2 cvt-rb3 dmt cea gtf"},
            {"compare", 0, nullptr, "compare the timings of all standards"},
            {"json", 0, nullptr, "print a JSON object"},
        },
        enApplication::enCore,
        &Run,
    };
}
