#ifndef SENDERMODULEDIALOG_CHART_BITMAP_CHROMABITMAPROW_H
#define SENDERMODULEDIALOG_CHART_BITMAP_CHROMABITMAPROW_H

#include <cstdint>

/// @file
/// The innermost loop of the bitmap painter, compiled once for each instruction set. This header stays free
/// of inline functions and of other headers: what a file compiled for a wider instruction set defines inline
/// could be taken by the linker for everybody.

namespace ChromaBitmap {

/// Number of colour components: red, green, blue.
inline constexpr int c_nComponents = 3;

/// An estimate is counted in such parts of a component, and enlarged by such a part of itself, which is more
/// than it can be too small.
inline constexpr double c_dParts = 4096.0;
inline constexpr double c_dEnlarged = 9.5367431640625e-07; ///< 2^-20

/// One colour component along one row of pixels, as a function of the distance from its line. With a, b, c
/// the line's coefficients, and every product and sum rounded on its own in this order: the term is
/// |(b y + a x) + c|, the distance is the term by the length of (a, b), and the component is the whole part
/// of 255 sqrt(distance / full distance). All signs are turned such that the term is positive on the coloured
/// side, but for its roundings.
struct SRamp
{
    float fA;            ///< a
    float fBy;           ///< b y: the same along the row
    float fC;            ///< c
    float fLength;       ///< sqrt(b b + a a)
    float fFullDistance; ///< from where the component is full
    float fEstimate;     ///< what the term is to be multiplied by to give the square of the estimate
};

/// A piece of a row in which each component either grows, by its ramp, or stays.
struct SRowPiece
{
    int nLeft;             ///< the first pixel
    int nRight;            ///< one behind the last pixel; the piece is not empty
    unsigned int nGrowing; ///< a bit for each component that grows, red in bit 0
    std::uint32_t nBase;   ///< alpha, and the components that stay; the others 0
};

/// Paints a piece of a row. It may write more pixels than the piece has, to its right, but none beyond
/// the width.
/// @param pRow the pixels of the row
/// @param nWidth number of pixels that may be written
/// @param arrRamps red, green and blue; in the piece no growing component is full
using FuncPaintPiece = void (*)(std::uint32_t* pRow, int nWidth, const SRamp* arrRamps,
                                const SRowPiece& piece);

void PaintPiecePlain(std::uint32_t* pRow, int nWidth, const SRamp* arrRamps, const SRowPiece& piece);
#ifdef SENDER_CHART_X86
void PaintPieceSse2(std::uint32_t* pRow, int nWidth, const SRamp* arrRamps, const SRowPiece& piece);
void PaintPieceAvx2(std::uint32_t* pRow, int nWidth, const SRamp* arrRamps, const SRowPiece& piece);
#endif
#ifdef SENDER_CHART_NEON
void PaintPieceNeon(std::uint32_t* pRow, int nWidth, const SRamp* arrRamps, const SRowPiece& piece);
#endif

} // namespace ChromaBitmap

#endif // SENDERMODULEDIALOG_CHART_BITMAP_CHROMABITMAPROW_H
