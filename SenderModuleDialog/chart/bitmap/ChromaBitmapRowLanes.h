#ifndef SENDERMODULEDIALOG_CHART_BITMAP_CHROMABITMAPROWLANES_H
#define SENDERMODULEDIALOG_CHART_BITMAP_CHROMABITMAPROWLANES_H

#include "SenderModuleDialog/chart/bitmap/ChromaBitmapRow.h"

/// @file
/// The loop over the pixels of a piece, written once over lanes: several pixels at a time. Each instruction
/// set includes it in one file, which defines its lanes. All that is here has internal linkage.
///
/// A component needs two divisions and a square root where every step is rounded. One product and one root
/// give it nearly, and a little too large. Where that is well above a whole number, which it nearly always
/// is, its whole part is the component; anywhere else it is in doubt, and all steps are taken.

namespace {

using ChromaBitmap::SRamp;
using ChromaBitmap::SRowPiece;

/// The fraction of an estimate counted in `c_dParts`.
constexpr int c_nFractionBits = 12;
static_assert(ChromaBitmap::c_dParts == 1U << c_nFractionBits, "estimates are counted in these parts");
/// An estimate is in doubt unless one of these bits of its fraction is set, that is less than 2^-11 above a
/// whole number. Its roundings, the error of a quick root (2^-22) and the roundings of the full steps, each
/// at most 2^-24 of the value or half of that behind the root, are below 2^-20 together, by which it is
/// enlarged; so it is above the component, by less than 255 x 2^-19.
constexpr std::uint32_t c_nDoubtMask = 0xFFE;

constexpr float c_fFull = 255.0F;

/// Where the components stand in a pixel: red in bits 16 to 23, green in 8 to 15, blue in 0 to 7.
constexpr int c_nRedShift = 16;
constexpr int c_nGreenShift = 8;
constexpr int c_nBlueShift = 0;
constexpr std::uint32_t c_nByteMask = 0xFF;

/// A ramp in all lanes, which the estimate needs for each pixel.
template <class TLanes>
struct SRampLanes
{
    typename TLanes::Floats a;
    typename TLanes::Floats by;
    typename TLanes::Floats c;
    typename TLanes::Floats estimate;

    /// @param fFactor what the estimated square is to be multiplied by, a power of two
    SRampLanes(const SRamp& ramp, float fFactor)
        : a(TLanes::Set(ramp.fA))
        , by(TLanes::Set(ramp.fBy))
        , c(TLanes::Set(ramp.fC))
        , estimate(TLanes::Set(ramp.fEstimate * fFactor))
    {}

    typename TLanes::Floats Term(typename TLanes::Floats x) const
    {
        return TLanes::Add(TLanes::Add(by, TLanes::Multiply(a, x)), c);
    }
};

/// The component by all its steps.
template <class TLanes>
typename TLanes::Integers Component(const SRamp& ramp, typename TLanes::Floats x)
{
    const auto term = TLanes::Absolute(SRampLanes<TLanes>(ramp, 1.0F).Term(x));
    const auto distance = TLanes::Divide(term, TLanes::Set(ramp.fLength));
    const auto share = TLanes::Divide(distance, TLanes::Set(ramp.fFullDistance));
    return TLanes::Truncate(TLanes::Multiply(TLanes::Set(c_fFull), TLanes::SquareRoot(share)));
}

/// Moves a component from above the fraction to its place in the pixel.
template <class TLanes, int nShift>
typename TLanes::Integers InPlace(typename TLanes::Integers estimate)
{
    constexpr int c_nLeft = nShift - c_nFractionBits;
    if constexpr (c_nLeft > 0)
        estimate = TLanes::template ShiftLeft<c_nLeft>(estimate);
    else
        estimate = TLanes::template ShiftRight<-c_nLeft>(estimate);
    return TLanes::And(estimate, TLanes::SetInteger(c_nByteMask << nShift));
}

/// The pixels of a piece in which the components of the bits grow.
template <class TLanes, unsigned int nGrowing>
class CGrowingPixels
{
public:
    using Floats = typename TLanes::Floats;
    using Integers = typename TLanes::Integers;

    CGrowingPixels(const SRamp* arrRamps, std::uint32_t nBase)
        : m_arrRamps(arrRamps)
        , m_base(TLanes::SetInteger(nBase))
        , m_red(arrRamps[0], Factor(c_bQuickRed))
        , m_green(arrRamps[1], Factor(c_bQuickGreen))
        , m_blue(arrRamps[2], Factor(false))
    {}

    Integers At(Floats x) const
    {
        auto pixels = m_base;
        auto fractions = TLanes::SetInteger(c_nDoubtMask);
        AddEstimate<c_bRed, c_nRedShift, c_bQuickRed>(m_red, x, pixels, fractions);
        AddEstimate<c_bGreen, c_nGreenShift, c_bQuickGreen>(m_green, x, pixels, fractions);
        AddEstimate<c_bBlue, c_nBlueShift, false>(m_blue, x, pixels, fractions);
        return TLanes::IsAnyZero(fractions) ? InAllSteps(x) : pixels;
    }

private:
    static constexpr bool c_bRed = (nGrowing & 1U) != 0;
    static constexpr bool c_bGreen = (nGrowing & 2U) != 0;
    static constexpr bool c_bBlue = (nGrowing & 4U) != 0;
    // Processors have one unit for exact roots, which two components would wait for: the last takes it.
    static constexpr bool c_bQuickRed = c_bRed && (c_bGreen || c_bBlue);
    static constexpr bool c_bQuickGreen = c_bGreen && c_bBlue;

