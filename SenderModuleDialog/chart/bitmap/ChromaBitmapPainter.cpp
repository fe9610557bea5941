#include "SenderModuleDialog/chart/bitmap/ChromaBitmapPainter.h"

#include "SenderModuleDialog/Saturate.h"
#include "SenderModuleDialog/chart/ChartMapping.h"
#include "SenderModuleDialog/chart/bitmap/ChromaBitmapRow.h"
#include "SenderModuleDialog/chart/bitmap/ChromaOutlineSpans.h"

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

/// The chromaticity from which the components are full is (1/3, 1/3).
constexpr double c_dCentreDivisor = 3.0;

/// Beyond all pixels: where the search for the extreme points starts from.
constexpr float c_fBeyond = 6.5536e9F;

constexpr float c_fFull = 255.0F;
constexpr std::uint32_t c_nFull = 255;
constexpr std::uint32_t c_nOpaque = 0xFF000000U;

/// Where red, green and blue stand in a pixel.
constexpr std::array<int, c_nComponents> c_arrShifts = {16, 8, 0};

/// The line that a component grows away from, and how. It holds what `CLine` would compute for each
/// pixel anew.
struct SGradient
{
    float fA;
    float fB;
    float fC;
    float fLength;       ///< sqrt(b b + a a)
    float fFullDistance; ///< the centre's distance
    float fCentreSide;   ///< the centre's value of c + a x + b y: its sign is the side that is coloured
    float fSign;         ///< 1 or -1, what turns terms positive on the coloured side
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
    gradient.fSign = gradient.fCentreSide > 0.0F ? 1.0F : -1.0F;
    const double dFull = double(c_fFull) * (1.0 + ChromaBitmap::c_dEnlarged) * ChromaBitmap::c_dParts;
    gradient.fEstimate = float(dFull * dFull / (double(gradient.fLength) * double(gradient.fFullDistance)));
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
#ifdef SENDER_CHART_NEON
    if (instructions == ChromaBitmap::enNeonInstructions)
        return &ChromaBitmap::PaintPieceNeon;
#endif
    Q_UNUSED(instructions)
    return &ChromaBitmap::PaintPiecePlain;
}

/// What a component adds to the pieces of one stretch of a row.
struct SStretch
{
    unsigned int nGrowing; ///< its bit while it grows
    std::uint32_t nBase;   ///< its bits while it stays
};

/// How a component goes along each row: it stays 0 on one side of the line, grows, and stays full, from left
/// to right or from right to left.
using Stretches = std::array<SStretch, 3>;

/// Where the component of a row goes over to its second and to its third stretch. Each of its rounded steps
/// rises or falls with x, so both are at single whole x, which are exact.
struct SChanges
{
    int nFirst;
    int nSecond;

    /// The stretch that a pixel is in.
    size_t StretchAt(int nX) const { return size_t(nX >= nFirst) + size_t(nX >= nSecond); }
    /// One behind the last pixel of a stretch that ends at nEnd at the latest.
    int EndOf(size_t nStretch, int nEnd) const
    {
        const std::array<int, 3> arrEnds = {nFirst, nSecond, nEnd};
        return std::min(arrEnds[nStretch], nEnd);
    }
};

/// Whether the component grows from right to left.
bool IsFalling(const SGradient& gradient)
{
    return gradient.fSign * gradient.fA < 0.0F;
}

Stretches MakeStretches(const SGradient& gradient, size_t nComponent)
{
    const SStretch none = {0, 0};
    const SStretch growing = {1U << nComponent, 0};
    const SStretch full = {0, c_nFull << c_arrShifts[nComponent]};
    return IsFalling(gradient) ? Stretches{full, growing, none} : Stretches{none, growing, full};
}

/// The first x of the range for which the condition holds, from where on it holds; its end if there is none.
/// @param dGuess where it should be
template <class TCondition>
int FirstWhere(int nBegin, int nEnd, double dGuess, const TCondition& condition)
{
    // NaN is clamped to the range too.
    int nX = int(std::min(double(nEnd), std::max(double(nBegin), dGuess + 1.0)));
    while (nX > nBegin && condition(nX - 1))
        --nX;
    while (nX < nEnd && !condition(nX))
        ++nX;
    return nX;
}

