#include "instruments/colour/SpectralWavelength.h"

#include "SenderModuleDialog/colour/SpectralLocus.h"

#include <QtGlobal>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr int c_nFirstWavelength = 360; ///< nm, of the first point of the spectral locus
constexpr int c_nLastWavelength = 830;  ///< nm, of its last

/// Nanometres that an edge of the hull spans at most on the spectral locus. The purple line spans some 440.
constexpr std::size_t c_nLongestSpectralEdge = 150;

/// Nearer to the white a chromaticity has no direction.
constexpr double c_dSmallestOffset = 1e-9;

SChromaticity operator-(SChromaticity a, SChromaticity b)
{
    return {a.dX - b.dX, a.dY - b.dY};
}

double Cross(SChromaticity a, SChromaticity b)
{
    return a.dX * b.dY - a.dY * b.dX;
}

double Length(SChromaticity a)
{
    return std::hypot(a.dX, a.dY);
}

SChromaticity OnWay(SChromaticity from, SChromaticity to, double dPart)
{
    return {from.dX + (to.dX - from.dX) * dPart, from.dY + (to.dY - from.dY) * dPart};
}

/// The outline with what the spectral locus says about it.
class COutline
{
public:
    COutline()
    {
        const QVector<QPointF> vecLocus = SpectralLocus::Points();
        for (const QPointF& pt : vecLocus)
            m_vecLocus.push_back({pt.x(), pt.y()});
        for (const QPointF& pt : SpectralLocus::Outline()) {
            m_vecHull.push_back({pt.x(), pt.y()});
            m_vecIndex.push_back(std::size_t(vecLocus.indexOf(pt)));
        }
    }

    /// Where a ray leaves the outline.
    struct SExit
    {
        SChromaticity xy;
        std::optional<double> wavelength; ///< nm; none on the purple line
    };

    /// @param from inside the outline
    std::optional<SExit> ExitOf(SChromaticity from, SChromaticity direction) const
    {
        for (std::size_t i = 0; i < m_vecHull.size(); ++i) {
            const std::size_t nNext = (i + 1) % m_vecHull.size();
            const SChromaticity first = m_vecHull[i] - from;
            const SChromaticity second = m_vecHull[nNext] - from;
            // The outline runs counter-clockwise: the ray leaves between a corner on its right and one on
            // its left.
            const double dRight = Cross(direction, first);
            const double dLeft = Cross(direction, second);
            if (dRight <= 0.0 && dLeft > 0.0)
                return ExitAt(i, nNext, dRight / (dRight - dLeft));
        }
        return std::nullopt;
    }

    bool Contains(SChromaticity xy) const
    {
        for (std::size_t i = 0; i < m_vecHull.size(); ++i) {
            const SChromaticity& next = m_vecHull[(i + 1) % m_vecHull.size()];
            if (Cross(next - m_vecHull[i], xy - m_vecHull[i]) < 0.0)
                return false;
        }
        return true;
    }

    SChromaticity AtWavelength(int nWavelength) const
    {
        return m_vecLocus[std::size_t(nWavelength - c_nFirstWavelength)];
    }

    /// The points of the spectral locus, one for each nanometre.
    const std::vector<SChromaticity>& Locus() const { return m_vecLocus; }

private:
    SExit ExitAt(std::size_t nFirst, std::size_t nSecond, double dPart) const
    {
        const SChromaticity xy = OnWay(m_vecHull[nFirst], m_vecHull[nSecond], dPart);
        const auto [nShort, nLong] = std::minmax(m_vecIndex[nFirst], m_vecIndex[nSecond]);
        if (nLong - nShort > c_nLongestSpectralEdge)
            return {xy, std::nullopt};
        return {xy, WavelengthBetween(nShort, nLong, xy)};
    }

    /// The wavelength of a point on an edge of the hull, which may leave out points of the locus: those stand
    /// on the edge at their feet.
    double WavelengthBetween(std::size_t nShort, std::size_t nLong, SChromaticity xy) const
    {
        const SChromaticity origin = m_vecLocus[nShort];
        const SChromaticity edge = m_vecLocus[nLong] - origin;
        const auto Along = [&](SChromaticity pt) {
            return (pt - origin).dX * edge.dX + (pt - origin).dY * edge.dY;
        };
        const double dAlong = Along(xy);
        std::size_t nNext = nShort + 1;
        while (nNext < nLong && Along(m_vecLocus[nNext]) < dAlong)
            ++nNext;
        const double dBefore = Along(m_vecLocus[nNext - 1]);
        const double dAfter = Along(m_vecLocus[nNext]);
        const double dPart =
            dAfter > dBefore ? qBound(0.0, (dAlong - dBefore) / (dAfter - dBefore), 1.0) : 0.0;
        return double(c_nFirstWavelength) + double(nNext - 1) + dPart;
    }

    std::vector<SChromaticity> m_vecLocus;
    std::vector<SChromaticity> m_vecHull;
    std::vector<std::size_t> m_vecIndex; ///< of each corner of the hull, its place in the locus
};

const COutline& Outline()
{
    static const COutline s_outline;
    return s_outline;
}

enColourFault Check(SChromaticity xy, SChromaticity white)
{
    for (const SChromaticity& pt : {xy, white})
        if (const enColourFault fault = Chromaticity::Check(pt); fault != enColourFault::enNone)
            return fault;
    if (!Outline().Contains(white))
        return enColourFault::enWhiteOutsideGamut;
    return Length(xy - white) < c_dSmallestOffset ? enColourFault::enAtWhite : enColourFault::enNone;
}

} // namespace

CColourResult<SpectralWavelength::SDominant> SpectralWavelength::DominantOf(SChromaticity xy,
                                                                            SChromaticity white)
{
    if (const enColourFault fault = Check(xy, white); fault != enColourFault::enNone)
        return fault;
    const auto exit = Outline().ExitOf(white, xy - white);
    const auto opposite = Outline().ExitOf(white, white - xy);
    if (!exit || !opposite)
        return enColourFault::enWhiteOutsideGamut;
    return SDominant{exit->wavelength, opposite->wavelength, Length(xy - white) / Length(exit->xy - white),
                     exit->xy};
}

std::vector<SpectralWavelength::SMark> SpectralWavelength::Marks(int nFirst, int nLast, int nStep)
{
    std::vector<SMark> vecMarks;
    for (int n = std::max(nFirst, c_nFirstWavelength); n <= std::min(nLast, c_nLastWavelength); n += nStep)
        vecMarks.push_back({double(n), Outline().AtWavelength(n)});
    return vecMarks;
}

SpectralWavelength::SNearest SpectralWavelength::NearestTo(SChromaticity xy)
{
    SNearest nearest = {0.0, std::numeric_limits<double>::infinity()};
    const std::vector<SChromaticity>& vecLocus = Outline().Locus();
    for (std::size_t i = 0; i + 1 < vecLocus.size(); ++i) {
        const SChromaticity edge = vecLocus[i + 1] - vecLocus[i];
        const SChromaticity offset = xy - vecLocus[i];
        const double dSquare = edge.dX * edge.dX + edge.dY * edge.dY;
        const double dAlong = offset.dX * edge.dX + offset.dY * edge.dY;
        const double dPart = dSquare > 0.0 ? qBound(0.0, dAlong / dSquare, 1.0) : 0.0;
        const double dDistance = Length(xy - OnWay(vecLocus[i], vecLocus[i + 1], dPart));
        if (dDistance < nearest.dDistance)
            nearest = {double(c_nFirstWavelength) + double(i) + dPart, dDistance};
    }
    return nearest;
}
