#include "tools/ChartCommand.h"

#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "SenderModuleDialog/colour/ChromaGamutInterpolation.h"
#include "SenderModuleDialog/colour/ColourStandards.h"
#include "instruments/colour/StandardNames.h"
#include "tools/Arguments.h"
#include "tools/Chromaticity.h"
#include "tools/Output.h"
#include "tools/Picture.h"
#include "tools/Report.h"

#include <QColor>
#include <QCoreApplication>
#include <QPainter>
#include <QRegularExpression>
#include <QSize>
#include <QTranslator>
#include <QVector>

#include <algorithm>
#include <utility>

namespace {

/// Sides of a picture in pixels: a chart needs more than 100, and this is as far as painters go.
constexpr int c_nSmallestSide = 101;
constexpr int c_nLargestSide = 16384;
constexpr QSize c_sizeDefault(1000, 1000);

/// Width of the triangles' lines: a part of the picture's shorter side, and at least what is seen on
/// a small one.
constexpr double c_dLinePart = 1.5 / 1000.0;
constexpr double c_dLeastLineWidth = 1.5;
constexpr double c_dLargestLineWidth = 100.0;

/// The white of equal energy, and how far towards it a point is moved before it counts as outside.
constexpr QPointF c_ptEqualEnergy(1.0 / 3.0, 1.0 / 3.0);
constexpr double c_dRoundingPart = 0.005;

/// What `--line-width` is called in the messages.
constexpr char c_szLineWidth[] = "line width in pixels";

/// Points of a group: red, green, blue and white.
constexpr std::size_t c_nGroupPoints = 4;

/// The output space's key is the first that is not for other groups.
constexpr int c_nMostGroups = enOutputColorSpace;

/// What `--dark` paints behind the chart.
constexpr QColor c_colorDark(18, 18, 18);

int ParseSide(const QString& strSize, const QString& strSide)
{
    bool bOk = false;
    const int nSide = strSide.toInt(&bOk);
    if (!bOk || nSide < c_nSmallestSide || nSide > c_nLargestSide)
        throw CToolError(QStringLiteral("size '%1': %2 is out of range; it must be from %3 to %4")
                             .arg(strSize, strSide)
                             .arg(c_nSmallestSide)
                             .arg(c_nLargestSide));
    return nSide;
}

QSize ParseSize(const CArguments& arguments)
{
    if (!arguments.Has("size"))
        return c_sizeDefault;
    static const QRegularExpression s_pattern(
        QRegularExpression::anchoredPattern(QStringLiteral("(-?[0-9]+)[xX](-?[0-9]+)")));
    const QString strSize = arguments.Value("size");
    const QRegularExpressionMatch match = s_pattern.match(strSize);
    if (!match.hasMatch())
        throw CToolError(
            QStringLiteral("'%1' is not a size; write WIDTHxHEIGHT, for example 1000x1000").arg(strSize));
    return {ParseSide(strSize, match.captured(1)), ParseSide(strSize, match.captured(2))};
}

/// The chart's own background where none is given.
QColor ParseBackground(const CArguments& arguments, const QColor& colorOwn)
{
    if (arguments.Has("dark") && arguments.Has("background"))
        throw CToolError(QStringLiteral("--dark and --background are both given; give one of them"));
    if (arguments.Has("dark"))
        return c_colorDark;
    if (!arguments.Has("background"))
        return colorOwn;
    const QString strColor = arguments.Value("background");
    QColor color(strColor);
    if (!color.isValid())
        throw CToolError(
            QStringLiteral("'%1' is not a colour; write #RRGGBB, for example #323232").arg(strColor));
    return color;
}

/// Pixels.
double ParseLineWidth(const CArguments& arguments, QSize size)
{
    if (!arguments.Has("line-width"))
        return std::max(c_dLeastLineWidth, c_dLinePart * std::min(size.width(), size.height()));
    const QString strWidth = arguments.Value("line-width");
    const double dWidth = ParseNumber(strWidth, c_szLineWidth);
    if (dWidth <= 0.0 || dWidth > c_dLargestLineWidth)
        throw CToolError(
            QStringLiteral("the line width %1 is out of range; it must be above 0 and at most %2")
                .arg(strWidth)
                .arg(c_dLargestLineWidth));
    return dWidth;
}

/// The picture's format: the one asked for, or the one that the file's name ends in. Standard output has no
/// name to tell it, and gets a PNG.
Picture::enFormat ParseFormat(const CArguments& arguments, const QString& strFile)
{
    if (arguments.Has("format"))
        return Picture::FormatNamed(arguments.Value("format"));
    return Output::IsStandardOutput(strFile) ? Picture::enFormat::enPng : Picture::FormatOf(strFile);
}

SChromaGroupInfo NewGroup(const QString& strName, const std::vector<CPointEx<float>>& vecPoints)
{
    SChromaGroupInfo group;
    group.strName = strName;
    group.ptRed = vecPoints[enRedPoint];
    group.ptGreen = vecPoints[enGreenPoint];
    group.ptBlue = vecPoints[enBluePoint];
    group.ptWhite = vecPoints[enWhitePoint];
    // Points that may be moved have the larger dots with the white rims.
    group.bMoveRed = group.bMoveGreen = group.bMoveBlue = group.bMoveWhite = true;
    group.nPenStyle = int(Qt::SolidLine);
    return group;
}

SChromaGroupInfo StandardGroup(const QString& strLabel)
{
    const SColourStandard* const pStandard = FindColourStandard(strLabel);
    if (pStandard == nullptr)
        throw CToolError(
            QStringLiteral("unknown standard '%1'; give one of: %2").arg(strLabel, StandardLabels()));
    return NewGroup(QString::fromLatin1(pStandard->szName),
                    {pStandard->ptRed, pStandard->ptGreen, pStandard->ptBlue, pStandard->ptWhite});
}

SChromaGroupInfo WrittenGroup(const QString& strGroup)
{
    const int nColon = int(strGroup.lastIndexOf(QLatin1Char(':')));
    if (nColon <= 0)
        throw CToolError(
            QStringLiteral("'%1' is not a group; write NAME:x,y;x,y;x,y;x,y for red, green, blue and white")
                .arg(strGroup));
    const std::vector<CPointEx<float>> vecPoints = ParseChromaticities(strGroup.mid(nColon + 1));
    if (vecPoints.size() != c_nGroupPoints)
        throw CToolError(QStringLiteral("group '%1' has %2 points; write four as x,y;x,y;x,y;x,y")
                             .arg(strGroup)
                             .arg(vecPoints.size()));
    return NewGroup(strGroup.left(nColon), vecPoints);
}

QVector<SChromaGroupInfo> ParseGroups(const CArguments& arguments)
{
    QVector<SChromaGroupInfo> vecGroups;
    for (const SGivenOption& option : arguments.Given()) {
        if (option.strName == QLatin1String("standard"))
            vecGroups.append(StandardGroup(option.strValue));
        else if (option.strName == QLatin1String("group"))
            vecGroups.append(WrittenGroup(option.strValue));
    }
    if (vecGroups.size() > c_nMostGroups)
        throw CToolError(QStringLiteral("%1 groups are too many; give at most %2")
                             .arg(vecGroups.size())
                             .arg(c_nMostGroups));
    if (arguments.Has("coverage") && vecGroups.size() < 2)
        throw CToolError(
            QStringLiteral("--coverage needs two groups, first the one that covers; give them with "
                           "--standard or --group"));
    return vecGroups;
}

/// Whether a point is a real colour. One that misses the outline by the rounding of its digits is: DCI-P3's
/// red, written with two decimals, is such a point.
bool IsRealColour(const CPointEx<float>& pt, const CChromaGamutInterpolation& gamut)
{
    const QPointF ptGiven(double(pt.x), double(pt.y));
    const QPointF ptInwards = ptGiven + c_dRoundingPart * (c_ptEqualEnergy - ptGiven);
    return gamut.IsPointInCIEPolygon(ptGiven) || gamut.IsPointInCIEPolygon(ptInwards);
}

/// A real colour lies inside the diagram. Whoever mistyped a coordinate should hear of it; the picture is
/// painted all the same.
void WarnOfPointsOutside(const SChromaGroupInfo& group, const CChromaGamutInterpolation& gamut)
{
    const std::pair<const char*, CPointEx<float>> arrPoints[] = {
        {"red", group.ptRed}, {"green", group.ptGreen}, {"blue", group.ptBlue}, {"white", group.ptWhite}};
    for (const auto& [szName, pt] : arrPoints) {
        if (!IsRealColour(pt, gamut))
            Report::Warning(QStringLiteral("group '%1': %2 %3,%4 lies outside the CIE 1931 diagram")
                                .arg(group.strName, QString::fromLatin1(szName))
                                .arg(double(pt.x))
                                .arg(double(pt.y)));
    }
}

/// The legend tells the coverage of the output space by the screen's, so the first two groups
/// take their places.
void AddGroups(CChromaticityDlgWnd& chart, const QVector<SChromaGroupInfo>& vecGroups, bool bCoverage)
{
    for (int i = 0; i < vecGroups.size(); ++i) {
        int nKey = i;
        if (bCoverage && i < 2)
            nKey = i == 0 ? enScreenColorSpace : enOutputColorSpace;
        chart.AddChromaGroupByIndex(nKey, vecGroups[i]);
    }
}

void Run(const CArguments& arguments)
{
    if (!arguments.Has("output"))
        throw CToolError(QStringLiteral("no output file; give one that ends in %1 with --output")
                             .arg(Picture::Suffixes()));
    const QString strFile = arguments.Value("output");
    const Picture::enFormat format = ParseFormat(arguments, strFile);
    const QSize size = ParseSize(arguments);
    QVector<SChromaGroupInfo> vecGroups = ParseGroups(arguments);
    const double dLineWidth = ParseLineWidth(arguments, size);
    for (SChromaGroupInfo& group : vecGroups)
        group.fPenWidth = float(dLineWidth);

    // The chart's own texts are Chinese; the tool speaks English.
    QTranslator translator;
    if (translator.load(QStringLiteral(":/translations/SenderModuleDialog_en.qm")))
        QCoreApplication::installTranslator(&translator);

    CChromaticityDlgWnd chart(nullptr);
    chart.SetBackgroundColor(ParseBackground(arguments, chart.m_clrBackground));
    if (arguments.Has("no-grid"))
        chart.SetGridLineAlpha(0);
    chart.resize(size);
    chart.SetSize(size.width(), size.height());
    AddGroups(chart, vecGroups, arguments.Has("coverage"));
    Output::To(strFile, Picture::Paint(format, size, [&chart](QPainter& painter) { chart.Draw(painter); }));
    for (const SChromaGroupInfo& group : std::as_const(vecGroups))
        WarnOfPointsOutside(group, *chart.m_pGamut);
}

} // namespace

