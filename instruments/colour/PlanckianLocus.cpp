#include "instruments/colour/PlanckianLocus.h"

#include "SenderModuleDialog/colour/CIE1931Observer.h"

#include <QtGlobal>

#include <array>
#include <cmath>
#include <cstddef>

namespace {

/// Second radiation constant, m K (CIE 15:2018; the value that ITS-90 is based on).
constexpr double c_dSecondRadiation = 0.014388;

constexpr double c_dMetresPerNanometre = 1e-9;
constexpr double c_dMiredKelvin = 1e6; ///< mired times kelvin
/// Exitances are taken relative to this wavelength, nm, so that powers of it stay near 1.
constexpr double c_dReferenceWavelength = 560.0;

/// The curve is laid through this many temperatures, evenly in mired: the locus bends evenly over mired.
constexpr int c_nNodes = 400;
/// Kelvin that the curve reaches beyond each end of the range, so that an end is found like any other point.
constexpr double c_dBeyondLowest = 20.0;
constexpr double c_dBeyondHighest = 400.0;
constexpr double c_dLowestMired = c_dMiredKelvin / (PlanckianLocus::c_dHighestTemperature + c_dBeyondHighest);
constexpr double c_dHighestMired = c_dMiredKelvin / (PlanckianLocus::c_dLowestTemperature - c_dBeyondLowest);
constexpr double c_dStep = (c_dHighestMired - c_dLowestMired) / (c_nNodes - 1);

/// Halvings of a step: 2.5 mired become less than the rounding of a temperature.
constexpr int c_nHalvings = 48;

/// An end of the range is met within this many kelvin: rounding may put it just outside.
constexpr double c_dEndTolerance = 1e-3;

struct SPoint
{
    double dU = 0.0;
    double dV = 0.0;
};

SPoint operator-(SPoint a, SPoint b)
{
    return {a.dU - b.dU, a.dV - b.dV};
}

double Dot(SPoint a, SPoint b)
{
    return a.dU * b.dU + a.dV * b.dV;
}

/// A place on the locus and how it moves with the mired.
struct SNode
{
    SPoint pt;
    SPoint tangent; ///< per mired
};

/// Adds a spectral line to tristimulus values.
void Add(STristimulus& sum, const SObserverRow& row, double dExitance)
{
    sum.dX += row.dX * dExitance;
    sum.dY += row.dY * dExitance;
    sum.dZ += row.dZ * dExitance;
}

/// u = 4X / d, v = 6Y / d with d = X + 15Y + 3Z, and their derivatives by the quotient rule.
SNode Node(const STristimulus& xyz, const STristimulus& slope)
{
    const double dDivisor = xyz.dX + 15.0 * xyz.dY + 3.0 * xyz.dZ;
    const double dDivisorSlope = slope.dX + 15.0 * slope.dY + 3.0 * slope.dZ;
    const SPoint pt = {4.0 * xyz.dX / dDivisor, 6.0 * xyz.dY / dDivisor};
    return {pt,
            {(4.0 * slope.dX - pt.dU * dDivisorSlope) / dDivisor,
             (6.0 * slope.dY - pt.dV * dDivisorSlope) / dDivisor}};
}

/// Planck's law, M = 1 / (L^5 (exp(c2 / (L T)) - 1)) up to a factor, with 1 / T in mired.
SNode ExactNode(double dMired)
{
    STristimulus xyz;
    STristimulus slope;
    for (const SObserverRow& row : c_arrObserver) {
        const double dPerMired =
            c_dSecondRadiation / (row.dWavelength * c_dMetresPerNanometre * c_dMiredKelvin);
        const double dExponential = std::exp(dPerMired * dMired);
        const double dExitance = std::pow(c_dReferenceWavelength / row.dWavelength, 5) / (dExponential - 1.0);
        Add(xyz, row, dExitance);
        Add(slope, row, -dExitance * dPerMired * dExponential / (dExponential - 1.0));
    }
    return Node(xyz, slope);
}

double MiredOf(int nNode)
{
    return c_dLowestMired + nNode * c_dStep;
}

using Nodes = std::array<SNode, c_nNodes>;

const Nodes& AllNodes()
{
    static const Nodes s_nodes = [] {
        Nodes nodes;
        for (int i = 0; i < c_nNodes; ++i)
            nodes[std::size_t(i)] = ExactNode(MiredOf(i));
        return nodes;
    }();
    return s_nodes;
}

/// A cubic through two neighbouring nodes with their tangents (Hermite form), over 0 to 1.
class CPiece
{
public:
    CPiece(const SNode& first, const SNode& second)
        : m_u(first.pt.dU, first.tangent.dU, second.pt.dU, second.tangent.dU)
        , m_v(first.pt.dV, first.tangent.dV, second.pt.dV, second.tangent.dV)
    {}

