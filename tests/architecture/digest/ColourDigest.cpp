#include "SenderModuleDialog/colour/CCT2ColorCoord.h"
#include "SenderModuleDialog/colour/ChromaGamutInterpolation.h"
#include "tests/architecture/digest/Digest.h"

namespace {

/// Rounds of a function, so that the folder comes to some 100,000 results.
constexpr int c_nRounds = 8000;

float Temperature(CSequence& sequence)
{
    return 4000.0F + 21000.0F * sequence.Unit();
}

/// Most places near the locus, the others anywhere.
QPointF Place(CSequence& sequence, const CCCT2ColorCoord& cct)
{
    QPointF pt;
    if (sequence.Below(4) == 0) {
        const CPointEx<float> ptAny = sequence.Point();
        return {double(ptAny.x), double(ptAny.y)};
    }
    cct.CCTtoColorCoord(Temperature(sequence), &pt, true);
    const double dX = pt.x() + 0.02 * (double(sequence.Unit()) - 0.5);
    const double dY = pt.y() + 0.02 * (double(sequence.Unit()) - 0.5);
    return {dX, dY};
}

void PointsOfTemperatures(CSequence& sequence, CDigest& digest)
{
    const CCCT2ColorCoord cct;
    for (int i = 0; i < 2 * c_nRounds; ++i) {
        QPointF pt;
        digest.Add(cct.CCTtoColorCoord(Temperature(sequence), &pt, false));
        digest.Add(pt);
    }
}

void TemperaturesOfPoints(CSequence& sequence, CDigest& digest)
{
    const CCCT2ColorCoord cct;
    for (int i = 0; i < 2 * c_nRounds; ++i) {
        float fCCT = -1.0F;
        digest.Add(cct.TriangAlgCalcRelativeCCT(Place(sequence, cct), &fCCT, false));
        digest.Add(fCCT);
    }
}

void PairsOfRows(CSequence& sequence, CDigest& digest)
{
    const CCCT2ColorCoord cct;
    for (int i = 0; i < c_nRounds; ++i) {
        const QPointF xy = Place(sequence, cct);
        if (!cct.isCoordInArea(xy))
            continue;
        QPointF uv;
        cct.ColorCoordXYtoUV(xy, &uv);
        sCIE1931 arrPair[2];
        cct.SearchNearestTwoPoint(uv, arrPair);
        digest.Add(uv);
        digest.Add(arrPair[0].nCCT);
        digest.Add(arrPair[1].nCCT);
        digest.Add(arrPair[0].dU);
        digest.Add(cct.TriangCalUrd(uv, arrPair));
    }
}

void Cubic(CSequence& sequence, CDigest& digest)
{
    const CCCT2ColorCoord cct;
    for (int i = 0; i < c_nRounds; ++i) {
        const float fN = 12.0F * sequence.Unit() - 6.0F;
        digest.Add(cct.Solvef(fN, Temperature(sequence)));
        digest.Add(cct.Solveff(fN));
    }
}

void Outline(CSequence& sequence, CDigest& digest)
{
    CChromaGamutInterpolation gamut;
    for (const QPointF& pt : gamut.GetQPointFData())
        digest.Add(pt);
    for (int i = 0; i < c_nRounds; ++i) {
        const CPointEx<float> pt = sequence.Point();
        digest.Add(gamut.IsPointInCIEPolygon(QPointF(double(pt.x), double(pt.y))));
    }
}

} // namespace

std::vector<SDigestFunction> ColourDigests()
{
    return {
        {"CCCT2ColorCoord-CCTtoColorCoord", PointsOfTemperatures},
        {"CCCT2ColorCoord-TriangAlgCalcRelativeCCT", TemperaturesOfPoints},
        {"CCCT2ColorCoord-SearchNearestTwoPoint", PairsOfRows},
        {"CCCT2ColorCoord-Solvef", Cubic},
        {"CChromaGamutInterpolation", Outline},
    };
}