    static constexpr float Factor(bool bQuickRoot) { return bQuickRoot ? TLanes::c_fQuickFactor : 1.0F; }

    /// Adds a component to the pixels by its estimate, and takes the least of the fractions. Rounding can
    /// move a term across the line: it then has no root and no fraction, and the pixel is in doubt.
    template <bool bGrows, int nShift, bool bQuickRoot>
    static void AddEstimate(const SRampLanes<TLanes>& ramp, Floats x, Integers& pixels, Integers& fractions)
    {
        if constexpr (bGrows) {
            const auto square = TLanes::Multiply(ramp.Term(x), ramp.estimate);
            const auto root = bQuickRoot ? TLanes::QuickRoot(square) : TLanes::SquareRoot(square);
            const auto estimate = TLanes::Truncate(root);
            fractions = TLanes::Least(fractions, TLanes::And(estimate, TLanes::SetInteger(c_nDoubtMask)));
            pixels = TLanes::Or(pixels, InPlace<TLanes, nShift>(estimate));
        }
    }

    template <bool bGrows, int nShift>
    static void AddComponent(const SRamp& ramp, Floats x, Integers& pixels)
    {
        if constexpr (bGrows)
            pixels = TLanes::Or(pixels, TLanes::template ShiftLeft<nShift>(Component<TLanes>(ramp, x)));
    }

    Integers InAllSteps(Floats x) const
    {
        auto pixels = m_base;
        AddComponent<c_bRed, c_nRedShift>(m_arrRamps[0], x, pixels);
        AddComponent<c_bGreen, c_nGreenShift>(m_arrRamps[1], x, pixels);
        AddComponent<c_bBlue, c_nBlueShift>(m_arrRamps[2], x, pixels);
        return pixels;
    }

    const SRamp* m_arrRamps;
    Integers m_base;
    SRampLanes<TLanes> m_red;
    SRampLanes<TLanes> m_green;
    SRampLanes<TLanes> m_blue;
};

/// How often all lanes fit into the row until nothing of the piece is left.
template <class TLanes>
int WholeSteps(int nWidth, const SRowPiece& piece)
{
    const int nNeeded = (piece.nRight - piece.nLeft + TLanes::c_nCount - 1) / TLanes::c_nCount;
    const int nRoom = (nWidth - piece.nLeft) / TLanes::c_nCount;
    return nNeeded < nRoom ? nNeeded : nRoom;
}

template <class TLanes, unsigned int nGrowing>
void PaintGrowing(std::uint32_t* pRow, int nWidth, const SRamp* arrRamps, const SRowPiece& piece)
{
    const CGrowingPixels<TLanes, nGrowing> pixels(arrRamps, piece.nBase);
    auto x = TLanes::From(piece.nLeft);
    std::uint32_t* pPixel = pRow + piece.nLeft;
    std::uint32_t* const pWhole = pPixel + WholeSteps<TLanes>(nWidth, piece) * TLanes::c_nCount;
    for (; pPixel != pWhole; pPixel += TLanes::c_nCount) {
        TLanes::Store(pPixel, pixels.At(x));
        x = TLanes::Add(x, TLanes::Set(float(TLanes::c_nCount)));
    }
    if (pPixel >= pRow + piece.nRight)
        return;
    // At the right edge there is no room for all lanes.
    std::uint32_t arrLast[TLanes::c_nCount];
    TLanes::Store(arrLast, pixels.At(x));
    for (int i = 0; pPixel + i < pRow + piece.nRight; ++i)
        pPixel[i] = arrLast[i];
}

template <class TLanes>
void PaintEven(std::uint32_t* pRow, int nWidth, const SRamp*, const SRowPiece& piece)
{
    const auto base = TLanes::SetInteger(piece.nBase);
    int nX = piece.nLeft;
    for (; nX < piece.nRight && nX + TLanes::c_nCount <= nWidth; nX += TLanes::c_nCount)
        TLanes::Store(pRow + nX, base);
    for (; nX < piece.nRight; ++nX)
        pRow[nX] = piece.nBase;
}

template <class TLanes>
void PaintPiece(std::uint32_t* pRow, int nWidth, const SRamp* arrRamps, const SRowPiece& piece)
{
    static constexpr ChromaBitmap::FuncPaintPiece c_arrPaint[] = {
        PaintEven<TLanes>,       PaintGrowing<TLanes, 1>, PaintGrowing<TLanes, 2>, PaintGrowing<TLanes, 3>,
        PaintGrowing<TLanes, 4>, PaintGrowing<TLanes, 5>, PaintGrowing<TLanes, 6>, PaintGrowing<TLanes, 7>,
    };
    c_arrPaint[piece.nGrowing](pRow, nWidth, arrRamps, piece);
}

} // namespace

#endif // SENDERMODULEDIALOG_CHART_BITMAP_CHROMABITMAPROWLANES_H
