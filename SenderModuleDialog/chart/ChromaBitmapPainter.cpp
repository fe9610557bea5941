#include "SenderModuleDialog/chart/ChromaBitmapPainter.h"

#include "SenderModuleDialog/Saturate.h"
#include "SenderModuleDialog/chart/ChromaBitmapRow.h"
#include "SenderModuleDialog/chart/ChromaOutlineSpans.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <limits>

namespace {

using ChromaBitmap::c_nComponents;
using ChromaBitmap::FuncPaintPiece;
using ChromaBitmap::SMapping;
using ChromaBitmap::SRamp;
using ChromaBitmap::SRowPiece;
using ChromaBitmap::SSource;
using Point = CPointEx<float>;

/// The bitmap's margin is this part of its side.
constexpr int c_nMarginDivisor = 30;

/// How far the axes reach, in units of chromaticity.
constexpr double c_dAxisSpanX = 0.8;
constexpr double c_dAxisSpanY = 0.9;

/// The chromaticity from which the components are full is (1/3, 1/3).
constexpr double c_dCentreDivisor = 3.0;

/// Beyond all pixels: where the search for the extreme points starts from.
constexpr float c_fBeyond = 6.5536e9F;

constexpr float c_fFull = 255.0F;
constexpr std::uint32_t c_nFull = 255;
constexpr std::uint32_t c_nOpaque = 0xFF000000U;

/// Where red, green and blue stand in a pixel.
constexpr std::array<int, c_nComponents> c_arrShifts = {16, 8, 0};

/// The line that a component grows away from, and how. It holds what `CLine` would compute for each pixel
/// anew.
struct SGradient
{
    float fA;
    float fB;
    float fC;
    float fLength;       ///< sqrt(b b + a a)
    float fFullDistance; ///< the centre's distance
    float fCentreSide;   ///< the centre's value of c + a x + b y: its sign is the side that is coloured
    float fEstimate;     ///< see `SRamp`
    float fFullTerm;     ///< the smallest term for which the component is full
    double dInverseA;    ///< 1 / a, for guesses
    bool bRegular;       ///< can be painted in pieces
};

float Term(const SGradient& gradient, Point pt)
{
    return gradient.fB * pt.y + gradient.fA * pt.x + gradient.fC;
}

float Side(const SGradient& gradient, Point pt)
{
    return gradient.fC + gradient.fA * pt.x + gradient.fB * pt.y;
}

bool IsColouredSide(const SGradient& gradient, Point pt)
{
    return Side(gradient, pt) * gradient.fCentreSide > 0.0F;
}

/// The component for a term, on the coloured side.
std::uint32_t ComponentOfTerm(const SGradient& gradient, float fTerm)
{
    const float fDistance = std::fabs(fTerm) / gradient.fLength;
    if (fDistance > gradient.fFullDistance)
        return c_nFull;
    return SaturateTo<std::uint32_t>(c_fFull * std::sqrt(fDistance / gradient.fFullDistance));
}

std::uint32_t Component(const SGradient& gradient, Point pt)
{
    return IsColouredSide(gradient, pt) ? ComponentOfTerm(gradient, Term(gradient, pt)) : 0;
}

using Gradients = std::array<SGradient, c_nComponents>;

std::uint32_t Pixel(const Gradients& arrGradients, Point pt)
{
    std::uint32_t nPixel = c_nOpaque;
    for (size_t i = 0; i < c_nComponents; ++i)
        nPixel |= Component(arrGradients[i], pt) << c_arrShifts[i];
    return nPixel;
}

/// The smallest term for which the component is full: the component never falls as the term grows, so it is
/// found by halving the range of the positive floats, which are in the order of their bits.
float FullTerm(const SGradient& gradient)
{
    std::uint32_t nBelow = 0;
    std::uint32_t nFull = 0x7F800000U; // infinity
    const auto FloatOf = [](std::uint32_t nBits) {
        float fValue = 0.0F;
        std::memcpy(&fValue, &nBits, sizeof fValue);
        return fValue;
    };
    while (nFull - nBelow > 1) {
        const std::uint32_t nMiddle = nBelow + (nFull - nBelow) / 2;
        (ComponentOfTerm(gradient, FloatOf(nMiddle)) == c_nFull ? nFull : nBelow) = nMiddle;
    }
    return FloatOf(nFull);
}

/// Whether the gradient can be painted in pieces. In bitmaps of a few pixels the corners may fall together,
/// or onto the centre; then what rounding does to a side or a term may be as large as a full term.
bool IsRegular(const SGradient& gradient, Point ptLast)
{
    // Far above the few roundings of 2^-24 of the largest summand.
    constexpr float c_fRoundings = 3.814697265625e-06F; // 2^-18
    const float fLargest =
        std::fabs(gradient.fA) * ptLast.x + std::fabs(gradient.fB) * ptLast.y + std::fabs(gradient.fC);
    return gradient.fLength > 0.0F && gradient.fFullDistance > 0.0F && std::isnormal(gradient.fEstimate) &&
           gradient.fCentreSide != 0.0F && gradient.fFullTerm > fLargest * c_fRoundings;
}

/// @param ptLast the corner of the bitmap that is farthest from (0, 0)
SGradient MakeGradient(Point ptFrom, Point ptTo, Point ptCentre, Point ptLast)
{
    SGradient gradient = {};
    gradient.fA = ptTo.y - ptFrom.y;
    gradient.fB = ptFrom.x - ptTo.x;
    gradient.fC = ptFrom.y * ptTo.x - ptFrom.x * ptTo.y;
    gradient.fLength = std::sqrt(gradient.fB * gradient.fB + gradient.fA * gradient.fA);
    gradient.fFullDistance = std::fabs(Term(gradient, ptCentre)) / gradient.fLength;
    gradient.fCentreSide = Side(gradient, ptCentre);
    gradient.fEstimate = float(double(c_fFull) * double(c_fFull) /
                               (double(gradient.fLength) * double(gradient.fFullDistance)));
    gradient.fFullTerm = FullTerm(gradient);
    gradient.dInverseA = 1.0 / double(gradient.fA);
    gradient.bRegular = IsRegular(gradient, ptLast);
    return gradient;
}

struct SCorners
{
    Point ptRight;
    Point ptTop;
    Point ptLeft;
};

/// The horseshoe's corners; the first of equals.
SCorners FindCorners(const std::vector<Point>& vecLocus)
{
    SCorners corners = {};
    float fRight = -c_fBeyond;
    float fTop = c_fBeyond;
    float fLeft = -c_fBeyond;
    for (const Point pt : vecLocus) {
        if (pt.x > fRight) {
            fRight = pt.x;
            corners.ptRight = pt;
        }
        if (pt.y < fTop) {
            fTop = pt.y;
            corners.ptTop = pt;
        }
        if (pt.y - pt.x > fLeft) {
            fLeft = pt.y - pt.x;
            corners.ptLeft = pt;
        }
    }
    return corners;
}

Gradients MakeGradients(const std::vector<Point>& vecLocus, const SMapping& mapping, Point ptLast)
{
    const SCorners corners = FindCorners(vecLocus);
    const double dThird = double(mapping.nScale) / c_dCentreDivisor;
    const Point ptCentre(float(double(mapping.nMarginX) + dThird),
                         float(double(mapping.nHeight - mapping.nMarginY) - dThird));
    return {MakeGradient(corners.ptTop, corners.ptLeft, ptCentre, ptLast),
            MakeGradient(corners.ptRight, corners.ptLeft, ptCentre, ptLast),
            MakeGradient(corners.ptRight, corners.ptTop, ptCentre, ptLast)};
}

/// The whole pixels of the image inside the box around the locus.
QRect PixelBox(const std::vector<Point>& vecLocus, int nWidth, int nHeight)
{
    float fLeft = c_fBeyond;
    float fTop = c_fBeyond;
    float fRight = -c_fBeyond;
    float fBottom = -c_fBeyond;
    for (const Point pt : vecLocus) {
        fLeft = std::min(fLeft, pt.x);
        fTop = std::min(fTop, pt.y);
        fRight = std::max(fRight, pt.x);
        fBottom = std::max(fBottom, pt.y);
    }
    const QPoint ptFirst(SaturateTo<int>(std::ceil(fLeft)), SaturateTo<int>(std::ceil(fTop)));
    const QPoint ptLast(SaturateTo<int>(std::floor(fRight)), SaturateTo<int>(std::floor(fBottom)));
    return QRect(ptFirst, ptLast) & QRect(0, 0, nWidth, nHeight);
}

FuncPaintPiece PiecePainter(ChromaBitmap::enInstructions instructions)
{
#ifdef SENDER_CHART_X86
    if (instructions == ChromaBitmap::enAvx2Instructions)
        return &ChromaBitmap::PaintPieceAvx2;
    if (instructions == ChromaBitmap::enSse2Instructions)
        return &ChromaBitmap::PaintPieceSse2;
#endif
    Q_UNUSED(instructions)
    return &ChromaBitmap::PaintPiecePlain;
}

/// How a component goes along a row: it stays 0 on one side of the line, grows, and stays full. Each of its
/// rounded steps rises or falls with x, so the two changes are at single whole x, which are exact.
struct SComponentRow
{
    /// What a component does in a stretch of the row.
    enum enStretch
    {
        enNone,
        enGrows,
        enFull
    };

