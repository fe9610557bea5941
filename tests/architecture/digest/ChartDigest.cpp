#include "SenderModuleDialog/chart/ChartGroupPoints.h"
#include "SenderModuleDialog/chart/ChartMapping.h"
#include "SenderModuleDialog/chart/solve/ChartSolver.h"
#include "SenderModuleDialog/colour/CCT2ColorCoord.h"
#include "SenderModuleDialog/colour/ChromaGamutInterpolation.h"
#include "tests/architecture/digest/Digest.h"

namespace {

/// Rounds of an operation, so that the folder comes to some 100,000 results.
constexpr int c_nRounds = 4000;

/// Three points anywhere and a white that is among them more often than not.
SChromaGroupInfo Group(CSequence& sequence)
{
    SChromaGroupInfo group;
    group.ptRed = sequence.Point();
    group.ptGreen = sequence.Point();
    group.ptBlue = sequence.Point();
    group.ptWhite = sequence.Point();
    if (sequence.Below(2) == 0)
        group.ptWhite = {(group.ptRed.x + group.ptGreen.x + group.ptBlue.x) / 3.0F,
                         (group.ptRed.y + group.ptGreen.y + group.ptBlue.y) / 3.0F};
    return group;
}

void Add(CDigest& digest, const SChromaGroupInfo& group)
{
    for (int i = enRedPoint; i <= enWhitePoint; ++i)
        digest.Add(GroupPointOrOrigin(group, i));
}

void RgbGroups(CSequence& sequence, CDigest& digest)
{
    CChromaGamutInterpolation gamut;
    CChartSolver solver(gamut);
    QPointF ptNearest;
    for (int i = 0; i < c_nRounds; ++i) {
        SChromaGroupInfo group = Group(sequence);
        digest.Add(solver.ReCalRGB(group, i % c_nChromaPointCount, ptNearest));
        digest.Add(ptNearest);
        Add(digest, group);
    }
}

void CmyGroups(CSequence& sequence, CDigest& digest)
{
    CChromaGamutInterpolation gamut;
    CChartSolver solver(gamut);
    QPointF ptNearest;
    for (int i = 0; i < c_nRounds; ++i) {
        SChromaGroupInfo group = Group(sequence);
        digest.Add(solver.ReCalCMY(group, ptNearest));
        digest.Add(ptNearest);
        Add(digest, group);
    }
}

void Drags(CSequence& sequence, CDigest& digest)
{
    CChromaGamutInterpolation gamut;
    const CCCT2ColorCoord cct;
    CChartSolver solver(gamut);
    const SWhiteSnap snap = {QPointF(0.3127, 0.329), cct};
    const CChartMapping mapping = CChartMapping::ForSize(997, 773);
    QPointF ptNearest;
    for (int i = 0; i < c_nRounds; ++i) {
        SChromaGroupInfo group = Group(sequence);
        const QPointF pos{double(sequence.Below(997)), double(sequence.Below(773))};
        const CPointEx<float> ptTarget = Narrowed(mapping.ToChromaticity(pos));
        solver.DragPoint(group, i % c_nChromaPointCount, ptTarget, i % 3 == 0 ? &snap : nullptr, ptNearest);
        digest.Add(ptNearest);
        Add(digest, group);
    }
}

} // namespace

std::vector<SDigestFunction> ChartDigests()
{
    return {
        {"CChartSolver-ReCalRGB", RgbGroups},
        {"CChartSolver-ReCalCMY", CmyGroups},
        {"CChartSolver-DragPoint", Drags},
    };
}
