#include "workbench/colour/ColourGroups.h"

#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "SenderModuleDialog/chart/ChartGroupPoints.h"
#include "SenderModuleDialog/colour/ColourStandards.h"

#include <QRegularExpression>

#include <algorithm>
#include <tuple>

namespace {

constexpr int c_nCoordinateDigits = 4; ///< as in the chart's own tips
constexpr float c_fLineWidth = 2.0F;   ///< pixels; wide enough to stand out against the bright bitmap

struct SColour
{
    unsigned char nR;
    unsigned char nG;
    unsigned char nB;
};

/// Line colours of the two colour spaces, visible on the bright bitmap and in the legend on the dark
/// background. A red byte of 0 or 255 gives a solid sample in the legend.
constexpr SColour c_clrOutput = {255, 255, 255};
constexpr SColour c_clrScreen = {0, 70, 255};

/// The midpoint of an edge. The unused opposite vertex gives it the
/// signature of `Vertex`.
CPointEx<float> Middle(CPointEx<float> ptA, CPointEx<float> ptB, CPointEx<float> /*ptOpposite*/)
{
    return {(ptA.x + ptB.x) / 2.0F, (ptA.y + ptB.y) / 2.0F};
}

/// The vertex opposite to the edge whose midpoint is `ptOpposite`.
CPointEx<float> Vertex(CPointEx<float> ptA, CPointEx<float> ptB, CPointEx<float> ptOpposite)
{
    return {ptA.x + ptB.x - ptOpposite.x, ptA.y + ptB.y - ptOpposite.y};
}

bool IsSame(CPointEx<float> ptA, CPointEx<float> ptB)
{
    return std::tie(ptA.x, ptA.y) == std::tie(ptB.x, ptB.y);
}

bool HaveSamePoints(const SChromaGroupInfo& first, const SChromaGroupInfo& second)
{
    for (const SChromaPointFields& fields : c_arrChromaPointFields)
        if (!IsSame(first.*fields.pPoint, second.*fields.pPoint) ||
            first.*fields.pMove != second.*fields.pMove || first.*fields.pShowDot != second.*fields.pShowDot)
            return false;
    return true;
}

bool HaveSameColour(const SChromaGroupInfo& first, const SChromaGroupInfo& second)
{
    if (first.bOwnColor != second.bOwnColor)
        return false;
    return !first.bOwnColor || std::tie(first.nColorR, first.nColorG, first.nColorB) ==
                                   std::tie(second.nColorR, second.nColorG, second.nColorB);
}

bool IsSameGroup(const SChromaGroupInfo& first, const SChromaGroupInfo& second)
{
    const auto Fields = [](const SChromaGroupInfo& group) {
        return std::tie(group.nGroupKey, group.nPenStyle, group.fPenWidth, group.bVisible, group.bRgbMode,
                        group.bShowNote, group.strName);
    };
    return HaveSamePoints(first, second) && HaveSameColour(first, second) && Fields(first) == Fields(second);
}

SChromaGroupInfo WithColour(SChromaGroupInfo group, SColour colour)
{
    group.bOwnColor = true;
    group.nColorR = colour.nR;
    group.nColorG = colour.nG;
    group.nColorB = colour.nB;
    return group;
}

void SetMovable(SChromaGroupInfo& group, bool bMovable)
{
    for (const SChromaPointFields& fields : c_arrChromaPointFields)
        group.*fields.pMove = bMovable;
}

} // namespace

ColourGroups::Groups ColourGroups::Take(const CChromaticityDlgWnd& chart)
{
    Groups groups;
    for (auto it = chart.m_mapGroups.cbegin(); it != chart.m_mapGroups.cend(); ++it)
        groups.insert(it.key(), *it.value());
    return groups;
}

void ColourGroups::Restore(CChromaticityDlgWnd& chart, const Groups& groups)
{
    for (const int nKey : chart.m_mapGroups.keys())
        if (!groups.contains(nKey))
            chart.RemoveChromaGroupByIndex(nKey);
    for (auto it = groups.cbegin(); it != groups.cend(); ++it) {
        if (SChromaGroupInfo* pGroup = chart.GetChromaGroupByIndex(it.key()))
            *pGroup = it.value();
        else
            chart.AddChromaGroupByIndex(it.key(), it.value());
    }
    chart.update();
}