    std::array<int, 2> arrChanges;       ///< the pixels from where the second and the third stretch begin
    std::array<enStretch, 3> arrStretch; ///< from left to right

    enStretch StretchAt(int nX) const
    {
        return arrStretch[size_t(nX >= arrChanges[0]) + size_t(nX >= arrChanges[1])];
    }
};

/// The first x of the range for which the condition holds, from where on it holds; its end if there is none.
/// @param dGuess where it should be
template <class TCondition>
int FirstWhere(int nBegin, int nEnd, double dGuess, const TCondition& condition)
{
    int nX = std::clamp(SaturateTo<int>(dGuess + 1.0), nBegin, nEnd);
    while (nX > nBegin && condition(nX - 1))
        --nX;
    while (nX < nEnd && !condition(nX))
        ++nX;
    return nX;
}

/// Paints the rows of one bitmap.
class CRowPainter
{
public:
    CRowPainter(const Gradients& arrGradients, FuncPaintPiece funcPaintPiece)
        : m_arrGradients(arrGradients)
        , m_funcPaintPiece(funcPaintPiece)
        , m_bRegular(std::all_of(arrGradients.begin(), arrGradients.end(),
                                 [](const SGradient& gradient) { return gradient.bRegular; }))
    {}

    /// Makes ready for a row, of which the pixels from nBegin to before nEnd may be painted.
    void SetRow(int nY, int nBegin, int nEnd)
    {
        m_fY = float(nY);
        for (size_t i = 0; m_bRegular && i < c_nComponents; ++i) {
            const SGradient& gradient = m_arrGradients[i];
            m_arrRamps[i] = {gradient.fA,      gradient.fB * m_fY,     gradient.fC,
                             gradient.fLength, gradient.fFullDistance, gradient.fEstimate};
            m_arrRows[i] = ComponentRow(gradient, nBegin, nEnd);
        }
    }