/// The changes of a component in the pixels of a row from nBegin to before nEnd.
SChanges FindChanges(const SGradient& gradient, int nY, int nBegin, int nEnd)
{
    const float fY = float(nY);
    const float fSign = gradient.fSign;
    const auto IsColoured = [&](int nX) { return IsColouredSide(gradient, {float(nX), fY}); };
    const auto IsFull = [&](int nX) { return fSign * Term(gradient, {float(nX), fY}) >= gradient.fFullTerm; };
    if (gradient.fA == 0.0F) {
        // Along a level line nothing changes.
        const int nGrows = IsColoured(nBegin) ? nBegin : nEnd;
        return {nGrows, IsFull(nBegin) ? nGrows : nEnd};
    }
    // Where the exact crossings are, but for the roundings.
    const double dRest = double(gradient.fB) * double(fY) + double(gradient.fC);
    const double dLine = -dRest * gradient.dInverseA;
    const double dFull = (double(fSign * gradient.fFullTerm) - dRest) * gradient.dInverseA;
    if (IsFalling(gradient)) {
        const int nNone = FirstWhere(nBegin, nEnd, dLine, [&](int nX) { return !IsColoured(nX); });
        const int nGrows = FirstWhere(nBegin, nEnd, dFull, [&](int nX) { return !IsFull(nX); });
        return {std::min(nGrows, nNone), nNone};
    }
    const int nGrows = FirstWhere(nBegin, nEnd, dLine, IsColoured);
    const int nFull = FirstWhere(nBegin, nEnd, dFull, IsFull);
    return {nGrows, std::max(nGrows, nFull)};
}

/// Paints the rows of one bitmap.
class CRowPainter
{
public:
    /// @param rcBox where pixels may be painted
    CRowPainter(const Gradients& arrGradients, FuncPaintPiece funcPaintPiece, const QRect& rcBox)
        : m_arrGradients(arrGradients)
        , m_funcPaintPiece(funcPaintPiece)
        , m_nTop(rcBox.top())
        , m_bRegular(std::all_of(arrGradients.begin(), arrGradients.end(),
                                 [](const SGradient& gradient) { return gradient.bRegular; }))
    {
        for (size_t i = 0; i < c_nComponents; ++i)
            m_arrStretches[i] = MakeStretches(arrGradients[i], i);
        if (m_bRegular)
            FindAllChanges(rcBox);
    }