bool ColourGroups::AreSame(const Groups& first, const Groups& second)
{
    return first.keys() == second.keys() &&
           std::equal(first.cbegin(), first.cend(), second.cbegin(), IsSameGroup);
}

bool ColourGroups::IsCoverageKey(int nKey)
{
    return nKey == enOutputColorSpace || nKey == enScreenColorSpace;
}

int ColourGroups::FreeKey(const CChromaticityDlgWnd& chart)
{
    int nKey = 0;
    while (chart.m_mapGroups.contains(nKey) || IsCoverageKey(nKey))
        ++nKey;
    return nKey;
}

void ColourGroups::SetMode(SChromaGroupInfo& group, bool bRgb)
{
    if (group.bRgbMode == bRgb)
        return;
    const auto Opposite = bRgb ? Vertex : Middle;
    const SChromaGroupInfo before = group;
    group.ptRed = Opposite(before.ptGreen, before.ptBlue, before.ptRed);
    group.ptGreen = Opposite(before.ptBlue, before.ptRed, before.ptGreen);
    group.ptBlue = Opposite(before.ptRed, before.ptGreen, before.ptBlue);
    group.bRgbMode = bRgb;
}

void ColourGroups::SetStandard(SChromaGroupInfo& group, enColorStandard standard)
{
    const SColourStandard& row = c_arrColourStandards[standard];
    const bool bRgb = group.bRgbMode;
    group.ptRed = row.ptRed;
    group.ptGreen = row.ptGreen;
    group.ptBlue = row.ptBlue;
    group.ptWhite = row.ptWhite;
    group.strName = QString::fromLatin1(row.szName);
    group.bRgbMode = true;
    SetMode(group, bRgb);
}

SChromaGroupInfo ColourGroups::OfStandard(enColorStandard standard)
{
    SChromaGroupInfo group;
    group.nPenStyle = Qt::SolidLine;
    group.fPenWidth = c_fLineWidth;
    SetStandard(group, standard);
    SetMovable(group, true);
    return group;
}

SChromaGroupInfo ColourGroups::OutputSpace()
{
    SChromaGroupInfo group = WithColour(OfStandard(enStandardRec2020), c_clrOutput);
    group.nGroupKey = enOutputColorSpace;
    SetMovable(group, false);
    return group;
}

SChromaGroupInfo ColourGroups::ScreenSpace()
{
    SChromaGroupInfo group = WithColour(OfStandard(enStandardDCIP3), c_clrScreen);
    group.nGroupKey = enScreenColorSpace;
    return group;
}

bool ColourGroups::MakeLegal(CChromaticityDlgWnd& chart, SChromaGroupInfo& group, int nPoint)
{
    return group.bRgbMode ? chart.ReCalRGB(&group, nPoint) : chart.ReCalCMY(&group);
}

std::optional<int> ColourGroups::Coverage(CChromaticityDlgWnd& chart)
{
    // A query with an unknown key would leave an empty entry in the chart.
    if (!chart.m_mapGroups.contains(enOutputColorSpace) || !chart.m_mapGroups.contains(enScreenColorSpace))
        return std::nullopt;
    const int nRatio = chart.CalcRatio();
    return nRatio < 0 ? std::nullopt : std::make_optional(nRatio);
}

QString ColourGroups::PointText(CPointEx<float> point)
{
    return QStringLiteral("%1, %2")
        .arg(double(point.x), 0, 'f', c_nCoordinateDigits)
        .arg(double(point.y), 0, 'f', c_nCoordinateDigits);
}

std::optional<CPointEx<float>> ColourGroups::ParsePoint(const QString& strText)
{
    static const QRegularExpression s_separator(QStringLiteral("[\\s,;，；]+"));
    const QStringList listParts = strText.trimmed().split(s_separator);
    if (listParts.size() != 2)
        return std::nullopt;
    bool bX = false;
    bool bY = false;
    const CPointEx<float> point(listParts[0].toFloat(&bX), listParts[1].toFloat(&bY));
    const auto IsChromaticity = [](float fValue) { return fValue >= 0.0F && fValue <= 1.0F; };
    if (!bX || !bY || !IsChromaticity(point.x) || !IsChromaticity(point.y))
        return std::nullopt;
    return point;
}