    /// Paints the pixels from nLeft to before nRight, and perhaps some to the right of them.
    void PaintSpan(std::uint32_t* pRow, int nWidth, int nLeft, int nRight) const
    {
        if (!m_bRegular) {
            for (int nX = nLeft; nX < nRight; ++nX)
                pRow[nX] = Pixel(m_arrGradients, {float(nX), m_fY});
            return;
        }
        while (nLeft < nRight) {
            const SRowPiece piece = PieceAt(nLeft, nRight);
            m_funcPaintPiece(pRow, nWidth, m_arrRamps.data(), piece);
            nLeft = piece.nRight;
        }
    }

private:
    SComponentRow ComponentRow(const SGradient& gradient, int nBegin, int nEnd) const;
    SRowPiece PieceAt(int nLeft, int nRight) const;

    const Gradients& m_arrGradients;
    const FuncPaintPiece m_funcPaintPiece;
    const bool m_bRegular;
    float m_fY = 0.0F;
    std::array<SRamp, c_nComponents> m_arrRamps = {};
    std::array<SComponentRow, c_nComponents> m_arrRows = {};
};

SComponentRow CRowPainter::ComponentRow(const SGradient& gradient, int nBegin, int nEnd) const
{
    const float fSign = gradient.fCentreSide > 0.0F ? 1.0F : -1.0F;
    const auto IsColoured = [&](int nX) { return IsColouredSide(gradient, {float(nX), m_fY}); };
    const auto IsFull = [&](int nX) {
        return fSign * Term(gradient, {float(nX), m_fY}) >= gradient.fFullTerm;
    };
    // Where the exact crossings are, but for the roundings.
    const double dRest = double(gradient.fB) * double(m_fY) + double(gradient.fC);
    const double dLine = -dRest * gradient.dInverseA;
    const double dFull = (double(fSign * gradient.fFullTerm) - dRest) * gradient.dInverseA;
    if (fSign * gradient.fA > 0.0F) {
        const int nGrows = FirstWhere(nBegin, nEnd, dLine, IsColoured);
        const int nFull = FirstWhere(nBegin, nEnd, dFull, IsFull);
        return {{nGrows, std::max(nGrows, nFull)},
                {SComponentRow::enNone, SComponentRow::enGrows, SComponentRow::enFull}};
    }
    if (fSign * gradient.fA < 0.0F) {
        const int nNone = FirstWhere(nBegin, nEnd, dLine, [&](int nX) { return !IsColoured(nX); });
        const int nGrows = FirstWhere(nBegin, nEnd, dFull, [&](int nX) { return !IsFull(nX); });
        return {{std::min(nGrows, nNone), nNone},
                {SComponentRow::enFull, SComponentRow::enGrows, SComponentRow::enNone}};
    }
    // Along a level line nothing changes.
    const auto stretch = !IsColoured(nBegin) ? SComponentRow::enNone
                         : IsFull(nBegin)    ? SComponentRow::enFull
                                             : SComponentRow::enGrows;
    return {{nEnd, nEnd}, {stretch, stretch, stretch}};
}

SRowPiece CRowPainter::PieceAt(int nLeft, int nRight) const
{
    SRowPiece piece = {nLeft, nRight, 0, c_nOpaque};
    for (size_t i = 0; i < c_nComponents; ++i) {
        for (const int nChange : m_arrRows[i].arrChanges) {
            if (nChange > nLeft)
                piece.nRight = std::min(piece.nRight, nChange);
        }
        const auto stretch = m_arrRows[i].StretchAt(nLeft);
        if (stretch == SComponentRow::enGrows)
            piece.nGrowing |= 1U << i;
        else if (stretch == SComponentRow::enFull)
            piece.nBase |= c_nFull << c_arrShifts[i];
    }
    return piece;
}

/// The rows of an image, as one block of 32-bit pixels.
class CPixels
{
public:
    explicit CPixels(QImage& image)
        : m_pBits(image.bits())
        , m_nStride(image.bytesPerLine())
        , m_nWidth(image.width())
    {}

