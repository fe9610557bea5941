#ifndef SENDERMODULEDIALOG_CHART_CHROMABITMAPROWLANES_H
#define SENDERMODULEDIALOG_CHART_CHROMABITMAPROWLANES_H

#include "SenderModuleDialog/chart/ChromaBitmapRow.h"

/// @file
/// The loop over the pixels of a piece, written once over lanes: several pixels at a time. Each instruction
/// set includes it in one file, which defines its lanes. All that is here has internal linkage.
///
/// A component needs two divisions and a square root where every step is rounded. One product and one square
/// root give it nearly: less than `c_fDoubt` off. Where that leaves no doubt about its whole part, which is
/// nearly always, it is the component; in doubt all steps are taken.

namespace {

using ChromaBitmap::SRamp;
using ChromaBitmap::SRowPiece;

/// More than the estimate can be off: its three roundings and the five of the full steps, each at most 2^-24
/// of the value or half of that behind the root, are below 0.0001 at 255.
constexpr float c_fDoubt = 0.000244140625F;

constexpr float c_fFull = 255.0F;

/// Where the components stand in a pixel: red in bits 16 to 23, green in 8 to 15, blue in 0 to 7.
constexpr int c_nRedShift = 16;
constexpr int c_nGreenShift = 8;
constexpr int c_nBlueShift = 0;

template <class TLanes>
typename TLanes::Floats Term(const SRamp& ramp, typename TLanes::Floats x)
{
    const auto sum = TLanes::Add(TLanes::Set(ramp.fBy), TLanes::Multiply(TLanes::Set(ramp.fA), x));
    return TLanes::Absolute(TLanes::Add(sum, TLanes::Set(ramp.fC)));
}

/// The component by all its steps.
template <class TLanes>
typename TLanes::Integers Component(const SRamp& ramp, typename TLanes::Floats x)
{
    const auto distance = TLanes::Divide(Term<TLanes>(ramp, x), TLanes::Set(ramp.fLength));
    const auto share = TLanes::Divide(distance, TLanes::Set(ramp.fFullDistance));
    return TLanes::Truncate(TLanes::Multiply(TLanes::Set(c_fFull), TLanes::SquareRoot(share)));
}

/// Adds a component to the pixels by its estimate, and the lanes in doubt to the doubts.
template <class TLanes, bool bGrows, int nShift>
void AddEstimate(const SRamp& ramp, typename TLanes::Floats x, typename TLanes::Integers& pixels,
                 typename TLanes::Integers& doubts)
{
    if constexpr (bGrows) {
        const auto square = TLanes::Multiply(Term<TLanes>(ramp, x), TLanes::Set(ramp.fEstimate));
        const auto estimate = TLanes::SquareRoot(square);
        const auto low = TLanes::Truncate(TLanes::Add(estimate, TLanes::Set(-c_fDoubt)));
        const auto high = TLanes::Truncate(TLanes::Add(estimate, TLanes::Set(c_fDoubt)));
        doubts = TLanes::Or(doubts, TLanes::Xor(low, high));
        pixels = TLanes::Or(pixels, TLanes::template ShiftLeft<nShift>(low));
    }
}

template <class TLanes, bool bGrows, int nShift>
void AddComponent(const SRamp& ramp, typename TLanes::Floats x, typename TLanes::Integers& pixels)
{
    if constexpr (bGrows)
        pixels = TLanes::Or(pixels, TLanes::template ShiftLeft<nShift>(Component<TLanes>(ramp, x)));
}

/// The pixels at some x, of a piece in which the components of the bits grow.
template <class TLanes, unsigned int nGrowing>
typename TLanes::Integers Pixels(const SRamp* arrRamps, typename TLanes::Integers base,
                                 typename TLanes::Floats x)
{
    constexpr bool bRed = (nGrowing & 1U) != 0;
    constexpr bool bGreen = (nGrowing & 2U) != 0;
    constexpr bool bBlue = (nGrowing & 4U) != 0;
    auto pixels = base;
    auto doubts = TLanes::SetInteger(0);
    AddEstimate<TLanes, bRed, c_nRedShift>(arrRamps[0], x, pixels, doubts);
    AddEstimate<TLanes, bGreen, c_nGreenShift>(arrRamps[1], x, pixels, doubts);
    AddEstimate<TLanes, bBlue, c_nBlueShift>(arrRamps[2], x, pixels, doubts);
    if (TLanes::IsZero(doubts))
        return pixels;
    pixels = base;
    AddComponent<TLanes, bRed, c_nRedShift>(arrRamps[0], x, pixels);
    AddComponent<TLanes, bGreen, c_nGreenShift>(arrRamps[1], x, pixels);
    AddComponent<TLanes, bBlue, c_nBlueShift>(arrRamps[2], x, pixels);
    return pixels;
}

template <class TLanes, unsigned int nGrowing>
void PaintGrowing(std::uint32_t* pRow, int nWidth, const SRamp* arrRamps, const SRowPiece& piece)
{
    const auto base = TLanes::SetInteger(piece.nBase);
    auto x = TLanes::From(piece.nLeft);
    int nX = piece.nLeft;
    for (; nX < piece.nRight && nX + TLanes::c_nCount <= nWidth; nX += TLanes::c_nCount) {
        TLanes::Store(pRow + nX, Pixels<TLanes, nGrowing>(arrRamps, base, x));
        x = TLanes::Add(x, TLanes::Set(float(TLanes::c_nCount)));
    }
    if (nX >= piece.nRight)
        return;
    // At the right edge there is no room for all lanes.
    std::uint32_t arrLast[TLanes::c_nCount];
    TLanes::Store(arrLast, Pixels<TLanes, nGrowing>(arrRamps, base, x));
    for (int i = 0; nX + i < piece.nRight; ++i)
        pRow[nX + i] = arrLast[i];
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

#endif // SENDERMODULEDIALOG_CHART_CHROMABITMAPROWLANES_H