    /// Makes ready for a row of the box.
    void SetRow(int nY)
    {
        m_fY = float(nY);
        m_pChanges = m_bRegular ? &m_vecChanges[size_t(nY - m_nTop)] : nullptr;
        for (size_t i = 0; i < c_nComponents; ++i) {
            const SGradient& gradient = m_arrGradients[i];
            const float fSign = gradient.fSign;
            m_arrRamps[i] = {fSign * gradient.fA, fSign * (gradient.fB * m_fY), fSign * gradient.fC,
                             gradient.fLength,    gradient.fFullDistance,       gradient.fEstimate};
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
    using RowChanges = std::array<SChanges, c_nComponents>;

    /// All rows at once: alternating between searching and painting takes several times as long.
    void FindAllChanges(const QRect& rcBox)
    {
        m_vecChanges.resize(size_t(rcBox.height()));
        for (int nY = rcBox.top(); nY <= rcBox.bottom(); ++nY) {
            for (size_t i = 0; i < c_nComponents; ++i)
                m_vecChanges[size_t(nY - m_nTop)][i] =
                    FindChanges(m_arrGradients[i], nY, rcBox.left(), rcBox.right() + 1);
        }
    }

    SRowPiece PieceAt(int nLeft, int nRight) const
    {
        SRowPiece piece = {nLeft, nRight, 0, c_nOpaque};
        for (size_t i = 0; i < c_nComponents; ++i) {
            const SChanges& changes = (*m_pChanges)[i];
            const size_t nStretch = changes.StretchAt(nLeft);
            const SStretch& stretch = m_arrStretches[i][nStretch];
            piece.nRight = changes.EndOf(nStretch, piece.nRight);
            piece.nGrowing |= stretch.nGrowing;
            piece.nBase |= stretch.nBase;
        }
        return piece;
    }

    const Gradients& m_arrGradients;
    const FuncPaintPiece m_funcPaintPiece;
    const int m_nTop; ///< first row of the box
    const bool m_bRegular;
    std::array<Stretches, c_nComponents> m_arrStretches = {};
    std::vector<RowChanges> m_vecChanges; ///< by row of the box
    float m_fY = 0.0F;
    const RowChanges* m_pChanges = nullptr; ///< of the row
    std::array<SRamp, c_nComponents> m_arrRamps = {};
};

/// The pixels of an image, which is filled from its beginning to its end: rows of 32-bit pixels follow one
/// another without a gap.
class CPixels
{
public:
    explicit CPixels(QImage& image)
        : m_pBits(reinterpret_cast<std::uint32_t*>(image.bits()))
        , m_nWidth(image.width())
        , m_pEnd(m_pBits + qptrdiff(image.height()) * m_nWidth)
        , m_pDone(m_pBits)
    {}

    int Width() const { return m_nWidth; }
    std::uint32_t* Row(int nY) const { return m_pBits + qptrdiff(nY) * m_nWidth; }

    /// Makes transparent what lies before a pixel and is not done yet.
    void ClearTo(const std::uint32_t* pPixel)
    {
        if (m_pDone < pPixel)
            std::memset(m_pDone, 0, size_t(pPixel - m_pDone) * sizeof(std::uint32_t));
    }
    void ClearToEnd() { ClearTo(m_pEnd); }
    /// All before a pixel is done.
    void SetDone(std::uint32_t* pPixel) { m_pDone = pPixel; }

private:
    std::uint32_t* m_pBits;
    int m_nWidth;
    const std::uint32_t* m_pEnd;
    std::uint32_t* m_pDone;
};

/// Paints the spans of one row from left to right, and makes transparent what lies before each.
void PaintRow(CPixels& pixels, const CChromaOutlineSpans& spans, const QRect& rcBox, int nY,
              CRowPainter& painter)
{
    const int nBegin = rcBox.left();
    const int nEnd = rcBox.right() + 1;
    std::uint32_t* const pRow = pixels.Row(nY);
    painter.SetRow(nY);
    const int* const pEnd = spans.ThresholdsEnd(nY);
    for (const int* pThreshold = spans.ThresholdsBegin(nY); pThreshold != pEnd;) {
        const int nLeft = std::clamp(*pThreshold++, nBegin, nEnd);
        const int nRight = pThreshold != pEnd ? std::clamp(*pThreshold++, nBegin, nEnd) : nEnd;
        pixels.ClearTo(pRow + nLeft);
        painter.PaintSpan(pRow, pixels.Width(), nLeft, nRight);
        pixels.SetDone(pRow + nRight);
    }
}

std::vector<Point> MapLocus(const QVector<QPointF>& vecLocus, const SMapping& mapping)
{
    std::vector<Point> vecMapped;
    vecMapped.reserve(size_t(vecLocus.size()));
    for (const QPointF pt : vecLocus)
        vecMapped.push_back(mapping.ToPixel(pt));
    return vecMapped;
}

/// Paints the rows of the box until it is told to stop, and makes everything else transparent.
void PaintBox(CPixels& pixels, const QRect& rcBox, const SSource& source, const Gradients& arrGradients,
              FuncPaintPiece funcPaintPiece, const ChromaBitmap::FuncStop& funcStop)
{
    const CChromaOutlineSpans spans(source.vecOutline, rcBox);
    CRowPainter painter(arrGradients, funcPaintPiece, rcBox);
    int nY = rcBox.top();
    for (; nY <= rcBox.bottom() && !funcStop(); ++nY)
        PaintRow(pixels, spans, rcBox, nY, painter);
    pixels.ClearToEnd();
    for (const QPoint pt : spans.VertexPixels()) {
        if (pt.y() < nY)
            pixels.Row(pt.y())[pt.x()] = Pixel(arrGradients, {float(pt.x()), float(pt.y())});
    }
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
        SaturateTo<int>(std::min((double(nWidth) - 2.0 * double(mapping.nMarginX)) / c_dChartAxisSpanX,
                                 (double(nHeight) - 2.0 * double(mapping.nMarginY)) / c_dChartAxisSpanY));
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
#ifdef SENDER_CHART_NEON
    if (instructions == enNeonInstructions)
        return true;
#endif
    return instructions == enPlainInstructions;
}

ChromaBitmap::enInstructions ChromaBitmap::BestInstructions()
{
    for (const enInstructions instructions : {enAvx2Instructions, enSse2Instructions, enNeonInstructions}) {
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
    CPixels pixels(image);
    if (rcBox.isEmpty())
        pixels.ClearToEnd();
    else
        PaintBox(pixels, rcBox, source,
                 MakeGradients(vecLocus, mapping, {float(source.nWidth), float(source.nHeight)}),
                 PiecePainter(instructions), funcStop);
    return image;
}