    int Width() const { return m_nWidth; }
    std::uint32_t* Row(int nY) const { return reinterpret_cast<std::uint32_t*>(m_pBits + nY * m_nStride); }

    void ClearRows(int nTop, int nEnd) const
    {
        if (nTop < nEnd)
            std::memset(Row(nTop), 0, size_t(nEnd - nTop) * size_t(m_nStride));
    }

    void Clear(int nY, int nLeft, int nRight) const
    {
        if (nLeft < nRight)
            std::memset(Row(nY) + nLeft, 0, size_t(nRight - nLeft) * sizeof(std::uint32_t));
    }

private:
    uchar* m_pBits;
    qptrdiff m_nStride;
    int m_nWidth;
};

/// Paints one row: its spans from left to right and what is transparent between them.
void PaintRow(const CPixels& pixels, const CChromaOutlineSpans& spans, const QRect& rcBox, int nY,
              CRowPainter& painter)
{
    const int nBegin = rcBox.left();
    const int nEnd = rcBox.right() + 1;
    painter.SetRow(nY, nBegin, nEnd);
    int nDone = 0;
    const int* const pEnd = spans.ThresholdsEnd(nY);
    for (const int* pThreshold = spans.ThresholdsBegin(nY); pThreshold != pEnd;) {
        const int nLeft = std::clamp(*pThreshold++, nBegin, nEnd);
        const int nRight = pThreshold != pEnd ? std::clamp(*pThreshold++, nBegin, nEnd) : nEnd;
        pixels.Clear(nY, nDone, nLeft);
        painter.PaintSpan(pixels.Row(nY), pixels.Width(), nLeft, nRight);
        nDone = nRight;
    }
    pixels.Clear(nY, nDone, pixels.Width());
}

std::vector<Point> MapLocus(const QVector<QPointF>& vecLocus, const SMapping& mapping)
{
    std::vector<Point> vecMapped;
    vecMapped.reserve(size_t(vecLocus.size()));
    for (const QPointF pt : vecLocus)
        vecMapped.push_back(mapping.ToPixel(pt));
    return vecMapped;
}

/// Paints the rows of the box. @return one behind the last row that was painted
int PaintBox(const CPixels& pixels, const QRect& rcBox, const SSource& source, const Gradients& arrGradients,
             FuncPaintPiece funcPaintPiece, const ChromaBitmap::FuncStop& funcStop)
{
    const CChromaOutlineSpans spans(source.vecOutline, rcBox);
    CRowPainter painter(arrGradients, funcPaintPiece);
    int nY = rcBox.top();
    for (; nY <= rcBox.bottom() && !funcStop(); ++nY)
        PaintRow(pixels, spans, rcBox, nY, painter);
    for (const QPoint pt : spans.VertexPixels()) {
        if (pt.y() < nY)
            pixels.Row(pt.y())[pt.x()] = Pixel(arrGradients, {float(pt.x()), float(pt.y())});
    }
    return nY;
}

} // namespace