SSubcommand ChartSubcommand()
{
    return {
        "chart",
        "",
        0,
        0,
        "paint the chromaticity chart into a picture",
        "The file's name decides the format: .png, .svg or .pdf. Groups are drawn in the order in which\n"
        "they are given. With --coverage the first group is the screen's colour space and the second the\n"
        "output's: they are drawn last, and the legend tells how much of the second the first covers.\n"
        "'sender-tool standards' lists the standards.\n",
        {
            {"output", 'o', "FILE", "the picture, written whole or not at all; - for standard output"},
            {"format", 0, "FORMAT", "png, svg or pdf, whatever the file's name ends in", "png svg pdf"},
            {"size", 0, "WIDTHxHEIGHT", "in pixels, each above 100; 1000x1000 by default"},
            {"standard", 0, "NAME", "add a standard colour space; may be repeated"},
            {"group", 0, "NAME:POINTS", "add red, green, blue, white as x,y;x,y;x,y;x,y; may be repeated"},
            {"coverage", 0, nullptr, "tell how much of the second group the first covers"},
            {"line-width", 0, "PIXELS", "width of the triangles' lines; 1.5 on 1000 pixels by default"},
            {"dark", 0, nullptr, "an almost black background"},
            {"background", 0, "COLOUR", "another background, #323232 by default"},
            {"no-grid", 0, nullptr, "no grid lines; their labels stay"},
        },
        enApplication::enWidgets,
        &Run,
    };
}