    SPoint At(double dPart) const { return {m_u.At(dPart), m_v.At(dPart)}; }
    SPoint Slope(double dPart) const { return {m_u.Slope(dPart), m_v.Slope(dPart)}; }

private:
    struct SCubic
    {
        SCubic(double dFirst, double dFirstTangent, double dSecond, double dSecondTangent)
            : dConstant(dFirst)
            , dLinear(dFirstTangent * c_dStep)
            , dSquare(3.0 * (dSecond - dFirst) - (2.0 * dFirstTangent + dSecondTangent) * c_dStep)
            , dCube(2.0 * (dFirst - dSecond) + (dFirstTangent + dSecondTangent) * c_dStep)
        {}
        double At(double dPart) const
        {
            return dConstant + dPart * (dLinear + dPart * (dSquare + dPart * dCube));
        }
        double Slope(double dPart) const { return dLinear + dPart * (2.0 * dSquare + dPart * 3.0 * dCube); }

        double dConstant;
        double dLinear;
        double dSquare;
        double dCube;
    };

    SCubic m_u;
    SCubic m_v;
};

int NearestNode(const Nodes& nodes, SPoint pt)
{
    int nNearest = 0;
    double dSmallest = Dot(nodes[0].pt - pt, nodes[0].pt - pt);
    for (int i = 1; i < c_nNodes; ++i) {
        const SPoint offset = nodes[std::size_t(i)].pt - pt;
        const double dSquare = Dot(offset, offset);
        if (dSquare < dSmallest) {
            dSmallest = dSquare;
            nNearest = i;
        }
    }
    return nNearest;
}

/// Where on a piece the line from the point meets the locus at a right angle.
double FootOn(const CPiece& piece, SPoint pt)
{
    double dLow = 0.0;
    double dHigh = 1.0;
    for (int i = 0; i < c_nHalvings; ++i) {
        const double dMiddle = 0.5 * (dLow + dHigh);
        const bool bBefore = Dot(piece.At(dMiddle) - pt, piece.Slope(dMiddle)) < 0.0;
        (bBefore ? dLow : dHigh) = dMiddle;
    }
    return 0.5 * (dLow + dHigh);
}

/// The temperature of the foot and the distance from it, beyond the ends too.
PlanckianLocus::STemperature NearestTemperature(SPoint pt)
{
    const Nodes& nodes = AllNodes();
    const int nNearest = NearestNode(nodes, pt);
    const SNode& nearest = nodes[std::size_t(nNearest)];
    const bool bBehind = Dot(nearest.pt - pt, nearest.tangent) < 0.0;
    const int nFirst = qBound(0, bBehind ? nNearest : nNearest - 1, c_nNodes - 2);
    const CPiece piece(nodes[std::size_t(nFirst)], nodes[std::size_t(nFirst) + 1]);
    const double dPart = FootOn(piece, pt);
    const SPoint offset = pt - piece.At(dPart);
    return {c_dMiredKelvin / (MiredOf(nFirst) + dPart * c_dStep),
            std::copysign(std::hypot(offset.dU, offset.dV), offset.dV)};
}

bool IsInRange(double dKelvin)
{
    return dKelvin > PlanckianLocus::c_dLowestTemperature - c_dEndTolerance &&
           dKelvin < PlanckianLocus::c_dHighestTemperature + c_dEndTolerance;
}

} // namespace

bool PlanckianLocus::STemperature::IsMeaningful() const
{
    return std::abs(dDuv) <= c_dLargestDuv;
}

SUcs1960 PlanckianLocus::PointOfTemperature(double dKelvin)
{
    const SPoint pt = ExactNode(c_dMiredKelvin / dKelvin).pt;
    return {pt.dU, pt.dV};
}

CColourResult<PlanckianLocus::STemperature> PlanckianLocus::TemperatureOf(SChromaticity xy)
{
    if (const enColourFault fault = Chromaticity::Check(xy); fault != enColourFault::enNone)
        return fault;
    const SUcs1960 uv = Chromaticity::ToUcs1960(Chromaticity::ToUcs(xy));
    STemperature temperature = NearestTemperature({uv.dU, uv.dV});
    if (!IsInRange(temperature.dKelvin))
        return enColourFault::enNoTemperature;
    temperature.dKelvin = qBound(c_dLowestTemperature, temperature.dKelvin, c_dHighestTemperature);
    return temperature;
}