SSource SSource::Scaled(double dRatio) const
{
    SSource scaled = {SaturateTo<int>(std::ceil(double(nWidth) * dRatio)),
                      SaturateTo<int>(std::ceil(double(nHeight) * dRatio)), vecLocus, vecOutline};
    for (Point& pt : scaled.vecOutline)
        pt = {float(double(pt.x) * dRatio), float(double(pt.y) * dRatio)};
    return scaled;
}

SMapping SMapping::ForSize(int nWidth, int nHeight)
{
    SMapping mapping;
    mapping.nMarginX = nWidth / c_nMarginDivisor;
    mapping.nMarginY = nHeight / c_nMarginDivisor;
    mapping.nScale =
        SaturateTo<int>(std::min((double(nWidth) - 2.0 * double(mapping.nMarginX)) / c_dAxisSpanX,
                                 (double(nHeight) - 2.0 * double(mapping.nMarginY)) / c_dAxisSpanY));
    mapping.nHeight = nHeight;
    return mapping;
}

Point SMapping::ToPixel(QPointF ptChromaticity) const
{
    return {float(ptChromaticity.x() * double(nScale) + double(nMarginX)),
            float(double(nHeight - nMarginY) - ptChromaticity.y() * double(nScale))};
}

bool ChromaBitmap::HasInstructions(enInstructions instructions)
{
#ifdef SENDER_CHART_X86
    if (instructions == enAvx2Instructions)
        return __builtin_cpu_supports("avx2") != 0;
    if (instructions == enSse2Instructions)
        return true;
#endif
    return instructions == enPlainInstructions;
}

ChromaBitmap::enInstructions ChromaBitmap::BestInstructions()
{
    for (const enInstructions instructions : {enAvx2Instructions, enSse2Instructions}) {
        if (HasInstructions(instructions))
            return instructions;
    }
    return enPlainInstructions;
}

QImage ChromaBitmap::Paint(const SSource& source, const FuncStop& funcStop, enInstructions instructions)
{
    QImage image(source.nWidth, source.nHeight, QImage::Format_ARGB32);
    if (image.isNull())
        return image;
    const SMapping mapping = SMapping::ForSize(source.nWidth, source.nHeight);
    const std::vector<Point> vecLocus = MapLocus(source.vecLocus, mapping);
    const QRect rcBox = PixelBox(vecLocus, source.nWidth, source.nHeight);
    const CPixels pixels(image);
    if (rcBox.isEmpty()) {
        pixels.ClearRows(0, source.nHeight);
        return image;
    }
    pixels.ClearRows(0, rcBox.top());
    const int nPainted =
        PaintBox(pixels, rcBox, source,
                 MakeGradients(vecLocus, mapping, {float(source.nWidth), float(source.nHeight)}),
                 PiecePainter(instructions), funcStop);
    pixels.ClearRows(nPainted, source.nHeight);
    return image;
}
