#ifndef SENDERMODULEDIALOG_CHART_CHROMAGROUPINFO_H
#define SENDERMODULEDIALOG_CHART_CHROMAGROUPINFO_H

#include "host/CommonClass/PointEx.h"

#include <QImage>
#include <QMap>
#include <QString>

#include <atomic>

/// @file
/// The chart's records: a colour group, the standard colour spaces, a background bitmap.

/// Keys of groups that have a meaning of their own. Any other key that is not negative is legal too.
enum enChromaGroupKey
{
    enOutputColorSpace = 0x200, ///< what the content is made for: its note tells how much of it is covered
    enScreenColorSpace = 0x300  ///< what the screen shows after correction
};

/// The points of a group, by index.
enum enChromaPoint
{
    enNoPoint = -1,
    enRedPoint = 0,   ///< cyan in CMY mode
    enGreenPoint = 1, ///< magenta in CMY mode
    enBluePoint = 2,  ///< yellow in CMY mode
    enWhitePoint = 3
};

/// Number of points of a group.
inline constexpr int c_nChromaPointCount = 4;

/// The standard colour spaces that the chart recognises and names.
enum enColorStandard
{
    enStandardSRGB = 0,
    enStandardAdobeRGB = 1,
    enStandardPAL = 2,
    enStandardNTSC = 3,
    enStandardRec601 = 4,
    enStandardRec709 = 5, ///< the same points as sRGB
    enStandardRec2020 = 6,
    enStandardDCIP3 = 7
};

/// Number of standard colour spaces.
inline constexpr int c_nColorStandardCount = 8;
/// The index that stands for no standard, where an `enColorStandard` is kept as int.
inline constexpr int c_nNoColorStandard = -1;

/// One colour gamut on the chart: three points, a white point and how they are drawn. The coordinates are
/// CIE 1931 xy chromaticities.
///
/// The three points are the primaries (RGB mode) or the secondary colours (CMY mode), which are the
/// midpoints of the triangle's edges: cyan between green and blue, magenta between red and blue, yellow
/// between red and green.
struct SChromaGroupInfo
{
    int nGroupKey = 0;         ///< the chart writes the key under which it holds the group
    CPointEx<float> ptRed;     ///< red, or cyan in CMY mode
    CPointEx<float> ptGreen;   ///< green, or magenta in CMY mode
    CPointEx<float> ptBlue;    ///< blue, or yellow in CMY mode
    CPointEx<float> ptWhite;   ///< white
    bool bMoveRed = false;     ///< the point may be dragged; one that may not is smaller and has a grey rim
    bool bMoveGreen = false;   ///< as `bMoveRed`
    bool bMoveBlue = false;    ///< as `bMoveRed`
    bool bMoveWhite = false;   ///< as `bMoveRed`
    unsigned char nColorR = 0; ///< line colour of the group: red, 0 to 255 (see `bOwnColor`)
    unsigned char nColorG = 0; ///< green of the line colour
    unsigned char nColorB = 0; ///< blue of the line colour
    int nPenStyle = 0;         ///< `Qt::PenStyle` of the triangle's lines: 0 draws none
    float fPenWidth = 1.0F;    ///< width of the triangle's lines, in pixels
    bool bOwnColor = false;    ///< false: each paint takes the colour from the palette and stores it here
    bool bReserved35 = false;  ///< copied with the record, read by nothing
    bool bVisible = true;      ///< drawn, and may take part in the coverage percentage
    bool bShowRedDot = true;   ///< the point's dot is drawn
    bool bShowGreenDot = true; ///< as `bShowRedDot`
    bool bShowBlueDot = true;  ///< as `bShowRedDot`
    bool bReserved3A = false;  ///< copied with the record, read by nothing
    bool bReserved3B = false;  ///< copied with the record, read by nothing
    bool bReserved3C = false;  ///< copied with the record, read by nothing
    bool bShowWhiteDot = true; ///< as `bShowRedDot`
    bool bRgbMode = true;      ///< true: RGB mode, false: CMY mode
    bool bShowNote = true;     ///< the group has a row in the legend
    QString strName;           ///< legend text; the two keys of `enChromaGroupKey` have texts of their own
};

/// Groups by key, in the order in which they are drawn, hit and listed.
using ChromaGroups = QMap<int, SChromaGroupInfo*>;

/// The window type whose bitmap has the chart's own size.
inline constexpr int c_nDefaultWndType = -1;
/// Number of window types with a bitmap of their own, counted from 0.
inline constexpr int c_nWndBitmapCount = 5;

/// One painted background bitmap of the chart.
///
/// It goes from empty (no image, not ready) to painted, and never back: painting it again replaces the image.
struct SWndBitmap
{
    SWndBitmap() = default;
    ~SWndBitmap() { delete pImage; }
    SWndBitmap(const SWndBitmap&) = delete;
    SWndBitmap& operator=(const SWndBitmap&) = delete;

    int nType = -1;                  ///< -1 until `SetWndData` names it
    int nWidth = 0;                  ///< in pixels
    int nHeight = 0;                 ///< in pixels
    QImage* pImage = nullptr;        ///< owned; only ever a whole picture. Read it while the worker rests
    std::atomic<bool> bReady{false}; ///< set after the first painting, which may run in the worker thread
};

#endif // SENDERMODULEDIALOG_CHART_CHROMAGROUPINFO_H
